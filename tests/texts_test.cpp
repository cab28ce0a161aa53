// The compiled-in texts, their look-ups in two languages and the TXT_ names.
#include "ParamSystem/TALUX_ParamStrings.h"

#include <algorithm>
#include <climits>
#include <random>
#include <span>
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
    static void SetUpTestSuite() {
        char path[] = "";
        VarInit(path);
        LoadDefParamProperties();
        ASSERT_EQ(LoadDefParamStrings(), 1);
    }
};
using TextsDeathTest = Texts;

std::span<const stParamText> texts() {
    const auto isSentinel = [](const stParamText& text) { return text.id == 0; };
    static const stParamText* const end = std::find_if(DefParamText + 1, std::end(DefParamText), isSentinel);
    return {DefParamText + 1, end};
}

// The row of a text in the compiled-in table, found the plain way; kNotFound is the sentinel.
int find(int from, int language, int id, int type, int group = kAny, int item = kAny) {
    for (int row = from; DefParamText[row].id != 0; ++row) {
        const stParamText& text = DefParamText[row];
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
2 18030 3008 0 1:OFF|PROG|Status|Error|U1_ok|U2_ok|U3_ok|user_BOF1|user_BOF2|user_BOF3|user_BOF4|user_BOF5|
user_BOF6|user_BOF7|user_BOF8|>Uearth|>Uearth_delay|Uerd_L1|Uerd_L2|Uerd_L3|Uerd_L1_d|Uerd_L2_d|Uerd_L3_d|
Sum_Uearth ->f|Sum_Uearth ->b|Prio_Uearth ->f|Prio_Uearth ->b|qu2 ->F|qu2 ->BB|qu2_CE ->F|qu2_CE ->BB|qui ->F|
qui ->BB|cos -> F|cos -> BB|sin -> F|sin -> BB|c_s -> F|c_s -> BB|H_250 ->F|H_250 ->BB|H_fx1 ->F|H_fx1 ->BB|
H_fx2+ ->F|H_fx2+ ->BB|H_fx2- ->F|H_fx2- ->BB|Pulse_50|Pulse_50c|Pulse_50c ->F|Pulse_50c ->BB|Pulse50_LED|
Puls_HPCI_50|Puls_HPCI_50 ->F|Puls_HPCI_50 ->BB|Puls_HPCI_fx|>I|>I1|>I2|>I3|>>I|>>I1|>>I2|>>I3|>I ->F|>I1 ->F|
>I2 ->F|>I3 ->F|>>I ->F|>>I1 ->F|>>I2 ->F|>>I3 ->F|>I BB|>I1 BB|>I2 BB|>I3 BB|>>I BB|>>I1 BB|>>I2 BB|>>I3 BB|
>Ferro-res|50Hz -df|50Hz +df|50Hz n.n.|DynAdm ->FD|DynAdm ->BB|I_ScE>|I_ScE> ->FD|I_ScE> ->BB|NC|NC|NC|NC|NC|
NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC|NC
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

// All six look-ups against plain searches of the compiled-in table, and the cursor, which anybody may set.
TEST_F(Texts, LookUpsAgreeWithPlainSearches) {
    std::mt19937 random(1);
    const auto upTo = [&random](int most) {
        return static_cast<int>(random() % static_cast<unsigned>(most + 1));
    };
    const int cursors[] = {INT_MIN, -1, 0, DefParamTextCount, kParamTextRows - 1, kParamTextRows, INT_MAX};
    int cursor = iLastEntry;
    for (int round = 0; round < 3000; ++round) {
        if (upTo(19) == 0) cursor = iLastEntry = cursors[upTo(6)];
        const int language = upTo(4) - 1, current = language == kGerman ? kGerman : kEnglish;
        VarSetEnumValue(kLanguage, static_cast<short>(language));
        VarSetGlobalEnumValue(kLanguage, static_cast<short>(3 - language)); // the temporary space counts
        const stParamText& some = texts()[random() % texts().size()];
        const int id = upTo(9) == 0 ? 99999 : some.id, item = some.id_item + upTo(1);
        const int type = upTo(4) == 0 ? kTextTitle + upTo(6) : some.type;
        const int group = upTo(4) == 0 ? upTo(4) - 1 : some.id_group;

        const int which = upTo(5);
        const stParamText* const found = lookUp(which, id, type, group, item);
        const bool isNext = which % 3 == 2, moves = which % 3 != 0;
        const int g = which < 3 ? kAny : group, i = which == 3 ? item : kAny;
        const int from = !isNext ? 1 : cursor < 0 || cursor >= DefParamTextCount ? kNotFound : cursor + 1;
        int expected = from == kNotFound ? kNotFound : find(from, current, id, type, g, i);
        if (expected == kNotFound && !isNext) expected = find(1, kEnglish, id, type, g, i);
        if (moves && expected != kNotFound) cursor = expected;
        ASSERT_EQ(iLastEntry, cursor) << round;
        ASSERT_EQ(found->id, DefParamText[expected].id) << round;
        ASSERT_STREQ(found->txt, DefParamText[expected].txt) << round;
    }
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
