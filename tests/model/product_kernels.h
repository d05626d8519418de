// The Real32 products of fixed order that work on whole dst rows: the second factor is held, the first is read row by
// row, and a row is stored when all of it is computed. An in-place call is right or wrong by what is held.
#pragma once

#include "model/product_operands.h"

#include <array>
#include <cstdint>

namespace model {

class ProductKernel {
public:
    ProductKernel(const Form &form, Memory &memory, const FactorMatrix &left, const FactorMatrix &right,
                  const Operand &dst);

    // Whether the form is made of rows at all; the others run every cell's sum through the cell.
    static bool serves(const Form &form);

    // Objects come in ascending order from 0.
    void object(std::uint64_t n);

private:
    bool rereadsColumn(std::uint64_t j) const;
    bool fetchesLastColumnsLate() const;
    void hold(std::uint64_t firstColumn, std::uint64_t endOfColumns);
    void checkLateFetch();
    float rightElement(std::uint64_t k, std::uint64_t j) const;
    float leftElement(std::uint64_t i, std::uint64_t k) const;
    float ascendingSum(std::uint64_t i, std::uint64_t j);
    void rows(std::uint64_t firstRow, std::uint64_t endOfRows, std::uint64_t firstColumn, std::uint64_t endOfColumns);
    void sixBySixInTwoPasses();

    using Row = std::array<float, 6>;
    float pairedSum(const Row &left, std::uint64_t j);
    void checkRowPair(std::uint64_t i);
    void rowPair(std::uint64_t i);

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    FactorMatrix left_;
    FactorMatrix right_;
    Operand dst_;
    std::uint64_t object_ = 0;
    std::array<Row, 6> held_{}; // the second factor by its rows
};

} // namespace model
