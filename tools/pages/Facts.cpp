#include "tools/pages/Facts.h"

#include <algorithm>

#include "tools/pages/Names.h"

namespace talux::pages {

namespace {

// In the order of the families.
constexpr std::string_view kGermanFamilies[] = {"Vorlagen",
                                                "Zustand",
                                                "Messwerte",
                                                "Meldungen",
                                                "Kennzeichnung",
                                                "Anzeige",
                                                "Netzwerk",
                                                "Firewall und Dienste",
                                                "Zeitdienste",
                                                "Serielle Schnittstellen",
                                                "Modbus-Slave",
                                                "Fernwirken",
                                                "Skripte",
                                                "Prozessabbilder",
                                                "Analogeingänge",
                                                "Binäre Ein- und Ausgänge",
                                                "Erdschlusserfassung",
                                                "Recorder und Statistik",
                                                "Benutzertexte",
                                                "Service",
                                                "Benutzer und Sicherheit",
                                                "Laufzeitwerte",
                                                "Momentaufnahme der Messwerte",
                                                "Datensätze"};

} // namespace

std::string_view germanName(const stParamFamily& family) {
    return kGermanFamilies[static_cast<std::size_t>(&family - reference::model().families.data())];
}

bool hasLimits(const Parameter& parameter) {
    return parameter.hasNumber() && (parameter.hasMinimum() || parameter.hasMaximum());
}

const model::Note& noteAt(int place) {
    return reference::model().notes[static_cast<std::size_t>(place)];
}

const Method* methodOf(const Parameter& parameter) {
    const int method = parameter.model().method;
    return method < 0 ? nullptr : &kMethods[method];
}

bool isOfMethod(const Parameter& parameter) {
    return std::string_view(parameter.family().name) == kMethodFamily;
}

std::string unnamedSettingsOf(const Method& method) {
    const auto named = namesOf(settingsOf(method));
    std::string all;
    for (const Parameter& parameter : reference::parameters())
        if (isOfMethod(parameter) && methodOf(parameter) == &method &&
            std::ranges::count(named, parameter.name()) == 0)
            (all += ' ') += parameter.name();
    return all;
}

} // namespace talux::pages
