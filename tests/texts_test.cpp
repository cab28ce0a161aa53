// The compiled-in texts, their look-ups in two languages and the TXT_ names.
#include "ParamSystem/TALUX_ParamStrings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "ParamSystem/TALUX_Var.h"

namespace {

constexpr int kLanguage = 10000;
constexpr int kNotFound = -1;

class Texts : public testing::Test {
protected:
    static void SetUpTestSuite() {
        char path[] = "";
        VarInit(path);
    }
    void SetUp() override {
        LoadDefParamProperties();
        LoadDefParamStrings();
        VarSetEnumValue(kLanguage, kGerman);
    }
};
using TextsDeathTest = Texts;

std::span<const stParamText> table() {
    return {DefParamText, static_cast<std::size_t>(DefParamTextCount)};
}
std::span<const stParamText> texts() {
    return table().subspan(1, table().size() - 2);
}

std::string describe(const stParamText& text) {
    return std::to_string(text.id) + " language " + std::to_string(text.language) + " type " +
           std::to_string(text.type) + " item " + std::to_string(text.id_group) + "/" +
           std::to_string(text.id_item) + ": " + text.txt;
}

// Describes the texts for which `wrong` holds.
template <typename Wrong>
std::vector<std::string> allThat(Wrong wrong) {
    std::vector<std::string> found;
    for (const stParamText& text : texts())
        if (wrong(text)) found.push_back(describe(text));
    return found;
}

// Characters of a valid UTF-8 text, or -1.
int countCharacters(std::string_view text) {
    int characters = 0;
    for (std::size_t i = 0; i < text.size(); ++characters) {
        const auto head = static_cast<unsigned char>(text[i]);
        const std::size_t length = head < 0x80 ? 1 : head < 0xC2 ? 0 : head < 0xE0 ? 2 : head < 0xF0 ? 3 : 0;
        if (length == 0 || i + length > text.size()) return -1;
        for (std::size_t k = 1; k < length; ++k)
            if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return -1;
        i += length;
    }
    return characters;
}

// The row of a text in the compiled-in table, found the plain way.
int find(int from, int language, int id, int type, int group = -1, int item = -1) {
    for (int row = from; DefParamText[row].id != 0; ++row) {
        const stParamText& text = DefParamText[row];
        if (text.id == id && text.language == language && text.type == type &&
            (group == -1 || text.id_group == group) && (item == -1 || text.id_item == item))
            return row;
    }
    return kNotFound;
}

bool has(int language, int id, int type) {
    return find(1, language, id, type) != kNotFound;
}

// The texts of a group in the current language.
std::vector<std::string> list(int id, int group, int type) {
    std::vector<std::string> found;
    for (const stParamText* text = GetFirstParamStringInGroup(id, group, type);
         std::string_view(text->txt) != "***"; text = GetNextParamStringInGroup(id, group, type))
        found.emplace_back(text->txt);
    return found;
}

long resolve(std::string name) {
    VarLong id = -1;
    return ResolveParamTextSymbol(name.data(), &id) == 1 ? id : kNotFound;
}

// Where the texts of a parameter hang.
int textIdOf(const stParamProperties& row) {
    static const std::map<int, int> kFirst{
        {kTypeIpAddress, 20000 - 16029}, {kTypeIpMask, 21000 - 16032}, {kTypeIpGateway, 22000 - 16035}};
    const auto shift = kFirst.find(row.type);
    return shift == kFirst.end() ? row.id : row.id + shift->second;
}

bool isTemplate(const stParamProperties& row) {
    return row.id >= 18000 && row.id <= 18033;
}

} // namespace

