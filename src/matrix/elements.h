// The plain walk over one matrix: rows, in them columns, one element at a time.
#pragma once

#include "frame/stream.h"
#include "vonkk3.h"

namespace vonkk3::matrix {

// d(i, j) = operation of the sources' elements (i, j), rounded. Table entries, where they are tested here, come just
// ahead of their element, and the elements before a null one are final.
template <bool testsEntries, class Operation, class D, class Rows, class Columns, class... Sources>
VONKK3_INLINE VonkStatus workElements(const D &d, Rows rows, Columns columns, Operation operation,
                                      const Sources &...sources) {
    using T = typename D::Element;
    for (std::size_t i = 0; i < rows; ++i) {
        const bool noneIsNull = everyIndex(0, columns, columns, [&](std::size_t j) VONKK3_INLINED {
            if constexpr (testsEntries)
                if ((sources.hasNullEntry(i, j) || ...) || d.hasNullEntry(i, j)) return false;
            d.store(i, j, round<T>(operation(Working<T>(sources.load(i, j))...)));
            return true;
        });
        if (!noneIsNull) return vonkErrNullPtr;
    }
    return vonkOk;
}

// Telling the compiler the number of columns pays for itself over several objects. In tables a fixed number is looped
// over: unrolled, it costs a single object more than it gains.
template <class Count, class D, class Columns, class Work>
VONKK3_INLINE VonkStatus withColumns(Columns columns, const Work &work) {
    if constexpr (Columns::isFixed && D::isTable) return work(RunTime{Columns::value});
    else if constexpr (Count::isArray) return withFixedColumns<typename D::Element>(columns, work);
    else return work(columns);
}

} // namespace vonkk3::matrix
