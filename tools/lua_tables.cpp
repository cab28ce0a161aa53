// Writes what talux.lua knows of the dictionary: parameters.lua, parameters_de.lua, parameters_en.lua,
// records.lua.
//
//   lua_tables DIR   writes the files into DIR
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "tools/reference/Reference.h"

namespace {

using namespace talux;
using reference::Parameter;

constexpr std::string_view kHead = "-- Generated from the dictionary; see the target lua_tables_update.\n";

std::string join(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (std::string_view piece : pieces)
        text += piece;
    return text;
}

std::string quoted(std::string_view text) {
    std::string literal = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') literal += '\\';
        literal += c;
    }
    return literal + '"';
}

// "{1, 2}"
std::string list(const std::vector<std::string>& items) {
    std::string text = "{";
    for (const std::string& item : items)
        text += join({text.size() > 1 ? ", " : "", item});
    return text + "}";
}

template <class Visit>
void forEachNamed(Visit visit) {
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate()) visit(parameter);
}

// ---- What holds in every language ---------------------------------------------------------------------

// The longest text in bytes that the parameter is meant for and its slot keeps.
int longest(const Parameter& parameter) {
    const int told = parameter.row().val_len;
    return told > 0 ? std::min(told, parameter.textRoom()) : parameter.textRoom();
}

std::string factsOf(const Parameter& parameter) {
    const stParamProperties& row = parameter.row();
    std::string facts = join({"{name = ", quoted(parameter.name()), ", id = ", std::to_string(row.id),
                              ", kind = ", quoted(parameter.type().name)});
    const auto add = [&facts](bool told, std::string_view key, const std::string& value) {
        if (told) facts += join({", ", key, " = ", value});
    };
    const std::string unit = parameter.unit();
    add(!unit.empty(), "unit", quoted(unit));
    add(parameter.hasNumber() && parameter.hasMinimum(), "min", reference::shortNumber(row.val_min));
    add(parameter.hasNumber() && parameter.hasMaximum(), "max", reference::shortNumber(row.val_max));
    add(parameter.textRoom() > 0, "length", std::to_string(longest(parameter)));
    add(parameter.isIndexed(), "first", std::to_string(row.val_min_id));
    add(parameter.isIndexed(), "last", std::to_string(row.val_max_id));
    add(parameter.isSetting(), "default",
        parameter.hasNumber() ? reference::shortNumber(row.val_def) : quoted(row.val_def_text));
    add(parameter.isSetting(), "file", quoted(reference::fileName(parameter.file())));
    add(parameter.writeLevel() > 0, "level", std::to_string(parameter.writeLevel()));
    return facts + "}";
}

std::string parameters() {
    std::string text = join({kHead, "return {\n"});
    forEachNamed([&text](const Parameter& parameter) { text += join({factsOf(parameter), ",\n"}); });
    return text + "}\n";
}

// ---- Texts --------------------------------------------------------------------------------------------

std::string choicesOf(const Parameter& parameter, ParamLanguage language) {
    std::vector<std::string> items;
    for (const reference::Choice& choice : parameter.choices(language))
        items.push_back(join({"[", std::to_string(choice.number), "] = ", quoted(choice.text)}));
    return items.empty() ? std::string() : list(items);
}

// Each list of choices stands once in front of the parameters.
std::string texts(ParamLanguage language) {
    std::vector<std::string> lists;
    std::string rows;
    forEachNamed([&](const Parameter& parameter) {
        std::vector<std::string> row{quoted(parameter.title(language)),
                                     quoted(parameter.description(language))};
        if (const std::string choices = choicesOf(parameter, language); !choices.empty()) {
            auto known = std::find(lists.begin(), lists.end(), choices);
            if (known == lists.end()) known = lists.insert(known, choices);
            row.push_back(join({"choices[", std::to_string(known - lists.begin() + 1), "]"}));
        }
        rows += join({"[", quoted(parameter.name()), "] = ", list(row), ",\n"});
    });
    std::string text = join({kHead, "local choices = {\n"});
    for (const std::string& choices : lists)
        text += join({choices, ",\n"});
    return join({text, "}\nreturn {\n", rows, "}\n"});
}

std::string german() {
    return texts(kGerman);
}
std::string english() {
    return texts(kEnglish);
}

// ---- Records ------------------------------------------------------------------------------------------

// The members in their order.
std::string records() {
    std::string text = join({kHead, "return {\n"});
    forEachNamed([&text](const Parameter& parameter) {
        if (parameter.type().nature != Nature::record) return;
        std::vector<std::string> members;
        for (const StructMemberProperties_t& member : reference::members(parameter))
            members.push_back(join(
                {"{name = ", quoted(member.aszMemberName), ", kind = ", quoted(member.szMemberType), "}"}));
        text += join({parameter.name(), " = ", list(members), ",\n"});
    });
    return text + "}\n";
}

struct File {
    const char* name;
    std::string (*print)();
};
constexpr File kFiles[] = {{"parameters.lua", parameters},
                           {"parameters_de.lua", german},
                           {"parameters_en.lua", english},
                           {"records.lua", records}};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("lua_tables DIR\n", stderr);
        return 2;
    }
    for (const File& file : kFiles) {
        const std::string path = join({argv[1], "/", file.name});
        std::ofstream out(path, std::ios::binary);
        if ((out << file.print()).flush()) continue;
        std::perror(path.c_str());
        return 1;
    }
    return 0;
}
