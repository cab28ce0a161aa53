// Recordings that the desk replays: a CSV as `talux watch --csv` writes it, and COMTRADE (IEEE C37.111,
// revisions 1999 and 2013, ASCII and binary data).
#ifndef TALUX_DESK_REPLAY_H
#define TALUX_DESK_REPLAY_H

#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include "tools/desk/Network.h"

namespace desk {

class Recording {
public:
    Recording() = default;
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;
    virtual ~Recording() = default;

    // The sample at `second` of the recording; false after its end.
    virtual bool at(double second, Sample& sample) = 0;
};

// A recording that cannot be used; what() names the file, the line where there is one, and what is wrong.
struct ReplayFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::unique_ptr<Recording> openCsv(const std::string& path);
std::unique_ptr<Recording> openComtrade(const std::string& path);
std::unique_ptr<Recording> openRecording(const std::string& path); // by its ending

// The lines of a text file, and messages that name the last one.
class Lines {
public:
    explicit Lines(std::string file) : path(std::move(file)), stream(path) {
        if (!stream) throw ReplayFault(path + ": cannot be read");
    }

    bool next(std::string& text) {
        ++line;
        return static_cast<bool>(std::getline(stream, text));
    }
    [[noreturn]] void fail(const std::string& text) const {
        throw ReplayFault(path + ":" + std::to_string(line) + ": " + text);
    }

private:
    std::string path;
    std::ifstream stream;
    int line = 0;
};

} // namespace desk

#endif
