#include "tools/generator/Texts.h"

#include <algorithm>
#include <set>

#include "tools/generator/TextPattern.h"

namespace talux::generator {
namespace {

using parameters::Both;

// ---- Rows of one parameter -----------------------------------------------------------------------------

class TextWriter {
public:
    explicit TextWriter(const TextSubject& subject)
        : texts(subject.parameter->row->texts),
          unit(subject.parameter->row->unit), member{subject.parameter->name, subject.parameter->shown[0],
                                                     subject.parameter->shown[1]},
          id(subject.textId) {}

    std::vector<Text> write() {
        add(kTextTitle, texts.title);
        add(kTextDescription, texts.description);
        if (*unit != '\0') add(kEnglish, kTextUnit, 0, 0, unit);
        for (int group : {parameters::kGroupArgs, parameters::kGroupMessages, parameters::kGroupErrors})
            addGroup(group);
        return std::move(rows);
    }

private:
    void addGroup(int group) {
        const auto index = static_cast<std::size_t>(group);
        const Both& items = texts.items[index];
        const bool ownName = group == parameters::kGroupArgs && texts.ownNameAsArg;
        if (!ownName && items.isEmpty()) return;
        add(kTextGroup, texts.headings[index], 0, group);
        if (ownName) add(kEnglish, kTextItem, parameters::kGroupArgs, 1, member.name);
        const int first = group == parameters::kGroupErrors ? texts.firstError : 1;
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

    const parameters::Texts& texts;
    const char* unit;
    SeriesMember member;
    int id;
    std::vector<Text> rows;
};

// ---- Rules ---------------------------------------------------------------------------------------------

constexpr int kLongestTitle = 24;

void require(bool holds, const std::string& rule) {
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

void checkLanguages(const parameters::Texts& texts) {
    std::vector<Both> all{texts.title, texts.description};
    all.insert(all.end(), texts.items.begin(), texts.items.end());
    for (const Both& text : all) {
        const std::string language = *text.de == '\0' ? "German" : "English";
        require((*text.de == '\0') == (*text.en == '\0'), "a text is missing in " + language);
        const std::size_t german = textsOf(text.de).size(), english = textsOf(text.en).size();
        require(german == english, "one language has fewer texts: " + std::to_string(german) + " German, " +
                                       std::to_string(english) + " English");
    }
}

void checkText(const Text& row) {
    const std::string which =
        (row.language == kGerman ? "the German text \"" : "the English text \"") + row.text + '"';
    const int characters = countCharacters(row.text);
    require(characters >= 0, which + " is not in UTF-8");
    require(isTidy(row.text),
            which + " is empty, has blanks at an end or two in a row, or a sign of a pattern");
    require(row.type != kTextTitle || characters <= kLongestTitle,
            which + " has " + std::to_string(characters) + " characters, a title at most " +
                std::to_string(kLongestTitle));
}

void checkTitles(const std::vector<Text>& rows, const std::string& name) {
    for (const Text& row : rows) {
        require(row.type != kTextTitle || row.text != name || name.find('_') == std::string::npos,
                "the title is only the name");
        require(row.type != kTextDescription || row.text != rows[row.language == kGerman ? 0 : 1].text,
                "the description says the title again");
    }
}

// A template may have texts for its first choices only; names require a text for each.
void checkChoices(const parameters::Row& row) {
    const std::size_t texts = textsOf(row.texts.items[parameters::kGroupArgs].en).size();
    const std::vector<std::string> names = choiceNames(row);
    const stParamProperties& properties = row.properties;
    const double choices = properties.type == kTypeEnum ? properties.val_max : 0;
    if (properties.type == kTypeNone || (texts == 0 && names.empty())) return;
    const auto count = static_cast<double>(texts);
    require(count == choices || (count < choices && *row.templateName != '\0'),
            "there are " + std::to_string(texts) + " texts of choices for " +
                std::to_string(static_cast<int>(choices)) + " choices");
    require(names.size() == (count == choices ? texts : 0), "its choices have " + std::to_string(texts) +
                                                                " texts and " + std::to_string(names.size()) +
                                                                " names");
    require(std::set<std::string>(names.begin(), names.end()).size() == names.size(),
            "two of its choices have one name");
}

void checkTexts(const TextSubject& subject, const std::vector<Text>& rows) {
    const parameters::Row& row = *subject.parameter->row;
    require(!row.texts.title.isEmpty(), "it has no texts");
    checkLanguages(row.texts);
    std::for_each(rows.begin(), rows.end(), checkText);
    checkTitles(rows, subject.parameter->name);
    checkChoices(row);
}

} // namespace

std::vector<std::string> choiceNames(const parameters::Row& row) {
    std::vector<std::string> names = textsOf(row.texts.choiceNames);
    for (std::string& name : names)
        name.insert(0, 1, 'k');
    return names;
}

std::vector<Text> expand(const std::vector<TextSubject>& subjects, Faults& faults) {
    std::vector<Text> texts;
    const parameters::Row* reported = nullptr;
    for (const TextSubject& subject : subjects) {
        const parameters::Row* const row = subject.parameter->row;
        if (row == reported) continue;
        try {
            const std::vector<Text> rows = TextWriter(subject).write();
            checkTexts(subject, rows);
            texts.insert(texts.end(), rows.begin(), rows.end());
        } catch (const BrokenRule& rule) {
            faults.push_back({row->where, subject.parameter->stem(), rule.text});
            reported = row;
        }
    }
    if (texts.size() > kMostTexts)
        faults.push_back(
            {{},
             "ParamSystem/parameters",
             std::to_string(texts.size()) + " texts, the table takes " + std::to_string(kMostTexts) +
                 ": share choices through a template, drop descriptions of what nobody sees, or let "
                 "the table grow (kDefParamTextRows, which other programs have compiled in)"});
    return texts;
}

} // namespace talux::generator
