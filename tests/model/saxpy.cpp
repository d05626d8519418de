// A vector times a constant, plus a vector: a product and a sum for each element, never fused. Nearly all forms are
// scalar; four of them have lanes, and take them where their operands are aligned.
#include "model/lanes.h"
#include "model/vector_walk.h"

namespace model {

namespace {

// The forms that look at the alignment of all their words but one: the stride of the second source is taken on trust.
bool takesLanes(const Execution &execution) {
    const Form &form = execution.form;
    const bool mayTake = hasLanes(form) && form.layout == Layout::standard &&
                         (form.group == "vav" || form.group == "vava") && (form.size == 4 || form.size == 6);
    if (!mayTake) return false;
    const Arguments &words = execution.arguments;
    const std::uint64_t together = words.pointer("src1") | words.pointer("src2") | words.pointer("dst") |
                                   words.bytes("src1ObjStride") | words.bytes("dstObjStride");
    return together % 16 == 0;
}

} // namespace

Status addScaledVector(const Execution &execution) {
    Arithmetic arithmetic(execution.memory);
    const ElementFormula formula{
        [&](const std::vector<float> &a) {
            return arithmetic.add(arithmetic.multiply(a[0], execution.arguments.real32("val")), a[1]);
        },
        [&](const std::vector<Wide> &a) {
            return arithmetic.add(arithmetic.multiply<Wide>(a[0], execution.arguments.real64("val")), a[1]);
        }};
    const bool inLanes = takesLanes(execution);
    return walkVectors(execution, {"src1", "src2"}, formula, {.wholeObjects = inLanes, .single = inLanes});
}

} // namespace model
