// The text data spelled out: the rows of the table of texts.
#ifndef TALUX_GENERATOR_TEXTS_H
#define TALUX_GENERATOR_TEXTS_H

#include <span>
#include <string>
#include <vector>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "tools/generator/Data.h"
#include "tools/generator/Faults.h"
#include "tools/generator/Parameters.h"

namespace talux::generator {

// Rows between the sentinels.
inline constexpr std::size_t kMostTexts = kDefParamTextRows - 2;

struct Text {
    int id, language, type, group, item;
    std::string text;
};

// In the order of the subjects. What breaks a rule is reported.
std::vector<Text> spellOut(std::span<const TextFamily> families, const std::vector<TextSubject>& subjects,
                           Faults& faults);

} // namespace talux::generator

#endif
