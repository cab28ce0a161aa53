// Whatever a stored text holds, the shell runs the intended command alone and hands the text over whole.
#include <algorithm>
#include <regex>
#include <spawn.h>
#include <sys/wait.h>

#include "SettingsSupport.h"

using namespace settings_test;

namespace {

std::vector<std::string> g_commands; // what the module wanted to run

std::vector<std::string> takeCommands() {
    return std::exchange(g_commands, {});
}

} // namespace

extern "C" int system(const char* command) {
    g_commands.emplace_back(command);
    return 0;
}

namespace {

// clang-format off
constexpr const char* kHostileTexts[] = {
    "", " ", "  two  blanks ", "-", "--", "-x", "-s", "--help", "-- x", "\t", "a\tb", "#", "# rest",
    "a #b", "~", "~root", "*", "/*", "?", "[a-z]*", "{a,b}", "$HOME", "${HOME}", "$$", "$?", "a=b",
    "a'b", "''", "'", "\"", "\"quoted\"", "'quoted'", "\\", "\\\\", "a\\", "\\'", "'\\''", "\\n",
    "1.1.1.1\\nx 2", "\\c", "\\0101x", "1.1.1.1\nx 2", "\n", "a\n", "\r\n", "a!b", "(", ")", "&", "|",
    "<", ">", ";", "`", "$(", "%s%n", "100%", "Z\xc3\xbcrich", "\xe2\x98\x83 snow", "\xff\xfe",
    "\x01\x7f", "WLAN Gast 5",
    ">c", ">>c", "x>c", "x 2>c", "x >&c", "'>c'", "\">c\"", "x;>c;#", "x\n>c\n",
};
// clang-format on

std::vector<std::string> hostileValues() {
    std::vector<std::string> values(std::begin(kHostileTexts), std::end(kHostileTexts));
    for (const char filling : {'x', '\'', '\\', ' ', '$'})
        values.emplace_back(127, filling);
    // Each way to start a command, in each surrounding that might let it out.
    for (const auto& [before, behind] :
         {std::pair{"", ""}, {"x ", ""}, {"'", ""}, {"'", "'"}, {"\"", ""}, {"\"", "\""}})
        for (const std::string command : {";>c", "&&>c", "||>c", "|>c", "\n>c", "&>c", "$(>c)", "`>c`"})
            values.push_back(before + command + behind);
    return values;
}

const std::vector<std::string> kValues = hostileValues();

// The only command that is too long for 253 characters, with four characters for each quote.
bool fits(const std::string& value) {
    return std::count(value.begin(), value.end(), '\'') < 100;
}

// Runs each command in a process of the shell, where functions that note their arguments take the place of
// programs. Behind each the file c, a side effect, and the file $1 with its contents are noted and removed.
constexpr char kShellScript[] = R"(
for program in ifconfig iwconfig ln rm; do
  eval "$program() { printf '%s\\0' \$# $program \"\$@\" >&3; }"
done
written=$1; shift
for command; do
  (eval "$command")
  [ ! -e c ] || { printf '0\0c\0' >&3; command rm c; }
  [ ! -e "$written" ] || { printf '1\0written\0'; cat "$written"; printf '\0'; command rm "$written"; } >&3
done 3>/tmp/record 2>/dev/null </dev/null)";

std::vector<Command> runInShell(const std::vector<std::string>& commands, const char* written = "") {
    std::vector<const char*> arguments = {"sh", "-c", kShellScript, "sh", written};
    for (const std::string& command : commands)
        arguments.push_back(command.c_str());
    arguments.push_back(nullptr);
    pid_t shell = 0;
    EXPECT_EQ(posix_spawn(&shell, "/bin/sh", nullptr, nullptr, const_cast<char**>(arguments.data()), environ),
              0);
    EXPECT_EQ(waitpid(shell, nullptr, 0), shell);
    return takeRecord("/tmp/record");
}

class HostileSettings : public SettingsTest {
protected:
    static constexpr char kPlayground[] = "/tmp/playground"; // the working directory

    void SetUp() override {
        resetStore();
        fs::create_directories(kPlayground);
        fs::current_path(kPlayground);
        writeFile("bait", ""); // what patterns would match
        g_commands.clear();
    }
    void TearDown() override {
        fs::current_path("/");
        fs::remove_all(kPlayground);
    }
    // What the shell made of the commands: exactly this, and no file but those that were there.
    static void expect(const std::vector<Command>& expected, const char* written = "") {
        const auto before = std::distance(fs::directory_iterator("."), {});
        EXPECT_EQ(runInShell(takeCommands(), written), expected);
        EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), before);
    }
};

