// The compiled-in texts, their look-ups in two languages and the TXT_ names; text files and the fields of
// their lines: what a good one leaves in the working table, and how a bad one ends the process.
#include "MenuSystem/TALUX_Data.h"
#include "Messages.h"
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Var.h"

#include <algorithm>
#include <climits>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr int kLanguage = 10000, kAny = INT_MIN, kNotFound = 0;

// Before texts are loaded none is found: asked before any test runs.
const bool emptyAtFirst = GetParamString(kLanguage, kTextTitle)->id == 0 &&
                          GetFirstParamStringInGroup(18021, 0, kTextItem)->txt == nullptr;

struct Texts : testing::Test {
    void SetUp() override {
        char path[] = "";
        VarInit(path);
        LoadDefParamProperties();
        ASSERT_EQ(LoadDefParamStrings(), 1);
    }
    void TearDown() override { std::fill(ParamText + 1, std::end(ParamText), stParamText{}); }
};
using TextsDeathTest = Texts;

// The row of a text in the working table, found the plain way; kNotFound is the sentinel.
int find(int from, int language, int id, int type, int group = kAny, int item = kAny) {
    for (int row = from; row < kParamTextRows && ParamText[row].id != 0; ++row) {
        const stParamText& text = ParamText[row];
        if (text.id == id && text.language == language && text.type == type &&
            (group == kAny || text.id_group == group) && (item == kAny || text.id_item == item))
            return row;
    }
    return kNotFound;
}

// All texts of a group in the current language on one line: the number of the first, the texts with "|"
// between them and "~" for a line break. A number that does not follow the one before is in brackets.
std::string list(int id, int group, int type) {
    std::string joined;
    int expected = kAny;
    for (const stParamText* text = GetFirstParamStringInGroup(id, group, type); text->id != 0;
         text = GetNextParamStringInGroup(id, group, type)) {
        const std::string number = std::to_string(text->id_item);
        joined += joined.empty() ? number + ":" : text->id_item == expected ? "|" : "|(" + number + ")";
        joined += text->txt;
        expected = text->id_item + 1;
    }
    std::replace(joined.begin(), joined.end(), '\n', '~');
    return joined;
}

long resolve(std::string name) {
    VarLong id = -1;
    return ResolveParamTextSymbol(name.data(), &id) == 1 ? id : -1;
}

const stParamText* lookUp(int which, int id, int type, int group, int item) {
    return which == 0   ? GetParamString(id, type)
           : which == 1 ? GetFirstParamString(id, type)
           : which == 2 ? GetNextParamString(id, type)
           : which == 3 ? GetParamStringInGroup(id, group, item, type)
           : which == 4 ? GetFirstParamStringInGroup(id, group, type)
                        : GetNextParamStringInGroup(id, group, type);
}

// ---- Files ----

// Called before the first test, so that nothing has reset the space yet.
const char* const savedBeforeReset = Data_StringSave("");

const std::string kFile = "/tmp/texts.txt", kFifo = "/tmp/texts.fifo";
const std::string kSentinel = "TXT_NULL\t0\t0\t0\t0\t\"***\"\n";

struct TextLoader : Texts {
    std::string compiledIn; // the whole table

