// One page per menu family: a table with a row for each parameter or series.
#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>

#include "tools/pages/Markdown.h"
#include "tools/pages/Pages.h"
#include "tools/pages/Series.h"

namespace talux::pages {

namespace {

// Ids of a series in menu order: "10118..10127", or each for itself where they do not count up.
std::string idsOf(const Entry& entry) {
    const Parameter &first = entry.first(), &last = entry.members.back();
    const int count = static_cast<int>(entry.members.size());
    if (lastId(last) == firstId(first)) return std::to_string(firstId(first));
    if (count == 1 || lastId(last) - firstId(first) == count - 1)
        return joined({std::to_string(firstId(first)), "..", std::to_string(lastId(last))});
    std::string ids;
    for (const Parameter& member : entry.members)
        (ids += ids.empty() ? "" : ", ") += std::to_string(firstId(member));
    return ids;
}

std::string nameCell(const Entry& entry) {
    std::string cell;
    for (const Parameter& member : entry.members)
        cell += joined({"<a id=\"", member.name(), "\"></a>"});
    cell += joined({"`", entry.name, "`"});
    addLine(cell, idsOf(entry));
    return cell;
}

// "default 5 = 115200"; of a series whose members differ "default 3, 1, 26".
std::string defaultLine(const Entry& entry) {
    std::string list;
    for (const Parameter& member : entry.members)
        (list += list.empty() ? "" : ", ") += member.defaultValue();
    const Parameter& first = entry.first();
    std::string value = first.defaultValue();
    const auto likeFirst = [&value](const Parameter& member) { return member.defaultValue() == value; };
    if (!std::ranges::all_of(entry.members, likeFirst)) return "default " + list;
    if (value.empty()) return "default empty";
    if (!first.hasNumber()) return joined({"default `", value, "`"});
    if (isChoice(first)) {
        const std::string choice = first.choiceText(static_cast<int>(first.row().val_def), kEnglish);
        if (!choice.empty()) (value += " = ") += escaped(choice);
    }
    return "default " + value;
}

std::string limitsLine(const Parameter& parameter) {
    if (!parameter.hasNumber() || parameter.type().kind == Kind::Bool) return {};
    if (!isChoice(parameter))
        return hasLimits(parameter)    ? reference::rangeText(parameter, kEnglish)
               : parameter.isSetting() ? "no limits specified"
                                       : "";
    return joined({"choice ", reference::shortNumber(parameter.lowestNumber()), " to ",
                   reference::shortNumber(parameter.row().val_max),
                   refusesBelowOne(parameter) ? "" : "; 0 and below are **not refused**"});
}

std::string kindLine(const Parameter& parameter) {
    std::string line(parameter.type().name);
    const std::string unit = parameter.unit();
    if (!unit.empty()) (line += " in ") += unit;
    if (parameter.textRoom() > 0 && parameter.writeLevel() > 0) {
        line += joined({", ", std::to_string(parameter.lineRoom()), " bytes in a line"});
        const int meant = parameter.row().val_len;
        if (meant > 0 && meant < parameter.lineRoom())
            line += joined({", meant for ", std::to_string(meant)});
    }
    return line;
}

std::string writeLine(const Parameter& parameter) {
    if (ignoresWrites(parameter)) return "a write does nothing";
    if (parameter.writeLevel() == 0) return "read only";
    return "write: level " + std::to_string(parameter.writeLevel());
}

std::string valueCell(const Entry& entry) {
    const Parameter& parameter = entry.first();
    std::string cell = kindLine(parameter);
    if (parameter.isTemplate()) return cell;
    if (parameter.isSetting()) addLine(cell, defaultLine(entry));
    addLine(cell, limitsLine(parameter));
    if (parameter.file() != reference::File::none)
        addLine(cell, joined({"`", reference::fileName(parameter.file()), "`"}));
    else if (!isCommand(parameter))
        addLine(cell, "run-time value");
    addLine(cell, writeLine(parameter));
    return cell;
}

void addItems(std::string& cell, const Parameter& parameter, ParamLanguage language) {
    if (!isCommand(parameter)) addLine(cell, listOf(parameter.items(reference::kChoices, language)));
    for (auto group : {reference::kMessages, reference::kErrors}) {
        const std::string list = listOf(parameter.items(group, language));
        if (!list.empty()) addLine(cell, joined({parameter.heading(group, language), ": ", list}));
    }
    const std::string_view name = parameter.templateName();
    if (name.empty()) return;
    addLine(cell, joined({language == kGerman ? "wie" : "as", " [", name, "](templates.md#", name, ")"}));
}

// The row of a page that has a note in full; the others point to it.
using NotePlaces = std::map<int, std::string_view>;

void addNotes(std::string& cell, const Parameter& parameter, ParamLanguage language, NotePlaces& places) {
    const bool isGerman = language == kGerman;
    for (const int note : parameter.notes()) {
        const std::string_view place = places.try_emplace(note, parameter.name()).first->second;
        if (place != parameter.name()) {
            addLine(cell, joined({isGerman ? "*Hinweis wie bei [" : "*Remark as for [", place, "](#", place,
                                  ")*"}));
            continue;
        }
        const std::string_view sign = noteAt(note).kind != parameters::kWarning ? ""
                                      : isGerman                                ? "Achtung: "
                                                                                : "Warning: ";
        addLine(cell, joined({"*", sign, escaped(noteAt(note).text.in(language)), "*"}));
    }
}

std::string textCell(const Entry& entry, ParamLanguage language, NotePlaces& places) {
    const Parameter& parameter = entry.first();
    const std::string title = parameter.title(language);
    std::string cell;
    if (title.empty())
        addLine(cell, language == kGerman ? "kein Text" : "no text");
    else
        addLine(cell, joined({"**", escaped(entry.withNumbers(title)), "**"}));
    addLine(cell, escaped(entry.withNumbers(parameter.description(language))));
    addItems(cell, parameter, language);
    addNotes(cell, parameter, language, places);
    return cell;
}

void addTable(std::ostringstream& page, const std::vector<Parameter>& parameters, NotePlaces& places) {
    page << "| Name, id | Value | English | Deutsch |\n|---|---|---|---|\n";
    for (const Entry& entry : entriesOf(parameters))
        page << "| " << nameCell(entry) << " | " << valueCell(entry) << " | "
             << textCell(entry, kEnglish, places) << " | " << textCell(entry, kGerman, places) << " |\n";
}

// One heading per method, in their order.
void addMethodTables(std::ostringstream& page, const std::vector<Parameter>& parameters, NotePlaces& places) {
    for (const Method& method : kMethods) {
        std::vector<Parameter> own;
        std::ranges::copy_if(parameters, std::back_inserter(own), [&method](const Parameter& parameter) {
            return methodOf(parameter) == &method;
        });
        if (own.empty()) continue;
        page << "\n## " << method.en << " · " << method.de << "\n\n";
        addTable(page, own, places);
    }
}

void addMembers(std::ostringstream& page, const Parameter& record) {
    page << "\n## Members of " << record.name() << "\n\n"
         << "| Byte | Member | Kind | English | Deutsch | As, switched by |\n|---|---|---|---|---|---|\n";
    for (const reference::Member& member : reference::membersOf(record)) {
        const auto& [de, en, twin, enable] = member.texts;
        const std::string unit = unitOf(member);
        std::string like = twin.empty() ? "" : linkTo(twin);
        if (!unit.empty()) like += " in " + unit;
        if (!enable.empty()) addLine(like, linkTo(enable));
        page << "| " << member.properties->lMemberOffset << " | `" << member.properties->aszMemberName
             << "` | " << member.properties->szMemberType << " | " << en << " | " << de << " | " << like
             << " |\n";
    }
}

std::string pageOf(const stParamFamily& family) {
    std::vector<Parameter> parameters;
    for (const Parameter& parameter : reference::parameters())
        if (&parameter.family() == &family) parameters.push_back(parameter);
    std::ostringstream page;
    NotePlaces places;
    page << kGenerated << "# " << family.name << " · " << familyName(family, kGerman)
         << "\n\n[How to read a row, all families · Wie eine Zeile zu lesen ist, alle Familien](README.md)\n";
    if (std::ranges::all_of(parameters, methodOf)) {
        page
            << "\nThe page [Detection methods](detection-methods.md) shows what else belongs to a method, for "
               "instance its output functions.\n";
        addMethodTables(page, parameters, places);
    } else {
        page << '\n';
        addTable(page, parameters, places);
    }
    for (const Parameter& parameter : parameters)
        if (parameter.type().nature == Nature::record) addMembers(page, parameter);
    return page.str();
}

} // namespace

void addFamilies(Pages& pages) {
    for (const stParamFamily& family : reference::model().families)
        pages[fileOf(family)] = pageOf(family);
}

} // namespace talux::pages
