// What the compiler knows of a parameter. The rows are in the generated talux/parameters.hpp and
// note_table.hpp.
#ifndef TALUX_TABLE_HPP
#define TALUX_TABLE_HPP

#include "ParamSystem/rules/Rules.h"

namespace talux::table {

// What a value is to a C++ program.
enum class Kind : unsigned char {
    f32,
    f64,
    i32,
    i16,
    flag,
    choice, // 16 bits, counted from 1
    text,
    identifier,
    address,
    clock, // of the system: nothing of it is in the store
    record,
    command, // no value at all
};

enum class Use : unsigned char {
    measured, // a run-time value: written live by whoever measures it
    setting,  // staged in the working copy, live with the commit
    status,   // stored like a setting, but not to be changed
};

struct Row {
    const char* name;
    int id; // of an indexed parameter that of its first element
    Kind kind;
    Use use;
    short run = 1;       // measured values of the kind that follow one another from here on
    short elements = 0;  // of an indexed parameter
    short choices = 0;   // which list of choices
    double min = kNoMin; // what may be staged; of a text 0 and its longest length in characters
    double max = kNoMax;
    rules::Form form = rules::Form::none; // where it is stricter than that of the kind
};

// Called with something that is no constant, it ends the compilation: see talux/lookup.hpp.
constexpr void stop(char) {}

// Of warnings, what is unknown and advice (talux/notes.hpp).
enum class NoteKind : unsigned char { warning, unknown, advice };

struct Note {
    NoteKind kind;
    const char *de, *en;
};

// A parameter and one of its notes.
struct NoteOf {
    const char* name;
    short note;
};

} // namespace talux::table

#endif
