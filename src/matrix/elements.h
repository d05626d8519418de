// The plain walk over one matrix: rows, in them columns, one element at a time.
#pragma once

#include "frame/unroll.h"
#include "frame/views.h"
#include "vonkk3.h"

namespace vonkk3::matrix {

// d(i, j) = operation of the sources' elements (i, j), rounded. Table entries, where they are tested here, come just
// ahead of their element, and the elements before a null one are final.
template <bool testsEntries, class Operation, class D, class... Sources>
VONKK3_INLINE VonkStatus workElements(const D &d, std::size_t rows, std::size_t columns, Operation operation,
                                      const Sources &...sources) {
    using T = typename D::Element;
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            if constexpr (testsEntries)
                if ((sources.hasNullEntry(i, j) || ...) || d.hasNullEntry(i, j)) return vonkErrNullPtr;
            d.store(i, j, round<T>(operation(Working<T>(sources.load(i, j))...)));
        }
    return vonkOk;
}

} // namespace vonkk3::matrix
