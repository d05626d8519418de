// Whether objects lie so that four of them may be worked side by side, all being read before any is written, and nobody
// can tell: what is written for one object must not be read for a later one.
#pragma once

#include "frame/extent.h"
#include "frame/four_reals.h"
#include "frame/operands.h"

namespace vonkk3::cholqr {

// The bytes of an object that is based at 0.
template <class T> inline Extent footprint(const RowsView<T> &view, std::size_t rows, std::size_t columns) {
    return Extent(RowsView<T>(nullptr, view.rowStride), rows, columns);
}

// Whether the rows of a matrix lie apart from each other.
template <class T> inline bool areRowsApart(const RowsView<T> &view, std::size_t columns) {
    const auto rowBytes = std::ptrdiff_t(columns * sizeof(T));
    return view.rowStride >= rowBytes || view.rowStride <= -rowBytes;
}

// Whether two objects overlap, by their bases alone: one subtraction and one comparison.
class OverlapTest {
public:
    OverlapTest(const Extent &a, const Extent &b)
        : least(b.begin - a.end + 1), distances((b.end - a.begin) - (b.begin - a.end + 1)) {}

    bool operator()(const std::byte *a, const std::byte *b) const {
        return reinterpret_cast<std::uintptr_t>(a) - reinterpret_cast<std::uintptr_t>(b) - least < distances;
    }

private:
    std::uintptr_t least, distances;
};

// Objects of one operand among those of another: a written one against one that is read, or against itself.
template <class Written, class Read> class Clearance {
public:
    // A vector is one row. An object may be written where it was itself read.
    Clearance(const Written &written, std::size_t rowsWritten, const Read &read, std::size_t rowsRead,
              std::size_t columns, std::size_t count)
        : written(written), read(read), ofWritten(footprint(written.view(0), rowsWritten, columns)),
          ofRead(footprint(read.view(0), rowsRead, columns)), overlap(ofWritten, ofRead),
          mayBeSame(rowsWritten == rowsRead && (rowsRead == 1 || haveSameRows(columns))) {
        if constexpr (isKnownAhead && isItself) {
            clear = !overlap(written.view(0).base, written.view(1).base);
        } else if constexpr (isKnownAhead) {
            clear = areApart(wholeOf(written, ofWritten, count), wholeOf(read, ofRead, count)) ||
                    (written.objectSpacing() == read.objectSpacing() && distancesAreClear());
        }
    }

    // For objects n to n + 3; where it is known ahead, to n + 7.
    VONKK3_INLINE bool ofFourFrom(std::size_t n) const {
        if constexpr (isKnownAhead) return clear;
        else return pairsAreClear(n);
    }

private:
    static constexpr bool isKnownAhead = !Written::isList && !Read::isList;
    static constexpr bool isItself = std::is_same_v<Written, Read>;

    const Written &written;
    const Read &read;
    Extent ofWritten, ofRead;
    OverlapTest overlap;
    bool mayBeSame;
    bool clear = false;

    bool haveSameRows(std::size_t columns) const {
        return written.view(0).rowStride == read.view(0).rowStride && areRowsApart(written.view(0), columns);
    }

    template <class Operand> static Extent wholeOf(const Operand &operand, Extent extent, std::size_t count) {
        const auto first = reinterpret_cast<std::uintptr_t>(operand.view(0).base);
        const std::ptrdiff_t way = strides(count - 1, operand.objectSpacing());
        extent.begin += first + (way < 0 ? std::uintptr_t(way) : 0);
        extent.end += first + (way < 0 ? 0 : std::uintptr_t(way));
        return extent;
    }

    // Equally spaced objects lie to each other as far as they are apart in their arrays.
    bool distancesAreClear() const {
        const std::byte *target = written.view(0).base;
        for (std::size_t distance = 0; distance < 2 * four; ++distance) {
            const std::byte *source = read.view(distance).base;
            const bool isOwn = Read::isArray && distance == 0 && mayBeSame && source == target;
            if (!isOwn && overlap(target, source)) return false;
        }
        return true;
    }

    VONKK3_INLINE bool pairsAreClear(std::size_t n) const {
        bool overlapped = false;
        forIndices(0, four, fixed<four>, [&](std::size_t a) VONKK3_INLINED {
            forIndices(0, Read::isArray ? four : 1, fixed<four>, [&](std::size_t b) VONKK3_INLINED {
                if (Read::isArray && (isItself ? b <= a : b < a)) return; // read ahead of the writing anyway
                const std::byte *target = written.view(n + a).base;
                const std::byte *source = read.view(n + b).base;
                const bool isOwn = Read::isArray && a == b && mayBeSame && source == target;
                overlapped |= !isOwn & overlap(target, source);
            });
        });
        return !overlapped;
    }
};

} // namespace vonkk3::cholqr