TEST_F(Texts, AreWellFormed) {
    for (const stParamText& sentinel : {table().front(), table().back()}) {
        EXPECT_EQ(std::tuple(sentinel.id, sentinel.language, sentinel.type), std::tuple(0, 0, 0));
        EXPECT_STREQ(sentinel.txt, "***");
    }
    EXPECT_LE(DefParamTextCount, kParamTextRows - 200);

    std::set<std::tuple<int, int, int, int, int>> met;
    EXPECT_THAT(allThat([&met](const stParamText& t) {
                    return !met.insert({t.id, t.language, t.type, t.id_group, t.id_item}).second;
                }),
                testing::IsEmpty())
        << "twice";
    EXPECT_THAT(allThat([](const stParamText& t) {
                    const std::string_view text = t.txt;
                    constexpr std::string_view kBlanks = " \t\n";
                    return countCharacters(text) < 1 || kBlanks.find(text.front()) != text.npos ||
                           kBlanks.find(text.back()) != text.npos || text.find("  ") != text.npos ||
                           text.find_first_of("{}|\t\r") != text.npos;
                }),
                testing::IsEmpty())
        << "no clean UTF-8 text";
    EXPECT_THAT(
        allThat([](const stParamText& t) { return t.type == kTextTitle && countCharacters(t.txt) > 24; }),
        testing::IsEmpty())
        << "titles longer than a line of the display";
    EXPECT_THAT(allThat([](const stParamText& t) {
                    return std::any_of(std::begin(t.visibility), std::end(t.visibility),
                                       [](unsigned long long mask) { return mask != 0; });
                }),
                testing::IsEmpty())
        << "masks";
    EXPECT_THAT(allThat([](const stParamText& t) {
                    const bool grouped = t.type == kTextItem;
                    return t.language < kGerman || t.language > kEnglish || t.id_group < 0 ||
                           t.id_group > 2 || (!grouped && t.id_group != 0) ||
                           (!grouped && t.type != kTextGroup && t.id_item != 0);
                }),
                testing::IsEmpty())
        << "language, group or item";
}

// Everything but units and what commands call themselves is said in both languages, and a group that has
// texts has a heading.
TEST_F(Texts, SpeakBothLanguages) {
    EXPECT_THAT(allThat([](const stParamText& t) {
                    if (t.type == kTextUnit) return t.language != kEnglish;
                    const bool ownName =
                        t.id >= 19000 && t.id <= 19020 && t.type == kTextItem && t.id_group == 0;
                    return !ownName && find(1, kGerman + kEnglish - t.language, t.id, t.type, t.id_group,
                                            t.id_item) == kNotFound;
                }),
                testing::IsEmpty());
    EXPECT_THAT(allThat([](const stParamText& t) {
                    const bool headed = (t.id >= 18000 && t.id <= 18020) || (t.id >= 19000 && t.id <= 19020);
                    return headed && t.type == kTextItem &&
                           find(1, t.language, t.id, kTextGroup, 0, t.id_group) == kNotFound;
                }),
                testing::IsEmpty());
}

TEST_F(Texts, TitleEveryParameterAndTemplate) {
    std::vector<std::string> untitled, undescribed, unnamed;
    for (int position = 1; position <= kParamCount; ++position) {
        const stParamProperties& row = DefParamProperties[position];
        const int id = textIdOf(row);
        const std::string name = isTemplate(row) ? std::to_string(row.id) : row.name;
        if (row.val_max_id > 0 && DefParamProperties[position - 1].name == row.name)
            continue; // one text for all
        if (name.starts_with("EvCnt_qu2") || name == "OVR_BE_LT_enable")
            continue; // another name has their id
        for (int language : {kGerman, kEnglish}) {
            if (!has(language, id, kTextTitle)) untitled.push_back(name);
            if (!isTemplate(row) && row.is_volatile == 0 && !has(language, id, kTextDescription) &&
                !name.starts_with("stat_"))
                undescribed.push_back(name);
        }
        if (!isTemplate(row) && resolve("txt_" + name) != id) unnamed.push_back(name);
    }
    EXPECT_THAT(untitled, testing::IsEmpty());
    EXPECT_THAT(undescribed, testing::IsEmpty());
    EXPECT_THAT(unnamed, testing::IsEmpty());
}

// A title that only repeats the name tells nothing; a few names are words.
TEST_F(Texts, SayMoreThanTheName) {
    std::vector<std::string> repeated;
    for (int position = 1; position <= kParamCount; ++position) {
        const stParamProperties& row = DefParamProperties[position];
        const std::string_view name = row.name;
        for (int language : {kGerman, kEnglish}) {
            const int title = find(1, language, textIdOf(row), kTextTitle);
            const int description = find(1, language, textIdOf(row), kTextDescription);
            if (title == kNotFound) continue;
            if (name.find('_') != name.npos && name == DefParamText[title].txt) repeated.emplace_back(name);
            if (description != kNotFound &&
                std::string_view(DefParamText[description].txt) == DefParamText[title].txt)
                repeated.emplace_back(name);
        }
    }
    EXPECT_THAT(repeated, testing::IsEmpty());
}

