// Fills the working table: with the compiled-in texts or with those of a file.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "MenuSystem/TALUX_Data.h"
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/texts/Tables.h"

constinit stParamText ParamText[kParamTextRows] = {};

namespace talux {

constinit bool areTextsOfFile = false;

namespace {

constexpr char kModule[] = "TALUX_ParamStrings";
constexpr std::size_t kMaxLine = 253; // characters, line feed included

void clearFrom(int row) {
    std::fill(ParamText + row, std::end(ParamText), stParamText{});
}

// `format` takes the module's name and then `name`.
[[noreturn]] void fail(FILE* source, const char* format, const char* name = "") {
    std::printf(format, kModule, name);
    if (source) std::fclose(source);
    std::exit(2);
}

// Up to and including the line feed, or as much as fits. False at the end of the file.
bool takeLine(FILE* source, char (&line)[kMaxLine + 2]) {
    std::size_t length = 0;
    int character = 0;
    while (length < sizeof line - 1 && character != '\n' && (character = os::readCharacter(source)) != EOF)
        line[length++] = static_cast<char>(character);
    line[length] = '\0';
    return length > 0;
}

// Reads the next line that is not empty. False at the end of the file.
bool readLine(FILE* source, char (&line)[kMaxLine + 2], const char* sourcefile) {
    do {
        const bool isLine = takeLine(source, line);
        if (std::ferror(source) != 0) fail(source, "\nError (%s): Can't read source file '%s'\n", sourcefile);
        if (!isLine) return false;
        if (std::strlen(line) > kMaxLine)
            fail(source, "\nError (%s): Line too long in source file '%s'\n", sourcefile);
    } while (std::strcmp(line, "\n") == 0);
    return true;
}

stParamText readText(FILE* source, char* line) {
    char tokens[kMaxLine + 2];
    StringTokenizer tokenizer; // a new one, so that a blank line cannot see the tokens of the last
    tokenizer.SetBuffer(tokens, sizeof tokens);
    tokenizer.SetString(line + std::strspn(line, "\t "), "\t\n", false);

    stParamText text{};
    char* saved = nullptr;
    Data_SetSymbol(kModule, &text.id, "id", &tokenizer, source);
    Data_SetInt(kModule, &text.language, "language", &tokenizer, source);
    Data_SetInt(kModule, &text.type, "type", &tokenizer, source);
    Data_SetInt(kModule, &text.id_group, "id_group", &tokenizer, source);
    Data_SetInt(kModule, &text.id_item, "id_item", &tokenizer, source);
    Data_SetText(kModule, &saved, "txt", &tokenizer, source);
    text.txt = saved;
    return text;
}

} // namespace
} // namespace talux

using namespace talux;

int LoadDefParamStrings() {
    if (areTextsOfFile) clearFrom(kTexts + 1);
    areTextsOfFile = false;
    os::getMemory(ParamText, sizeof *ParamText * static_cast<std::size_t>(kTexts + 1));
    std::copy_n(DefParamText, kTexts + 1, ParamText);
    return 1;
}

int LoadParamStrings(char* sourcefile) {
    FILE* source = os::openStream(sourcefile);
    if (!source) fail(source, "Error (%s): Can't find source file '%s'\n", sourcefile);
    int row = 0;
    for (char line[kMaxLine + 2]; readLine(source, line, sourcefile); ++row) {
        if (row == kParamTextRows) fail(source, "\nError (%s): max string number exceeded\n");
        ParamText[row] = readText(source, line);
    }
    std::fclose(source);
    clearFrom(row);
    if (row == 0) ParamText[0].txt = "***";
    areTextsOfFile = true;
    return 1;
}
