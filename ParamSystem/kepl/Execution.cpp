#include "ParamSystem/kepl/Execution.h"

#include "ParamSystem/os/Os.h"

namespace talux::kepl {

void logNoted(std::string_view term) {
    os::logInfo("sec param: %.*s", static_cast<int>(term.size()), term.data());
}

TermResult refusedForRights(std::string_view term) {
    os::logError("%.*s %s", static_cast<int>(term.size()), term.data(), textOf(Refusal::rightsTooLow));
    return refused(Refusal::rightsTooLow);
}

} // namespace talux::kepl
