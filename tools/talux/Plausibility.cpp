#include "tools/talux/Plausibility.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "ParamSystem/parameters/Methods.h"
#include "ParamSystem/rules/Facts.h"
#include "tools/pages/Names.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

constexpr int kOff = 1;                        // choice of outputs and of places in the list
constexpr int kSums[] = {24, 25};              // output functions that combine all methods
constexpr int kUncertain[] = {44, 45, 46, 47}; // which method forms them is not documented

// A part of a method with a switch of its own.
constexpr struct {
    std::string_view enable, functions, priorities;
} kParts[] = {{"qu2_DE_active", "30 31", "3"}};

// A word of a rule: a parameter, or the number in its place.
struct Word {
    const Parameter* parameter;
    int number;
};

using Words = std::vector<Word>;

bool isMember(std::span<const int> numbers, int number) {
    return std::ranges::find(numbers, number) != numbers.end();
}

void addUnit(Words& words, std::string_view unit) {
    for (const Parameter& parameter : reference::parameters())
        if (parameter.isSetting() && parameter.hasNumber() && parameter.unit() == unit)
            words.push_back({&parameter, 0});
}

Words wordsOf(const PlausibilityRule& rule) {
    Words words;
    if (rule.parameters.empty())
        for (const Parameter& parameter : reference::parameters())
            if (parameter.isSetting() && !isOfClock(parameter)) words.push_back({&parameter, 0});
    for (const std::string& name : pages::namesOf(rule.parameters)) {
        if (name.starts_with('[')) {
            addUnit(words, std::string_view(name).substr(1, name.size() - 2));
            continue;
        }
        Word word{reference::find(name), 0};
        std::from_chars(name.data(), name.data() + name.size(), word.number);
        words.push_back(word);
    }
    return words;
}

// The parameters of the rules, found once.
const Words& wordsOf(std::size_t rule) {
    static const auto all = [] {
        std::vector<Words> found;
        for (const PlausibilityRule& row : kPlausibilityRules)
            found.push_back(wordsOf(row));
        return found;
    }();
    return all[rule];
}

bool isOutput(const Parameter& parameter) {
    return parameter.templateName() == "BA_FUNCTION";
}

// A method or a part with its switch; what it signals through.
struct Switched {
    const Parameter* enable;
    std::vector<int> functions, priorities;

    std::span<const int> numbersOf(const Parameter& place) const {
        return isOutput(place) ? functions : priorities;
    }
};

const Parameter* firstSwitch(parameters::MethodId method) {
    const auto& all = reference::parameters();
    const auto found = std::ranges::find_if(all, [method](const Parameter& parameter) {
        return parameter.model().method == method && parameter.model().role == parameters::kEnable;
    });
    return found == all.end() ? nullptr : &*found;
}

const std::vector<Switched>& switchedMethods() {
    static const auto all = [] {
        std::vector<Switched> found;
        for (const parameters::Method& method : parameters::kMethods) {
            Switched switched{firstSwitch(method.id), pages::numbersOf(method.functions),
                              pages::numbersOf(method.priorities)};
            std::erase_if(switched.functions, [](int number) { return isMember(kUncertain, number); });
            if (switched.enable != nullptr) found.push_back(switched);
        }
        return found;
    }();
    return all;
}

const std::vector<Switched>& switchedParts() {
    static const auto all = [] {
        std::vector<Switched> found = switchedMethods();
        for (const auto& part : kParts)
            found.push_back({reference::find(part.enable), pages::numbersOf(part.functions),
                             pages::numbersOf(part.priorities)});
        return found;
    }();
    return all;
}

// Looks at one set of values.
class Look {
public:
    Look(const Values& valuesGiven, const Values& beforeGiven, const Context& person,
         const std::function<void(const Implausible&)>& reportGiven)
        : values(valuesGiven), before(beforeGiven), context(person), report(reportGiven) {}

    void at(const PlausibilityRule& given, const Words& wordsGiven) {
        rule = &given;
        words = &wordsGiven;
        switch (rule->test) {
        case Test::range:
        case Test::choice:
        case Test::limits:
        case Test::freeOutput:
        case Test::zone:
        case Test::mask:
        case Test::individual:
            for (const Word& word : given.test == Test::individual && !before ? Words() : *words)
                lookAtOne(*word.parameter);
            break;
        case Test::order:
            return lookAtOrder();
        case Test::blocks:
            return lookAtBlocks();
        case Test::offMethod:
            return lookAtOff();
        case Test::nowhere:
            return lookAtNowhere();
        case Test::emptyList:
            return lookAtList();
        case Test::gateway:
            return lookAtGateways();
        case Test::networks:
            return lookAtNetworks();
        case Test::ports:
            return lookAtPorts();
        }
    }

private:
    const Values& values;
    const Values& before;
    const Context& context;
    const std::function<void(const Implausible&)>& report;
    const PlausibilityRule* rule = nullptr;
    const Words* words = nullptr;

