#include "tools/reference/Reference.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <numeric>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/dictionary/Tables.h"
#include "ParamSystem/kepl/Decision.h"
#include "ParamSystem/store/Kinds.h"
#include "ParamSystem/support/Text.h"

namespace talux::reference {

namespace {

// The texts of the compiled-in table by the id that they carry.
class TextsById {
public:
    TextsById() {
        for (int row = 1; row < DefParamTextCount - 1; ++row)
            byId[DefParamText[row].id].push_back(&DefParamText[row]);
    }

    std::span<const stParamText* const> of(int id) const {
        const auto found = byId.find(id);
        if (found == byId.end()) return {};
        return found->second;
    }

private:
    std::map<int, std::vector<const stParamText*>> byId;
};

std::span<const stParamText* const> textsOf(int id) {
    static const TextsById texts;
    return texts.of(id);
}

std::string onOneLine(std::string_view text) {
    std::string line(text);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

std::map<std::string, std::size_t> makeNameIndex() {
    std::map<std::string, std::size_t> index;
    const auto& all = parameters();
    for (std::size_t k = 0; k < all.size(); ++k) {
        std::string name(all[k].name());
        std::transform(name.begin(), name.end(), name.begin(), lowerAscii);
        if (!all[k].isTemplate()) index.emplace(std::move(name), k);
    }
    return index;
}

const std::map<std::string, std::size_t>& nameIndex() {
    static const auto index = makeNameIndex();
    return index;
}

std::string withoutPrefix(std::string_view name) {
    if (kepl::hasPrefix(name)) name.remove_prefix(kepl::kPrefixLength);
    std::string small(name);
    std::transform(small.begin(), small.end(), small.begin(), lowerAscii);
    return small;
}

// How many characters have to be changed, added, dropped or exchanged with their neighbour.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> before(b.size() + 1), above(b.size() + 1), row(b.size() + 1);
    std::iota(above.begin(), above.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = above[j - 1] + (a[i - 1] != b[j - 1]);
            row[j] = std::min({changed, above[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before.swap(above);
        above.swap(row);
    }
    return above[b.size()];
}

std::map<std::string_view, int> makeTextIds() {
    std::map<std::string_view, int> ids;
    for (const stParamSymbol* symbol = DefParamTextSymbols + 1; symbol->name != std::string_view("***");
         ++symbol)
        ids.emplace(symbol->name, symbol->value);
    return ids;
}

// The id under which the texts of a parameter lie. Of two parameters with one id only the later one has any.
int textIdOf(const Parameter& parameter) {
    static const auto ids = makeTextIds();
    const std::string symbol = (parameter.isTemplate() ? "TXT_TPL_" : "TXT_") + std::string(parameter.name());
    const auto found = ids.find(symbol);
    return found == ids.end() ? 0 : found->second;
}

} // namespace

std::string_view Parameter::name() const {
    return isTemplate() ? templateName(row().id) : std::string_view(row().name);
}

const stParamFamily& Parameter::family() const {
    return *std::find_if(kFamilies.begin(), kFamilies.end(),
                         [this](const stParamFamily& family) { return place <= family.last; });
}

bool Parameter::isSetting() const {
    return row().is_volatile == 0 && holds(type().kind, row().id);
}

File Parameter::file() const {
    return fileOf(row());
}

double Parameter::leastNumber() const {
    return type().kind == Kind::Enum && !hasMinimum() ? 1 : row().val_min;
}

int Parameter::writeLevel() const {
    if (!holds(type().kind, row().id) || row().val_access == kReadOnly) return 0;
    if (type().nature == Nature::record) return 0;
    if (name() == kepl::kOpenToReaders) return row().userlevel;
    return std::max(kepl::kWriteLevel, row().userlevel);
}

int Parameter::textRoom() const {
    if (!isText(row()) || type().kind == Kind::None) return 0;
    return static_cast<int>(blockOf(type().kind).slot) - 1;
}

std::string Parameter::text(int textType, ParamLanguage language) const {
    for (const stParamText* row : textsOf(textIdOf(*this)))
        if (row->type == textType && row->language == language) return onOneLine(row->txt);
    return {};
}

std::string Parameter::title(ParamLanguage language) const {
    return text(kTextTitle, language);
}

std::string Parameter::description(ParamLanguage language) const {
    return text(kTextDescription, language);
}

std::string Parameter::unit() const {
    return text(kTextUnit, kEnglish);
}

std::vector<Choice> Parameter::items(Group group, ParamLanguage language) const {
    std::vector<Choice> items;
    for (const stParamText* row : textsOf(textIdOf(*this)))
        if (row->type == kTextItem && row->id_group == group && row->language == language)
            items.push_back({row->id_item, onOneLine(row->txt)});
    return items;
}

std::string Parameter::heading(Group group, ParamLanguage language) const {
    for (const stParamText* row : textsOf(textIdOf(*this)))
        if (row->type == kTextGroup && row->id_item == group && row->language == language) return row->txt;
    return {};
}

std::vector<Choice> Parameter::choices(ParamLanguage language) const {
    if (type().code == kTypeCommand) return {};
    if (row().id_template == 0) return items(kChoices, language);
    std::vector<Choice> choices;
    for (const stParamText* text : textsOf(row().id_template))
        if (text->type == kTextItem && text->id_group == kChoices && text->language == language)
            choices.push_back({text->id_item, onOneLine(text->txt)});
    return choices;
}

std::string Parameter::choiceText(int number, ParamLanguage language) const {
    for (const Choice& choice : choices(language))
        if (choice.number == number) return choice.text;
    return {};
}

const std::vector<Parameter>& parameters() {
    static const auto all = [] {
        std::vector<Parameter> list;
        for (int position = 1; position <= kParameters; position += list.back().elements())
            list.emplace_back(position);
        return list;
    }();
    return all;
}

const Parameter* find(std::string_view name) {
    const auto found = nameIndex().find(withoutPrefix(name));
    return found == nameIndex().end() ? nullptr : &parameters()[found->second];
}

std::string_view nearest(std::string_view name) {
    const std::string wanted = withoutPrefix(name);
    std::size_t least = std::max<std::size_t>(1, wanted.size() / 3) + 1;
    std::string_view best;
    for (const auto& [known, place] : nameIndex()) {
        const std::size_t steps = distance(wanted, known);
        if (steps >= least) continue;
        least = steps;
        best = parameters()[place].name();
    }
    return best;
}

std::string_view templateName(int id) {
    constexpr std::string_view kPrefix = "VAR_TPL_";
    for (const stParamSymbol* symbol = DefParamSymbols + 1; std::string_view(symbol->name) != "***"; ++symbol)
        if (symbol->value == id && std::string_view(symbol->name).starts_with(kPrefix))
            return std::string_view(symbol->name).substr(kPrefix.size());
    return {};
}

std::string shortNumber(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

std::string rangeText(const Parameter& parameter, ParamLanguage language) {
    const std::string least = shortNumber(parameter.row().val_min);
    const std::string most = shortNumber(parameter.row().val_max);
    const bool german = language == kGerman;
    if (parameter.hasMinimum() && parameter.hasMaximum()) return least + (german ? " bis " : " to ") + most;
    if (parameter.hasMaximum()) return (german ? "bis " : "up to ") + most;
    return parameter.hasMinimum() ? (german ? "ab " : "from ") + least : std::string();
}

std::span<const StructMemberProperties_t> members(const Parameter& record) {
    const int number = record.row().id - kFirstStruct;
    return {ARR_StructMemberProperties + ARR_MemberOffset[number],
            static_cast<std::size_t>(ARR_MemberCount[number])};
}

} // namespace talux::reference
