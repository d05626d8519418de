// The walk over two long Real32 vectors of adjacent elements: blocks of eight in four-lane registers, and a plain
// forward loop for whatever blocks cannot do. Both give the same results, element for element.
#pragma once

#include "frame/lanes.h"

namespace vonkk3::vector {

// Below this length the plain loop is quicker: with up to 3 elements ahead of the first boundary, 11 is the least
// length that is sure to fill one block.
inline constexpr std::size_t blockThreshold = 11;
inline constexpr std::size_t blockElements = 8;
inline constexpr std::size_t blockBytes = blockElements * sizeof(Real32);
inline constexpr std::size_t prefetchDistance = 64; // bytes ahead of the block's first element

// Shorter vectors lie in the first-level cache or are there before a hint could help, and then the hints, which take
// the place of two loads a block, cost a quarter of the speed.
inline constexpr std::size_t prefetchThreshold = 4096;

// Whether two runs of as many bytes share any; equal addresses count as sharing.
inline bool overlap(const std::byte *a, const std::byte *b, std::size_t bytes) {
    const auto first = reinterpret_cast<std::uintptr_t>(a);
    const auto second = reinterpret_cast<std::uintptr_t>(b);
    return first < second + bytes && second < first + bytes;
}

// The plain loop, over elements [from, to). A destination that runs ahead of a source sees elements already written.
template <class Operation>
inline void walkElements(const std::byte *a, const std::byte *b, std::byte *d, std::size_t from, std::size_t to,
                         Operation operation) {
    for (std::size_t j = from; j < to; ++j) {
        const std::size_t at = j * sizeof(Real32);
        storeAt<Real32>(d + at, operation(loadAt<Real32>(a + at), loadAt<Real32>(b + at)));
    }
}

// Blocks from `from` on as long as whole ones remain; returns the first element that they leave. The destination is
// aligned to 16 bytes here, the second source only if the template says so, the first is never expected to be.
template <bool secondAligned, class Operation>
inline std::size_t walkWholeBlocks(const std::byte *a, const std::byte *b, std::byte *d, std::size_t from,
                                   std::size_t length, Operation operation) {
    const std::size_t end = from + (length - from) / blockElements * blockElements;
    const auto second = [](const std::byte *address) { return secondAligned ? load4Aligned(address) : load4(address); };
    for (std::size_t at = from * sizeof(Real32); at < end * sizeof(Real32); at += blockBytes) {
        if (length >= prefetchThreshold) {
            prefetchOnce(b + at + prefetchDistance);
            prefetchOnce(a + at + prefetchDistance);
        }
        store4Aligned(d + at, operation(load4(a + at), second(b + at)));
        store4Aligned(d + at + laneBytes, operation(load4(a + at + laneBytes), second(b + at + laneBytes)));
    }
    return end;
}

// d(j) = operation(a(j), b(j)) for j below `length`. Blocks are for destinations that overlap neither source anywhere
// and can be brought to a 16-byte boundary by whole elements; of the sources' alignments only the second's is looked
// at, so there are two inner loops and not four.
template <class Operation>
inline void walkBlocks(const std::byte *a, const std::byte *b, std::byte *d, std::size_t length, Operation operation) {
    const std::size_t bytes = length * sizeof(Real32);
    const std::size_t pastBoundary = reinterpret_cast<std::uintptr_t>(d) % laneBytes;
    if (length < blockThreshold || overlap(a, d, bytes) || overlap(b, d, bytes) || pastBoundary % sizeof(Real32) != 0)
        return walkElements(a, b, d, 0, length, operation);

    const std::size_t peeled = pastBoundary == 0 ? 0 : (laneBytes - pastBoundary) / sizeof(Real32);
    walkElements(a, b, d, 0, peeled, operation);
    const std::size_t done = isAligned(b + peeled * sizeof(Real32))
                                 ? walkWholeBlocks<true>(a, b, d, peeled, length, operation)
                                 : walkWholeBlocks<false>(a, b, d, peeled, length, operation);
    walkElements(a, b, d, done, length, operation);
}

} // namespace vonkk3::vector
