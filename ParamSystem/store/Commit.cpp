// The two operations over all parameters: factory defaults and the commit.
#include <cstdio>

#include "ParamSystem/store/ChangeFlags.h"
#include "ParamSystem/store/Kinds.h"

namespace {

using talux::ChangeFlag;

void setDefault(const stParamProperties& row) {
    if (talux::isText(row)) {
        // The store only reads through the pointer.
        VarSetValue(row.id, reinterpret_cast<double*>(const_cast<char*>(row.val_def_text)));
    } else {
        double value = row.val_def;
        VarSetValue(row.id, &value);
    }
}

// Run-time values live in the global space alone; templates and commands have no value.
bool isCommitted(const stParamProperties& row) {
    constexpr int kFirstTemplate = 18000, kLastTemplate = 18033;
    constexpr int kFirstCommand = 19000, kLastCommand = 19020;
    if (row.is_volatile == 1) return false;
    if (row.id >= kFirstTemplate && row.id <= kLastTemplate) return false;
    return row.id < kFirstCommand || row.id > kLastCommand;
}

void commit(const stParamProperties& row) {
    union {
        double number;
        char text[kTextSize];
    } value{};
    VarGetValue(row.id, &value.number);
    VarSetGlobalValue(row.id, &value.number);
}

// Keeps the change flags for the life of the object and puts them back at its end.
class KeptFlags {
public:
    KeptFlags() {
        for (int k = 0; k < kCount; ++k)
            VarGetGlobalBoolValue(kFlags[k], &values[k]);
    }
    ~KeptFlags() {
        for (int k = 0; k < kCount; ++k)
            VarSetGlobalBoolValue(kFlags[k], values[k]);
    }
    KeptFlags(const KeptFlags&) = delete;
    KeptFlags& operator=(const KeptFlags&) = delete;

private:
    static constexpr int kFlags[] = {static_cast<int>(ChangeFlag::param), static_cast<int>(ChangeFlag::ip),
                                     static_cast<int>(ChangeFlag::stm),
                                     static_cast<int>(ChangeFlag::secParam)};
    static constexpr int kCount = 4;
    char values[kCount];
};

} // namespace

void VarSetDefault(void) {
    for (int position = 1; position <= kParamCount; ++position)
        if (const stParamProperties* row = GetParamPropertiesByOrder(position)) setDefault(*row);
}

int VarUpdateGlobalSpace(void) {
    const KeptFlags flags;
    for (int position = 1; position <= kParamCount; ++position) {
        const stParamProperties* const row = GetParamPropertiesByOrder(position);
        if (row == nullptr)
            std::fputs("Error (TALUX_Var): Error during copy temp->global\n", stderr);
        else if (isCommitted(*row))
            commit(*row);
    }
    return 1;
}
