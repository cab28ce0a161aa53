// How parameter files are read: every rule as a line, and the operations around the loader.
#include "Store.h"

#include <fstream>
#include <unistd.h>
#include <vector>

namespace {

std::vector<std::string>& commands() {
    static std::vector<std::string> all;
    return all;
}
constinit double rateAtFirstCommand = 0; // in the global space

} // namespace

extern "C" int system(const char* command) {
    if (commands().empty()) VarGetGlobalValue(10012, &rateAtFirstCommand);
    commands().push_back(command);
    return 0;
}

namespace {

using namespace talux_test;

class Load : public InDirectory {
protected:
    void SetUp() override {
        InDirectory::SetUp();
        begin();
    }
    // All values zero but one pending change.
    static void begin() {
        double rate = 2;
        VarClean();
        VarSetValue(10012, &rate);
        commands().clear();
    }

    std::string write(const char* name, const std::string& content) {
        std::ofstream(directory / name) << content;
        return directory / name;
    }
    std::string missing(const char* name) {
        return "Error (TALUX_Var): File '" + (directory / name).string() + "' not found\n";
    }

    static std::string text(int id, int space) {
        char value[128];
        (space == kGlobal ? VarGetGlobalValue : VarGetValue)(id, asValue(value));
        return value;
    }
    static double number(int id, int space) {
        double value = -1;
        (space == kGlobal ? VarGetGlobalValue : VarGetValue)(id, &value);
        return value;
    }
};

std::string onLine(int line) {
    return "\nError (TALUX_Var): Error on line " + std::to_string(line) + "\n";
}
std::string wrong(int line, int id) {
    return "\nError (TALUX_Var): Wrong parameter on line " + std::to_string(line) +
           " ID:" + std::to_string(id) + "\n";
}

// Name is "old" and channel 7 before each; what a file leaves of them, and what it prints.
TEST_F(Load, FollowsTheRulesOfALine) {
    struct Rule {
        std::string content;
        std::string name = "old";
        double channel = 7;
        std::string output = {};
    };
    const std::string x245(245, 'x'), x127 = x245.substr(0, 127);
    const Rule rules[] = {
        {""},
        {"TLX_channel=5", "old", 5},
        {"tlx_CHANNEL=5\n", "old", 5},
        {"\t  TLX_channel=5\n", "old", 5},
        {"TLX_channel = 12 ;comment\n", "old", 12},
        {"TLX_channel     =12\n", "old", 12},
        {"TLX_channel==12=13\n", "old", 12},
        {"TLX_channel 12\n", "old", 12},
        {"TLX_channel=4 7\n", "old", 4},
        {"TLX_channel=\"6\"\r\n", "old", 6},
        {"TLX_channel=1e1\n", "old", 10},
        {"TLX_channel=-9999999999\n", "old", -2147483648.0},
        {"TLX_channel=8.9//x\n", "old", 8},
        // other lines
        {"#TLX_channel=5\n;TLX_channel=5\n[TLX_channel=5]\n//TLX_channel=5\n/TLX_channel=5\nchannel=5\n"},
        {"x TLX_channel=5\nTLXchannel=5\nTLX_channel\t=5\nTLX_channel2=5\nTLX_nobody=5\nTLX_=5\n"},
        {"TLX_U1_prim=5\nTLX_vMWR=1\nTLX_VarSaveParams=1\n"},
        // texts
        {"TLX_Name=\"abc\"\n", "abc"},
        {"TLX_Name=\"abc\n", "abc"},
        {"TLX_Name= \"abc\"\n", " \"abc\""},
        {"TLX_Name=\"a=b\"\n", "a"},
        {"TLX_Name=\"a\"b\"\n", "a"},
        {"TLX_Name=\"a;b#c//d\"\n", "a;b#c//d"},
        {"TLX_Name=\"\"\n", ""},
        {"TLX_Name=two words\r\n", "two words"},
        {"TLX_Name=a/b #c\n", "a/b "},
        {"TLX_Name=a;b//c\n", "a"},
        {"TLX_Name=a//b;c\n", "a"},
        {"TLX_Name=#a\n", ""},
        {"TLX_Name=//a\n", ""},
        {"TLX_Name=\r\n", ""},
        // a missing value, a wrong number; lines count as they are read
        {"TLX_Name=\n", "", 7, onLine(1)},
        {"\nTLX_Name", "", 7, onLine(2)},
        {"TLX_Name \n", "", 7, onLine(1)},
        {"TLX_nobody==\n", "old", 7, onLine(1)},
        {"TLX_channel=\n", "old", 7, onLine(1) + wrong(1, 6029)},
        {"TLX_channel=;\n", "old", 7, wrong(1, 6029)},
        {"#\n\nTLX_channel=12abc\nTLX_Name=x\n", "x", 7, wrong(3, 6029)},
        {"TLX_channel=1,5\n", "old", 7, wrong(1, 6029)},
        {"TLX_channel=" + std::string(49, '0') + "\n", "old", 0},
        {"TLX_channel=" + std::string(50, '0') + "\n", "old", 7, wrong(1, 6029)},
        {"TLX_=x\n", "old", 7, wrong(1, 18000)}, // the first row without a name has no value
        // 254 characters are one read
        {"TLX_Name=" + x245 + "TLX_channel=5\nTLX_channel=x\n", x127, 5, wrong(3, 6029)},
        {"TLX_Name=" + x245 + "xTLX_channel=5\nTLX_channel=x\n", x127, 7, wrong(3, 6029)},
        {"TLX_Name=" + x245.substr(1) + "\nTLX_channel=x\n", x127, 7, wrong(2, 6029)},
        {std::string("TLX_channel=5\0junk\n", 19), "old", 5},
    };
    const auto reset = [] {
        double channel = 7;
        VarSetTextValue(9000, const_cast<char*>("old"));
        VarSetValue(6029, &channel);
        return bytes(raw(kTemp), kSpaceSize);
    };
    for (const Rule& test : rules) {
        const std::string before = reset();
        EXPECT_EQ(outcomeOf([&] { return VarLoadFile(write("file", test.content).data(), 0); }),
                  Outcome(1, test.output, ""))
            << test.content;
        for (const int space : {kTemp, kGlobal}) {
            EXPECT_EQ(text(9000, space), test.name) << test.content;
            EXPECT_EQ(number(6029, space), test.channel) << test.content;
        }
        EXPECT_TRUE(reset() == before) << "something else: " << test.content;
    }
}

// Numbers are always taken, texts, cut to their slot, when they are of the wanted type; pending values go
// live as well.
TEST_F(Load, TakesTextsOfTheWantedType) {
    const std::string value = "0123456789_123456789_"; // not read as a date, a time or an address
    const struct {
        int type, id;
        const char* key;
        std::size_t length;
    } kTexts[] = {{2011, 9000, "Name", 21},       {2015, 13000, "Date", 14},
                  {2016, 14000, "Time", 9},       {2017, 15000, "Kenn", 19},
                  {2018, 16000, "DNS", 19},       {2019, 16029, "ETH0_IP", 19},
                  {2020, 16032, "ETH0_MASK", 19}, {2021, 16035, "ETH0_GATEWAY", 19}};
    std::string all = "TLX_channel=3\n";
    for (const auto& one : kTexts)
        all += std::string("TLX_") + one.key + "=" + value + "\n";
    std::string path = write("file", all);
    for (const int type : {0, 2011, 2013, 2014, 2015, 2016, 2017, 2018, 2019, 2020, 2021}) {
        begin();
        EXPECT_EQ(VarLoadFile(path.data(), type), 1);
        EXPECT_EQ(number(6029, kGlobal), 3);
        EXPECT_EQ(number(10012, kGlobal), 2);
        for (const auto& one : kTexts)
            EXPECT_EQ(text(one.id, kGlobal), value.substr(0, type == 0 || type == one.type ? one.length : 0))
                << type << ' ' << one.key;
    }
}

TEST_F(Load, OfAMissingFileCommitsNothing) {
    std::string path = directory / "missing";
    EXPECT_EQ(outcomeOf([&] { return VarLoadFile(path.data(), 0); }),
              Outcome(0, missing("missing"), "fopen: No such file or directory\n"));
    EXPECT_EQ(number(10012, kGlobal), 0);
}

TEST_F(Load, OfADirectoryEndsTheProcess) {
    std::string path = directory;
    const auto load = [&] {
        dup2(STDERR_FILENO, STDOUT_FILENO);
        VarLoadFile(path.data(), 0);
    };
    EXPECT_EXIT(
        load(), testing::ExitedWithCode(2),
        testing::Matcher<const std::string&>("\nError (TALUX_Var): Can't read source file '" + path + "'\n"));
}

// Each raises its flag also when there is no file; only the addresses are applied.
TEST_F(Load, RaisesItsFlag) {
    const struct {
        int (*load)();
        const char* file;
        int flag;
    } cases[] = {{VarLoadParams, "parameter.ini", 8000},
                 {VarLoadSecParams, "sec_parameter.ini", 8002},
                 {VarLoadIPConfig, "ip_config.ini", 8001}};
    for (const bool present : {false, true}) {
        for (const auto& test : cases) {
            begin();
            if (present) write(test.file, "TLX_channel=3\nTLX_sec_mode=0\n");
            const auto [result, output, errors] = outcomeOf(test.load);
            EXPECT_EQ(result, present ? 1 : 0) << test.file;
            EXPECT_EQ(output, present ? "" : missing(test.file));
            EXPECT_EQ(commands().empty(), test.flag != 8001);
            EXPECT_EQ(number(6029, kGlobal), present ? 3 : 0) << test.file;
            for (const auto& other : cases)
                EXPECT_EQ(number(other.flag, kGlobal), test.flag == other.flag)
                    << test.file << ' ' << other.flag;
            for (const int space : {kTemp, kGlobal})
                EXPECT_EQ(number(8176, space), test.flag == 8002 ? 1 : 0) << test.file;
        }
    }
}

TEST_F(Load, ResetsTheAddressesOfOneKind) {
    const int kIds[] = {16000, 16029, 16032, 16035};
    const struct {
        int type;
        const char* addresses; // afterwards, one digit each
    } cases[] = {{2018, "1934"}, {2019, "9234"}, {0, "1234"}, {2020, "9934"}};
    write("def_ip_config.ini",
          "TLX_DNS=\"1\"\nTLX_ETH0_IP=\"2\"\nTLX_ETH0_MASK=\"3\"\nTLX_ETH0_GATEWAY=\"4\"\n");
    for (const auto& test : cases) {
        begin();
        for (const int id : kIds)
            VarSetIpValue(id, const_cast<char*>("9"));
        const auto [result, output, errors] = outcomeOf([&] { return VarResetIPConfig(test.type); });
        EXPECT_TRUE(result == 1 && output.empty()) << output;
        std::string addresses;
        for (const int id : kIds)
            addresses += text(id, kGlobal);
        EXPECT_EQ(addresses, test.addresses) << test.type;
        EXPECT_EQ(number(8001, kGlobal), 1);
        ASSERT_GT(commands().size(), 2u);
        EXPECT_EQ(commands().end()[-2], "rm -f /var/resolv.conf");
        EXPECT_EQ(commands().end()[-1], "touch /var/resolv.conf");
    }
    std::filesystem::remove(directory / "def_ip_config.ini");
    begin();
    const auto [result, output, errors] = outcomeOf([] { return VarResetIPConfig(0); });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(output,
              missing("def_ip_config.ini") + missing("def_ip_config.ini") + missing("def_ip_config.ini"));
    EXPECT_EQ(commands().back(), "touch /var/resolv.conf");
    EXPECT_EQ(rateAtFirstCommand, 2) << "commits all the same, before it applies";
}

} // namespace
