// An operand as data at run time, whatever its layout: what the alias test and the batches work on, so that their code
// exists once and not once for each layout.
#pragma once

#include "frame/operands.h"
#include "frame/unroll.h"

namespace vonkk3 {

// Where the elements of an operand's objects lie. Objects are found by a stride or by a list of pointers; elements by
// strides, or each position by a table of pointers. A transposed operand has its strides exchanged.
struct ObjectsView {
    enum class Indirection : std::uint8_t { none, list, table };

    std::uintptr_t begin;         // object 0, or the list or table
    std::ptrdiff_t shift;         // added to every pointer of a list or table
    std::ptrdiff_t objectStride;  // 0 for a single object
    std::ptrdiff_t rowStride;     // in a table: between entries
    std::ptrdiff_t elementStride; // in a table: between entries
    std::uint32_t rows, columns;  // of an object
    std::uint32_t count;          // objects; 1 for a single one
    std::uint32_t elementBytes;
    Indirection indirection;
    bool isArray;

    bool isTable() const { return indirection == Indirection::table; }
    bool isList() const { return indirection == Indirection::list; }
    bool hasContiguousRows() const { return elementStride == std::ptrdiff_t(elementBytes) && !isTable(); }

    std::uintptr_t listEntry(std::size_t n) const { return pointerAt(begin + n * sizeof(void *)); }

    // Object n of a strided or list layout.
    std::uintptr_t object(std::size_t n) const {
        if (isList()) return listEntry(n) + std::uintptr_t(shift);
        return begin + std::uintptr_t(strides(n, objectStride));
    }

    // Element (i, j) of object n, through a table.
    std::uintptr_t position(std::size_t i, std::size_t j, std::size_t n = 0) const {
        const std::uintptr_t entry = begin + std::uintptr_t(strides(i, rowStride) + strides(j, elementStride));
        return pointerAt(entry) + std::uintptr_t(shift + strides(n, objectStride));
    }

    // Element (i, j) of object 0.
    template <class T> T load(std::size_t i, std::size_t j) const {
        return loadAt<T>(reinterpret_cast<const std::byte *>(addressOf(i, j)));
    }
    template <class T> void store(std::size_t i, std::size_t j, T value) const {
        storeAt(reinterpret_cast<std::byte *>(addressOf(i, j)), value);
    }
    std::uintptr_t addressOf(std::size_t i, std::size_t j) const {
        if (isTable()) return position(i, j);
        return object(0) + std::uintptr_t(strides(i, rowStride) + strides(j, elementStride));
    }

    static std::uintptr_t pointerAt(std::uintptr_t address) {
        return loadAt<std::uintptr_t>(reinterpret_cast<const std::byte *>(address));
    }
};

// Object n of a view, element by element: by strides, or through the entries of a table, whose own strides may be
// exchanged.
template <class T> inline StridedView<T> stridedObject(const ObjectsView &view, std::size_t n) {
    return {reinterpret_cast<ByteOf<T> *>(view.object(n)), view.rowStride, view.elementStride};
}

template <class T> struct EntriesView : ElementAccess<EntriesView<T>, T> {
    std::uintptr_t begin;
    std::ptrdiff_t rowStride, elementStride, offset;

    EntriesView(const ObjectsView &view, std::size_t n)
        : begin(view.begin), rowStride(view.rowStride), elementStride(view.elementStride),
          offset(view.shift + strides(n, view.objectStride)) {}

    ByteOf<T> *at(std::size_t column) const { return at(0, column); }
    ByteOf<T> *at(std::size_t row, std::size_t column) const {
        return reinterpret_cast<ByteOf<T> *>(entry(row, column) + std::uintptr_t(offset));
    }
    bool hasNullEntry(std::size_t column) const { return hasNullEntry(0, column); }
    bool hasNullEntry(std::size_t row, std::size_t column) const { return entry(row, column) == 0; }

private:
    std::uintptr_t entry(std::size_t row, std::size_t column) const {
        return ObjectsView::pointerAt(begin + std::uintptr_t(strides(row, rowStride) + strides(column, elementStride)));
    }
};

// From one row of an operand to the next, and within a row, between the entries of its table.
struct EntryStrides {
    std::ptrdiff_t row, element;

    template <class Words> VONKK3_INLINE explicit EntryStrides(const Words &words) {
        const auto entries = std::ptrdiff_t(std::uint32_t(words.elementStride) * sizeof(void *));
        const bool isTransposed = areOfTable<Words> ? areOfTransposedTable<Words> : words.isTransposed;
        row = isTransposed ? std::ptrdiff_t(sizeof(void *)) : entries;
        element = isTransposed ? entries : std::ptrdiff_t(sizeof(void *));
    }
    std::uintptr_t offset(std::size_t i, std::size_t j) const {
        return std::uintptr_t(strides(i, row) + strides(j, element));
    }
};

// Where the positions of a small object's table lead, all at once. Entries without gaps are at constant offsets, and
// the lanes of a register take several.
template <std::size_t rows, std::size_t columns>
VONKK3_INLINE void readPositions(std::uintptr_t begin, std::ptrdiff_t rowStride, std::ptrdiff_t elementStride,
                                 std::ptrdiff_t shift, std::uintptr_t (&positions)[rows][columns]) {
    constexpr std::ptrdiff_t entry = sizeof(void *);
    const auto read = [&](std::ptrdiff_t ofRow, std::ptrdiff_t ofElement) VONKK3_INLINED {
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j)
                positions[i][j] =
                    ObjectsView::pointerAt(begin + std::uintptr_t(strides(i, ofRow) + strides(j, ofElement))) +
                    std::uintptr_t(shift);
    };
    constexpr bool areFew = rows * columns <= 6;
    if (!areFew && rowStride == std::ptrdiff_t(columns) * entry && (columns == 1 || elementStride == entry)) [[likely]]
        read(std::ptrdiff_t(columns) * entry, entry);
    else read(rowStride, elementStride);
}

