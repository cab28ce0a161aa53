// What the parameter files hold byte for byte, who owns them, and that a load brings everything back. How
// they are read: every rule as a line, and the operations around the loader.
#include "Files.h"
#include "Isolation.h"
#include "Messages.h"
#include "ParamSystem/TALUX_Funcs.h"

#include <cmath>
#include <dlfcn.h>
#include <strings.h>
#include <unistd.h>

namespace {

constinit uid_t ownerGiven = 1;
constinit gid_t groupGiven = 1;
constinit bool isGiven = false;

std::vector<std::string>& commands() {
    static std::vector<std::string> all;
    return all;
}
constinit double rateAtFirstCommand = 0; // in the global space
constinit std::string* atFlag = nullptr; // becomes the store when a lock is taken after a flag was raised

} // namespace

extern "C" int fchown(int file, uid_t owner, gid_t group) noexcept {
    ownerGiven = owner, groupGiven = group;
    const int result = reinterpret_cast<decltype(fchown)*>(dlsym(RTLD_NEXT, "fchown"))(file, owner, group);
    isGiven = result == 0;
    return result;
}

extern "C" int pthread_mutex_lock(pthread_mutex_t* lock) noexcept {
    using namespace talux_test;
    if (atFlag != nullptr && atFlag->empty() &&
        std::memchr(raw(kGlobal) + kBlocks[4].offset, 1, 3) != nullptr)
        *atFlag = image();
    return pthread_mutex_trylock(lock); // no other thread has it
}

extern "C" int system(const char* command) {
    if (commands().empty()) VarGetGlobalValue(10012, &rateAtFirstCommand);
    commands().push_back(command);
    return 0;
}

namespace {

using namespace std::literals;
using namespace talux_test;

// ---- Saved ----

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
    gid_t group;
    bool (*holds)(const stParamProperties& row);
};
const File kNormal{VarSaveParamFile, 100,
                   [](const auto& row) { return !isAddress(row) && row.userlevel <= 2; }};
const File kSecurity{VarSaveSecParamFile, 101,
                     [](const auto& row) { return !isAddress(row) && row.userlevel >= 3; }};
const File kIps{VarSaveIPConfigFile, 0, isAddress};

// The value of a parameter as a file shows it; empty when it has no line.
std::string valueOf(const stParamProperties& row, int space) {
    const auto* const block =
        std::find_if(std::begin(kBlocks), std::end(kBlocks), [&](const Block& b) { return b.holds(row.id); });
    if (block == std::end(kBlocks)) return "";
    const char* const slot = raw(space) + block->slotOf(row.id);
    char value[400] = "";
    if (block->number != nullptr) {
        const double number = block->number(slot);
        std::snprintf(value, sizeof value, "%.*f", row.type == 2003 ? 6 : 0,
                      std::isnan(number) ? std::fabs(number) : number);
        return value;
    }
    if (row.type == 2015 || row.type == 2016) {
        std::strftime(value, sizeof value, row.type == 2015 ? "\"%Y-%m-%d\"" : "\"%H:%M:%S\"",
                      std::gmtime(&moment));
        return value;
    }
    std::string text = block->textIn(slot);
    for (const auto& [stored, shown] : kAddresses)
        if (isAddress(row) && text == stored) text = shown;
    return '"' + text.substr(0, text.find_first_of("\r\n")) + '"'; // never two lines
}

// The whole file, were it written from the space as it is now.
std::string expected(const File& file, int space) {
    std::string all;
    for (int position = 1; DefParamProperties[position].id != 0; ++position) {
        const stParamProperties& row = DefParamProperties[position];
        const std::string value = row.is_volatile == 1 || !file.holds(row) ? "" : valueOf(row, space);
        if (!value.empty()) all += std::string("TLX_") + row.name + "=" + value + "\n";
    }
    return all;
}

