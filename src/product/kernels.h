// Row-broadcast kernels: Real32 products of fixed order in four lanes. The second operand is held in registers, a row
// of the result is ((A(i,0) R0 + A(i,1) R1) + A(i,2) R2) + ..., with A read element by element, row by row, as it goes.
// That order of reads and stores is what calls in place stand on.
#pragma once

#include "frame/aliasing.h"
#include "frame/registers.h"
#include "frame/unroll.h"
#include "frame/views.h"
#include "product/sums.h"

namespace vonkk3::product {

inline constexpr std::size_t quadsAtOnce = widestRegister / 4;

inline __m128 broadcast(Real32 value) { return _mm_set1_ps(value); }

inline __m128 broadcastPair(Real32 low, Real32 high) { return _mm_setr_ps(low, low, high, high); }
template <class Lanes> VONKK3_INLINE Lanes multiplyAdd(Lanes sum, Lanes a, Lanes b) { return sum + a * b; }

template <class View> inline constexpr bool hasAdjacentRows = false;
template <class T> inline constexpr bool hasAdjacentRows<RowsView<T>> = true;

// Columns 0 to 3 (of 3x3: 0 to 2, and nothing in the fourth lane) of row i of a matrix, in the order of the lanes.
template <std::size_t order, class View> VONKK3_INLINE __m128 loadInOrder(const View &view, std::size_t i) {
    if constexpr (hasAdjacentRows<View> && order == 3) return _mm_movelh_ps(load2(view.at(i, 0)), load1(view.at(i, 2)));
    else if constexpr (hasAdjacentRows<View>) return load4(view.at(i, 0));
    else if constexpr (order == 3) return _mm_setr_ps(view.load(i, 0), view.load(i, 1), view.load(i, 2), 0);
    else return _mm_setr_ps(view.load(i, 0), view.load(i, 1), view.load(i, 2), view.load(i, 3));
}

// The same as the kernels work it. A row of 3x3 lies in lanes 0, 2 and 3, where one element and a pair go to and fro
// without shuffling.
inline __m128 shuffleThree(__m128 inOrder) { return _mm_shuffle_ps(inOrder, inOrder, _MM_SHUFFLE(2, 1, 0, 0)); }

template <std::size_t order, class View> VONKK3_INLINE __m128 loadRowHead(const View &view, std::size_t i) {
    if constexpr (order != 3) return loadInOrder<order>(view, i);
    else if constexpr (hasAdjacentRows<View>) return load3(view.at(i, 0));
    else return _mm_setr_ps(view.load(i, 0), 0, view.load(i, 1), view.load(i, 2));
}

template <std::size_t order, class View> VONKK3_INLINE void storeRowHead(const View &view, std::size_t i, __m128 row) {
    const auto lane = [&](std::size_t k) VONKK3_INLINED { return _mm_cvtss_f32(broadcastLane(row, k)); };
    if constexpr (hasAdjacentRows<View> && order == 3) store3(view.at(i, 0), row);
    else if constexpr (hasAdjacentRows<View>) store4(view.at(i, 0), row); // as two halves would come out, but quicker
    else {
        constexpr std::size_t columns = order == 3 ? 3 : 4;
        forIndices(0, columns, fixed<columns>,
                   [&](std::size_t j) VONKK3_INLINED { view.store(i, j, lane(order == 3 && j > 0 ? j + 1 : j)); });
    }
}

template <class View> VONKK3_INLINE void storePair(const View &view, std::size_t i, std::size_t j, __m128 lanes) {
    if constexpr (hasAdjacentRows<View>) store2(view.at(i, j), lanes);
    else view.store(i, j, _mm_cvtss_f32(lanes)), view.store(i, j + 1, _mm_cvtss_f32(broadcastLane(lanes, 1)));
}

// The second operand as the kernels hold it: row k of B in lanes, of 4x4 in every quad, and what lies beyond column 3.
template <std::size_t order> struct HeldRows {
    using Head = Register<order == 4 ? widestRegister : 4>;
    Head head[order];
    Real32 last[order];  // 5x5: column 4
    __m128 pairs[order]; // 6x6: columns 4 and 5, twice

    template <class View> VONKK3_INLINE void loadHead(const View &b) {
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            if constexpr (order == 4 && hasAdjacentRows<View>) head[k] = loadInEveryQuad<Head>(b.at(k, 0));
            else head[k] = inEveryQuad<Head>(loadRowHead<order>(b, k));
        });
    }

    // Of a matrix that is read transposed: row k of B is column k as stored, transposed in registers.
    template <class Stored> VONKK3_INLINE void loadHead(const TransposedView<Stored> &b) {
        constexpr std::size_t lanes = order == 3 ? 3 : 4;
        __m128 rows[4];
        rows[3] = _mm_setzero_ps();
        forIndices(0, lanes, fixed<lanes>,
                   [&](std::size_t j) VONKK3_INLINED { rows[j] = loadInOrder<order>(b.stored, j); });
        transpose(rows[0], rows[1], rows[2], rows[3]);
        forIndices(0, lanes, fixed<lanes>, [&](std::size_t k) VONKK3_INLINED {
            head[k] = inEveryQuad<Head>(order == 3 ? shuffleThree(rows[k]) : rows[k]);
        });
        if constexpr (order > 4)
            forIndices(4, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
                head[k] = _mm_setr_ps(b.load(k, 0), b.load(k, 1), b.load(k, 2), b.load(k, 3));
            });
    }

    template <class View> VONKK3_INLINE void loadLast(const View &b) {
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED { last[k] = b.load(k, 4); });
    }

    template <class View> VONKK3_INLINE void loadPairs(const View &b) {
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            const __m128 two = _mm_setr_ps(b.load(k, 4), b.load(k, 5), 0, 0);
            pairs[k] = _mm_movelh_ps(two, two);
        });
    }
};

