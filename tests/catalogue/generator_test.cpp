// What the generator refuses: for every rule, rows that break it and the line that is printed. What the list
// of the interface reports when a row changes.
#include "tools/generator/Generator.h"
#include "tools/interface/Listing.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tools/generator/Data.h"

using namespace talux;
using parameters::Note, parameters::Row, parameters::Texts;

namespace {

// A copy of the real data, to be broken.
class Data {
public:
    Data() {
        for (const parameters::Family& family : generator::familyData()) {
            rows.emplace_back(family.rows.begin(), family.rows.end());
            notes.emplace_back(family.notes.begin(), family.notes.end());
        }
    }

    Row& row(std::string_view name) {
        for (std::vector<Row>& family : rows)
            for (Row& row : family)
                if (row.properties.name == name || row.templateName == name) return row;
        throw std::out_of_range(std::string(name));
    }
    stParamProperties& operator[](std::string_view name) { return row(name).properties; }
    Texts& text(std::string_view name) { return row(name).texts; }
    parameters::Both& choices(std::string_view name) { return text(name).items[parameters::kGroupArgs]; }

    std::string messages() const {
        const auto data = generator::familyData();
        std::vector<parameters::Family> families(data.begin(), data.end());
        for (std::size_t k = 0; k < families.size(); ++k) {
            families[k].rows = rows[k];
            families[k].notes = notes[k];
        }
        generator::Faults faults;
        const bool isMade = generator::makeModel(families, faults).has_value();
        EXPECT_EQ(isMade, faults.empty());
        std::string printed(10'000, '\0');
        std::FILE* const out = fmemopen(printed.data(), printed.size(), "w");
        print(faults, out);
        std::fclose(out);
        return printed.substr(0, printed.find('\0'));
    }

    std::vector<std::vector<Row>> rows; // by family
    std::vector<std::vector<Note>> notes;
};

struct Wrong {
    const char* subject; // as the message calls it
    const char* words;   // of the rule
    void (*spoil)(Data&);
    const char* row = subject; // that is named
};

constexpr char kRange[] = "the default is out of range: ",
               kLevel[] = "takes user level 3, any other setting 1";
constexpr char kTemplate[] = "template is of another kind or range",
               kUntidy[] = "blanks at an end or two in a";
constexpr char kNumbers[] = "from a number to a number", kSeries[] = "REL{1..8}";

// clang-format off
const Wrong kWrong[] = {
    {"es sid", "letters, digits and underscores", [](Data& d) { d["essid"].name = "es sid"; }},
    {"", "letters, digits and underscores", [](Data& d) { d.row("DLG_Test").templateName = ""; }},
    {"ESSID", "the same name: essid in ParamSystem/parameters/Network.h:", [](Data& d) { d["DNS"].name = "ESSID"; }},
    {"vba_7", "the same symbol: vBA in ParamSystem/parameters/Pro", [](Data& d) { d["debug_tv"].name = "vba_7"; }},
    {"channel", "the id 9999 lies outside the block of its type, long 6000..7268; free: 6029, 7214..7245", [](Data& d) { d["channel"].id = 9999; }},
    {"StatRecord_c0", "outside the block of its type, record 30000..30002", [](Data& d) { d["StatRecord_c0"].id = 30003; }},
    {"VarSaveParams", "outside the block of its type, command 19000..19099", [](Data& d) { d["VarSaveParams"].id = 18040; }},
    {"DLG_Test", "outside the block of its type, template 18000..18099", [](Data& d) { d["DLG_Test"].id = 10131; }},
    {"log_LED", "the same id: DEBUG in ParamSystem/parameters/Runtime.h:", [](Data& d) { d["log_LED"].id = 8183; }},
    {"DEBUG", "the same id: log_LED in ParamSystem/parameters/BinaryIO.h:", [](Data& d) { d["DEBUG"].id = 8073; }},
    {"conman_error", "another row has the same id: conman_status", [](Data& d) { d["conman_error"].id = 6340; }},
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
    {"Uearth", "names its method", [](Data& d) { d.row("Uearth").of = {}; }},
    {"Kenn", "the default has more than 3 characters", [](Data& d) { d["Kenn"].val_def_text = "ABCD"; }},
    {"DNS", "the default is not an address", [](Data& d) { d["DNS"].val_def_text = "8.8.8.08"; }},
    {"FW_ETH0_MASK", "the default is not a netmask", [](Data& d) { d["FW_ETH0_MASK"].val_def_text = "255.0.255.0"; }},
    {"ro_pin_active", kLevel, [](Data& d) { d["ro_pin_active"].userlevel = 1; }},
    {"Name", kLevel, [](Data& d) { d["Name"].userlevel = 2; }},
    {"Logbook", "the user level is 1, 2 or 3", [](Data& d) { d["Logbook"].userlevel = 4; }},
    {"kni1", kTemplate, [](Data& d) { d["kni1"].id_template = 18023; }},
    {"kni1", kTemplate, [](Data& d) { d["kni1"].id_template = 18099; }},
    {"kni1", kTemplate, [](Data& d) { d["kni1"].val_max = 500; }},

    {"essid", "it has no texts", [](Data& d) { d.text("essid") = {}; }},
    {"essid", "missing in English", [](Data& d) { d.text("essid").title = {"Netzname"}; }},
    {"Language", "fewer texts: 2 German, 1 English", [](Data& d) { d.choices("Language").en = "German"; }},
    {"essid", "not in UTF-8", [](Data& d) { d.text("essid").title = {"gr\xFC\xDF", "x"}; }},
    {"essid", "not in UTF-8", [](Data& d) { d.text("essid").title = {"gr\xC3", "x"}; }},
    {"essid", "the German text \"äöüäöüäöüäöüäöüäöüäöüäöüä\" has 25 characters, a title at most 24",
        [](Data& d) { d.text("essid").title.de = "äöüäöüäöüäöüäöüäöüäöüäöüä"; }},
    {"essid", kUntidy, [](Data& d) { d.row("essid").unit = "s "; }},
    {"essid", kUntidy, [](Data& d) { d.text("essid").title.de = "\ta"; }},
    {"essid", kUntidy, [](Data& d) { d.text("essid").title.de = "a  b"; }},
    {"essid", kUntidy, [](Data& d) { d.text("essid").title.de = "a}"; }},
    {"Language", kUntidy, [](Data& d) { d.choices("Language") = {"a||b", "a||b"}; }},
    {"ftp_log", "the title is only the name", [](Data& d) { d.text("ftp_log").title.en = "ftp_log"; }},
    {"essid", "says the title", [](Data& d) { d.text("essid").description = d.text("essid").title; }},
    {"Language", "3 texts of choices for 2 choices", [](Data& d) { d.choices("Language") = {"a|b|c", "a|b|c"}; }},
    {"Language", "1 texts of choices for 2 choices", [](Data& d) { d.choices("Language") = {"a", "a"}; }},
    {"PRIORITY", "21 texts of choices for 20", [](Data& d) { d.choices("PRIORITY") = {"a*21", "a*21"}; }},
    {"essid", "1 texts of choices for 0", [](Data& d) { d.choices("essid") = {"a", "a"}; }},
    {"Language", "2 texts and 1 names", [](Data& d) { d.text("Language").choiceNames = "German"; }},
    {"Language", "two of its choices have one name", [](Data& d) { d.text("Language").choiceNames = "A|A"; }},
    {"REL{1..8", "a brace is not closed", [](Data& d) { d[kSeries].name = "REL{1..8"; }},
    {"REL{}", "or holds nothing", [](Data& d) { d[kSeries].name = "REL{}"; }},
    {"REL{1..n}", kNumbers, [](Data& d) { d[kSeries].name = "REL{1..n}"; }},
    {"REL{..8}", kNumbers, [](Data& d) { d[kSeries].name = "REL{..8}"; }},
    {"Language", kNumbers, [](Data& d) { d.choices("Language") = {"a*b", "a*b"}; }},
    {"essid", "the places {n} and {m} only", [](Data& d) { d.text("essid").title.en = "{k}"; }},
    {"essid", "has no list for", [](Data& d) { d.text("essid").title.en = "{n}"; }},
};
// clang-format on

void expectOneLine(const std::string& messages, const SourceLine& where, const Wrong& wrong) {
    const std::string head = generator::fileAndLine(where) + ": error: " + wrong.subject + ": ";
    EXPECT_TRUE(messages.starts_with(head) && messages.find(wrong.words) != std::string::npos) << messages;
    EXPECT_EQ(messages.find('\n'), messages.size() - 1) << messages;
}

using namespace talux::interface;
using Lines = std::vector<std::string>;

// The lines about a change of the listing.
template <class Change>
Lines after(Change change) {
    Listing changed = listing();
    change(changed);
    return changes(listing(), changed);
}

ListingRow& find(Listing& listing, std::string_view name) {
    return *std::find_if(listing.begin(), listing.end(),
                         [&](const ListingRow& row) { return row[kName] == name; });
}

} // namespace

TEST(Generator, NamesTheRowThatBreaksARule) {
    EXPECT_EQ(Data().messages(), "");
    for (const Wrong& wrong : kWrong) {
        Data data;
        wrong.spoil(data);
        expectOneLine(data.messages(), data.row(wrong.row).where, wrong);
    }
}

TEST(Generator, NamesTheNoteThatIsWrong) {
    Data data;
    Note& note = data.notes[6].front();
    note.names = "ETH9_IP";
    expectOneLine(data.messages(), note.where, {"a note", "no parameter is called ETH9_IP", nullptr});
}

TEST(Generator, SaysWhatCanBeDoneWhenTheTableOfTextsIsFull) {
    Data data;
    data.text("DLG_Test").items[parameters::kGroupMessages] = {"x*2000", "x*2000"};
    const std::string message = data.messages();
    EXPECT_TRUE(message.starts_with("error: ParamSystem/parameters: ") &&
                message.find(" texts, the table takes " + std::to_string(generator::kMostTexts) +
                             ": share") != std::string::npos)
        << message;
    EXPECT_EQ(message.find('\n'), message.size() - 1) << message;
}

TEST(Generator, WritesFiveLinesAtMost) {
    Data data;
    for (Row& row : data.rows[6])
        row.properties.name = "";
    const std::string messages = data.messages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), '\n'), 5);
    EXPECT_NE(messages.find("\nand "), std::string::npos) << messages;
}

