#include "Checked.h"

#include <nlohmann/json.hpp>

namespace talux_test {

bool isJson(const std::string& text) {
    return nlohmann::json::accept(text);
}

std::vector<CheckedLine> checkedLines(const std::string& answer) {
    std::vector<CheckedLine> lines;
    const nlohmann::json files = nlohmann::json::parse(answer);
    for (const nlohmann::json& told : files[0]["lines"]) {
        CheckedLine& line = lines.emplace_back();
        line.line = told["line"];
        line.hasFindings = told.contains("findings");
        line.changes = told.contains("to");
        if (!line.changes) continue;
        line.name = told["name"];
        line.isNumber = told["to"].is_number();
        if (line.isNumber) line.number = told["to"];
        if (told["to"].is_string()) line.text = told["to"];
    }
    return lines;
}

} // namespace talux_test
