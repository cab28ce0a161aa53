// Loads parameter files into the temporary space and commits.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "ParamSystem/TALUX_Funcs.h"
#include "ParamSystem/files/Path.h"
#include "ParamSystem/os/Os.h"
#include "ParamSystem/store/ChangeFlags.h"
#include "ParamSystem/store/Kinds.h"

namespace {

using talux::ChangeFlag;
using talux::Path;

constexpr int kMaxRead = 254; // characters; a longer line counts as several
constexpr char kKeyPrefix[] = "TLX_";
constexpr std::size_t kKeyPrefixLength = sizeof kKeyPrefix - 1;

// Cuts `key` off in place and returns the value behind it: the text up to the next "=" or line feed, empty
// when there is none. The key ends at a blank, "=" or line feed; blanks may stand in front of the "=".
char* splitValue(char* key) {
    char* const end = key + std::strcspn(key, " =\n");
    char* value = end + std::strspn(end, " ");
    if (*value != '=' && *end != '\0') value = end + 1;
    value += std::strspn(value, "=\n");
    value[std::strcspn(value, "=\n")] = '\0';
    *end = '\0';
    return value;
}

// Takes the quotes from a quoted value, the comment from another one.
char* bareValue(char* value) {
    if (*value == '"') {
        ++value;
        value[std::strcspn(value, "\"")] = '\0';
    } else {
        value[std::strcspn(value, "#;\n\r")] = '\0';
        if (char* comment = std::strstr(value, "//")) *comment = '\0';
    }
    return value;
}

// One run over a file.
class Loader {
public:
    // `wantedType`: the only text-like type to load, or 0.
    explicit Loader(int wantedType) : type(wantedType) {}

    // False on a read error.
    bool readAll(FILE* file) {
        char line[kMaxRead + 1];
        for (lineNumber = 1; std::fgets(line, sizeof line, file) != nullptr; ++lineNumber)
            takeLine(line);
        return std::ferror(file) == 0;
    }

private:
    int type;
    int lineNumber = 0; // counts reads

    // Comments, section headings and empty lines do not begin with the prefix.
    void takeLine(char* line) const {
        char* const key = line + std::strspn(line, " \t");
        if (!talux::startsIgnoringCase(key, kKeyPrefix)) return;
        char* const value = splitValue(key);
        if (*value == '\0') std::printf("\nError (TALUX_Var): Error on line %d\n", lineNumber);
        store(key + kKeyPrefixLength, bareValue(value));
    }

    // Unknown names and run-time values are no error: files may come from another version.
    void store(char* name, char* value) const {
        const stParamProperties* const row = GetParamPropertiesByName(name);
        if (row == nullptr || row->is_volatile == 1) return;
        if (!talux::isText(*row))
            storeNumber(row->id, value);
        else if (type == 0 || type == row->type)
            VarSetValue(row->id, reinterpret_cast<double*>(value));
    }

    void storeNumber(int id, const char* value) const {
        double number = 0;
        if (MakeDouble(value, &number) == 1)
            VarSetValue(id, &number);
        else
            std::printf("\nError (TALUX_Var): Wrong parameter on line %d ID:%d\n", lineNumber, id);
    }
};

void reportMissing(const char* filename) {
    const int error = errno;
    std::printf("Error (TALUX_Var): File '%s' not found\n", filename);
    errno = error;
    std::perror("fopen");
}

[[noreturn]] void readFailed(const char* filename, FILE* file) {
    std::printf("\nError (TALUX_Var): Can't read source file '%s'\n", filename);
    std::fclose(file);
    std::exit(2); // NOLINT(concurrency-mt-unsafe): a broken file ends the program
}

int loadWhole(const char* name) {
    return VarLoadFile(Path(name).get(), 0);
}

void applyAddresses() {
    VarSetSystemIPs();
    talux::raise(ChangeFlag::ip);
}

} // namespace

int VarLoadFile(char* filename, int type) {
    FILE* const file = std::fopen(filename, "rt");
    if (file == nullptr) {
        reportMissing(filename);
        return 0;
    }
    if (!Loader(type).readAll(file)) readFailed(filename, file);
    std::fclose(file);
    VarUpdateGlobalSpace();
    return 1;
}

int VarLoadParams(void) {
    const int result = loadWhole("/parameter.ini");
    talux::raise(ChangeFlag::param);
    return result;
}

int VarLoadSecParams(void) {
    constexpr int kSecMode = 8176; // encryption of the command port; no file may switch it off
    const int result = loadWhole("/sec_parameter.ini");
    VarSetBoolValue(kSecMode, 1);
    VarSetGlobalBoolValue(kSecMode, 1);
    talux::raise(ChangeFlag::secParam);
    return result;
}

int VarLoadIPConfig(void) {
    const int result = loadWhole("/ip_config.ini");
    applyAddresses();
    return result;
}

int VarResetIPConfig(int type) {
    Path path("/def_ip_config.ini");
    int result = 1;
    for (const int part : {static_cast<int>(kTypeIpGateway), static_cast<int>(kTypeIpMask), type})
        if (VarLoadFile(path.get(), part) != 1) result = 0;
    VarUpdateGlobalSpace();
    applyAddresses();
    talux::os::runShell("rm -f /var/resolv.conf");
    talux::os::runShell("touch /var/resolv.conf");
    return result;
}
