// Writes the pages of docs/parameters from the compiled-in dictionary: one per menu family and an index.
//
//   parameter_pages DIR          writes the pages into DIR
//   parameter_pages --check DIR  names the pages of DIR that are not up to date
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "ParamSystem/TALUX_ParamCounts.h"
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Params.h"

namespace {

std::string join(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (std::string_view piece : pieces)
        text += piece;
    return text;
}

// Groups of items.
constexpr int kChoices = 0, kMessages = 1, kErrors = 2;

using Pages = std::map<std::string, std::string>; // file name, content

// ---- Texts --------------------------------------------------------------------------------------------

// Texts of one parameter or template.
class TextsOf {
public:
    explicit TextsOf(int id) {
        for (int row = 1; row < DefParamTextCount - 1; ++row)
            if (DefParamText[row].id == id) rows.push_back(&DefParamText[row]);
    }

    std::string one(int type, int language) const {
        for (const stParamText* row : rows)
            if (row->type == type && row->language == language) return onOneLine(row->txt);
        return {};
    }

    std::string heading(int group, int language) const {
        for (const stParamText* row : rows)
            if (row->type == kTextGroup && row->id_item == group && row->language == language)
                return row->txt;
        return {};
    }

    std::string choice(int number) const {
        for (const stParamText* row : rows)
            if (row->type == kTextItem && row->id_group == kChoices && row->id_item == number &&
                row->language == kEnglish)
                return onOneLine(row->txt);
        return {};
    }

    // "1 = none · 2 = odd · 3 = even"; runs of numbered texts and of the same text are drawn together.
    std::string list(int group, int language) const {
        std::vector<const stParamText*> items;
        for (const stParamText* row : rows)
            if (row->type == kTextItem && row->id_group == group && row->language == language)
                items.push_back(row);
        std::string listed;
        for (std::size_t i = 0; i < items.size();) {
            std::size_t last = i;
            while (last + 1 < items.size() && continues(items[last]->txt, items[last + 1]->txt))
                ++last;
            if (last < i + 2) last = i;
            if (!listed.empty()) listed += " · ";
            listed += std::to_string(items[i]->id_item);
            if (last > i) listed += join({"..", std::to_string(items[last]->id_item)});
            listed += join({" = ", onOneLine(items[i]->txt)});
            if (last > i && std::string_view(items[i]->txt) != items[last]->txt)
                listed += join({"..", onOneLine(items[last]->txt)});
            i = last + 1;
        }
        return listed;
    }

private:
    static std::string onOneLine(std::string_view text) {
        std::string line;
        for (char c : text) {
            if (std::string_view("|<>*_`\\").find(c) != std::string_view::npos) line += '\\';
            line += c == '\n' ? ' ' : c;
        }
        return line;
    }

    // The same text again, or the same with the next number behind it.
    static bool continues(std::string_view text, std::string_view next) {
        if (text == next) return true;
        const auto stem = [](std::string_view t) {
            return t.substr(0, t.find_last_not_of("0123456789") + 1);
        };
        const std::string_view a = stem(text), b = stem(next);
        return a == b && a.size() < text.size() && b.size() < next.size() && text.size() - a.size() < 4 &&
               std::stoi(std::string(text.substr(a.size()))) + 1 ==
                   std::stoi(std::string(next.substr(b.size())));
    }

