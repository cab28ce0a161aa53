// Random lines and terms against the model: answers, errors, logs, effects in their order, both spaces.
#include "KeplModel.h"
#include "ParamSystem/KEPL_Interpreter.h"
#include "ParamSystem/kepl/Command.h"
#include "ParamSystem/kepl/Refusal.h"
#include "src/talux_interpreter.h"

#include <set>
#include <sys/mman.h>

using namespace talux_test;

// What a line does to files and network is recorded, and the test determines the result.
static int storeResult = 1;
static int noted(const char* what, const char* detail = "") {
    const Working working;
    note(std::string(what) + detail);
    return storeResult;
}
// clang-format off
int VarLoadFile(char* path, int type) { return noted(type == 0 ? "VarLoadFile 0 " : "VarLoadFile of a type ", path); }
int VarLoadIPConfig() { return noted("VarLoadIPConfig"); }
int VarLoadSecParams() { return noted("VarLoadSecParams"); }
int VarLoadParams() { return noted("VarLoadParams"); }
int VarSaveIPConfig() { return noted("VarSaveIPConfig"); }
int VarSaveSecParams() { return noted("VarSaveSecParams"); }
int VarSaveParams() { return noted("VarSaveParams"); }
int VarUpdateGlobalSpace() { return noted("VarUpdateGlobalSpace"); }
int VarSetSystemIPs() { return noted("VarSetSystemIPs"); }
// clang-format on

namespace {

// The longest answer and a terminator of one character.
static_assert(TALUX_ANSWER_SIZE >= kKeplTextSize + 1);
// This program's own initialisers run after the library's.
const bool attachedBeforeMain = pVarGlobal != nullptr && pVarTemp != nullptr && pVarStruct != nullptr;

void noteOutput(char* buffer, int buffered) {
    noted(buffered == 1 ? "out 1 " : buffered == 0 ? "out 0 " : "out of order ", buffer);
}

// A constant of the tables, to be changed.
template <typename Constant>
Constant& changeable(const Constant& constant) {
    const auto page = reinterpret_cast<std::uintptr_t>(&constant) & ~std::uintptr_t{4095};
    mprotect(reinterpret_cast<void*>(page), 8192, // NOLINT(performance-no-int-to-ptr)
             PROT_READ | PROT_WRITE);
    return const_cast<Constant&>(constant);
}

// The table that the library reads; this program may have a copy of its own.
const StructMemberProperties_t* libraryMembers() {
    void* const library = dlopen("lib_talux_lua.so.1", RTLD_NOLOAD | RTLD_NOW);
    return static_cast<const StructMemberProperties_t*>(dlsym(library, "ARR_StructMemberProperties"));
}

// Rows and members such as no table of today has.
void bendTables() {
    for (const auto& [name, last] : {std::pair{"Status_art_no", 3}, {"ETH1_IP", 2}}) {
        stParamProperties& row = changeable(*rowOf(name));
        row.val_min_id = 1, row.val_max_id = last, row.val_access = kReadWrite;
    }
    changeable(*rowOf("SampleFile")).val_access = kWriteOnly;
    const auto bend = [](int record, int k, int bits, const char* type) {
        for (const StructMemberProperties_t* const table : {ARR_StructMemberProperties, libraryMembers()}) {
            auto& member = changeable(table[ARR_MemberOffset[record] + k]);
            member.iMemberBitsize = bits, member.szMemberType = type;
        }
    };
    bend(2, 0, 16, "short int"), bend(2, 1, 16, "short"), bend(2, 2, 64, "double"), bend(2, 3, 32, "int");
    bend(1, 7, 32, "odd");
}

// Makes lines of the language, most of them nearly right.
struct Speaker {
    Random random;
    Words names;
    const Words special = tokens(
        "vMWR vBE conman_status MessRecord01 MessRecord02 StatRecord_c0 Date Time Name Kenn ETH0_IP ETH1_IP "
        "mw_req FW_BLOCK sec_mode MAC_adress channel Language EvCnt_qu2 SampleFile Status_art_no "
        "VarSaveParams U1_prim nobody \" = -p 5 ??? VAR_TPL_NULL",
        " ");

    Speaker() {
        LoadDefParamProperties();
        for (int position = 1; const auto* row = GetParamPropertiesByOrder(position); ++position)
            if (rowOf(row->name) == row) names.emplace_back(row->name);
    }
    bool oneIn(int count) { return random.below(count) == 0; }
    std::string any(const Words& words) {
        return words[static_cast<std::size_t>(random.below(static_cast<int>(words.size())))];
    }
    std::string of(const std::string& pieces) { return any(tokens(pieces, "|")); }
    std::string times(int longest, char c) {
        return std::string(static_cast<std::size_t>(random.below(longest)), c);
    }

