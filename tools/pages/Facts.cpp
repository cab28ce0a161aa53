#include "tools/pages/Facts.h"

#include <algorithm>

#include "tools/pages/Names.h"

namespace talux::pages {

std::string_view germanName(const stParamFamily& family) {
    return reference::model()
        .familyNames[static_cast<std::size_t>(&family - reference::model().families.data())]
        .de;
}

bool hasLimits(const Parameter& parameter) {
    return parameter.hasNumber() && (parameter.hasMinimum() || parameter.hasMaximum());
}

const Method* methodOf(const Parameter& parameter) {
    const parameters::MethodId method = parameter.model().method;
    return method < 0 ? nullptr : &kMethods[method];
}

std::vector<Parameter> settingsOf(const Method& method, parameters::Role role) {
    std::vector<Parameter> settings;
    for (const Parameter& parameter : reference::parameters())
        if (parameter.model().method == method.id && parameter.model().role == role)
            settings.push_back(parameter);
    return settings;
}

} // namespace talux::pages
