// The value spaces seen from outside, as another program of the device sees them: by key, byte by byte.
#ifndef TALUX_TEST_STORE_H
#define TALUX_TEST_STORE_H

#include "ParamSystem/TALUX_Var.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <sys/shm.h>
#include <unistd.h>
#include <vector>

namespace talux_test {

inline constexpr std::size_t kSpaceSize = 19500, kRecordsSize = 588;
inline constexpr key_t kRecordsKey = 5675, kGlobalKey = 5678, kTempKey = 5679;
enum { kTemp, kGlobal }; // which value space

// The whole error output of a process that ends.
using Output = testing::Matcher<const std::string&>;

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

// Both value spaces, the temporary one first.
inline std::string bothSpaces() {
    return bytes(raw(kTemp), kSpaceSize) + bytes(raw(kGlobal), kSpaceSize);
}

// The layout once more, in the order of the offsets.
struct Block {
    const char* name;
    int type, first, count;
    std::size_t offset, slot;
    bool isText;

    int end() const { return first + count; }
    bool holds(int id) const { return id >= first && id < end(); }
    std::size_t slotOf(int id) const { return offset + static_cast<std::size_t>(id - first) * slot; }
};

inline constexpr Block kBlocks[] = {
    {"Float", 2003, 2000, 312, 0, 4, false},      {"Double", 2002, 1000, 384, 1248, 8, false},
    {"Long", 2004, 6000, 1269, 4320, 4, false},   {"Int", 2008, 7000, 7, 9396, 2, false},
    {"Bool", 2010, 8000, 191, 9410, 1, false},    {"Text", 2011, 9000, 69, 9601, 128, true},
    {"Enum", 2012, 10000, 131, 18433, 2, false},  {"Date", 2013, 11000, 0, 18695, 15, true},
    {"Time", 2014, 12000, 0, 18695, 10, true},    {"SysDate", 2015, 13000, 1, 18695, 15, true},
    {"SysTime", 2016, 14000, 1, 18710, 10, true}, {"Id", 2017, 15000, 1, 18720, 20, true},
    {"Ip", 2018, 16000, 38, 18740, 20, true},
};

inline double* asValue(char* text) {
    return reinterpret_cast<double*>(text);
}

// For the text slots that tests fill from outside: cut to `size`, a NUL behind it when there is room.
inline void copyInto(char* memory, std::size_t size, const std::string& text) {
    std::memcpy(memory, text.c_str(), std::min(size, text.size() + 1));
}

// The same numbers in every run.
class Random {
public:
    // 0 .. count - 1
    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine); }
    char byte() { return static_cast<char>(below(256)); }
    void fill(char* memory, std::size_t size) {
        std::generate_n(memory, size, [this] { return byte(); });
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

// What goes to a standard stream while the object lives.
class Captured {
public:
    explicit Captured(FILE* captured) : stream(captured), file(std::tmpfile()) {
        std::fflush(stream);
        saved = dup(fileno(stream));
        dup2(fileno(file), fileno(stream));
    }
    ~Captured() {
        restore();
        std::fclose(file);
    }
    Captured(const Captured&) = delete;
    Captured& operator=(const Captured&) = delete;

    // Ends the capture.
    std::string text() {
        restore();
        std::rewind(file);
        std::string all;
        for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
            all += static_cast<char>(c);
        return all;
    }

private:
    FILE* stream;
    FILE* file;
    int saved;

    void restore() {
        if (saved < 0) return;
        std::fflush(stream);
        dup2(saved, fileno(stream));
        close(saved);
        saved = -1;
    }
};

inline char kNoDirectory[] = "";

} // namespace talux_test

#endif
