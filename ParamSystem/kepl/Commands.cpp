// The built-in commands: load, save and commit.
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/kepl/Execution.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/support/Text.h"

namespace talux::kepl {

namespace {

constexpr int kWholeFile = 0;

struct Report {
    Command command;
    int (*carryOut)();
    const char* success;
    const char* failure;
};

constexpr Report kReports[] = {
    {Command::loadAddresses, VarLoadIPConfig, "IPs successfully loaded\n", "error: can't load IPs\n"},
    {Command::loadSecurity, VarLoadSecParams, "sec parameter successfully loaded\n",
     "sec error: can't load parameter\n"},
    {Command::loadParameters, VarLoadParams, "parameter successfully loaded\n",
     "error: can't load parameter\n"},
    {Command::saveAddresses, VarSaveIPConfig, "IP config successfully saved\n",
     "error: can't save ip parameter\n"},
    {Command::saveSecurity, VarSaveSecParams, "sec parameter successfully saved\n",
     "error: can't save sec parameter\n"},
    {Command::saveParameters, VarSaveParams, "parameter successfully saved\n",
     "error: can't save parameter\n"},
    {Command::update, VarUpdateGlobalSpace, "parameter successfully update\n",
     "error: can't update parameter\n"},
};

const Report& reportOf(Command command) {
    const Report* report = kReports;
    while (report->command != command)
        ++report;
    return *report;
}

// Loads a file of the parameter directory. A path that is too long loads nothing: cut, it would be another
// file.
int loadNamed(const char* iniPath, std::string_view name) {
    char szFileName[255];
    const int length = formatText(szFileName, sizeof szFileName, "%s/%.*s", iniPath,
                                  static_cast<int>(name.size()), name.data());
    return length < static_cast<int>(sizeof szFileName) ? VarLoadFile(szFileName, kWholeFile) : 0;
}

} // namespace

TermResult runCommand(const Decision& decision, const char* iniPath, char* txt) {
    const Report& report = reportOf(decision.command);
    const int result = decision.words.empty() ? report.carryOut() : loadNamed(iniPath, decision.words);
    copyText(txt, kKeplTextSize, result == 1 ? report.success : report.failure);
    // Commands on the security parameters leave a trace in the system log, whatever came out.
    if (decision.command == Command::loadSecurity || decision.command == Command::saveSecurity)
        os::logInfo(" %.*s %s", static_cast<int>(decision.term.size()), decision.term.data(), txt);
    return says(Says::text);
}

} // namespace talux::kepl
