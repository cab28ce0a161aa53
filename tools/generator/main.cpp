// Makes the tables of the dictionary while the module is built: reads the catalogue and the texts, which are
// compiled into it, checks their rules and writes sources.
//
//   dictionary_generator FOLDER
#include <fstream>
#include <iterator>

#include "tools/generator/Generator.h"

namespace {

using namespace talux::generator;

// A file that has its content already keeps its time, so that nothing is compiled for nothing.
bool write(const std::string& path, const std::string& content) {
    std::ifstream before(path, std::ios::binary);
    if (before && std::string(std::istreambuf_iterator<char>(before), {}) == content) return true;
    std::ofstream file(path, std::ios::binary);
    if ((file << content).flush()) return true;
    std::perror(path.c_str());
    return false;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("dictionary_generator FOLDER\n", stderr);
        return 2;
    }
    const Result result = generate(catalogueData(), textData());
    print(result.faults, stderr);
    bool written = result.faults.empty();
    for (const auto& [file, content] : result.sources)
        written = write(argv[1] + ('/' + file), content) && written;
    return written ? 0 : 1;
}
