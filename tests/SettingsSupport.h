// What the tests of the system settings share: parameters set by name, the error stream as a text, files.
#ifndef TALUX_TESTS_SETTINGS_SUPPORT_H
#define TALUX_TESTS_SETTINGS_SUPPORT_H

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "ParamSystem/TALUX_Var.h"

namespace settings_test {

namespace fs = std::filesystem;

// False where the tests run on a container itself, whose name server file cannot be exchanged.
inline bool ownsSystemFiles() {
    const char* isolation = std::getenv("TALUX_ISOLATION");
    return isolation != nullptr && std::string(isolation) != "none";
}

inline std::string contents(const char* path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void writeFile(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

using Writer = void (*)(int, double*);

inline void putValue(Writer write, int id, std::string value) {
    double number = std::strtod(value.c_str(), nullptr);
    value.resize(kTextSize);
    const bool isText = VarIsText(id) || VarIsIp(id);
    write(id, isText ? reinterpret_cast<double*>(value.data()) : &number);
}

// Words NAME=VALUE for both spaces or NAME=TEMPORARY|GLOBAL.
inline void put(const std::string& assignments) {
    std::istringstream words(assignments);
    for (std::string word; words >> word;) {
        std::string name = word.substr(0, word.find('='));
        const std::string value = word.substr(name.size() + 1);
        const auto bar = value.find('|');
        const stParamProperties* row = GetParamPropertiesByName(name.data());
        if (row == nullptr) {
            ADD_FAILURE() << "no parameter " << name;
            continue;
        }
        putValue(VarSetValue, row->id, value.substr(0, bar));
        putValue(VarSetGlobalValue, row->id, bar == std::string::npos ? value : value.substr(bar + 1));
    }
}

// Factory values in both spaces.
inline void resetStore() {
    VarClean();
    VarSetDefault();
    VarUpdateGlobalSpace();
}

// While it lives, the error stream goes to a file. A buffer on the stream shows whether lines are flushed.
class ErrorStream {
public:
    ErrorStream() : saved_(dup(STDERR_FILENO)) {
        std::fflush(stderr);
        std::setvbuf(stderr, buffer_, _IOFBF, sizeof buffer_);
        const int file = open(kPath, O_CREAT | O_TRUNC | O_APPEND | O_WRONLY | O_CLOEXEC, 0600);
        dup2(file, STDERR_FILENO);
        close(file);
    }
    ErrorStream(const ErrorStream&) = delete;
    ErrorStream& operator=(const ErrorStream&) = delete;
    ~ErrorStream() {
        std::fflush(stderr);
        std::setvbuf(stderr, nullptr, _IONBF, 0);
        dup2(saved_, STDERR_FILENO);
        close(saved_);
        fs::remove(kPath);
    }

    std::string text() const { return contents(kPath); }

private:
    static constexpr char kPath[] = "/tmp/error_stream";
    static inline char buffer_[BUFSIZ];
    int saved_;
};

class SettingsTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        char root[] = "";
        VarInit(root);
        LoadDefParamProperties();
        writeFile("/tmp/zone", "");
    }
    static void TearDownTestSuite() { fs::remove("/tmp/zone"); }
};

using Command = std::vector<std::string>; // program and arguments

// What recorders wrote: for each command, its words each ended by a NUL, the number of arguments first.
inline std::vector<Command> takeRecord(const char* path) {
    std::istringstream words(contents(path));
    std::vector<Command> commands;
    for (std::string count; std::getline(words, count, '\0');) {
        Command& command = commands.emplace_back(std::stoul(count) + 1);
        for (std::string& word : command)
            std::getline(words, word, '\0');
    }
    fs::remove(path);
    return commands;
}

} // namespace settings_test

#endif
