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

    // What failed is reported; a write that failed leaves the old file.
    Replacement writeTo(const char* filename, const Rights* rights) const {
        if (!talux::areParametersLoaded()) {
            std::fprintf(stderr, "Error (TALUX_Var): no parameters loaded, '%s' stays as it is \n", filename);
            return {Written::notOpened, true, "", EINVAL};
        }
        Replacement replacement = fits ? talux::replaceFile(filename, {contents, length}, rights)
                                       : Replacement{Written::notWritten, true, "write", EFBIG};
        if (replacement.written != Written::done) report(filename, replacement);
        return replacement;
    }

private:
    Contents contents;
    std::size_t length = 0;
    bool fits = true;
};

// A failed write counts as done for those who ask for no reason.
bool counts(const Replacement& replacement) {
    return replacement.written == Written::done || replacement.written == Written::notWritten;
}

// Writes the file and, with the same bytes, its dated copy. Without the file there is no copy.
struct Saved {
    Replacement file, copy;
    bool isThere() const { return counts(file); }
    int result() const { return isThere() && counts(copy) ? 1 : 0; }
};
Saved saveWithCopy(ParameterFile file) {
    const auto& row = talux::rowOf(talux::kParameterFiles, file);
    const Draft draft(file);
    Saved saved{draft.writeTo(Path(file).get(), row.rights), {}};
    if (saved.isThere()) saved.copy = draft.writeTo(Path::dated(row.stem).get(), row.rights);
    return saved;
}

// A copy that fails still raises the flag: the file itself has been written.
Saved commitAndSave(ParameterFile file) {
    VarUpdateGlobalSpace();
    const Saved saved = saveWithCopy(file);
    if (saved.isThere()) talux::raise(talux::rowOf(talux::kParameterFiles, file).flag);
    return saved;
}

Replacement saveAs(const char* filename, ParameterFile file) {
    return Draft(file).writeTo(filename, talux::rowOf(talux::kParameterFiles, file).rights);
}

Replacement commitAndSaveAddresses(const char* filename) {
    VarUpdateGlobalSpace();
    if (*filename == '\0') return {Written::notOpened, true, "", ENOENT};
    const Replacement replacement = saveAs(filename, ParameterFile::address);
    if (counts(replacement)) talux::raise(ChangeFlag::ip);
    return replacement;
}

} // namespace

int VarSaveParamFile(char* filename) {
    return counts(saveAs(filename, ParameterFile::normal)) ? 1 : 0;
}

int VarSaveSecParamFile(char* filename) {
    return counts(saveAs(filename, ParameterFile::security)) ? 1 : 0;
}

int VarSaveIPConfigFile(char* filename) {
    return counts(commitAndSaveAddresses(filename)) ? 1 : 0;
}

int VarSaveParams(void) {
    return commitAndSave(ParameterFile::normal).result();
}

int VarSaveSecParams(void) {
    return commitAndSave(ParameterFile::security).result();
}

int VarSaveIPConfig(void) {
    return VarSaveIPConfigFile(Path(ParameterFile::address).get());
}

int VarSaveAll(void) {
    for (const ParameterFile file : {ParameterFile::normal, ParameterFile::security})
        if (saveWithCopy(file).result() != 1) return 0;
    return VarSaveIPConfig();
}

int VarSaveError(SavedFile file) {
    if (file == SavedFile::addresses) return commitAndSaveAddresses(Path(ParameterFile::address).get()).error;
    const Saved saved =
        commitAndSave(file == SavedFile::security ? ParameterFile::security : ParameterFile::normal);
    return saved.file.error != 0 ? saved.file.error : saved.copy.error;
}
