#include "tools/talux/Judgement.h"

#include <cmath>
#include <filesystem>
#include <fstream>

#include "ParamSystem/files/Line.h"
#include "tools/talux/Show.h"

namespace talux::tool {

namespace {

constexpr int kMaximumStrangers = 100; // of a file that are judged

// What else speaks against a value shows in what is stored and comes back. A file may bring what nobody else
// writes.
constexpr rules::Reasons kReported{Reason::notANumber, Reason::tooLow,   Reason::tooHigh,
                                   Reason::noChoice,   Reason::tooLong,  Reason::tooManyBytes,
                                   Reason::noAddress,  Reason::noNetmask};

std::optional<File> fileNamedBy(const std::string& path) {
    const std::string name = path.substr(path.find_last_of('/') + 1);
    if (name.find("ip_config") != name.npos) return File::address;
    if (name.starts_with("sec_param")) return File::security;
    if (name.starts_with("param")) return File::normal;
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

// What follows the first word of a number, which alone is read.
std::string_view afterWord(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    const auto blank = text.find_first_of(" \t", first);
    const auto second = text.find_first_not_of(" \t", blank);
    return blank == text.npos || second == text.npos ? std::string_view() : text.substr(second);
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
    return Finding{"not-back", context.say("would not come back: a save writes {}, a load makes {} of it",
                                           "käme nicht zurück: Speichern schreibt {}, Laden macht daraus {}",
                                           printable(written), back ? plain(parameter, *back) : "-")};
}

Judge::Judge(const std::string& path, const Source& source, const Context& person)
    : before(source), context(person), expected(fileNamedBy(path)), hasMark(beginsWithMark(path)) {}

Judgement Judge::judge(const Entry& entry) {
    judgement = {};
    judgement.line = entry.line;
    // The rest of a line that was too long matters only where it is read as a parameter.
    const bool isNothing = entry.form == LineForm::nothing && !entry.hasNul;
    if (isNothing || (entry.continues && entry.form != LineForm::entry)) return judgement;
    const Effect effect = effectOf(entry);
    judgement.isOmitted = effect.row == nullptr && ++strangers > kMaximumStrangers;
    if (judgement.isOmitted) return judgement;
    judgeLine(entry);
    if (entry.form != LineForm::entry) return judgement;
    judgement.name = effect.row == nullptr ? printable(entry.name) : effect.row->name;
    judgement.parameter = effect.row == nullptr ? nullptr : reference::find(effect.row->name);
    if (effect.outcome == Outcome::stored)
        judgeStored(entry, *effect.value);
    else
        judgeSkipped(entry, effect.outcome);
    return judgement;
}

template <class Given>
void Judge::addObjections(const Given& given) {
    const Parameter& parameter = *judgement.parameter;
    rules::forEachObjection(parameter.facts(), given, kReported, [&](const rules::Objection& objection) {
        const char* const consequence =
            objection.reason == Reason::tooManyBytes ? context.say(" and is cut", " und wird abgeschnitten")
            : judgement.to->isText()                 ? ""
                                     : context.say(", is loaded all the same", ", wird trotzdem geladen");
        judgement.findings.push_back({reference::codeOf(objection.reason),
                                      describe(objection, parameter, context.language) + consequence});
    });
}

// What is odd whatever the line is about.
void Judge::judgeLine(const Entry& entry) {
    if (entry.line == 1 && hasMark)
        say("mark", "a byte order mark precedes it, so the line is not read: save the file without one",
            "davor steht ein Byte Order Mark, die Zeile wird deshalb nicht gelesen: ohne speichern");
    else if (entry.form == LineForm::foreign)
        say("foreign", "no parameter: does not begin with TLX_; is skipped",
            "kein Parameter: beginnt nicht mit TLX_; wird übergangen");
    if (entry.continues)
        say("continued", "is the rest of a line of more than 254 characters and is read as a parameter",
            "ist der Rest einer Zeile mit mehr als 254 Zeichen und wird als Parameter gelesen");
    if (entry.isCut)
        say("cut-line", "more than 254 characters: the rest is read as a line of its own",
            "mehr als 254 Zeichen: der Rest wird als eigene Zeile gelesen");
    if (entry.hasNul)
        say("nul", "contains a NUL character: everything after it is not read",
            "enthält ein NUL-Zeichen: alles danach wird nicht gelesen");
}

void Judge::judgeSkipped(const Entry& entry, Outcome outcome) {
    const bool isEmpty = entry.value.empty();
    if (outcome == Outcome::unknownName)
        say("unknown", "no parameter has this name; is skipped{}",
            "kein Parameter heißt so; wird übergangen{}", nearestName(entry.name, context));
    if (outcome == Outcome::runTime)
        say("run-time", "is a run-time value, no setting; is skipped",
            "ist ein Laufzeitwert, keine Einstellung; wird übergangen");
    if (outcome == Outcome::notANumber && isEmpty)
        say("no-number", "has no value; is skipped", "hat keinen Wert; wird übergangen");
    if (outcome == Outcome::notANumber && !isEmpty)
        say("no-number", "'{}' is not a number; is skipped{}", "'{}' ist keine Zahl; wird übergangen{}",
            printable(entry.value), commaHint(entry.value, context));
    if (outcome == Outcome::noSlot)
        say("no-value", "holds no value; is skipped", "hat keinen speicherbaren Wert; wird übergangen");
}

void Judge::judgeStored(const Entry& entry, const Value& value) {
    const int id = judgement.parameter->row().id;
    judgement.to = storedAs(id, value);
    if (const auto earlier = seen.find(id); earlier != seen.end()) {
        judgement.from = earlier->second.first;
        say("again", "is also in line {}; this one is used", "steht auch in Zeile {}; diese hier gilt",
            earlier->second.second);
    } else {
        judgement.from = before.value(id);
    }
    seen.insert_or_assign(id, std::pair(*judgement.to, entry.line));
    if (isOfClock(*judgement.parameter)) return;
    if (!entry.hasValue)
        say("empty", "has no value; the empty text is loaded",
            "hat keinen Wert; der leere Text wird geladen");
    if (entry.tail == Tail::text)
        say("tail", "the text after the value is not read", "der Text nach dem Wert wird nicht gelesen");
    if (judgement.to->isText())
        judgeText(entry);
    else
        judgeNumber(entry, value.number());
    if (auto finding = wouldNotComeBack(*judgement.parameter, *judgement.to, context))
        judgement.findings.push_back(std::move(*finding));
    judgeFile();
}

void Judge::judgeNumber(const Entry& entry, double given) {
    if (const auto words = afterWord(entry.value); !words.empty())
        say("tail", "'{}' after the number is not read", "'{}' nach der Zahl wird nicht gelesen",
            printable(words));
    addObjections(given);
    const double kept = judgement.to->number();
    const bool isWhole = judgement.parameter->type().fileDecimals == 0;
    if (isWhole ? kept != given : std::abs(kept - given) > 1e-6 * std::abs(given))
        say("rounded", "is stored as {}", "wird als {} gespeichert",
            plain(*judgement.parameter, *judgement.to));
}

void Judge::judgeText(const Entry& entry) {
    const std::string_view given = entry.value;
    if (entry.isQuoted && !entry.isClosed)
        say("unclosed", "there is no closing quote before the end of the line or a second =",
            "vor dem Zeilenende oder einem zweiten = fehlt das schließende Anführungszeichen");
    if (!entry.isQuoted && given.find('"') != given.npos)
        say("quote", "the quotes become part of the text: the value does not begin with one",
            "die Anführungszeichen werden Teil des Textes: der Wert beginnt nicht damit");
    if (!entry.isQuoted && given.ends_with(' '))
        say("blank", "the blanks at the end become part of the text",
            "die Leerzeichen am Ende werden Teil des Textes");
    addObjections(given);
    if (!isUtf8(judgement.to->text()))
        say("encoding", "is not UTF-8 and will not be displayed correctly",
            "ist kein UTF-8-Text und wird nicht richtig angezeigt");
}

// Whether the line is in the right one of the three.
void Judge::judgeFile() {
    const Parameter& parameter = *judgement.parameter;
    if (expected && parameter.file() != *expected)
        say("other-file", "belongs in {}: is loaded from here, but saved there",
            "gehört in {}: wird von hier geladen, aber dort gespeichert",
            reference::fileName(parameter.file()));
    if (expected == File::security && parameter.name() == "sec_mode" && judgement.to->number() != 1)
        say("sec-mode", "load_sec makes it 1 whatever the file says",
            "load_sec macht 1 daraus, was auch immer hier steht");
}

} // namespace talux::tool
