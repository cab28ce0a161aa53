// Keeps the list of what the device's other programs rely on.
//
//   device_interface FILE          writes it
//   device_interface --check FILE  says what differs and what that means
#include <cstdio>
#include <fstream>
#include <iterator>

#include "tools/interface/Listing.h"

namespace {

using namespace talux::interface;

int check(const char* path) {
    std::ifstream in(path, std::ios::binary);
    const std::string before{std::istreambuf_iterator<char>(in), {}};
    if (before == print(listing())) return 0;
    const auto lines = changes(parse(before), listing());
    for (const std::string& line : lines)
        std::puts(line.c_str());
    if (lines.empty()) std::puts("The rows stand in another order.");
    std::printf(
        "If the device's other programs agree, build the target parameter_pages_update and commit %s.\n",
        path);
    return 1;
}

int write(const char* path) {
    std::ofstream out(path, std::ios::binary);
    if ((out << print(listing())).flush()) return 0;
    std::perror(path);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2) return write(argv[1]);
    if (argc == 3 && argv[1] == std::string("--check")) return check(argv[2]);
    std::fputs("device_interface [--check] FILE\n", stderr);
    return 2;
}
