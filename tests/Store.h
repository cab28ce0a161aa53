// The value spaces seen from outside, as another program of the device sees them: by key, byte by byte.
#ifndef TALUX_TEST_STORE_H
#define TALUX_TEST_STORE_H

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Var.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>
#include <sys/shm.h>
#include <tuple>

namespace talux_test {

namespace fs = std::filesystem;

inline constexpr std::size_t kSpaceSize = 19500, kRecordsSize = 588;
inline constexpr key_t kRecordsKey = 5675, kGlobalKey = 5678, kTempKey = 5679;
enum { kTemp, kGlobal }; // which value space
inline char kNoDirectory[] = "";

inline char* attach(key_t key) {
    void* const memory = shmat(shmget(key, 0, 0), nullptr, 0);
    if (reinterpret_cast<std::intptr_t>(memory) == -1) std::abort();
    return static_cast<char*>(memory);
}
inline char* raw(int space) {
    static char* const spaces[] = {attach(kTempKey), attach(kGlobalKey)};
    return spaces[space];
}
inline char* rawRecords() {
    static char* const records = attach(kRecordsKey);
    return records;
}
inline std::string bytes(const char* memory, std::size_t size) {
    return {memory, size};
}

template <typename Number>
double numberIn(const char* slot) {
    Number number;
    std::memcpy(&number, slot, sizeof number);
    return static_cast<double>(number);
}

// The layout once more, in the order of the offsets, which is also that of the locks.
struct Block {
    const char* name;
    int (*is)(int id);
    int type, first, count;
    std::size_t offset, size;                     // of one slot
    double (*number)(const char* slot) = nullptr; // null: a text

    int end() const { return first + count; }
    bool holds(int id) const { return id >= first && id < end(); }
    std::size_t slotOf(int id) const { return offset + static_cast<std::size_t>(id - first) * size; }

