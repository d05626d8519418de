// Numbers of several objects worked like one number: lane k of a pack belongs to object k, and is rounded as the number
// would be by itself. Only the target knows how wide a pack is.
#pragma once

#include "frame/real.h"
#include "frame/unroll.h"

#include <emmintrin.h>

namespace vonkk3 {

// Lanes of a pack: how many objects a batch works together.
inline constexpr std::size_t packWidth = 4;

constexpr std::size_t inWholePacks(std::size_t count) { return count / packWidth * packWidth; }

// The outcome of a comparison, lane by lane: all bits set or none.
struct PackMask {
    __m128 lanes;

    friend PackMask operator&(PackMask a, PackMask b) { return {_mm_and_ps(a.lanes, b.lanes)}; }
    friend PackMask operator|(PackMask a, PackMask b) { return {_mm_or_ps(a.lanes, b.lanes)}; }
    friend PackMask operator^(PackMask a, PackMask b) { return {_mm_xor_ps(a.lanes, b.lanes)}; }

    static PackMask none() { return {_mm_setzero_ps()}; }
    bool any() const { return _mm_movemask_ps(lanes) != 0; }
    bool all() const { return _mm_movemask_ps(lanes) == 0xf; }
};

struct Pack {
    __m128 lanes;

    Pack() = default;
    Pack(__m128 lanes) : lanes(lanes) {}
    Pack(Real32 value) : lanes(_mm_set1_ps(value)) {} // broadcast

    Real32 last() const { return _mm_cvtss_f32(_mm_shuffle_ps(lanes, lanes, 3)); }

    friend Pack operator+(Pack a, Pack b) { return _mm_add_ps(a.lanes, b.lanes); }
    friend Pack operator-(Pack a, Pack b) { return _mm_sub_ps(a.lanes, b.lanes); }
    friend Pack operator*(Pack a, Pack b) { return _mm_mul_ps(a.lanes, b.lanes); }
    friend Pack operator/(Pack a, Pack b) { return _mm_div_ps(a.lanes, b.lanes); }
    friend Pack operator-(Pack a) { return _mm_xor_ps(a.lanes, _mm_set1_ps(-0.0F)); }

