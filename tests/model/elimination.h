// Gaussian elimination through a row index array, as the determinants of run-time size and the inverses made of them do
// it in their scratch memory: what differs from the LU decomposition are the tolerances, a last pivot that has to be
// above its tolerance, a best candidate that is kept in Real32 whatever the elements are, and a multiplier that is
// never stored.
#pragma once

#include "model/execution.h"

#include <optional>

namespace model {

struct EliminationRules {
    bool roundsProduct;       // at every column, by a store; else the product stays in its register
    bool goesOnAfterBadPivot; // to the last step, with a product of 0 and with what stands in its place by then
};

// The product of the pivots of these rows with its sign; nothing where the last pivot fails, or another one that ends
// the elimination.
std::optional<Wide> productOfPivots(const Execution &execution, std::uint64_t order, Numbers rows,
                                    EliminationRules rules);

} // namespace model
