// A long copy of Real32 elements: blocks of eight in four-lane registers where the operands allow them, else a plain
// forward loop. Both leave the same.
#pragma once

#include "frame/aliasing.h"
#include "frame/lanes.h"

namespace vonkk3::cholqr {

// Below this length the plain loop is quicker.
inline constexpr std::size_t blockThreshold = 11;
inline constexpr std::size_t blockBytes = 2 * laneBytes;
inline constexpr std::size_t prefetchDistance = 64; // bytes ahead of the block's first element

// Where a target overlaps later elements of its source, these have been overwritten when they are read.
inline void copyElements(const std::byte *source, std::byte *target, std::size_t from, std::size_t to) {
    for (std::size_t at = from; at < to; at += sizeof(Real32)) storeAt(target + at, loadAt<Real32>(source + at));
}

// Blocks from byte `from` on as long as whole ones remain; the first byte that they leave. The target is aligned to 16
// bytes here, the source only if the template says so.
template <bool sourceAligned>
inline std::size_t copyWholeBlocks(const std::byte *source, std::byte *target, std::size_t from, std::size_t to) {
    const auto load = [](const std::byte *address) { return sourceAligned ? load4Aligned(address) : load4(address); };
    for (; to - from >= blockBytes; from += blockBytes) {
        prefetchOnce(source + from + prefetchDistance);
        store4Aligned(target + from, load(source + from));
        store4Aligned(target + from + laneBytes, load(source + from + laneBytes));
    }
    return from;
}

inline void copyInBlocks(const std::byte *source, std::byte *target, std::size_t length) {
    const std::size_t bytes = length * sizeof(Real32);
    const std::size_t pastBoundary = reinterpret_cast<std::uintptr_t>(target) % laneBytes;
    if (length < blockThreshold || pastBoundary % sizeof(Real32) != 0 ||
        !disjoint(extentOf(source, bytes), extentOf(target, bytes)))
        return copyElements(source, target, 0, bytes);

    const std::size_t peeled = pastBoundary == 0 ? 0 : laneBytes - pastBoundary;
    copyElements(source, target, 0, peeled);
    const std::size_t done = isAligned(source + peeled) ? copyWholeBlocks<true>(source, target, peeled, bytes)
                                                        : copyWholeBlocks<false>(source, target, peeled, bytes);
    copyElements(source, target, done, bytes);
}

} // namespace vonkk3::cholqr