// The elements of row i of A, each in all four lanes; read when the row's turn comes.
template <std::size_t order, class View> struct RowFactors {
    const View &a;
    std::size_t i;
    VONKK3_INLINE RowFactors(const View &a, std::size_t i) : a(a), i(i) {}
    VONKK3_INLINE __m128 operator[](std::size_t k) const { return broadcast(a.load(i, k)); }
};

// Where they are adjacent, four of them come with one load.
template <std::size_t order, class T>
requires(order >= 4) struct RowFactors<order, RowsView<T>> {
    const RowsView<T> &a;
    std::size_t i;
    __m128 head;
    VONKK3_INLINE RowFactors(const RowsView<T> &a, std::size_t i) : a(a), i(i), head(load4(a.at(i, 0))) {}
    VONKK3_INLINE __m128 operator[](std::size_t k) const {
        return k < 4 ? broadcastLane(head, k) : broadcast(a.load(i, k));
    }
};

// The elements of rows i and i + 1 of A, each in two lanes.
template <class View> struct TwoRowFactors {
    const View &a;
    std::size_t i;
    VONKK3_INLINE TwoRowFactors(const View &a, std::size_t i) : a(a), i(i) {}
    VONKK3_INLINE __m128 operator[](std::size_t k) const { return broadcastPair(a.load(i, k), a.load(i + 1, k)); }
};

template <class T> struct TwoRowFactors<RowsView<T>> {
    __m128 elements[6];
    VONKK3_INLINE TwoRowFactors(const RowsView<T> &a, std::size_t i) {
        const __m128 upper = load4(a.at(i, 0)), lower = load4(a.at(i + 1, 0));
        const __m128 upperEnd = load2(a.at(i, 4)), lowerEnd = load2(a.at(i + 1, 4));
        forIndices(0, 4, fixed<4>, [&](std::size_t k) VONKK3_INLINED { elements[k] = broadcastLane(upper, lower, k); });
        elements[4] = broadcastLane(upperEnd, lowerEnd, 0);
        elements[5] = broadcastLane(upperEnd, lowerEnd, 1);
    }
    VONKK3_INLINE __m128 operator[](std::size_t k) const { return elements[k]; }
};

// The first term of a sum.
template <SumBegins begins, class Lanes> VONKK3_INLINE Lanes firstTerm(Lanes product) {
    return begins == SumBegins::withZero ? vonkk3::broadcast<Lanes>(0) + product : product;
}

// Columns 0 to 3 of row i of the product.
template <SumBegins begins, std::size_t order, class A>
VONKK3_INLINE __m128 rowHead(const A &a, std::size_t i, const HeldRows<order> &b) {
    const RowFactors<order, A> factors(a, i);
    const auto row = [&](std::size_t k) VONKK3_INLINED { return narrowed<__m128>(b.head[k]); };
    __m128 sum = firstTerm<begins>(_mm_mul_ps(factors[0], row(0)));
    forIndices(1, order, fixed<order>,
               [&](std::size_t k) VONKK3_INLINED { sum = multiplyAdd(sum, factors[k], row(k)); });
    return sum;
}

// Packed 4x4 in registers of several rows. All of a matrix is read before anything is stored.
template <SumBegins begins>
VONKK3_INLINE void multiplyPackedRows(const RowsView<const Real32> &a, const HeldRows<4> &b,
                                      const RowsView<Real32> &d) {
    constexpr std::size_t registers = 16 / widestRegister;
    WideRegister rows[registers];
    forIndices(0, registers, fixed<registers>,
               [&](std::size_t r) VONKK3_INLINED { rows[r] = loadLanes<WideRegister>(a.base + r * sizeof rows[r]); });
    forIndices(0, registers, fixed<registers>, [&](std::size_t r) VONKK3_INLINED {
        WideRegister sum = firstTerm<begins>(broadcastLane(rows[r], 0) * b.head[0]);
        forIndices(1, 4, fixed<4>,
                   [&](std::size_t k) VONKK3_INLINED { sum = multiplyAdd(sum, broadcastLane(rows[r], k), b.head[k]); });
        storeLanes(d.base + r * sizeof sum, sum);
    });
}

