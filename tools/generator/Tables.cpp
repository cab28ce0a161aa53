#include "tools/generator/Tables.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "ParamSystem/catalogue/Family.h"
#include "ParamSystem/dictionary/Ids.h"
#include "ParamSystem/dictionary/NameIndex.h"

namespace talux::generator {
namespace {

constexpr std::string_view kHead =
    "// Made by tools/generator from ParamSystem/catalogue and ParamSystem/texts.\n";

// The texts of a source, each once, one behind the other with its NUL. A row tells the place: p + 17.
class Pool {
public:
    std::string place(std::string_view text) {
        const auto [met, isNew] = places.emplace(text, size);
        if (isNew) {
            size += text.size() + 1;
            append(text);
        }
        return "p+" + std::to_string(met->second);
    }

    std::string definition() const { return "static const char p[] =\n" + literals + ";\n"; }

private:
    void append(std::string_view text) {
        literals += '"';
        for (const char c : text) {
            if (c == '"' || c == '\\') literals += '\\';
            literals += c == '\n' ? std::string("\\n") : std::string(1, c);
        }
        literals += "\\0\"\n";
    }

    std::map<std::string, std::size_t, std::less<>> places;
    std::size_t size = 0;
    std::string literals;
};

// The shortest text that gives the same number again.
std::string number(double value) {
    char text[32];
    return {text, std::to_chars(std::begin(text), std::end(text), value).ptr};
}

std::string number(int value) {
    return std::to_string(value);
}

template <class... Fields>
std::string row(const Fields&... fields) {
    std::string text = "{";
    ((text += fields, text += ','), ...);
    text.back() = '}';
    return text + ",\n";
}

std::string numbers(std::string_view definition, const std::vector<std::uint16_t>& values) {
    std::string text = std::string(definition) + " = {";
    for (std::size_t k = 0; k < values.size(); ++k)
        text += (k % 16 == 0 ? "\n" : "") + std::to_string(values[k]) + ',';
    return text + "\n};\n";
}

// A hash table of the positions of names, see NameIndex.
std::string nameIndex(const std::string& name, const std::vector<std::string>& names) {
    std::vector<std::uint16_t> slots(NameIndex::slotCount(names.size()));
    const auto nameAt = [&names](std::size_t position) { return std::string_view(names[position]); };
    for (std::size_t position = 1; position < names.size(); ++position) {
        const NameIndex index{slots.data(), slots.size() - 1};
        std::uint16_t& slot = slots[index.slotOf(names[position], nameAt)];
        if (slot == 0) slot = static_cast<std::uint16_t>(position); // of equal names the first counts
    }
    return numbers("static const std::uint16_t slotsOf" + name + "[]", slots) + "const NameIndex k" + name +
           "Index = {slotsOf" + name + ", " + std::to_string(slots.size() - 1) + "};\n";
}

// Position of the first row with the id of each place.
std::string idIndex(const std::vector<Parameter>& parameters) {
    std::vector<std::uint16_t> positions(kIdPlaces);
    for (std::size_t position = parameters.size(); position > 0; --position)
        positions[static_cast<std::size_t>(placeOf(parameters[position - 1].id()))] =
            static_cast<std::uint16_t>(position);
    return numbers("const std::uint16_t kIdPositions[kIdPlaces]", positions);
}

std::string propertyRow(const Parameter& parameter, Pool& pool) {
    const stParamProperties& row = parameter.properties();
    return generator::row(number(parameter.id()), pool.place(parameter.name()), number(row.id_template),
                          number(row.type), number(row.val_access), number(row.is_volatile),
                          pool.place(row.format), pool.place(row.val_init_text), number(row.val_init),
                          pool.place(row.val_def_text), number(row.val_def), number(row.val_len),
                          number(row.val_min), number(row.val_max), number(row.val_min_id),
                          number(row.val_max_id), number(row.val_step), number(row.userlevel));
}

// Sentinels have the text "***" and nothing else.
std::string propertyTable(const std::vector<Parameter>& parameters, Pool& pool) {
    const std::string stars = pool.place("***");
    const std::string sentinel = row("0", stars, "0,0,0,0", stars, stars, "0", stars, "0,0,0,0,0,0,0,0");
    std::string rows = "const stParamProperties DefParamProperties[] = {\n" + sentinel;
    for (const Parameter& parameter : parameters)
        rows += propertyRow(parameter, pool);
    return rows + sentinel + "};\n";
}

std::string settingTable(const std::vector<Parameter>& parameters) {
    std::string rows;
    int position = 0;
    for (const Parameter& parameter : parameters) {
        ++position;
        if (parameter.isSetting()) rows += row(number(position), number(parameter.id()));
    }
    return "static const SettingPlace settingRows[] = {\n" + rows +
           "};\nconstinit const std::span<const SettingPlace> kSettings = settingRows;\n";
}

std::string familyTable(std::span<const catalogue::Family> families, Pool& pool) {
    std::string rows = "const stParamFamily DefParamFamilies[] = {\n";
    int position = 1;
    for (const catalogue::Family& family : families) {
        const int first = position;
        for (const catalogue::ParameterRow& line : family.rows)
            position += line.count();
        rows += row(pool.place(family.name), number(first), number(position - 1));
    }
    return rows + "};\n";
}

std::string properties(std::span<const catalogue::Family> families,
                       const std::vector<Parameter>& parameters) {
    Pool pool;
    const std::string tables = propertyTable(parameters, pool) + familyTable(families, pool);
    std::vector<std::string> names{"***"};
    for (const Parameter& parameter : parameters)
        names.push_back(parameter.name());
    return std::string(kHead) + "#include \"ParamSystem/dictionary/Tables.h\"\n" + pool.definition() +
           tables + "namespace talux {\nconst int kParameters = " + std::to_string(parameters.size()) +
           ";\n" + "constinit const std::span<const stParamFamily> kFamilies = DefParamFamilies;\n" +
           settingTable(parameters) + nameIndex("Name", names) + idIndex(parameters) + "}\n";
}

std::string symbolTable(std::string_view name, const std::vector<Symbol>& symbols, Pool& pool) {
    std::string rows = "const stParamSymbol " + std::string(name) + "[] = {\n";
    for (const Symbol& symbol : symbols)
        rows += row(number(symbol.value), pool.place(symbol.name));
    return rows + "};\n";
}

std::string symbols(const std::vector<Parameter>& parameters, const std::vector<TextSubject>& subjects) {
    std::vector<Symbol> all{{0, "***"}, {0, "VAR_NULL"}, {0, "VAR_TPL_NULL"}};
    std::vector<std::string> names{"***", "VAR_NULL", "VAR_TPL_NULL"};
    for (const Parameter& parameter : parameters) {
        for (const Symbol& symbol : symbolsOf(parameter)) {
            all.push_back(symbol);
            names.push_back(symbol.name);
        }
    }
    all.push_back({0, "***"});
    std::vector<Symbol> ofTexts{{0, "***"}, {0, "TXT_NULL"}, {0, "TXT_TPL_NULL"}};
    for (const TextSubject& subject : subjects)
        ofTexts.push_back({subject.textId, subject.symbol});
    ofTexts.push_back({0, "***"});

    Pool pool;
    const std::string tables =
        symbolTable("DefParamSymbols", all, pool) + symbolTable("DefParamTextSymbols", ofTexts, pool);
    return std::string(kHead) +
           "#include \"ParamSystem/TALUX_ParamStrings.h\"\n#include \"ParamSystem/dictionary/Tables.h\"\n" +
           pool.definition() + tables + "namespace talux {\n" + nameIndex("Symbol", names) + "}\n";
}

std::string textTable(const std::vector<Text>& texts) {
    Pool pool;
    const std::string sentinel = "{0,0,0,{},0,0," + pool.place("***") + "},\n";
    std::string rows = sentinel;
    for (const Text& text : texts)
        rows += row(number(text.id), number(text.language), number(text.type), "{}", number(text.group),
                    number(text.item), pool.place(text.text));
    return std::string(kHead) + "#include \"ParamSystem/TALUX_ParamStrings.h\"\n" + pool.definition() +
           "const stParamText DefParamText[] = {\n" + rows + sentinel +
           "};\nconst int DefParamTextCount = sizeof DefParamText / sizeof *DefParamText;\n";
}

// Sorted, for idOf.
std::string namedIds(const std::vector<Parameter>& parameters) {
    std::map<std::string, int> ids;
    for (const Parameter& parameter : parameters)
        if (!parameter.isTemplate()) ids.emplace(parameter.name(), parameter.id());
    std::string rows = "inline constexpr NamedId kNamedIds[] = {\n";
    for (const auto& [name, id] : ids)
        rows += row('"' + name + '"', number(id));
    return std::string(kHead) + rows + "};\n";
}

std::string counts(std::size_t parameters, std::size_t families) {
    return std::string(kHead) +
           R"(// How many parameters and families this version has. TALUX_Params.h includes it.
#ifndef TALUX_PARAMCOUNTS_H
#define TALUX_PARAMCOUNTS_H

#include "ParamSystem/TALUX_Params.h"

// Parameter rows between the two sentinels.
inline constexpr int kParamCount = )" +
           std::to_string(parameters) + R"(;
extern TALUX_API const stParamProperties DefParamProperties[kParamCount + 2];

inline constexpr int kParamFamilyCount = )" +
           std::to_string(families) + R"(;
extern TALUX_API const stParamFamily DefParamFamilies[kParamFamilyCount];

#endif
)";
}

} // namespace

Sources writeTables(std::span<const catalogue::Family> families, const std::vector<Parameter>& parameters,
                    const std::vector<TextSubject>& subjects, const std::vector<Text>& texts) {
    return {{"ParamSystem/dictionary/PropertyTable.cpp", properties(families, parameters)},
            {"ParamSystem/dictionary/SymbolTable.cpp", symbols(parameters, subjects)},
            {"ParamSystem/dictionary/NamedIds.inc", namedIds(parameters)},
            {"ParamSystem/texts/TextTable.cpp", textTable(texts)},
            {"ParamSystem/TALUX_ParamCounts.h", counts(parameters.size(), families.size())}};
}

} // namespace talux::generator
