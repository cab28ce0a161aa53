// Tables, look-ups and symbols against plain scans of the rows, also of rows that a program writes, which
// apply to language, commit and files.
#include "Store.h"

#include <cctype>
#include <map>
#include <strings.h>
#include <vector>

namespace {

using namespace talux_test;

// Before the working table is filled nothing is found: asked before any test runs.
const bool emptyAtFirst = !GetParamProperties(2000) && !rowOf("U1_prim") && !GetParamPropertiesByOrder(0) &&
                          !GetParamPropertiesByOrder(1);

const int kRows = [] { // between the sentinels
    int rows = 0;
    while (DefParamProperties[rows + 1].id != 0)
        ++rows;
    return rows;
}();

// The first working row in table order that fits.
template <class Fits>
const stParamProperties* scan(Fits fits) {
    const stParamProperties* row = ParamProperties + 1;
    while (row->id != 0 && !fits(*row))
        ++row;
    return row->id != 0 ? row : nullptr;
}

struct Dictionary : InDirectory {
    void TearDown() override {
        std::fill_n(ParamProperties + kRows + 1, kSpareParamRows, stParamProperties{});
        InDirectory::TearDown();
    }

    static stParamProperties& row(const char* name) { return ParamProperties[rowOf(name) - ParamProperties]; }
    // A row like that of `channel`, after all others.
    static stParamProperties& append(int id, const char* name) {
        stParamProperties& added = ParamProperties[kRows + 1] = row("channel");
        added.id = id;
        added.name = name;
        return added;
    }
    std::string saved(int save(char*)) const {
        std::string file = directory / "file.ini";
        EXPECT_EQ(save(file.data()), 1);
        return contents(file);
    }

    unsigned below(std::size_t limit) { return static_cast<unsigned>(random() % limit); }
    std::string randomCase(std::string text) {
        for (char& c : text)
            c = static_cast<char>(below(2) != 0 ? std::toupper(c) : std::tolower(c));
        return text;
    }
    // A name with its end dropped, a character added or changed.
    std::string mutated(std::string text) {
        const std::size_t place = text.empty() ? 0 : below(text.size());
        const char c = static_cast<char>(below(255) + 1);
        const auto kind = below(3);
        return kind == 0 ? text.substr(0, place) : text.replace(place, kind - 1, 1, c);
    }

    void expectLikeAScan() {
        for (int id = 0; id < 60000; ++id)
            ASSERT_EQ(GetParamProperties(id), scan([id](const auto& row) { return row.id == id; })) << id;
        for (int position = 1; position <= kRows + kSpareParamRows; ++position) {
            const std::string now = ParamProperties[position].id != 0 ? ParamProperties[position].name : "",
                              first = DefParamProperties[std::min(position, kRows)].name;
            for (const std::string& asked : {randomCase(now), randomCase(first), mutated(now)}) {
                const auto fits = [&](const auto& row) { return strcasecmp(row.name, asked.c_str()) == 0; };
                ASSERT_EQ(rowOf(asked), scan(fits)) << asked;
            }
        }
    }