    // A slot without a NUL ends before its last byte, which keeps its value in all but the text slots.
    std::string textIn(const char* slot) const { return {slot, strnlen(slot, size - 1)}; }
    void putText(char* slot, const char* text) const {
        std::strncpy(slot, text, size - 1);
        if (type == 2011) slot[size - 1] = '\0';
    }
};

inline constexpr Block kBlocks[] = {
    {"Float", VarIsFloat, 2003, 2000, 312, 0, 4, numberIn<float>},
    {"Double", VarIsDouble, 2002, 1000, 384, 1248, 8, numberIn<double>},
    {"Long", VarIsLong, 2004, 6000, 1269, 4320, 4, numberIn<std::int32_t>},
    {"Int", VarIsInt, 2008, 7000, 7, 9396, 2, numberIn<std::int16_t>},
    {"Bool", VarIsBool, 2010, 8000, 191, 9410, 1, numberIn<std::uint8_t>},
    {"Text", VarIsText, 2011, 9000, 69, 9601, 128},
    {"Enum", VarIsEnum, 2012, 10000, 131, 18433, 2, numberIn<std::int16_t>},
    {"Date", VarIsDate, 2013, 11000, 0, 18695, 15},
    {"Time", VarIsTime, 2014, 12000, 0, 18695, 10},
    {"SysDate", VarIsSysDate, 2015, 13000, 1, 18695, 15},
    {"SysTime", VarIsSysTime, 2016, 14000, 1, 18710, 10},
    {"Id", VarIsId, 2017, 15000, 1, 18720, 20},
    {"Ip", VarIsIp, 2018, 16000, 38, 18740, 20},
};

// The temporary space, the global one and the records.
inline std::string image() {
    return bytes(raw(kTemp), kSpaceSize) + bytes(raw(kGlobal), kSpaceSize) +
           bytes(rawRecords(), kRecordsSize);
}
inline std::string hex(const std::string& bytes) {
    std::string text;
    for (const char c : bytes)
        text += "0123456789ABCDEF"[c >> 4 & 15], text += "0123456789ABCDEF"[c & 15];
    return text;
}
// Where two images differ, one slot per line, at most ten: "temporary Long 6012: 07000000, expected
// 08000000".
inline std::string differences(const std::string& actual, const std::string& expected) {
    if (actual == expected) return "";
    std::string text;
    int count = 0;
    const auto compare = [&](std::size_t at, std::size_t size, const std::string& what, std::size_t number) {
        if (actual.compare(at, size, expected, at, size) == 0 || ++count > 10) return;
        text += what + ' ' + std::to_string(number) + ": " + hex(actual.substr(at, size)) + ", expected " +
                hex(expected.substr(at, size)) + "\n";
    };
    for (const int space : {kTemp, kGlobal})
        for (const Block& block : kBlocks)
            for (int id = block.first; id < block.end(); ++id)
                compare(static_cast<std::size_t>(space) * kSpaceSize + block.slotOf(id), block.size,
                        std::string(space == kTemp ? "temporary " : "global ") + block.name,
                        static_cast<std::size_t>(id));
    for (std::size_t at = 2 * kSpaceSize; at < expected.size(); at += 4)
        compare(at, 4, "records at", at - 2 * kSpaceSize);
    return text;
}

inline double* asValue(char* text) {
    return reinterpret_cast<double*>(text);
}

inline const stParamProperties* rowOf(std::string name) {
    return GetParamPropertiesByName(name.data());
}
inline bool isText(int type) {
    return type == kTypeText || (type >= kTypeDate && type <= kTypeIpGateway);
}

// Factory values in both spaces.
inline void resetStore() {
    VarClean();
    VarSetDefault();
    VarUpdateGlobalSpace();
}

// The answer to a line, or why it is refused.
inline std::string say(std::string line, int uid = 3) {
    char answer[kKeplTextSize + 1], end[] = "";
    KEPL_Interpreter interpreter(kNoDirectory);
    if (interpreter.ProcessLine(line.data(), nullptr, answer, end, uid) == kLineError)
        interpreter.GetError(answer, sizeof answer);
    return answer;
}

inline const std::string kNoFile = "(no such file)";

inline std::string contents(const fs::path& path) {
    const std::ifstream file(path);
    return file ? (std::stringstream() << file.rdbuf()).str() : kNoFile;
}

// The same numbers in every run.
class Random {
public:
    // 0 .. count - 1
    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine); }
    // One of the texts between bars.
    std::string one(std::string_view texts) {
        for (auto k = below(1 + static_cast<int>(std::ranges::count(texts, '|'))); k > 0; --k)
            texts.remove_prefix(texts.find('|') + 1);
        return std::string(texts.substr(0, texts.find('|')));
    }
    void fill(char* memory, std::size_t size) {
        std::generate_n(memory, size, [this] { return static_cast<char>(below(256)); });
    }
    // Without a NUL, of 0 .. longest characters.
    std::string text(int longest) {
        std::string text(static_cast<std::size_t>(below(longest + 1)), ' ');
        for (char& c : text)
            c = static_cast<char>(1 + below(255));
        return text;
    }

private:
    std::mt19937 engine{20240305};
};

// A directory of parameter files, and the dictionary loaded.
struct InDirectory : testing::Test {
    void SetUp() override {
        char name[] = "/tmp/filesXXXXXX";
        setenv("TZ", "UTC0", 1);
        directory = mkdtemp(name);
        VarInit(name);
        LoadDefParamProperties();
    }
    void TearDown() override { fs::remove_all(directory); }
    std::string write(const std::string& name, const std::string& text) const {
        std::ofstream(directory / name) << text;
        return directory / name;
    }
    fs::path directory;
};

inline std::function<void(const std::string& line)> onPrinted;

// A stream into a text. As a real one may, it changes errno.
inline FILE* streamInto(std::string& text) {
    const auto put = [](void* to, const char* from, std::size_t size) -> ssize_t {
        static_cast<std::string*>(to)->append(from, size);
        if (onPrinted) onPrinted({from, size});
        errno = ENOTTY;
        return static_cast<ssize_t>(size);
    };
    FILE* const stream = fopencookie(&text, "w", {nullptr, put, nullptr, nullptr});
    std::setvbuf(stream, nullptr, _IOLBF, BUFSIZ);
    return stream;
}

// Result, standard output and error output of a call.
using Outcome = std::tuple<int, std::string, std::string>;
template <typename Call>
Outcome outcomeOf(Call call) {
    FILE* const own[] = {stdout, stderr};
    std::string texts[2];
    stdout = streamInto(texts[0]), stderr = streamInto(texts[1]);
    const int result = call();
    std::fclose(stdout), std::fclose(stderr);
    stdout = own[0], stderr = own[1];
    return {result, texts[0], texts[1]};
}

} // namespace talux_test

#endif
