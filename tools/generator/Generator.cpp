#include "tools/generator/Generator.h"

#include "tools/generator/RowRules.h"

namespace talux::generator {

std::optional<OwnedModel> makeModel(std::span<const parameters::Family> families, Faults& faults) {
    const std::vector<Parameter> parameters = expand(families, faults);
    if (!faults.empty()) return std::nullopt;
    checkRows(parameters, faults);
    if (faults.empty()) checkNotes(families, parameters, faults);
    if (!faults.empty()) return std::nullopt;
    const std::vector<TextSubject> subjects = textSubjects(parameters);
    const std::vector<Text> texts = expand(subjects, faults);
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
