// Looks texts up in the language that is set, with English to fall back on.
#include <algorithm>
#include <optional>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/IdOf.h"
#include "ParamSystem/texts/Tables.h"
#include "support/Assertion.h"

int iLastEntry = 0;

namespace talux {
namespace {

// The message has the name of the exported function in this form for every compiler.
void checkId(int id, const char* function) {
    assertThat(id > 0, "id>0", "ParamSystem/TALUX_ParamStrings", function);
}

constexpr int kNotFound = 0; // the row that every look-up returns then

// What a text must have to match.
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

bool isInUse(int row) {
    return row < kParamTextRows && ParamText[row].id != 0;
}

int findFrom(int row, const Wanted& wanted, int language) {
    for (; isInUse(row); ++row)
        if (wanted.matches(ParamText[row], language)) return row;
    return kNotFound;
}

// Among the rows with one id from `row` on, and in those after the compiled-in texts.
int findNear(int row, const Wanted& wanted, int language) {
    for (; isInUse(row) && ParamText[row].id == wanted.id; ++row)
        if (wanted.matches(ParamText[row], language)) return row;
    return findFrom(std::max(row, kTexts + 1), wanted, language);
}

// The first of the compiled-in rows with an id if the working table still has it there; else kNotFound.
int firstRowOf(int id) {
    const int index = denseIndexOf(id);
    const int row = index == kNoIndex || areTextsOfFile ? kNotFound : kTextRows[index];
    return ParamText[row].id == id ? row : kNotFound;
}

int findWithFallback(const Wanted& wanted) {
    const int languages[] = {currentLanguage(), kEnglish};
    if (const int first = firstRowOf(wanted.id); first != kNotFound && isInUse(1))
        for (const int language : languages)
            if (const int row = findNear(first, wanted, language); row != kNotFound) return row;
    for (const int language : languages)
        if (const int row = findFrom(1, wanted, language); row != kNotFound) return row;
    return kNotFound;
}

// The cursor may have been set by anybody.
int findAfterCursor(const Wanted& wanted) {
    if (iLastEntry < 0 || iLastEntry >= kParamTextRows) return kNotFound;
    const bool isNear =
        iLastEntry <= kTexts && firstRowOf(wanted.id) != kNotFound && ParamText[iLastEntry].id == wanted.id;
    const auto find = isNear ? findNear : findFrom;
    return find(iLastEntry + 1, wanted, currentLanguage());
}

const stParamText* rowAndCursor(int row) {
    if (row != kNotFound) iLastEntry = row;
    return &ParamText[row];
}

} // namespace
} // namespace talux

using namespace talux;

const stParamText* GetParamString(int id, int type) {
    checkId(id, "const stParamText* GetParamString(int, int)");
    return &ParamText[findWithFallback({id, type})];
}

const stParamText* GetFirstParamString(int id, int type) {
    checkId(id, "const stParamText* GetFirstParamString(int, int)");
    return rowAndCursor(findWithFallback({id, type}));
}

const stParamText* GetNextParamString(int id, int type) {
    checkId(id, "const stParamText* GetNextParamString(int, int)");
    return rowAndCursor(findAfterCursor({id, type}));
}

const stParamText* GetParamStringInGroup(int id, int group, int item, int type) {
    checkId(id, "const stParamText* GetParamStringInGroup(int, int, int, int)");
    return &ParamText[findWithFallback({id, type, group, item})];
}

const stParamText* GetFirstParamStringInGroup(int id, int group, int type) {
    checkId(id, "const stParamText* GetFirstParamStringInGroup(int, int, int)");
    return rowAndCursor(findWithFallback({id, type, group}));
}

const stParamText* GetNextParamStringInGroup(int id, int group, int type) {
    checkId(id, "const stParamText* GetNextParamStringInGroup(int, int, int)");
    return rowAndCursor(findAfterCursor({id, type, group}));
}
