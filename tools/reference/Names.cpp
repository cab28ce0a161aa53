#include <algorithm>
#include <map>
#include <numeric>

#include "ParamSystem/kepl/Decision.h"
#include "support/Text.h"
#include "tools/reference/Reference.h"

namespace talux::reference {

namespace {

std::string small(std::string_view name) {
    std::string text(name);
    std::ranges::transform(text, text.begin(), lowerAscii);
    return text;
}

std::map<std::string, std::size_t> makeNameIndex() {
    std::map<std::string, std::size_t> index;
    const auto& all = parameters();
    for (std::size_t k = 0; k < all.size(); ++k)
        if (!all[k].isTemplate()) index.emplace(small(all[k].name()), k);
    return index;
}

const std::map<std::string, std::size_t>& nameIndex() {
    static const auto index = makeNameIndex();
    return index;
}

std::string withoutPrefix(std::string_view name) {
    const bool isPrefixed = std::ranges::any_of(
        kepl::kPrefixes, [name](std::string_view prefix) { return startsIgnoringCase(name, prefix); });
    return small(isPrefixed ? name.substr(kepl::kPrefixLength) : name);
}

// How many characters have to be changed, added, dropped or exchanged with their neighbour.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> before(b.size() + 1), above(b.size() + 1), row(b.size() + 1);
    std::iota(above.begin(), above.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = above[j - 1] + (a[i - 1] != b[j - 1]);
            row[j] = std::min({changed, above[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before.swap(above);
        above.swap(row);
    }
    return above[b.size()];
}

} // namespace

const std::vector<Parameter>& parameters() {
    static const std::vector<Parameter> all(model().rows.begin(), model().rows.end());
    return all;
}

const Parameter* find(std::string_view name) {
    const auto found = nameIndex().find(withoutPrefix(name));
    return found == nameIndex().end() ? nullptr : &parameters()[found->second];
}

std::string_view nearest(std::string_view name) {
    const std::string wanted = withoutPrefix(name);
    std::size_t least = std::max<std::size_t>(1, wanted.size() / 3) + 1;
    std::string_view best;
    for (const auto& [known, place] : nameIndex()) {
        const std::size_t longer = std::max(wanted.size(), known.size());
        if (longer - std::min(wanted.size(), known.size()) >= least) continue; // at least as many steps
        const std::size_t steps = distance(wanted, known);
        if (steps >= least) continue;
        least = steps;
        best = parameters()[place].name();
    }
    return best;
}

} // namespace talux::reference
