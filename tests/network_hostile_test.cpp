// Whatever a stored text contains, the shell runs only the intended command and passes the text unchanged.
#include <initializer_list>
#include <regex>
#include <spawn.h>
#include <sys/wait.h>

#include "Machine.h"
#include "NetworkSupport.h"

using namespace network_test;
using talux_test::machine;

namespace {

// What the module wanted to run.
std::vector<std::string> commands() {
    std::vector<std::string> all;
    for (const std::string& event : machine.events)
        all.push_back(event.substr(2)); // "$ command"
    return all;
}

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
    for (const auto& [before, after] :
         {std::pair{"", ""}, {"x ", ""}, {"'", ""}, {"'", "'"}, {"\"", ""}, {"\"", "\""}})
        for (const std::string command : {";>c", "&&>c", "||>c", "|>c", "\n>c", "&>c", "$(>c)", "`>c`"})
            values.push_back(before + command + after);
    return values;
}

const std::vector<std::string> kValues = hostileValues();

// Addresses of this test, which begin with 7, replaced by one word.
std::string withoutAddresses(const std::string& command) {
    static const std::regex address("7(\\.-?[0-9]+){3}", std::regex::extended);
    return std::regex_replace(command, address, "ADDRESS");
}

// The one of 127 quotes, written with four characters each, makes a command too long.
bool fits(const std::string& value) {
    return value != std::string(127, '\'');
}

// A command with its arguments as the shell's functions record it, a NUL after each word.
std::string noted(std::initializer_list<std::string> words) {
    std::string text;
    for (const std::string& word : words)
        text += word + '\0';
    return text + "\n";
}

// Runs each command in a process of the shell, where functions that note their arguments take the place of
// programs. After each, the file c, a side effect, is recorded and removed; the file $1 is recorded and
// emptied.
constexpr char kShellScript[] = R"(
note() { printf '%s\0' "$@" >&3; echo >&3; }
for program in ifconfig iwconfig ln rm; do eval "$program() { note $program \"\$@\"; }"; done
written=$1; shift
for command; do
  (eval "$command")
  [ ! -e c ] || { note c; command rm c; }
  [ -s "$written" ] || continue
  { printf 'written\0'; while IFS= read -r line; do printf '%s\n' "$line"; done; } <"$written" >&3
  printf '%s\0\n' "$line" >&3 # what has no line end
  : >"$written"
done 3>/tmp/record 2>/dev/null </dev/null)";

struct HostileSettings : SettingsTest {
    void SetUp() override {
        resetStore();
        machine.events.clear();
        fs::create_directories("/tmp/playground");
        fs::current_path("/tmp/playground");
        writeFile("bait", ""); // what patterns would match
    }
    void TearDown() override {
        fs::current_path("/");
        fs::remove_all("/tmp/playground");
        fs::remove("/tmp/record");
    }
    // What the shell made of the commands: exactly this, and no file but those that were there.
    static void expect(const std::string& expected, const char* written = "") {
        const auto before = std::distance(fs::directory_iterator("."), {});
        std::vector<const char*> arguments = {"sh", "-c", kShellScript, "sh", written};
        const std::vector<std::string> all = commands();
        for (const std::string& command : all)
            arguments.push_back(command.c_str());
        arguments.push_back(nullptr);
        pid_t shell = 0;
        posix_spawn(&shell, "/bin/sh", nullptr, nullptr, const_cast<char**>(arguments.data()), environ);
        EXPECT_EQ(waitpid(shell, nullptr, 0), shell);
        EXPECT_EQ(contents("/tmp/record"), expected);
        EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), before);
    }
};

TEST_F(HostileSettings, NetworkNameAndKey) {
    std::string expected;
    for (const std::string& value : kValues) {
        putValue(VarSetGlobalValue, 9022, value);
        putValue(VarSetGlobalValue, 9023, value);
        EXPECT_EQ(errorsOf(VarADHOCWLAN0).find("not run") == std::string::npos, fits(value)) << value;
        expected += noted({"ifconfig", "wlan0", "down"}) + noted({"iwconfig", "wlan0", "mode", "ad-hoc"}) +
                    noted({"iwconfig", "wlan0", "rate", "Auto"}) +
                    noted({"iwconfig", "wlan0", "channel", "11"});
        for (const char* option : {"essid", "enc", "key"})
            if (value.empty())
                expected += noted({"iwconfig", "wlan0", option});
            else if (fits(value))
                expected += noted({"iwconfig", "wlan0", option, value});
        expected += noted({"ifconfig", "wlan0", "up"});
    }
    expect(expected);
}

TEST_F(HostileSettings, NameServer) {
    if (!talux_test::isolated()) GTEST_SKIP() << "the name server file is the container's";
    fs::remove("/etc/resolv.conf");
    std::string expected;
    for (const std::string& whole : kValues) {
        putValue(VarSetValue, 16000, whole);
        const std::string value = whole.substr(0, kIpSize - 1);
        // A line end would bring in a line of its own: nothing is written.
        const bool written = !value.empty() && value.find('\n') == std::string::npos;
        EXPECT_EQ(errorsOf([&] { EXPECT_EQ(VarDNS(), written) << value; }).empty(), value.empty()) << value;
        if (written) expected += noted({"written", "nameserver " + value + "\n"});
    }
    expect(expected, "/etc/resolv.conf");
}

TEST_F(HostileSettings, ZoneFile) {
    if (!mayWriteSystemFiles()) GTEST_SKIP() << "the system files are another user's";
    std::string expected;
    for (const std::string& value : kValues) {
        fs::remove("/etc/localtime");
        putValue(VarSetGlobalValue, 9024, value);
        if (!value.empty()) std::ofstream{value}; // not "/*", which lies elsewhere
        EXPECT_EQ(errorsOf(VarTIMEZONE).find("not run") == std::string::npos, fits(value)) << value;
        // Neither a link nor a name: nothing to do. A name like an option is none.
        if (value.empty() || !fits(value)) continue;
        expected += noted({"rm", "-f", "/etc/localtime"});
        if (value[0] == '-')
            expected += noted({"ln", "-s", "--", value, "/etc/localtime"});
        else
            expected += noted({"ln", "-s", value, "/etc/localtime"});
    }
    fs::remove("/*");
    expect(expected);
}

// Addresses become four numbers before any command sees them: the commands are those of plain addresses.
TEST_F(HostileSettings, Addresses) {
    const auto commandsFor = [](const auto& addressOf) {
        put("eth1_active=1 wlan0_active=1 VarSetWLAN0TypeDev=1");
        for (int id = kFirstIp + 1; id < kFirstIp + kIpCount; ++id)
            putValue(VarSetValue, id, addressOf(static_cast<std::size_t>(id)));
        machine.events.clear();
        errorsOf(VarSetSystemIPs);
        std::string all;
        for (const std::string& command : commands())
            all += withoutAddresses(command) + "\n";
        return all;
    };
    const std::string plain = commandsFor([](std::size_t) { return "7.7.7.7"; });
    for (std::size_t run = 0; run < 12; ++run) // each gives each address another value
        EXPECT_EQ(
            commandsFor([&](std::size_t id) { return "7." + kValues[(run * 10 + id) % kValues.size()]; }),
            plain);
}

} // namespace