    std::string number() {
        if (oneIn(20))
            return any({"nan", "x", "1_", "-", "12345678901234567890123456789012345678901234567890"});
        if (oneIn(2)) return formatted("%.*f", random.below(8), (random.below(2000001) - 1000000) / 97.0);
        return of(
            "0|1|-1|2.5| 7 up|1e3|0x1F|-.5|1e300|12345678901234567890|inf|-inf|-nan|+3|1e-400|010|5.|\t5|-0");
    }
    std::string expression() {
        if (oneIn(20)) return of("+|sin|sqrt |+ |/");
        if (oneIn(4)) return number() + "," + of("sin|COS|tan|deg|rad|Sqr|sqrt");
        return number() + "," + number() + "," + of("+|-|*|/");
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
                text += std::to_string(random.below(oneIn(9)   ? 2147483647
                                                    : oneIn(3) ? 2030
                                                               : 40)) +
                        (k > 1 || oneIn(9) ? row->type == kTypeSysDate ? "-" : ":" : "");
            return text + any({"", "\"", "x", " "});
        }
        if (isText(row->type))
            return any({"", "\"", "\"", " "}) + random.text(oneIn(3) ? 130 : 12) + any({"", "\"", "\"", "x"});
        const double limit = oneIn(2) ? row->val_min : row->val_max;
        return oneIn(2) ? number()
                        : formatted("%.17g", oneIn(2) ? limit : limit + (random.below(3) - 1) * 0.5);
    }
    std::string variable() { // without prefix
        const std::string name = any(oneIn(2) ? special : names);
        const stParamProperties* const row = rowOf(name);
        const bool isIndexed = row != nullptr && row->val_max_id > 0;
        std::string text = oneIn(9) ? " " : "";
        for (const char c : name)
            text += static_cast<char>(oneIn(9) ? std::toupper(c) : c);
        if (isIndexed != oneIn(20)) text += " " + index(isIndexed ? row->val_max_id : 3);
        if (oneIn(3)) text += of(" -p| -c| -h| -P| -");
        if (oneIn(9)) text += of(" -p| -c| -h| x|\r\n");
        if (oneIn(2)) text += of("=| = |=|==|= ") + value(row);
        return text;
    }
    std::string term() {
        const int kind = random.below(20);
        if (kind < 10) return of("TLX_|TLX_|tlx_|LVR_|lVr_") + variable();
        if (kind < 14) return oneIn(3) ? number() : expression();
        if (kind == 14) return of(" |SAVE x|updated|\x7f");
        if (kind == 15) // a command word
            return std::string(
                talux::kepl::kCommands[1 + random.below(std::size(talux::kepl::kCommands) - 1)].word);
        if (kind < 18)
            return of("load|loading|load_ip|Load_Sec x") +
                   any({"", " ", " x.ini", "  a/b.ini c", " " + std::string(115, 'n') + times(9, 'n')});
        return of("system|SYSTEM |systemx|systemfw_setenv") +
               of(" |  echo a  b | cat /etc/.version| cat .version x| ls| CAT .version| "
                  "cat.versio| talux-pondo| : fw_printenv|"
                  " xfw_setenv y| backup.tgz| bck_appfs| talux-bcard31| echo "
                  "/sys/class/gpio/gpio105/value| FW_SETENV");
    }
    std::string line() {
        std::string text = term();
        while (!oneIn(3))
            text += of(",|,|, |,,") + term();
        if (oneIn(50)) text = times(127, ' ') + text;
        if (oneIn(50)) text += times(254, oneIn(2) ? '1' : ',');
        for (int k = oneIn(6) ? random.below(3) : -1; k >= 0 && !text.empty(); --k)
            text.replace(
                static_cast<std::size_t>(random.below(static_cast<int>(text.size()))), oneIn(2),
                any({"", "", " ", ",", "=", ".", "-", "\"", "x", "\t", "\xff", "%s%n", "\r", "TLX_", "0"}));
        return text;
    }
};

struct Traces {
    Words events;
    std::string errors, image;
};

// The module and the model, one after the other in the same store.
struct KeplModel : OnMachine<> {
    Model model;
    Speaker speaker;
    Random& random = speaker.random;
    char path[140] = "/tmp/";
    int uid = 3;

