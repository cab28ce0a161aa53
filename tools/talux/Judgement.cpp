#include "tools/talux/Judgement.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "ParamSystem/files/Line.h"
#include "tools/talux/Lookup.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

constexpr int kMostStrangers = 100; // of a file are judged

// What else speaks against a value shows in what is stored and comes back. A file may bring what nobody else
// writes.
constexpr rules::Reasons kReported{Reason::notANumber, Reason::tooLow,   Reason::tooHigh,
                                   Reason::noChoice,   Reason::tooLong,  Reason::tooManyBytes,
                                   Reason::noAddress,  Reason::noNetmask};

std::optional<reference::File> fileNamedBy(const std::string& path) {
    const std::string name = path.substr(path.find_last_of('/') + 1);
    if (name.find("ip_config") != name.npos) return reference::File::address;
    if (name.starts_with("sec_param")) return reference::File::security;
    if (name.starts_with("param")) return reference::File::normal;
    return {};
}

// Of a file that can be looked at twice.
bool beginsWithMark(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return false;
    char mark[3] = {};
    std::ifstream(path, std::ios::binary).read(mark, sizeof mark);
    return std::string_view(mark, sizeof mark) == "\xEF\xBB\xBF";
}

// Words behind the first one of a number, which are not read.
std::string_view wordsBehind(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    const auto blank = text.find_first_of(" \t", first);
    const auto second = text.find_first_not_of(" \t", blank);
    return blank == text.npos || second == text.npos ? std::string_view() : text.substr(second);
}

bool isWhole(const Parameter& parameter) {
    return parameter.type().fileDecimals == 0;
}

} // namespace

std::optional<Finding> wouldNotComeBack(const Parameter& parameter, const Value& value,
                                        const Context& context) {
    char line[kLineSize];
    if (formatLine(line, parameter.row(), value) == 0) return {};
    const std::string written = fileForm(parameter, value);
    const Effect effect = effectOf(parseEntry(line));
    std::optional<Value> back;
    if (effect.outcome == Outcome::stored) back = storedAs(effect.row->id, *effect.value);
    if (sameValue(back, value)) return {};
    return Finding{"not-back",
                   fill(context.say("would not come back: a save writes {}, a load makes {} of it",
                                    "käme nicht zurück: Speichern schreibt {}, Laden macht daraus {}"),
                        {printable(written), back ? plain(parameter, *back) : "-"})};
}

Judge::Judge(const std::string& path, const Source& source, const Context& person)
    : before(source), context(person), expected(fileNamedBy(path)), hasMark(beginsWithMark(path)) {}

void Judge::add(Judgement& judgement, const char* code, std::string text) const {
    judgement.findings.push_back({code, std::move(text)});
}

Judgement Judge::judge(const Entry& entry) {
    Judgement judgement;
    judgement.line = entry.line;
    // The rest of a line that was told to be too long matters only where it is read as a parameter.
    const bool isNothing = entry.form == LineForm::nothing && !entry.hasNul;
    if (isNothing || (entry.continues && entry.form != LineForm::entry)) return judgement;
    const Effect effect = effectOf(entry);
    if (effect.row == nullptr && ++strangers > kMostStrangers) {
        judgement.isUntold = true;
        return judgement;
    }
    judgeLine(entry, judgement);
    if (entry.form != LineForm::entry) return judgement;
    judgement.name = effect.row == nullptr ? printable(entry.name) : effect.row->name;
    judgement.parameter = effect.row == nullptr ? nullptr : reference::find(effect.row->name);
    if (effect.outcome == Outcome::stored)
        judgeStored(entry, effect, judgement);
    else
        judgeSkipped(entry, effect, judgement);
    return judgement;
}

template <class Given>
void Judge::addObjections(const Parameter& parameter, const Given& given, Judgement& judgement) const {
    rules::forEachObjection(parameter.facts(), given, kReported, [&](const rules::Objection& objection) {
        std::string text = describe(objection, parameter, context.language);
        if (objection.reason == Reason::tooManyBytes)
            text += context.say(" and is cut", " und wird abgeschnitten");
        else if (!judgement.to->isText())
            text += context.say(", is loaded all the same", ", wird trotzdem geladen");
        add(judgement, reference::codeOf(objection.reason), std::move(text));
    });
}

// What is odd whatever the line is about.
void Judge::judgeLine(const Entry& entry, Judgement& judgement) const {
    if (entry.line == 1 && hasMark)
        add(judgement, "mark",
            context.say(
                "a byte order mark precedes it, so the line is not read: save the file without one",
                "davor steht ein Byte Order Mark, die Zeile wird deshalb nicht gelesen: ohne speichern"));
    else if (entry.form == LineForm::foreign)
        add(judgement, "foreign",
            context.say("no parameter: does not begin with TLX_; is skipped",
                        "kein Parameter: beginnt nicht mit TLX_; wird übergangen"));
    if (entry.continues)
        add(judgement, "continued",
            context.say("is the rest of a line of more than 254 characters and is read as a parameter",
                        "ist der Rest einer Zeile mit mehr als 254 Zeichen und wird als Parameter gelesen"));
    if (entry.isCut)
        add(judgement, "cut-line",
            context.say("more than 254 characters: the rest is read as a line of its own",
                        "mehr als 254 Zeichen: der Rest wird als eigene Zeile gelesen"));
    if (entry.hasNul)
        add(judgement, "nul",
            context.say("contains a NUL character: everything after it is not read",
                        "enthält ein NUL-Zeichen: alles danach wird nicht gelesen"));
}