struct Save : InDirectory {
    // Every bit of the numbers, texts of any length and bytes, addresses from the list; no flag. Files can
    // hold texts without quotes, "=" and line ends only.
    void spoil(bool canBeHeld) {
        for (char* const space : {raw(kTemp), raw(kGlobal)}) {
            random.fill(space, kSpaceSize);
            std::replace_if(
                space + kBlocks[5].offset, space + kBlocks[5].slotOf(9069),
                [=](char c) { return canBeHeld && std::strchr("\"=\r\n", c) != nullptr; }, '_');
            std::strcpy(space + kBlocks[11].offset, "A:");
            for (int id = 16000; id < 16038; ++id)
                std::strncpy(space + kBlocks[12].slotOf(id),
                             kAddresses[random.below(std::size(kAddresses))][0], 20);
        }
    }
    void check(const File& file, const std::string& whole) {
        std::string path = directory / "file";
        std::ofstream(path) << std::string(99999, '#');
        chmod(path.c_str(), 02640);
        const struct stat before = statusOf(path);
        EXPECT_EQ(outcomeOf([&] { return file.save(path.data()); }), Outcome(1, "", ""));
        EXPECT_EQ(contents(path), whole);
        const struct stat after = statusOf(path);
        const bool keeps = &file == &kIps;
        EXPECT_EQ(after.st_mode & 07777, keeps ? 02640 : 0775);
        if (keeps) ownerGiven = before.st_uid, groupGiven = before.st_gid, isGiven = true;
        EXPECT_TRUE(keeps || (ownerGiven == 0 && groupGiven == file.group));
        EXPECT_TRUE(!isGiven || std::tuple(after.st_uid, after.st_gid) == std::tuple(ownerGiven, groupGiven));
    }
    Random random;
};

TEST(NothingLoaded, SavesNothing) {
    VarInit(kNoDirectory);
    char path[] = "/tmp/untouched";
    std::ofstream(path) << "old";
    for (const auto save : {VarSaveParamFile, VarSaveSecParamFile, VarSaveIPConfigFile}) {
        const auto [result, output, errors] = outcomeOf([&] { return save(path); });
        EXPECT_TRUE(
            result == 0 && output.empty() &&
            errors.ends_with("Error (TALUX_Var): no parameters loaded, '/tmp/untouched' stays as it is \n"))
            << errors;
        EXPECT_EQ(contents(path), "old");
    }
    EXPECT_EQ(std::get<0>(outcomeOf([] { return VarSaveError(SavedFile::security); })), EINVAL);
    fs::remove(path);
}

TEST_F(Save, WritesByteForByteWhatALoadBringsBack) {
    for (int round = 0; round < 20; ++round) {
        for (const File* file : {&kNormal, &kSecurity, &kIps}) {
            const bool comesBack = round % 2 == 0;
            spoil(comesBack);
            const std::string whole = expected(*file, file == &kIps ? kTemp : kGlobal);
            check(*file, whole);
            if (!comesBack) continue;
            spoil(false);
            EXPECT_EQ(outcomeOf([&] { return VarLoadFile((directory / "file").string().data(), 0); }),
                      Outcome(1, "", ""));
            for (const int space : {kTemp, kGlobal})
                ASSERT_EQ(expected(*file, space), whole) << "round " << round << " space " << space;
        }
    }
    std::memset(raw(kGlobal), '~', kSpaceSize); // long numbers and texts everywhere
    check(kNormal, expected(kNormal, kGlobal));
}

TEST_F(Save, OfANewAddressFileLeavesItsRightsToTheMask) {
    const mode_t mask = umask(0002);
    EXPECT_EQ(VarSaveIPConfigFile((directory / "file").string().data()), 1);
    umask(mask);
    EXPECT_EQ(fs::status(directory / "file").permissions(), fs::perms{0664});
}

