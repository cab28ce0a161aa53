#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <numbers>
#include <sstream>
#include <vector>

#include "tools/desk/ReplayFormats.h"

namespace desk {

namespace {

constexpr int kMaxChannels = 9999;
constexpr std::size_t kMaxSamples = 20000000;

// Where a channel goes: 1 to 3 are the phases.
struct Channel {
    std::size_t phase = 0; // 0: nowhere
    bool isCurrent = false;
    double factor = 1, offset = 0; // of the raw value, in kV or A primary
};

// The configuration: name.cfg, line by line.
class Configuration {
public:
    explicit Configuration(const std::string& file) : path(file), stream(file) {
        if (!stream) throw ReplayFault(path + ": cannot be read");
        next(2); // station, device, revision
        readChannels();
        lineFrequency = number(next(1)[0], "the line frequency");
        readRate();
        next(1); // start
        next(1); // trigger
        format = next(1)[0];
        for (char& c : format)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }

    std::vector<Channel> analog;
    int digital = 0;
    double lineFrequency = 50, rate = 0;
    std::size_t samples = 0;
    std::string format;

    [[noreturn]] void fail(const std::string& text) const {
        throw ReplayFault(path + ":" + std::to_string(line) + ": " + text);
    }

private:
    std::string path;
    std::ifstream stream;
    int line = 0;

    std::vector<std::string> next(std::size_t least) {
        std::string text;
        ++line;
        if (!std::getline(stream, text)) fail("the file ends here");
        std::vector<std::string> fields(1);
        for (const char c : text)
            if (c == ',')
                fields.emplace_back();
            else if (c != '\r' && (c != ' ' || !fields.back().empty()))
                fields.back() += c;
        for (std::string& field : fields)
            field.erase(field.find_last_not_of(' ') + 1);
        if (fields.size() < least) fail("at least " + std::to_string(least) + " fields expected");
        return fields;
    }
    double number(const std::string& text, const char* what) const {
        char* end = nullptr;
        const double value = std::strtod(text.c_str(), &end);
        if (text.empty() || *end != '\0' || !std::isfinite(value))
            fail(std::string(what) + " is a number, not '" + text + "'");
        return value;
    }
    int count(const std::string& text, char kind) const {
        const bool isMarked = !text.empty() && std::toupper(static_cast<unsigned char>(text.back())) == kind;
        if (!isMarked)
            fail("a number of channels with " + std::string(1, kind) + " expected, not '" + text + "'");
        const double value = number(text.substr(0, text.size() - 1), "the number of channels");
        if (value < 0 || value > kMaxChannels)
            fail("from 0 to " + std::to_string(kMaxChannels) + " channels");
        return static_cast<int>(value);
    }
    void readChannels() {
        const auto counts = next(3);
        const int analogCount = count(counts[1], 'A');
        digital = count(counts[2], 'D');
        for (int k = 0; k < analogCount; ++k)
            analog.push_back(channel(next(10)));
        for (int k = 0; k < digital; ++k)
            next(1);
        for (const bool isCurrent : {false, true})
            for (std::size_t phase = 1; phase <= 3; ++phase)
                if (!has(isCurrent, phase))
                    fail("no " + std::string(isCurrent ? "current" : "voltage") + " of phase " +
                         std::to_string(phase));
    }
    [[nodiscard]] bool has(bool isCurrent, std::size_t phase) const {
        for (const Channel& each : analog)
            if (each.phase == phase && each.isCurrent == isCurrent) return true;
        return false;
    }
    // number, name, phase, component, unit, a, b, skew, min, max, primary, secondary, P or S
    [[nodiscard]] Channel channel(const std::vector<std::string>& fields) const {
        static constexpr const char* kNames[][3] = {{"A", "B", "C"}, {"L1", "L2", "L3"}, {"1", "2", "3"}};
        Channel result;
        for (const auto& names : kNames)
            for (std::size_t k = 0; k < 3; ++k)
                if (fields[2] == names[k]) result.phase = k + 1;
        const std::string& unit = fields[4];
        const double size = unit == "kV" || unit == "A" ? 1 : unit == "V" ? 0.001 : unit == "kA" ? 1000 : 0;
        if (size == 0) result.phase = 0;
        result.isCurrent = unit == "A" || unit == "kA";
        double primary = 1;
        if (fields.size() >= 13 && (fields[12] == "S" || fields[12] == "s")) {
            const double secondary = number(fields[11], "the secondary rating");
            primary = secondary == 0 ? 1 : number(fields[10], "the primary rating") / secondary;
        }
        result.factor = number(fields[5], "a") * size * primary;
        result.offset = number(fields[6], "b") * size * primary;
        return result;
    }
    void readRate() {
        const double rates = number(next(1)[0], "the number of sampling rates");
        if (rates != 1) fail("one sampling rate expected, not " + std::to_string(rates));
        const auto fields = next(2);
        rate = number(fields[0], "the sampling rate");
        const double last = number(fields[1], "the last sample");
        if (last < 1 || last > static_cast<double>(kMaxSamples)) fail("from 1 to 20 million samples");
        samples = static_cast<std::size_t>(last);
        if (!(lineFrequency > 0 && rate >= 4 * lineFrequency))
            fail("at least four samples a cycle are needed");
    }
};

// Raw values, sample after sample, from name.dat.
class Data {
public:
    Data(const std::string& file, const Configuration& configuration)
        : path(file), config(configuration), stream(file, std::ios::binary) {
        if (!stream) throw ReplayFault(path + ": cannot be read");
    }

