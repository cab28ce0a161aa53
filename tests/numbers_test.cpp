// Number parsers, bit counters and text helpers.
#include "ParamSystem/TALUX_Funcs.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

namespace {

constexpr double kUntouched = 77;

struct Outcome {
    int result;
    double value;
};

template <typename Value, int (*parse)(const char*, Value*)>
Outcome outcome(const char* text) {
    Value value{static_cast<Value>(kUntouched)};
    const int result = parse(text, &value);
    return {result, static_cast<double>(value)};
}

using Parser = Outcome (*)(const char*);
constexpr Parser kLong = outcome<VarLong, MakeLong>;
constexpr Parser kHex = outcome<VarLong, MakeLongFromHex>;
constexpr Parser kULong = outcome<VarULong, MakeULong>;
constexpr Parser kDouble = outcome<double, MakeDouble>;

const std::string kFortyNine = std::string(47, ' ') + "42";

struct NumberRow {
    Parser parse;
    std::string text;
    int result;
    double value;
};

const NumberRow kNumbers[] = {
    {kLong, "  42  ", 1, 42},
    {kLong, "42 43", 1, 42},
    {kLong, "\t-7", 1, -7},
    {kLong, "2147483647", 1, 2147483647},
    {kLong, "2147483648", 1, 2147483647},
    {kLong, "-2147483649", 1, -2147483648.0},
    {kLong, "99999999999999999999", 1, 2147483647},
    {kLong, "42abc", -2, 0},
    {kLong, "4.2", -2, 0},
    {kLong, "0x10", -2, 0},
    {kLong, "12\n", -2, 0},
    {kLong, "12\t", -2, 0},
    {kLong, "\t", -2, 0},
    {kLong, "", -1, kUntouched},
    {kLong, "   ", -1, kUntouched},
    {kLong, std::string(49, ' '), -1, kUntouched},
    {kLong, kFortyNine, 1, 42},
    {kLong, kFortyNine + " ", -1, kUntouched},
    {kLong, std::string(50, 'x'), -1, kUntouched},
    {kLong, std::string(100000, '1'), -1, kUntouched},
    {kHex, "1f", 1, 31},
    {kHex, "1F", 1, 31},
    {kHex, "0x1f", 1, 31},
    {kHex, "-0X1F", 1, -31},
    {kHex, "FFFFFFFF", 1, 2147483647},
    {kHex, "g1", -2, 0},
    {kHex, "0x", -2, 0},
    {kULong, "4294967295", 1, 4294967295.0},
    {kULong, "4294967296", 1, 4294967295.0},
    {kULong, "18446744073709551614", 1, 4294967295.0},
    {kULong, "-0", 1, 0},
    {kULong, "-1", 1, 4294967295.0},
    {kULong, "-2", 1, 4294967294.0},
    {kULong, "-4294967295", 1, 1},
    {kULong, "-4294967296", 1, 4294967295.0},
    {kULong, "-99999999999999999999", 1, 4294967295.0},
    {kULong, "1.0", -2, 0},
    {kDouble, "1.5e3", 1, 1500},
    {kDouble, " -.5 x", 1, -0.5},
    {kDouble, "0x1p4", 1, 16},
    {kDouble, "-inf", 1, -HUGE_VAL},
    {kDouble, "1e999", 1, HUGE_VAL},
    {kDouble, "1,5", -2, 0},
    {kDouble, "1.5.", -2, 0},
    {kDouble, "-", -2, 0},
    {kDouble, "", -1, kUntouched},
};

void expectNumbersOfTheTable() {
    for (const NumberRow& row : kNumbers) {
        const Outcome got = row.parse(row.text.c_str());
        if (got.result != row.result || got.value != row.value)
            ADD_FAILURE() << '"' << row.text << "\" gave " << got.result << ", " << got.value
                          << " instead of " << row.result << ", " << row.value;
    }
    EXPECT_TRUE(std::isnan(kDouble("nan").value));
}

// A locale that writes numbers with a comma; made on the spot when the machine has none but its sources.
bool setCommaLocale() {
    std::string folder = testing::TempDir() + "localeXXXXXX";
    if (mkdtemp(folder.data()) == nullptr) return false;
    setenv("LOCPATH", folder.c_str(), 1);
    const std::string make = "localedef -c -i de_DE -f UTF-8 " + folder + "/de_DE.UTF-8 > /dev/null 2>&1";
    if (std::system(make.c_str()) != 0) unsetenv("LOCPATH");
    const char* set = nullptr;
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8"})
        if (set == nullptr) set = std::setlocale(LC_ALL, name);
    std::filesystem::remove_all(folder);
    return set != nullptr;
}

int countBits(int value, int first, int step) {
    int count = 0;
    for (int bit = first; bit < 32; bit += step)
        count += static_cast<int>(static_cast<unsigned>(value) >> bit & 1u);
    return count;
}

} // namespace

TEST(Numbers, FollowTheTable) {
    expectNumbersOfTheTable();
}

TEST(Numbers, KeepThePointInACommaLocale) {
    if (!setCommaLocale()) GTEST_SKIP() << "no locale with a decimal comma can be had";
    ASSERT_EQ(*std::localeconv()->decimal_point, ',');
    expectNumbersOfTheTable();
    std::setlocale(LC_ALL, "C");
}

TEST(Bits, AreCountedByTheirPlaces) {
    std::mt19937 random{16};
    for (int i = 0; i < 10000; ++i) {
        const int value = i == 0 ? -1 : static_cast<int>(random() >> random() % 32);
        ASSERT_EQ(bits(value), countBits(value, 0, 1)) << value;
        ASSERT_EQ(oddbits(value), countBits(value, 0, 2)) << value;
        ASSERT_EQ(evenbits(value), countBits(value, 1, 2)) << value;
    }
}

TEST(TextHelpers, ReplaceCharactersInPlace) {
    for (const auto& [text, find, rep, expected] :
         {std::tuple<std::string, char, char, std::string>{"a.b..c", '.', ',', "a,b,,c"},
          {"", 'a', 'b', ""},
          {"abc", 'x', 'y', "abc"},
          {"\xE4x\xE4", '\xE4', 'a', "axa"}}) {
        std::string changed = text;
        EXPECT_EQ(strrep(changed.data(), find, rep), 1);
        EXPECT_EQ(changed, expected);
    }
}

TEST(TextHelpers, CutAPathBehindItsFolder) {
    for (const auto& [path, folder] : {std::pair{"/usr/bin/app", "/usr/bin"},
                                       {"app", ""},
                                       {"/app", ""},
                                       {"", ""},
                                       {"/", ""},
                                       {"\"/opt/x/app\"", "/opt/x"},
                                       {"C:\\dir\\app.exe", "C:\\dir"},
                                       {"c:app", "c"},
                                       {"a/", "a"},
                                       {"\"app\"", ""}}) {
        char buffer[64];
        EXPECT_EQ(CalcExePath(path, buffer), 1);
        EXPECT_STREQ(buffer, folder) << path;
    }
}
