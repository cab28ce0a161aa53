// A program that was built when the library had fewer parameters, run with the library of today. It names
// every table.
#include <cstdio>
#include <cstring>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_ParamStrings.h"
#include "ParamSystem/TALUX_Var.h"
#include "src/talux_interpreter.h"

namespace {

int faults = 0;

void expect(bool holds, const char* what) {
    if (holds) return;
    std::printf("not so: %s\n", what);
    ++faults;
}

char* word(const char* text) {
    static char words[4][100];
    static int used = 0;
    return std::strcpy(words[++used % 4], text);
}

void askConstantTables() {
    const char* const first[] = {
        DefParamProperties[0].name, DefParamSymbols[1].name,  DefParamTextSymbols[1].name,
        DefParamText[0].txt,        DefParamFamilies[0].name, ARR_StructMemberProperties[0].aszMemberName,
        szSyntaxError[1],           allowedEasyCommands[0]};
    for (const char* text : first)
        expect(text != nullptr && *text != '\0', "a table of the program has its rows");
    expect(ARR_StructSize[2] == 236 && ARR_StructOffset[2] == 352 && ARR_MemberCount[2] == 59 &&
               ARR_MemberOffset[2] == 88,
           "the records lie where they did");

    VarLong id = 0;
    expect(ResolveParamSymbol(word("VAR_StatRecord_c0"), &id) == 1 && id == 30002, "the last symbol");
    expect(ResolveParamTextSymbol(word("TXT_StatRecord_c0"), &id) == 1 && id == 30002,
           "the last symbol of texts");
    expect(DefParamText[kDefParamTextRows - 1].id == 0, "the last row of the texts");
}

void askWorkingTables() {
    int last = 0;
    while (GetParamPropertiesByOrder(last + 1) != nullptr)
        ++last;
    expect(GetParamPropertiesByOrder(last) == ParamProperties + last, "the working table is the program's");
    expect(GetParamProperties(30002) == ParamProperties + last, "the last parameter by id");
    expect(GetParamPropertiesByName(word("statrecord_C0")) == ParamProperties + last,
           "the last parameter by name");
    ParamProperties[last + 1] = ParamProperties[last];
    ParamProperties[last + 1].id = 40000;
    expect(GetParamProperties(40000) == ParamProperties + last + 1, "a row that is added");

    const stParamText* const title = GetFirstParamString(30002, kTextTitle);
    expect(title == ParamText + iLastEntry && title->id == 30002, "the last text");
    ParamText[iLastEntry].txt = "other";
    expect(std::strcmp(GetParamString(30002, kTextTitle)->txt, "other") == 0, "a text that is changed");
}

void askLanguage() {
    char answer[TALUX_ANSWER_SIZE];
    expect(talux_interpreter_ProcessLine(word("TLX_StatRecord_c0"), nullptr, answer, word("")) == kLineDone &&
               std::strstr(answer, "TLX_StatRecord_c0.EvCnt_qu2 = ") != nullptr,
           "the last member of the last record");
    expect(clInterpreter.ProcessLine(word("6,7,*"), nullptr, answer, word(""), 3) == kLineDone &&
               std::strcmp(answer, "42.000000") == 0,
           "the interpreter");
    expect(pVarGlobal != nullptr && pVarTemp != nullptr && pVarStruct != nullptr && fSave == 1 &&
               mutex_init == 1 && *szParameterPath == '\0',
           "the store");
}

} // namespace

int main() {
    talux_interpreter_Init();
    askConstantTables();
    askWorkingTables();
    askLanguage();
    return faults == 0 ? 0 : 1;
}
