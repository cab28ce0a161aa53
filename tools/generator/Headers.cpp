// The generated headers of talux/: the parameters with their choices, the records and the notes.
#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "tools/Strings.h"
#include "tools/generator/Sources.h"
#include "tools/generator/Tables.h"
#include "tools/reference/Reference.h"

namespace talux::generator {
namespace {

using model::Model;
using reference::Parameter;

// ---- Choices ------------------------------------------------------------------------------------------

using Items = std::span<const model::Item>;

bool isSameList(Items a, Items b) {
    return std::ranges::equal(a, b, [](const model::Item& x, const model::Item& y) {
        return x.number == y.number && x.api == y.api && x.text.en == y.text.en;
    });
}

// Lists of choices all of whose texts are known, each with the parameters that it serves.
class ChoiceLists {
public:
    explicit ChoiceLists(const Model& model) {
        for (const Parameter parameter : model.rows)
            if (!parameter.isTemplate() && parameter.hasAllChoices()) add(parameter);
    }

    // Number of the parameter's list, counted from 1; 0 when it has none.
    int numberOf(const Parameter& parameter) const {
        const auto found = byStem.find(stem(parameter));
        return found != byStem.end() ? found->second : 0;
    }

    std::string print() const {
        std::string text;
        for (std::size_t k = 0; k < lists.size(); ++k) {
            text += joined({"\nenum class ", lists[k].users[0], " : short {"});
            for (const model::Item& choice : lists[k].choices)
                text += joined({"\n    ", choice.api, " = ", std::to_string(choice.number), ","});
            text += "\n};\n";
            for (std::size_t i = 1; i < lists[k].users.size(); ++i)
                text += joined({"using ", lists[k].users[i], " = ", lists[k].users[0], ";\n"});
        }
        return text;
    }

    std::string printNumbers() const {
        std::string text;
        for (std::size_t k = 0; k < lists.size(); ++k)
            text += joined({"template <>\ninline constexpr short kChoices<choice::", lists[k].users[0],
                            "> = ", std::to_string(k + 1), ";\n"});
        return text;
    }

private:
    struct List {
        Items choices;
        std::vector<std::string> users; // names of parameters without running number
    };
    std::vector<List> lists;
    std::map<std::string, int> byStem;

    static std::string stem(const Parameter& parameter) {
        const std::string_view name = parameter.name();
        return std::string(name.substr(0, name.find_last_not_of("0123456789") + 1));
    }

    void add(const Parameter& parameter) {
        const Items choices = parameter.choiceItems();
        auto list = std::ranges::find_if(
            lists, [&](const List& known) { return isSameList(known.choices, choices); });
        if (list == lists.end()) list = lists.insert(list, {choices, {}});
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
    return parameter.facts().isReadOnly ? "status" : "setting";
}

// The ids of the scalars that are measured.
class Measured {
public:
    explicit Measured(const Model& model) {
        for (const Parameter parameter : model.rows)
            if (parameter.row().is_volatile != 0 && !parameter.isIndexed())
                ids.emplace(parameter.type().kind, parameter.row().id);
    }

