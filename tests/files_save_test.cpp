// What the parameter files hold byte for byte, who owns them, and what becomes of a failed save.
#include "Store.h"

#include <csignal>
#include <ctime>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constinit const std::tm* clockShows = nullptr;
constinit int ownerGiven = -1, groupGiven = -1, chownResult = -1;

} // namespace

extern "C" {

std::tm* localtime_r(const time_t* /*seconds*/, std::tm* now) noexcept {
    now->tm_hour = 9; // a failed conversion leaves parts behind
    if (clockShows == nullptr) return nullptr;
    *now = *clockShows;
    return now;
}
int chown(const char* path, uid_t owner, gid_t group) noexcept {
    ownerGiven = static_cast<int>(owner);
    groupGiven = static_cast<int>(group);
    return chownResult = reinterpret_cast<decltype(chown)*>(dlsym(RTLD_NEXT, "chown"))(path, owner, group);
}
}

namespace {

using namespace talux_test;
namespace fs = std::filesystem;

const std::tm kMoment = [] {
    std::tm moment{};
    moment.tm_year = 124, moment.tm_mon = 2, moment.tm_mday = 5;
    moment.tm_hour = 14, moment.tm_min = 22, moment.tm_sec = 33;
    return moment;
}();

std::string contents(const fs::path& path) {
    std::ifstream file(path);
    std::stringstream all;
    all << file.rdbuf();
    return file ? all.str() : "(no such file)";
}

// Addresses as stored, and as a file shows them.
constexpr const char* kAddresses[][2] = {
    {"", "0.0.0.0"},
    {"192.168.55.127", "192.168.55.127"},
    {"192.168.001.010", "192.168.1.10"},
    {"...1..2.", "1.2.0.0"},
    {"1.2.3.4.5", "1.2.3.4"},
    {" 7.x.-3.08z", "7.0.-3.8"},
    {"300.256.1.1", "300.256.1.1"},
    {"99999999999.1.1", "2147483647.1.1.0"},
    {"1111111111.11111111", "1111111111.11111111.0.0"},
};

struct File {
    const char* name;
    int (*save)(char* filename);
    int lines, group, flag;
    bool (*holds)(const stParamProperties& row);
};

bool isAddress(const stParamProperties& row) {
    return row.type >= 2018 && row.type <= 2021;
}

const File kNormal{"parameter.ini", VarSaveParamFile, 571, 100, 8000, [](const stParamProperties& row) {
                       return !isAddress(row) && row.userlevel <= 2;
                   }};
const File kSecurity{
    "sec_parameter.ini", VarSaveSecParamFile, 33, 101, 8002, [](const stParamProperties& row) {
        return !isAddress(row) && row.userlevel >= 3;
    }};
const File kIps{"ip_config.ini", VarSaveIPConfigFile, 38, -1, 8001, isAddress};

class Save : public testing::Test {
protected:
    void SetUp() override {
        char name[] = "/tmp/saveXXXXXX";
        directory = mkdtemp(name);
        VarInit(directory.string().data());
        LoadDefParamProperties();
        clockShows = &kMoment;
        spoil(kTemp);
        spoil(kGlobal);
        for (const int flag : {8000, 8001, 8002})
            VarSetGlobalBoolValue(flag, 0);
    }
    void TearDown() override { fs::remove_all(directory); }

    // Every bit of the numbers, texts of any length and bytes, addresses from the list.
    void spoil(int space) {
        random.fill(raw(space), kSpaceSize);
        for (int id = 16000; id < 16038; ++id)
            copyInto(raw(space) + kBlocks[12].slotOf(id), 20, addressOf(id, space)[0]);
    }
    static const char* const* addressOf(int id, int space) {
        return kAddresses[static_cast<std::size_t>(id + space) % std::size(kAddresses)];
    }

    // The value of a parameter as a file shows it; empty when it has no line.
    static std::string valueOf(const stParamProperties& row, int space) {
        char text[400] = "";
        for (const Block& block : kBlocks) {
            if (!block.holds(row.id)) continue;
            const char* const slot = raw(space) + block.slotOf(row.id);
            std::int32_t number;
            std::int16_t choice;
            float single;
            switch (row.type) {
            case 2003:
                std::memcpy(&single, slot, 4), std::snprintf(text, 400, "%f", double(single));
                break;
            case 2004:
                std::memcpy(&number, slot, 4), std::snprintf(text, 400, "%d", number);
                break;
            case 2010:
                std::snprintf(text, 400, "%u", static_cast<unsigned char>(*slot));
                break;
            case 2012:
                std::memcpy(&choice, slot, 2), std::snprintf(text, 400, "%d", choice);
                break;
            case 2015:
                std::strftime(text, 400, "\"%Y-%m-%d\"", &kMoment);
                break;
            case 2016:
                std::strftime(text, 400, "\"%H:%M:%S\"", &kMoment);
                break;
            case 2011:
            case 2017:
                std::snprintf(text, 400, "\"%.*s\"", static_cast<int>(block.slot) - 1, slot);
                break;
            default:
                std::snprintf(text, 400, "\"%s\"", addressOf(row.id, space)[1]);
            }
        }
        return text;
    }

