// The property table, its working copy and the look-ups.
#include <algorithm>

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/dictionary/Ids.h"
#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/dictionary/NameIndex.h"
#include "ParamSystem/dictionary/Rows.h"
#include "ParamSystem/dictionary/Settings.h"
#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/support/Assertion.h"

// The rows are computed as one value; DefParamProperties is their name as an array.
extern "C" constinit const talux::PropertyTable talux_DefParamProperties = talux::kProperties;
extern const stParamProperties DefParamProperties[kParamCount + 2]
    __attribute__((alias("talux_DefParamProperties")));
static_assert(sizeof talux_DefParamProperties == sizeof DefParamProperties, "kParamCount rows");

namespace talux {

namespace {

constinit stParamProperties ParamProperties[kParamTableRows] = {};

constexpr std::string_view defaultNameAt(std::size_t position) {
    return kProperties.rows[position].name;
}

consteval auto nameIndex() {
    NameIndex<4096> index;
    for (std::size_t position = 1; position <= kParamCount; ++position)
        index.enter(position, defaultNameAt);
    return index;
}

constexpr auto kNameIndex = nameIndex();

// The ints lie inside the block of the longs.
constexpr IdBlock kSearchedBlocks[] = {kLongIds,   kFloatIds,         kBoolIds,    kEnumIds,    kTextIds,
                                       kIpIds,     kDoubleIds,        kSysDateIds, kSysTimeIds, kIdIds,
                                       kDialogIds, kValueTemplateIds, kCommandIds, kStructIds};

constexpr int kNoPlace = -1;

// Place of an id in the row of all blocks.
constexpr int placeOf(int id) {
    int place = 0;
    for (const IdBlock& block : kSearchedBlocks) {
        if (block.holds(id)) return place + id - block.first;
        place += block.size();
    }
    return kNoPlace;
}

consteval std::size_t placeCount() {
    std::size_t count = 0;
    for (const IdBlock& block : kSearchedBlocks)
        count += static_cast<std::size_t>(block.size());
    return count;
}

// Position of the first row with the id of each place; 0 where there is none.
consteval auto idIndex() {
    std::array<std::uint16_t, placeCount()> positions{};
    for (std::size_t position = kParamCount; position > 0; --position) {
        const int place = placeOf(kProperties.rows[position].id);
        if (place != kNoPlace)
            positions[static_cast<std::size_t>(place)] = static_cast<std::uint16_t>(position);
    }
    return positions;
}

constexpr auto kIdIndex = idIndex();

// Templates have the type of a value and keep none.
constexpr bool isSetting(const stParamProperties& row) {
    return row.is_volatile != 1 && typeOf(row).kind != Kind::None && !kValueTemplateIds.holds(row.id);
}

consteval std::size_t settingCount() {
    return static_cast<std::size_t>(
        std::count_if(kProperties.rows + 1, kProperties.rows + 1 + kParamCount, isSetting));
}

constexpr auto kSettings = [] {
    std::array<Setting, settingCount()> list{};
    std::size_t count = 0;
    for (std::uint16_t position = 1; position <= kParamCount; ++position)
        if (const stParamProperties& row = kProperties.rows[position]; isSetting(row))
            list[count++] = {position, static_cast<std::uint16_t>(row.id)};
    return list;
}();

static_assert(std::none_of(kSettings.begin(), kSettings.end(),
                           [](const Setting& s) { return kIntIds.holds(s.id); }),
              "a commit copies one slot, and the ids of ints have two");

bool checkedId(int id, const char* function) {
    return asserted(id >= 0, "id>=0", "ParamSystem/TALUX_Params", function);
}

bool isLoaded() {
    return ParamProperties[1].id != 0;
}

const stParamProperties* parameterAt(std::size_t position) {
    return position != 0 ? &ParamProperties[position] : nullptr;
}

std::string_view nameAt(std::size_t position) {
    return ParamProperties[position].name;
}

} // namespace

std::span<const Setting> settings() {
    if (!isLoaded()) return {};
    return kSettings;
}

const stParamProperties* findParameter(std::string_view name) {
    return isLoaded() ? parameterAt(kNameIndex.find(name, nameAt)) : nullptr;
}

} // namespace talux

int LoadDefParamProperties() {
    std::copy(DefParamProperties, DefParamProperties + kParamCount + 1, talux::ParamProperties);
    return 1;
}

int LoadParamProperties(char*) {
    return 1;
}

const stParamProperties* GetParamProperties(int id) {
    if (!talux::checkedId(id, __PRETTY_FUNCTION__) || !talux::isLoaded()) return nullptr;
    const int place = talux::placeOf(id);
    if (place == talux::kNoPlace) return nullptr;
    return talux::parameterAt(talux::kIdIndex[static_cast<std::size_t>(place)]);
}

const stParamProperties* GetParamPropertiesByOrder(int id) {
    if (!talux::checkedId(id, __PRETTY_FUNCTION__) || !talux::isLoaded() || id > kParamCount) return nullptr;
    return &talux::ParamProperties[id];
}

const stParamProperties* GetParamPropertiesByName(char* name) {
    return name == nullptr ? nullptr : talux::findParameter(name);
}
