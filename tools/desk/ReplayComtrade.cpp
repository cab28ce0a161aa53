// COMTRADE (IEEE C37.111, revisions 1999 and 2013) is name.cfg with name.dat beside it. Channels are found by
// phase and unit; the phasors are those of a discrete Fourier transform over one cycle of the line frequency.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <numbers>
#include <sstream>
#include <vector>

#include "tools/desk/Replay.h"

namespace desk {

namespace {

constexpr int kMaxChannels = 9999;
constexpr double kMaxSamples = 20000000;

// Voltages of L1 to L3 in kV, then their currents in A, primary.
constexpr std::size_t kWaves = 6;

// Which wave an analog channel is, and how it becomes that from its raw values.
struct AnalogChannel {
    std::size_t wave = kWaves; // none
    double factor = 1, offset = 0;
};

char upper(char c) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

// The configuration: name.cfg, line by line.
class Configuration : public Lines {
public:
    explicit Configuration(const std::string& path) : Lines(path) {
        next(2); // station, device, revision
        readChannels();
        readRate();
        next(1); // start
        next(1); // trigger
        format = next(1)[0];
        std::ranges::transform(format, format.begin(), upper);
    }

    std::vector<AnalogChannel> analog;
    std::size_t digital = 0;
    double lineFrequency = 50, rate = 0;
    std::size_t samples = 0;
    std::string format;

private:
    using Fields = std::vector<std::string>;

