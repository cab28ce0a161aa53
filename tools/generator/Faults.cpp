#include "tools/generator/Faults.h"

namespace talux::generator {

void print(const Faults& faults, std::FILE* out) {
    constexpr std::size_t kLines = 5;
    const std::size_t shown = faults.size() <= kLines ? faults.size() : kLines - 1;
    for (std::size_t k = 0; k < shown; ++k) {
        const Fault& fault = faults[k];
        std::fprintf(out, "%s:%u: error: %s: %s\n", fault.where.file_name(), fault.where.line(),
                     fault.subject.c_str(), fault.rule.c_str());
    }
    if (shown < faults.size()) std::fprintf(out, "and %zu more\n", faults.size() - shown);
}

} // namespace talux::generator
