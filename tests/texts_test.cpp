// The compiled-in texts, their look-ups in two languages and the TXT_ names.
#include "ParamSystem/TALUX_ParamStrings.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <random>
#include <sstream>
#include <string_view>

#include "ParamSystem/TALUX_Var.h"
#include "tests/Messages.h"

namespace {

constexpr int kLanguage = 10000, kAny = INT_MIN, kNotFound = 0;

// Before texts are loaded none is found: asked before any test runs.
const bool emptyAtFirst = GetParamString(kLanguage, kTextTitle)->id == 0 &&
                          GetFirstParamStringInGroup(18021, 0, kTextItem)->txt == nullptr;

struct Texts : testing::Test {
    void SetUp() override {
        char path[] = "";
        VarInit(path);
        LoadDefParamProperties();
        ASSERT_EQ(LoadDefParamStrings(), 1);
    }
    void TearDown() override { std::fill(ParamText + 1, std::end(ParamText), stParamText{}); }
};
using TextsDeathTest = Texts;

// The row of a text in the working table, found the plain way; kNotFound is the sentinel.
int find(int from, int language, int id, int type, int group = kAny, int item = kAny) {
    for (int row = from; row < kParamTextRows && ParamText[row].id != 0; ++row) {
        const stParamText& text = ParamText[row];
        if (text.id == id && text.language == language && text.type == type &&
            (group == kAny || text.id_group == group) && (item == kAny || text.id_item == item))
            return row;
    }
    return kNotFound;
}

// All texts of a group in the current language on one line: the number of the first, the texts with "|"
// between them and "~" for a line break. A number that does not follow the one before is in brackets.
std::string list(int id, int group, int type) {
    std::string joined;
    int expected = kAny;
    for (const stParamText* text = GetFirstParamStringInGroup(id, group, type); text->id != 0;
         text = GetNextParamStringInGroup(id, group, type)) {
        const std::string number = std::to_string(text->id_item);
        joined += joined.empty() ? number + ":" : text->id_item == expected ? "|" : "|(" + number + ")";
        joined += text->txt;
        expected = text->id_item + 1;
    }
    std::replace(joined.begin(), joined.end(), '\n', '~');
    return joined;
}

long resolve(std::string name) {
    VarLong id = -1;
    return ResolveParamTextSymbol(name.data(), &id) == 1 ? id : -1;
}

const stParamText* lookUp(int which, int id, int type, int group, int item) {
    return which == 0   ? GetParamString(id, type)
           : which == 1 ? GetFirstParamString(id, type)
           : which == 2 ? GetNextParamString(id, type)
           : which == 3 ? GetParamStringInGroup(id, group, item, type)
           : which == 4 ? GetFirstParamStringInGroup(id, group, type)
                        : GetNextParamStringInGroup(id, group, type);
}

} // namespace

TEST_F(Texts, AreFoundOnceTheyAreLoadedOnly) {
    EXPECT_TRUE(emptyAtFirst);
    for (const stParamText& sentinel : {DefParamText[0], DefParamText[DefParamTextCount - 1]})
        EXPECT_TRUE(sentinel.id == 0 && sentinel.language == 0 && sentinel.type == 0 &&
                    std::string_view(sentinel.txt) == "***");
}

// Every id with texts has them in one piece and one name, in the same order.
TEST_F(Texts, HaveNames) {
    std::istringstream ids(
        "txt_tpl_baudrate 18021 TXT_TPL_DLG_Test 18000 TXT_NULL 0 TXT_TPL_NULL 0 "
        "TXT_ETH0_IP 20000 TXT_WLAN0_MASK 21002 TXT_ETH1_GATEWAY 22001 TXT_ETH1_GATEWAYS -1 "
        "TXT_cycle_cnt_low 7000 TXT_OVR_BE_enable 7005 TXT_DisplayLevel 7006 *** -1 "
        "TXT_conman_status 6094 TXT_conman_status_1 -1 TXT_EvCnt_qu2 -1 "
        "TXT_OVR_BE_LT_enable -1 TXT_VarSaveParams 19001");
    long id = resolve("");
    EXPECT_EQ(id, -1);
    for (std::string name; ids >> name >> id;)
        EXPECT_EQ(resolve(name), id) << name;
    const stParamText* text = DefParamText + 1;
    const stParamSymbol* symbol = DefParamTextSymbols + 3;
    for (; symbol->value != 0; ++symbol) {
        EXPECT_EQ(resolve(symbol->name), symbol->value);
        EXPECT_EQ(text->id, symbol->value) << symbol->name;
        while (text->id == symbol->value)
            ++text;
    }
    EXPECT_EQ(text->id, 0);
    EXPECT_STREQ(symbol->name, "***");
}

