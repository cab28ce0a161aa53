// May a parameter take a value? Seven ways ask the same rules. Each sees the reasons that its row does not
// name; the row says why it leaves those out. All settings are tried, with all values around what they allow.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "ParamSystem/files/Effect.h"
#include "ParamSystem/kepl/Decision.h"
#include "support/Parse.h"
#include "talux/handles.hpp"
#include "tools/generator/Data.h"
#include "tools/generator/RowRules.h"
#include "tools/talux/Judgement.h"
#include "tools/talux/LineCheck.h"
#include "tools/talux/Plausibility.h"

using namespace talux;
using namespace std::literals;
using enum Reason;
using reference::Parameter, rules::Form;

namespace {

enum Way { language, load, check, lint, handles, scripts, generator, wayCount };
struct WayRow {
    const char* name;
    rules::Reasons unseen;
    const char* why;
};
constexpr std::array<WayRow, wayCount> kWays{{
    {"language",
     {noChoice, notWhole, holdsNul, notCarried, tooLong, tooManyBytes, noAddress, noNetmask},
     "stores them cut or rounded, and texts as they are"},
    {"load",
     {readOnly, notANumber, tooLow, tooHigh, noChoice, notWhole, notCarried, tooLong, tooManyBytes, noAddress,
      noNetmask},
     "stores whatever can be read: files come from other versions"},
    {"check", {readOnly, notCarried}, "a file brings what nobody else writes; finds what does not come back"},
    {"lint", {}, ""},
    {"handles", {}, ""},
    {"scripts", {}, ""},
    {"generator", {readOnly}, "the default is what nobody writes"},
}};

// A value as it is typed, and the number that it is.
struct Case {
    Parameter parameter;
    std::string text;
    std::optional<double> number;

    bool isText() const { return talux::isText(parameter.row()); }
    bool has(std::string_view signs) const { return text.find_first_of(signs) != text.npos; }
    std::string term() const {
        return std::string(parameter.name()) + "=" + (isText() ? '"' + text + '"' : text);
    }
};

// What a way makes of it: nothing where the way cannot be given the value.
struct Verdict {
    bool isRefused;
    std::optional<Value> stored{};
    std::string words{};
};

// ---- What is tried: every edge of every row, and a step to either side --------------------------------

std::set<std::string> numbersOf(const Parameter& parameter) {
    std::set<std::string> texts{"nan", "inf", "-inf", "-0", "abc", "0x1F", "1e30", "1e-40", "0.5"};
    const auto add = [&texts](double number) {
        char text[32];
        std::snprintf(text, sizeof text, "%.17g", number);
        texts.insert(text);
    };
    const rules::Facts facts = parameter.facts();
    for (const double edge : {facts.min, facts.max, facts.lowest(), 0.0, parameter.row().val_def}) {
        for (const double step : {-1000.0, -1.0, -0.25, 0.0, 0.25, 1.0, 1000.0})
            add(edge + step);
        for (const double end : {-HUGE_VAL, HUGE_VAL}) {
            add(std::nextafter(edge, end));
            add(std::nextafter(static_cast<float>(edge), static_cast<float>(end)));
        }
    }
    return texts;
}

// Of so many bytes, in characters of so many bytes each; "x" makes up for what they leave.
std::string textOf(int bytes, std::string_view sign) {
    std::string text(static_cast<std::size_t>(bytes) % sign.size(), 'x');
    while (text.size() < static_cast<std::size_t>(bytes))
        text += sign;
    return text;
}

std::set<std::string> textsOf(const Parameter& parameter) {
    std::set<std::string> texts = {"", "a=b", "say \"hi\"", "a\tb", "a\177b", "a, b", "0.0.0.0"};
    texts.insert({"255.255.255.0", "255.0.255.0", "255.255.255.255", "008.008.008.008", "1.2.3.4"});
    texts.insert({"1.2.3.256", "01.2.3.4", "1.2.3", "1.2.3.4 ", "1.2.3.4.5", "1..2.3"});
    for (const int length : {parameter.textLength(), parameter.textRoom(), parameter.lineRoom()})
        for (const int tried : {length - 1, length, length + 1})
            for (const std::string_view sign : {"x", "ü", "€"}) {
                const int bytesEach = static_cast<int>(sign.size());
                texts.insert({textOf(tried, sign), textOf(tried * bytesEach, sign)});
            }
    return texts;
}

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (const Parameter& parameter : reference::parameters()) {
        if (parameter.isTemplate() || !parameter.isSetting() || tool::isOfClock(parameter)) continue;
        const bool isText = talux::isText(parameter.row());
        for (const std::string& text : isText ? textsOf(parameter) : numbersOf(parameter))
            cases.push_back({parameter, text, isText ? std::nullopt : numberIn(text)});
    }
    return cases;
}

