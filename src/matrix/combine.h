// Sum and difference of matrices, element by element: single matrices and arrays, either side read transposed. One
// rounded operation per element; objects, rows and columns in ascending order.
#pragma once

#include "frame/elementwise.h"
#include "frame/operations.h"
#include "frame/untested_position.h"
#include "frame/walk.h"
#include "matrix/rows.h"

namespace vonkk3::matrix {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// One form of what `combine` is called with: the facts below are told about it.
template <class Operation, class A, class B, class D, class Columns> struct Form {
    static constexpr bool isSum = std::is_same_v<Operation, Sum>;
    static constexpr bool isReal32 = std::is_same_v<typename D::Element, Real32>;
    static constexpr Layout layout = D::layout;
    static constexpr bool firstArray = A::isArray, firstTransposed = A::isTransposed;
    static constexpr bool secondArray = B::isArray, secondTransposed = B::isTransposed;
    static constexpr bool isArray = D::isArray;
    static constexpr std::size_t order = Columns::value;
};

// Real32 of fixed size works rows in lanes where elements are adjacent.
template <class F>
inline constexpr bool worksInLanes = F::isReal32 &&F::order != 0 &&
                                     (F::layout == Layout::Standard || F::layout == Layout::L);

// There 3x3 and 4x4 with a single operand load it before all objects: a destination that overlaps it changes nothing
// for later objects. All other forms read it again for each object.
template <class F>
inline constexpr bool holdsSingleOperand =
    worksInLanes<F> &&F::isArray &&F::firstArray != F::secondArray &&F::order <= 4;

// vonkAdd and vonkSub of mam and mamT, 32f 3x3, standard layout and L: each object is loaded before the previous one
// is stored, and the loop is entered with one object in hand, so `count` 0 works one object as `count` 1 does.
template <class F>
inline constexpr bool isPipelined =
    worksInLanes<F> &&F::order == 3 && F::firstArray && !F::secondArray && !F::firstTransposed;

// Of these mamT walks the rows of its second operand with the first one's row stride.
template <class F> inline constexpr bool borrowsRowStride = isPipelined<F> &&F::secondTransposed;

// vonkSub_mTmT_32f_6x6 and vonkSub_maTmaT_32f_6x6 (with its L form) subtract the wrong elements: see CrossedView.
template <class F>
inline constexpr bool isCrossed = worksInLanes<F> &&F::order == 6 && !F::isSum && F::firstTransposed &&
                                  F::secondTransposed && F::firstArray == F::secondArray;

// mmT, mTm and mTmT of 4x4 in P, both types, never test position 8 of a transposed operand's table.
template <class F, class Operand>
inline constexpr bool leavesPosition8Untested =
    Operand::isTransposed && !F::isArray && F::order == 4 && F::layout == Layout::P;

// ---- Rows in lanes --------------------------------------------------------------------------------------------------

// The crossed differences: which of the operands' elements, as they are stored, make element (i, j); row and column as
// two digits. The single one repeats row 2 in row 3, and never uses column 3.
inline constexpr std::uint8_t repeatedRow[6][6] = {{0, 10, 20, 30, 40, 50}, {1, 11, 21, 31, 41, 51},
                                                   {2, 12, 22, 32, 42, 52}, {2, 12, 22, 32, 42, 52},
                                                   {4, 14, 24, 34, 44, 54}, {5, 15, 25, 35, 45, 55}};
inline constexpr std::uint8_t scattered[6][6] = {{0, 4, 20, 24, 40, 44},   {1, 5, 21, 25, 41, 45},
                                                 {2, 14, 22, 34, 42, 54},  {2, 14, 22, 34, 42, 54},
                                                 {10, 12, 30, 32, 50, 52}, {11, 13, 31, 33, 51, 53}};

struct CrossedView {
    RowsView<const Real32> stored;
    const std::uint8_t (&from)[6][6];
    Real32 load(std::size_t i, std::size_t j) const { return stored.load(from[i][j] / 10, from[i][j] % 10); }
};

// Each object is loaded before the one before it is stored. `hold` takes it out of memory, `work` stores it. The entry
// of the destination's last object is tested first of all. At `count` 0 this is the entry before the list, and the one
// object is stored through it.
template <class A, class D, class Hold, class Work>
VONKK3_INLINE VonkStatus pipelined(const A &a, const D &d, std::size_t count, Hold hold, Work work) {
    const std::size_t lastEntry = count - 1;
    if (a.listHasNull(0) || d.listHasNull(lastEntry)) return vonkErrNullPtr;
    auto first = hold(a.view(0));
    auto firstTarget = d.view(D::isList && count == 0 ? lastEntry : 0);
    for (std::size_t n = 1; n < count; n += 2) { // two objects take turns in registers
        if (a.listHasNull(n) || d.listHasNull(n)) [[unlikely]]
            return vonkErrNullPtr;
        const auto second = hold(a.view(n));
        const auto secondTarget = d.view(n);
        work(firstTarget, first);
        if (n + 1 == count) return work(secondTarget, second), vonkOk;
        if (a.listHasNull(n + 1) || d.listHasNull(n + 1)) [[unlikely]]
            return vonkErrNullPtr;
        first = hold(a.view(n + 1));
        firstTarget = d.view(n + 1);
        work(secondTarget, second);
    }
    return work(firstTarget, first), vonkOk;
}

template <class A, class B, class D, class Operation>
VONKK3_INLINE VonkStatus combinePipelined(const A &a, const B &b, const D &d, std::size_t count, Operation operation) {
    if (areAdjacentRows<3>(3, a, d)) [[likely]] {
        const HeldElements<9> second(elementsOf(b.view(0), fixed<3>));
        const auto hold = [](const auto &view) VONKK3_INLINED { return HeldElements<9>(StoredElements<9>{view.base}); };
        return pipelined(a, d, count, hold, [&](const auto &view, const auto &first) VONKK3_INLINED {
            workElementsAtOnce<9>(view.base, operation, first, second);
        });
    }
    const HeldRows<3> second(rowsOf<3>(b.view(0)));
    const auto hold = [](const auto &view) VONKK3_INLINED { return HeldRows<3>(rowsOf<3>(view)); };
    return pipelined(a, d, count, hold, [&](const auto &view, const auto &first) VONKK3_INLINED {
        workRows<3>(view, operation, first, second);
    });
}

// Orders 3 and 4 are loaded whole where rows are adjacent, others row by row.
template <std::size_t order> inline constexpr std::size_t loadedAtOnce = order <= 4 ? order *order : order;

template <class F, class A, class B, class D, class Count, class Operation>
VONKK3_INLINE VonkStatus combineByObject(const A &a, const B &b, const D &d, Count count, Operation operation) {
    if constexpr (isPipelined<F>) return combinePipelined(a, b, d, count, operation);
    else return workMatrices<F::order, loadedAtOnce<F::order>, holdsSingleOperand<F>>(operation, count, d, a, b);
}
template <class F, class A, class B, class D, class Count, class Operation>
VONKK3_NOINLINE VonkStatus combineByObjectApart(A a, B b, D d, Count count, Operation operation) {
    return combineByObject<F>(a, b, d, count, operation);
}

// Which members may work all matrices as one range: standard arrays that are read as they lie, beside another such
// array or a single matrix, which may be read transposed.
template <class F>
inline constexpr bool mayBeOneRange =
    F::isArray &&F::layout == Layout::Standard && !(F::firstArray && F::firstTransposed) &&
    !(F::secondArray && F::secondTransposed);

template <class F, class A, class B, class D, class Count, class Operation>
VONKK3_INLINE VonkStatus combineInLanes(const A &a, const B &b, const D &d, Count count, Operation operation) {
    if (count == 0 && !isPipelined<F>) return vonkOk; // nothing is read, a single operand neither
    if constexpr (mayBeOneRange<F>) {
        if (workAsOneRange<F::order>(operation, fixed<F::order>, count, d, a, b)) [[likely]]
            return vonkOk;
        return combineByObjectApart<F>(a, b, d, count, operation);
    } else return combineByObject<F>(a, b, d, count, operation);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// The view of an operand's object n in the shape of the result.
template <class F, class Operand>
VONKK3_INLINE auto viewAs(const Operand &operand, std::size_t n, std::size_t rows, std::size_t columns) {
    const auto view = operand.view(n, Operand::isTransposed ? rows : columns);
    if constexpr (leavesPosition8Untested<F, Operand>) return Position8Untested{view};
    else return view;
}

// d(n, i, j) = operation(a(n, i, j), b(n, i, j)); a single operand serves all objects.
template <class Operation, class A, class B, class D, class Columns, class Rows, class Count>
VONKK3_INLINE VonkStatus combine(const A &a, const B &b, const D &d, Columns columns, Rows rows, Count count) {
    using F = Form<Operation, A, B, D, Columns>;
    constexpr Operation operation;
    if (anyNull(a, b, d)) return vonkErrNullPtr;
    if (columns.isZero() || rows.isZero()) return vonkErrSize;
    if constexpr (Count::isArray && !testsTablesLater<typename D::Element, Columns>)
        if (anyTableEntryNull(std::size_t(columns) * rows, a, b, d)) return vonkErrNullPtr;

    if constexpr (isCrossed<F>) {
        constexpr auto &from = F::isArray ? scattered : repeatedRow;
        return forEachObject(
            count,
            [&](std::size_t n) VONKK3_INLINED {
                return workElements<false>(d.view(n), rows, columns, operation, CrossedView{a.view(n).stored, from},
                                           CrossedView{b.view(n).stored, from});
            },
            a, b, d);
    } else if constexpr (borrowsRowStride<F>)
        return combineInLanes<F>(a, Transposed{b.walkedBy(a.rowSpacing())}, d, count, operation);
    else if constexpr (worksInLanes<F>) return combineInLanes<F>(a, b, d, count, operation);
    else if constexpr (Count::isArray)
        return workArrays<typename D::Element>(operation, rows, columns, count, d.words(columns),
                                               a.words(A::isTransposed ? std::size_t(rows) : std::size_t(columns)),
                                               b.words(B::isTransposed ? std::size_t(rows) : std::size_t(columns)));
    else
        return workSingle<D>(d.view(0, columns), rows, columns, operation, viewAs<F>(a, 0, rows, columns),
                             viewAs<F>(b, 0, rows, columns));
}

} // namespace vonkk3::matrix
