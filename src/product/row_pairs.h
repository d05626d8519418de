// An array of 6x6 matrices, each times its own matrix or all times one, where the rows of the results are packed: two
// of them fill three registers with columns 0 to 3 of the upper one, 4 and 5 of it with 0 and 1 of the lower one, and 2
// to 5 of that. Every element is summed as in the kernels, but elements are read and stored in another order: a fast
// path for disjoint operands.
#pragma once

#include "frame/aliasing.h"
#include "frame/walk.h"
#include "product/kernels.h"

namespace vonkk3::product {

// Rows of B for the three registers of two rows.
struct HeldRowPairs {
    __m128 head[6], middle[6], last[6];
    VONKK3_INLINE explicit HeldRowPairs(const RowsView<const Real32> &b) {
        forIndices(0, 6, fixed<6>, [&](std::size_t k) VONKK3_INLINED {
            head[k] = load4(b.at(k, 0)), last[k] = load4(b.at(k, 2));
            middle[k] = _mm_shuffle_ps(last[k], head[k], _MM_SHUFFLE(1, 0, 3, 2));
        });
    }
};

// The same of a matrix that serves one object: only what takes a shuffle is held, and the rest read again.
struct RowPairsInMemory {
    struct Rows {
        RowsView<const Real32> b;
        std::size_t from;
        VONKK3_INLINE __m128 operator[](std::size_t k) const { return load4(b.at(k, from)); }
    };
    Rows head, last;
    __m128 middle[6];
    VONKK3_INLINE explicit RowPairsInMemory(const RowsView<const Real32> &b) : head{b, 0}, last{b, 2} {
        forIndices(0, 6, fixed<6>, [&](std::size_t k) VONKK3_INLINED {
            middle[k] = _mm_shuffle_ps(last[k], head[k], _MM_SHUFFLE(1, 0, 3, 2));
        });
    }
};

// Elements 0 to 3 and 2 to 5 of a row, and of two rows at once, the upper one's in the lower lanes.
struct WholeRow {
    __m128 head, last;
    VONKK3_INLINE WholeRow(const RowsView<const Real32> &a, std::size_t i)
        : head(load4(a.at(i, 0))), last(load4(a.at(i, 2))) {}
    VONKK3_INLINE __m128 operator[](std::size_t k) const {
        return k < 4 ? broadcastLane(head, k) : broadcastLane(last, k - 2);
    }
};
struct TwoWholeRows {
    const WholeRow &upper, &lower;
    VONKK3_INLINE __m128 operator[](std::size_t k) const {
        return k < 4 ? broadcastLane(upper.head, lower.head, k) : broadcastLane(upper.last, lower.last, k - 2);
    }
};

template <class Factors, class Rows> VONKK3_INLINE __m128 sumOfSixRows(const Factors &factors, const Rows &rows) {
    __m128 sum = _mm_mul_ps(factors[0], rows[0]);
    forIndices(1, 6, fixed<6>, [&](std::size_t k) VONKK3_INLINED { sum = multiplyAdd(sum, factors[k], rows[k]); });
    return sum;
}

template <class RowPairs>
VONKK3_INLINE void multiplyTwoRowsAtOnce(const RowsView<const Real32> &a, const RowPairs &b, std::byte *d) {
    forIndices(0, 3, fixed<3>, [&](std::size_t half) VONKK3_INLINED {
        const WholeRow upper(a, 2 * half), lower(a, 2 * half + 1);
        std::byte *const rows = d + half * 3 * laneBytes;
        store4(rows, sumOfSixRows(upper, b.head));
        store4(rows + laneBytes, sumOfSixRows(TwoWholeRows{upper, lower}, b.middle));
        store4(rows + 2 * laneBytes, sumOfSixRows(lower, b.last));
    });
}

// How many objects were done: all or none.
template <class A, class B, class D>
VONKK3_INLINE std::size_t multiplyByRowPairs(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    if (!dst.hasPackedRows(6)) return 0;
    const auto mayWork = [&](const auto &matrices) { // a single matrix is read before any result is stored
        if (disjoint(extentOfAll(dst, 6, 6, objects), extentOfAll(matrices, 6, 6, objects))) return true;
        const ObjectsView source = objectsOf(matrices, 6, 6, objects), d = objectsOf(dst, 6, 6, objects);
        return Aliasing(objects, writes(d), reads(source)).allowsBatch(0, objects);
    };
    if (!mayWork(src1)) return 0;
    if constexpr (B::isArray)
        if (!mayWork(src2)) return 0;
    if constexpr (B::isArray) {
        for (std::size_t n = 0; n < objects; ++n)
            multiplyTwoRowsAtOnce(src1.view(n), RowPairsInMemory(src2.view(n)), dst.view(n).base);
    } else {
        const HeldRowPairs held(src2.view(0));
        for (std::size_t n = 0; n < objects; ++n) multiplyTwoRowsAtOnce(src1.view(n), held, dst.view(n).base);
    }
    return objects;
}

} // namespace vonkk3::product
