// talux lint: every line of a KEPL or Lua script looked at without running it.
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <optional>
#include <set>

#include "ParamSystem/kepl/Words.h"
#include "support/Text.h"
#include "tools/talux/Files.h"
#include "tools/talux/LineCheck.h"
#include "tools/talux/LuaTokens.h"
#include "tools/talux/Plausibility.h"
#include "tools/talux/Show.h"
#include "tools/talux/change/Plan.h"

namespace talux::tool {

namespace {

constexpr std::size_t kLuaAnswerRoom = 998; // of talux_command
constexpr std::size_t kMaximumFindings = 1000;

struct Options {
    std::vector<std::string> files;
    int level = 3;
};

// Prints FILE:LINE:COLUMN: finding.
class Findings {
public:
    Findings(std::string fileName, std::string_view contents) : name(std::move(fileName)), script(contents) {
        for (const std::string_view line : linesOf(contents))
            lineStarts.push_back(static_cast<std::size_t>(line.data() - contents.data()));
    }

    void add(std::size_t at, const std::string& text) {
        if (isFull()) return;
        ++count;
        at = std::min(at, script.size());
        const auto line = std::ranges::upper_bound(lineStarts, at) - lineStarts.begin();
        const std::size_t start = lineStarts[static_cast<std::size_t>(line - 1)];
        print(fill("{}:{}:{}: {}\n", {name, std::to_string(line), std::to_string(at - start + 1), text}));
    }

    bool empty() const { return count == 0; }

    // There is no use in looking for more.
    bool isFull() const { return count >= kMaximumFindings; }

    void finish(const Context& context) const {
        if (isFull())
            print(context.say("{}: {} findings are listed, further ones are not searched for\n",
                              "{}: {} Befunde sind genannt, weitere nicht gesucht\n", name, count));
    }

private:
    const std::string name;
    const std::string_view script;
    std::vector<std::size_t> lineStarts;
    std::size_t count = 0;
};

// ---- Files of the command language ------------------------------------------------------------------------

const char* nulText(const Context& context) {
    return context.say("holds a NUL character: the line is refused whole",
                       "enthält ein NUL-Zeichen: die Zeile wird ganz abgelehnt");
}

void lintKepl(std::string_view script, const Options& options, Findings& findings, const Context& context) {
    for (std::string_view line : linesOf(script)) {
        const auto start = static_cast<std::size_t>(line.data() - script.data());
        if (findings.isFull()) return;
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.find('\0') != line.npos)
            findings.add(start, nulText(context));
        else if (!line.starts_with('#'))
            for (const LineFinding& finding : checkLine(line, {.uid = options.level}, context))
                findings.add(start + finding.at, finding.text);
    }
}

// ---- Lua --------------------------------------------------------------------------------------------------

// A text argument as far as it is constant.
struct Constant : LuaToken {
    bool isWhole = true;
};

// What the layer for scripts has: functions that take a name first, and others.
constexpr std::string_view kTakeNames[] = {"get", "set", "record", "parameter"};
constexpr std::string_view kOthers[] = {"try",      "apply",   "update",   "save",  "save_sec",    "save_ip",
                                        "load",     "load_ip", "load_sec", "read",  "differences", "changed",
                                        "protocol", "now",     "wait",     "alive", "every"};

// What ends a loop or makes it pause.
constexpr std::string_view kPauses[] = {"break", "return", "goto",  "error", "exit",         "assert",
                                        "every", "wait",   "yield", "read",  "talux_usleep", "sleep"};

struct LuaLint {
    const std::deque<LuaToken> tokens;
    Findings& findings;
    const Context& context;
    std::set<std::string> aliases{"talux_command"}, layers{"talux"};

    void run() {
        for (std::size_t k = 0; k + 1 < tokens.size() && !findings.isFull(); ++k) {
            rememberAlias(k);
            if (isOwn(k) && isCall(k) && aliases.contains(at(k).text))
                lintCommand(k + 1);
            else if (at(k).is("talux_longarray") && areAt(k + 1, {".", "get", "("}))
                lintArray(k, Kind::Long);
            else if (at(k).is("talux_doublearray") && areAt(k + 1, {".", "get", "("}))
                lintArray(k, Kind::Double);
            else if (isOwn(k) && layers.contains(at(k).text) && at(k + 1).is("."))
                lintLayer(k + 2);
            else if (at(k).is("while") || at(k).is("repeat"))
                lintLoop(k);
            else
                lintName(k);
        }
    }

