// talux lint: every line of a KEPL or Lua script looked at without running it.
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <optional>
#include <set>
#include <system_error>

#include "support/Text.h"
#include "tools/talux/Command.h"
#include "tools/talux/Files.h"
#include "tools/talux/LineCheck.h"
#include "tools/talux/Lookup.h"
#include "tools/talux/LuaTokens.h"
#include "tools/talux/Plausibility.h"
#include "tools/talux/Show.h"
#include "tools/talux/Text.h"
#include "tools/talux/change/Plan.h"

namespace talux::tool {

namespace {

constexpr std::size_t kLuaAnswerRoom = 998; // of talux_command
constexpr std::size_t kMostFindings = 1000;

struct Options {
    std::vector<std::string> files;
    int level = 3;
};

// Says FILE:LINE:COLUMN: finding.
class Findings {
public:
    Findings(std::string fileName, std::string_view contents) : name(std::move(fileName)), script(contents) {}

    void add(std::size_t at, const std::string& text) {
        if (isFull()) return;
        ++count;
        moveTo(std::min(at, script.size()));
        print(fill("{}:{}:{}: {}\n",
                   {name, std::to_string(line), std::to_string(place - lineStart + 1), text}));
    }

    // There is no use in looking for more.
    bool isFull() const { return count >= kMostFindings; }

    void finish(const Context& context) const {
        if (isFull())
            print(fill(context.say("{}: {} findings are listed, further ones are not searched for\n",
                                   "{}: {} Befunde sind genannt, weitere nicht gesucht\n"),
                       {name, std::to_string(count)}));
    }

    bool empty() const { return count == 0; }

private:
    const std::string name;
    const std::string_view script;
    std::size_t count = 0;
    std::size_t place = 0, line = 1, lineStart = 0; // of the finding that was told last

    void moveTo(std::size_t at) {
        if (at < lineStart) place = lineStart = 0, line = 1;
        for (; place < at; ++place)
            if (script[place] == '\n') ++line, lineStart = place + 1;
        place = at;
    }
};

// ---- Files of the command language ------------------------------------------------------------------------

void lintKepl(std::string_view script, const Options& options, Findings& findings, const Context& context) {
    for (std::size_t start = 0; start < script.size() && !findings.isFull();) {
        const std::size_t end = std::min(script.find('\n', start), script.size());
        std::string_view line = script.substr(start, end - start);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.find('\0') != line.npos)
            findings.add(start, context.say("holds a NUL character: the line is refused whole",
                                            "enthält ein NUL-Zeichen: die Zeile wird ganz abgelehnt"));
        else if (!line.starts_with('#'))
            for (const LineFinding& finding : checkLine(line, {.uid = options.level}, context))
                findings.add(start + finding.at, finding.text);
        start = end + 1;
    }
}

// ---- Lua --------------------------------------------------------------------------------------------------

// A text argument as far as it is constant.
struct Constant {
    std::string text;
    std::vector<std::uint32_t> where;
    bool isWhole = true;
};

class LuaLint {
public:
    LuaLint(std::string_view script, Findings& told, const Context& person)
        : tokens(luaTokens(script)), findings(told), context(person) {}

    void run() {
        for (std::size_t k = 0; k + 1 < tokens.size() && !findings.isFull(); ++k) {
            rememberAlias(k);
            if (isCommand(k))
                lintCommand(k + 1);
            else if (isArrayGet(k))
                lintArray(k + 3, tokens[k].text);
            else if (isName(k) && layers.contains(at(k).text) && isOwn(k) && at(k + 1).is("."))
                lintLayer(k + 2);
            else if (at(k).is("while") || at(k).is("repeat"))
                lintLoop(k);
            else
                lintName(k);
        }
    }

private:
    const std::deque<LuaToken> tokens;
    Findings& findings;
    const Context& context;
    std::set<std::string> aliases{"talux_command"}, layers{"talux"};

    const LuaToken& at(std::size_t k) const { return tokens[std::min(k, tokens.size() - 1)]; }
    bool isText(std::size_t k) const { return at(k).kind == LuaToken::Kind::text; }
    bool isName(std::size_t k) const { return at(k).kind == LuaToken::Kind::name; }

    // A field or a method of the same name is another function.
    bool isOwn(std::size_t k) const { return k == 0 || (!at(k - 1).is(".") && !at(k - 1).is(":")); }

