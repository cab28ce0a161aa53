#include "tools/pages/Names.h"

#include <algorithm>
#include <charconv>

namespace talux::pages {

namespace {

int numberIn(std::string_view text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::vector<std::string_view> words(std::string_view text) {
    std::vector<std::string_view> found;
    for (std::size_t start = 0; (start = text.find_first_not_of(' ', start)) != text.npos;) {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        found.push_back(text.substr(start, end - start));
        start = end;
    }
    return found;
}

} // namespace

std::vector<int> numbersOf(std::string_view ranges) {
    std::vector<int> numbers;
    for (std::string_view range : words(ranges)) {
        const std::size_t dots = range.find("..");
        const int first = numberIn(range),
                  last = dots == range.npos ? first : numberIn(range.substr(dots + 2));
        for (int number = first; number <= last; ++number)
            numbers.push_back(number);
    }
    return numbers;
}

std::string asRanges(std::vector<int> numbers) {
    std::sort(numbers.begin(), numbers.end());
    std::string text;
    for (std::size_t first = 0; first < numbers.size();) {
        std::size_t last = first;
        while (last + 1 < numbers.size() && numbers[last + 1] <= numbers[last] + 1)
            ++last;
        if (!text.empty()) text += ", ";
        text += std::to_string(numbers[first]);
        if (numbers[last] > numbers[first])
            text += (numbers[last] > numbers[first] + 1 ? ".." : ", ") + std::to_string(numbers[last]);
        first = last + 1;
    }
    return text;
}

} // namespace talux::pages
