// The test of the last pivots of a batch, before anything of it is stored. In an array it reads a displaced element,
// which is what it is only after the objects up to its own have been stored, and before any later one is.
#pragma once

#include "frame/aliasing.h"
#include "lu/permutation.h"

namespace vonkk3::lu {

// The last pivot test of object n in an array does not look at that pivot but n * order columns beyond it: in another
// row, in another object, or past the end of the array. Only object 0 has its own last pivot tested.
inline std::size_t testedLastColumn(std::size_t order, std::size_t n) { return order - 1 + n * order; }

template <std::size_t order> class LastPivots {
public:
    // The views must live as long.
    VONKK3_INLINE LastPivots(const ObjectsView &factors, const ObjectsView &pivots)
        : factors(writes(factors)), pivots(writes(pivots)) {
        this->factors.findExtents();
        this->pivots.findExtents();
        mayOverwriteEntries = factors.isTable() && !(disjoint(testedEntries(), this->factors.whole) &&
                                                     disjoint(testedEntries(), this->pivots.whole));
        mayPassClear = factors.isTable() ? !mayOverwriteEntries : factors.isList() || areTestedAhead();
        if (!mayPassClear || factors.isTable() || factors.isList()) return;
        const Distance bytes = Distance(this->factors.object.bytes()), step = distanceOf(order, factors.elementStride);
        for (clearFrom = order; Distance(clearFrom) * step < bytes;) clearFrom *= 2; // quicker than a division
    }

    // The usual case: whether they pass, and nothing of what is read is stored by the batch. lastRow[k] is the row of
    // the last pivot of object n + k, and passes(number or its bits) the test. False also tells nothing.
    template <std::size_t objects, class Passes>
    VONKK3_INLINE bool passClear(std::size_t n, const std::uint32_t (&lastRow)[objects], const Passes &passes) const {
        const ObjectsView &view = factors.view;
        const Distance column = distanceOf(testedLastColumn(order, n), view.elementStride);
        const Distance nextColumn = distanceOf(order, view.elementStride);
        const auto inRow = [&](std::size_t k) VONKK3_INLINED {
            return std::uintptr_t(distanceOf(lastRow[k], view.rowStride) + column + Distance(k) * nextColumn);
        };
        const auto allPass = [&](Extent stored, const auto &addressOf) VONKK3_INLINED { // of object n, or of all
            for (std::size_t k = 0; k < objects; ++k) {
                const std::uintptr_t address = addressOf(k);
                if (k != 0 && !view.isTable()) stored = stored.joinedWith(factors.ofObject(n + k));
                if (overlaps(address, stored) || overlaps(address, pivots.whole) || !passes(at<Real32>(address)))
                    return false;
            }
            return true;
        };
        if (!mayPassClear) return false;
        if (view.isTable()) {
            const auto offset = std::uintptr_t(view.shift + strides(n, view.objectStride));
            return allPass(factors.whole, [&](std::size_t k) VONKK3_INLINED {
                return ObjectsView::pointerAt(view.begin + inRow(k)) + offset +
                       std::uintptr_t(strides(k, view.objectStride));
            });
        }
        if (view.isList()) {
            // Addresses one by one: some compilers vectorize them and leave the upper half of a register in use.
            return allPass(factors.ofObject(n),
                           [&](std::size_t k) VONKK3_INLINED { return opaque(view.object(n + k) + inRow(k)); });
        }
        if (n < clearFrom) return false;
        // As numbers they wait for the units that eliminate, which has been slower where registers take several packs.
        using Tested = std::conditional_t<(packsToRegister > 1), std::uint32_t, Real32>;
        const std::uintptr_t first = view.object(n) + std::uintptr_t(column);
        const std::ptrdiff_t step = view.objectStride + std::ptrdiff_t(nextColumn);
        for (std::size_t k = 0; k < objects; ++k)
            if (const auto offset = std::uintptr_t(strides(lastRow[k], view.rowStride) + strides(k, step));
                !passes(at<Tested>(first + offset)))
                return false;
        return true;
    }

    // The same in any case, in ascending order: after one that does not, none is read. own(k, i, j) are the bits of an
    // element of the factors of object n + k as they will be stored. Also false where a read meets something else that
    // is about to be stored.
    template <std::size_t objects, class Own, class Passes>
    VONKK3_INLINE bool pass(std::size_t n, const std::uint32_t (&lastRow)[objects], const Own &own,
                            const Passes &passes) const {
        const Extent ofPivots = pivots.ofObject(n).joinedWith(pivots.ofObject(n + objects - 1));
        Extent stored = factors.ofObject(n);
        for (std::size_t k = 0; k < objects; ++k) {
            std::uintptr_t address;
            if (!findTested(n + k, lastRow[k], address)) return false;
            if (k != 0 && n + k < clearFrom) stored = stored.joinedWith(factors.ofObject(n + k));
            if (n + k < clearFrom && (overlaps(address, stored) || overlaps(address, ofPivots))) [[unlikely]] {
                const Position found = findOwn(address, n + k);
                if (found.row < order) {
                    if (!passes(own(k, found.row, found.column))) return false;
                    continue;
                }
                if (isStored(address, n, k) || overlaps(address, ofPivots)) return false;
            }
            if (!passes(at<std::uint32_t>(address))) return false;
        }
        return true;
    }

private:
    struct Position {
        std::size_t row, column;
    };

    AliasOperand factors, pivots;
    bool mayOverwriteEntries, mayPassClear;
    Address clearFrom = ~Address(0); // objects from it on are clear of their own elements

    template <class T> static T at(std::uintptr_t address) {
        return loadAt<T>(reinterpret_cast<const std::byte *>(address));
    }

    // Of equally spaced objects, what is looked at for an object begins after it in all but the first few, and so after
    // the objects before it; and it is nowhere a row index.
    bool areTestedAhead() const {
        const ObjectsView &view = factors.view;
        if (view.objectStride <= 0 || view.rowStride < 0 || view.elementStride <= 0 || view.count > 1U << 28)
            return false;
        const Extent tested = Extent{view.begin, Address(view.begin) + sizeof(Real32)}
                                  .extendedBy(distanceOf(view.count - 1, view.objectStride))
                                  .extendedBy(distanceOf(order - 1, view.rowStride))
                                  .extendedBy(distanceOf(testedLastColumn(order, view.count - 1), view.elementStride));
        return !tested.isEmpty() && disjoint(tested, pivots.whole);
    }

    // The bytes of an element.
    static bool overlaps(std::uintptr_t address, const Extent &extent) {
        const auto distance = std::uintptr_t(address - extent.begin + (sizeof(Real32) - 1)); // may wrap round
        return distance < extent.bytes() + (sizeof(Real32) - 1);
    }

    // The address of what is looked at for object n. False if the entry of the table that leads there may be
    // overwritten.
    VONKK3_INLINE bool findTested(std::size_t n, std::size_t row, std::uintptr_t &address) const {
        const ObjectsView &view = factors.view;
        const auto offset =
            std::uintptr_t(strides(row, view.rowStride) + strides(testedLastColumn(order, n), view.elementStride));
        if (!view.isTable()) {
            address = view.object(n) + offset;
            return true;
        }
        const std::uintptr_t entry = view.begin + offset;
        if (mayOverwriteEntries) {
            const Extent bytes{entry, Address(entry) + sizeof(void *)};
            if (!disjoint(bytes, factors.whole) || !disjoint(bytes, pivots.whole)) return false;
        }
        address = ObjectsView::pointerAt(entry) + std::uintptr_t(view.shift + strides(n, view.objectStride));
        return true;
    }

    // All entries of a table that lead to what is looked at.
    Extent testedEntries() const {
        const ObjectsView &view = factors.view;
        return Extent{view.begin, Address(view.begin) + sizeof(void *)}
            .extendedBy(distanceOf(order - 1, view.rowStride))
            .extendedBy(distanceOf(testedLastColumn(order, view.count - 1), view.elementStride));
    }

    // The element of object n at an address; row `order` if there is none.
    VONKK3_NOINLINE Position findOwn(std::uintptr_t address, std::size_t n) const {
        for (std::size_t column = order; column-- > 0;)
            for (std::size_t row = 0; row < order; ++row)
                if (address == addressOf(row, column, n)) return {row, column};
        return {order, order};
    }
    std::uintptr_t addressOf(std::size_t row, std::size_t column, std::size_t n) const {
        const ObjectsView &view = factors.view;
        if (view.isTable()) return view.position(row, column, n);
        return view.object(n) + std::uintptr_t(strides(row, view.rowStride) + strides(column, view.elementStride));
    }

    // Whether it overlaps an element of the objects n to n + k, whose extents have gaps.
    VONKK3_NOINLINE bool isStored(std::uintptr_t address, std::size_t n, std::size_t k) const {
        for (std::size_t m = n; m <= n + k; ++m) {
            if (!overlaps(address, factors.ofObject(m))) continue;
            for (std::size_t row = 0; row < order; ++row)
                for (std::size_t column = 0; column < order; ++column) {
                    const std::uintptr_t element = addressOf(row, column, m);
                    if (overlaps(address, {element, Address(element) + sizeof(Real32)})) return true;
                }
        }
        return false;
    }
};

} // namespace vonkk3::lu
