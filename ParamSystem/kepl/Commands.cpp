// The built-in commands: load, save and commit.
#include "ParamSystem/TALUX_Var.h"
#include "ParamSystem/kepl/Execution.h"
#include "ParamSystem/os/Os.h"
#include "support/Text.h"

namespace talux::kepl {

namespace {

constexpr int kWholeFile = 0;

// Loads a file of the parameter directory. A path that is too long loads nothing: cut, it would name
// another file.
int loadNamed(const char* iniPath, std::string_view name) {
    char szFileName[255];
    const int length = formatText(szFileName, sizeof szFileName, "%s/%.*s", iniPath,
                                  static_cast<int>(name.size()), name.data());
    return length < static_cast<int>(sizeof szFileName) ? VarLoadFile(szFileName, kWholeFile) : 0;
}

} // namespace

TermResult runCommand(const RunCommand& command, std::string_view term, const char* iniPath, char* txt) {
    const CommandRow& row = rowOf(kCommands, command.command);
    const int result = command.file.empty() ? row.carryOut() : loadNamed(iniPath, command.file);
    copyText(txt, kKeplTextSize, result == 1 ? row.success : row.failure);
    if (row.isLogged) os::logInfo(" %.*s %s", static_cast<int>(term.size()), term.data(), txt);
    return answering(Output::text);
}

} // namespace talux::kepl
