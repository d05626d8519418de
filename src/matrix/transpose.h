// Rows and columns exchanged, single matrices and arrays. Elements are moved and not worked: every bit stays.
#pragma once

#include "frame/extent.h"
#include "frame/walk.h"
#include "matrix/rows.h"
#include "matrix/runs.h"

namespace vonkk3::matrix {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// In the pointer layouts the lengths of the tables' rows are taken crosswise: the source's rows are taken to be as long
// as the destination's are, and the other way round. A square matrix is transposed; of others some entries are read or
// written twice or lie behind the table.
struct TableRowLengths {
    std::size_t source, destination;
    TableRowLengths(std::size_t columns, std::size_t rows) : source(rows), destination(columns) {}
};

// ---- One object -----------------------------------------------------------------------------------------------------

// Along the rows of the source; an element is read when its turn comes.
template <bool testsEntries, class A, class D>
VONKK3_INLINE VonkStatus transposeElements(const A &a, const D &d, std::size_t columns, std::size_t rows) {
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j) {
            if (testsEntries && (a.hasNullEntry(i, j) || d.hasNullEntry(j, i))) return vonkErrNullPtr;
            d.store(j, i, a.load(i, j));
        }
    return vonkOk;
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Objects that lie apart from their results are turned round in registers; others element by element.
template <class A, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus transposeInLanes(const A &a, const D &d, Fixed<order>, Count count) {
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED -> VonkStatus {
            const auto from = a.view(n);
            const auto to = d.view(n);
            if (!areApart(Extent(from, order, order), Extent(to, order, order)))
                return transposeElements<false>(from, to, order, order);
            const TurnedRows<order> rows{TransposedView{from}};
            forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED { rows.row(i).store(to.at(i, 0)); });
            return vonkOk;
        },
        a, d);
}

// d(n, j, i) = a(n, i, j), for `rows` by `columns` of the source.
template <class A, class D, class Columns, class Rows, class Count>
VONKK3_INLINE VonkStatus transpose(const A &a, Columns columns, Rows rows, const D &d, Count count) {
    if (anyNull(a, d)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if constexpr (Count::isArray)
        if (anyTableEntryNull(std::size_t(columns) * rows, a, d)) return vonkErrNullPtr;

    constexpr bool isAdjacent = D::layout == Layout::Standard || D::layout == Layout::L;
    if constexpr (std::is_same_v<typename D::Element, Real32> && isAdjacent && Columns::isFixed)
        return transposeInLanes(a, d, columns, count);
    else {
        const TableRowLengths lengths(columns, rows);
        return forEachObject(
            count,
            [&](std::size_t n) VONKK3_INLINED {
                return transposeElements<!Count::isArray>(a.view(n, lengths.source), d.view(n, lengths.destination),
                                                          columns, rows);
            },
            a, d);
    }
}

} // namespace vonkk3::matrix
