/*
 * The vocabulary of the rows of parameters. A row holds all that is known of a parameter:
 *
 *   decimal(2148, "Uearth", {.def = 30, .min = 1, .max = 90, .unit = "%", .of = {kUearth, kThreshold}},
 *           {{"Schwelle Erdschluss U0", "Verlagerungsspannung, ab der ein Erdschluss gemeldet wird"},
 *            {"Threshold earth fault U0", "Residual voltage above which an earth fault is signalled"}}),
 *
 * id, name, facts, and its texts: the German ones first, the English ones below. A title has at most 24
 * characters.
 *
 * A name with a list in braces stands for a series of parameters with consecutive ids: "REL{1..8}",
 * "knu{1,2,3}", "U{12,23,31}_prim". Their texts show the member as {n}. Texts that several rows of a
 * family share are written once, as `Words` above them: kSignalDuration("qu2") shows "qu2" as {n}; a second
 * word, or the member of a series then, is {m}.
 *
 * Lists of texts are divided by "|". In them "BI{1..6}" stands for six texts, "NC*39" for the same text 39
 * times.
 *
 * The generator (tools/generator) expands everything and refuses what breaks a rule.
 */
#ifndef TALUX_PARAMETERS_ROW_H
#define TALUX_PARAMETERS_ROW_H

#include <array>

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/dictionary/SourceLine.h"
#include "ParamSystem/parameters/Traits.h"
#include "ParamSystem/rules/Facts.h"

namespace talux::parameters {

// The line that a row is written on: every verb notes where it is used, so that messages can say it.
using Where = SourceLine;

// ---- Texts ------------------------------------------------------------------------------------------------

// What a parameter is called in one language; `choices` is a list.
struct Said {
    const char* title = "";
    const char* description = "";
    const char* choices = "";
};

// In both languages. Empty only where a row has no such text.
struct Words {
    Said de{}, en{};
    std::array<const char*, 2> shown{"", ""}; // as {n} and {m}

    constexpr Words operator()(const char* n, const char* m = "") const {
        Words words = *this;
        words.shown = {n, m};
        return words;
    }
};

// The numbered groups of texts: choices, and what commands and dialogs show.
enum Group : int { kGroupArgs = 0, kGroupMessages = 1, kGroupErrors = 2, kGroupCount = 3 };

struct Both {
    const char* de = "";
    const char* en = "";

    constexpr bool isEmpty() const { return *de == '\0' && *en == '\0'; }
};

using ByGroup = std::array<Both, kGroupCount>;

struct Texts {
    Both title{}, description{};
    ByGroup headings{};           // of the groups of a command or dialog
    ByGroup items{};              // lists
    int firstError = 1;           // number of the first text of kGroupErrors
    bool ownNameAsArg = false;    // commands: item 1 of group 0
    const char* choiceNames = ""; // what C++ programs call the choices: a list without the leading k
    std::array<const char*, 2> shown{"", ""};
};

// ---- Rows -------------------------------------------------------------------------------------------------

inline constexpr int kNoLength = -1;

struct Row {
    enum Series { kSingle, kNamed, kIndexed };