    KeplModel() {
        setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
        tzset();
        VarInit(kNoDirectory);
        bendTables();
        std::fill_n(path + 5, 129, 'p'); // so that some paths are too long
        model.iniPath = path;
        machine.stamp = [] { return formatted(" @%zx", std::hash<std::string>()(image())); };
    }

    void shake() { // the store
        random.fill(raw(kTemp), kSpaceSize);
        random.fill(raw(kGlobal), kSpaceSize);
        random.fill(rawRecords(), kRecordsSize);
    }
    // Other rights, another moment, other outcomes of what a line runs.
    void turn() {
        uid = oneIn(4) ? random.below(6) - 1 : 3;
        machine.now = random.below(2000000000);
        machine.pipesFail = oneIn(9);
        machine.hasSignals = oneIn(3);
        machine.pipe = speaker.times(600, 'x');
        for (char& c : *machine.pipe)
            c = oneIn(99) ? "\n"[random.below(2)] : c;
        model.storeResult = storeResult = random.below(3) - 1;
    }
    bool oneIn(int count) { return speaker.oneIn(count); }

    // What happened since the last call, and takes it back.
    Traces traces(const std::string& before, bool takeBack) {
        Traces all{std::exchange(machine.events, {}), std::exchange(machine.errors, {}), image()};
        if (takeBack) before.copy(raw(kTemp), kSpaceSize), before.copy(raw(kGlobal), kSpaceSize, kSpaceSize);
        return all;
    }
    void expectTraces(const Traces& wanted) {
        const Traces got = traces({}, false);
        EXPECT_EQ(got.events, wanted.events);
        EXPECT_EQ(got.errors, wanted.errors);
        EXPECT_EQ(differences(got.image, wanted.image), "");
    }

    // Into an untouched buffer, or into that of the line.
    Model::Outcome evaluate(KEPL_Interpreter& interpreter, std::string line, std::string terminator,
                            bool isShared = false) {
        const std::string canary(9, '!');
        std::string result = isShared ? line : kUntouched;
        result.resize(kKeplTextSize + terminator.size(), '\0');
        result += canary;
        char error[128] = "?";
        const ErrorStream stream;
        std::jmp_buf end;
        machine.processEnd = &end;
        volatile int code = kProcessEnds;
        const std::size_t asked = allocationsOf([&] {
            if (setjmp(end) == 0)
                code = interpreter.ProcessLine(isShared ? result.data() : line.data(), noteOutput,
                                               result.data(), terminator.data(), uid);
        });
        EXPECT_EQ(asked, 0u) << line;
        EXPECT_EQ(machine.openPipes, 0) << line;
        interpreter.GetError(error, sizeof error);
        EXPECT_TRUE(result.ends_with(canary)) << line;
        result.resize(std::strlen(result.data()));
        return {code, result, error};
    }
};

constexpr int kAllRounds = 40000; // enough for every way out of a line
#ifdef TALUX_EMULATED
constexpr int kRounds = kAllRounds / 4;
#else
constexpr int kRounds = kAllRounds;
#endif

} // namespace

TEST_F(KeplModel, AnswersLines) {
    std::optional<KEPL_Interpreter> interpreter;
    std::map<std::string, int> counts; // of the ways out of a line
    for (int round = 0; round < kRounds; ++round) {
        if (round % 500 == 0) {
            const int board = round / 500 % 4;
            machine.board = Words{"armv5tejl", "armv7l", "armv7L", ""}[static_cast<std::size_t>(board)];
            interpreter.emplace(path);
            VarInit(kNoDirectory); // its own path counts
            model.board = board < 2 ? board : -1;
            shake();
        }
        turn();
        const std::string line = speaker.line(), terminator = speaker.any({"\n", "", "#", "<END>"}),
                          before = image();
        auto expected = model.evaluate(line, terminator, uid);
        const Traces wanted = traces(before, true);
        const bool isShared = oneIn(4);
        if (isShared && expected.answer == kUntouched) expected.answer = line;
        EXPECT_EQ(evaluate(*interpreter, line, terminator, isShared), expected);
        expectTraces(wanted);
        if (HasFailure()) FAIL() << "round " << round << ", uid " << uid << ": " << line;
        ++counts[expected.error.empty() ? std::to_string(expected.result) : expected.error];
    }
    if (kRounds < kAllRounds) return;
    constexpr std::size_t kRefusals = talux::enumeratorsOf<talux::kepl::Refusal>() - 1; // without `none`
    EXPECT_EQ(counts.size(), 3 + kRefusals) << "a way that no line takes any more, or a new one";
    for (const auto& [way, times] : counts)
        EXPECT_GT(times, 2) << way;
}

