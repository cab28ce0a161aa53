// What the generator refuses: for every rule a row that breaks it and the one line that the builder reads.
#include "tools/generator/Generator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "ParamSystem/catalogue/Family.h"
#include "ParamSystem/texts/Words.h"

using namespace talux;
using catalogue::Row;
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

    Row& row(std::string_view name) {
        for (std::vector<Row>& family : rows)
            for (Row& row : family)
                if (row.properties.name == name || row.templateName == name) return row;
        throw std::out_of_range(std::string(name));
    }
    stParamProperties& operator[](std::string_view name) { return row(name).properties; }

    TextEntry& text(std::string_view subject) {
        return *std::find_if(entries.begin(), entries.end(),
                             [&](const TextEntry& entry) { return entry.subject == subject; });
    }
    void drop(std::string_view subject) {
        std::erase_if(entries, [&](const TextEntry& entry) { return entry.subject == subject; });
    }

    std::string messages() const {
        std::vector<catalogue::Family> families(generator::catalogueData().begin(),
                                                generator::catalogueData().end());
        for (std::size_t k = 0; k < families.size(); ++k)
            families[k].rows = rows[k];
        const generator::TextFamily texts(entries);
        const generator::Result result = generator::generate(families, {&texts, 1});
        EXPECT_NE(result.sources.empty(), result.faults.empty());
        char* text = nullptr;
        std::size_t size = 0;
        std::FILE* const out = open_memstream(&text, &size);
        print(result.faults, out);
        std::fclose(out);
        const std::string printed = text;
        std::free(text);
        return printed;
    }

    std::vector<std::vector<Row>> rows; // by family
    std::vector<TextEntry> entries;
};

struct Wrong {
    const char* file;
    const char* subject;
    const char* rule;
    void (*spoil)(Data&);
};

constexpr char kNoName[] = "a name consists of letters, digits and underscores";
constexpr char kTwice[] = "another row has the same id";
constexpr char kUntidy[] = "a text is empty, has blanks at an end or two in a row, or a sign of a pattern";
constexpr char kChoices[] = "there are more or fewer choices than the range has";
constexpr char kLevel[] = "a number in a security family takes user level 3, any other setting 1";
constexpr char kBraces[] = "a list in braces counts from a number to a number";

