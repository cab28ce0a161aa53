#include "tools/generator/Generator.h"

#include "tools/generator/CatalogueRules.h"

namespace talux::generator {

Result generate(std::span<const catalogue::Family> families, std::span<const TextFamily> textFamilies) {
    Result result;
    const std::vector<Parameter> parameters = spellOut(families);
    checkCatalogue(families, parameters, result.faults);
    if (!result.faults.empty()) return result;
    const std::vector<TextSubject> subjects = textSubjects(parameters);
    const std::vector<Text> texts = spellOut(textFamilies, subjects, result.faults);
    if (result.faults.empty()) result.sources = writeTables(families, parameters, subjects, texts);
    return result;
}

} // namespace talux::generator
