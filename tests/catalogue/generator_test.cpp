// What the generator refuses: for every rule rows that break it, and the one line that the builder reads.
#include "tools/generator/Generator.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "ParamSystem/catalogue/Family.h"
#include "ParamSystem/texts/Words.h"

using namespace talux;
using catalogue::ParameterRow;
using texts::TextEntry;

namespace {

// A copy of the true data, to be spoilt.
class Data {
public:
    Data() {
        for (const catalogue::Family& family : generator::catalogueData())
            rows.emplace_back(family.rows.begin(), family.rows.end());
        for (const generator::TextFamily family : generator::textData())
            entries.insert(entries.end(), family.begin(), family.end());
    }

    ParameterRow& row(std::string_view name) {
        for (std::vector<ParameterRow>& family : rows)
            for (ParameterRow& row : family)
                if (row.properties.name == name || row.templateName == name) return row;
        throw std::out_of_range(std::string(name));
    }
    stParamProperties& operator[](std::string_view name) { return row(name).properties; }

    TextEntry& text(std::string_view subject) {
        return *std::find_if(entries.begin(), entries.end(),
                             [&](const TextEntry& entry) { return entry.subject == subject; });
    }
    void repeat(std::string_view subject, const char* as) {
        entries.push_back(text(subject));
        entries.back().subject = as;
    }
    void drop(std::string_view subject) {
        std::erase_if(entries, [&](const TextEntry& entry) { return entry.subject == subject; });
    }

