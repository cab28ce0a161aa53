// Variable terms: refusals in their order, reads and writes, dumps of ranges and records, the clock.
#include "KeplLine.h"

#include <cstdarg>
#include <cstring>
#include <ctime>
#include <random>
#include <vector>

using namespace talux_test;
using KeplVariable = KeplTest;

namespace {

const std::string syntax = "<< SYNTAX ERROR >>", rights = "<< RIGHTS TOO LOW >>",
                  noNumber = "<< INDEX MUST BE A NUMBER >>", needed = "<< INDEX REQUIRED >>",
                  noIndex = "<< NO INDEX ALLOWED >>", readOnly = "<< VARIABLE IS READ ONLY >>",
                  low = "<< VALUE TOO LOW >>", high = "<< VALUE TOO HIGH >>";

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
    const LineRow rows[] = {
        {"TLX_Nobody x", refused(noNumber), 0},
        {"TLX_Nobody 1.x", refused(noNumber), 0},
        {"TLX_vBE " + std::string(50, '0'), refused(noNumber)},
        {"TLX_vBE 9999999999", refused("<< INDEX TOO HIGH >>")},
        {"TLX_Nobody", refused(rights), 0},
        {"TLX_Nobody", refused(syntax), 1},
        {"TLX_vBE", refused(needed), 1},
        {"TLX_vBE .", refused(needed), 1},
        {"TLX_vBE -p 5", refused(needed), 1},
        {"TLX_vBE -5", refused(needed), 1}, // reads as an option
        {"TLX_U1_prim 3", refused(noIndex), 1},
        {"TLX_MessRecord01 1", refused(noIndex), 1},
        {"TLX_vBE 0", refused("<< INDEX TOO LOW >>"), 1},
        {"TLX_vBE 97", refused("<< INDEX TOO HIGH >>"), 1},
        {"TLX_vBE 0.97", refused("<< INDEX 1 TOO LOW >>"), 1},
        {"TLX_vBE 97.0", refused("<< INDEX 1 TOO HIGH >>"), 1},
        {"TLX_vBE 5.-3", refused("<< INDEX 2 TOO LOW >>"), 1},
        {"TLX_vBE 5.97", refused("<< INDEX 2 TOO HIGH >>"), 1},
        {"TLX_vBE 5.3", refused("<< INDEX 1 GREATER THAN INDEX 2 >>"), 1},
    };
    expectLines(rows);
}

TEST_F(KeplVariable, SplitsTerms) {
    const LineRow rows[] = {
        {"TLX_", refused(syntax)},
        {"TLX_=", refused(syntax)},
        {"TLX_=5", refused(syntax)}, // reads the parameter "5"
        {"TLX_ =5", refused(syntax)},
        {"TLX_MW_start,TLX_", {kLineError, syntax + "#", syntax}}, // nothing is left of the term before
        {"TLX_Language=", done("1.000000")},
        {"TLX_ Language\t", refused(syntax)},
        {"TLX_  Language \r\n", done("1.000000")},
        {"TLX_MW_start==3=4", done("")},
        {"TLX_vBE .5", done("0\n")},
        {"TLX_vBE 5.6.x", done("TLX_vBE 5 = 0\nTLX_vBE 6 = 0\n")},
        {"TLX_vBE 1 -P", done("0\n")}, // no option
        {"TLX_vBE 1.2 -x -p", done("TLX_vBE 1 = 0\nTLX_vBE 2 = 0\n")},
        {"TLX_vBE -x -c", refused(needed)},
        {"TLX_Language -h", done("1.000000")}, // scalars have one form
    };
    expectLines(rows);
}

