#include "ParamSystem/network/StagedValues.h"

#include <cstddef>

#include "support/Address.h"

namespace talux::network {

int flagSetting(int id) {
    char value = 0;
    VarGetBoolValue(id, &value);
    return value;
}

int choiceSetting(int id) {
    short value = 0;
    VarGetEnumValue(id, &value);
    return value;
}

AddressText addressSetting(int id) {
    AddressText address;
    VarGetIpValue(id, address.text);
    return address;
}

AddressText normalised(const AddressText& address) {
    constexpr std::size_t kNormalisedSize = 19; // the slot of an address has one more
    AddressText result;
    normaliseAddress(result.text, kNormalisedSize, address.text);
    return result;
}

bool isUnset(const AddressText& address) {
    const std::string_view text = address.text;
    return text.empty() || text == kNoAddress || text == "000.000.000.000";
}

} // namespace talux::network
