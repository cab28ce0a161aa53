#include "tools/pages/Series.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace talux::pages {

namespace {

constexpr std::string_view kDigits = "0123456789";

using Run = Entry::Run;

std::vector<Run> digitRuns(std::string_view text) {
    std::vector<Run> runs;
    for (std::size_t at = 0; (at = text.find_first_of(kDigits, at)) != text.npos;) {
        const std::size_t end = std::min(text.find_first_not_of(kDigits, at), text.size());
        runs.push_back({at, end - at});
        at = end;
    }
    return runs;
}

// The runs with this number.
std::vector<Run> runsOf(std::string_view text, std::string_view number) {
    std::vector<Run> runs = digitRuns(text);
    std::erase_if(runs, [&](const Run& run) { return text.substr(run.at, run.size) != number; });
    return runs;
}

// The text with `shown` for the number that the name has at `run`: wherever the number stands, or, where the
// name has it several times and the text as often, in the same place.
std::string replaced(std::string_view text, std::string_view name, const Run& run, std::string_view shown) {
    const std::string_view number = name.substr(run.at, run.size);
    const std::vector<Run> inName = runsOf(name, number);
    std::vector<Run> inText = runsOf(text, number);
    if (inName.size() > 1 && inName.size() == inText.size())
        for (std::size_t k = 0; k < inName.size(); ++k)
            if (inName[k].at == run.at) inText = {Run{inText[k]}};
    std::string result;
    std::size_t done = 0;
    for (const Run& place : inText) {
        (result += text.substr(done, place.at - done)) += shown;
        done = place.at + place.size;
    }
    return result += text.substr(done);
}

std::string numberAt(const Parameter& parameter, const Run& run) {
    const std::string_view name = parameter.name();
    return std::string(name.substr(run.at, name.find_first_not_of(kDigits, run.at) - run.at));
}

// The numbers of a name that may count; those of three digits belong to the name, as in T104 and U0_250_abs.
std::vector<Run> countersIn(const Parameter& parameter) {
    std::vector<Run> runs = digitRuns(parameter.name());
    std::erase_if(runs, [](const Run& run) { return run.size > 2; });
    return runs;
}

// What the members of a series have in common, `run` being the number in their names.
std::string shapeOf(const Parameter& parameter, const Run& run) {
    const std::string_view name = parameter.name();
    const stParamProperties& row = parameter.row();
    std::string shape(name.substr(0, run.at));
    (shape += '#') += name.substr(run.at + run.size);
    for (double part :
         {double(row.type), double(row.id_template), double(row.is_volatile), double(row.val_access),
          double(row.userlevel), double(row.val_len), row.val_min, row.val_max})
        (shape += '|') += reference::shortNumber(part);
    for (ParamLanguage language : {kGerman, kEnglish}) {
        for (const std::string& text : {parameter.title(language), parameter.description(language)})
            (shape += '|') += replaced(text, name, run, "#");
        for (const auto& [choice, text] : parameter.choices(language))
            (shape += '|') += text;
    }
    shape += parameter.unit();
    for (const int note : parameter.notes())
        (shape += '|') += noteAt(note).text.en;
    return shape;
}

// "1..3" for numbers that count up, "1,2,3,0" for others.
std::string numberList(const std::vector<Parameter>& members, const Run& run) {
    std::string list;
    bool counting = true;
    for (std::size_t k = 0; k < members.size(); ++k) {
        const std::string number = numberAt(members[k], run);
        counting &= k == 0 || std::stoi(number) == std::stoi(numberAt(members[k - 1], run)) + 1;
        (list += k == 0 ? "" : ",") += number;
    }
    if (!counting || members.size() == 2) return list;
    return numberAt(members.front(), run) + ".." + numberAt(members.back(), run);
}

Entry single(const Parameter& parameter) {
    std::string name(parameter.name());
    if (parameter.isIndexed())
        name += "[" + std::to_string(parameter.row().val_min_id) + ".." +
                std::to_string(parameter.row().val_max_id) + "]";
    return {{parameter}, std::move(name)};
}

Entry series(std::vector<Parameter> members, const Run& run) {
    const std::string_view name = members.front().name();
    std::string numbers = numberList(members, run);
    std::string whole(name.substr(0, run.at));
    ((whole += "{" + numbers) += "}") += name.substr(run.at + run.size);
    return {std::move(members), std::move(whole), {run.at, run.size}, std::move(numbers)};
}

} // namespace

std::string Entry::withNumbers(const std::string& text) const {
    return isSeries() ? replaced(text, first().name(), number, numbers) : text;
}

std::vector<Entry> entriesOf(const std::vector<Parameter>& section) {
    std::map<std::string, std::vector<Parameter>> alike;
    for (const Parameter& parameter : section)
        for (const Run& run : countersIn(parameter))
            if (!parameter.isIndexed()) alike[shapeOf(parameter, run)].push_back(parameter);

    std::vector<Entry> entries;
    std::vector<int> taken;
    for (const Parameter& parameter : section) {
        if (std::ranges::count(taken, parameter.position()) != 0) continue;
        const std::vector<Parameter>* most = nullptr;
        Run number{};
        for (const Run& run : countersIn(parameter)) {
            const auto found = alike.find(shapeOf(parameter, run));
            if (found == alike.end() || (most != nullptr && found->second.size() <= most->size())) continue;
            most = &found->second;
            number = run;
        }
        const bool isSeries = most != nullptr && most->size() > 1;
        entries.push_back(isSeries ? series(*most, number) : single(parameter));
        for (const Parameter& member : entries.back().members)
            taken.push_back(member.position());
    }
    return entries;
}

} // namespace talux::pages