    // The whole file, were it written from the space as it is now.
    static std::string expected(const File& file, int space) {
        std::string all;
        int lines = 0;
        for (const stParamProperties& row : DefParamProperties) {
            const std::string value = row.is_volatile == 1 || !file.holds(row) ? "" : valueOf(row, space);
            if (value.empty()) continue;
            all += std::string("TLX_") + row.name + "=" + value + "\n";
            ++lines;
        }
        EXPECT_EQ(lines, file.lines);
        return all;
    }

    static int flag(const File& file) { return raw(kGlobal)[9410 + file.flag - 8000]; }
    static int flags() { return flag(kNormal) + 10 * flag(kIps) + 100 * flag(kSecurity); }

    fs::path directory;
    Random random;
};

TEST_F(Save, WritesEveryFileByteForByte) {
    for (const File* file : {&kNormal, &kSecurity, &kIps}) {
        spoil(kTemp);
        spoil(kGlobal);
        groupGiven = -1;
        const std::string before = expected(*file, file == &kIps ? kTemp : kGlobal);
        std::string path = directory / "file";
        Captured output(stdout), errors(stderr);
        EXPECT_EQ(file->save(path.data()), 1);
        EXPECT_EQ(output.text() + errors.text(), "");
        EXPECT_TRUE(contents(path) == before) << file->name << '\n' << contents(path) << "--\n" << before;
        EXPECT_EQ(groupGiven, file->group);
        if (file == &kIps) continue;
        struct stat status;
        ASSERT_EQ(stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, 0775);
        EXPECT_EQ(ownerGiven, 0);
        EXPECT_TRUE(chownResult != 0 || static_cast<int>(status.st_gid) == file->group);
        fs::remove(path);
    }
    EXPECT_EQ(flag(kIps), 1);
}

TEST_F(Save, LooksLikeThis) {
    VarSetDefault();
    EXPECT_EQ(VarSaveAll(), 1); // does not commit before the first two files
    EXPECT_EQ(VarSaveParams(), 1);
    const std::string normal = contents(directory / "parameter.ini");
    for (const char* line :
         {"TLX_Name=\"DEF-NAME\"", "TLX_U12=20000.000000", "TLX_channel=11", "TLX_Language=1",
          "TLX_eth1_active=0", "TLX_Date=\"2024-03-05\"", "TLX_Time=\"14:22:33\"", "TLX_Kenn=\"A:\""})
        EXPECT_NE(normal.find(std::string(line) + "\n"), std::string::npos) << line;
    EXPECT_NE(contents(directory / "ip_config.ini").find("TLX_ETH0_IP=\"192.168.55.127\"\n"),
              std::string::npos);
}

TEST_F(Save, CommitsFirstAndKeepsADatedCopy) {
    const struct {
        const File& file;
        int (*save)();
        const char* copy;
        int flags;
    } cases[] = {{kNormal, VarSaveParams, "param_2024_03_05_142233.ini", 1},
                 {kSecurity, VarSaveSecParams, "sec_param_2024_03_05_142233.ini", 101},
                 {kIps, VarSaveIPConfig, nullptr, 111}};
    for (const auto& test : cases) {
        const std::string pending = expected(test.file, kTemp);
        EXPECT_EQ(test.save(), 1);
        EXPECT_TRUE(contents(directory / test.file.name) == pending) << test.file.name;
        EXPECT_TRUE(test.copy == nullptr || contents(directory / test.copy) == pending) << test.copy;
        EXPECT_EQ(flags(), test.flags);
    }
}

TEST_F(Save, AllTakesTheParametersAsTheyAreAndCommitsForTheAddresses) {
    const std::string normal = expected(kNormal, kGlobal), security = expected(kSecurity, kGlobal),
                      addresses = expected(kIps, kTemp);
    EXPECT_EQ(VarSaveAll(), 1);
    EXPECT_TRUE(contents(directory / "parameter.ini") == normal);
    EXPECT_TRUE(contents(directory / "param_2024_03_05_142233.ini") == normal);
    EXPECT_TRUE(contents(directory / "sec_parameter.ini") == security);
    EXPECT_TRUE(contents(directory / "sec_param_2024_03_05_142233.ini") == security);
    EXPECT_TRUE(contents(directory / "ip_config.ini") == addresses);
    EXPECT_EQ(flags(), 10);
}

TEST_F(Save, WithoutAClockIsDatedAtItsZero) {
    clockShows = nullptr;
    EXPECT_EQ(VarSaveParams(), 1);
    EXPECT_EQ(contents(directory / "param_1900_01_00_000000.ini"), contents(directory / "parameter.ini"));
    EXPECT_NE(contents(directory / "parameter.ini").find("TLX_Date=\"1900-01-00\"\nTLX_Time=\"00:00:00\"\n"),
              std::string::npos);
}

// The first characters of a path that is too long count.
TEST_F(Save, CutsPathsAt255Characters) {
    const std::string deep = (directory / std::string(249 - directory.string().size() - 1, 'd')).string();
    fs::create_directory(deep);
    VarInit(std::string(deep).data());
    EXPECT_EQ(VarSaveParams(), 1);
    EXPECT_TRUE(fs::exists(deep + "/param"));
    EXPECT_EQ(std::distance(fs::directory_iterator(deep), {}), 1);
}

TEST_F(Save, ReportsFilesThatCannotBeCreated) {
    const std::string reason = "fopen: Is a directory\n";
    const struct {
        const char* blocked;
        int (*save)();
        int flags;
        int written; // files besides the blocked one
    } cases[] = {{"parameter.ini", VarSaveParams, 0, 0},
                 {"param_2024_03_05_142233.ini", VarSaveParams, 1, 1}, // only the copy is missing
                 {"sec_parameter.ini", VarSaveSecParams, 0, 0},
                 {"sec_param_2024_03_05_142233.ini", VarSaveSecParams, 100, 1},
                 {"ip_config.ini", VarSaveIPConfig, 0, 0},
                 {"parameter.ini", VarSaveAll, 0, 0},
                 {"param_2024_03_05_142233.ini", VarSaveAll, 0, 1},
                 {"sec_parameter.ini", VarSaveAll, 0, 2},
                 {"sec_param_2024_03_05_142233.ini", VarSaveAll, 0, 3},
                 {"ip_config.ini", VarSaveAll, 0, 4}};
    for (const auto& test : cases) {
        SetUp();
        fs::create_directory(directory / test.blocked);
        Captured output(stdout), errors(stderr);
        EXPECT_EQ(test.save(), 0) << test.blocked;
        EXPECT_EQ(errors.text(), "Error (TALUX_Var): Can't open file '" +
                                     (directory / test.blocked).string() + "' \n" + reason);
        EXPECT_EQ(output.text(), "");
        EXPECT_EQ(flags(), test.flags) << test.blocked;
        EXPECT_EQ(std::distance(fs::directory_iterator(directory), {}) - 1, test.written) << test.blocked;
        TearDown();
    }
}

TEST_F(Save, CommitsEvenForTheEmptyName) {
    const std::string pending = expected(kNormal, kTemp);
    Captured output(stdout), errors(stderr);
    EXPECT_EQ(VarSaveIPConfigFile(kNoDirectory), 0);
    EXPECT_EQ(output.text() + errors.text(), "");
    EXPECT_TRUE(expected(kNormal, kGlobal) == pending);
    EXPECT_EQ(flags(), 0);
}

// A full disk, shown by a limit on the size of files: the small address file fails only when it is closed.
TEST_F(Save, ReportsWritesThatFail) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit;
    getrlimit(RLIMIT_FSIZE, &limit);
    for (const File* file : {&kNormal, &kSecurity, &kIps}) {
        std::string path = directory / file->name;
        spoil(kTemp);
        VarUpdateGlobalSpace();
        const std::string whole = expected(*file, kTemp);
        Captured output(stdout), errors(stderr);
        const rlimit small{100, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const int result = file->save(path.data());
        setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_EQ(output.text(), "Error (TALUX_Var): Can't write to file '" + path + "' \n");
        EXPECT_EQ(errors.text(), "");
        EXPECT_EQ(result, 1);
        EXPECT_EQ(contents(path), whole.substr(0, 100));
        EXPECT_TRUE(file == &kIps || fs::status(path).permissions() == fs::perms{0775});
    }
    EXPECT_EQ(flags(), 10);
}

} // namespace