// 3x3 and 4x4: a row is one register.
template <SumBegins begins, std::size_t order, class A, class D>
VONKK3_INLINE void multiplyRows(const A &a, const HeldRows<order> &b, const D &d) {
    if constexpr (order == 4 && hasAdjacentRows<A> && hasAdjacentRows<D> && widestRegister > 4)
        if (a.hasPackedRows(4) && d.hasPackedRows(4) && mayReadFirst(a, d, 4))
            return multiplyPackedRows<begins>(a, b, d);
    forIndices(0, order, fixed<order>,
               [&](std::size_t i) VONKK3_INLINED { storeRowHead<order>(d, i, rowHead<begins>(a, i, b)); });
}

// 5x5: column 4 runs beside the lanes, in the same order. `column4(k)` gives B(k, 4): held, or read again for every
// row.
template <SumBegins begins, class A, class D, class Column4>
VONKK3_INLINE void multiplyRowsOfFive(const A &a, const HeldRows<5> &b, const D &d, const Column4 &column4) {
    forIndices(0, 5, fixed<5>, [&](std::size_t i) VONKK3_INLINED {
        const RowFactors<5, A> factors(a, i);
        __m128 head = firstTerm<begins>(_mm_mul_ps(factors[0], b.head[0]));
        Real32 last = _mm_cvtss_f32(factors[0]) * column4(0);
        if constexpr (begins == SumBegins::withZero) last = 0.0F + last;
        forIndices(1, 5, fixed<5>, [&](std::size_t k) VONKK3_INLINED {
            const __m128 factor = factors[k];
            head = multiplyAdd(head, factor, b.head[k]);
            last = _mm_cvtss_f32(factor) * column4(k) + last;
        });
        storeRowHead<5>(d, i, head);
        d.store(i, 4, last);
    });
}

// 6x6, first pass: columns 0 to 3 of all rows.
template <SumBegins begins, class A, class D>
VONKK3_INLINE void multiplyRowsOfSix(const A &a, const HeldRows<6> &b, const D &d) {
    forIndices(0, 6, fixed<6>, [&](std::size_t i) VONKK3_INLINED { storeRowHead<6>(d, i, rowHead<begins>(a, i, b)); });
}

// 6x6, second pass: columns 4 and 5, two rows in one register.
template <SumBegins begins, class A, class D>
VONKK3_INLINE void multiplyPairsOfSix(const A &a, const HeldRows<6> &b, const D &d) {
    forIndices(0, 3, fixed<3>, [&](std::size_t half) VONKK3_INLINED {
        const std::size_t i = 2 * half;
        const TwoRowFactors<A> factors(a, i);
        __m128 sum = firstTerm<begins>(_mm_mul_ps(factors[0], b.pairs[0]));
        forIndices(1, 6, fixed<6>,
                   [&](std::size_t k) VONKK3_INLINED { sum = multiplyAdd(sum, factors[k], b.pairs[k]); });
        storePair(d, i, 4, sum);
        storePair(d, i + 1, 4, _mm_movehl_ps(sum, sum));
    });
}

// The pair-sum kernel of 6x6: the only one whose additions are not in plain order, ((p0 + p1) + (p2 + p3)) + (p4 + p5).
// B is gathered first. Rows go in twos, each held before any of it is stored: the upper row, then columns 4 and 5 and
// then 0 to 3 of the lower one.
template <class A, class B, class D> VONKK3_INLINE void multiplyByPairSums(const A &a, const B &b, const D &d) {
    alignas(16) Real32 gathered[6][6];
    for (std::size_t k = 0; k < 6; ++k)
        for (std::size_t j = 0; j < 6; ++j) gathered[k][j] = b.load(k, j);
    for (std::size_t i = 0; i < 6; i += 2) {
        Real32 rows[2][6], results[2][6];
        for (std::size_t r = 0; r < 2; ++r)
            for (std::size_t k = 0; k < 6; ++k) rows[r][k] = a.load(i + r, k);
        for (std::size_t r = 0; r < 2; ++r)
            for (std::size_t j = 0; j < 6; ++j) {
                const auto product = [&](std::size_t k) { return rows[r][k] * gathered[k][j]; };
                results[r][j] = ((product(0) + product(1)) + (product(2) + product(3))) + (product(4) + product(5));
            }
        for (std::size_t j = 0; j < 6; ++j) d.store(i, j, results[0][j]);
        for (std::size_t j = 4; j < 6; ++j) d.store(i + 1, j, results[1][j]);
        for (std::size_t j = 0; j < 4; ++j) d.store(i + 1, j, results[1][j]);
    }
}

} // namespace vonkk3::product
