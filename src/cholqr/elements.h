// The elements of one object as the factorisations see them: as numbers of the type that they are worked in, and a
// store rounds to the element's own type.
#pragma once

#include "frame/objects_view.h"
#include "frame/unroll.h"
#include "frame/views.h"

namespace vonkk3::cholqr {

// In the caller's memory. Every step is there at once, so whatever operands overlap sees it.
template <class View> struct InMemory {
    using Element = typename View::Element;
    using Number = Working<Element>;

    View view;

    Number load(std::size_t column) const { return view.load(column); }
    Number load(std::size_t row, std::size_t column) const { return view.load(row, column); }
    void store(std::size_t column, Number value) const {
        view.store(column, round<Element>(value));
        readBackWhatIsStored<Element>();
    }
    void store(std::size_t row, std::size_t column, Number value) const {
        view.store(row, column, round<Element>(value));
        readBackWhatIsStored<Element>();
    }
    static Number rounded(Number value) { return round<Element>(value); }
};
template <class View> InMemory(View) -> InMemory<View>;

// In a local array of numbers, of one object or of a batch.
template <class Value, std::size_t columns> struct Local {
    using Number = std::remove_const_t<Value>;

    Value (*rows)[columns];

    Number load(std::size_t column) const { return rows[0][column]; }
    Number load(std::size_t row, std::size_t column) const { return rows[row][column]; }
    void store(std::size_t column, Number value) const { rows[0][column] = value; }
    void store(std::size_t row, std::size_t column, Number value) const { rows[row][column] = value; }
    static Number rounded(Number value) { return value; }
};
template <class Value, std::size_t columns> Local(Value (*)[columns]) -> Local<Value, columns>;

// The caller's contiguous work space.
template <class T> inline RowsView<T> workSpace(T *work) { return {reinterpret_cast<std::byte *>(work), 0}; }

// What a batch leaves in the work space: that of its last object.
template <class Number, std::size_t length>
VONKK3_INLINE void storeLast(const ObjectsView &workspace, const Number (&vector)[length]) {
    for (std::size_t i = 0; i < length; ++i) workspace.store(0, i, vector[i].last());
}

// start + Σ term(i) for i from `from` to `to` - 1. Real64 sums are rounded after the pairs of terms, and again after
// an odd last one.
template <class Elements, class Extent, class Number, class Term>
VONKK3_INLINE Number sumInPairs(const Elements &elements, Number start, std::size_t from, std::size_t to, Extent extent,
                                const Term &term) {
    const std::size_t endOfPairs = from + (to - from) / 2 * 2;
    Number sum = start;
    forIndices(from, endOfPairs, extent, [&](std::size_t i) VONKK3_INLINED { sum = sum + term(i); });
    sum = elements.rounded(sum);
    if (endOfPairs < to) sum = elements.rounded(sum + term(endOfPairs));
    return sum;
}

// ---- What two families have in common
// --------------------------------------------------------------------------------

// QR: how many reflections there are: one for each column, but for the last column of a square matrix, which has
// nothing below its diagonal.
template <class Columns, class Rows> inline std::size_t reflections(Columns columns, Rows rows) {
    return columns == rows ? columns - 1 : std::size_t(columns);
}

// Cholesky: sizes that are signed are negative then.
inline bool hasTopBit(std::size_t size) { return size >> 31 != 0; }

// The test for null that every single call makes: whether an operand has object n at null. In the pointer layouts it is
// a test of the table, which has been made by then.
template <class... Operands> VONKK3_INLINE bool anyBeginsAtNull(std::size_t n, const Operands &...operands) {
    return (operands.beginsAtNull(n) || ...);
}

} // namespace vonkk3::cholqr
