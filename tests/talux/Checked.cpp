#include "Checked.h"

#include <nlohmann/json.hpp>

namespace talux_test {

bool isJson(const std::string& text) {
    return nlohmann::json::accept(text);
}

std::vector<CheckedLine> checkedLines(const std::string& answer) {
    std::vector<CheckedLine> lines;
    const nlohmann::json files = nlohmann::json::parse(answer);
    for (const nlohmann::json& checked : files[0]["lines"]) {
        CheckedLine& line = lines.emplace_back();
        line.line = checked["line"];
        line.hasFindings = checked.contains("findings");
        line.changes = checked.contains("to");
        if (!line.changes) continue;
        line.name = checked["name"];
        line.isNumber = checked["to"].is_number();
        if (line.isNumber) line.number = checked["to"];
        if (checked["to"].is_string()) line.text = checked["to"];
    }
    return lines;
}

} // namespace talux_test
