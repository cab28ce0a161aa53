// Does everything in the store that produces bytes, the same on every platform: each platform's
// segments, files, answers and commands are kept, and must equal those of the others byte for byte.
//
//   workload defaults        factory defaults, committed and saved
//   workload writes SCRIPT   the script's lines, then values of every kind, committed and saved
//
// The clock is fixed and shell commands are only recorded, in /commands.txt; answers go to /answers.txt.
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <string>

#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/TALUX_Var.h"
#include "src/talux_interpreter.h"

extern "C" std::time_t time(std::time_t* out) noexcept {
    constexpr std::time_t kNow = 1709648553; // 2024-03-05 14:22:33 UTC
    if (out != nullptr) *out = kNow;
    return kNow;
}

extern "C" int system(const char* command) {
    std::FILE* log = std::fopen("/commands.txt", "a");
    if (log == nullptr) return -1;
    std::fprintf(log, "%s\n", command);
    return std::fclose(log);
}

extern "C" int clock_settime(clockid_t /*clock*/, const timespec* moment) noexcept {
    return system(("clock " + std::to_string(moment->tv_sec)).c_str());
}

namespace {

std::uint32_t nextRandom() {
    static std::uint32_t state = 20240305;
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    return state;
}

// Whole numbers, fractions, values beyond every range and what is no number.
double someNumber() {
    const auto whole = static_cast<std::int32_t>(nextRandom());
    const double numbers[] = {static_cast<double>(whole % 1000),
                              static_cast<double>(whole),
                              whole / 4096.0,
                              whole * 1e6,
                              whole / 1e12,
                              std::copysign(whole % 8 == 0 ? NAN : INFINITY, whole),
                              static_cast<double>(whole % 2)};
    return numbers[nextRandom() % std::size(numbers)];
}

// Up to 139 characters, longer than any slot, some of them above 127.
void someText(char (&text)[140]) {
    static const char alphabet[] = "abcXYZ0123456789 .,:-_/%#;\xC4\xE4\xFF";
    std::memset(text, 0, sizeof text);
    const std::uint32_t length = nextRandom() % std::uint32_t{sizeof text};
    for (std::uint32_t i = 0; i < length; i++)
        text[i] = alphabet[nextRandom() % (sizeof alphabet - 1)];
}

// What has no slot keeps nothing.
void fillSpaces() {
    for (const auto set : {VarSetValue, VarSetGlobalValue})
        for (int id = kFirstDouble; id < kFirstIp + kIpCount; id++) {
            union {
                double number;
                char text[140];
            } value{someNumber()};
            if (VarIsText(id) || VarIsSysDate(id) || VarIsSysTime(id) || VarIsId(id) || VarIsIp(id))
                someText(value.text);
            set(id, &value.number);
        }
    for (int record = 0; record < kRecordCount; record++) {
        std::array<std::uint32_t, kLargestRecord / 4> words;
        for (std::uint32_t& word : words)
            word = nextRandom(); // as long and as float
        VarSetGlobalStructValue(kFirstStruct + record, words.data(), ARR_StructSize[record]);
    }
}

void ask(std::FILE* answers, const char* line) {
    char copy[kKeplMaxLine + 1];
    static char result[TALUX_ANSWER_SIZE];
    char terminator[] = "";
    std::snprintf(copy, sizeof copy, "%s", line);
    result[0] = '\0';
    const int status = talux_interpreter_ProcessLine(
        copy, [](char*, int) {}, result, terminator);
    if (status < 0) talux_interpreter_GetError(result, kKeplMaxTerm + 1);
    std::fprintf(answers, "%s -> %d %s\n", line, status, result);
}

// Every parameter once, an indexed one as a list and its first elements in hex.
void readAll(std::FILE* answers) {
    for (int i = 1; const stParamProperties* row = GetParamPropertiesByOrder(i); i++) {
        if (row->name[0] == '\0' || row->val_access == kWriteOnly) continue;
        char line[kKeplMaxLine + 1];
        if (row->val_max_id == 0) {
            std::snprintf(line, sizeof line, "TLX_%s", row->name);
            ask(answers, line);
        } else if (GetParamPropertiesByName(const_cast<char*>(row->name)) == row) {
            std::snprintf(line, sizeof line, "TLX_%s 1.%d -c", row->name, row->val_max_id);
            ask(answers, line);
            std::snprintf(line, sizeof line, "TLX_%s 1.9 -h", row->name);
            ask(answers, line);
        }
    }
}

bool runScript(const char* file, std::FILE* answers) {
    std::FILE* script = std::fopen(file, "r");
    if (script == nullptr) return false;
    char line[kKeplMaxLine + 3];
    while (std::fgets(line, sizeof line, script) != nullptr) {
        line[std::strcspn(line, "\n")] = '\0';
        if (line[0] != '\0' && line[0] != '#') ask(answers, line);
    }
    return std::fclose(script) == 0;
}

int saveAll() {
    return VarSaveParams() == 1 && VarSaveSecParams() == 1 && VarSaveIPConfig() == 1 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    std::FILE* answers = std::fopen("/answers.txt", "w");
    if (argc < 2 || answers == nullptr) return 2;
    talux_interpreter_Init();
    if (std::strcmp(argv[1], "defaults") == 0) {
        VarSetDefault();
        if (saveAll() != 0) return 1;
    } else {
        if (argc < 3 || !runScript(argv[2], answers)) return 2;
        fillSpaces();
        if (saveAll() != 0) return 1;
    }
    readAll(answers);
    return std::fclose(answers);
}
