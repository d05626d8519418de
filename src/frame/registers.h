// Registers of 4 or more Real32, as wide as the target has them, with the same names for every width. Operators are the
// compilers' own. Shuffles work within quads, four lanes of 16 bytes.
#pragma once

#include "frame/lanes.h"
#include "frame/unroll.h"

#include <type_traits>

#ifdef __AVX2__
#include <immintrin.h>
#endif

namespace vonkk3 {

template <std::size_t lanes> struct RegisterOf;
template <> struct RegisterOf<4> { using Type = __m128; };

// The widest that work is done in.
#ifdef __AVX2__
template <> struct RegisterOf<8> { using Type = __m256; };
inline constexpr std::size_t widestRegister = 8;
#else
inline constexpr std::size_t widestRegister = 4;
#endif
template <std::size_t lanes> using Register = typename RegisterOf<lanes>::Type;
using WideRegister = Register<widestRegister>;

template <class Lanes> inline constexpr std::size_t lanesIn = sizeof(Lanes) / sizeof(Real32);

inline __m128 bitAnd(__m128 a, __m128 b) { return _mm_and_ps(a, b); }
inline __m128 bitOr(__m128 a, __m128 b) { return _mm_or_ps(a, b); }
inline __m128 bitXor(__m128 a, __m128 b) { return _mm_xor_ps(a, b); }
inline __m128 bitAndNot(__m128 a, __m128 b) { return _mm_andnot_ps(b, a); } // a where b is not set
inline __m128 rootOf(__m128 a) { return _mm_sqrt_ps(a); }
inline __m128 largerOf(__m128 a, __m128 b) { return _mm_max_ps(a, b); } // b if they are equal or one is a NaN
inline __m128 reciprocalEstimate(__m128 a) { return _mm_rcp_ps(a); }
inline __m128 reciprocalRootEstimate(__m128 a) { return _mm_rsqrt_ps(a); }

inline __m128 unpackLow(__m128 a, __m128 b) { return _mm_unpacklo_ps(a, b); }
inline __m128 unpackHigh(__m128 a, __m128 b) { return _mm_unpackhi_ps(a, b); }
inline __m128 lowPairs(__m128 a, __m128 b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(1, 0, 1, 0)); }
inline __m128 highPairs(__m128 a, __m128 b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 2, 3, 2)); }
inline __m128 evenOf(__m128 a, __m128 b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)); }
inline __m128 oddOf(__m128 a, __m128 b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)); }
inline __m128 outerPairs(__m128 a, __m128 b) { // a0 a1 b2 b3
    return _mm_castpd_ps(_mm_move_sd(_mm_castps_pd(b), _mm_castps_pd(a)));
}

// Lane i of every quad is its lane ki. The integer shuffle needs no copy before it.
template <int k0, int k1, int k2, int k3> VONKK3_INLINE __m128 pick(__m128 lanes) {
    return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(lanes), _MM_SHUFFLE(k3, k2, k1, k0)));
}
// Two lanes of a register and two of another.
template <int a0, int a1, int b2, int b3> VONKK3_INLINE __m128 pick(__m128 a, __m128 b) {
    return _mm_shuffle_ps(a, b, _MM_SHUFFLE(b3, b2, a1, a0));
}

// Lane k in lane 0, whatever else.
template <int k> inline __m128 shuffled(__m128 a) {
    return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(a), k));
}

template <class Value> inline constexpr bool isRegister = !std::is_arithmetic_v<Value> && sizeof(Value) >= laneBytes;

// The first lanes of a register.
template <class Lanes> inline Lanes narrowed(Lanes lanes) { return lanes; }