// Number of the index, rights, value, name, access, level, index, range.
TEST_F(KeplVariable, RefusesWritesInOrder) {
    const LineRow rows[] = {
        {"TLX_Nobody x=", refused(noNumber), 0},
        {"TLX_Nobody= ", refused(rights), 1},
        {"TLX_MW_start=1", refused(rights), 1},
        {"TLX_MW_REQ=1", done(""), 1},
        {"TLX_mw_req=1", refused(rights), 0},
        {"TLX_MW_start= ", refused(syntax), 2},
        {"TLX_MW_start= =5", refused(syntax), 2},
        {"TLX_=  =5", refused(syntax), 2},
        {"TLX_Nobody=1", refused(syntax), 2},
        {"TLX_sec_mode 1=x", refused(readOnly), 2},
        {"TLX_MAC_adress=x", refused(readOnly), 3},
        {"TLX_FW_BLOCK 1=x", refused(rights), 2},
        {"TLX_VarResetIP=1", done(""), 2},
        {"TLX_vBE=x", refused(needed), 2},
        {"TLX_MW_start 1=x", refused(noIndex), 2},
        {"TLX_vBE 0=x", refused("<< INDEX TOO LOW >>"), 2},
        {"TLX_vBE 97.1=x", refused("<< INDEX TOO HIGH >>"), 2},
        {"TLX_MW_start=x", refused(syntax)},
        {"TLX_MW_start=\"5\"", refused(syntax)},
        {"TLX_MW_start=nan", refused(syntax)},
        {"TLX_channel=0.999", refused(low)},
        {"TLX_channel=-inf", refused(low)},
        {"TLX_channel=11.001", refused(high)},
        {"TLX_channel=0,TLX_channel", refused(low)},
        {"TLX_channel=1,TLX_channel", done("1")},
        {"TLX_channel=11,TLX_channel", done("11")},
        {"TLX_channel= 7 up,TLX_channel", done("7")},
        {"TLX_Date=2024-05", refused(syntax)},
        {"TLX_Date=2024-05-", refused(syntax)},
        {"TLX_Date=2024-05-x", refused(syntax)},
        {"TLX_Date=2024:05:17", refused(syntax)},
        {"TLX_Date=9999999999-99999999999-1", refused(syntax)}, // beyond every calendar
        {"TLX_Time=\"", refused(syntax)},
        {"TLX_Time=10:20", refused(syntax)},
    };
    whatHappened.clear();
    expectLines(rows);
    EXPECT_TRUE(whatHappened.empty());
    EXPECT_EQ(line("TLX_Nobody=1,TLX_channel=4"), refused(syntax));
    EXPECT_EQ(line("TLX_channel"), done("11"));
}

TEST_F(KeplVariable, KeepsTexts) {
    const LineRow rows[] = {
        {"TLX_Name=a b ,TLX_Name", done("\"a b \"")},
        {"TLX_Name=  \"in quotes\",TLX_Name", done("\"in quotes\"")},
        {"TLX_Name=\"lost\" ,TLX_Name", done("\"lost\"\"")},
        {"TLX_Name=\",TLX_Name", done("\"\"")},
        {"TLX_Name=\"\",TLX_Name", done("\"\"")},
        {"TLX_Name=say \"x\",TLX_Name", done("\"say \"x\"\"")},
        {"TLX_Name=%s%n,TLX_Name", done("\"%s%n\"")},
        {"TLX_Kenn=" + std::string(30, 'k') + ",TLX_Kenn", done("\"" + std::string(19, 'k') + "\"")},
        {"TLX_Name=" + std::string(118, 'n') + ",TLX_Name", done("\"" + std::string(118, 'n') + "\"")},
        {"TLX_Name=" + std::string(130, 'n') + ",TLX_Name", done("\"" + std::string(118, 'n') + "\"")},
        {"TLX_DNS=10.0.0.1,TLX_DNS", done("\"10.0.0.1\"")},
        {"TLX_SampleFile=x,TLX_SampleFile", done("\"x\"")},
    };
    whatHappened.clear();
    expectLines(rows);
    EXPECT_TRUE(whatHappened.empty());
    EXPECT_EQ(line("TLX_ETH0_IP=10.0.0.2,TLX_ETH0_IP"), done("\"10.0.0.2\""));
    EXPECT_EQ(whatHappened, std::vector<std::string>{"settings"});
}

