// The families that the model can carry out: one function each, which gets one call and returns its status. A new
// family is one source file, one line here and one line in the table in model.cpp.
#pragma once

#include "model/arithmetic.h"
#include "model/grammar.h"
#include "model/memory.h"
#include "model/operands.h"

#include <cstdint>
#include <string>

namespace model {

using Status = std::int32_t;

constexpr Status statusOk = 0;
constexpr Status statusSize = -6;
constexpr Status statusNullPointer = -8;
constexpr Status statusSingular = -10;
constexpr Status statusNotPositiveDefinite = -179;

// One call on its way: what its name says, its words, and the memory on which it works.
struct Execution {
    const Form &form;
    const Arguments &arguments;
    Memory &memory;

    // The fixed size if the form has one, else the word of that name.
    std::uint32_t dimension(const std::string &name) const { return form.size != 0 ? form.size : arguments.size(name); }
    // A form without arrays works on one object.
    std::uint32_t count() const { return form.isArray() ? arguments.size("count") : 1; }
    Operand operand(const std::string &name, std::uint64_t columns = 0) const {
        return makeOperand(form, arguments, memory, name, columns);
    }
};

Status addOrSubtractMatrices(const Execution &execution);
Status addOrSubtractVectors(const Execution &execution);
Status addScaledVector(const Execution &execution);
Status combineLinearly(const Execution &execution);
Status combineVectorAndConstant(const Execution &execution);
Status computeDeterminant(const Execution &execution);
Status computeInverse(const Execution &execution);
Status copy(const Execution &execution);
Status crossVectors(const Execution &execution);
Status decomposeCholesky(const Execution &execution);
Status decomposeLu(const Execution &execution);
Status decomposeQr(const Execution &execution);
Status extract(const Execution &execution);
Status loadIdentity(const Execution &execution);
Status multiplyAndAdd(const Execution &execution);
Status multiplyMatrices(const Execution &execution);
Status multiplyMatrixByConstant(const Execution &execution);
Status multiplyMatrixByVector(const Execution &execution);
Status multiplyVectors(const Execution &execution);
Status substituteBackLu(const Execution &execution);
Status sumDiagonal(const Execution &execution);
Status takeFrobeniusNorm(const Execution &execution);
Status takeNorm(const Execution &execution);
Status transposeMatrices(const Execution &execution);
Status substituteBackCholesky(const Execution &execution);
Status substituteBackQr(const Execution &execution);

} // namespace model
