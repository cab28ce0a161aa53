// The entry page of the reference, and every parameter by name and by id.
#include <set>
#include <sstream>

#include "ParamSystem/dictionary/Tables.h"
#include "ParamSystem/support/Text.h"
#include "tools/pages/Markdown.h"
#include "tools/pages/Names.h"
#include "tools/pages/Pages.h"

namespace talux::pages {

namespace {

constexpr std::string_view kEntry = R"(# Parameters

Every parameter of the device, in English and German.

| | |
|---|---|
| [parameters.html](parameters.html) | **all parameters on one page, to search as you type**, German or English. One file that needs no server and no network: copy it to a phone or a laptop, print from it |
| [parameters.csv](parameters.csv) | the same as a table, for other programs (RFC 4180, UTF-8) |
| [Detection methods](detection-methods.md) | what belongs together: switch, thresholds, times, logs, outputs of each method |
| [Records](records.md) | the members of the three records |
| [Glossary](glossary.md) | words of the trade and of the device in both languages |
| [By name](by-name.md), [by id](by-id.md) | every parameter |
| the pages of the families, below | every parameter in the order of the menus |

At the relay `talux explain NAME` tells the same and the values. How settings are changed, made live and kept stands in
[Commissioning](../commissioning.md), the language of the lines in [KEPL](../kepl.md).

## How to read a row

**Name, id.** In a line the name has `TLX_` in front; letter case does not count. `U{1..3}_prim` are `U1_prim`,
`U2_prim`, `U3_prim`; their texts show the numbers the same way. `vBE[1..96]` is one parameter with elements, each
with an id of its own: `TLX_vBE 5`.

**Value.**

| | |
|---|---|
| kind, unit | `long`, `int`, `bool`, `enum` hold whole numbers: a fraction is cut off, 5.9 becomes 5, without a word. Numbers have a decimal **point**; a comma ends the term and writes a wrong value |
| default | the factory setting; of a series one, where all have the same, or each |
| 1 to 90 | a write outside is refused. "no limits told": anything from -999999999 to 999999999 is taken. Run-time values are checked only where a range stands |
| choice 1 to 5 | choices **count from 1**. More is refused; where there is no least number told, 0, negative numbers and fractions are taken all the same |
| bytes in a line | what a line of the language can write: of 127 characters, prefix, name, `=` and quotes take theirs. An umlaut has two bytes. A longer text is **cut without a word** (the store itself keeps 127 bytes of a text, 19 of an address and an identifier). "meant for" is the length that the device expects; nothing checks it |
| `parameter.ini`, `sec_parameter.ini`, `ip_config.ini` | the [file](../files.md) that keeps the setting |
| run-time value | measured value, state, process image: live at once, in no file, zero after power-up |
| write: level 2 | the rights that a write takes. Scripts and the entry functions have level 3 |
| read only, a write does nothing | the language refuses a write; a write to a command or a record is accepted and has no effect |

**Texts.** Title, description, choices; in *italics* what else must be known, also what is *not* known here: where a
number is only passed on to another program, ask for its meaning before setting it. "as X" points to choices that
several parameters share.

## Families

| Family | Parameters | Ids |
|---|---|---|
)";

std::string inSmallLetters(std::string_view text) {
    std::string small(text);
    for (char& c : small)
        c = lowerAscii(c);
    return small;
}

std::string entryPage() {
    std::ostringstream page;
    page << kGenerated << kEntry;
    for (const stParamFamily& family : kFamilies) {
        int count = 0;
        std::vector<int> ids;
        for (const Parameter& parameter : reference::parameters()) {
            if (&parameter.family() != &family) continue;
            ++count;
            for (int id = firstId(parameter); id <= lastId(parameter); ++id)
                ids.push_back(id);
        }
        page << "| [" << family.name << "](" << fileOf(family) << ") | " << count << " | " << asRanges(ids)
             << " |\n";
    }
    return page.str();
}

std::string byName() {
    std::set<std::pair<std::string, std::string>> lines;
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate())
            lines.emplace(inSmallLetters(parameter.name()),
                          joined({"| ", linkTo(parameter), " | ", escaped(parameter.title(kEnglish)), " | ",
                                  escaped(parameter.title(kGerman)), " |\n"}));
    std::string page = joined({kGenerated, "# Parameters by name\n\n[All families](README.md)\n\n",
                               "| Name | English | Deutsch |\n|---|---|---|\n"});
    for (const auto& [name, line] : lines)
        page += line;
    return page;
}

std::string byId() {
    std::set<std::pair<int, std::string>> lines;
    for (const Parameter& parameter : reference::parameters()) {
        std::string ids = std::to_string(firstId(parameter));
        if (parameter.isIndexed()) ids += ".." + std::to_string(lastId(parameter));
        lines.emplace(firstId(parameter),
                      joined({"| ", ids, " | ", linkTo(parameter), " | ", parameter.type().name, " | [",
                              parameter.family().name, "](", fileOf(parameter.family()), ") |\n"}));
    }
    std::string page = joined({kGenerated, "# Parameters by id\n\n[All families](README.md)\n\n", "The ids ",
                               std::to_string(kFirstInt), " to ", std::to_string(kFirstInt + kIntCount - 1),
                               " have two parameters each, a long and an int.\n\n",
                               "| Id | Name | Kind | Family |\n|---|---|---|---|\n"});
    for (const auto& [id, line] : lines)
        page += line;
    return page;
}

} // namespace

void addIndexes(Pages& pages) {
    pages["README.md"] = entryPage();
    pages["by-name.md"] = byName();
    pages["by-id.md"] = byId();
}

} // namespace talux::pages
