// Text files: what a good one leaves in the working table, and how a bad one ends the process.
#include "ParamSystem/TALUX_ParamStrings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "MenuSystem/TALUX_Data.h"
#include "ParamSystem/TALUX_Var.h"

namespace {

constexpr int kLanguage = 10000;
const std::string kFile = "/tmp/texts.txt";

class TextLoader : public testing::Test {
protected:
    static void SetUpTestSuite() {
        char path[] = "";
        VarInit(path);
    }
    void SetUp() override {
        LoadDefParamProperties();
        LoadDefParamStrings();
        Data_StringReset();
        VarSetEnumValue(kLanguage, kEnglish);
    }
};
using TextLoaderDeathTest = TextLoader;

void load(const std::string& content) {
    std::ofstream(kFile, std::ios::binary) << content;
    std::string path = kFile;
    EXPECT_EQ(LoadParamStrings(path.data()), 1);
}

std::string line(const std::string& symbol, int language, int type, int group, int item,
                 const std::string& text) {
    return symbol + "\t" + std::to_string(language) + "\t" + std::to_string(type) + "\t" +
           std::to_string(group) + "\t" + std::to_string(item) + "\t\"" + text + "\"\n";
}

const std::string kSentinel = line("TXT_NULL", 0, 0, 0, 0, "***");

std::string title(int id) {
    return GetParamString(id, kTextTitle)->txt;
}

// Must end the process with this message and status 2.
void loadPath(std::string path) {
    dup2(STDERR_FILENO, STDOUT_FILENO);
    LoadParamStrings(path.data());
}
void expectEnd(const std::string& content, const std::string& message) {
    SCOPED_TRACE(content.substr(0, 60));
    std::ofstream(kFile, std::ios::binary) << content;
    EXPECT_EXIT(loadPath(kFile), testing::ExitedWithCode(2), testing::StrEq(message));
}
void expectEndAtField(const std::string& content, const std::string& what, const std::string& field) {
    expectEnd(content, "\nError (TALUX_ParamStrings): no " + what + " for field '" + field + "'\n");
}

} // namespace

TEST_F(TextLoader, ReplacesTheWholeTable) {
    load(kSentinel + "\n" + line("var_language", 2, kTextTitle, 0, 0, "Tongue") + "\n\n" + " \t " +
         line("txt_eth1_ip", 2, kTextTitle, 0, 0, "Address"));
    EXPECT_EQ(title(20001), "Address");
    EXPECT_EQ(title(kLanguage), "Tongue");
    EXPECT_EQ(title(2000), "***") << "the compiled-in texts are gone";
}

TEST_F(TextLoader, ReadsEveryField) {
    load(kSentinel + line("TXT_ETH1_IP", 1, kTextItem, 2, 7, "Fenster \"7\", offen") +
         line("CMD_VarSaveParams", 2, kTextGroup, 0, 2, "Faults") +
         line("TXT_TPL_BAUDRATE", 2, kTextTitle, 0, 0, ""));
    VarSetEnumValue(kLanguage, kGerman);
    const stParamText* text = GetParamStringInGroup(20001, 2, 7, kTextItem);
    EXPECT_STREQ(text->txt, "Fenster \"7\", offen");
    EXPECT_EQ(text->language, kGerman);
    EXPECT_STREQ(GetParamStringInGroup(19001, 0, 2, kTextGroup)->txt, "Faults");
    EXPECT_EQ(title(18021), "");
    for (unsigned long long mask : text->visibility)
        EXPECT_EQ(mask, 0u);
}

// The first line takes the place of the row that stands for "not found".
TEST_F(TextLoader, FillsRowsFromTheFirstOn) {
    load(line("VAR_Name", 2, kTextTitle, 0, 0, "nothing") + line("VAR_Name", 2, kTextTitle, 0, 0, "second"));
    EXPECT_EQ(title(9000), "second");
    EXPECT_EQ(title(9001), "nothing");
    load("");
    EXPECT_EQ(GetParamString(9000, kTextTitle)->id, 0) << "an empty file leaves no text";
    LoadDefParamStrings();
    EXPECT_EQ(title(kLanguage), "Language");
}