// The zone may be another at every save. A clock beyond all years shows none.
TEST_F(Save, IsDatedInTheZoneOfTheMoment) {
    std::vector<std::string> names = {"param_2024_03_05_142233.ini", "param_2024_03_05_092233.ini",
                                      "param_2024_03_05_232233.ini"};
    moment = kMoment;
    for (const char* const zone : {"UTC0", "FIVE5", "NINE-9"}) {
        setenv("TZ", zone, 1);
        EXPECT_EQ(VarSaveParams(), 1);
    }
    // A zone's file, changed in place to one of the same length, or a link to another of the same age.
    const std::pair<fs::path, const char*> kZones[] = {
        {"/usr/share/zoneinfo/Etc/GMT-6", "param_2024_03_05_202233.ini"},
        {"/usr/share/zoneinfo/Etc/GMT-3", "param_2024_03_05_172233.ini"}};
    for (int k = 0; k < 8 && talux_test::isolated() && fs::exists(kZones[k % 2].first); ++k) {
        unsetenv("TZ");
        if (k < 4) {
            std::ofstream("/etc/localtime") << contents(kZones[k % 2].first);
            fs::last_write_time("/etc/localtime", fs::file_time_type::clock::now() + std::chrono::seconds(k));
        } else {
            fs::remove("/etc/localtime");
            fs::create_symlink(kZones[k % 2].first, "/etc/localtime");
        }
        EXPECT_EQ(VarSaveParams(), 1);
        EXPECT_TRUE(fs::remove(directory / kZones[k % 2].second));
    }
    if (talux_test::isolated()) fs::remove("/etc/localtime");
    if (sizeof moment == 8) {
        setenv("TZ", "UTC0", 1);
        for (const auto& [seconds, date, file] :
             {std::tuple(std::numeric_limits<std::time_t>::max(), "1900-01-00",
                         "param_1900_01_00_000000.ini"),
              {static_cast<std::time_t>(67768036191676799), "2147485547-12-31",
               "param_2147485547_12_31_235959.ini"}}) {
            moment = seconds;
            EXPECT_EQ(VarSaveParams(), 1);
            const std::string whole = contents(directory / "parameter.ini");
            EXPECT_NE(whole.find("TLX_Date=\"" + std::string(date) + "\"\nTLX_Time=\""), std::string::npos);
            EXPECT_EQ(contents(directory / file), whole);
            names.push_back(file);
        }
    }
    names.push_back("parameter.ini");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(namesIn(directory), names);
}

// The first characters of a path that is too long count: of `parameter.ini` all, and one less, and five.
TEST_F(Save, CutsPathsAt255Characters) {
    moment = kMoment;
    for (const std::size_t length : {241U, 242U, 249U}) {
        std::string deep = directory / std::string(length - 1 - directory.string().size(), 'd');
        fs::create_directory(deep);
        VarInit(deep.data());
        EXPECT_EQ(VarSaveParams(), 1);
        const std::string dated = kDatedCopy.substr(0, 254 - length),
                          whole = std::string("parameter.ini").substr(0, 254 - length);
        EXPECT_EQ(namesIn(deep), dated == whole ? std::vector{whole} : std::vector({dated, whole})) << length;
    }
}

// ---- Loaded ----

struct Load : InDirectory {
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

// What a load does, one literal step after the other.
class Model {
public:
    std::string output;

    void load(const std::string& content, int type) {
        int number = 0;
        for (std::size_t at = 0, end = 0; at < content.size(); at = end + 1) {
            end = std::min({content.find('\n', at), at + 253, content.size() - 1});
            // Up to a NUL.
            takeLine(content.substr(at, end + 1 - at).c_str(), // NOLINT(readability-redundant-string-cstr)
                     ++number, type);
        }
    }

private:
    void takeLine(std::string line, int number, int type) {
        if (line.find_first_of("\n#;[") == 0 || line.starts_with("//")) return;
        line.erase(0, line.find_first_not_of(" \t"));
        if (strncasecmp(line.c_str(), "TLX_", 4) != 0) return;
        const std::string key = line.substr(0, line.find_first_of(" =\n"));
        line.erase(0, key.size());
        const std::size_t blanks = line.find_first_not_of(' ');
        line.erase(0, blanks != std::string::npos && line[blanks] == '=' ? blanks : 1);
        line.erase(0, line.find_first_not_of("=\n"));
        std::string value = line.substr(0, line.find_first_of("=\n"));
        if (value.empty())
            output += "\nError (TALUX_Var): Error on line " + std::to_string(number) + "\n";
        else if (value[0] == '"')
            value = value.substr(1, value.find('"', 1) - 1);
        else
            value = value.substr(0, std::min(value.find_first_of("#;\r"), value.find("//")));
        store(rowOf(key.substr(4)), value, number, type);
    }

