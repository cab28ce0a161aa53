// What holds for the rows of the catalogue.
#ifndef TALUX_GENERATOR_CATALOGUERULES_H
#define TALUX_GENERATOR_CATALOGUERULES_H

#include "tools/generator/Faults.h"
#include "tools/generator/Parameters.h"

namespace talux::generator {

void checkCatalogue(std::span<const catalogue::Family> families, const std::vector<Parameter>& parameters,
                    Faults& faults);

} // namespace talux::generator

#endif
