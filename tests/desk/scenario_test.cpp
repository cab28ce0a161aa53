// Scenarios: what is understood, what is said of the rest; recordings that are replayed, good and broken
// ones.
#include "Bench.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <random>

using namespace desk_test;

namespace {

std::string faultsOf(const std::string& text) {
    std::istringstream stream(text);
    std::string all;
    for (const std::string& fault : readScenario(stream).faults)
        all += fault + "\n";
    return all;
}

TEST(DeskScenario, SaysWhatIsWrongAndWhatWouldBeRight) {
    EXPECT_EQ(faultsOf("# a comment\n\nnetwork isolated 20 kV\nat 1 s end\n"), "");
    const struct {
        const char *line, *fault;
    } cases[] = {
        {"netwrk isolated 20 kV", "a line begins with network, load or at, not 'netwrk'"},
        {"network grounded 20 kV",
         "the neutral is one of isolated, resonant-earthed, low-resistance, not 'grounded'"},
        {"network isolated 20 V", "'kV' expected, not 'V'"},
        {"network isolated 20,5 kV", "'kV' expected, not '5'"},
        {"network isolated 20 kV detuning 5 %", "only a resonant-earthed network has a detuning"},
        {"network isolated 20 kV capacitive 5 A own 6 A",
         "the feeder's own current is part of the capacitive current"},
        {"network low-resistance 20 kV",
         "a low-resistance network, and no other, has a neutral current: neutral 500 A"},
        {"at 2 s earth fault L4 solid forward", "the phase is one of L1, L2, L3, not 'L4'"},
        {"at 2 s earth fault L1 200 Ohm forward", "'ohm' expected, not 'Ohm'"},
        {"at 2 s earth fault L1 solid", "the direction is missing"},
        {"at -1 s end", "the time is from 0 to 86400 s"},
        {"at 2 s end now", "'now' is too much"},
        {"at nan s end", "the time is from 0 to 86400 s"},
        {"at 2 s short circuit L1 L1 500 A forward", "a short circuit is between two phases"},
    };
    for (const auto& [line, fault] : cases)
        EXPECT_EQ(faultsOf(line), "1: " + std::string(fault) + "\n");
    EXPECT_NE(faultsOf("at 1 s fault").find("nothing begins with 'fault'; there are earth fault, "),
              std::string::npos);
}

TEST(DeskScenario, TakesEventsInTheOrderOfTimeAndEndsWhateverComes) {
    std::istringstream text("at 3 s end\nat 1 s input BE2 on\n");
    const Scenario read = readScenario(text);
    ASSERT_EQ(read.events.size(), 2U);
    EXPECT_EQ(read.events[0].second, 1);
    std::minstd_rand random(7);
    const std::string alphabet = "at 0123456789.s,earthfult L1#\n%-network kVA\t\0x";
    for (int k = 0; k < 3000; ++k) {
        std::string hostile;
        for (auto length = random() % 200; length > 0; --length)
            hostile += alphabet[random() % alphabet.size()];
        faultsOf(hostile);
    }
}

TEST(DeskScenario, GivesTheSameValuesTwice) {
    const std::string scenario =
        "network resonant-earthed 20 kV\nload 100 A noise 5 %\nat 1 s earth fault L1 50 ohm "
        "forward\nat 2 s end\n";
    Bench one, two;
    const auto& first = one.run(scenario);
    const auto& second = two.run(scenario);
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t k = 0; k < first.size(); ++k)
        ASSERT_EQ(first[k].values, second[k].values);
}

class DeskReplay : public testing::Test {
protected:
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "desk_replay";

