// Makes the tables of the dictionary from its data.
#ifndef TALUX_GENERATOR_GENERATOR_H
#define TALUX_GENERATOR_GENERATOR_H

#include "tools/generator/Faults.h"
#include "tools/generator/Tables.h"

namespace talux::generator {

// No sources and the faults where a rule is broken.
struct Result {
    Sources sources;
    Faults faults;
};

Result generate(std::span<const catalogue::Family> families, std::span<const TextFamily> texts);

} // namespace talux::generator

#endif
