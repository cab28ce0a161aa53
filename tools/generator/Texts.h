// The texts of the rows expanded: the rows of the table of texts.
#ifndef TALUX_GENERATOR_TEXTS_H
#define TALUX_GENERATOR_TEXTS_H

#include <string>
#include <vector>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "tools/generator/Faults.h"
#include "tools/generator/Parameters.h"

namespace talux::generator {

// Rows between the sentinels.
inline constexpr std::size_t kMostTexts = kDefParamTextRows - 2;

struct Text {
    int id, language, type, group, item;
    std::string text;
};

// In the order of the subjects. Broken rules are reported, once per row.
std::vector<Text> expand(const std::vector<TextSubject>& subjects, Faults& faults);

// What C++ programs call the choices of a row: "kAutomatic"; empty where it has none of its own with a text
// each.
std::vector<std::string> choiceNames(const parameters::Row& row);

} // namespace talux::generator

#endif
