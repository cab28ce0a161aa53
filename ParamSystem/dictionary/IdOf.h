// Ids by name, looked up while compiling.
#ifndef TALUX_DICTIONARY_IDOF_H
#define TALUX_DICTIONARY_IDOF_H

#include <cstddef>
#include <iterator>
#include <string_view>

namespace talux {

struct NamedId {
    std::string_view name;
    int id;
};

#include "ParamSystem/dictionary/NamedIds.inc" // made by tools/generator: kNamedIds, sorted by name

// Not defined: the compiler reports it for an unknown name.
int noParameterHasThisName();

// The id of a parameter, of the first element of an indexed one.
consteval int idOf(std::string_view name) {
    const NamedId* first = kNamedIds;
    for (std::size_t left = std::size(kNamedIds); left > 0;) {
        const std::size_t half = left / 2;
        if (first[half].name < name) {
            first += half + 1;
            left -= half + 1;
        } else {
            left = half;
        }
    }
    return first != std::end(kNamedIds) && first->name == name ? first->id : noParameterHasThisName();
}

} // namespace talux

#endif
