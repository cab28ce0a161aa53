// The data from which everything is generated.
#ifndef TALUX_GENERATOR_DATA_H
#define TALUX_GENERATOR_DATA_H

#include <span>

namespace talux::parameters {
struct Family;
}

namespace talux::generator {

std::span<const parameters::Family> familyData();

} // namespace talux::generator

#endif
