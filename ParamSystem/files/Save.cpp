// Writes the parameter files from the global space.
#include <cerrno>
#include <cstdio>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/files/Line.h"
#include "ParamSystem/files/Path.h"
#include "ParamSystem/files/Replace.h"
#include "ParamSystem/store/ChangeFlags.h"

namespace {

using talux::ChangeFlag;
using talux::ParameterFile;
using talux::Path;
using talux::Replacement;
using talux::Rights;
using talux::Written;

void printSystemError(const Replacement& replacement) {
    errno = replacement.error;
    std::perror(replacement.call);
}

void report(const char* filename, const Replacement& replacement) {
    if (replacement.written == Written::notOpened) {
        std::fprintf(stderr, "Error (TALUX_Var): Can't open file '%s' \n", filename);
        return printSystemError(replacement);
    }
    std::printf("Error (TALUX_Var): Can't write to file '%s' \n", filename);
    if (replacement.isAsBefore) std::fprintf(stderr, "Error (TALUX_Var): '%s' stays as it is \n", filename);
    printSystemError(replacement);
}

// Room for the longest file, whatever its values are, and one line more.
using Contents = char[32768];

// The contents of a file at this moment, as a save writes them.
class Draft {
public:
    explicit Draft(ParameterFile which) {
        std::tm now;
        talux::os::localTime(now);
        for (const stParamProperties& row : talux::parameterRows()) {
            if (talux::fileOf(row) != which) continue;
            fits = fits && sizeof contents - length >= talux::kLineSize;
            if (!fits) return;
            if (const auto value = talux::savedValue(row, now))
                length += talux::formatLine(contents + length, row, *value);
        }
    }

    // 0 when the file cannot be created or is not surely kept. A failed write counts as done, with a message;
    // the old file stays.
    int writeTo(const char* filename, const Rights* rights) const {
        if (!talux::areParametersLoaded()) {
            std::fprintf(stderr, "Error (TALUX_Var): no parameters loaded, '%s' stays as it is \n", filename);
            return 0;
        }
        const Replacement replacement = fits ? talux::replaceFile(filename, {contents, length}, rights)
                                             : Replacement{Written::notWritten, true, "write", EFBIG};
        if (replacement.written != Written::done) report(filename, replacement);
        return replacement.written == Written::done || replacement.written == Written::notWritten ? 1 : 0;
    }

private:
    Contents contents;
    std::size_t length = 0;
    bool fits = true;
};

// Writes the file and, with the same bytes, its dated copy. `first` is the result of the file: without it
// there is no copy.
struct Saved {
    int first, copy;
};
Saved saveWithCopy(ParameterFile file) {
    const auto& row = talux::rowOf(talux::kParameterFiles, file);
    const Draft draft(file);
    if (draft.writeTo(Path(file).get(), row.rights) != 1) return {0, 0};
    return {1, draft.writeTo(Path::dated(row.stem).get(), row.rights)};
}

// A copy that fails still raises the flag: the file itself has been written.
int commitAndSave(ParameterFile file) {
    VarUpdateGlobalSpace();
    const Saved saved = saveWithCopy(file);
    if (saved.first != 1) return 0;
    talux::raise(talux::rowOf(talux::kParameterFiles, file).flag);
    return saved.copy;
}

int saveAs(const char* filename, ParameterFile file) {
    return Draft(file).writeTo(filename, talux::rowOf(talux::kParameterFiles, file).rights);
}

} // namespace

int VarSaveParamFile(char* filename) {
    return saveAs(filename, ParameterFile::normal);
}

int VarSaveSecParamFile(char* filename) {
    return saveAs(filename, ParameterFile::security);
}

int VarSaveIPConfigFile(char* filename) {
    VarUpdateGlobalSpace();
    if (*filename == '\0' || saveAs(filename, ParameterFile::address) != 1) return 0;
    talux::raise(ChangeFlag::ip);
    return 1;
}

int VarSaveParams(void) {
    return commitAndSave(ParameterFile::normal);
}

int VarSaveSecParams(void) {
    return commitAndSave(ParameterFile::security);
}

int VarSaveIPConfig(void) {
    return VarSaveIPConfigFile(Path(ParameterFile::address).get());
}

int VarSaveAll(void) {
    for (const ParameterFile file : {ParameterFile::normal, ParameterFile::security})
        if (saveWithCopy(file).copy != 1) return 0;
    return VarSaveIPConfig();
}
