// The parts of a variable term: NAME [INDEX[.INDEX]] [OPTION] [= VALUE].
#ifndef TALUX_KEPL_VARIABLETERM_H
#define TALUX_KEPL_VARIABLETERM_H

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/kepl/Dump.h"

namespace talux::kepl {

class VariableTerm {
public:
    // Splits the term, given without its prefix. One with more than kKeplMaxTerm characters has no parts.
    explicit VariableTerm(const char* term);

    VariableTerm(const VariableTerm&) = delete;
    VariableTerm& operator=(const VariableTerm&) = delete;

    // "???" when the term has none.
    char* name() { return nameText; }
    // What stands right of "=", without leading blanks; null for a read.
    char* value() { return valueText; }

    bool isWrite() const { return valueText != nullptr; }
    Style style() const { return outputStyle; }

    // How many indexes were given, 0 to 2, whether they are numbers, and which.
    int indices() const { return indexCount; }
    bool indicesAreNumbers() const { return indicesValid; }
    VarLong index1() const { return lIndex1; }
    VarLong index2() const { return indexCount == 2 ? lIndex2 : lIndex1; }

private:
    char sides[kKeplMaxTerm + 1]; // working copies that the parts lie in
    char words[kKeplMaxTerm + 1];
    char nameUnknown[4] = "???";
    char* nameText = nameUnknown;
    char* valueText = nullptr;
    Style outputStyle = Style::plain;
    int indexCount = 0;
    bool indicesValid = true;
    VarLong lIndex1 = 0;
    VarLong lIndex2 = 0;

    void splitLeftSide(char* leftSide);
    void takeIndices(char* word);
};

} // namespace talux::kepl

#endif
