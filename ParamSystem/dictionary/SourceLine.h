// The line of a source that a row is written on, for messages about it.
#ifndef TALUX_DICTIONARY_SOURCELINE_H
#define TALUX_DICTIONARY_SOURCELINE_H

namespace talux {

// Like std::source_location, which clang-tidy does not have yet.
struct SourceLine {
    const char* file = "";
    unsigned number = 0; // 0: no line

    // As a default argument: where the function is called.
    static constexpr SourceLine current(const char* name = __builtin_FILE(),
                                        unsigned line = __builtin_LINE()) {
        return {name, line};
    }
};

} // namespace talux

#endif
