// From a name to the family that carries the call out.
#include "model/families.h"

#include <stdexcept>

namespace model {

namespace {

struct Family {
    bool (*holds)(const Form &form);
    Status (*carryOut)(const Execution &execution);
};

bool isVectorSum(const Form &form) {
    return (form.operation == "Add" || form.operation == "Sub") && form.isOnVectors() && form.sources.size() == 2;
}

bool isVectorWithConstant(const Form &form) {
    return form.isOnVectors() && form.sources.size() == 1 && form.group.find('c') != std::string::npos;
}

bool isMatrixSum(const Form &form) {
    return (form.operation == "Add" || form.operation == "Sub") && !form.isOnVectors();
}

bool isScaledMatrix(const Form &form) {
    return form.operation == "Mul" && form.sources.size() == 1 && form.sources[0].isMatrix;
}

// Of a matrix and another operand that is no constant.
bool isProduct(const Form &form) {
    return form.operation == "Mul" && form.sources.size() == 2 && form.sources[0].isMatrix;
}

bool isMatrixProduct(const Form &form) { return isProduct(form) && form.sources[1].isMatrix; }

bool isMatrixByVector(const Form &form) { return isProduct(form) && !form.sources[1].isMatrix; }

const Family families[] = {
    {isVectorSum, addOrSubtractVectors},
    {isVectorWithConstant, combineVectorAndConstant},
    {[](const Form &form) { return form.operation == "Saxpy"; }, addScaledVector},
    {[](const Form &form) { return form.operation == "LComb"; }, combineLinearly},
    {[](const Form &form) { return form.operation == "DotProduct"; }, multiplyVectors},
    {[](const Form &form) { return form.operation == "L2Norm"; }, takeNorm},
    {[](const Form &form) { return form.operation == "CrossProduct"; }, crossVectors},
    {isMatrixSum, addOrSubtractMatrices},
    {isScaledMatrix, multiplyMatrixByConstant},
    {[](const Form &form) { return form.operation == "Transpose"; }, transposeMatrices},
    {[](const Form &form) { return form.operation == "Trace"; }, sumDiagonal},
    {[](const Form &form) { return form.operation == "FrobNorm"; }, takeFrobeniusNorm},
    {isMatrixProduct, multiplyMatrices},
    {isMatrixByVector, multiplyMatrixByVector},
    {[](const Form &form) { return form.operation == "Gaxpy"; }, multiplyMatrixByVector},
    {[](const Form &form) { return form.operation == "Copy"; }, copy},
    {[](const Form &form) { return form.operation == "Extract"; }, extract},
    {[](const Form &form) { return form.operation == "LoadIdentity"; }, loadIdentity},
    {[](const Form &form) { return form.operation == "Det"; }, computeDeterminant},
    {[](const Form &form) { return form.operation == "Invert"; }, computeInverse},
    {[](const Form &form) { return form.operation == "LUDecomp"; }, decomposeLu},
    {[](const Form &form) { return form.operation == "LUBackSubst"; }, substituteBackLu},
    {[](const Form &form) { return form.operation == "CholeskyDecomp"; }, decomposeCholesky},
    {[](const Form &form) { return form.operation == "CholeskyBackSubst"; }, substituteBackCholesky},
    {[](const Form &form) { return form.operation == "QRDecomp"; }, decomposeQr},
    {[](const Form &form) { return form.operation == "QRBackSubst"; }, substituteBackQr},
};

// These five trust their pointers.
bool trustsPointers(const Form &form) {
    return form.operation == "Extract" && form.layout == Layout::pointer && form.name != "vonkExtract_v_32f_P";
}

const Family *findFamily(const Form &form) {
    for (const Family &family : families)
        if (family.holds(form)) return &family;
    return nullptr;
}

} // namespace

bool knows(const std::string &name) {
    const Form *form = findForm(name);
    return form != nullptr && findFamily(*form) != nullptr;
}

Outcome run(const Call &call) {
    if (!knows(call.name)) throw std::invalid_argument("not in the model: " + call.name);
    const Form &form = *findForm(call.name);
    const Arguments arguments(parameters(call.name), call.words);
    Outcome outcome{statusNullPointer, {}, false, false};
    if (!trustsPointers(form) && arguments.hasNullPointer()) return outcome;
    Memory memory(outcome);
    try {
        outcome.status = findFamily(form)->carryOut(Execution(form, arguments, memory));
    } catch (const Abandoned &) {
        // The outcome is marked as open; what stands in memory by now means nothing.
    }
    return outcome;
}

} // namespace model