// ---- The ways -----------------------------------------------------------------------------------------

using Answer = std::optional<Verdict>;

// A term ends at a comma and after 127 characters, a value at a second "=".
bool isTerm(const Case& given) {
    return !given.has(",=") && kepl::kPrefixLength + given.term().size() <= kKeplMaxTerm;
}

// Where the language writes what; nothing when it refuses.
std::optional<std::pair<int, Value>> writeOf(const std::string& line) {
    const kepl::Decision decision = kepl::decide(line, 3);
    const auto* const variable = decision.get<kepl::VariableDecision>();
    if (const auto* const write = variable->get<kepl::WriteNumber>())
        return {{write->id, Value(write->number)}};
    if (const auto* const write = variable->get<kepl::WriteText>()) return {{write->id, Value(write->text)}};
    return {};
}

Answer byLanguage(const Case& given) {
    if (!isTerm(given)) return {};
    const auto write = writeOf("TLX_" + given.term());
    if (!write) return Verdict{true};
    return Verdict{false, storedAs(write->first, write->second)};
}

Answer byLoad(const Case& given) {
    if (given.has("\"=")) return {};
    std::string line = "TLX_" + given.term();
    const Effect effect = effectOf(parseEntry(line.data()));
    if (effect.outcome != Outcome::stored) return Verdict{true};
    return Verdict{false, storedAs(effect.row->id, *effect.value)};
}

Answer byCheck(const Case& given) {
    if (given.has("\"=")) return {};
    static const tool::Context context{};
    static const tool::Source nothing = tool::Source::nothing("");
    tool::Judge judge("", nothing, context);
    std::string line = "TLX_" + given.term();
    for (const tool::Finding& finding : judge.judge(parseEntry(line.data())).findings)
        for (const std::string_view code :
             {"no-number", "range", "long", "cut", "address", "netmask", "rounded"})
            if (code == finding.code && (code != "rounded" || given.parameter.facts().form != Form::number))
                return Verdict{true};
    return Verdict{false};
}

// Without what is only implausible, which the language stores and which is nothing about one value.
Answer byLint(const Case& given) {
    if (!isTerm(given)) return {};
    const std::string line = "TLX_" + given.term();
    std::set<std::string> implausible;
    if (const auto write = writeOf(line))
        for (const tool::Implausible& found :
             tool::findFaults({{reference::find(given.parameter.name()), write->second}}, {}))
            implausible.insert(found.text);
    const auto findings = tool::checkLine(line, {}, {});
    return Verdict{std::ranges::any_of(
        findings, [&](const tool::LineFinding& finding) { return !implausible.contains(finding.text); })};
}

const table::Row& rowOf(const Case& given) {
    return *std::ranges::find(table::kRows, given.parameter.name(),
                              [](const auto& each) { return std::string_view(each.name); });
}

