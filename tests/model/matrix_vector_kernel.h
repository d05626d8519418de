// The Real32 product of a matrix of fixed order and a vector: each element is a tree of its products, shaped by how the
// lanes lie, and all elements are computed from what was fetched before the first of them is stored.
#pragma once

#include "model/product_operands.h"

#include <array>
#include <cstdint>
#include <vector>

namespace model {

class MatrixVectorKernel {
public:
    MatrixVectorKernel(const Form &form, Memory &memory);

    // Whether the form has lanes; the others run every element's sum through its cell.
    static bool serves(const Form &form);

    void fetchMatrix(const FactorMatrix &matrix, std::uint64_t n);
    void fetchVector(const Operand &vector, std::uint64_t n);
    float element(std::uint64_t i);

private:
    float plainTree(std::uint64_t i, const std::array<float, 6> &p);
    float transposedTree(const std::array<float, 6> &p);
    float add(float a, float b) { return arithmetic_.add(a, b); }

    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t order_;
    bool isTransposed_;
    std::array<std::array<float, 6>, 6> matrix_{}; // as it enters the product
    std::array<float, 6> vector_{};
};

// Orders 5 and 6 store four elements at once and the rest apart, and whether what serves the rest alone is fetched
// before or after the four are stored is free. These are the first four elements of a vector, the others, and the rows
// of a matrix that serve the others.
Places headOf(const Operand &vector, std::uint64_t n, std::uint64_t order);
Places tailOf(const Operand &vector, std::uint64_t n, std::uint64_t order);
Places tailOf(const FactorMatrix &matrix, std::uint64_t n, std::uint64_t order);
Places allOf(const FactorMatrix &matrix, std::uint64_t n, std::uint64_t order);

} // namespace model
