#include "tools/reference/Ranges.h"

#include <algorithm>

#include "ParamSystem/kepl/Words.h"
#include "tools/Strings.h"

namespace talux::reference {

std::vector<int> numbersOf(std::string_view ranges) {
    std::vector<int> numbers;
    for (std::string_view range; !(range = kepl::takeWord(ranges, ' ')).empty();) {
        const auto first = wholeNumber(range.substr(0, range.find("..")));
        const auto last = wholeNumber(range.substr(range.find_last_of('.') + 1));
        for (long number = first.value_or(0); number <= last.value_or(0); ++number)
            numbers.push_back(static_cast<int>(number));
    }
    return numbers;
}

std::string asRanges(std::vector<int> numbers) {
    std::ranges::sort(numbers);
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

} // namespace talux::reference