    static std::string table() {
        LoadDefParamStrings();
        return {reinterpret_cast<const char*>(ParamText), sizeof ParamText};
    }
    void SetUp() override {
        Texts::SetUp();
        compiledIn = table();
        Data_StringReset();
        VarSetEnumValue(kLanguage, kEnglish);
    }
    void TearDown() override {
        EXPECT_TRUE(table() == compiledIn) << "a text of the file is left";
        for (const std::string& file : {kFile, kFifo})
            std::filesystem::remove(file);
        Texts::TearDown();
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

TEST_F(Texts, AreFoundOnceTheyAreLoadedOnly) {
    EXPECT_TRUE(emptyAtFirst);
    for (const stParamText& sentinel : {DefParamText[0], DefParamText[DefParamTextCount - 1]})
        EXPECT_TRUE(sentinel.id == 0 && sentinel.language == 0 && sentinel.type == 0 &&
                    std::string_view(sentinel.txt) == "***");
}

// Every id with texts has them in one piece and one name, in the same order.
TEST_F(Texts, HaveNames) {
    std::istringstream ids(
        "txt_tpl_baudrate 18021 TXT_TPL_DLG_Test 18000 TXT_NULL 0 TXT_TPL_NULL 0 "
        "TXT_ETH0_IP 20000 TXT_WLAN0_MASK 21002 TXT_ETH1_GATEWAY 22001 TXT_ETH1_GATEWAYS -1 "
        "TXT_cycle_cnt_low 7000 TXT_OVR_BE_enable 7005 TXT_DisplayLevel 7006 *** -1 "
        "TXT_conman_status 6094 TXT_conman_status_1 -1 TXT_EvCnt_qu2 -1 "
        "TXT_OVR_BE_LT_enable -1 TXT_VarSaveParams 19001");
    long id = resolve("");
    EXPECT_EQ(id, -1);
    for (std::string name; ids >> name >> id;)
        EXPECT_EQ(resolve(name), id) << name;
    const stParamText* text = DefParamText + 1;
    const stParamSymbol* symbol = DefParamTextSymbols + 3;
    for (; symbol->value != 0; ++symbol) {
        EXPECT_EQ(resolve(symbol->name), symbol->value);
        EXPECT_EQ(text->id, symbol->value) << symbol->name;
        while (text->id == symbol->value)
            ++text;
    }
    EXPECT_EQ(text->id, 0);
    EXPECT_STREQ(symbol->name, "***");
}

// Some of the texts that the pages of docs/parameters show, of each kind: language, id, type, group, texts.
TEST_F(Texts, ReadAsPrinted) {
    std::istringstream printed(R"(1 10000 3002 0 0:Sprache
2 10000 3002 0 0:Language
1 10000 3008 0 1:Deutsch|Englisch
2 10000 3008 0 1:German|English
2 2000 3003 0 0:Voltage U1_primary
1 2000 3004 0 0:kV
2 18005 3007 0 0:Parameter|Messages
2 19001 3007 0 0:Args|Messages|Errors
1 19001 3008 0 1:VarSaveParams
2 19001 3008 1 1:Please wait...
2 19001 3008 2 0:Error during~transfer|Successful~saved
2 19007 3008 2 1:Disc full|Not enough~space|Transfer~successful|No USB stick|Error during~transfer (CRC)|
Timeout|No write permission~on USB
)");
    short language = 0;
    for (int id = 0, type = 0, group = 0; printed >> language >> id >> type >> group;) {
        VarSetEnumValue(kLanguage, language);
        std::string expected;
        for (std::string line; expected.empty() || expected.back() == '|'; expected += line)
            std::getline(printed >> std::ws, line);
        EXPECT_EQ(list(id, group, type), expected) << id << " in language " << language;
    }
    std::string inputs = "1:OFF";
    for (int n = 1; n <= 6 + 96; ++n)
        inputs += n <= 6 ? "|BI" + std::to_string(n) : "|virt_BI" + std::to_string(n - 6);
    EXPECT_EQ(list(18028, 0, kTextItem), inputs);
}

// Into the working table a program writes, and anybody may set the cursor.
TEST_F(Texts, LookUpsAgreeWithPlainSearches) {
    std::mt19937 random(1);
    const auto upTo = [&random](int most) {
        return static_cast<int>(random() % static_cast<unsigned>(most + 1));
    };
    const int cursors[] = {INT_MIN, -1, 0, DefParamTextCount, kParamTextRows - 1, kParamTextRows, INT_MAX};
    int cursor = iLastEntry, rows = 0;
    while (ParamText[rows + 1].id != 0)
        ++rows;
    const int compiledIn = rows;
    stParamText some = ParamText[1];
    for (int round = 0; round < 3000; ++round) {
        if (upTo(19) == 0) cursor = iLastEntry = cursors[upTo(6)];
        const int language = upTo(4) - 1, current = language == kGerman ? kGerman : kEnglish;
        VarSetEnumValue(kLanguage, static_cast<short>(language));
        VarSetGlobalEnumValue(kLanguage, static_cast<short>(3 - language)); // the temporary space counts
        if (upTo(1) == 0) some = ParamText[1 + upTo(rows - 1)];
        stParamText& written = ParamText[1 + upTo(rows - 1)];
        if (round % 3 == 0) written.txt = "written";
        // Between others of its id it would hide those after it.
        const bool isAtEdge = written.id != (&written)[-1].id || written.id != (&written)[1].id;
        if (round % 10 == 0 && isAtEdge) written.id = 50000 + upTo(9);
        if (round % 20 == 1 && rows < kParamTextRows - 1) {
            ParamText[++rows] = some;
            ParamText[rows].txt = "added";
        }
        const int id = upTo(9) == 0 ? 99999 : some.id, item = some.id_item + upTo(1);
        const int type = upTo(4) == 0 ? kTextTitle + upTo(6) : some.type;
        const int group = upTo(4) == 0 ? upTo(4) - 1 : some.id_group;

        const int which = upTo(5);
        const stParamText* const found = lookUp(which, id, type, group, item);
        const bool isNext = which % 3 == 2, moves = which % 3 != 0;
        const int g = which < 3 ? kAny : group, i = which == 3 ? item : kAny;
        const int from = !isNext ? 1 : cursor < 0 || cursor >= kParamTextRows ? kParamTextRows : cursor + 1;
        int expected = find(from, current, id, type, g, i);
        if (expected == kNotFound && !isNext) expected = find(1, kEnglish, id, type, g, i);
        if (moves && expected != kNotFound) cursor = expected;
        ASSERT_EQ(iLastEntry, cursor) << round;
        ASSERT_EQ(found, ParamText + expected) << round;
    }
    LoadDefParamStrings();
    EXPECT_EQ(
        std::memcmp(ParamText, DefParamText, sizeof *ParamText * static_cast<std::size_t>(compiledIn + 1)),
        0);
    EXPECT_STREQ(ParamText[rows].txt, "added") << "rows of the program stay";
    ParamText[1].id = 0;
    EXPECT_EQ(GetParamString(kLanguage, kTextTitle), ParamText) << "no row is in use";
}

TEST_F(TextsDeathTest, AnIdBelowOneAborts) {
    const std::string names[] = {"GetParamString(int, int)",
                                 "GetFirstParamString(int, int)",
                                 "GetNextParamString(int, int)",
                                 "GetParamStringInGroup(int, int, int, int)",
                                 "GetFirstParamStringInGroup(int, int, int)",
                                 "GetNextParamStringInGroup(int, int, int)"};
    for (int which = 0; which < 6; ++which)
        for (int id : {0, INT_MIN})
            EXPECT_DEATH(lookUp(which, id, kTextTitle, 0, 0),
                         talux_test::startingWith("ParamSystem/TALUX_ParamStrings: const stParamText* " +
                                                  names[which] + ": Assertion `id>0' failed."));
}

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
    stParamText& added = ParamText[kParamTextRows - 1];
    added = ParamText[1];
    LoadDefParamStrings();
    EXPECT_EQ(std::exchange(added, {}).id, ParamText[1].id) << "rows of the program stay";
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
        std::ofstream fifo;
        while (!fifo.is_open()) // a signal may come to this thread while it waits for the reader
            fifo.open(kFifo);
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
