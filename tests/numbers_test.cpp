// Numbers are read and printed as the C library does it in the C locale, whatever locale the host has.
#include "KeplModel.h"
#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Funcs.h"

#include <bit>
#include <clocale>

using namespace talux_test;

namespace {

// Result and value of a parser; a nan is like any other.
using Parsed = std::pair<int, std::uint64_t>;
Parsed parsed(int result, double value) {
    return {result, std::isnan(value) ? 1 : std::bit_cast<std::uint64_t>(value)};
}
constexpr int kUntouched = 77;

template <typename Value>
Parsed parsedBy(int (*parser)(const char*, Value*), const std::string& text) {
    Value value = kUntouched;
    const int result = parser(text.c_str(), &value);
    return parsed(result, static_cast<double>(value));
}
template <typename Convert>
Parsed expectedBy(const std::string& text, Convert convert) {
    int why;
    const auto value = parse(text, convert, why);
    return parsed(why, value ? static_cast<double>(*value) : why == -1 ? kUntouched : 0);
}
std::uint32_t unsignedOf(const char* word, char** end) { // a sign negates within 32 bits
    errno = 0;
    const unsigned long long bits = std::strtoull(word, end, 10);
    const unsigned long long magnitude = std::strchr(word, '-') != nullptr ? 0 - bits : bits;
    return errno == ERANGE || magnitude > UINT32_MAX ? UINT32_MAX : static_cast<std::uint32_t>(bits);
}
const locale_t kC = newlocale(LC_ALL_MASK, "C", locale_t{});
double doubleOf(const char* word, char** end) {
    return strtod_l(word, end, kC);
}
std::string printed(double number, int type) {
    const locale_t callers = uselocale(kC);
    std::string text = print(number, type);
    uselocale(callers);
    return text;
}

struct Numbers : testing::Test {
    std::mt19937_64 random{23};

    unsigned below(unsigned limit) { return static_cast<unsigned>(random() % limit); }

    std::string anyText() {
        static const Words pieces =
            tokens("0|7|12|99999999|2147483648|4294967295|.|-|+|e|E5|e-300|0x|f|inf|nan|,|x|\t|\n| |  ", "|");
        std::string text(below(4) == 0 ? below(50) : 0, " 0"[below(2)]);
        for (unsigned k = below(4); k > 0; --k)
            text += pieces[below(static_cast<unsigned>(pieces.size()))];
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
            ASSERT_EQ(parsedBy(MakeLong, text), expectedBy(text, longOf<10>)) << text;
            ASSERT_EQ(parsedBy(MakeLongFromHex, text), expectedBy(text, longOf<16>)) << text;
            ASSERT_EQ(parsedBy(MakeULong, text), expectedBy(text, unsignedOf)) << text;
            ASSERT_EQ(parsedBy(MakeDouble, text), expectedBy(text, doubleOf)) << text;
        }
    }

    // Doubles of every size, and those around the middle between two texts.
    void printMany() {
        char path[] = "", text[kKeplTextSize], line[] = "TLX_MW_start,TLX_rec_start,/";
        LoadDefParamProperties();
        KEPL_Interpreter interpreter(path);
        const int element = rowOf("vMWR")->id, dividend = rowOf("MW_start")->id,
                  divisor = rowOf("rec_start")->id;
        for (int round = 0; round < 120000; ++round) {
            const std::uint64_t bits = random();
            const auto whole = static_cast<double>(static_cast<std::int64_t>(bits) >> bits % 61);
            const double candidates[] = {std::bit_cast<double>(bits),
                                         std::ldexp(whole, -static_cast<int>(below(90))), (whole + 0.5) / 1e6,
                                         (2 * whole + 1) / 128};
            double value = candidates[below(4)];
            if (below(2) == 0) value = std::nextafter(value, below(2));
            VarSetGlobalDoubleValue(element, value);
            int iSP = 0, type = 0;
            interpreter.ProcessCommand("vMWR 1", text, &value, &type, &iSP, 3);
            ASSERT_EQ(text, printed(value, kTypeDouble) + "\n");
            if (round % 8 != 0) continue;

            const auto numerator = static_cast<std::int32_t>(bits), denominator = 1 << round % 11;
            VarSetGlobalLongValue(dividend, numerator);
            VarSetGlobalLongValue(divisor, denominator);
            interpreter.ProcessLine(line, nullptr, text, path, 3);
            ASSERT_EQ(text, printed(1.0 * numerator / denominator, kTypeLong))
                << numerator << " " << denominator;
        }
    }
};

// A locale that writes numbers with a comma; made on the spot when the machine has none but its sources.
bool setCommaLocale() {
    std::string folder = testing::TempDir() + "localeXXXXXX";
    if (mkdtemp(folder.data()) == nullptr) return false;
    setenv("LOCPATH", folder.c_str(), 1);
    const std::string make = "localedef -c -i de_DE -f UTF-8 " + folder + "/de_DE.UTF-8 > /dev/null 2>&1";
    if (pclose(popen(make.c_str(), "re")) != 0) unsetenv("LOCPATH"); // NOLINT(cert-env33-c)
    const bool isSet = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    fs::remove_all(folder);
    return isSet;
}

} // namespace

TEST_F(Numbers, AreReadAndPrintedAsByTheCLibrary) {
    readMany();
    printMany();
}

TEST_F(Numbers, KeepThePointInACommaLocale) {
    if (!setCommaLocale()) GTEST_SKIP() << "no locale with a decimal comma can be had";
    ASSERT_EQ(*std::localeconv()->decimal_point, ',');
    readMany();
    printMany();
    std::setlocale(LC_ALL, "C");
}

TEST_F(Numbers, HaveBitsCountedByTheirPlaces) {
    for (int i = 0; i < 10000; ++i) {
        const auto value = i == 0 ? ~0U : static_cast<unsigned>(random() >> below(64));
        const auto number = static_cast<int>(value);
        ASSERT_EQ(bits(number), std::popcount(value)) << value;
        ASSERT_EQ(oddbits(number), std::popcount(value & 0x55555555)) << value;
        ASSERT_EQ(evenbits(number), std::popcount(value & 0xAAAAAAAA)) << value;
    }
}

TEST(TextHelpers, ReplaceCharactersAndCutPaths) {
    char text[] = "a.b..\xE4", buffer[64];
    EXPECT_EQ(strrep(text, '.', '\xE4'), 1);
    EXPECT_STREQ(text, "a\xE4"
                       "b\xE4\xE4\xE4");
    const std::string paths =
        "/usr/bin/app|/usr/bin|\"/opt/x/app\"|/opt/x|C:\\dir\\app.exe|C:\\dir|c:app|c|a/|a";
    const Words rows = tokens(paths, "|");
    for (std::size_t k = 0; k < rows.size(); k += 2) {
        EXPECT_EQ(CalcExePath(rows[k].c_str(), buffer), 1);
        EXPECT_EQ(buffer, rows[k + 1]);
    }
    for (const char* const path : {"app", "/app", "", "/"}) {
        CalcExePath(path, buffer);
        EXPECT_STREQ(buffer, "") << path;
    }
}
