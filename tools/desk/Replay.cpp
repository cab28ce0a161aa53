#include "tools/desk/Replay.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>

#include "tools/Strings.h"

namespace desk {

namespace {

constexpr std::size_t kMaxRows = 1000000;

// "2026-11-25 20:13:05.120" in seconds of its day.
std::optional<double> timeOfDay(const std::string& text) {
    int hours = 0, minutes = 0;
    double seconds = 0;
    const auto blank = text.find(' ');
    if (blank == text.npos || std::sscanf(text.c_str() + blank, "%d:%d:%lf", &hours, &minutes, &seconds) != 3)
        return {};
    return hours * 3600.0 + minutes * 60.0 + seconds;
}

struct Row {
    double second;
    Sample sample;
};

// A CSV as `talux watch --csv` writes it begins with a line of names: U1_prim to I3_prim are needed, phiUI1
// to phiUI3, U0_prim, I0_prim, phiUI0 and f_grid are used if they are there. Voltages are taken as 120
// degrees apart.
class CsvFile : Lines {
public:
    explicit CsvFile(const std::string& path) : Lines(path) {
        std::string line;
        if (!next(line)) throw ReplayFault(path + ": cannot be read");
        const char delimiter = line.find(';') != line.npos ? ';' : ',';
        const auto names = fieldsOf(line, delimiter, true);
        for (std::size_t k = 1; k < names.size(); ++k)
            columns[names[k]] = k;
        for (const char* needed : {"U1_prim", "U2_prim", "U3_prim", "I1_prim", "I2_prim", "I3_prim"})
            if (!columns.contains(needed)) fail(std::string("no column ") + needed);
        while (next(line)) {
            const auto cells = fieldsOf(line, delimiter, true);
            const bool isExtreme = cells[0] == "min" || cells[0] == "max"; // of the rows above
            if (!isExtreme) addRow(cells, names.size());
        }
        if (rows.empty()) throw ReplayFault(path + ": no rows of values");
    }

    std::vector<Row> rows;

private:
    std::map<std::string, std::size_t> columns;
    double start = 0;

    void addRow(const std::vector<std::string>& cells, std::size_t count) {
        if (cells.size() != count)
            fail(std::to_string(count) + " cells expected, not " + std::to_string(cells.size()));
        if (rows.size() == kMaxRows) fail("more than a million rows");
        const auto time = timeOfDay(cells[0]);
        if (!time) fail("'" + cells[0] + "' is no date and time");
        std::vector<double> values(1);
        for (std::size_t k = 1; k < count; ++k)
            values.push_back(number(cells[k]));
        if (rows.empty()) start = *time;
        double second = *time - start;
        if (second < -1) second += 86400; // midnight came between
        if (!rows.empty() && second < rows.back().second) fail("the time goes back");
        rows.push_back({second, sampleOf(values)});
    }
    [[nodiscard]] double number(std::string text) const {
        const std::string cell = text;
        if (const auto comma = text.find(','); comma != text.npos) text[comma] = '.';
        const auto value = talux::numberOf<double>(text);
        if (!value) fail("'" + cell + "' is no number");
        return *value;
    }
    [[nodiscard]] Sample sampleOf(const std::vector<double>& values) const {
        const auto value = [&](const std::string& name, double otherwise = 0) {
            const auto column = columns.find(name);
            return column == columns.end() ? otherwise : values[column->second];
        };
        Sample sample;
        for (std::size_t k = 1; k <= kPhases; ++k) {
            const std::string phase = std::to_string(k);
            const double angle = -120.0 * static_cast<double>(k - 1);
            sample.voltage[k] = turn(angle) * value("U" + phase + "_prim");
            sample.current[k] = turn(angle - value("phiUI" + phase)) * value("I" + phase + "_prim");
        }
        sample.calculateResidual();
        if (columns.contains("U0_prim")) sample.voltage[0] = turn(0) * value("U0_prim");
        if (columns.contains("I0_prim")) sample.current[0] = turn(-value("phiUI0")) * value("I0_prim");
        sample.frequency = value("f_grid", 50);
        return sample;
    }
};

Recording openCsv(const std::string& path) {
    return [rows = CsvFile(path).rows](double second, Sample& sample) {
        sample = std::prev(std::ranges::upper_bound(rows, second, {}, &Row::second))->sample;
        return second <= rows.back().second + 1;
    };
}

} // namespace

std::vector<std::string> fieldsOf(std::string_view line, char delimiter, bool hasQuotes) {
    std::vector<std::string> fields(1);
    bool isQuoted = false;
    for (const char c : line) {
        if (c == '"' && hasQuotes)
            isQuoted = !isQuoted;
        else if (c == delimiter && !isQuoted)
            fields.emplace_back();
        else if (c != '\r')
            fields.back() += c;
    }
    return fields;
}

Recording openRecording(const std::string& path) {
    if (path.ends_with(".cfg") || path.ends_with(".CFG")) return openComtrade(path);
    if (path.ends_with(".csv") || path.ends_with(".CSV")) return openCsv(path);
    throw ReplayFault(path + ": neither a .csv nor a .cfg file");
}

} // namespace desk
