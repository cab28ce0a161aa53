// Writes the parameter files from the global space.
#include <cstdio>
#include <ctime>

#include "ParamSystem/dictionary/Lookup.h"
#include "ParamSystem/files/ClockText.h"
#include "ParamSystem/files/FileOf.h"
#include "ParamSystem/files/Line.h"
#include "ParamSystem/files/Path.h"
#include "ParamSystem/files/Replace.h"
#include "ParamSystem/store/ChangeFlags.h"

namespace {

using talux::ChangeFlag;
using talux::ParameterFile;
using talux::Path;
using talux::Value;
using talux::os::Error;
using talux::os::Rights;
using talux::os::Stage;

void report(const char* filename, const Error& error) {
    if (error.stage == Stage::open) {
        std::fprintf(stderr, "Error (TALUX_Var): Can't open file '%s' \n", filename);
        return error.print();
    }
    std::printf("Error (TALUX_Var): Can't write to file '%s' \n", filename);
    if (error.isUnchanged) std::fprintf(stderr, "Error (TALUX_Var): '%s' stays as it is \n", filename);
    error.print();
}

// The value in the global space; of date and time that of the clock. Nothing for a parameter without a slot.
std::optional<Value> savedValue(const stParamProperties& row, const std::tm& now) {
    const talux::Nature nature = talux::typeOf(row).nature;
    if (talux::showsClock(nature)) return talux::clockText(nature, now);
    return talux::readValue(talux::Space::global, row.id);
}

// The contents of a file at this moment, as a save writes them.
class Contents {
public:
    explicit Contents(ParameterFile which) {
        std::tm now;
        talux::os::localTime(now);
        for (const stParamProperties& row : talux::parameterRows()) {
            if (talux::fileOf(row) != which) continue;
            fits = fits && sizeof bytes - length >= talux::kLineSize;
            if (!fits) return;
            if (const auto value = savedValue(row, now))
                length += talux::formatLine(bytes + length, row, *value);
        }
    }

    // Reports an error. A write that fails leaves the old file.
    Error writeTo(const char* filename, const Rights* rights) const {
        if (!talux::areParametersLoaded()) {
            std::fprintf(stderr, "Error (TALUX_Var): no parameters loaded, '%s' stays as it is \n", filename);
            return {Stage::open, "", EINVAL, true};
        }
        const Error error = fits ? talux::replaceFile(filename, {bytes, length}, rights)
                                 : Error{Stage::use, "write", EFBIG, true};
        if (error) report(filename, error);
        return error;
    }

private:
    char bytes[32768]; // the longest file that any values make, and one line more
    std::size_t length = 0;
    bool fits = true;
};

// The public functions count a failed write as done; VarSaveError returns its reason.
bool countsAsDone(const Error& error) {
    return !error || error.stage == Stage::use;
}

// A file and its dated copy, which has the same bytes. There is no copy without the file.
struct Saved {
    Error file, copy;
    bool isThere() const { return countsAsDone(file); }
    int result() const { return isThere() && countsAsDone(copy) ? 1 : 0; }
};

Saved saveWithCopy(ParameterFile file) {
    const auto& row = talux::rowOf(talux::kParameterFiles, file);
    const Contents contents(file);
    Saved saved{contents.writeTo(Path(file).get(), row.rights), {}};
    if (saved.isThere()) saved.copy = contents.writeTo(Path::dated(row.stem).get(), row.rights);
    return saved;
}

// A copy that fails still raises the flag: the file itself has been written.
Saved commitAndSave(ParameterFile file) {
    VarUpdateGlobalSpace();
    const Saved saved = saveWithCopy(file);
    if (saved.isThere()) talux::raise(talux::rowOf(talux::kParameterFiles, file).flag);
    return saved;
}

Error saveAs(const char* filename, ParameterFile file) {
    return Contents(file).writeTo(filename, talux::rowOf(talux::kParameterFiles, file).rights);
}

Error commitAndSaveAddresses(const char* filename) {
    VarUpdateGlobalSpace();
    if (*filename == '\0') return {Stage::open, "", ENOENT};
    const Error error = saveAs(filename, ParameterFile::address);
    if (countsAsDone(error)) talux::raise(ChangeFlag::ip);
    return error;
}

} // namespace

int VarSaveParamFile(char* filename) {
    return countsAsDone(saveAs(filename, ParameterFile::normal)) ? 1 : 0;
}

int VarSaveSecParamFile(char* filename) {
    return countsAsDone(saveAs(filename, ParameterFile::security)) ? 1 : 0;
}

int VarSaveIPConfigFile(char* filename) {
    return countsAsDone(commitAndSaveAddresses(filename)) ? 1 : 0;
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
    if (file == SavedFile::addresses)
        return commitAndSaveAddresses(Path(ParameterFile::address).get()).number;
    const Saved saved =
        commitAndSave(file == SavedFile::security ? ParameterFile::security : ParameterFile::normal);
    return saved.file ? saved.file.number : saved.copy.number;
}
