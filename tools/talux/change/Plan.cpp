#include "tools/talux/change/Plan.h"

#include <charconv>
#include <tuple>

#include "ParamSystem/kepl/Clock.h"
#include "ParamSystem/kepl/Decision.h"
#include "ParamSystem/os/Os.h"
#include "tools/talux/Files.h"
#include "tools/talux/Judgement.h"
#include "tools/talux/LineCheck.h"

namespace talux::tool {

namespace {

constexpr int kAllRights = 3;

struct Label {
    std::string_view name;
    std::string_view index; // the text in brackets
};

Label labelIn(std::string_view text) {
    const auto open = text.find('[');
    if (open == text.npos || !text.ends_with(']')) return {text, {}};
    return {text.substr(0, open), text.substr(open + 1, text.size() - open - 2)};
}

// NAME[3] is the parameter NAME3 or NAME_3 where there is no NAME.
const Parameter* inSeries(const Label& label) {
    for (const char* between : {"", "_"})
        if (const auto* member = reference::find(joined({label.name, between, label.index}))) return member;
    return nullptr;
}

// Whether it is what is there: files hold what can only be read, too.
bool isPresent(const Parameter& parameter, std::string_view value) {
    const auto there = present(parameter, parameter.row().id);
    return there && (there->isText() ? value == there->text() : value == fileForm(parameter, *there));
}

// The numbers of the choices that are called so in either language.
std::set<int> choicesCalled(std::string_view text, const Parameter& parameter) {
    std::set<int> numbers;
    for (const ParamLanguage language : {kGerman, kEnglish})
        for (const auto& choice : parameter.choices(language))
            if (choice.text == text) numbers.insert(choice.number);
    return numbers;
}

// A number that is no choice's, while one is called so, is a text: a baud rate.
bool isNumberOf(const Parameter& parameter, std::string_view text) {
    double number = 0;
    const char* const end = text.data() + text.size();
    if (text.empty() || std::from_chars(text.data(), end, number).ptr != end) return false;
    return parameter.type().kind != Kind::Enum || isInRange(parameter, number) ||
           choicesCalled(text, parameter).empty();
}

std::string whyNoNumber(const Parameter& parameter, std::string_view text, bool isAmbiguous,
                        const Context& context) {
    const char* const pattern =
        isAmbiguous ? context.say("several choices are called '{}', give the number",
                                  "'{}' heißt mehr als eine Auswahl, die Nummer ist nötig")
        : parameter.type().kind == Kind::Enum ? context.say("has no choice '{}'", "hat keine Auswahl '{}'")
                                              : context.say("'{}' is not a number", "'{}' ist keine Zahl");
    return fill(pattern, {printable(text)}) + commaHint(text, context);
}

// How the clock's parameters show it.
const char* formatOf(Nature nature) {
    return nature == Nature::date ? "%Y-%m-%d" : "%H:%M:%S";
}

// Whether the clock has the moment. Of the numbers in the text any would do for the clock itself.
bool isMoment(std::string_view text, const kepl::VariableDecision& decision) {
    const Nature nature = typeOf(*decision.row).nature;
    std::time_t seconds = 0;
    return kepl::clockSetTo(decision.get<kepl::SetClock>()->numbers, nature, seconds) &&
           localTimeText(seconds, formatOf(nature)) == text;
}

// Why the value cannot be written; empty when it can.
std::string objection(const Parameter& parameter, const Value& value, const Context& context) {
    const auto kept = storedAs(parameter.row().id, value);
    if (!kept) return context.say("holds no value", "hat keinen speicherbaren Wert");
    const std::string_view text = value.text();
    const rules::Objection against = value.isText() ? rules::check(parameter.facts(), text)
                                                    : rules::check(parameter.facts(), value.number());
    if (against)
        return joined({plain(parameter, value), " ", describe(against, parameter, context.language)});
    if (!value.isText()) return {};
    if (!isUtf8(text)) return context.say("the text is not UTF-8", "der Text ist nicht UTF-8");
    const auto finding = wouldNotComeBack(parameter, value, context);
    return finding ? finding->text : "";
}

} // namespace

std::string Write::label() const {
    const std::string name(parameter->name());
    return index > 0 ? fill("{}[{}]", {name, std::to_string(index)}) : name;
}

std::optional<Value> present(const Parameter& parameter, int id) {
    if (!isOfClock(parameter)) return readValue(spaceOf(parameter.row()), id);
    std::tm now{};
    os::localTime(now);
    return Value(timeText(now, formatOf(parameter.type().nature)));
}

void Plan::refuse(std::string_view label, std::string_view reason) {
    refused.push_back(joined({place, printable(label), ": ", reason}));
}

void Plan::add(const Parameter& parameter, int index, const Value& value) {
    Write write{&parameter, index, {}, value};
    if (onDevice) write.from = write.present();
    const auto kept = storedAs(write.id(), value);
    named.insert(parameter.file());
    if (!ids.insert(write.id()).second)
        return refuse(write.label(), context.say("is named twice", "ist zweimal genannt"));
    if (!write.setsClock() && kept && sameValue(write.from, kept)) return;
    if (const std::string reason = objection(parameter, value, context); !reason.empty())
        return refuse(write.label(), reason);
    write.to = *kept;
    planned.push_back(write);
}

void Plan::take(std::string_view typed, std::string_view value) {
    auto [name, index] = labelIn(typed);
    const Parameter* parameter = reference::find(name);
    if (parameter == nullptr && (parameter = inSeries({name, index})) != nullptr) index = {};
    if (parameter == nullptr) return refuse(typed, unknownName(name, context));
    const bool isClock = isOfClock(*parameter), isText = talux::isText(parameter->row()) && !isClock;
    std::string meant(isText ? "x" : value);
    if (!isText && !isClock && !isNumberOf(*parameter, value)) {
        const auto numbers = choicesCalled(value, *parameter);
        if (numbers.size() != 1)
            return refuse(typed, whyNoNumber(*parameter, value, numbers.size() > 1, context));
        meant = std::to_string(*numbers.begin());
    }
    const bool isIndex = index.find_first_not_of("0123456789") == index.npos;
    const std::string term =
        joined({parameter->name(), index.empty() ? "" : " ", isIndex ? index : "?", "=", meant});
    const kepl::VariableDecision decision(term, kAllRights);
    if (const auto* const refusal = decision.get<kepl::Refused>()) {
        const bool isReadOnly = refusal->refusal == kepl::Refusal::readOnly;
        if (isReadOnly && onDevice && isPresent(*parameter, value)) return;
        return refuse(typed, reasonOf(decision, context));
    }
    if (isClock && !isMoment(value, decision))
        return refuse(typed, context.say("the clock has no {}", "die Uhr kennt kein {}", printable(value)));
    const auto* const write = decision.get<kepl::WriteNumber>();
    add(*parameter, static_cast<int>(decision.term.first),
        write != nullptr ? Value(write->number) : Value(value));
}

void Plan::take(const std::vector<std::string>& assignments) {
    for (const std::string& assignment : assignments) {
        std::string_view value = assignment;
        const std::string_view label = takeUpTo(value, '=');
        if (label.size() == assignment.size())
            context.fail("'{}': NAME=VALUE expected", "'{}': NAME=WERT erwartet", assignment);
        take(label, value);
    }
}

void Plan::checkDevice(std::string_view line, const std::string& path) const {
    const Parameter& name = *reference::find("Name");
    const auto here = present(name, name.row().id);
    if (here && line == here->text()) return;
    context.fail("{}: is for '{}'; this device is '{}'", "{}: ist für '{}'; dieses Gerät heißt '{}'", path,
                 printable(line), here ? printable(here->text()) : "-");
}

void Plan::readLine(std::string_view line) {
    if (withoutBlanks(line).empty()) return;
    std::string_view right = line;
    const std::string_view left = withoutBlanks(takeUpTo(right, '='));
    std::string whole = joined({left, "=", withoutBlanks(right)});
    const std::string prefixed = joined({kKeyPrefix, whole});
    Entry entry = parseEntry(whole.data());
    if (entry.form == LineForm::foreign) {
        whole = prefixed;
        entry = parseEntry(whole.data());
    }
    if (entry.form != LineForm::entry) return;
    if (entry.tail == Tail::text || (entry.isQuoted && !entry.isClosed))
        return refuse(withoutBlanks(line), context.say("the text after the value is not read",
                                                       "der Text nach dem Wert wird nicht gelesen"));
    const Parameter* const parameter = reference::find(entry.name);
    if (parameter != nullptr && isOfClock(*parameter)) return;
    take(entry.name, entry.isQuoted ? entry.value : withoutBlanks(entry.value));
}

void Plan::read(const std::string& path) {
    std::string contents = contentsOf(path, context);
    if (contents.find('\0') != contents.npos)
        context.fail("{}: contains a NUL character", "{}: enthält ein NUL-Zeichen", path);
    std::string_view rest = contents;
    constexpr std::string_view kMark = "\xEF\xBB\xBF", kFor = "# for:";
    if (rest.starts_with(kMark)) rest.remove_prefix(kMark.size());
    for (int number = 1; !rest.empty(); ++number) {
        const std::string_view line = takeUpTo(rest, '\n');
        if (number == 1 && line.starts_with(kFor)) checkDevice(withoutBlanks(line.substr(kFor.size())), path);
        place = fill("{}:{}: ", {printable(path), std::to_string(number)});
        readLine(line);
    }
    place = {};
}

Writes Plan::writes() const {
    Writes ordered = planned;
    const auto rank = [](const Write& write) {
        return std::tuple(write.actsAtOnce(), write.setsClock(), write.parameter->position(), write.index);
    };
    std::ranges::sort(ordered, {}, rank);
    return ordered;
}

} // namespace talux::tool
