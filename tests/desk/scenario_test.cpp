// Scenarios: what is understood and what it does; recordings that are replayed. What is reported of the rest
// is typed in desk.md.
#include "Bench.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <random>
#include <unistd.h>

using namespace desk_test;
using namespace std::literals;

namespace {

std::string faultsOf(const std::string& text) {
    std::istringstream stream(text);
    std::string all;
    for (const std::string& fault : readScenario(stream).faults)
        all += fault + "\n";
    return all;
}

TEST(DeskScenario, NeedsEveryWordOfAStatement) {
    for (const std::string statement :
         {"network low-resistance 20 kV neutral 500 A", "load 5 A angle 3 deg noise 2 %",
          "at 2 s earth fault L1 200 ohm forward",
          "at 2 s restriking earth fault L1 solid backward every 0.3 s for 0.06 s",
          "at 2 s short circuit L1 L2 1500 A forward", "at 2 s transformer U1 reversed",
          "at 2 s transformers I1 I3 normal", "at 2 s fuse U2 missing", "at 2 s conductor L1 open",
          "at 2 s rotation reversed", "at 2 s input BE6 off", "at 2 s frequency 49.8 Hz",
          "at 2 s load 250 A"}) {
        EXPECT_EQ(faultsOf(statement), "");
        for (std::size_t word = 0, end = 0; end < statement.size(); word = end + 1) {
            end = std::min(statement.find(' ', word), statement.size());
            const std::string before = statement.substr(0, word), after = statement.substr(end);
            EXPECT_TRUE(faultsOf("\n# one\n\t\n" + before + "?" + after).starts_with("4: "))
                << before << "?" << after;
            const bool isWhole = word == 0 || before == "load 5 A " || before == "load 5 A angle 3 deg ";
            EXPECT_EQ(faultsOf(before).empty(), isWhole) << before;
        }
    }
}

TEST(DeskScenario, TakesEventsInTheOrderOfTimeAndEndsWhateverComes) {
    std::istringstream text("at 3 s end\nat 1 s input BE2 on\n");
    const Scenario read = readScenario(text);
    EXPECT_EQ(read.events.at(0).second, 1);
    std::string atOnce = "network isolated 20 kV own 0 A\nload 0 A angle 0 deg drift 0 %\n";
    for (int ampere = 10; ampere <= 400; ampere += 10)
        atOnce += "at 1 s load " + std::to_string(ampere) + " A\n";
    Bench bench;
    EXPECT_NEAR(bench.run(atOnce + "at 2 s end\n").back().record.I1p, 400, 1) << "the last one holds";
    std::minstd_rand random(7);
    const std::string alphabet = "at 0123456789.s,earthfult L1#\n%-network kVA\t\0x"s;
    for (int k = 0; k < 3000; ++k) {
        std::string hostile;
        for (auto length = random() % 200; length > 0; --length)
            hostile += alphabet[random() % alphabet.size()];
        faultsOf(hostile);
    }
}

struct DeskReplay : testing::Test {
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("desk_replay." + std::to_string(getpid()));

