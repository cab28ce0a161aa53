#include "tools/generator/Faults.h"

#include <string_view>

namespace talux::generator {
namespace {

// As seen from the root of the project.
std::string_view shortName(std::string_view file) {
    const std::size_t root = file.rfind("ParamSystem/");
    return root == std::string_view::npos ? file : file.substr(root);
}

} // namespace

void print(const Faults& faults, std::FILE* out) {
    constexpr std::size_t kLines = 5;
    const std::size_t shown = faults.size() <= kLines ? faults.size() : kLines - 1;
    for (std::size_t k = 0; k < shown; ++k) {
        const Fault& fault = faults[k];
        if (fault.where.number != 0)
            std::fprintf(out, "%s:%u: ", shortName(fault.where.file).data(), fault.where.number);
        std::fprintf(out, "error: %s: %s\n", fault.subject.c_str(), fault.rule.c_str());
    }
    if (shown < faults.size()) std::fprintf(out, "and %zu more\n", faults.size() - shown);
}

} // namespace talux::generator
