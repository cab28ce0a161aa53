// talux annotations: a Lua file for editors with language servers, which then know the functions of the
// module and every parameter.
#include "tools/talux/Show.h"

namespace talux::tool {

namespace {

constexpr const char* kFunctions = R"lua(---@meta lib_talux_lua
-- Made by `talux annotations`: what an editor with a Lua language server needs to know of the module.

---Evaluates a line of KEPL with all rights and gives its answer.
---@param line talux.term|string terms with commas between them, at most 254 characters
---@return string answer of the line, or the text of the refusal, which begins with "<< "
function talux_command(line) end

---Why the last call of talux_longarray.get or talux_doublearray.get read nothing.
---@return string
function talux_getlasterror() end

---Waits.
---@param microseconds number
function talux_usleep(microseconds) end
)lua";

constexpr const char* kArray = R"lua(
---@class talux.ARRAY: userdata

talux_ARRAY = {}

---A new array of n elements, all 0.
---@param n integer
---@return talux.ARRAY
function talux_ARRAY.new(n) end

---Number of elements.
---@param array talux.ARRAY
---@return integer
function talux_ARRAY.size(array) end

---Element i, counted from 0.
---@param array talux.ARRAY
---@param i integer
---@return number
function talux_ARRAY.getitem(array, i) end

---Sets element i, counted from 0.
---@param array talux.ARRAY
---@param i integer
---@param value number
function talux_ARRAY.setitem(array, i, value) end

---Copies the live elements first to last of a parameter into the array.
---@param array talux.ARRAY
---@param name talux.ARRAY.name|string
---@param first integer
---@param last integer
---@return integer? count of elements, nothing when they could not be read
function talux_ARRAY.get(array, name, first, last) end
)lua";

std::string arrayFunctions(std::string_view name) {
    constexpr std::string_view kName = "ARRAY";
    std::string text = kArray;
    for (std::size_t at = 0; (at = text.find(kName, at)) != text.npos;)
        text.replace(at, kName.size(), name);
    return text;
}

// The layer annotates itself; with this an editor knows the names that its functions take.
constexpr const char* kLayer = R"lua(
---@class talux
---@field get fun(name: talux.name|string, first?: integer, last?: integer): any
---@field set fun(name: talux.name|string, value: any)
---@field apply fun(settings: talux.settings|table<string, any>): talux.Change[]
---@field parameter fun(name: talux.name|string, language?: "de"|"en"): talux.Parameter
)lua";

// What a name means: title, unit, range, elements; the texts of a few choices.
std::string remarkOn(const Parameter& parameter, const Context& context) {
    std::string text = parameter.title(context.language);
    for (const std::string& part : {unitOf(parameter), rangeText(parameter, context.language),
                                    parameter.isIndexed() ? elementsText(parameter, context) : ""})
        if (!part.empty()) text += ", " + part;
    const auto choices = parameter.choices(context.language);
    if (!choices.empty() && choices.size() <= 6)
        text += ": " + list(choices, ", ", [](const reference::Choice& choice) {
                    return fill("{} = {}", {std::to_string(choice.number), choice.text});
                });
    const std::string more = parameter.description(context.language);
    return more.empty() ? text : fill("{}. {}", {text, more});
}

std::string names(const char* alias, const char* prefix, const Context& context,
                  const std::function<bool(const Parameter&)>& wanted) {
    std::string text = fill("\n---@alias {}\n", {alias});
    for (const Parameter* parameter : reference::chosen(wanted))
        text += fill("---| \"{}{}\" # {}\n", {prefix, parameter->name(), remarkOn(*parameter, context)});
    return text;
}

const char* luaTypeOf(const Parameter& parameter) {
    if (parameter.isIndexed()) return "table<integer, number>";
    if (!parameter.hasNumber()) return "string";
    if (parameter.type().kind == Kind::Bool) return "boolean|0|1";
    return parameter.type().kind == Kind::Enum ? "integer|string" : "number";
}

// The table that talux.apply takes.
std::string settings(const Context& context) {
    std::string text = "\n---@class talux.settings\n";
    for (const Parameter& parameter : reference::parameters())
        if (!parameter.isTemplate() && parameter.writeLevel() > 0)
            text += fill("---@field [\"{}\"]? {} # {}\n",
                         {parameter.name(), luaTypeOf(parameter), remarkOn(parameter, context)});
    return text;
}

Status run(const Context& context) {
    const auto hasElements = [](Kind kind) {
        return [kind](const Parameter& parameter) {
            return parameter.isIndexed() && parameter.type().kind == kind;
        };
    };
    const auto every = [](const Parameter&) { return true; };
    print(kFunctions + arrayFunctions("longarray") + arrayFunctions("doublearray") + kLayer +
          names("talux.longarray.name", "TLX_", context, hasElements(Kind::Long)) +
          names("talux.doublearray.name", "TLX_", context, hasElements(Kind::Double)) +
          names("talux.term", "TLX_", context, every) + names("talux.name", "", context, every) +
          settings(context));
    return kNothing;
}

} // namespace

void addAnnotations(CommandLine& line) {
    line.add("annotations", run,
             {"a Lua file with functions and names for editors",
              "Lua-Datei mit Funktionen und Namen für Editoren"});
}

} // namespace talux::tool
