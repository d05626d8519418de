// Real32 numbers of four objects in the four lanes of a register, worked like one number, and how they come from the
// objects' rows and go there. Each lane is rounded as the number would be by itself. Exactly the bytes of the elements
// are moved.
#pragma once

#include "frame/lanes.h"
#include "frame/unroll.h"

namespace vonkk3 {

inline constexpr std::size_t four = 4;
inline constexpr std::size_t inFours(std::size_t count) { return count / four * four; }

struct FourReals {
    __m128 lanes;

    FourReals() = default;
    FourReals(__m128 lanes) : lanes(lanes) {}
    FourReals(Real32 value) : lanes(_mm_set1_ps(value)) {} // the same for all

    Real32 last() const { return _mm_cvtss_f32(_mm_shuffle_ps(lanes, lanes, 3)); }

    friend FourReals operator+(FourReals a, FourReals b) { return _mm_add_ps(a.lanes, b.lanes); }
    friend FourReals operator-(FourReals a, FourReals b) { return _mm_sub_ps(a.lanes, b.lanes); }
    friend FourReals operator*(FourReals a, FourReals b) { return _mm_mul_ps(a.lanes, b.lanes); }
    friend FourReals operator/(FourReals a, FourReals b) { return _mm_div_ps(a.lanes, b.lanes); }
};

// Of eight objects in two registers, for work that waits for itself more than for the processor.
struct EightReals {
    FourReals first, second;

    EightReals() = default;
    EightReals(FourReals first, FourReals second) : first(first), second(second) {}
    EightReals(FourReals both) : first(both), second(both) {}
    EightReals(Real32 value) : first(value), second(value) {}

    Real32 last() const { return second.last(); }

    friend EightReals operator+(EightReals a, EightReals b) { return {a.first + b.first, a.second + b.second}; }
    friend EightReals operator-(EightReals a, EightReals b) { return {a.first - b.first, a.second - b.second}; }
    friend EightReals operator*(EightReals a, EightReals b) { return {a.first * b.first, a.second * b.second}; }
    friend EightReals operator/(EightReals a, EightReals b) { return {a.first / b.first, a.second / b.second}; }
};

// Four addresses, of objects or of rows.
using FourSources = const std::byte *[four];
using FourTargets = std::byte *[four];

inline FourReals gather(const FourSources &from, std::size_t offset) {
    const __m128 ab = _mm_unpacklo_ps(load1(from[0] + offset), load1(from[1] + offset));
    const __m128 cd = _mm_unpacklo_ps(load1(from[2] + offset), load1(from[3] + offset));
    return _mm_movelh_ps(ab, cd);
}

inline void gather2(const FourSources &from, std::size_t offset, FourReals *elements) {
    const __m128 ab = _mm_loadh_pi(load2(from[0] + offset), pair(from[1] + offset));
    const __m128 cd = _mm_loadh_pi(load2(from[2] + offset), pair(from[3] + offset));
    elements[0] = _mm_shuffle_ps(ab, cd, _MM_SHUFFLE(2, 0, 2, 0));
    elements[1] = _mm_shuffle_ps(ab, cd, _MM_SHUFFLE(3, 1, 3, 1));
}

inline void gather4(const FourSources &from, std::size_t offset, FourReals *elements) {
    __m128 a = load4(from[0] + offset), b = load4(from[1] + offset);
    __m128 c = load4(from[2] + offset), d = load4(from[3] + offset);
    _MM_TRANSPOSE4_PS(a, b, c, d);
    elements[0] = a, elements[1] = b, elements[2] = c, elements[3] = d;
}

inline void scatter(const FourTargets &to, std::size_t offset, FourReals element) {
    const __m128 lanes = element.lanes;
    store1(to[0] + offset, lanes);
    store1(to[1] + offset, _mm_shuffle_ps(lanes, lanes, 1));
    store1(to[2] + offset, _mm_movehl_ps(lanes, lanes));
    store1(to[3] + offset, _mm_shuffle_ps(lanes, lanes, 3));
}

inline void scatter2(const FourTargets &to, std::size_t offset, const FourReals *elements) {
    const __m128 ab = _mm_unpacklo_ps(elements[0].lanes, elements[1].lanes);
    const __m128 cd = _mm_unpackhi_ps(elements[0].lanes, elements[1].lanes);
    _mm_storel_pi(pair(to[0] + offset), ab);
    _mm_storeh_pi(pair(to[1] + offset), ab);
    _mm_storel_pi(pair(to[2] + offset), cd);
    _mm_storeh_pi(pair(to[3] + offset), cd);
}

inline void scatter4(const FourTargets &to, std::size_t offset, const FourReals *elements) {
    __m128 a = elements[0].lanes, b = elements[1].lanes, c = elements[2].lanes, d = elements[3].lanes;
    _MM_TRANSPOSE4_PS(a, b, c, d);
    store4(to[0] + offset, a);
    store4(to[1] + offset, b);
    store4(to[2] + offset, c);
    store4(to[3] + offset, d);
}

// The first `length` elements of a row of each object, up to 6.
VONKK3_INLINE void gatherRow(const FourSources &from, std::size_t length, FourReals *row) {
    const std::size_t whole = length / four * four;
    if (whole != 0) gather4(from, 0, row);
    if (length - whole >= 2) gather2(from, whole * sizeof(Real32), row + whole);
    if (length % 2 != 0) row[length - 1] = gather(from, (length - 1) * sizeof(Real32));
}

VONKK3_INLINE void scatterRow(const FourTargets &to, std::size_t length, const FourReals *row) {
    const std::size_t whole = length / four * four;
    if (whole != 0) scatter4(to, 0, row);
    if (length - whole >= 2) scatter2(to, whole * sizeof(Real32), row + whole);
    if (length % 2 != 0) scatter(to, (length - 1) * sizeof(Real32), row[length - 1]);
}

} // namespace vonkk3
