#include "tools/generator/Tables.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "ParamSystem/dictionary/Ids.h"
#include "ParamSystem/dictionary/NameIndex.h"
#include "tools/Strings.h"
#include "tools/generator/Sources.h"

namespace talux::generator {
namespace {

using model::Model, model::Row;

std::string numbers(std::string_view definition, const std::vector<std::uint16_t>& values) {
    std::string text = std::string(definition) + " = {";
    for (std::size_t k = 0; k < values.size(); ++k)
        text += (k % 16 == 0 ? "\n" : "") + std::to_string(values[k]) + ',';
    return text + "\n};\n";
}

// A hash table of the positions of names, see NameIndex.
std::string nameIndex(const std::string& name, const std::vector<std::string>& names) {
    std::vector<std::uint16_t> buckets(NameIndex::bucketCount(names.size()));
    const auto nameAt = [&names](std::size_t position) { return std::string_view(names[position]); };
    for (std::size_t position = 1; position < names.size(); ++position) {
        const NameIndex index{buckets.data(), buckets.size() - 1};
        std::uint16_t& bucket = buckets[index.bucketOf(names[position], nameAt)];
        if (bucket == 0) bucket = static_cast<std::uint16_t>(position); // of equal names the first counts
    }
    return numbers("static const std::uint16_t bucketsOf" + name + "[]", buckets) + "const NameIndex k" +
           name + "Index = {bucketsOf" + name + ", " + std::to_string(buckets.size() - 1) + "};\n";
}

// Sets the position of an id that has none yet.
void place(std::vector<std::uint16_t>& positions, int id, int position) {
    std::uint16_t& known = positions[static_cast<std::size_t>(denseIndexOf(id))];
    if (known == 0) known = static_cast<std::uint16_t>(position);
}

// Position of the first row with each id.
std::string idIndex(const Model& model) {
    std::vector<std::uint16_t> positions(kDenseIndexCount);
    for (const Row& row : model.rows)
        for (int k = 0; k < row.elements(); ++k)
            place(positions, row.properties->id + k, row.position + k);
    return numbers("const std::uint16_t kIdPositions[kDenseIndexCount]", positions);
}

std::string propertyRow(const stParamProperties& row, int element, Pool& pool) {
    return generator::row(number(row.id + element), pool.place(row.name), number(row.id_template),
                          number(row.type), number(row.val_access), number(row.is_volatile),
                          pool.place(row.format), pool.place(row.val_init_text), number(row.val_init),
                          pool.place(row.val_def_text), number(row.val_def), number(row.val_len),
                          number(row.val_min), number(row.val_max), number(row.val_min_id),
                          number(row.val_max_id), number(row.val_step), number(row.userlevel));
}

// Sentinels have the text "***" and nothing else.
std::string propertyTable(const Model& model, Pool& pool) {
    const std::string stars = pool.place("***");
    const std::string sentinel = row("0", stars, "0,0,0,0", stars, stars, "0", stars, "0,0,0,0,0,0,0,0");
    std::string rows = "const stParamProperties DefParamProperties[] = {\n" + sentinel;
    for (const Row& parameter : model.rows)
        for (int k = 0; k < parameter.elements(); ++k)
            rows += propertyRow(*parameter.properties, k, pool);
    return rows + sentinel + "};\n";
}

std::string familyTable(const Model& model, Pool& pool) {
    std::string rows = "const stParamFamily DefParamFamilies[] = {\n";
    for (const stParamFamily& family : model.families)
        rows += row(pool.place(family.name), number(family.first), number(family.last));
    return rows + row(pool.place("***"), "0,0") + "};\n";
}

std::string properties(const Model& model) {
    Pool pool;
    const std::string tables = propertyTable(model, pool) + "stParamProperties ParamProperties[" +
                               number(model.families.back().last + 2 + kSpareParamRows) + "];\n" +
                               familyTable(model, pool);
    std::vector<std::string> names{"***"};
    for (const Row& row : model.rows)
        names.insert(names.end(), static_cast<std::size_t>(row.elements()), row.properties->name);
    return std::string(kHead) + "#include \"ParamSystem/dictionary/Tables.h\"\n" + pool.definition() +
           tables + "namespace talux {\nconst int kParameters = " + std::to_string(names.size() - 1) + ";\n" +
           "constinit const std::span<const stParamFamily> kFamilies(DefParamFamilies, " +
           std::to_string(model.families.size()) + ");\n" + nameIndex("Name", names) + idIndex(model) + "}\n";
}

struct Symbol {
    int value;
    std::string name;
};

std::string symbolTable(std::string_view name, const std::vector<Symbol>& symbols, Pool& pool) {
    std::string rows = "const stParamSymbol " + std::string(name) + "[] = {\n";
    for (const Symbol& symbol : symbols)
        rows += row(number(symbol.value), pool.place(symbol.name));
    return rows + row("0", pool.place("***")) + "};\n";
}

std::vector<std::string> namesOf(const std::vector<Symbol>& symbols) {
    std::vector<std::string> names(symbols.size());
    std::ranges::transform(symbols, names.begin(), &Symbol::name);
    return names;
}

std::string symbolOf(const Row& row) {
    const bool isCommand = row.properties->type == kTypeCommand;
    return joined({row.isTemplate() ? "VAR_TPL_" : isCommand ? "CMD_" : "VAR_", row.name});
}

// The first element of an indexed parameter has two: the plain one and the one with its index.
void addSymbols(std::vector<Symbol>& symbols, const Row& row) {
    const std::string name = symbolOf(row);
    symbols.push_back({row.properties->id, name});
    for (int k = 0; k < row.elements() && row.isIndexed(); ++k)
        symbols.push_back(
            {row.properties->id + k, name + '_' + std::to_string(row.properties->val_min_id + k)});
}

std::string symbols(const Model& model) {
    std::vector<Symbol> all{{0, "***"}, {0, "VAR_NULL"}, {0, "VAR_TPL_NULL"}};
    std::vector<Symbol> ofTexts{{0, "***"}, {0, "TXT_NULL"}, {0, "TXT_TPL_NULL"}};
    for (const Row& row : model.rows) {
        addSymbols(all, row);
        if (row.textId != 0)
            ofTexts.push_back({row.textId, (row.isTemplate() ? "TXT_TPL_" : "TXT_") + std::string(row.name)});
    }
    Pool pool;
    const std::string tables =
        symbolTable("DefParamSymbols", all, pool) + symbolTable("DefParamTextSymbols", ofTexts, pool);
    return std::string(kHead) +
           "#include \"ParamSystem/TALUX_ParamStrings.h\"\n#include \"ParamSystem/dictionary/Tables.h\"\n" +
           pool.definition() + tables + "namespace talux {\n" + nameIndex("Symbol", namesOf(all)) +
           nameIndex("TextSymbol", namesOf(ofTexts)) + "}\n";
}

// The rows of the text table with the texts of one parameter.
class TextRows {
public:
    TextRows(const Row& whose, Pool& texts) : id(whose.textId), pool(texts) {
        addBoth(kTextTitle, whose.title);
        addBoth(kTextDescription, whose.description);
        add(kEnglish, kTextUnit, 0, 0, whose.unit);
        for (int k = 0; k < model::kGroups; ++k) {
            addBoth(kTextGroup, whose.groups[k].heading, k);
            for (const ParamLanguage language : {kGerman, kEnglish})
                for (const model::Item& item : whose.groups[k].items)
                    add(language, kTextItem, k, item.number, item.text.in(language));
        }
    }

