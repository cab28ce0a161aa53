#include "ParamSystem/kepl/Execution.h"

#include "ParamSystem/os/Os.h"

namespace talux::kepl {

void log(const Decision& decision) {
    const int length = static_cast<int>(decision.term.size());
    if (decision.isNoted) os::logInfo("sec param: %.*s", length, decision.term.data());
    if (decision.refusal == Refusal::rightsTooLow)
        os::logError("%.*s %s", length, decision.term.data(), textOf(decision.refusal));
}

} // namespace talux::kepl
