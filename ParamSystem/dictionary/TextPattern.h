// Patterns of the text data: one line stands for a series of names, its texts name the member.
#ifndef TALUX_DICTIONARY_TEXTPATTERN_H
#define TALUX_DICTIONARY_TEXTPATTERN_H

#include <array>
#include <cstddef>
#include <string_view>

/*
 * A name may hold lists in braces: "REL{1..8}", "knu{1,2,3,0}", "FW_{ETH0,ETH1,ETHW=WLAN}_com" and two of
 * them, "I{0..3}_max_stat_c{0..4}". It stands for every combination. Texts show the member of the first
 * list as {n} and that of the second as {m}; what stands behind "=" is shown instead of the name's part.
 *
 * Lists of texts are divided by "|". In them "BI{1..6}" stands for six texts, "NC*39" for the same text 39
 * times.
 */
namespace talux {

// Called where a table of texts is wrong: no constant expression, so that the compiler names the line.
void wrongTextData(const char* why);

constexpr int parseNumber(std::string_view digits) {
    int number = 0;
    for (char c : digits) {
        if (c < '0' || c > '9') wrongTextData("a number is expected in a pattern");
        number = number * 10 + (c - '0');
    }
    return number;
}

// A short text of its own, made of pieces.
struct Piece {
    std::array<char, 48> text{};
    std::size_t length = 0;

    constexpr Piece() = default;
    constexpr explicit Piece(std::string_view from) { add(from); }
    constexpr explicit Piece(int number) {
        if (number >= 10) add(Piece(number / 10).view());
        add(static_cast<char>('0' + number % 10));
    }
    constexpr void add(char c) {
        if (length == text.size()) wrongTextData("a name is too long");
        text[length++] = c;
    }
    constexpr void add(std::string_view from) {
        for (char c : from)
            add(c);
    }
    constexpr std::string_view view() const { return {text.data(), length}; }
};

// One list in braces: "1..8" or "1,2,3,0" or "a,b=shown".
class PatternList {
public:
    constexpr explicit PatternList(std::string_view braced) : list(braced), range(braced.find("..")) {}

    constexpr int size() const {
        if (isRange()) return last() - first() + 1;
        int commas = 0;
        for (char c : list)
            commas += c == ',';
        return commas + 1;
    }

    // As in the name, and as shown in texts.
    constexpr Piece name(int index) const {
        if (isRange()) return Piece(first() + index);
        const std::string_view both = element(index);
        return Piece(both.substr(0, both.find('=')));
    }
    constexpr Piece shown(int index) const {
        if (isRange()) return Piece(first() + index);
        const std::string_view both = element(index);
        return Piece(both.substr(both.find('=') + 1)); // npos + 1 is 0
    }

private:
    constexpr bool isRange() const { return range != std::string_view::npos; }
    constexpr int first() const { return parseNumber(list.substr(0, range)); }
    constexpr int last() const { return parseNumber(list.substr(range + 2)); }
    constexpr std::string_view element(int index) const {
        std::string_view rest = list;
        for (; index > 0; --index)
            rest.remove_prefix(rest.find(',') + 1);
        return rest.substr(0, rest.find(','));
    }

    std::string_view list;
    std::size_t range;
};

// A text cut at its first list in braces.
struct CutAtList {
    std::string_view before, list, after;

    constexpr explicit CutAtList(std::string_view text) : before(text) {
        const std::size_t open = text.find('{');
        if (open == std::string_view::npos) return;
        const std::size_t close = text.find('}', open);
        if (close == std::string_view::npos) wrongTextData("a brace is not closed");
        before = text.substr(0, open);
        list = text.substr(open + 1, close - open - 1);
        after = text.substr(close + 1);
    }
    constexpr bool found() const { return !list.empty(); }
};

// One member of a series: its name and what its texts show as {n} and {m}.
struct Member {
    Piece name, n, m;
};

// Calls `visit` with every member that the pattern stands for.
template <typename Visit>
constexpr void forEachMember(std::string_view pattern, Visit visit) {
    const CutAtList outer(pattern);
    if (!outer.found()) return visit(Member{Piece(pattern), {}, {}});
    const CutAtList inner(outer.after);
    const PatternList first(outer.list), second(inner.list);
    for (int i = 0; i < first.size(); ++i) {
        for (int j = 0; j < (inner.found() ? second.size() : 1); ++j) {
            Member member{Piece(outer.before), first.shown(i), {}};
            member.name.add(first.name(i).view());
            member.name.add(inner.before);
            if (inner.found()) {
                member.m = second.shown(j);
                member.name.add(second.name(j).view());
                member.name.add(inner.after);
            }
            visit(member);
        }
    }
}

// Calls `put` with the pieces of a text, {n} and {m} replaced by what the member shows.
template <typename Put>
constexpr void fillIn(std::string_view text, const Member& member, Put put) {
    for (CutAtList cut(text);; cut = CutAtList(cut.after)) {
        put(cut.before);
        if (!cut.found()) return;
        if (cut.list != "n" && cut.list != "m") wrongTextData("texts know the places {n} and {m} only");
        const Piece& shown = cut.list == "n" ? member.n : member.m;
        if (shown.length == 0) wrongTextData("a place is named that the name has no list for");
        put(shown.view());
    }
}

// One text of a list: before, number (where there is one), after.
struct ListText {
    std::string_view before;
    Piece number;
    std::string_view after;
};

// Calls `visit` with every text of a list divided by "|".
template <typename Visit>
constexpr void forEachListText(std::string_view list, Visit visit) {
    for (bool more = !list.empty(); more;) {
        const std::size_t bar = list.find('|');
        std::string_view text = list.substr(0, bar);
        more = bar != std::string_view::npos;
        if (more) list.remove_prefix(bar + 1);

        const CutAtList cut(text);
        if (cut.found() && cut.list != "n" && cut.list != "m") {
            const PatternList numbers(cut.list);
            for (int i = 0; i < numbers.size(); ++i)
                visit(ListText{cut.before, numbers.shown(i), cut.after});
            continue;
        }
        const std::size_t star = text.find('*');
        const int times = star == std::string_view::npos ? 1 : parseNumber(text.substr(star + 1));
        for (int i = 0; i < times; ++i)
            visit(ListText{text.substr(0, star), {}, {}});
    }
}

constexpr int countListTexts(std::string_view list) {
    int count = 0;
    forEachListText(list, [&count](const ListText&) { ++count; });
    return count;
}

} // namespace talux

#endif
