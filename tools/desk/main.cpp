// talux-desk: plays the device on a PC, for learning and for trying scripts. No protection.
//
// Exit status: 0 the scenario has ended or somebody stopped the program, 1 the scenario has faults, 2 it
// cannot be carried out.
#include <CLI/CLI.hpp>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <optional>

#include "ParamSystem/files/Replace.h"
#include "tools/desk/Desk.h"
#include "tools/desk/Factory.h"
#include "tools/desk/Plot.h"
#include "tools/desk/Replay.h"

namespace {

struct Options {
    std::string scenario, plot, log;
    double speed = 1;
    bool check = false, step = false;
};

volatile std::sig_atomic_t stopRequested = 0;

int fail(const std::string& text) {
    std::cerr << "talux-desk: " << text << '\n';
    return 2;
}

std::optional<desk::Scenario> read(const std::string& path, int& status) {
    desk::ReadScenario result;
    if (!path.empty()) {
        std::ifstream file(path);
        if (!file) {
            status = fail(path + ": " + std::strerror(errno));
            return {};
        }
        result = desk::readScenario(file);
    }
    for (const desk::ScenarioFault& fault : result.faults)
        std::cerr << path << ':' << fault.line << ": " << fault.text << '\n';
    status = result.faults.empty() ? 0 : 1;
    if (status != 0) return {};
    return std::move(result.scenario);
}

desk::OpenRecording recordingsBeside(const std::string& scenario) {
    const auto slash = scenario.rfind('/');
    const std::string folder = slash == scenario.npos ? "" : scenario.substr(0, slash + 1);
    return [folder](const std::string& path) {
        return desk::openRecording(path.starts_with('/') ? path : folder + path);
    };
}

// Without a store, with the factory settings, as fast as it can.
int plot(const desk::Scenario& scenario, const Options& options) {
    desk::Desk device(scenario, recordingsBeside(options.scenario));
    const talux::Settings settings = desk::factorySettings();
    desk::Plot picture;
    constexpr int kLongest = 180000; // an hour
    int cycles = 0;
    for (desk::Cycle cycle; cycles < kLongest && device.step(settings, {}, cycle); ++cycles)
        picture.add(cycle);
    const std::string page = picture.svg(options.scenario.substr(options.scenario.rfind('/') + 1));
    const auto error = talux::replaceFile(options.plot.c_str(), page, nullptr);
    return error ? fail(options.plot + ": " + std::strerror(error.number)) : 0;
}

// Waits for the next cycle: for its time, or for a line on standard input.
class Pace {
public:
    explicit Pace(const Options& given) : options(given), next(talux::detail::monotonic()) {}

    bool wait() {
        if (options.step) {
            std::string line;
            return static_cast<bool>(std::getline(std::cin, line));
        }
        next += static_cast<std::int64_t>(desk::kCycle * 1e9 / options.speed);
        const auto left = next - talux::detail::monotonic();
        if (left > 0) talux::detail::sleepFor(left);
        if (left < -1000000000) next = talux::detail::monotonic(); // after a standstill
        return true;
    }

private:
    const Options& options;
    std::int64_t next;
};

// Says so when the threshold of the earth fault changes, in the log or on standard output.
void report(std::FILE* log, const talux::Settings& settings) {
    static constexpr talux::Setting<float> kThreshold{"Uearth"};
    std::fprintf(log, "Uearth is %g now\n", static_cast<double>(settings[kThreshold]));
    std::fflush(log);
}

int run(const desk::Scenario& scenario, const Options& options) {
    std::FILE* const log = options.log.empty() ? stdout : std::fopen(options.log.c_str(), "w");
    if (log == nullptr) return fail(options.log + ": " + std::strerror(errno));
    talux::Store store;
    store.stage_defaults();
    store.commit();
    talux::Follower follower;
    desk::Publisher publisher;
    desk::Statistics statistics;
    desk::Desk device(scenario, recordingsBeside(options.scenario));
    desk::Cycle cycle;
    Pace pace(options);
    std::fputs("a model for learning and for trying scripts, no protection\n", log);
    report(log, follower.settings());
    for (bool ready = false;
         stopRequested == 0 && device.step(follower.settings(), desk::readOverrides(), cycle);) {
        if (follower.poll()) report(log, follower.settings());
        if (desk::Publisher::takeAcknowledgement()) device.acknowledge();
        if (!device.isDown()) {
            if (!publisher.publish(cycle, device.transients()))
                std::fputs("talux-desk: somebody else is writing\n", stderr);
            desk::Publisher::answerRequest(cycle);
            if (statistics.add(cycle.values, desk::kCycle, device.transients(), follower.settings()))
                talux::Record<talux::StatRecord_c0>{}.set(statistics.record());
        }
        if (!std::exchange(ready, true)) {
            std::puts("ready");
            std::fflush(stdout);
        }
        if (!pace.wait()) break;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"plays the device on a PC: a model for learning and for trying scripts, no protection"};
    Options options;
    app.add_option("--scenario", options.scenario, "what happens, see docs/desk.md; nothing if not given")
        ->type_name("FILE");
    app.add_flag("--check", options.check, "only look at the scenario: errors with file and line");
    app.add_option("--plot", options.plot, "draw U0, I0 and signals with the factory settings into a file")
        ->type_name("FILE.svg");
    app.add_option("--speed", options.speed, "time runs so many times faster")
        ->check(CLI::Range(0.01, 1000.0));
    app.add_flag("--step", options.step, "a cycle for each line on standard input");
    app.add_option("LOGFILE", options.log, "says there when the threshold changes, not on standard output");
    CLI11_PARSE(app, argc, argv);
    std::signal(SIGTERM, [](int) { stopRequested = 1; });
    std::signal(SIGINT, [](int) { stopRequested = 1; });
    int status = 0;
    const auto scenario = read(options.scenario, status);
    if (!scenario || options.check) return status;
    try {
        return options.plot.empty() ? run(*scenario, options) : plot(*scenario, options);
    } catch (const desk::ReplayFault& fault) {
        return fail(fault.what());
    }
}