    Fields next(std::size_t min) {
        std::string text;
        if (!Lines::next(text)) fail("the file ends here");
        Fields fields = fieldsOf(text, ',', false);
        for (std::string& field : fields) {
            field.erase(0, field.find_first_not_of(' '));
            field.erase(field.find_last_not_of(' ') + 1);
        }
        if (fields.size() < min) fail("at least " + std::to_string(min) + " fields expected");
        return fields;
    }
    [[nodiscard]] double number(const std::string& text, const char* what) const {
        char* end = nullptr;
        const double value = std::strtod(text.c_str(), &end);
        if (text.empty() || *end != '\0' || !std::isfinite(value))
            fail(std::string(what) + " is a number, not '" + text + "'");
        return value;
    }
    [[nodiscard]] std::size_t count(const std::string& text, char kind) const {
        if (text.empty() || upper(text.back()) != kind)
            fail("a number of channels with " + std::string(1, kind) + " expected, not '" + text + "'");
        const double value = number(text.substr(0, text.size() - 1), "the number of channels");
        if (value < 0 || value > kMaxChannels)
            fail("from 0 to " + std::to_string(kMaxChannels) + " channels");
        return static_cast<std::size_t>(value);
    }
    void readChannels() {
        const Fields counts = next(3);
        const std::size_t analogCount = count(counts[1], 'A');
        digital = count(counts[2], 'D');
        while (analog.size() < analogCount)
            analog.push_back(channel(next(10)));
        for (std::size_t k = 0; k < digital; ++k)
            next(1);
        for (std::size_t wave = 0; wave < kWaves; ++wave)
            if (std::ranges::find(analog, wave, &AnalogChannel::wave) == analog.end())
                fail(std::string(wave < kPhases ? "no voltage" : "no current") + " of phase " +
                     std::to_string(wave % kPhases + 1));
    }
    // number, name, phase, component, unit, a, b, skew, min, max, primary, secondary, P or S
    [[nodiscard]] AnalogChannel channel(const Fields& fields) const {
        static constexpr std::string_view kNames[] = {"A", "B", "C", "L1", "L2", "L3", "1", "2", "3"};
        static constexpr struct Unit {
            std::string_view name;
            double size;
            std::size_t firstWave;
        } kUnits[] = {{"kV", 1, 0}, {"V", 0.001, 0}, {"A", 1, kPhases}, {"kA", 1000, kPhases}};
        const auto* const name = std::ranges::find(kNames, fields[2]);
        const auto* const unit = std::ranges::find(kUnits, fields[4], &Unit::name);
        AnalogChannel result;
        if (name != std::end(kNames) && unit != std::end(kUnits))
            result.wave = unit->firstWave + static_cast<std::size_t>(name - kNames) % kPhases;
        double primary = 1;
        if (fields.size() >= 13 && (fields[12] == "S" || fields[12] == "s")) {
            const double secondary = number(fields[11], "the secondary rating");
            primary = secondary == 0 ? 1 : number(fields[10], "the primary rating") / secondary;
        }
        const double size = unit == std::end(kUnits) ? 0 : unit->size;
        result.factor = number(fields[5], "a") * size * primary;
        result.offset = number(fields[6], "b") * size * primary;
        return result;
    }
    void readRate() {
        lineFrequency = number(next(1)[0], "the line frequency");
        const double rates = number(next(1)[0], "the number of sampling rates");
        if (rates != 1) fail("one sampling rate expected, not " + std::to_string(rates));
        const Fields fields = next(2);
        rate = number(fields[0], "the sampling rate");
        const double last = number(fields[1], "the last sample");
        if (last < 1 || last > kMaxSamples) fail("from 1 to 20 million samples");
        samples = static_cast<std::size_t>(last);
        if (!(lineFrequency > 0 && rate >= 4 * lineFrequency))
            fail("at least four samples a cycle are needed");
    }
};

// Each reads the raw values of a sample; what is wrong, or nullptr.
const char* readText(std::istream& data, std::size_t, std::vector<double>& raw) {
    std::string text;
    if (!std::getline(data, text)) return "the file ends here";
    std::istringstream fields(text);
    std::string field;
    for (std::size_t k = 0; k < raw.size() + 2; ++k) {
        if (!std::getline(fields, field, ',')) return "too few values";
        if (k < 2) continue; // number and time
        char* end = nullptr;
        raw[k - 2] = std::strtod(field.c_str(), &end);
        if (end == field.c_str()) return "a value is no number";
    }
    return nullptr;
}
template <class Number>
const char* readBinary(std::istream& data, std::size_t digitalBytes, std::vector<double>& raw) {
    std::vector<char> bytes(8 + raw.size() * sizeof(Number) + digitalBytes); // after number and time
    if (!data.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return "the file ends here";
    for (std::size_t k = 0; k < raw.size(); ++k) {
        Number number;
        std::memcpy(&number, bytes.data() + 8 + k * sizeof number, sizeof number);
        raw[k] = static_cast<double>(number);
    }
    return nullptr;
}
constexpr struct Format {
    std::string_view name;
    const char* (*read)(std::istream& data, std::size_t digitalBytes, std::vector<double>& raw);
} kFormats[] = {{"ASCII", readText},
                {"BINARY", readBinary<std::int16_t>},
                {"BINARY32", readBinary<std::int32_t>},
                {"FLOAT32", readBinary<float>}};

using Waves = std::vector<std::array<double, kWaves>>;

Waves readWaves(const std::string& path, const Configuration& config) {
    std::ifstream data(path, std::ios::binary);
    if (!data) throw ReplayFault(path + ": cannot be read");
    const auto* const format = std::ranges::find(kFormats, config.format, &Format::name);
    if (format == std::end(kFormats))
        config.fail("the format '" + config.format + "' is none of ASCII, BINARY, BINARY32, FLOAT32");
    const std::size_t digitalBytes = (config.digital + 15) / 16 * 2;
    std::vector<double> raw(config.analog.size());
    Waves waves;
    while (waves.size() < config.samples) {
        const char* const wrong = format->read(data, digitalBytes, raw);
        auto& wave = waves.emplace_back();
        if (wrong != nullptr)
            throw ReplayFault(path + ": sample " + std::to_string(waves.size()) + ": " + wrong);
        for (std::size_t k = 0; k < raw.size(); ++k)
            if (const AnalogChannel& channel = config.analog[k]; channel.wave < kWaves)
                wave[channel.wave] = raw[k] * channel.factor + channel.offset;
    }
    return waves;
}

} // namespace

Recording openComtrade(const std::string& path) {
    const Configuration config(path);
    const double rate = config.rate, hertz = config.lineFrequency;
    const std::string data = path.substr(0, path.size() - 4) + (path.ends_with(".CFG") ? ".DAT" : ".dat");
    // Of the cycle that begins at `second`.
    return [=, waves = readWaves(data, config)](double second, Sample& sample) {
        const auto perCycle = static_cast<std::size_t>(std::lround(rate / hertz));
        const auto first = static_cast<std::size_t>(std::lround(second * rate));
        if (first + perCycle > waves.size()) return false;
        std::array<Phasor, kWaves> phasors{};
        for (std::size_t n = first; n < first + perCycle; ++n) {
            const double angle = -2 * std::numbers::pi * hertz * static_cast<double>(n) / rate;
            for (std::size_t k = 0; k < kWaves; ++k)
                phasors[k] += waves[n][k] * std::polar(1.0, angle);
        }
        const double scale = std::numbers::sqrt2 / static_cast<double>(perCycle);
        for (std::size_t k = 0; k < kPhases; ++k) {
            sample.voltage[k + 1] = phasors[k] * scale;
            sample.current[k + 1] = phasors[k + kPhases] * scale;
        }
        sample.calculateResidual();
        sample.frequency = hertz;
        return true;
    };
}

} // namespace desk
