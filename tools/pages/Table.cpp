// All parameters as CSV: one header, one record per parameter, lines ended by CR LF.
#include "tools/pages/Facts.h"
#include "tools/pages/Pages.h"

namespace talux::pages {

namespace {

constexpr std::string_view kHeader =
    "name,id,last_id,first_index,last_index,family,method,kind,unit,default,minimum,maximum,file,write_level,"
    "text_bytes,choice_list,title_en,title_de,description_en,description_de,choices_en,choices_de,notes_en,"
    "notes_de\r\n";

class Record {
public:
    void add(std::string_view field) {
        if (!line.empty()) line += ',';
        if (field.find_first_of(",\"\r\n") == field.npos) {
            line += field;
            return;
        }
        line += '"';
        for (char c : field)
            line.append(c == '"' ? 2 : 1, c);
        line += '"';
    }
    void add(int number) { add(std::to_string(number)); }
    void addIf(bool there, double number) { add(there ? reference::shortNumber(number) : std::string()); }
    const std::string& text() const { return line; }

private:
    std::string line;
};

// "1 = none | 2 = odd"
std::string choiceList(const Parameter& parameter, ParamLanguage language) {
    std::string list;
    for (const auto& [number, text] : parameter.choices(language))
        list += (list.empty() ? "" : " | ") + std::to_string(number) + " = " + text;
    return list;
}

std::string notes(const Parameter& parameter, ParamLanguage language) {
    std::string all;
    for (const int note : notesOf(parameter))
        (all += all.empty() ? "" : " ") += noteText(note, language);
    return all;
}

std::string lineOf(const Parameter& parameter) {
    const stParamProperties& row = parameter.row();
    const Method* method = methodOf(parameter);
    Record record;
    record.add(parameter.name());
    record.add(firstId(parameter));
    record.add(lastId(parameter));
    record.add(row.val_min_id);
    record.add(row.val_max_id);
    record.add(parameter.family().name);
    record.add(method == nullptr ? "" : method->en);
    record.add(parameter.type().name);
    record.add(parameter.unit());
    record.add(defaultValue(parameter));
    record.addIf(parameter.hasNumber() && parameter.hasMinimum(), parameter.row().val_min);
    record.addIf(parameter.hasNumber() && parameter.hasMaximum(), row.val_max);
    record.add(reference::fileName(parameter.file()));
    record.add(parameter.writeLevel());
    record.addIf(lineRoom(parameter) > 0, lineRoom(parameter));
    record.add(parameter.templateName());
    for (auto text : {&Parameter::title, &Parameter::description})
        for (ParamLanguage language : {kEnglish, kGerman})
            record.add((parameter.*text)(language));
    for (auto text : {choiceList, notes})
        for (ParamLanguage language : {kEnglish, kGerman})
            record.add(text(parameter, language));
    return record.text() + "\r\n";
}

} // namespace

void addTable(Pages& pages) {
    std::string& table = pages["parameters.csv"] = kHeader;
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate()) table += lineOf(parameter);
}

} // namespace talux::pages