// Some of the texts that the pages of docs/parameters show, of each kind: language, id, type, group, texts.
TEST_F(Texts, ReadAsPrinted) {
    std::istringstream printed(R"(1 10000 3002 0 0:Sprache
2 10000 3002 0 0:Language
0 10000 3002 0 0:Language
7 10000 3002 0 0:Language
1 10000 3008 0 1:Deutsch|Englisch
2 10000 3008 0 1:German|English
2 2000 3003 0 0:Voltage U1_primary
1 2000 3004 0 0:kV
1 18023 3008 0 1:keine|ungerade|gerade
2 18023 3008 0 1:none|odd|even
2 18005 3002 0 0:Confirmation
2 18005 3007 0 0:Parameter|Messages
1 18005 3008 0 1:ja|nein
2 18005 3008 0 1:yes|no
2 19001 3007 0 0:Args|Messages|Errors
1 19001 3008 0 1:VarSaveParams
2 19001 3008 1 1:Please wait...
2 19001 3008 2 0:Error during~transfer|Successful~saved
2 19007 3008 2 1:Disc full|Not enough~space|Transfer~successful|No USB stick|Error during~transfer (CRC)|
Timeout|No write permission~on USB
)");
    short language = 0;
    for (int id = 0, type = 0, group = 0; printed >> language >> id >> type >> group;) {
        VarSetEnumValue(kLanguage, language);
        std::string expected;
        for (std::string line; expected.empty() || expected.back() == '|'; expected += line)
            std::getline(printed >> std::ws, line);
        EXPECT_EQ(list(id, group, type), expected) << id << " in language " << language;
    }
    std::string inputs = "1:OFF";
    for (int n = 1; n <= 6 + 96; ++n)
        inputs += n <= 6 ? "|BI" + std::to_string(n) : "|virt_BI" + std::to_string(n - 6);
    EXPECT_EQ(list(18028, 0, kTextItem), inputs);
}

// All six look-ups against plain searches of the working table, into which a program writes, and the cursor,
// which anybody may set.
TEST_F(Texts, LookUpsAgreeWithPlainSearches) {
    std::mt19937 random(1);
    const auto upTo = [&random](int most) {
        return static_cast<int>(random() % static_cast<unsigned>(most + 1));
    };
    const int cursors[] = {INT_MIN, -1, 0, DefParamTextCount, kParamTextRows - 1, kParamTextRows, INT_MAX};
    int cursor = iLastEntry, rows = 0;
    while (ParamText[rows + 1].id != 0)
        ++rows;
    const int compiledIn = rows;
    stParamText some = ParamText[1];
    for (int round = 0; round < 3000; ++round) {
        if (upTo(19) == 0) cursor = iLastEntry = cursors[upTo(6)];
        const int language = upTo(4) - 1, current = language == kGerman ? kGerman : kEnglish;
        VarSetEnumValue(kLanguage, static_cast<short>(language));
        VarSetGlobalEnumValue(kLanguage, static_cast<short>(3 - language)); // the temporary space counts
        if (upTo(1) == 0) some = ParamText[1 + upTo(rows - 1)];
        stParamText& written = ParamText[1 + upTo(rows - 1)];
        if (round % 3 == 0) written.txt = "written";
        // Between others of its id it would hide those after it.
        const bool isAtEdge = written.id != (&written)[-1].id || written.id != (&written)[1].id;
        if (round % 10 == 0 && isAtEdge) written.id = 50000 + upTo(9);
        if (round % 20 == 1 && rows < kParamTextRows - 1) {
            ParamText[++rows] = some;
            ParamText[rows].txt = "added";
        }
        const int id = upTo(9) == 0 ? 99999 : some.id, item = some.id_item + upTo(1);
        const int type = upTo(4) == 0 ? kTextTitle + upTo(6) : some.type;
        const int group = upTo(4) == 0 ? upTo(4) - 1 : some.id_group;

        const int which = upTo(5);
        const stParamText* const found = lookUp(which, id, type, group, item);
        const bool isNext = which % 3 == 2, moves = which % 3 != 0;
        const int g = which < 3 ? kAny : group, i = which == 3 ? item : kAny;
        const int from = !isNext ? 1 : cursor < 0 || cursor >= kParamTextRows ? kParamTextRows : cursor + 1;
        int expected = find(from, current, id, type, g, i);
        if (expected == kNotFound && !isNext) expected = find(1, kEnglish, id, type, g, i);
        if (moves && expected != kNotFound) cursor = expected;
        ASSERT_EQ(iLastEntry, cursor) << round;
        ASSERT_EQ(found, ParamText + expected) << round;
    }
    LoadDefParamStrings();
    EXPECT_EQ(
        std::memcmp(ParamText, DefParamText, sizeof *ParamText * static_cast<std::size_t>(compiledIn + 1)),
        0);
    EXPECT_STREQ(ParamText[rows].txt, "added") << "rows of the program stay";
    ParamText[1].id = 0;
    EXPECT_EQ(GetParamString(kLanguage, kTextTitle), ParamText) << "no row is in use";
}

TEST_F(TextsDeathTest, AnIdBelowOneAborts) {
    const std::string names[] = {"GetParamString(int, int)",
                                 "GetFirstParamString(int, int)",
                                 "GetNextParamString(int, int)",
                                 "GetParamStringInGroup(int, int, int, int)",
                                 "GetFirstParamStringInGroup(int, int, int)",
                                 "GetNextParamStringInGroup(int, int, int)"};
    for (int which = 0; which < 6; ++which)
        for (int id : {0, INT_MIN})
            EXPECT_DEATH(lookUp(which, id, kTextTitle, 0, 0),
                         talux_test::startingWith("ParamSystem/TALUX_ParamStrings: const stParamText* " +
                                                  names[which] + ": Assertion `id>0' failed."));
}
