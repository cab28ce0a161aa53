// Random lines and terms against the model: answers, errors, logs, effects in their order, both spaces.
#include "KeplModel.h"
#include "Machine.h"
#include "ParamSystem/KEPL_Interpreter.h"

#include <map>
#include <set>
#include <sys/mman.h>

using namespace talux_test;

// What a line does to files and network is noted, and its outcome told by the test.
static int storeResult = 1;
#define TALUX_NOTED(function)                                                                                \
    int function() {                                                                                         \
        const Working working;                                                                               \
        note(#function);                                                                                     \
        return storeResult;                                                                                  \
    }
TALUX_NOTED(VarLoadIPConfig)
TALUX_NOTED(VarLoadSecParams)
TALUX_NOTED(VarLoadParams)
TALUX_NOTED(VarSaveIPConfig)
TALUX_NOTED(VarSaveSecParams)
TALUX_NOTED(VarSaveParams)
TALUX_NOTED(VarUpdateGlobalSpace)
TALUX_NOTED(VarSetSystemIPs)
int VarLoadFile(char* path, int type) {
    const Working working;
    note("VarLoadFile " + std::to_string(type) + " " + path);
    return storeResult;
}

namespace {

void noteOutput(char* buffer, int buffered) {
    const Working working;
    note("out " + std::to_string(buffered) + " " + buffer);
}

const stParamProperties* rowOf(std::string name) {
    return GetParamPropertiesByName(name.data());
}

// A constant of the tables, to be changed.
template <typename Constant>
Constant& changeable(const Constant& constant) {
    const auto page = reinterpret_cast<std::uintptr_t>(&constant) & ~std::uintptr_t{4095};
    mprotect(reinterpret_cast<void*>(page), 8192, PROT_READ | PROT_WRITE);
    return const_cast<Constant&>(constant);
}

// Rows and members such as no table of today has.
void bendTables() {
    for (const auto& [name, last] : {std::pair{"Status_art_no", 3}, {"ETH1_IP", 2}}) {
        stParamProperties& row = changeable(*rowOf(name));
        row.val_min_id = 1, row.val_max_id = last, row.val_access = kReadWrite;
    }
    changeable(*rowOf("SampleFile")).val_access = kWriteOnly;
    const auto member = [](int record, int k) -> auto& {
        return changeable(ARR_StructMemberProperties[ARR_MemberOffset[record] + k]);
    };
    for (const int k : {0, 1})
        member(2, k).iMemberBitsize = 16;
    member(2, 0).szMemberType = "short int";
    member(2, 1).szMemberType = "short";
    member(2, 2).szMemberType = "double", member(2, 2).iMemberBitsize = 64;
    member(2, 3).szMemberType = "int";
    member(1, 7).szMemberType = "odd";
}

// Says lines of the language, most of them nearly right.
class Speaker {
public:
    Random random;

    Speaker() {
        LoadDefParamProperties();
        for (int position = 1; const auto* row = GetParamPropertiesByOrder(position); ++position)
            if (rowOf(row->name) == row) names.emplace_back(row->name);
    }

    bool oneIn(int count) { return random.below(count) == 0; }
    const std::string& any(const Words& words) {
        return words[static_cast<std::size_t>(random.below(static_cast<int>(words.size())))];
    }

    std::string line() {
        std::string text = term();
        while (!oneIn(3))
            text += any({",", ",", ",", ", ", ",,"}) + term();
        if (oneIn(50)) text = std::string(static_cast<std::size_t>(random.below(127)), ' ') + text;
        if (oneIn(50)) text += std::string(static_cast<std::size_t>(random.below(254)), oneIn(2) ? '1' : ',');
        return oneIn(6) ? spoil(text) : text;
    }

    // Without prefix.
    std::string variable() {
        const std::string name = oneIn(2) ? any(kSpecial) : oneIn(20) ? any(kOdd) : any(names);
        const stParamProperties* const row = rowOf(name);
        const bool isIndexed = row != nullptr && row->val_max_id > 0;
        std::string text = oneIn(9) ? " " : "";
        for (const char c : name)
            text += oneIn(9) ? static_cast<char>(std::toupper(c)) : c;
        if (isIndexed != oneIn(20)) text += " " + index(isIndexed ? row->val_max_id : 3);
        if (oneIn(3)) text += any({" -p", " -c", " -h", " -P", " -"});
        if (oneIn(9)) text += any({" -p", " -c", " -h", " x", "\r\n"});
        if (oneIn(2)) text += any({"=", " = ", "=", "==", "= "}) + value(row);
        return text;
    }

private:
    Words names;
    const Words kOdd = {"", "nobody", "\"", "=", "-p", "5", "???", "VAR_TPL_NULL"};
    const Words kSpecial = {"vMWR",          "vBE",           "conman_status", "MessRecord01", "MessRecord02",
                            "StatRecord_c0", "Date",          "Time",          "Name",         "Kenn",
                            "ETH0_IP",       "ETH1_IP",       "mw_req",        "FW_BLOCK",     "sec_mode",
                            "MAC_adress",    "channel",       "Language",      "EvCnt_qu2",    "SampleFile",
                            "Status_art_no", "VarSaveParams", "U1_prim"};

    std::string number() {
        if (oneIn(20))
            return any({"nan", "x", "1_", "-", "12345678901234567890123456789012345678901234567890"});
        if (oneIn(2)) return format("%.*f", random.below(8), (random.below(2000001) - 1000000) / 97.0);
        return any({"0", "1", "-1", "2.5", " 7 up", "1e3", "0x1F", "-.5", "1e300", "12345678901234567890",
                    "inf", "-inf", "-nan", "+3", "1e-400", "010", "5.", "\t5", "-0"});
    }
    std::string expression() {
        if (oneIn(20)) return any({"+", "sin", "sqrt ", "+ ", "/"});
        if (oneIn(4)) return number() + "," + any({"sin", "COS", "tan", "deg", "rad", "Sqr", "sqrt"});
        return number() + "," + number() + "," + any({"+", "-", "*", "/"});
    }
    std::string index(int last) {
        const auto one = [&] {
            return oneIn(6) ? any({"0", "-3", "0", "x", "9999999999", "", "1e1", std::string(50, '0')})
                            : std::to_string(1 + random.below(last + (oneIn(4) ? 2 : 0)));
        };
        return oneIn(3)   ? one()
               : oneIn(4) ? "1." + std::to_string(last)
                          : one() + "." + one() + (oneIn(20) ? "." : "");
    }
    std::string value(const stParamProperties* row) {
        if (row == nullptr || oneIn(8)) return any({"", "x", "\"", "\"\"", "5", "=5"});
        if (row->type == kTypeSysDate || row->type == kTypeSysTime) {
            std::string text = any({"", "\""});
            for (int k = oneIn(9) ? 2 : oneIn(9) ? 4 : 3; k > 0; --k)
                text +=
                    std::to_string(oneIn(9) ? random.below(2147483647) : random.below(oneIn(3) ? 2030 : 40)) +
                    (k > 1 || oneIn(9) ? row->type == kTypeSysDate ? "-" : ":" : "");
            return text + any({"", "\"", "x", " "});
        }
        if (!Model::isText(row->type)) {
            const double limits[] = {row->val_min, row->val_max};
            const double limit = limits[random.below(2)];
            const double near = oneIn(2) ? limit : limit + (random.below(3) - 1) * 0.5;
            return oneIn(2) ? format("%.17g", near) : number();
        }
        return any({"", "\"", "\"", " "}) + random.text(oneIn(3) ? 130 : 12) + any({"", "\"", "\"", "x"});
    }
    std::string term() {
        const int kind = random.below(20);
        if (kind < 10) return any({"TLX_", "TLX_", "tlx_", "LVR_", "lVr_"}) + variable();
        if (kind < 14) return oneIn(3) ? number() : expression();
        if (kind < 16)
            return any({"", " ", "save", "SAVE x", "save_ip", "save_sec", "update", "updated", "\x7f"});
        if (kind < 18)
            return any({"load", "loading", "load_ip", "Load_Sec x"}) +
                   any({"", " ", " x.ini", "  a/b.ini c",
                        " " + std::string(static_cast<std::size_t>(115 + random.below(9)), 'n')});
        return any({"system", "SYSTEM ", "systemx"}) +
               any({"", " ", "  echo a  b ", " cat /etc/.version", " ls", " CAT .version", " cat|.versio",
                    " talux-pondo", " : fw_printenv", " xfw_setenv y", " backup.tgz", " bck_appfs",
                    " talux-bcard31", " echo /sys/class/gpio/gpio105/value", " FW_SETENV"});
    }
    std::string spoil(std::string text) {
        for (int k = random.below(3); k >= 0 && !text.empty(); --k) {
            const auto at = static_cast<std::size_t>(random.below(static_cast<int>(text.size())));
            const std::string odd =
                any({"", "", " ", ",", "=", ".", "-", "\"", "x", "\t", "\xff", "%s%n", "\r", "TLX_", "0"});
            text.replace(at, static_cast<std::size_t>(random.below(2)), odd);
        }
        return text;
    }
};

// The module and the model beside each other.
class KeplModel : public OnMachine {
protected:
    Model model;
    Speaker speaker;
    Random& random = speaker.random;
    std::map<std::string, int> counts; // of answers without numbers and texts, and of errors
    char path[140] = "/tmp/kepl";
    int uid = 3;

    KeplModel() {
        setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
        tzset();
        std::fill_n(path + 9, 125, 'p'), path[4] = '/'; // so that some paths are too long
        model.iniPath = path;
        VarInit(kNoDirectory);
        bendTables();
        machine.stamp = [] {
            return format(" @%zx", std::hash<std::string>()(bytes(raw(kTemp), kSpaceSize) +
                                                            bytes(raw(kGlobal), kSpaceSize)));
        };
    }

    // Garbage in the spaces; another moment, rights, outcome of what a line runs.
    void shake(int board) {
        for (const int space : {kTemp, kGlobal}) {
            random.fill(raw(space), kSpaceSize);
            model.spaces[space] = bytes(raw(space), kSpaceSize);
        }
        random.fill(rawRecords(), kRecordsSize);
        model.records = bytes(rawRecords(), kRecordsSize);
        model.board = board;
    }
    void turn() {
        uid = random.below(4) == 0 ? random.below(6) - 1 : 3;
        machine.now = model.now = random.below(2000000000);
        model.storeResult = storeResult = random.below(3) - 1;
        model.pipesFail = machine.pipesFail = speaker.oneIn(9);
        machine.hasSignals = speaker.oneIn(3);
        model.pipe.assign(static_cast<std::size_t>(random.below(600)), '\0');
        for (char& c : model.pipe)
            c = "x\n"[random.below(300) == 0], c = speaker.oneIn(99) ? '\0' : c;
        machine.pipe = model.pipe;
        model.events.clear(), machine.events.clear();
        model.errors.clear(), machine.errors.clear();
    }
    bool haveSameTraces() const {
        EXPECT_EQ(machine.events, model.events);
        EXPECT_EQ(machine.errors, model.errors);
        return machine.events == model.events && machine.errors == model.errors && machine.openPipes == 0 &&
               std::memcmp(raw(kTemp), model.spaces[kTemp].data(), kSpaceSize) == 0 &&
               std::memcmp(raw(kGlobal), model.spaces[kGlobal].data(), kSpaceSize) == 0;
    }

    // Counts the ways out of terms and lines.
    void count(int result, const std::string& error) {
        ++counts[error.empty() ? "result " + std::to_string(result) : error];
    }

    Model::Outcome evaluate(KEPL_Interpreter& interpreter, std::string line, std::string terminator) {
        const std::string behind(9, '!');
        std::string result = "(untouched)";
        result.resize(kKeplTextSize + terminator.size(), '\0');
        result += behind;
        char error[128] = "?";
        const ErrorStream stream;
        std::jmp_buf end;
        machine.processEnd = &end;
        volatile int code = kProcessEnds;
        const std::size_t asked = allocationsOf([&] {
            if (setjmp(end) == 0)
                code =
                    interpreter.ProcessLine(line.data(), noteOutput, result.data(), terminator.data(), uid);
        });
        EXPECT_EQ(asked, 0u) << line;
        interpreter.GetError(error, sizeof error);
        EXPECT_TRUE(result.ends_with(behind)) << line;
        return {code, result.c_str(), error};
    }
};

const std::string kBoards[] = {"armv5tejl", "armv7l", "armv7L", ""};

} // namespace

TEST_F(KeplModel, AnswersLines) {
    std::optional<KEPL_Interpreter> interpreter;
    for (int round = 0; round < 40000; ++round) {
        if (round % 500 == 0) {
            const int board = round / 500 % 4;
            machine.board = kBoards[board];
            interpreter.emplace(path);
            shake(board < 2 ? board : -1);
        }
        turn();
        const std::string line = speaker.line(), terminator = speaker.any({"\n", "", "#", "<END>"});
        const auto expected = model.evaluate(line, terminator, uid);
        ASSERT_EQ(evaluate(*interpreter, line, terminator), expected) << line << " uid " << uid;
        ASSERT_TRUE(haveSameTraces()) << line << " uid " << uid;
        count(expected.result, expected.error);
    }
    EXPECT_EQ(counts.size(), 23u) << "a way that no line takes any more, or a new one";
    for (const auto& [what, times] : counts)
        EXPECT_GT(times, 10) << what;
}

// What other programs call directly: the slot is theirs, the count stays, a full stack is no target.
TEST_F(KeplModel, CarriesOutCommands) {
    constexpr double kNothing = -77;
    KEPL_Interpreter interpreter(path);
    shake(-1);
    for (int round = 0; round < 20000; ++round) {
        turn();
        const std::string term = speaker.oneIn(99) ? std::string(128, 'x') : speaker.variable();
        const int places[] = {0, 5, kKeplStackSize - 1, kKeplStackSize, -1};
        const int place = places[random.below(5)];
        const bool hasSlot = place >= 0 && place < kKeplStackSize;
        const auto expected = model.command(term, uid, hasSlot);

        std::vector<double> values(kKeplStackSize, kNothing);
        std::vector<int> types(kKeplStackSize, 0);
        std::string text(kKeplTextSize, '?');
        char error[128];
        int count = place;
        const int result =
            interpreter.ProcessCommand(term.c_str(), text.data(), values.data(), types.data(), &count, uid);
        interpreter.GetError(error, sizeof error);
        ASSERT_EQ(result, expected.result) << term;
        ASSERT_EQ(text.c_str(), expected.text) << term;
        ASSERT_EQ(error, expected.error) << term;
        ASSERT_EQ(count, place);
        ASSERT_TRUE(haveSameTraces()) << term;
        const bool isPut = hasSlot && expected.slot;
        ASSERT_EQ(std::ranges::count(values, kNothing), kKeplStackSize - isPut) << term;
        ASSERT_TRUE(!isPut || types[static_cast<std::size_t>(place)] == expected.slot->second) << term;
        ASSERT_TRUE(!isPut ||
                    print(values[static_cast<std::size_t>(place)], 2002) == print(expected.slot->first, 2002))
            << term;
    }
}

TEST_F(KeplModel, PromotesAlongTheChainOnly) {
    KEPL_Interpreter interpreter(path);
    for (int left = 2000; left < 2026; ++left)
        for (int right = 2000; right < 2026; ++right)
            EXPECT_EQ(interpreter.GetNewValType(left, right), resultType(left, right))
                << left << " " << right;
}

TEST_F(KeplModel, HandsTheErrorOutOnceAndNeedsNoCallback) {
    static_assert(!std::is_copy_constructible_v<KEPL_Interpreter> &&
                  !std::is_move_assignable_v<KEPL_Interpreter>);
    KEPL_Interpreter interpreter(path);
    char line[] = "1,0,/", empty[] = "", shell[] = "system x", result[kKeplTextSize] = "?",
         buffer[] = "??????????????????";
    EXPECT_EQ(interpreter.ProcessLine(line, nullptr, result, empty, 3), kLineError);
    EXPECT_EQ(interpreter.ProcessLine(empty, nullptr, result, empty, 3), kLineEmpty); // and touches nothing
    EXPECT_EQ(interpreter.GetError(buffer, 5), 1);
    EXPECT_STREQ(buffer, "Divis?????????????"); // no NUL: the text fills it
    EXPECT_EQ(interpreter.GetError(buffer, 17), 1);
    EXPECT_EQ(std::string(buffer, 18), std::string(17, '\0') + "?");
    EXPECT_EQ(interpreter.GetError(nullptr, 5), 1);
    machine.pipe = "output";
    EXPECT_EQ(interpreter.ProcessLine(shell, nullptr, result, line, 3), kLineDone);
    EXPECT_STREQ(result, "");
    EXPECT_EQ(machine.events.back().substr(0, 6), "closed");
}
