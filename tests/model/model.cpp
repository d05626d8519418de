// From a name to the family that carries the call out.
#include "model/families.h"

#include <map>
#include <stdexcept>

namespace model {

namespace {

using Family = Status (*)(const Execution &execution);

Family familyOf(const Form &form) {
    static const std::map<std::string, Family> byOperation = {
        {"CholeskyBackSubst", substituteBackCholesky},
        {"CholeskyDecomp", decomposeCholesky},
        {"Copy", copy},
        {"CrossProduct", crossVectors},
        {"Det", computeDeterminant},
        {"DotProduct", multiplyVectors},
        {"Extract", extract},
        {"FrobNorm", takeFrobeniusNorm},
        {"Gaxpy", multiplyMatrixByVector},
        {"Invert", computeInverse},
        {"L2Norm", takeNorm},
        {"LComb", combineLinearly},
        {"LoadIdentity", loadIdentity},
        {"LUBackSubst", substituteBackLu},
        {"LUDecomp", decomposeLu},
        {"QRBackSubst", substituteBackQr},
        {"QRDecomp", decomposeQr},
        {"Saxpy", addScaledVector},
        {"Trace", sumDiagonal},
        {"Transpose", transposeMatrices},
    };
    if (const auto found = byOperation.find(form.operation); found != byOperation.end()) return found->second;
    // Sums, differences and products
    if (form.isOnVectors()) return form.sources.size() == 1 ? combineVectorAndConstant : addOrSubtractVectors;
    if (form.operation != "Mul") return addOrSubtractMatrices;
    if (form.sources.size() == 1) return multiplyMatrixByConstant;
    return form.sources[1].isMatrix ? multiplyMatrices : multiplyMatrixByVector;
}

} // namespace

bool knows(const std::string &name) { return findForm(name) != nullptr; }

Outcome run(const Call &call) {
    const Form *const form = findForm(call.name);
    if (form == nullptr) throw std::invalid_argument("not in the model: " + call.name);
    const Arguments arguments(parameters(call.name), call.words);
    Outcome outcome{statusOk, {}, false, false};
    Memory memory(outcome);
    try {
        outcome.status = !trustsPointers(*form) && arguments.hasNullPointer()
                             ? statusNullPointer
                             : familyOf(*form)(Execution(*form, arguments, memory));
    } catch (const Abandoned &) {
        // The outcome is marked as open; what stands in memory by now means nothing.
    }
    return outcome;
}

} // namespace model
