// The table that decides which terms mean what.
#include <limits>
#include <string_view>

#include "ParamSystem/kepl/Arithmetic.h"
#include "ParamSystem/kepl/BuiltIn.h"
#include "ParamSystem/kepl/Line.h"
#include "ParamSystem/kepl/Shell.h"
#include "ParamSystem/support/Text.h"

namespace talux::kepl {

namespace {

constexpr std::size_t kPrefixLength = 4; // "TLX_", "LVR_"

// ProcessCommand tells what it did by its result and by whether it left a text.
Flow variable(Line& line) {
    const int result = line.interpreter.ProcessCommand(line.szToken + kPrefixLength, line.txt, line.adStack,
                                                       line.aiType, &line.iSP, line.uid);
    if (result < 0) {
        line.answer(line.error);
        return kFailed;
    }
    if (result == 0) {
        line.output = Output::terminatorOnly;
    } else if (result == 1 && line.txt[0] == '\0') {
        ++line.iSP;
        line.output = Output::topOfStack;
    } else if (result == 1) {
        copyText(line.result, kKeplTextSize, line.txt); // stays there should a later term fail
        line.output = Output::text;
    }
    return kNextTerm;
}

constexpr int kAnyUid = std::numeric_limits<int>::min();

enum class Test { prefix, wholeTerm, none };

struct Row {
    std::string_view word;
    Test test;
    int lowestUid;
    Flow (*carryOut)(Line&);
};

// Tried from top to bottom. The first six characters of a term make it a shell term, and so on: longer
// words that begin alike stand first.
constexpr Row kDispatch[] = {
    {"system", Test::prefix, kAnyUid, shellTerm}, // looks at the rights itself
    {"load_ip", Test::prefix, 2, loadAddresses},
    {"load_sec", Test::prefix, 3, loadSecurity},
    {"load", Test::prefix, 2, loadParameters},
    {"save_ip", Test::prefix, 2, saveAddresses},
    {"save_sec", Test::prefix, 3, saveSecurity},
    {"save", Test::prefix, 1, saveParameters},
    {"update", Test::prefix, kAnyUid, update},
    {"LVR_", Test::prefix, kAnyUid, variable},
    {"TLX_", Test::prefix, kAnyUid, variable},
    {"+", Test::wholeTerm, kAnyUid, add},
    {"-", Test::wholeTerm, kAnyUid, subtract},
    {"*", Test::wholeTerm, kAnyUid, multiply},
    {"/", Test::wholeTerm, kAnyUid, divide},
    {"sin", Test::wholeTerm, kAnyUid, sine},
    {"cos", Test::wholeTerm, kAnyUid, cosine},
    {"tan", Test::wholeTerm, kAnyUid, tangent},
    {"deg", Test::wholeTerm, kAnyUid, toDegrees},
    {"rad", Test::wholeTerm, kAnyUid, toRadians},
    {"sqr", Test::wholeTerm, kAnyUid, square},
    {"sqrt", Test::wholeTerm, kAnyUid, squareRoot},
    {"", Test::none, kAnyUid, number},
};

bool matches(const Row& row, std::string_view term) {
    switch (row.test) {
    case Test::prefix:
        return startsIgnoringCase(term, row.word);
    case Test::wholeTerm:
        return equalIgnoringCase(term, row.word);
    case Test::none:
        break;
    }
    return true;
}

} // namespace

Flow evaluateTerm(Line& line) {
    const Row* row = kDispatch;
    while (!matches(*row, line.szToken))
        ++row;
    return line.uid < row->lowestUid ? line.refuseRights() : row->carryOut(line);
}

} // namespace talux::kepl
