// Layouts of the binary records in the struct segment: a format shared with the other programs of the
// device. Members follow each other without padding, records too.
#include <iterator>

#include "ParamSystem/TALUX_Params.h"

namespace talux {

namespace {

enum MemberType { kLong, kFloat };

struct RecordMember {
    MemberType type;
    const char* name;
};

constexpr RecordMember kMessRecord01[] = {
    {kLong, "TimeStamp"}, {kLong, "Cnt"},      {kFloat, "U0p"},     {kFloat, "U1p"},     {kFloat, "U2p"},
    {kFloat, "U3p"},      {kFloat, "wU0"},     {kFloat, "wU1"},     {kFloat, "wU2"},     {kFloat, "wU3"},
    {kFloat, "I0p"},      {kFloat, "I1p"},     {kFloat, "I2p"},     {kFloat, "I3p"},     {kFloat, "U0s"},
    {kFloat, "U1s"},      {kFloat, "U2s"},     {kFloat, "U3s"},     {kFloat, "I0s"},     {kFloat, "I1s"},
    {kFloat, "I2s"},      {kFloat, "I3s"},     {kFloat, "wUI0"},    {kFloat, "wUI1"},    {kFloat, "wUI2"},
    {kFloat, "wUI3"},     {kFloat, "U12p_a"},  {kFloat, "U12p_re"}, {kFloat, "U12p_im"}, {kFloat, "U12p_w"},
    {kFloat, "U23p_a"},   {kFloat, "U23p_re"}, {kFloat, "U23p_im"}, {kFloat, "U23p_w"},  {kFloat, "U31p_a"},
    {kFloat, "U31p_re"},  {kFloat, "U31p_im"}, {kFloat, "U31p_w"},  {kFloat, "P0"},      {kFloat, "P1"},
    {kFloat, "P2"},       {kFloat, "P3"},      {kFloat, "Q0"},      {kFloat, "Q1"},      {kFloat, "Q2"},
    {kFloat, "Q3"},       {kFloat, "S0"},      {kFloat, "S1"},      {kFloat, "S2"},      {kFloat, "S3"},
    {kFloat, "Pg"},       {kFloat, "Qg"},      {kFloat, "Sg"},      {kFloat, "cosphi"},  {kFloat, "f_grid"},
    {kFloat, "Isc1"},     {kFloat, "Isc2"},    {kFloat, "Isc3"},    {kFloat, "IscE"},
};

constexpr RecordMember kMessRecord02[] = {
    {kLong, "TimeStamp"},  {kLong, "Cnt"},          {kFloat, "U0p_250"},  {kFloat, "I0p_250"},
    {kFloat, "wUI0_250"},  {kFloat, "Y0_abs_250"},  {kFloat, "U0p_fx1"},  {kFloat, "I0p_fx1"},
    {kFloat, "wUI0_fx1"},  {kFloat, "Y0_abs_fx1"},  {kFloat, "U0p_fx2m"}, {kFloat, "I0p_fx2m"},
    {kFloat, "wUI0_fx2m"}, {kFloat, "Y0_abs_fx2m"}, {kFloat, "U0p_fx2p"}, {kFloat, "I0p_fx2p"},
    {kFloat, "wUI0_fx2p"}, {kFloat, "Y0_abs_fx2p"}, {kFloat, "U_BE1_ac"}, {kFloat, "U_BE1_dc"},
    {kFloat, "U_BE2_ac"},  {kFloat, "U_BE2_dc"},    {kLong, "y_BE_01"},   {kLong, "y_BE_LT_01"},
    {kLong, "y_BA_01"},    {kLong, "y_BAF_01"},     {kLong, "y_BAF_02"},  {kLong, "y_BAF_03"},
    {kLong, "y_BAF_04"},
};

constexpr RecordMember kStatRecord[] = {
    {kLong, "SysTime"},  {kLong, "dT"},       {kLong, "M3TimeStamp"}, {kFloat, "U0_max"},
    {kFloat, "U1_max"},  {kFloat, "U2_max"},  {kFloat, "U3_max"},     {kFloat, "U0_min"},
    {kFloat, "U1_min"},  {kFloat, "U2_min"},  {kFloat, "U3_min"},     {kFloat, "U0_av"},
    {kFloat, "U1_av"},   {kFloat, "U2_av"},   {kFloat, "U3_av"},      {kFloat, "I0_max"},
    {kFloat, "I1_max"},  {kFloat, "I2_max"},  {kFloat, "I3_max"},     {kFloat, "I0_av"},
    {kFloat, "I1_av"},   {kFloat, "I2_av"},   {kFloat, "I3_av"},      {kFloat, "P0_max"},
    {kFloat, "P1_max"},  {kFloat, "P2_max"},  {kFloat, "P3_max"},     {kFloat, "P0_min"},
    {kFloat, "P1_min"},  {kFloat, "P2_min"},  {kFloat, "P3_min"},     {kFloat, "P0_av"},
    {kFloat, "P1_av"},   {kFloat, "P2_av"},   {kFloat, "P3_av"},      {kFloat, "Q0_max"},
    {kFloat, "Q1_max"},  {kFloat, "Q2_max"},  {kFloat, "Q3_max"},     {kFloat, "Q0_min"},
    {kFloat, "Q1_min"},  {kFloat, "Q2_min"},  {kFloat, "Q3_min"},     {kFloat, "Q0_av"},
    {kFloat, "Q1_av"},   {kFloat, "Q2_av"},   {kFloat, "Q3_av"},      {kFloat, "P_max"},
    {kFloat, "P_min"},   {kFloat, "P_av"},    {kFloat, "Q_max"},      {kFloat, "Q_min"},
    {kFloat, "Q_av"},    {kFloat, "S_max"},   {kFloat, "S_av"},       {kFloat, "U12_max"},
    {kFloat, "U23_max"}, {kFloat, "U31_max"}, {kLong, "EvCnt_qu2"},
};

constexpr VarLong kMemberSize = 4; // a long and a float alike

template <std::size_t N>
constexpr VarLong memberCount(const RecordMember (&)[N]) {
    return static_cast<VarLong>(N);
}

template <std::size_t N>
constexpr VarLong byteSize(const RecordMember (&members)[N]) {
    return memberCount(members) * kMemberSize;
}

static_assert(byteSize(kMessRecord01) == 236 && byteSize(kMessRecord02) == 116 &&
              byteSize(kStatRecord) == 236);
static_assert(byteSize(kMessRecord01) + byteSize(kMessRecord02) + byteSize(kStatRecord) == kStructSpaceSize);
static_assert(byteSize(kMessRecord01) <= kLargestRecord && byteSize(kStatRecord) <= kLargestRecord);

struct MemberTable {
    StructMemberProperties_t rows[kRecordMemberCount];
};

consteval MemberTable memberTable() {
    MemberTable table{};
    std::size_t position = 0;
    const auto append = [&](const auto& members) {
        VarLong offset = 0;
        for (const RecordMember& member : members) {
            table.rows[position++] = {offset, kMemberSize * 8, member.type == kLong ? "long" : "float",
                                      member.name};
            offset += kMemberSize;
        }
    };
    append(kMessRecord01);
    append(kMessRecord02);
    append(kStatRecord);
    return table;
}

static_assert(std::size(kMessRecord01) + std::size(kMessRecord02) + std::size(kStatRecord) ==
              kRecordMemberCount);

} // namespace

} // namespace talux

using namespace talux;

const VarLong ARR_StructOffset[kRecordCount] = {0, byteSize(kMessRecord01),
                                                byteSize(kMessRecord01) + byteSize(kMessRecord02)};
const VarLong ARR_StructSize[kRecordCount] = {byteSize(kMessRecord01), byteSize(kMessRecord02),
                                              byteSize(kStatRecord)};
const VarLong ARR_MemberOffset[kRecordCount] = {0, memberCount(kMessRecord01),
                                                memberCount(kMessRecord01) + memberCount(kMessRecord02)};
const VarLong ARR_MemberCount[kRecordCount] = {memberCount(kMessRecord01), memberCount(kMessRecord02),
                                               memberCount(kStatRecord)};

// The descriptors are computed as one value; ARR_StructMemberProperties is their name as an array.
extern "C" constinit const MemberTable talux_StructMemberProperties = memberTable();
extern const StructMemberProperties_t ARR_StructMemberProperties[kRecordMemberCount]
    __attribute__((alias("talux_StructMemberProperties")));
