// Looks texts up in the language that is set, with English to fall back on.
#include <optional>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/IdOf.h"
#include "ParamSystem/support/Assertion.h"
#include "ParamSystem/texts/CurrentTexts.h"

// The message names the exported function, so each of them holds its own.
#define TALUX_ASSERT_ID(id)                                                                                  \
    talux::assertThat((id) > 0, "id>0", "ParamSystem/TALUX_ParamStrings", __PRETTY_FUNCTION__)

int iLastEntry = 0;

namespace talux {
namespace {

constexpr int kNotFound = 0; // the row that every look-up returns then

// What a text must be to match.
struct Wanted {
    int id, type;
    std::optional<int> group{}, item{};

    bool matches(const stParamText& text, int language) const {
        return text.id == id && text.language == language && text.type == type &&
               text.id_group == group.value_or(text.id_group) && text.id_item == item.value_or(text.id_item);
    }
};

int currentLanguage() {
    short language = 0;
    VarGetEnumValue(idOf("Language"), &language);
    return language == kGerman ? kGerman : kEnglish;
}

int findFrom(int row, const Wanted& wanted, int language) {
    for (; row < currentTexts.count && currentTexts.rows[row].id != 0; ++row)
        if (wanted.matches(currentTexts.rows[row], language)) return row;
    return kNotFound;
}

int findWithFallback(const Wanted& wanted) {
    const int row = findFrom(1, wanted, currentLanguage());
    return row != kNotFound ? row : findFrom(1, wanted, kEnglish);
}

// The cursor may have been set by anybody.
int findBehindCursor(const Wanted& wanted) {
    if (iLastEntry < 0 || iLastEntry >= currentTexts.count) return kNotFound;
    return findFrom(iLastEntry + 1, wanted, currentLanguage());
}

const stParamText* rowAndCursor(int row) {
    if (row != kNotFound) iLastEntry = row;
    return &currentTexts.rows[row];
}

} // namespace
} // namespace talux

using namespace talux;

const stParamText* GetParamString(int id, int type) {
    TALUX_ASSERT_ID(id);
    return &currentTexts.rows[findWithFallback({id, type})];
}

const stParamText* GetFirstParamString(int id, int type) {
    TALUX_ASSERT_ID(id);
    return rowAndCursor(findWithFallback({id, type}));
}

const stParamText* GetNextParamString(int id, int type) {
    TALUX_ASSERT_ID(id);
    return rowAndCursor(findBehindCursor({id, type}));
}

const stParamText* GetParamStringInGroup(int id, int group, int item, int type) {
    TALUX_ASSERT_ID(id);
    return &currentTexts.rows[findWithFallback({id, type, group, item})];
}

const stParamText* GetFirstParamStringInGroup(int id, int group, int type) {
    TALUX_ASSERT_ID(id);
    return rowAndCursor(findWithFallback({id, type, group}));
}

const stParamText* GetNextParamStringInGroup(int id, int group, int type) {
    TALUX_ASSERT_ID(id);
    return rowAndCursor(findBehindCursor({id, type, group}));
}
