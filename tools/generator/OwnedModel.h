// Makes the model from the spelled-out rows and holds what it shows.
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
    OwnedModel(std::span<const catalogue::Family> families, const std::vector<Parameter>& parameters,
               const std::vector<TextSubject>& subjects, std::span<const Text> texts);
    OwnedModel(OwnedModel&&) = default;

    model::Model view() const { return {rows, families, notes, methods}; }

private:
    std::set<std::string, std::less<>> strings;
    std::deque<stParamProperties> properties;
    std::deque<std::vector<model::Item>> items;
    std::deque<std::vector<int>> noteLists;
    std::vector<model::Row> rows;
    std::vector<stParamFamily> families;
    std::vector<model::Note> notes;
    std::vector<model::Both> methods;

    std::string_view keep(std::string_view text);
    void addFamilies(std::span<const catalogue::Family> all);
    void addRow(const Parameter& parameter, const stParamFamily& family, int position);
    void addTexts(model::Row& row, std::span<const Text> texts);
    void addText(model::Row& row, const Text& text);
    void nameChoices(model::Row& row);
    void share();
    void addNotes();
    void addMethods();
};

} // namespace talux::generator

#endif