const Wrong kWrong[] = {
    {"catalogue/Network", "es sid", kNoName, [](Data& d) { d["essid"].name = "es sid"; }},
    {"catalogue/Templates", "", kNoName, [](Data& d) { d.row("DLG_Test").templateName = ""; }},
    {"catalogue/Network", "ESSID", "another row has the same name", [](Data& d) { d["DNS"].name = "ESSID"; }},
    {"catalogue/ProcessImages", "vBA", "another row has the same symbol",
     [](Data& d) { d["DNS"].name = "vba_7"; }},
    {"catalogue/Network", "channel", "the id lies outside the block of its type",
     [](Data& d) { d["channel"].id = 8184; }},
    {"catalogue/Records", "StatRecord_c0", "the id lies outside the block of its type",
     [](Data& d) { d["StatRecord_c0"].id = 30003; }},
    {"catalogue/Identification", "VarSaveParams", "the id lies outside the block of its type",
     [](Data& d) { d["VarSaveParams"].id = 18040; }},
    {"catalogue/Templates", "DLG_Test", "the id lies outside the block of its type",
     [](Data& d) { d["DLG_Test"].id = 10131; }},
    {"catalogue/Firewall", "FW_ETH0_com", kTwice, [](Data& d) { d["FW_ETH0_com"].id = 8010; }},
    {"catalogue/Scripting", "conman_slaves", "another row has the same id",
     [](Data& d) { d["conman_slaves"].id = 9000; }},
    {"catalogue/Runtime", "cycle_cnt_low", "an id that stands for an int too belongs to a run-time value",
     [](Data& d) { d["cycle_cnt_low"].is_volatile = 0; }},
    {"catalogue/Scripting", "conman_status", "a series has at least two members",
     [](Data& d) { d.row("conman_status").last = 1; }},
    {"catalogue/Service", "Logbook", "what has no value is no run-time value",
     [](Data& d) { d["Logbook"].is_volatile = 1; }},
    {"catalogue/Runtime", "rec_start", "a run-time value has no default",
     [](Data& d) { d["rec_start"].val_def = 1; }},
    {"catalogue/Runtime", "SampleFile", "a run-time value has no default",
     [](Data& d) { d["SampleFile"].val_def_text = "x"; }},
    {"catalogue/Runtime", "par_list", "the range is empty", [](Data& d) { d["par_list"].val_min = 1e9; }},
    {"catalogue/Network", "rate", "a setting has at least two choices",
     [](Data& d) { d["rate"].val_max = 1; }},
    {"catalogue/Network", "rate", "a setting has at least two choices",
     [](Data& d) { d["rate"].val_max = kNoMax; }},
    {"catalogue/Network", "rate", "the default lies outside the range",
     [](Data& d) { d["rate"].val_def = 0; }},
    {"catalogue/TimeServices", "Modbustime_reg", "the default lies outside the range",
     [](Data& d) { d["Modbustime_reg"].val_def = 28000; }},
    {"catalogue/EarthFault", "Uearth", "the default lies outside the range",
     [](Data& d) { d["Uearth"].val_def = 0.5; }},
    {"catalogue/Identification", "Kenn", "the default is longer than the text may be",
     [](Data& d) { d["Kenn"].val_def_text = "ABCD"; }},
    {"catalogue/Security", "ro_pin_active", kLevel, [](Data& d) { d["ro_pin_active"].userlevel = 1; }},
    {"catalogue/Identification", "Name", kLevel, [](Data& d) { d["Name"].userlevel = 2; }},
    {"catalogue/Service", "Logbook", "the user level is 1, 2 or 3",
     [](Data& d) { d["Logbook"].userlevel = 4; }},
    {"catalogue/AnalogInputs", "kni1", "the template is of another kind or range",
     [](Data& d) { d["kni1"].id_template = 18023; }},
    {"catalogue/AnalogInputs", "kni1", "the template is of another kind or range",
     [](Data& d) { d["kni1"].val_max = 500; }},
    {"catalogue/AnalogInputs", "kni1", "the template is of another kind or range",
     [](Data& d) { d["kni1"].id_template = 18099; }},

    {"catalogue/Network", "essid", "it has no texts", [](Data& d) { d.drop("essid"); }},
    {"texts/Network", "ESSID", "no parameter has this name",
     [](Data& d) {
         d.entries.push_back(d.text("essid"));
         d.entries.back().subject = "ESSID";
     }},
    {"texts/Network", "essid", "its texts stand twice",
     [](Data& d) { d.entries.push_back(d.text("essid")); }},
    {"texts/Network", "essid", "there is no title", [](Data& d) { d.text("essid").title = {}; }},
    {"texts/Network", "essid", "a text is missing in one language",
     [](Data& d) { d.text("essid").title = {"Netzname"}; }},
    {"texts/Identification", "Language", "one language has fewer texts",
     [](Data& d) { d.text("Language").items[0].en = "German"; }},
    {"texts/Network", "essid", "a text is not in UTF-8",
     [](Data& d) {
         d.text("essid").title = {"gr\xFC\xDF", "x"};
     }},
    {"texts/Network", "essid", "a text is not in UTF-8",
     [](Data& d) {
         d.text("essid").title = {"gr\xC3", "x"};
     }},
    {"texts/Network", "essid", "a title has at most 24 characters",
     [](Data& d) {
         d.text("essid").title = {"äöüäöüäöüäöüäöüäöüäöüäöüä", "x"};
     }},
    {"texts/Network", "essid", kUntidy, [](Data& d) { d.text("essid").unit = "s "; }},
    {"texts/Network", "essid", kUntidy,
     [](Data& d) {
         d.text("essid").title = {"a  b", "x"};
     }},
    {"texts/Network", "essid", kUntidy,
     [](Data& d) {
         d.text("essid").title = {"a}", "x"};
     }},
    {"texts/Identification", "Language", kUntidy,
     [](Data& d) {
         d.text("Language").items[0] = {"a||b", "a||b"};
     }},
    {"texts/Network", "wlan0_active", "the title is only the name",
     [](Data& d) { d.text("wlan0_active").title.en = "wlan0_active"; }},
    {"texts/Network", "essid", "the description says the title again",
     [](Data& d) { d.text("essid").description.en = d.text("essid").title.en; }},
    {"texts/Identification", "Language", kChoices,
     [](Data& d) {
         d.text("Language").items[0] = {"a|b|c", "a|b|c"};
     }},
    {"texts/Templates", "TPL_PRIORITY", kChoices,
     [](Data& d) {
         d.text("TPL_PRIORITY").items[0] = {"a*21", "a*21"};
     }},
    {"texts/Network", "essid", kChoices,
     [](Data& d) {
         d.text("essid").items[0] = {"a", "a"};
     }},
    {"texts/Measurements", "U{1..3", "a brace is not closed or holds nothing",
     [](Data& d) { d.text("U{1..3}").subject = "U{1..3"; }},
    {"texts/Measurements", "U{}", "a brace is not closed or holds nothing",
     [](Data& d) { d.text("U{1..3}").subject = "U{}"; }},
    {"texts/Measurements", "U{1..n}", kBraces, [](Data& d) { d.text("U{1..3}").subject = "U{1..n}"; }},
    {"texts/Identification", "Language", kBraces,
     [](Data& d) {
         d.text("Language").items[0] = {"a*b", "a*b"};
     }},
    {"texts/Network", "essid", "texts know the places {n} and {m} only",
     [](Data& d) { d.text("essid").title.en = "{k}"; }},
    {"texts/Network", "essid", "a text names a place that the name has no list for",
     [](Data& d) { d.text("essid").title.en = "{n}"; }},
};

// "ParamSystem/texts/Network.h:12"
std::string positionOf(const std::string& file, const std::source_location& where) {
    EXPECT_THAT(where.file_name(), testing::EndsWith("ParamSystem/" + file + ".h"));
    return "ParamSystem/" + file + ".h:" + std::to_string(where.line());
}

} // namespace

TEST(Generator, NamesTheRowThatBreaksARule) {
    EXPECT_EQ(Data().messages(), "");
    for (const Wrong& wrong : kWrong) {
        Data data;
        wrong.spoil(data);
        const bool inTexts = std::string_view(wrong.file).starts_with("texts/");
        const auto where = inTexts ? data.text(wrong.subject).where : data.row(wrong.subject).where;
        EXPECT_EQ(data.messages(),
                  positionOf(wrong.file, where) + ": error: " + wrong.subject + ": " + wrong.rule + "\n");
    }
}

TEST(Generator, SaysWhatCanBeDoneWhenTheTableOfTextsIsFull) {
    Data data;
    data.text("TPL_DLG_Test").items[texts::kGroupMessages] = {"x*2000", "x*2000"};
    EXPECT_THAT(
        data.messages(),
        testing::MatchesRegex("error: ParamSystem/texts: [0-9]+ texts, the table takes 4740: share.*\n"));
}

TEST(Generator, WritesFiveLinesAtMost) {
    Data data;
    for (Row& row : data.rows[6])
        row.properties.name = "";
    const std::string messages = data.messages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), '\n'), 5);
    EXPECT_THAT(messages, testing::HasSubstr("\nand "));
}
