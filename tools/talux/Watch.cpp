// talux watch: live values, renewed in place.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <iterator>

#include "tools/talux/Command.h"
#include "tools/talux/Screen.h"
#include "tools/talux/Search.h"
#include "tools/talux/Text.h"
#include "tools/talux/Watched.h"

namespace talux::tool {

namespace {

struct Options {
    std::vector<std::string> names;
    Filter filter;
    std::string until;
    double period = 1;
    long count = 0; // 0: until it is stopped
    bool minMax = false;
    bool csv = false, decimalComma = false;
};

volatile std::sig_atomic_t stopRequested = 0;
void requestStop(int) {
    stopRequested = 1;
}

std::string timeOfDay() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    std::tm local{};
    localtime_r(&now.tv_sec, &local);
    char text[40], milliseconds[24];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
    std::snprintf(milliseconds, sizeof milliseconds, ".%03ld", now.tv_nsec / 1000000);
    return std::string(text) + milliseconds;
}

// The moments of the looks. Those that went by while the program or the machine was stopped are left out.
class Pace {
public:
    explicit Pace(double seconds)
        : period(std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds))) {}

    std::chrono::steady_clock::time_point next() {
        const auto now = Clock::now();
        moment += period;
        if (moment < now) moment += (now - moment) / period * period;
        return moment;
    }

private:
    using Clock = std::chrono::steady_clock;
    const Clock::duration period;
    Clock::time_point moment = Clock::now();
};

// Texts come in quotes and keep them; a quote inside is doubled.
std::string csvCell(const std::string& text, char separator) {
    const bool isText = text.size() > 1 && text.starts_with('"');
    if (!isText && text.find(separator) == text.npos && text.find('"') == text.npos) return text;
    std::string cell = "\"";
    for (const char c : isText ? text.substr(1, text.size() - 2) : text)
        cell.append(c == '"' ? 2 : 1, c);
    return cell + '"';
}

// Least and greatest value so far.
struct Extremes {
    std::optional<double> least, most;

    void add(const std::optional<Value>& value) {
        if (!value || value->isText() || std::isnan(value->number())) return;
        least = std::min(least.value_or(value->number()), value->number());
        most = std::max(most.value_or(value->number()), value->number());
    }
};

class Watch {
public:
    Watch(const Options& wanted, std::vector<Watched> shown, const Context& person)
        : options(wanted), items(std::move(shown)), context(person), extremes(items.size()) {}

    void begin() const {
        if (!options.csv) return;
        std::vector<std::string> labels;
        for (const Watched& item : items)
            labels.push_back(item.label);
        printRow(context.say("time", "Zeit"), labels);
    }

    void look() {
        values.clear();
        for (const Watched& item : items)
            values.push_back(item.value());
        for (std::size_t k = 0; k < items.size(); ++k)
            extremes[k].add(values[k]);
        moment = timeOfDay();
        if (options.csv)
            printRow(moment, textsOf(values));
        else
            show();
        before = values;
    }

    // What is on the screen, after it was scrolled.
    void show() {
        const Paint paint;
        std::vector<std::vector<std::string>> rows;
        for (std::size_t k = 0; k < items.size(); ++k) {
            const bool changed =
                !items[k].isMeasured() && !before.empty() && !sameValue(before[k], values[k]);
            const std::string text = items[k].shortText(values[k], context);
            rows.push_back({changed ? "*" : "", items[k].label, changed ? paint.changed(text) : text});
            if (options.minMax) rows.back().push_back(extremeText(k));
            rows.back().push_back(items[k].title);
        }
        screen.show(moment, rows);
    }

    // False when it is to end.
    bool pause(Pace& pace) {
        const auto next = pace.next();
        for (;;) {
            const auto woken = screen.waitUntil(next);
            if (stopRequested != 0 || woken == Screen::Woken::end) return false;
            if (woken == Screen::Woken::moment) return true;
            show();
            std::fflush(stdout);
        }
    }

    void end() const {
        if (!options.csv || !options.minMax) return;
        for (const bool isMost : {false, true}) {
            std::vector<std::optional<Value>> ends;
            for (const Extremes& extreme : extremes) {
                const auto& number = isMost ? extreme.most : extreme.least;
                ends.push_back(number ? std::optional(Value(*number)) : std::nullopt);
            }
            printRow(isMost ? "max" : "min", textsOf(ends));
        }
    }

private:
    const Options& options;
    const std::vector<Watched> items;
    const Context& context;
    Screen screen{!options.csv, context};
    std::string moment;
    std::vector<std::optional<Value>> values, before;
    std::vector<Extremes> extremes;

