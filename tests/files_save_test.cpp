// What the parameter files hold byte for byte, who owns them, what becomes of a failed save, and that a load
// brings everything back.
#include "Store.h"

#include <csignal>
#include <ctime>
#include <dlfcn.h>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

constinit const std::tm* clockShows = nullptr; // null: no time can be told
constinit int ownerGiven = -1, groupGiven = -1, chownResult = -1;

} // namespace

extern "C" {

// Either way to the local time: no test depends on the clock or on the time zone.
std::tm* localtime_r(const time_t* /*seconds*/, std::tm* now) noexcept {
    now->tm_hour = 9; // a failed conversion leaves parts behind
    if (clockShows == nullptr) return nullptr;
    *now = *clockShows;
    return now;
}
std::tm* localtime(const time_t* seconds) noexcept {
    static constinit std::tm now{};
    return localtime_r(seconds, &now);
}
int fchown(int file, uid_t owner, gid_t group) noexcept {
    ownerGiven = static_cast<int>(owner);
    groupGiven = static_cast<int>(group);
    return chownResult = reinterpret_cast<decltype(fchown)*>(dlsym(RTLD_NEXT, "fchown"))(file, owner, group);
}
}

namespace {

using namespace talux_test;
namespace fs = std::filesystem;

constexpr std::tm kMoment{33, 22, 14, 5, 2, 124, 0, 0, 0, 0, nullptr}; // 2024-03-05 14:22:33

std::string contents(const fs::path& path) {
    std::ifstream file(path);
    std::stringstream all;
    all << file.rdbuf();
    return file ? all.str() : "(no such file)";
}

std::size_t filesIn(const fs::path& directory) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(directory), {}));
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

bool isAddress(const stParamProperties& row) {
    return row.type >= 2018 && row.type <= 2021;
}

struct File {
    int (*save)(char* filename);
    int lines, group, flag;
    bool (*holds)(const stParamProperties& row);
};
const File kNormal{VarSaveParamFile, 571, 100, 8000,
                   [](const stParamProperties& row) { return !isAddress(row) && row.userlevel <= 2; }};
const File kSecurity{VarSaveSecParamFile, 33, 101, 8002,
                     [](const stParamProperties& row) { return !isAddress(row) && row.userlevel >= 3; }};
const File kIps{VarSaveIPConfigFile, 38, -1, 8001, isAddress};

// The value of a parameter as a file shows it; empty when it has no line.
std::string valueOf(const stParamProperties& row, int space) {
    char value[400] = "";
    for (const Block& block : kBlocks) {
        if (!block.holds(row.id)) continue;
        const char* const slot = raw(space) + block.slotOf(row.id);
        std::string text = block.textIn(slot);
        if (!isAddress(row))
            text.resize(std::min(text.size(), text.find_first_of("\r\n"))); // never two lines
        if (row.type == 2015 || row.type == 2016)
            std::strftime(value, 400, row.type == 2015 ? "\"%Y-%m-%d\"" : "\"%H:%M:%S\"", &kMoment);
        else if (block.number != nullptr)
            std::snprintf(value, 400, "%.*f", row.type == 2002 || row.type == 2003 ? 6 : 0,
                          block.number(slot));
        else if (!isAddress(row))
            std::snprintf(value, 400, "\"%s\"", text.c_str());
        for (const auto& address : kAddresses)
            if (isAddress(row) && (text == address[0] || text == address[1]))
                std::snprintf(value, 400, "\"%s\"", address[1]);
    }
    return value;
}

// The whole file, were it written from the space as it is now.
std::string expected(const File& file, int space) {
    std::string all;
    int lines = 0;
    for (int position = 1; DefParamProperties[position].id != 0; ++position) {
        const stParamProperties& row = DefParamProperties[position];
        const std::string value = row.is_volatile == 1 || !file.holds(row) ? "" : valueOf(row, space);
        if (value.empty()) continue;
        all += std::string("TLX_") + row.name + "=" + value + "\n";
        ++lines;
    }
    EXPECT_EQ(lines, file.lines);
    return all;
}