// The values are what they claim to be: without quotes many of them leave their file.
TEST_F(HostileSettings, ValuesWouldDoHarm) {
    for (const std::string& value : kValues)
        g_commands.push_back("iwconfig wlan0 essid " + value);
    const auto record = runInShell(takeCommands());
    EXPECT_GE(std::count(record.begin(), record.end(), Command{"c"}), 20);
    EXPECT_GE(kValues.size(), 50U);
}

TEST_F(HostileSettings, NetworkNameAndKey) {
    std::vector<Command> expected;
    for (const std::string& value : kValues) {
        putValue(VarSetGlobalValue, 9022, value);
        putValue(VarSetGlobalValue, 9023, value);
        const ErrorStream errors;
        VarADHOCWLAN0();
        EXPECT_EQ(errors.text().find("not run") == std::string::npos, fits(value)) << value;
        for (const Command& command : std::vector<Command>{{"ifconfig", "wlan0", "down"},
                                                           {"iwconfig", "wlan0", "mode", "ad-hoc"},
                                                           {"iwconfig", "wlan0", "rate", "Auto"},
                                                           {"iwconfig", "wlan0", "channel", "11"},
                                                           {"iwconfig", "wlan0", "essid", value},
                                                           {"iwconfig", "wlan0", "enc", value},
                                                           {"iwconfig", "wlan0", "key", value},
                                                           {"ifconfig", "wlan0", "up"}})
            if (fits(value) || command.back() != value) expected.push_back(command);
    }
    expect(expected);
}

TEST_F(HostileSettings, NameServer) {
    if (!ownsSystemFiles()) GTEST_SKIP() << "the name server file is the container's";
    fs::remove("/etc/resolv.conf");
    std::vector<Command> expected;
    for (const std::string& whole : kValues) {
        putValue(VarSetValue, 16000, whole);
        const std::string value = whole.substr(0, kIpSize - 1);
        // A line end would bring in a line of its own: nothing is written.
        const bool written = !value.empty() && value.find('\n') == std::string::npos;
        const ErrorStream errors;
        EXPECT_EQ(VarDNS(), written) << value;
        EXPECT_EQ(errors.text().empty(), value.empty()) << value;
        if (written) expected.push_back({"written", "nameserver " + value + "\n"});
    }
    expect(expected, "/etc/resolv.conf");
}

TEST_F(HostileSettings, ZoneFile) {
    std::vector<Command> expected;
    for (const std::string& value : kValues) {
        fs::remove("/etc/localtime");
        putValue(VarSetGlobalValue, 9024, value);
        if (!value.empty()) std::ofstream{value}; // not "/*", which lies elsewhere
        const ErrorStream errors;
        VarTIMEZONE();
        EXPECT_EQ(errors.text().find("not run") == std::string::npos, fits(value)) << value;
        // Neither a link nor a name: nothing to do. A name like an option is none.
        if (value.empty() || !fits(value)) continue;
        expected.push_back({"rm", "-f", "/etc/localtime"});
        expected.push_back({"ln", "-s", value, "/etc/localtime"});
        if (value[0] == '-') expected.back().insert(expected.back().begin() + 2, "--");
    }
    fs::remove("/*");
    expect(expected);
}

// Addresses become four numbers before any command sees them: the commands are those of plain addresses.
TEST_F(HostileSettings, Addresses) {
    const auto shapes = [](const auto& addressOf) {
        put("eth1_active=1 wlan0_active=1 VarSetWLAN0TypeDev=1");
        for (int id = kFirstIp + 1; id < kFirstIp + kIpCount; ++id)
            putValue(VarSetValue, id, addressOf(static_cast<std::size_t>(id)));
        const ErrorStream errors;
        VarSetSystemIPs();
        std::vector<std::string> commands = takeCommands();
        for (std::string& command : commands)
            command = std::regex_replace(command, std::regex(R"(7(\.-?\d+){3})"), "ADDRESS");
        return commands;
    };
    const auto plain = shapes([](std::size_t) { return std::string("7.7.7.7"); });
    for (std::size_t run = 0; run < 12; ++run) // each gives each address another value
        EXPECT_EQ(shapes([&](std::size_t id) { return "7." + kValues[(run * 10 + id) % kValues.size()]; }),
                  plain);
}

} // namespace