    const LuaToken& at(std::size_t k) const { return tokens[std::min(k, tokens.size() - 1)]; }

    bool areAt(std::size_t k, std::initializer_list<std::string_view> words) const {
        return std::ranges::all_of(words, [&](std::string_view word) { return at(k++).is(word); });
    }

    template <class... Pieces>
    void say(std::size_t k, PatternFor<Pieces...> english, PatternFor<Pieces...> german,
             const Pieces&... pieces) {
        findings.add(at(k).at, context.say(english, german, pieces...));
    }

    // A name that is no field and no method.
    bool isOwn(std::size_t k) const {
        return at(k).isName() && (k == 0 || (!at(k - 1).is(".") && !at(k - 1).is(":")));
    }

    bool isCall(std::size_t k) const { return at(k + 1).is("(") || at(k + 1).isText(); }

    // "function talux_mine("
    bool isMade(std::size_t k) const { return k > 0 && at(k - 1).is("function"); }

    // "local ask = talux_command", "local t = require "talux""
    void rememberAlias(std::size_t k) {
        if (!at(k).is("local") || !at(k + 1).isName() || !at(k + 2).is("=")) return;
        const std::string& name = at(k + 1).text;
        if (at(k + 3).is("talux_command") && !isCall(k + 3)) aliases.insert(name);
        const LuaToken& module = at(at(k + 4).is("(") ? k + 5 : k + 4);
        if (at(k + 3).is("require") && module.isText() && module.text == "talux") layers.insert(name);
    }

    // The constant that begins at token k; nothing when what begins there is none.
    std::optional<Constant> constantAt(std::size_t k) const {
        const bool isFormat = areAt(k, {"string", ".", "format", "("});
        if (isFormat) k += 4;
        const bool isInBrackets = at(k).is("(") && at(k + 1).isText() && at(k + 2).is(")");
        if (isInBrackets) ++k;
        if (!at(k).isText()) return {};
        Constant constant{at(k)};
        k += isInBrackets ? 2 : 1;
        if (isFormat || areAt(k, {":", "format"})) {
            constant.text.resize(std::min(constant.text.find('%'), constant.text.size()));
            constant.isWhole = false;
            return constant;
        }
        for (; at(k).is("..") && at(k + 1).isText(); k += 2) {
            constant.text += at(k + 1).text;
            std::ranges::copy(at(k + 1).where, std::back_inserter(constant.where));
        }
        constant.isWhole = at(k).is(")") || at(k).is(",") || at(k).form != LuaToken::Form::sign;
        return constant;
    }

    // `k`: the "(" or the text itself. A text that is called without brackets is the whole argument.
    std::optional<Constant> argumentAt(std::size_t k) const {
        return at(k).isText() ? Constant{at(k)} : constantAt(k + 1);
    }

    void lintCommand(std::size_t k) {
        const auto constant = argumentAt(k);
        if (!constant) return;
        const auto positionOf = [&](std::size_t offset) {
            return offset < constant->where.size() ? constant->where[offset] : at(k).at;
        };
        if (const auto nul = constant->text.find('\0'); nul != std::string::npos)
            return findings.add(positionOf(nul), nulText(context));
        const LineAsked asked{.answerRoom = kLuaAnswerRoom, .isWhole = constant->isWhole};
        for (const LineFinding& finding : checkLine(constant->text, asked, context))
            findings.add(positionOf(finding.at), finding.text);
    }

    // talux_longarray.get(array, "TLX_name", first, last); `k`: the first word.
    void lintArray(std::size_t k, Kind wanted) {
        std::size_t argument = k + 4;
        if (!skipArgument(argument)) return;
        const auto constant = constantAt(argument);
        if (!constant || !constant->isWhole) return;
        const std::string_view text = constant->text;
        const Parameter* const parameter = text.size() > 4 ? reference::find(text.substr(4)) : nullptr;
        if (parameter == nullptr) return findings.add(at(argument).at, unknownName(text, context, "TLX_"));
        const std::string_view name = parameter->name();
        if (!parameter->isIndexed())
            return say(argument, "{} has no elements", "{} hat keine Elemente", name);
        if (parameter->type().kind != wanted)
            say(argument, "{} is {} and does not fit this kind of array",
                "{} ist {} und passt nicht in diese Art Feld", name, parameter->type().name);
        const int first = parameter->row().val_min_id, last = parameter->row().val_max_id;
        while (skipArgument(argument)) {
            const auto number = numberAt(argument);
            if (number && (*number < first || *number > last))
                say(argument, "elements of {} are {} to {}", "Elemente von {} sind {} bis {}", name, first,
                    last);
        }
    }