// Quad q, and a register made of as many as it has.
template <std::size_t q> inline __m128 quad(__m128 a) { return a; }
template <class Lanes> inline Lanes broadcast(Real32 value);
template <> inline __m128 broadcast<__m128>(Real32 value) { return _mm_set1_ps(value); }
template <class Lanes> inline Lanes inEveryQuad(__m128 quad);
template <> inline __m128 inEveryQuad<__m128>(__m128 quad) { return quad; }
template <class Lanes, class Quad> VONKK3_INLINE Lanes ofQuads(const Quad &quad) {
    if constexpr (lanesIn<Lanes> == 4) return quad(std::integral_constant<std::size_t, 0>());
#ifdef __AVX2__
    else
        return _mm256_insertf128_ps(_mm256_castps128_ps256(quad(std::integral_constant<std::size_t, 0>())),
                                    quad(std::integral_constant<std::size_t, 1>()), 1);
#endif
}
template <class Lanes> inline Lanes loadLanes(const std::byte *address);
template <> inline __m128 loadLanes<__m128>(const std::byte *address) { return load4(address); }
template <class Lanes> inline Lanes loadInEveryQuad(const std::byte *address);
template <> inline __m128 loadInEveryQuad<__m128>(const std::byte *address) { return load4(address); }
inline void storeLanes(std::byte *address, __m128 lanes) { store4(address, lanes); }

#ifdef __AVX2__
inline __m256 bitAnd(__m256 a, __m256 b) { return _mm256_and_ps(a, b); }
inline __m256 bitOr(__m256 a, __m256 b) { return _mm256_or_ps(a, b); }
inline __m256 bitXor(__m256 a, __m256 b) { return _mm256_xor_ps(a, b); }
inline __m256 bitAndNot(__m256 a, __m256 b) { return _mm256_andnot_ps(b, a); }
inline __m256 rootOf(__m256 a) { return _mm256_sqrt_ps(a); }
inline __m256 largerOf(__m256 a, __m256 b) { return _mm256_max_ps(a, b); }
inline __m256 reciprocalEstimate(__m256 a) { return _mm256_rcp_ps(a); }
inline __m256 reciprocalRootEstimate(__m256 a) { return _mm256_rsqrt_ps(a); }

inline __m256 unpackLow(__m256 a, __m256 b) { return _mm256_unpacklo_ps(a, b); }
inline __m256 unpackHigh(__m256 a, __m256 b) { return _mm256_unpackhi_ps(a, b); }
inline __m256 lowPairs(__m256 a, __m256 b) { return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(1, 0, 1, 0)); }
inline __m256 highPairs(__m256 a, __m256 b) { return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(3, 2, 3, 2)); }
inline __m256 evenOf(__m256 a, __m256 b) { return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)); }
inline __m256 oddOf(__m256 a, __m256 b) { return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)); }

inline __m256 outerPairs(__m256 a, __m256 b) { return _mm256_blend_ps(a, b, 0b11001100); }
template <int k0, int k1, int k2, int k3> VONKK3_INLINE __m256 pick(__m256 lanes) {
    return _mm256_permute_ps(lanes, _MM_SHUFFLE(k3, k2, k1, k0));
}
template <int a0, int a1, int b2, int b3> VONKK3_INLINE __m256 pick(__m256 a, __m256 b) {
    return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(b3, b2, a1, a0));
}

template <class Lanes>
requires(lanesIn<Lanes> == 4) inline Lanes narrowed(__m256 lanes) { return _mm256_castps256_ps128(lanes); }
template <std::size_t q> inline __m128 quad(__m256 a) { return _mm256_extractf128_ps(a, q); }
template <> inline __m256 broadcast<__m256>(Real32 value) { return _mm256_set1_ps(value); }
template <> inline __m256 inEveryQuad<__m256>(__m128 quad) {
    return _mm256_insertf128_ps(_mm256_castps128_ps256(quad), quad, 1);
}
template <> inline __m256 loadLanes<__m256>(const std::byte *address) { return _mm256_loadu_ps(floats(address)); }
template <> inline __m256 loadInEveryQuad<__m256>(const std::byte *address) {
    return _mm256_broadcast_ps(reinterpret_cast<const __m128 *>(address));
}
inline void storeLanes(std::byte *address, __m256 lanes) { _mm256_storeu_ps(floats(address), lanes); }
#endif

