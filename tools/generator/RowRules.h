// What holds for the rows of parameters.
#ifndef TALUX_GENERATOR_ROWRULES_H
#define TALUX_GENERATOR_ROWRULES_H

#include "tools/generator/Faults.h"
#include "tools/generator/Parameters.h"

namespace talux::generator {

void checkRows(const std::vector<Parameter>& parameters, Faults& faults);

// Names in notes that no parameter has.
void checkNotes(std::span<const parameters::Family> families, const std::vector<Parameter>& parameters,
                Faults& faults);

} // namespace talux::generator

#endif
