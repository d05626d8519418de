// Rows and columns exchanged, single matrices and arrays. Elements are moved and not worked: every bit stays.
#pragma once

#include "frame/elementwise.h"
#include "frame/packed_transpose.h"
#include "frame/walk.h"
#include "matrix/rows.h"

namespace vonkk3::matrix {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// In the pointer layouts the lengths of the tables' rows are taken crosswise: the source's rows are taken to be as long
// as the destination's are, and the other way round. A square matrix is transposed; of others some entries are read or
// written twice or lie behind the table.
struct TableRowLengths {
    std::size_t source, destination;
    TableRowLengths(std::size_t columns, std::size_t rows) : source(rows), destination(columns) {}
};

// Real32 of fixed size where elements are adjacent: 3x3 goes along the rows of the source, element by element, so that
// in place the upper triangle overwrites the lower one before that is read. Larger ones read all of an object first.
template <class Columns> inline constexpr bool storesBeforeItHasRead = Columns::value == 3;

// ---- One object -----------------------------------------------------------------------------------------------------

// Along the rows of the source; an element is read when its turn comes.
template <bool testsEntries, class A, class D, class Columns>
VONKK3_INLINE VonkStatus transposeElements(const A &a, const D &d, Columns columns, std::size_t rows) {
    return workElements<testsEntries>(TransposedView{d}, rows, columns, Moved(), a);
}

// The same for rows of adjacent elements that something keeps from being transposed in registers.
template <std::size_t order> VONKK3_NOINLINE void transposeInMemory(RowsView<const Real32> a, RowsView<Real32> d) {
    transposeElements<false>(a, d, atRunTime(order), order);
}

// ---- One object in registers: all of it is read before any of it is written -----------------------------------------

// Elements (i, j), (i, j + 1), (i + 1, j), (i + 1, j + 1)
VONKK3_INLINE __m128 loadSquare(const RowsView<const Real32> &from, std::size_t i, std::size_t j) {
    return _mm_loadh_pi(load2(from.at(i, j)), pair(from.at(i + 1, j)));
}
// Column j of two such squares, one below the other, and column j + 1.
VONKK3_INLINE __m128 evenColumn(__m128 upper, __m128 lower) {
    return _mm_shuffle_ps(upper, lower, _MM_SHUFFLE(2, 0, 2, 0));
}
VONKK3_INLINE __m128 oddColumn(__m128 upper, __m128 lower) {
    return _mm_shuffle_ps(upper, lower, _MM_SHUFFLE(3, 1, 3, 1));
}

// Columns j and j + 1 become rows; where those are adjacent, three stores do.
template <bool areAdjacent>
VONKK3_INLINE void transposeSix(const RowsView<const Real32> &from, const RowsView<Real32> &to) {
    __m128 squares[3][3];
    forEachBelow<3>([&](std::size_t across) VONKK3_INLINED {
        forEachBelow<3>([&](std::size_t down)
                            VONKK3_INLINED { squares[across][down] = loadSquare(from, 2 * down, 2 * across); });
    });
    forEachBelow<3>([&](std::size_t across) VONKK3_INLINED {
        const auto &[upper, middle, lower] = squares[across];
        const std::size_t i = 2 * across;
        const __m128 ends = _mm_shuffle_ps(lower, upper, _MM_SHUFFLE(3, 1, 2, 0));
        store4(to.at(i, 0), evenColumn(upper, middle));
        keepStoreOrder();
        if constexpr (areAdjacent) store4(to.at(i, 4), ends);
        else store2(to.at(i, 4), ends), _mm_storeh_pi(pair(to.at(i + 1, 0)), ends);
        keepStoreOrder();
        store4(to.at(i + 1, 2), oddColumn(middle, lower));
        keepStoreOrder();
    });
}

template <bool areAdjacent, std::size_t order>
VONKK3_INLINE void transposeObject(const RowsView<const Real32> &from, const RowsView<Real32> &to, Fixed<order>) {
    if constexpr (order <= 4 && areAdjacent) transposePacked(from.base, to.base, fixed<order>);
    else if constexpr (order == 6) transposeSix<areAdjacent>(from, to);
    else workRows<order>(to, Moved(), HeldRows<order>(TransposedRows<order>(from)));
}

// ---- All objects ----------------------------------------------------------------------------------------------------

template <bool areAdjacent, class A, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus transposeInLanes(const A &a, const D &d, Fixed<order> size, Count count) {
    const bool mayGoInRegisters =
        !storesBeforeItHasRead<Fixed<order>> ||
        (!A::isList && disjoint(extentOfAll(a, order, order, count), extentOfAll(d, order, order, count)));
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            const RowsView<const Real32> from = a.view(n);
            const RowsView<Real32> to = d.view(n);
            if (mayGoInRegisters || disjoint(extentOf(from, order, order), extentOf(to, order, order)))
                transposeObject<areAdjacent>(from, to, size);
            else transposeInMemory<order>(from, to);
            return vonkOk;
        },
        a, d);
}

// d(n, j, i) = a(n, i, j), for `rows` by `columns` of the source.
template <class A, class D, class Columns, class RowCount, class Count>
VONKK3_INLINE VonkStatus transpose(const A &a, Columns columns, RowCount rows, const D &d, Count count) {
    if (anyNull(a, d)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if constexpr (Count::isArray && !testsTablesLater<typename D::Element, Columns>)
        if (anyTableEntryNull(std::size_t(columns) * rows, a, d)) return vonkErrNullPtr;

    constexpr bool isAdjacent = D::layout == Layout::Standard || D::layout == Layout::L;
    if constexpr (std::is_same_v<typename D::Element, Real32> && isAdjacent && Columns::isFixed) {
        if (count == 0) return vonkOk;
        constexpr std::ptrdiff_t adjacent = Columns::value * sizeof(Real32);
        if (areAdjacentRows<Columns::value>(columns, a, d)) [[likely]]
            return transposeInLanes<true>(a.walkedBy(adjacent), d.walkedBy(adjacent), columns, count);
        return transposeInLanes<false>(a, d, columns, count);
    } else {
        const TableRowLengths lengths(columns, rows);
        if constexpr (Count::isArray)
            return workArrays<typename D::Element>(Moved(), rows, columns, count,
                                                   Transposed{d}.words(lengths.destination), a.words(lengths.source));
        else if constexpr (D::isTable)
            return transposeElements<true>(a.view(0, lengths.source), d.view(0, lengths.destination),
                                           atRunTime(columns), rows);
        else return transposeElements<true>(a.view(0), d.view(0), columns, rows);
    }
}

} // namespace vonkk3::matrix
