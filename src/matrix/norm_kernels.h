// Kernels of the Frobenius norm: Real32 matrices of fixed order whose rows are adjacent elements. Each has its own
// order of additions, told beside it with pij for the square of element (i, j) and cj for the sum of column j.
#pragma once

#include "frame/estimate.h"
#include "frame/lanes.h"
#include "frame/straight.h"
#include "frame/vector_blocks.h"

namespace vonkk3::matrix {

VONKK3_INLINE __m128 add(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
VONKK3_INLINE __m128 square(__m128 a) { return _mm_mul_ps(a, a); }

// Lanes 0 and 2, 1 and 3 of two registers, each pair beside its counterpart: what a sum of halves adds.
template <class Lanes> VONKK3_INLINE Lanes addHalves(Lanes a, Lanes b) { return lowPairs(a, b) + highPairs(a, b); }
VONKK3_INLINE __m128 lane1(__m128 lanes) { return pick<1, 1, 1, 1>(lanes, lanes); }
VONKK3_INLINE __m128 lane2(__m128 lanes) { return _mm_movehl_ps(lanes, lanes); }

// ---- One object: the sum of squares in lane 0 -----------------------------------------------------------------------

template <std::size_t order> VONKK3_INLINE __m128 loadSquares(const RowsView<const Real32> &a, std::size_t i) {
    if constexpr (order == 3) return square(_mm_movelh_ps(load2(a.at(i, 0)), load1(a.at(i, 2))));
    else return square(load4(a.at(i, 0)));
}

// cj = (p0j + p1j) + p2j; (c0 + c1) + c2
VONKK3_INLINE __m128 sumOfSquares(const RowsView<const Real32> &a, Fixed<3>) {
    const __m128 c = add(add(loadSquares<3>(a, 0), loadSquares<3>(a, 1)), loadSquares<3>(a, 2));
    return _mm_add_ss(_mm_add_ss(c, lane1(c)), lane2(c));
}

// Columns 0 to 3: cj = (p0j + p1j) + (p2j + p3j)
template <std::size_t order> VONKK3_INLINE __m128 firstFourRows(const RowsView<const Real32> &a) {
    return add(add(loadSquares<order>(a, 0), loadSquares<order>(a, 1)),
               add(loadSquares<order>(a, 2), loadSquares<order>(a, 3)));
}
VONKK3_INLINE __m128 sumOfFour(__m128 c) { // (c0 + c2) + (c1 + c3)
    const __m128 halves = add(c, _mm_movehl_ps(c, c));
    return _mm_add_ss(halves, lane1(halves));
}

VONKK3_INLINE __m128 sumOfSquares(const RowsView<const Real32> &a, Fixed<4>) { return sumOfFour(firstFourRows<4>(a)); }

// cj = ((p0j + p1j) + (p2j + p3j)) + p4j; ((c0 + c2) + (c1 + c3)) + c4
VONKK3_INLINE __m128 sumOfSquares(const RowsView<const Real32> &a, Fixed<5>) {
    const __m128 c = add(firstFourRows<5>(a), loadSquares<5>(a, 4));
    const auto p4 = [&](std::size_t i) VONKK3_INLINED {
        const __m128 element = load1(a.at(i, 4));
        return _mm_mul_ss(element, element);
    };
    const __m128 c4 = _mm_add_ss(_mm_add_ss(_mm_add_ss(p4(0), p4(1)), _mm_add_ss(p4(2), p4(3))), p4(4));
    return _mm_add_ss(sumOfFour(c), c4);
}

// Columns 0 to 3: cj = ((p0j + p1j) + (p2j + p3j)) + (p4j + p5j). Columns 4 and 5: ((p0j + p2j) + p4j) + ((p1j + p3j) +
// p5j), in lanes as c4, c5 of the even rows and c4, c5 of the odd ones. ((c0 + c2) + (c1 + c3)) + (c4 + c5)
template <class Head> VONKK3_INLINE auto headsOfSix(const Head &head) { // of row i
    const auto p = [&](std::size_t i) VONKK3_INLINED { return head(i) * head(i); };
    return ((p(0) + p(1)) + (p(2) + p(3))) + (p(4) + p(5));
}
template <class Tails> VONKK3_INLINE auto tailsOfSix(const Tails &tails) { // of rows i and i + 1
    const auto p = [&](std::size_t i) VONKK3_INLINED { return tails(i) * tails(i); };
    return (p(0) + p(2)) + p(4);
}
VONKK3_INLINE __m128 headOfSix(const RowsView<const Real32> &a, std::size_t i) { return load4(a.at(i, 0)); }
VONKK3_INLINE __m128 twoTailsOfSix(const RowsView<const Real32> &a, std::size_t i) {
    return _mm_loadh_pi(load2(a.at(i, 4)), pair(a.at(i + 1, 4)));
}

VONKK3_INLINE __m128 sumOfSquares(const RowsView<const Real32> &a, Fixed<6>) {
    const __m128 heads = headsOfSix([&](std::size_t i) VONKK3_INLINED { return headOfSix(a, i); });
    const __m128 tails = tailsOfSix([&](std::size_t i) VONKK3_INLINED { return twoTailsOfSix(a, i); });
    return _mm_add_ss(sumOfFour(heads), sumOfFour(tails));
}

// ---- Four objects, one per lane -------------------------------------------------------------------------------------

// (((p00 + p01) + p22) + (p02 + p10)) + ((p11 + p12) + (p20 + p21))
template <bool areAdjacent, class ViewOf> VONKK3_INLINE __m128 sumsOfSquares(const ViewOf &view, Fixed<3>) {
    __m128 first[4], second[4], corner[4]; // p00 p01 p02 p10, p11 p12 p20 p21, p22
    forEachBelow<4>([&](std::size_t k) VONKK3_INLINED {
        const RowsView<const Real32> a = view(k);
        if constexpr (areAdjacent) {
            first[k] = square(load4(a.base));
            second[k] = square(load4(a.base + 16));
        } else {
            const __m128 middle = _mm_unpacklo_ps(load1(a.at(0, 2)), load1(a.at(1, 0)));
            first[k] = square(_mm_movelh_ps(load2(a.at(0, 0)), middle));
            second[k] = square(_mm_loadh_pi(load2(a.at(1, 1)), pair(a.at(2, 0))));
        }
        corner[k] = load1(a.at(2, 2));
    });
    const __m128 lowFirst = addNeighbours(first[0], first[1]), highFirst = addNeighbours(first[2], first[3]);
    const __m128 lowSecond = addNeighbours(second[0], second[1]), highSecond = addNeighbours(second[2], second[3]);
    const __m128 p22 =
        square(_mm_movelh_ps(_mm_unpacklo_ps(corner[0], corner[1]), _mm_unpacklo_ps(corner[2], corner[3])));
    const __m128 p0001 = _mm_shuffle_ps(lowFirst, highFirst, _MM_SHUFFLE(2, 0, 2, 0));
    const __m128 p0210 = _mm_shuffle_ps(lowFirst, highFirst, _MM_SHUFFLE(3, 1, 3, 1));
    return add(add(add(p0001, p22), p0210), addNeighbours(lowSecond, highSecond));
}

// (c0 + c1) + (c2 + c3)
template <bool, class ViewOf> VONKK3_INLINE __m128 sumsOfSquares(const ViewOf &view, Fixed<4>) {
    const __m128 low = addNeighbours(firstFourRows<4>(view(0)), firstFourRows<4>(view(1)));
    const __m128 high = addNeighbours(firstFourRows<4>(view(2)), firstFourRows<4>(view(3)));
    return addNeighbours(low, high);
}

// The order of one object, for as many as the register has lanes.
template <std::size_t width, class ViewOf> VONKK3_INLINE Register<width> sumsOfSquaresOfSix(const ViewOf &view) {
    const auto ofObjects = [&](std::size_t k, const auto &part) VONKK3_INLINED { // k of every quad
        return [&view, &part, k](std::size_t i) VONKK3_INLINED {
            return ofQuads<Register<width>>([&](std::size_t q) VONKK3_INLINED { return part(view(4 * q + k), i); });
        };
    };
    const auto heads = [&](std::size_t k) VONKK3_INLINED { return headsOfSix(ofObjects(k, headOfSix)); };
    const auto tails = [&](std::size_t k) VONKK3_INLINED { return tailsOfSix(ofObjects(k, twoTailsOfSix)); };
    const auto low = addHalves(heads(0), heads(1)), lowTails = addHalves(tails(0), tails(1));
    const auto high = addHalves(heads(2), heads(3)), highTails = addHalves(tails(2), tails(3));
    return addNeighbours(low, high) + addNeighbours(lowTails, highTails);
}

} // namespace vonkk3::matrix
