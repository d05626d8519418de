// Inverses of order 5 and 6 by blocks: a leading block of order 2 or 3 on chosen columns, its Schur complement of order
// 3, and the four blocks of the inverse made of the inverses of these two.
#pragma once

#include "model/estimate.h"

#include <cstddef>
#include <vector>

namespace model {

struct BlockInverse {
    enum class Result { regular, singularLeadingBlock, singularComplement };

    Result result;
    bool open = false; // the choice of columns or a test hangs on roundings, or is free
    Grid inverse;      // of a regular matrix, with its rows in their places
};

// How the forms differ.
struct BlockRules {
    bool isSingle;
    bool takesNewtonStep;      // for the reciprocals, else they are quotients
    bool choosesColumnsFreely; // six candidates, and exits at other tests beside the two that all forms have
    double tolerance;
};

BlockInverse invertByBlocks(const std::vector<std::vector<double>> &matrix, const BlockRules &rules);

} // namespace model
