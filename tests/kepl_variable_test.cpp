// Variable terms: refusals in their order, reads and writes, dumps of ranges and records, the clock.
#include "KeplLine.h"

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstring>
#include <ctime>
#include <random>

using namespace talux_test;
using KeplVariable = KeplTest;

namespace {

const std::string kRights = "<< RIGHTS TOO LOW >>", kNoNumber = "<< INDEX MUST BE A NUMBER >>",
                  kNeeded = "<< INDEX REQUIRED >>", kNoIndex = "<< NO INDEX ALLOWED >>",
                  kReadOnlyText = "<< VARIABLE IS READ ONLY >>", kIndexLow = "<< INDEX TOO LOW >>",
                  kIndexHigh = "<< INDEX TOO HIGH >>", kLow = "<< VALUE TOO LOW >>",
                  kHigh = "<< VALUE TOO HIGH >>";

std::vector<std::string> whatHappened; // to the operating system, in order
std::time_t now = 1705310430;          // 2024-01-15 10:20:30 in Berlin, winter time

std::string format(const char* text, ...) {
    char buffer[400];
    std::va_list arguments;
    va_start(arguments, text);
    std::vsnprintf(buffer, sizeof buffer, text, arguments);
    va_end(arguments);
    return buffer;
}

} // namespace

// Nothing here reaches the machine: the clock stands still, commands and settings are noted down.
extern "C" {
int system(const char* command) {
    whatHappened.emplace_back(command);
    return 0;
}
int clock_settime(clockid_t, const timespec* time) {
    char text[40];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", std::localtime(&time->tv_sec));
    whatHappened.emplace_back(text);
    return 0;
}
std::time_t time(std::time_t* seconds) {
    if (seconds != nullptr) *seconds = now;
    return now;
}
}
int VarSetSystemIPs() {
    whatHappened.emplace_back("settings");
    return 1;
}

// Number of the index, rights, name, access, presence of the index, its range.
TEST_F(KeplVariable, RefusesReadsInOrder) {
    expectLines(
        {{refused(kNoNumber), "0:TLX_Nobody x|0:TLX_Nobody 1.x|TLX_vBE " + times(50, "0")},
         {refused(kRights), "0:TLX_Nobody"},
         {refused(kSyntax), "1:TLX_Nobody|TLX_|TLX_=|TLX_ =5|TLX_ Language\t"},
         {refused(kSyntax), "TLX_=5|TLX_MW_start,TLX_"},
         {refused(kNeeded), "1:TLX_vBE|1:TLX_vBE .|TLX_vBE -p 5|TLX_vBE -5|TLX_vBE -x -c"},
         {refused(kNoIndex), "1:TLX_U1_prim 3|1:TLX_MessRecord01 1"},
         {refused(kIndexLow), "1:TLX_vBE 0"},
         {refused(kIndexHigh), "1:TLX_vBE 97|TLX_vBE 9999999999"},
         {refused("<< INDEX 1 TOO LOW >>"), "1:TLX_vBE 0.97"},
         {refused("<< INDEX 1 TOO HIGH >>"), "1:TLX_vBE 97.0"},
         {refused("<< INDEX 2 TOO LOW >>"), "1:TLX_vBE 5.-3"},
         {refused("<< INDEX 2 TOO HIGH >>"), "1:TLX_vBE 5.97"},
         {refused("<< INDEX 1 GREATER THAN INDEX 2 >>"), "1:TLX_vBE 5.3"},
         {done("1.000000"), "TLX_Language=|TLX_  Language \r\n|TLX_Language -h"}, // scalars have one form
         {done("0\n"), "TLX_vBE .5|TLX_vBE 1 -P"},
         {done("TLX_vBE 5 = 0\nTLX_vBE 6 = 0\n"), "TLX_vBE 5.6.x|TLX_vBE 5.6 -x -p"}});
}