// As many choices as the enum has; two lists leave the last functions of their range without a text.
TEST_F(Texts, NameEveryChoice) {
    const std::map<int, std::size_t> kShorter{{18031, 10}, {18032, 13}};
    std::vector<std::string> wrong;
    for (int position = 1; position <= kParamCount; ++position) {
        const stParamProperties& row = DefParamProperties[position];
        if (row.type != kTypeEnum || row.id_template != 0) continue;
        const auto choices = static_cast<std::size_t>(
            std::count_if(texts().begin(), texts().end(), [&row](const stParamText& t) {
                return t.id == row.id && t.type == kTextItem && t.language == kGerman && t.id_group == 0;
            }));
        const auto shorter = kShorter.find(row.id);
        const auto expected =
            shorter == kShorter.end() ? static_cast<std::size_t>(row.val_max) : shorter->second;
        if (choices != 0 && choices != expected)
            wrong.push_back(std::to_string(row.id) + " " + row.name + ": " + std::to_string(choices));
    }
    EXPECT_THAT(wrong, testing::IsEmpty());
}

// The texts that other programs and manuals rely on.
TEST_F(Texts, ReadAsPrinted) {
    using List = std::vector<std::string>;
    EXPECT_STREQ(GetParamString(18023, kTextTitle)->txt, "Parität");
    EXPECT_EQ(list(18023, 0, kTextItem), (List{"keine", "ungerade", "gerade"}));
    EXPECT_EQ(list(kLanguage, 0, kTextItem), (List{"Deutsch", "Englisch"}));
    EXPECT_EQ(list(18005, 0, kTextItem), (List{"ja", "nein"}));
    EXPECT_EQ(list(18021, 0, kTextItem), (List{"9600", "19200", "38400", "57600", "115200"}));
    EXPECT_STREQ(GetParamString(2000, kTextUnit)->txt, "kV"); // English only

    VarSetEnumValue(kLanguage, kEnglish);
    EXPECT_STREQ(GetParamString(2000, kTextDescription)->txt, "Voltage U1_primary");
    EXPECT_EQ(list(18021, 0, kTextItem), (List{"9600", "19200", "38400", "57600", "115200"}));
    EXPECT_EQ(list(18022, 0, kTextItem), (List{"7", "8"}));
    EXPECT_EQ(list(18023, 0, kTextItem), (List{"none", "odd", "even"}));
    EXPECT_EQ(list(18024, 0, kTextItem), (List{"1", "1.5", "2"}));
    EXPECT_EQ(list(18025, 0, kTextItem), (List{"none", "Xon/Xoff", "RTS/CTS"}));
    EXPECT_EQ(list(18026, 0, kTextItem), (List{"Off", "On"}));
    EXPECT_EQ(list(18029, 0, kTextItem), (List{"+", "-"}));
    EXPECT_EQ(list(18033, 0, kTextItem), (List{"+", "-"}));
    EXPECT_EQ(list(kLanguage, 0, kTextItem), (List{"German", "English"}));
    EXPECT_EQ(list(18031, 0, kTextItem), (List{"AUS", "qu2 - Transient", "qu2 + CE", "qui", "ov5", "ovx",
                                               "ovx1", "cos", "sin", "pulse50"}));
    EXPECT_EQ(list(18032, 0, kTextItem),
              (List{"Voltage secondary", "Current secondary", "Angle", "Voltage primary", "Current primary",
                    "Voltage Ph-Ph", "Activ power prim.", "Reactiv power prim.", "Apparent power prim.",
                    "PQS prim.", "5th harm. prim.", "Frequency fx1", "Voltage DI1,2"}));
    EXPECT_EQ(list(19007, 2, kTextItem),
              (List{"Disc full", "Not enough\nspace", "Transfer\nsuccessful", "No USB stick",
                    "Error during\ntransfer (CRC)", "Timeout", "No write permission\non USB"}));
    EXPECT_STREQ(GetParamStringInGroup(19001, 2, 0, kTextItem)->txt, "Error during\ntransfer");
    EXPECT_STREQ(GetParamStringInGroup(19001, 2, 1, kTextItem)->txt, "Successful\nsaved");
    EXPECT_EQ(list(19001, 0, kTextGroup), (List{"Args", "Messages", "Errors"}));
    EXPECT_EQ(list(18005, 0, kTextGroup), (List{"Parameter", "Messages"}));
    EXPECT_EQ(list(18005, 0, kTextItem), (List{"yes", "no"}));
    EXPECT_STREQ(GetParamString(18005, kTextTitle)->txt, "Confirmation");
    VarSetEnumValue(kLanguage, kGerman);
    EXPECT_EQ(list(19001, 0, kTextItem), List{"VarSaveParams"}); // its own name, in English only

    const List inputs = list(18028, 0, kTextItem);
    const List outputs = list(18030, 0, kTextItem);
    ASSERT_EQ(inputs.size(), 103u);
    ASSERT_EQ(outputs.size(), 128u);
    const auto english = [](int id, int item) {
        return DefParamText[find(1, kEnglish, id, kTextItem, 0, item)].txt;
    };
    for (const auto& [item, text] :
         std::map<int, const char*>{{1, "OFF"}, {2, "BI1"}, {7, "BI6"}, {8, "virt_BI1"}, {103, "virt_BI96"}})
        EXPECT_STREQ(english(18028, item), text);
    for (const auto& [item, text] : std::map<int, const char*>{{1, "OFF"},
                                                               {4, "Error"},
                                                               {15, "user_BOF8"},
                                                               {16, ">Uearth"},
                                                               {17, ">Uearth_delay"},
                                                               {23, "Uerd_L3_d"},
                                                               {27, "Prio_Uearth ->b"},
                                                               {33, "qui ->BB"},
                                                               {34, "cos -> F"},
                                                               {39, "c_s -> BB"},
                                                               {47, "H_fx2- ->BB"},
                                                               {52, "Pulse50_LED"},
                                                               {56, "Puls_HPCI_fx"},
                                                               {64, ">>I3"},
                                                               {72, ">>I3 ->F"},
                                                               {73, ">I BB"},
                                                               {81, ">Ferro-res"},
                                                               {84, "50Hz n.n."},
                                                               {86, "DynAdm ->BB"},
                                                               {87, "I_ScE>"},
                                                               {89, "I_ScE> ->BB"},
                                                               {90, "NC"},
                                                               {128, "NC"}})
        EXPECT_STREQ(english(18030, item), text);
}

