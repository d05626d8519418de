// Operands of arrays without their layout: by strides, or through a table. Layouts, transposed or not, one object or
// many, are data here, so the plain path of a family exists a few times for each operation and order, not once for each
// export.
#pragma once

#include "frame/objects_view.h"

namespace vonkk3 {

// Transposed strided operands have their strides exchanged; of tables it must be known when compiling.
template <class T, bool throughTables, bool isTransposed = false> struct SharedOperand {
    using Element = std::remove_const_t<T>;
    static constexpr bool isTable = throughTables;

    std::uintptr_t begin;
    std::ptrdiff_t step, rowStride, elementStride;
    bool isArray, isList;

    // Word by word: wider loads would wait for the stores of the call's words.
    VONKK3_INLINE explicit SharedOperand(const OperandWords &words)
        : begin(words.begin), step(words.step), rowStride(words.rowStride), elementStride(words.elementStride),
          isArray(words.isArray), isList(words.isList) {}

    // `columns` are those of the table.
    auto view(std::size_t n, std::size_t columns) const {
        if constexpr (throughTables) {
            const TableView<T> table(reinterpret_cast<T *const *>(begin), columns, rowStride + strides(n, step));
            if constexpr (isTransposed) return TransposedView{table};
            else return table;
        } else return StridedView<T>(object(n), rowStride, elementStride);
    }
    auto view(std::size_t n) const { return view(n, std::uint32_t(elementStride)); }
    OperandWords words() const {
        return {begin,  std::int32_t(step), std::int32_t(rowStride), std::int32_t(elementStride), isArray,
                isList, isTransposed};
    }
    bool listHasNull(std::size_t n) const { return !throughTables && isList && listEntry(n) == 0; }
    bool beginsAtNull(std::size_t n) const { return !throughTables && address(n) == 0; }

private:
    std::uintptr_t listEntry(std::size_t n) const { return ObjectsView::pointerAt(begin + n * sizeof(void *)); }
    std::uintptr_t address(std::size_t n) const {
        return isList ? listEntry(n) + std::uintptr_t(step) : begin + std::uintptr_t(strides(n, step));
    }
    ByteOf<T> *object(std::size_t n) const { return reinterpret_cast<ByteOf<T> *>(address(n)); }
};

// Of strided layouts where rows are known to be contiguous.
template <class T> struct ContiguousOperand : SharedOperand<T, false> {
    using SharedOperand<T, false>::SharedOperand;
    auto view(std::size_t n, std::size_t columns = 0) const {
        const StridedView<T> strided = SharedOperand<T, false>::view(n, columns);
        return RowsView<T>(strided.base, strided.rowStride);
    }
};

// work(areLists), in a copy for either answer where that pays: where the work of an object is a few instructions.
template <class Order> inline constexpr bool isLight = Order::value == 3 || Order::value == 4;
template <bool inTwoCopies, class Work> VONKK3_INLINE auto knowingLists(bool areLists, const Work &work) {
    if constexpr (inTwoCopies) return areLists ? work(std::true_type()) : work(std::false_type());
    else return work(areLists);
}

// Whether elements of rows are contiguous, where they are not found through a table.
template <class T, class... Words> inline bool areRowsContiguous(const Words &...operands) {
    return ((operands.elementStride == std::int32_t(sizeof(T))) && ...);
}

} // namespace vonkk3
