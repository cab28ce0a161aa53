// Lines and their answers: terms, output modes, errors, built-in commands, rights, system log.
#include "Isolation.h"
#include "KeplLine.h"
#include "SystemLog.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

using namespace talux_test;
using KeplLine = KeplTest;

// The network settings of the machine are none of this test's business.
extern "C" int system(const char*) {
    return 0;
}

namespace {

const std::string kSyntax = "<< SYNTAX ERROR >>";
const std::string kDivision = "Division durch 0";
const std::string kRoot = "Quadratwurzel von negativen Werten nicht erlaubt";

std::string times(int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

} // namespace

TEST_F(KeplLine, Computes) {
    const LineRow rows[] = {
        {"1.5", done("1.500000")},
        {",,2,,3,+,", done("5.000000")},
        {"2,3", done("3.000000")},
        {" 7,  2,-", done("5.000000")},
        {"7,2,/", done("3.500000")},
        {"7 , 2 ,*", done("14.000000")},
        {"180,rad", done("3.141593")},
        {"3.141592653589793,deg", done("180.000000")},
        {"3,SQR", done("9.000000")},
        {"9,sqrt", done("3.000000")},
        {"0,Sqrt", done("0.000000")},
        {"2,sin,2,cos,/,2,tan,/", done("1.000000")},
        {"12 abc", done("12.000000")},
        {"-5", done("-5.000000")},
        {"0x10", done("16.000000")},
        {"-0.0000001", done("-0.000000")},
        {"1e300,sqr", done("inf")},
        {"1e300,sqr,-1,*", done("-inf")},
        {"nan", done("nan")},
        {"0.0000005", done("0.000000")}, // ties and digits as printf has them
        {"0.0000015", done("0.000002")},
        {"1e22", done("10000000000000000000000.000000")},
        {"1,0,/", failed(kDivision)},
        {"1,-0,/", failed(kDivision)},
        {"-9,sqrt", failed(kRoot)},
        {"5, ,+", failed(kSyntax)},
        {"2,3,+ ", failed(kSyntax)}, // a trailing blank: no operator
        {"1,sin ", failed(kSyntax)},
        {"1.5.2", failed(kSyntax)},
        {"nonsense", failed(kSyntax)},
        {"+", failed(kSyntax)}, // too few values
        {"1,*", failed(kSyntax)},
        {"0,/", failed(kSyntax)},
        {"sqrt", failed(kSyntax)},
        {",,,", failed(kSyntax)}, // no value to show
        {"", {kLineEmpty, kUntouched, ""}},
        {std::string(48, '0') + "7", done("7.000000")},
        {std::string(49, '0') + "7", failed(kSyntax)},    // no number has 50 characters
        {std::string(126, ' ') + "12", done("1.000000")}, // a term ends at 127
        {times(126, "1,") + "12", done("12.000000")},     // 254 characters
        {times(127, "1,") + "1", failed(kSyntax)},        // 255
        {times(100, "1,") + times(99, "+,"), failed(kSyntax)},
        {times(60, "1,") + times(59, "+,"), done("60.000000")},
    };
    expectLines(rows);
}

TEST_F(KeplLine, AnswersWhatTheLastTermWithASaySays) {
    const LineRow rows[] = {
        {"TLX_MW_start=7", done("")},
        {"TLX_MW_start=7,TLX_MW_start", done("7")},
        {"TLX_MW_start=7,tlx_mw_START,0.5,+", done("7.500000")},
        {"TLX_MW_start=7,LVR_MW_start,lvr_DisplayLevel,*", done("0")},
        {"TLX_MW_start=7,TLX_MW_start,sqr", done("49.000000")},
        {"TLX_MW_start=7,2,TLX_MW_start,*", done("14.000000")},
        {"5,TLX_MW_start=7", done("")},
        {"TLX_Name", done("\"DEF-NAME\"")},
        {"TLX_Name,5", done("\"DEF-NAME\"")},
        {"5,TLX_Name,+", failed(kSyntax) /* a text is no value */},
        {"TLX_Name,TLX_MW_start", done("0")},
        {"TLX_MW_start,TLX_Name", done("\"DEF-NAME\"")},
        {"TLX_Language", done("1.000000")},
        {"update,TLX_Language", done("1.000000")},
        {"TLX_Language,UPDATES", done("parameter successfully update\n")},
        {"update,5,TLX_MW_start=1", done("")},
        {"system echo a,5", {kLineDone, "", ""}},
        {"system,5", done("command required\n")},
        {"system echo a,TLX_MW_start", done("0")},
        {"TLX_Name,system true,system", done("command required\n")},
        {"TLX_Name,1,0,/", {kLineError, "\"DEF-NAME\"", kDivision}},
        {"TLX_Name,TLX_Nobody", refused(kSyntax)},
        {"TLX_VarSaveParams", done("0.000000")}, // a command has no value
    };
    for (LineRow row : rows) {
        if (row.line == "5,TLX_Name,+") row.expected.answer = "\"DEF-NAME\"";
        resetStore();
        EXPECT_EQ(line(row.line), row.expected) << row.line;
    }
}

TEST_F(KeplLine, EvaluatesNothingBehindAnError) {
    line("TLX_MW_start=1,nonsense,TLX_MW_start=2");
    EXPECT_EQ(line("TLX_MW_start"), done("1")); // what was done before stays done
    EXPECT_EQ(line("TLX_MW_start=3,load_sec,TLX_MW_start=4", 2), kRightsTooLow);
    EXPECT_EQ(line("TLX_MW_start"), done("3"));
}

TEST_F(KeplLine, LoadsAndSaves) {
    TALUX_NEEDS_ISOLATION("parameter files and network settings");
    std::filesystem::remove_all(path);
    const LineRow withoutDirectory[] = {
        {"load", done("error: can't load parameter\n")},
        {"load_ip", done("error: can't load IPs\n")},
        {"load_sec", done("sec error: can't load parameter\n")},
        {"load none.ini", done("error: can't load parameter\n")},
        {"load_ip none.ini", done("error: can't load IPs\n")},
        {"load " + std::string(122, 'n'), done("error: can't load parameter\n")},
        {"save", done("error: can't save parameter\n")},
        {"save_ip", done("error: can't save ip parameter\n")},
        {"save_sec", done("error: can't save sec parameter\n")},
    };
    expectLines(withoutDirectory);

    std::filesystem::create_directory(path);
    std::ofstream("/tmp/kepl/x.ini") << "TLX_Name=\"from x\"\n";
    const LineRow rows[] = {
        {"save", done("parameter successfully saved\n")},
        {"SAVE_IP now", done("IP config successfully saved\n")},
        {"save_secure", done("sec parameter successfully saved\n")},
        {"load", done("parameter successfully loaded\n")},
        {"Load_IP", done("IPs successfully loaded\n")},
        {"load_sec x.ini", done("sec parameter successfully loaded\n")},
        {"load x.ini more", done("parameter successfully loaded\n")},
        {"loadall   x.ini,TLX_Name", done("\"from x\"")},
        {"load_ip x.ini,TLX_Name", done("\"from x\"")},
        {"load_sec x.ini,TLX_Name", done("\"DEF-NAME\"")}, // takes no file name
        {"load x.ini,load,TLX_Name", done("\"DEF-NAME\"")},
        {"save,load", done("parameter successfully loaded\n")},
        {"TLX_Name=saved,save, ", failed(kSyntax)},
    };
    expectLines(rows);
    EXPECT_EQ(line("load,TLX_Name"), done("\"saved\""));
}

TEST_F(KeplLine, ChecksRights) {
    TALUX_NEEDS_ISOLATION("/dev/log");
    std::filesystem::create_directory(path);
    SystemLog log;
    ASSERT_TRUE(log.bound);
    const struct {
        std::string term;
        int lowestUid;
    } levels[] = {{" save", 1},        {"load", 2},          {"load_ip", 2},
                  {"load_sec", 3},     {"save_ip", 2},       {"save_sec", 3},
                  {"update", 0},       {"system ls", 3},     {"TLX_MW_start=1,5", 2},
                  {"TLX_Name", 1},     {"1,2,+", 0},         {"SystemX cat /etc/.version", 0},
                  {"TLX_mw_req=1", 1}, {"TLX_FW_BLOCK=1", 3}};
    for (const auto& level : levels)
        for (int uid = -1; uid <= 3; ++uid) {
            const std::string answer = line(level.term, uid).answer;
            const bool isRefused = answer == kRightsTooLow.answer;
            const bool open = level.lowestUid == 0;
            EXPECT_EQ(isRefused, !open && uid < level.lowestUid) << level.term << " uid " << uid;
            const auto messages = log.take();
            std::string term = level.term.substr(level.term.find_first_not_of(' '));
            if (term.starts_with("TLX_")) term = term.substr(4, term.find(',') - 4);
            const bool isLogged = std::ranges::count(messages, "<11>" + term + " << RIGHTS TOO LOW >>") == 1;
            EXPECT_EQ(isLogged, isRefused) << level.term << " uid " << uid;
        }
}

TEST_F(KeplLine, LogsWhatTouchesSecurity) {
    TALUX_NEEDS_ISOLATION("/dev/log");
    std::filesystem::remove_all(path);
    using Messages = std::vector<std::string>;
    SystemLog log;
    ASSERT_TRUE(log.bound);
    const struct {
        std::string line;
        int uid;
        Messages messages;
    } rows[] = {
        {"1,TLX_Name,TLX_Name=x,update", 3, {}},
        {"TLX_ftp_log = 1", 3, {"<14>sec param: ftp_log = 1"}},
        {"TLX_FW_BLOCK=1%s", 2, {"<14>sec param: FW_BLOCK=1%s", "<11>FW_BLOCK=1%s << RIGHTS TOO LOW >>"}},
        {"TLX_FW_BLOCK 1=1", 3, {"<14>sec param: FW_BLOCK 1=1"}}, // refused, but logged
        {"TLX_sec_mode=1", 3, {"<14>sec param: sec_mode=1"}},
        {"TLX_FW_BLOCK=", 3, {}},
        {"TLX_FW_BLOCK x=1", 3, {}},
        {"TLX_FW_BLOCK", 0, {"<11>FW_BLOCK << RIGHTS TOO LOW >>"}},
        {"  load_sec now", 3, {"<14> load_sec now sec error: can't load parameter\n"}},
        {"save_sec", 3, {"<14> save_sec error: can't save sec parameter\n"}},
        {"load_sec", 2, {"<11>load_sec << RIGHTS TOO LOW >>"}},
        {"load,save", 3, {}},
        {" system  true", 3, {"<14>sec param: system  true"}},
        {"system", 3, {"<14>sec param: system"}},
        {"system cat .version", 0, {"<14>sec param: system cat .version"}},
        {"system cat /etc/passwd", 2, {"<11>system cat /etc/passwd << RIGHTS TOO LOW >>"}},
    };
    for (const auto& row : rows) {
        line(row.line, row.uid);
        EXPECT_EQ(log.take(), row.messages) << row.line;
    }
}

TEST_F(KeplLine, HandsTheErrorOutOnce) {
    std::string text = "1,0,/", result(kKeplTextSize + 1, '\0'), terminator;
    char buffer[20] = "???????????????????";
    const auto fail = [&] {
        interpreter.ProcessLine(text.data(), collect, result.data(), terminator.data(), 3);
    };
    fail();
    EXPECT_EQ(interpreter.GetError(nullptr, 5), 1);
    EXPECT_EQ(interpreter.GetError(buffer, 0), 1);
    EXPECT_EQ(buffer[0], '?'); // and the text is gone
    fail();
    interpreter.GetError(buffer, 5);
    EXPECT_EQ(std::string(buffer, 6), "Divis?");
    fail();
    interpreter.GetError(buffer, 19);
    EXPECT_EQ(std::string(buffer, 20), std::string("Division durch 0\0\0\0\0", 20));
    interpreter.GetError(buffer, 19);
    EXPECT_STREQ(buffer, "");
}

TEST(KeplTexts, AreExported) {
    EXPECT_STREQ(szIndex1gtIndex2[0], "<< INDEX 1 GR\xC3\x96SSER ALS INDEX2 >>");
    EXPECT_STREQ(szParameterRequired[0], "<< PARAMETER ERFORDERLICH>>");
    for (const auto* const text :
         {&szIndexNotANumber, &szSyntaxError, &szIndexRequired, &szParameterRequired, &szNoIndexAllowed,
          &szValueTooLow, &szValueTooHigh, &szIndexTooLow, &szIndexTooHigh, &szIndex1TooLow, &szIndex1TooHigh,
          &szIndex2TooLow, &szIndex2TooHigh, &szIndex1gtIndex2, &szReadOnly, &szWriteOnly, &szUIDWrong,
          &szNotAllowed, &szBufferOverflow})
        for (const std::string language : *text)
            EXPECT_TRUE(language.starts_with("<< ") && language.ends_with(">>")) << language;

    EXPECT_STREQ(allowedEasyCommands[19], "date +%Y-%m-%d\x5C %H:%M:%S");
    EXPECT_STREQ(allowedEasyCommands[43], "tail -n 200 /media/sdcard/logbook");
    EXPECT_EQ(allowedEasyCommands[44], nullptr);
    EXPECT_STREQ(allowedConnectedCommands[5], "cd /media/sdcard/recorder;ls -rlt *.rec | tail -n 1");
    EXPECT_EQ(allowedConnectedCommands[6], nullptr);
}
