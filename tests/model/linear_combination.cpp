// Linear combinations of two vectors: two products and their sum for each element, never fused.
#include "model/lanes.h"
#include "model/vector_walk.h"

namespace model {

Status combineLinearly(const Execution &execution) {
    Arithmetic arithmetic(execution.memory);
    const Arguments &words = execution.arguments;
    const ElementFormula formula{[&](const std::vector<float> &a) {
                                     const float first = arithmetic.multiply(a[0], words.real32("val1"));
                                     return arithmetic.add(first, arithmetic.multiply(a[1], words.real32("val2")));
                                 },
                                 [&](const std::vector<Wide> &a) {
                                     const Wide first = arithmetic.multiply<Wide>(a[0], words.real64("val1"));
                                     const Wide second = arithmetic.multiply<Wide>(a[1], words.real64("val2"));
                                     return arithmetic.add(first, second);
                                 }};
    // Three elements beside a single vector, which is held all the same, are three scalar steps.
    const bool lanes = hasLanes(execution.form);
    const bool isScalarBesideHeld = execution.form.group == "vav" && execution.form.size == 3;
    return walkVectors(execution, {"src1", "src2"}, formula,
                       {.wholeObjects = lanes && !isScalarBesideHeld, .single = lanes});
}

} // namespace model
