// All parameters as CSV: one header, one record per parameter, lines ended by CR LF.
#include "tools/generator/Tables.h"
#include "tools/reference/Reference.h"

namespace talux::generator {

namespace {

using reference::Parameter;

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

std::string notes(const Parameter& parameter, std::span<const model::Note> all, ParamLanguage language) {
    std::string text;
    for (const int note : parameter.notes())
        (text += text.empty() ? "" : " ") += all[static_cast<std::size_t>(note)].text.in(language);
    return text;
}

std::string lineOf(const Parameter& parameter, const model::Model& model) {
    const stParamProperties& row = parameter.row();
    const int method = parameter.model().method;
    Record record;
    record.add(parameter.name());
    record.add(row.id);
    record.add(row.id + parameter.elements() - 1);
    record.add(row.val_min_id);
    record.add(row.val_max_id);
    record.add(parameter.family().name);
    record.add(method < 0 ? "" : model.methods[static_cast<std::size_t>(method)].en);
    record.add(parameter.type().name);
    record.add(parameter.unit());
    record.add(parameter.defaultValue());
    record.addIf(parameter.hasNumber() && parameter.hasMinimum(), row.val_min);
    record.addIf(parameter.hasNumber() && parameter.hasMaximum(), row.val_max);
    record.add(reference::fileName(parameter.file()));
    record.add(parameter.writeLevel());
    record.addIf(parameter.lineRoom() > 0, parameter.lineRoom());
    record.add(parameter.templateName());
    for (auto text : {&Parameter::title, &Parameter::description})
        for (ParamLanguage language : {kEnglish, kGerman})
            record.add((parameter.*text)(language));
    for (ParamLanguage language : {kEnglish, kGerman})
        record.add(choiceList(parameter, language));
    for (ParamLanguage language : {kEnglish, kGerman})
        record.add(notes(parameter, model.notes, language));
    return record.text() + "\r\n";
}

} // namespace

void addCsvTable(Sources& sources, const model::Model& model) {
    std::string& table = sources["docs/parameters/parameters.csv"] = kHeader;
    for (const Parameter parameter : model.rows)
        if (!parameter.isTemplate()) table += lineOf(parameter, model);
}

} // namespace talux::generator