    void read(std::vector<double>& raw) {
        ++sample;
        if (config.format == "ASCII")
            readText(raw);
        else if (config.format == "BINARY")
            readBinary<std::int16_t>(raw);
        else if (config.format == "BINARY32")
            readBinary<std::int32_t>(raw);
        else if (config.format == "FLOAT32")
            readBinary<float>(raw);
        else
            config.fail("the format '" + config.format + "' is none of ASCII, BINARY, BINARY32, FLOAT32");
    }

private:
    std::string path;
    const Configuration& config;
    std::ifstream stream;
    std::size_t sample = 0;

    [[noreturn]] void fail(const char* text) const {
        throw ReplayFault(path + ": sample " + std::to_string(sample) + ": " + text);
    }
    void readText(std::vector<double>& raw) {
        std::string text;
        if (!std::getline(stream, text)) fail("the file ends here");
        std::istringstream fields(text);
        std::string field;
        for (std::size_t k = 0; k < raw.size() + 2; ++k) {
            if (!std::getline(fields, field, ',')) fail("too few values");
            if (k < 2) continue; // number and time
            char* end = nullptr;
            raw[k - 2] = std::strtod(field.c_str(), &end);
            if (end == field.c_str()) fail("a value is no number");
        }
    }
    template <class Number>
    void readBinary(std::vector<double>& raw) {
        const std::size_t digitalBytes = static_cast<std::size_t>(config.digital + 15) / 16 * 2;
        std::vector<char> bytes(8 + raw.size() * sizeof(Number) + digitalBytes);
        if (!stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
            fail("the file ends here");
        for (std::size_t k = 0; k < raw.size(); ++k) {
            Number number;
            std::memcpy(&number, bytes.data() + 8 + k * sizeof number, sizeof number);
            raw[k] = static_cast<double>(number);
        }
    }
};

class ComtradeRecording : public Recording {
public:
    explicit ComtradeRecording(const std::string& path) {
        const std::string stem = path.substr(0, path.size() - 4);
        const bool isUpper = path.ends_with(".CFG");
        const Configuration config(path);
        lineFrequency = config.lineFrequency;
        rate = config.rate;
        Data data(stem + (isUpper ? ".DAT" : ".dat"), config);
        std::vector<double> raw(config.analog.size());
        for (std::size_t n = 0; n < config.samples; ++n) {
            data.read(raw);
            std::array<double, 6> each{};
            for (std::size_t k = 0; k < raw.size(); ++k) {
                const Channel& channel = config.analog[k];
                if (channel.phase == 0) continue;
                each[channel.phase - 1 + (channel.isCurrent ? 3 : 0)] =
                    raw[k] * channel.factor + channel.offset;
            }
            waves.push_back(each);
        }
    }

    // The cycle that begins at `second`.
    bool at(double second, Sample& sample) override {
        const auto perCycle = static_cast<std::size_t>(std::lround(rate / lineFrequency));
        const auto first = static_cast<std::size_t>(std::lround(second * rate));
        if (first + perCycle > waves.size()) return false;
        std::array<Phasor, 6> phasors{};
        for (std::size_t n = first; n < first + perCycle; ++n) {
            const double angle = -2 * std::numbers::pi * lineFrequency * static_cast<double>(n) / rate;
            for (std::size_t k = 0; k < phasors.size(); ++k)
                phasors[k] += waves[n][k] * std::polar(1.0, angle);
        }
        for (std::size_t k = 0; k < 3; ++k) {
            const double scale = std::numbers::sqrt2 / static_cast<double>(perCycle);
            sample.voltage[k + 1] = phasors[k] * scale;
            sample.current[k + 1] = phasors[k + 3] * scale;
        }
        sample.voltage[0] = (sample.voltage[1] + sample.voltage[2] + sample.voltage[3]) / 3.0;
        sample.current[0] = sample.current[1] + sample.current[2] + sample.current[3];
        sample.frequency = lineFrequency;
        return true;
    }

private:
    double lineFrequency = 50, rate = 0;
    std::vector<std::array<double, 6>> waves; // voltages of L1 to L3 in kV, currents in A
};

} // namespace

std::unique_ptr<Recording> openComtrade(const std::string& path) {
    return std::make_unique<ComtradeRecording>(path);
}

std::unique_ptr<Recording> openRecording(const std::string& path) {
    if (path.ends_with(".cfg") || path.ends_with(".CFG")) return openComtrade(path);
    if (path.ends_with(".csv")) return openCsv(path);
    throw ReplayFault(path + ": neither a .csv nor a .cfg file");
}

} // namespace desk