// Every parameter that can be written keeps what a line writes, in the space that it belongs to.
TEST_F(KeplVariable, WritesWhatItReads) {
    std::mt19937 random(7);
    for (int position = 1; const stParamProperties* row = GetParamPropertiesByOrder(position); ++position) {
        const bool isNumber = row->type >= kTypeDouble && row->type <= kTypeBool;
        const bool isText = row->type == kTypeText || row->type == kTypeIp || row->type == kTypeIpMask;
        const bool isFirst = GetParamPropertiesByName(const_cast<char*>(row->name)) == row;
        if ((!isNumber && !isText && row->type != kTypeEnum) || row->val_access == kReadOnly || !isFirst)
            continue;
        const double largest = row->type == kTypeBool ? 255 : row->type == kTypeLong ? 1e9 : 32767;
        const double lowest = std::max(row->val_min, row->type == kTypeBool ? 0 : -largest);
        const double highest = std::min(row->val_max, largest);
        const long whole = static_cast<long>(lowest) + 1 + static_cast<long>(random() % 1000);
        const double value = static_cast<double>(whole) > highest ? highest : static_cast<double>(whole);
        const std::string text = isText ? "text" + std::to_string(random() % 1000) : format("%.17g", value);

        const std::string term = std::string("TLX_") + row->name + (row->val_max_id > 0 ? " 1" : "");
        EXPECT_EQ(line(format("%s=%s", term.c_str(), text.c_str())), done("")) << term;
        double stored[16] = {};
        (row->is_volatile == 0 ? VarGetValue : VarGetGlobalValue)(row->id, stored);
        const double expected = row->type == kTypeFloat ? static_cast<float>(value) : value;
        if (isText) {
            EXPECT_STREQ(reinterpret_cast<char*>(stored), text.c_str()) << term;
        } else {
            EXPECT_EQ(stored[0], expected) << term;
        }

        const bool isWhole = row->type == kTypeLong || row->type == kTypeInt || row->type == kTypeBool;
        const std::string shown = isText ? '"' + text + '"' : format(isWhole ? "%.0f" : "%f", expected);
        EXPECT_EQ(line(term), done(shown + (row->val_max_id > 0 ? "\n" : ""))) << term;
    }
}

// Random ranges in every style against what printf makes of the values.
TEST_F(KeplVariable, DumpsRanges) {
    struct Array {
        const char* name;
        int count;
        const char* number;
        std::size_t width;
    };
    const Array arrays[] = {{"vMWR", 96, "%f", 8},
                            {"vBE", 96, "%.0f", 4},
                            {"SLvMWW", 96, "%f", 8},
                            {"conman_status", 247, "%.0f", 4},
                            {"OVR_MW_val", 32, "%f", 4}};
    std::mt19937 random(11);
    int tooLong = 0;
    for (int round = 0; round < 3000; ++round) {
        const Array& array = arrays[random() % std::size(arrays)];
        const int first = 1 + static_cast<int>(random() % static_cast<unsigned>(array.count));
        const int last = first + static_cast<int>(random() % static_cast<unsigned>(array.count - first + 1));
        const std::string option = std::vector<std::string>{"", " -p", " -c", " -h"}[random() % 4];
        const bool single = random() % 4 == 0;
        const int end = single ? first : last;
        const int id = GetParamPropertiesByName(const_cast<char*>(array.name))->id - 1;

        std::string expected = end - first > 1 ? "ARRAY:\n" : "";
        for (int index = first; index <= end; ++index) {
            double value = static_cast<double>(static_cast<int>(random())) / (array.width == 4 ? 1 : 3e4);
            VarSetGlobalValue(id + index, &value);
            VarGetGlobalValue(id + index, &value);
            const std::string number = format(array.number, value);
            char bytes[8];
            const auto whole = static_cast<std::int32_t>(value);
            const auto narrow = static_cast<float>(value);
            if (array.width == 8)
                std::memcpy(bytes, &value, 8);
            else if (array.number[1] == 'f')
                std::memcpy(bytes, &narrow, 4);
            else
                std::memcpy(bytes, &whole, 4);
            if (option == " -h")
                for (std::size_t i = 0; i < array.width; ++i)
                    expected += format("%02X", static_cast<unsigned>(bytes[i]) & 255u);
            else if (option == " -c")
                expected += (index == 1 ? "" : ";") + number;
            else if (option == " -p" || single)
                expected += number + "\n";
            else
                expected += format("TLX_%s %d = %s\n", array.name, index, number.c_str());
        }
        const std::string range = std::to_string(first) + (single ? "" : "." + std::to_string(end));
        const std::string term = format("TLX_%s %s%s", array.name, range.c_str(), option.c_str());
        const bool fits = expected.size() <= 2998;
        tooLong += fits ? 0 : 1;
        ASSERT_EQ(line(term), fits ? done(expected) : refused("<< OUTPUT BUFFER EXCEEDED >>")) << term;
    }
    EXPECT_GT(tooLong, 20);
}

