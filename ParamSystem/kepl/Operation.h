// The operations on the value stack.
#ifndef TALUX_KEPL_OPERATION_H
#define TALUX_KEPL_OPERATION_H

#include <cmath>
#include <numbers>
#include <string_view>

#include "support/EnumRows.h"

namespace talux::kepl {

enum class Operation : unsigned char {
    add,
    subtract,
    multiply,
    divide,
    sine,
    cosine,
    tangent,
    toDegrees,
    toRadians,
    square,
    squareRoot,
};

struct OperationRow {
    Operation operation;
    std::string_view word;                       // a term that is the word; letter case does not count
    int operands;                                // values that it takes from the stack; it leaves one
    double (*result)(double left, double right); // of one operand, which is `right`
};

inline constexpr OperationRow kOperations[] = {
    {Operation::add, "+", 2, [](double left, double right) { return left + right; }},
    {Operation::subtract, "-", 2, [](double left, double right) { return left - right; }},
    {Operation::multiply, "*", 2, [](double left, double right) { return left * right; }},
    {Operation::divide, "/", 2, [](double left, double right) { return left / right; }},
    {Operation::sine, "sin", 1, [](double, double x) { return std::sin(x); }},
    {Operation::cosine, "cos", 1, [](double, double x) { return std::cos(x); }},
    {Operation::tangent, "tan", 1, [](double, double x) { return std::tan(x); }},
    {Operation::toDegrees, "deg", 1, [](double, double x) { return x / std::numbers::pi * 180.0; }},
    {Operation::toRadians, "rad", 1, [](double, double x) { return x / 180.0 * std::numbers::pi; }},
    {Operation::square, "sqr", 1, [](double, double x) { return x * x; }},
    {Operation::squareRoot, "sqrt", 1, [](double, double x) { return std::sqrt(x); }},
};
static_assert(hasRowForEach<&OperationRow::operation>(kOperations),
              "each enumerator has its row, in the same order");

} // namespace talux::kepl

#endif
