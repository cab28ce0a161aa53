// The accessor family against a byte model of the two value spaces.
#include "StoreMembers.h"

#include <climits>
#include <gmock/gmock.h>

using namespace talux_test;

namespace {

class Family : public testing::Test {
public:
    void SetUp() override {
        VarInit(kNoDirectory);
        for (const int space : {kTemp, kGlobal})
            random.fill(raw(space), kSpaceSize);
        model = bothSpaces();
    }

    char* slot(const Block& block, int space, int id) {
        return model.data() + static_cast<std::size_t>(space) * kSpaceSize + block.slotOf(id);
    }

    void writeSingle(const Block& block, const Member& member, int space, int id) {
        if (!block.isText) {
            random.fill(buffer, 8);
            std::memcpy(slot(block, space, id), buffer, block.slot);
        } else {
            copyInto(buffer, sizeof buffer, random.text(200));
            std::strncpy(slot(block, space, id), buffer, block.slot - 1); // the last byte keeps its value
            if (block.slot == 128) slot(block, space, id)[127] = '\0';
        }
        member.set[space](id, buffer);
    }

    void readSingle(const Block& block, const Member& member, int space, int id) {
        std::memset(buffer, '#', sizeof buffer);
        member.get[space](id, buffer);
        std::string expected(slot(block, space, id), block.slot);
        if (block.isText) expected = expected.substr(0, strnlen(expected.data(), block.slot - 1)) + '\0';
        EXPECT_EQ(bytes(buffer, expected.size() + 1), expected + '#');
    }

    // Counts around the end of the block, and such whose last id or size in bytes would wrap around.
    unsigned long anyCount(const Block& block, int id) {
        const auto rest = static_cast<unsigned long>(block.end() - id);
        const unsigned long counts[] = {0,
                                        1,
                                        rest,
                                        rest + 1,
                                        rest + 2,
                                        static_cast<unsigned long>(random.below(2000)),
                                        ULONG_MAX,
                                        ULONG_MAX - static_cast<unsigned long>(id) + 2,
                                        ULONG_MAX / block.slot + 1,
                                        1UL << 31};
        return counts[random.below(std::size(counts))];
    }

    void writeRun(const Block& block, const Member& member, int space, int id) {
        if (random.below(8) == 0) id = random.below(2) != 0 ? block.first - 1 : block.end(); // foreign
        const unsigned long count = anyCount(block, block.holds(id) ? id : block.first);
        random.fill(buffer, sizeof buffer);
        if (block.holds(id) && count > 0 && count <= static_cast<unsigned long>(block.end() - id))
            std::memcpy(slot(block, space, id), buffer, count * block.slot);
        member.setRun[space](id, buffer, count);
    }

    void readRun(const Block& block, const Member& member, int space, int id) {
        const unsigned long count = anyCount(block, id);
        std::memset(buffer, '#', sizeof buffer);
        member.getRun[space](id, buffer, count);
        std::string expected(sizeof buffer, '#');
        if (count > 0 && count <= static_cast<unsigned long>(block.end() - id))
            expected.replace(0, count * block.slot, slot(block, space, id), count * block.slot);
        EXPECT_EQ(bytes(buffer, sizeof buffer), expected) << count;
    }

