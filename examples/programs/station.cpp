// Reads and changes settings without the command language: renames the station, makes the change live and
// prints what the device's other programs now see.
//
//   station NEW-NAME
#include <cstdio>

#include <talux/talux.hpp>

namespace {

constexpr talux::Setting<talux::Text> kName{"Name"};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    talux::Store store;
    std::printf("Name was \"%s\"\n", kName.live().c_str());
    if (const talux::Result done = kName.stage(argv[1]); !done) { // into the working copy of the settings
        std::fprintf(stderr, "station: %s\n", done.text().c_str());
        return 1;
    }
    store.commit(); // makes it live
    std::printf("Name is \"%s\"\n", kName.live().c_str());
    return 0;
}
