// The dictionary as everything else is printed from it: tables of the module, of Lua and of C++ programs,
// lists and pages. The generator makes it from the rows; the program talux has it compiled in, printed by
// ModelTable.cpp.
#ifndef TALUX_GENERATOR_MODEL_H
#define TALUX_GENERATOR_MODEL_H

#include <span>
#include <string_view>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/parameters/Traits.h"

namespace talux::model {

// Views end in a NUL, and what they show lives as long as the model.
struct Both {
    std::string_view de, en;

    std::string_view in(ParamLanguage language) const { return language == kGerman ? de : en; }
};

// One of the numbered texts of a group. The name that C++ programs use is that of a choice.
struct Item {
    int number;
    Both text; // the one of a command's own name is English only
    std::string_view api;
};

enum GroupNumber { kChoices, kMessages, kErrors, kGroups };

struct Group {
    Both heading;
    std::span<const Item> items;
};

// A parameter with its elements, or a template or dialog.
struct Row {
    const stParamProperties* properties; // of the first element
    int position;                        // of the first element in the table of properties
    std::string_view name;               // of a template that of its symbols
    int textId; // of two parameters with one id only the later has texts; 0 for the other
    const stParamFamily* family;
    const Row* shared; // the template that gives the choices, or null
    Both title, description;
    std::string_view unit;
    Group groups[kGroups];
    std::span<const int> notes;     // indexes of the model's; its own, without those of the template
    parameters::MethodId method;    // place in the model's, or -1
    parameters::Role role;          // of a setting of a method
    unsigned is;                    // traits
    rules::Form form;               // of the value
    parameters::WriteEffect effect; // of a write

    bool has(parameters::Trait trait) const { return (is & trait) != 0; }
    bool isTemplate() const { return properties->name[0] == '\0'; }
    bool isIndexed() const { return properties->val_max_id > 0; }
    int elements() const { return isIndexed() ? properties->val_max_id - properties->val_min_id + 1 : 1; }
};

constexpr std::string_view kNoteKinds[] = {"warning", "unknown", "advice"}; // for programs, by NoteKind

struct Note {
    Both text;
    parameters::NoteKind kind;
};

struct Model {
    std::span<const Row> rows; // in menu order
    std::span<const stParamFamily> families;
    std::span<const Both> familyNames;
    std::span<const Note> notes;
    std::span<const Both> methods; // their names
};

} // namespace talux::model

#endif
