#include "ParamSystem/texts/Families.h"
#include "tools/generator/Data.h"

std::span<const talux::generator::TextFamily> talux::generator::textData() {
    return texts::kFamilies;
}