    void SetUp() override { std::filesystem::create_directories(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }
    std::string write(const char* name, const std::string& contents) {
        std::ofstream(folder / name, std::ios::binary) << contents;
        return folder / name;
    }
    static std::string faultOf(const std::string& path) {
        try {
            openRecording(path);
        } catch (const ReplayFault& fault) {
            return std::string(fault.what()).substr(path.rfind('/') + 1);
        }
        return "none";
    }
};

constexpr double kRate = 4000;

// Sines of these amplitudes and angles, as a relay would record them.
std::string configuration(const char* format) {
    std::string text = "Station,Relay,1999\n6,6A,0D\n";
    const char* phases[] = {"A", "B", "C"};
    for (int k = 0; k < 6; ++k)
        text += std::to_string(k + 1) + ",ch," + phases[k % 3] + ",," + (k < 3 ? "kV" : "A") +
                ",0.01,0,0,-32767,32767,1,1,P\n";
    return text + "50\n1\n4000,800\n01/02/2024,10:00:00.000000\n01/02/2024,10:00:00.100000\n" + format +
           "\n1\n";
}
double raw(int channel, int n) {
    const double amplitude = channel < 3 ? 16.33 : 100.0 + channel,
                 angle = -120.0 * (channel % 3) - (channel < 3 ? 0 : 30);
    return amplitude * std::cos(2 * std::numbers::pi * 50 * n / kRate + angle * std::numbers::pi / 180) /
           0.01;
}
template <class Number>
std::string binary() {
    std::string data;
    const auto append = [&data](auto value) {
        data.append(reinterpret_cast<const char*>(&value), sizeof value);
    };
    for (int n = 0; n < 800; ++n) {
        append(n + 1);
        append(n * 250);
        for (int channel = 0; channel < 6; ++channel)
            append(static_cast<Number>(std::is_integral_v<Number> ? std::round(raw(channel, n))
                                                                  : raw(channel, n)));
    }
    return data;
}
std::string ascii() {
    std::string data;
    for (int n = 0; n < 800; ++n) {
        data += std::to_string(n + 1) + "," + std::to_string(n * 250);
        for (int channel = 0; channel < 6; ++channel)
            data += "," + std::to_string(std::lround(raw(channel, n)));
        data += "\r\n";
    }
    return data;
}

TEST_F(DeskReplay, FindsThePhasorsOfComtrade) {
    const struct {
        const char* format;
        std::string data;
    } cases[] = {{"ASCII", ascii()},
                 {"BINARY", binary<std::int16_t>()},
                 {"BINARY32", binary<std::int32_t>()},
                 {"float32", binary<float>()}};
    for (const auto& [format, data] : cases) {
        SCOPED_TRACE(format);
        const std::string path = write("record.cfg", configuration(format));
        write("record.dat", data);
        const auto recording = openRecording(path);
        Sample sample;
        for (const double second : {0.0, 0.06, 0.1}) {
            ASSERT_TRUE(recording(second, sample));
            EXPECT_NEAR(std::abs(sample.voltage[1]), 16.33 / std::numbers::sqrt2, 0.001 * 11.5);
            EXPECT_NEAR(std::abs(sample.current[3]), 105 / std::numbers::sqrt2, 0.001 * 74);
            EXPECT_NEAR(degrees(sample.voltage[2] / sample.voltage[1]), -120, 0.1);
            EXPECT_NEAR(degrees(sample.voltage[1] / sample.current[1]), 30, 0.1);
        }
        EXPECT_FALSE(recording(0.19, sample)) << "less than a cycle is left";
    }
}

TEST_F(DeskReplay, SaysWhatIsWrongWithARecording) {
    const std::string good = configuration("ASCII");
    write("record.dat", ascii());
    const auto with = [&](const std::string& from, const std::string& to) {
        std::string text = good;
        text.replace(text.find(from), from.size(), to);
        return faultOf(write("record.cfg", text));
    };
    EXPECT_EQ(with("ASCII", "ASCII"), "none");
    EXPECT_EQ(with("6A", "6X"), "record.cfg:2: a number of channels with A expected, not '6X'");
    EXPECT_EQ(with("6A", "99999A"), "record.cfg:2: from 0 to 9999 channels");
    EXPECT_EQ(with("4000,800", "4000,900"), "record.dat: sample 801: the file ends here");
    EXPECT_EQ(with("4000,800", "100,800"), "record.cfg:11: at least four samples a cycle are needed");
    EXPECT_EQ(with("4000,800", "4000,1e30"), "record.cfg:11: from 1 to 20 million samples");
    EXPECT_EQ(with(",C,,A", ",N,,A"), "record.cfg:8: no current of phase 3");
    EXPECT_EQ(with("ASCII", "PKZIP"),
              "record.cfg:14: the format 'PKZIP' is none of ASCII, BINARY, BINARY32, FLOAT32");
    EXPECT_EQ(faultOf(folder / "missing.cfg"), "missing.cfg: cannot be read");
    EXPECT_EQ(faultOf(write("record.txt", "")), "record.txt: neither a .csv nor a .cfg file");
    for (std::size_t length = 0; length + 1 < good.size(); length += 7)
        EXPECT_NE(faultOf(write("record.cfg", good.substr(0, length))), "") << length;
}

TEST_F(DeskReplay, ReplaysWhatWatchHasWritten) {
    const std::string head = "time,U1_prim,U2_prim,U3_prim,I1_prim,I2_prim,I3_prim,phiUI1,phiUI2,phiUI3\n";
    const std::string path =
        write("feeder.csv", head + "2026-11-25 23:59:59.000,11,12,13,100,101,102,30,30,30\n"
                                   "2026-11-26 00:00:00.000,10,12,13,100,101,102,30,30,30\n");
    Bench bench;
    const auto& cycles =
        bench.run("network isolated 20 kV\nload 0 A drift 0 %\nat 1 s replay " + path + "\nat 5 s end\n");
    EXPECT_NEAR(cycles[60].record.U1p, 11, 1e-3);
    EXPECT_NEAR(cycles[60].record.wUI1, 30, 1e-3);
    EXPECT_NEAR(cycles[110].record.U1p, 10, 1e-3);
    EXPECT_NEAR(cycles.back().record.I1p, 0, 3) << "the network again";
    EXPECT_EQ(faultOf(write("feeder.csv", "time,U1_prim\n")), "feeder.csv:1: no column U2_prim");
    EXPECT_EQ(faultOf(write("feeder.csv", head)), "feeder.csv: no rows of values");
    EXPECT_EQ(faultOf(write("feeder.csv", head + "2026-11-25 23:59:59.000,11\n")),
              "feeder.csv:2: 10 cells expected, not 2");
}

} // namespace