TEST_F(KeplVariable, FillsTheBufferToTheLastCharacter) {
    double values[96]; // each a line of 31 characters, or 32 when negative, under the header's 7
    for (const int negatives : {15, 16}) {
        for (int i = 0; i < 96; ++i)
            values[i] = i < negatives ? -1e22 : 1e22;
        VarSetGlobalDoubleValueArray(GetParamPropertiesByName(const_cast<char*>("vMWR"))->id, values, 96);
        const Outcome outcome = line("TLX_vMWR 1.96 -p");
        EXPECT_EQ(outcome.result, negatives == 15 ? kLineDone : kLineError);
        EXPECT_EQ(outcome.answer.size() == 2998 + 1, negatives == 15) << outcome.answer.size();
    }
}

TEST_F(KeplVariable, DumpsRecords) {
    const char* const names[] = {"MessRecord01", "MessRecord02", "StatRecord_c0"};
    std::mt19937 random(13);
    for (int record = 0; record < 3; ++record) {
        std::vector<char> bytes(static_cast<std::size_t>(ARR_StructSize[record]));
        std::string plain = "STRUCT:\n", lines = plain, columns = plain, hex = plain;
        for (int i = 0; i < ARR_MemberCount[record]; ++i) {
            const auto& member = ARR_StructMemberProperties[ARR_MemberOffset[record] + i];
            const auto whole = static_cast<std::int32_t>(random());
            const float real = static_cast<float>(whole) / 7;
            const bool isLong = std::string(member.szMemberType) == "long";
            char* const place = bytes.data() + member.lMemberOffset;
            std::memcpy(place, isLong ? static_cast<const void*>(&whole) : &real, 4);
            const std::string text = isLong ? format("%d", whole) : format("%f", static_cast<double>(real));
            plain += format("TLX_%s.%s = %s\n", names[record], member.aszMemberName, text.c_str());
            lines += text + "\n";
            columns += (i == 0 ? "" : ";") + text;
            for (int k = 0; k < 4; ++k)
                hex += format("%02X", static_cast<unsigned>(place[k]) & 255u);
        }
        VarSetGlobalStructValue(kFirstStruct + record, bytes.data(), ARR_StructSize[record]);
        const std::string term = std::string("TLX_") + names[record];
        EXPECT_EQ(line(term), plain.size() <= 2998 ? done(plain) : refused("<< OUTPUT BUFFER EXCEEDED >>"));
        EXPECT_EQ(line(term + " -p"), done(lines));
        EXPECT_EQ(line(term + " -c"), done(columns));
        EXPECT_EQ(line(term + " x"), refused("<< INDEX MUST BE A NUMBER >>"));
        EXPECT_EQ(line(term + " -h"), done(hex));
        EXPECT_EQ(line(term + "=1"), done("")); // and keeps the record
        EXPECT_EQ(line(term + " -h"), done(hex));
    }
}