    const Parameter& parameter(std::size_t k) const { return *(*words)[k].parameter; }

    std::optional<double> number(const Parameter& parameter) const {
        const auto value = values(parameter);
        return value && !value->isText() ? std::optional(value->number()) : std::nullopt;
    }
    std::optional<double> number(std::size_t k) const { return number(parameter(k)); }

    std::optional<unsigned> address(std::size_t k) const {
        const auto value = values(parameter(k));
        return value ? rules::addressIn(value->text()) : std::nullopt;
    }

    void say(std::vector<const Parameter*> parameters) const {
        std::string text = list(parameters, ", ", [this](const Parameter* parameter) {
            return std::string(parameter->name()) + ' ' + shown(*parameter, values(*parameter), context);
        });
        text += joined({": ", context.say(rule->en.data(), rule->de.data())});
        report({rule, std::move(parameters), std::move(text)});
    }

    void lookAtOne(const Parameter& parameter) const {
        const auto value = values(parameter);
        if (!value || sameValue(value, defaultOf(parameter.row()))) return; // a factory setting is meant so
        if (value->isText() ? isWrong(parameter, value->text()) : isWrong(parameter, *value))
            say({&parameter});
    }

    bool isWrong(const Parameter& parameter, const Value& value) const {
        const double number = value.number();
        const rules::Facts facts = rules::factsOf(parameter.row());
        const bool isChoice = facts.form == rules::Form::choice;
        const bool isOut(rules::check(facts, number, {Reason::tooLow, Reason::tooHigh, Reason::noChoice}));
        switch (rule->test) {
        case Test::range:
            return !isChoice && isOut;
        case Test::choice:
            return isChoice && isOut;
        case Test::limits: // where the row's own range says nothing
            return !isOut && (number < rule->low || number > rule->high);
        case Test::freeOutput:
            return number >= rule->low && number <= rule->high;
        case Test::individual:
            return isOfAnother(parameter, value);
        default:
            return false;
        }
    }

    bool isWrong(const Parameter& parameter, const char* text) const {
        switch (rule->test) {
        case Test::zone:
            return !isZone(text);
        case Test::mask:
            return rules::addressIn(text) && !rules::isNetmask(text);
        case Test::individual:
            return isOfAnother(parameter, Value(std::string_view(text)));
        default:
            return false;
        }
    }

    // What differs from the factory value was given to this device; factors can be calibrated all the same.
    bool isOfAnother(const Parameter& parameter, const Value& value) const {
        if (!parameter.model().has(parameters::kIndividual)) return false;
        const auto own = before(parameter);
        const bool isGiven =
            parameter.type().kind == Kind::Float || !sameValue(own, defaultOf(parameter.row()));
        return own && isGiven && !sameValue(own, value);
    }

    // Where this machine has no zones, any absolute path may be one.
    static bool isZone(const std::filesystem::path& path) {
        std::error_code error;
        const bool hasZones = std::filesystem::is_directory("/usr/share/zoneinfo", error);
        return path.is_absolute() && (!hasZones || std::filesystem::is_regular_file(path, error));
    }

    void lookAtOrder() const {
        for (std::size_t k = 0; k < words->size(); k += 2) {
            const auto a = number(k), b = number(k + 1);
            if (!a || !b) continue;
            const double most = *b * rule->high;
            if (*a > most || (rule->isStrict && *a == most)) say({&parameter(k), &parameter(k + 1)});
        }
    }

    void lookAtBlocks() const {
        for (std::size_t k = 0; k < words->size(); k += 2)
            for (std::size_t m = 0; m < k; m += 2) {
                const auto a = number(k), b = number(m);
                if (a && b && *a < *b + (*words)[m + 1].number && *b < *a + (*words)[k + 1].number)
                    say({&parameter(m), &parameter(k)});
            }
    }

    void lookAtOff() const {
        for (const Word& place : *words)
            for (const Switched& method : switchedParts()) {
                const auto isOn = number(*method.enable);
                const auto signal = number(*place.parameter);
                if (isOn && *isOn == 0 && signal &&
                    isMember(method.numbersOf(*place.parameter), static_cast<int>(*signal)))
                    say({place.parameter, method.enable});
            }
    }

