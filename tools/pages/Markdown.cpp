#include "tools/pages/Markdown.h"

#include <algorithm>

namespace talux::pages {

namespace {

std::string_view stem(std::string_view text) {
    return text.substr(0, text.find_last_not_of("0123456789") + 1);
}

// The same text again, or the same with the next number after it.
bool continues(std::string_view text, std::string_view next) {
    if (text == next) return true;
    const std::string_view a = stem(text), b = stem(next);
    return a == b && a.size() < text.size() && b.size() < next.size() && text.size() - a.size() < 4 &&
           std::stoi(std::string(text.substr(a.size()))) + 1 == std::stoi(std::string(next.substr(b.size())));
}

} // namespace

std::string escaped(std::string_view text) {
    return talux::escaped(text, "|<>*_`\\");
}

void addLine(std::string& cell, std::string_view line) {
    if (line.empty()) return;
    if (!cell.empty()) cell += "<br>";
    cell += line;
}

std::string fileOf(const stParamFamily& family) {
    std::string file(family.name);
    for (char& c : file) {
        if (c == ' ') c = '-';
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return file + ".md";
}

std::string linkTo(const Parameter& parameter) {
    return joined({"[`", parameter.name(), "`](", fileOf(parameter.family()), "#", parameter.name(), ")"});
}

std::string linkTo(std::string_view name) {
    return linkTo(*reference::find(name));
}

std::string listOf(const std::vector<reference::Choice>& choices) {
    std::string list;
    for (std::size_t i = 0; i < choices.size();) {
        std::size_t last = i;
        while (last + 1 < choices.size() && continues(choices[last].text, choices[last + 1].text))
            ++last;
        if (last < i + 2) last = i;
        if (!list.empty()) list += " · ";
        list += std::to_string(choices[i].number);
        if (last > i) list += ".." + std::to_string(choices[last].number);
        list += " = " + escaped(choices[i].text);
        if (last > i && choices[i].text != choices[last].text) list += ".." + escaped(choices[last].text);
        i = last + 1;
    }
    return list;
}

} // namespace talux::pages