TEST_F(Texts, FollowTheLanguage) {
    for (const auto& [language, title] : std::map<short, const char*>{
             {1, "Sprache"}, {2, "Language"}, {0, "Language"}, {7, "Language"}, {-1, "Language"}}) {
        VarSetEnumValue(kLanguage, language);
        VarSetGlobalEnumValue(kLanguage, static_cast<short>(3 - language)); // the temporary space counts
        EXPECT_STREQ(GetParamString(kLanguage, kTextTitle)->txt, title) << language;
    }
}

// All six look-ups against plain searches of the compiled-in table, cursor included.
TEST_F(Texts, LookUpsAgreeWithPlainSearches) {
    std::mt19937 random(1);
    const auto upTo = [&random](int most) {
        return static_cast<int>(random() % static_cast<unsigned>(most + 1));
    };
    int cursor = iLastEntry;
    for (int round = 0; round < 3000; ++round) {
        const int language = upTo(3);
        const int current = language == kGerman ? kGerman : kEnglish;
        VarSetEnumValue(kLanguage, static_cast<short>(language));
        const stParamText& some = texts()[random() % texts().size()];
        const int id = upTo(9) == 0 ? 99999 : some.id;
        const int type = upTo(4) == 0 ? kTextTitle + upTo(6) : some.type;
        const int group = upTo(4) == 0 ? upTo(4) - 1 : some.id_group, item = some.id_item + upTo(1);
        const auto search = [&](int g, int i) {
            // -1 stands for any group in the plain search, and for no group in the look-up
            if (g == -1) return kNotFound;
            const int row = find(1, current, id, type, g, i);
            return row != kNotFound ? row : find(1, kEnglish, id, type, g, i);
        };
        const auto searchAny = [&] {
            const int row = find(1, current, id, type);
            return row != kNotFound ? row : find(1, kEnglish, id, type);
        };
        int expected = kNotFound;
        const stParamText* found = nullptr;
        bool moves = true;
        switch (upTo(5)) {
        case 0:
            found = GetParamString(id, type), expected = searchAny(), moves = false;
            break;
        case 1:
            found = GetFirstParamString(id, type), expected = searchAny();
            break;
        case 2:
            found = GetNextParamString(id, type), expected = find(cursor + 1, current, id, type);
            break;
        case 3:
            found = GetParamStringInGroup(id, group, item, type), expected = search(group, item),
            moves = false;
            break;
        case 4:
            found = GetFirstParamStringInGroup(id, group, type), expected = search(group, -1);
            break;
        default:
            found = GetNextParamStringInGroup(id, group, type);
            expected = group == -1 ? kNotFound : find(cursor + 1, current, id, type, group);
        }
        if (moves && expected != kNotFound) cursor = expected;
        ASSERT_EQ(iLastEntry, cursor) << round;
        ASSERT_STREQ(found->txt, expected == kNotFound ? "***" : DefParamText[expected].txt) << round;
    }
}

