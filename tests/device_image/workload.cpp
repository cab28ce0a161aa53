// Does everything in the store that produces bytes, the same on every platform: each platform's
// segments, files, answers and commands are kept, and must equal those of the others byte for byte.
//
//   workload defaults   factory defaults, committed and saved
//   workload writes     some lines, then values of every kind, committed and saved
//
// The clock is fixed and shell commands are only recorded, in /commands.txt; answers go to /answers.txt and
// the segments to /spaces.bin.
#include "tests/Store.h"

#include <cmath>
#include <ctime>

extern "C" std::time_t time(std::time_t* out) noexcept {
    constexpr std::time_t kNow = 1709648553; // 2024-03-05 14:22:33 UTC
    if (out != nullptr) *out = kNow;
    return kNow;
}

extern "C" int system(const char* command) {
    std::ofstream("/commands.txt", std::ios::app) << command << '\n';
    return 0;
}

extern "C" int clock_settime(clockid_t /*clock*/, const timespec* moment) noexcept {
    return system(("clock " + std::to_string(moment->tv_sec)).c_str());
}

namespace {

using namespace talux_test;

// Whose answers may be others on another platform: numbers, clock and files. Addresses are applied.
constexpr char kLines[] =
    "1,2,+|1,3,/|0.1,0.2,+|1e300,1e300,*|2147483647,1,+|0x10,1,+|45,sin|45,rad,sin|1,deg|1,2,3,4,+,+,+|"
    "TLX_U12=12345.678|TLX_U12|TLX_eth1_active=1|TLX_DNS=192.168.001.010|TLX_ETH0_IP=10.11.12.13|"
    "TLX_Date=2040-02-29|TLX_Time=23:59:59|update|save|load|save_ip|load_ip|save_sec|load_sec|load "
    "nowhere.ini|";

std::mt19937 random(20240305); // whose numbers are the same everywhere

// Whole numbers, fractions, values beyond every range and what is no number.
double someNumber() {
    const auto whole = static_cast<std::int32_t>(random());
    const double numbers[] = {static_cast<double>(whole % 1000),
                              static_cast<double>(whole),
                              whole / 4096.0,
                              whole * 1e6,
                              whole / 1e12,
                              std::copysign(whole % 8 == 0 ? NAN : INFINITY, whole),
                              static_cast<double>(whole % 2)};
    return numbers[random() % std::size(numbers)];
}

// Up to 139 characters, longer than any slot, some of them above 127.
std::string someText() {
    constexpr std::string_view kAlphabet = "abcXYZ0123456789 .,:-_/%#;\xC4\xE4\xFF";
    std::string text(random() % 140, ' ');
    for (char& c : text)
        c = kAlphabet[random() % kAlphabet.size()];
    return text;
}

// What has no slot keeps nothing.
void fillSpaces() {
    for (const auto set : {VarSetValue, VarSetGlobalValue})
        for (const Block& block : kBlocks)
            for (int id = block.first; id < block.end(); id++) {
                double number = someNumber();
                std::string text = someText();
                set(id, block.number == nullptr ? asValue(text.data()) : &number);
            }
    for (std::size_t at = 0; at < kRecordsSize; at += 4) {
        const auto word = static_cast<std::uint32_t>(random()); // as long and as float
        std::memcpy(rawRecords() + at, &word, sizeof word);
    }
}

// Every parameter once, an indexed one as a list and its first elements in hex.
void readAll(std::ostream& answers) {
    const auto ask = [&](const std::string& line) { answers << line << " -> " << say(line) << '\n'; };
    for (int i = 1; const stParamProperties* row = GetParamPropertiesByOrder(i); i++) {
        const std::string name = row->name;
        if (name.empty() || row->val_access == kWriteOnly) continue;
        if (row->val_max_id == 0) {
            ask("TLX_" + name);
        } else if (rowOf(name) == row) {
            ask("TLX_" + name + " 1." + std::to_string(row->val_max_id) + " -c");
            ask("TLX_" + name + " 1.9 -h");
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    std::ofstream answers("/answers.txt");
    VarInit(kNoDirectory);
    LoadDefParamProperties();
    if (argc > 1 && std::string_view(argv[1]) == "writes") {
        std::istringstream lines(kLines);
        for (std::string line; std::getline(lines, line, '|');)
            answers << line << " -> " << say(line) << '\n';
        fillSpaces();
    } else {
        VarSetDefault();
    }
    const bool areSaved = VarSaveParams() + VarSaveSecParams() + VarSaveIPConfig() == 3;
    readAll(answers);
    std::ofstream("/spaces.bin") << image();
    return areSaved ? 0 : 1;
}
