// Matrices and vectors in local variables, to be worked like those in memory.
#pragma once

#include "frame/unroll.h"
#include "frame/views.h"

namespace vonkk3::lu {

template <class Number, std::size_t columns> struct LocalBlock {
    Number (*rows)[columns];

    Number load(std::size_t column) const { return rows[0][column]; }
    Number load(std::size_t row, std::size_t column) const { return rows[row][column]; }
    Number operator()(std::size_t row, std::size_t column) const { return rows[row][column]; }
    void store(std::size_t column, Number value) const { rows[0][column] = value; }
    void store(std::size_t row, std::size_t column, Number value) const { rows[row][column] = value; }
};
template <class Number, std::size_t columns> LocalBlock(Number (*)[columns]) -> LocalBlock<Number, columns>;

// A matrix of fixed order, copied out of memory.
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
