// A matrix of fixed order, copied out of memory.
#pragma once

#include "frame/unroll.h"
#include "frame/views.h"

namespace vonkk3::lu {

template <class T, std::size_t order> struct SmallMatrix {
    T elements[order][order];

    SmallMatrix() = default;
    template <class View> VONKK3_INLINE explicit SmallMatrix(const View &view) {
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) elements[i][j] = view.load(i, j);
    }

    template <class View> VONKK3_INLINE void store(const View &view) const {
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) view.store(i, j, elements[i][j]);
    }

    RowsView<T> writableView() { return {reinterpret_cast<std::byte *>(elements), std::ptrdiff_t(order * sizeof(T))}; }
    RowsView<const T> view() const {
        return {reinterpret_cast<const std::byte *>(elements), std::ptrdiff_t(order * sizeof(T))};
    }
};

} // namespace vonkk3::lu