    void store(const stParamProperties* row, std::string& value, int line, int type) {
        if (row == nullptr || row->is_volatile == 1) return;
        double number = 0;
        if (row->type == 2011 || (row->type >= 2013 && row->type <= 2021)) {
            if (type == 0 || type == row->type) VarSetValue(row->id, asValue(value.data()));
        } else if (MakeDouble(value.c_str(), &number) == 1) {
            VarSetValue(row->id, &number);
        } else {
            output += "\nError (TALUX_Var): Wrong parameter on line " + std::to_string(line) +
                      " ID:" + std::to_string(row->id) + "\n";
        }
    }
};

TEST_F(Load, DoesWhatTheModelDoes) {
    Random random;
    const std::string parts[] = {
        "|||| \t|x|#|;|//|[|" + std::string(240, ' ') + "|\0"s,
        "TLX_|TLX_|TLX_|tlx_|TLX|LVR_",
        "Name|channel|CHANNEL|Uearth|ETH0_IP|Date|Kenn|U1_prim|nobody|",
        "=|=|=| =|   =|==| |  |\t=||=\n",
        "|5|12abc|-9999999999|1e1| 4 7|1,5|nan|\"6\"|a/b |two words|#|//|\"a;b#c//d\"| \"q\"|\"open|\"\"|" +
            std::string(49, '0') + "|" + std::string(50, '0') + "|" + std::string(300, 'y'),
        "|||=x|\"|#c| ;c|//c|\r| x|\0"s + std::string(30, 'z'),
        "\n|\n|\n|\r\n|"};
    for (int round = 0; round < 1500; ++round) {
        // Read in pieces, of which one ends in the first lines.
        std::string content(random.below(2) == 0 ? 4096U - static_cast<unsigned>(random.below(60)) : 0U,
                            '\n');
        for (int lines = random.below(8); lines >= 0; --lines)
            for (const std::string& part : parts)
                content += random.one(part);
        constexpr int kTypes[] = {0, 0, 0, 2011, 2015, 2017, 2019};
        const int type = kTypes[random.below(std::size(kTypes))];
        begin();
        Model model;
        model.load(content, type);
        VarUpdateGlobalSpace();
        const std::string wanted = image();
        begin();
        EXPECT_EQ(outcomeOf([&] { return VarLoadFile(write("file", content).data(), type); }),
                  Outcome(1, model.output, ""));
        EXPECT_EQ(differences(image(), wanted), "");
        if (HasFailure()) FAIL() << "round " << round << ", type " << type << ":\n" << content;
    }
}

// Each row of the page has a line, the stored value and the message, all in `code`.
TEST_F(Load, FollowsItsPage) {
    std::istringstream page(contents(TALUX_PAGE));
    int rows = 0;
    for (std::string row; std::getline(page, row);) {
        if (strncasecmp(row.c_str(), "| `TLX_", 7) != 0) continue;
        std::vector<std::string> codes;
        for (std::size_t at = row.find('`'), end = 0; at != std::string::npos; at = row.find('`', end + 1))
            end = row.find('`', at + 1), codes.push_back(row.substr(at + 1, end - at - 1));
        const std::string line = codes[0], name = line.substr(4, line.find_first_of(" =") - 4);
        const stParamProperties* const known = rowOf(name);
        const int id = known == nullptr ? 9000 : known->id;
        double seven = 7;
        id == 9000 ? VarSetTextValue(id, std::string("7").data()) : VarSetValue(id, &seven);
        const auto [result, output, errors] =
            outcomeOf([&] { return VarLoadFile(write("file", line + "\n").data(), 0); });
        char stored[32] = "";
        if (id != 9000) std::snprintf(stored, sizeof stored, "%g", number(id, kTemp));
        const bool isEmpty = row.find("| the empty text") != std::string::npos,
                   isNothing = row.find("| nothing") != std::string::npos;
        EXPECT_EQ(id == 9000 ? text(id, kTemp) : stored, isNothing ? "7" : isEmpty ? "" : codes[1]) << line;
        EXPECT_EQ(output.empty(), row.find("on line") == std::string::npos) << line;
        for (std::size_t k = isNothing || isEmpty ? 1 : 2; k < codes.size(); ++k)
            EXPECT_NE(output.find(codes[k]), std::string::npos) << line << output;
        ++rows;
    }
    EXPECT_GT(rows, 15);
}

TEST_F(Load, OfADirectoryEndsTheProcess) {
    std::string path = directory;
    expectEnd([&] { VarLoadFile(path.data(), 0); },
              "\nError (TALUX_Var): Can't read source file '" + path + "'\n");
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
            std::string then;
            atFlag = &then;
            const auto [result, output, errors] = outcomeOf(test.load);
            atFlag = nullptr;
            EXPECT_EQ(then.empty() ? then : differences(image(), then), "") << "changed after the flag";
            const bool applies = test.flag == 8001;
            EXPECT_EQ(result, present ? 1 : 0) << test.file;
            EXPECT_EQ(output, present ? "" : missing(test.file));
            EXPECT_TRUE(applies || errors == (present ? "" : "fopen: No such file or directory\n")) << errors;
            EXPECT_EQ(number(10012, kGlobal), present || applies ? 2 : 0)
                << "a file that is missing commits nothing";
            EXPECT_EQ(commands().empty(), !applies);
            EXPECT_EQ(number(6029, kGlobal), present ? 3 : 0) << test.file;
            for (const auto& other : cases)
                EXPECT_EQ(number(other.flag, kGlobal), test.flag == other.flag)
                    << test.file << ' ' << other.flag;
            for (const int space : {kTemp, kGlobal})
                EXPECT_EQ(number(8176, space), test.flag == 8002 ? 1 : 0) << test.file;
        }
    }
    begin(); // applying the addresses fails to keep them
    fs::remove_all(directory);
    outcomeOf(VarLoadIPConfig);
    EXPECT_EQ(number(8001, kGlobal), 1);
}

