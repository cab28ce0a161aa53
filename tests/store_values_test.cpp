// Values of any kind, factory defaults and the commit, against the byte model of the spaces.
#include "Store.h"

#include <climits>
#include <cmath>
#include <limits>
#include <map>

using namespace talux_test;

namespace {

// ---- What the store should do, on a copy of one space ----

// Toward zero, kept within limits that fit 64 bits.
long long truncated(double value, long long lowest, long long highest) {
    if (std::isnan(value)) return 0;
    return static_cast<long long>(std::trunc(std::fmin(std::fmax(value, double(lowest)), double(highest))));
}

void modelWrite(std::string& space, int id, double value, const char* text) {
    for (const Block& block : kBlocks) {
        if (!block.holds(id)) continue;
        char* const slot = space.data() + block.slotOf(id);
        const auto single = static_cast<float>(value);
        const long long bits =
            block.type == 2010 ? truncated(value, 0, UINT_MAX) : truncated(value, INT_MIN, INT_MAX);
        if (block.number == nullptr)
            block.putText(slot, text);
        else if (block.type == 2002)
            std::memcpy(slot, &value, 8);
        else if (block.type == 2003)
            std::memcpy(slot, &single, 4);
        else
            std::memcpy(slot, &bits, block.size); // little-endian: the low bytes come first
    }
}

// A float that is no number keeps its sign and its bits; the conversions of a processor may not.
double exactNan(const char* slot) {
    std::uint32_t bits;
    std::memcpy(&bits, slot, 4);
    const std::uint64_t wide = std::uint64_t(bits & 0x7FFFFF) << 29 | (bits >> 31 ? 0xFFFULL : 0x7FFULL)
                                                                          << 52;
    double number;
    std::memcpy(&number, &wide, 8);
    return number;
}

// What a read leaves behind the pointer, in a buffer that was all '#'.
std::string modelRead(const std::string& space, int id) {
    std::string result(256, '#');
    for (const Block& block : kBlocks) {
        if (!block.holds(id) || block.type == 2008)
            continue; // the long value of such an id has the last word
        const char* const slot = space.data() + block.slotOf(id);
        double number = block.number == nullptr ? 0 : block.number(slot);
        if (block.type == 2003 && std::isnan(number)) number = exactNan(slot);
        const std::string read = block.number == nullptr ? block.textIn(slot) + '\0'
                                                         : bytes(reinterpret_cast<const char*>(&number), 8);
        result.replace(0, read.size(), read);
    }
    return result;
}

// The commit copies numbers bit for bit, whatever they are, and texts up to their end.
void modelCopy(std::string& to, const std::string& from, int id) {
    for (const Block& block : kBlocks) {
        if (!block.holds(id)) continue;
        const std::size_t slot = block.slotOf(id);
        if (block.number == nullptr)
            block.putText(to.data() + slot, block.textIn(from.data() + slot).c_str());
        else
            to.replace(slot, block.size, from, slot, block.size);
    }
}

using Values = AgainstModel;

TEST_F(Values, GoWhereTheirIdSaysAndSaturate) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNumbers[] = {
        0.0,          -0.0,       0.9,          1.0,   -1.9,         2.0,
        70000.0,      255.9,      256.0,        -1.0,  32767.5,      -32769.0,
        0.1,          16777217.0, 1e12,         -1e12, 1e39,         -1e300,
        2147483647.0, 1e-320,     2147483648.0, 4e9,   4294967296.0, std::numeric_limits<double>::quiet_NaN(),
        kInfinity,    -kInfinity, -2147483649.0};
    constexpr decltype(&VarSetValue) kSet[] = {VarSetValue, VarSetGlobalValue},
                                     kGet[] = {VarGetValue, VarGetGlobalValue};
    for (int k = 0; k < 30000; ++k) {
        const Block& block = kBlocks[random.below(std::size(kBlocks))];
        const int ids[] = {block.first - 1,          block.first,
                           7000 + random.below(7),   block.first + random.below(block.count + 1),
                           18000 + random.below(34), 19000 + random.below(21),
                           30000 + random.below(3),  random.below(40000) - 100};
        const int id = ids[random.below(std::size(ids))], space = random.below(2);
        alignas(double) char value[256];
        const double number = kNumbers[random.below(std::size(kNumbers))];
        const std::string text = random.text(200);
        const bool asText = std::any_of(std::begin(kBlocks), std::end(kBlocks),
                                        [&](const Block& b) { return b.number == nullptr && b.holds(id); });
        asText ? std::strcpy(value, text.c_str()) : std::memcpy(value, &number, sizeof number);
        kSet[space](id, asValue(value));
        modelWrite(model[space], id, number, text.c_str());
        ASSERT_TRUE(spacesMatch()) << id << " = " << number;

        std::memset(value, '#', sizeof value);
        kGet[space](id, asValue(value));
        ASSERT_EQ(bytes(value, sizeof value), modelRead(model[space], id)) << id << ' ' << number;
    }
}

// Runs before the table is loaded: no position has a record then.
TEST_F(Values, OfNoRecordAreReportedByTheCommit) {
    ASSERT_EQ(GetParamPropertiesByOrder(1), nullptr) << "run this program as a whole";
    VarSetDefault();
    std::string expected;
    for (int k = 0; k < 2416; ++k)
        expected += "Error (TALUX_Var): Error during copy temp->global\n";
    EXPECT_TRUE(outcomeOf(VarUpdateGlobalSpace) == Outcome(1, "", expected));
    EXPECT_TRUE(spacesMatch());
}

TEST_F(Values, AreSetToTheirDefaultsInTheTemporarySpaceOnly) {
    LoadDefParamProperties();
    VarSetDefault();
    for (int k = 1; DefParamProperties[k].id != 0; ++k) {
        const stParamProperties& row = DefParamProperties[k];
        modelWrite(model[kTemp], row.id, row.val_def, row.val_def_text);
    }
    EXPECT_TRUE(spacesMatch());
    VarLong channel = 0;
    char address[20];
    VarGetLongValue(6029, &channel);
    VarGetIpValue(16029, address);
    EXPECT_EQ(channel, 11);
    EXPECT_STREQ(address, "192.168.55.127");
}

TEST_F(Values, OfPersistentParametersAreCommittedAndNoOthers) {
    LoadDefParamProperties();
    std::map<int, int> committed;
    for (int k = 1; DefParamProperties[k].id != 0; ++k) {
        const stParamProperties& row = DefParamProperties[k];
        if (row.is_volatile == 1 || (row.id >= 18000 && row.id <= 19020)) continue;
        modelCopy(model[kGlobal], model[kTemp], row.id);
        ++committed[row.type >= 2018 && row.type <= 2021 ? 2018 : row.type];
    }
    const std::map<int, int> expected = {{2003, 153}, {2004, 91}, {2010, 173}, {2011, 53}, {2012, 131},
                                         {2015, 1},   {2016, 1},  {2017, 1},   {2018, 38}};
    EXPECT_EQ(committed, expected);
    for (int k = 0; k < 2; ++k) {
        EXPECT_EQ(outcomeOf(VarUpdateGlobalSpace), Outcome(1, "", ""));
        EXPECT_TRUE(spacesMatch()) << "commit " << k;
    }
}

} // namespace
