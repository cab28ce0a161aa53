// What the dictionary knows of parameters, for programs that show or search them: with a handle, an id or a
// name that is known at run time. Programs that do not include this contain none of it.
//
//   for (const talux::About parameter : talux::parameters()) list(parameter.name(), parameter.title());
//   std::printf("%g to %g", *talux::About(threshold).min(), *talux::About(threshold).max());
//
// The dictionary has to be loaded (talux::Store does it). Any number of threads.
#ifndef TALUX_ABOUT_HPP
#define TALUX_ABOUT_HPP

#include <concepts>
#include <cstddef>
#include <optional>
#include <string_view>

#include "talux/handles.hpp"

namespace talux {

class About {
public:
    // False when there is no such parameter; then call no other function of it. Letter case of names is
    // ignored.
    explicit About(int id) : row(id > 0 ? GetParamProperties(id) : nullptr) {}
    explicit About(const char* parameterName)
        : row(GetParamPropertiesByName(const_cast<char*>(parameterName))) {}
    explicit About(const stParamProperties* properties) : row(properties) {}
    template <class Handle>
    requires requires(const Handle& handle) {
        { handle.id() } -> std::convertible_to<int>;
    }
    explicit About(const Handle& handle) : About(handle.id()) {}

    explicit operator bool() const { return row != nullptr; }

    [[nodiscard]] int id() const { return row->id; }
    [[nodiscard]] std::string_view name() const { return row->name; }
    [[nodiscard]] ParamType type() const { return static_cast<ParamType>(row->type); }
    [[nodiscard]] bool is_setting() const { return row->is_volatile == 0; }
    [[nodiscard]] bool is_writable() const { return !rules::isReadOnly(*row); }
    [[nodiscard]] int elements() const { return row->val_max_id; } // of an indexed parameter, else 0

    // Rights level that a write needs: 2 or 3, and 1 for mw_req, which whoever may read may also write.
    [[nodiscard]] int level() const { return rules::levelToWrite(*row); }

    // What a write may set; nothing where there is no limit. Of texts the longest in characters.
    [[nodiscard]] std::optional<double> min() const {
        return row->val_min == kNoMin ? std::nullopt : std::optional(row->val_min);
    }
    [[nodiscard]] std::optional<double> max() const {
        return row->val_max == kNoMax ? std::nullopt : std::optional(row->val_max);
    }
    [[nodiscard]] int longest() const { return row->val_len > 0 ? row->val_len : 0; }

    // The factory default of a number and of a text.
    [[nodiscard]] double default_number() const { return row->val_def; }
    [[nodiscard]] std::string_view default_text() const { return row->val_def_text; }

    // Texts. Where the language has none, as of units, the English one; empty where there is none either. The
    // description is the long label.
    [[nodiscard]] std::string_view title(ParamLanguage language = kEnglish) const {
        return text(kTextTitle, language);
    }
    [[nodiscard]] std::string_view description(ParamLanguage language = kEnglish) const {
        return text(kTextDescription, language);
    }
    [[nodiscard]] std::string_view unit(ParamLanguage language = kEnglish) const {
        return text(kTextUnit, language);
    }

    // A choice, counted from 1; empty where there is none of this number.
    [[nodiscard]] std::string_view choice(int number, ParamLanguage language = kEnglish) const {
        return text(kTextItem, language, number);
    }

private:
    const stParamProperties* row;

    [[nodiscard]] std::string_view text(int kind, int language, std::optional<int> item = {}) const {
        const std::string_view own = detail::textOf(*row, kind, language, item);
        return own.data() != nullptr ? own : detail::textOf(*row, kind, kEnglish, item);
    }
};

// All parameters in menu order, each element of an indexed one by itself, for a range-for.
class Parameters {
public:
    class iterator {
    public:
        explicit iterator(int tablePosition)
            : position(tablePosition), row(GetParamPropertiesByOrder(position)) {
            while (row != nullptr && *row->name == '\0') // a template
                row = GetParamPropertiesByOrder(++position);
        }
        About operator*() const { return About(row); }
        iterator& operator++() { return *this = iterator(position + 1); }
        friend bool operator==(const iterator& at, std::nullptr_t) { return at.row == nullptr; }

    private:
        int position;
        const stParamProperties* row;
    };

    [[nodiscard]] iterator begin() const { return iterator(1); }
    [[nodiscard]] std::nullptr_t end() const { return nullptr; }
};

inline Parameters parameters() {
    return {};
}

} // namespace talux

#endif