// Where the positions of a table lead: to object 0, and the others a step after it.
struct TablePositions {
    std::uintptr_t begin;
    EntryStrides entries;
    std::ptrdiff_t shift, step;
    bool isArray;

    VONKK3_INLINE explicit TablePositions(const OperandWords &words)
        : begin(words.begin), entries(words), shift(words.rowStride), step(words.step), isArray(words.isArray) {}
    std::uintptr_t position(std::size_t i, std::size_t j) const {
        return ObjectsView::pointerAt(begin + entries.offset(i, j)) + std::uintptr_t(shift);
    }
};

// The same of a small object's table, read once for all objects.
template <std::size_t rows, std::size_t columns> struct HoistedPositions {
    std::uintptr_t hoisted[rows][columns];
    std::ptrdiff_t step;
    bool isArray;

    template <class Words>
    VONKK3_INLINE explicit HoistedPositions(const Words &words) : step(words.step), isArray(words.isArray) {
        const EntryStrides strides(words);
        readPositions(words.begin, strides.row, strides.element, words.rowStride, hoisted);
    }
    std::uintptr_t position(std::size_t i, std::size_t j) const { return hoisted[i][j]; }
};

template <bool throughTable, class T> VONKK3_INLINE auto objectAt(const ObjectsView &view, std::size_t n) {
    if constexpr (throughTable) return EntriesView<T>(view, n);
    else return stridedObject<T>(view, n);
}

// The first `rows` rows and `columns` columns of every object.
template <class T, Layout layout, Shape shape, bool isArray>
VONKK3_INLINE ObjectsView objectsOf(const Operand<T, layout, shape, isArray> &operand, std::size_t rows,
                                    std::size_t columns, std::size_t count) {
    using Operand = vonkk3::Operand<T, layout, shape, isArray>;
    ObjectsView view;
    view.begin = operand.address();
    view.shift = operand.entryShift();
    view.objectStride = isArray ? operand.objectSpacing() : 0;
    view.rowStride = Operand::isTable ? std::ptrdiff_t(columns * sizeof(void *)) : operand.rowSpacing();
    view.elementStride = Operand::isTable ? std::ptrdiff_t(sizeof(void *)) : operand.elementSpacing();
    view.rows = std::uint32_t(rows);
    view.columns = std::uint32_t(columns);
    view.count = isArray ? std::uint32_t(count) : 1;
    view.elementBytes = sizeof(T);
    view.indirection = Operand::isTable  ? ObjectsView::Indirection::table
                       : Operand::isList ? ObjectsView::Indirection::list
                                         : ObjectsView::Indirection::none;
    view.isArray = isArray;
    return view;
}

// Rows and columns exchanged.
VONKK3_INLINE ObjectsView transposedView(const ObjectsView &stored) {
    ObjectsView view = stored;
    view.rowStride = stored.elementStride;
    view.elementStride = stored.rowStride;
    view.rows = stored.columns;
    view.columns = stored.rows;
    return view;
}

// A transposed operand: the matrix that is read, of `rows` rows and `columns` columns.
template <class Stored>
VONKK3_INLINE ObjectsView objectsOf(const Transposed<Stored> &operand, std::size_t rows, std::size_t columns,
                                    std::size_t count) {
    return transposedView(objectsOf(static_cast<const Stored &>(operand), columns, rows, count));
}

// The same from words; `rows` by `columns` is what is read, transposed or not.
template <class T, bool throughTables>
VONKK3_INLINE ObjectsView objectsOf(const OperandWords &words, std::size_t rows, std::size_t columns,
                                    std::size_t count) {
    ObjectsView view;
    view.begin = words.begin;
    view.rows = std::uint32_t(rows);
    view.columns = std::uint32_t(columns);
    view.count = words.isArray ? std::uint32_t(count) : 1;
    view.elementBytes = sizeof(T);
    view.isArray = words.isArray;
    if constexpr (throughTables) {
        const EntryStrides entries(words);
        view.indirection = ObjectsView::Indirection::table;
        view.shift = words.rowStride;
        view.objectStride = words.step;
        view.rowStride = entries.row;
        view.elementStride = entries.element;
    } else {
        view.indirection = words.isList ? ObjectsView::Indirection::list : ObjectsView::Indirection::none;
        view.shift = words.isList ? words.step : 0;
        view.objectStride = words.isList ? 0 : words.step;
        view.rowStride = words.rowStride;
        view.elementStride = words.elementStride;
    }
    return view;
}

// A plain block of `length` adjacent elements per object: packed results, pivots, or, with a count of 1, a workspace.
template <class T> inline ObjectsView packedBlocks(T *block, std::size_t length, std::size_t count) {
    ObjectsView view{};
    view.begin = reinterpret_cast<std::uintptr_t>(block);
    view.objectStride = std::ptrdiff_t(length * sizeof(T));
    view.elementStride = sizeof(T);
    view.rows = 1;
    view.columns = std::uint32_t(length);
    view.count = std::uint32_t(count);
    view.elementBytes = sizeof(T);
    view.indirection = ObjectsView::Indirection::none;
    view.isArray = count > 1;
    return view;
}

} // namespace vonkk3
