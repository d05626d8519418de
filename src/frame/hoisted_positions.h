// The positions of a small object's table, read once for all objects, and the alias test on them.
#pragma once

#include "frame/aliasing.h"

namespace vonkk3 {

template <std::size_t rows, std::size_t columns> struct HoistedPositions {
    std::uintptr_t hoisted[rows][columns];
    std::ptrdiff_t step;
    bool isArray;
    Extent entries;        // that were read
    std::uintptr_t ofNull; // where a null entry leads

    template <class Words>
    VONKK3_INLINE explicit HoistedPositions(const Words &words) : step(words.step), isArray(words.isArray) {
        const EntryStrides strides(words);
        readPositions(words.begin, strides.row, strides.element, words.rowStride, hoisted);
        entries = {words.begin, words.begin + Address(strides.offset(rows - 1, columns - 1)) + sizeof(void *)};
        ofNull = std::uintptr_t(std::ptrdiff_t(words.rowStride));
    }
    std::uintptr_t position(std::size_t i, std::size_t j) const { return hoisted[i][j]; }
    VONKK3_INLINE bool isAnyNull() const {
        return !everyIndex(0, rows * columns, fixed<rows * columns>,
                           [&](std::size_t k) VONKK3_INLINED { return hoisted[k / columns][k % columns] != ofNull; });
    }

    // Of the objects of one position; they ascend, if that is not below an element.
    Distance bytesOfPosition(std::size_t count) const {
        constexpr std::ptrdiff_t elementBytes = sizeof(Real32);
        if (!isArray) return elementBytes;
        return step < elementBytes ? 0 : distanceOf(count - 1, step) + elementBytes;
    }

    // body(i, j), row by row.
    template <class Body> VONKK3_INLINE static void forEachElement(const Body &body) {
        forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
            forIndices(0, columns, fixed<columns>, [&](std::size_t j) VONKK3_INLINED { body(i, j); });
        });
    }
};

// As in aliasing.h. What is written ascends by position; nothing, if it does not.
template <std::size_t rows, std::size_t columns>
VONKK3_INLINE Extent plainlyWritten(const HoistedPositions<rows, columns> &d, std::size_t count) {
    const Distance ofPosition = d.bytesOfPosition(count);
    const Address first = d.hoisted[0][0];
    Address last = first - Address(ofPosition);
    Distance least = ofPosition; // distance of positions; below 0 where they descend
    d.forEachElement([&](std::size_t i, std::size_t j) VONKK3_INLINED {
        const auto distance = Distance(d.hoisted[i][j] - last);
        least = distance < least ? distance : least;
        last = d.hoisted[i][j];
    });
    constexpr std::ptrdiff_t elementBytes = sizeof(Real32);
    const Extent written{first, last + Address(ofPosition)};
    const bool isWrittenOnce =
        least == ofPosition || (least >= elementBytes && Distance(last - first) + elementBytes <= d.step);
    if (ofPosition == 0 || !isWrittenOnce || !disjoint(written, d.entries)) return {1, 0};
    return written;
}

template <std::size_t rows, std::size_t columns>
VONKK3_INLINE bool isPlainlyDisjoint(const Extent &written, const HoistedPositions<rows, columns> &source,
                                     std::size_t count) {
    Address lowest = source.hoisted[0][0], highest = lowest;
    source.forEachElement([&](std::size_t i, std::size_t j) VONKK3_INLINED {
        const Address position = source.hoisted[i][j];
        lowest = position < lowest ? position : lowest;
        highest = position > highest ? position : highest;
    });
    const Distance ofPosition = source.bytesOfPosition(count);
    const Extent read{lowest, highest + Address(ofPosition)};
    return ofPosition != 0 && !read.isEmpty() && !written.isEmpty() && disjoint(written, read) &&
           disjoint(written, source.entries);
}

template <std::size_t rows, std::size_t columns>
VONKK3_INLINE bool isInPlace(const HoistedPositions<rows, columns> &d, const HoistedPositions<rows, columns> &source) {
    bool isSame = source.isArray && source.step == d.step;
    d.forEachElement([&](std::size_t i, std::size_t j)
                         VONKK3_INLINED { isSame = isSame && source.hoisted[i][j] == d.hoisted[i][j]; });
    return isSame;
}

template <bool mayBeInPlace, std::size_t rows, std::size_t columns, class... Sources>
VONKK3_INLINE bool arePlainlyIndependent(std::size_t count, const HoistedPositions<rows, columns> &d,
                                         const Sources &...sources) {
    const Extent written = plainlyWritten(d, count);
    const auto isIndependent = [&](const auto &source) VONKK3_INLINED {
        return isPlainlyDisjoint(written, source, count) ||
               (mayBeInPlace && !written.isEmpty() && disjoint(written, source.entries) && isInPlace(d, source));
    };
    return (isIndependent(sources) && ...);
}

} // namespace vonkk3
