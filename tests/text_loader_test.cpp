// Text files and the fields of their lines: what a good one leaves in the working table, and how a bad one
// ends the process.
#include "Messages.h"
#include "ParamSystem/TALUX_ParamStrings.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <sys/stat.h>
#include <thread>

#include "MenuSystem/TALUX_Data.h"
#include "ParamSystem/TALUX_Var.h"

namespace {

// Called before the first test, so that nothing has reset the space yet.
const char* const savedBeforeReset = Data_StringSave("");

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

template <typename Field>
using SetField = void (*)(const char*, Field*, const char*, StringTokenizer*, FILE*);

// A record line with its tokenizer, set up as a loader does it.
struct Record {
    char buffer[1000];
    StringTokenizer tokenizer;
    FILE* file = std::tmpfile();

    explicit Record(std::string line, const char* delimiters = "\t\n") {
        tokenizer.SetBuffer(buffer, sizeof buffer);
        tokenizer.SetString(line.data(), delimiters, false);
    }
    ~Record() { std::fclose(file); }

    template <typename Field>
    Field take(SetField<Field> set) {
        Field field{};
        set("M", &field, "f", &tokenizer, file);
        return field;
    }
};

// Must end the process with this message and status 2, the file closed by then.
int fileToWatch = -1;
template <typename Field>
void expectEnd(const std::string& line, SetField<Field> set, const char* what,
               const char* delimiters = "\t\n") {
    SCOPED_TRACE('"' + line.substr(0, 40) + '"');
    Record record(line, delimiters);
    const auto take = [&] {
        fileToWatch = fileno(record.file);
        std::atexit([] { std::printf(fcntl(fileToWatch, F_GETFD) == -1 ? "closed" : "left open"); });
        record.take(set);
    };
    talux_test::expectEnd(take, std::string("\nError (M): no ") + what + " for field 'f'\nclosed");
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
    ASSERT_EQ(mkfifo(kFifo.c_str(), 0600), 0);
    struct sigaction action {};
    action.sa_handler = [](int) {};
    sigaction(SIGALRM, &action, nullptr);
    std::thread writer([&] {
        usleep(20000);
        std::ofstream fifo(kFifo);
        for (const char c : kSentinel + title("VAR_Name", "slow"))
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
}

TEST(DataFieldsDeathTest, BrokenFieldsEndTheProcess) {
    const std::string tooLong = '"' + std::string(255, 'x') + '"';
    Data_StringReset();
    expectEnd("", Data_SetInt, "value");
    expectEnd("\t\t\n", Data_SetDouble, "value");
    // Something is left under the old set, nothing under tab and newline.
    expectEnd("\t\n", Data_SetInt, "valid value", ",");
    for (const char* line : {"VAR_no_such", "16000", "TXT_no_such", " VAR_Language", "***"})
        expectEnd(line, Data_SetSymbol, "valid value");
    for (const char* line : {"x", "1.5", " ", "0x10", "\"1\""})
        expectEnd(line, Data_SetInt, "valid value");
    for (const char* line : {"x", "1,5", " "})
        expectEnd(line, Data_SetDouble, "valid value");
    for (const char* line : {"hello", "a\"b", tooLong.c_str()})
        expectEnd(line, Data_SetText, "valid value");

    ASSERT_NE(Data_StringSave(std::string(kDataStringSpaceSize - 3, 'x').c_str()), nullptr);
    expectEnd("\"ab\"", Data_SetText, "string space");
    EXPECT_STREQ(Record("\"a\"").take(Data_SetText), "a");
    expectEnd("\"\"", Data_SetText, "string space");
}

TEST(DataFields, ComeOneAfterTheOther) {
    Data_StringReset();
    Record record("VAR_Language\t12  and more\t\t1.5e3\ttxt_tpl_baudrate\tx \"two words\" y\t-7\n");
    EXPECT_EQ(record.take(Data_SetSymbol), 10000);
    EXPECT_EQ(record.take(Data_SetInt), 12);
    EXPECT_EQ(record.take(Data_SetDouble), 1500);
    EXPECT_EQ(record.take(Data_SetSymbol), 18021);
    EXPECT_STREQ(record.take(Data_SetText), "two words");
    EXPECT_EQ(record.take(Data_SetInt), -7);
    EXPECT_FALSE(record.tokenizer.hasMoreTokens());

    Record commas(",,3 4\t5\n", ","); // the head is split as the reader says, the fields at tab and newline
    EXPECT_EQ(commas.take(Data_SetInt), 3);
    EXPECT_EQ(commas.take(Data_SetInt), 5);

    for (const std::string& text : std::vector<std::string>{"ab\"c", "", "\"", std::string(254, 'x')})
        EXPECT_EQ(Record('"' + text + '"').take(Data_SetText), text);
}

TEST(StringSpace, IsFilledToTheLastByteAndKeepsItsTexts) {
    EXPECT_EQ(savedBeforeReset, nullptr);
    std::mt19937 random{40000};
    for (int round = 0; round < 20; ++round) {
        Data_StringReset();
        std::vector<std::pair<const char*, std::string>> saved;
        for (std::size_t room = kDataStringSpaceSize; room > 0;) {
            const std::string text(random() % 700, static_cast<char>('a' + random() % 26));
            const char* copy = Data_StringSave(text.c_str());
            ASSERT_EQ(copy != nullptr, text.size() < room) << room;
            if (copy == nullptr) continue;
            saved.emplace_back(copy, text);
            room -= text.size() + 1;
        }
        EXPECT_EQ(Data_StringSave(""), nullptr);
        for (const auto& [copy, text] : saved)
            ASSERT_EQ(copy, text);
    }
}
