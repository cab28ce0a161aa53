// What the tests of the system settings share: parameters set by name, the error stream as a text, files.
#ifndef TALUX_TESTS_SETTINGS_SUPPORT_H
#define TALUX_TESTS_SETTINGS_SUPPORT_H

#include <unistd.h>
#include <vector>

#include "Isolation.h"
#include "Store.h"

namespace network_test {

using namespace talux_test;

// False for an ordinary user on a container itself. In a root of its own a test may, though an emulator shows
// it another /etc when it asks.
inline bool mayWriteSystemFiles() {
    return talux_test::isolated() || (access("/", W_OK) == 0 && access("/etc", W_OK) == 0);
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
        const std::string name = word.substr(0, word.find('='));
        const std::string value = word.substr(name.size() + 1);
        const auto bar = value.find('|');
        const stParamProperties* const row = rowOf(name);
        ASSERT_NE(row, nullptr) << name;
        putValue(VarSetValue, row->id, value.substr(0, bar));
        putValue(VarSetGlobalValue, row->id, bar == std::string::npos ? value : value.substr(bar + 1));
    }
}

// What an action writes to the error stream.
template <typename Action>
std::string errorsOf(const Action& action) {
    testing::internal::CaptureStderr();
    action();
    return testing::internal::GetCapturedStderr();
}

struct SettingsTest : testing::Test {
    static void SetUpTestSuite() {
        VarInit(kNoDirectory);
        LoadDefParamProperties();
        writeFile("/tmp/zone", "");
        std::setvbuf(stderr, nullptr, _IOFBF, BUFSIZ); // a line that is not flushed comes too late
    }
    static void TearDownTestSuite() { fs::remove("/tmp/zone"); }
};

} // namespace network_test

#endif
