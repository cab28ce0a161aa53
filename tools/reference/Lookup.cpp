#include "tools/reference/Lookup.h"

#include <algorithm>

#include "ParamSystem/parameters/Methods.h"
#include "support/Text.h"
#include "tools/Strings.h"
#include "tools/reference/Ranges.h"

namespace talux::reference {

namespace {

bool isSame(char a, char b) {
    return lowerAscii(a) == lowerAscii(b);
}

// Which prefixes of the name match the pattern so far, from the empty one to the whole name.
bool fitsPattern(std::string_view name, std::string_view pattern) {
    std::vector<char> fitting(name.size() + 1);
    fitting[0] = 1;
    for (const char c : pattern) {
        if (c == '*') {
            std::fill(std::ranges::find(fitting, 1), fitting.end(), 1);
            continue;
        }
        for (std::size_t n = name.size(); n > 0; --n)
            fitting[n] = fitting[n - 1] != 0 && (c == '?' || isSame(c, name[n - 1]));
        fitting[0] = 0;
    }
    return fitting.back() != 0;
}

std::string_view withoutNumber(std::string_view name) {
    return name.substr(0, name.find_last_not_of("0123456789") + 1);
}

// Every name of a list in braces, or none where one is unknown or the braces are wrong.
Parameters listed(std::string_view pattern) try {
    Parameters found;
    for (const std::string& name : namesOf(pattern))
        found.push_back(find(name));
    return std::ranges::find(found, nullptr) == found.end() ? found : Parameters();
} catch (const generator::BrokenRule&) {
    return {};
}

} // namespace

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    return std::search(text.begin(), text.end(), part.begin(), part.end(), isSame) != text.end();
}

bool isPattern(std::string_view text) {
    return text.find_first_of("*?") != text.npos;
}

bool fits(std::string_view name, std::string_view pattern) {
    return isPattern(pattern) ? fitsPattern(name, pattern) : containsIgnoringCase(name, pattern);
}

Parameters named(std::string_view name) {
    if (const Parameter* const parameter = find(name)) return {parameter};
    if (name.find('{') != name.npos) return listed(name);
    if (isPattern(name))
        return chosen([name](const Parameter& parameter) { return fits(parameter.name(), name); });
    if (name.empty()) return {};
    return chosen([name](const Parameter& parameter) {
        return parameter.name() != name && equalIgnoringCase(withoutNumber(parameter.name()), name);
    });
}

std::string inShort(const Parameters& parameters) {
    struct Series {
        std::string_view first, stem;
        std::vector<int> numbers;
    };
    std::vector<Series> all;
    for (const Parameter* parameter : parameters) {
        const std::string_view name = parameter->name(), stem = withoutNumber(name);
        if (all.empty() || all.back().stem != stem) all.push_back({name, stem, {}});
        if (const auto number = wholeNumber(name.substr(stem.size())))
            all.back().numbers.push_back(static_cast<int>(*number));
    }
    return list(all, ", ", [](const Series& series) {
        return series.numbers.size() < 2 ? std::string(series.first)
                                         : std::string(series.stem) + asRanges(series.numbers);
    });
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

std::string unitOf(const Member& member) {
    const Parameter* const twin = find(member.texts.twin);
    return twin == nullptr ? std::string() : twin->unit();
}

std::vector<Meaning> meaningsOf(std::string_view text, ParamLanguage language) {
    const auto number = wholeNumber(text);
    std::vector<Meaning> found;
    const auto add = [&](const Parameter& parameter, const model::Item& item) {
        const std::string own(item.text.in(language));
        for (Meaning& known : found)
            if (known.choice.number == item.number && known.choice.text == own)
                return known.bearers.push_back(&parameter);
        const ParamLanguage other = language == kGerman ? kEnglish : kGerman;
        found.push_back({{item.number, own}, std::string(item.text.in(other)), {&parameter}});
    };
    for (const Parameter& parameter : parameters())
        if (!parameter.isTemplate())
            for (const model::Item& item : parameter.choiceItems())
                if (item.number == number || equalIgnoringCase(item.text.de, text) ||
                    equalIgnoringCase(item.text.en, text))
                    add(parameter, item);
    return found;
}

const Parameter* identified(std::string_view text) {
    if (startsIgnoringCase(text, "ID:")) text.remove_prefix(3);
    const long id = wholeNumber(text).value_or(-1);
    const Parameters found = chosen([id](const Parameter& parameter) {
        return id >= parameter.row().id && id < parameter.row().id + parameter.elements();
    });
    return found.empty() ? nullptr : found[0];
}

int methodNamed(std::string_view text) {
    for (const parameters::Method& method : parameters::kMethods)
        if (containsIgnoringCase(method.en, text) || containsIgnoringCase(method.de, text)) return method.id;
    return parameters::kNoMethod;
}

bool isOfMethod(const Parameter& parameter, int method) {
    const auto measured = namesOf(parameters::kMethods[method].measured);
    return parameter.model().method == method ||
           std::ranges::find(measured, parameter.name()) != measured.end();
}

Parameters settingsOf(int method, parameters::Role role) {
    return chosen([=](const Parameter& parameter) {
        return parameter.model().method == method && parameter.model().role == role;
    });
}

std::string_view familyName(const stParamFamily& family, ParamLanguage language) {
    const auto place = &family - model().families.data();
    return model().familyNames[static_cast<std::size_t>(place)].in(language);
}

} // namespace talux::reference