// Number of the index, rights, value, name, access, level, index, range.
TEST_F(KeplVariable, RefusesWritesInOrder) {
    whatHappened.clear();
    expectLines(
        {{refused(kNoNumber), "0:TLX_Nobody x="},
         {refused(kRights), "1:TLX_Nobody= |1:TLX_MW_start=1|0:TLX_mw_req=1|2:TLX_FW_BLOCK 1=x"},
         {refused(kSyntax), "2:TLX_MW_start= |2:TLX_MW_start= =5|2:TLX_=  =5|2:TLX_Nobody=1"},
         {refused(kReadOnlyText), "2:TLX_sec_mode 1=x|TLX_MAC_adress=x"},
         {refused(kNeeded), "2:TLX_vBE=x"},
         {refused(kNoIndex), "2:TLX_MW_start 1=x"},
         {refused(kIndexLow), "2:TLX_vBE 0=x"},
         {refused(kIndexHigh), "2:TLX_vBE 97.1=x"},
         {refused(kSyntax), "TLX_MW_start=x|TLX_MW_start=\"5\"|TLX_MW_start=nan"},
         {refused(kLow), "TLX_channel=0.999|TLX_channel=-inf|TLX_channel=0,TLX_channel"},
         {refused(kHigh), "TLX_channel=11.001"},
         {refused(kSyntax), "TLX_Date=2024-05|TLX_Date=2024-05-|TLX_Date=2024-05-x|TLX_Date=2024:05:17"},
         {refused(kSyntax), "TLX_Date=9999999999-99999999999-1|TLX_Time=\"|TLX_Time=10:20"},
         {done(""), "1:TLX_MW_REQ=1|2:TLX_VarResetIP=1"},
         {done("1"), "TLX_channel=1,TLX_channel"},
         {done("7"), "TLX_channel= 7 up,TLX_channel|TLX_channel==7=4,TLX_channel"}});
    EXPECT_TRUE(whatHappened.empty());
    line("TLX_channel=5,TLX_FW_BLOCK=1");
    for (const std::string refusal : {"channel=0", "channel=12", "channel=x", "FW_BLOCK=0", "FW_BLOCK=2"})
        line("TLX_" + refusal, 2);
    EXPECT_EQ(line("TLX_channel,TLX_FW_BLOCK,+"), done("6"));
}

TEST_F(KeplVariable, KeepsTexts) {
    const std::string n118 = times(118, "n"); // as much as fits into the term
    const std::vector<std::string> rows = split(
        "Name=a b |a b |Name=  \"in quotes\"|in quotes|Name=\"lost\" "
        "|lost\"|Name=\"||Name=\"\"||Name=%s%n|%s%n|"
        "Name=say \"x\"|say \"x\"|Kenn=kkkkkkkkkkkkkkkkkkkkkkkk|kkkkkkkkkkkkkkkkkkk|DNS=10.0.0.1|10.0.0.1|"
        "SampleFile=x|x|Name=" +
        n118 + "|" + n118 + "|Name=" + n118 + "cut|" + n118);
    whatHappened.clear();
    for (std::size_t i = 0; i < rows.size(); i += 2)
        EXPECT_EQ(line("TLX_" + rows[i] + ",TLX_" + rows[i].substr(0, rows[i].find('='))),
                  done('"' + rows[i + 1] + '"'));
    EXPECT_TRUE(whatHappened.empty());
    EXPECT_EQ(line("TLX_ETH0_IP=10.0.0.2,TLX_ETH0_IP"), done("\"10.0.0.2\""));
    EXPECT_EQ(whatHappened, std::vector<std::string>{"settings"});
}

// Every parameter that can be written keeps what a line writes, in the space that it belongs to.
TEST_F(KeplVariable, WritesWhatItReads) {
    std::mt19937 random(7);
    for (int position = 1; const stParamProperties* row = GetParamPropertiesByOrder(position); ++position) {
        const bool isWhole = row->type == kTypeLong || row->type == kTypeInt || row->type == kTypeBool;
        const bool isText = row->type == kTypeText || row->type == kTypeIp || row->type == kTypeIpMask;
        const bool isNumber = (row->type >= kTypeDouble && row->type <= kTypeBool) || row->type == kTypeEnum;
        const bool isFirst = GetParamPropertiesByName(const_cast<char*>(row->name)) == row;
        if ((!isNumber && !isText) || row->val_access == kReadOnly || !isFirst) continue;

        const double largest = row->type == kTypeBool ? 255 : row->type == kTypeLong ? 1e9 : 32767;
        const double lowest = std::max(row->val_min, row->type == kTypeBool ? 0 : -largest);
        const double highest = std::min(row->val_max, largest);
        const double value = std::min(std::trunc(lowest) + 1 + static_cast<double>(random() % 1000), highest);
        const std::string text = isText ? "text" + std::to_string(random() % 1000) : format("%.17g", value);
        const double expected = row->type == kTypeFloat ? static_cast<float>(value) : value;

        const std::string term = std::string("TLX_") + row->name + (row->val_max_id > 0 ? " 1" : "");
        EXPECT_EQ(line(format("%s=%s", term.c_str(), text.c_str())), done("")) << term;
        double stored[16] = {};
        (row->is_volatile == 0 ? VarGetValue : VarGetGlobalValue)(row->id, stored);
        EXPECT_TRUE(isText ? text == reinterpret_cast<char*>(stored) : stored[0] == expected) << term;
        const std::string shown = isText ? '"' + text + '"' : format(isWhole ? "%.0f" : "%f", expected);
        EXPECT_EQ(line(term), done(shown + (row->val_max_id > 0 ? "\n" : ""))) << term;
    }
}

