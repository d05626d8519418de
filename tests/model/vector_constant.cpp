// Vectors and a constant: one rounded operation an element. In the differences that name the constant first, it is the
// minuend, though it still comes behind the vector in the parameter list.
#include "model/lanes.h"
#include "model/vector_walk.h"

namespace model {

namespace {

enum class Operation { add, subtract, subtractFromConstant, multiply };

Operation operationOf(const Form &form) {
    if (form.operation == "Add") return Operation::add;
    if (form.operation == "Mul") return Operation::multiply;
    return form.group.front() == 'c' ? Operation::subtractFromConstant : Operation::subtract;
}

template <class Real> Real combine(Arithmetic &arithmetic, Operation operation, Real element, Real constant) {
    switch (operation) {
    case Operation::add: return arithmetic.add(element, constant);
    case Operation::subtract: return arithmetic.subtract(element, constant);
    case Operation::subtractFromConstant: return arithmetic.subtract(constant, element);
    case Operation::multiply: break;
    }
    return arithmetic.multiply(element, constant);
}

} // namespace

Status combineVectorAndConstant(const Execution &execution) {
    Arithmetic arithmetic(execution.memory);
    const Operation operation = operationOf(execution.form);
    const ElementFormula formula{[&](const std::vector<float> &a) {
                                     return combine(arithmetic, operation, a[0], execution.arguments.real32("val"));
                                 },
                                 [&](const std::vector<Wide> &a) {
                                     return combine<Wide>(arithmetic, operation, a[0],
                                                          execution.arguments.real64("val"));
                                 }};
    return walkVectors(execution, {"src"}, formula, {.wholeObjects = hasLanes(execution.form)});
}

} // namespace model
