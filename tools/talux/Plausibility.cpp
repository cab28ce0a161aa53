#include "tools/talux/Plausibility.h"

#include <algorithm>
#include <filesystem>
#include <span>

#include "ParamSystem/parameters/Methods.h"
#include "ParamSystem/rules/Facts.h"
#include "tools/reference/Ranges.h"

namespace talux::tool {

namespace {

using reference::PlausibilityRule, reference::Test;

constexpr int kOff = 1;                        // choice of outputs and of entries of the list
constexpr int kSums[] = {24, 25};              // output functions that combine all methods
constexpr int kUncertain[] = {44, 45, 46, 47}; // which method forms them is not documented

// A word of a rule: a parameter, or the number in its place.
struct Word {
    const Parameter* parameter;
    double number = 0;
};
using Words = std::span<const Word>;

std::vector<Word> wordsOf(const PlausibilityRule& rule) {
    std::vector<Word> words;
    const auto addAll = [&words](auto isWanted) {
        for (const Parameter& parameter : settings())
            if (isWanted(parameter)) words.push_back({&parameter});
    };
    if (rule.parameters.empty()) addAll([](const Parameter&) { return true; });
    for (const std::string& name : reference::namesOf(rule.parameters))
        if (name.starts_with('['))
            addAll([unit = name.substr(1, name.size() - 2)](const Parameter& parameter) {
                return parameter.hasNumber() && parameter.unit() == unit;
            });
        else
            words.push_back({reference::find(name), static_cast<double>(wholeNumber(name).value_or(0))});
    return words;
}

bool isOutput(const Parameter& parameter) {
    return parameter.templateName() == "BA_FUNCTION";
}

// A method or a part of one with its switch, and what it signals through.
struct Switched {
    const Parameter* enable;
    std::vector<int> functions, priorities;
    bool isPart = false;

    bool forms(double signal, const Parameter& taker) const {
        return isOneOf(isOutput(taker) ? functions : priorities, signal);
    }
};

const std::vector<Switched>& switched() {
    static const auto all = [] {
        std::vector<Switched> found;
        for (const parameters::Method& method : parameters::kMethods) {
            const Parameters switches = reference::settingsOf(method.id, parameters::kEnable);
            if (switches.empty()) continue;
            found.push_back({switches[0], reference::numbersOf(method.functions),
                             reference::numbersOf(method.priorities)});
            std::erase_if(found.back().functions, [](int number) { return isOneOf(kUncertain, number); });
        }
        found.push_back({reference::find("qu2_DE_active"), {30, 31}, {3}, true});
        return found;
    }();
    return all;
}

// Looks whether one set of values breaks one rule.
struct RuleCheck {
    const PlausibilityRule& rule;
    const Words words;
    const Values &values, &before;
    const Context& context;
    std::vector<Implausible>& found;

    void run() {
        switch (rule.test) {
        case Test::range:
            return checkEach([this](const Parameter& own) { return !isChoice(own) && isOut(own); });
        case Test::choice:
            return checkEach([this](const Parameter& own) { return isChoice(own) && isOut(own); });
        case Test::limits: // where the row's own range says nothing
            return checkEach([this](const Parameter& own) { return !isOut(own) && isBeyond(own); });
        case Test::freeOutput:
            return checkEach([this](const Parameter& own) { return isBetween(own); });
        case Test::zone:
            return checkEach([this](const Parameter& own) { return !isZone(values(own)->text()); });
        case Test::mask:
            return checkEach([this](const Parameter& own) {
                return address(own) && !rules::isNetmask(values(own)->text());
            });
        case Test::individual:
            if (before) checkEach([this](const Parameter& own) { return isOfAnother(own); });
            return;
        case Test::order:
            return checkGroups(2, [this](Words group) { return isReversed(group[0], group[1]); });
        case Test::gateway:
            return checkGroups(3, [this](Words group) { return isOutside(group); });
        case Test::blocks:
            return checkPairs(2, [this](Words a, Words b) { return overlap(a, b); });
        case Test::networks:
            return checkPairs(3, [this](Words a, Words b) { return areOneNetwork(a, b); });
        case Test::ports:
            return checkPairs(2, [this](Words a, Words b) { return areOnePort(a, b); });
        case Test::offMethod:
            return checkOff();
        case Test::nowhere:
            return checkNowhere();
        case Test::emptyList:
            return checkList();
        }
    }

