// Writes the generated headers of talux/ from the compiled-in dictionary: the parameters with their choices,
// and the records.
//
//   cpp_tables DIR          writes the headers into DIR
//   cpp_tables --check DIR  names the headers of DIR that are not up to date
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ParamSystem/store/Kinds.h"
#include "tools/reference/Reference.h"

namespace {

using namespace talux;
using reference::Parameter;

std::string join(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (std::string_view piece : pieces)
        text += piece;
    return text;
}

bool isWordCharacter(char c) {
    return ('0' <= c && c <= '9') || ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z');
}

// ---- Choices ------------------------------------------------------------------------------------------

// What becomes of signs in the name of a choice; longer ones first.
constexpr std::pair<std::string_view, std::string_view> kSigns[] = {
    {"->", "to"}, {">>", "over2"}, {">", "over"}, {"+", "plus"}, {"-", "minus"},
};

// The sign that a text begins with, and its word. One that joins two words is none.
std::pair<std::string_view, std::string_view> signOf(std::string_view text, bool afterWord) {
    const bool joins = afterWord && text.size() > 1 && isWordCharacter(text[1]);
    for (const auto& sign : kSigns)
        if (!joins && text.starts_with(sign.first)) return sign;
    return {text.substr(0, 1), {}};
}

// "kOver2_I1_to_F" from ">>I1 ->F".
std::string enumerator(std::string_view text) {
    std::string name;
    const auto add = [&name](std::string_view word) {
        if (!name.empty() && !word.empty()) name += '_';
        name += word;
    };
    while (!text.empty()) {
        const auto* const end = std::find_if_not(text.begin(), text.end(), isWordCharacter);
        const std::string_view word = text.substr(0, static_cast<std::size_t>(end - text.begin()));
        add(word);
        text.remove_prefix(word.size());
        if (text.empty()) break;
        const auto [sign, meaning] = signOf(text, !word.empty());
        add(meaning);
        text.remove_prefix(sign.size());
    }
    if ('a' <= name[0] && name[0] <= 'z') name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return join({"k", name});
}

// Enumerators of a list; a text that stands for several choices gets their numbers.
std::vector<std::string> enumerators(const std::vector<reference::Choice>& choices) {
    std::vector<std::string> names;
    std::map<std::string, int> times;
    for (const reference::Choice& choice : choices) {
        names.push_back(enumerator(choice.text));
        ++times[names.back()];
    }
    for (std::size_t k = 0; k < names.size(); ++k)
        if (times[names[k]] > 1) names[k] += join({"_", std::to_string(choices[k].number)});
    return names;
}

bool isSameList(const std::vector<reference::Choice>& a, const std::vector<reference::Choice>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const auto& x, const auto& y) { return x.number == y.number && x.text == y.text; });
}

// Lists of choices all of whose texts are known, each with the parameters that it serves.
class ChoiceLists {
public:
    ChoiceLists() {
        for (const Parameter& parameter : reference::parameters())
            if (!parameter.isTemplate() && parameter.type().kind == talux::Kind::Enum) add(parameter);
    }

    // Number of the parameter's list, counted from 1; 0 when it has none.
    int numberOf(const Parameter& parameter) const {
        const auto found = byStem.find(stem(parameter));
        return found != byStem.end() ? found->second : 0;
    }

    std::string print() const {
        std::string text;
        for (std::size_t k = 0; k < lists.size(); ++k) {
            text += join({"\nenum class ", lists[k].users[0], " : short {"});
            const auto names = enumerators(lists[k].choices);
            for (std::size_t i = 0; i < names.size(); ++i)
                text += join({"\n    ", names[i], " = ", std::to_string(lists[k].choices[i].number), ","});
            text += "\n};\n";
            for (std::size_t i = 1; i < lists[k].users.size(); ++i)
                text += join({"using ", lists[k].users[i], " = ", lists[k].users[0], ";\n"});
        }
        return text;
    }