// What the four styles make of the same values.
struct Dump {
    std::string plain, lines = plain, columns = plain, hex = plain;

    void add(const std::string& label, double value, int type, bool isFirst) {
        const auto whole = type == kTypeLong ? static_cast<std::int32_t>(value) : 0;
        const auto narrow = static_cast<float>(value);
        const std::string number = format(type == kTypeLong ? "%.0f" : "%f", value);
        plain += label + " = " + number + "\n";
        lines += number + "\n";
        columns += (isFirst ? "" : ";") + number;
        const void* const bytes = type == kTypeDouble  ? &value
                                  : type == kTypeFloat ? &narrow
                                                       : static_cast<const void*>(&whole);
        for (int i = 0; i < (type == kTypeDouble ? 8 : 4); ++i)
            hex += format("%02X", static_cast<const unsigned char*>(bytes)[i]);
    }
};

Outcome fitting(const std::string& answer) {
    return answer.size() <= 2998 ? done(answer) : refused(kFull);
}

TEST_F(KeplVariable, DumpsRanges) {
    const char* const names[] = {"vMWR", "vBE", "SLvMWW", "conman_status", "OVR_MW_val"};
    std::mt19937 random(11);
    const auto upTo = [&](int count) {
        return 1 + static_cast<int>(random() % static_cast<unsigned>(count));
    };
    for (int round = 0; round < 1000; ++round) {
        const stParamProperties* const row = GetParamPropertiesByName(const_cast<char*>(names[random() % 5]));
        const int count = row->val_max_id, first = upTo(count);
        const bool single = random() % 4 == 0;
        const int last = single ? first : first - 1 + upTo(count - first + 1);
        Dump dump{last - first > 1 ? "ARRAY:\n" : ""};
        for (int index = first; index <= last; ++index) {
            double value = static_cast<std::int32_t>(random()) / (row->type == kTypeLong ? 1 : 3e4);
            VarSetGlobalValue(row->id + index - 1, &value);
            VarGetGlobalValue(row->id + index - 1, &value);
            dump.add(format("TLX_%s %d", row->name, index), value, row->type, index == 1);
        }
        const std::string range = std::to_string(first) + (single ? "" : "." + std::to_string(last));
        const std::string term = format("TLX_%s %s", row->name, range.c_str());
        ASSERT_EQ(line(term), fitting(single ? dump.lines : dump.plain)) << term;
        ASSERT_EQ(line(term + " -p"), fitting(dump.lines)) << term;
        ASSERT_EQ(line(term + " -c"), fitting(dump.columns)) << term;
        ASSERT_EQ(line(term + " -h"), fitting(dump.hex)) << term;
    }
    double values[96]; // each a line of 31 characters, or 32 when negative, under the header's 7
    for (const int negatives : {15, 16}) {
        std::fill_n(std::fill_n(values, negatives, -1e22), 96 - negatives, 1e22);
        VarSetGlobalDoubleValueArray(GetParamPropertiesByName(const_cast<char*>("vMWR"))->id, values, 96);
        EXPECT_EQ(line("TLX_vMWR 1.96 -p").answer.size(), negatives == 15 ? 2998 + 1 : kFull.size() + 1);
    }
}

TEST_F(KeplVariable, DumpsRecords) {
    const char* const names[] = {"MessRecord01", "MessRecord02", "StatRecord_c0"};
    std::mt19937 random(13);
    for (int record = 0; record < 3; ++record) {
        std::vector<char> bytes(static_cast<std::size_t>(ARR_StructSize[record]));
        const std::string term = std::string("TLX_") + names[record];
        Dump dump{"STRUCT:\n"};
        for (int i = 0; i < ARR_MemberCount[record]; ++i) {
            const auto& member = ARR_StructMemberProperties[ARR_MemberOffset[record] + i];
            const bool isLong = std::string(member.szMemberType) == "long";
            const auto whole = static_cast<std::int32_t>(random());
            const float real = static_cast<float>(whole) / 7;
            std::memcpy(&bytes[static_cast<std::size_t>(member.lMemberOffset)],
                        isLong ? static_cast<const void*>(&whole) : &real, 4);
            dump.add(term + "." + member.aszMemberName, isLong ? whole : static_cast<double>(real),
                     isLong ? kTypeLong : kTypeFloat, i == 0);
        }
        VarSetGlobalStructValue(kFirstStruct + record, bytes.data(), ARR_StructSize[record]);
        EXPECT_EQ(line(term), fitting(dump.plain));
        EXPECT_EQ(line(term + " -p"), done(dump.lines));
        EXPECT_EQ(line(term + " -x -c"), done(dump.columns));
        EXPECT_EQ(line(term + "=1"), done("")); // and keeps the record
        EXPECT_EQ(line(term + " -h"), done(dump.hex));
    }
}

