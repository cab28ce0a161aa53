// A program on a terminal: keys go in, the screen comes out.
#ifndef TALUX_TEST_TERMINAL_H
#define TALUX_TEST_TERMINAL_H

#include "Program.h"

#include <initializer_list>
#include <poll.h>
#include <pty.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>

namespace talux_test {

struct OnTerminal : InStartedDevice {
    void TearDown() override {
        if (child > 0) end();
        InDirectory::TearDown();
    }

    // talux with these arguments, while the clock of the day runs ahead.
    void start(std::initializer_list<const char*> arguments) {
        std::string folder = "--directory=" + directory.string();
        std::vector<char*> all{const_cast<char*>("talux"), folder.data()};
        for (const char* argument : arguments)
            all.push_back(const_cast<char*>(argument));
        all.push_back(nullptr);
        winsize size{40, 100, 0, 0};
        child = forkpty(&terminal, nullptr, nullptr, &size);
        if (child < 0) throw std::system_error(errno, std::generic_category(), "no terminal to play");
        if (child == 0) {
            setenv("TERM", "vt100", 1);
            setenv("LC_ALL", "C.UTF-8", 1);
            setenv("LD_PRELOAD", TALUX_CLOCK, 1);
            setenv("ASAN_OPTIONS", "detect_leaks=0", 1); // libedit keeps the names of functions added to it
            execv(TALUX_BIN "/talux", all.data());
            _exit(127);
        }
        screen.clear();
    }
    // The status with which it ends by itself.
    int ended() {
        pollfd gone{terminal, POLLHUP, 0};
        EXPECT_EQ(poll(&gone, 1, 20000), 1);
        termios left{};
        tcgetattr(terminal, &left);
        EXPECT_EQ(left.c_lflag & kUsual, kUsual) << "the next program finds a terminal without these";
        close(terminal); // which ends it in any case
        int status = -1;
        waitpid(std::exchange(child, 0), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    int end() {
        type("\x04");
        waitFor("\n");
        return ended();
    }

    void type(const std::string& keys) const {
        ASSERT_EQ(::write(terminal, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }

    // True once the text has appeared since the last call.
    bool waitFor(const std::string& text) {
        std::size_t at = 0;
        while ((at = screen.find(text)) == screen.npos) {
            pollfd ready{terminal, POLLIN, 0};
            char block[4096];
            const ssize_t size = poll(&ready, 1, 20000) == 1 ? read(terminal, block, sizeof block) : 0;
            if (size <= 0)
                return ADD_FAILURE() << "waited for '" << text << "', there is '" << screen << "'", false;
            screen.append(block, static_cast<std::size_t>(size));
        }
        screen.erase(0, at + text.size());
        return true;
    }

    static constexpr tcflag_t kUsual = ICANON | ECHO | ISIG | IEXTEN;
    int terminal = -1;
    pid_t child = 0;
    std::string screen;
};

} // namespace talux_test

#endif
