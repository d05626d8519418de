// Kernels of Real32 matrix by vector, fixed order, adjacent elements. Each has its own order of additions, which is
// told beside it with p0, p1, ... for the products of a row's elements and the vector's.
#pragma once

#include "frame/registers.h"
#include "frame/unroll.h"
#include "frame/views.h"
#include "product/kernels.h"

namespace vonkk3::product {

inline __m128 add(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
inline __m128 multiply(__m128 a, __m128 b) { return _mm_mul_ps(a, b); }

// A vector in registers: elements 0 to 3 (of 3x3: 0 to 2) in order, and elements 4 and 5.
template <std::size_t width> struct ProductVectors { // one in each quad
    Register<width> head, tail;
    friend ProductVectors operator+(const ProductVectors &a, const ProductVectors &b) {
        return {a.head + b.head, a.tail + b.tail};
    }
};
using ProductVector = ProductVectors<4>;

template <std::size_t order> VONKK3_INLINE ProductVector loadVector(const std::byte *address) {
    if constexpr (order == 3) return {_mm_movelh_ps(load2(address), load1(address + 8)), _mm_setzero_ps()};
    else {
        const Lanes<order> lanes = Lanes<order>::load(address);
        return {lanes.head, lanes.tail};
    }
}

template <std::size_t order> VONKK3_INLINE void storeVector(std::byte *address, ProductVector vector) {
    if constexpr (order == 3) {
        store2(address, vector.head);
        keepStoreOrder();
        store1(address + 8, _mm_movehl_ps(vector.head, vector.head));
    } else Lanes<order>{vector.head, vector.tail}.store(address);
}

// For two registers u and l, (u0 + u2, u1 + u3, l0 + l2, l1 + l3), quad by quad. One operand of the addition is a blend
// of whole halves, which more of a processor's units can do than a shuffle.
template <class Lanes> VONKK3_INLINE Lanes addHalves(Lanes u, Lanes l) {
    return outerPairs(u, l) + pick<2, 3, 0, 1>(u, l);
}

// ---- The matrix as stored, by order ---------------------------------------------------------------------------------

template <std::size_t order> struct PlainMatrix;

// ((p0 + p1) + p2); lanes are the elements of the result.
template <> struct PlainMatrix<3> {
    __m128 columns[3];

    template <class View> VONKK3_INLINE explicit PlainMatrix(const View &a) {
        __m128 row0 = loadInOrder<3>(a, 0), row1 = loadInOrder<3>(a, 1), row2 = loadInOrder<3>(a, 2);
        __m128 nothing = _mm_setzero_ps();
        transpose(row0, row1, row2, nothing);
        columns[0] = row0, columns[1] = row1, columns[2] = row2;
    }

    struct Factors {
        __m128 elements[3];
        VONKK3_INLINE explicit Factors(const std::byte *v) {
            forIndices(0, 3, fixed<3>,
                       [&](std::size_t k) VONKK3_INLINED { elements[k] = broadcast(loadAt<Real32>(v + 4 * k)); });
        }
    };

    VONKK3_INLINE ProductVector times(const Factors &v) const {
        const __m128 sum = multiplyAdd(multiply(columns[0], v.elements[0]), columns[1], v.elements[1]);
        return {multiplyAdd(sum, columns[2], v.elements[2]), _mm_setzero_ps()};
    }
};

// The same of packed rows, for a matrix that serves one vector alone: registers begin at each row, but the last at the
// element before, so that none reaches past the end of the matrix; products are shuffled instead of elements.
struct PackedMatrixOfThree {
    struct Factors {
        __m128 elements, behindOther; // from lane 0 on, and from lane 1 on
        VONKK3_INLINE explicit Factors(const std::byte *v)
            : elements(loadVector<3>(v).head),
              behindOther(_mm_shuffle_ps(elements, elements, _MM_SHUFFLE(2, 1, 0, 3))) {}
    };
    __m128 row0, row1, row2;

    VONKK3_INLINE explicit PackedMatrixOfThree(const RowsView<const Real32> &a)
        : row0(load4(a.at(0))), row1(load4(a.at(3))), row2(load4(a.at(5))) {}

    VONKK3_INLINE ProductVector times(const Factors &v) const {
        const __m128 upper = multiply(row0, v.elements), middle = multiply(row1, v.elements);
        const __m128 lower = multiply(row2, v.behindOther);
        const __m128 firstTwo = _mm_unpacklo_ps(upper, middle), third = _mm_unpackhi_ps(upper, middle);
        const __m128 p0 = _mm_shuffle_ps(firstTwo, lower, _MM_SHUFFLE(1, 1, 1, 0));
        const __m128 p1 = _mm_shuffle_ps(firstTwo, lower, _MM_SHUFFLE(2, 2, 3, 2));
        const __m128 p2 = _mm_shuffle_ps(third, lower, _MM_SHUFFLE(3, 3, 1, 0));
        return {add(add(p0, p1), p2), _mm_setzero_ps()};
    }
};

// Two rows interleaved, in every quad: their columns 0 and 1, 2 and 3, and of 6x6 4 and 5.
template <std::size_t order, std::size_t width = 4> struct RowPair {
    using Lanes = Register<width>;
    Lanes columns[order / 2];

    template <class View> VONKK3_INLINE void load(const View &a, std::size_t i) {
        const Lanes upper = loadInEveryQuad<Lanes>(a.at(i, 0)), lower = loadInEveryQuad<Lanes>(a.at(i + 1, 0));
        columns[0] = unpackLow(upper, lower);
        columns[1] = unpackHigh(upper, lower);
        if constexpr (order == 6)
            columns[2] = inEveryQuad<Lanes>(_mm_unpacklo_ps(load2(a.at(i, 4)), load2(a.at(i + 1, 4))));
    }
};

// The vector's elements as row pairs want them: (v0, v0, v1, v1), (v2, v2, v3, v3), ...
template <std::size_t order, std::size_t width = 4> struct PairFactors {
    Register<width> elements[order / 2];
    VONKK3_INLINE explicit PairFactors(const ProductVectors<width> &v) {
        elements[0] = unpackLow(v.head, v.head);
        elements[1] = unpackHigh(v.head, v.head);
        if constexpr (order == 6) elements[2] = unpackLow(v.tail, v.tail);
    }
    VONKK3_INLINE explicit PairFactors(const std::byte *v) : PairFactors(loadVector<order>(v)) {}
};

// (p0 + p2) + (p1 + p3)
template <> struct PlainMatrix<4> {
    using Factors = PairFactors<4>;
    RowPair<4> pairs[2];

    template <class View> VONKK3_INLINE explicit PlainMatrix(const View &a) {
        pairs[0].load(a, 0), pairs[1].load(a, 2);
    }

    VONKK3_INLINE ProductVector times(const Factors &v) const {
        const __m128 upper =
            multiplyAdd(multiply(pairs[0].columns[0], v.elements[0]), pairs[0].columns[1], v.elements[1]);
        const __m128 lower =
            multiplyAdd(multiply(pairs[1].columns[0], v.elements[0]), pairs[1].columns[1], v.elements[1]);
        return {addHalves(upper, lower), _mm_setzero_ps()};
    }
};

// The same for a matrix that serves one vector alone, which is not worth turning round: rows as they lie.
struct PassingMatrixOfFour {
    struct Factors {
        __m128 elements;
        VONKK3_INLINE explicit Factors(const std::byte *v) : elements(load4(v)) {}
    };
    __m128 rows[4];

    template <class View> VONKK3_INLINE explicit PassingMatrixOfFour(const View &a) {
        forIndices(0, 4, fixed<4>, [&](std::size_t i) VONKK3_INLINED { rows[i] = load4(a.at(i, 0)); });
    }

    // (p0 + p2, p1 + p3) of rows i and i + 1.
    VONKK3_INLINE __m128 halves(std::size_t i, const Factors &v) const {
        return addHalves(multiply(rows[i], v.elements), multiply(rows[i + 1], v.elements));
    }
    VONKK3_INLINE ProductVector times(const Factors &v) const {
        const __m128 upper = halves(0, v), lower = halves(2, v);
        const __m128 even = _mm_shuffle_ps(upper, lower, _MM_SHUFFLE(2, 0, 2, 0));
        const __m128 odd = _mm_shuffle_ps(upper, lower, _MM_SHUFFLE(3, 1, 3, 1));
        return {add(even, odd), _mm_setzero_ps()};
    }
};

// ((p0 + p2) + p4) + ((p1 + p3) + p5)
template <std::size_t width> struct PlainMatrixOfSix {
    using Factors = PairFactors<6, width>;
    RowPair<6, width> pairs[3];

    template <class View> VONKK3_INLINE explicit PlainMatrixOfSix(const View &a) {
        forIndices(0, 3, fixed<3>, [&](std::size_t half) VONKK3_INLINED { pairs[half].load(a, 2 * half); });
    }

    VONKK3_INLINE auto halves(std::size_t half, const Factors &v) const {
        const auto &columns = pairs[half].columns;
        return multiplyAdd(multiplyAdd(columns[0] * v.elements[0], columns[1], v.elements[1]), columns[2],
                           v.elements[2]);
    }

    VONKK3_INLINE ProductVectors<width> times(const Factors &v) const {
        const auto upper = halves(0, v), middle = halves(1, v), lower = halves(2, v);
        return {addHalves(upper, middle), lower + highPairs(lower, lower)};
    }
};
template <> struct PlainMatrix<6> : PlainMatrixOfSix<4> { using PlainMatrixOfSix::PlainMatrixOfSix; };

// Elements 0 to 3: ((p0 + p1) + p4) + (p2 + p3). Element 4 is rounded in another order: ((p0 + p2) + p4) + (p1 + p3).
template <> struct PlainMatrix<5> {
    __m128 columns[5]; // rows 0 to 3
    __m128 row4;
    Real32 corner;

    template <class View> VONKK3_INLINE explicit PlainMatrix(const View &a) {
        __m128 row0 = load4(a.at(0, 0)), row1 = load4(a.at(1, 0)), row2 = load4(a.at(2, 0)), row3 = load4(a.at(3, 0));
        transpose(row0, row1, row2, row3);
        columns[0] = row0, columns[1] = row1, columns[2] = row2, columns[3] = row3;
        columns[4] = _mm_setr_ps(a.load(0, 4), a.load(1, 4), a.load(2, 4), a.load(3, 4));
        row4 = load4(a.at(4, 0));
        corner = a.load(4, 4);
    }

    struct Factors {
        __m128 elements[5];
        __m128 head;
        VONKK3_INLINE explicit Factors(const std::byte *v) {
            forIndices(0, 5, fixed<5>,
                       [&](std::size_t k) VONKK3_INLINED { elements[k] = broadcast(loadAt<Real32>(v + 4 * k)); });
            head = load4(v);
        }
    };

    VONKK3_INLINE ProductVector times(const Factors &v) const {
        const __m128 first = multiplyAdd(multiply(columns[0], v.elements[0]), columns[1], v.elements[1]);
        const __m128 second = multiplyAdd(multiply(columns[2], v.elements[2]), columns[3], v.elements[3]);
        const __m128 products = multiply(row4, v.head);
        const __m128 halves = add(products, _mm_movehl_ps(products, products)); // p0 + p2, p1 + p3
        const __m128 odd = _mm_shuffle_ps(halves, halves, _MM_SHUFFLE(1, 1, 1, 1));
        const __m128 last = _mm_mul_ss(_mm_set_ss(corner), v.elements[4]);
        return {add(multiplyAdd(first, columns[4], v.elements[4]), second), _mm_add_ss(_mm_add_ss(halves, last), odd)};
    }
};

// ---- The matrix transposed: lanes are the elements of the result ----------------------------------------------------

// 3: ((p0 + p1) + p2); 4: (p0 + p1) + (p2 + p3); 5: ((p0 + p1) + p4) + (p2 + p3), all elements alike;
// 6: ((p0 + p1) + (p2 + p3)) + (p4 + p5).
template <std::size_t order> VONKK3_INLINE __m128 sumTransposed(const __m128 (&p)[order]) {
    if constexpr (order == 3) return add(add(p[0], p[1]), p[2]);
    else if constexpr (order == 4) return add(add(p[0], p[1]), add(p[2], p[3]));
    else if constexpr (order == 5) return add(add(add(p[0], p[1]), p[4]), add(p[2], p[3]));
    else return add(add(add(p[0], p[1]), add(p[2], p[3])), add(p[4], p[5]));
}

template <std::size_t order> struct TransposedMatrix {
    ProductVector rows[order];

    template <class View> VONKK3_INLINE explicit TransposedMatrix(const TransposedView<View> &a) {
        forIndices(0, order, fixed<order>,
                   [&](std::size_t k) VONKK3_INLINED { rows[k] = loadVector<order>(a.stored.at(k, 0)); });
    }

    struct Factors {
        __m128 elements[order];
        VONKK3_INLINE explicit Factors(const std::byte *v) {
            forIndices(0, order, fixed<order>,
                       [&](std::size_t k) VONKK3_INLINED { elements[k] = broadcast(loadAt<Real32>(v + 4 * k)); });
        }
    };

    VONKK3_INLINE ProductVector times(const Factors &v) const {
        __m128 heads[order], tails[order];
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            heads[k] = multiply(rows[k].head, v.elements[k]);
            if constexpr (order > 4) tails[k] = multiply(rows[k].tail, v.elements[k]);
        });
        if constexpr (order > 4) return {sumTransposed(heads), sumTransposed(tails)};
        else return {sumTransposed(heads), _mm_setzero_ps()};
    }
};

// How a matrix is brought into registers: for all objects, or for one of them and its vector.
template <std::size_t order, bool isTransposed, bool isArray> struct MatrixInLanes {
    using Type = std::conditional_t<isTransposed, TransposedMatrix<order>, PlainMatrix<order>>;
};
template <> struct MatrixInLanes<4, false, true> { using Type = PassingMatrixOfFour; };

template <class A, std::size_t order>
using HeldMatrix = typename MatrixInLanes<order, A::isTransposed, A::isArray>::Type;

} // namespace vonkk3::product