TEST_F(KeplVariable, SetsTheClock) {
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    tzset();
    EXPECT_EQ(line("TLX_Date"), done("\"2024-01-15\""));
    EXPECT_EQ(line("TLX_Time"), done("\"10:20:30\""));
    const std::string rows[][3] = {
        {"Date=2024-05-17", "2024-05-17 10:20:30", "2024-05-17"}, // summer time: the time of day stays
        {"Date= \"2025-12-01\" ", "2025-12-01 10:20:30", "\"2025-12-01\" "},
        {"Date=2024-2-29-7", "2024-02-29 10:20:30", "2024-2-29-7"},
        {"Time=\"23:59:58\"", "2024-01-15 23:59:58", "\"23:59:58"}, // the slot holds nine characters
        {"Time=1:2:3", "2024-01-15 01:02:03", "1:2:3"}};
    for (const auto& [term, clock, kept] : rows) {
        whatHappened.clear();
        EXPECT_EQ(line("TLX_" + term), done("")) << term;
        EXPECT_EQ(whatHappened, split(clock + "|hwclock --systohc --utc --noadjfile")) << term;
        double stored[16] = {};
        VarGetValue(term[0] == 'D' ? kFirstSysDate : kFirstSysTime, stored);
        EXPECT_EQ(reinterpret_cast<char*>(stored), kept) << term;
    }
}

// What other programs call directly: the slot is theirs, the count stays, a full stack is no target.
TEST_F(KeplVariable, ServesProcessCommand) {
    char text[kKeplTextSize];
    double values[kKeplStackSize] = {};
    int types[kKeplStackSize] = {};
    const auto run = [&](const char* term, int index) {
        int count = index;
        const int result = interpreter.ProcessCommand(term, text, values, types, &count, 3);
        EXPECT_EQ(count, index);
        return result;
    };
    const struct {
        const char* term;
        int result, type;
        double value;
        std::string text;
    } rows[] = {{"Language", 1, 2012, 1, ""},
                {"VarSaveParams", 1, 2024, 0, ""},
                {"DNS", 1, 2018, 0, "\"0.0.0.0\""},
                {"Date", 1, 2015, 0, "\"2024-01-15\""},
                {"vBE 1.2", 1, 2004, 2, "TLX_vBE 1 = 1\nTLX_vBE 2 = 2\n"},
                {"MessRecord02 -h", 1, -1, -1, "STRUCT:\n" + times(232, "0")},
                {"vBE 3=9", 0, -1, -1, ""},
                {"ETH0_IP=1.2.3.4", 0, 2019, 0, ""},
                {"Time=1:2:3", 0, 2016, 0, ""},
                {"Nobody", -1, -1, -1, ""}};
    char zeros[116] = {};
    VarSetGlobalStructValue(kFirstStruct + 1, zeros, sizeof zeros);
    line("TLX_vBE 1=1,TLX_vBE 2=2");
    for (const auto& row : rows)
        for (const int index : {0, 5, kKeplStackSize - 1}) {
            values[index] = types[index] = -1;
            std::strcpy(text, "old");
            EXPECT_EQ(run(row.term, index), row.result) << row.term;
            EXPECT_EQ(types[index], row.type) << row.term;
            EXPECT_EQ(values[index], row.value) << row.term;
            EXPECT_EQ(text, row.text) << row.term;
        }
    for (const int index : {-1, kKeplStackSize}) {
        EXPECT_EQ(run("Language", index), -1);
        for (const char* const term : {"DNS", "vBE 1", "Time=1:2:3"})
            EXPECT_GE(run(term, index), 0) << term;
    }
    EXPECT_EQ(run(times(200, "x").c_str(), 0), -1);

    line("TLX_conman_status 1=1"); // what fitted before the buffer was full stays in the text
    EXPECT_EQ(run("conman_status 1.247", 0), -1);
    EXPECT_TRUE(std::string(text).starts_with("ARRAY:\nTLX_conman_status 1 = 1\n"));
    EXPECT_TRUE(std::string(text).ends_with(" = 0\n"));
    EXPECT_GT(std::strlen(text), 2998u - 25);
}
