// Numbers of several objects worked like one number: lane k of a pack belongs to object k, and is rounded as the number
// would be by itself.
#pragma once

#include "frame/registers.h"
#include "frame/unroll.h"

#include <bit>

namespace vonkk3 {

// Objects of a pack. Batches work packs in the widest registers of the target, several packs to a register, and what is
// left over in a single one.
inline constexpr std::size_t packWidth = 4;
inline constexpr std::size_t packsToRegister = widestRegister / packWidth;

constexpr std::size_t inWholePacks(std::size_t count) { return count / packWidth * packWidth; }

// The outcome of a comparison, lane by lane.
template <std::size_t width> struct MaskOf {
    MaskRegister<width> lanes;

    friend MaskOf operator&(MaskOf a, MaskOf b) { return {bitAnd(a.lanes, b.lanes)}; }
    friend MaskOf operator|(MaskOf a, MaskOf b) { return {bitOr(a.lanes, b.lanes)}; }
    friend MaskOf operator^(MaskOf a, MaskOf b) { return {bitXor(a.lanes, b.lanes)}; }

    static MaskOf none() { return {noLane<MaskRegister<width>>()}; }
    bool any() const { return bitsOf(lanes) != 0; }
    bool all() const { return bitsOf(lanes) == (1U << width) - 1; }
};

template <std::size_t width> struct PackOf {
    using Lanes = Register<width>;
    Lanes lanes;

    PackOf() = default;
    PackOf(Lanes lanes) : lanes(lanes) {}
    PackOf(Real32 value) : lanes(broadcast<Lanes>(value)) {}

    Real32 last() const { // of the last object
        const __m128 quad = vonkk3::quad<width / 4 - 1>(lanes);
        return _mm_cvtss_f32(_mm_shuffle_ps(quad, quad, 3));
    }

    friend PackOf operator+(PackOf a, PackOf b) { return a.lanes + b.lanes; }
    friend PackOf operator-(PackOf a, PackOf b) { return a.lanes - b.lanes; }
    friend PackOf operator*(PackOf a, PackOf b) { return a.lanes * b.lanes; }
    friend PackOf operator/(PackOf a, PackOf b) { return a.lanes / b.lanes; }
    friend PackOf operator-(PackOf a) { return bitXor(a.lanes, broadcast<Lanes>(-0.0F)); }

    // False in lanes with a NaN.
    friend MaskOf<width> operator>(PackOf a, PackOf b) { return {isGreater(a.lanes, b.lanes)}; }
    friend MaskOf<width> operator>=(PackOf a, PackOf b) { return {isAtLeast(a.lanes, b.lanes)}; }
    friend MaskOf<width> operator==(PackOf a, PackOf b) { return {isEqual(a.lanes, b.lanes)}; }
};
using Pack = PackOf<packWidth>;

template <std::size_t width> inline PackOf<width> squareRoot(PackOf<width> s) { return rootOf(s.lanes); }
template <std::size_t width> inline PackOf<width> magnitude(PackOf<width> a) {
    return bitAndNot(a.lanes, broadcast<Register<width>>(-0.0F));
}

// Numbers are not looked at.
template <std::size_t width> inline MaskOf<width> haveSameBits(PackOf<width> a, PackOf<width> b) {
    return {isSameBits(a.lanes, b.lanes)};
}

// The larger one; b if they are equal or one is a NaN.
template <std::size_t width> inline PackOf<width> larger(PackOf<width> a, PackOf<width> b) {
    return largerOf(a.lanes, b.lanes);
}

// Where the first is set and the second is not.
template <std::size_t width> inline MaskOf<width> without(MaskOf<width> a, MaskOf<width> b) {
    return {bitAndNot(a.lanes, b.lanes)};
}

// Exchanges a and b where the mask is set.
template <std::size_t width> inline void exchangeWhere(MaskOf<width> mask, PackOf<width> &a, PackOf<width> &b) {
    exchangeWhere(mask.lanes, a.lanes, b.lanes);
}

// a where the mask is set, else b.
template <std::size_t width> inline PackOf<width> select(MaskOf<width> mask, PackOf<width> a, PackOf<width> b) {
    return choose(mask.lanes, a.lanes, b.lanes);
}

// The same, which the compiler no longer takes for what lies in memory.
template <std::size_t width> VONKK3_INLINE PackOf<width> inRegister(PackOf<width> a) {
    __asm__("" : "+x"(a.lanes));
    return a;
}

// Several packs, in as few registers as they fill; each register is a chain of operations that does not wait for the
// others, for work whose limit is latency.
template <template <std::size_t> class Of, std::size_t packs> struct Chains {
    static constexpr std::size_t width = packs % packsToRegister == 0 ? widestRegister : packWidth;
    static constexpr std::size_t registers = packs * packWidth / width;
    using Value = Of<width>;
    Value chain[registers];

    Chains() = default;
    VONKK3_INLINE Chains(Value value) {
        for (Value &each : chain) each = value;
    }
    VONKK3_INLINE Chains(Real32 value) : Chains(Value(value)) {}
    VONKK3_INLINE Chains(Of<packWidth> broadcast) requires(width != packWidth)
        : Chains(Value(inEveryQuad<Register<width>>(broadcast.lanes))) {}

    // Register by register: as a whole, compilers copy in pieces of 16 bytes, and a load of 32 waits for two of them.
    VONKK3_INLINE Chains(const Chains &other) { *this = other; }
    VONKK3_INLINE Chains &operator=(const Chains &other) {
        VONKK3_UNROLL_WHOLE
        for (std::size_t c = 0; c < registers; ++c) chain[c] = other.chain[c];
        return *this;
    }

    template <class Operation> VONKK3_INLINE static Chains each(const Operation &operation) {
        Chains result;
        VONKK3_UNROLL_WHOLE
        for (std::size_t c = 0; c < registers; ++c) result.chain[c] = operation(c);
        return result;
    }
    Real32 last() const { return chain[registers - 1].last(); }

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

template <std::size_t packs> using Packs = Chains<PackOf, packs>;
template <std::size_t packs> using PackMasks = Chains<MaskOf, packs>;

// How many objects a number stands for.
template <class Number> inline constexpr std::size_t lanesOf = 1;
template <std::size_t width> inline constexpr std::size_t lanesOf<PackOf<width>> = width;
template <std::size_t packs> inline constexpr std::size_t lanesOf<Packs<packs>> = packs *packWidth;

// An index in every lane, as bits.
template <class Number> inline Number packOfIndex(std::uint32_t index) { return std::bit_cast<Real32>(index); }

template <std::size_t packs> VONKK3_INLINE Packs<packs> squareRoot(const Packs<packs> &s) {
    return Packs<packs>::each([&](std::size_t c) VONKK3_INLINED { return squareRoot(s.chain[c]); });
}

// isLargest[t] tells for t above `from` where candidate(t) is the largest of those from `from` to `to` - 1, the first
// of equals; the others hold where none is. A NaN is never larger, and nothing is larger than it.
template <std::size_t packs, std::size_t length, class Candidate>
VONKK3_INLINE void findLargest(std::size_t from, std::size_t to, const Candidate &candidate,
                               PackMasks<packs> (&isLargest)[length]) {
    using Mask = typename PackMasks<packs>::Value;
    constexpr std::size_t registers = Packs<packs>::registers;
    Packs<packs> largest = candidate(from);
    forIndices(from + 1, to, fixed<length>, [&](std::size_t t) VONKK3_INLINED {
        const Packs<packs> next = candidate(t);
        VONKK3_UNROLL_WHOLE
        for (std::size_t c = 0; c < registers; ++c) {
            isLargest[t].chain[c] = next.chain[c] > largest.chain[c];
            largest.chain[c] = larger(next.chain[c], largest.chain[c]);
        }
    });
    VONKK3_UNROLL_WHOLE
    for (std::size_t c = 0; c < registers; ++c) {
        Mask later = Mask::none();
        forIndices(from + 1, to, fixed<length>, [&](std::size_t ahead) VONKK3_INLINED {
            Mask &mask = isLargest[from + to - ahead].chain[c];
            const Mask wins = mask;
            mask = without(wins, later);
            later = later | wins;
        });
    }
}

template <std::size_t packs>
VONKK3_INLINE void exchangeWhere(const PackMasks<packs> &mask, Packs<packs> &a, Packs<packs> &b) {
    VONKK3_UNROLL_WHOLE
    for (std::size_t c = 0; c < Packs<packs>::registers; ++c) exchangeWhere(mask.chain[c], a.chain[c], b.chain[c]);
}

// Whether a comparison holds in any lane.
template <std::size_t packs, class Comparison>
VONKK3_INLINE bool inAnyLane(const Packs<packs> &a, const Comparison &comparison) {
    auto any = comparison(a.chain[0]);
    VONKK3_UNROLL_WHOLE
    for (std::size_t c = 1; c < Packs<packs>::registers; ++c) any = any | comparison(a.chain[c]);
    return any.any();
}

// Whether a comparison holds in all lanes.
template <std::size_t packs, class Comparison>
VONKK3_INLINE bool inAllLanes(const Packs<packs> &a, const Comparison &comparison) {
    auto all = comparison(a.chain[0]);
    VONKK3_UNROLL_WHOLE
    for (std::size_t c = 1; c < Packs<packs>::registers; ++c) all = all & comparison(a.chain[c]);
    return all.all();
}

} // namespace vonkk3
