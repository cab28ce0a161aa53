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

void modelWriteNumber(char* slot, const Block& block, double value) {
    const long long bits =
        block.type == 2010 ? truncated(value, 0, UINT_MAX) : truncated(value, INT_MIN, INT_MAX);
    const auto single = static_cast<float>(value);
    if (block.type == 2002)
        std::memcpy(slot, &value, 8);
    else if (block.type == 2003)
        std::memcpy(slot, &single, 4);
    else
        std::memcpy(slot, &bits, block.slot); // little-endian: the low bytes come first
}

void modelWriteText(char* slot, const Block& block, const char* text) {
    std::strncpy(slot, text, block.slot - 1);
    if (block.type == 2011) slot[127] = '\0';
}

void modelWrite(std::string& space, int id, double value, const char* text) {
    for (const Block& block : kBlocks) {
        if (!block.holds(id)) continue;
        char* const slot = space.data() + block.slotOf(id);
        block.isText ? modelWriteText(slot, block, text) : modelWriteNumber(slot, block, value);
    }
}

// Bytes that a read leaves behind the pointer, of a buffer that was all '#'.
std::string modelRead(const std::string& space, int id, std::size_t size) {
    std::string result(size, '#');
    for (const Block& block : kBlocks) {
        if (!block.holds(id)) continue;
        const char* const slot = space.data() + block.slotOf(id);
        if (block.isText) {
            const std::string text(slot, strnlen(slot, block.slot - 1) + 1);
            result.replace(0, text.size(), text.substr(0, text.size() - 1) + '\0');
            continue;
        }
        if (block.type == 2008) continue; // the long value of the same id has the last word
        double number = 0;
        float single = 0;
        std::int32_t whole = 0;
        std::int16_t narrow = 0;
        switch (block.type) {
        case 2002:
            std::memcpy(&number, slot, 8);
            break;
        case 2003:
            std::memcpy(&single, slot, 4), number = double(single);
            break;
        case 2004:
            std::memcpy(&whole, slot, 4), number = whole;
            break;
        case 2010:
            number = static_cast<unsigned char>(*slot);
            break;
        default:
            std::memcpy(&narrow, slot, 2), number = narrow;
        }
        result.replace(0, 8, reinterpret_cast<const char*>(&number), 8);
    }
    return result;
}

class Values : public testing::Test {
protected:
    void SetUp() override {
        VarInit(kNoDirectory);
        for (const int space : {kTemp, kGlobal}) {
            random.fill(raw(space), kSpaceSize);
            model[space] = bytes(raw(space), kSpaceSize);
        }
    }

    void expectModel(const std::string& what) {
        for (const int space : {kTemp, kGlobal})
            ASSERT_TRUE(bytes(raw(space), kSpaceSize) == model[space]) << what << ", space " << space;
    }

    Random random;
    std::string model[2];
};

// ---- Values of any kind ----

TEST_F(Values, GoWhereTheirIdSaysAndSaturate) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNumbers[] = {
        0.0,          -0.0,       0.9,          1.0,   -1.9,         2.0,
        70000.0,      255.9,      256.0,        -1.0,  32767.5,      -32769.0,
        0.1,          16777217.0, 1e12,         -1e12, 1e39,         -1e300,
        2147483647.0, 1e-320,     2147483648.0, 4e9,   4294967296.0, std::numeric_limits<double>::quiet_NaN(),
        kInfinity,    -kInfinity, -2147483649.0};
    const auto set = {VarSetValue, VarSetGlobalValue}, get = {VarGetValue, VarGetGlobalValue};
    for (int k = 0; k < 30000; ++k) {
        const Block& block = kBlocks[random.below(std::size(kBlocks))];
        const int ids[] = {block.first - 1,
                           block.first,
                           block.first + random.below(block.count + 1),
                           7000 + random.below(7),
                           18000 + random.below(34),
                           19000 + random.below(21),
                           30000 + random.below(3),
                           random.below(40000) - 100};
        const int id = ids[random.below(std::size(ids))], space = random.below(2);
        alignas(double) char value[256];
        const double number = kNumbers[random.below(std::size(kNumbers))];
        const std::string text = random.text(200);
        const bool asText = std::any_of(std::begin(kBlocks), std::end(kBlocks),
                                        [&](const Block& b) { return b.isText && b.holds(id); });
        asText ? copyInto(value, sizeof value, text) : void(std::memcpy(value, &number, sizeof number));
        set.begin()[space](id, asValue(value));
        modelWrite(model[space], id, number, text.c_str());
        ASSERT_NO_FATAL_FAILURE(expectModel(std::to_string(id) + " = " + std::to_string(number)));

        std::memset(value, '#', sizeof value);
        get.begin()[space](id, asValue(value));
        ASSERT_EQ(bytes(value, sizeof value), modelRead(model[space], id, sizeof value))
            << id << ' ' << number;
    }
}

