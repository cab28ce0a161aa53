// The rows expanded: every parameter with its symbols.
#ifndef TALUX_GENERATOR_PARAMETERS_H
#define TALUX_GENERATOR_PARAMETERS_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ParamSystem/parameters/Family.h"
#include "tools/generator/Faults.h"

namespace talux::generator {

// A row of the table: a parameter, an element of an indexed one, or a template.
struct Parameter {
    const parameters::Family* family;
    const parameters::Row* row;
    int number;           // in the series of the row, from 0
    std::string name;     // of a template empty
    std::string shown[2]; // what its texts show as {n} and {m}

    const stParamProperties& properties() const { return row->properties; }
    int id() const { return row->properties.id + number; }
    bool isTemplate() const { return name.empty(); }
    bool isIndexed() const { return row->series == parameters::Row::kIndexed; }
    bool isLaterElement() const { return isIndexed() && number > 0; }
    bool hasValue() const { return !isTemplate() && properties().type != kTypeCommand; }
    bool isSetting() const { return hasValue() && properties().is_volatile == 0; } // persistent
    std::string stem() const { return isTemplate() ? row->templateName : name; }   // of symbols
};

// In table order. A row whose name is no pattern is reported.
std::vector<Parameter> expand(std::span<const parameters::Family> families, Faults& faults);

struct Symbol {
    int value;
    std::string name;
};

// VAR_ and CMD_ names. The first element of an indexed parameter has two: the plain one and the one with its
// index.
std::vector<Symbol> symbolsOf(const Parameter& parameter);

// What has texts, in table order: an indexed parameter once; of two parameters with the same id, the later.
struct TextSubject {
    const Parameter* parameter;
    int textId; // under which its texts lie
};

std::vector<TextSubject> textSubjects(const std::vector<Parameter>& parameters);

} // namespace talux::generator

#endif
