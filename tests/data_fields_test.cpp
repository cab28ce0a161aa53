// Fields of tab-separated records, and how a broken record ends the process.
#include "MenuSystem/TALUX_Data.h"
#include "Messages.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <random>
#include <vector>

namespace {

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

// Called before the first test, so that nothing has reset the space yet.
const char* const savedBeforeReset = Data_StringSave("");

} // namespace

TEST(DataFieldsDeathTest, BrokenFieldsEndTheProcess) {
    const std::string tooLong = '"' + std::string(255, 'x') + '"';
    Data_StringReset();
    expectEnd("", Data_SetInt, "value");
    expectEnd("\t\t\n", Data_SetSymbol, "value");
    expectEnd("\t\t\n", Data_SetInt, "value");
    expectEnd("\t\t\n", Data_SetDouble, "value");
    expectEnd("\t\t\n", Data_SetText, "value");
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
