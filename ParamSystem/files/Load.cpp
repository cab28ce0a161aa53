// Loads parameter files into the temporary space and commits.
#include <cstdio>
#include <cstdlib>

#include "ParamSystem/dictionary/IdOf.h"
#include "ParamSystem/files/Effect.h"
#include "ParamSystem/files/Path.h"
#include "ParamSystem/store/ChangeFlags.h"

namespace {

using talux::ChangeFlag;
using talux::ParameterFile;
using talux::Path;

void load(const talux::Entry& entry, int type) {
    if (entry.form != talux::LineForm::entry) return;
    if (!entry.hasValue) std::printf("\nError (TALUX_Var): Error on line %d\n", entry.line);
    const talux::Effect effect = talux::effectOf(entry, type);
    if (effect.outcome == talux::Outcome::notANumber)
        std::printf("\nError (TALUX_Var): Wrong parameter on line %d ID:%d\n", entry.line, effect.row->id);
    talux::carryOut(effect);
}

[[noreturn]] void readFailed(const char* filename) {
    std::printf("\nError (TALUX_Var): Can't read source file '%s'\n", filename);
    std::exit(2); // NOLINT(concurrency-mt-unsafe): a read error ends the program
}

int loadWhole(ParameterFile file) {
    return VarLoadFile(Path(file).get(), 0);
}

} // namespace

int VarLoadFile(char* filename, int type) {
    const auto error = talux::readLines(filename, [type](const talux::Entry& entry) { load(entry, type); });
    if (error.stage == talux::os::Stage::use) readFailed(filename);
    if (error) {
        std::printf("Error (TALUX_Var): File '%s' not found\n", filename);
        error.print();
        return 0;
    }
    VarUpdateGlobalSpace();
    return 1;
}

int VarLoadParams(void) {
    const int result = loadWhole(ParameterFile::normal);
    talux::raise(ChangeFlag::param);
    return result;
}

int VarLoadSecParams(void) {
    constexpr int kSecMode =
        talux::idOf("sec_mode"); // encryption of the command port; no file may switch it off
    const int result = loadWhole(ParameterFile::security);
    VarSetBoolValue(kSecMode, 1);
    VarSetGlobalBoolValue(kSecMode, 1);
    talux::raise(ChangeFlag::secParam);
    return result;
}
