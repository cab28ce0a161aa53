// The two operations over all parameters: factory defaults and the commit.
#include <cstdio>

#include "ParamSystem/dictionary/AllSettings.h"
#include "ParamSystem/dictionary/Tables.h"
#include "ParamSystem/store/ChangeFlags.h"
#include "ParamSystem/store/Slots.h"
#include "ParamSystem/store/Values.h"

namespace {

using talux::Kind;
using talux::Space;

void commit(int id) {
    withKind(talux::kindOf(id), [id]<Kind kind>() {
        if constexpr (talux::isTextKind(kind)) {
            char text[talux::blockOf(kind).slot];
            talux::getText<kind, Space::temp>(id, text);
            talux::putText<kind, Space::global>(id, text);
        } else {
            talux::putNumber<kind, Space::global>(id, talux::getNumber<kind, Space::temp>(id));
        }
    });
}

// Nobody has loaded the properties: no position has a row.
void reportMissingRows() {
    for (int position = 1; position <= talux::kParameters; ++position)
        std::fputs("Error (TALUX_Var): Error during copy temp->global\n", stderr);
}

// Keeps the change flags for the life of the object and puts them back at its end.
class KeptFlags {
public:
    KeptFlags() {
        for (int k = 0; k < talux::kChangeFlagCount; ++k)
            VarGetGlobalBoolValue(talux::kChangeFlagIds[k], &values[k]);
    }
    ~KeptFlags() {
        for (int k = 0; k < talux::kChangeFlagCount; ++k)
            VarSetGlobalBoolValue(talux::kChangeFlagIds[k], values[k]);
    }
    KeptFlags(const KeptFlags&) = delete;
    KeptFlags& operator=(const KeptFlags&) = delete;

private:
    char values[talux::kChangeFlagCount];
};

} // namespace

void VarSetDefault(void) {
    for (int position = 1; position <= talux::kParameters; ++position)
        if (const stParamProperties* row = GetParamPropertiesByOrder(position))
            if (const auto value = talux::defaultOf(*row)) talux::writeValue(Space::temp, row->id, *value);
}

int VarUpdateGlobalSpace(void) {
    const KeptFlags flags;
    const auto settings = talux::allSettings();
    if (settings.empty()) reportMissingRows();
    for (const talux::SettingPlace& setting : settings)
        commit(setting.id);
    return 1;
}
