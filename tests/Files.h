// Parameter files in a directory of their own, saved at a fixed moment.
#ifndef TALUX_TEST_FILES_H
#define TALUX_TEST_FILES_H

#include "Store.h"

#include <ctime>
#include <sys/stat.h>
#include <vector>

namespace talux_test {

inline constexpr std::time_t kMoment = 1709648553; // 2024-03-05 14:22:33 in UTC
inline constinit std::time_t moment = kMoment;
inline const std::string kDatedCopy = "param_2024_03_05_142233.ini";

inline struct stat statusOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status;
}

inline std::vector<std::string> namesIn(const fs::path& directory) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace talux_test

extern "C" std::time_t
time(std::time_t* seconds) noexcept { // NOLINT(misc-definitions-in-headers): included once
    if (seconds != nullptr) *seconds = talux_test::moment;
    return talux_test::moment;
}

#endif