    std::string rows;
    int count = 0;

private:
    void addBoth(int type, const model::Both& text, int item = 0) {
        add(kGerman, type, 0, item, text.de);
        add(kEnglish, type, 0, item, text.en);
    }

    void add(int language, int type, int group, int item, std::string_view text) {
        if (text.empty()) return;
        rows += row(number(id), number(language), number(type), "{}", number(group), number(item),
                    pool.place(text));
        ++count;
    }

    int id;
    Pool& pool;
};

struct TextTable {
    std::string definition;
    std::vector<std::uint16_t> firstRows = std::vector<std::uint16_t>(kDenseIndexCount);
    int count = 0;

    TextTable(const Model& model, Pool& pool) {
        const std::string sentinel = "{0,0,0,{},0,0," + pool.place("***") + "},\n";
        definition = "const stParamText DefParamText[kDefParamTextRows] = {\n" + sentinel;
        for (const Row& row : model.rows) {
            const TextRows texts(row, pool);
            if (texts.count != 0) place(firstRows, row.textId, count + 1);
            definition += texts.rows;
            count += texts.count;
        }
        for (int free = kDefParamTextRows - 1 - count; free > 0; --free)
            definition += sentinel;
        definition += "};\n";
    }
};

std::string texts(const Model& model) {
    Pool pool;
    const TextTable table(model, pool);
    return std::string(kHead) + "#include \"ParamSystem/texts/Tables.h\"\n" + pool.definition() +
           table.definition +
           "const int DefParamTextCount = kDefParamTextRows;\nnamespace talux {\nconst int kTexts = " +
           number(table.count) + ";\n" +
           numbers("const std::uint16_t kTextRows[kDenseIndexCount]", table.firstRows) + "}\n";
}

// The rows and texts for programs that are tested without the library, defined by talux/fake.hpp.
std::string dictionary(const Model& model) {
    Pool pool("talux_p");
    const std::string tables = propertyTable(model, pool) + TextTable(model, pool).definition;
    return std::string(kHead) + "#ifndef TALUX_DICTIONARY_TABLE_HPP\n#define TALUX_DICTIONARY_TABLE_HPP\n" +
           "#include \"ParamSystem/TALUX_ParamStrings.h\"\n" + pool.definition() + tables + "#endif\n";
}

// Sorted, for idOf.
std::string namedIds(const Model& model) {
    std::map<std::string_view, int> ids;
    for (const Row& row : model.rows)
        if (!row.isTemplate()) ids.emplace(row.name, row.properties->id);
    std::string rows = "inline constexpr NamedId kNamedIds[] = {\n";
    for (const auto& [name, id] : ids)
        rows += row(quoted(name), number(id));
    return std::string(kHead) + rows + "};\n";
}

} // namespace

void addModuleTables(Sources& sources, const Model& model) {
    sources["ParamSystem/dictionary/PropertyTable.cpp"] = properties(model);
    sources["ParamSystem/dictionary/SymbolTable.cpp"] = symbols(model);
    sources["ParamSystem/dictionary/NamedIds.inc"] = namedIds(model);
    sources["ParamSystem/texts/TextTable.cpp"] = texts(model);
    sources["talux/dictionary_table.hpp"] = dictionary(model);
}

} // namespace talux::generator
