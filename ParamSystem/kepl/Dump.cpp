#include "ParamSystem/kepl/Dump.h"

#include "ParamSystem/TALUX_Var.h"

namespace talux::kepl {

namespace {

bool dumpHex(Answer& answer, std::string_view bytes) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    char text[2 * kTextSize];
    std::size_t length = 0;
    for (const char c : bytes.substr(0, kTextSize)) {
        const auto byte = static_cast<unsigned char>(c);
        text[length++] = kDigits[byte >> 4];
        text[length++] = kDigits[byte & 15];
    }
    return answer.append({{text, length}});
}

} // namespace

bool dump(Answer& answer, Style style, std::string_view name, const DumpItem& item) {
    switch (style) {
    case Style::plain:
        return answer.append({kKeyPrefix, name, item.separator, item.label, " = ", item.text, "\n"});
    case Style::lines:
        return answer.append({item.text, "\n"});
    case Style::columns:
        return answer.append({item.isFirst ? "" : ";", item.text});
    case Style::hex:
        return dumpHex(answer, item.bytes);
    }
    return false;
}

} // namespace talux::kepl
