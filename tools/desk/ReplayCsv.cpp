#include <charconv>
#include <fstream>
#include <map>
#include <numbers>
#include <vector>

#include "tools/desk/ReplayFormats.h"

namespace desk {

namespace {

constexpr std::size_t kMaxRows = 1000000;

std::vector<std::string> cellsOf(const std::string& line, char delimiter) {
    std::vector<std::string> cells(1);
    bool quoted = false;
    for (const char c : line) {
        if (c == '"')
            quoted = !quoted;
        else if (c == delimiter && !quoted)
            cells.emplace_back();
        else if (c != '\r')
            cells.back() += c;
    }
    return cells;
}

// "2026-11-25 20:13:05.120" in seconds of its day.
bool timeOfDay(const std::string& text, double& seconds) {
    int hours = 0, minutes = 0;
    double rest = 0;
    const auto blank = text.find(' ');
    if (blank == text.npos || std::sscanf(text.c_str() + blank, "%d:%d:%lf", &hours, &minutes, &rest) != 3)
        return false;
    seconds = hours * 3600.0 + minutes * 60.0 + rest;
    return true;
}

class CsvRecording : public Recording {
public:
    explicit CsvRecording(const std::string& path) {
        std::ifstream file(path);
        std::string line;
        if (!file || !std::getline(file, line)) throw ReplayFault(path + ": cannot be read");
        const char delimiter = line.find(';') != line.npos ? ';' : ',';
        const auto names = cellsOf(line, delimiter);
        for (std::size_t k = 1; k < names.size(); ++k)
            columns[names[k]] = k;
        for (const char* needed : {"U1_prim", "U2_prim", "U3_prim", "I1_prim", "I2_prim", "I3_prim"})
            if (!columns.contains(needed)) throw ReplayFault(path + ":1: no column " + needed);
        for (int number = 2; std::getline(file, line); ++number)
            addRow(path + ":" + std::to_string(number) + ": ", cellsOf(line, delimiter), names.size());
        if (rows.empty()) throw ReplayFault(path + ": no rows of values");
    }

    bool at(double second, Sample& sample) override {
        while (current + 1 < rows.size() && rows[current + 1].second <= second)
            ++current;
        if (second > rows.back().second + 1) return false;
        const Row& row = rows[current];
        const auto value = [&](const std::string& name) {
            const auto column = columns.find(name);
            return column == columns.end() ? 0 : row.values[column->second];
        };
        for (int k = 1; k <= kPhases; ++k) {
            const std::string phase = std::to_string(k);
            const double angle = -120.0 * (k - 1);
            sample.voltage[static_cast<std::size_t>(k)] = polar(value("U" + phase + "_prim"), angle);
            sample.current[static_cast<std::size_t>(k)] =
                polar(value("I" + phase + "_prim"), angle - value("phiUI" + phase));
        }
        sample.voltage[0] = columns.contains("U0_prim")
                                ? polar(value("U0_prim"), 0)
                                : (sample.voltage[1] + sample.voltage[2] + sample.voltage[3]) / 3.0;
        sample.current[0] = columns.contains("I0_prim")
                                ? polar(value("I0_prim"), -value("phiUI0"))
                                : sample.current[1] + sample.current[2] + sample.current[3];
        sample.frequency = columns.contains("f_grid") ? value("f_grid") : 50;
        return true;
    }

private:
    struct Row {
        double second;
        std::vector<double> values; // by column
    };
    std::map<std::string, std::size_t> columns;
    std::vector<Row> rows;
    std::size_t current = 0;
    double start = 0;

    static Phasor polar(double magnitude, double degrees) {
        return std::polar(1.0, degrees * std::numbers::pi / 180) * magnitude;
    }

    void addRow(const std::string& place, const std::vector<std::string>& cells, std::size_t count) {
        if (cells.size() != count)
            throw ReplayFault(place + std::to_string(count) + " cells expected, not " +
                              std::to_string(cells.size()));
        if (rows.size() == kMaxRows) throw ReplayFault(place + "more than a million rows");
        Row row{0, std::vector<double>(count)};
        if (!timeOfDay(cells[0], row.second))
            throw ReplayFault(place + "'" + cells[0] + "' is no date and time");
        for (std::size_t k = 1; k < count; ++k) {
            std::string text = cells[k];
            if (const auto comma = text.find(','); comma != text.npos) text[comma] = '.';
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), row.values[k]);
            if (error != std::errc() || end != text.data() + text.size())
                throw ReplayFault(place + "'" + cells[k] + "' is no number");
        }
        if (rows.empty()) start = row.second;
        row.second -= start;
        if (row.second < -1) row.second += 86400; // midnight came between
        if (!rows.empty() && row.second < rows.back().second) throw ReplayFault(place + "the time goes back");
        rows.push_back(std::move(row));
    }
};

} // namespace

std::unique_ptr<Recording> openCsv(const std::string& path) {
    return std::make_unique<CsvRecording>(path);
}

} // namespace desk