    std::string printNumbers() const {
        std::string text;
        for (std::size_t k = 0; k < lists.size(); ++k)
            text += join({"template <>\ninline constexpr short kChoices<choice::", lists[k].users[0],
                          "> = ", std::to_string(k + 1), ";\n"});
        return text;
    }

private:
    struct List {
        std::vector<reference::Choice> choices;
        std::vector<std::string> users; // names of parameters without running number
    };
    std::vector<List> lists;
    std::map<std::string, int> byStem;

    static std::string stem(const Parameter& parameter) {
        const std::string_view name = parameter.name();
        return std::string(name.substr(0, name.find_last_not_of("0123456789") + 1));
    }

    void add(const Parameter& parameter) {
        auto choices = parameter.choices(kEnglish);
        const double first = std::max(1.0, parameter.row().val_min);
        if (static_cast<double>(choices.size()) != parameter.row().val_max - first + 1) return;
        auto list = std::find_if(lists.begin(), lists.end(),
                                 [&](const List& known) { return isSameList(known.choices, choices); });
        if (list == lists.end()) list = lists.insert(list, {std::move(choices), {}});
        const auto number = static_cast<int>(list - lists.begin()) + 1;
        if (byStem.emplace(stem(parameter), number).second) list->users.push_back(stem(parameter));
    }
};

// ---- Parameters ---------------------------------------------------------------------------------------

std::string_view kindOf(const Parameter& parameter) {
    switch (parameter.type().kind) {
    case Kind::Float:
        return "f32";
    case Kind::Double:
        return "f64";
    case Kind::Long:
        return "i32";
    case Kind::Int:
        return "i16";
    case Kind::Bool:
        return "flag";
    case Kind::Enum:
        return "choice";
    case Kind::Text:
        return "text";
    case Kind::Id:
        return "identifier";
    case Kind::Ip:
        return "address";
    case Kind::Struct:
        return "record";
    case Kind::None:
        return "command";
    default:
        return "clock";
    }
}

std::string_view useOf(const Parameter& parameter) {
    if (parameter.row().is_volatile != 0) return "measured";
    return parameter.row().val_access == kReadOnly ? "status" : "setting";
}

// How many measured values of the kind follow one another from this scalar on; of an indexed parameter its
// own.
int runOf(const Parameter& parameter) {
    static const auto scalars = [] {
        std::set<std::pair<Kind, int>> all;
        for (const Parameter& each : reference::parameters())
            if (each.row().is_volatile != 0 && !each.isIndexed())
                all.emplace(each.type().kind, each.row().id);
        return all;
    }();
    if (parameter.isIndexed()) return parameter.elements();
    if (!parameter.hasNumber() || parameter.row().is_volatile == 0) return 1;
    int run = 1;
    while (scalars.contains({parameter.type().kind, parameter.row().id + run}))
        ++run;
    return run;
}

std::string limitsOf(const Parameter& parameter) {
    if (const int room = parameter.textRoom(); room > 0) {
        const int length = parameter.row().val_len;
        return join({", 0, ", std::to_string(length >= 0 ? std::min(length, room) : room)});
    }
    if (!parameter.hasMinimum() && !parameter.hasMaximum()) return {};
    const bool counted = parameter.type().kind == Kind::Enum && !parameter.hasMinimum();
    return join({", ", counted ? "1" : reference::shortNumber(parameter.row().val_min), ", ",
                 reference::shortNumber(parameter.row().val_max)});
}

std::string printRow(const Parameter& parameter, const ChoiceLists& lists) {
    std::string row = join({"    {\"", parameter.name(), "\", ", std::to_string(parameter.row().id),
                            ", Kind::", kindOf(parameter), ", Use::", useOf(parameter)});
    const int run = runOf(parameter), elements = parameter.isIndexed() ? parameter.elements() : 0;
    const int list = lists.numberOf(parameter);
    const std::string limits = limitsOf(parameter);
    if (run > 1 || !limits.empty()) row += join({", ", std::to_string(run)});
    if (elements > 0 || !limits.empty()) row += join({", ", std::to_string(elements)});
    if (!limits.empty()) row += join({", ", std::to_string(list), limits});
    return join({row, "},\n"});
}

