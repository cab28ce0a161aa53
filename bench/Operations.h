// The operations that are measured, each from C++ and from Lua, beside the bare work.
#ifndef TALUX_BENCH_OPERATIONS_H
#define TALUX_BENCH_OPERATIONS_H

#include <functional>
#include <string>
#include <vector>

namespace bench {

// One way of doing an operation. Calls run it a number of times; the loop of Lua code lies inside Lua, so
// that crossing over is paid once.
struct Way {
    std::string name; // "C++", "Lua", "bare C++", "bare Lua"
    std::function<void(int)> run;
};

struct Operation {
    std::string name;
    std::vector<Way> ways;
    std::string judged;  // the way that is held against its bare one, or against another operation's way
    std::string against; // "bare Lua", or the name of an operation
    double goal;         // the largest ratio of the two; 0: shown, not judged
    int batch;           // runs of a measurement of instructions
};

// Prepares the store and Lua; the module is loaded, factory defaults are live, /parameter.ini exists.
std::vector<Operation> operations();

[[noreturn]] void fail(const std::string& what);

} // namespace bench

#endif
