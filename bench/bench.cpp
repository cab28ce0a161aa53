// What the usual operations cost, from C++ and from Lua, as one table.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <lua.hpp>
#include <map>
#include <string>
#include <vector>

#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/TALUX_Var.h"
#include "src/lib_talux_lua.h"
#include "src/talux_interpreter.h"

namespace {

void noOutput(char* /*buffer*/, int /*buffered*/) {}

[[noreturn]] void fail(const std::string& what) {
    std::fprintf(stderr, "talux_bench: %s\n", what.c_str());
    std::exit(1);
}

double evaluate(std::string line) {
    static char answer[TALUX_ANSWER_SIZE], terminator[] = "";
    if (talux_interpreter_ProcessLine(line.data(), noOutput, answer, terminator) != 1) fail(line + " failed");
    return std::strtod(answer, nullptr);
}

lua_State* lua() {
    static lua_State* const L = [] {
        lua_State* const state = luaL_newstate();
        luaL_openlibs(state);
        luaopen_lib_talux_lua(state);
        return state;
    }();
    return L;
}

// The code runs in a loop inside Lua, so that crossing over is paid once in a batch.
void runLua(benchmark::State& state, const std::string& preparation, const std::string& body, int batch) {
    lua_State* const L = lua();
    const std::string chunk = preparation + " return function(n) for i = 1, n do " + body + " end end";
    if (luaL_dostring(L, chunk.c_str()) != 0) fail(lua_tostring(L, -1));
    while (state.KeepRunningBatch(batch)) {
        lua_pushvalue(L, -1);
        lua_pushinteger(L, batch);
        if (lua_pcall(L, 1, 0, 0) != 0) fail(lua_tostring(L, -1));
    }
    lua_settop(L, 0);
}

template <typename Operation>
void addPair(const std::string& name, Operation operation, const std::string& preparation,
             const std::string& body, int batch = 100) {
    benchmark::RegisterBenchmark((name + "/C++").c_str(), [operation](benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state)
            operation();
    });
    benchmark::RegisterBenchmark((name + "/Lua").c_str(),
                                 [=](benchmark::State& state) { runLua(state, preparation, body, batch); });
}

void addLine(const std::string& name, const std::string& line, int batch = 100) {
    addPair(
        name, [line] { evaluate(line); }, "", "talux_command '" + line + "'", batch);
}

// A whole indexed parameter: in one call, and element by element.
template <typename Element, void (*read)(int, Element*, unsigned long)>
void addArray(const std::string& parameter, int count, const std::string& kind) {
    const std::string size = std::to_string(count), what = parameter + " 1.." + size;
    addPair(
        what + ", one call",
        [=] {
            static std::vector<Element> values(static_cast<std::size_t>(count));
            read(GetParamPropertiesByName(const_cast<char*>(parameter.c_str()))->id, values.data(),
                 static_cast<unsigned long>(count));
            benchmark::DoNotOptimize(values.data());
        },
        "local get, array = talux_" + kind + "array.get, talux_" + kind + "array.new(" + size + ")",
        "get(array, 'TLX_" + parameter + "', 1, " + size + ")");
    addPair(
        what + ", each by a line",
        [=] {
            for (int i = 1; i <= count; ++i)
                benchmark::DoNotOptimize(evaluate("TLX_" + parameter + " " + std::to_string(i)));
        },
        "local values = {}",
        "for k = 1, " + size + " do values[k] = tonumber(talux_command('TLX_" + parameter + " ' .. k)) end",
        1);
}

// ---- Start-up -----------------------------------------------------------------------------------------

std::string startUpScript;

struct StartUp {
    double seconds = 0;
    double bytes = 0;
};

StartUp startUp() {
    FILE* const pipe = popen(("lua5.2 " + startUpScript).c_str(), "r"); // NOLINT(cert-env33-c)
    char line[64], *end = line;
    if (pipe == nullptr || std::fgets(line, sizeof line, pipe) == nullptr)
        fail("lua5.2 does not start the module");
    StartUp cost;
    cost.seconds = std::strtod(line, &end);
    cost.bytes = std::strtod(end, nullptr);
    pclose(pipe);
    return cost;
}

void measureStartUp(benchmark::State& state) {
    double bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        const StartUp cost = startUp();
        state.SetIterationTime(cost.seconds);
        bytes += cost.bytes;
    }
    state.counters["private"] = benchmark::Counter(bytes, benchmark::Counter::kAvgIterations);
}

// ---- The table ----------------------------------------------------------------------------------------

std::string inUnits(double value, const std::vector<const char*>& units) {
    std::size_t unit = 0;
    for (; value >= 1000 && unit + 1 < units.size(); ++unit)
        value /= 1000;
    char text[32];
    std::snprintf(text, sizeof text, "%.*f %s", value < 10 ? 2 : value < 100 ? 1 : 0, value, units[unit]);
    return text;
}

// One row for each operation, one column for each language.
class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            add(run);
        std::fputc('.', stderr);
    }

    void Finalize() override {
        std::fputc('\n', stderr);
        std::printf("%-36s %12s %12s\n", "", "C++", "Lua");
        for (const std::string& name : order)
            std::printf("%-36s %12s %12s\n", name.c_str(), cells[name]["C++"].c_str(),
                        cells[name]["Lua"].c_str());
    }

private:
    std::vector<std::string> order;
    std::map<std::string, std::map<std::string, std::string>> cells;

    void set(const std::string& name, const std::string& language, const std::string& text) {
        if (cells.count(name) == 0) order.push_back(name);
        cells[name][language] = text;
    }

    void add(const Run& run) {
        const std::string name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        set(name.substr(0, slash), name.substr(slash + 1),
            inUnits(run.GetAdjustedRealTime() * 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit),
                    {"ns", "us", "ms", "s"}));
        const auto memory = run.counters.find("private");
        if (memory != run.counters.end())
            set("its private memory", "Lua", inUnits(memory->second.value, {"B", "kB", "MB"}));
    }
};

} // namespace

int main(int argc, char** argv) {
    talux_interpreter_Init();
    VarSetDefault();
    VarUpdateGlobalSpace();

    addLine("compute: 1,2,+", "1,2,+");
    addLine("read: TLX_U1_prim", "TLX_U1_prim");
    addLine("read a text: TLX_Name", "TLX_Name");
    addLine("read a record: TLX_MessRecord02", "TLX_MessRecord02 -c");
    addLine("write: TLX_Uearth=35", "TLX_Uearth=35");
    addArray<VarLong, VarGetGlobalLongValueArray>("conman_status", 247, "long");
    addArray<double, VarGetGlobalDoubleValueArray>("vMWR", 96, "double");
    addLine("commit: update", "update", 10);
    addLine("save", "save", 1);
    addLine("load", "load", 1);
    benchmark::RegisterBenchmark("require to return/Lua", measureStartUp)->UseManualTime()->Iterations(25);

    benchmark::Initialize(&argc, argv);
    if (argc != 2) fail("usage: talux_bench [GOOGLE-BENCHMARK-OPTION..] STARTUP.lua");
    startUpScript = argv[1];
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return 0;
}
