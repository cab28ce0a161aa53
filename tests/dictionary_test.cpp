// Look-ups and symbols against plain scans of the table, and the layouts of the records.
#include "ParamSystem/TALUX_Params.h"

#include <gtest/gtest.h>
#include <strings.h>

#include <map>
#include <random>
#include <sstream>
#include <string>

namespace {

// Before the working table is filled nothing is found: asked before any test runs.
bool nothingIsFound() {
    char name[] = "U1_prim";
    return !GetParamProperties(2000) && !GetParamPropertiesByName(name) && !GetParamPropertiesByOrder(0) &&
           !GetParamPropertiesByOrder(1);
}
const bool emptyAtFirst = nothingIsFound();

class Dictionary : public testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_EQ(LoadDefParamProperties(), 1); }
};

const stParamProperties* byName(std::string name) {
    return GetParamPropertiesByName(name.data());
}

// Table position of the first row that fits, 0 when none does.
template <class Fits>
int firstPosition(Fits fits) {
    for (int position = 1; DefParamProperties[position].id != 0; ++position)
        if (fits(DefParamProperties[position])) return position;
    return 0;
}

int positionOfId(int id) {
    return firstPosition([id](const stParamProperties& row) { return row.id == id; });
}

int positionOfName(const std::string& name) {
    return firstPosition([&name](const auto& row) { return strcasecmp(row.name, name.c_str()) == 0; });
}

const stParamProperties* at(int position) {
    return position != 0 ? GetParamPropertiesByOrder(position) : nullptr;
}

std::string randomCase(std::string text, std::mt19937& random) {
    for (char& c : text)
        c = static_cast<char>(random() % 2 != 0 ? std::toupper(c) : std::tolower(c));
    return text;
}

// A name with a character changed, dropped or added.
std::string mutated(std::string text, std::mt19937& random) {
    const std::size_t place = text.empty() ? 0 : random() % text.size();
    const char c = static_cast<char>(random() % 255 + 1);
    switch (random() % 3) {
    case 0:
        return text.substr(0, place);
    case 1:
        return text.insert(place, 1, c);
    default:
        return text.replace(place, 1, 1, c);
    }
}

TEST_F(Dictionary, IsEmptyBeforeItIsFilled) {
    EXPECT_TRUE(emptyAtFirst);
}

TEST_F(Dictionary, WorkingTableCopiesTheCompiledOne) {
    ASSERT_NE(GetParamPropertiesByOrder(0), nullptr);
    EXPECT_STREQ(GetParamPropertiesByOrder(0)->name, "***");
    for (int position = 0; position <= kParamCount; ++position) {
        const stParamProperties* const row = GetParamPropertiesByOrder(position);
        const stParamProperties& source = DefParamProperties[position];
        ASSERT_TRUE(row) << position;
        EXPECT_NE(row, &source);
        EXPECT_EQ(row->id, source.id);
        EXPECT_EQ(row->name, source.name);
        EXPECT_EQ(row->val_max, source.val_max);
        EXPECT_EQ(row->userlevel, source.userlevel);
    }
    for (const int position : {kParamCount + 1, kParamTableRows, 1 << 30})
        EXPECT_EQ(GetParamPropertiesByOrder(position), nullptr) << position;
    char file[] = "/no/such/file";
    EXPECT_EQ(LoadParamProperties(file), 1);
    EXPECT_EQ(LoadParamProperties(nullptr), 1);
}

TEST_F(Dictionary, FindsIdsLikeAScan) {
    for (int id = 0; id < 32000; ++id)
        ASSERT_EQ(GetParamProperties(id), at(positionOfId(id))) << id;
    EXPECT_EQ(GetParamProperties(0x7fffffff), nullptr);
    EXPECT_STREQ(GetParamProperties(7000)->name, "EvCnt_qu2_c0");
    EXPECT_STREQ(GetParamProperties(7006)->name, "OVR_BE_LT_enable");
    EXPECT_STREQ(GetParamProperties(30002)->name, "StatRecord_c0");
}

