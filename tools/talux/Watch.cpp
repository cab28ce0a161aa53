// talux watch: live values, renewed in place.
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>
#include <unistd.h>

#include "ParamSystem/TALUX_Var.h"
#include "tools/talux/Command.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

struct Options {
    std::vector<std::string> names;
    double period = 1;
    long count = 0; // 0: until it is stopped
    bool csv = false;
};

volatile std::sig_atomic_t stopRequested = 0;
void requestStop(int) {
    stopRequested = 1;
}

// One value on the screen: a scalar, an element, a member of a record.
struct Item {
    std::string label;
    const Parameter* parameter;
    int id;
    const StructMemberProperties_t* member = nullptr;
};

std::string memberText(const Item& item) {
    char record[kLargestRecord];
    VarGetGlobalStructValue(item.id, record, ARR_StructSize[item.id - kFirstStruct]);
    const char* const bytes = record + item.member->lMemberOffset;
    if (memberType(item.member->szMemberType) == kTypeFloat) {
        float number;
        std::memcpy(&number, bytes, sizeof number);
        return reference::shortNumber(static_cast<double>(number));
    }
    std::int32_t number;
    std::memcpy(&number, bytes, sizeof number);
    return std::to_string(number);
}

std::string valueText(const Item& item) {
    if (item.member != nullptr) return memberText(item);
    const auto value = readValue(Space::global, item.id);
    return value ? plain(*item.parameter, *value) : "-";
}

// NAME, or NAME FIRST or NAME FIRST.LAST for elements.
struct Wanted {
    const Parameter* parameter = nullptr;
    int first = 0;
    int last = 0;
};

Wanted wantedBy(const std::string& text, const Context& context) {
    const std::string name = text.substr(0, text.find(' '));
    Wanted wanted{reference::find(name)};
    if (wanted.parameter == nullptr || wanted.parameter->isTemplate())
        throw CouldNot(fill(context.say("'{}': no parameter has this name; the nearest is {}",
                                        "'{}': kein Parameter heißt so; am ähnlichsten ist {}"),
                            {printable(name), reference::nearest(name)}));
    const auto& row = wanted.parameter->row();
    wanted.first = row.val_min_id;
    wanted.last = row.val_max_id;
    if (name.size() == text.size()) return wanted;
    const char* const end = text.data() + text.size();
    auto read = std::from_chars(text.data() + name.size() + 1, end, wanted.first);
    wanted.last = wanted.first;
    if (read.ec == std::errc() && read.ptr != end && *read.ptr == '.')
        read = std::from_chars(read.ptr + 1, end, wanted.last);
    const bool fits =
        wanted.first >= row.val_min_id && wanted.last <= row.val_max_id && wanted.first <= wanted.last;
    if (read.ec != std::errc() || read.ptr != end || !wanted.parameter->isIndexed() || !fits)
        throw CouldNot(
            fill(context.say("'{}': no such element; elements are {} to {}",
                             "'{}': kein solches Element; Elemente sind {} bis {}"),
                 {printable(text), std::to_string(row.val_min_id), std::to_string(row.val_max_id)}));
    return wanted;
}