    // "local ask = talux_command", "local t = require "talux""
    void rememberAlias(std::size_t k) {
        if (!at(k).is("local") || !isName(k + 1) || !at(k + 2).is("=")) return;
        const std::string& name = at(k + 1).text;
        if (at(k + 3).is("talux_command") && !at(k + 4).is("(") && !isText(k + 4)) aliases.insert(name);
        const LuaToken& module = at(at(k + 4).is("(") ? k + 5 : k + 4);
        if (at(k + 3).is("require") && module.kind == LuaToken::Kind::text && module.text == "talux")
            layers.insert(name);
    }

    bool isCommand(std::size_t k) const {
        const bool isCall = at(k + 1).is("(") || isText(k + 1);
        return isName(k) && aliases.contains(at(k).text) && isOwn(k) && isCall;
    }

    bool isArrayGet(std::size_t k) const {
        return (at(k).is("talux_longarray") || at(k).is("talux_doublearray")) && at(k + 1).is(".") &&
               at(k + 2).is("get") && at(k + 3).is("(");
    }

    // The constant that begins at token k, which is behind a "(" or a text in its place; nothing when what
    // begins there is no constant.
    std::optional<Constant> constantAt(std::size_t k) const {
        bool isFormat = false;
        if (at(k).is("string") && at(k + 1).is(".") && at(k + 2).is("format") && at(k + 3).is("(")) {
            k += 4;
            isFormat = true;
        }
        const bool isInBrackets = at(k).is("(") && isText(k + 1) && at(k + 2).is(")");
        if (isInBrackets) ++k;
        if (!isText(k)) return {};
        Constant constant{at(k).text, at(k).where, true};
        k += isInBrackets ? 2 : 1;
        if (isFormat || (at(k).is(":") && at(k + 1).is("format"))) return headOfFormat(std::move(constant));
        while (at(k).is("..") && isText(k + 1)) {
            constant.text += at(k + 1).text;
            constant.where.insert(constant.where.end(), at(k + 1).where.begin(), at(k + 1).where.end());
            k += 2;
        }
        constant.isWhole = at(k).is(")") || at(k).is(",") || !isSign(k);
        return constant;
    }

    bool isSign(std::size_t k) const { return at(k).kind == LuaToken::Kind::sign; }

    // Up to the first "%" that stands for something.
    static Constant headOfFormat(Constant constant) {
        const std::size_t gap = constant.text.find('%');
        constant.isWhole = false;
        constant.text.resize(std::min(gap, constant.text.size()));
        return constant;
    }

    // `k`: the "(" or the text itself. A text that is called without brackets is the whole argument.
    std::optional<Constant> argumentAt(std::size_t k) const {
        if (isText(k)) return Constant{at(k).text, at(k).where, true};
        return constantAt(k + 1);
    }

    void lintCommand(std::size_t k) {
        const auto constant = argumentAt(k);
        if (!constant) return;
        const auto place = [&](std::size_t offset) {
            return offset < constant->where.size() ? constant->where[offset] : at(k).at;
        };
        if (const auto nul = constant->text.find('\0'); nul != std::string::npos) {
            findings.add(place(nul), context.say("holds a NUL character: the line is refused whole",
                                                 "enthält ein NUL-Zeichen: die Zeile wird ganz abgelehnt"));
            return;
        }
        const LineAsked asked{.answerRoom = kLuaAnswerRoom, .isWhole = constant->isWhole};
        for (const LineFinding& finding : checkLine(constant->text, asked, context))
            findings.add(place(finding.at), finding.text);
    }

    // talux_longarray.get(array, "TLX_name", first, last); `k`: the "(".
    void lintArray(std::size_t k, std::string_view table) {
        std::size_t argument = k + 1;
        if (!skipArgument(argument)) return;
        const auto constant = constantAt(argument);
        if (!constant || !constant->isWhole) return;
        const std::size_t place = at(argument).at;
        const std::string_view name = constant->text;
        const Parameter* const parameter = name.size() > 4 ? reference::find(name.substr(4)) : nullptr;
        if (parameter == nullptr || parameter->isTemplate()) {
            findings.add(place, unknownName(name, context, "TLX_"));
            return;
        }
        lintElements(argument, *parameter, table == "talux_longarray" ? Kind::Long : Kind::Double);
    }