    // How many measured values of the kind follow one another from this scalar on; of an indexed parameter
    // its own.
    int runOf(const Parameter& parameter) const {
        if (parameter.isIndexed()) return parameter.elements();
        if (!parameter.hasNumber() || parameter.row().is_volatile == 0) return 1;
        int run = 1;
        while (ids.contains({parameter.type().kind, parameter.row().id + run}))
            ++run;
        return run;
    }

private:
    std::set<std::pair<Kind, int>> ids;
};

std::string limitsOf(const Parameter& parameter) {
    if (parameter.textRoom() > 0) {
        const bool isMask = parameter.facts().form == rules::Form::netmask;
        return joined(
            {", 0, ", std::to_string(parameter.textLength()), isMask ? ", rules::Form::netmask" : ""});
    }
    if (!parameter.hasMinimum() && !parameter.hasMaximum()) return {};
    return joined({", ", reference::shortNumber(parameter.lowestNumber()), ", ",
                   reference::shortNumber(parameter.row().val_max)});
}

std::string printRow(const Parameter& parameter, const ChoiceLists& lists, const Measured& measured) {
    std::string row = joined({"    {\"", parameter.name(), "\", ", std::to_string(parameter.row().id),
                              ", Kind::", kindOf(parameter), ", Use::", useOf(parameter)});
    const int run = measured.runOf(parameter), elements = parameter.isIndexed() ? parameter.elements() : 0;
    const int list = lists.numberOf(parameter);
    const std::string limits = limitsOf(parameter);
    if (run > 1 || !limits.empty()) row += joined({", ", std::to_string(run)});
    if (elements > 0 || !limits.empty()) row += joined({", ", std::to_string(elements)});
    if (!limits.empty()) row += joined({", ", std::to_string(list), limits});
    return joined({row, "},\n"});
}

// Compilers say the name of a member that has no value.
std::string printNearest(const auto& rows) {
    std::string members, cases;
    int row = 0;
    for (const auto& [name, unused] : rows) {
        members += joined({"    char did_you_mean_", name, ";\n"});
        cases +=
            joined({"    case ", std::to_string(row++), ": return stop(wrong.did_you_mean_", name, ");\n"});
    }
    return fill(R"(
union no_parameter_has_this_name {
    char nothing;
{}};
constexpr void stopAtNearest(std::size_t row) {
    constexpr no_parameter_has_this_name wrong{.nothing = 1};
    switch (row) {
{}    }
}
)",
                {members, cases});
}

std::string printParameters(const Model& model) {
    const ChoiceLists lists(model);
    const Measured measured(model);
    std::map<std::string_view, std::string> rows; // in the order of the look-up
    for (const Parameter parameter : model.rows)
        if (!parameter.isTemplate()) rows[parameter.name()] = printRow(parameter, lists, measured);
    std::string text = R"(// Made by tools/generator from the dictionary.
#ifndef TALUX_PARAMETERS_HPP
#define TALUX_PARAMETERS_HPP

#include "talux/table.hpp"

// clang-format off
// The choices of settings, by the parameter's name without its running number.
namespace talux::choice {
)";
    text += joined({lists.print(), R"(
} // namespace talux::choice

namespace talux::table {

template <class>
inline constexpr short kChoices = 0; // no list
)"});
    text += joined({lists.printNumbers(), "\n// Sorted by name.\ninline constexpr Row kRows[] = {\n"});
    for (const auto& [name, row] : rows)
        text += row;
    return joined({text, "};\n", printNearest(rows), "\n} // namespace talux::table\n\n#endif\n"});
}

// ---- Notes --------------------------------------------------------------------------------------------

std::string_view nameOf(parameters::NoteKind kind) {
    switch (kind) {
    case parameters::kWarning:
        return "warning";
    case parameters::kUnknown:
        return "unknown";
    case parameters::kAdvice:
        break;
    }
    return "advice";
}

std::string printNotes(const Model& model) {
    std::string notes;
    for (const model::Note& note : model.notes)
        notes += joined({"    {NoteKind::", nameOf(note.kind), ",\n     ", quoted(note.text.de), ",\n     ",
                         quoted(note.text.en), "},\n"});
    std::map<std::string_view, std::string> places; // in the order of the look-up
    for (const Parameter parameter : model.rows)
        if (!parameter.isTemplate())
            for (const int note : parameter.notes())
                places[parameter.name()] +=
                    joined({"    {", quoted(parameter.name()), ", ", std::to_string(note), "},\n"});
    return fill(R"(// Made by tools/generator from the dictionary.
#ifndef TALUX_NOTE_TABLE_HPP
#define TALUX_NOTE_TABLE_HPP

#include "talux/table.hpp"

// clang-format off
namespace talux::table {

inline constexpr Note kNotes[] = {
{}};

// Sorted by name.
inline constexpr NoteOf kNotesOf[] = {
{}};

} // namespace talux::table

#endif
)",
                {notes, list(places, "", [](const auto& of) { return of.second; })});
}

// ---- Records ------------------------------------------------------------------------------------------

std::string printRecord(const Parameter& record) {
    const std::string name(record.name());
    std::string fields, checks;
    long size = 0;
    for (const StructMemberProperties_t& member : reference::members(record)) {
        const bool isLong = memberType(member.szMemberType) == kTypeLong;
        const std::string offset = std::to_string(member.lMemberOffset);
        fields += joined({"    ", isLong ? "std::int32_t " : "float ", member.aszMemberName, ";\n"});
        checks +=
            joined({"static_assert(offsetof(", name, ", ", member.aszMemberName, ") == ", offset, ");\n"});
        size = member.lMemberOffset + member.iMemberBitsize / 8;
    }
    return joined({"\nstruct ", name, " {\n", fields, "};\nstatic_assert(sizeof(", name, ") == ",
                   std::to_string(size), ");\n", checks, "template <>\ninline constexpr int kRecordId<", name,
                   "> = ", std::to_string(record.row().id), ";\n"});
}

std::string printRecords(const Model& model) {
    std::string text = R"(// Made by tools/generator from the dictionary.
#ifndef TALUX_RECORDS_HPP
#define TALUX_RECORDS_HPP

#include <cstddef>
#include <cstdint>

// clang-format off
namespace talux {

template <class>
inline constexpr int kRecordId = 0; // no record
)";
    for (const Parameter parameter : model.rows)
        if (parameter.type().nature == Nature::record) text += printRecord(parameter);
    return joined({text, "\n} // namespace talux\n\n#endif\n"});
}

} // namespace

void addHeaders(Sources& sources, const Model& model) {
    sources["talux/parameters.hpp"] = printParameters(model);
    sources["talux/records.hpp"] = printRecords(model);
    sources["talux/note_table.hpp"] = printNotes(model);
}

} // namespace talux::generator