void Judge::judgeSkipped(const Entry& entry, const Effect& effect, Judgement& judgement) const {
    switch (effect.outcome) {
    case Outcome::unknownName: {
        std::string text =
            context.say("no parameter has this name; is skipped", "kein Parameter heißt so; wird übergangen");
        text += nearestName(entry.name, context);
        add(judgement, "unknown", std::move(text));
        break;
    }
    case Outcome::runTime:
        add(judgement, "run-time",
            context.say("is a run-time value, no setting; is skipped",
                        "ist ein Laufzeitwert, keine Einstellung; wird übergangen"));
        break;
    case Outcome::notANumber: {
        if (entry.value.empty()) {
            add(judgement, "no-number",
                context.say("has no value; is skipped", "hat keinen Wert; wird übergangen"));
            break;
        }
        const bool hasComma = entry.value.find(',') != entry.value.npos;
        std::string text =
            fill(context.say("'{}' is not a number; is skipped", "'{}' ist keine Zahl; wird übergangen"),
                 {printable(entry.value)});
        if (hasComma) text += context.say("; decimals need a point", "; Dezimalen brauchen einen Punkt");
        add(judgement, "no-number", std::move(text));
        break;
    }
    case Outcome::noSlot:
        add(judgement, "no-value",
            context.say("holds no value; is skipped", "hat keinen speicherbaren Wert; wird übergangen"));
        break;
    case Outcome::noEntry:
    case Outcome::otherType:
    case Outcome::stored:
        break;
    }
}

void Judge::judgeStored(const Entry& entry, const Effect& effect, Judgement& judgement) {
    if (effect.row == nullptr) return; // never, of what is stored
    const int id = effect.row->id;
    const auto earlier = seen.find(id);
    judgement.from = earlier == seen.end() ? before.value(id) : std::optional(earlier->second.value);
    judgement.to = storedAs(id, *effect.value);
    if (earlier != seen.end())
        add(judgement, "again",
            fill(context.say("is also in line {}; this one is used",
                             "steht auch in Zeile {}; diese hier gilt"),
                 {std::to_string(earlier->second.line)}));
    seen.insert_or_assign(id, Seen{*judgement.to, entry.line});
    if (isOfClock(*judgement.parameter)) return;
    if (!entry.hasValue)
        add(judgement, "empty",
            context.say("has no value; the empty text is loaded",
                        "hat keinen Wert; der leere Text wird geladen"));
    if (entry.tail == Tail::text)
        add(judgement, "tail",
            context.say("the text after the value is not read", "der Text nach dem Wert wird nicht gelesen"));
    if (judgement.to->isText())
        judgeText(entry, judgement);
    else
        judgeNumber(entry, effect.value->number(), judgement);
    if (auto finding = wouldNotComeBack(*judgement.parameter, *judgement.to, context))
        judgement.findings.push_back(std::move(*finding));
    judgePlace(judgement);
}

void Judge::judgeNumber(const Entry& entry, double given, Judgement& judgement) const {
    const Parameter& parameter = *judgement.parameter;
    if (const auto words = wordsBehind(entry.value); !words.empty())
        add(judgement, "tail",
            fill(context.say("'{}' after the number is not read", "'{}' nach der Zahl wird nicht gelesen"),
                 {printable(words)}));
    addObjections(parameter, given, judgement);
    const double kept = judgement.to->number();
    const double lost = std::abs(kept - given);
    if (isWhole(parameter) ? kept != given : lost > 1e-6 * std::abs(given))
        add(judgement, "rounded",
            fill(context.say("is stored as {}", "wird als {} gespeichert"),
                 {plain(parameter, *judgement.to)}));
}

void Judge::judgeText(const Entry& entry, Judgement& judgement) const {
    const Parameter& parameter = *judgement.parameter;
    const std::string_view given = entry.value, kept = judgement.to->text();
    if (entry.isQuoted && !entry.isClosed)
        add(judgement, "unclosed",
            context.say("there is no closing quote before the end of the line or a second =",
                        "vor dem Zeilenende oder einem zweiten = fehlt das schließende Anführungszeichen"));
    if (!entry.isQuoted && given.find('"') != given.npos)
        add(judgement, "quote",
            context.say("the quotes become part of the text: the value does not begin with one",
                        "die Anführungszeichen werden Teil des Textes: der Wert beginnt nicht damit"));
    if (!entry.isQuoted && given.ends_with(' '))
        add(judgement, "blank",
            context.say("the blanks at the end become part of the text",
                        "die Leerzeichen am Ende werden Teil des Textes"));
    addObjections(parameter, given, judgement);
    if (!isUtf8(kept))
        add(judgement, "encoding",
            context.say("is not UTF-8 and will not be displayed correctly",
                        "ist kein UTF-8-Text und wird nicht richtig angezeigt"));
}

void Judge::judgePlace(Judgement& judgement) const {
    const Parameter& parameter = *judgement.parameter;
    if (expected && parameter.file() != *expected)
        add(judgement, "other-file",
            fill(context.say("belongs in {}: is loaded from here, but saved there",
                             "gehört in {}: wird von hier geladen, aber dort gespeichert"),
                 {reference::fileName(parameter.file())}));
    if (expected == reference::File::security && parameter.name() == "sec_mode" &&
        judgement.to->number() != 1)
        add(judgement, "sec-mode",
            context.say("load_sec makes it 1 whatever the file says",
                        "load_sec macht 1 daraus, was auch immer hier steht"));
}

} // namespace talux::tool
