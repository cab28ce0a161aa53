// What `talux check --json` reports about the lines of a file.
#ifndef TALUX_TEST_CHECKED_H
#define TALUX_TEST_CHECKED_H

#include <string>
#include <vector>

namespace talux_test {

struct CheckedLine {
    int line;
    bool hasFindings, changes;
    std::string name; // the rest where it changes a parameter
    bool isNumber;
    double number;
    std::string text;
};

bool isJson(const std::string& text);

// Of the first file in the answer; throws if that is no JSON.
std::vector<CheckedLine> checkedLines(const std::string& answer);

} // namespace talux_test

#endif
