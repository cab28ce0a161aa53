// What the usual operations cost, beside the bare work: as time and as instructions.
//
//   talux_bench count             each way once in a while, for callgrind: one dump
//   "<operation>|<way>|<runs>" each talux_bench check COUNTS      the instructions of COUNTS as a table;
//   status 1 if a goal is missed by over 10 % talux_bench time COUNTS STARTUP.lua [GOOGLE-BENCHMARK-OPTION..]
#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>

#include "bench/Operations.h"

namespace {

using bench::fail;
using bench::Operation;
using bench::Way;

// Figures by operation and way.
using Figures = std::map<std::string, std::map<std::string, double>>;

// ---- Instructions -------------------------------------------------------------------------------------

void count(const Operation& operation, const Way& way) {
    way.run(3); // what is done once is done before
    const std::string title = operation.name + "|" + way.name + "|" + std::to_string(operation.batch);
    CALLGRIND_ZERO_STATS;
    CALLGRIND_TOGGLE_COLLECT;
    way.run(operation.batch);
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS_AT(title.c_str());
}

// Lines of operation, way and instructions per run, with tabs between them.
Figures readCounts(const char* path) {
    std::ifstream file(path);
    if (!file) fail(std::string("cannot read ") + path);
    Figures counts;
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        std::string operation, way, number;
        std::getline(fields, operation, '\t');
        std::getline(fields, way, '\t');
        std::getline(fields, number);
        counts[operation][way] = std::strtod(number.c_str(), nullptr);
    }
    return counts;
}

// The figure that the judged way is held against; 0 when there is none.
double reference(const Operation& operation, const Figures& figures) {
    const bool isOwn =
        std::ranges::any_of(operation.ways, [&](const Way& way) { return way.name == operation.against; });
    const auto found = figures.find(isOwn ? operation.name : operation.against);
    if (found == figures.end()) return 0;
    const auto figure = found->second.find(isOwn ? operation.against : operation.judged);
    return figure == found->second.end() ? 0 : figure->second;
}

double ratio(const Operation& operation, const Figures& figures) {
    const double floor = reference(operation, figures);
    return floor > 0 ? figures.at(operation.name).at(operation.judged) / floor : 0;
}

void printCell(const Figures& figures, const Operation& operation, const char* way) {
    const auto row = figures.find(operation.name);
    if (row != figures.end() && row->second.count(way) != 0)
        std::printf(" %9.0f", row->second.at(way));
    else
        std::printf(" %9s", "");
}

constexpr const char* kWays[] = {"C++", "Lua", "bare C++", "bare Lua"};

// One row an operation; result: how many goals are missed by more than 10 %.
int printTable(const char* title, const std::vector<Operation>& operations, const Figures& figures) {
    int missed = 0;
    std::printf("\n%-28s", title);
    for (const char* const way : kWays)
        std::printf(" %9s", way);
    std::printf(" %7s %6s\n", "ratio", "goal");
    for (const Operation& operation : operations) {
        if (figures.count(operation.name) == 0) continue;
        std::printf("%-28s", operation.name.c_str());
        for (const char* const way : kWays)
            printCell(figures, operation, way);
        const double reached = operation.judged.empty() ? 0 : ratio(operation, figures);
        if (reached > 0) std::printf(" %7.2f", reached);
        if (operation.goal > 0) std::printf(" %6.2f", operation.goal);
        const bool misses = operation.goal > 0 && (reached == 0 || reached > 1.1 * operation.goal);
        missed += misses;
        std::puts(misses ? "  missed" : "");
    }
    return missed;
}

// ---- Time ---------------------------------------------------------------------------------------------

// Collects the repetitions, which the library takes in turns, and keeps least and median.
class Collector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration)
                times[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
        std::fputc('.', stderr);
    }

    Figures least() const {
        return figures([](std::vector<double>& t) { return t.front(); });
    }
    Figures median() const {
        return figures([](std::vector<double>& t) { return t[t.size() / 2]; });
    }

private:
    std::map<std::string, std::vector<double>> times; // "<operation>|<way>"

    template <typename Pick>
    Figures figures(Pick pick) const {
        Figures result;
        for (auto [name, values] : times) {
            std::ranges::sort(values);
            const std::size_t bar = name.find('|');
            result[name.substr(0, bar)][name.substr(bar + 1)] = pick(values);
        }
        return result;
    }
};

void measure(const Way& way, benchmark::State& state, int batch) {
    while (state.KeepRunningBatch(batch))
        way.run(batch);
}

void printStartUp(const std::string& script) {
    constexpr int kRounds = 25;
    std::vector<double> milliseconds, kilobytes;
    for (int round = 0; round < kRounds; ++round) {
        FILE* const pipe = popen(("lua5.2 " + script).c_str(), "r"); // NOLINT(cert-env33-c)
        double seconds = 0, bytes = 0;
        char line[64];
        char* end = line;
        if (pipe == nullptr || std::fgets(line, sizeof line, pipe) == nullptr)
            fail("lua5.2 does not start the module");
        seconds = std::strtod(line, &end);
        bytes = std::strtod(end, nullptr);
        pclose(pipe);
        milliseconds.push_back(seconds * 1e3);
        kilobytes.push_back(bytes / 1e3);
    }
    std::ranges::sort(milliseconds);
    std::ranges::sort(kilobytes);
    std::printf("\nrequire to return: %.2f ms at least, %.2f ms median, %.0f kB private memory\n",
                milliseconds.front(), milliseconds[kRounds / 2], kilobytes[kRounds / 2]);
}

void printTimes(const std::vector<Operation>& operations, int argc, char** argv) {
    for (const Operation& operation : operations)
        for (const Way& way : operation.ways)
            benchmark::RegisterBenchmark(
                (operation.name + "|" + way.name).c_str(),
                [&operation, &way](benchmark::State& state) { measure(way, state, operation.batch); });
    benchmark::Initialize(&argc, argv);
    Collector times;
    benchmark::RunSpecifiedBenchmarks(&times);
    std::fputc('\n', stderr);
    printTable("least time, ns", operations, times.least());
    printTable("median time, ns", operations, times.median());
}

} // namespace

int main(int argc, char** argv) {
    const std::string mode = argc > 1 ? argv[1] : "";
    const std::vector<Operation> operations = bench::operations();
    if (mode == "count" && argc == 2) {
        for (const Operation& operation : operations)
            for (const Way& way : operation.ways)
                count(operation, way);
        return 0;
    }
    if (mode == "check" && argc == 3)
        return printTable("instructions", operations, readCounts(argv[2])) > 0 ? 1 : 0;
    if (mode != "time" || argc < 4) fail("count | check COUNTS | time COUNTS STARTUP.lua [OPTION..]");
    printTimes(operations, argc - 3, argv + 3);
    printTable("instructions", operations, readCounts(argv[2]));
    printStartUp(argv[3]);
    return 0;
}
