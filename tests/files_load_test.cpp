// How parameter files are read: every rule as a line, and the operations around the loader.
#include "Store.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
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
namespace fs = std::filesystem;

class Load : public testing::Test {
protected:
    void SetUp() override {
        char name[] = "/tmp/loadXXXXXX";
        directory = mkdtemp(name);
        VarInit(directory.string().data());
        LoadDefParamProperties();
        VarClean();
        commands().clear();
    }
    void TearDown() override { fs::remove_all(directory); }

    std::string write(const char* name, const std::string& content) {
        std::ofstream(directory / name) << content;
        return directory / name;
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

    fs::path directory;
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
    const std::string x245(245, 'x');
    const struct {
        std::string content;
        std::string name = "old";
        double channel = 7;
        std::string output = {};
    } cases[] = {
        {""},
        {"TLX_channel=5\n", "old", 5},
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
        {"TLX_channel=7.9//x\n", "old", 7},
        // other lines
        {"\n#TLX_channel=5\n;TLX_channel=5\n[TLX_channel=5]\n//TLX_channel=5\n/TLX_channel=5\n"},
        {"channel=5\nTLXchannel=5\nx TLX_channel=5\n"},
        {"TLX_nobody=5\nTLX_channel\t=5\nTLX_channel2=5\n"},
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
        {"#\n\nTLX_channel=12abc\nTLX_Name=x\n", "x", 7, wrong(3, 6029)},
        {"TLX_channel=1,5\n", "old", 7, wrong(1, 6029)},
        {"TLX_channel=" + std::string(49, '0') + "\n", "old", 0},
        {"TLX_channel=" + std::string(50, '0') + "\n", "old", 7, wrong(1, 6029)},
        {"TLX_=5\n"}, // the first row without a name has no value
        {"TLX_=x\n", "old", 7, wrong(1, 18000)},
        // 254 characters are one read
        {"TLX_Name=" + x245 + "TLX_channel=5\nTLX_channel=x\n", x245.substr(0, 127), 5, wrong(3, 6029)},
        {"TLX_Name=" + x245 + "xTLX_channel=5\nTLX_channel=x\n", x245.substr(0, 127), 7, wrong(3, 6029)},
        {"TLX_Name=" + x245.substr(1) + "\nTLX_channel=x\n", x245.substr(0, 127), 7, wrong(2, 6029)},
        {std::string("TLX_channel=5\0junk\n", 19), "old", 5},
    };
    for (const auto& test : cases) {
        double channel = 7;
        VarSetTextValue(9000, const_cast<char*>("old"));
        VarSetValue(6029, &channel);
        const std::string before = bytes(raw(kTemp), kSpaceSize);
        Captured output(stdout), errors(stderr);
        EXPECT_EQ(VarLoadFile(write("file", test.content).data(), 0), 1);
        EXPECT_EQ(output.text(), test.output) << test.content;
        EXPECT_EQ(errors.text(), "");
        for (const int space : {kTemp, kGlobal}) {
            EXPECT_EQ(text(9000, space), test.name) << test.content;
            EXPECT_EQ(number(6029, space), test.channel) << test.content;
        }
        VarSetTextValue(9000, const_cast<char*>("old"));
        VarSetValue(6029, &channel);
        EXPECT_TRUE(bytes(raw(kTemp), kSpaceSize) == before) << "something else: " << test.content;
    }
}

TEST_F(Load, KeepsDateAndTimeAsTexts) {
    VarLoadFile(write("file", "TLX_Date=\"2001-02-03\"\nTLX_Time=\"04:05:06 and more\"\n").data(), 0);
    EXPECT_EQ(text(13000, kGlobal), "2001-02-03");
    EXPECT_EQ(text(14000, kGlobal), "04:05:06 ");
}

// Numbers are always taken, texts when they are of the wanted type; pending values go live as well.
TEST_F(Load, TakesTextsOfTheWantedType) {
    const struct {
        int type, id;
        const char* line;
    } kTexts[] = {{2011, 9000, "TLX_Name=new\n"},       {2015, 13000, "TLX_Date=new\n"},
                  {2016, 14000, "TLX_Time=new\n"},      {2017, 15000, "TLX_Kenn=new\n"},
                  {2018, 16000, "TLX_DNS=new\n"},       {2019, 16029, "TLX_ETH0_IP=new\n"},
                  {2020, 16032, "TLX_ETH0_MASK=new\n"}, {2021, 16035, "TLX_ETH0_GATEWAY=new\n"}};
    std::string all = "TLX_channel=3\n";
    for (const auto& one : kTexts)
        all += one.line;
    const std::string path = write("file", all);
    for (const int type : {0, 2011, 2013, 2014, 2015, 2016, 2017, 2018, 2019, 2020, 2021}) {
        VarClean();
        double pending = 2;
        VarSetValue(10012, &pending);
        VarLoadFile(std::string(path).data(), type);
        EXPECT_EQ(number(6029, kGlobal), 3);
        EXPECT_EQ(number(10012, kGlobal), 2);
        for (const auto& one : kTexts)
            EXPECT_EQ(text(one.id, kGlobal), type == 0 || type == one.type ? "new" : "")
                << type << ' ' << one.line;
    }
}

TEST_F(Load, OfAMissingFileCommitsNothing) {
    double pending = 2;
    VarSetValue(10012, &pending);
    std::string path = directory / "missing";
    Captured output(stdout), errors(stderr);
    EXPECT_EQ(VarLoadFile(path.data(), 0), 0);
    EXPECT_EQ(output.text(), "Error (TALUX_Var): File '" + path + "' not found\n");
    EXPECT_EQ(errors.text(), "fopen: No such file or directory\n");
    EXPECT_EQ(number(10012, kGlobal), 0);
}

TEST_F(Load, OfADirectoryEndsTheProcess) {
    std::string path = directory;
    const auto load = [&] {
        dup2(STDERR_FILENO, STDOUT_FILENO);
        VarLoadFile(path.data(), 0);
    };
    EXPECT_EXIT(load(), testing::ExitedWithCode(2),
                Output("\nError (TALUX_Var): Can't read source file '" + path + "'\n"));
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
            VarClean();
            commands().clear();
            if (present) write(test.file, "TLX_channel=3\nTLX_sec_mode=0\n");
            Captured output(stdout), errors(stderr);
            EXPECT_EQ(test.load(), present ? 1 : 0) << test.file;
            EXPECT_EQ(number(6029, kGlobal), present ? 3 : 0) << test.file;
            for (const auto& other : cases)
                EXPECT_EQ(number(other.flag, kGlobal), test.flag == other.flag)
                    << test.file << ' ' << other.flag;
            const double secured = test.flag == 8002 ? 1 : 0;
            EXPECT_EQ(number(8176, kTemp), secured) << test.file;
            EXPECT_EQ(number(8176, kGlobal), secured) << test.file;
        }
    }
}

