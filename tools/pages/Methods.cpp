// The page of the detection methods: what belongs together.
#include "tools/pages/Markdown.h"
#include "tools/pages/Pages.h"

namespace talux::pages {

namespace {

// "`Uearth` 30 %": with the factory default where there is one.
std::string parameterList(const Parameters& parameters) {
    return list(parameters, ", ", [](const Parameter* parameter) {
        const std::string value = parameter->isSetting() ? " " + parameter->defaultValue() : "";
        const bool hasUnit = parameter->isSetting() && !parameter->unit().empty();
        return joined({linkTo(*parameter), value, hasUnit ? " " + parameter->unit() : ""});
    });
}

std::string choiceList(std::string_view numbers, std::string_view parameter) {
    std::vector<reference::Choice> choices;
    const Parameter& chooser = *reference::find(parameter);
    for (int number : numbersOf(numbers))
        choices.push_back({number, chooser.choiceText(number, kEnglish)});
    std::string list;
    for (const auto& [number, text] : choices) {
        (list += list.empty() ? "" : " · ") += std::to_string(number);
        const std::string german = chooser.choiceText(number, kGerman);
        (list += " = ") += escaped(text);
        if (german != text) list += " (" + escaped(german) + ")";
    }
    return list;
}

void addRow(std::string& page, std::string_view label, const std::string& content) {
    if (!content.empty()) page += joined({"| ", label, " | ", content, " |\n"});
}

void addMethod(std::string& page, const Method& method) {
    page += joined({"\n## ", method.en, " · ", method.de, "\n\n"});
    if (!method.enRemark.empty())
        page += joined({escaped(method.enRemark), "\n\n*", escaped(method.deRemark), "*\n\n"});
    page += "| | |\n|---|---|\n";
    constexpr std::string_view kRoles[] = {"switch · Freigabe",        "thresholds · Schwellen",
                                           "settings · Einstellungen", "delays · Verzögerungen",
                                           "durations · Dauern",       "logs · Logbücher"};
    for (int role = 0; const std::string_view label : kRoles)
        addRow(page, label, parameterList(settingsOf(method.id, parameters::Role{role++})));
    Parameters measured;
    for (const std::string& name : namesOf(method.measured))
        measured.push_back(reference::find(name));
    addRow(page, "measured · Messwerte", parameterList(measured));
    addRow(page, "output functions · Ausgangsfunktionen", choiceList(method.functions, "BAassign1"));
    addRow(page, "priorities · Prioritäten", choiceList(method.priorities, "prio_list_1"));
}

// Which method for which neutral earthing, and what works with the factory settings.
void addEarthings(std::string& page) {
    page +=
        "\n## Which method for which neutral earthing · Welches Verfahren für welche Sternpunktbehandlung\n\n"
        "This is common practice; what this device does in detail is not documented. *on*: the method works with "
        "the factory settings. · *Wie im Fach üblich; was dieses Gerät im Einzelnen tut, ist nicht "
        "dokumentiert.*\n\n"
        "| Method · Verfahren | Neutral earthing | Sternpunkt | Factory |\n|---|---|---|---|\n";
    for (const Method& method : kMethods) {
        if (method.enEarthing.empty()) continue;
        const Parameters switches = settingsOf(method.id, parameters::kEnable);
        const bool isOn = switches.empty() || switches.front()->row().val_def != 0;
        page += joined({"| ", method.en, " · ", method.de, " | ", method.enEarthing, " | ", method.deEarthing,
                        " | ", isOn ? "on" : "off", " |\n"});
    }
}

} // namespace

void addMethods(Pages& pages) {
    std::string page = joined(
        {kGenerated, "# Detection methods\n\n[All parameters](README.md)\n\n",
         "The settings and signals of each method, with the factory defaults. A method works when its first switch is 1; further "
         "switches enable parts of it. It signals on the outputs to which one of its *output functions* is "
         "assigned: write their numbers to `BAassign{1..8}` for relays and to `LEDassign{1..10}` for LEDs "
         "([BA_FUNCTION](templates.md#BA_FUNCTION) is the whole list), those of its *priorities* to "
         "`prio_list_{1..10}`.\n"});
    addEarthings(page);
    for (const Method& method : kMethods)
        addMethod(page, method);
    pages["detection-methods.md"] = page;
}

} // namespace talux::pages
