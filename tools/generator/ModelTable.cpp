// The model as the program talux has it compiled in.
#include <vector>

#include "tools/Strings.h"
#include "tools/generator/Sources.h"
#include "tools/generator/Tables.h"

namespace talux::generator {
namespace {

using model::Both, model::Item, model::Model, model::Row;

// What a source has as one array of items, of which rows take runs. Equal runs are there once.
class Runs {
public:
    Runs(std::string_view arrayName, std::string_view itemType) : name(arrayName), type(itemType) {}

    // The run as a span.
    std::string add(const std::vector<std::string>& run) {
        if (run.empty()) return "{}";
        const auto [met, isNew] = places.emplace(list(run, ""), count);
        if (isNew) {
            count += run.size();
            items += met->first;
        }
        return joined({"{", name, "+", std::to_string(met->second), ",", std::to_string(run.size()), "}"});
    }

    std::string definition() const { return fill("constexpr {} {}[] = {\n{}};\n", {type, name, items}); }

private:
    std::string_view name, type;
    std::string items;
    std::map<std::string, std::size_t> places;
    std::size_t count = 0;
};

class Table {
public:
    explicit Table(const Model& all) : model(all) {}

    std::string print() {
        const std::string rows = list(model.rows, "", [this](const Row& row) { return line(row); });
        const std::string lists =
            noteArray() + array("methods", model.methods) + array("familyNames", model.familyNames);
        return std::string(kHead) +
               fill(R"(#include "ParamSystem/dictionary/Tables.h"
#include "tools/reference/Reference.h"
namespace talux::reference {
namespace {
using namespace model;
{}{}{}{}extern const Row rows[];
const Row rows[] = {
{}};
}
const Model& model() {
static const Model all{rows, kFamilies, familyNames, notes, methods};
return all;
}
}
)",
                    {pool.definition(), items.definition(), noteRuns.definition(), lists, rows});
    }

private:
    const Model& model;
    Pool pool;
    Runs items{"items", "Item"}, noteRuns{"noteRuns", "int"};

    std::string both(const Both& text) {
        return joined({"{", pool.view(text.de), ",", pool.view(text.en), "}"});
    }

    std::string array(std::string_view name, std::span<const Both> texts) {
        const std::string rows = list(texts, "", [this](const Both& text) { return both(text) + ",\n"; });
        return fill("constexpr Both {}[] = {\n{}};\n", {name, rows});
    }

    std::string noteArray() {
        return fill("constexpr Note notes[] = {\n{}};\n",
                    {list(model.notes, "", [this](const model::Note& note) {
                        return row(both(note.text), coded("NoteKind", note.kind));
                    })});
    }

    static std::string coded(std::string_view type, int value) {
        return joined({"parameters::", type, "{", number(value), "}"});
    }

    std::string group(const model::Group& group) {
        std::vector<std::string> run;
        for (const Item& item : group.items)
            run.push_back(row(number(item.number), both(item.text), pool.view(item.api)));
        return joined({"{", both(group.heading), ",", items.add(run), "}"});
    }

    std::string line(const Row& row) {
        std::vector<std::string> groups, notes;
        for (const model::Group& each : row.groups)
            groups.push_back(group(each));
        for (const int note : row.notes)
            notes.push_back(number(note) + ',');
        const auto place = [](std::string_view array, std::ptrdiff_t k) {
            return joined({array, "+", std::to_string(k)});
        };
        return generator::row(
            place("DefParamProperties", row.position), number(row.position), pool.view(row.name),
            number(row.textId), place("DefParamFamilies", row.family - model.families.data()),
            row.shared == nullptr ? "nullptr" : place("rows", row.shared - model.rows.data()),
            both(row.title), both(row.description), pool.view(row.unit),
            joined({"{", list(groups, ","), "}"}), noteRuns.add(notes), coded("MethodId", row.method),
            coded("Role", row.role), number(static_cast<int>(row.is)),
            fill("rules::Form{{}}", {number(static_cast<int>(row.form))}), coded("WriteEffect", row.effect));
    }
};

} // namespace

void addModelTable(Sources& sources, const Model& model) {
    sources["tools/reference/ModelTable.cpp"] = Table(model).print();
}

} // namespace talux::generator
