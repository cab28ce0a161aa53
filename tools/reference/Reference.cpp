#include "tools/reference/Reference.h"

#include <algorithm>

#include "ParamSystem/kepl/Decision.h"
#include "ParamSystem/store/Kinds.h"
#include "tools/Strings.h"

namespace talux::reference {

namespace {

std::string onOneLine(std::string_view text) {
    std::string line(text);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return line;
}

std::vector<Choice> inLanguage(std::span<const model::Item> items, ParamLanguage language) {
    std::vector<Choice> choices;
    for (const model::Item& item : items)
        if (const std::string_view text = item.text.in(language); !text.empty())
            choices.push_back({item.number, onOneLine(text)});
    return choices;
}

} // namespace

bool Parameter::isSetting() const {
    return row().is_volatile == 0 && holds(type().kind, row().id);
}

rules::Facts Parameter::facts() const {
    rules::Facts facts = rules::factsOf(row(), of->form);
    if (textRoom() > 0) facts.bytes = textRoom();
    return facts;
}

int Parameter::writeLevel() const {
    if (!holds(type().kind, row().id) || facts().isReadOnly) return 0;
    if (type().nature == Nature::record) return 0;
    return rules::levelToWrite(row());
}

int Parameter::textRoom() const {
    if (!isText(row()) || type().kind == Kind::None) return 0;
    return static_cast<int>(blockOf(type().kind).slotSize) - 1;
}

int Parameter::lineRoom() const {
    constexpr int kAround = 3;
    return std::min(static_cast<int>(kKeplMaxTerm - kepl::kPrefixLength - name().size()) - kAround,
                    textRoom());
}

std::string Parameter::defaultValue() const {
    if (!isSetting()) return {};
    return hasNumber() ? shortNumber(row().val_def) : row().val_def_text;
}

std::vector<int> Parameter::notes() const {
    std::vector<int> all(of->notes.begin(), of->notes.end());
    if (of->shared != nullptr) all.insert(all.end(), of->shared->notes.begin(), of->shared->notes.end());
    return all;
}

std::string Parameter::title(ParamLanguage language) const {
    return onOneLine(of->title.in(language));
}

std::string Parameter::description(ParamLanguage language) const {
    return onOneLine(of->description.in(language));
}

std::vector<Choice> Parameter::items(model::GroupNumber group, ParamLanguage language) const {
    return inLanguage(of->groups[group].items, language);
}

std::span<const model::Item> Parameter::choiceItems() const {
    if (type().code == kTypeCommand) return {};
    return (of->shared == nullptr ? of : of->shared)->groups[kChoices].items;
}

bool Parameter::hasAllChoices() const {
    const double first = std::max(1.0, row().val_min);
    return type().kind == Kind::Enum &&
           static_cast<double>(choiceItems().size()) == row().val_max - first + 1;
}

std::vector<Choice> Parameter::choices(ParamLanguage language) const {
    return inLanguage(choiceItems(), language);
}

std::string Parameter::choiceText(int number, ParamLanguage language) const {
    for (const model::Item& item : choiceItems())
        if (item.number == number) return onOneLine(item.text.in(language));
    return {};
}

std::string shortNumber(double value) {
    return formatted("%.10g", value);
}

std::string rangeText(const Parameter& parameter, ParamLanguage language) {
    const bool german = language == kGerman;
    const bool hasMin = parameter.lowestNumber() != kNoMin, hasMax = parameter.highestNumber() != kNoMax;
    const std::string min = shortNumber(parameter.lowestNumber()),
                      max = shortNumber(parameter.highestNumber());
    if (hasMin && hasMax) return min + (german ? " bis " : " to ") + max;
    if (hasMax) return (german ? "bis " : "up to ") + max;
    return hasMin ? (german ? "ab " : "from ") + min : std::string();
}

std::span<const StructMemberProperties_t> members(const Parameter& record) {
    const int number = record.row().id - kFirstStruct;
    return {ARR_StructMemberProperties + ARR_MemberOffset[number],
            static_cast<std::size_t>(ARR_MemberCount[number])};
}

} // namespace talux::reference
