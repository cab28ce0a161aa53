// What the parameter files hold byte for byte, who owns them, and that a load brings everything back.
#include "Files.h"
#include "Isolation.h"

#include <cmath>
#include <dlfcn.h>
#include <unistd.h>

namespace {
constinit uid_t ownerGiven = 1;
constinit gid_t groupGiven = 1;
constinit bool isGiven = false;
} // namespace

extern "C" int fchown(int file, uid_t owner, gid_t group) noexcept {
    ownerGiven = owner, groupGiven = group;
    const int result = reinterpret_cast<decltype(fchown)*>(dlsym(RTLD_NEXT, "fchown"))(file, owner, group);
    isGiven = result == 0;
    return result;
}

namespace {

using namespace talux_test;

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
    // A zone's file, changed in place, or a link to another of the same age.
    const std::pair<fs::path, const char*> kZones[] = {
        {"/usr/share/zoneinfo/Asia/Kathmandu", "param_2024_03_05_200733.ini"},
        {"/usr/share/zoneinfo/Asia/Tehran", "param_2024_03_05_175233.ini"}};
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

} // namespace
