// A table on a terminal, renewed in place: only what fits, scrolled with keys.
#ifndef TALUX_TOOLS_TALUX_SCREEN_H
#define TALUX_TOOLS_TALUX_SCREEN_H

#include <chrono>
#include <string>
#include <termios.h>
#include <vector>

#include "tools/talux/Command.h"

namespace talux::tool {

class Screen {
public:
    Screen(bool isUsed, const Context& context);
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    // On a terminal over what was there, elsewhere below it. `head` is a line, `rows` are cells.
    void show(const std::string& head, const std::vector<std::vector<std::string>>& rows);

    // Waits for the moment or a key, which scrolls. False when the key asks for the end.
    enum class Woken { moment, key, end };
    Woken waitUntil(std::chrono::steady_clock::time_point moment);

private:
    const Context& context;
    bool hasKeys = false; // the terminal gives them one by one
    termios before{};
    std::size_t top = 0, page = 0, drawn = 0; // rows; lines on the screen

    Woken take(char key);
};

} // namespace talux::tool

#endif
