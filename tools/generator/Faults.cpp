#include "tools/generator/Faults.h"

namespace talux::generator {

std::string fileAndLine(const SourceLine& where) {
    const std::string file = where.file;
    const std::size_t root = file.rfind("ParamSystem/");
    return file.substr(root == std::string::npos ? 0 : root) + ':' + std::to_string(where.number);
}

void print(const Faults& faults, std::FILE* out) {
    constexpr std::size_t kLines = 5;
    const std::size_t shown = faults.size() <= kLines ? faults.size() : kLines - 1;
    for (std::size_t k = 0; k < shown; ++k) {
        const Fault& fault = faults[k];
        const std::string head = fault.where.number != 0 ? fileAndLine(fault.where) + ": " : "";
        std::fprintf(out, "%serror: %s: %s\n", head.c_str(), fault.subject.c_str(), fault.rule.c_str());
    }
    if (shown < faults.size()) std::fprintf(out, "and %zu more\n", faults.size() - shown);
}

} // namespace talux::generator