    std::mt19937 random{1};
};

TEST_F(Dictionary, TableHasSentinelsAndFamilies) {
    EXPECT_TRUE(emptyAtFirst);
    for (const int position : {0, kRows + 1}) {
        const stParamProperties& row = DefParamProperties[position];
        EXPECT_EQ(row.id + row.type + row.val_access + row.userlevel, 0);
        for (const char* text : {row.name, row.format, row.val_init_text, row.val_def_text})
            EXPECT_STREQ(text, "***");
    }
    const stParamFamily* family = DefParamFamilies;
    for (int next = 1; next <= kRows; next = family++->last + 1)
        EXPECT_TRUE(family->first == next && family->last >= next) << family->name;
    EXPECT_STREQ(family[-1].name, "Records");
    EXPECT_EQ(LoadParamProperties(nullptr), 1);
}

TEST_F(Dictionary, IsFoundLikeByAScanAlsoWhereAProgramHasChangedIt) {
    for (int position = 0; position <= kRows; ++position) {
        const stParamProperties* const row = GetParamPropertiesByOrder(position);
        ASSERT_TRUE(row != nullptr && row->id == DefParamProperties[position].id &&
                    row->name == DefParamProperties[position].name)
            << position;
    }
    expectLikeAScan();
    std::vector<std::string> names(1000);
    for (int round = 0; round < 1000; ++round) {
        const bool isNew = round < kSpareParamRows - 2;
        const int position =
            isNew ? kRows + 1 + round : 1 + static_cast<int>(below(static_cast<std::size_t>(kRows)));
        stParamProperties& some = ParamProperties[position];
        if (isNew) some = DefParamProperties[kRows];
        if (isNew || below(2) != 0) some.id = 40000 + round;
        std::string& name = names[static_cast<std::size_t>(round)] = "new_" + std::to_string(round);
        if (isNew || below(2) != 0) some.name = name.c_str();
    }
    expectLikeAScan();
    LoadDefParamProperties();
    expectLikeAScan();
    EXPECT_EQ(GetParamProperties(40000), GetParamPropertiesByOrder(kRows + 1)) << "spare rows stay";
}

TEST_F(Dictionary, FindsNothingThatIsNotThere) {
    for (const int position : {kRows + 1, kRows + 100, 1 << 30})
        EXPECT_EQ(GetParamPropertiesByOrder(position), nullptr) << position;
    EXPECT_EQ(GetParamProperties(0x7fffffff), nullptr);
    EXPECT_STREQ(GetParamProperties(7000)->name, "EvCnt_qu2_c0");
    EXPECT_DEATH(GetParamProperties(-1), "ParamSystem/TALUX_Params.*GetParamProperties.*id>=0");
    EXPECT_DEATH(GetParamPropertiesByOrder(-7), "ParamSystem/TALUX_Params.*GetParamPropertiesByOrder.*id>=0");
    for (const std::string& asked : {std::string("***"), std::string(5000, 'x')})
        EXPECT_EQ(rowOf(asked), nullptr);
    EXPECT_EQ(rowOf(""), GetParamPropertiesByOrder(1));
    EXPECT_EQ(GetParamPropertiesByName(nullptr), nullptr);
    EXPECT_EQ(rowOf("cycle_cnt_low")->id, 7000);
    for (const char* name : {"gui_enabled", "key_enabled", "pub_key", "date_info", "TIMEZONE", "Date"})
        EXPECT_STREQ(rowOf(name)->val_init_text, "0") << name;
}

TEST_F(Dictionary, EndsAtTheFirstRowWithoutId) {
    std::fill_n(ParamProperties + kRows + 1, kSpareParamRows, DefParamProperties[1]);
    const int end = kRows + kSpareParamRows + 1;
    ParamProperties[end - 1].id = 50000;
    for (const auto* last : {GetParamProperties(50000), GetParamPropertiesByOrder(end - 1)})
        EXPECT_EQ(last, ParamProperties + end - 1);
    for (const int position : {end, end + 1, 1 << 30})
        EXPECT_EQ(GetParamPropertiesByOrder(position), nullptr);
    ParamProperties[kRows + 5].id = 0;
    EXPECT_EQ(GetParamPropertiesByOrder(kRows + 4), ParamProperties + kRows + 4);
    for (const int position : {kRows + 5, kRows + 6})
        EXPECT_EQ(GetParamPropertiesByOrder(position), nullptr);
    EXPECT_EQ(GetParamProperties(50000), nullptr);
    ParamProperties[1].id = 0;
    EXPECT_TRUE(!GetParamProperties(6029) && !rowOf("channel") && !GetParamPropertiesByOrder(0));
}

TEST_F(Dictionary, LanguageStoreAndFilesGoByTheirRows) {
    VarSetDefault();
    stParamProperties& added = append(7214, "MyRate"); // a long that no parameter has
    added.val_max = 70000;
    added.val_def = 7;
    EXPECT_EQ(say("TLX_myrate=70001"), "<< VALUE TOO HIGH >>");
    EXPECT_EQ(say("TLX_myrate=70000,TLX_MyRate,1,+"), "70001.000000");
    VarUpdateGlobalSpace();
    EXPECT_NE(saved(VarSaveParamFile).find("\nTLX_MyRate=70000\n"), std::string::npos);
    EXPECT_EQ(VarLoadFile(write("my.ini", "TLX_MyRate=12\nTLX_channel=3\n").data(), 0), 1);
    EXPECT_EQ(say("TLX_MyRate"), "12");
    VarSetDefault();
    EXPECT_EQ(say("TLX_MyRate"), "7");

    row("channel").val_access = kWriteOnly;
    EXPECT_EQ(say("TLX_channel"), "<< VARIABLE IS WRITE ONLY >>");
    EXPECT_EQ(say("TLX_channel=5"), "");
    row("channel").userlevel = 3;
    EXPECT_EQ(say("TLX_channel=6", 2), "<< RIGHTS TOO LOW >>");
    VarUpdateGlobalSpace();
    EXPECT_EQ(saved(VarSaveParamFile).find("TLX_channel="), std::string::npos);
    EXPECT_NE(saved(VarSaveSecParamFile).find("TLX_channel=5\n"), std::string::npos);
    row("channel").is_volatile = 1;
    VarSetLongValue(rowOf("channel")->id, 8);
    VarUpdateGlobalSpace();
    EXPECT_EQ(saved(VarSaveSecParamFile).find("TLX_channel="), std::string::npos);
    VarLong live = 0;
    VarGetGlobalLongValue(rowOf("channel")->id, &live);
    EXPECT_EQ(live, 5);
}

// The type codes that no parameter of the catalogue has.
TEST_F(Dictionary, DumpsElementsByTheirType) {
    struct {
        int type;
        const char *number, *hex;
    } const cases[] = {{2005, "-2", "FEFFFFFF"},
                       {2006, "-2", "FEFFFFFFFFFFFFFF"},
                       {2007, "-2", "FEFFFFFFFFFFFFFF"},
                       {2008, "-2", "FEFF"},
                       {2009, "-2", "FE"},
                       {2012, "-2.000000", "type unknown"}};
    double value = -2;
    VarSetGlobalDoubleValue(rowOf("vMWR")->id, value);
    for (const auto& [type, number, hex] : cases) {
        row("vMWR").type = type;
        EXPECT_EQ(say("TLX_vMWR 1"), number + std::string("\n")) << type;
        EXPECT_EQ(say("TLX_vMWR 1 -h"), hex) << type;
    }
}

// A type that does not go with the id reads nothing that is not there.
TEST_F(Dictionary, ForeignTypesGiveNothing) {
    row("channel").type = kTypeText;
    EXPECT_EQ(say("TLX_channel"), "\"\"");
    row("Name").type = kTypeLong;
    EXPECT_EQ(say("TLX_Name,1,+"), "1.000000");
    row("Uearth").type = kTypeStruct;
    EXPECT_EQ(say("TLX_Uearth"), say("TLX_Uearth=30,TLX_Uearth"));
    const std::string longName(5000, 'x');
    append(7214, longName.c_str());
    EXPECT_EQ(saved(VarSaveParamFile).find("xxx"), std::string::npos);
}

TEST_F(Dictionary, AFileThatWouldBeTooLongStaysAsItIs) {
    std::string file = write("parameter.ini", "old"), name(127, 'n'), text(127, 't');
    const int id = row("Name").id;
    for (int k = 1; k < kSpareParamRows; ++k)
        (ParamProperties[kRows + k] = row("Name")).name = name.c_str();
    VarSetTextValue(id, text.data());
    VarUpdateGlobalSpace();
    const std::string unwritten = "Error (TALUX_Var): Can't write to file '" + file + "' \n",
                      stays = "Error (TALUX_Var): '" + file + "' stays as it is \nwrite: File too large\n";
    EXPECT_EQ(outcomeOf([&] { return VarSaveParamFile(file.data()); }), Outcome(1, unwritten, stays));
    EXPECT_EQ(std::get<0>(outcomeOf([] { return VarSaveError(SavedFile::parameters); })), EFBIG);
    EXPECT_TRUE(contents(file) == "old");
}

// What a symbol stands for, -1 where it is unknown.
VarLong resolved(std::string symbol) {
    VarLong value = -1;
    const int known = ResolveParamSymbol(symbol.data(), &value);
    EXPECT_EQ(known, value != -1) << symbol;
    return value;
}

// The symbols that the rows with a name ask for.
std::map<std::string, int> expectedSymbols() {
    std::map<std::string, int> symbols = {{"VAR_NULL", 0}, {"VAR_TPL_NULL", 0}};
    for (int position = 1; position <= kRows; ++position) {
        const stParamProperties& row = DefParamProperties[position];
        if (*row.name == '\0') continue;
        const std::string name = (row.type == kTypeCommand ? "CMD_" : "VAR_") + std::string(row.name);
        symbols.emplace(name, row.id); // the first element of an indexed parameter
        if (row.val_max_id > 0)
            symbols.emplace(name + "_" + std::to_string(row.id - symbols[name] + 1), row.id);
    }
    return symbols;
}

TEST_F(Dictionary, SymbolsFollowTheRows) {
    std::map<std::string, int> missing = expectedSymbols();
    const stParamSymbol* symbol = DefParamSymbols + 1;
    for (; std::string(symbol->name) != "***"; ++symbol) {
        EXPECT_EQ(resolved(randomCase(symbol->name)), symbol->value);
        EXPECT_EQ(resolved(std::string(symbol->name) + "?"), -1);
        const bool isTemplate = std::string(symbol->name).starts_with("VAR_TPL_") && symbol->value != 0;
        EXPECT_TRUE(isTemplate ? *GetParamProperties(symbol->value)->name == '\0'
                               : missing.contains(symbol->name) && missing[symbol->name] == symbol->value)
            << symbol->name;
        missing.erase(symbol->name);
    }
    EXPECT_TRUE(missing.empty()) << missing.begin()->first;
    for (const stParamSymbol* sentinel : {DefParamSymbols, symbol})
        EXPECT_TRUE(sentinel->value == 0 && std::string(sentinel->name) == "***");
    EXPECT_EQ(resolved("VAR_TPL_BAUDRATE"), 18021);
    EXPECT_EQ(resolved("VAR_TPL_DLG_Test"), 18000);
    for (const char* unknown :
         {"***", "", "U1_prim", "VAR_", "VAR_VarSaveParams", "VAR_vMWR_0", "VAR_vMWR_97"})
        EXPECT_EQ(resolved(unknown), -1) << unknown;
    VarLong value = 0;
    EXPECT_EQ(ResolveParamSymbol(nullptr, &value), 0);
}

} // namespace
