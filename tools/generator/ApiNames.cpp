#include "tools/generator/ApiNames.h"

#include <algorithm>
#include <map>

namespace talux::generator {
namespace {

bool isWordCharacter(char c) {
    return ('0' <= c && c <= '9') || ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z');
}

// What becomes of signs in the name of a choice; longer ones first.
constexpr std::pair<std::string_view, std::string_view> kSigns[] = {
    {"->", "to"}, {">>", "over2"}, {">", "over"}, {"+", "plus"}, {"-", "minus"},
};

// The sign that a text begins with, and its word. One that joins two words is none.
std::pair<std::string_view, std::string_view> signOf(std::string_view text, bool afterWord) {
    const bool joins = afterWord && text.size() > 1 && isWordCharacter(text[1]);
    for (const auto& sign : kSigns)
        if (!joins && text.starts_with(sign.first)) return sign;
    return {text.substr(0, 1), {}};
}

std::string apiName(std::string_view text) {
    std::string name;
    const auto add = [&name](std::string_view word) {
        if (!name.empty() && !word.empty()) name += '_';
        name += word;
    };
    while (!text.empty()) {
        const auto* const end = std::find_if_not(text.begin(), text.end(), isWordCharacter);
        const std::string_view word = text.substr(0, static_cast<std::size_t>(end - text.begin()));
        add(word);
        text.remove_prefix(word.size());
        if (text.empty()) break;
        const auto [sign, meaning] = signOf(text, !word.empty());
        add(meaning);
        text.remove_prefix(sign.size());
    }
    if ('a' <= name[0] && name[0] <= 'z') name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return 'k' + name;
}

} // namespace

std::vector<std::string> apiNames(std::span<const model::Item> choices) {
    std::vector<std::string> names;
    std::map<std::string, int> times;
    for (const model::Item& choice : choices)
        ++times[names.emplace_back(apiName(choice.text.en))];
    for (std::size_t k = 0; k < names.size(); ++k)
        if (times[names[k]] > 1) names[k] += '_' + std::to_string(choices[k].number);
    return names;
}

} // namespace talux::generator