class Save : public InDirectory {
protected:
    void SetUp() override {
        InDirectory::SetUp();
        clockShows = &kMoment;
        spoil();
    }

    // Every bit of the numbers, texts of any length and bytes, addresses from the list; no flag.
    void spoil() {
        for (char* const space : {raw(kTemp), raw(kGlobal)}) {
            random.fill(space, kSpaceSize);
            for (int id = 16000; id < 16038; ++id)
                std::strncpy(space + kBlocks[12].slotOf(id),
                             kAddresses[random.below(std::size(kAddresses))][0], 20);
        }
        for (const int flag : {8000, 8001, 8002})
            VarSetGlobalBoolValue(flag, 0);
    }
    // One digit for each flag of kSecurity, kIps, kNormal.
    static int flags() {
        const char* const flag = raw(kGlobal) + kBlocks[4].offset;
        return flag[0] + 10 * flag[1] + 100 * flag[2];
    }
    Random random;
};

TEST_F(Save, WritesEveryFileByteForByteOverAnOlderOne) {
    std::string path = directory / "file";
    for (const File* file : {&kNormal, &kSecurity, &kIps}) {
        spoil();
        std::ofstream(path) << std::string(99999, '#');
        chmod(path.c_str(), 0640);
        groupGiven = -1;
        const std::string whole = expected(*file, file == &kIps ? kTemp : kGlobal);
        EXPECT_EQ(outcomeOf([&] { return file->save(path.data()); }), Outcome(1, "", ""));
        EXPECT_TRUE(contents(path) == whole) << contents(path) << "--\n" << whole;
        EXPECT_TRUE(file == &kIps || groupGiven == file->group);
        EXPECT_EQ(flags(), file == &kIps ? 10 : 0);
        struct stat status;
        ASSERT_EQ(stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, file == &kIps ? 0640 : 0775);
        if (file == &kIps) continue;
        EXPECT_EQ(ownerGiven, 0);
        EXPECT_TRUE(chownResult != 0 || static_cast<int>(status.st_gid) == file->group);
    }
}

TEST_F(Save, LooksLikeThis) {
    VarSetDefault();
    EXPECT_EQ(VarSaveParams() + VarSaveIPConfig(), 2);
    const std::string all = contents(directory / "parameter.ini") + contents(directory / "ip_config.ini");
    for (const char* line : {"TLX_Name=\"DEF-NAME\"", "TLX_U12=20000.000000", "TLX_channel=11",
                             "TLX_Language=1", "TLX_eth1_active=0", "TLX_Date=\"2024-03-05\"",
                             "TLX_Time=\"14:22:33\"", "TLX_Kenn=\"A:\"", "TLX_ETH0_IP=\"192.168.55.127\""})
        EXPECT_NE(all.find(std::string(line) + "\n"), std::string::npos) << line;
}