    Random random;
    std::string model;
    char buffer[6000];
};

TEST_F(Family, WritesAndReadsItsOwnSlotsAndNothingElse) {
    using Step = void (Family::*)(const Block&, const Member&, int, int);
    constexpr Step kSteps[] = {&Family::writeSingle, &Family::readSingle, &Family::writeRun,
                               &Family::readRun};
    for (int k = 0; k < 30000; ++k) {
        const int kind = random.below(std::size(kBlocks)), space = random.below(2);
        const Block& block = kBlocks[kind];
        if (block.count == 0) continue;
        // Every other step at an edge of the block.
        const int ids[] = {block.first, block.end() - 1, block.first + random.below(block.count),
                           block.first + random.below(block.count)};
        const int id = ids[random.below(4)], step = random.below(block.isText ? 2 : 4);
        (this->*kSteps[step])(block, kMembers[kind], space, id);
        ASSERT_TRUE(bothSpaces() == model && !HasFailure())
            << block.name << ' ' << id << " space " << space << " step " << step;
    }
}

// A slot that another program left full to the last byte ends there, in a buffer as large as the slot.
TEST_F(Family, ReadsASlotWithoutANul) {
    std::memset(raw(kGlobal), 'x', kSpaceSize);
    for (std::size_t kind = 0; kind < std::size(kBlocks); ++kind) {
        const Block& block = kBlocks[kind];
        if (!block.isText || block.count == 0) continue;
        std::memset(buffer, '#', sizeof buffer);
        kMembers[kind].get[kGlobal](block.end() - 1, buffer);
        EXPECT_EQ(bytes(buffer, block.slot + 1), std::string(block.slot - 1, 'x') + '\0' + '#') << block.name;
    }
}

// The start only: an emulator that runs the device's programs adds a line of its own.
Output failedAssertion(const std::string& function, const std::string& text) {
    return testing::StartsWith("ParamSystem/TALUX_Var: " + function + ": Assertion `" + text + "' failed.\n");
}

// Single values and the readers of runs but long insist on their kind, each with its own name and text.
TEST_F(Family, AbortsOnForeignIds) {
    for (std::size_t kind = 0; kind < std::size(kBlocks); ++kind) {
        const Block& block = kBlocks[kind];
        const Member& member = kMembers[kind];
        const std::string text = std::string("VarIs") + block.name + "(id)";
        for (const int space : {kTemp, kGlobal}) {
            const std::string name = std::string(space ? "Global" : "") + block.name + "Value";
            std::memset(buffer, 0, sizeof buffer);
            EXPECT_DEATH(member.set[space](block.first - 1, buffer), failedAssertion("VarSet" + name, text));
            EXPECT_DEATH(member.get[space](block.end(), buffer), failedAssertion("VarGet" + name, text));
            if (block.isText) continue;
            if (block.type == 2004) {
                member.getRun[space](block.end(), buffer, 1);
                EXPECT_EQ(bytes(buffer, sizeof buffer), std::string(sizeof buffer, '\0'));
                continue;
            }
            EXPECT_DEATH(member.getRun[space](block.end(), buffer, 1),
                         failedAssertion("VarGet" + name + "Array", text));
        }
    }
}

TEST(Records, AreCopiedFromTheirStart) {
    struct {
        int id;
        std::size_t offset;
        VarLong size;
    } constexpr kRecords[] = {{30000, 0, 236}, {30001, 236, 116}, {30002, 352, 236}};
    VarInit(talux_test::kNoDirectory);
    Random random;
    random.fill(rawRecords(), kRecordsSize);
    std::string model = bytes(rawRecords(), kRecordsSize);
    for (const auto& record : kRecords) {
        for (const VarLong size : {record.size, VarLong{8}, VarLong{1}, VarLong{0}, VarLong{-1}}) {
            char buffer[240], read[240];
            random.fill(buffer, sizeof buffer);
            VarSetGlobalStructValue(record.id, buffer, size);
            const auto length = static_cast<std::size_t>(std::max(size, VarLong{0}));
            model.replace(record.offset, length, buffer, length);
            ASSERT_TRUE(bytes(rawRecords(), kRecordsSize) == model) << record.id << ' ' << size;

            std::memset(read, '#', sizeof read);
            VarGetGlobalStructValue(record.id, read, size);
            EXPECT_EQ(bytes(read, sizeof read),
                      model.substr(record.offset, length) + std::string(sizeof read - length, '#'));
        }
        char buffer[240] = {};
        const std::string tooLarge = "size <= ARR_StructSize[struct_index]";
        EXPECT_DEATH(VarSetGlobalStructValue(record.id, buffer, record.size + 1),
                     failedAssertion("VarSetGlobalStructValue", tooLarge));
        EXPECT_DEATH(VarGetGlobalStructValue(record.id, buffer, record.size + 1),
                     failedAssertion("VarGetGlobalStructValue", tooLarge));
    }
    char buffer[240] = {};
    EXPECT_DEATH(VarSetGlobalStructValue(29999, buffer, 1),
                 failedAssertion("VarSetGlobalStructValue", "VarIsStruct(id)"));
    EXPECT_DEATH(VarGetGlobalStructValue(30003, buffer, 1),
                 failedAssertion("VarGetGlobalStructValue", "VarIsStruct(id)"));
}

} // namespace
