// What texts can hang on, in catalogue order, each with its TXT_ name and the id that its texts carry.
#ifndef TALUX_DICTIONARY_TEXTSUBJECTS_H
#define TALUX_DICTIONARY_TEXTSUBJECTS_H

#include "ParamSystem/dictionary/Ids.h"
#include "ParamSystem/dictionary/NameIndex.h"
#include "ParamSystem/dictionary/Rows.h"

namespace talux {

// Calls visit(row, number) for every parameter and template in table order. An indexed parameter counts once,
// and of two parameters with the same id the later one.
template <class Visit>
constexpr void forEachTextSubject(Visit visit) {
    std::array<bool, static_cast<std::size_t>(kIntIds.size())> met{};
    forEachParameter([&](const catalogue::Row& row, int number) {
        if (row.series == catalogue::Row::kIndexed && number > row.first) return;
        const int id = row.properties.id + number - row.first;
        if (kIntIds.holds(id)) {
            bool& isLater = met[static_cast<std::size_t>(id - kIntIds.first)];
            if (!isLater) {
                isLater = true;
                return;
            }
        }
        visit(row, number);
    });
}

// The texts of an interface's address, mask and gateway lie under ids of their own: 20000, 21000 and 22000
// plus the number of the interface.
constexpr int textIdOf(int id) {
    constexpr IdBlock kInterfaceIds{16029, 16037};
    constexpr int kInterfaces = 3;
    if (!kInterfaceIds.holds(id)) return id;
    const int offset = id - kInterfaceIds.first;
    return 20000 + offset / kInterfaces * 1000 + offset % kInterfaces;
}

inline constexpr std::string_view kTextSymbolPrefix = "TXT_";

template <std::size_t Size>
constexpr void appendTextSymbol(TextPool<Size>& pool, const catalogue::Row& row, int number) {
    pool.append(kTextSymbolPrefix);
    if (row.templateName[0] != '\0') pool.append("TPL_");
    pool.append(row.templateName);
    pool.append(row.properties.name);
    if (row.series == catalogue::Row::kNumbered) pool.appendNumber(number);
    pool.endText();
}

consteval std::size_t textSymbolsSize() {
    std::size_t size = 0;
    forEachTextSubject([&size](const catalogue::Row& row, int number) {
        TextPool<64> one;
        appendTextSymbol(one, row, number);
        size += one.end;
    });
    return size;
}

inline constexpr auto kTextSymbols = [] {
    TextPool<textSymbolsSize()> pool;
    forEachTextSubject(
        [&pool](const catalogue::Row& row, int number) { appendTextSymbol(pool, row, number); });
    return pool.text;
}();

struct TextSubject {
    const char* symbol; // the TXT_ name
    int textId;

    // The name, for templates with TPL_ in front.
    constexpr std::string_view name() const { return symbol + kTextSymbolPrefix.size(); }
};

consteval std::size_t textSubjectCount() {
    std::size_t count = 0;
    forEachTextSubject([&count](const catalogue::Row&, int) { ++count; });
    return count;
}
inline constexpr std::size_t kTextSubjectCount = textSubjectCount();

inline constexpr auto kTextSubjects = [] {
    std::array<TextSubject, kTextSubjectCount> subjects{};
    std::size_t position = 0, symbol = 0;
    forEachTextSubject([&](const catalogue::Row& row, int number) {
        const char* text = &kTextSymbols[symbol];
        subjects[position++] = {text, textIdOf(row.properties.id + number - row.first)};
        symbol += std::string_view(text).size() + 1;
    });
    return subjects;
}();

// Finds subjects by name, counted from 1.
class TextSubjectIndex {
public:
    constexpr TextSubjectIndex() {
        for (std::size_t number = 1; number <= kTextSubjectCount; ++number)
            names.enter(number, nameAt);
    }
    // The subject's place in kTextSubjects, or kTextSubjectCount.
    constexpr std::size_t find(std::string_view name) const {
        const std::size_t number = names.find(name, nameAt);
        return number == 0 ? kTextSubjectCount : number - 1;
    }

private:
    static constexpr std::string_view nameAt(std::size_t number) { return kTextSubjects[number - 1].name(); }

    NameIndex<2048> names;
};
inline constexpr TextSubjectIndex kTextSubjectIndex;

} // namespace talux

#endif
