// The look-ups of properties. The working table is the compiled-in one, once it counts as loaded.
#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/dictionary/Tables.h"
#include "ParamSystem/support/Assertion.h"

namespace talux {
namespace {

constinit bool isLoaded = false;

void checkId(int id, const char* function) {
    assertThat(id >= 0, "id>=0", "ParamSystem/TALUX_Params", function);
}

const stParamProperties* parameterAt(std::size_t position) {
    return position != 0 ? &DefParamProperties[position] : nullptr;
}

std::string_view nameAt(std::size_t position) {
    return DefParamProperties[position].name;
}

} // namespace

std::span<const SettingPlace> allSettings() {
    if (!isLoaded) return {};
    return kSettings;
}

const stParamProperties* findParameter(std::string_view name) {
    return isLoaded ? parameterAt(kNameIndex.find(name, nameAt)) : nullptr;
}

} // namespace talux

using namespace talux;

int LoadDefParamProperties() {
    isLoaded = true;
    return 1;
}

int LoadParamProperties(char*) {
    return 1;
}

const stParamProperties* GetParamProperties(int id) {
    checkId(id, __PRETTY_FUNCTION__);
    if (!isLoaded) return nullptr;
    const int place = placeOf(id);
    return place == kNoPlace ? nullptr : parameterAt(kIdPositions[place]);
}

const stParamProperties* GetParamPropertiesByOrder(int id) {
    checkId(id, __PRETTY_FUNCTION__);
    if (!isLoaded || id > kParameters) return nullptr;
    return &DefParamProperties[id];
}

const stParamProperties* GetParamPropertiesByName(char* name) {
    return name == nullptr ? nullptr : findParameter(name);
}
