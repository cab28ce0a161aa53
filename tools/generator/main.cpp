// Makes the tables of the dictionary while the module is built: reads the rows of parameters, which are
// compiled into it, checks their rules and writes sources.
//
//   dictionary_generator FOLDER
#include <cstdio>

#include "tools/WholeFile.h"
#include "tools/generator/Data.h"
#include "tools/generator/Generator.h"

namespace {

using namespace talux::generator;

// A file that already has its content keeps its time stamp, so nothing is recompiled without need.
bool write(const std::string& path, const std::string& content) {
    return talux::contentOf(path) == content || talux::replaceFile(path, content);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("dictionary_generator FOLDER\n", stderr);
        return 2;
    }
    Faults faults;
    const auto model = makeModel(familyData(), faults);
    print(faults, stderr);
    if (!model) return 1;
    bool written = true;
    for (const auto& [file, content] : tables(model->view()))
        written = write(argv[1] + ('/' + file), content) && written;
    return written ? 0 : 1;
}