// Each save writes its files in this order and ends at the first that cannot be created. All commit
// beforehand but the last one, which does so only before the addresses.
TEST_F(Save, CommitsAndKeepsDatedCopies) {
    const std::string param = "param_2024_03_05_142233.ini", secParam = "sec_" + param;
    const struct {
        int (*save)();
        std::vector<std::string> names;
        int flag; // raised when so many of the files are written
        std::size_t needed;
    } cases[] = {
        {VarSaveParams, {"parameter.ini", param}, 1, 1},
        {VarSaveSecParams, {"sec_parameter.ini", secParam}, 100, 1},
        {VarSaveIPConfig, {"ip_config.ini"}, 10, 1},
        {VarSaveAll, {"parameter.ini", param, "sec_parameter.ini", secParam, "ip_config.ini"}, 10, 5}};
    for (const auto& test : cases) {
        for (std::size_t blocked = 0; blocked <= test.names.size(); ++blocked) {
            TearDown();
            SetUp();
            Outcome outcome{1, "", ""};
            if (blocked < test.names.size()) {
                const fs::path path = directory / test.names[blocked];
                fs::create_directory(path);
                outcome = {0, "",
                           "Error (TALUX_Var): Can't open file '" + path.string() +
                               "' \nfopen: Is a directory\n"};
            }
            std::vector<std::string> wholes;
            for (const std::string& name : test.names) {
                const File& file = name[0] == 'i' ? kIps : name[0] == 's' ? kSecurity : kNormal;
                wholes.push_back(expected(file, test.save == VarSaveAll && &file != &kIps ? kGlobal : kTemp));
            }
            EXPECT_EQ(outcomeOf(test.save), outcome);
            for (std::size_t k = 0; k < blocked; ++k)
                EXPECT_TRUE(contents(directory / test.names[k]) == wholes[k]) << test.names[k];
            EXPECT_EQ(filesIn(directory), std::min(blocked + 1, test.names.size()));
            EXPECT_EQ(flags(), blocked >= test.needed ? test.flag : 0) << test.names[0] << ' ' << blocked;
        }
    }
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
    std::string deep = directory / std::string(248 - directory.string().size(), 'd');
    fs::create_directory(deep);
    VarInit(deep.data());
    EXPECT_EQ(VarSaveParams(), 1);
    EXPECT_TRUE(fs::exists(deep + "/param"));
    EXPECT_EQ(filesIn(deep), 1u);
}

TEST_F(Save, CommitsEvenForTheEmptyName) {
    const std::string pending = expected(kNormal, kTemp);
    EXPECT_EQ(outcomeOf([] { return VarSaveIPConfigFile(kNoDirectory); }), Outcome(0, "", ""));
    EXPECT_TRUE(expected(kNormal, kGlobal) == pending);
    EXPECT_EQ(flags(), 0);
}

// A full disk, shown by a limit on the size of files.
TEST_F(Save, LeavesTheOldFileWhereWritesFail) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit;
    getrlimit(RLIMIT_FSIZE, &limit);
    for (const File* file : {&kNormal, &kSecurity, &kIps}) {
        std::string path = directory / std::to_string(file->group);
        std::ofstream(path) << "old";
        const rlimit small{100, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const Outcome outcome = outcomeOf([&] { return file->save(path.data()); });
        setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_EQ(outcome,
                  Outcome(1, "Error (TALUX_Var): Can't write to file '" + path + "' \n",
                          "Error (TALUX_Var): '" + path + "' stays as it is \nwrite: File too large\n"));
        EXPECT_EQ(contents(path), "old");
    }
    EXPECT_EQ(flags(), 10);
    EXPECT_EQ(filesIn(directory), 3u);
}

// Whatever a file can hold comes back: numbers to six decimals, texts without quotes and "=".
TEST_F(Save, IsWhatALoadBringsBack) {
    std::string path = directory / "file";
    for (int round = 0; round < 20; ++round) {
        for (const File* file : {&kNormal, &kSecurity, &kIps}) {
            spoil();
            for (const Block* block : {&kBlocks[5], &kBlocks[11]})
                for (std::size_t k = 0; k < block->size * static_cast<std::size_t>(block->count); ++k)
                    if (char& c = raw(kTemp)[block->offset + k]; c == '"' || c == '=' || c == '\n') c = '_';
            VarUpdateGlobalSpace();
            ASSERT_EQ(file->save(path.data()), 1);
            const std::string saved = contents(path);
            spoil();
            EXPECT_EQ(outcomeOf([&] { return VarLoadFile(path.data(), 0); }), Outcome(1, "", ""));
            for (const int space : {kTemp, kGlobal})
                ASSERT_TRUE(expected(*file, space) == saved) << saved << "--\n" << expected(*file, space);
        }
    }
}

} // namespace
