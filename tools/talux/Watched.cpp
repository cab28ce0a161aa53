#include "tools/talux/Watched.h"

#include <cstring>

#include "ParamSystem/TALUX_Var.h"
#include "support/Parse.h"

namespace talux::tool {

namespace {

double memberNumber(const Watched& item) {
    char record[kLargestRecord];
    VarGetGlobalStructValue(item.id, record, ARR_StructSize[item.id - kFirstStruct]);
    const char* const bytes = record + item.member->lMemberOffset;
    float fraction;
    std::int32_t whole;
    std::memcpy(&fraction, bytes, sizeof fraction);
    std::memcpy(&whole, bytes, sizeof whole);
    return item.isMeasured() ? static_cast<double>(fraction) : whole;
}

Watched watchedMember(const reference::Member& member, ParamLanguage language) {
    return {member.name(),     member.record,          member.record->row().id,
            member.properties, member.title(language), unitOf(member)};
}

// Elements first to last of "NAME FIRST" or "NAME FIRST.LAST", counted from 1 in the list of all.
std::vector<Watched> elementsBy(const std::string& text, const Parameter& parameter, std::vector<Watched> all,
                                const Context& context) {
    const int least = parameter.row().val_min_id, most = parameter.row().val_max_id;
    std::string_view end = text;
    takeUpTo(end, ' ');
    const std::string_view begin = takeUpTo(end, '.');
    const auto first = wholeNumber(begin), last = end.empty() ? first : wholeNumber(end);
    if (!parameter.isIndexed()) context.fail("{} has no elements", "{} hat keine Elemente", parameter.name());
    if (!first || !last || *first < least || *last > most || *first > *last)
        context.fail("'{}': no such element; elements are {} to {}",
                     "'{}': kein solches Element; Elemente sind {} bis {}", printable(text), least, most);
    return {all.begin() + (*first - least), all.begin() + (*last - least + 1)};
}

struct Relation {
    std::string_view sign;
    bool (*holds)(double value, double limit);
};
// Those with two characters first.
constexpr Relation kRelations[] = {
    {">=", [](double a, double b) { return a >= b; }}, {"<=", [](double a, double b) { return a <= b; }},
    {"!=", [](double a, double b) { return a != b; }}, {"==", [](double a, double b) { return a == b; }},
    {">", [](double a, double b) { return a > b; }},   {"<", [](double a, double b) { return a < b; }},
    {"=", [](double a, double b) { return a == b; }}};

} // namespace

std::optional<Value> Watched::value() const {
    return member != nullptr ? Value(memberNumber(*this)) : readValue(Space::global, id);
}

bool Watched::isFloat() const {
    const auto type = member == nullptr ? parameter->row().type : memberType(member->szMemberType);
    return type == kTypeFloat;
}

bool Watched::isMeasured() const {
    if (member != nullptr) return isFloat();
    return parameter->row().is_volatile == 1 && parameter->hasNumber() && parameter->type().fileDecimals > 0;
}

std::string Watched::plainText(const std::optional<Value>& value) const {
    if (!value) return "-";
    return member != nullptr ? numberText(value->number(), isMeasured()) : plain(*parameter, *value);
}

std::string Watched::shortText(const std::optional<Value>& value, const Context& context) const {
    if (!isMeasured() || !value)
        return member != nullptr ? plainText(value) : shown(*parameter, value, context);
    return formatted("%.5g", value->number()) + (unit.empty() ? "" : " " + unit);
}

void addWatched(std::vector<Watched>& all, const Parameter& parameter, const Context& context) {
    const std::string name(parameter.name()), title = parameter.title(context.language);
    const int id = parameter.row().id;
    if (parameter.type().nature == Nature::record)
        for (const reference::Member& member : membersOf(parameter))
            all.push_back(watchedMember(member, context.language));
    else if (parameter.isIndexed())
        for (int k = 0; k < parameter.elements(); ++k)
            all.push_back({fill("{} {}", {name, std::to_string(parameter.row().val_min_id + k)}), &parameter,
                           id + k, nullptr, title, unitOf(parameter)});
    else if (parameter.type().kind != Kind::None)
        all.push_back({name, &parameter, id, nullptr, title, unitOf(parameter)});
}

std::vector<Watched> watchedBy(const std::string& text, const Context& context) {
    const std::string name = text.substr(0, text.find(' '));
    std::vector<Watched> found;
    const Parameters parameters = reference::named(name);
    for (const Parameter* parameter : parameters)
        addWatched(found, *parameter, context);
    if (name.size() < text.size() && parameters.size() == 1)
        return elementsBy(text, *parameters[0], std::move(found), context);
    if (parameters.empty())
        for (const reference::Member& member : reference::membersNamed(text))
            found.push_back(watchedMember(member, context.language));
    if (found.empty() && !parameters.empty())
        context.fail("{} holds no value", "{} hat keinen Wert", printable(text));
    const bool isOfSeveral = name.size() < text.size() && parameters.size() > 1;
    if (found.empty() || isOfSeveral) throw CouldNot(unknownName(text, context));
    return found;
}

Condition::Condition(std::string_view text, const Context& context) {
    const std::size_t at = std::min(text.find_first_of("<>=!"), text.size());
    const auto* const relation = std::ranges::find_if(
        kRelations, [&](const Relation& known) { return text.substr(at).starts_with(known.sign); });
    const std::string left(withoutBlanks(text.substr(0, at)));
    const bool isComplete = relation != std::end(kRelations) && !left.empty();
    const auto items = isComplete ? watchedBy(left, context) : std::vector<Watched>();
    if (items.size() != 1)
        context.fail("'{}': a condition is one value, >, <, =, >=, <= or !=, and a number",
                     "'{}': eine Bedingung ist ein Wert, >, <, =, >=, <= oder != und eine Zahl",
                     printable(text));
    what = items[0];
    isMet = relation->holds;
    const std::string_view right = withoutBlanks(text.substr(at + relation->sign.size()));
    auto number = numberIn(right);
    for (const model::Item& item : what.parameter->choiceItems())
        if (!number && (equalIgnoringCase(item.text.de, right) || equalIgnoringCase(item.text.en, right)))
            number = item.number;
    if (!number)
        context.fail("'{}': {} is neither a number with a decimal point nor a choice of {}",
                     "'{}': {} ist keine Zahl mit Dezimalpunkt und keine Auswahl von {}", printable(text),
                     printable(right), what.label);
    limit = what.isFloat() ? static_cast<float>(*number) : *number;
}

bool Condition::holds() const {
    const auto value = what.value();
    return value && !value->isText() && isMet(value->number(), limit);
}

} // namespace talux::tool
