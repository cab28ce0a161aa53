// What the device's other programs rely on, and the fields of the rows that the pages of docs/parameters
// leave out; those show every name, id, kind, default, range, length and right, and a test of their own
// compares them.
#include "ParamSystem/TALUX_ParamCounts.h"
#include "ParamSystem/TALUX_Params.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <sstream>
#include <string>

namespace {

const stParamProperties* begin() {
    return DefParamProperties + 1;
}
const stParamProperties* end() {
    return DefParamProperties + 1 + kParamCount;
}

TEST(Catalogue, SentinelsFrameTheTable) {
    for (const stParamProperties* row : {begin() - 1, end()}) {
        EXPECT_EQ(row->id + row->type + row->val_access + row->userlevel, 0);
        for (const char* text : {row->name, row->format, row->val_init_text, row->val_def_text})
            EXPECT_STREQ(text, "***");
    }
}

std::ostream& operator<<(std::ostream& out, const stParamProperties& row) {
    return out << row.id << ' ' << row.type << ' ' << row.is_volatile << ' ' << row.val_min_id << ' '
               << row.val_max_id << ' ' << row.name << '\n';
}

std::ostream& operator<<(std::ostream& out, const StructMemberProperties_t& member) {
    return out << member.lMemberOffset << ' ' << member.iMemberBitsize << ' ' << member.szMemberType << ' '
               << member.aszMemberName << '\n';
}

// FNV-1a over what is shared with the other programs: of parameters the order, ids, types, spaces, indexes
// and names, of the members of records the layout, types and names.
template <class Row>
std::uint32_t fingerprint(const Row* row, const Row* last) {
    std::ostringstream shared;
    for (; row <= last; ++row)
        shared << *row;
    std::uint32_t hash = 2166136261U;
    for (const char c : shared.str())
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash;
}

// One of each family, in their order.
constexpr std::uint32_t kFingerprints[kParamFamilyCount] = {
    0x429486fd, 0x0a68ac2f, 0x20e60ced, 0x1cf98598, 0x7f209ac2, 0xf3c86a71, 0x896f4b34, 0xda89ef28,
    0xe819cd23, 0x7f069970, 0x9500e7d0, 0x568927bf, 0xae9eb549, 0x547934ed, 0x192b40a3, 0xdad3e25c,
    0x5164cb7f, 0xe974a9b5, 0x82668c1b, 0x2a4967ab, 0xaceeadc4, 0x233adea1, 0x760e9d79, 0x10f1779e,
};

TEST(Catalogue, InterfaceWithOtherProgramsIsFixed) {
    int next = 1;
    for (int k = 0; k < kParamFamilyCount; ++k) {
        const stParamFamily& family = DefParamFamilies[k];
        EXPECT_EQ(family.first, next) << family.name;
        EXPECT_EQ(fingerprint(&DefParamProperties[family.first], &DefParamProperties[family.last]),
                  kFingerprints[k])
            << family.name;
        next = family.last + 1;
    }
    EXPECT_EQ(next, kParamCount + 1);
}

struct Record {
    VarLong offset, size, firstMember, members;
    std::uint32_t fingerprint;
};

constexpr Record kRecords[kRecordCount] = {
    {0, 236, 0, 59, 0x5bbeea8f}, {236, 116, 59, 29, 0x3f95c686}, {352, 236, 88, 59, 0x9d5fbfb3}};

TEST(Catalogue, LayoutOfRecordsIsFixed) {
    for (int k = 0; k < kRecordCount; ++k) {
        const Record& record = kRecords[k];
        EXPECT_EQ(ARR_StructOffset[k], record.offset) << k;
        EXPECT_EQ(ARR_StructSize[k], record.size) << k;
        EXPECT_EQ(ARR_MemberOffset[k], record.firstMember) << k;
        EXPECT_EQ(ARR_MemberCount[k], record.members) << k;
        const StructMemberProperties_t* const first = ARR_StructMemberProperties + record.firstMember;
        EXPECT_EQ(fingerprint(first, first + record.members - 1), record.fingerprint) << k;
    }
}

bool isTextual(const stParamProperties& row) {
    return row.type == kTypeText || (row.type >= kTypeSysDate && row.type <= kTypeIpGateway);
}
bool hasNumber(const stParamProperties& row) {
    return (row.type >= kTypeDouble && row.type <= kTypeBool) || row.type == kTypeEnum;
}

TEST(Catalogue, ValuesStartAtTheirDefaults) {
    std::map<std::string, std::string> started = {{"TIMEZONE", "0"},
                                                  {"DNP3_ALL_IP_1", "192.168.55.2"},
                                                  {"DNP3_ALL_IP_2", "192.168.55.3"},
                                                  {"pub_key", "0"},
                                                  {"pub_inf", "0"},
                                                  {"eph_key", "0"},
                                                  {"date_info", "0"}};
    for (const stParamProperties* row = begin(); row != end(); ++row) {
        const auto other = started.find(row->name);
        EXPECT_EQ(row->val_init_text, other != started.end() ? other->second : row->val_def_text)
            << row->name;
        EXPECT_EQ(row->val_init, row->val_def) << row->name;
        EXPECT_TRUE(hasNumber(*row) || row->val_def == 0) << row->name;
        EXPECT_TRUE(isTextual(*row) || row->val_def_text[0] == '\0') << row->name;
    }
}

TEST(Catalogue, RowsFollowTheConventionsOfTheirKind) {
    for (const stParamProperties* row = begin(); row != end(); ++row) {
        const std::string name = row->name;
        const bool edited = row->type == kTypeBool && row->is_volatile == 0 && name != "sec_mode";
        if (row->type == kTypeBool || !hasNumber(*row)) {
            EXPECT_EQ(row->val_min, edited ? 0 : kNoMin) << name;
            EXPECT_EQ(row->val_max, edited ? 1 : kNoMax) << name;
        }
        EXPECT_TRUE(isTextual(*row) || row->val_len == -1) << name;
        EXPECT_EQ(row->val_step, name.starts_with("phi_corr_") ? 0.1
                                 : name == "calib_U12_mess"    ? 0.05
                                                               : 1)
            << name;
        if (name == row[-1].name && row->val_max_id > 0) { // the pages show the first element
            EXPECT_TRUE(row->val_def == 0 && row->val_min == row[-1].val_min &&
                        row->val_max == row[-1].val_max && row->val_access == row[-1].val_access &&
                        row->userlevel == row[-1].userlevel && row->id_template == row[-1].id_template)
                << name;
        }
    }
}

TEST(Catalogue, TemplatesHoldWhatTheirUsersShare) {
    constexpr int kChoices[] = {5, 2, 3, 3, 3, 2, 90000, 103, 2, 128, 20, 24, 2};
    for (const stParamProperties* row = begin(); row->name[0] == '\0'; ++row) {
        const bool ratio = row->id == 18027;
        EXPECT_EQ(row->val_def, ratio ? 100 : 0) << row->id;
        EXPECT_EQ(row->val_min, ratio ? 0.1 : kNoMin) << row->id;
        EXPECT_EQ(row->val_max, row->id < 18021 ? kNoMax : kChoices[row->id - 18021]) << row->id;
        EXPECT_TRUE(row->val_access == kReadWrite && row->userlevel == 1 && row->id_template == 0) << row->id;
    }
}

TEST(Catalogue, MeasurementsHaveADisplayFormat) {
    std::map<std::string, int> rows;
    for (const stParamProperties* row = begin(); row != end(); ++row) {
        const bool measured = row->type == kTypeFloat && row->is_volatile != 0 && row->val_max == kNoMax &&
                              row->val_max_id == 0;
        EXPECT_EQ(row->format[0] != '\0', measured) << row->name;
        if (measured) ++rows[row->format];
    }
    const std::map<std::string, int> known = {{"%4.1f", 8},  {"%5.1f", 20}, {"%6.4f", 1}, {"%9.0f", 4},
                                              {"%9.1f", 48}, {"%9.2f", 11}, {"%9.3f", 32}};
    EXPECT_EQ(rows, known);
}

} // namespace