TEST_F(TextLoader, TakesLinesUpToTheLongestAndAFullTable) {
    const std::string head = "VAR_Name\t2\t3002\t0\t0\t\"";
    const std::string longest = head + std::string(253 - head.size() - 2, 'x') + "\"\n";
    ASSERT_EQ(longest.size(), 253u);
    load(kSentinel + longest);
    EXPECT_EQ(title(9000).size(), 253 - head.size() - 2);
    const std::string noLineFeed = head + std::string(253 - head.size() - 1, 'y') + "\"";
    load(kSentinel + noLineFeed);
    EXPECT_EQ(title(9000).size(), 253 - head.size() - 1);

    Data_StringReset();
    std::string full = kSentinel;
    for (int row = 1; row < kParamTextRows - 1; ++row)
        full += line("VAR_Name", 2, kTextTitle, 0, 0, "");
    load(full + line("VAR_Abg", 2, kTextTitle, 0, 0, "the last") + "\n\n");
    EXPECT_STREQ(GetFirstParamString(9001, kTextTitle)->txt, "the last");
    EXPECT_STREQ(GetNextParamString(9001, kTextTitle)->txt, "***") << "the table ends with its last row";
    Data_StringReset();
    expectEnd(full + line("VAR_Abg", 2, kTextTitle, 0, 0, "") + line("VAR_Abg", 2, kTextTitle, 0, 0, ""),
              "\nError (TALUX_ParamStrings): max string number exceeded\n");
}

TEST_F(TextLoaderDeathTest, BadFilesEndTheProcess) {
    std::filesystem::remove(kFile);
    EXPECT_EXIT(loadPath(kFile), testing::ExitedWithCode(2),
                testing::StrEq("Error (TALUX_ParamStrings): Can't find source file '" + kFile + "'\n"));
    EXPECT_EXIT(loadPath("/tmp"), testing::ExitedWithCode(2),
                testing::StrEq("\nError (TALUX_ParamStrings): Can't read source file '/tmp'\n"));
    for (std::size_t length : {253u, 254u, 300u, 100'000u})
        expectEnd(kSentinel + std::string(length, ' ') + "\n",
                  "\nError (TALUX_ParamStrings): Line too long in source file '" + kFile + "'\n");
    expectEnd(std::string(254, 'x'),
              "\nError (TALUX_ParamStrings): Line too long in source file '" + kFile + "'\n");
}

TEST_F(TextLoaderDeathTest, BadFieldsEndTheProcess) {
    const std::string fields[] = {"VAR_Language", "1", "3002", "0", "0", "\"x\""};
    const std::string names[] = {"id", "language", "type", "id_group", "id_item", "txt"};
    std::string before;
    for (std::size_t k = 0; k < std::size(fields); ++k) {
        if (k > 0) expectEndAtField(kSentinel + before + "\n", "value", names[k]);
        expectEndAtField(kSentinel + before + "nonsense\n", "valid value", names[k]);
        before += fields[k] + "\t";
    }
    for (const char* id : {"10000", "VAR_Language ", "Language", "***"})
        expectEndAtField(std::string(id) + "\t1\t3002\t0\t0\t\"x\"\n", "valid value", "id");
    // A blank line is no empty line, wherever it stands; it sees nothing of the line before.
    for (const char* blank : {"  ", " \t \n", "\r\n"})
        expectEndAtField(kSentinel + blank, blank[0] == '\r' ? "valid value" : "value", "id");
}

TEST_F(TextLoaderDeathTest, TextsNeedStringSpace) {
    std::string content = kSentinel;
    for (int row = 0; row < 250; ++row)
        content += line("VAR_Name", 2, kTextTitle, 0, 0, std::string(200, 'x'));
    expectEndAtField(content, "string space", "txt");
}
