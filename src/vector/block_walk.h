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
inline constexpr std::size_t blockBytes = blockElements * sizeof(Real32);
inline constexpr std::size_t prefetchDistance = 64; // bytes from the block's first element

// Shorter vectors lie in the first-level cache or are there before a hint could help, and then the hints, which take
// the place of two loads a block, cost a quarter of the speed.
inline constexpr std::size_t prefetchThreshold = 4096;

inline std::size_t pastBoundary(const std::byte *address) {
    return reinterpret_cast<std::uintptr_t>(address) % laneBytes;
}

// How many elements lie before the next 16-byte boundary; `address` is a multiple of 4.
inline std::size_t elementsToBoundary(const std::byte *address) {
    return (laneBytes - pastBoundary(address)) % laneBytes / sizeof(Real32);
}

// The sum of term(sources(j)...) for j below `length`, from +0. In blocks it runs in eight lanes, two registers of
// four, so its roundings depend on the length and on the alignment of the last source, by design: that source is
// brought to a 16-byte boundary first, and the sum up to there goes on in lane 0.
template <class Term, class... Others>
inline Real32 sumTerms(const Term &term, Real32 sum, std::size_t from, std::size_t to, const std::byte *last,
                       Others... others) {
    for (std::size_t j = from; j < to; ++j) {
        keepLoopPlain();
        const std::size_t at = j * sizeof(Real32);
        sum = sum + term(loadAt<Real32>(others + at)..., loadAt<Real32>(last + at));
    }
    return sum;
}

template <Alignment ofOthers, class Term, class... Others>
inline Real32 sumWholeBlocks(const Term &term, Real32 sum, std::size_t from, std::size_t end, std::size_t length,
                             const std::byte *last, Others... others) {
    __m128 low = _mm_set_ss(sum);
    __m128 high = _mm_setzero_ps();
    for (std::size_t at = from * sizeof(Real32); at < end * sizeof(Real32); at += blockBytes) {
        const std::size_t half = at + laneBytes;
        if (length >= prefetchThreshold) {
            Term::hint(last + at + prefetchDistance);
            (Term::hint(others + at + prefetchDistance), ...);
        }
        low = _mm_add_ps(low, term(load4<ofOthers>(others + at)..., load4Aligned(last + at)));
        high = _mm_add_ps(high, term(load4<ofOthers>(others + half)..., load4Aligned(last + half)));
    }
    const __m128 lanes = _mm_add_ps(low, high);                          // 0, 1, 2, 3
    const __m128 pairs = _mm_add_ps(lanes, _mm_movehl_ps(lanes, lanes)); // 0 + 2, 1 + 3
    return _mm_cvtss_f32(pairs) + _mm_cvtss_f32(_mm_shuffle_ps(pairs, pairs, 1));
}

template <class Term, class... Others>
inline Real32 sumInBlocks(const Term &term, std::size_t length, const std::byte *last, Others... others) {
    if (length < blockThreshold || pastBoundary(last) % sizeof(Real32) != 0)
        return sumTerms(term, 0, 0, length, last, others...);

    const std::size_t ahead = elementsToBoundary(last);
    const std::size_t end = ahead + (length - ahead) / blockElements * blockElements;
    Real32 sum = sumTerms(term, 0, 0, ahead, last, others...);
    sum = (isAligned(others + ahead * sizeof(Real32)) && ...)
              ? sumWholeBlocks<Alignment::lanes>(term, sum, ahead, end, length, last, others...)
              : sumWholeBlocks<Alignment::any>(term, sum, ahead, end, length, last, others...);
    return sumTerms(term, sum, end, length, last, others...);
}

} // namespace vonkk3::vector
