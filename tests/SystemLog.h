// A private system log: the datagrams that reach /dev/log.
#ifndef TALUX_TEST_SYSTEMLOG_H
#define TALUX_TEST_SYSTEMLOG_H

#include <cstring>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

namespace talux_test {

class SystemLog {
public:
    SystemLog() : listener(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{AF_UNIX, "/dev/log"};
        bound = bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    }
    ~SystemLog() {
        close(listener);
        if (bound) unlink("/dev/log");
    }
    SystemLog(const SystemLog&) = delete;
    SystemLog& operator=(const SystemLog&) = delete;

    // The messages since the last call, as "<priority>text" without time stamp and program name. Fetch
    // them line by line: the socket holds ten, then senders wait.
    std::vector<std::string> take() {
        std::vector<std::string> messages;
        char datagram[4096];
        for (ssize_t size; (size = recv(listener, datagram, sizeof datagram, MSG_DONTWAIT)) > 0;) {
            const std::string text(datagram, static_cast<std::size_t>(size));
            messages.push_back(text.substr(0, text.find('>') + 1) + text.substr(text.find(": ") + 2));
        }
        return messages;
    }

    bool bound;

private:
    int listener;
};

} // namespace talux_test

#endif