TEST(Interface, IsReadBackAsItWasWritten) {
    EXPECT_EQ(parse(print(listing())), listing());
    EXPECT_EQ(after([](Listing&) {}), Lines());
}

TEST(Interface, SaysRowByRowWhatAChangeMeans) {
    const ListingRow flag{"9999", "flag_of_this_test", "bool", "parameter.ini", "rw", "1", "", "", "", "0"};
    EXPECT_EQ(after([&](Listing& all) { all.insert(all.begin() + 90, flag); }),
              Lines{"flag_of_this_test (9999) is new: bool, parameter.ini, default 0"});
    EXPECT_EQ(after([](Listing& all) { std::erase(all, ListingRow(find(all, "Uearth"))); }),
              Lines{"Uearth (2148) is gone: programs, scripts and files that use it find nothing"});
    const struct {
        const char* parameter;
        Column column;
        const char *cell, *line;
    } cells[] = {
        {"cycle_cnt_low", kName, "cycles",
         "cycle_cnt_low (7000): name cycle_cnt_low -> cycles: "
         "scripts and lines of parameter files with the old one find nothing"},
        {"MessRecord01.Cnt", kKind, "float",
         "MessRecord01.Cnt (30000): kind long -> float: programs read and write other bytes"},
        {"Uearth", kMax, "", "Uearth (2148): maximum 90 -> none: wider, what is stored stays valid"},
        {"Uearth", kMin, "0.5", "Uearth (2148): minimum 1 -> 0.5: wider, what is stored stays valid"},
        {"Uearth", kMin, "2",
         "Uearth (2148): minimum 1 -> 2: narrower, files and scripts may hold values that are refused now"},
        {"Uearth", kAccess, "r", "Uearth (2148): access rw -> r: writes are refused now"},
    };
    for (const auto& change : cells)
        EXPECT_EQ(after([&](Listing& all) { find(all, change.parameter)[change.column] = change.cell; }),
                  Lines{change.line});
}
