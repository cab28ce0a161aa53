#include "tools/generator/Texts.h"

#include <algorithm>
#include <map>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/texts/Words.h"
#include "tools/generator/TextPattern.h"

namespace talux::generator {
namespace {

using texts::Both;
using texts::TextEntry;

// ---- Rows of one member --------------------------------------------------------------------------------

// Writes the rows of one member of a series.
class RowWriter {
public:
    RowWriter(const TextEntry& line, const SeriesMember& whose, int textId)
        : entry(line), member(whose), id(textId) {}

    std::vector<Text> write() {
        add(kTextTitle, entry.title);
        add(kTextDescription, entry.description);
        if (*entry.unit != '\0') add(kEnglish, kTextUnit, 0, 0, entry.unit);
        for (int group : {texts::kGroupArgs, texts::kGroupMessages, texts::kGroupErrors})
            addGroup(group);
        return std::move(rows);
    }

private:
    void addGroup(int group) {
        const auto index = static_cast<std::size_t>(group);
        const Both& items = entry.items[index];
        const bool ownName = group == texts::kGroupArgs && entry.ownNameAsArg;
        if (!ownName && items.isEmpty()) return;
        add(kTextGroup, entry.headings[index], 0, group);
        if (ownName) add(kEnglish, kTextItem, texts::kGroupArgs, 1, entry.subject);
        const int first = group == texts::kGroupErrors ? entry.firstError : 1;
        addItems(kGerman, group, first, items.de);
        addItems(kEnglish, group, first, items.en);
    }

    void addItems(int language, int group, int item, std::string_view list) {
        for (const std::string& text : textsOf(list))
            add(language, kTextItem, group, item++, text);
    }

    void add(int type, const Both& text, int group = 0, int item = 0) {
        if (text.isEmpty()) return;
        add(kGerman, type, group, item, text.de);
        add(kEnglish, type, group, item, text.en);
    }

    void add(int language, int type, int group, int item, std::string_view text) {
        rows.push_back({id, language, type, group, item, filledIn(text, member)});
    }

    const TextEntry& entry;
    const SeriesMember& member;
    int id;
    std::vector<Text> rows;
};

// ---- Rules ---------------------------------------------------------------------------------------------

void require(bool holds, const char* rule) {
    if (!holds) throw BrokenRule{rule};
}

// Characters of a UTF-8 text; a negative number where it is none.
int countCharacters(std::string_view text) {
    int count = 0, missing = 0; // bytes of the character that is being read
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isContinued = (byte & 0xC0) == 0x80;
        if (isContinued != (missing > 0) || byte >= 0xF8) return -1;
        missing = isContinued ? missing - 1 : byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC0 ? 1 : 0;
        count += !isContinued;
    }
    return missing == 0 ? count : -1;
}

bool isTidy(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    return !text.empty() && kBlanks.find(text.front()) == std::string_view::npos &&
           kBlanks.find(text.back()) == std::string_view::npos && text.find("  ") == std::string_view::npos &&
           text.find_first_of("\t\r{}|") == std::string_view::npos;
}

void checkLanguages(const TextEntry& entry) {
    std::vector<Both> texts{entry.title, entry.description};
    texts.insert(texts.end(), std::begin(entry.items), std::end(entry.items));
    for (const Both& text : texts) {
        require((*text.de == '\0') == (*text.en == '\0'), "a text is missing in one language");
        require(textsOf(text.de).size() == textsOf(text.en).size(), "one language has fewer texts");
    }
}

void checkText(const Text& row) {
    const int characters = countCharacters(row.text);
    require(characters >= 0, "a text is not in UTF-8");
    require(isTidy(row.text),
            "a text is empty, has blanks at an end or two in a row, or a sign of a pattern");
    require(row.type != kTextTitle || characters <= 24, "a title has at most 24 characters");
}

void checkTitles(const std::vector<Text>& rows, const std::string& name) {
    for (const Text& row : rows) {
        require(row.type != kTextTitle || row.text != name || name.find('_') == std::string::npos,
                "the title is only the name");
        require(row.type != kTextDescription || row.text != rows[row.language == kGerman ? 0 : 1].text,
                "the description says the title again");
    }
}

void checkChoices(const TextEntry& entry, const stParamProperties& row) {
    const auto choices = static_cast<double>(textsOf(entry.items[texts::kGroupArgs].de).size());
    if (choices == 0 || row.type == kTypeNone) return;
    require(row.type == kTypeEnum && (choices == row.val_max || (choices < row.val_max && !entry.allChoices)),
            "there are more or fewer choices than the range has");
}

// ---- All -----------------------------------------------------------------------------------------------

class Table {
public:
    explicit Table(const std::vector<TextSubject>& all) : subjects(all), rows(all.size()) {
        for (std::size_t k = 0; k < all.size(); ++k)
            places.emplace(all[k].name(), k);
    }

    void add(const TextEntry& entry) {
        require(!entry.title.isEmpty(), "there is no title");
        checkLanguages(entry);
        for (const SeriesMember& member : membersOf(entry.subject))
            add(entry, member);
    }

    std::vector<Text> inOrder(Faults& faults) const {
        std::vector<Text> texts;
        for (std::size_t k = 0; k < rows.size(); ++k) {
            const Parameter& parameter = *subjects[k].parameter;
            if (rows[k].empty())
                faults.push_back({parameter.row->where, parameter.stem(), "it has no texts"});
            texts.insert(texts.end(), rows[k].begin(), rows[k].end());
        }
        return texts;
    }

private:
    void add(const TextEntry& entry, const SeriesMember& member) {
        const auto place = places.find(member.name);
        require(place != places.end(), "no parameter has this name");
        const TextSubject& subject = subjects[place->second];
        std::vector<Text>& texts = rows[place->second];
        require(texts.empty(), "its texts stand twice");
        texts = RowWriter(entry, member, subject.textId).write();
        std::for_each(texts.begin(), texts.end(), checkText);
        checkTitles(texts, member.name);
        checkChoices(entry, subject.parameter->properties());
    }

    const std::vector<TextSubject>& subjects;
    std::map<std::string_view, std::size_t> places; // of the subjects, by name
    std::vector<std::vector<Text>> rows;            // by place
};

} // namespace

std::vector<Text> spellOut(std::span<const TextFamily> families, const std::vector<TextSubject>& subjects,
                           Faults& faults) {
    Table table(subjects);
    for (const TextFamily family : families) {
        for (const TextEntry& entry : family) {
            try {
                table.add(entry);
            } catch (const BrokenRule& rule) {
                faults.push_back({entry.where, entry.subject, rule.text});
            }
        }
    }
    if (!faults.empty()) return {};
    std::vector<Text> texts = table.inOrder(faults);
    if (texts.size() > kMostTexts)
        faults.push_back(
            {{},
             "ParamSystem/texts",
             std::to_string(texts.size()) + " texts, the table takes " + std::to_string(kMostTexts) +
                 ": share choices through a template, drop descriptions of what nobody sees, or let "
                 "the table grow (kDefParamTextRows, which other programs have compiled in)"});
    return texts;
}

} // namespace talux::generator
