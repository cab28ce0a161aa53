// Makes the model of the dictionary from its data, and the tables from the model.
#ifndef TALUX_GENERATOR_GENERATOR_H
#define TALUX_GENERATOR_GENERATOR_H

#include <optional>

#include "tools/generator/Faults.h"
#include "tools/generator/OwnedModel.h"
#include "tools/generator/Tables.h"

namespace talux::generator {

// No model where a rule is broken.
std::optional<OwnedModel> makeModel(std::span<const parameters::Family> families, Faults& faults);

Sources tables(const model::Model& model);

} // namespace talux::generator

#endif
