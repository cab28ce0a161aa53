#include "tools/desk/Factory.h"

#include <algorithm>

#include "ParamSystem/TALUX_Params.h"

namespace desk {

namespace {

template <class Number>
void put(char* slot, double value) {
    const auto number = static_cast<Number>(value);
    std::memcpy(slot, &number, sizeof number);
}

void put(const stParamProperties& row, char* slot, std::size_t size) {
    switch (row.type) {
    case kTypeFloat:
        return put<float>(slot, row.val_def);
    case kTypeDouble:
        return put<double>(slot, row.val_def);
    case kTypeLong:
        return put<std::int32_t>(slot, row.val_def);
    case kTypeInt:
    case kTypeEnum:
        return put<std::int16_t>(slot, row.val_def);
    case kTypeBool:
        return put<char>(slot, row.val_def);
    default: // all others are texts
        const std::string_view text = row.val_def_text;
        std::memcpy(slot, text.data(), std::min(text.size(), size - 1));
    }
}

} // namespace

stVarSpace factorySpace() {
    stVarSpace space{};
    char* const start = reinterpret_cast<char*>(&space);
    for (const stParamProperties* row = DefParamProperties + 1; row->id != 0; ++row)
        for (const talux::detail::SettingBytes& each : talux::detail::kSettings)
            if (each.id == row->id && row->is_volatile == 0) put(*row, start + each.offset, each.size);
    return space;
}

} // namespace desk
