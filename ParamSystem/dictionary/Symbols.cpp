// VAR_ and CMD_ names of parameters and templates, derived from the catalogue.
#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/dictionary/NameIndex.h"
#include "ParamSystem/dictionary/Rows.h"

namespace talux {

namespace {

using catalogue::Row;

enum class Form { kWhole, kElement };

// Calls visit(row, number, form) for every symbol of the catalogue in table order. The first element of an
// indexed parameter has two: the plain name and the one with its index.
template <class Visit>
constexpr void forEachSymbol(Visit visit) {
    forEachParameter([&visit](const Row& row, int number) {
        if (row.series != Row::kIndexed || number == row.first) visit(row, number, Form::kWhole);
        if (row.series == Row::kIndexed) visit(row, number, Form::kElement);
    });
}

constexpr std::string_view prefixOf(const Row& row) {
    if (row.templateName[0] != '\0') return "VAR_TPL_";
    return row.properties.type == kTypeCommand ? "CMD_" : "VAR_";
}

constexpr std::string_view stemOf(const Row& row) {
    return row.templateName[0] != '\0' ? row.templateName : row.properties.name;
}

constexpr bool hasNumber(const Row& row, Form form) {
    return row.series == Row::kNumbered || form == Form::kElement;
}

consteval std::size_t symbolCount() {
    std::size_t count = 0;
    forEachSymbol([&count](const Row&, int, Form) { ++count; });
    return count;
}

consteval std::size_t symbolNamesSize() {
    std::size_t size = 0;
    forEachSymbol([&size](const Row& row, int number, Form form) {
        size += prefixOf(row).size() + stemOf(row).size() + 1;
        if (form == Form::kElement) ++size;
        if (hasNumber(row, form)) size += digitCount(number);
    });
    return size;
}

consteval auto symbolNames() {
    TextPool<symbolNamesSize()> pool;
    forEachSymbol([&pool](const Row& row, int number, Form form) {
        pool.append(prefixOf(row));
        pool.append(stemOf(row));
        if (form == Form::kElement) pool.append("_");
        if (hasNumber(row, form)) pool.appendNumber(number);
        pool.endText();
    });
    return pool.text;
}

constexpr auto kSymbolNames = symbolNames();

struct SymbolTable {
    stParamSymbol rows[symbolCount() + 4]; // two names for nothing, two sentinels
};

consteval SymbolTable symbolTable() {
    SymbolTable table{};
    std::size_t position = 0;
    std::size_t name = 0;
    table.rows[position++] = {0, "***"};
    table.rows[position++] = {0, "VAR_NULL"};
    table.rows[position++] = {0, "VAR_TPL_NULL"};
    forEachSymbol([&](const Row& row, int number, Form) {
        const char* const text = &kSymbolNames[name];
        table.rows[position++] = {row.properties.id + number - row.first, text};
        name += std::string_view(text).size() + 1;
    });
    table.rows[position] = {0, "***"};
    return table;
}

constexpr SymbolTable kSymbols = symbolTable();

constexpr std::string_view symbolAt(std::size_t position) {
    return kSymbols.rows[position].name;
}

struct SymbolIndex {
    NameIndex<8192> names;
    std::size_t repeated = 0; // position of a symbol that has two meanings
};

consteval SymbolIndex symbolIndex() {
    SymbolIndex index;
    for (std::size_t position = 1; position + 1 < std::size(kSymbols.rows); ++position)
        if (!index.names.enter(position, symbolAt)) index.repeated = position;
    return index;
}

constexpr SymbolIndex kSymbolIndex = symbolIndex();
static_assert(kSymbolIndex.repeated == 0, "a symbol has two meanings");

} // namespace

} // namespace talux

// The rows are computed as one value; DefParamSymbols is their name as an array.
extern "C" constinit const talux::SymbolTable talux_DefParamSymbols = talux::kSymbols;
extern const stParamSymbol DefParamSymbols[std::size(talux::kSymbols.rows)]
    __attribute__((alias("talux_DefParamSymbols")));

int ResolveParamSymbol(char* name, VarLong* lvalue) {
    if (name == nullptr) return 0;
    const auto symbolAt = [](std::size_t position) { return DefParamSymbols[position].name; };
    const std::size_t position = talux::kSymbolIndex.names.find(name, symbolAt);
    if (position == 0) return 0;
    *lvalue = DefParamSymbols[position].value;
    return 1;
}
