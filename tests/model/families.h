// The families that the model can carry out: one function each, which gets one call and returns its status. A new
// family is one source file, one line here and one line in the table in model.cpp.
#pragma once

#include "model/execution.h"

namespace model {

// Five forms of one family. The others make no step if one of their pointers is null.
bool trustsPointers(const Form &form);

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