    void lintElements(std::size_t argument, const Parameter& parameter, Kind wanted) {
        const std::string name(parameter.name());
        if (!parameter.isIndexed()) {
            findings.add(at(argument).at,
                         fill(context.say("{} has no elements", "{} hat keine Elemente"), {name}));
            return;
        }
        if (parameter.type().kind != wanted)
            findings.add(at(argument).at, fill(context.say("{} is {} and does not fit this kind of array",
                                                           "{} ist {} und passt nicht in diese Art Feld"),
                                               {name, parameter.type().name}));
        while (skipArgument(argument)) {
            const auto number = numberAt(argument);
            if (number && (*number < parameter.row().val_min_id || *number > parameter.row().val_max_id))
                findings.add(at(argument).at, fill(context.say("elements of {} are {} to {}",
                                                               "Elemente von {} sind {} bis {}"),
                                                   {name, std::to_string(parameter.row().val_min_id),
                                                    std::to_string(parameter.row().val_max_id)}));
        }
    }

    // The layer takes "prio_list" for prio_list_1, prio_list_2, ..
    static bool isNameOrSeries(const std::string& name) {
        return !named(name).empty() || !named(name + "_").empty();
    }

    // A call of the layer; `k`: the function's name.
    void lintLayer(std::size_t k) {
        constexpr std::string_view kNamed[] = {"get", "set", "record", "parameter"};
        constexpr std::string_view kOthers[] = {"try",         "apply",   "update",   "save",     "save_sec",
                                                "save_ip",     "load",    "load_ip",  "load_sec", "read",
                                                "differences", "changed", "protocol", "now",      "wait",
                                                "alive",       "every"};
        const std::string& function = at(k).text;
        const std::size_t argument = k + 1;
        if (!at(argument).is("(") && !at(argument).is("{") && !isText(argument)) return;
        const bool takesName = std::ranges::find(kNamed, function) != std::end(kNamed);
        if (!takesName && std::ranges::find(kOthers, function) == std::end(kOthers) && !isMade(k - 2))
            findings.add(
                at(k).at,
                fill(context.say("talux has no function {}", "talux hat keine Funktion {}"), {function}));
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

    // "function talux_mine(", "talux_mine = .."
    bool isMade(std::size_t k) const { return k > 0 && at(k - 1).is("function"); }

    // {Uearth = 35, BAassign = {[3] = "qu2 ->F"}, ["Name"] = "x"}; `k`: the "{".
    void lintTable(std::size_t k, const std::string& series) {
        if (!at(k).is("{")) return;
        std::size_t entry = k + 1;
        do {
            const bool isKey = at(entry).is("[") && at(entry + 2).is("]") && at(entry + 3).is("=");
            const bool isField = isName(entry) && at(entry + 1).is("=");
            if (!isKey && !isField) continue;
            const std::string& key = at(isKey ? entry + 1 : entry).text;
            if (isKey && isName(entry + 1)) continue; // [x] = ..
            lintValue(entry + (isKey ? 4 : 2), series.empty() ? key : fill("{}[{}]", {series, key}));
        } while (skipArgument(entry) && !at(entry).is("}"));
    }

    // A constant that talux.set or talux.apply is to write. `k`: where it begins.
    void lintValue(std::size_t k, const std::string& label) {
        if (at(k).is("{")) return lintTable(k, label);
        const bool isNegative = at(k).is("-");
        const LuaToken& token = at(isNegative ? k + 1 : k);
        const LuaToken& next = at(isNegative ? k + 2 : k + 1);
        const bool isWhole = next.is(",") || next.is(")") || next.is("}") || next.is(";");
        const bool isFlag = token.is("true") || token.is("false");
        if (!isWhole || (token.kind != LuaToken::Kind::number && !isText(k) && !isFlag)) return;
        const std::string text = isFlag ? (token.is("true") ? "1" : "0") : token.text;
        if (text.starts_with("0x") || text.starts_with("0X")) return;
        Plan plan(context, false);
        plan.take(label, isNegative ? "-" + text : text);
        for (const std::string& refusal : plan.refusals())
            findings.add(at(k).at, refusal);
        for (const Write& write : plan.writes())
            findFaults({{write.parameter, write.to}}, context,
                       [&](const Implausible& found) { findings.add(at(k).at, found.text); });
        if (plan.refusals().empty() && isText(k) && text.find_first_of(",=\"") != text.npos)
            findings.add(at(k).at,
                         fill(context.say("{}: a line carries no comma, equals sign or double quote",
                                          "{}: eine Zeile kann kein Komma, Gleichheitszeichen "
                                          "oder Anführungszeichen enthalten"),
                              {label}));
    }

    // "while true do" and "repeat .. until false" that nothing in them ends or holds up. `k`: the first word.
    void lintLoop(std::size_t k) {
        const bool isWhile = at(k).is("while");
        if (isWhile &&
            !((at(k + 1).is("true") || at(k + 1).kind == LuaToken::Kind::number) && at(k + 2).is("do")))
            return;
        constexpr std::string_view kEnds[] = {"break", "return", "goto",  "error", "exit",         "assert",
                                              "every", "wait",   "yield", "read",  "talux_usleep", "sleep"};
        int depth = 0;
        for (std::size_t word = k + (isWhile ? 2 : 0); word + 1 < tokens.size(); ++word) {
            const LuaToken& token = at(word);
            if (std::ranges::find(kEnds, token.text) != std::end(kEnds) && isName(word)) return;
            if (token.is("do") || token.is("then") || token.is("function") || token.is("repeat")) ++depth;
            if (token.is("elseif")) --depth; // its "then" follows
            if (token.is("end") || token.is("until")) --depth;
            if (depth > 0) continue;
            if (isWhile || at(word + 1).is("false"))
                findings.add(at(k).at,
                             context.say("never ends and never pauses: talux.every and talux_usleep do",
                                         "endet nie und macht keine Pause: talux.every und "
                                         "talux_usleep tun es"));
            return;
        }
    }

    // A misspelt function of the module.
    void lintName(std::size_t k) {
        const std::string& name = at(k).text;
        const bool isCall = isName(k) && (at(k + 1).is("(") || isText(k + 1)) && isOwn(k) && !isMade(k);
        if (isCall && name.starts_with("talux_") && name != "talux_getlasterror" && name != "talux_usleep" &&
            !aliases.contains(name))
            findings.add(at(k).at,
                         fill(context.say("the module has no function {}", "das Modul hat keine Funktion {}"),
                              {name}));
    }

    // Moves behind the next comma of the argument list; false when the list ends before.
    bool skipArgument(std::size_t& k) const {
        for (int depth = 0; k + 1 < tokens.size(); ++k) {
            if (at(k).is("(") || at(k).is("{") || at(k).is("[")) ++depth;
            if (at(k).is(")") || at(k).is("}") || at(k).is("]")) --depth;
            if (depth < 0) return false;
            if (depth == 0 && at(k).is(",")) {
                ++k;
                return true;
            }
        }
        return false;
    }

    // A whole number that is the whole argument.
    std::optional<long> numberAt(std::size_t k) const {
        const bool isNegative = at(k).is("-");
        if (isNegative) ++k;
        if (at(k).kind != LuaToken::Kind::number || !(at(k + 1).is(",") || at(k + 1).is(")"))) return {};
        const std::string& digits = at(k).text;
        long number = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        if (error != std::errc() || end != digits.data() + digits.size()) return {};
        return isNegative ? -number : number;
    }
};

// What stands in the Lua blocks of a page in Markdown, at its own place; the rest is blank.
std::string luaBlocksOf(std::string_view page) {
    std::string blocks(page);
    bool isFenced = false, isLua = false;
    for (std::size_t start = 0; start < page.size();) {
        const std::size_t end = std::min(page.find('\n', start), page.size());
        const std::string_view line = page.substr(start, end - start);
        const std::string_view text = kepl::withoutLeading(line, ' ');
        const bool isFence = text.starts_with("```");
        if (isFence) {
            isLua = !isFenced && text.substr(3, 3) == "lua";
            isFenced = !isFenced;
        }
        if (isFence || !isLua)
            std::fill_n(blocks.begin() + static_cast<std::ptrdiff_t>(start), line.size(), ' ');
        start = end + 1;
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
    if (path.ends_with(".md"))
        LuaLint(luaBlocksOf(script), findings, context).run();
    else if (path.ends_with(".lua"))
        LuaLint(script, findings, context).run();
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
