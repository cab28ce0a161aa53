// Numbers are read and printed as the C library does it in the C locale, whatever locale the host has.
#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Funcs.h"
#include "ParamSystem/TALUX_Var.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <random>
#include <string>

namespace {

constexpr double kUntouched = 77;

struct Outcome {
    int result;
    double value;
    bool operator==(const Outcome& other) const {
        const bool areBits = std::bit_cast<std::int64_t>(value) == std::bit_cast<std::int64_t>(other.value);
        return result == other.result && (areBits || (std::isnan(value) && std::isnan(other.value)));
    }
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
        return out << outcome.result << ", " << outcome.value;
    }
};

template <typename Value, int (*parse)(const char*, Value*)>
Outcome outcome(const std::string& text) {
    Value value{static_cast<Value>(kUntouched)};
    const int result = parse(text.c_str(), &value);
    return {result, static_cast<double>(value)};
}

// The first word, as a whole, decides.
template <typename Convert>
Outcome told(const std::string& text, Convert convert) {
    const std::size_t start = text.find_first_not_of(' ');
    if (text.size() > 49 || start == std::string::npos) return {-1, kUntouched};
    const std::string word = text.substr(start, text.find(' ', start) - start);
    char* end = nullptr;
    const double value = convert(word.c_str(), &end);
    return *end == '\0' ? Outcome{1, value} : Outcome{-2, 0};
}

template <int base>
double longOf(const char* word, char** end) {
    return static_cast<double>(std::clamp<long long>(std::strtoll(word, end, base), INT32_MIN, INT32_MAX));
}
double unsignedOf(const char* word, char** end) { // a sign negates within 32 bits
    errno = 0;
    const unsigned long long bits = std::strtoull(word, end, 10);
    const unsigned long long magnitude = std::strchr(word, '-') != nullptr ? 0 - bits : bits;
    return errno == ERANGE || magnitude > UINT32_MAX ? UINT32_MAX : static_cast<std::uint32_t>(bits);
}
double doubleOf(const char* word, char** end) {
    static const locale_t c = newlocale(LC_ALL_MASK, "C", locale_t{});
    return strtod_l(word, end, c);
}

class Numbers : public testing::Test {
protected:
    std::mt19937_64 random{23};

    unsigned below(unsigned limit) { return static_cast<unsigned>(random() % limit); }

    std::string anyText() {
        static const std::string pieces[] = {
            "0",     "7",  "12", "99999999", "2147483648", "4294967295", ".",  "-",  "+",  "e", "E5",
            "e-300", "0x", "f",  "inf",      "nan",        " ",          "  ", "\t", "\n", ",", "x"};
        std::string text(below(4) == 0 ? below(50) : 0, " 0"[below(2)]);
        for (unsigned k = below(4); k > 0; --k)
            text += pieces[below(std::size(pieces))];
        if (below(2) == 0) { // plain digits with a point somewhere
            std::string digits = std::to_string(random() >> below(64));
            if (below(3) != 0) digits.insert(below(static_cast<unsigned>(digits.size()) + 1), ".");
            text += (below(2) == 0 ? "-" : "") + digits + (below(4) == 0 ? " x" : "");
        }
        return text;
    }
    void readMany() {
        for (int round = 0; round < 60000; ++round) {
            const std::string text = anyText();
            ASSERT_EQ((outcome<VarLong, MakeLong>(text)), told(text, longOf<10>)) << text;
            ASSERT_EQ((outcome<VarLong, MakeLongFromHex>(text)), told(text, longOf<16>)) << text;
            ASSERT_EQ((outcome<VarULong, MakeULong>(text)), told(text, unsignedOf)) << text;
            ASSERT_EQ((outcome<double, MakeDouble>(text)), told(text, doubleOf)) << text;
        }
    }
};

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

} // namespace

TEST_F(Numbers, AreReadAsTold) {
    readMany();
}

TEST_F(Numbers, KeepThePointInACommaLocale) {
    if (!setCommaLocale()) GTEST_SKIP() << "no locale with a decimal comma can be had";
    ASSERT_EQ(*std::localeconv()->decimal_point, ',');
    readMany();
    std::setlocale(LC_ALL, "C");
}

// Doubles of every size, and those around the middle between two texts.
TEST_F(Numbers, ArePrintedAsByPrintf) {
    char path[] = "", text[kKeplTextSize], expected[400], line[] = "TLX_MW_start,TLX_rec_start,/";
    LoadDefParamProperties();
    KEPL_Interpreter interpreter(path);
    const auto idOf = [](std::string name) { return GetParamPropertiesByName(name.data())->id; };
    const int element = idOf("vMWR"), dividend = idOf("MW_start"), divisor = idOf("rec_start");
    for (int round = 0; round < 120000; ++round) {
        const std::uint64_t bits = random();
        const auto whole = static_cast<double>(static_cast<std::int64_t>(bits) >> bits % 61);
        const double candidates[] = {std::bit_cast<double>(bits),
                                     std::ldexp(whole, -static_cast<int>(below(90))), (whole + 0.5) / 1e6,
                                     (2 * whole + 1) / 128};
        double value = candidates[below(4)];
        if (below(2) == 0) value = std::nextafter(value, below(2));
        if (std::isnan(value)) value = std::fabs(value);
        VarSetGlobalDoubleValue(element,
                                std::copysign(value, std::isnan(value) ? -1 : value)); // no sign of a nan
        int iSP = 0, type = 0;
        double slot;
        interpreter.ProcessCommand("vMWR 1", text, &slot, &type, &iSP, 3);
        std::snprintf(expected, sizeof expected, "%f\n", value);
        ASSERT_STREQ(text, expected) << value;
        if (round % 8 != 0) continue;

        const auto numerator = static_cast<std::int32_t>(bits), denominator = 1 << round % 11;
        VarSetGlobalLongValue(dividend, numerator);
        VarSetGlobalLongValue(divisor, denominator);
        interpreter.ProcessLine(line, nullptr, text, path, 3);
        std::snprintf(expected, sizeof expected, "%.0f", 1.0 * numerator / denominator);
        ASSERT_STREQ(text, expected) << numerator << " " << denominator;
    }
}

TEST_F(Numbers, HaveBitsCountedByTheirPlaces) {
    for (int i = 0; i < 10000; ++i) {
        const int value = i == 0 ? -1 : static_cast<int>(random() >> below(64));
        int counts[2] = {};
        for (int bit = 0; bit < 32; ++bit)
            counts[bit % 2] += static_cast<int>(static_cast<unsigned>(value) >> bit & 1u);
        ASSERT_EQ(bits(value), counts[0] + counts[1]) << value;
        ASSERT_EQ(oddbits(value), counts[0]) << value;
        ASSERT_EQ(evenbits(value), counts[1]) << value;
    }
}

TEST(TextHelpers, ReplaceCharactersAndCutPaths) {
    char text[] = "a.b..\xE4", buffer[64];
    EXPECT_EQ(strrep(text, '.', '\xE4'), 1);
    EXPECT_STREQ(text, "a\xE4"
                       "b\xE4\xE4\xE4");
    for (const auto& [path, folder] : {std::pair{"/usr/bin/app", "/usr/bin"},
                                       {"app", ""},
                                       {"/app", ""},
                                       {"", ""},
                                       {"/", ""},
                                       {"\"/opt/x/app\"", "/opt/x"},
                                       {"C:\\dir\\app.exe", "C:\\dir"},
                                       {"c:app", "c"},
                                       {"a/", "a"}}) {
        EXPECT_EQ(CalcExePath(path, buffer), 1);
        EXPECT_STREQ(buffer, folder) << path;
    }
}
