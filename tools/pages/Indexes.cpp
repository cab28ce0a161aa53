// The entry page of the reference.
#include <algorithm>
#include <set>
#include <sstream>

#include "ParamSystem/store/Kinds.h"
#include "tools/pages/Markdown.h"
#include "tools/pages/Pages.h"

namespace talux::pages {

namespace {

constexpr std::string_view kEntry = R"(# Parameters · Parameter

Every parameter of the device, in English and German.

| | |
|---|---|
| [parameters.html](parameters.html) | **all parameters on one page, to search as you type**, German or English. One file that needs no server and no network: copy it to a phone or a laptop, print from it. A click copies a name, ticked rows make a plan for `talux apply` |
| `parameters.csv` | the same as a table, for other programs (RFC 4180, UTF-8): beside this page in the package `talux-lua-dev`, in `generated/docs/parameters/` of a build folder |
| [Detection methods](detection-methods.md) | which method for which neutral earthing; switch, thresholds, times, logs, outputs of each method |
| [Records](records.md) | the members of the three records |
| [Plausibility](plausibility.md) | rules by which `talux` reports settings that the device accepts but that are implausible |
| [Glossary](glossary.md) | words of the trade and of the device in both languages |
| the pages of the families, below | every parameter in the order of the menus |

At the relay `talux explain NAME` shows the same, with `--live` also the value. [Commissioning](../commissioning.md)
shows how settings are changed, made live and saved, [KEPL](../kepl.md) is the language of the lines.

## How to read a row

**Name, id.** In a line, write `TLX_` before the name; letter case does not matter. `U{1..3}_prim` are `U1_prim`,
`U2_prim`, `U3_prim`; their texts show the numbers the same way. `vBE[1..96]` is one parameter with elements, each
with its own id: `TLX_vBE 5`.

**Value.**

| | |
|---|---|
| kind, unit | `long`, `int`, `bool`, `enum` hold whole numbers: a fraction is cut off silently, 5.9 becomes 5. Numbers have a decimal **point**; a comma ends the term and writes a wrong value |
| default | the factory setting; one value if all of a series have the same, otherwise each |
| 1 to 90 | a write outside the range is refused. "no limits specified": anything from -999999999 to 999999999 is accepted. Run-time values are checked only if a range is shown |
| choice 1 to 5 | choices **count from 1**. More is refused. "0 and below are **not refused**": such a number is stored all the same. A fraction is cut off in every choice |
| bytes in a line | what a line of the language can write: of its 127 characters, prefix, name, `=` and quotes take some. An umlaut has two bytes. A longer text is **cut silently** (the store itself has room for 127 bytes of a text, 19 of an address and an identifier). "meant for" is the length that the device expects; neither the language nor a load checks it |
| `parameter.ini`, `sec_parameter.ini`, `ip_config.ini` | the [file](../files.md) in which the setting is saved |
| run-time value | measured value, state, process image: live at once, in no file, zero after power-up |
| write: level 2 | the rights level that a write needs. Scripts and the entry functions have level 3 |
| read only, a write does nothing | the language refuses a write; a write to a command or a record is accepted and has no effect |

**Texts.** Title, description, choices; in *italics* what else you must know, also what is *not documented*: if a
number is only passed on to another program, find out its meaning before you set it. "as X" points to choices that
several parameters share; "Remark as for X" to a remark that is shown only once on a page.

## Wie eine Zeile zu lesen ist

**Name, Id.** In einer Zeile steht `TLX_` vor dem Namen; Groß- und Kleinschreibung ist gleich. `U{1..3}_prim` sind
`U1_prim`, `U2_prim`, `U3_prim`. `vBE[1..96]` ist ein Parameter mit Elementen: `TLX_vBE 5`.

**Wert.** `default` ist die Werkseinstellung, `1 to 90` der zulässige Bereich, `no limits specified` heißt, dass alles
angenommen wird. Auswahlen (`choice`) zählen **ab 1**; bei `0 and below are not refused` werden auch 0 und negative
Zahlen gespeichert. Ganze Zahlen verlieren Nachkommastellen ohne Meldung; Dezimalzahlen haben einen **Punkt**, ein Komma
beendet den Term und schreibt einen falschen Wert. Längere Texte als angegeben (`bytes in a line`) werden ohne Meldung
gekürzt. Die genannte [Datei](../files.md) speichert die Einstellung; ein `run-time value` ist ein Laufzeitwert, gilt
sofort und steht in keiner Datei. `write: level` ist die nötige Rechtestufe.

**Texte.** Titel, Beschreibung, Auswahlen; *kursiv*, was sonst zu wissen ist, auch was *nicht dokumentiert* ist: Wird
eine Zahl nur an ein anderes Programm weitergegeben, klären Sie ihre Bedeutung vor dem Einstellen.

## Families · Familien

| Family | Familie | Parameters | Ids |
|---|---|---|---|
)";

// What a new parameter can take.
std::string freeIds() {
    std::set<std::pair<Kind, int>> taken;
    for (const Parameter& parameter : reference::parameters())
        for (int id = firstId(parameter); id <= lastId(parameter); ++id)
            taken.emplace(parameter.type().kind, id);
    std::string rows;
    for (const Block& block : kBlocks) {
        std::vector<int> free;
        for (int id = block.first; id < block.first + block.count; ++id)
            if (!taken.contains({block.kind, id}) && block.kind != Kind::Int) free.push_back(id);
        const auto* const type = std::ranges::find(kTypes, block.kind, &Type::kind);
        if (!free.empty()) rows += joined({"| ", type->name, " | ", asRanges(free), " |\n"});
    }
    return rows;
}

std::string entryPage() {
    std::ostringstream page;
    page << kGenerated << kEntry;
    for (const stParamFamily& family : reference::model().families) {
        int count = 0;
        std::vector<int> ids;
        for (const Parameter& parameter : reference::parameters()) {
            if (&parameter.family() != &family) continue;
            ++count;
            for (int id = firstId(parameter); id <= lastId(parameter); ++id)
                ids.push_back(id);
        }
        page << "| [" << family.name << "](" << fileOf(family) << ") | " << familyName(family, kGerman)
             << " | " << count << " | " << asRanges(ids) << " |\n";
    }
    page << "\n## Free ids\n\nFor new parameters; the ids " << kFirstInt << " to "
         << kFirstInt + kIntCount - 1
         << " can have two each, a long and an int.\n\n| Kind | Ids |\n|---|---|\n"
         << freeIds();
    return page.str();
}

} // namespace

void addIndexes(Pages& pages) {
    pages["README.md"] = entryPage();
}

} // namespace talux::pages
