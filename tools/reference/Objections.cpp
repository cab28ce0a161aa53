// What speaks against a value, in words.
#include "support/EnumRows.h"
#include "tools/Strings.h"
#include "tools/reference/Reference.h"

namespace talux::reference {

namespace {

// The gap takes the range or the limit.
struct Description {
    Reason reason;
    const char* code;
    const char *english, *german;
};
constexpr const char *kOutside = "is out of range: {}", *kOutsideDe = "liegt außerhalb: {}";
constexpr const char *kNumber = "is not a number", *kNumberDe = "ist keine Zahl";
constexpr Description kDescriptions[] = {
    {Reason::none, "", "", ""},
    {Reason::readOnly, "read-only", "can only be read", "kann nur gelesen werden"},
    {Reason::noValue, "no-value", "holds no value", "hat keinen speicherbaren Wert"},
    {Reason::noNumber, "no-number", kNumber, kNumberDe},
    {Reason::notANumber, "range", kNumber, kNumberDe},
    {Reason::tooLow, "range", kOutside, kOutsideDe},
    {Reason::tooHigh, "range", kOutside, kOutsideDe},
    {Reason::noChoice, "range", kOutside, kOutsideDe},
    {Reason::notWhole, "rounded", "is not a whole number", "ist keine ganze Zahl"},
    {Reason::holdsNul, "nul", "contains a NUL character", "enthält ein NUL-Zeichen"},
    {Reason::notCarried, "not-back",
     "contains a double quote, an equals sign or a control character: a file does not bring it back",
     "enthält ein Anführungs-, Gleichheits- oder Steuerzeichen: eine Datei bringt es nicht zurück"},
    {Reason::tooLong, "long", "has more than {} characters", "hat mehr als {} Zeichen"},
    {Reason::tooManyBytes, "cut", "has more than {} bytes", "hat mehr als {} Bytes"},
    {Reason::noAddress, "address",
     "is not an address: four numbers of 0 to 255 with points between them, without leading zeros",
     "ist keine Adresse: vier Zahlen von 0 bis 255 mit Punkten dazwischen, ohne führende Nullen"},
    {Reason::noNetmask, "netmask", "is not a netmask: its ones are not contiguous",
     "ist keine Netzmaske: die Einsen sind nicht zusammenhängend"},
    {Reason::noDate, "date", "is not a date: YYYY-MM-DD", "ist kein Datum: JJJJ-MM-TT"},
    {Reason::noTime, "time", "is not a time: HH:MM:SS", "ist keine Uhrzeit: HH:MM:SS"},
    {Reason::tooMany, "", "", ""},
    {Reason::notSaved, "", "", ""},
    {Reason::notLoaded, "", "", ""},
};
static_assert(hasRowForEach<&Description::reason>(kDescriptions), "each enumerator has its row, in order");

} // namespace

std::string describe(const rules::Objection& objection, const std::string& range, ParamLanguage language) {
    const Description& words = rowOf(kDescriptions, objection.reason);
    const bool isRange = std::string_view(words.code) == "range";
    return fill(language == kGerman ? words.german : words.english,
                {isRange ? range : shortNumber(objection.limit)});
}

std::string describe(const rules::Objection& objection, const Parameter& parameter, ParamLanguage language) {
    std::string range = rangeText(parameter, language);
    if (range.empty())
        return describe(objection, language == kGerman ? "neun Stellen" : "nine digits", language);
    const std::string unit = parameter.unit();
    if (!unit.empty() && parameter.facts().form != rules::Form::choice) range += " " + unit;
    return describe(objection, range, language);
}

const char* codeOf(Reason reason) {
    return rowOf(kDescriptions, reason).code;
}

} // namespace talux::reference
