// talux check: what a file contains, line by line, compared with the factory settings or another source.
#include <memory>

#include "tools/talux/Command.h"
#include "tools/talux/Judgement.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

constexpr std::size_t kMostTold = 1000; // lines of a file about which something is said

struct Options {
    std::vector<std::string> files;
    std::string against = "default";
    bool json = false;
};

// What is told about one file.
struct Told {
    std::vector<Judgement> judgements;
    int settings = 0;
    int changes = 0;
    int findings = 0;
    std::size_t untold = 0;
};

Told judgeFile(const std::string& path, const Source& before, const Context& context) {
    Judge judge(path, before, context);
    Told told;
    readEntries(path, context, [&](const Entry& entry) {
        Judgement judgement = judge.judge(entry);
        told.settings += judgement.to ? 1 : 0;
        told.changes += judgement.isChange() ? 1 : 0;
        told.findings += static_cast<int>(judgement.findings.size());
        if (judgement.isUntold || told.judgements.size() >= kMostTold)
            ++told.untold;
        else if (judgement.changes() || !judgement.findings.empty())
            told.judgements.push_back(std::move(judgement));
    });
    return told;
}

void printJudgement(const std::string& path, const Judgement& judgement, const Context& context) {
    const Paint paint;
    std::string text = fill("{}:{}:", {path, std::to_string(judgement.line)});
    if (!judgement.name.empty()) text += " " + paint.bold(judgement.name) + ":";
    if (judgement.isChange())
        text += " " + paint.changed(change(*judgement.parameter, judgement.from, judgement.to, context));
    const char* separator = judgement.isChange() ? "; " : " ";
    for (const Finding& finding : judgement.findings) {
        text += separator + paint.bad(finding.text);
        separator = "; ";
    }
    if (judgement.isChange() || !judgement.findings.empty()) print(text + "\n");
}

void printText(const std::string& path, const Told& told, const Context& context) {
    for (const Judgement& judgement : told.judgements)
        printJudgement(path, judgement, context);
    if (told.untold > 0)
        print(fill(
            context.say("{}: {} more lines are not listed\n", "{}: {} weitere Zeilen sind nicht genannt\n"),
            {path, std::to_string(told.untold)}));
    print(fill(
        "{}: {}, {}, {}\n",
        {path,
         counted(told.settings, context.say(" setting", " Einstellung"),
                 context.say(" settings", " Einstellungen")),
         counted(told.changes, context.say(" change", " Änderung"), context.say(" changes", " Änderungen")),
         counted(told.findings, context.say(" finding", " Befund"), context.say(" findings", " Befunde"))}));
}

Json described(const Judgement& judgement, const Context& context) {
    Json object{{"name", judgement.name}};
    if (judgement.to) object = changeJson(*judgement.parameter, judgement.from, judgement.to, context);
    object.set("line", judgement.line);
    Json findings = Json::array();
    for (const Finding& finding : judgement.findings)
        findings.add({{"code", finding.code}, {"text", finding.text}});
    if (!judgement.findings.empty()) object.set("findings", std::move(findings));
    return object;
}

Json described(const std::string& path, const Told& told, const Context& context) {
    Json lines = Json::array();
    for (const Judgement& judgement : told.judgements)
        lines.add(described(judgement, context));
    return {{"file", path},
            {"settings", told.settings},
            {"changes", told.changes},
            {"findings", told.findings},
            {"untold", static_cast<std::int64_t>(told.untold)},
            {"lines", std::move(lines)}};
}

Status run(const Options& options, const Context& context) {
    const Source before = Source::open(options.against, context);
    Json all = Json::array();
    const Status status = forEachFile(options.files, [&](const std::string& path) {
        const Told told = judgeFile(path, before, context);
        if (options.json)
            all.add(described(path, told, context));
        else
            printText(printable(path), told, context);
        return told.changes > 0 || told.findings > 0 || told.untold > 0 ? kFound : kNothing;
    });
    if (options.json) print(all.text());
    return status;
}

} // namespace

void addCheck(CommandLine& line, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(line, "check",
                       {"check the lines of a file, compare them with a source",
                        "Zeilen einer Datei prüfen und vergleichen"});
    command.argument({"FILE", "DATEI"}, options->files, {"parameter files", "Parameterdateien"}).required();
    command.option("--against", options->against,
                   {"what to compare with: default (factory settings), live, staged, a file or a folder; "
                    "default if not given",
                    "womit verglichen wird: default (Werkseinstellung), live, staged, eine Datei oder ein "
                    "Ordner; sonst mit default"});
    command.flag("--json", options->json, {"print JSON", "als JSON ausgeben"});
    commands.push_back({command, [options](const Context& context) { return run(*options, context); }, true});
}

} // namespace talux::tool
