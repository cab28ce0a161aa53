#include "ParamSystem/kepl/VariableTerm.h"

#include <cstring>
#include <string_view>

#include "ParamSystem/TALUX_Funcs.h"

namespace talux::kepl {

namespace {

char* skipBlanks(char* text) {
    return text + std::strspn(text, " ");
}

// Leaves the style alone when the word is no option.
void takeOption(std::string_view word, Style& style) {
    if (word == "-p") style = Style::lines;
    if (word == "-c") style = Style::columns;
    if (word == "-h") style = Style::hex;
}

} // namespace

// Each tokenizer is a fresh one: an empty text, which none accepts, must not leave an older one in force.
VariableTerm::VariableTerm(const char* term) {
    StringTokenizer line;
    line.SetBuffer(sides, sizeof sides);
    line.SetString(const_cast<char*>(term), "=", false); // only read
    char* const leftSide = line.nextToken();
    char* const rightSide = line.nextToken();
    if (rightSide != nullptr) valueText = skipBlanks(rightSide);
    if (leftSide != nullptr) splitLeftSide(skipBlanks(leftSide));
}

void VariableTerm::splitLeftSide(char* leftSide) {
    StringTokenizer command;
    command.SetBuffer(words, sizeof words);
    command.SetString(leftSide, " \r\n", false);
    char* const first = command.nextToken();
    char* const second = command.nextToken();
    char* const third = command.nextToken();
    if (first != nullptr) nameText = first;
    if (second != nullptr && *second == '-') takeOption(second, outputStyle);
    if (second != nullptr && *second != '-') takeIndices(second);
    if (third != nullptr) takeOption(third, outputStyle);
}

void VariableTerm::takeIndices(char* word) {
    char pieces[kKeplMaxTerm + 1];
    StringTokenizer index;
    index.SetBuffer(pieces, sizeof pieces);
    index.SetString(word, ".", false);
    for (VarLong* const target : {&lIndex1, &lIndex2}) {
        const char* const piece = index.nextToken();
        if (piece == nullptr) return;
        ++indexCount;
        if (MakeLong(piece, target) != 1) indicesValid = false;
    }
}

} // namespace talux::kepl