TEST_F(Load, ResetsTheAddressesOfOneKind) {
    const int kIds[] = {16000, 16029, 16032, 16035};
    write("def_ip_config.ini",
          "TLX_DNS=\"1\"\nTLX_ETH0_IP=\"2\"\nTLX_ETH0_MASK=\"3\"\nTLX_ETH0_GATEWAY=\"4\"\n");
    for (const auto& [type, expected] : // one digit of each address
         {std::pair(2018, "1934"), {2019, "9234"}, {0, "1234"}, {2020, "9934"}}) {
        begin();
        for (const int id : kIds)
            VarSetIpValue(id, const_cast<char*>("9"));
        const auto [result, output, errors] = outcomeOf([type = type] { return VarResetIPConfig(type); });
        EXPECT_TRUE(result == 1 && output.empty()) << output;
        std::string addresses;
        for (const int id : kIds)
            addresses += text(id, kGlobal);
        EXPECT_EQ(addresses, expected) << type;
        EXPECT_EQ(number(8001, kGlobal), 1);
    }
    fs::remove(directory / "def_ip_config.ini");
    begin();
    const auto [result, output, errors] = outcomeOf([] { return VarResetIPConfig(0); });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(output,
              missing("def_ip_config.ini") + missing("def_ip_config.ini") + missing("def_ip_config.ini"));
    EXPECT_EQ(commands().back(), "touch /var/resolv.conf");
    EXPECT_EQ(rateAtFirstCommand, 2) << "commits all the same, before it applies";
}

} // namespace
