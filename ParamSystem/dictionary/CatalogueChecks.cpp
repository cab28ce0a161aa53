// What holds for the catalogue, checked while it compiles. A fault shows as the template argument of
// Catalogue<Fault{..}> in the compiler's message: the row, the rule and the number at fault.
#include <algorithm>
#include <iterator>
#include <span>

#include "ParamSystem/dictionary/Ids.h"
#include "ParamSystem/dictionary/NameIndex.h"
#include "ParamSystem/dictionary/Rows.h"

namespace talux {

namespace {

struct Fault {
    char row[64];
    char rule[64];
    int number;

    constexpr bool none() const { return rule[0] == '\0'; }
};

constexpr Fault kNoFault{};

constexpr Fault fault(std::string_view row, std::string_view rule, int number) {
    Fault result{};
    std::copy_n(row.data(), std::min(row.size(), sizeof result.row - 1), result.row);
    std::copy_n(rule.data(), std::min(rule.size(), sizeof result.rule - 1), result.rule);
    result.number = number;
    return result;
}

template <Fault fault>
struct Catalogue {
    static_assert(fault.none(), "the catalogue breaks a rule: see the template argument");
    static constexpr bool kHolds = fault.none();
};

constexpr std::span<const stParamProperties> parameters() {
    return {kProperties.rows + 1, std::size(kProperties.rows) - 2};
}

constexpr bool isTemplate(const stParamProperties& row) {
    return kDialogIds.holds(row.id) || kValueTemplateIds.holds(row.id);
}

constexpr bool isIp(const stParamProperties& row) {
    return row.type >= kTypeIp && row.type <= kTypeIpGateway;
}

constexpr bool isNumeric(const stParamProperties& row) {
    return (row.type >= kTypeDouble && row.type <= kTypeBool) || row.type == kTypeEnum;
}

// Persistent settings, what a commit copies.
constexpr bool isCommitted(const stParamProperties& row) {
    return row.is_volatile == 0 && !isTemplate(row) && row.type != kTypeCommand;
}

// The block that a type code belongs to, without the gaps at the end of some blocks.
struct TypeBlock {
    int type;
    IdBlock block;
};

constexpr TypeBlock kTypeBlocks[] = {
    {kTypeDouble, kDoubleIds},
    {kTypeFloat, kFloatIds},
    {kTypeLong, {6000, 7213}},
    {kTypeLong, {7246, 7268}},
    {kTypeInt, kIntIds},
    {kTypeBool, {8000, 8183}},
    {kTypeText, {9000, 9061}},
    {kTypeEnum, kEnumIds},
    {kTypeSysDate, kSysDateIds},
    {kTypeSysTime, kSysTimeIds},
    {kTypeId, kIdIds},
    {kTypeIp, {16000, 16028}},
    {kTypeIpAddress, {16029, 16031}},
    {kTypeIpMask, {16032, 16034}},
    {kTypeIpGateway, {16035, 16037}},
    {kTypeStruct, kStructIds},
    {kTypeCommand, kCommandIds},
    {kTypeNone, kDialogIds},
    {kTypeEnum, {18021, 18026}},
    {kTypeFloat, {18027, 18027}},
    {kTypeEnum, {18028, 18033}},
};

consteval Fault typesFitIds() {
    for (const stParamProperties& row : parameters()) {
        const auto fits = [&row](const TypeBlock& t) { return t.type == row.type && t.block.holds(row.id); };
        if (std::none_of(std::begin(kTypeBlocks), std::end(kTypeBlocks), fits))
            return fault(row.name, "the id is none of this type's", row.id);
    }
    return kNoFault;
}

consteval Fault idsAreUsedOnce() {
    for (const TypeBlock& t : kTypeBlocks) {
        std::array<bool, 1300> used{};
        for (const stParamProperties& row : parameters()) {
            if (row.type != t.type || !t.block.holds(row.id)) continue;
            bool& seen = used[static_cast<std::size_t>(row.id - t.block.first)];
            if (seen) return fault(row.name, "another row has the same id", row.id);
            seen = true;
        }
        const auto gap = std::find(used.begin(), used.begin() + t.block.size(), false);
        if (gap != used.begin() + t.block.size())
            return fault("", "no row has this id", t.block.first + static_cast<int>(gap - used.begin()));
    }
    return kNoFault;
}

constexpr auto nameAt = [](std::size_t position) {
    return std::string_view(kProperties.rows[position].name);
};

consteval Fault namesAreUsedOnce() {
    NameIndex<4096> names;
    std::size_t position = 0;
    const char* repeated = nullptr;
    forEachParameter([&](const catalogue::Row& row, int number) {
        ++position;
        const bool later = row.series == catalogue::Row::kIndexed && number > row.first;
        if (later || nameAt(position).empty()) return;
        if (!names.enter(position, nameAt) && repeated == nullptr) repeated = kProperties.rows[position].name;
    });
    return repeated == nullptr ? kNoFault : fault(repeated, "another parameter has the same name", 0);
}

consteval Fault templatesHaveNames() {
    Fault result = kNoFault;
    forEachParameter([&result](const catalogue::Row& row, int) {
        const bool named = row.properties.name[0] != '\0';
        if (named != (row.templateName[0] == '\0') || named == isTemplate(row.properties))
            result = fault(row.templateName, "only templates are nameless, with a name of their own",
                           row.properties.id);
    });
    return result;
}

// The rows of an indexed parameter stand one behind the other with consecutive ids, as long as its name.
consteval Fault elementsAreConsecutive() {
    const auto rows = parameters();
    for (std::size_t k = 0; k < rows.size();) {
        const stParamProperties& first = rows[k++];
        if ((first.val_min_id != 0 || first.val_max_id != 0) &&
            (first.val_min_id != 1 || first.val_max_id <= 1 || first.is_volatile == 0))
            return fault(first.name, "indexes run from 1, of run-time values only", first.val_max_id);
        for (int index = 2; index <= first.val_max_id; ++index, ++k)
            if (rows[k].name != first.name || rows[k].id != first.id + index - 1)
                return fault(first.name, "elements are not consecutive", rows[k].id);
    }
    return kNoFault;
}

consteval Fault valuesFit() {
    for (const stParamProperties& row : parameters()) {
        const bool choosable = row.type == kTypeEnum && !isTemplate(row);
        if (row.val_min > row.val_max) return fault(row.name, "the range is empty", row.id);
        if (isNumeric(row) && isCommitted(row) && (row.val_def < row.val_min || row.val_def > row.val_max))
            return fault(row.name, "the default is outside the range", row.id);
        if (choosable && (row.val_def < 1 || row.val_max == kNoMax || row.val_max < 2))
            return fault(row.name, "choices are counted from 1, at least two", row.id);
        if (row.is_volatile != 0 && (row.val_def != 0 || row.val_def_text[0] != '\0'))
            return fault(row.name, "a run-time value has no default", row.id);
        if (row.val_len != catalogue::kNoLength &&
            std::string_view(row.val_def_text).size() > std::size_t(row.val_len))
            return fault(row.name, "the default is longer than the text may be", row.id);
    }
    return kNoFault;
}

constexpr bool isIn(std::span<const catalogue::Row> family, int id) {
    return std::any_of(family.begin(), family.end(), [id](const auto& r) { return r.properties.id == id; });
}

// Security parameters are the switches and numbers of two families and the commands that change a PIN.
constexpr bool isSecurity(const stParamProperties& row) {
    if (row.type == kTypeCommand) return std::string_view(row.name).ends_with("_Pin_change");
    return isNumeric(row) && isCommitted(row) &&
           (isIn(catalogue::kFirewall, row.id) || isIn(catalogue::kSecurity, row.id));
}

constexpr bool levelFits(const stParamProperties& row) {
    if (isSecurity(row)) return row.userlevel == 3;
    return row.userlevel == 1 || (row.userlevel == 2 && row.type == kTypeCommand);
}

consteval Fault rightsFit() {
    for (const stParamProperties& row : parameters()) {
        if (!levelFits(row)) return fault(row.name, "another user level than its like", row.userlevel);
        if (row.val_access != kReadOnly && row.val_access != kReadWrite)
            return fault(row.name, "read-only or read-write", row.val_access);
        if (row.is_volatile != 0 && (isTemplate(row) || row.type == kTypeCommand))
            return fault(row.name, "a row without a value is not volatile", row.id);
    }
    return kNoFault;
}

consteval Fault templatesFit() {
    for (const stParamProperties& row : parameters()) {
        if (row.id_template == 0) continue;
        const auto shared = std::find_if(parameters().begin(), parameters().end(), [&row](const auto& other) {
            return other.id == row.id_template && kValueTemplateIds.holds(other.id);
        });
        if (shared == parameters().end() || shared->type != row.type || shared->val_max != row.val_max)
            return fault(row.name, "the template is of another kind or range", row.id_template);
    }
    return kNoFault;
}

// How many rows there are of a kind; the wrong count is the number of the fault.
struct Count {
    const char* what;
    int rows;
    bool (*counts)(const stParamProperties&);
};

template <int type>
constexpr bool isType(const stParamProperties& row) {
    return row.type == type;
}

template <int type>
constexpr bool isCommittedType(const stParamProperties& row) {
    return row.type == type && isCommitted(row);
}

constexpr Count kCounts[] = {
    {"rows", kParamCount, [](const stParamProperties&) { return true; }},
    {"doubles", 384, isType<kTypeDouble>},
    {"floats", 313, isType<kTypeFloat>},
    {"longs", 1237, isType<kTypeLong>},
    {"ints", 7, isType<kTypeInt>},
    {"bools", 184, isType<kTypeBool>},
    {"texts", 62, isType<kTypeText>},
    {"enums", 143, isType<kTypeEnum>},
    {"dates", 1, isType<kTypeSysDate>},
    {"times", 1, isType<kTypeSysTime>},
    {"identifiers", 1, isType<kTypeId>},
    {"addresses", 38, isIp},
    {"records", 3, isType<kTypeStruct>},
    {"commands", 21, isType<kTypeCommand>},
    {"dialogs", 21, isType<kTypeNone>},
    {"committed rows", 642, isCommitted},
    {"committed floats", 153, isCommittedType<kTypeFloat>},
    {"committed longs", 91, isCommittedType<kTypeLong>},
    {"committed bools", 173, isCommittedType<kTypeBool>},
    {"committed texts", 53, isCommittedType<kTypeText>},
    {"committed enums", 131, isCommittedType<kTypeEnum>},
    {"committed addresses", 38, [](const auto& row) { return isIp(row) && isCommitted(row); }},
    {"lines of the parameter file", 571,
     [](const auto& row) { return isCommitted(row) && !isIp(row) && row.userlevel <= 2; }},
    {"lines of the security file", 33,
     [](const auto& row) { return isCommitted(row) && !isIp(row) && row.userlevel >= 3; }},
};

consteval Fault countsHold() {
    for (const Count& count : kCounts) {
        const auto rows = std::count_if(parameters().begin(), parameters().end(), count.counts);
        if (rows != count.rows) return fault(count.what, "wrong number of rows", static_cast<int>(rows));
    }
    return kNoFault;
}

static_assert(Catalogue<typesFitIds()>::kHolds);
static_assert(Catalogue<idsAreUsedOnce()>::kHolds);
static_assert(Catalogue<namesAreUsedOnce()>::kHolds);
static_assert(Catalogue<templatesHaveNames()>::kHolds);
static_assert(Catalogue<elementsAreConsecutive()>::kHolds);
static_assert(Catalogue<valuesFit()>::kHolds);
static_assert(Catalogue<rightsFit()>::kHolds);
static_assert(Catalogue<templatesFit()>::kHolds);
static_assert(Catalogue<countsHold()>::kHolds);

} // namespace

} // namespace talux
