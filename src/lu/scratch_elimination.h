// Elimination with partial pivoting in the caller's scratch memory: a dense matrix, row after row, and after it the
// row indices. Its product of pivots is a determinant. Rows are never moved, and nothing but scratch is written.
#pragma once

#include "lu/arithmetic.h"
#include "lu/permutation.h"

namespace vonkk3::lu {

// The singularity tolerance of pivots; the last one is below it even if it is equal.
template <class T> inline constexpr Real32 determinantTolerance = std::is_same_v<T, Real32> ? 0x1p-23F : 0x1p-52F;

// The matrix in scratch by position: position k is logical row k. `order` is that of the matrix that the memory was
// made for; a minor uses fewer rows and columns, but as long a step from row to row.
template <class T> class ScratchMatrix {
public:
    ScratchMatrix(void *scratch, std::size_t order)
        : elements(static_cast<std::byte *>(scratch)), rowBytes(order * sizeof(T)),
          indices(elements + order * order * sizeof(T)) {}

    void resetIndices(std::size_t rows) const {
        for (std::size_t k = 0; k < rows; ++k) storePivot(indices, k, k);
    }
    void fill(std::size_t i, std::size_t j, T value) const { storeAt(elements + i * rowBytes + j * sizeof(T), value); }

    std::byte *row(std::size_t position) const { return elements + loadPivot(indices, position) * rowBytes; }
    T load(std::size_t position, std::size_t column) const { return loadAt<T>(row(position) + column * sizeof(T)); }

    void exchange(std::size_t a, std::size_t b) const {
        const std::size_t row = loadPivot(indices, a);
        storePivot(indices, a, loadPivot(indices, b));
        storePivot(indices, b, row);
    }

private:
    std::byte *elements;
    std::size_t rowBytes;
    std::byte *indices;
};

// The product of the pivots so far: in the result's cell, where every step rounds it, or in a variable.
template <class T> class ProductInCell {
public:
    explicit ProductInCell(std::byte *cell) : cell(cell) { set(1); }
    Working<T> get() const { return loadAt<T>(cell); }
    void set(Working<T> value) const { storeAt(cell, round<T>(value)); }

private:
    std::byte *cell;
};

template <class T> class ProductInVariable {
public:
    Working<T> get() const { return value; }
    void set(Working<T> product) { value = product; }

private:
    Working<T> value = 1;
};

// The position from k on of the element of largest magnitude in column k; the first of equals. The best so far is kept
// in Real32 for both types: of two Real64 candidates that agree in that precision, its rounding decides.
template <class T> inline std::size_t findPivot(const ScratchMatrix<T> &matrix, std::size_t order, std::size_t k) {
    auto best = Real32(magnitude(Working<T>(matrix.load(k, k))));
    std::size_t position = k;
    for (std::size_t i = k + 1; i < order; ++i) {
        const Working<T> candidate = magnitude(Working<T>(matrix.load(i, k)));
        if (!(candidate > best)) continue;
        best = Real32(candidate);
        position = i;
    }
    return position;
}

// Takes the multiple of the pivot's row that clears column k from another row. The multiplier is not kept, and so it is
// not rounded either.
template <class T>
inline void eliminateRow(std::byte *row, const std::byte *pivotRow, std::size_t order, std::size_t k,
                         Working<T> pivot) {
    using W = Working<T>;
    const auto element = [](const std::byte *of, std::size_t j) { return W(loadAt<T>(of + j * sizeof(T))); };
    const W factor = negated(element(row, k) / pivot);
    for (std::size_t j = k + 1; j < order; ++j)
        storeAt(row + j * sizeof(T), round<T>(element(pivotRow, j) * factor + element(row, j)));
}

// Entries of tables are scanned before all else in arrays. A single matrix in a table has them tested one by one as it
// is copied.
template <class Count> inline constexpr bool scansTablesFirst = Count::isArray;

// The whole matrix, with the rows in order; false at a null entry of its table, or of another table.
template <class T, class Source, class... Others>
inline bool copyToScratch(const ScratchMatrix<T> &matrix, std::size_t order, bool testsEntries, const Source &source,
                          const Others &...others) {
    for (std::size_t i = 0; i < order; ++i)
        for (std::size_t j = 0; j < order; ++j) {
            if (testsEntries && (source.hasNullEntry(i, j) || (others.hasNullEntry(i, j) || ...))) return false;
            matrix.fill(i, j, source.load(i, j));
        }
    matrix.resetIndices(order);
    return true;
}

struct Elimination {
    bool isRegular; // no pivot but the last, which is not looked at, is too small
    int sign;       // of the permutation
};

// Multiplies all pivots but the last into the product. Stops at the first that is too small, or a NaN.
template <class T, class Product>
[[gnu::noinline]] Elimination eliminate(const ScratchMatrix<T> &matrix, std::size_t order, Product &product) {
    using W = Working<T>;
    int sign = 1;
    for (std::size_t k = 0; k + 1 < order; ++k) {
        if (const std::size_t position = findPivot(matrix, order, k); position != k) {
            matrix.exchange(k, position);
            sign = -sign;
        }
        const W pivot = matrix.load(k, k);
        if (!(magnitude(pivot) >= W(determinantTolerance<T>))) return {false, sign};
        for (std::size_t i = k + 1; i < order; ++i) eliminateRow<T>(matrix.row(i), matrix.row(k), order, k, pivot);
        product.set(pivot * product.get());
    }
    return {true, sign};
}

// Multiplies the last pivot into the product, with the sign of the permutation; false, and the product 0, if that pivot
// is not above the tolerance.
template <class T, class Product>
inline bool multiplyLastPivot(const ScratchMatrix<T> &matrix, std::size_t order, int sign, Product &product) {
    using W = Working<T>;
    const W last = matrix.load(order - 1, order - 1);
    const bool counts = magnitude(last) > W(determinantTolerance<T>);
    product.set(counts ? product.get() * (last * W(sign)) : W(0));
    return counts;
}

} // namespace vonkk3::lu
