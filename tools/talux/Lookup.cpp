#include "tools/talux/Lookup.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

#include "support/Text.h"
#include "tools/pages/Facts.h"
#include "tools/pages/Names.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

constexpr std::string_view kDigits = "0123456789";

std::optional<int> numberIn(std::string_view text) {
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = read.ec == std::errc() && read.ptr == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

std::string_view withoutNumber(std::string_view name) {
    return name.substr(0, name.find_last_not_of(kDigits) + 1);
}

template <class Wanted>
Parameters chosen(Wanted wanted) {
    Parameters found;
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate() && wanted(parameter)) found.push_back(&parameter);
    return found;
}

// Every name of a list in braces, or none where one is unknown or the braces are wrong.
Parameters listed(std::string_view pattern) try {
    Parameters found;
    for (const std::string& name : pages::namesOf(pattern)) {
        found.push_back(reference::find(name));
        if (found.back() == nullptr) return {};
    }
    return found;
} catch (const generator::BrokenRule&) {
    return {};
}

} // namespace

Parameters named(std::string_view name) {
    if (const Parameter* const parameter = reference::find(name)) return {parameter};
    if (name.find('{') != name.npos) return listed(name);
    if (name.find_first_of("*?") != name.npos)
        return chosen([name](const Parameter& parameter) { return fits(parameter.name(), name); });
    if (name.empty()) return {};
    return chosen([name](const Parameter& parameter) {
        return parameter.name() != name && equalIgnoringCase(withoutNumber(parameter.name()), name);
    });
}

std::string nearestName(std::string_view name, const Context& context, std::string_view prefix) {
    const std::string_view near = reference::nearest(name);
    if (near.empty()) return {};
    return fill(context.say("; the nearest name is {}{}", "; der ähnlichste Name ist {}{}"), {prefix, near});
}

std::string unknownName(std::string_view name, const Context& context, std::string_view prefix) {
    return fill(context.say("no parameter is named {}", "kein Parameter heißt {}"), {printable(name)}) +
           nearestName(name, context, prefix);
}

std::string inShort(const Parameters& parameters) {
    struct Part {
        std::string_view first, stem;
        std::vector<int> numbers;
    };
    std::vector<Part> series;
    for (const Parameter* parameter : parameters) {
        const std::string_view name = parameter->name(), stem = withoutNumber(name);
        if (series.empty() || series.back().stem != stem) series.push_back({name, stem, {}});
        if (const auto number = numberIn(name.substr(stem.size()))) series.back().numbers.push_back(*number);
    }
    return list(series, ", ", [](const Part& part) {
        return part.numbers.size() < 2 ? std::string(part.first)
                                       : std::string(part.stem) + pages::asRanges(part.numbers);
    });
}

std::string Member::unit() const {
    const Parameter* const twin = reference::find(texts.twin);
    return twin == nullptr ? std::string() : twin->unit();
}

std::vector<Member> membersOf(const Parameter& record) {
    static std::map<const Parameter*, std::map<std::string, pages::MemberTexts, std::less<>>> known;
    auto& texts = known[&record];
    if (texts.empty()) texts = pages::memberTextsOf(record);
    std::vector<Member> all;
    for (const auto& properties : reference::members(record))
        all.push_back({&record, &properties, texts[properties.aszMemberName]});
    return all;
}

std::vector<Member> membersNamed(std::string_view name) {
    std::vector<Member> found;
    for (const Parameter* record :
         chosen([](const Parameter& row) { return row.type().nature == Nature::record; }))
        for (Member& member : membersOf(*record))
            if (equalIgnoringCase(name, member.name()) ||
                equalIgnoringCase(name, member.properties->aszMemberName))
                found.push_back(std::move(member));
    return found;
}

std::vector<Meaning> meaningsOf(std::string_view text, ParamLanguage language) {
    const auto number = numberIn(text);
    std::vector<Meaning> found;
    const auto add = [&](const Parameter& parameter, const model::Item& item) {
        const std::string own(item.text.in(language));
        for (Meaning& known : found)
            if (known.choice.number == item.number && known.choice.text == own)
                return known.bearers.push_back(&parameter);
        const ParamLanguage other = language == kGerman ? kEnglish : kGerman;
        found.push_back({{item.number, own}, std::string(item.text.in(other)), {&parameter}});
    };
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate())
            for (const model::Item& item : parameter.choiceItems())
                if (number ? item.number == *number
                           : equalIgnoringCase(item.text.de, text) || equalIgnoringCase(item.text.en, text))
                    add(parameter, item);
    return found;
}

Identified identified(std::string_view text) {
    if (startsIgnoringCase(text, "ID:")) text.remove_prefix(3);
    const int id = numberIn(text).value_or(-1);
    for (const Parameter& parameter : reference::parameters()) {
        const int element = id - parameter.row().id;
        if (!parameter.isTemplate() && element >= 0 && element < parameter.elements())
            return {&parameter, parameter.isIndexed() ? parameter.row().val_min_id + element : 0};
    }
    return {};
}

int methodNamed(std::string_view text) {
    for (const parameters::Method& method : parameters::kMethods)
        if (containsIgnoringCase(method.en, text) || containsIgnoringCase(method.de, text)) return method.id;
    return parameters::kNoMethod;
}

bool isOfMethod(const Parameter& parameter, int method) {
    if (parameter.model().method == method) return true;
    for (const std::string& name : pages::namesOf(parameters::kMethods[method].measured))
        if (parameter.name() == name) return true;
    return false;
}

} // namespace talux::tool
