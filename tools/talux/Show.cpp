#include "tools/talux/Show.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <map>
#include <utility>

#include "support/Number.h"

namespace talux::tool {

namespace {

// Without an exponent where people write none.
template <typename Number>
std::string shortest(Number number) {
    const auto size = std::abs(number);
    const bool isOrdinary = size == 0 || (size >= Number(1e-6) && size < Number(1e15));
    char text[64];
    const auto result = isOrdinary ? std::to_chars(text, text + sizeof text, number, std::chars_format::fixed)
                                   : std::to_chars(text, text + sizeof text, number);
    return {text, result.ptr};
}

} // namespace

std::string numberText(double number, bool isFloat) {
    return isFloat ? shortest(narrowed(number)) : shortest(number);
}

std::string plain(const Parameter& parameter, const Value& value) {
    if (value.isText()) return "\"" + printable(value.text()) + "\"";
    return numberText(value.number(), parameter.type().kind == Kind::Float);
}

std::string unitOf(const Parameter& parameter) {
    return parameter.type().kind == Kind::Enum ? std::string() : parameter.unit();
}

std::string choiceOf(const Parameter& parameter, const Value& value, ParamLanguage language) {
    if (value.isText() || parameter.type().kind != Kind::Enum) return {};
    return parameter.choiceText(static_cast<int>(value.number()), language);
}

std::string shown(const Parameter& parameter, const std::optional<Value>& value, const Context& context) {
    if (!value) return "-";
    const std::string text = plain(parameter, *value), unit = unitOf(parameter),
                      choice = choiceOf(parameter, *value, context.language);
    if (value->isText() || (unit.empty() && choice.empty())) return text;
    return unit.empty() ? fill("{} ({})", {text, choice}) : fill("{} {}", {text, unit});
}

std::string elementsText(const Parameter& parameter, const Context& context) {
    return context.say("elements {} to {}", "Elemente {} bis {}", parameter.row().val_min_id,
                       parameter.row().val_max_id);
}

bool isInRange(const Parameter& parameter, double number) {
    constexpr rules::Reasons kOutside{Reason::notANumber, Reason::tooLow, Reason::tooHigh, Reason::noChoice};
    return !rules::check(parameter.facts(), number, kOutside);
}

std::string change(const Difference& difference, const Context& context) {
    const auto& [parameter, from, to] = difference;
    // The unit stands once, behind both.
    const bool isOneUnit = from && to && !unitOf(*parameter).empty();
    const std::string before = isOneUnit ? plain(*parameter, *from) : shown(*parameter, from, context);
    return before + " -> " + shown(*parameter, to, context);
}

Json json(const Parameter& parameter, const std::optional<Value>& value) {
    if (!value) return nullptr;
    if (value->isText()) return value->text();
    const double number = value->number();
    if (!std::isfinite(number)) return plain(parameter, *value);
    if (parameter.type().fileDecimals == 0) return static_cast<std::int64_t>(number);
    return *numberOf<double>(plain(parameter, *value)); // rounded
}

Json changeJson(const Difference& difference, const Context& context) {
    const auto& [parameter, from, to] = difference;
    Json object{{"name", parameter->name()},
                {"title", parameter->title(context.language)},
                {"from", json(*parameter, from)},
                {"to", json(*parameter, to)},
                {"unit", unitOf(*parameter)}};
    for (const auto& [key, value] : {std::pair("from_text", from), std::pair("to_text", to)})
        if (value && !choiceOf(*parameter, *value, context.language).empty())
            object.set(key, choiceOf(*parameter, *value, context.language));
    return object;
}

Json namesOf(const Parameters& parameters) {
    return Json::arrayOf(parameters, [](const Parameter* parameter) { return parameter->name(); });
}

std::string nearestName(std::string_view name, const Context& context, std::string_view prefix) {
    const std::string_view near = reference::nearest(name);
    if (near.empty()) return {};
    return context.say("; the nearest name is {}{}", "; der ähnlichste Name ist {}{}", prefix, near);
}

std::string unknownName(std::string_view name, const Context& context, std::string_view prefix) {
    if (name.empty()) return context.say("the name is empty", "der Name ist leer");
    const std::string unknown =
        context.say("no parameter is named {}", "kein Parameter heißt {}", printable(name));
    const bool isPattern = name.find_first_of("{*?") != name.npos;
    const Parameters series = isPattern ? Parameters() : reference::named(name);
    if (series.size() < 2) return unknown + nearestName(name, context, prefix);
    return unknown + context.say("; there are {}{}", "; es gibt {}{}", prefix, reference::inShort(series));
}

const char* commaHint(std::string_view text, const Context& context) {
    const bool hasComma = text.find(',') != text.npos;
    return hasComma ? context.say("; decimals need a point", "; Dezimalen brauchen einen Punkt") : "";
}

std::string noteLabel(const model::Note& note, const Context& context) {
    return note.kind == parameters::kWarning   ? context.say("Warning:", "Warnung:")
           : note.kind == parameters::kUnknown ? context.say("Not documented:", "Nicht dokumentiert:")
                                               : context.say("Note:", "Hinweis:");
}

std::vector<std::string> noteTexts(const Parameters& parameters, const Context& context) {
    std::map<std::pair<parameters::NoteKind, int>, Parameters> byNote;
    for (const Parameter* parameter : parameters)
        for (const int number : parameter->notes())
            byNote[{reference::noteAt(number).kind, number}].push_back(parameter);
    std::vector<std::string> texts;
    for (const auto& [key, bearers] : byNote) {
        const model::Note& note = reference::noteAt(key.second);
        const std::string label = noteLabel(note, context);
        texts.push_back(
            joined({note.kind == parameters::kWarning ? Paint::bold(Paint::bad(label)) : Paint::dim(label),
                    " ", bearers.size() == parameters.size() ? "" : inShort(bearers) + ": ",
                    note.text.in(context.language)}));
    }
    return texts;
}

void addNotes(Json& object, const Parameter& parameter) {
    const auto described = [](int number) -> Json {
        const auto& [text, kind] = reference::noteAt(number);
        return {{"kind", model::kNoteKinds[kind]}, {"en", text.en}, {"de", text.de}};
    };
    if (!parameter.notes().empty()) object.set("notes", Json::arrayOf(parameter.notes(), described));
}

void print(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
}

} // namespace talux::tool
