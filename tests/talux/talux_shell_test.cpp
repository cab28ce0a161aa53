// The shell on a terminal: keys go in, the screen comes out.
#include "Terminal.h"

namespace {

using namespace talux_test;

constexpr char kPrompt[] = "kepl> ";

struct TaluxShell : OnTerminal {
    void SetUp() override {
        InStartedDevice::SetUp();
        setenv("XDG_STATE_HOME", directory.c_str(), 1);
    }
    void start(const char* option = "--level=2") {
        OnTerminal::start({"shell", option});
        EXPECT_TRUE(waitFor("quit ends.\r\n") && waitFor(kPrompt));
    }

    // Types a line and gives what stands between it and the next prompt.
    bool answers(const std::string& keys, const std::string& text) {
        type(keys + "\r");
        return waitFor("\n") && waitFor(text) && waitFor(kPrompt);
    }
};

TEST_F(TaluxShell, CompletesNamesValuesOptionsAndWords) {
    start();
    EXPECT_TRUE(answers("TLX_uearth_sigdel\t", "1.000000")); // the written form of the name
    EXPECT_TRUE(answers("uearth_sigdur_\t", "0.000000"));    // without the prefix
    type("TLX_Language=\t");
    EXPECT_TRUE(waitFor("1 = German") && waitFor("2 = English") && waitFor("TLX_Language="));
    EXPECT_TRUE(answers("2,3,TLX_Langua\t", "2.000000"));
    type("TLX_Uearth=\t5");
    EXPECT_TRUE(answers("", ""));                          // a number has nothing to offer
    type("1,hel\t\x03TLX_nosuch=\t\x03TLX_qu2_active=\t"); // help is a word of its own line
    EXPECT_TRUE(waitFor("\a^C") && waitFor("\a^C") && waitFor("0  1") && answers("1", ""));
    EXPECT_TRUE(answers("upd\t", "parameter successfully update"));
    type("TLX_nosuch -\t\x03TLX_Uearth -\t\x03TLX_vBE -\t"); // options are for elements and records
    EXPECT_TRUE(waitFor("\a^C") && waitFor("\a^C") && waitFor("-p") && answers("p", "INDEX REQUIRED"));
    EXPECT_TRUE(answers("TLX_eth1\tact\t", "0\r\n")); // from names that differ in letter case
    EXPECT_TRUE(answers("help TLX_uearth_sigde\t", ">Uearth delay"));
    type("\r\t"); // an empty line
    EXPECT_TRUE(waitFor(kPrompt) && waitFor("help") && waitFor("update") && waitFor(kPrompt));
    type("TLX_\t\x03");
    EXPECT_TRUE(waitFor("f_grid") && waitFor("..\r\n") && waitFor("^C") && waitFor(kPrompt));
    type("TLX_MessRecord02 -\t");
    EXPECT_TRUE(waitFor("-c") && waitFor("TLX_MessRecord02 -"));
    EXPECT_TRUE(answers("c", "STRUCT:"));
    type("load\t");
    EXPECT_TRUE(waitFor("load_ip   load_sec  load") && waitFor(kPrompt));
    type("\x03");
    EXPECT_TRUE(waitFor(kPrompt));
    EXPECT_EQ(end(), 0);
}

TEST_F(TaluxShell, HelpsAndEndsACommandOfTheLineAlone) {
    start("--level=3");
    type("help uearth_sigd\t");
    EXPECT_TRUE(waitFor("Uearth_SigDel") && waitFor("Uearth_SigDur_LED") && waitFor("uearth_sigd"));
    EXPECT_TRUE(answers("el", ">Uearth delay"));
    type("system echo hi; exec sleep 60\r");
    EXPECT_TRUE(waitFor("> hi"));
    type("\x03");
    EXPECT_TRUE(waitFor(kPrompt));
}

TEST_F(TaluxShell, KeepsItsHistoryAndGivesALineUp) {
    start();
    EXPECT_TRUE(answers("1,2,+", "3.000000"));
    type("TLX_Uearth=77\x03");
    EXPECT_TRUE(waitFor("^C\r\n") && waitFor(kPrompt));
    for (int twice = 0; twice < 2; ++twice) // and is one line of the history
        EXPECT_TRUE(answers("TLX_Uearth", std::to_string(rowOf("Uearth")->val_def)));
    EXPECT_TRUE(answers("TLX_Uerth", "nearest name"));
    EXPECT_EQ(end(), 0) << "a person knows what was refused";
    start();
    EXPECT_TRUE(answers("\x10\x10\x10", "3.000000")); // lines up
    EXPECT_EQ(end(), 0);
    EXPECT_EQ(fs::status(directory / "talux/history").permissions(), fs::perms(0600));
    setenv("XDG_STATE_HOME", "relative", 1), setenv("HOME", directory.c_str(), 1);
    start();
    EXPECT_EQ(end(), 0);
    EXPECT_TRUE(fs::exists(directory / ".local/state/talux"));
    setenv("HOME", "/dev/null", 1); // where no history can be
    start();
    EXPECT_TRUE(answers("1,2,+", "3.000000"));
    EXPECT_EQ(end(), 0);
}

TEST_F(TaluxShell, WatchShowsWhatFitsAndScrolls) {
    OnTerminal::start({"watch", "MessRecord01", "--period", "60"});
    EXPECT_TRUE(waitFor("1 to 38 of 59") && waitFor("MessRecord01.TimeStamp") && waitFor("\n"));
    type("jj\033[B\033[B\033[Ak");
    EXPECT_TRUE(waitFor("3 to 40 of 59") && waitFor("MessRecord01.U0p"));
    for (const auto& [down, up] : {std::pair(" ", "b"), std::pair("\033[6~", "\033[5~")}) {
        type(down);
        EXPECT_TRUE(waitFor("22 to 59 of 59"));
        type(up);
        EXPECT_TRUE(waitFor("1 to 38 of 59"));
    }
    type("q");
    EXPECT_EQ(ended(), 0);
}

TEST_F(TaluxShell, AsksBeforeAnAddressActsAndTakesChangesBack) {
    const std::string address = "TLX_ETH0_IP=10.1.2.3";
    EXPECT_EQ(run("talux --directory " + directory.string() + " set Uearth=35 --yes").status, 0);
    start();
    for (const std::string& line : {address, "TLX_Uearth=33," + address, std::string("load_ip")}) {
        type(line + "\r");
        EXPECT_TRUE(waitFor("[y/N] "));
        EXPECT_TRUE(answers("n", ""));
    }
    EXPECT_TRUE(answers("load_ip nosuch", "") && answers("TLX_ETH0_IP", "192.168.55.127"));
    EXPECT_TRUE(answers("Uearth=33", "TLX_Uearth=33"));
    type("undo\r");
    EXPECT_TRUE(waitFor("[y/N] "));
    EXPECT_TRUE(answers("y", ""));
    EXPECT_TRUE(answers("TLX_Uearth", "30.000000"));
    type("exit\r");
    EXPECT_EQ(ended(), 0);
}

// As in less, where it ends a search.
TEST_F(TaluxShell, LeavesAnInterruptToThePager) {
    const std::string pager =
        write("pager", "trap 'echo interrupted; exit' INT; cat; while sleep 0.1; do :; done");
    setenv("PAGER", ("sh " + pager).c_str(), 1);
    OnTerminal::start({"list", "Uearth"});
    EXPECT_TRUE(waitFor("LED duration"));
    type("\x03");
    EXPECT_TRUE(waitFor("interrupted"));
    EXPECT_EQ(ended(), 0);
    unsetenv("PAGER");
}

} // namespace