TEST_F(KeplVariable, SetsTheClock) {
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    tzset();
    EXPECT_EQ(line("TLX_Date"), done("\"2024-01-15\""));
    EXPECT_EQ(line("TLX_Time"), done("\"10:20:30\""));
    const struct {
        std::string line, clock, stored;
    } rows[] = {
        {"TLX_Date=2024-05-17", "2024-05-17 10:20:30", "2024-05-17"}, // summer time: the time of day stays
        {"TLX_Date= \"2025-12-01\" ", "2025-12-01 10:20:30", "\"2025-12-01\" "},
        {"LVR_date=2024-2-29-7", "2024-02-29 10:20:30", "2024-2-29-7"},
        {"TLX_Time=\"23:59:58\"", "2024-01-15 23:59:58", "\"23:59:58"}, // the slot holds nine characters
        {"TLX_Time=1:2:3", "2024-01-15 01:02:03", "1:2:3"},
    };
    for (const auto& row : rows) {
        whatHappened.clear();
        EXPECT_EQ(line(row.line), done("")) << row.line;
        EXPECT_EQ(whatHappened, (std::vector<std::string>{row.clock, "hwclock --systohc --utc --noadjfile"}))
            << row.line;
        double stored[16] = {};
        VarGetValue(row.line.find("ime") == std::string::npos ? kFirstSysDate : kFirstSysTime, stored);
        EXPECT_EQ(reinterpret_cast<char*>(stored), row.stored.substr(0, 14)) << row.line;
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
    } rows[] = {
        {"Language", 1, 2012, 1, ""},
        {"VarSaveParams", 1, 2024, 0, ""},
        {"DNS", 1, 2018, 0, "\"0.0.0.0\""},
        {"ETH0_IP", 1, 2019, 0, "\"192.168.55.127\""},
        {"Date", 1, 2015, 0, "\"2024-01-15\""},
        {"vBE 1.2", 1, 2004, 2, "TLX_vBE 1 = 1\nTLX_vBE 2 = 2\n"},
        {"MessRecord01 -p", 1, -1, -1, "STRUCT:\n"},
        {"vBE 3=9", 0, -1, -1, ""},
        {"ETH0_IP=1.2.3.4", 0, 2019, 0, ""},
        {"Time=1:2:3", 0, 2016, 0, ""},
        {"Nobody", -1, -1, -1, ""},
    };
    line("TLX_vBE 1=1,TLX_vBE 2=2");
    for (const auto& row : rows)
        for (const int index : {0, 5, kKeplStackSize - 1}) {
            values[index] = types[index] = -1;
            std::strcpy(text, "old");
            EXPECT_EQ(run(row.term, index), row.result) << row.term;
            EXPECT_EQ(types[index], row.type) << row.term;
            EXPECT_EQ(values[index], row.value) << row.term;
            EXPECT_EQ(std::string(text).substr(0, std::max<std::size_t>(row.text.size(), 0)), row.text)
                << row.term;
        }
    for (const int index : {-1, kKeplStackSize}) {
        EXPECT_EQ(run("Language", index), -1);
        EXPECT_EQ(run("DNS", index), 1);
        EXPECT_EQ(run("vBE 1", index), 1);
        EXPECT_EQ(run("Time=1:2:3", index), 0);
    }
    EXPECT_EQ(run(std::string(200, 'x').c_str(), 0), -1);

    line("TLX_conman_status 1=1"); // what fitted before the buffer was full stays in the text
    EXPECT_EQ(run("conman_status 1.247", 0), -1);
    EXPECT_TRUE(std::string(text).starts_with("ARRAY:\nTLX_conman_status 1 = 1\n"));
    EXPECT_TRUE(std::string(text).ends_with(" = 0\n"));
    EXPECT_GT(std::strlen(text), 2998u - 25);
}
