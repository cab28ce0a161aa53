// talux watch: live values, renewed in place.
#include <chrono>
#include <climits>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include "tools/talux/Search.h"
#include "tools/talux/Watched.h"

namespace talux::tool {

namespace {

using Clock = std::chrono::steady_clock;

struct Options {
    std::vector<std::string> names;
    Filter filter;
    std::string until;
    double period = 1;
    long count = 0; // 0: until it is stopped
    bool minMax = false, csv = false, decimalComma = false;
};

volatile std::sig_atomic_t stopRequested = 0;

std::string timeOfDay() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return localTimeText(now.tv_sec) + formatted(".%03ld", now.tv_nsec / 1000000);
}

// Texts come in quotes and keep them; a quote inside is doubled. Nothing else holds a separator.
std::string csvCell(const std::string& text) {
    if (text.size() < 2 || !text.starts_with('"')) return text;
    std::string cell = "\"";
    for (const char c : text.substr(1, text.size() - 2))
        cell.append(c == '"' ? 2 : 1, c);
    return cell + '"';
}

// Rows and columns; 0: as many as there are.
winsize sizeOfTerminal() {
    winsize size{};
    if (isForTerminal()) ioctl(STDOUT_FILENO, TIOCGWINSZ, &size);
    return size;
}

// A table on a terminal, renewed in place: only what fits, scrolled with keys.
class Screen {
public:
    explicit Screen(bool isUsed) {
        termios before{};
        if (!isUsed || !isForTerminal() || tcgetattr(STDIN_FILENO, &before) != 0) return;
        termios single = before;
        single.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
        tcsetattr(STDIN_FILENO, TCSANOW, &single);
        keys = {stdin, [before](void*) { tcsetattr(STDIN_FILENO, TCSANOW, &before); }};
    }

    // On a terminal over what was there, elsewhere below it.
    void show(const std::string& head, const Table& table, const Context& context) {
        const winsize size = sizeOfTerminal();
        page = size.ws_row > 3 ? std::min<std::size_t>(table.size(), size.ws_row - 2U) : table.size();
        top = std::min(top, table.size() - page);
        const std::string body = table.text(); // of all rows, whose columns stay where they are
        const auto lines = linesOf(body);
        std::string text = head;
        if (page < table.size())
            text += context.say("  {} to {} of {}: arrows scroll, q ends",
                                "  {} bis {} von {}: Pfeile blättern, q endet", top + 1, top + page,
                                table.size());
        const char* const end = size.ws_row > 0 ? "\033[K\n" : "\n";
        text = cut(text, size.ws_col) + end;
        for (std::size_t k = top; k < top + page; ++k)
            text += cut(lines[k], size.ws_col) + end;
        if (size.ws_row > 0 && drawn > 0) print(fill("\033[{}A", {std::to_string(drawn)}));
        drawn = page + 1;
        print(text);
    }

    // Waits for the moment or a key, which scrolls or asks for the end.
    enum class Woken { moment, key, end };
    Woken waitUntil(Clock::time_point moment) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(moment - Clock::now()).count();
        if (left <= 0) return Woken::moment;
        // Not ppoll: where the processor has 32 bits, its checked form takes the wide time for a narrow one.
        pollfd input{STDIN_FILENO, POLLIN, 0};
        if (poll(&input, keys != nullptr ? 1 : 0, static_cast<int>(std::min<std::int64_t>(left, INT_MAX))) <=
            0)
            return Woken::moment;
        char typed[16];
        const ssize_t size = read(STDIN_FILENO, typed, sizeof typed);
        if (size <= 0) return Woken::end; // nobody is there any more
        const std::string_view all(typed, static_cast<std::size_t>(size));
        for (const char key : all.substr(0, all.find('q')))
            scroll(key);
        return all.find('q') == all.npos ? Woken::key : Woken::end;
    }

private:
    std::shared_ptr<void> keys;               // while the terminal gives them one by one
    std::size_t top = 0, page = 0, drawn = 0; // rows; lines on the screen

    // Of an arrow's sequence the last character counts. show() keeps the end in its bounds.
    void scroll(char key) {
        const std::size_t leaf = std::max<std::size_t>(page, 2) - 1;
        if (key == 'B' || key == 'j') ++top;
        if (key == 'A' || key == 'k') top -= std::min<std::size_t>(top, 1);
        if (key == '6' || key == ' ') top += leaf;
        if (key == '5' || key == 'b') top -= std::min(top, leaf);
    }
};

struct Watch {
    // Least and greatest value so far.
    struct Extremes {
        std::optional<Value> least, most;
    };

