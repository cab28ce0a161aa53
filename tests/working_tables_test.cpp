// What programs write into the working tables of properties and texts applies to look-ups, language, commit
// and files.
#include <strings.h>

#include "ParamSystem/TALUX_ParamStrings.h"
#include "tests/Store.h"

namespace {

using namespace talux_test;

constexpr int kRateId = 7214, kListId = 1000; // a long that no parameter has; the first of 96 doubles

struct WorkingTables : InDirectory {
    void SetUp() override {
        InDirectory::SetUp();
        LoadDefParamStrings();
        while (DefParamProperties[firstSpare].id != 0)
            ++firstSpare;
        spare = firstSpare;
        channel = row("channel");
    }
    // Other tests find the tables as they are after loading.
    void TearDown() override {
        std::fill(ParamProperties + firstSpare, ParamProperties + spare, stParamProperties{});
        std::fill(ParamText + 1, std::end(ParamText), stParamText{});
        InDirectory::TearDown();
    }

    stParamProperties& row(const char* name) { return ParamProperties[rowOf(name) - ParamProperties]; }
    // A row like that of `channel`.
    stParamProperties& append(int id, const char* name) {
        ParamProperties[spare] = channel;
        ParamProperties[spare].id = id;
        ParamProperties[spare].name = name;
        return ParamProperties[spare++];
    }
    std::string saved(int save(char*)) const {
        std::string file = directory / "file.ini";
        EXPECT_EQ(save(file.data()), 1);
        return contents(file);
    }