TEST_F(Texts, ACursorAnywhereIsHarmless) {
    for (int cursor :
         {-2'000'000'000, -1, DefParamTextCount, kParamTextRows - 1, kParamTextRows, 2'147'483'647}) {
        iLastEntry = cursor;
        EXPECT_STREQ(GetNextParamString(99999, kTextTitle)->txt, "***");
        EXPECT_EQ(iLastEntry, cursor);
    }
}

TEST_F(Texts, HaveNames) {
    const std::map<std::string, long> kIds{{"txt_tpl_baudrate", 18021},
                                           {"TXT_TPL_DLG_Test", 18000},
                                           {"TXT_NULL", 0},
                                           {"TXT_TPL_NULL", 0},
                                           {"TXT_ETH0_IP", 20000},
                                           {"TXT_ETH1_GATEWAY", 22001},
                                           {"TXT_WLAN0_MASK", 21002},
                                           {"TXT_cycle_cnt_low", 7000},
                                           {"TXT_OVR_BE_enable", 7005},
                                           {"TXT_DisplayLevel", 7006},
                                           {"TXT_conman_status", 6094},
                                           {"TXT_VarSaveParams", 19001},
                                           {"TXT_EvCnt_qu2", -1},
                                           {"TXT_OVR_BE_LT_enable", -1},
                                           {"TXT_conman_status_1", -1},
                                           {"***", -1},
                                           {"", -1},
                                           {"TXT_ETH1_GATEWAYS", -1}};
    for (const auto& [name, id] : kIds)
        EXPECT_EQ(resolve(name), id) << name;

    // Every name leads to the id that it stands for, and that id has texts.
    std::vector<std::string> lost;
    const stParamSymbol* symbol = DefParamTextSymbols;
    EXPECT_STREQ(symbol->name, "***");
    for (++symbol; std::string_view(symbol->name) != "***"; ++symbol)
        if (resolve(symbol->name) != symbol->value ||
            (symbol->value != 0 && !has(kGerman, symbol->value, kTextTitle)))
            lost.emplace_back(symbol->name);
    EXPECT_THAT(lost, testing::IsEmpty());
}

TEST_F(TextsDeathTest, AnIdBelowOneAborts) {
    const auto abortsAs = [](const char* function, auto lookUp) {
        for (int id : {0, -1, -2'147'483'647})
            EXPECT_DEATH(lookUp(id), testing::HasSubstr(std::string("ParamSystem/TALUX_ParamStrings: ") +
                                                        function + ": Assertion `id>0' failed."));
    };
    abortsAs("const stParamText* GetParamString(int, int)", [](int id) { GetParamString(id, 3002); });
    abortsAs("const stParamText* GetFirstParamString(int, int)",
             [](int id) { GetFirstParamString(id, 3002); });
    abortsAs("const stParamText* GetNextParamString(int, int)", [](int id) { GetNextParamString(id, 3002); });
    abortsAs("const stParamText* GetParamStringInGroup(int, int, int, int)",
             [](int id) { GetParamStringInGroup(id, 0, 0, 3002); });
    abortsAs("const stParamText* GetFirstParamStringInGroup(int, int, int)",
             [](int id) { GetFirstParamStringInGroup(id, 0, 3002); });
    abortsAs("const stParamText* GetNextParamStringInGroup(int, int, int)",
             [](int id) { GetNextParamStringInGroup(id, 0, 3002); });
}