    const Options& options;
    const std::vector<Watched> items;
    const Context& context;
    Screen screen{!options.csv};
    const Clock::duration period =
        std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(options.period));
    Clock::time_point next = Clock::now(); // moment of a look
    std::string moment{};
    std::vector<std::optional<Value>> values{}, before{};
    std::vector<Extremes> extremes = std::vector<Extremes>(items.size());

    // Whether `until` held at last.
    bool run(const std::optional<Condition>& until) {
        if (options.csv) {
            std::vector<std::string> labels;
            std::ranges::transform(items, std::back_inserter(labels), &Watched::label);
            printRow(context.say("time", "Zeit"), labels);
        }
        bool holds = false;
        for (long k = 0; !holds && (options.count == 0 || k < options.count); ++k) {
            if (k > 0 && !pause()) break;
            look();
            holds = until && until->holds();
            if (std::fflush(stdout) != 0) break;
        }
        if (options.csv && options.minMax)
            printRow("min", textsOf(extremes, &Extremes::least)),
                printRow("max", textsOf(extremes, &Extremes::most));
        return holds;
    }

    void look() {
        before = std::move(values);
        values.clear();
        for (std::size_t k = 0; k < items.size(); ++k) {
            const auto value = values.emplace_back(items[k].value());
            if (!value || value->isText() || std::isnan(value->number())) continue;
            auto& [least, most] = extremes[k];
            if (!least || value->number() < least->number()) least = value;
            if (!most || value->number() > most->number()) most = value;
        }
        moment = timeOfDay();
        if (options.csv)
            printRow(moment, textsOf(values));
        else
            show();
    }

    // What is on the screen, after it was scrolled.
    void show() {
        Table table;
        for (std::size_t k = 0; k < items.size(); ++k) {
            const auto& [least, most] = extremes[k];
            const bool changed =
                !items[k].isMeasured() && !before.empty() && !sameValue(before[k], values[k]);
            const auto text = [&](const auto& value) { return items[k].shortText(value, context); };
            std::vector<std::string> row{changed ? "*" : "", items[k].label,
                                         changed ? Paint::changed(text(values[k])) : text(values[k])};
            if (options.minMax) row.push_back(least ? text(least) + " .. " + text(most) : "");
            row.push_back(items[k].title);
            table.add(std::move(row));
        }
        screen.show(moment, table, context);
    }

    // False when it is to end. Looks that went by while the program or the machine was stopped are left out.
    bool pause() {
        const auto now = Clock::now();
        next += period;
        if (next < now) next += (now - next) / period * period;
        for (;;) {
            const auto woken = screen.waitUntil(next);
            if (stopRequested != 0 || woken == Screen::Woken::end) return false;
            if (woken == Screen::Woken::moment) return true;
            show();
            std::fflush(stdout);
        }
    }

    template <class All, class Which = std::identity>
    std::vector<std::string> textsOf(const All& all, Which which = {}) const {
        std::vector<std::string> texts;
        for (std::size_t k = 0; k < all.size(); ++k) {
            const std::optional<Value>& value = std::invoke(which, all[k]);
            texts.push_back(items[k].plainText(value));
            if (options.decimalComma && value && !value->isText())
                std::ranges::replace(texts.back(), '.', ',');
        }
        return texts;
    }

    void printRow(const std::string& first, const std::vector<std::string>& cells) const {
        const char separator = options.decimalComma ? ';' : ',';
        std::string line = first;
        for (const std::string& cell : cells)
            line += separator + csvCell(cell);
        print(line + "\n");
    }
};

std::vector<Watched> watchedBy(Options& options, const std::optional<Condition>& until,
                               const Context& context) {
    const Parameters chosen = options.filter.chosen(context);
    std::vector<Watched> items;
    for (const std::string& name : options.names)
        std::ranges::move(tool::watchedBy(name, context), std::back_inserter(items));
    if (!options.filter.isEmpty())
        for (const Parameter* parameter : chosen)
            addWatched(items, *parameter, context);
    if (until && items.empty()) items.push_back(until->watched());
    if (items.empty())
        context.fail("nothing to watch: give names, --family or --method",
                     "nichts zu beobachten: Namen, --family oder --method angeben");
    return items;
}

Status run(Options& options, const Context& context) {
    std::optional<Condition> until;
    if (!options.until.empty()) until.emplace(options.until, context);
    auto items = watchedBy(options, until, context);
    attachDevice(Access::readOnly, context);
    for (const int signal : {SIGINT, SIGTERM})
        std::signal(signal, [](int) { stopRequested = 1; });
    const bool holds = Watch{options, std::move(items), context}.run(until);
    return until && !holds ? kFound : kNothing;
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
         "'NAME I.J' für Elemente"},
        Need::optional);
    options.filter.addTo(command);
    command.option("--until", options.until,
                   {"end when this holds: 'U0_prim > 5'; exit status 1 if it ends before",
                    "enden, sobald dies gilt: 'U0_prim > 5'; Rückgabewert 1, wenn es vorher endet"});
    command.flag("--min-max", options.minMax,
                 {"also minimum and maximum so far", "auch bisheriges Minimum und Maximum"});
    command.option(
        "--period", options.period,
        {"seconds between two readings; 1 if not given", "Sekunden zwischen zwei Ablesungen; sonst 1"}, 0.01,
        86400.0);
    command.option("--count", options.count,
                   {"end after this many readings", "nach so vielen Ablesungen enden"}, 1, 1000000000);
    command.flag("--csv", options.csv,
                 {"one row per reading, for spreadsheets", "eine Zeile je Ablesung, für Tabellenprogramme"});
    command.flag("--decimal-comma", options.decimalComma,
                 {"CSV with decimal commas and semicolons", "CSV mit Dezimalkomma und Semikolon"});
}

} // namespace talux::tool