    // The layer takes "prio_list" for prio_list_1, prio_list_2, ..
    static bool isNameOrSeries(const std::string& name) {
        return !reference::named(name).empty() || !reference::named(name + "_").empty();
    }

    // A call of the layer; `k`: the function's name.
    void lintLayer(std::size_t k) {
        const std::string& function = at(k).text;
        const std::size_t argument = k + 1;
        if (!isCall(k) && !at(argument).is("{")) return;
        const bool takesName = isOneOf(kTakeNames, function);
        if (!takesName && !isOneOf(kOthers, function) && !isMade(k - 2))
            say(k, "talux has no function {}", "talux hat keine Funktion {}", function);
        if (function == "apply") lintTable(at(argument).is("(") ? argument + 1 : argument, {});
        const auto constant = takesName ? argumentAt(argument) : std::nullopt;
        if (!constant || !constant->isWhole) return;
        std::size_t value = argument + 1;
        if (!isNameOrSeries(constant->text))
            findings.add(constant->where.empty() ? at(argument).at : constant->where[0],
                         unknownName(constant->text, context));
        else if (function == "set" && skipArgument(value))
            lintValue(value, constant->text);
    }

    // {Uearth = 35, BAassign = {[3] = "qu2 ->F"}, ["Name"] = "x"}; `k`: the "{".
    void lintTable(std::size_t k, const std::string& series) {
        if (!at(k).is("{")) return;
        std::size_t entry = k + 1;
        do {
            const bool isKey = at(entry).is("[") && !at(entry + 1).isName() && areAt(entry + 2, {"]", "="});
            const bool isField = at(entry).isName() && at(entry + 1).is("=");
            if (!isKey && !isField) continue;
            const std::string& key = at(isKey ? entry + 1 : entry).text;
            lintValue(entry + (isKey ? 4 : 2), series.empty() ? key : fill("{}[{}]", {series, key}));
        } while (skipArgument(entry) && !at(entry).is("}"));
    }

    // A constant that talux.set or talux.apply is to write. `k`: where it begins.
    void lintValue(std::size_t k, const std::string& label) {
        if (at(k).is("{")) return lintTable(k, label);
        const bool isNegative = at(k).is("-"), isText = at(k).isText();
        const LuaToken& token = at(isNegative ? k + 1 : k);
        const LuaToken& next = at(isNegative ? k + 2 : k + 1);
        const bool isWhole = next.is(",") || next.is(")") || next.is("}") || next.is(";");
        const bool isFlag = token.is("true") || token.is("false");
        if (!isWhole || (token.form != LuaToken::Form::number && !isText && !isFlag)) return;
        const std::string text = isFlag ? (token.is("true") ? "1" : "0") : token.text;
        if (startsIgnoringCase(text, "0x")) return;
        Plan plan(context, false);
        plan.take(label, isNegative ? "-" + text : text);
        for (const std::string& refusal : plan.refusals())
            findings.add(at(k).at, refusal);
        for (const Write& write : plan.writes())
            for (const Implausible& found : findFaults({{write.parameter, write.to}}, context))
                findings.add(at(k).at, found.text);
        if (plan.refusals().empty() && isText && text.find_first_of(",=\"") != text.npos)
            say(k, "{}: a line carries no comma, equals sign or double quote",
                "{}: eine Zeile kann kein Komma, Gleichheitszeichen oder Anführungszeichen enthalten", label);
    }

    // "while true do" and "repeat .. until false" that nothing in them ends or holds up. `k`: the first word.
    void lintLoop(std::size_t k) {
        const bool isWhile = at(k).is("while"),
                   isTrue = at(k + 1).is("true") || at(k + 1).form == LuaToken::Form::number;
        if (isWhile && !(isTrue && at(k + 2).is("do"))) return;
        int depth = 0;
        for (std::size_t word = k + (isWhile ? 2 : 0); word + 1 < tokens.size(); ++word) {
            const LuaToken& token = at(word);
            if (token.isName() && isOneOf(kPauses, token.text)) return;
            if (token.is("do") || token.is("then") || token.is("function") || token.is("repeat")) ++depth;
            if (token.is("elseif") || token.is("end") || token.is("until"))
                --depth; // of elseif "then" follows
            if (depth > 0) continue;
            if (isWhile || (at(word + 1).is("false") && !at(word + 2).is("or")))
                say(k, "never ends and never pauses: talux.every and talux_usleep do",
                    "endet nie und macht keine Pause: talux.every und talux_usleep tun es");
            return;
        }
    }

