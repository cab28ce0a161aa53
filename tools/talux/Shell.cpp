// talux shell: the command language with completion, history and help.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "ParamSystem/KEPL_Interpreter.h"
#include "support/Text.h"
#include "tools/talux/LineCheck.h"
#include "tools/talux/LineReader.h"
#include "tools/talux/Show.h"
#include "tools/talux/change/Apply.h"

namespace talux::tool {

namespace {

struct Options {
    int level = 2;
    bool keepGoing = false;
};

constexpr const char* kHelpEnglish =
    R"(A line is a list of terms separated by commas, executed from left to right.
  TLX_NAME [-p|-c|-h]        read a parameter or a record
  TLX_NAME 5, TLX_NAME 1.5   read elements; -p values only, -c in one line, -h bytes
  TLX_NAME = VALUE           write; settings are pending until update, save or a load;
                             interface addresses and the clock act at once
  load [FILE], load_ip [FILE], load_sec    load a parameter file and make everything
                             pending live
  save, save_ip, save_sec    make everything pending live and write the file; no name
  update                     make everything pending live
  + - * / sin cos tan deg rad sqr sqrt    operands first: TLX_U12,1000,/
  system COMMAND             run a shell command (level 3)
  undo, discard              take back the last change of talux set, apply ..; give up what is
                             pending
  help NAME                  explain a parameter
  quit                       end, like ctrl-D; ctrl-C discards the line, Tab completes
)";

constexpr const char* kHelpGerman =
    R"(Eine Zeile besteht aus Termen, durch Kommas getrennt, ausgeführt von links nach rechts.
  TLX_NAME [-p|-c|-h]        einen Parameter oder Datensatz lesen
  TLX_NAME 5, TLX_NAME 1.5   Elemente lesen; -p nur Werte, -c in einer Zeile, -h Bytes
  TLX_NAME = WERT            schreiben; Einstellungen sind ausstehend bis update, save oder load;
                             Schnittstellenadressen und Uhr wirken sofort
  load [DATEI], load_ip [DATEI], load_sec  eine Parameterdatei laden und alles Ausstehende
                             gültig machen
  save, save_ip, save_sec    alles Ausstehende gültig machen und die Datei schreiben; ohne Namen
  update                     alles Ausstehende gültig machen
  + - * / sin cos tan deg rad sqr sqrt    Operanden zuerst: TLX_U12,1000,/
  system BEFEHL              einen Shell-Befehl ausführen (Stufe 3)
  undo, discard              die letzte Änderung mit talux set, apply .. zurücknehmen; Ausstehendes
                             aufgeben
  help NAME                  einen Parameter erklären
  quit                       Ende, wie Strg-D; Strg-C verwirft die Zeile, Tab ergänzt
)";

// Shell terms send their output as it comes.
void showOutput(char* text, int /*isMore*/) {
    std::fputs(text, stdout);
    std::fflush(stdout);
}

// In the folder for a user's state, which is made when it is missing; empty when there is none to be had.
std::string historyFile() {
    namespace fs = std::filesystem;
    const auto in = [](const char* variable, const char* folder) {
        const char* const value = std::getenv(variable);
        return value != nullptr && *value == '/' ? fs::path(value) / folder : fs::path();
    };
    fs::path folder = in("XDG_STATE_HOME", "talux");
    if (folder.empty()) folder = in("HOME", ".local/state/talux");
    std::error_code error;
    if (!folder.empty()) fs::create_directories(folder, error);
    return folder.empty() || error ? std::string() : (folder / "history").string();
}

struct Shell {
    const Options& options;
    const Context& context;
    const bool isPerson = isatty(STDIN_FILENO) == 1;
    std::string directory = context.directory;
    KEPL_Interpreter interpreter{directory.data()};

    Status run() {
        const LineReader readLine = lineReader(isPerson, isPerson ? historyFile() : "", context);
        bool refused = false;
        if (isPerson)
            print(context.say("The command language of the device: help shows it, help NAME a parameter.\n"
                              "quit ends.\n",
                              "Die Befehlssprache des Geräts: help zeigt sie, help NAME einen Parameter.\n"
                              "quit beendet.\n"));
        while (auto line = readLine()) {
            if (*line == kQuitWord || *line == "exit") break;
            const bool isTaken = take(*line == "?" ? std::string(kHelpWord) : *line);
            refused |= !isTaken;
            std::fflush(stdout);
            if (!isTaken && !isPerson && !options.keepGoing) return stopped(readLine().has_value());
        }
        return refused && !isPerson ? kFound : kNothing;
    }

    Status stopped(bool isMoreToCome) const {
        const int pending = static_cast<int>(pendingSettings(context));
        if (isMoreToCome || pending > 0)
            std::fprintf(stderr,
                         context.say("  stopped here; pending settings: %d, see talux status\n",
                                     "  hier angehalten; anstehende Einstellungen: %d, siehe talux status\n"),
                         pending);
        return kFound;
    }

