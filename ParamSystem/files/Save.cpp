// Writes the parameter files from the global space.
#include <cerrno>
#include <cstdio>
#include <optional>

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

// The two that are given to a group and kept in dated copies; the address file keeps the owner that it has.
struct GivenFile {
    ParameterFile contents;
    const char* stem; // of the dated copies
    Rights rights;
    ChangeFlag flag;
};

constexpr GivenFile kNormalFile{ParameterFile::normal, "param", {0, 100, 0775}, ChangeFlag::param};
constexpr GivenFile kSecurityFile{ParameterFile::security, "sec_param", {0, 101, 0775}, ChangeFlag::secParam};

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

// The length, or nothing when the room is too small.
std::optional<std::size_t> compose(Contents& contents, ParameterFile which) {
    std::tm now;
    talux::os::localTime(now);
    std::size_t length = 0;
    for (const stParamProperties& row : talux::parameterRows()) {
        if (talux::fileOf(row) != which) continue;
        if (sizeof contents - length < talux::kLineSize) return {};
        if (const auto value = talux::savedValue(row, now))
            length += talux::formatLine(contents + length, row, *value);
    }
    return length;
}

Replacement writeContents(const char* filename, ParameterFile which, const Rights* rights) {
    Contents contents;
    const auto length = compose(contents, which);
    if (!length) return {Written::notWritten, true, "write", EFBIG};
    return talux::replaceFile(filename, {contents, *length}, rights);
}

// 0 when the file cannot be created or is not surely kept. A failed write counts as done, with a message; the
// old file stays.
int writeFile(const char* filename, ParameterFile which, const Rights* rights) {
    if (!talux::areParametersLoaded()) {
        std::fprintf(stderr, "Error (TALUX_Var): no parameters loaded, '%s' stays as it is \n", filename);
        return 0;
    }
    const Replacement replacement = writeContents(filename, which, rights);
    if (replacement.written != Written::done) report(filename, replacement);
    return replacement.written == Written::done || replacement.written == Written::notWritten ? 1 : 0;
}

int saveFile(const char* filename, const GivenFile& file) {
    return writeFile(filename, file.contents, &file.rights);
}

int saveMain(const GivenFile& file) {
    return saveFile(Path(file.contents).get(), file);
}

int saveDated(const GivenFile& file) {
    return saveFile(Path::dated(file.stem).get(), file);
}

// A copy that fails still raises the flag: the file itself has been written.
int commitAndSave(const GivenFile& file) {
    VarUpdateGlobalSpace();
    if (saveMain(file) != 1) return 0;
    const int result = saveDated(file);
    talux::raise(file.flag);
    return result;
}

} // namespace

int VarSaveParamFile(char* filename) {
    return saveFile(filename, kNormalFile);
}

int VarSaveSecParamFile(char* filename) {
    return saveFile(filename, kSecurityFile);
}

int VarSaveIPConfigFile(char* filename) {
    VarUpdateGlobalSpace();
    if (*filename == '\0' || writeFile(filename, ParameterFile::address, nullptr) != 1) return 0;
    talux::raise(ChangeFlag::ip);
    return 1;
}

int VarSaveParams(void) {
    return commitAndSave(kNormalFile);
}

int VarSaveSecParams(void) {
    return commitAndSave(kSecurityFile);
}

int VarSaveIPConfig(void) {
    return VarSaveIPConfigFile(Path(ParameterFile::address).get());
}

int VarSaveAll(void) {
    for (const GivenFile* file : {&kNormalFile, &kSecurityFile})
        if (saveMain(*file) != 1 || saveDated(*file) != 1) return 0;
    return VarSaveIPConfig();
}
