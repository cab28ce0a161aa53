// The two operations over all parameters: factory defaults and the commit.
#include <cstdio>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/store/ChangeFlags.h"
#include "ParamSystem/store/Slots.h"
#include "ParamSystem/store/Values.h"

namespace {

using talux::Kind;
using talux::Space;

void commit(int id) {
    if (holds(Kind::Int, id)) { // and a long
        double value = 0;
        VarGetValue(id, &value);
        return VarSetGlobalValue(id, &value);
    }
    withKind(talux::kindOf(id), [id]<Kind kind>() {
        if constexpr (talux::isTextKind(kind)) {
            char text[talux::blockOf(kind).slotSize];
            talux::getText<kind, Space::temp>(id, text);
            talux::putText<kind, Space::global>(id, text);
        } else {
            talux::putNumber<kind, Space::global>(id, talux::getNumber<kind, Space::temp>(id));
        }
    });
}

// Reads the change flags and restores them at the end of its life.
class SavedFlags {
public:
    SavedFlags() {
        for (int k = 0; k < talux::kChangeFlagCount; ++k)
            VarGetGlobalBoolValue(talux::kChangeFlagIds[k], &values[k]);
    }
    ~SavedFlags() {
        for (int k = 0; k < talux::kChangeFlagCount; ++k)
            VarSetGlobalBoolValue(talux::kChangeFlagIds[k], values[k]);
    }
    SavedFlags(const SavedFlags&) = delete;
    SavedFlags& operator=(const SavedFlags&) = delete;

private:
    char values[talux::kChangeFlagCount];
};

} // namespace

void VarSetDefault(void) {
    for (const stParamProperties& row : talux::parameterRows())
        if (const auto value = talux::defaultOf(row)) talux::writeValue(Space::temp, row.id, *value);
}

int VarUpdateGlobalSpace(void) {
    const SavedFlags flags;
    for (const stParamProperties& row : talux::parameterRows()) {
        if (row.id == 0) std::fputs("Error (TALUX_Var): Error during copy temp->global\n", stderr);
        if (row.is_volatile != 1) commit(row.id);
    }
    return 1;
}