    std::optional<double> number(const Parameter& parameter) const {
        const auto value = values(parameter);
        return value && !value->isText() ? std::optional(value->number()) : std::nullopt;
    }

    std::optional<unsigned> address(const Parameter& parameter) const {
        const auto value = values(parameter);
        return value ? rules::addressIn(value->text()) : std::nullopt;
    }

    void say(Parameters parameters) {
        const std::string text = list(parameters, ", ", [this](const Parameter* parameter) {
            return fill("{} {}", {parameter->name(), shown(*parameter, values(*parameter), context)});
        });
        found.push_back({&rule, std::move(parameters),
                         joined({text, ": ", context.say(rule.en.data(), rule.de.data())})});
    }

    // Of each parameter alone. A factory setting is intended.
    template <class Check>
    void checkEach(Check isBroken) {
        for (const Word& word : words) {
            const auto value = values(*word.parameter);
            if (value && !sameValue(value, defaultOf(word.parameter->row())) && isBroken(*word.parameter))
                say({word.parameter});
        }
    }

    template <class Check>
    void checkGroups(std::size_t size, Check isBroken) {
        for (std::size_t k = 0; k < words.size(); k += size)
            if (const Words group = words.subspan(k, size); isBroken(group)) say(parametersOf({group}));
    }

    // Of each two groups.
    template <class Check>
    void checkPairs(std::size_t size, Check isBroken) {
        for (std::size_t k = 0; k < words.size(); k += size)
            for (std::size_t m = 0; m < k; m += size) {
                const Words earlier = words.subspan(m, size), later = words.subspan(k, size);
                if (isBroken(earlier, later)) say(parametersOf({earlier, later}));
            }
    }

    // Without numbers and, where groups begin with a switch, without that.
    Parameters parametersOf(std::initializer_list<Words> groups) const {
        const bool hasSwitch = rule.test == Test::networks || rule.test == Test::ports;
        Parameters parameters;
        for (const Words group : groups)
            for (const Word& word : group.subspan(hasSwitch ? 1 : 0))
                if (word.parameter != nullptr) parameters.push_back(word.parameter);
        return parameters;
    }

    static bool isChoice(const Parameter& parameter) {
        return rules::factsOf(parameter.row()).form == rules::Form::choice;
    }

    bool isOut(const Parameter& parameter) const {
        constexpr rules::Reasons kOutside{Reason::tooLow, Reason::tooHigh, Reason::noChoice};
        const auto value = number(parameter);
        return value && rules::check(rules::factsOf(parameter.row()), value, kOutside);
    }

    bool isBetween(const Parameter& parameter) const {
        const auto value = number(parameter);
        return value && *value >= rule.low && *value <= rule.high;
    }

    bool isBeyond(const Parameter& parameter) const {
        const auto value = number(parameter);
        return value && (*value < rule.low || *value > rule.high);
    }

    // Where this machine has no zones, any absolute path may be one.
    static bool isZone(const std::filesystem::path& path) {
        std::error_code error;
        const bool hasZones = std::filesystem::is_directory("/usr/share/zoneinfo", error);
        return path.is_absolute() && (!hasZones || std::filesystem::is_regular_file(path, error));
    }

    // What differs from the factory value was given to this device; factors can be calibrated all the same.
    bool isOfAnother(const Parameter& parameter) const {
        if (!isIndividual(parameter)) return false;
        const auto own = before(parameter);
        const bool isGiven =
            parameter.type().kind == Kind::Float || !sameValue(own, defaultOf(parameter.row()));
        return own && isGiven && !sameValue(own, values(parameter));
    }

    bool isReversed(const Word& low, const Word& high) const {
        const auto a = number(*low.parameter), b = number(*high.parameter);
        return a && b && (*a > *b * rule.high || (rule.isStrict && *a == *b * rule.high));
    }

    // A block: its first register, and how many belong to it.
    bool overlap(Words a, Words b) const {
        const auto firstA = number(*a[0].parameter), firstB = number(*b[0].parameter);
        return firstA && firstB && *firstA < *firstB + b[1].number && *firstB < *firstA + a[1].number;
    }

