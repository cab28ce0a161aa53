// Reads parameter files line by line. The grammar is wider than that of the writer (files/Line.h);
// docs/files.md explains it to users:
//
//     file      = { line }       each ends with LF or CR LF; a NUL ends the text of its line
//     line      = entry | other  "other": empty, a comment ("#", ";", "//"), a heading ("["), foreign text
//     entry     = blanks "TLX_" name separator value   letter case of the prefix is ignored
//     blanks    = { " " | TAB }
//     name      = text           up to the first " " or "="
//     separator = { " " } "=" { "=" } | " " { "=" }
//     value     = '"' text [ '"' rest ]   text up to the next '"' or "="
//               | text [ rest ]           text up to "#", ";", "//", "=" or CR; blanks belong to it
//     rest      = text           is not read
#ifndef TALUX_FILES_READER_H
#define TALUX_FILES_READER_H

#include <cstddef>
#include <string_view>

#include "ParamSystem/os/Error.h"

namespace talux {

inline constexpr std::size_t kMaxRead = 254; // characters; a longer line counts as several

enum class LineForm {
    nothing, // empty, a comment, a heading
    foreign, // anything else without the prefix
    entry,
};

// What follows the value on its line and is not read.
enum class Tail { nothing, comment, text };

// One line. The texts are parts of it.
struct Entry {
    int line = 0; // number, counted from 1 by reads
    LineForm form = LineForm::nothing;
    std::string_view name;  // of an entry, without prefix
    std::string_view value; // of an entry, without quotes and comment
    bool hasValue = false;  // false: the line ends after the name or after "="; the value is empty
    bool isQuoted = false;
    bool isClosed = false; // the closing quote is there
    Tail tail = Tail::nothing;
    bool continues = false; // the rest of a line that was too long for one read
    bool isCut = false;     // too long for one read: its rest is the next line
    bool hasNul = false;    // what follows a NUL is not read
};

// Parses a line without NULs, with or without its line feed. Sets neither `line` nor the last three members.
Entry parseEntry(std::string_view line);

// A file being read, without heap. A read that a signal interrupts is repeated.
class Reader {
public:
    explicit Reader(const char* filename);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    // Reads the next line; false at the end and after an error.
    bool next();

    // The line that was read. Its texts are valid until the next one is read.
    Entry entry() const;

    const os::Error& result() const { return error; }

private:
    int descriptor;
    os::Error error;
    std::string_view line; // in the block
    int lines = 0;
    bool isFull = false;  // the line has no line feed, but a rest follows
    bool wasFull = false; // the line before
    bool atEnd = false;
    bool hasNuls = false; // in what has been read of the file
    char block[4096];     // of the file; from `start` to `end` not yet returned
    std::size_t start = 0;
    std::size_t end = 0;

    bool fill();
    std::string_view takeLine();
};

// Calls visit(entry) for every line of a file.
template <class Visitor>
os::Error readLines(const char* filename, Visitor visit) {
    Reader reader(filename);
    while (reader.next())
        visit(reader.entry());
    return reader.result();
}

} // namespace talux

#endif