std::string printParameters() {
    const ChoiceLists lists;
    std::map<std::string_view, std::string> rows; // in the order of the look-up
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate()) rows[parameter.name()] = printRow(parameter, lists);
    std::string text = R"(// Generated from the dictionary; see the target cpp_tables_update.
#ifndef TALUX_PARAMETERS_HPP
#define TALUX_PARAMETERS_HPP

#include "talux/table.hpp"

// clang-format off
// The choices of settings, by the parameter's name without its running number.
namespace talux::choice {
)";
    text += join({lists.print(), R"(
} // namespace talux::choice

namespace talux::table {

template <class>
inline constexpr short kChoices = 0; // no list
)"});
    text += join({lists.printNumbers(), "\n// Sorted by name.\ninline constexpr Row kRows[] = {\n"});
    for (const auto& [name, row] : rows)
        text += row;
    return join({text, "};\n\n} // namespace talux::table\n\n#endif\n"});
}

// ---- Records ------------------------------------------------------------------------------------------

std::string printRecord(const Parameter& record) {
    const std::string name(record.name());
    std::string fields, checks;
    long size = 0;
    for (const StructMemberProperties_t& member : reference::members(record)) {
        const bool isLong = memberType(member.szMemberType) == kTypeLong;
        const std::string offset = std::to_string(member.lMemberOffset);
        fields += join({"    ", isLong ? "std::int32_t " : "float ", member.aszMemberName, ";\n"});
        checks +=
            join({"static_assert(offsetof(", name, ", ", member.aszMemberName, ") == ", offset, ");\n"});
        size = member.lMemberOffset + member.iMemberBitsize / 8;
    }
    return join({"\nstruct ", name, " {\n", fields, "};\nstatic_assert(sizeof(", name, ") == ",
                 std::to_string(size), ");\n", checks, "template <>\ninline constexpr int kRecordId<", name,
                 "> = ", std::to_string(record.row().id), ";\n"});
}

std::string printRecords() {
    std::string text = R"(// Generated from the dictionary; see the target cpp_tables_update.
#ifndef TALUX_RECORDS_HPP
#define TALUX_RECORDS_HPP

#include <cstddef>
#include <cstdint>

// clang-format off
namespace talux {

template <class>
inline constexpr int kRecordId = 0; // no record
)";
    for (const Parameter& parameter : reference::parameters())
        if (parameter.type().nature == Nature::record) text += printRecord(parameter);
    return join({text, "\n} // namespace talux\n\n#endif\n"});
}

// ---- Files --------------------------------------------------------------------------------------------

struct Header {
    const char* name;
    std::string (*print)();
};
constexpr Header kHeaders[] = {{"parameters.hpp", printParameters}, {"records.hpp", printRecords}};

bool write(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    return file.flush().good();
}

bool isUpToDate(const std::string& path, const std::string& text) {
    std::ifstream file(path, std::ios::binary);
    return file && std::string(std::istreambuf_iterator<char>(file), {}) == text;
}

} // namespace

int main(int argc, char** argv) {
    const bool check = argc == 3 && argv[1] == std::string_view("--check");
    if (argc != 2 && !check) {
        std::fprintf(stderr, "usage: cpp_tables [--check] DIR\n");
        return 2;
    }
    int status = 0;
    for (const Header& header : kHeaders) {
        const std::string path = join({argv[argc - 1], "/", header.name});
        if ((check ? isUpToDate : write)(path, header.print())) continue;
        std::fprintf(stderr, "%s: %s\n", path.c_str(),
                     check ? "not up to date; build the target cpp_tables_update" : "cannot be written");
        status = 1;
    }
    return status;
}
