// The data that the tables are made of.
#ifndef TALUX_GENERATOR_DATA_H
#define TALUX_GENERATOR_DATA_H

#include <span>

namespace talux::catalogue {
struct Family;
}
namespace talux::texts {
struct TextEntry;
}

namespace talux::generator {

using TextFamily = std::span<const texts::TextEntry>;

std::span<const catalogue::Family> catalogueData();
std::span<const TextFamily> textData();

} // namespace talux::generator

#endif
