// What C++ programs call the choices of a list.
#ifndef TALUX_GENERATOR_APINAMES_H
#define TALUX_GENERATOR_APINAMES_H

#include <span>
#include <string>
#include <vector>

#include "tools/generator/Model.h"

namespace talux::generator {

// Made from the English texts: "kOver2_I1_to_F" from ">>I1 ->F". A text that stands for several choices gets
// their numbers.
std::vector<std::string> apiNames(std::span<const model::Item> choices);

} // namespace talux::generator

#endif
