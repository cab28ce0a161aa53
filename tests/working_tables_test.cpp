// What programs write into the working table of properties applies to language, commit and files.
#include "tests/Store.h"

namespace {

using namespace talux_test;

constexpr int kRateId = 7214, kListId = 1000; // a long that no parameter has; the first of 96 doubles

struct WorkingTables : InDirectory {
    void SetUp() override {
        InDirectory::SetUp();
        channel = row("channel");
        while (ParamProperties[spare].id != 0)
            ++spare;
    }
    void TearDown() override {
        ParamProperties[spare] = {};
        InDirectory::TearDown();
    }

    stParamProperties& row(const char* name) { return ParamProperties[rowOf(name) - ParamProperties]; }
    // A row like that of `channel`.
    stParamProperties& append(int id, const char* name) {
        stParamProperties& added = ParamProperties[spare] = channel;
        added.id = id;
        added.name = name;
        return added;
    }
    std::string saved(int save(char*)) const {
        std::string file = directory / "file.ini";
        EXPECT_EQ(save(file.data()), 1);
        return contents(file);
    }

    int spare = 1;
    stParamProperties channel{};
};

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

} // namespace