// From as many addresses as there are lanes, one number each. Broadcasts from memory and blends run on more units of a
// processor than shuffles.
VONKK3_INLINE __m128 gatherLanes(const std::byte *const *from, std::ptrdiff_t offset, __m128) {
    const auto one = [&](std::size_t k) VONKK3_INLINED { return load1(from[k] + offset); };
    return _mm_movelh_ps(_mm_unpacklo_ps(one(0), one(1)), _mm_unpacklo_ps(one(2), one(3)));
}
#ifdef __AVX2__
VONKK3_INLINE __m256 gatherLanes(const std::byte *const *from, std::ptrdiff_t offset, __m256) {
    const auto one = [&](std::size_t k) VONKK3_INLINED { return _mm256_broadcast_ss(floats(from[k] + offset)); };
    const __m256 ab = _mm256_blend_ps(one(0), one(1), 0b10), cd = _mm256_blend_ps(one(2), one(3), 0b1000);
    const __m256 ef = _mm256_blend_ps(one(4), one(5), 0b100000), gh = _mm256_blend_ps(one(6), one(7), 0b10000000);
    return _mm256_blend_ps(_mm256_blend_ps(ab, cd, 0b1100), _mm256_blend_ps(ef, gh, 0b11000000), 0b11110000);
}
#endif

// One lane of every quad in all four of it. `lane` is known when compiling.
template <class Lanes> VONKK3_INLINE Lanes broadcastLane(Lanes lanes, std::size_t lane) {
    switch (lane) {
    case 0: return pick<0, 0, 0, 0>(lanes);
    case 1: return pick<1, 1, 1, 1>(lanes);
    case 2: return pick<2, 2, 2, 2>(lanes);
    default: return pick<3, 3, 3, 3>(lanes);
    }
}
// One lane of each of two registers, in two lanes.
template <class Lanes> VONKK3_INLINE Lanes broadcastLane(Lanes a, Lanes b, std::size_t lane) {
    switch (lane) {
    case 0: return pick<0, 0, 0, 0>(a, b);
    case 1: return pick<1, 1, 1, 1>(a, b);
    case 2: return pick<2, 2, 2, 2>(a, b);
    default: return pick<3, 3, 3, 3>(a, b);
    }
}

#if defined(__AVX2__) && defined(__FMA__)
// a b + c and c - a b, rounded once; for filters, whose results do not show how they came about.
inline __m128 fusedAdd(__m128 a, __m128 b, __m128 c) { return _mm_fmadd_ps(a, b, c); }
inline __m256 fusedAdd(__m256 a, __m256 b, __m256 c) { return _mm256_fmadd_ps(a, b, c); }
inline __m128 fusedSubtract(__m128 c, __m128 a, __m128 b) { return _mm_fnmadd_ps(a, b, c); }
inline __m256 fusedSubtract(__m256 c, __m256 a, __m256 b) { return _mm256_fnmadd_ps(a, b, c); }
#endif

// ---- Comparisons ----------------------------------------------------------------------------------------------------