TEST_F(Load, ResetsTheAddressesOfOneKind) {
    const std::string factory = "TLX_DNS=\"1.1.1.1\"\nTLX_ETH0_IP=\"2.2.2.2\"\nTLX_ETH0_MASK=\"3.3.3.3\"\n"
                                "TLX_ETH0_GATEWAY=\"4.4.4.4\"\n";
    const int kIds[] = {16000, 16029, 16032, 16035};
    const struct {
        int type;
        bool dns, address;
    } cases[] = {{2018, true, false}, {2019, false, true}, {0, true, true}, {2020, false, false}};
    write("def_ip_config.ini", factory);
    for (const auto& test : cases) {
        VarClean();
        for (const int id : kIds)
            VarSetIpValue(id, const_cast<char*>("9.9.9.9"));
        commands().clear();
        Captured errors(stderr);
        EXPECT_EQ(VarResetIPConfig(test.type), 1);
        EXPECT_EQ(text(16000, kGlobal), test.dns ? "1.1.1.1" : "9.9.9.9") << test.type;
        EXPECT_EQ(text(16029, kGlobal), test.address ? "2.2.2.2" : "9.9.9.9") << test.type;
        EXPECT_EQ(text(16032, kGlobal), "3.3.3.3");
        EXPECT_EQ(text(16035, kGlobal), "4.4.4.4");
        EXPECT_EQ(number(8001, kGlobal), 1);
        ASSERT_GE(commands().size(), 2u);
        EXPECT_EQ(commands().end()[-2], "rm -f /var/resolv.conf");
        EXPECT_EQ(commands().end()[-1], "touch /var/resolv.conf");
    }
    fs::remove(directory / "def_ip_config.ini");
    double pending = 2;
    VarSetValue(10012, &pending);
    commands().clear();
    Captured output(stdout), errors(stderr);
    EXPECT_EQ(VarResetIPConfig(0), 0);
    const std::string missing =
        "Error (TALUX_Var): File '" + (directory / "def_ip_config.ini").string() + "' not found\n";
    EXPECT_EQ(output.text(), missing + missing + missing);
    EXPECT_EQ(commands().back(), "touch /var/resolv.conf");
    EXPECT_EQ(rateAtFirstCommand, 2) << "commits all the same, before it applies";
}

