// The permutation between logical and physical rows: pivots[k] is the physical row that holds logical row k. Rows
// themselves are never moved.
#pragma once

#include "frame/real.h"
#include "frame/size.h"

#include <utility>

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
// every exchange. Of run-time order it lives there alone; of fixed order a copy stays at hand.
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
    GrowingPermutation(std::byte *block, Fixed<order>) : block(block) {
        for (std::size_t k = 0; k < order; ++k) storePivot(block, k, rows[k] = k);
    }
    std::size_t operator[](std::size_t k) const { return rows[k]; }
    void exchange(std::size_t a, std::size_t b) {
        std::swap(rows[a], rows[b]);
        storePivot(block, a, rows[a]);
        storePivot(block, b, rows[b]);
    }

private:
    std::byte *block;
    std::size_t rows[order];
};

} // namespace vonkk3::lu
