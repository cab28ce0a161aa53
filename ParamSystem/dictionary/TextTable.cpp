// Builds DefParamText from the text data while compiling.
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/texts/Families.h"

namespace talux {
namespace {

// One text; `offset` is its place in the pool.
struct CompactRow {
    int id, language, type, group, item;
    std::size_t offset;
};

// What is needed while building; the table itself is cut to size afterwards.
constexpr std::size_t kMostRows = kParamTextRows - 200;
constexpr std::size_t kMostPool = 200'000;

// The rows of one parameter or template within the rows of the order in which the data is written.
struct SubjectRows {
    std::size_t first = 0, count = 0;
};

struct TextRows {
    std::array<CompactRow, kMostRows> rows{};
    std::size_t rowCount = 0;
    std::array<char, kMostPool> pool{};
    std::size_t poolSize = 0;
    std::array<SubjectRows, kTextSubjectCount> subjects{};
};

// Writes the rows of one member of a series after the other.
class RowWriter {
public:
    constexpr explicit RowWriter(TextRows& target) : out(target) {}

    constexpr void write(const TextEntry& entry, const Member& whose) {
        const std::size_t position = kTextSubjectIndex.find(whose.name.view());
        SubjectRows& subject = out.subjects[position];
        if (subject.count != 0) wrongTextData("a parameter has its texts twice");
        id = kTextSubjects[position].textId;
        member = &whose;
        subject.first = out.rowCount;
        writeTexts(entry);
        writeGroups(entry);
        subject.count = out.rowCount - subject.first;
    }

private:
    constexpr void writeTexts(const TextEntry& entry) {
        writeBoth(kTextTitle, entry.title);
        writeBoth(kTextDescription, entry.description);
        if (!entry.unit.empty()) write(kEnglish, kTextUnit, 0, 0, {entry.unit, {}, {}});
    }

    constexpr void writeBoth(int type, const Both& text, int group = 0, int item = 0) {
        if (text.de.empty()) return;
        write(kGerman, type, group, item, {text.de, {}, {}});
        write(kEnglish, type, group, item, {text.en, {}, {}});
    }

    constexpr void writeGroups(const TextEntry& entry) {
        for (int group = 0; group < kTextGroupCount; ++group) {
            const auto index = static_cast<std::size_t>(group);
            const bool ownName = group == kGroupArgs && entry.ownNameAsArg;
            if (!ownName && entry.items[index].de.empty()) continue;
            writeBoth(kTextGroup, entry.headings[index], 0, group);
            if (ownName) write(kEnglish, kTextItem, kGroupArgs, 1, {entry.subject, {}, {}});
            writeItems(group, group == kGroupErrors ? entry.firstError : 1, entry.items[index]);
        }
    }

    constexpr void writeItems(int group, int firstItem, const Both& lists) {
        for (int language : {kGerman, kEnglish}) {
            int item = firstItem;
            forEachListText(language == kGerman ? lists.de : lists.en,
                            [&](const ListText& text) { write(language, kTextItem, group, item++, text); });
        }
    }

    constexpr void write(int language, int type, int group, int item, const ListText& text) {
        out.rows[out.rowCount++] = {id, language, type, group, item, out.poolSize};
        fillIn(text.before, *member, [this](std::string_view piece) { put(piece); });
        put(text.number.view());
        fillIn(text.after, *member, [this](std::string_view piece) { put(piece); });
        out.pool[out.poolSize++] = '\0';
    }

    constexpr void put(std::string_view piece) {
        for (char c : piece)
            out.pool[out.poolSize++] = c;
    }

    TextRows& out;
    const Member* member = nullptr;
    int id = 0;
};

consteval TextRows writeAll() {
    TextRows out;
    RowWriter writer(out);
    for (std::span<const TextEntry> family : texts::kFamilies)
        for (const TextEntry& entry : family)
            forEachMember(entry.subject, [&](const Member& member) { writer.write(entry, member); });
    return out;
}

constexpr TextRows kRows = writeAll();

// The name of the first subject without texts shows as the template argument in the compiler's message.
consteval Piece firstWithoutTexts() {
    for (std::size_t i = 0; i < kTextSubjectCount; ++i)
        if (kRows.subjects[i].count == 0) return Piece(kTextSubjects[i].name());
    return {};
}

template <Piece name>
struct EveryoneHasTexts {
    static_assert(name.length == 0, "a parameter or template has no texts: see the template argument");
    static constexpr bool kHolds = name.length == 0;
};
static_assert(EveryoneHasTexts<firstWithoutTexts()>::kHolds);

constexpr auto kPool = [] {
    std::array<char, kRows.poolSize> pool{};
    for (std::size_t i = 0; i < pool.size(); ++i)
        pool[i] = kRows.pool[i];
    return pool;
}();

constexpr std::size_t kTableRows = kRows.rowCount + 2;
static_assert(kTableRows <= kMostRows, "200 rows of the working table stay free");

struct TextTable {
    stParamText rows[kTableRows];
};

// The rows in catalogue order between the sentinels.
consteval TextTable inCatalogueOrder() {
    TextTable table{};
    std::size_t row = 0;
    table.rows[row++].txt = "***";
    for (const SubjectRows& subject : kRows.subjects) {
        for (std::size_t i = 0; i < subject.count; ++i) {
            const CompactRow& from = kRows.rows[subject.first + i];
            table.rows[row++] = {from.id,    from.language, from.type,          {},
                                 from.group, from.item,     &kPool[from.offset]};
        }
    }
    table.rows[row].txt = "***";
    return table;
}

} // namespace
} // namespace talux

// The rows are computed as one value; DefParamText is their name as an array.
extern "C" constinit const talux::TextTable talux_DefParamText = talux::inCatalogueOrder();
extern const stParamText DefParamText[talux::kTableRows] __attribute__((alias("talux_DefParamText")));
const int DefParamTextCount = talux::kTableRows;