TEST_F(Dictionary, FindsNamesLikeAScan) {
    std::mt19937 random(1);
    for (int position = 1; position <= kParamCount; ++position) {
        const std::string name = randomCase(DefParamProperties[position].name, random);
        for (const std::string& asked : {name, mutated(name, random)})
            ASSERT_EQ(byName(asked), at(positionOfName(asked))) << asked;
    }
    for (const std::string& asked :
         {std::string("***"), std::string(5000, 'x'), std::string("\xc3\xa4\x80\xff")})
        EXPECT_EQ(byName(asked), nullptr) << asked;
    EXPECT_EQ(byName(""), GetParamPropertiesByOrder(1));
    EXPECT_EQ(GetParamPropertiesByName(nullptr), nullptr);
    EXPECT_EQ(byName("cycle_cnt_low")->id, 7000);
    EXPECT_EQ(byName("CONMAN_status")->id, 6094);
}

TEST_F(Dictionary, AbortsOnNegativeIds) {
    EXPECT_DEATH(GetParamProperties(-1), "ParamSystem/TALUX_Params.*GetParamProperties.*id>=0");
    EXPECT_DEATH(GetParamPropertiesByOrder(-7), "ParamSystem/TALUX_Params.*GetParamPropertiesByOrder.*id>=0");
}

constexpr VarLong kUntouched = 4711;

VarLong resolved(std::string symbol) {
    VarLong value = kUntouched;
    const int result = ResolveParamSymbol(symbol.data(), &value);
    EXPECT_EQ(result, value != kUntouched) << symbol;
    return value;
}

std::string lower(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::tolower(c));
    return text;
}

// The symbols that the rows ask for, in lower case. Of templates only the number is known.
std::map<std::string, int> expectedSymbols() {
    std::map<std::string, int> symbols = {{"var_null", 0}, {"var_tpl_null", 0}};
    for (int position = 1; position <= kParamCount; ++position) {
        const stParamProperties& row = DefParamProperties[position];
        if (*row.name == '\0') continue;
        const std::string name = (row.type == kTypeCommand ? "cmd_" : "var_") + lower(row.name);
        symbols.emplace(name, row.id); // the first element of an indexed parameter
        if (row.val_max_id > 0)
            symbols.emplace(name + "_" + std::to_string(row.id - symbols[name] + 1), row.id);
    }
    return symbols;
}

TEST_F(Dictionary, SymbolsFollowTheRows) {
    std::map<std::string, int> missing = expectedSymbols();
    EXPECT_STREQ(DefParamSymbols[0].name, "***");
    EXPECT_EQ(DefParamSymbols[0].value, 0);
    EXPECT_STREQ(DefParamSymbols[1].name, "VAR_NULL");
    EXPECT_STREQ(DefParamSymbols[2].name, "VAR_TPL_NULL");
    int nextTemplate = 18000;
    const stParamSymbol* symbol = DefParamSymbols + 1;
    for (; std::string(symbol->name) != "***"; ++symbol) {
        EXPECT_EQ(resolved(symbol->name), symbol->value);
        if (symbol->value >= 18000 && symbol->value < 19000) {
            EXPECT_EQ(std::string(symbol->name).substr(0, 8), "VAR_TPL_");
            EXPECT_EQ(symbol->value, nextTemplate++);
            continue;
        }
        const auto expected = missing.find(lower(symbol->name));
        ASSERT_NE(expected, missing.end()) << symbol->name;
        EXPECT_EQ(symbol->value, expected->second) << symbol->name;
        missing.erase(expected);
    }
    EXPECT_EQ(symbol->value, 0);
    EXPECT_EQ(nextTemplate, 18034);
    EXPECT_TRUE(missing.empty()) << missing.begin()->first;
}