    // Of what acts on the network at once.
    bool isWanted(const std::string& line) const {
        std::string_view rest = line, term;
        while (isPerson && kepl::takeTerm(rest, term)) {
            const kepl::Decision decision = kepl::decide(term, options.level);
            const auto* const variable = decision.get<kepl::VariableDecision>();
            const bool isAddress = variable != nullptr && variable->get<kepl::WriteText>() != nullptr &&
                                   variable->row->type == kTypeIpAddress;
            const auto* const run = decision.get<kepl::RunCommand>();
            const bool isLoad =
                run != nullptr && run->file.empty() && run->command == kepl::Command::loadAddresses;
            if (isAddress || isLoad)
                return isAgreed(
                    context.say("This applies the network at once and can cut you off; `talux address` "
                                "takes an address back by itself. Go on?",
                                "Das wendet das Netzwerk sofort an und kann die Verbindung trennen; `talux "
                                "address` nimmt eine Adresse selbst zurück. Weiter?"),
                    context);
        }
        return true;
    }

    // False when the line was refused or failed. Lines that begin with a hash mark are comments of scripts.
    bool take(const std::string& line) try {
        const bool isHelpOnName = line.starts_with(kHelpWord) && line[kHelpWord.size()] == ' ';
        Order order;
        order.yes = !isPerson; // a line from a pipe has been thought of before
        if (line.starts_with('#')) return true;
        if (line == kHelpWord) return print(context.say(kHelpEnglish, kHelpGerman)), true;
        if (isHelpOnName) return explain(line.substr(kHelpWord.size() + 1), context), true;
        if (line == kUndoWord) return undo(order, context) != kCouldNot;
        if (line == kDiscardWord) return discard(order, context) != kCouldNot;
        return !isWanted(line) || evaluate(line);
    } catch (const CouldNot& error) {
        if (line.starts_with(kHelpWord))
            std::fprintf(stderr, "%s\n", error.what());
        else
            report(error.what());
        return false;
    }

    bool evaluate(const std::string& line) {
        const auto findings = checkLine(line, {.uid = options.level}, context);
        const bool isRefused = std::ranges::any_of(findings, &LineFinding::isRefusal);
        const char* const tooLow = kepl::textOf(kepl::Refusal::rightsTooLow);
        if (line.find('\0') != line.npos) return refuse(kepl::textOf(kepl::Refusal::syntaxError), findings);
        std::fflush(stdout);
        if (!isRefused)
            tell(findings); // what goes through in silence and is perhaps not meant, before it does
        std::string copy = line;
        char terminator[] = "\n";
        char answer[kKeplTextSize + sizeof terminator] = "";
        char error[128] = "";
        const int result =
            interpreter.ProcessLine(copy.data(), showOutput, answer, terminator, options.level);
        if (result == kLineEmpty) return true;
        interpreter.GetError(error, sizeof error);
        if (result == kLineError) return refuse(error, findings);
        if (answer == std::string(tooLow) + terminator) return refuse(tooLow, findings);
        if (answer != std::string_view(terminator)) print(answer);
        return !isFailure(answer);
    }

    // Of a load or a save.
    static bool isFailure(std::string_view answer) {
        return std::ranges::any_of(kepl::kCommands, [answer](const kepl::CommandRow& row) {
            return *row.failure != '\0' && answer.starts_with(row.failure);
        });
    }

    static void tell(const std::vector<LineFinding>& findings) {
        for (const LineFinding& finding : findings)
            std::fprintf(stderr, "  %s\n", finding.text.c_str());
    }

    bool refuse(std::string_view text, std::vector<LineFinding> findings) const {
        std::fflush(stdout);
        std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
        std::erase_if(findings, [](const LineFinding& finding) { return !finding.isRefusal; });
        tell(findings);
        if (text == kepl::textOf(kepl::Refusal::rightsTooLow))
            std::fputs(context.say("  talux shell --level 3 has all rights\n",
                                   "  talux shell --level 3 hat alle Rechte\n"),
                       stderr);
        return false;
    }
};

Status run(const Options& options, const Context& context) {
    attachDevice(Access::readWrite, context);
    return Shell{options, context}.run();
}

} // namespace

void addShell(CommandLine& line) {
    const auto [command, options] = line.add("shell", run,
                                             {"the command language with completion, history, help",
                                              "Befehlssprache mit Ergänzung, Verlauf und Hilfe"});
    command.option("--level", options.level,
                   {"rights level, 0 to 3; 2 if not given", "Rechtestufe, 0 bis 3; sonst 2"}, 0, 3);
    command.flag("--keep-going", options.keepGoing,
                 {"go on after a line of a pipe that is refused or fails",
                  "nach einer Zeile aus einer Pipe weitermachen, die abgelehnt wird oder scheitert"});
}

} // namespace talux::tool
