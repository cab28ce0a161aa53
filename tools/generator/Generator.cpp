#include "tools/generator/Generator.h"

#include "tools/generator/CatalogueRules.h"

namespace talux::generator {

std::optional<OwnedModel> makeModel(std::span<const catalogue::Family> families,
                                    std::span<const TextFamily> textFamilies, Faults& faults) {
    const std::vector<Parameter> parameters = spellOut(families);
    checkCatalogue(families, parameters, faults);
    if (!faults.empty()) return std::nullopt;
    const std::vector<TextSubject> subjects = textSubjects(parameters);
    const std::vector<Text> texts = spellOut(textFamilies, subjects, faults);
    if (!faults.empty()) return std::nullopt;
    return std::make_optional<OwnedModel>(families, parameters, subjects, texts);
}

Sources tables(const model::Model& model) {
    Sources sources;
    addModuleTables(sources, model);
    addModelTable(sources, model);
    addLuaTables(sources, model);
    addHeaders(sources, model);
    addCsvTable(sources, model);
    return sources;
}

} // namespace talux::generator
