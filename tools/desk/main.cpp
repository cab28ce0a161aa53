// talux-desk: plays the device on a PC, for learning and for trying scripts. No protection.
//
// Exit status: 0 the scenario has ended or somebody stopped the program, 1 the scenario has faults, 2 it
// cannot be carried out.
#include <argp.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>

#include "ParamSystem/files/Replace.h"
#include "tools/desk/Desk.h"
#include "tools/desk/Plot.h"

namespace {

struct Options {
    std::string scenario, plot, log;
    double speed = 1;
    bool check = false, step = false;
};

volatile std::sig_atomic_t stopRequested = 0;

int fail(const std::string& path, int error) {
    std::cerr << "talux-desk: " << path << ": " << std::strerror(error) << '\n';
    return 2;
}

// Without a store, with the factory settings, as fast as it can.
int plot(const desk::Scenario& scenario, const Options& options) {
    desk::Desk device(scenario);
    const talux::Settings settings(desk::factorySpace());
    desk::Plot picture;
    constexpr int kLongest = 180000; // an hour
    int cycles = 0;
    for (desk::Cycle cycle; cycles < kLongest && device.step(settings, {}, cycle); ++cycles)
        picture.add(cycle);
    const std::string page = picture.svg(options.scenario.substr(options.scenario.rfind('/') + 1));
    const auto error = talux::replaceFile(options.plot.c_str(), page, nullptr);
    return error ? fail(options.plot, error.number) : 0;
}

// Waits for the cycle at `next`, or for a line on standard input; false at its end.
bool wait(const Options& options, std::int64_t& next) {
    std::string line;
    if (options.step) return static_cast<bool>(std::getline(std::cin, line));
    next += static_cast<std::int64_t>(desk::kCycle * 1e9 / options.speed);
    const auto left = next - talux::detail::monotonic();
    if (left > 0) talux::detail::sleepFor(left);
    if (left < -1000000000) next = talux::detail::monotonic(); // after a standstill
    return true;
}

// Says so when the threshold of the earth fault changes, in the log or on standard output.
void report(std::FILE* log, const talux::Settings& settings) {
    static constexpr talux::Setting<float> kThreshold{"Uearth"};
    std::fprintf(log, "Uearth is %g now\n", static_cast<double>(settings[kThreshold]));
    std::fflush(log);
}

int run(const desk::Scenario& scenario, const Options& options) {
    std::FILE* const log = options.log.empty() ? stdout : std::fopen(options.log.c_str(), "w");
    if (log == nullptr) return fail(options.log, errno);
    talux::Store store;
    store.stage_defaults();
    store.commit();
    talux::Follower follower;
    desk::Statistics statistics;
    desk::Desk device(scenario);
    desk::Cycle cycle;
    bool isReady = false;
    std::int64_t next = talux::detail::monotonic();
    std::fputs("a model for learning and for trying scripts, no protection\n", log);
    report(log, follower.settings());
    while (stopRequested == 0 && device.step(follower.settings(), desk::readOverrides(), cycle)) {
        if (follower.poll()) report(log, follower.settings());
        if (desk::takeAcknowledgement()) device.acknowledge();
        if (!device.isDown()) {
            if (!desk::publish(cycle)) std::fputs("talux-desk: somebody else is writing\n", stderr);
            if (const auto record = statistics.add(cycle, follower.settings()))
                talux::Record<talux::StatRecord_c0>{}.set(*record);
        }
        if (!std::exchange(isReady, true)) {
            std::puts("ready");
            std::fflush(stdout);
        }
        if (!wait(options, next)) break;
    }
    return 0;
}

// Reads the scenario and does what the options say.
int carryOut(const Options& options) {
    desk::Scenario scenario;
    if (!options.scenario.empty()) {
        std::ifstream file(options.scenario);
        file.peek(); // a folder can be opened, but not read
        if (file.fail()) return fail(options.scenario, errno);
        scenario = desk::readScenario(file, std::filesystem::path(options.scenario).parent_path());
    }
    for (const std::string& fault : scenario.faults)
        std::cerr << options.scenario << ':' << fault << '\n';
    if (!scenario.faults.empty()) return 1;
    if (options.check) return 0;
    return options.plot.empty() ? run(scenario, options) : plot(scenario, options);
}

enum Key : int { kScenario = 256, kCheck, kPlot, kSpeed, kStep }; // beyond the characters: no short forms

constexpr argp_option kOptions[] = {
    {"scenario", kScenario, "FILE", 0, "what happens, see docs/desk.md; nothing if not given", 0},
    {"check", kCheck, nullptr, 0, "only look at the scenario: errors with file and line", 0},
    {"plot", kPlot, "FILE.svg", 0, "draw U0, I0 and signals with the factory settings into a file", 0},
    {"speed", kSpeed, "NUMBER", 0, "time runs so many times faster, 0.01 to 1000", 0},
    {"step", kStep, nullptr, 0, "a cycle for each line on standard input", 0},
    {nullptr, 'h', nullptr, OPTION_HIDDEN, nullptr, 0},
    {}};

double speedIn(const char* text, argp_state* state) {
    char* end = nullptr;
    const double speed = std::strtod(text, &end);
    if (*end != '\0' || !(speed >= 0.01 && speed <= 1000))
        argp_error(state, "--speed %s: must be 0.01 to 1000", text);
    return speed;
}

error_t take(int key, char* text, argp_state* state) {
    Options& options = *static_cast<Options*>(state->input);
    switch (key) {
    case kScenario:
        options.scenario = text;
        return 0;
    case kCheck:
        options.check = true;
        return 0;
    case kPlot:
        options.plot = text;
        return 0;
    case kSpeed:
        options.speed = speedIn(text, state);
        return 0;
    case kStep:
        options.step = true;
        return 0;
    case 'h':
        argp_state_help(state, stdout, ARGP_HELP_STD_HELP);
        return 0;
    case ARGP_KEY_ARG:
        if (state->arg_num > 0) argp_error(state, "%s is not expected here", text);
        options.log = text;
        return 0;
    default:
        return ARGP_ERR_UNKNOWN;
    }
}

constexpr argp kParser{kOptions,
                       take,
                       "[LOGFILE]",
                       "plays the device on a PC: a model for learning and for trying scripts, no protection"
                       "\v  LOGFILE receives the changes of the threshold, instead of standard output.",
                       nullptr,
                       nullptr,
                       nullptr};

} // namespace

int main(int argc, char** argv) {
    Options options;
    argp_err_exit_status = 2;
    argp_parse(&kParser, argc, argv, 0, nullptr, &options);
    std::signal(SIGTERM, [](int) { stopRequested = 1; });
    std::signal(SIGINT, [](int) { stopRequested = 1; });
    return carryOut(options);
}
