#include "tools/generator/Data.h"

#include "ParamSystem/parameters/Families.h"

std::span<const talux::parameters::Family> talux::generator::familyData() {
    return parameters::kFamilies;
}
