// A block of numbers in local variables, to be worked like a matrix or vector in memory.
#pragma once

#include "frame/unroll.h"

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

} // namespace vonkk3::lu
