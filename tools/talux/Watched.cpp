#include "tools/talux/Watched.h"

#include <charconv>
#include <cstdio>
#include <cstring>

#include "ParamSystem/TALUX_Var.h"
#include "support/Parse.h"
#include "tools/talux/Text.h"

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

Watched watchedMember(const Member& member, ParamLanguage language) {
    return {member.name(),     member.record,          member.record->row().id,
            member.properties, member.title(language), member.unit()};
}

// Elements first to last of "NAME FIRST" or "NAME FIRST.LAST", counted from 1 in the list of all.
std::vector<Watched> elementsBy(const std::string& text, const Parameter& parameter, std::vector<Watched> all,
                                const Context& context) {
    const auto& row = parameter.row();
    int first = 0;
    const char* const end = text.data() + text.size();
    auto read = std::from_chars(text.data() + text.find(' ') + 1, end, first);
    int last = first;
    if (read.ec == std::errc() && read.ptr != end && *read.ptr == '.')
        read = std::from_chars(read.ptr + 1, end, last);
    const bool fits = first >= row.val_min_id && last <= row.val_max_id && first <= last;
    if (read.ec != std::errc() || read.ptr != end || !parameter.isIndexed() || !fits)
        throw CouldNot(
            fill(context.say("'{}': no such element; elements are {} to {}",
                             "'{}': kein solches Element; Elemente sind {} bis {}"),
                 {printable(text), std::to_string(row.val_min_id), std::to_string(row.val_max_id)}));
    return {all.begin() + (first - row.val_min_id), all.begin() + (last - row.val_min_id + 1)};
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

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' '), last = text.find_last_not_of(' ');
    return first == text.npos ? std::string() : std::string(text.substr(first, last - first + 1));
}

} // namespace

std::optional<Value> Watched::value() const {
    return member != nullptr ? Value(memberNumber(*this)) : readValue(Space::global, id);
}

bool Watched::isMeasured() const {
    if (member != nullptr) return memberType(member->szMemberType) == kTypeFloat;
    return parameter->row().is_volatile == 1 && parameter->hasNumber() && parameter->type().fileDecimals > 0;
}

std::string Watched::plainText(const std::optional<Value>& value) const {
    if (!value) return "-";
    return member != nullptr ? numberText(value->number(), isMeasured()) : plain(*parameter, *value);
}

std::string Watched::shortText(const std::optional<Value>& value, const Context& context) const {
    if (!isMeasured() || !value)
        return member != nullptr ? plainText(value) : shown(*parameter, value, context);
    char text[32];
    std::snprintf(text, sizeof text, "%.5g", value->number());
    return unit.empty() ? text : text + (" " + unit);
}

void addWatched(std::vector<Watched>& all, const Parameter& parameter, const Context& context) {
    const std::string name(parameter.name()), title = parameter.title(context.language);
    const int id = parameter.row().id;
    if (parameter.type().nature == Nature::record)
        for (const Member& member : membersOf(parameter))
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
    const Parameters parameters = named(name);
    for (const Parameter* parameter : parameters)
        addWatched(found, *parameter, context);
    if (name.size() < text.size() && parameters.size() == 1)
        return elementsBy(text, *parameters[0], std::move(found), context);
    if (parameters.empty())
        for (const Member& member : membersNamed(text))
            found.push_back(watchedMember(member, context.language));
    if (found.empty()) throw CouldNot(unknownName(text, context));
    return found;
}

Condition::Condition(const std::string& text, const Context& context) : relation(0), limit(0) {
    const std::size_t at = std::min(text.find_first_of("<>=!"), text.size());
    const int known = static_cast<int>(std::size(kRelations));
    while (relation < known && !text.substr(at).starts_with(kRelations[relation].sign))
        ++relation;
    const std::string left = trimmed(text.substr(0, at));
    const auto items = relation < known && !left.empty() ? watchedBy(left, context) : std::vector<Watched>();
    if (items.size() != 1)
        throw CouldNot(
            fill(context.say("'{}': a condition is one value, >, <, =, >=, <= or !=, and a number",
                             "'{}': eine Bedingung ist ein Wert, >, <, =, >=, <= oder != und eine Zahl"),
                 {printable(text)}));
    what = items[0];
    const std::string right = trimmed(text.substr(at + kRelations[relation].sign.size()));
    auto number = numberIn(right);
    for (const Meaning& meaning : meaningsOf(right, context.language))
        for (const Parameter* bearer : meaning.bearers)
            if (!number && bearer == what.parameter) number = meaning.choice.number;
    if (!number)
        throw CouldNot(
            fill(context.say("'{}': {} is neither a number with a decimal point nor a choice of {}",
                             "'{}': {} ist keine Zahl mit Dezimalpunkt und keine Auswahl von {}"),
                 {printable(text), printable(right), what.label}));
    limit = *number;
}

bool Condition::holds() const {
    const auto value = what.value();
    return value && !value->isText() && kRelations[relation].holds(value->number(), limit);
}

} // namespace talux::tool
