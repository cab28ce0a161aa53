// Text files: what a good one leaves in the working table, and how a bad one ends the process.
#include "Messages.h"
#include "ParamSystem/TALUX_ParamStrings.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <thread>

#include "MenuSystem/TALUX_Data.h"
#include "ParamSystem/TALUX_Var.h"

namespace {

constexpr int kLanguage = 10000;
const std::string kFile = "/tmp/texts.txt", kFifo = "/tmp/texts.fifo";
const std::string kSentinel = "TXT_NULL\t0\t0\t0\t0\t\"***\"\n";

struct TextLoader : testing::Test {
    static inline std::string compiledIn; // the whole table

    static std::string table() {
        LoadDefParamStrings();
        return {reinterpret_cast<const char*>(ParamText), sizeof ParamText};
    }
    static void SetUpTestSuite() {
        char path[] = "";
        VarInit(path);
        LoadDefParamProperties();
        compiledIn = table();
    }
    void SetUp() override {
        Data_StringReset();
        VarSetEnumValue(kLanguage, kEnglish);
    }
    void TearDown() override {
        EXPECT_TRUE(table() == compiledIn) << "a text of the file is left";
        for (const std::string& file : {kFile, kFifo})
            std::filesystem::remove(file);
    }
};
using TextLoaderDeathTest = TextLoader;

std::string title(const std::string& symbol, const std::string& text) {
    return symbol + "\t2\t3002\t0\t0\t\"" + text + "\"\n";
}
std::string titleOf(int id) {
    return GetParamString(id, kTextTitle)->txt;
}

void load(const std::string& content) {
    std::ofstream(kFile, std::ios::binary) << content;
    std::string path = kFile;
    EXPECT_EQ(LoadParamStrings(path.data()), 1);
}

// Must end the process with this message on standard output and nothing else, and with status 2.
void expectEndOf(std::string path, const std::string& message) {
    talux_test::expectEnd([&path] { LoadParamStrings(path.data()); }, message);
}
void expectEnd(const std::string& content, const std::string& what) {
    SCOPED_TRACE(content.substr(0, 60));
    std::ofstream(kFile, std::ios::binary) << content;
    expectEndOf(kFile, "\nError (TALUX_ParamStrings): " + what + "\n");
}

} // namespace

TEST_F(TextLoader, ReplacesTheWholeTable) {
    load(kSentinel + "\n" + title("var_language", "Tongue") + "\n\n" + " \t " +
         title("TXT_TPL_BAUDRATE", "") +
         "txt_eth1_ip\t1\t3008\t2\t7\tx \"Fenster \"7\", offen\" "
         "y\tz\nCMD_VarSaveParams\t2\t3007\t0\t2\t\"Faults\"");
    EXPECT_EQ(titleOf(kLanguage), "Tongue");
    EXPECT_EQ(titleOf(18021), "");
    EXPECT_STREQ(GetParamStringInGroup(19001, 0, 2, kTextGroup)->txt, "Faults");
    EXPECT_EQ(titleOf(2000), "***") << "the compiled-in texts are gone";
    EXPECT_STREQ(GetParamStringInGroup(20001, 2, 7, kTextItem)->txt, "***") << "is German";
    VarSetEnumValue(kLanguage, kGerman);
    EXPECT_STREQ(GetParamStringInGroup(20001, 2, 7, kTextItem)->txt, "Fenster \"7\", offen");
}

// The first line replaces the row that means "not found".
TEST_F(TextLoader, FillsRowsFromTheFirstOn) {
    load(title("VAR_Name", "nothing") + title("VAR_Name", "second"));
    EXPECT_EQ(titleOf(9000), "second");
    EXPECT_EQ(titleOf(9001), "nothing");
    int compiledRow = 1; // of the first text with this id
    while (DefParamText[compiledRow].id != 9000)
        ++compiledRow;
    std::string rows = kSentinel + title("VAR_Name", "first");
    for (int row = 2; row < compiledRow; ++row)
        rows += title("VAR_Abg", "");
    load(rows + title("VAR_Name", "second"));
    EXPECT_EQ(titleOf(9000), "first");
    load("\n");
    EXPECT_EQ(titleOf(9000), "***") << "an empty file leaves no text";
    LoadDefParamStrings();
    EXPECT_EQ(titleOf(kLanguage), "Language");
}

TEST_F(TextLoader, TakesLinesUpToTheLongestAndAFullTable) {
    const std::string bare = title("VAR_Name", "");
    const std::string longest(253 - bare.size(), 'x');
    load(kSentinel + title("VAR_Name", longest));
    EXPECT_EQ(titleOf(9000), longest);
    const std::string last = title("VAR_Name", longest + "y");
    load(kSentinel + last.substr(0, 253)); // no line feed
    EXPECT_EQ(titleOf(9000), longest + "y");
    expectEnd(kSentinel + last, "Line too long in source file '" + kFile + "'");

    Data_StringReset();
    std::string full = kSentinel;
    for (int row = 1; row < kParamTextRows - 1; ++row)
        full += bare;
    full += title("VAR_Abg", "the last");
    load(full + "\n\n");
    EXPECT_EQ(std::string(GetFirstParamString(9001, kTextTitle)->txt), "the last");
    EXPECT_STREQ(GetNextParamString(9001, kTextTitle)->txt, "***") << "the table ends with its last row";
    Data_StringReset();
    expectEnd(full + bare, "max string number exceeded");
}

// Slowly through a FIFO, while a timer interrupts.
TEST_F(TextLoader, GoesOnAfterSignals) {
    const std::string content = kSentinel + title("VAR_Name", "slow");
    ASSERT_EQ(mkfifo(kFifo.c_str(), 0600), 0);
    struct sigaction action {};
    action.sa_handler = [](int) {};
    sigaction(SIGALRM, &action, nullptr);
    std::thread writer([&] {
        usleep(20000);
        std::ofstream fifo(kFifo);
        for (const char c : content)
            fifo << c << std::flush, usleep(2000);
    });
    ualarm(1000, 1000);
    LoadParamStrings(std::string(kFifo).data());
    ualarm(0, 0);
    std::signal(SIGALRM, SIG_DFL);
    writer.join();
    EXPECT_EQ(titleOf(9000), "slow");
}

TEST_F(TextLoaderDeathTest, BadFilesEndTheProcess) {
    std::filesystem::remove(kFile);
    expectEndOf(kFile, "Error (TALUX_ParamStrings): Can't find source file '" + kFile + "'\n");
    expectEndOf("/tmp", "\nError (TALUX_ParamStrings): Can't read source file '/tmp'\n");
    for (std::size_t length : {254u, 100'000u})
        expectEnd(kSentinel + std::string(length, ' '), "Line too long in source file '" + kFile + "'");

    std::string before = kSentinel;
    std::istringstream fields("id VAR_Language language 1 type 3002 id_group 0 id_item 0 txt \"x\"");
    for (std::string name, value; fields >> name >> value; before += value + "\t")
        expectEnd(before + "\t\n", "no value for field '" + name + "'");
    expectEnd(kSentinel + "  ", "no value for field 'id'"); // a blank line is no empty line
    expectEnd(kSentinel + "10000\t1\t3002\t0\t0\t\"x\"\n", "no valid value for field 'id'");
    ASSERT_NE(Data_StringSave(std::string(kDataStringSpaceSize - 3, 'x').c_str()), nullptr);
    expectEnd(title("VAR_Name", "ab"), "no string space for field 'txt'");
}
