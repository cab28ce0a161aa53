// The settings: the persistent parameters, which the commit makes live and the files keep.
#ifndef TALUX_DICTIONARY_ALLSETTINGS_H
#define TALUX_DICTIONARY_ALLSETTINGS_H

#include <cstdint>
#include <span>

namespace talux {

struct SettingPlace {
    std::uint16_t position; // in the table of properties
    std::uint16_t id;
};

// In table order; none before the properties are loaded.
std::span<const SettingPlace> allSettings();

} // namespace talux

#endif