    void SetUp() override { std::filesystem::create_directories(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }
    std::string write(const char* name, const std::string& contents) {
        std::ofstream(folder / name, std::ios::binary) << contents;
        return folder / name;
    }
};

constexpr double kRate = 4000;

// Sines of these amplitudes and angles, as a relay would record them.
std::string configuration(const char* format, int digital = 0) {
    std::string text =
        "Station,Relay,1999\n" + std::to_string(6 + digital) + ",6A," + std::to_string(digital) + "D\n";
    const char* phases[] = {"A", "B", "C"};
    for (int k = 0; k < 6; ++k)
        text += std::to_string(k + 1) + ",ch," + phases[k % 3] + ",," + (k < 3 ? "kV" : "A") +
                ",0.01,0,0,-32767,32767,1,1,P\n";
    for (int k = 0; k < digital; ++k)
        text += "1,d,,,0\n";
    return text + "50\n1\n4000,800\n01/02/2024,10:00:00.000000\n01/02/2024,10:00:00.100000\n" + format +
           "\n1\n";
}
double raw(int channel, int n) {
    const double amplitude = channel < 3 ? 16.33 : 100.0 + channel,
                 angle = -120.0 * (channel % 3) - (channel < 3 ? 0 : 30);
    return amplitude * std::cos(2 * std::numbers::pi * 50 * n / kRate + angle * std::numbers::pi / 180) /
           0.01;
}
// 16 digital channels have a word.
std::string dataIn(const std::string& format, int words = 0) {
    std::ostringstream data;
    const auto put = [&data](auto value) { data.write(reinterpret_cast<const char*>(&value), sizeof value); };
    for (int n = 0; n < 800; ++n) {
        if (format == "ASCII")
            data << n + 1 << ',' << n * 250;
        else
            put(std::array{n + 1, n * 250});
        for (int channel = 0; channel < 6; ++channel) {
            const double value = raw(channel, n);
            if (format == "ASCII") data << ',' << std::lround(value);
            if (format == "BINARY") put(static_cast<std::int16_t>(std::lround(value)));
            if (format == "BINARY32") put(static_cast<std::int32_t>(std::lround(value)));
            if (format == "float32") put(static_cast<float>(value));
        }
        for (int word = 0; word < words; ++word)
            put(std::int16_t{-1});
        if (format == "ASCII") data << "\r\n";
    }
    return data.str();
}

TEST_F(DeskReplay, FindsThePhasorsOfComtrade) {
    const struct {
        const char* format;
        int digital = 0, words = 0;
    } cases[] = {{"ASCII"},         {"BINARY"},   {"BINARY", 1, 1}, {"BINARY", 16, 1},
                 {"BINARY", 17, 2}, {"BINARY32"}, {"float32"}};
    for (const auto& [format, digital, words] : cases) {
        SCOPED_TRACE(format);
        const std::string path = write("record.cfg", configuration(format, digital));
        write("record.dat", dataIn(format, words));
        const auto recording = openRecording(path);
        Sample sample;
        for (const double second : {0.0, 0.06, 0.18}) {
            ASSERT_TRUE(recording(second, sample));
            EXPECT_NEAR(std::abs(sample.voltage[1]), 16.33 / std::numbers::sqrt2, 0.001 * 11.5);
            EXPECT_NEAR(std::abs(sample.current[3]), 105 / std::numbers::sqrt2, 0.001 * 74);
            EXPECT_NEAR(std::abs(sample.current[0]), std::sqrt(3) / std::numbers::sqrt2, 0.02) << "the sum";
            EXPECT_NEAR(degrees(sample.voltage[2] / sample.voltage[1]), -120, 0.1);
            EXPECT_NEAR(degrees(sample.voltage[1] / sample.current[1]), 30, 0.1);
        }
        EXPECT_FALSE(recording(0.19, sample)) << "less than a cycle is left";
    }
}

// Other units, secondary values, names of phases, digital channels, a name in capitals: the same phasors.
TEST_F(DeskReplay, FindsTheSamePhasorsHoweverChannelsAreDescribed) {
    const auto with = [&](std::initializer_list<std::pair<const char*, const char*>> replacements) {
        std::string text = configuration("ASCII");
        for (const auto& [from, to] : replacements)
            for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + strlen(to)))
                text.replace(at, strlen(from), to);
        write("RECORD.DAT", dataIn("ASCII"));
        Sample sample;
        EXPECT_TRUE(openRecording(write("RECORD.CFG", text))(0.02, sample));
        return sample;
    };
    const Sample wanted = with({});
    EXPECT_NEAR(std::abs(wanted.voltage[2]), 16.33 / std::numbers::sqrt2, 0.01);
    for (const Sample& sample :
         {with({{"kV,0.01", "V,10"}}), with({{"A,0.01", "kA,0.00001"}}),
          with({{",A,,", ",L1,,"}, {",C,,", ",3,,"}}),
          with({{"kV,0.01", "kV,0.0001"},
                {"A,0.01", "A,0.0001"},
                {"1,1,P", "100,1,S"},
                {"A,0.0001,0,0,-32767,32767,100,1,S", "A,0.0002,0,0,-32767,32767,50,1,s"}}),
          with({{"1,1,P", "9,0,s"}}), with({{",1,1,P", ""}}), with({{"Station,Relay,1999", "Station,Relay"}}),
          with({{"6,6A,0D", "8 , 6a, 2d "}, {"50\n1\n", "1,d\n2,d\n50\n1\n"}})})
        for (std::size_t k = 0; k < 4; ++k) {
            EXPECT_NEAR(std::abs(sample.voltage[k] - wanted.voltage[k]), 0, 1e-6);
            EXPECT_NEAR(std::abs(sample.current[k] - wanted.current[k]), 0, 1e-6);
        }
    // An offset shows where a cycle is no whole number of samples.
    const auto offset = [&](const char* unit) { return with({{"50\n1\n", "60\n1\n"}, {"kV,0.01,0", unit}}); };
    EXPECT_EQ(offset("kV,0.01,7").frequency, 60);
    EXPECT_NEAR(std::abs(offset("kV,0.01,7").voltage[2] - offset("V,10,7000").voltage[2]), 0, 1e-9);
    const Sample secondary =
        with({{"50\n1\n", "60\n1\n"}, {"kV,0.01,0", "kV,0.0001,0.07"}, {"1,1,P", "100,1,S"}});
    EXPECT_NEAR(std::abs(offset("kV,0.01,7").voltage[2] - secondary.voltage[2]), 0, 1e-9);
    EXPECT_GT(std::abs(offset("kV,0.01,7").voltage[2] - offset("kV,0.01,0").voltage[2]), 0.01);
    Sample none;
    EXPECT_FALSE(openRecording(folder / "RECORD.CFG")(0.1835, none)) << "a cycle of 66.7 samples needs 67";
}

} // namespace
