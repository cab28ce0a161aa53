// The catalogue spelled out: every parameter with its symbols.
#ifndef TALUX_GENERATOR_PARAMETERS_H
#define TALUX_GENERATOR_PARAMETERS_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ParamSystem/catalogue/Row.h"
#include "tools/generator/Data.h"

namespace talux::generator {

// A row of the table: a parameter, an element of an indexed one, or a template.
struct Parameter {
    const catalogue::Family* family;
    const catalogue::ParameterRow* row;
    int number; // in the series of the row

    const stParamProperties& properties() const { return row->properties; }
    int id() const { return row->properties.id + number - row->first; }
    bool isTemplate() const { return row->series == catalogue::ParameterRow::kSingle && name().empty(); }
    bool isIndexed() const { return row->series == catalogue::ParameterRow::kIndexed; }
    bool isLaterElement() const { return isIndexed() && number > row->first; }
    bool hasValue() const { return !isTemplate() && properties().type != kTypeCommand; }
    bool isSetting() const { return hasValue() && properties().is_volatile == 0; } // persistent
    std::string name() const;
    std::string stem() const { return isTemplate() ? row->templateName : name(); } // of symbols
};

// In table order.
std::vector<Parameter> spellOut(std::span<const catalogue::Family> families);

struct Symbol {
    int value;
    std::string name;
};

// VAR_ and CMD_ names. The first element of an indexed parameter has two: the plain one and the one with its
// index.
std::vector<Symbol> symbolsOf(const Parameter& parameter);

// What texts hang on, in table order: an indexed parameter once, and of two parameters with one id the later.
struct TextSubject {
    const Parameter* parameter;
    int textId;         // under which its texts lie
    std::string symbol; // TXT_..

    std::string_view name() const { return std::string_view(symbol).substr(4); } // templates: TPL_..
};

std::vector<TextSubject> textSubjects(const std::vector<Parameter>& parameters);

} // namespace talux::generator

#endif
