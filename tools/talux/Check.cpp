// talux check: what a load of a file would change, line by line, and whether what it leaves is plausible.
#include "tools/talux/Judgement.h"
#include "tools/talux/Plausibility.h"

namespace talux::tool {

namespace {

constexpr std::size_t kMaximumLines = 1000; // of a file about which something is said

struct Options {
    std::vector<std::string> files;
    std::string against; // empty: the working copy where there is a device
    bool notes = false;
    bool json = false;
};

// What is reported about one file.
struct FileReport {
    std::string path, baseline;
    std::vector<Judgement> judgements{};
    std::vector<Implausible> implausible{};
    Parameters others{}; // pending, not in the file, and committed by its load all the same
    int settings = 0;
    int changes = 0;
    int findings = 0;
    int omitted = 0;

    bool found() const { return changes > 0 || findings > 0; }
};

// The rules on what a load leaves, where the file has a part in it. What is odd about one value alone is a
// finding of its line.
void addImplausible(FileReport& report, const Written& loaded, const Source& before, const Context& context) {
    for (Implausible& found : findImplausible(loaded, std::cref(before), std::cref(before), context)) {
        if (found.isOfOneLine()) continue;
        report.findings += found.isFault() ? 1 : 0;
        report.implausible.push_back(std::move(found));
    }
}

FileReport judgeFile(const std::string& path, const Source& before, const Context& context) {
    Judge judge(path, before, context);
    FileReport report{.path = path, .baseline = before.called(context)};
    Written loaded;
    readEntries(path, context, [&](const Entry& entry) {
        Judgement judgement = judge.judge(entry);
        report.settings += judgement.to ? 1 : 0;
        report.changes += judgement.isChange() ? 1 : 0;
        report.findings += static_cast<int>(judgement.findings.size());
        if (judgement.to) loaded.insert_or_assign(judgement.parameter, *judgement.to);
        if (judgement.isOmitted || report.judgements.size() >= kMaximumLines)
            ++report.omitted;
        else if (judgement.changes() || !judgement.findings.empty())
            report.judgements.push_back(std::move(judgement));
    });
    addImplausible(report, loaded, before, context);
    if (before.origin() == Source::Origin::staged)
        for (const Difference& pending : differences(Source::open("live", context), before))
            if (!loaded.contains(pending.parameter)) report.others.push_back(pending.parameter);
    return report;
}

void printJudgement(const std::string& path, const Judgement& judgement, const Context& context) {
    std::vector<std::string> parts;
    if (judgement.isChange()) parts.push_back(Paint::changed(change(judgement, context)));
    for (const Finding& finding : judgement.findings)
        parts.push_back(Paint::bad(finding.text));
    const std::string name = judgement.name.empty() ? "" : Paint::bold(judgement.name) + ": ";
    if (!parts.empty())
        print(fill("{}:{}: {}{}\n", {path, std::to_string(judgement.line), name, list(parts, "; ")}));
}

void printText(const FileReport& report, bool withNotes, const Context& context) {
    const std::string path = printable(report.path);
    const std::string head = context.say("{} against {}", "{} gegenüber {}", path, report.baseline);
    print(head + ":\n");
    Parameters noted;
    for (const Judgement& judgement : report.judgements) {
        printJudgement(path, judgement, context);
        if (withNotes && judgement.isChange()) noted.push_back(judgement.parameter);
    }
    if (report.omitted > 0)
        print(context.say("{}: {} more lines are not listed\n", "{}: {} weitere Zeilen sind nicht genannt\n",
                          path, report.omitted));
    for (const std::string& text : noteTexts(noted, context))
        print(joined({path, ": ", text, "\n"}));
    for (const Implausible& found : report.implausible)
        print(joined({path, ": ", found.painted(), "\n"}));
    if (!report.others.empty())
        print(context.say("{}: a load also makes live what else is pending: {}\n",
                          "{}: Laden macht auch gültig, was sonst noch aussteht: {}\n", path,
                          list(report.others, ", ", [](const Parameter* other) { return other->name(); })));
    print(fill("{}: {}, {}, {}\n",
               {head, context.counted(report.settings, kSetting, kSettings),
                context.counted(report.changes, kChange, kChanges),
                context.counted(report.findings, {" finding", " Befund"}, {" findings", " Befunde"})}));
}

Json described(const FileReport& report, bool withNotes, const Context& context) {
    const auto describedLine = [&](const Judgement& judgement) {
        Json object{{"name", judgement.name}};
        if (judgement.to) object = changeJson(judgement, context);
        object.set("line", judgement.line);
        if (withNotes && judgement.isChange()) addNotes(object, *judgement.parameter);
        const auto describedFinding = [](const Finding& finding) -> Json {
            return {{"code", finding.code}, {"text", finding.text}};
        };
        if (!judgement.findings.empty())
            object.set("findings", Json::arrayOf(judgement.findings, describedFinding));
        return object;
    };
    return {
        {"file", report.path},
        {"settings", report.settings},
        {"changes", report.changes},
        {"findings", report.findings},
        {"untold", report.omitted},
        {"lines", Json::arrayOf(report.judgements, describedLine)},
        {"implausible", Json::arrayOf(report.implausible, [](const auto& each) { return described(each); })},
        {"also_committed", namesOf(report.others)}};
}

Status run(const Options& options, const Context& context) {
    const char* const usual = isDeviceThere() ? "staged" : "default";
    const Source before = Source::open(options.against.empty() ? usual : options.against, context);
    Json all = Json::array();
    const auto checkFile = [&](const std::string& path) {
        const FileReport report = judgeFile(path, before, context);
        if (options.json)
            all.add(described(report, options.notes, context));
        else
            printText(report, options.notes, context);
        return report.found() ? kFound : kNothing;
    };
    const Status status = forEachFile(options.files, [&](const std::string& path) {
        return isFolder(path) ? forEachFile(filesIn(path, context), checkFile) : checkFile(path);
    });
    if (options.json) print(all.text());
    return status;
}

} // namespace

void addCheck(CommandLine& line) {
    const auto [command, options] = line.add("check", run,
                                             {"what a load of a file would change, and what is odd",
                                              "was Laden einer Datei ändern würde und was auffällt"});
    command.argument({"FILE", "DATEI"}, options.files,
                     {"parameter files, or folders with the three of them",
                      "Parameterdateien oder Ordner mit den dreien"});
    command.option(
        "--against", options.against,
        {"what to compare with: default (factory settings), live, staged (the working copy), a file or "
         "a folder; if not given, staged on a device, else default",
         "womit verglichen wird: default (Werkseinstellung), live, staged (Arbeitskopie), eine Datei "
         "oder ein Ordner; sonst auf einem Gerät staged, am Schreibtisch default"});
    command.flag("--notes", options.notes, kNotesHelp);
    command.json(options.json);
    command.isPaged = true;
}

} // namespace talux::tool
