#include "ParamSystem/network/StagedValues.h"

#include "support/Text.h"

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

AddressText textOf(const AddressParts& address, std::size_t size) {
    char whole[kMaxAddressText];
    AddressText text;
    copyText(text.text, size, {whole, appendAddress(whole, address)});
    return text;
}

AddressText normalised(const AddressText& address) {
    return textOf(addressPartsIn(address.text), sizeof address.text - 1);
}

bool isUnset(const AddressText& address) {
    const std::string_view text = address.text;
    return text.empty() || text == kNoAddress || text == "000.000.000.000";
}

} // namespace talux::network