// Of the type that the setting has, as far as the value has one.
Answer byHandle(const Case& given) {
    using table::Kind;
    const table::Row& row = rowOf(given);
    const rules::Facts facts = table::factsOf(row, given.parameter.textRoom());
    const auto text = [&]<Kind kind>() -> Answer {
        StoredText<kind> to;
        if (!detail::copyText(given.text, facts, to)) return Verdict{true};
        return Verdict{false, Value(to.view())};
    };
    if (row.kind == Kind::text) return text.operator()<Kind::text>();
    if (row.kind == Kind::identifier) return text.operator()<Kind::identifier>();
    if (row.kind == Kind::address) return text.operator()<Kind::address>();
    if (!given.number) return {};
    const double number = *given.number;
    if (row.kind == Kind::f32) {
        const bool maySeemItsLimit = detail::meant(number, facts) != number;
        if (maySeemItsLimit) return {};
        return Verdict{!detail::check<float>(number, facts), Value(static_cast<float>(number))};
    }
    const bool isShort = rules::isWhole(number) && number > -32768 && number < 32767;
    if (row.kind == Kind::i32 && rules::isWhole(number) && number > -1e15 && number < 1e15)
        return Verdict{!detail::check<std::int32_t>(static_cast<long long>(number), facts), Value(number)};
    if (row.kind == Kind::choice && isShort)
        return Verdict{!detail::check<Choice>(static_cast<Choice>(number), facts), Value(number)};
    return {};
}

// What the layer for scripts says, all cases in one run of Lua. A comma ends what a line can carry.
std::vector<Answer> byScripts(const std::vector<Case>& cases) {
    std::ofstream out("/tmp/cases");
    for (const Case& given : cases) {
        out << given.parameter.name() << ' ';
        for (const char c : given.text)
            out << "0123456789abcdef"[static_cast<unsigned char>(c) / 16] << "0123456789abcdef"[c & 15];
        out << (given.isText() ? " T\n" : " N\n");
    }
    out.close();
    EXPECT_EQ(std::system(TALUX_LUA " </tmp/cases >/tmp/verdicts"), 0);
    std::ifstream in("/tmp/verdicts");
    std::vector<Answer> answers;
    std::string line;
    for (const Case& given : cases) {
        std::getline(in, line);
        if (given.isText() && given.has(","))
            answers.emplace_back();
        else if (line.starts_with("-<"))
            answers.push_back(Verdict{true, {}, line.substr(2)});
        else if (given.isText())
            answers.push_back(Verdict{false, Value(std::string_view(line).substr(1, line.size() - 2))});
        else
            answers.push_back(Verdict{false, Value(numberIn(line).value_or(0))});
    }
    std::filesystem::remove("/tmp/cases");
    std::filesystem::remove("/tmp/verdicts");
    return answers;
}

// As the default of its row, beside the template that the row needs.
Answer byGenerator(const Case& given) {
    static generator::Faults faults;
    static const auto all = generator::expand(generator::familyData(), faults);
    if (!given.isText() && !given.number) return {};
    static const auto byName = [] {
        std::map<std::string, const generator::Parameter*> known;
        for (const generator::Parameter& each : all)
            known.emplace(each.name, &each);
        return known;
    }();
    generator::Parameter parameter = *byName.at(std::string(given.parameter.name()));
    parameters::Row row = *parameter.row;
    row.properties.val_def_text = given.text.c_str();
    row.properties.val_def = given.number.value_or(0);
    parameter.row = &row;
    std::vector<generator::Parameter> some{parameter};
    for (const generator::Parameter& each : all)
        if (each.isTemplate() && each.id() == row.properties.id_template) some.push_back(each);
    generator::Faults found;
    generator::checkRows(some, found);
    for (const generator::Fault& fault : found)
        if (fault.rule.starts_with("the default ")) return Verdict{true};
    return Verdict{false};
}

// ---- Comparison ---------------------------------------------------------------------------------------