    // Whether one of the places that have a value takes a signal of the method; if not all have, it may be.
    bool isTaken(const Switched& method) const {
        return std::ranges::any_of(*words, [&](const Word& place) {
            const auto signal = number(*place.parameter);
            if (!signal) return true;
            const int taken = static_cast<int>(*signal);
            return isMember(method.numbersOf(*place.parameter), taken) ||
                   (isOutput(*place.parameter) && isMember(kSums, taken));
        });
    }

    void lookAtNowhere() const {
        for (const Switched& method : switchedMethods())
            if (const auto isOn = number(*method.enable); isOn && *isOn != 0 && !isTaken(method))
                say({method.enable});
    }

    void lookAtList() const {
        std::vector<const Parameter*> followers;
        for (const auto& [place, unused] : *words) {
            const auto signal = number(*place);
            if (!isOutput(*place) && (!signal || *signal != kOff)) return;
            if (isOutput(*place) && signal && *signal >= rule->low && *signal <= rule->high)
                followers.push_back(place);
        }
        if (!followers.empty()) say(std::move(followers));
    }

    void lookAtGateways() const {
        for (std::size_t k = 0; k < words->size(); k += 3) {
            const auto gateway = address(k), own = address(k + 1), mask = address(k + 2);
            if (gateway && own && mask && *gateway != 0 && *own != 0 && ((*gateway ^ *own) & *mask) != 0)
                say({&parameter(k), &parameter(k + 1), &parameter(k + 2)});
        }
    }

    bool isOn(std::size_t k) const {
        const Parameter* const enable = (*words)[k].parameter;
        return enable == nullptr || number(*enable).value_or(0) != 0;
    }

    void lookAtNetworks() const {
        for (std::size_t k = 0; k < words->size(); k += 3)
            for (std::size_t m = 0; m < k; m += 3) {
                const auto a = address(k + 1), b = address(m + 1);
                const auto maskA = address(k + 2), maskB = address(m + 2);
                if (isOn(k) && isOn(m) && a && b && maskA && maskB && *a != 0 && *b != 0 &&
                    ((*a ^ *b) & *maskA & *maskB) == 0)
                    say({&parameter(m + 1), &parameter(m + 2), &parameter(k + 1), &parameter(k + 2)});
            }
    }

    void lookAtPorts() const {
        for (std::size_t k = 0; k < words->size(); k += 2)
            for (std::size_t m = 0; m < k; m += 2)
                if (isOn(k) && isOn(m) && number(k + 1) && number(k + 1) == number(m + 1))
                    say({&parameter(m + 1), &parameter(k + 1)});
    }
};

} // namespace

bool Implausible::concerns(const std::function<bool(const Parameter&)>& isMeant) const {
    return std::ranges::any_of(parameters, [&](const Parameter* parameter) { return isMeant(*parameter); });
}

bool Implausible::isSaidOfLines() const {
    return rule->test == Test::range || rule->test == Test::choice || rule->test == Test::mask;
}

Json described(const Implausible& found) {
    Json names = Json::array();
    for (const Parameter* const parameter : found.parameters)
        names.add(parameter->name());
    return {{"code", found.rule->code},
            {"fault", found.isFault()},
            {"parameters", std::move(names)},
            {"text", found.text}};
}

void findFaults(const std::map<const Parameter*, Value>& written, const Context& context,
                const std::function<void(const Implausible&)>& report) {
    if (written.empty()) return;
    const auto values = [&written](const Parameter& parameter) {
        const auto found = written.find(&parameter);
        return found == written.end() ? std::nullopt : std::optional(found->second);
    };
    findImplausible(values, {}, context, [&report](const Implausible& found) {
        if (found.isFault() && !found.isSaidOfLines()) report(found);
    });
}

void findImplausible(const Source& source, const Context& context,
                     const std::function<void(const Implausible&)>& report) {
    findImplausible([&](const Parameter& parameter) { return source.value(parameter); }, {}, context, report);
}

void findImplausible(const Values& values, const Values& before, const Context& context,
                     const std::function<void(const Implausible&)>& report) {
    Look look(values, before, context, report);
    for (std::size_t k = 0; k < std::size(kPlausibilityRules); ++k)
        look.at(kPlausibilityRules[k], wordsOf(k));
}

} // namespace talux::tool
