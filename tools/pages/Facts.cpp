#include "tools/pages/Facts.h"

namespace talux::pages {

bool hasLimits(const Parameter& parameter) {
    return parameter.hasNumber() && (parameter.hasMinimum() || parameter.hasMaximum());
}

const Method* methodOf(const Parameter& parameter) {
    const parameters::MethodId method = parameter.model().method;
    return method < 0 ? nullptr : &kMethods[method];
}

} // namespace talux::pages