    // False in lanes with a NaN.
    friend PackMask operator>(Pack a, Pack b) { return {_mm_cmpgt_ps(a.lanes, b.lanes)}; }
    friend PackMask operator>=(Pack a, Pack b) { return {_mm_cmpge_ps(a.lanes, b.lanes)}; }
    friend PackMask operator==(Pack a, Pack b) { return {_mm_cmpeq_ps(a.lanes, b.lanes)}; }
};

inline Pack squareRoot(Pack s) { return _mm_sqrt_ps(s.lanes); }
inline Pack magnitude(Pack a) { return _mm_andnot_ps(_mm_set1_ps(-0.0F), a.lanes); }

// The larger one; b if they are equal or one is a NaN.
inline Pack larger(Pack a, Pack b) { return _mm_max_ps(a.lanes, b.lanes); }

// Where the first is set and the second is not.
inline PackMask without(PackMask a, PackMask b) { return {_mm_andnot_ps(b.lanes, a.lanes)}; }

// Exchanges a and b where the mask is set.
inline void exchangeWhere(PackMask mask, Pack &a, Pack &b) {
    const __m128 difference = _mm_and_ps(_mm_xor_ps(a.lanes, b.lanes), mask.lanes);
    a.lanes = _mm_xor_ps(a.lanes, difference);
    b.lanes = _mm_xor_ps(b.lanes, difference);
}

// An index in every lane, as bits.
inline Pack packOfIndex(std::uint32_t index) { return _mm_castsi128_ps(_mm_set1_epi32(std::int32_t(index))); }

// a where the mask is set, else b.
inline Pack select(PackMask mask, Pack a, Pack b) {
    return _mm_or_ps(_mm_and_ps(mask.lanes, a.lanes), _mm_andnot_ps(mask.lanes, b.lanes));
}

// Several packs, each a chain of operations that does not wait for the others, for work whose limit is latency.
template <class Value, std::size_t chains> struct Chains {
    Value chain[chains];

    Chains() = default;
    VONKK3_INLINE Chains(Value value) {
        for (Value &each : chain) each = value;
    }
    VONKK3_INLINE Chains(Real32 value) : Chains(Value(value)) {}

    template <class Operation> VONKK3_INLINE static Chains each(const Operation &operation) {
        Chains result;
        VONKK3_UNROLL_WHOLE
        for (std::size_t c = 0; c < chains; ++c) result.chain[c] = operation(c);
        return result;
    }
    Real32 last() const { return chain[chains - 1].last(); }

    VONKK3_INLINE friend Chains operator+(const Chains &a, const Chains &b) {
        return each([&](std::size_t c) VONKK3_INLINED { return a.chain[c] + b.chain[c]; });
    }
    VONKK3_INLINE friend Chains operator-(const Chains &a, const Chains &b) {
        return each([&](std::size_t c) VONKK3_INLINED { return a.chain[c] - b.chain[c]; });
    }
    VONKK3_INLINE friend Chains operator-(const Chains &a) {
        return each([&](std::size_t c) VONKK3_INLINED { return -a.chain[c]; });
    }
    VONKK3_INLINE friend Chains operator*(const Chains &a, const Chains &b) {
        return each([&](std::size_t c) VONKK3_INLINED { return a.chain[c] * b.chain[c]; });
    }
    VONKK3_INLINE friend Chains operator/(const Chains &a, const Chains &b) {
        return each([&](std::size_t c) VONKK3_INLINED { return a.chain[c] / b.chain[c]; });
    }
};

template <std::size_t chains> using Packs = Chains<Pack, chains>;
template <std::size_t chains> using PackMasks = Chains<PackMask, chains>;

// How many objects a number stands for.
template <class Number> inline constexpr std::size_t lanesOf = 1;
template <> inline constexpr std::size_t lanesOf<Pack> = packWidth;
template <std::size_t chains> inline constexpr std::size_t lanesOf<Packs<chains>> = chains *packWidth;

template <std::size_t chains> VONKK3_INLINE Packs<chains> squareRoot(const Packs<chains> &s) {
    return Packs<chains>::each([&](std::size_t c) VONKK3_INLINED { return squareRoot(s.chain[c]); });
}

// isLargest[t] tells for t above `from` where candidate(t) is the largest of those from `from` to `to` - 1, the first
// of equals; the others hold where none is. A NaN is never larger, and nothing is larger than it.
template <std::size_t chains, std::size_t length, class Candidate>
VONKK3_INLINE void findLargest(std::size_t from, std::size_t to, const Candidate &candidate,
                               PackMasks<chains> (&isLargest)[length]) {
    Packs<chains> largest = candidate(from);
    forIndices(from + 1, to, fixed<length>, [&](std::size_t t) VONKK3_INLINED {
        const Packs<chains> next = candidate(t);
        VONKK3_UNROLL_WHOLE
        for (std::size_t c = 0; c < chains; ++c) {
            isLargest[t].chain[c] = next.chain[c] > largest.chain[c];
            largest.chain[c] = larger(next.chain[c], largest.chain[c]);
        }
    });
    VONKK3_UNROLL_WHOLE
    for (std::size_t c = 0; c < chains; ++c) {
        PackMask later = PackMask::none();
        forIndices(from + 1, to, fixed<length>, [&](std::size_t ahead) VONKK3_INLINED {
            PackMask &mask = isLargest[from + to - ahead].chain[c];
            const PackMask wins = mask;
            mask = without(wins, later);
            later = later | wins;
        });
    }
}

template <std::size_t chains>
VONKK3_INLINE void exchangeWhere(const PackMasks<chains> &mask, Packs<chains> &a, Packs<chains> &b) {
    VONKK3_UNROLL_WHOLE
    for (std::size_t c = 0; c < chains; ++c) exchangeWhere(mask.chain[c], a.chain[c], b.chain[c]);
}

// Whether a comparison holds in any lane.
template <std::size_t chains, class Comparison>
VONKK3_INLINE bool inAnyLane(const Packs<chains> &a, const Comparison &comparison) {
    PackMask any = comparison(a.chain[0]);
    VONKK3_UNROLL_WHOLE
    for (std::size_t c = 1; c < chains; ++c) any = any | comparison(a.chain[c]);
    return any.any();
}

// Whether a comparison holds in all lanes.
template <std::size_t chains, class Comparison>
VONKK3_INLINE bool inAllLanes(const Packs<chains> &a, const Comparison &comparison) {
    PackMask all = comparison(a.chain[0]);
    VONKK3_UNROLL_WHOLE
    for (std::size_t c = 1; c < chains; ++c) all = all & comparison(a.chain[c]);
    return all.all();
}

} // namespace vonkk3