TEST_F(Values, OfTheSharedIdsGoToBothSlots) {
    double value = 70000.0;
    VarSetValue(7000, &value);
    short narrow = 0;
    VarGetIntValue(7000, &narrow);
    EXPECT_EQ(narrow, 4464);
    VarSetIntValue(7000, 1);
    VarGetValue(7000, &value);
    EXPECT_EQ(value, 70000.0);
}

// ---- Defaults and commit ----

// Runs before the table is loaded: no position has a record then.
TEST_F(Values, OfNoRecordAreReportedByTheCommit) {
    ASSERT_EQ(GetParamPropertiesByOrder(1), nullptr) << "run this program as a whole";
    Captured errors(stderr);
    EXPECT_EQ(VarUpdateGlobalSpace(), 1);
    VarSetDefault();
    std::string expected;
    for (int k = 0; k < 2416; ++k)
        expected += "Error (TALUX_Var): Error during copy temp->global\n";
    EXPECT_TRUE(errors.text() == expected);
    expectModel("without records");
}

TEST_F(Values, AreSetToTheirDefaultsInTheTemporarySpaceOnly) {
    LoadDefParamProperties();
    VarSetDefault();
    for (int k = 1; k <= kParamCount; ++k) {
        const stParamProperties& row = DefParamProperties[k];
        modelWrite(model[kTemp], row.id, row.val_def, row.val_def_text);
    }
    expectModel("defaults");
    VarUpdateGlobalSpace();
    VarLong channel = 0;
    char address[20];
    VarGetGlobalLongValue(6029, &channel);
    VarGetGlobalIpValue(16029, address);
    EXPECT_EQ(channel, 11);
    EXPECT_STREQ(address, "192.168.55.127");
}

TEST_F(Values, OfPersistentParametersAreCommittedAndNoOthers) {
    LoadDefParamProperties();
    std::map<int, int> committed;
    for (int k = 1; k <= kParamCount; ++k) {
        const stParamProperties& row = DefParamProperties[k];
        if (row.is_volatile == 1 || (row.id >= 18000 && row.id <= 19020)) continue;
        const std::string value = modelRead(model[kTemp], row.id, 256);
        double number = 0;
        std::memcpy(&number, value.data(), sizeof number);
        modelWrite(model[kGlobal], row.id, number, value.c_str());
        ++committed[row.type >= 2018 && row.type <= 2021 ? 2018 : row.type];
    }
    Captured errors(stderr);
    EXPECT_EQ(VarUpdateGlobalSpace(), 1);
    EXPECT_EQ(errors.text(), "");
    expectModel("commit");
    const std::map<int, int> expected = {{2003, 153}, {2004, 91}, {2010, 173}, {2011, 53}, {2012, 131},
                                         {2015, 1},   {2016, 1},  {2017, 1},   {2018, 38}};
    EXPECT_EQ(committed, expected);
    EXPECT_EQ(VarUpdateGlobalSpace(), 1);
    expectModel("a second commit");
}

} // namespace
