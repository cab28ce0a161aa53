#include "ParamSystem/settings/Settings.h"

#include "ParamSystem/support/Address.h"

namespace talux::settings {

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
    AddressText result;
    normaliseAddress(result.text, address.text);
    return result;
}

bool isUnset(const AddressText& address) {
    const std::string_view text = address.text;
    return text.empty() || text == kNoAddress || text == "000.000.000.000";
}

} // namespace talux::settings
