// talux report: a record of the settings to print and sign. One HTML page that needs nothing else.
#include <cstdlib>
#include <ctime>
#include <utility>

#include "tools/talux/Files.h"
#include "tools/talux/Fingerprint.h"
#include "tools/talux/Judgement.h"
#include "tools/talux/Show.h"

namespace talux::tool {

namespace {

struct Options {
    std::string source, output, title;
    bool changed = false;
};

// What tells the device, where the source knows it.
constexpr const char* kFacts[] = {"Name",          "Abg",           "Kenn",       "Status_art_no",
                                  "Status_ser_no", "Status_ord_no", "MAC_adress", "FW_version"};

constexpr const char* kStyle = R"(
body{font:10pt/1.35 sans-serif;margin:2em auto;max-width:60em;padding:0 1em;color:#000;background:#fff}
h1{font-size:16pt;margin:0 0 .5em}h2{font-size:12pt;margin:1.4em 0 .3em;break-after:avoid}
table{border-collapse:collapse;width:100%}
th,td{text-align:left;vertical-align:top;padding:.15em .5em;border-bottom:1px solid #bbb}
thead th{border-bottom:1px solid #000}thead{display:table-header-group}tr{break-inside:avoid}
.facts th{width:14em;font-weight:normal}.facts td{overflow-wrap:anywhere}
.mark{width:1em;padding-right:0}.name{width:13em}.value{width:14em}.default{width:12em;color:#444}
td{overflow-wrap:anywhere}.changed td{font-weight:bold}.changed .default{font-weight:normal}
.remark{display:block;font-weight:normal;font-style:italic}
.warning{font-weight:bold}
.sign{display:flex;gap:2em;margin-top:4em;break-inside:avoid}.sign div{flex:1;border-top:1px solid #000;padding-top:.2em}
@page{size:A4;margin:18mm 15mm}@media print{body{margin:0;max-width:none;padding:0}}
)";

// The variable that makes builds reproducible makes reports so, too.
std::string today() {
    const char* const fixed = std::getenv("SOURCE_DATE_EPOCH");
    return localTimeText(fixed != nullptr ? std::strtoll(fixed, nullptr, 10) : std::time(nullptr),
                         "%Y-%m-%d %H:%M");
}

struct Page {
    const Options& options;
    const Source& source;
    const Context& context;
    const Source defaults = Source::defaults();
    int changedCount = 0;
    std::vector<int> notes{}; // of the rows so far: footnotes, counted from 1

    std::string text() {
        const std::string families = familyTables(); // counts what the head tells
        const std::string title =
            options.title.empty() ? context.say("Settings record", "Einstellprotokoll") : options.title;
        return fill("<!DOCTYPE html>\n<html lang=\"{}\">\n<head>\n<meta charset=\"utf-8\">\n"
                    "<title>{}</title>\n<style>{}</style>\n</head>\n<body>\n<h1>{}</h1>\n",
                    {context.say("en", "de"), inMarkup(title), kStyle, inMarkup(title)}) +
               facts() + families + noteList() + signature() + "</body>\n</html>\n";
    }

    static std::string fact(std::string_view label, const std::string& value) {
        return fill("<tr><th>{}</th><td>{}</td></tr>\n", {inMarkup(label), inMarkup(value)});
    }

    std::string facts() const {
        const auto lines = linesOf(source);
        std::string rows;
        for (const char* name : kFacts) {
            const Parameter& parameter = *reference::find(name);
            if (const auto value = source.value(parameter); value && *value->text() != '\0')
                rows += fact(parameter.title(context.language), printable(value->text()));
        }
        rows += fact(context.say("Source", "Quelle"), printable(source.name()));
        rows += fact(context.say("Date", "Datum"), today());
        rows += fact(context.say("Settings", "Einstellungen"),
                     context.say("{}, of which {} differ from the factory settings",
                                 "{}, davon {} anders als die Werkseinstellung", lines.size(), changedCount));
        rows += fact(context.say("Fingerprint (SHA-256)", "Fingerabdruck (SHA-256)"), fingerprintOf(lines));
        return fill("<table class=\"facts\">\n{}</table>\n<p>{}</p>\n",
                    {rows, context.say("● marks what is not the factory setting.",
                                       "● kennzeichnet, was nicht der Werkseinstellung entspricht.")});
    }

    std::string familyTables() {
        std::string tables, rows, family;
        for (const Parameter& parameter : reference::parameters()) {
            const std::string_view name = familyName(parameter, context.language);
            if (family != name) tables += tableOf(family, std::exchange(rows, {}));
            family = name;
            rows += row(parameter);
        }
        return tables + tableOf(family, rows);
    }

    std::string tableOf(const std::string& family, const std::string& rows) const {
        if (rows.empty()) return {};
        return fill("<h2>{}</h2>\n<table>\n<thead><tr><th class=\"mark\"></th><th class=\"name\">{}</th>"
                    "<th>{}</th><th class=\"value\">{}</th><th class=\"default\">{}</th></tr></thead>\n"
                    "<tbody>\n{}</tbody>\n</table>\n",
                    {inMarkup(family), context.say("Name", "Name"), context.say("Title", "Titel"),
                     context.say("Value", "Wert"), context.say("Factory setting", "Werkseinstellung"), rows});
    }

    std::string row(const Parameter& parameter) {
        const auto value = source.value(parameter);
        if (!value || !parameter.isSetting() || isOfClock(parameter)) return {};
        const auto factory = defaults.value(parameter);
        const bool changed = !sameValue(value, factory);
        changedCount += changed ? 1 : 0;
        if (options.changed && !changed) return {};
        return fill(
            "<tr{}><td class=\"mark\">{}</td><td class=\"name\">{}</td><td>{}{}</td><td class=\"value\">{}{}"
            "</td><td class=\"default\">{}</td></tr>\n",
            {changed ? " class=\"changed\"" : "", changed ? "●" : "", inMarkup(parameter.name()),
             inMarkup(parameter.title(context.language)), noteSigns(parameter),
             inMarkup(shown(parameter, value, context)), remark(parameter, *value),
             inMarkup(shown(parameter, factory, context))});
    }

    std::string noteSigns(const Parameter& parameter) {
        const auto sign = [this](int note) {
            auto known = std::ranges::find(notes, note);
            if (known == notes.end()) known = notes.insert(known, note);
            return std::to_string(known - notes.begin() + 1);
        };
        const std::string signs = list(parameter.notes(), ", ", sign);
        return signs.empty() ? signs : fill(" <sup>{}</sup>", {signs});
    }

    std::string noteList() const {
        const auto item = [this](int place) {
            const model::Note& note = reference::noteAt(place);
            return fill("<li class=\"{}\">{} {}</li>\n",
                        {model::kNoteKinds[note.kind], noteLabel(note, context),
                         inMarkup(note.text.in(context.language))});
        };
        if (notes.empty()) return {};
        return fill("<h2>{}</h2>\n<ol>\n{}</ol>\n",
                    {context.say("Notes", "Hinweise"), list(notes, "", item)});
    }

    std::string remark(const Parameter& parameter, const Value& value) const {
        std::string text;
        if (!value.isText() && !isInRange(parameter, value.number()))
            text = context.say("out of range ({})", "außerhalb des Bereichs ({})",
                               rangeText(parameter, context.language));
        else if (const auto finding = wouldNotComeBack(parameter, value, context))
            text = finding->text;
        return text.empty() ? text : fill("<span class=\"remark\">{}</span>", {inMarkup(text)});
    }

    std::string signature() const {
        return fill("<div class=\"sign\"><div>{}</div><div>{}</div><div>{}</div></div>\n",
                    {context.say("Place, date", "Ort, Datum"), context.say("Name", "Name"),
                     context.say("Signature", "Unterschrift")});
    }
};

Status run(const Options& options, const Context& context) {
    const Source source = Source::open(options.source, context);
    const std::string text = Page{options, source, context}.text();
    options.output.empty() ? print(text) : replace(options.output, text, context);
    return kNothing;
}

} // namespace

void addReport(CommandLine& line) {
    const auto [command, options] = line.add("report", run,
                                             {"a settings record to print and sign, as HTML",
                                              "Einstellprotokoll zum Drucken und Unterschreiben (HTML)"});
    command.argument(
        {"SOURCE", "QUELLE"}, options.source,
        {"live, staged, default, a file or a folder", "live, staged, default, eine Datei oder ein Ordner"});
    command.option("-o,--output", options.output, {"write to this file", "in diese Datei schreiben"});
    command.option("--title", options.title, {"title of the record", "Titel des Protokolls"});
    command.flag("--changed", options.changed,
                 {"only what is not the factory setting", "nur was nicht der Werkseinstellung entspricht"});
}

} // namespace talux::tool
