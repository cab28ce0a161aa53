// What the model of the dictionary says about a parameter: its texts, its range, its file and its family.
// Needs no store.
#ifndef TALUX_TOOLS_REFERENCE_H
#define TALUX_TOOLS_REFERENCE_H

#include <algorithm>
#include <functional>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/files/FileOf.h"
#include "ParamSystem/rules/Facts.h"
#include "tools/generator/Model.h"

namespace talux::reference {

using File = ParameterFile; // that a setting is saved in
using talux::fileName;

using model::kChoices, model::kMessages, model::kErrors;

struct Choice {
    int number;
    std::string text; // line breaks are blanks
};

// A parameter with its elements, or a template or dialog.
class Parameter {
public:
    Parameter(const model::Row& row) : of(&row) {}

    const model::Row& model() const { return *of; }
    int position() const { return of->position; } // of the first element
    const stParamProperties& row() const { return *of->properties; }
    const Type& type() const { return typeOf(row()); }
    std::string_view name() const { return of->name; } // of a template its symbol without prefix
    const stParamFamily& family() const { return *of->family; }

    bool isTemplate() const { return of->isTemplate(); }
    bool isIndexed() const { return of->isIndexed(); }
    int elements() const { return of->elements(); }
    bool isSetting() const; // persistent and with a value: what a commit copies
    bool hasNumber() const { return type().nature == Nature::number; }
    bool hasMinimum() const { return row().val_min != kNoMin; }
    bool hasMaximum() const { return row().val_max != kNoMax; }
    // What the rules know of it; of a text, its slot.
    rules::Facts facts() const;
    double lowestNumber() const { return facts().lowest(); }
    double highestNumber() const { return facts().highest(); }
    File file() const { return fileOf(row()); }
    // Rights level that a write takes; 0 where nothing can be written.
    int writeLevel() const;
    // Longest text that the store keeps, in bytes; 0 for numbers.
    int textRoom() const;
    // Longest text that is intended and kept, in characters; 0 for numbers.
    int textLength() const { return std::min(facts().characters, textRoom()); }
    // Longest text, in bytes, that a line of the language can write: a term has 127 characters, including
    // prefix, name, "=" and two quotes.
    int lineRoom() const;
    // Factory default as a number or a text; empty where there is none.
    std::string defaultValue() const;
    // Its own notes and those of its template, as indexes of those of the model.
    std::vector<int> notes() const;

    // Texts; empty where there is none. A setting with a template has the template's choices.
    std::string title(ParamLanguage language) const;
    std::string description(ParamLanguage language) const;
    std::string unit() const { return std::string(of->unit); }
    std::vector<Choice> choices(ParamLanguage language) const;
    std::vector<Choice> items(model::GroupNumber group,
                              ParamLanguage language) const; // its own, no template's
    std::string choiceText(int number, ParamLanguage language) const;
    std::span<const model::Item> choiceItems() const; // what choices() shows
    bool hasAllChoices() const;                       // every number of its range has one, and a name
    std::string_view heading(model::GroupNumber group, ParamLanguage language) const {
        return of->groups[group].heading.in(language);
    }
    // Name of the template whose choices it shares; empty where it has its own.
    std::string_view templateName() const { return of->shared == nullptr ? "" : of->shared->name; }

private:
    const model::Row* of;
};

// A number without needless digits: "0.1", "20000".
std::string shortNumber(double value);

// "1 to 90", "from 0", "up to 5"; empty without limits and for texts.
std::string rangeText(const Parameter& parameter, ParamLanguage language);

// What speaks against a value of the parameter, for people: "is out of range: 1 to 90 %".
std::string describe(const rules::Objection& objection, const Parameter& parameter, ParamLanguage language);
std::string describe(const rules::Objection& objection, const std::string& range, ParamLanguage language);

// The same for programs: "range". Never changes.
const char* codeOf(Reason reason);

// The three records, their members and the kind of each: see ARR_StructMemberProperties.
std::span<const StructMemberProperties_t> members(const Parameter& record);

// ---- The model that is linked: compiled into the program talux, made by the program dictionary ---------

const model::Model& model();

inline const model::Note& noteAt(int index) {
    return model().notes[static_cast<std::size_t>(index)];
}

// Every parameter in menu order, an indexed one once; templates and dialogs included.
const std::vector<Parameter>& parameters();

// Those of them for which `isWanted` holds; each parameter has one object, whose address identifies it.
using ParameterRefs = std::vector<std::reference_wrapper<const Parameter>>;
template <class Predicate>
ParameterRefs parametersWhere(Predicate isWanted) {
    ParameterRefs found;
    std::ranges::copy_if(parameters(), std::back_inserter(found), isWanted);
    return found;
}

// By name, letter case ignored; null when there is none. A prefix "TLX_" or "LVR_" is skipped.
const Parameter* find(std::string_view name);

// The name most like this one, for messages; empty when none is near.
std::string_view nearest(std::string_view name);

} // namespace talux::reference

#endif
