// Sums over the elements of long contiguous Real32 vectors: blocks of eight in four-lane registers, and a plain forward
// loop for whatever blocks cannot do. In blocks a sum is grouped by lanes, and so is the order of its roundings.
#pragma once

#include "frame/lanes.h"
#include "frame/unroll.h"

namespace vonkk3::vector {

// Below this length the plain loop is quicker: with up to 3 elements before the first boundary, 11 is the least
// length that is sure to fill one block.
inline constexpr std::size_t blockThreshold = 11;
inline constexpr std::size_t blockElements = 8;

template <class Term, class... Others>
inline Real32 sumTerms(const Term &term, Real32 sum, std::size_t from, std::size_t to, const std::byte *last,
                       Others... others) {
    for (std::size_t at = from * sizeof(Real32); at < to * sizeof(Real32); at += sizeof(Real32)) {
        keepLoopPlain();
        sum = sum + term(loadAt<Real32>(others + at)..., loadAt<Real32>(last + at));
    }
    return sum;
}

// The sum of term(sources(j)...) for j below `length`, from +0. In blocks it runs in eight lanes, two registers of
// four, so its roundings depend on the length and on the alignment of the last source, by design: that source is
// brought to a 16-byte boundary first, and the sum up to there goes on in lane 0.
template <class Term, class... Others>
inline Real32 sumInBlocks(const Term &term, std::size_t length, const std::byte *last, Others... others) {
    const std::size_t pastBoundary = reinterpret_cast<std::uintptr_t>(last) % laneBytes;
    if (length < blockThreshold || pastBoundary % sizeof(Real32) != 0)
        return sumTerms(term, 0, 0, length, last, others...);

    const std::size_t first = (laneBytes - pastBoundary) % laneBytes / sizeof(Real32);
    const std::size_t end = first + (length - first) / blockElements * blockElements;
    __m128 low = _mm_set_ss(sumTerms(term, 0, 0, first, last, others...)), high = _mm_setzero_ps();
    for (std::size_t at = first * sizeof(Real32); at < end * sizeof(Real32); at += 2 * laneBytes) {
        const std::size_t half = at + laneBytes;
        low = _mm_add_ps(low, term(load4(others + at)..., load4Aligned(last + at)));
        high = _mm_add_ps(high, term(load4(others + half)..., load4Aligned(last + half)));
    }
    const __m128 lanes = _mm_add_ps(low, high);                          // 0, 1, 2, 3
    const __m128 pairs = _mm_add_ps(lanes, _mm_movehl_ps(lanes, lanes)); // 0 + 2, 1 + 3
    const Real32 sum = _mm_cvtss_f32(pairs) + _mm_cvtss_f32(_mm_shuffle_ps(pairs, pairs, 1));
    return sumTerms(term, sum, end, length, last, others...);
}

} // namespace vonkk3::vector
