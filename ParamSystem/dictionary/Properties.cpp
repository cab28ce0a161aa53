// The working table of properties and its look-ups. A look-up begins with the generated
// index of the compiled-in rows; a row that a program has changed or added is found by a scan.
#include <algorithm>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/dictionary/Tables.h"
#include "ParamSystem/os/Os.h"
#include "support/Assertion.h"
#include "support/Text.h"

namespace talux {
namespace {

void checkId(int id, const char* function) {
    assertThat(id >= 0, "id>=0", "ParamSystem/TALUX_Params", function);
}

// A program may have added a row without a name.
std::string_view nameOf(const stParamProperties& row) {
    return row.name != nullptr ? row.name : "";
}

// The last row of the table stays free.
int lastPosition() {
    int position = kParameters;
    while (position < kParameters + kSpareParamRows && ParamProperties[position + 1].id != 0)
        ++position;
    return position;
}

// The first row that fits, before the first with id 0.
template <class Fits>
const stParamProperties* scan(Fits fits) {
    for (const stParamProperties& row : parameterRows()) {
        if (row.id == 0) break;
        if (fits(row)) return &row;
    }
    return nullptr;
}

} // namespace

bool areParametersLoaded() {
    return ParamProperties[1].id != 0;
}

std::span<const stParamProperties> parameterRows() {
    return {ParamProperties + 1, static_cast<std::size_t>(lastPosition())};
}

const stParamProperties* findParameter(std::string_view name) {
    if (!areParametersLoaded()) return nullptr;
    const auto nameAt = [](std::size_t position) { return nameOf(ParamProperties[position]); };
    const std::size_t position = kNameIndex.find(name, nameAt);
    if (position != 0 && ParamProperties[position].id != 0) return &ParamProperties[position];
    return scan([name](const auto& row) { return equalIgnoringCase(nameOf(row), name); });
}

} // namespace talux

using namespace talux;

int LoadDefParamProperties() {
    os::getMemory(ParamProperties, sizeof *ParamProperties * static_cast<std::size_t>(kParameters + 1));
    std::copy_n(DefParamProperties, kParameters + 1, ParamProperties);
    return 1;
}

int LoadParamProperties(char*) {
    return 1;
}

const stParamProperties* GetParamProperties(int id) {
    checkId(id, "const stParamProperties* GetParamProperties(int)");
    if (id == 0 || !areParametersLoaded()) return nullptr;
    const int index = denseIndexOf(id);
    const int position = index == kNoIndex ? 0 : kIdPositions[index];
    if (ParamProperties[position].id == id) return &ParamProperties[position];
    return scan([id](const auto& row) { return row.id == id; });
}

const stParamProperties* GetParamPropertiesByOrder(int id) {
    checkId(id, "const stParamProperties* GetParamPropertiesByOrder(int)");
    if (!areParametersLoaded() || id > lastPosition()) return nullptr;
    const stParamProperties& row = ParamProperties[id];
    return id == 0 || row.id != 0 ? &row : nullptr;
}

const stParamProperties* GetParamPropertiesByName(char* name) {
    return name == nullptr ? nullptr : findParameter(name);
}
