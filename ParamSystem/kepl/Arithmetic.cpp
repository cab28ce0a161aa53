#include "ParamSystem/kepl/Arithmetic.h"

#include <cmath>
#include <numbers>

#include "ParamSystem/TALUX_Funcs.h"
#include "ParamSystem/TALUX_Params.h"
#include "ParamSystem/kepl/ValueType.h"

namespace talux::kepl {

namespace {

// Replaces the two upper values by their result.
template <typename Operation>
Flow binary(Line& line, Operation operation) {
    if (line.iSP < 2) return line.fail(refuse(szSyntaxError));
    const int right = --line.iSP;
    const int left = right - 1;
    line.adStack[left] = operation(line.adStack[left], line.adStack[right]);
    line.aiType[left] = promoted(line.aiType[left], line.aiType[right]);
    return kNextTerm;
}

// Replaces the top value by its image.
template <typename Function>
Flow function(Line& line, Function image) {
    if (line.iSP < 1) return line.fail(refuse(szSyntaxError));
    double& top = line.adStack[line.iSP - 1];
    top = image(top);
    line.aiType[line.iSP - 1] = kTypeDouble;
    return kNextTerm;
}

} // namespace

Flow add(Line& line) {
    return binary(line, [](double left, double right) { return left + right; });
}

Flow subtract(Line& line) {
    return binary(line, [](double left, double right) { return left - right; });
}

Flow multiply(Line& line) {
    return binary(line, [](double left, double right) { return left * right; });
}

Flow divide(Line& line) {
    if (line.iSP >= 2 && line.adStack[line.iSP - 1] == 0.0) return line.fail(refuse(kDivisionByZero));
    return binary(line, [](double left, double right) { return left / right; });
}

Flow sine(Line& line) {
    return function(line, [](double x) { return std::sin(x); });
}

Flow cosine(Line& line) {
    return function(line, [](double x) { return std::cos(x); });
}

Flow tangent(Line& line) {
    return function(line, [](double x) { return std::tan(x); });
}

Flow toDegrees(Line& line) {
    return function(line, [](double x) { return x / std::numbers::pi * 180.0; });
}

Flow toRadians(Line& line) {
    return function(line, [](double x) { return x / 180.0 * std::numbers::pi; });
}

Flow square(Line& line) {
    return function(line, [](double x) { return x * x; });
}

Flow squareRoot(Line& line) {
    if (line.iSP >= 1 && line.adStack[line.iSP - 1] < 0.0) return line.fail(refuse(kNegativeRoot));
    return function(line, [](double x) { return std::sqrt(x); });
}

Flow number(Line& line) {
    double value = 0.0;
    if (MakeDouble(line.szToken, &value) != 1) return line.fail(refuse(szSyntaxError));
    return line.push(value, kTypeDouble);
}

} // namespace talux::kepl