// The codes of the reasons that a way sees.
std::string seenBy(Way way, const Case& given) {
    rules::Facts facts = given.parameter.facts();
    if (way == scripts && given.isText()) facts.bytes = given.parameter.lineRoom();
    std::string seen;
    const auto look = [&](const rules::Objection& objection) {
        if (!kWays[way].unseen.has(objection.reason))
            seen += std::string(" ") + reference::codeOf(objection.reason);
    };
    if (given.isText())
        rules::forEachObjection(facts, std::string_view(given.text), rules::Reasons::all(), look);
    else
        rules::forEachObjection(facts, given.number, rules::Reasons::all(), look);
    return seen;
}

// What a program with handles would say of a text if it could write no longer one than a script.
std::string wordsOf(const Case& given) {
    const rules::Facts facts = table::factsOf(rowOf(given), given.parameter.lineRoom());
    return Result(rules::check(facts, std::string_view(given.text)), facts).text().c_str();
}

std::string shown(const std::optional<Value>& value) {
    return !value ? "nothing" : value->isText() ? value->text() : testing::PrintToString(value->number());
}

TEST(Rules, AreTheSameOnEveryWay) {
    LoadDefParamProperties();
    const std::vector<Case> cases = allCases();
    const std::vector<Answer> ofScripts = byScripts(cases);
    int compared[wayCount][2] = {};
    for (std::size_t k = 0; k < cases.size(); ++k) {
        const Case& given = cases[k];
        const Answer answers[] = {byLanguage(given), byLoad(given), byCheck(given),    byLint(given),
                                  byHandle(given),   ofScripts[k],  byGenerator(given)};
        std::optional<Value> stored;
        if (given.isText() || given.number)
            stored = storedAs(given.parameter.row().id,
                              given.number ? Value(*given.number) : Value(std::string_view(given.text)));
        for (std::size_t way = 0; way < wayCount; ++way) {
            if (!answers[way]) continue;
            const bool isRefused = answers[way]->isRefused;
            ++compared[way][isRefused];
            const auto what = [&] { return std::string(kWays[way].name) + ": " + given.term(); };
            const std::string seen = seenBy(static_cast<Way>(way), given);
            EXPECT_EQ(isRefused, !seen.empty()) << what() << "; reasons:" << seen;
            if (!isRefused && answers[way]->stored) {
                EXPECT_TRUE(tool::sameValue(answers[way]->stored, stored))
                    << what() << " stores " << shown(answers[way]->stored) << ", expected " << shown(stored);
            }
            if (way == scripts && isRefused && given.isText()) {
                EXPECT_EQ(answers[way]->words, wordsOf(given)) << what();
            }
            if (testing::Test::HasFailure()) return;
        }
    }
    for (std::size_t way = 0; way < wayCount; ++way)
        EXPECT_TRUE(compared[way][false] > 2000 && (compared[way][true] > 1000 || way == load))
            << kWays[way].name;
}

bool takes(Form form, const std::string& text) {
    return !rules::check({.form = form}, text);
}

TEST(Rules, OfTheClockKnowTheCalendar) {
    for (const int year : {0, 1900, 2000, 2023, 2024, 9999})
        for (int month = 0; month <= 13; ++month)
            for (int day = 0; day <= 32; ++day) {
                char text[32];
                std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, month, day);
                const bool isDate = (std::chrono::year(year) / month / day).ok();
                EXPECT_EQ(takes(Form::date, text), isDate) << text;
            }
    for (const char* const right : {"00:00:00", "09:59:00", "23:59:59"})
        EXPECT_TRUE(takes(Form::time, right)) << right;
    for (const char* const wrong : {"",           "2024-05-1",   "2024-5-01",   "24-05-01",    "2024/05-01",
                                    "2024-05/01", "2024-05-011", "-2024-05-01", "2024-05-01 ", "1:00:00",
                                    "01:0:00",    "01:00:0",     "01:00",       "01:00:00:",   "01.00:00",
                                    "01:00.00",   "a1:00:00",    "24:00:00",    "23:60:00",    "23:59:60"})
        EXPECT_FALSE(takes(Form::date, wrong) || takes(Form::time, wrong)) << wrong;
}

} // namespace
