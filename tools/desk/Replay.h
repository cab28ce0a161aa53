// Recordings that the desk replays, and the text files that they are in.
#ifndef TALUX_DESK_REPLAY_H
#define TALUX_DESK_REPLAY_H

#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tools/desk/Network.h"

namespace desk {

// Gives the sample at a second of the recording; false after its end.
using Recording = std::function<bool(double second, Sample& sample)>;

// A recording that cannot be used; what() names the file, the line where there is one, and what is wrong.
struct ReplayFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

Recording openComtrade(const std::string& path);
Recording openRecording(const std::string& path); // by its ending

// Without carriage returns. If there are quotes, a delimiter between them divides nothing.
std::vector<std::string> fieldsOf(std::string_view line, char delimiter, bool hasQuotes);

// The lines of a text file, and messages that name the last one.
class Lines {
public:
    explicit Lines(const std::string& path) : file(path), stream(path) {
        if (!stream) throw ReplayFault(path + ": cannot be read");
    }

    bool next(std::string& text) {
        ++lineNumber;
        return static_cast<bool>(std::getline(stream, text));
    }
    [[noreturn]] void fail(const std::string& text) const {
        throw ReplayFault(file + ":" + std::to_string(lineNumber) + ": " + text);
    }

private:
    std::string file;
    std::ifstream stream;
    int lineNumber = 0;
};

} // namespace desk

#endif
