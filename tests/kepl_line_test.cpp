// Lines and their answers: terms, output modes, errors, built-in commands, rights, system log.
#include "Isolation.h"
#include "KeplLine.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace talux_test;
using KeplLine = KeplTest;

// The network settings of the machine are none of this test's business.
extern "C" int system(const char*) {
    return 0;
}

namespace {

const std::string kName = "\"DEF-NAME\"";

// A private system log: the datagrams that reach /dev/log.
class SystemLog {
public:
    SystemLog() : listener(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{AF_UNIX, "/dev/log"};
        bound = bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    }
    ~SystemLog() {
        close(listener);
        if (bound) unlink("/dev/log");
    }
    SystemLog(const SystemLog&) = delete;
    SystemLog& operator=(const SystemLog&) = delete;

    // The messages since the last call, as "<priority>text" without time stamp and program name. Fetch
    // them line by line: the socket holds ten, then senders wait.
    std::vector<std::string> take() {
        std::vector<std::string> messages;
        char datagram[4096];
        for (ssize_t size; (size = recv(listener, datagram, sizeof datagram, MSG_DONTWAIT)) > 0;) {
            const std::string text(datagram, static_cast<std::size_t>(size));
            messages.push_back(text.substr(0, text.find('>') + 1) + text.substr(text.find(": ") + 2));
        }
        return messages;
    }

    bool bound;

private:
    int listener;
};

} // namespace

TEST_F(KeplLine, ReadsTermsAndNumbers) {
    const std::string term254 = times(126, "1,") + "12", zeros48 = times(48, "0");
    expectLines(
        {{done("5.000000"), "5|,,2,,3,+,| 7,  2,-|2,5"},
         {done("12.000000"), "12 abc|0xC|1.2e1|144,Sqrt|" + term254},
         {done("3.141593"), "180,RAD"},
         {done("180.000000"), "3.141592653589793,deg"},
         {done("1.000000"), "2,sin,2,cos,/,2,tan,/|" + times(126, " ") + "12"}, // a term ends at 127
         {done("60.000000"), times(60, "1,") + times(59, "+,")},
         {done("7.000000"), zeros48 + "7"},
         {done("nan"), "nan"},
         {done("-inf"), "1e300,sqr,-1,*"},
         {failed("Division durch 0"), "1,0,/|1,-0,/"},
         {failed("Quadratwurzel von negativen Werten nicht erlaubt"), "-9,sqrt"},
         {failed(kSyntax), "5, ,+|2,3,+ |1,sin |1.5.2|nonsense|+|1,*|0,/|sqrt|,,,"},
         {failed(kSyntax), "0" + zeros48 + "7|" + term254 + "3|" + times(100, "1,") + times(99, "+,")}});
    EXPECT_EQ(line(""), (Outcome{kLineEmpty, kUntouched, ""}));
}

TEST_F(KeplLine, AnswersWhatTheLastTermWithASaySays) {
    expectLines(
        {{done(""), "TLX_MW_start=7|5,TLX_MW_start=7|update,5,TLX_MW_start=1"},
         {done("7"), "TLX_MW_start=7,TLX_MW_start"},
         {done("7.500000"), "TLX_MW_start=7,tlx_mw_START,0.5,+"},
         {done("49.000000"), "TLX_MW_start=7,TLX_MW_start,sqr"},
         {done("14.000000"), "TLX_MW_start=7,2,TLX_MW_start,*"},
         {done("0"), "LVR_MW_start,lvr_DisplayLevel,*|TLX_Name,TLX_MW_start|system echo a,TLX_MW_start"},
         {done("0.000000"), "TLX_VarSaveParams"}, // a command has no value
         {done("1.000000"), "TLX_Language|update,TLX_Language"},
         {done(kName), "TLX_Name|TLX_Name,5|TLX_MW_start,TLX_Name"},
         {{kLineError, kName, kSyntax}, "5,TLX_Name,+"}, // a text is no value
         {{kLineError, kName, "Division durch 0"}, "TLX_Name,1,0,/"},
         {refused(kSyntax), "TLX_Name,TLX_Nobody"},
         {done("parameter successfully update\n"), "TLX_Language,UPDATES"},
         {done("command required\n"), "system,5|TLX_Name,system true,system"},
         {{kLineDone, "", ""}, "system echo a,5"}});
}

TEST_F(KeplLine, EvaluatesNothingBehindAnError) {
    for (const std::string error : {"nonsense", "TLX_Nobody=1", "1,0,/", "load_sec"}) {
        line("TLX_MW_start=1," + error + ",TLX_MW_start=2", 2);
        EXPECT_EQ(line("TLX_MW_start"), done("1")) << error; // what was done before stays done
    }
}

