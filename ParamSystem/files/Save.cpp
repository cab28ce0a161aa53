// Writes the parameter files from the global space.
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

#include "ParamSystem/files/Line.h"
#include "ParamSystem/files/Path.h"
#include "ParamSystem/store/ChangeFlags.h"
#include "ParamSystem/store/Kinds.h"

namespace {

using talux::ChangeFlag;
using talux::ParameterFile;
using talux::Path;

// The two parameter files; the address file is neither dated nor given away.
struct GivenFile {
    const char* name;
    const char* stem; // of the dated copies
    gid_t group;
    ChangeFlag flag;
    ParameterFile file;
};

constexpr GivenFile kNormalFile{"/parameter.ini", "param", 100, ChangeFlag::param, ParameterFile::normal};
constexpr GivenFile kSecurityFile{"/sec_parameter.ini", "sec_param", 101, ChangeFlag::secParam,
                                  ParameterFile::security};

void reportOpenFailure(const char* filename) {
    const int error = errno;
    std::fprintf(stderr, "Error (TALUX_Var): Can't open file '%s' \n", filename);
    errno = error;
    std::perror("fopen");
}

// Stops at the first line that cannot be written and returns false.
bool writeLines(FILE* file, ParameterFile which) {
    std::tm now;
    talux::os::localTime(now);
    char line[talux::kLineSize];
    for (int position = 1; position <= kParamCount; ++position) {
        const stParamProperties* const row = GetParamPropertiesByOrder(position);
        if (row == nullptr || talux::fileOf(*row) != which) continue;
        const auto value = talux::savedValue(*row, now);
        if (value && talux::formatLine(line, *row, *value) != 0 && std::fputs(line, file) == EOF)
            return false;
    }
    return true;
}

// False when the file cannot be created. A failed write, which may show only when the buffer is emptied at
// the close, is reported; the file then holds what went in before.
bool writeFile(const char* filename, ParameterFile which) {
    FILE* const file = std::fopen(filename, "wt+");
    if (file == nullptr) {
        reportOpenFailure(filename);
        return false;
    }
    bool complete = writeLines(file, which);
    if (std::fclose(file) != 0) complete = false;
    if (!complete) std::printf("Error (TALUX_Var): Can't write to file '%s' \n", filename);
    return true;
}

// A file that can be read goes to root and the group, everything allowed for both.
void giveToGroup(const char* filename, gid_t group) {
    FILE* const file = std::fopen(filename, "rt");
    if (file == nullptr) return;
    std::fclose(file);
    // Without the right to give files away the file stays with its writer.
    [[maybe_unused]] const int given = chown(filename, 0, group);
    chmod(filename, 0775);
}

int saveFile(const char* filename, const GivenFile& file) {
    if (!writeFile(filename, file.file)) return 0;
    giveToGroup(filename, file.group);
    return 1;
}

int saveMain(const GivenFile& file) {
    return saveFile(Path(file.name).get(), file);
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
    if (*filename == '\0' || !writeFile(filename, ParameterFile::address)) return 0;
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
    return VarSaveIPConfigFile(Path("/ip_config.ini").get());
}

int VarSaveAll(void) {
    for (const GivenFile* file : {&kNormalFile, &kSecurityFile})
        if (saveMain(*file) != 1 || saveDated(*file) != 1) return 0;
    return VarSaveIPConfig();
}
