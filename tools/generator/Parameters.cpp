#include "tools/generator/Parameters.h"

#include <map>
#include <set>

#include "ParamSystem/catalogue/Family.h"

namespace talux::generator {

using catalogue::ParameterRow;

std::string Parameter::name() const {
    std::string name = row->properties.name;
    if (row->series == ParameterRow::kNumbered) name += std::to_string(number);
    return name;
}

std::vector<Parameter> spellOut(std::span<const catalogue::Family> families) {
    std::vector<Parameter> parameters;
    for (const catalogue::Family& family : families)
        for (const ParameterRow& row : family.rows)
            for (int number = row.first; number < row.first + row.count(); ++number)
                parameters.push_back({&family, &row, number});
    return parameters;
}

std::vector<Symbol> symbolsOf(const Parameter& parameter) {
    const std::string name = (parameter.isTemplate()                        ? "VAR_TPL_"
                              : parameter.properties().type == kTypeCommand ? "CMD_"
                                                                            : "VAR_") +
                             parameter.stem();
    std::vector<Symbol> symbols;
    if (!parameter.isLaterElement()) symbols.push_back({parameter.id(), name});
    if (parameter.isIndexed())
        symbols.push_back({parameter.id(), name + '_' + std::to_string(parameter.number)});
    return symbols;
}

namespace {

// Addresses, masks and gateways of the interfaces have their texts under ids of their own: 20000, 21000 and
// 22000 plus the number of the interface.
int textIdOf(const Parameter& parameter, std::map<int, int>& interfaces) {
    const int type = parameter.properties().type;
    if (type < kTypeIpAddress || type > kTypeIpGateway) return parameter.id();
    return 20000 + 1000 * (type - kTypeIpAddress) + interfaces[type]++;
}

std::set<const Parameter*> firstOfTwo(const std::vector<Parameter>& parameters) {
    std::map<int, const Parameter*> byId;
    std::set<const Parameter*> first;
    for (const Parameter& parameter : parameters)
        if (const auto [met, isNew] = byId.emplace(parameter.id(), &parameter); !isNew)
            first.insert(met->second);
    return first;
}

} // namespace

std::vector<TextSubject> textSubjects(const std::vector<Parameter>& parameters) {
    const std::set<const Parameter*> left = firstOfTwo(parameters);
    std::map<int, int> interfaces;
    std::vector<TextSubject> subjects;
    for (const Parameter& parameter : parameters) {
        if (parameter.isLaterElement() || left.contains(&parameter)) continue;
        subjects.push_back({&parameter, textIdOf(parameter, interfaces),
                            (parameter.isTemplate() ? "TXT_TPL_" : "TXT_") + parameter.stem()});
    }
    return subjects;
}

} // namespace talux::generator
