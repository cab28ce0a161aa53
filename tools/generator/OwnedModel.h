// Makes the model from the expanded rows and holds what it shows.
#ifndef TALUX_GENERATOR_OWNEDMODEL_H
#define TALUX_GENERATOR_OWNEDMODEL_H

#include <deque>
#include <set>
#include <string>
#include <vector>

#include "tools/generator/Model.h"
#include "tools/generator/Texts.h"

namespace talux::generator {

class OwnedModel {
public:
    OwnedModel(std::span<const parameters::Family> families, const std::vector<Parameter>& parameters,
               const std::vector<TextSubject>& subjects, std::span<const Text> texts);
    OwnedModel(OwnedModel&&) = default;

    model::Model view() const { return {rows, families, familyNames, notes, methods}; }

private:
    std::set<std::string, std::less<>> strings;
    std::deque<stParamProperties> properties;
    std::deque<std::vector<model::Item>> items;
    std::deque<std::vector<int>> noteLists;
    std::vector<model::Row> rows;
    std::vector<stParamFamily> families;
    std::vector<model::Both> familyNames, methods;
    std::vector<model::Note> notes;

    std::string_view keep(std::string_view text);
    void addFamilies(std::span<const parameters::Family> all, const std::vector<Parameter>& parameters);
    void addRow(const Parameter& parameter, const stParamFamily& family, int position);
    void addTexts(model::Row& row, const parameters::Row& data, std::span<const Text> texts);
    void addText(model::Row& row, const Text& text);
    void nameChoices(const parameters::Row& data);
    void share();
    void addNotes(std::span<const parameters::Family> all);
    void addMethods();
};

} // namespace talux::generator

#endif