    // A gateway, an address and its mask.
    bool isOutside(Words group) const {
        const auto gateway = address(*group[0].parameter), own = address(*group[1].parameter),
                   mask = address(*group[2].parameter);
        return gateway && own && mask && *gateway != 0 && *own != 0 && ((*gateway ^ *own) & *mask) != 0;
    }

    bool isOn(const Word& word) const {
        return word.parameter == nullptr || number(*word.parameter).value_or(0) != 0;
    }

    bool areOneNetwork(Words a, Words b) const {
        const auto addressA = address(*a[1].parameter), addressB = address(*b[1].parameter),
                   maskA = address(*a[2].parameter), maskB = address(*b[2].parameter);
        return isOn(a[0]) && isOn(b[0]) && addressA && addressB && maskA && maskB && *addressA != 0 &&
               *addressB != 0 && ((*addressA ^ *addressB) & *maskA & *maskB) == 0;
    }

    bool areOnePort(Words a, Words b) const {
        const auto portA = number(*a[1].parameter), portB = number(*b[1].parameter);
        return isOn(a[0]) && isOn(b[0]) && portA && portA == portB;
    }

    void checkOff() {
        for (const auto& [taker, unused] : words)
            for (const Switched& method : switched())
                if (const auto signal = number(*taker);
                    number(*method.enable) == 0 && signal && method.forms(*signal, *taker))
                    say({taker, method.enable});
    }

    // Whether an output or an entry of the list takes a signal of the method; if not all have a value, it may
    // be.
    bool isTaken(const Switched& method) const {
        return std::ranges::any_of(words, [&](const Word& word) {
            const auto signal = number(*word.parameter);
            return !signal || method.forms(*signal, *word.parameter) ||
                   (isOutput(*word.parameter) && isOneOf(kSums, *signal));
        });
    }

    void checkNowhere() {
        for (const Switched& method : switched())
            if (!method.isPart && number(*method.enable).value_or(0) != 0 && !isTaken(method))
                say({method.enable});
    }

    void checkList() {
        Parameters followers;
        for (const auto& [taker, unused] : words) {
            if (!isOutput(*taker) && number(*taker) != kOff) return;
            if (isOutput(*taker) && isBetween(*taker)) followers.push_back(taker);
        }
        if (!followers.empty()) say(std::move(followers));
    }
};

} // namespace

bool Implausible::isOfOneLine() const {
    return rule->test == Test::range || rule->test == Test::choice || rule->test == Test::mask;
}

Json described(const Implausible& found) {
    return {{"code", found.rule->code},
            {"fault", found.isFault()},
            {"parameters", namesOf(found.parameters)},
            {"text", found.text}};
}

std::vector<Implausible> findImplausible(const Written& written, const Values& others, const Values& before,
                                         const Context& context) {
    if (written.empty()) return {};
    const auto isWritten = [&](const Parameter* parameter) { return written.contains(parameter); };
    const auto after = [&](const Parameter& parameter) {
        return isWritten(&parameter) ? std::optional(written.at(&parameter)) : others(parameter);
    };
    auto all = findImplausible(after, before, context);
    std::erase_if(
        all, [&](const Implausible& found) { return std::ranges::none_of(found.parameters, isWritten); });
    return all;
}

std::vector<Implausible> findFaults(const Written& written, const Context& context) {
    const auto nothing = [](const Parameter&) { return std::optional<Value>(); };
    auto all = findImplausible(written, nothing, {}, context);
    std::erase_if(all, [](const Implausible& found) { return !found.isFault() || found.isOfOneLine(); });
    return all;
}

std::vector<Implausible> findImplausible(const Values& values, const Values& before, const Context& context) {
    static std::map<const PlausibilityRule*, std::vector<Word>> words; // found once
    std::vector<Implausible> found;
    for (const PlausibilityRule& rule : reference::kPlausibilityRules) {
        if (!words.contains(&rule)) words[&rule] = wordsOf(rule);
        RuleCheck{rule, words[&rule], values, before, context, found}.run();
    }
    return found;
}

} // namespace talux::tool