TEST_F(KeplLine, LoadsAndSaves) {
    TALUX_NEEDS_ISOLATION("parameter files and network settings");
    std::filesystem::remove_all(path);
    expectLines({{done("error: can't load parameter\n"), "load|load none.ini"},
                 {done("error: can't load IPs\n"), "load_ip|load_ip none.ini"},
                 {done("sec error: can't load parameter\n"), "load_sec"},
                 {done("error: can't save parameter\n"), "save"},
                 {done("error: can't save ip parameter\n"), "save_ip"},
                 {done("error: can't save sec parameter\n"), "save_sec"}});
    std::filesystem::create_directory(path);
    std::ofstream("/tmp/kepl/x.ini") << "TLX_Name=\"from x\"\n";
    expectLines(
        {{done("parameter successfully saved\n"), "save"},
         {done("IP config successfully saved\n"), "SAVE_IP now"},
         {done("sec parameter successfully saved\n"), "save_secure"},
         {done("parameter successfully loaded\n"), "load|load x.ini more|save,load"},
         {done("IPs successfully loaded\n"), "Load_IP"},
         {done("sec parameter successfully loaded\n"), "load_sec x.ini"},
         {done("\"from x\""), "loadall   x.ini,TLX_Name|load_ip x.ini,TLX_Name"},
         {done(kName), "load_sec x.ini,TLX_Name|load x.ini,load,TLX_Name"}, // load_sec takes no file name
         {failed(kSyntax), "TLX_Name=saved,save, "}});
    EXPECT_EQ(line("load,TLX_Name"), done("\"saved\""));
    char root[] = "";
    KEPL_Interpreter inRoot(root);
    EXPECT_EQ(evaluate(inRoot, "load tmp/kepl/x.ini,TLX_Name"), done("\"from x\""));
}

TEST_F(KeplLine, ChecksRights) {
    TALUX_NEEDS_ISOLATION("/dev/log");
    std::filesystem::create_directory(path);
    SystemLog log;
    ASSERT_TRUE(log.bound);
    const char* const lowestUid[] = {"update|1,2,+|SystemX cat /etc/.version", " save|TLX_Name|TLX_mw_req=1",
                                     "load|load_ip|save_ip|TLX_MW_start=1,5",
                                     "load_sec|save_sec|system ls|TLX_FW_BLOCK=1|TLX_FW_BLOCK=2"};
    for (int level = 0; level <= 3; ++level)
        for (const std::string& text : split(lowestUid[level]))
            for (int uid = -1; uid <= 3; ++uid) {
                const bool isRefused = level > 0 && uid < level;
                EXPECT_EQ(line(text, uid).answer == kRightsTooLow.answer, isRefused)
                    << text << " uid " << uid;
                std::string term = text.substr(text.find_first_not_of(' '));
                if (term.starts_with("TLX_")) term = term.substr(4, term.find(',') - 4);
                EXPECT_EQ(std::ranges::count(log.take(), "<11>" + term + " << RIGHTS TOO LOW >>"), isRefused)
                    << text << " uid " << uid;
            }
}

TEST_F(KeplLine, LogsWhatTouchesSecurity) {
    TALUX_NEEDS_ISOLATION("/dev/log");
    std::filesystem::remove_all(path);
    SystemLog log;
    ASSERT_TRUE(log.bound);
    const struct {
        int uid;
        std::string line, messages;
    } rows[] = {{3, "1,TLX_Name,TLX_Name=x,update,load,save", ""},
                {3, "TLX_ftp_log = 1", "<14>sec param: ftp_log = 1"},
                {2, "TLX_FW_BLOCK=1%s", "<14>sec param: FW_BLOCK=1%s|<11>FW_BLOCK=1%s << RIGHTS TOO LOW >>"},
                {3, "TLX_FW_BLOCK 1=1", "<14>sec param: FW_BLOCK 1=1"}, // refused, but logged
                {3, "TLX_sec_mode=1", "<14>sec param: sec_mode=1"},
                {3, "TLX_FW_BLOCK=,TLX_FW_BLOCK x=1", ""},
                {3, "  load_sec now", "<14> load_sec now sec error: can't load parameter\n"},
                {3, "save_sec", "<14> save_sec error: can't save sec parameter\n"},
                {3, " system  true", "<14>sec param: system  true"},
                {3, "system", "<14>sec param: system"},
                {0, "system cat .version", "<14>sec param: system cat .version"},
                {2, "system cat /etc/passwd", "<11>system cat /etc/passwd << RIGHTS TOO LOW >>"}};
    for (const auto& row : rows) {
        line(row.line, row.uid);
        EXPECT_EQ(log.take(), split(row.messages)) << row.line;
    }
}

TEST_F(KeplLine, HandsTheErrorOutOnce) {
    std::string result(kKeplTextSize + 1, '\0'), terminator;
    char buffer[20] = "???????????????????";
    const auto errorOf = [&](std::vector<std::string> lines, int size) {
        for (std::string& text : lines)
            interpreter.ProcessLine(text.data(), collect, result.data(), terminator.data(), 3);
        EXPECT_EQ(interpreter.GetError(buffer, size), 1);
        return std::string(buffer, 20);
    };
    EXPECT_EQ(interpreter.GetError(nullptr, 5), 1);
    EXPECT_EQ(errorOf({"1,0,/"}, 0)[0], '?');
    EXPECT_EQ(errorOf({}, 1)[0], '\0');                          // the text was handed out, to nobody
    EXPECT_EQ(errorOf({"1,0,/", ""}, 5).substr(0, 6), "Divis?"); // an empty line touches nothing
    EXPECT_EQ(errorOf({"1,0,/"}, 19), std::string("Division durch 0\0\0\0\0", 20));
    EXPECT_EQ(errorOf({"1,0,/", "1"}, 19)[0], '\0');
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
