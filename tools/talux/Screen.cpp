#include "tools/talux/Screen.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "tools/talux/Show.h"
#include "tools/talux/Text.h"

namespace talux::tool {

namespace {

struct Size {
    std::size_t lines = 0, columns = 0; // 0: as many as there are
};

Size sizeOfTerminal() {
    winsize size{};
    if (!isForTerminal() || ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0) return {};
    return {size.ws_row, size.ws_col};
}

} // namespace

Screen::Screen(bool isUsed, const Context& person) : context(person) {
    hasKeys = isUsed && isForTerminal() && tcgetattr(STDIN_FILENO, &before) == 0;
    if (!hasKeys) return;
    termios keys = before;
    keys.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
    tcsetattr(STDIN_FILENO, TCSANOW, &keys);
}

Screen::~Screen() {
    if (hasKeys) tcsetattr(STDIN_FILENO, TCSANOW, &before);
}

void Screen::show(const std::string& head, const std::vector<std::vector<std::string>>& rows) {
    const Size size = sizeOfTerminal();
    page = size.lines > 3 ? std::min(rows.size(), size.lines - 2) : rows.size();
    top = std::min(top, rows.size() - page);
    Table table; // of all rows, whose columns stay where they are
    for (const auto& row : rows)
        table.add(row);
    const auto all = linesOf(table.text());
    std::string text = head;
    if (page < rows.size())
        text += fill(context.say("  {} to {} of {}: arrows scroll, q ends",
                                 "  {} bis {} von {}: Pfeile blättern, q endet"),
                     {std::to_string(top + 1), std::to_string(top + page), std::to_string(rows.size())});
    if (size.lines > 0 && drawn > 0) print(fill("\033[{}A", {std::to_string(drawn)}));
    const char* const end = size.lines > 0 ? "\033[K\n" : "\n";
    text = cut(text, size.columns) + end;
    for (std::size_t k = top; k < top + page; ++k)
        text += cut(all[k], size.columns) + end;
    drawn = page + 1;
    print(text);
}

Screen::Woken Screen::waitUntil(std::chrono::steady_clock::time_point moment) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(moment - std::chrono::steady_clock::now()).count();
    if (left <= 0) return Woken::moment;
    // Not ppoll: where the processor has 32 bits, its checked form takes the wide time for a narrow one.
    pollfd keys{STDIN_FILENO, POLLIN, 0};
    if (poll(&keys, hasKeys ? 1 : 0, static_cast<int>(std::min<std::int64_t>(left, INT_MAX))) <= 0)
        return Woken::moment;
    char typed[16];
    const ssize_t size = read(STDIN_FILENO, typed, sizeof typed);
    if (size <= 0) return Woken::end; // nobody is there any more
    Woken woken = Woken::key;
    for (ssize_t k = 0; k < size && woken != Woken::end; ++k)
        woken = take(typed[k]);
    return woken;
}

// Of an arrow's sequence the last character counts.
Screen::Woken Screen::take(char key) {
    const std::size_t leaf = page > 1 ? page - 1 : 1;
    if (key == 'q') return Woken::end;
    if (key == 'B' || key == 'j') ++top; // show() keeps it in its bounds
    if (key == 'A' || key == 'k') top -= std::min<std::size_t>(top, 1);
    if (key == '6' || key == ' ') top += leaf;
    if (key == '5' || key == 'b') top -= std::min(top, leaf);
    return Woken::key;
}

} // namespace talux::tool
