#include "tools/interface/Listing.h"

#include <map>
#include <sstream>

#include "tools/Strings.h"
#include "tools/reference/Reference.h"

namespace talux::interface {
namespace {

using reference::File;
using reference::Parameter;
using reference::shortNumber;

// Programs look rows up in the library that they run with, but for what is compiled into them.
constexpr std::string_view kRebuild = "\n# Other programs need no rebuilding when access, level, minimum, "
                                      "maximum, step, default, initial, length, "
                                      "template or format change, or a row is added under an id that was "
                                      "free (ParamProperties has 98 rows to spare).\n"
                                      "# They do when id, name, kind, place or choices of a row change, or a "
                                      "row goes: C++ programs have those compiled "
                                      "in, all programs the places in shared memory.\n";

std::string value(const Parameter& parameter, double number, const char* text) {
    return isText(parameter.row()) ? '"' + std::string(text) + '"' : shortNumber(number);
}

std::string placeOf(const Parameter& parameter) {
    if (parameter.isTemplate()) return "template";
    if (parameter.type().nature == Nature::none) return "";
    return parameter.file() == File::none ? "run-time" : std::string(fileName(parameter.file()));
}

std::string withElements(std::string text, const Parameter& parameter, int first) {
    if (parameter.isIndexed()) text += ".." + std::to_string(first + parameter.elements() - 1);
    return text;
}

std::string nameOf(const Parameter& parameter) {
    const std::string name(parameter.name());
    return parameter.isIndexed() ? name + "[" + withElements("1", parameter, 1) + "]" : name;
}

void addLimits(ListingRow& cells, const Parameter& parameter) {
    if (!parameter.hasNumber()) return;
    if (parameter.hasMinimum()) cells[kMin] = shortNumber(parameter.row().val_min);
    if (parameter.hasMaximum()) cells[kMax] = shortNumber(parameter.row().val_max);
    if (parameter.row().val_step != 1) cells[kStep] = shortNumber(parameter.row().val_step);
}

void addValues(ListingRow& cells, const Parameter& parameter) {
    const stParamProperties& row = parameter.row();
    cells[kInitial] = value(parameter, row.val_init, row.val_init_text);
    const std::string byDefault = value(parameter, row.val_def, row.val_def_text);
    if (cells[kInitial] == byDefault) cells[kInitial].clear();
    if (parameter.isSetting() || parameter.isTemplate()) cells[kDefault] = byDefault;
    if (row.val_len >= 0) cells[kLength] = std::to_string(row.val_len);
}

// What C++ programs call the choices, where the list is its own.
std::string choicesOf(const Parameter& parameter) {
    if (!parameter.hasAllChoices() || !parameter.templateName().empty()) return {};
    return list(parameter.choiceItems(), " ", [](const model::Item& choice) {
        return joined({choice.api, "=", std::to_string(choice.number)});
    });
}

ListingRow rowOf(const Parameter& parameter) {
    const stParamProperties& row = parameter.row();
    ListingRow cells;
    cells[kId] = withElements(std::to_string(row.id), parameter, row.id);
    cells[kName] = nameOf(parameter);
    cells[kKind] = parameter.type().name;
    cells[kPlace] = placeOf(parameter);
    cells[kAccess] = row.val_access == kReadOnly ? "r" : "rw";
    cells[kLevel] = std::to_string(row.userlevel);
    addLimits(cells, parameter);
    if (parameter.hasNumber() || isText(row)) addValues(cells, parameter);
    cells[kTemplate] = parameter.templateName();
    cells[kFormat] = row.format;
    cells[kChoiceNames] = choicesOf(parameter);
    return cells;
}

ListingRow rowOf(const Parameter& record, const StructMemberProperties_t& member) {
    ListingRow cells;
    cells[kId] = std::to_string(record.row().id);
    cells[kName] = std::string(record.name()) + "." + member.aszMemberName;
    cells[kKind] = member.szMemberType;
    cells[kPlace] =
        "byte " + std::to_string(ARR_StructOffset[record.row().id - kFirstStruct] + member.lMemberOffset);
    cells[kLength] = std::to_string(member.iMemberBitsize / 8);
    return cells;
}

std::string inWords(const std::map<std::string, int>& counts) {
    return list(counts, ", ",
                [](const auto& entry) { return std::to_string(entry.second) + ' ' + entry.first; });
}

std::string summary() {
    std::map<std::string, int> kinds, settings, files;
    int rows = 0;
    for (const Parameter& parameter : reference::parameters()) {
        const std::string kind(parameter.type().name);
        rows += parameter.elements();
        kinds[kind] += parameter.elements();
        if (!parameter.isSetting()) continue;
        ++settings[kind];
        ++files[std::string(fileName(parameter.file()))];
    }
    return joined({"# ", std::to_string(rows), " rows: ", inWords(kinds),
                   "\n# A commit copies: ", inWords(settings), "\n# Files hold: ", inWords(files), kRebuild});
}

} // namespace

Listing listing() {
    Listing listing;
    for (const Parameter& parameter : reference::parameters())
        listing.push_back(rowOf(parameter));
    for (const Parameter& parameter : reference::parameters())
        if (parameter.type().nature == Nature::record)
            for (const StructMemberProperties_t& member : reference::members(parameter))
                listing.push_back(rowOf(parameter, member));
    return listing;
}

std::string print(const Listing& listing) {
    ListingRow heads;
    for (std::size_t column = 0; column < kColumns; ++column)
        heads[column] = kColumnTexts[column].head;
    Listing rows = listing;
    rows.insert(rows.begin(), heads);
    std::string file;
    for (const ListingRow& row : rows) {
        std::string line;
        for (const std::string& cell : row)
            line += cell + '\t';
        file += line.erase(line.find_last_not_of('\t') + 1) + '\n';
    }
    return file + summary();
}

Listing parse(std::string_view file) {
    Listing listing;
    std::istringstream lines{std::string(file)};
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('#') || line.starts_with(kColumnTexts[kId].head)) continue;
        std::istringstream cells(line);
        ListingRow& row = listing.emplace_back();
        for (std::string& cell : row)
            std::getline(cells, cell, '\t');
    }
    return listing;
}

} // namespace talux::interface
