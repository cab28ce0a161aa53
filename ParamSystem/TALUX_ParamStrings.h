// The display texts of parameters, templates and dialogs in German and English.
#ifndef TALUX_PARAMSTRINGS_H
#define TALUX_PARAMSTRINGS_H

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/TALUX_Types.h"

enum ParamLanguage : int { kGerman = 1, kEnglish = 2 };

enum ParamTextType : int {
    kTextTitle = 3002,       // short label in menus
    kTextDescription = 3003, // long label
    kTextUnit = 3004,
    kTextGroup = 3007, // heading of group id_item
    kTextItem = 3008,  // choice number id_item of an enum (group 0), or a dialog or message line
};

struct stParamText {
    int id;
    int language;                      // ParamLanguage
    int type;                          // ParamTextType
    unsigned long long visibility[16]; // masks of the display programs
    int id_group;
    int id_item;
    const char* txt; // UTF-8, may hold line breaks
};

// Rows of the working table, and of the compiled-in one. Both are fixed within one SONAME.
inline constexpr int kParamTextRows = 4942;
inline constexpr int kDefParamTextRows = kParamTextRows - 200;

// The compiled-in texts: sentinels with id 0 and the text "***" first and last, the texts between them
// grouped by id in catalogue order. More sentinels fill the rows that have no text yet.
extern TALUX_API const stParamText DefParamText[kDefParamTextRows];
extern TALUX_API const int DefParamTextCount; // kDefParamTextRows

/*
 * The working table, which every look-up reads. Row 0 stands for "not found"; after it the first row with id
 * 0 ends the table. A program may change rows and add some from that one on, before it starts a second
 * thread. For an id with compiled-in texts, those and the added ones are searched.
 */
extern TALUX_API stParamText ParamText[kParamTextRows];

// "TXT_" names; the first and the last row are named "***".
extern TALUX_API const stParamSymbol DefParamTextSymbols[];

// Row found by the last First or Next look-up: the one cursor of the process.
extern TALUX_API int iLastEntry;

// Copies DefParamText into the working table, again at every call; rows that a program wrote after
// them remain. Returns 1. Called at start-up before any look-up.
TALUX_API int LoadDefParamStrings();

/*
 * Replaces the working table by the texts of a tab-separated file, one text per line of at most 253
 * characters: symbol, language, type, group, item, "text". Empty lines are skipped. The first text takes the
 * place of row 0, which look-ups return for "not found"; the table ends after the last one. The texts are in
 * the string space of the field reader, which the caller first resets with Data_StringReset. Returns 1; any
 * error prints its message to standard output and ends the process with exit status 2. Call it before any
 * look-up in a second thread.
 */
TALUX_API int LoadParamStrings(char* sourcefile);

// Looks a TXT_ name up, letter case ignored. Returns 1 and stores the id in *lvalue, or returns 0.
TALUX_API int ResolveParamTextSymbol(char* name, VarLong* lvalue);

/*
 * The look-ups search in the language of the parameter `Language` (temporary space) and return the first
 * text in table order that matches; all but the Next functions fall back to English. They never return
 * null: a missing text is row 0, whose txt is "***". An id below 1 aborts. The First and Next
 * functions move the one cursor of the process and belong to one thread.
 */
TALUX_API const stParamText* GetParamString(int id, int type);
TALUX_API const stParamText* GetFirstParamString(int id, int type);
TALUX_API const stParamText* GetNextParamString(int id, int type);
TALUX_API const stParamText* GetParamStringInGroup(int id, int group, int item, int type);
TALUX_API const stParamText* GetFirstParamStringInGroup(int id, int group, int type);
TALUX_API const stParamText* GetNextParamStringInGroup(int id, int group, int type);

#endif