    std::string extremeText(std::size_t k) const {
        if (!extremes[k].least) return {};
        const auto text = [&](double number) { return items[k].shortText(Value(number), context); };
        return text(*extremes[k].least) + " .. " + text(*extremes[k].most);
    }

    std::vector<std::string> textsOf(const std::vector<std::optional<Value>>& all) const {
        std::vector<std::string> texts;
        for (std::size_t k = 0; k < all.size(); ++k) {
            texts.push_back(items[k].plainText(all[k]));
            if (options.decimalComma && all[k] && !all[k]->isText())
                std::ranges::replace(texts.back(), '.', ',');
        }
        return texts;
    }

    void printRow(const std::string& first, const std::vector<std::string>& cells) const {
        const char separator = options.decimalComma ? ';' : ',';
        std::string line = first;
        for (const std::string& cell : cells)
            line += separator + csvCell(cell, separator);
        print(line + "\n");
    }
};

std::vector<Watched> watchedBy(Options& options, const std::optional<Condition>& until,
                               const Context& context) {
    options.filter.check(context);
    std::vector<Watched> items;
    for (const std::string& name : options.names)
        std::ranges::move(tool::watchedBy(name, context), std::back_inserter(items));
    if (!options.filter.isEmpty())
        for (const Parameter& parameter : reference::parameters())
            if (options.filter.accepts(parameter)) addWatched(items, parameter, context);
    if (until && items.empty()) items.push_back(until->watched());
    if (items.empty())
        throw CouldNot(context.say("nothing to watch: give names, --family or --method",
                                   "nichts zu beobachten: Namen, --family oder --method angeben"));
    return items;
}

Status run(Options& options, const Context& context) {
    std::optional<Condition> until;
    if (!options.until.empty()) until.emplace(options.until, context);
    auto items = watchedBy(options, until, context);
    attachDevice(Attachment::readOnly, context);
    std::signal(SIGINT, requestStop);
    std::signal(SIGTERM, requestStop);
    Watch watch(options, std::move(items), context);
    Pace pace(options.period);
    watch.begin();
    bool held = false;
    for (long k = 0; !held && (options.count == 0 || k < options.count); ++k) {
        if (k > 0 && !watch.pause(pace)) break;
        watch.look();
        held = until && until->holds();
        if (std::fflush(stdout) != 0) break;
    }
    watch.end();
    return until && !held ? kFound : kNothing;
}

} // namespace

void addWatch(CommandLine& line) {
    const auto [command, options] =
        line.add("watch", run, {"live values, updated in place", "gültige Werte, laufend aktualisiert"});
    command.argument(
        {"NAME", "NAME"}, options.names,
        {"parameters, series (BAassign), patterns (U*_prim), records, members of records; 'NAME I' or "
         "'NAME I.J' for elements",
         "Parameter, Reihen (BAassign), Muster (U*_prim), Datensätze, Felder von Datensätzen; 'NAME I' oder "
         "'NAME I.J' für Elemente"});
    options.filter.addTo(command);
    command.option("--until", options.until,
                   {"end when this holds: 'U0_prim > 5'; exit status 1 if it ends before",
                    "enden, sobald dies gilt: 'U0_prim > 5'; Rückgabewert 1, wenn es vorher endet"});
    command.flag("--min-max", options.minMax,
                 {"also minimum and maximum so far", "auch bisheriges Minimum und Maximum"});
    command
        .option(
            "--period", options.period,
            {"seconds between two readings; 1 if not given", "Sekunden zwischen zwei Ablesungen; sonst 1"})
        .inRange(0.01, 86400.0);
    command.option("--count", options.count,
                   {"end after this many readings", "nach so vielen Ablesungen enden"});
    command.flag("--csv", options.csv,
                 {"one row per reading, for spreadsheets", "eine Zeile je Ablesung, für Tabellenprogramme"});
    command.flag("--decimal-comma", options.decimalComma,
                 {"CSV with decimal commas and semicolons", "CSV mit Dezimalkomma und Semikolon"});
}

} // namespace talux::tool