// Whatever a file can hold comes back: numbers to six decimals, texts without quotes and "=".
TEST_F(Load, BringsBackWhatWasSaved) {
    Random random;
    for (int round = 0; round < 20; ++round) {
        random.fill(raw(kTemp), kSpaceSize);
        for (int id = 2000; id < 2312; ++id)
            VarSetFloatValue(
                id, static_cast<float>(std::ldexp(random.below(2000001) - 1000000, random.below(80) - 50)));
        for (int id = 9000; id < 9069; ++id) {
            std::string value = random.text(127);
            for (char& c : value)
                if (std::strchr("\"=\n", c) != nullptr) c = '_';
            VarSetTextValue(id, value.data());
        }
        VarSetIdValue(15000, const_cast<char*>(round % 2 != 0 ? "" : "A:"));
        for (int id = 16000; id < 16038; ++id)
            VarSetIpValue(id,
                          const_cast<char*>(
                              ("10.0." + std::to_string(round) + "." + std::to_string(id % 256)).c_str()));
        VarUpdateGlobalSpace();
        const std::string saved = bytes(raw(kGlobal), kSpaceSize);
        ASSERT_EQ(VarSaveParams() + VarSaveSecParams() + VarSaveIPConfig(), 3);

        random.fill(raw(kTemp), kSpaceSize);
        Captured output(stdout), errors(stderr);
        ASSERT_EQ(VarLoadParams() + VarLoadSecParams() + VarLoadIPConfig(), 3);
        EXPECT_EQ(output.text(), "");
        for (const stParamProperties& row : DefParamProperties) {
            if (row.is_volatile == 1 || row.type == 2015 || row.type == 2016 || row.id == 8176) continue;
            for (const Block& block : kBlocks) {
                if (!block.holds(row.id)) continue;
                std::string expected = saved.substr(block.slotOf(row.id), block.slot);
                if (block.type == 2003) {
                    float value;
                    std::memcpy(&value, expected.data(), 4);
                    value = std::strtof(std::to_string(double(value)).c_str(), nullptr);
                    std::memcpy(expected.data(), &value, 4);
                }
                if (block.isText) expected.resize(std::strlen(expected.c_str()));
                for (const int space : {kTemp, kGlobal}) {
                    std::string now = bytes(raw(space) + block.slotOf(row.id), block.slot);
                    if (block.isText) now.resize(std::strlen(now.c_str()));
                    ASSERT_EQ(now, expected) << row.name << " space " << space;
                }
            }
        }
        VarInit(directory.string().data());
    }
}

} // namespace