// One more character at a time, until the answer is full.
TEST_F(KeplModel, FillsAnswersToTheLastCharacter) {
    KEPL_Interpreter interpreter(path);
    std::vector<VarLong> values(110, 1);
    std::set<int> results;
    for (int k = 0; k < 330; ++k) {
        values[static_cast<std::size_t>(k % 110)] *= 10;
        VarSetGlobalLongValueArray(rowOf("conman_status")->id, values.data(), 110);
        const auto expected = model.evaluate("TLX_conman_status 1.110", "", uid);
        ASSERT_EQ(evaluate(interpreter, "TLX_conman_status 1.110", ""), expected);
        results.insert(expected.result);
    }
    EXPECT_EQ(results.size(), 2u);
}

// What other programs call directly: the stack is theirs, its count does not change, a full one gets nothing.
TEST_F(KeplModel, CarriesOutCommands) {
    constexpr double kNothing = -77;
    KEPL_Interpreter interpreter(path);
    shake();
    for (int round = 0; round < kRounds / 5; ++round) {
        turn();
        const std::string term = oneIn(99) ? std::string(128, 'x') : speaker.variable(), before = image();
        const int places[] = {0, 5, kKeplStackSize - 1, kKeplStackSize, -1}, place = places[random.below(5)];
        const bool hasSlot = place >= 0 && place < kKeplStackSize;
        const auto expected = model.command(term, uid, hasSlot);
        const Traces wanted = traces(before, true);

        std::vector<double> values(kKeplStackSize, kNothing);
        std::vector<int> types(kKeplStackSize);
        char text[kKeplTextSize] = "?", error[128];
        int count = place;
        const int result =
            interpreter.ProcessCommand(term.c_str(), text, values.data(), types.data(), &count, uid);
        interpreter.GetError(error, sizeof error);
        EXPECT_EQ(std::tuple(result, std::string(text), std::string(error), count),
                  std::tuple(expected.result, expected.text, expected.error, place));
        expectTraces(wanted);
        if (HasFailure()) FAIL() << "round " << round << ", uid " << uid << ": " << term;
        const bool isPut = hasSlot && expected.slot;
        ASSERT_EQ(std::ranges::count(values, kNothing), kKeplStackSize - isPut) << term;
        if (!isPut) continue;
        ASSERT_EQ(types[static_cast<std::size_t>(place)], expected.slot->type) << term;
        ASSERT_EQ(print(values[static_cast<std::size_t>(place)], 2002), print(expected.slot->number, 2002))
            << term;
    }
}

TEST_F(KeplModel, HasItsOtherFunctions) {
    static_assert(!std::is_copy_constructible_v<KEPL_Interpreter> &&
                  !std::is_move_assignable_v<KEPL_Interpreter>);
    EXPECT_TRUE(attachedBeforeMain);
    KEPL_Interpreter interpreter(path);
    for (int left = 2000; left < 2026; ++left)
        for (int right = 2000; right < 2026; ++right)
            EXPECT_EQ(interpreter.GetNewValType(left, right), resultType(left, right))
                << left << " " << right;

    char line[] = "1,0,/", empty[] = "", shell[] = "system x", good[] = "1", result[kKeplTextSize] = "?",
         buffer[] = "??????????????????";
    for (char* text : {line, good})
        interpreter.ProcessLine(text, nullptr, result, empty, 3);
    EXPECT_EQ(interpreter.GetError(buffer, 1), 1);
    EXPECT_EQ(std::exchange(buffer[0], '?'), '\0') << "the error of another line";
    EXPECT_EQ(interpreter.ProcessLine(line, nullptr, result, empty, 3), kLineError);
    EXPECT_EQ(interpreter.ProcessLine(empty, nullptr, result, empty, 3), kLineEmpty); // and touches nothing
    EXPECT_EQ(interpreter.GetError(buffer, 5), 1);
    EXPECT_STREQ(buffer, "Divis?????????????"); // no NUL: the text fills it
    EXPECT_EQ(interpreter.GetError(buffer, 17), 1);
    EXPECT_EQ(std::string(buffer, 18), std::string(17, '\0') + "?"); // it was returned, and is forgotten
    EXPECT_EQ(interpreter.GetError(nullptr, 5), 1);
    machine.pipe = "output nobody wants";
    EXPECT_EQ(interpreter.ProcessLine(shell, nullptr, result, line, 3), kLineDone);
    EXPECT_STREQ(result, "");
}