    // A misspelt function of the module.
    void lintName(std::size_t k) {
        const std::string& name = at(k).text;
        if (isOwn(k) && isCall(k) && !isMade(k) && name.starts_with("talux_") &&
            name != "talux_getlasterror" && name != "talux_usleep")
            say(k, "the module has no function {}", "das Modul hat keine Funktion {}", name);
    }

    // Moves to what follows the next separator of the arguments or of the table; false when they end before.
    bool skipArgument(std::size_t& k) const {
        for (int depth = 0; k + 1 < tokens.size(); ++k) {
            if (at(k).is("(") || at(k).is("{") || at(k).is("[")) ++depth;
            if (at(k).is(")") || at(k).is("}") || at(k).is("]")) --depth;
            if (depth < 0) return false;
            if (depth == 0 && (at(k).is(",") || at(k).is(";"))) return ++k, true;
        }
        return false;
    }

    // A whole number that is the whole argument.
    std::optional<long> numberAt(std::size_t k) const {
        const bool isNegative = at(k).is("-");
        if (isNegative) ++k;
        if (at(k).form != LuaToken::Form::number || !(at(k + 1).is(",") || at(k + 1).is(")"))) return {};
        const auto number = wholeNumber(at(k).text);
        return number && isNegative ? -*number : number;
    }
};

// The Lua blocks of a page in Markdown, each at its own position; the rest is blank.
std::string luaBlocksOf(const std::string& page) {
    std::string blocks = page;
    bool isFenced = false, isLua = false;
    for (const std::string_view line : linesOf(page)) {
        const std::string_view text = kepl::withoutLeading(line, ' ');
        const bool isFence =
            text.starts_with("```") && (!isFenced || text.find_first_not_of("` \r") == text.npos);
        if (isFence) {
            isLua = !isFenced && text.substr(3, 3) == "lua";
            isFenced = !isFenced;
        }
        if (isFence || !isLua) std::fill_n(blocks.begin() + (line.data() - page.data()), line.size(), ' ');
    }
    return blocks;
}

// ---- Command ----------------------------------------------------------------------------------------------

// The scripts in a folder and below; any other path is itself.
std::vector<std::string> scriptsIn(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code error;
    if (!fs::is_directory(path, error)) return {path};
    std::vector<std::string> scripts;
    for (fs::recursive_directory_iterator entry(path, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string ending = entry->path().extension();
        if (ending == ".lua" || ending == ".kepl" || ending == ".md") scripts.push_back(entry->path());
    }
    std::ranges::sort(scripts);
    if (error || scripts.empty()) scripts.push_back(path); // which says why
    return scripts;
}

Status lintFile(const std::string& path, const Options& options, const Context& context) {
    const std::string script = contentsOf(path, context);
    Findings findings(printable(path), script);
    const bool isPage = path.ends_with(".md");
    if (isPage || path.ends_with(".lua"))
        LuaLint{luaTokens(isPage ? luaBlocksOf(script) : script), findings, context}.run();
    else
        lintKepl(script, options, findings, context);
    findings.finish(context);
    return findings.empty() ? kNothing : kFound;
}

Status run(const Options& options, const Context& context) {
    std::vector<std::string> scripts;
    for (const std::string& path : options.files)
        std::ranges::move(scriptsIn(path), std::back_inserter(scripts));
    return forEachFile(scripts, [&](const std::string& path) { return lintFile(path, options, context); });
}

} // namespace

void addLint(CommandLine& line) {
    const auto [command, options] = line.add("lint", run,
                                             {"check every line of a script without running it",
                                              "jede Zeile eines Skripts prüfen, ohne es auszuführen"});
    command.argument(
        {"FILE", "DATEI"}, options.files,
        {"scripts or folders with scripts; *.lua is Lua, *.md is read for its Lua blocks, all others "
         "are lines of KEPL",
         "Skripte oder Ordner mit Skripten; *.lua ist Lua, aus *.md werden die Lua-Blöcke gelesen, alles "
         "andere sind KEPL-Zeilen"});
    command.option("--level", options.level,
                   {"rights level of KEPL lines, 0 to 3; 3 if not given",
                    "Rechtestufe der KEPL-Zeilen, 0 bis 3; sonst 3"},
                   0, 3);
    command.isPaged = true;
}

} // namespace talux::tool
