// A filter for determinants of Real32 that are promised in the 80-bit type and rounded once: the polynomial in double,
// in an order of its own, and a bound of the error.
//
// Products of two elements are exact in double, and nothing leaves its range: of six elements none is above 2^768 or
// below 2^-894. On the way of a term to a determinant of order 6 lie no more than 15 roundings (of a sum, or of a
// product with a minor; fewer of lower order), each to 53 bits here and to 53 or 64 bits in the 80-bit type. With M the
// sum of the magnitudes of all terms, both results are thus within 15.1 * 2^-53 M of the exact one, and within 2^-48 M
// of each other. M is no more than the product of the sums of the magnitudes in each row, each term of M being one of
// that product's. `error`, 2^-47 times it, leaves as much again for the roundings of the bound itself, where all is
// positive, and of the interval's ends. Rounding is monotone: if both ends round to one Real32, the promised result
// rounds to it. Doubtful are the other lanes, results of 0, whose sign the interval does not tell, and what is infinite
// or NaN.
#pragma once

#include "frame/doubles.h"
#include "lu/local_block.h"
#include "lu/minors.h"

namespace vonkk3::lu {

// By the minors of the first two rows and of the last two.
template <class A> VONKK3_INLINE Doubles determinantByHalves(const A &a) {
    const auto minorOf = [&](std::size_t i, std::size_t j, std::size_t k)
                             VONKK3_INLINED { return a(i, j) * a(i + 1, k) - a(i, k) * a(i + 1, j); };
    const auto term = [&](std::size_t j, std::size_t k, std::size_t l, std::size_t m)
                          VONKK3_INLINED { return minorOf(0, j, k) * minorOf(2, l, m); };
    return term(0, 1, 2, 3) - term(0, 2, 1, 3) + term(0, 3, 1, 2) + term(1, 2, 0, 3) - term(1, 3, 0, 2) +
           term(2, 3, 0, 1);
}

// The results of a pack of objects, and the lanes where they are no more than likely.
template <std::size_t width> struct DeterminantFilter {
    PackOf<width> results;
    unsigned doubts; // a bit for each lane

    template <std::size_t chains, std::size_t order>
    VONKK3_INLINE explicit DeterminantFilter(const Packs<chains> (&matrices)[order][order]) {
        static_assert(Packs<chains>::registers == 1);
        const auto element = [&](std::size_t i, std::size_t j) VONKK3_INLINED { return matrices[i][j].chain[0]; };
        constexpr std::size_t bytes = sizeof(PackOf<width>), parts = partsInDouble<width>;
        std::byte inMemory[order][order + 1][bytes]; // each row and its sum
        for (std::size_t i = 0; i < order; ++i) {
            PackOf<width> sum = magnitude(element(i, 0));
            for (std::size_t j = 1; j < order; ++j) sum = sum + magnitude(element(i, j));
            for (std::size_t j = 0; j < order; ++j) storeLanes(inMemory[i][j], element(i, j).lanes);
            storeLanes(inMemory[i][order], sum.lanes);
        }
        const std::byte *const packs = opaque(inMemory[0][0]);
        DoubleLanes low[parts], high[parts];
        VONKK3_UNROLL_WHOLE
        for (std::size_t p = 0; p < parts; ++p) {
            const auto inDouble = [&](std::size_t i, std::size_t j) VONKK3_INLINED {
                return Doubles(loadInDouble(packs + (i * (order + 1) + j) * bytes + p * (bytes / parts)));
            };
            Doubles block[order][order], error = 0x1p-47;
            for (std::size_t i = 0; i < order; ++i) {
                for (std::size_t j = 0; j < order; ++j) block[i][j] = inDouble(i, j);
                error = error * inDouble(i, order);
            }
            const Doubles value = determinant(LocalBlock{block});
            low[p] = (value - error).lanes, high[p] = (value + error).lanes;
            // One part after the other: registers have no room for both.
            __asm__ volatile("" : "+x"(low[p]), "+x"(high[p]));
        }
        results = rounded(low);
        const auto certain = (results == PackOf<width>(rounded(high))) & (magnitude(results) > PackOf<width>(0));
        doubts = bitsOf(certain.lanes) ^ ((1U << width) - 1);
    }

private:
    template <std::size_t order> VONKK3_INLINE static Doubles determinant(const LocalBlock<Doubles, order> &a) {
        if constexpr (order == 3) return determinantInOrder(a);
        else if constexpr (order == 4) return determinantByHalves(a);
        else return determinantByLevels<Doubles, order>(a);
    }
};

} // namespace vonkk3::lu
