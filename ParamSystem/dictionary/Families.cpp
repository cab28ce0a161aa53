// Where each menu family stands in the table.
#include <iterator>

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/catalogue/Catalogue.h"

namespace talux {

namespace {

static_assert(std::size(catalogue::kFamilies) == kParamFamilyCount);

struct FamilyTable {
    stParamFamily rows[kParamFamilyCount];
};

consteval FamilyTable familyTable() {
    FamilyTable table{};
    int position = 1;
    for (int k = 0; k < kParamFamilyCount; ++k) {
        const catalogue::Family& family = catalogue::kFamilies[k];
        table.rows[k] = {family.name, position, position + family.parameterCount() - 1};
        position = table.rows[k].last + 1;
    }
    return table;
}

} // namespace

} // namespace talux

// The rows are computed as one value; DefParamFamilies is their name as an array.
extern "C" constinit const talux::FamilyTable talux_DefParamFamilies = talux::familyTable();
extern const stParamFamily DefParamFamilies[kParamFamilyCount]
    __attribute__((alias("talux_DefParamFamilies")));