    std::vector<const stParamText*> rows;
};

// ---- Values -------------------------------------------------------------------------------------------

std::string_view kindOf(int type) {
    switch (type) {
    case kTypeDouble:
        return "double";
    case kTypeFloat:
        return "float";
    case kTypeLong:
        return "long";
    case kTypeInt:
        return "int";
    case kTypeBool:
        return "bool";
    case kTypeText:
        return "text";
    case kTypeEnum:
        return "enum";
    case kTypeSysDate:
        return "date of the clock";
    case kTypeSysTime:
        return "time of the clock";
    case kTypeId:
        return "identifier";
    case kTypeIp:
        return "address";
    case kTypeIpAddress:
        return "interface address";
    case kTypeIpMask:
        return "interface netmask";
    case kTypeIpGateway:
        return "interface gateway";
    case kTypeStruct:
        return "record";
    case kTypeCommand:
        return "command";
    default:
        return "dialog";
    }
}

bool isText(const stParamProperties& row) {
    return row.type == kTypeText || (row.type >= kTypeSysDate && row.type <= kTypeIpGateway);
}
bool hasNumber(const stParamProperties& row) {
    return !isText(row) && row.type != kTypeStruct && row.type != kTypeCommand && row.type != kTypeNone;
}
bool isTemplate(const stParamProperties& row) {
    return row.name[0] == '\0';
}

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

std::string rangeOf(const stParamProperties& row) {
    const bool bottom = row.val_min != kNoMin, top = row.val_max != kNoMax;
    if (bottom && top) return join({number(row.val_min), " to ", number(row.val_max)});
    if (top) return join({"up to ", number(row.val_max)});
    return bottom ? join({"from ", number(row.val_min)}) : "";
}

// Texts of the interfaces' addresses lie under ids of their own.
int textIdOf(const stParamProperties& row) {
    switch (row.type) {
    case kTypeIpAddress:
        return 20000 + row.id - 16029;
    case kTypeIpMask:
        return 21000 + row.id - 16032;
    case kTypeIpGateway:
        return 22000 + row.id - 16035;
    default:
        return row.id;
    }
}

// Of two parameters with one id the later one has the texts.
bool hasTexts(int position) {
    const int id = DefParamProperties[position].id;
    if (id < 7000 || id > 7006) return true;
    for (int later = position + 1; later <= kParamCount; ++later)
        if (DefParamProperties[later].id == id) return false;
    return true;
}

std::string templateName(int id) {
    constexpr std::string_view kPrefix = "VAR_TPL_";
    for (const stParamSymbol* symbol = DefParamSymbols + 1; std::string_view(symbol->name) != "***"; ++symbol)
        if (symbol->value == id && std::string_view(symbol->name).starts_with(kPrefix))
            return symbol->name + kPrefix.size();
    return {};
}

// ---- Pages --------------------------------------------------------------------------------------------

std::string inSmallLetters(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

std::string fileOf(const stParamFamily& family) {
    std::string file = inSmallLetters(family.name);
    std::replace(file.begin(), file.end(), ' ', '-');
    return file + ".md";
}

void addLine(std::string& cell, const std::string& line) {
    if (line.empty()) return;
    if (!cell.empty()) cell += "<br>";
    cell += line;
}

std::string nameOf(const stParamProperties& row) {
    return isTemplate(row) ? templateName(row.id) : row.name;
}

std::string nameCell(const stParamProperties& row) {
    std::string cell = join({"<a id=\"", nameOf(row), "\"></a>`", nameOf(row)});
    std::string id = std::to_string(row.id);
    if (row.val_max_id > 0) {
        cell += join({"[", std::to_string(row.val_min_id), "..", std::to_string(row.val_max_id), "]"});
        id += join({"..", std::to_string(row.id + row.val_max_id - row.val_min_id)});
    }
    cell += '`';
    addLine(cell, id);
    return cell;
}

// "default 5 = 115200"
std::string defaultNumber(const stParamProperties& row, const TextsOf& texts) {
    std::string line = join({"default ", number(row.val_def)});
    if (row.type != kTypeEnum) return line;
    const int chosen = static_cast<int>(row.val_def);
    const std::string choice =
        row.id_template != 0 ? TextsOf(row.id_template).choice(chosen) : texts.choice(chosen);
    return choice.empty() ? line : join({line, " = ", choice});
}

std::string valueCell(const stParamProperties& row, const TextsOf& texts) {
    std::string cell(kindOf(row.type));
    const std::string unit = texts.one(kTextUnit, kEnglish);
    if (!unit.empty()) cell += join({" in ", unit});
    if (row.val_len > 0) cell += join({", ", std::to_string(row.val_len), " characters"});
    if (row.type == kTypeNone) return cell;
    if (isTemplate(row)) return cell + "<br>template";
    addLine(cell, row.is_volatile != 0 ? "run-time value" : "");
    if (row.is_volatile == 0 && hasNumber(row)) addLine(cell, defaultNumber(row, texts));
    if (row.is_volatile == 0 && isText(row))
        addLine(cell,
                row.val_def_text[0] == '\0' ? "default empty" : join({"default `", row.val_def_text, "`"}));
    addLine(cell, row.type == kTypeBool ? "" : hasNumber(row) ? rangeOf(row) : "");
    addLine(cell, join({row.val_access == kReadOnly ? "read-only" : "read, write", ", level ",
                        std::to_string(row.userlevel)}));
    return cell;
}

std::string textCell(const stParamProperties& row, const TextsOf& texts, int language) {
    std::string cell = join({"**", texts.one(kTextTitle, language), "**"});
    addLine(cell, texts.one(kTextDescription, language));
    if (row.type != kTypeCommand) addLine(cell, texts.list(kChoices, language));
    for (int group : {kMessages, kErrors}) {
        const std::string listed = texts.list(group, language);
        if (!listed.empty()) addLine(cell, join({texts.heading(group, language), ": ", listed}));
    }
    if (row.id_template != 0)
        addLine(cell, join({language == kGerman ? "wie" : "as", " [", templateName(row.id_template),
                            "](templates.md#", templateName(row.id_template), ")"}));
    return cell;
}

// Calls visit(position) for every parameter of a family, for an indexed one once.
template <typename Visit>
void forEachParameter(int first, int last, Visit visit) {
    for (int position = first; position <= last; ++position) {
        visit(position);
        const stParamProperties& row = DefParamProperties[position];
        if (row.val_max_id > 0) position += row.val_max_id - row.val_min_id;
    }
}

constexpr std::string_view kGenerated = "<!-- Made by tools/parameter_pages.cpp from the data; change the "
                                        "data and build the target parameter_pages_update. -->\n";

std::string familyPage(const stParamFamily& family) {
    std::ostringstream page;
    page << kGenerated << "# " << family.name << "\n\n[All families](README.md)\n\n"
         << "| Name, id | Value | English | Deutsch |\n|---|---|---|---|\n";
    forEachParameter(family.first, family.last, [&page](int position) {
        const stParamProperties& row = DefParamProperties[position];
        const TextsOf texts(hasTexts(position) ? textIdOf(row) : 0);
        page << "| " << nameCell(row) << " | " << valueCell(row, texts) << " | ";
        if (hasTexts(position))
            page << textCell(row, texts, kEnglish) << " | " << textCell(row, texts, kGerman) << " |\n";
        else
            page << "no text, its id has two names | kein Text |\n";
    });
    return page.str();
}

std::string indexPage() {
    std::ostringstream page;
    page << kGenerated << R"(# Parameters

Every parameter of the device by menu family, with its texts in English and German.

- **Value**: kind and unit; the factory default and the permitted range of a setting; whether it can be written,
  and the rights level that this takes. A *run-time value* lives in the global space only and has no default.
- Where a text stands under **as**/**wie**, the parameter shares the choices of that [template](templates.md).
- In [KEPL](../kepl.md) a parameter is `TLX_` and its name; letter case does not count.
- [By name](#by-name) lists every parameter with its titles: search that page for a word of either language.

| Family | Parameters | Ids |
|---|---|---|
)";
    std::map<std::string, std::string> lines; // by name in small letters
    for (const stParamFamily& family : DefParamFamilies) {
        int count = 0, least = DefParamProperties[family.first].id, most = least;
        forEachParameter(family.first, family.last, [&](int position) {
            const stParamProperties& row = DefParamProperties[position];
            ++count;
            least = std::min(least, row.id);
            most = std::max(most, row.id + std::max(0, row.val_max_id - row.val_min_id));
            if (isTemplate(row)) return;
            const TextsOf texts(hasTexts(position) ? textIdOf(row) : 0);
            lines[inSmallLetters(row.name)] =
                join({"| [`", row.name, "`](", fileOf(family), "#", row.name, ") | ",
                      texts.one(kTextTitle, kEnglish), " | ", texts.one(kTextTitle, kGerman), " |\n"});
        });
        page << "| [" << family.name << "](" << fileOf(family) << ") | " << count << " | " << least << " to "
             << most << " |\n";
    }
    page << "\n## By name\n\n| Name | English | Deutsch |\n|---|---|---|\n";
    for (const auto& [name, line] : lines)
        page << line;
    return page.str();
}

Pages allPages() {
    Pages pages{{"README.md", indexPage()}};
    for (const stParamFamily& family : DefParamFamilies)
        pages[fileOf(family)] = familyPage(family);
    return pages;
}

int write(const std::filesystem::path& folder, const Pages& pages) {
    std::filesystem::create_directories(folder);
    for (const auto& [file, content] : pages) {
        std::ofstream out(folder / file, std::ios::binary);
        if (!(out << content).flush()) {
            std::perror((folder / file).c_str());
            return 1;
        }
    }
    return 0;
}

int check(const std::filesystem::path& folder, const Pages& pages) {
    int stale = 0;
    const auto report = [&](const std::string& file, const char* what) {
        std::printf("%s %s\n", (folder / file).c_str(), what);
        ++stale;
    };
    for (const auto& [file, content] : pages) {
        std::ifstream in(folder / file, std::ios::binary);
        const std::string found{std::istreambuf_iterator<char>(in), {}};
        if (found != content) report(file, "is out of date");
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (const std::string file = entry.path().filename(); !pages.contains(file))
            report(file, "belongs to no family");
    if (stale > 0) std::puts("Build the target parameter_pages_update and commit what it writes.");
    return stale > 0 ? 1 : 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2) return write(argv[1], allPages());
    if (argc == 3 && std::string_view(argv[1]) == "--check") return check(argv[2], allPages());
    std::fputs("parameter_pages DIR | --check DIR\n", stderr);
    return 2;
}
