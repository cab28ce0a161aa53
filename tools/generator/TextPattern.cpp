#include "tools/generator/TextPattern.h"

#include <algorithm>

namespace talux::generator {
namespace {

int numberIn(std::string_view digits) {
    const bool isNumber =
        !digits.empty() && digits.size() <= 4 &&
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber) throw BrokenRule{"a list in braces counts from a number to a number"};
    return std::stoi(std::string(digits));
}

std::vector<std::string_view> split(std::string_view text, char at) {
    std::vector<std::string_view> pieces;
    for (;;) {
        const std::size_t end = text.find(at);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return pieces;
        text.remove_prefix(end + 1);
    }
}

// A text cut at its first list in braces.
struct CutAtList {
    std::string_view before, list, after;

    explicit CutAtList(std::string_view text) : before(text) {
        const std::size_t open = text.find('{');
        if (open == std::string_view::npos) return;
        const std::size_t close = text.find('}', open);
        if (close == std::string_view::npos || close == open + 1)
            throw BrokenRule{"a brace is not closed or holds nothing"};
        before = text.substr(0, open);
        list = text.substr(open + 1, close - open - 1);
        after = text.substr(close + 1);
    }
    bool isPlace() const { return list == "n" || list == "m"; }
};

// An element of a list in braces: as it appears in the name and in texts.
struct Element {
    std::string name, shown;
};

std::vector<Element> elementsOf(std::string_view list) {
    std::vector<Element> elements;
    if (const std::size_t dots = list.find(".."); dots != std::string_view::npos) {
        const int last = numberIn(list.substr(dots + 2));
        for (int number = numberIn(list.substr(0, dots)); number <= last; ++number)
            elements.push_back({std::to_string(number), std::to_string(number)});
        return elements;
    }
    for (const std::string_view element : split(list, ',')) {
        const std::vector<std::string_view> sides = split(element, '=');
        elements.push_back({std::string(sides.front()), std::string(sides.back())});
    }
    return elements;
}

} // namespace

std::vector<SeriesMember> membersOf(std::string_view pattern) {
    const CutAtList outer(pattern);
    if (outer.list.empty()) return {{std::string(pattern), "", ""}};
    const CutAtList inner(outer.after);
    std::vector<SeriesMember> members;
    for (const Element& first : elementsOf(outer.list)) {
        const std::string name = std::string(outer.before) + first.name + std::string(inner.before);
        if (inner.list.empty()) {
            members.push_back({name, first.shown, ""});
            continue;
        }
        for (const Element& second : elementsOf(inner.list))
            members.push_back({name + second.name + std::string(inner.after), first.shown, second.shown});
    }
    return members;
}

std::vector<std::string> namesOf(std::string_view patterns) {
    std::vector<std::string> names;
    for (const std::string_view pattern : split(patterns, ' '))
        for (SeriesMember& member : membersOf(pattern))
            if (!member.name.empty()) names.push_back(std::move(member.name));
    return names;
}

std::vector<std::string> textsOf(std::string_view list) {
    std::vector<std::string> texts;
    if (list.empty()) return texts;
    for (const std::string_view text : split(list, '|')) {
        const CutAtList cut(text);
        if (!cut.list.empty() && !cut.isPlace()) {
            for (const Element& element : elementsOf(cut.list))
                texts.push_back(std::string(cut.before) + element.shown + std::string(cut.after));
            continue;
        }
        const std::size_t star = text.find('*');
        const int times = star == std::string_view::npos ? 1 : numberIn(text.substr(star + 1));
        texts.insert(texts.end(), static_cast<std::size_t>(times), std::string(text.substr(0, star)));
    }
    return texts;
}

std::string filledIn(std::string_view text, const SeriesMember& member) {
    std::string filled;
    for (;;) {
        const CutAtList cut(text);
        filled += cut.before;
        if (cut.list.empty()) return filled;
        if (!cut.isPlace()) throw BrokenRule{"texts know the places {n} and {m} only"};
        const std::string& shown = cut.list == "n" ? member.n : member.m;
        if (shown.empty()) throw BrokenRule{"a text names a place that the name has no list for"};
        filled += shown;
        text = cut.after;
    }
}

} // namespace talux::generator