TEST_F(Dictionary, ResolvesSymbols) {
    const std::map<std::string, VarLong> facts = {{"var_vmwr_2", 1001},
                                                  {"VAR_vMWR", 1000},
                                                  {"VAR_vMWR_1", 1000},
                                                  {"VAR_vMWR_96", 1095},
                                                  {"VAR_conman_error_1", 6341},
                                                  {"VAR_TPL_BAUDRATE", 18021},
                                                  {"VAR_TPL_DLG_Test", 18000},
                                                  {"CMD_VarSaveParams", 19001},
                                                  {"VAR_NULL", 0},
                                                  {"var_tpl_null", 0},
                                                  {"VAR_REL8", 6009},
                                                  {"***", kUntouched},
                                                  {"", kUntouched},
                                                  {"U1_prim", kUntouched},
                                                  {"VAR_", kUntouched},
                                                  {"VAR_VarSaveParams", kUntouched},
                                                  {"VAR_vMWR_97", kUntouched},
                                                  {"VAR_vMWR_0", kUntouched},
                                                  {"CMD_U1_prim", kUntouched},
                                                  {"TXT_Language", kUntouched}};
    for (const auto& [symbol, value] : facts)
        EXPECT_EQ(resolved(symbol), value) << symbol;
    VarLong value = kUntouched;
    EXPECT_EQ(ResolveParamSymbol(nullptr, &value), 0);
    std::mt19937 random(2);
    for (const stParamSymbol* symbol = DefParamSymbols + 1; std::string(symbol->name) != "***"; ++symbol) {
        EXPECT_EQ(resolved(randomCase(symbol->name, random)), symbol->value);
        EXPECT_EQ(resolved(std::string(symbol->name) + "?"), kUntouched);
    }
}

// The members of each record; an asterisk marks the longs, the others are floats.
constexpr const char* kRecordMembers[kRecordCount] = {
    "*TimeStamp *Cnt U0p U1p U2p U3p wU0 wU1 wU2 wU3 I0p I1p I2p I3p U0s U1s U2s U3s I0s I1s I2s I3s wUI0 "
    "wUI1 "
    "wUI2 wUI3 U12p_a U12p_re U12p_im U12p_w U23p_a U23p_re U23p_im U23p_w U31p_a U31p_re U31p_im U31p_w P0 "
    "P1 P2 "
    "P3 Q0 Q1 Q2 Q3 S0 S1 S2 S3 Pg Qg Sg cosphi f_grid Isc1 Isc2 Isc3 IscE",
    "*TimeStamp *Cnt U0p_250 I0p_250 wUI0_250 Y0_abs_250 U0p_fx1 I0p_fx1 wUI0_fx1 Y0_abs_fx1 U0p_fx2m "
    "I0p_fx2m "
    "wUI0_fx2m Y0_abs_fx2m U0p_fx2p I0p_fx2p wUI0_fx2p Y0_abs_fx2p U_BE1_ac U_BE1_dc U_BE2_ac U_BE2_dc "
    "*y_BE_01 "
    "*y_BE_LT_01 *y_BA_01 *y_BAF_01 *y_BAF_02 *y_BAF_03 *y_BAF_04",
    "*SysTime *dT *M3TimeStamp U0_max U1_max U2_max U3_max U0_min U1_min U2_min U3_min U0_av U1_av U2_av "
    "U3_av "
    "I0_max I1_max I2_max I3_max I0_av I1_av I2_av I3_av P0_max P1_max P2_max P3_max P0_min P1_min P2_min "
    "P3_min "
    "P0_av P1_av P2_av P3_av Q0_max Q1_max Q2_max Q3_max Q0_min Q1_min Q2_min Q3_min Q0_av Q1_av Q2_av Q3_av "
    "P_max "
    "P_min P_av Q_max Q_min Q_av S_max S_av U12_max U23_max U31_max *EvCnt_qu2"};

TEST(Records, MembersFollowEachOther) {
    const StructMemberProperties_t* member = ARR_StructMemberProperties;
    VarLong recordOffset = 0;
    for (int record = 0; record < kRecordCount; ++record) {
        EXPECT_EQ(ARR_StructOffset[record], recordOffset);
        EXPECT_EQ(ARR_MemberOffset[record], member - ARR_StructMemberProperties);
        std::istringstream names(kRecordMembers[record]);
        VarLong offset = 0;
        for (std::string name; names >> name; ++member, offset += 4) {
            const bool isLong = name[0] == '*';
            EXPECT_EQ(member->aszMemberName, name.substr(isLong ? 1 : 0));
            EXPECT_STREQ(member->szMemberType, isLong ? "long" : "float") << name;
            EXPECT_EQ(member->iMemberBitsize, 32) << name;
            EXPECT_EQ(member->lMemberOffset, offset) << name;
        }
        EXPECT_EQ(ARR_StructSize[record], offset);
        EXPECT_EQ(ARR_MemberCount[record], offset / 4);
        recordOffset += offset;
    }
    EXPECT_EQ(recordOffset, kStructSpaceSize);
    EXPECT_EQ(member - ARR_StructMemberProperties, kRecordMemberCount);
}

} // namespace
