#include "ParamSystem/os/Interfaces.h"

#include <arpa/inet.h>
#include <cstring>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include "support/Text.h"

namespace talux::os {

static void ask(int socket, unsigned long request, const char* interface, char (&dotted)[kDottedSize]) {
    ifreq record{};
    copyText(record.ifr_name, interface);
    record.ifr_addr.sa_family = AF_INET;
    if (ioctl(socket, request, &record) != 0) return;
    sockaddr_in answer;
    std::memcpy(&answer, &record.ifr_addr, sizeof answer);
    inet_ntop(AF_INET, &answer.sin_addr, dotted, sizeof dotted);
}

InterfaceAddress addressOf(const char* interface) {
    InterfaceAddress result;
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (socket < 0) return result;
    ask(socket, SIOCGIFADDR, interface, result.address);
    ask(socket, SIOCGIFNETMASK, interface, result.netmask);
    close(socket);
    return result;
}

} // namespace talux::os
