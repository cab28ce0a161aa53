// The operations on the value stack.
#include "ParamSystem/kepl/Execution.h"
#include "ParamSystem/kepl/ValueType.h"

namespace talux::kepl {

TermResult compute(Operation operation, ValueStack& stack) {
    const OperationRow& row = rowOf(kOperations, operation);
    if (stack.count < row.operands) return refused(Refusal::syntaxError);
    double* const top = stack.values + stack.count - 1;
    if (operation == Operation::divide && *top == 0.0) return refused(Refusal::divisionByZero);
    if (operation == Operation::squareRoot && *top < 0.0) return refused(Refusal::negativeRoot);

    int* const type = stack.types + stack.count - 1;
    if (row.operands == 2) {
        top[-1] = row.result(top[-1], *top);
        type[-1] = promoted(type[-1], *type);
        --stack.count;
    } else {
        *top = row.result(0, *top);
        *type = kTypeDouble;
    }
    return {};
}

} // namespace talux::kepl
