// Where the elements of ONE object lie. Six layouts make just three kinds of object, so there are three views; an
// algorithm is written once against any of them. A vector is a matrix of one row, and is asked for element j alone.
//
// T is const for a source: storing into one does not compile.
#pragma once

#include "frame/real.h"

namespace vonkk3 {

// So many strides, in bytes. Multiplied without sign, which wraps at the width of a pointer as addresses do, and which
// a compiler can turn into a running sum.
inline std::ptrdiff_t strides(std::size_t number, std::ptrdiff_t stride) {
    return std::ptrdiff_t(number * std::size_t(stride));
}

// Where an entry of a table or list leads with its shift. Some forms never test their entries, and a null one may still
// lead somewhere then, so this is reckoned in integers.
template <class T> inline ByteOf<T> *shifted(T *entry, std::ptrdiff_t shift) {
    return reinterpret_cast<ByteOf<T> *>(reinterpret_cast<std::uintptr_t>(entry) + std::uintptr_t(shift));
}

// What the three views share: moving elements to and from the addresses that View::at gives.
template <class View, class T> struct ElementAccess {
    using Element = std::remove_const_t<T>;

    Element load(std::size_t column) const { return loadAt<Element>(self().at(column)); }
    Element load(std::size_t row, std::size_t column) const { return loadAt<Element>(self().at(row, column)); }
    void store(std::size_t column, Element value) const { storeAt(self().at(column), value); }
    void store(std::size_t row, std::size_t column, Element value) const { storeAt(self().at(row, column), value); }

private:
    const View &self() const { return static_cast<const View &>(*this); }
};

// Rows of adjacent elements: the standard and list layouts.
template <class T> struct RowsView : ElementAccess<RowsView<T>, T> {
    ByteOf<T> *base;
    std::ptrdiff_t rowStride;

    RowsView(ByteOf<T> *base, std::ptrdiff_t rowStride) : base(base), rowStride(rowStride) {}

    ByteOf<T> *at(std::size_t column) const { return base + column * sizeof(T); }
    ByteOf<T> *at(std::size_t row, std::size_t column) const {
        return base + strides(row, rowStride) + column * sizeof(T);
    }
    bool hasPackedRows(std::size_t columns) const { return rowStride == std::ptrdiff_t(columns * sizeof(T)); }
    static constexpr bool hasNullEntry(std::size_t) { return false; }
    static constexpr bool hasNullEntry(std::size_t, std::size_t) { return false; }
};

// Rows of elements a stride apart: the strided layouts.
template <class T> struct StridedView : ElementAccess<StridedView<T>, T> {
    ByteOf<T> *base;
    std::ptrdiff_t rowStride;
    std::ptrdiff_t elementStride;

    StridedView(ByteOf<T> *base, std::ptrdiff_t rowStride, std::ptrdiff_t elementStride)
        : base(base), rowStride(rowStride), elementStride(elementStride) {}

    ByteOf<T> *at(std::size_t column) const { return base + strides(column, elementStride); }
    ByteOf<T> *at(std::size_t row, std::size_t column) const {
        return base + strides(row, rowStride) + strides(column, elementStride);
    }
    static constexpr bool hasNullEntry(std::size_t) { return false; }
    static constexpr bool hasNullEntry(std::size_t, std::size_t) { return false; }
};

// A table of one pointer per element position, all displaced by the same offset: the pointer layouts.
template <class T> struct TableView : ElementAccess<TableView<T>, T> {
    T *const *table;
    std::size_t columns;
    std::ptrdiff_t offset;

    TableView(T *const *table, std::size_t columns, std::ptrdiff_t offset)
        : table(table), columns(columns), offset(offset) {}

    ByteOf<T> *at(std::size_t position) const { return shifted(loadAt<T *>(slot(position)), offset); }
    ByteOf<T> *at(std::size_t row, std::size_t column) const { return at(row * columns + column); }
    bool hasNullEntry(std::size_t position) const { return loadAt<T *>(slot(position)) == nullptr; }
    bool hasNullEntry(std::size_t row, std::size_t column) const { return hasNullEntry(row * columns + column); }

private:
    const std::byte *slot(std::size_t position) const { return reinterpret_cast<const std::byte *>(table + position); }
};

// A matrix with rows and columns exchanged.
template <class View> struct TransposedView {
    using Element = typename View::Element;
    View stored;

    auto load(std::size_t row, std::size_t column) const { return stored.load(column, row); }
    void store(std::size_t row, std::size_t column, Element value) const { stored.store(column, row, value); }
    bool hasNullEntry(std::size_t row, std::size_t column) const { return stored.hasNullEntry(column, row); }
};

template <class View> TransposedView(View) -> TransposedView<View>;

// A vector as a matrix of one column.
template <class View> struct ColumnView {
    View vector;

    auto load(std::size_t row, std::size_t) const { return vector.load(row); }
    auto at(std::size_t row, std::size_t) const { return vector.at(row); }
    template <class Element> void store(std::size_t row, std::size_t, Element value) const { vector.store(row, value); }
    bool hasNullEntry(std::size_t row, std::size_t) const { return vector.hasNullEntry(row); }
};
template <class View> ColumnView(View) -> ColumnView<View>;

} // namespace vonkk3
