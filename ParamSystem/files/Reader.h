// Reads parameter files line by line. docs/files.md describes their form, the writer in files/Line.h what is
// written.
#ifndef TALUX_FILES_READER_H
#define TALUX_FILES_READER_H

#include <cstddef>

namespace talux {

inline constexpr std::size_t kMaxRead = 254; // characters; a longer line counts as several

enum class LineForm {
    nothing, // empty, a comment, a heading
    foreign, // anything else without the key prefix
    entry,
};

// What follows the value on its line and is not read.
enum class Tail { nothing, comment, text };

// One line. The texts are valid until the next one is read.
struct Entry {
    int line = 0; // number, counted from 1 by reads
    LineForm form = LineForm::nothing;
    char* name = nullptr;        // of an entry, without prefix
    const char* value = nullptr; // of an entry, without quotes and comment
    bool hasValue = false;       // false: the line ends after the key or after "="; the value is empty
    bool isQuoted = false;
    bool isClosed = false; // the closing quote is there
    Tail tail = Tail::nothing;
    bool continues = false; // the rest of a line that was too long for one read
    bool isCut = false;     // too long for one read: its rest is the next line
    bool hasNul = false;    // what follows a NUL is not read
};

// Takes a line, which ends in a NUL, apart in place. Sets neither `line` nor the last three members.
Entry parseEntry(char* line);

enum class ReadResult { done, notOpened, broken }; // the reason is in errno

// A file being read, without heap. A read that a signal interrupts goes on.
class Reader {
public:
    explicit Reader(const char* filename);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    // The next line; false at the end and when the file breaks.
    bool next(Entry& entry);

    ReadResult result() const { return state; }

private:
    int descriptor;
    ReadResult state = ReadResult::done;
    int lines = 0;
    bool lastWasFull = false; // and did not end in a line feed
    bool atEnd = false;
    char line[kMaxRead + 1];
    char block[4096]; // as it came from the file, from `start` to `end` not yet handed out
    std::size_t start = 0;
    std::size_t end = 0;

    bool fill();
    std::size_t takeLine();
};

// Calls visit(entry) for every line of a file.
template <class Visitor>
ReadResult readLines(const char* filename, Visitor visit) {
    Reader reader(filename);
    for (Entry entry; reader.next(entry);)
        visit(entry);
    return reader.result();
}

} // namespace talux

#endif
