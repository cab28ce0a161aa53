// What the tools know of the dictionary: every parameter with its texts, its range, its file and its family.
// Made from the compiled-in tables; needs no store. Pages, shell completions, editor annotations and tables
// for other languages are printed from here.
#ifndef TALUX_TOOLS_REFERENCE_H
#define TALUX_TOOLS_REFERENCE_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/dictionary/Types.h"
#include "ParamSystem/files/Line.h"

namespace talux::reference {

using File = ParameterFile; // that keeps a setting
using talux::fileName;

struct Choice {
    int number;
    std::string text; // line breaks are blanks
};

// Groups of the numbered texts of a parameter, command or dialog.
enum Group : int { kChoices = 0, kMessages = 1, kErrors = 2 };

// A parameter with its elements, or a template or dialog.
class Parameter {
public:
    explicit Parameter(int position) : place(position) {}

    int position() const { return place; } // of the first element
    const stParamProperties& row() const { return DefParamProperties[place]; }
    const Type& type() const { return typeOf(row()); }
    std::string_view name() const; // of a template its symbol without prefix
    const stParamFamily& family() const;

    bool isTemplate() const { return row().name[0] == '\0'; }
    bool isIndexed() const { return row().val_max_id > 0; }
    int elements() const { return isIndexed() ? row().val_max_id - row().val_min_id + 1 : 1; }
    bool isSetting() const; // persistent and with a value: what a commit copies
    bool hasNumber() const { return type().nature == Nature::number; }
    bool hasMinimum() const { return row().val_min != kNoMin; }
    bool hasMaximum() const { return row().val_max != kNoMax; }
    // The least number that stands for something: choices count from 1 where nothing else is told. A write
    // does not see to that.
    double leastNumber() const;
    File file() const;
    // Rights level that a write takes; 0 where nothing can be written.
    int writeLevel() const;
    // Longest text that the store keeps, in bytes; 0 for numbers.
    int textRoom() const;

    // Texts; empty where there is none. A setting with a template has the template's choices.
    std::string title(ParamLanguage language) const;
    std::string description(ParamLanguage language) const;
    std::string unit() const;
    std::vector<Choice> choices(ParamLanguage language) const;
    std::vector<Choice> items(Group group, ParamLanguage language) const; // its own, no template's
    std::string heading(Group group, ParamLanguage language) const;
    std::string choiceText(int number, ParamLanguage language) const;

private:
    int place;

    std::string text(int textType, ParamLanguage language) const;
};

// Every parameter in menu order, an indexed one once; templates and dialogs included.
const std::vector<Parameter>& parameters();

// By name, letter case ignored; null when there is none. A prefix "TLX_" or "LVR_" is skipped.
const Parameter* find(std::string_view name);

// The name most like this one, for messages; empty when none is near.
std::string_view nearest(std::string_view name);

// Name of a template's symbol without VAR_TPL_.
std::string_view templateName(int id);

// A number without needless digits: "0.1", "20000".
std::string shortNumber(double value);

// "1 to 90", "from 0", "up to 5"; empty without limits.
std::string rangeText(const Parameter& parameter, ParamLanguage language);

// The three records, their members and the kind of each: see ARR_StructMemberProperties.
std::span<const StructMemberProperties_t> members(const Parameter& record);

} // namespace talux::reference

#endif
