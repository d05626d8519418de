// Which bytes an operand covers, for routes that are open only to operands that lie apart.
#pragma once

#include "frame/unroll.h"
#include "frame/views.h"

namespace vonkk3 {

// From the first byte to behind the last, whatever lies between the rows.
struct Extent {
    std::uintptr_t begin, end;

    VONKK3_INLINE Extent(const void *block, std::size_t bytes)
        : begin(reinterpret_cast<std::uintptr_t>(block)), end(begin + bytes) {}

    template <class T> VONKK3_INLINE Extent(const RowsView<T> &view, std::size_t rows, std::size_t columns) {
        const auto first = reinterpret_cast<std::uintptr_t>(view.base);
        const auto last = first + std::uintptr_t(strides(rows - 1, view.rowStride));
        begin = view.rowStride < 0 ? last : first;
        end = (view.rowStride < 0 ? first : last) + columns * sizeof(T);
    }
};

VONKK3_INLINE bool areApart(const Extent &a, const Extent &b) { return a.end <= b.begin || b.end <= a.begin; }

} // namespace vonkk3