// Their outcome lane by lane: a bit for each where the target has masks, else all bits of a lane or none.
#ifdef __AVX512VL__
inline constexpr bool hasMasks = true;
template <std::size_t> using MaskRegister = __mmask8;
template <class Mask> inline Mask noLane() { return 0; }
inline __mmask8 isGreater(__m128 a, __m128 b) { return _mm_cmp_ps_mask(a, b, _CMP_GT_OS); }
inline __mmask8 isGreater(__m256 a, __m256 b) { return _mm256_cmp_ps_mask(a, b, _CMP_GT_OS); }
inline __mmask8 isAtLeast(__m128 a, __m128 b) { return _mm_cmp_ps_mask(a, b, _CMP_GE_OS); }
inline __mmask8 isAtLeast(__m256 a, __m256 b) { return _mm256_cmp_ps_mask(a, b, _CMP_GE_OS); }
inline __mmask8 isEqual(__m128 a, __m128 b) { return _mm_cmp_ps_mask(a, b, _CMP_EQ_OQ); }
inline __mmask8 isEqual(__m256 a, __m256 b) { return _mm256_cmp_ps_mask(a, b, _CMP_EQ_OQ); }
inline __mmask8 isSameBits(__m128 a, __m128 b) {
    return _mm_cmpeq_epi32_mask(_mm_castps_si128(a), _mm_castps_si128(b));
}
inline __mmask8 isSameBits(__m256 a, __m256 b) {
    return _mm256_cmpeq_epi32_mask(_mm256_castps_si256(a), _mm256_castps_si256(b));
}
inline __mmask8 bitAnd(__mmask8 a, __mmask8 b) { return __mmask8(a & b); }
inline __mmask8 bitOr(__mmask8 a, __mmask8 b) { return __mmask8(a | b); }
inline __mmask8 bitXor(__mmask8 a, __mmask8 b) { return __mmask8(a ^ b); }
inline __mmask8 bitAndNot(__mmask8 a, __mmask8 b) { return __mmask8(a & ~b); }
inline unsigned bitsOf(__mmask8 mask) { return mask; }
inline __m128 choose(__mmask8 mask, __m128 a, __m128 b) { return _mm_mask_blend_ps(mask, b, a); }
inline __m256 choose(__mmask8 mask, __m256 a, __m256 b) { return _mm256_mask_blend_ps(mask, b, a); }
#else
inline constexpr bool hasMasks = false;
template <std::size_t lanes> using MaskRegister = Register<lanes>;
template <class Mask> inline Mask noLane() { return broadcast<Mask>(0); }
inline __m128 isGreater(__m128 a, __m128 b) { return _mm_cmpgt_ps(a, b); }
inline __m128 isAtLeast(__m128 a, __m128 b) { return _mm_cmpge_ps(a, b); }
inline __m128 isEqual(__m128 a, __m128 b) { return _mm_cmpeq_ps(a, b); }
inline __m128 isSameBits(__m128 a, __m128 b) {
    return _mm_castsi128_ps(_mm_cmpeq_epi32(_mm_castps_si128(a), _mm_castps_si128(b)));
}
inline unsigned bitsOf(__m128 mask) { return unsigned(_mm_movemask_ps(mask)); }
inline __m128 choose(__m128 mask, __m128 a, __m128 b) { return bitOr(bitAnd(mask, a), bitAndNot(b, mask)); }
#ifdef __AVX2__
inline __m256 isGreater(__m256 a, __m256 b) { return _mm256_cmp_ps(a, b, _CMP_GT_OS); }
inline __m256 isAtLeast(__m256 a, __m256 b) { return _mm256_cmp_ps(a, b, _CMP_GE_OS); }
inline __m256 isEqual(__m256 a, __m256 b) { return _mm256_cmp_ps(a, b, _CMP_EQ_OQ); }
inline __m256 isSameBits(__m256 a, __m256 b) {
    return _mm256_castsi256_ps(_mm256_cmpeq_epi32(_mm256_castps_si256(a), _mm256_castps_si256(b)));
}
inline unsigned bitsOf(__m256 mask) { return unsigned(_mm256_movemask_ps(mask)); }
inline __m256 choose(__m256 mask, __m256 a, __m256 b) { return _mm256_blendv_ps(b, a, mask); }
#endif
#endif

// Exchanges a and b in the lanes of the mask.
template <class Mask, class Lanes> VONKK3_INLINE void exchangeWhere(Mask mask, Lanes &a, Lanes &b) {
    if constexpr (hasMasks) {
        const Lanes first = a;
        a = choose(mask, b, a);
        b = choose(mask, first, b);
    } else {
        const Lanes difference = bitAnd(bitXor(a, b), mask);
        a = bitXor(a, difference);
        b = bitXor(b, difference);
    }
}

// ---------------------------------------------------------------------------------------------------------------------

// Rows of four elements become columns, quad by quad. These shuffles run on two units of some processors, those
// that unpack on one.
template <class Lanes> VONKK3_INLINE void transpose(Lanes &a, Lanes &b, Lanes &c, Lanes &d) {
    const Lanes low01 = lowPairs(a, b), low23 = lowPairs(c, d), high01 = highPairs(a, b), high23 = highPairs(c, d);
    a = evenOf(low01, low23), b = oddOf(low01, low23);
    c = evenOf(high01, high23), d = oddOf(high01, high23);
}

} // namespace vonkk3
