// How the settings that reach the operating system are read from the temporary space.
#ifndef TALUX_NETWORK_STAGEDVALUES_H
#define TALUX_NETWORK_STAGEDVALUES_H

#include <cstddef>
#include <string_view>

#include "ParamSystem/TALUX_Var.h"
#include "support/Address.h"

namespace talux::network {

inline constexpr std::string_view kNoAddress = "0.0.0.0";

// A dotted address; as stored it may have leading zeros or be any other text.
struct AddressText {
    char text[kIpSize] = "";
};

// Values of the temporary space.
int flagSetting(int id);
int choiceSetting(int id);
AddressText addressSetting(int id);

// At most size - 1 characters.
AddressText textOf(const AddressParts& address, std::size_t size = sizeof(AddressText));

// One character shorter than the slot of an address.
AddressText normalised(const AddressText& address);

// True for a stored address that means "none": empty or all zero in one of its two usual forms.
bool isUnset(const AddressText& address);

} // namespace talux::network

#endif
