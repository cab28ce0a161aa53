// The operations on the value stack.
#include <cmath>
#include <numbers>

#include "ParamSystem/kepl/Execution.h"
#include "ParamSystem/kepl/ValueType.h"

namespace talux::kepl {

namespace {

double resultOf(Operation operation, double left, double right) {
    switch (operation) {
    case Operation::add:
        return left + right;
    case Operation::subtract:
        return left - right;
    case Operation::multiply:
        return left * right;
    default:
        return left / right;
    }
}

double resultOf(Operation function, double x) {
    switch (function) {
    case Operation::sine:
        return std::sin(x);
    case Operation::cosine:
        return std::cos(x);
    case Operation::tangent:
        return std::tan(x);
    case Operation::toDegrees:
        return x / std::numbers::pi * 180.0;
    case Operation::toRadians:
        return x / 180.0 * std::numbers::pi;
    case Operation::square:
        return x * x;
    default:
        return std::sqrt(x);
    }
}

} // namespace

TermResult compute(Operation operation, ValueStack& stack) {
    const int operands = operandsOf(operation);
    if (stack.count < operands) return refused(Refusal::syntaxError);
    double* const top = stack.values + stack.count - 1;
    if (operation == Operation::divide && *top == 0.0) return refused(Refusal::divisionByZero);
    if (operation == Operation::squareRoot && *top < 0.0) return refused(Refusal::negativeRoot);

    int* const type = stack.types + stack.count - 1;
    if (operands == 2) {
        top[-1] = resultOf(operation, top[-1], *top);
        type[-1] = promoted(type[-1], *type);
        --stack.count;
    } else {
        *top = resultOf(operation, *top);
        *type = kTypeDouble;
    }
    return {};
}

} // namespace talux::kepl
