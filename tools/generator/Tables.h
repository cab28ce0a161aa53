// Writes the tables as sources.
#ifndef TALUX_GENERATOR_TABLES_H
#define TALUX_GENERATOR_TABLES_H

#include <map>
#include <span>
#include <string>
#include <vector>

#include "tools/generator/Parameters.h"
#include "tools/generator/Texts.h"

namespace talux::generator {

// Content by the name of the file below the folder of generated sources.
using Sources = std::map<std::string, std::string>;

Sources writeTables(std::span<const catalogue::Family> families, const std::vector<Parameter>& parameters,
                    const std::vector<TextSubject>& subjects, const std::vector<Text>& texts);

} // namespace talux::generator

#endif