    stParamProperties properties{}; // of the first parameter of a series
    const char* templateName = "";  // what symbols call a nameless row
    Series series = kSingle;
    int last = 1; // element of an indexed parameter
    const char* unit = "";
    Place of{};
    unsigned is = 0;
    Form form = Form::none; // of the value
    WriteEffect effect = kNoEffect;
    Texts texts{};
    Where where{};
};

constexpr Row plainRow(int id, const char* name, int type, unsigned is, Where where) {
    Row row;
    row.where = where;
    row.is = is;
    row.form = rules::formOf(typeOf(type));
    for (const char* c = name; *c != '\0'; ++c)
        if (*c == '{') row.series = Row::kNamed;
    row.properties = {.id = id,
                      .name = name,
                      .id_template = 0,
                      .type = type,
                      .val_access = (is & kUnwritable) != 0 ? kReadOnly : kReadWrite,
                      .is_volatile = (is & kRuntime) != 0 ? 1 : 0,
                      .format = "",
                      .val_init_text = "",
                      .val_init = 0,
                      .val_def_text = "",
                      .val_def = 0,
                      .val_len = kNoLength,
                      .val_min = kNoMin,
                      .val_max = kNoMax,
                      .val_min_id = 0,
                      .val_max_id = 0,
                      .val_step = 1,
                      .userlevel = (is & kSecurity) != 0 ? 3 : 1};
    return row;
}

constexpr Row saying(Row row, const Words& words) {
    row.texts.title = {words.de.title, words.en.title};
    row.texts.description = {words.de.description, words.en.description};
    row.texts.items[kGroupArgs] = {words.de.choices, words.en.choices};
    row.texts.shown = words.shown;
    return row;
}

// Choice lists and ratios that several parameters share.

struct Template {
    int id = 0;
    const char* name = "";
    int choices = 0;
};

inline constexpr Template kBaudRate{18021, "BAUDRATE", 5};
inline constexpr Template kDataBits{18022, "DATABITS", 2};
inline constexpr Template kParity{18023, "PARITY", 3};
inline constexpr Template kStopBits{18024, "STOPBITS", 3};
inline constexpr Template kHandshake{18025, "HANDSHAKE", 3};
inline constexpr Template kTermination{18026, "TERMINATION", 2};
inline constexpr Template kCtRatio{18027, "CT_RATIO"};
inline constexpr Template kInputFunction{18028, "BE_FUNCTION", 103};
inline constexpr Template kInputPolarity{18029, "BE_POLARITY", 2};
inline constexpr Template kOutputFunction{18030, "BA_FUNCTION", 128};
inline constexpr Template kPriorityFunction{18031, "PRIORITY", 20};
inline constexpr Template kDisplayMeasure{18032, "MEAS_DISP", 24};
inline constexpr Template kOutputPolarity{18033, "BA_POLARITY", 2};

// Numbers. The initial value is the factory default.

struct NumberFacts {
    Template like{};
    double def = 0;
    double min = kNoMin;
    double max = kNoMax;
    double step = 1;
    const char* unit = ""; // a symbol, the same in both languages
    Place of{};
    unsigned is = 0;
};

constexpr Row numeric(int id, const char* name, int type, const NumberFacts& facts, const Words& words,
                      Where where) {
    Row row = plainRow(id, name, type, facts.is, where);
    row.properties.id_template = facts.like.id;
    row.properties.val_init = facts.def;
    row.properties.val_def = facts.def;
    row.properties.val_min = facts.min;
    row.properties.val_max = facts.max;
    row.properties.val_step = facts.step;
    row.unit = facts.unit;
    row.of = facts.of;
    return saying(row, words);
}

// A 32-bit integer.
constexpr Row number(int id, const char* name, const NumberFacts& facts, const Words& words,
                     Where where = Where::current()) {
    return numeric(id, name, kTypeLong, facts, words, where);
}

// A 16-bit integer.
constexpr Row shortNumber(int id, const char* name, const NumberFacts& facts, const Words& words,
                          Where where = Where::current()) {
    return numeric(id, name, kTypeInt, facts, words, where);
}

// A 32-bit float.
constexpr Row decimal(int id, const char* name, const NumberFacts& facts, const Words& words,
                      Where where = Where::current()) {
    return numeric(id, name, kTypeFloat, facts, words, where);
}

constexpr Row doubleNumber(int id, const char* name, const NumberFacts& facts, const Words& words,
                           Where where = Where::current()) {
    return numeric(id, name, kTypeDouble, facts, words, where);
}

enum Switch { kOff, kOn };

struct FlagFacts {
    Switch def = kOff;
    const char* init = ""; // initial value as text
    Place of{};
    unsigned is = 0;
};

constexpr Row flag(int id, const char* name, const FlagFacts& facts, const Words& words,
                   Where where = Where::current()) {
    const bool isEdited = (facts.is & (kUnwritable | kRuntime)) == 0;
    Row row = numeric(id, name, kTypeBool,
                      {.def = facts.def == kOn ? 1.0 : 0.0,
                       .min = isEdited ? 0 : kNoMin,
                       .max = isEdited ? 1 : kNoMax,
                       .of = facts.of,
                       .is = facts.is},
                      words, where);
    row.properties.val_init_text = facts.init;
    return row;
}

// Choices count from 1. A row that has their texts has their names too, for C++ programs; they stay as they
// are when a text changes.

constexpr int countOf(const char* list) {
    int count = *list != '\0' ? 1 : 0;
    for (; *list != '\0'; ++list)
        count += *list == '|';
    return count;
}

struct ChoiceFacts {
    Template like{};        // whose choices and texts it has
    int choices = 0;        // otherwise how many; with texts of its own as many as these
    const char* names = ""; // "Automatic|54_Mbit_s": kAutomatic, k54_Mbit_s
    double min = kNoMin;
    double def = 1;
    const char* unit = "";
    Place of{};
    unsigned is = 0;
};

constexpr Row choice(int id, const char* name, const ChoiceFacts& facts, const Words& words,
                     Where where = Where::current()) {
    const int choices = facts.like.id != 0   ? facts.like.choices
                        : facts.choices != 0 ? facts.choices
                                             : countOf(words.en.choices);
    Row row = numeric(id, name, kTypeEnum,
                      {.like = facts.like,
                       .def = facts.def,
                       .min = facts.min,
                       .max = double(choices),
                       .unit = facts.unit,
                       .of = facts.of,
                       .is = facts.is},
                      words, where);
    row.texts.choiceNames = facts.names;
    return row;
}

// Texts and addresses.

struct TextFacts {
    int length = kNoLength;
    const char* def = "";
    const char* init = nullptr; // the default unless given otherwise
    Form form = kOfItsType;
    Place of{};
    unsigned is = 0;
};

constexpr Row textual(int id, const char* name, int type, const TextFacts& facts, const Words& words,
                      Where where) {
    Row row = plainRow(id, name, type, facts.is, where);
    row.properties.val_len = facts.length;
    row.properties.val_def_text = facts.def;
    row.properties.val_init_text = facts.init != nullptr ? facts.init : facts.def;
    if (facts.form != kOfItsType) row.form = facts.form;
    row.of = facts.of;
    return saying(row, words);
}

constexpr Row text(int id, const char* name, const TextFacts& facts, const Words& words,
                   Where where = Where::current()) {
    return textual(id, name, kTypeText, facts, words, where);
}

constexpr Row identifier(int id, const char* name, const TextFacts& facts, const Words& words,
                         Where where = Where::current()) {
    return textual(id, name, kTypeId, facts, words, where);
}

constexpr Row address(int id, const char* name, const TextFacts& facts, const Words& words,
                      Where where = Where::current()) {
    return textual(id, name, kTypeIp, facts, words, where);
}

constexpr Row interfaceAddress(int id, const char* name, const TextFacts& facts, const Words& words,
                               Where where = Where::current()) {
    Row row = textual(id, name, kTypeIpAddress, facts, words, where);
    row.effect = kAppliesNetwork;
    return row;
}

constexpr Row interfaceMask(int id, const char* name, const TextFacts& facts, const Words& words,
                            Where where = Where::current()) {
    return textual(id, name, kTypeIpMask, facts, words, where);
}

constexpr Row interfaceGateway(int id, const char* name, const TextFacts& facts, const Words& words,
                               Where where = Where::current()) {
    return textual(id, name, kTypeIpGateway, facts, words, where);
}

constexpr Row clockRow(int id, const char* name, int type, const Words& words, Where where) {
    Row row = textual(id, name, type, {.def = "0"}, words, where);
    row.effect = kSetsClock;
    return row;
}

constexpr Row clockDate(int id, const char* name, const Words& words, Where where = Where::current()) {
    return clockRow(id, name, kTypeSysDate, words, where);
}

constexpr Row clockTime(int id, const char* name, const Words& words, Where where = Where::current()) {
    return clockRow(id, name, kTypeSysTime, words, where);
}

// How the display prints measured values.
inline constexpr const char* kPrimaryVoltage = "%9.3f"; // kV
inline constexpr const char* kSecondaryVoltage = "%9.2f";
inline constexpr const char* kPrimaryCurrent = "%9.1f";
inline constexpr const char* kSecondaryCurrent = "%9.3f";
inline constexpr const char* kFaultCurrent = "%9.0f";
inline constexpr const char* kPower = "%9.1f";
inline constexpr const char* kPowerFactor = "%6.4f";
inline constexpr const char* kFrequency = "%9.3f";
inline constexpr const char* kHarmonic = "%9.3f";
inline constexpr const char* kAngle = "%5.1f";
inline constexpr const char* kInputVoltage = "%4.1f";

// A measured value: a run-time value that the display prints.
constexpr Row measured(int id, const char* name, const char* format, const char* unit, const Words& words,
                       Where where = Where::current()) {
    Row row = decimal(id, name, {.unit = unit, .is = kRuntime}, words, where);
    row.properties.format = format;
    return row;
}

// A binary record of the struct segment.
constexpr Row record(int id, const char* name, const Words& words, Where where = Where::current()) {
    return saying(plainRow(id, name, kTypeStruct, kRuntime, where), words);
}

// One parameter with the elements 1..last, one row and one id each.
constexpr Row indexed(int last, Row row) {
    row.series = Row::kIndexed;
    row.properties.val_min_id = 1;
    row.last = row.properties.val_max_id = last;
    return row;
}

// ---- Rows without a stored value --------------------------------------------------------------------------

// What a command shows: while it works, and a text for each result code.
struct CommandSaid {
    const char* title = "";
    const char* description = "";
    const char* messages = "";
    const char* results = "";
};

struct CommandWords {
    CommandSaid de{}, en{};
};

struct CommandFacts {
    int userlevel = 1;
    int firstResult = 1; // code of the first text
    unsigned is = 0;
};

// A trigger that the other programs of the device react to.
constexpr Row command(int id, const char* name, const CommandFacts& facts, const CommandWords& words,
                      Where where = Where::current()) {
    Row row = plainRow(id, name, kTypeCommand, facts.is, where);
    row.properties.userlevel = facts.userlevel;
    row.texts = {
        .title = {words.de.title, words.en.title},
        .description = {words.de.description, words.en.description},
        .headings = {{{"Argumente", "Args"}, {"Meldungen", "Messages"}, {"Fehler", "Errors"}}},
        .items = {{{}, {words.de.messages, words.en.messages}, {words.de.results, words.en.results}}},
        .firstError = facts.firstResult,
        .ownNameAsArg = true};
    return row;
}

// The lines that a dialog shows and the answers that it offers.
struct DialogSaid {
    const char* title = "";
    const char* messages = "";
    const char* answers = "";
};

struct DialogWords {
    DialogSaid de{}, en{};
};

constexpr Row dialog(int id, const char* templateName, const DialogWords& words,
                     Where where = Where::current()) {
    Row row = plainRow(id, "", kTypeNone, 0, where);
    row.templateName = templateName;
    row.texts = {
        .title = {words.de.title, words.en.title},
        .headings = {{{"Parameter", "Parameter"}, {"Meldungen", "Messages"}, {"Fehler", "Errors"}}},
        .items = {{{words.de.answers, words.en.answers}, {words.de.messages, words.en.messages}, {}}}};
    return row;
}

// Only some of the last choices may be without a text, and a list like that has no names.
constexpr Row choiceTemplate(const Template& shared, const char* names, const Words& words,
                             Where where = Where::current()) {
    Row row = choice(shared.id, "", {.choices = shared.choices, .names = names, .def = 0}, words, where);
    row.templateName = shared.name;
    return row;
}

constexpr Row decimalTemplate(const Template& shared, const NumberFacts& facts, const Words& words,
                              Where where = Where::current()) {
    Row row = decimal(shared.id, "", facts, words, where);
    row.templateName = shared.name;
    return row;
}

// ---- Notes ------------------------------------------------------------------------------------------------

// What an engineer would otherwise set wrongly, and what is not documented. `names` are parameters, divided
// by blanks, or patterns of series. A parameter has every note that names it, in this order. A template's
// note holds for all parameters that share the template.
struct Note {
    NoteKind kind;
    const char* names;
    const char* de;
    const char* en;
    Where where;
};

constexpr Note warning(const char* names, const char* de, const char* en, Where where = Where::current()) {
    return {kWarning, names, de, en, where};
}

constexpr Note unknown(const char* names, const char* de, const char* en, Where where = Where::current()) {
    return {kUnknown, names, de, en, where};
}

constexpr Note advice(const char* names, const char* de, const char* en, Where where = Where::current()) {
    return {kAdvice, names, de, en, where};
}

} // namespace talux::parameters

#endif
