#include "ParamSystem/catalogue/Catalogue.h"
#include "tools/generator/Data.h"

std::span<const talux::catalogue::Family> talux::generator::catalogueData() {
    return catalogue::kFamilies;
}
