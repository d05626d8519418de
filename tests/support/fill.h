// Operands with which a call of any family succeeds.
#pragma once

#include "literal.h"

#include <numeric>

namespace literal {

// Symmetric matrices with a large diagonal, permutations that exchange nothing, and other numbers in each object.
inline void fill(Call &call) {
    for (const catalogue::Operand &operand : call.function().operands) {
        if (operand.written) continue;
        const std::uint32_t rows = call[operand.name].rows, cols = call[operand.name].cols;
        const std::uint32_t variant = operand.name == "src2" ? 1 : 0;
        for (std::uint32_t n = 0; n < call.objectsOf(operand.name); ++n)
            for (std::uint32_t i = 0; i < rows; ++i)
                for (std::uint32_t j = 0; j < cols; ++j)
                    call.set(operand.name, n, i, j,
                             rows > 1 && i == j ? 16 + n : 1 + (i + j + 2 * n + variant) % 3 + (rows == 1 ? n : 0));
    }
    std::vector<std::uint32_t> unpermuted(call.size());
    std::iota(unpermuted.begin(), unpermuted.end(), 0);
    if (call.function().family->operation == "LUBackSubst")
        for (std::uint32_t n = 0; n < call.count(); ++n) call.setPivots(n, unpermuted);
}

} // namespace literal
