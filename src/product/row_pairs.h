// An array of 6x6 matrices, each times its own matrix or all times one, where the rows of the results are packed: two
// of them fill three registers with columns 0 to 3 of the upper one, 4 and 5 of it with 0 and 1 of the lower one, and 2
// to 5 of that. Every element is summed as in the kernels, but elements are read and stored in another order: a fast
// path for disjoint operands.
#pragma once

#include "frame/aliasing.h"
#include "frame/gather.h"
#include "frame/walk.h"
#include "product/kernels.h"

namespace vonkk3::product {

// Rows of B for the three registers of two rows, in every quad.
template <std::size_t width> struct HeldRowPairs {
    using Lanes = Register<width>;
    Lanes head[6], middle[6], last[6];
    HeldRowPairs() = default;
    VONKK3_INLINE explicit HeldRowPairs(const RowsView<const Real32> &b) {
        forIndices(0, 6, fixed<6>, [&](std::size_t k) VONKK3_INLINED {
            head[k] = loadInEveryQuad<Lanes>(b.at(k, 0)), last[k] = loadInEveryQuad<Lanes>(b.at(k, 2));
            middle[k] = pick<2, 3, 0, 1>(last[k], head[k]);
        });
    }
    HeldRowPairs<4> inOneQuad() const {
        HeldRowPairs<4> held;
        for (std::size_t k = 0; k < 6; ++k)
            held.head[k] = quad<0>(head[k]), held.middle[k] = quad<0>(middle[k]), held.last[k] = quad<0>(last[k]);
        return held;
    }
};

// The same of a matrix that serves one object: only what takes a shuffle is held, and the rest read again.
template <std::size_t width> struct RowPairsInMemory {
    using Lanes = Register<width>;
    struct Rows {
        RowsView<const Real32> b;
        std::size_t from;
        VONKK3_INLINE Lanes operator[](std::size_t k) const { return loadInEveryQuad<Lanes>(b.at(k, from)); }
    };
    Rows head, last;
    Lanes middle[6];
    VONKK3_INLINE explicit RowPairsInMemory(const RowsView<const Real32> &b) : head{b, 0}, last{b, 2} {
        forIndices(0, 6, fixed<6>,
                   [&](std::size_t k) VONKK3_INLINED { middle[k] = pick<2, 3, 0, 1>(last[k], head[k]); });
    }
};

// Elements 0 to 3 and 2 to 5 of a row of each quad, and of two rows at once, the upper one's in the lower lanes.
template <std::size_t width> struct WholeRow {
    using Lanes = Register<width>;
    Lanes head, last;
    template <class RowOf>
    VONKK3_INLINE explicit WholeRow(const RowOf &rowOf)
        : head(ofQuads<Lanes>([&](std::size_t q) VONKK3_INLINED { return load4(rowOf(q)); })),
          last(ofQuads<Lanes>([&](std::size_t q) VONKK3_INLINED { return load4(rowOf(q) + 2 * sizeof(Real32)); })) {}
    VONKK3_INLINE Lanes operator[](std::size_t k) const {
        return k < 4 ? broadcastLane(head, k) : broadcastLane(last, k - 2);
    }
};
template <std::size_t width> struct TwoWholeRows {
    const WholeRow<width> &upper, &lower;
    VONKK3_INLINE Register<width> operator[](std::size_t k) const {
        return k < 4 ? broadcastLane(upper.head, lower.head, k) : broadcastLane(upper.last, lower.last, k - 2);
    }
};

template <class Factors, class Rows> VONKK3_INLINE auto sumOfSixRows(const Factors &factors, const Rows &rows) {
    auto sum = factors[0] * rows[0];
    forIndices(1, 6, fixed<6>, [&](std::size_t k) VONKK3_INLINED { sum = multiplyAdd(sum, factors[k], rows[k]); });
    return sum;
}

// Two rows of the result in each quad; those of quad q begin at sourceOf(q) and targetOf(q).
template <std::size_t width, class RowPairs, class SourceOf, class TargetOf>
VONKK3_INLINE void multiplyTwoRowsAtOnce(const SourceOf &sourceOf, std::ptrdiff_t rowStride, const RowPairs &b,
                                         const TargetOf &targetOf) {
    const WholeRow<width> upper(sourceOf);
    const WholeRow<width> lower([&](std::size_t q) VONKK3_INLINED { return sourceOf(q) + rowStride; });
    const auto storePart = [&](std::size_t part, Register<width> lanes) VONKK3_INLINED {
        forEachQuad<width>([&](auto q) VONKK3_INLINED { store4(targetOf(q) + part * laneBytes, quad<q>(lanes)); });
    };
    storePart(0, sumOfSixRows(upper, b.head));
    storePart(1, sumOfSixRows(TwoWholeRows<width>{upper, lower}, b.middle));
    storePart(2, sumOfSixRows(lower, b.last));
}

inline constexpr std::size_t bytesOfRowPair = 3 * laneBytes;

// Each object by its own matrix: several row pairs of one object at once.
VONKK3_INLINE void multiplyByItsOwn(const RowsView<const Real32> &a, const RowsView<const Real32> &b, std::byte *d) {
    const auto multiplyPairs = [&](auto width, std::size_t half) VONKK3_INLINED {
        multiplyTwoRowsAtOnce<width>([&](std::size_t q) VONKK3_INLINED { return a.at(2 * (half + q), 0); }, a.rowStride,
                                     RowPairsInMemory<width>(b),
                                     [&](std::size_t q) VONKK3_INLINED { return d + (half + q) * bytesOfRowPair; });
    };
    std::size_t half = 0;
    for (; half + quadsAtOnce <= 3; half += quadsAtOnce) multiplyPairs(fixed<widestRegister>, half);
    for (; half < 3; ++half) multiplyPairs(fixed<4>, half);
}

// Objects by one matrix: the same row pair of an object in each quad.
template <std::size_t width, class A, class D>
VONKK3_INLINE void multiplyByHeld(const A &src1, const HeldRowPairs<width> &b, const D &dst, std::size_t n) {
    forIndices(0, 3, fixed<3>, [&](std::size_t half) VONKK3_INLINED {
        multiplyTwoRowsAtOnce<width>(
            [&](std::size_t q) VONKK3_INLINED { return src1.view(n + q).at(2 * half, 0); }, src1.rowSpacing(), b,
            [&](std::size_t q) VONKK3_INLINED { return dst.view(n + q).base + half * bytesOfRowPair; });
    });
}

// How many objects were done: all or none.
template <class A, class B, class D>
VONKK3_INLINE std::size_t multiplyByRowPairs(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    if (!dst.hasPackedRows(6)) return 0;
    const auto mayWork = [&](const auto &matrices) { // a single matrix is read before any result is stored
        if constexpr (B::isArray)                    // one object after the other
            if (disjoint(extentOfAll(dst, 6, 6, objects), extentOfAll(matrices, 6, 6, objects))) return true;
        const ObjectsView source = objectsOf(matrices, 6, 6, objects), d = objectsOf(dst, 6, 6, objects);
        return Aliasing(objects, writes(d), reads(source)).allowsBatch(0, objects);
    };
    if (!mayWork(src1)) return 0;
    if constexpr (B::isArray)
        if (!mayWork(src2)) return 0;
    if constexpr (B::isArray) {
        for (std::size_t n = 0; n < objects; ++n) multiplyByItsOwn(src1.view(n), src2.view(n), dst.view(n).base);
    } else {
        const HeldRowPairs<widestRegister> held(src2.view(0));
        std::size_t n = 0;
        for (; objects - n >= quadsAtOnce; n += quadsAtOnce) multiplyByHeld(src1, held, dst, n);
        if (n < objects) multiplyByHeld(src1, held.inOneQuad(), dst, n);
    }
    return objects;
}

} // namespace vonkk3::product
