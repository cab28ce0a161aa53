#include "tools/talux/Search.h"

#include <algorithm>

#include "support/Text.h"
#include "tools/talux/Show.h"

namespace talux::tool {

namespace {

constexpr std::size_t kLongWord = 5;

bool isLetter(char c) {
    const char small = lowerAscii(c);
    return (small >= 'a' && small <= 'z') || (static_cast<unsigned char>(c) & 0x80) != 0;
}

// Of a letter.
bool isSmall(char c) {
    return lowerAscii(c) == c;
}

// "SigDel" begins in "Uearth_SigDel" and in "EvSigDel".
bool beginsWord(std::string_view text, std::size_t at) {
    return at == 0 || !isLetter(text[at - 1]) || !isLetter(text[at]) ||
           (isSmall(text[at - 1]) && !isSmall(text[at]));
}

bool holdsWord(std::string_view text, std::string_view word) {
    for (std::size_t at = 0; at + word.size() <= text.size(); ++at) {
        if (!equalIgnoringCase(text.substr(at, word.size()), word)) continue;
        const std::size_t end = at + word.size();
        const bool endsWord = word.size() >= kLongWord && (end == text.size() || !isLetter(text[end]));
        if (beginsWord(text, at) || endsWord) return true;
    }
    return false;
}

bool holdsWords(const Parameter& parameter, const std::vector<std::string>& words) {
    std::string texts(parameter.name());
    for (const ParamLanguage language : {kEnglish, kGerman})
        texts += "\n" + parameter.title(language) + "\n" + parameter.description(language);
    return std::ranges::all_of(words, [&texts](const auto& word) { return holdsWord(texts, word); });
}

bool isOfFamily(const Parameter& parameter, const std::string& family) {
    return reference::containsIgnoringCase(familyName(parameter, kEnglish), family) ||
           reference::containsIgnoringCase(familyName(parameter, kGerman), family);
}

bool hasNoLimits(const Parameter& parameter) {
    const bool counts = parameter.type().kind == Kind::Bool || !parameter.choiceItems().empty();
    return parameter.isSetting() && parameter.hasNumber() && !counts && !parameter.hasMinimum() &&
           !parameter.hasMaximum();
}

} // namespace

Parameters search(const std::vector<std::string>& words) {
    return reference::chosen([&](const Parameter& parameter) { return holdsWords(parameter, words); });
}

File fileCalled(const std::string& name, const Context& context) {
    if (name.empty()) return File::none;
    for (const File file : kFiles)
        if (fileName(file).starts_with(name)) return file;
    context.fail("--file {}: is none of parameter.ini, sec_parameter.ini, ip_config.ini",
                 "--file {}: weder parameter.ini noch sec_parameter.ini noch ip_config.ini", printable(name));
}

void Filter::addTo(Command& command) {
    command.option("--family", family,
                   {"only families whose name contains this, in English or German",
                    "nur Familien, deren Name dies enthält, englisch oder deutsch"});
    command.option("--file", file,
                   {"only settings saved in the file whose name begins with this: parameter, sec, ip",
                    "nur Einstellungen, die in der Datei liegen, deren Name so beginnt: parameter, sec, ip"});
    command.option("--level", level,
                   {"only parameters that need this rights level to write: 1, 2 or 3",
                    "nur Parameter, deren Schreiben diese Rechtestufe braucht: 1, 2 oder 3"},
                   1, 3);
    command.option(
        "--method", method,
        {"only what belongs to the detection method whose name contains this: qu2, wattmetric",
         "nur was zu dem Erfassungsverfahren gehört, dessen Name dies enthält: qu2, wattmetrisch"});
    command.flag("--individual", individual,
                 {"only what belongs to the single device: name, addresses, ..",
                  "nur was zum einzelnen Gerät gehört: Name, Adressen, .."});
    command.flag("--no-limits", noLimits,
                 {"only settings without specified limits",
                  "nur Einstellungen, für deren Zahlen keine Grenzen festgelegt sind"});
    command.option("--search", words,
                   {"only parameters whose texts contain all of these words",
                    "nur Parameter, deren Texte alle diese Wörter enthalten"});
}

Parameters Filter::chosen(const Context& context) const {
    for (const std::string& name : names)
        if (reference::chosen([&](const auto& row) { return reference::fits(row.name(), name); }).empty())
            throw CouldNot(unknownName(name, context));
    if (std::ranges::none_of(reference::parameters(),
                             [this](const Parameter& row) { return isOfFamily(row, family); }))
        context.fail("no family is named {}", "keine Familie heißt {}", printable(family));
    const File only = fileCalled(file, context);
    const int methodNumber = reference::methodNamed(method);
    if (methodNumber < 0)
        context.fail("no method is named {}; there are {}", "kein Verfahren heißt {}; es gibt {}",
                     printable(method), list(reference::model().methods, ", ", [&](const auto& name) {
                         return name.in(context.language);
                     }));
    return reference::chosen([&](const Parameter& row) {
        const auto fitsName = [&](const std::string& name) { return reference::fits(row.name(), name); };
        if (!names.empty() && !std::ranges::any_of(names, fitsName)) return false;
        if (!isOfFamily(row, family)) return false;
        if (!method.empty() && !isOfMethod(row, methodNumber)) return false;
        if (individual && !isIndividual(row)) return false;
        if (noLimits && !hasNoLimits(row)) return false;
        if (only != File::none && row.file() != only) return false;
        if (level != 0 && row.writeLevel() != level) return false;
        return words.empty() || holdsWords(row, words);
    });
}

} // namespace talux::tool
