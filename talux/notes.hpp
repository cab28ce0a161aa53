// Notes of parameters, as the pages of the parameters show them, in both languages. Programs that do not
// include this contain none of them.
//
//   for (const talux::Note note : talux::notes(threshold))
//       if (note.kind() == talux::NoteKind::warning) warn(note.text(kEnglish));
//
// The dictionary has to be loaded, as for talux/about.hpp. Any number of threads.
#ifndef TALUX_NOTES_HPP
#define TALUX_NOTES_HPP

#include <algorithm>
#include <iterator>
#include <string_view>

#include "talux/about.hpp"
#include "talux/note_table.hpp"

namespace talux {

// A warning: a wrong value or a careless write does harm, or does not do what one expects. Unknown: the
// meaning is not documented. Advice: good to know.
using table::NoteKind;

class Note {
public:
    constexpr explicit Note(const table::Note& tableRow) : row(&tableRow) {}

    [[nodiscard]] constexpr NoteKind kind() const { return row->kind; }
    [[nodiscard]] constexpr std::string_view text(ParamLanguage language = kEnglish) const {
        return language == kGerman ? row->de : row->en;
    }

private:
    const table::Note* row;
};

// The notes of a parameter and of the template whose texts it shares, for a range-for; none of a parameter
// that does not exist.
class Notes {
public:
    class iterator {
    public:
        constexpr explicit iterator(const table::NoteOf* tablePosition) : position(tablePosition) {}
        constexpr Note operator*() const { return Note(table::kNotes[position->note]); }
        constexpr iterator& operator++() { return *this = iterator(position + 1); }
        friend constexpr bool operator==(const iterator&, const iterator&) = default;

    private:
        const table::NoteOf* position;
    };

    explicit Notes(const About& parameter) {
        if (!parameter) return;
        const std::string_view wanted = parameter.name();
        first = std::partition_point(std::begin(table::kNotesOf), std::end(table::kNotesOf),
                                     [wanted](const table::NoteOf& each) { return each.name < wanted; });
        for (last = first; last != std::end(table::kNotesOf) && last->name == wanted;)
            ++last;
    }

    [[nodiscard]] iterator begin() const { return iterator(first); }
    [[nodiscard]] iterator end() const { return iterator(last); }
    [[nodiscard]] bool empty() const { return first == last; }

private:
    const table::NoteOf* first = nullptr;
    const table::NoteOf* last = nullptr;
};

template <class Known> // a handle, an id, a name that is known at run time, or an About
Notes notes(const Known& known) {
    return Notes(About(known));
}

} // namespace talux

#endif
