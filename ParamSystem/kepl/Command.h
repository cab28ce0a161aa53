// The command words of the language.
#ifndef TALUX_KEPL_COMMAND_H
#define TALUX_KEPL_COMMAND_H

#include <limits>
#include <string_view>

#include "ParamSystem/TALUX_Var.h"
#include "support/EnumRows.h"

namespace talux::kepl {

// Tried in this order: of words that begin alike the longer one comes first.
enum class Command : unsigned char {
    shell,
    loadAddresses,
    loadSecurity,
    loadParameters,
    saveAddresses,
    saveSecurity,
    saveParameters,
    update,
};

inline constexpr int kEverybody = std::numeric_limits<int>::min();

struct CommandRow {
    Command command;
    std::string_view word; // a term that begins with it is the command; letter case does not count
    int lowestUid;         // rights that it takes
    bool takesFile;        // from the parameter directory, instead of the usual one
    bool isLogged;         // appears in the system log, whatever its result
    int (*carryOut)();     // without a file; null for the shell, which looks at the rights itself
    const char* success;   // the answers
    const char* failure;
};

inline constexpr CommandRow kCommands[] = {
    {Command::shell, "system", kEverybody, false, false, nullptr, "", ""},
    {Command::loadAddresses, "load_ip", 2, true, false, VarLoadIPConfig, "IPs successfully loaded\n",
     "error: can't load IPs\n"},
    {Command::loadSecurity, "load_sec", 3, false, true, VarLoadSecParams,
     "sec parameter successfully loaded\n", "sec error: can't load parameter\n"},
    {Command::loadParameters, "load", 2, true, false, VarLoadParams, "parameter successfully loaded\n",
     "error: can't load parameter\n"},
    {Command::saveAddresses, "save_ip", 2, false, false, VarSaveIPConfig, "IP config successfully saved\n",
     "error: can't save ip parameter\n"},
    {Command::saveSecurity, "save_sec", 3, false, true, VarSaveSecParams,
     "sec parameter successfully saved\n", "error: can't save sec parameter\n"},
    {Command::saveParameters, "save", 1, false, false, VarSaveParams, "parameter successfully saved\n",
     "error: can't save parameter\n"},
    {Command::update, "update", kEverybody, false, false, VarUpdateGlobalSpace,
     "parameter successfully update\n", "error: can't update parameter\n"},
};
static_assert(hasRowForEach<&CommandRow::command>(kCommands),
              "each enumerator has its row, in the same order");

// No word hides a later one.
static_assert([] {
    for (const CommandRow* later = kCommands; later != std::end(kCommands); ++later)
        for (const CommandRow* earlier = kCommands; earlier != later; ++earlier)
            if (later->word.starts_with(earlier->word)) return false;
    return true;
}());

} // namespace talux::kepl

#endif