    int firstSpare = 1, spare = 1;
    stParamProperties channel{};
};

// The first row in table order that fits, before the first with id 0.
template <class Fits>
const stParamProperties* scan(Fits fits) {
    const stParamProperties* row = ParamProperties + 1;
    while (row->id != 0 && !fits(*row))
        ++row;
    return row->id != 0 ? row : nullptr;
}

TEST_F(WorkingTables, LookUpsFindWhatWasChanged) {
    Random random;
    std::vector<std::string> names(1000);
    for (int round = 0; round < 1000; ++round) {
        stParamProperties& some = ParamProperties[1 + random.below(spare - 1)];
        const stParamProperties before = some;
        std::string& name = names[static_cast<std::size_t>(round)] = "new_" + std::to_string(round);
        some.id = random.below(2) != 0 ? 40000 + round : some.id;
        some.name = random.below(2) != 0 ? name.data() : some.name;
        if (round % 20 == 0 && round / 20 < 48) append(50000 + round, name.data());
        for (const int id : {before.id, some.id, 50000 + round})
            ASSERT_EQ(GetParamProperties(id), scan([id](const auto& row) { return row.id == id; })) << id;
        for (std::string asked : {std::string(before.name), name, "NEW_" + std::to_string(round)}) {
            const auto fits = [&](const auto& row) { return strcasecmp(row.name, asked.c_str()) == 0; };
            ASSERT_EQ(GetParamPropertiesByName(asked.data()), scan(fits)) << asked;
        }
    }
    LoadDefParamProperties();
    EXPECT_STREQ(GetParamProperties(40000) ? "found" : "reloaded", "reloaded");
    EXPECT_EQ(GetParamProperties(50000), GetParamPropertiesByOrder(spare - 48)) << "spare rows stay";
}

TEST_F(WorkingTables, EndAtTheFirstRowWithoutId) {
    for (int k = 0; k < kSpareParamRows; ++k)
        append(50000 + k, "spare");
    EXPECT_EQ(GetParamPropertiesByOrder(spare - 1), GetParamProperties(50000 + kSpareParamRows - 1));
    for (const int position : {spare, spare + 1, 1 << 30})
        EXPECT_EQ(GetParamPropertiesByOrder(position), nullptr);
    ParamProperties[firstSpare + 5].id = 0;
    EXPECT_NE(GetParamPropertiesByOrder(firstSpare + 4), nullptr);
    EXPECT_EQ(GetParamPropertiesByOrder(firstSpare + 5), nullptr);
    EXPECT_EQ(GetParamPropertiesByOrder(firstSpare + 6), nullptr);
    EXPECT_EQ(GetParamProperties(50006), nullptr);
    ParamProperties[1].id = 0;
    EXPECT_TRUE(!GetParamProperties(6029) && !rowOf("channel") && !GetParamPropertiesByOrder(0));
}

TEST_F(WorkingTables, LanguageStoreAndFilesGoByTheirRows) {
    VarSetDefault();
    stParamProperties& added = append(kRateId, "MyRate");
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
    VarSetLongValue(channel.id, 8);
    VarUpdateGlobalSpace();
    EXPECT_EQ(saved(VarSaveSecParamFile).find("TLX_channel="), std::string::npos);
    VarLong live = 0;
    VarGetGlobalLongValue(channel.id, &live);
    EXPECT_EQ(live, 5);
}

// The type codes that no parameter of the catalogue has.
TEST_F(WorkingTables, DumpsElementsByTheirType) {
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
    VarSetGlobalDoubleValue(kListId, value);
    for (const auto& [type, number, hex] : cases) {
        row("vMWR").type = type;
        EXPECT_EQ(say("TLX_vMWR 1"), number + std::string("\n")) << type;
        EXPECT_EQ(say("TLX_vMWR 1 -h"), hex) << type;
    }
    stParamProperties& texts = row("UserText1"); // 16 of them have ids in a row
    texts.val_min_id = 1;
    texts.val_max_id = 16;
    EXPECT_EQ(say("TLX_UserText1 1=a,TLX_UserText1 2=\"two\",TLX_UserText1 1.2"),
              "TLX_UserText1 1 = \"a\"\nTLX_UserText1 2 = \"two\"\n");
    EXPECT_EQ(say("TLX_UserText1 1.2 -c"), "\"a\";\"two\"");
    EXPECT_EQ(say("TLX_UserText1 2 -h"), "74776F");
}

// A type that does not go with the id reads nothing that is not there.
TEST_F(WorkingTables, ForeignTypesGiveNothing) {
    row("channel").type = kTypeText;
    EXPECT_EQ(say("TLX_channel"), "\"\"");
    row("Name").type = kTypeLong;
    EXPECT_EQ(say("TLX_Name,1,+"), "1.000000");
    row("Uearth").type = kTypeStruct;
    EXPECT_EQ(say("TLX_Uearth"), say("TLX_Uearth=30,TLX_Uearth"));
    const std::string longName(5000, 'x');
    append(kRateId, longName.c_str());
    EXPECT_EQ(saved(VarSaveParamFile).find("xxx"), std::string::npos);
}

std::string textOf(int id, int type, int language) {
    VarSetEnumValue(10000, static_cast<short>(language));
    return GetParamString(id, type)->txt;
}

TEST_F(WorkingTables, TextsAreThoseThatWereWritten) {
    const std::string german = textOf(channel.id, kTextTitle, kGerman);
    const std::string english = textOf(channel.id, kTextTitle, kEnglish);
    stParamText* const title = std::find_if(ParamText + 1, std::end(ParamText), [&](const stParamText& text) {
        return text.id == channel.id && text.language == kEnglish && text.type == kTextTitle;
    });
    title->txt = "Canal";
    EXPECT_EQ(textOf(channel.id, kTextTitle, kEnglish), "Canal");
    stParamText* last = ParamText + 1;
    while (last->id != 0)
        ++last;
    *last++ = {kRateId, kGerman, kTextTitle, {}, 0, 0, "Rate"};
    *last++ = {channel.id, kGerman, kTextUnit, {}, 0, 0, "Stück"};
    *last++ = {channel.id, kEnglish, kTextTitle, {}, 0, 0, "second"};
    EXPECT_EQ(textOf(kRateId, kTextTitle, kGerman), "Rate");
    EXPECT_EQ(textOf(kRateId, kTextTitle, kEnglish), "***");
    EXPECT_EQ(textOf(channel.id, kTextUnit, kGerman), "Stück");
    VarSetEnumValue(10000, kGerman);
    EXPECT_STREQ(GetFirstParamString(channel.id, kTextTitle)->txt, german.c_str());
    VarSetEnumValue(10000, kEnglish);
    EXPECT_STREQ(GetFirstParamString(channel.id, kTextTitle)->txt, "Canal");
    EXPECT_STREQ(GetNextParamString(channel.id, kTextTitle)->txt, "second");
    title->id = 50000;
    EXPECT_EQ(textOf(50000, kTextTitle, kEnglish), "Canal");
    EXPECT_EQ(textOf(channel.id, kTextTitle, kEnglish), "second");
    LoadDefParamStrings();
    EXPECT_EQ(textOf(channel.id, kTextTitle, kEnglish), english);
    EXPECT_EQ(textOf(kRateId, kTextTitle, kGerman), "Rate") << "rows of the program stay";
    ParamText[1].id = 0;
    EXPECT_EQ(textOf(channel.id, kTextTitle, kEnglish), "***");
}

} // namespace