    std::string messages() const {
        const auto data = generator::catalogueData();
        std::vector<catalogue::Family> families(data.begin(), data.end());
        for (std::size_t k = 0; k < families.size(); ++k)
            families[k].rows = rows[k];
        const generator::TextFamily texts(entries);
        generator::Faults faults;
        const bool isMade = generator::makeModel(families, {&texts, 1}, faults).has_value();
        EXPECT_EQ(isMade, faults.empty());
        std::string printed(10'000, '\0');
        std::FILE* const out = fmemopen(printed.data(), printed.size(), "w");
        print(faults, out);
        std::fclose(out);
        return printed.substr(0, printed.find('\0'));
    }

    std::vector<std::vector<ParameterRow>> rows; // by family
    std::vector<TextEntry> entries;
};

struct Wrong {
    const char* subject;
    const char* words; // of the rule
    void (*spoil)(Data&);
};

constexpr char kOutside[] = "outside the block of its type", kSameId[] = "another row has the same id";
constexpr char kRange[] = "default lies outside", kLevel[] = "takes user level 3, any other setting 1";
constexpr char kTemplate[] = "template is of another kind or range",
               kUntidy[] = "blanks at an end or two in a";
constexpr char kChoices[] = "more or fewer choices", kNumbers[] = "from a number to a number";

// clang-format off
const Wrong kRows[] = {
    {"es sid", "letters, digits and underscores", [](Data& d) { d["essid"].name = "es sid"; }},
    {"", "letters, digits and underscores", [](Data& d) { d.row("DLG_Test").templateName = ""; }},
    {"ESSID", "another row has the same name", [](Data& d) { d["DNS"].name = "ESSID"; }},
    {"vBA", "another row has the same symbol", [](Data& d) { d["DNS"].name = "vba_7"; }},
    {"channel", kOutside, [](Data& d) { d["channel"].id = 9999; }},
    {"StatRecord_c0", kOutside, [](Data& d) { d["StatRecord_c0"].id = 30003; }},
    {"VarSaveParams", kOutside, [](Data& d) { d["VarSaveParams"].id = 18040; }},
    {"DLG_Test", kOutside, [](Data& d) { d["DLG_Test"].id = 10131; }},
    {"FW_ETH0_com", kSameId, [](Data& d) { d["FW_ETH0_com"].id = 8010; }},
    {"conman_error", kSameId, [](Data& d) { d["conman_error"].id = 6340; }},
    {"cycle_cnt_low", "stands for an int too", [](Data& d) { d["cycle_cnt_low"].is_volatile = 0; }},
    {"conman_status", "at least two members", [](Data& d) { d.row("conman_status").last = 1; }},
    {"conman_status", "only run-time values have indexes", [](Data& d) { d["conman_status"].is_volatile = 0; }},
    {"Logbook", "what has no value is no run-time value", [](Data& d) { d["Logbook"].is_volatile = 1; }},
    {"rec_start", "a run-time value has no default", [](Data& d) { d["rec_start"].val_def = 1; }},
    {"SampleFile", "a run-time value has no default", [](Data& d) { d["SampleFile"].val_def_text = "x"; }},
    {"par_list", "the range is empty", [](Data& d) { d["par_list"].val_min = 1e9; }},
    {"rate", "at least two choices", [](Data& d) { d["rate"].val_max = 1; }},
    {"rate", "at least two choices", [](Data& d) { d["rate"].val_max = kNoMax; }},
    {"rate", kRange, [](Data& d) { d["rate"].val_def = 0; }},
    {"Modbustime_reg", kRange, [](Data& d) { d["Modbustime_reg"].val_def = 28000; }},
    {"Uearth", kRange, [](Data& d) { d["Uearth"].val_def = 0.5; }},
    {"Kenn", "longer than the text may be", [](Data& d) { d["Kenn"].val_def_text = "ABCD"; }},
    {"ro_pin_active", kLevel, [](Data& d) { d["ro_pin_active"].userlevel = 1; }},
    {"Name", kLevel, [](Data& d) { d["Name"].userlevel = 2; }},
    {"Logbook", "the user level is 1, 2 or 3", [](Data& d) { d["Logbook"].userlevel = 4; }},
    {"kni1", kTemplate, [](Data& d) { d["kni1"].id_template = 18023; }},
    {"kni1", kTemplate, [](Data& d) { d["kni1"].id_template = 18099; }},
    {"kni1", kTemplate, [](Data& d) { d["kni1"].val_max = 500; }},
    {"essid", "it has no texts", [](Data& d) { d.drop("essid"); }},
};

const Wrong kTexts[] = {
    {"ESSID", "no parameter has this name", [](Data& d) { d.repeat("essid", "ESSID"); }},
    {"essid", "its texts stand twice", [](Data& d) { d.repeat("essid", "essid"); }},
    {"essid", "there is no title", [](Data& d) { d.text("essid").title = {}; }},
    {"essid", "missing in one language", [](Data& d) { d.text("essid").title = {"Netzname"}; }},
    {"Language", "one language has fewer", [](Data& d) { d.text("Language").items[0].en = "German"; }},
    {"essid", "not in UTF-8", [](Data& d) { d.text("essid").title = {"gr\xFC\xDF", "x"}; }},
    {"essid", "not in UTF-8", [](Data& d) { d.text("essid").title = {"gr\xC3", "x"}; }},
    {"essid", "at most 24", [](Data& d) { d.text("essid").title.de = "äöüäöüäöüäöüäöüäöüäöüäöüä"; }},
    {"essid", kUntidy, [](Data& d) { d.text("essid").unit = "s "; }},
    {"essid", kUntidy, [](Data& d) { d.text("essid").title.de = "\ta"; }},
    {"essid", kUntidy, [](Data& d) { d.text("essid").title.de = "a  b"; }},
    {"essid", kUntidy, [](Data& d) { d.text("essid").title.de = "a}"; }},
    {"Language", kUntidy, [](Data& d) { d.text("Language").items[0] = {"a||b", "a||b"}; }},
    {"ftp_log", "the title is only the name", [](Data& d) { d.text("ftp_log").title.en = "ftp_log"; }},
    {"essid", "says the title", [](Data& d) { d.text("essid").description = d.text("essid").title; }},
    {"Language", kChoices, [](Data& d) { d.text("Language").items[0] = {"a|b|c", "a|b|c"}; }},
    {"Language", kChoices, [](Data& d) { d.text("Language").items[0] = {"a", "a"}; }},
    {"TPL_PRIORITY", kChoices, [](Data& d) { d.text("TPL_PRIORITY").items[0] = {"a*21", "a*21"}; }},
    {"essid", kChoices, [](Data& d) { d.text("essid").items[0] = {"a", "a"}; }},
    {"REL{1..8", "a brace is not closed", [](Data& d) { d.text("REL{1..8}").subject = "REL{1..8"; }},
    {"REL{}", "or holds nothing", [](Data& d) { d.text("REL{1..8}").subject = "REL{}"; }},
    {"REL{1..n}", kNumbers, [](Data& d) { d.text("REL{1..8}").subject = "REL{1..n}"; }},
    {"REL{..8}", kNumbers, [](Data& d) { d.text("REL{1..8}").subject = "REL{..8}"; }},
    {"Language", kNumbers, [](Data& d) { d.text("Language").items[0] = {"a*b", "a*b"}; }},
    {"essid", "the places {n} and {m} only", [](Data& d) { d.text("essid").title.en = "{k}"; }},
    {"essid", "has no list for", [](Data& d) { d.text("essid").title.en = "{n}"; }},
};
// clang-format on

void expectRefusal(const Wrong& wrong, const std::string& messages, const SourceLine& where) {
    const std::string file = where.file;
    const std::string head = file.substr(file.rfind("ParamSystem/")) + ":" + std::to_string(where.number) +
                             ": error: " + wrong.subject + ": ";
    EXPECT_TRUE(messages.starts_with(head) && messages.find(wrong.words) != std::string::npos) << messages;
    EXPECT_EQ(messages.find('\n'), messages.size() - 1) << messages;
}

} // namespace

TEST(Generator, NamesTheRowThatBreaksARule) {
    EXPECT_EQ(Data().messages(), "");
    for (const Wrong& wrong : kRows) {
        Data data;
        wrong.spoil(data);
        expectRefusal(wrong, data.messages(), data.row(wrong.subject).where);
    }
    for (const Wrong& wrong : kTexts) {
        Data data;
        wrong.spoil(data);
        expectRefusal(wrong, data.messages(), data.text(wrong.subject).where);
    }
}

TEST(Generator, SaysWhatCanBeDoneWhenTheTableOfTextsIsFull) {
    Data data;
    data.text("TPL_DLG_Test").items[texts::kGroupMessages] = {"x*2000", "x*2000"};
    const std::string message = data.messages();
    EXPECT_TRUE(message.starts_with("error: ParamSystem/texts: ") &&
                message.find(" texts, the table takes " + std::to_string(generator::kMostTexts) +
                             ": share") != std::string::npos)
        << message;
    EXPECT_EQ(message.find('\n'), message.size() - 1) << message;
}

TEST(Generator, WritesFiveLinesAtMost) {
    Data data;
    for (ParameterRow& row : data.rows[6])
        row.properties.name = "";
    const std::string messages = data.messages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), '\n'), 5);
    EXPECT_NE(messages.find("\nand "), std::string::npos) << messages;
}
