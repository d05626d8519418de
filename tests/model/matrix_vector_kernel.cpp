// The trees in which the lanes add. Those of a plain matrix add across lanes and those of a transposed one down them,
// and the last element of order 5 with a plain matrix has a tree of its own.
#include "model/matrix_vector_kernel.h"

namespace model {

namespace {

Places elementsOf(const Operand &vector, std::uint64_t n, std::uint64_t begin, std::uint64_t end) {
    Places places;
    for (std::uint64_t i = begin; i < end; ++i) places.push_back(vector.element(n, i));
    return places;
}

Places rowsOf(const FactorMatrix &matrix, std::uint64_t n, std::uint64_t begin, std::uint64_t order) {
    Places places;
    for (std::uint64_t i = begin; i < order; ++i)
        for (std::uint64_t k = 0; k < order; ++k) places.push_back(matrix.element(n, i, k));
    return places;
}

} // namespace

MatrixVectorKernel::MatrixVectorKernel(const Form &form, Memory &memory)
    : memory_(memory), arithmetic_(memory), order_(form.size), isTransposed_(form.sources.front().isTransposed) {}

bool MatrixVectorKernel::serves(const Form &form) {
    return form.element == Element::real32 && form.size != 0 &&
           (form.layout == Layout::standard || form.layout == Layout::list);
}

void MatrixVectorKernel::fetchMatrix(const FactorMatrix &matrix, std::uint64_t n) {
    for (std::uint64_t i = 0; i < order_; ++i)
        for (std::uint64_t k = 0; k < order_; ++k) matrix_[i][k] = memory_.load<float>(matrix.element(n, i, k));
}

void MatrixVectorKernel::fetchVector(const Operand &vector, std::uint64_t n) {
    for (std::uint64_t k = 0; k < order_; ++k) vector_[k] = memory_.load<float>(vector.element(n, k));
}

float MatrixVectorKernel::plainTree(std::uint64_t i, const std::array<float, 6> &p) {
    switch (order_) {
    case 3: return add(add(p[0], p[1]), p[2]);
    case 4: return add(add(p[0], p[2]), add(p[1], p[3]));
    case 5:
        if (i == 4) return add(add(add(p[0], p[2]), p[4]), add(p[1], p[3]));
        return add(add(add(p[0], p[1]), p[4]), add(p[2], p[3]));
    default: return add(add(add(p[0], p[2]), p[4]), add(add(p[1], p[3]), p[5]));
    }
}

float MatrixVectorKernel::transposedTree(const std::array<float, 6> &p) {
    switch (order_) {
    case 3: return add(add(p[0], p[1]), p[2]);
    case 4: return add(add(p[0], p[1]), add(p[2], p[3]));
    case 5: return add(add(add(p[0], p[1]), p[4]), add(p[2], p[3]));
    default: return add(add(add(p[0], p[1]), add(p[2], p[3])), add(p[4], p[5]));
    }
}

float MatrixVectorKernel::element(std::uint64_t i) {
    std::array<float, 6> products{};
    for (std::uint64_t k = 0; k < order_; ++k) products[k] = arithmetic_.multiply(matrix_[i][k], vector_[k]);
    return isTransposed_ ? transposedTree(products) : plainTree(i, products);
}

Places headOf(const Operand &vector, std::uint64_t n, std::uint64_t order) {
    return elementsOf(vector, n, 0, std::min<std::uint64_t>(order, 4));
}

Places tailOf(const Operand &vector, std::uint64_t n, std::uint64_t order) { return elementsOf(vector, n, 4, order); }

Places tailOf(const FactorMatrix &matrix, std::uint64_t n, std::uint64_t order) { return rowsOf(matrix, n, 4, order); }

Places allOf(const FactorMatrix &matrix, std::uint64_t n, std::uint64_t order) { return rowsOf(matrix, n, 0, order); }

} // namespace model