void addItems(std::vector<Item>& items, const Wanted& wanted) {
    const Parameter& parameter = *wanted.parameter;
    const std::string name(parameter.name());
    if (parameter.type().nature == Nature::record) {
        for (const auto& member : reference::members(parameter))
            items.push_back(
                {fill("{}.{}", {name, member.aszMemberName}), &parameter, parameter.row().id, &member});
    } else if (parameter.isIndexed()) {
        for (int k = wanted.first; k <= wanted.last; ++k)
            items.push_back(
                {fill("{} {}", {name, std::to_string(k)}), &parameter, parameter.row().id + k - 1});
    } else {
        items.push_back({name, &parameter, parameter.row().id});
    }
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

// Texts come in quotes and keep them; a quote inside is doubled.
std::string csvCell(const std::string& text) {
    const bool isText = text.size() > 1 && text.starts_with('"');
    if (!isText && text.find_first_of(",\"") == text.npos) return text;
    std::string cell = "\"";
    for (const char c : isText ? text.substr(1, text.size() - 2) : text)
        cell.append(c == '"' ? 2 : 1, c);
    return cell + '"';
}

void printCsv(const std::string& first, const std::vector<std::string>& cells) {
    std::string line = first;
    for (const std::string& cell : cells)
        line += fill(",{}", {csvCell(cell)});
    print(line + "\n");
}

// The moments of the looks. Those that went by while the program or the machine was stopped are left out.
class Pace {
public:
    explicit Pace(double seconds)
        : period(std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds))) {}

    // False when it is stopped.
    bool wait() {
        const auto now = Clock::now();
        next += period;
        if (next < now) next += (now - next) / period * period;
        const auto left = std::chrono::duration_cast<std::chrono::nanoseconds>(next - now).count();
        if (left <= 0) return stopRequested == 0;
        const timespec pause{static_cast<time_t>(left / 1000000000), static_cast<long>(left % 1000000000)};
        return nanosleep(&pause, nullptr) == 0 || stopRequested == 0;
    }

private:
    using Clock = std::chrono::steady_clock;
    const Clock::duration period;
    Clock::time_point next = Clock::now();
};

class Screen {
public:
    Screen(const std::vector<Item>& shownItems, const Context& person) : items(shownItems), context(person) {}

    // In place on a terminal, one block below the other elsewhere.
    void show(const std::vector<std::string>& values) {
        const Paint paint;
        Table table;
        for (std::size_t k = 0; k < items.size(); ++k) {
            const bool changed = !before.empty() && before[k] != values[k];
            const std::string text = values[k] + (items[k].member != nullptr ? "" : unit(items[k]));
            table.add({changed ? "*" : "", items[k].label, changed ? paint.changed(text) : text,
                       items[k].parameter->title(context.language)});
        }
        const bool inPlace = isForTerminal();
        std::string text = timeOfDay() + "\n" + table.text();
        if (inPlace && !before.empty()) print(fill("\033[{}A", {std::to_string(items.size() + 1)}));
        if (inPlace)
            for (std::size_t at = 0; (at = text.find('\n', at)) != text.npos; at += 4)
                text.insert(at, "\033[K");
        print(text);
        before = values;
    }

private:
    const std::vector<Item>& items;
    const Context& context;
    std::vector<std::string> before;

    static std::string unit(const Item& item) {
        const std::string text = item.parameter->unit();
        return text.empty() ? text : " " + text;
    }
};

Status run(const Options& options, const Context& context) {
    std::vector<Item> items;
    for (const std::string& name : options.names)
        addItems(items, wantedBy(name, context));
    attachDevice(Attachment::readOnly, context);
    std::signal(SIGINT, requestStop);
    std::signal(SIGTERM, requestStop);
    std::vector<std::string> labels;
    labels.reserve(items.size());
    for (const Item& item : items)
        labels.push_back(item.label);
    if (options.csv) printCsv(context.say("time", "Zeit"), labels);
    Screen screen(items, context);
    Pace pace(options.period);
    for (long k = 0; options.count == 0 || k < options.count; ++k) {
        if (k > 0 && !pace.wait()) break;
        std::vector<std::string> values;
        values.reserve(items.size());
        for (const Item& item : items)
            values.push_back(valueText(item));
        if (options.csv)
            printCsv(timeOfDay(), values);
        else
            screen.show(values);
        if (std::fflush(stdout) != 0) break;
    }
    return kNothing;
}

} // namespace

void addWatch(CLI::App& app, Commands& commands) {
    const auto options = std::make_shared<Options>();
    Subcommand command(app, "watch", "live values, renewed in place");
    command.option("NAME", options->names, "names; 'NAME I' or 'NAME I.J' for elements").required();
    command.option("--period", options->period, "seconds between two looks; 1 if not given")
        .inRange(0.01, 86400.0);
    command.option("--count", options->count, "end after so many looks");
    command.flag("--csv", options->csv, "one row a look, for spreadsheets");
    commands.push_back({command, [options](const Context& context) { return run(*options, context); }});
}

} // namespace talux::tool
