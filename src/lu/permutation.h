// The permutation between logical and physical rows: pivots[k] is the physical row that holds logical row k. Rows
// themselves are never moved.
#pragma once

#include "frame/real.h"
#include "frame/unroll.h"

namespace vonkk3::lu {

// The block of object n: `order` row indices, packed, whatever the layout of the matrices.
template <class Index> inline ByteOf<Index> *pivotBlock(Index *pivots, std::size_t n, std::size_t order) {
    return reinterpret_cast<ByteOf<Index> *>(pivots) + n * order * sizeof(Index);
}

inline std::size_t loadPivot(const std::byte *block, std::size_t k) {
    return loadAt<std::uint32_t>(block + k * sizeof(std::uint32_t));
}

inline void storePivot(std::byte *block, std::size_t k, std::size_t row) {
    storeAt(block + k * sizeof(std::uint32_t), std::uint32_t(row));
}

// The permutation of one decomposition while it grows: begins as the identity in the caller's block, which follows
// every exchange. Of run-time order it lives there alone; of fixed order a local copy serves the reads.
template <class Order> class GrowingPermutation {
public:
    GrowingPermutation(std::byte *block, Order order) : block(block) {
        for (std::size_t k = 0; k < order; ++k) storePivot(block, k, k);
    }
    std::size_t operator[](std::size_t k) const { return loadPivot(block, k); }
    void exchange(std::size_t a, std::size_t b) {
        const std::size_t row = loadPivot(block, a);
        storePivot(block, a, loadPivot(block, b));
        storePivot(block, b, row);
    }

private:
    std::byte *block;
};

template <std::size_t order> class GrowingPermutation<Fixed<order>> {
public:
    VONKK3_INLINE GrowingPermutation(std::byte *block, Fixed<order>) : block(block) {
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED { storePivot(block, k, rows[k] = k); });
    }
    std::size_t operator[](std::size_t k) const { return rows[k]; }

    // Position a is known when compiling, b is not: looking at every b keeps the rows in registers.
    VONKK3_INLINE void exchange(std::size_t a, std::size_t b) {
        const std::size_t row = rows[a];
        forIndices(a + 1, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            rows[a] = k == b ? rows[k] : rows[a];
            rows[k] = k == b ? row : rows[k];
        });
        storePivot(block, a, rows[a]);
        storePivot(block, b, row);
    }

private:
    std::byte *block;
    std::size_t rows[order];
};

// The permutation of a finished decomposition. Of fixed order it is read once, not once a sweep.
template <class Order> class Permutation {
public:
    Permutation(const std::byte *block, Order) : block(block) {}
    std::size_t operator[](std::size_t k) const { return loadPivot(block, k); }

private:
    const std::byte *block;
};

template <std::size_t order> class Permutation<Fixed<order>> {
public:
    VONKK3_INLINE Permutation(const std::byte *block, Fixed<order>) {
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED { rows[k] = loadPivot(block, k); });
    }
    std::size_t operator[](std::size_t k) const { return rows[k]; }

private:
    std::size_t rows[order];
};

// Of rows that are in their logical order already.
struct InOrder {
    constexpr std::size_t operator[](std::size_t k) const { return k; }
};

// Whether so many row indices in a row are below `order`, which callers are trusted with; but the alias test has looked
// at no other rows. The top bit is set of an index that is not, or of its distance from the last row.
VONKK3_INLINE bool areRowIndices(const std::byte *indices, std::size_t number, std::size_t order) {
    std::uint32_t bits = 0;
    for (std::size_t k = 0; k < number; ++k) {
        const auto row = std::uint32_t(loadPivot(indices, k));
        bits |= row | (std::uint32_t(order - 1) - row);
    }
    return bits >> 31 == 0;
}

} // namespace vonkk3::lu
