#include "tools/generator/Parameters.h"

#include <map>
#include <set>

#include "tools/generator/TextPattern.h"

namespace talux::generator {

using parameters::Row;

namespace {

std::vector<SeriesMember> membersOf(const Row& row) {
    if (row.series == Row::kNamed) return generator::membersOf(row.properties.name);
    return std::vector<SeriesMember>(static_cast<std::size_t>(row.last), {row.properties.name, "", ""});
}

// The words of the row come first, then the member of its series.
void show(Parameter& parameter, const SeriesMember& member) {
    std::size_t place = 0;
    for (const std::string_view word :
         {std::string_view(parameter.row->texts.shown[0]), std::string_view(parameter.row->texts.shown[1]),
          std::string_view(member.n)})
        if (!word.empty() && place < std::size(parameter.shown)) parameter.shown[place++] = word;
}

} // namespace

std::vector<Parameter> expand(std::span<const parameters::Family> families, Faults& faults) {
    std::vector<Parameter> parameters;
    for (const parameters::Family& family : families) {
        for (const Row& row : family.rows) {
            try {
                int number = 0;
                for (const SeriesMember& member : membersOf(row))
                    show(parameters.emplace_back(Parameter{&family, &row, number++, member.name, {}}),
                         member);
            } catch (const BrokenRule& rule) {
                faults.push_back({row.where, row.properties.name, rule.text});
            }
        }
    }
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
        symbols.push_back({parameter.id(), name + '_' + std::to_string(parameter.number + 1)});
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
        subjects.push_back({&parameter, textIdOf(parameter, interfaces)});
    }
    return subjects;
}

} // namespace talux::generator
