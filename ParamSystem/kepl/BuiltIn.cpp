#include "ParamSystem/kepl/BuiltIn.h"

#include <string_view>

#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/kepl/Answer.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/support/Text.h"

namespace talux::kepl {

namespace {

constexpr int kWholeFile = 0;

// What the command says about its outcome.
struct Outcome {
    const char* success;
    const char* failure;
};

Flow report(Line& line, int result, const Outcome& outcome) {
    copyText(line.txt, result == 1 ? outcome.success : outcome.failure);
    return line.showText();
}

// Commands on the security parameters leave a trace in the system log, whatever came out.
Flow reportAndLog(Line& line, int result, const Outcome& outcome) {
    const Flow flow = report(line, result, outcome);
    os::logInfo(" %s %s", line.szToken, line.txt);
    return flow;
}

// Loads the file in the parameter directory that the term names, or without a name the usual one. A path
// that is too long loads nothing: cut, it would be another file.
int loadNamedOr(int (*loadUsual)(), Line& line) {
    line.words.SetString(line.szToken, " ", false);
    line.words.nextToken();
    const char* const name = line.words.nextToken();
    if (name == nullptr) return loadUsual();

    char szFileName[255];
    const int length = formatText(szFileName, sizeof szFileName, "%s/%s", line.iniPath, name);
    if (length >= static_cast<int>(sizeof szFileName)) return 0;
    return VarLoadFile(szFileName, kWholeFile);
}

} // namespace

Flow loadAddresses(Line& line) {
    return report(line, loadNamedOr(VarLoadIPConfig, line),
                  {"IPs successfully loaded\n", "error: can't load IPs\n"});
}

Flow loadSecurity(Line& line) {
    return reportAndLog(line, VarLoadSecParams(),
                        {"sec parameter successfully loaded\n", "sec error: can't load parameter\n"});
}

Flow loadParameters(Line& line) {
    return report(line, loadNamedOr(VarLoadParams, line),
                  {"parameter successfully loaded\n", "error: can't load parameter\n"});
}

Flow saveAddresses(Line& line) {
    return report(line, VarSaveIPConfig(),
                  {"IP config successfully saved\n", "error: can't save ip parameter\n"});
}

Flow saveSecurity(Line& line) {
    return reportAndLog(line, VarSaveSecParams(),
                        {"sec parameter successfully saved\n", "error: can't save sec parameter\n"});
}

Flow saveParameters(Line& line) {
    return report(line, VarSaveParams(), {"parameter successfully saved\n", "error: can't save parameter\n"});
}

Flow update(Line& line) {
    return report(line, VarUpdateGlobalSpace(),
                  {"parameter successfully update\n", "error: can't update parameter\n"});
}

} // namespace talux::kepl
