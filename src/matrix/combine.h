// Sum and difference of matrices, element by element: single matrices and arrays, either side read transposed. One
// rounded operation per element; objects, rows and columns in ascending order.
#pragma once

#include "frame/elementwise.h"
#include "frame/operations.h"
#include "frame/untested_position.h"
#include "frame/walk.h"
#include "matrix/crossed_rows.h"
#include "matrix/rows.h"
#include "matrix/runs.h"

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

// vonkSub_mTmT_32f_6x6 and vonkSub_maTmaT_32f_6x6 (with its L form) subtract the wrong elements: see CrossedRows.
template <class F>
inline constexpr bool isCrossed = worksInLanes<F> &&F::order == 6 && !F::isSum && F::firstTransposed &&
                                  F::secondTransposed && F::firstArray == F::secondArray;

// mmT, mTm and mTmT of 4x4 in P, both types, never test position 8 of a transposed operand's table.
template <class F, class Operand>
inline constexpr bool leavesPosition8Untested =
    Operand::isTransposed && !F::isArray && F::order == 4 && F::layout == Layout::P;

// ---- Rows in lanes --------------------------------------------------------------------------------------------------

// What gives the rows of an operand's object n; a single one that is held is read once, here.
template <std::size_t order, bool isHeld, class Operand> struct RowsByObject {
    const Operand &operand;
    VONKK3_INLINE explicit RowsByObject(const Operand &operand) : operand(operand) {}
    VONKK3_INLINE auto at(std::size_t n) const { return rowsOf<order>(operand.view(n)); }
};

template <std::size_t order, class Operand>
requires(!Operand::isArray) struct RowsByObject<order, true, Operand> {
    HeldRows<order> held;
    VONKK3_INLINE explicit RowsByObject(const Operand &operand) : held(rowsOf<order>(operand.view(0))) {}
    VONKK3_INLINE const HeldRows<order> &at(std::size_t) const { return held; }
};

template <class F, class A, class B, class D, class Count, class Operation>
VONKK3_INLINE VonkStatus combineRows(const A &a, const B &b, const D &d, Count count, Operation operation) {
    if (count == 0) return vonkOk; // nothing is read, a single operand neither
    const RowsByObject<F::order, holdsSingleOperand<F>, A> first(a);
    const RowsByObject<F::order, holdsSingleOperand<F>, B> second(b);
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            workRows<F::order>(d.view(n), operation, first.at(n), second.at(n));
            return vonkOk;
        },
        a, b, d);
}

// `hold` takes an object out of memory, `work` stores it. The entries of an object are tested together with its loads;
// that of the destination's last object is tested first of all. At `count` 0 this is the entry before the list, and
// the one object is stored through it.
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
        work(first, firstTarget);
        if (n + 1 == count) return work(second, secondTarget), vonkOk;
        if (a.listHasNull(n + 1) || d.listHasNull(n + 1)) [[unlikely]]
            return vonkErrNullPtr;
        first = hold(a.view(n + 1));
        firstTarget = d.view(n + 1);
        work(second, secondTarget);
    }
    return work(first, firstTarget), vonkOk;
}

// ---- Runs -----------------------------------------------------------------------------------------------------------

// Whether an operand is read as runs: it lies as it is needed, or is held and has been brought into order.
template <class F, class Operand> inline constexpr bool isHeld = holdsSingleOperand<F> && !Operand::isArray;
template <class F, class A, class B>
inline constexpr bool mayWorkRuns = (isHeld<F, A> || !A::isTransposed) && (isHeld<F, B> || !B::isTransposed);

template <class F, class Operand> VONKK3_INLINE bool isRun(const Operand &operand) {
    return isHeld<F, Operand> || areRuns<F::order>(operand);
}

// What gives an operand's object n as a run. A single one is read once, here, and held.
template <class F, class Operand> VONKK3_INLINE auto runsOf(const Operand &operand) {
    if constexpr (Operand::isArray || !F::isArray) return ArrayRuns<F::order, Operand>(operand);
    else if constexpr (isHeld<F, Operand>) return HeldRun<F::order>(operand.view(0));
    else return SingleRun<F::order>(operand.view(0).base);
}

// 3x3 and 4x4 are loaded whole before they are stored, beside what is held.
template <class F> inline constexpr bool fitsRegisters = F::order <= 4;

template <class Runs> VONKK3_INLINE auto objectOf(const Runs &runs, std::size_t n) { return runs.object(n); }
template <std::size_t order> VONKK3_INLINE const HeldRun<order> &objectOf(const HeldRun<order> &held, std::size_t) {
    return held;
}

template <class F, class A, class B, class D, class Count, class Operation>
VONKK3_INLINE VonkStatus combineRuns(const A &a, const B &b, const D &d, Count count, Operation operation) {
    auto first = runsOf<F>(a);
    auto second = runsOf<F>(b);
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            const auto view = d.view(n);
            if constexpr (fitsRegisters<F>) {
                workRun<F::order, Storing::atTheEnd>(view.base, operation, objectOf(first, n), objectOf(second, n));
            } else if (first.mustGoByRows(n, view.base) || second.mustGoByRows(n, view.base)) [[unlikely]] {
                workRunByRows<F::order>(view.base, operation, first.stored(n), second.stored(n));
                first.refresh();
                second.refresh();
            } else workRun<F::order, Storing::asTheyCome>(view.base, operation, first.object(n), second.object(n));
            return vonkOk;
        },
        a, b, d);
}

// Which members may work all matrices as one contiguous range: standard arrays that are read as they lie, beside
// another such array or a single matrix that can be repeated.
template <class F>
inline constexpr bool mayBeOneRun = F::isArray &&F::layout == Layout::Standard &&
                                    (F::firstArray ? !F::firstTransposed : !F::secondTransposed) &&
                                    (!(F::firstArray && F::secondArray) || !F::secondTransposed);

// The single matrix y beside all of array x, if nothing overlaps it.
template <class F, class X, class Y, class D, class Operation>
VONKK3_INLINE bool repeatSingle(const X &x, const Y &y, const D &d, std::size_t count, const Operation &operation) {
    const std::size_t bytes = count * objectBytes<F::order>;
    const std::byte *const from = x.view(0).base;
    std::byte *const to = d.view(0).base;
    const auto single = y.view(0);
    if (count < worthCollapsing || !areOneRun<F::order>(x, d) || overwritesAhead(to, from, bytes) ||
        !disjoint(extentOf(asStored(single), F::order, F::order), extentOf(to, bytes)))
        return false;
    const RepeatedObject<F::order * F::order> repeated(
        [&](std::size_t k) VONKK3_INLINED { return single.load(k / F::order, k % F::order); });
    return repeated.stream(operation, to, from, count), true;
}

// All matrices in one go, if they follow one another and nothing is written that is yet to be read; else false.
template <class F, class A, class B, class D, class Operation>
VONKK3_INLINE bool combineAsOneRun(const A &a, const B &b, const D &d, std::size_t count, const Operation &operation) {
    if constexpr (!F::secondArray) return repeatSingle<F>(a, b, d, count, operation);
    else if constexpr (!F::firstArray) return repeatSingle<F>(b, a, d, count, Reversed<Operation>{operation});
    else {
        const std::size_t bytes = count * objectBytes<F::order>;
        const ContiguousSource first{a.view(0).base}, second{b.view(0).base};
        std::byte *const to = d.view(0).base;
        if (!areOneRun<F::order>(a, b, d) || overwritesAhead(to, first.base, bytes) ||
            overwritesAhead(to, second.base, bytes))
            return false;
        return streamContiguous(operation, to, bytes / sizeof(Real32), first, second), true;
    }
}

template <class F, class A, class B, class D, class Operation>
VONKK3_INLINE VonkStatus combinePipelined(const A &a, const B &b, const D &d, std::size_t count, Operation operation) {
    if (areRuns<3>(a, d)) [[likely]] {
        const auto work = [second = HeldRun<3>(b.view(0)), operation](const HeldRun<3> &first, const auto &view)
                              VONKK3_INLINED { workRun<3, Storing::atTheEnd>(view.base, operation, first, second); };
        return pipelined(
            a, d, count, [](const auto &view) VONKK3_INLINED { return HeldRun<3>(StoredRun<3>(view.base)); }, work);
    }
    const auto work =
        [second = HeldRows<3>(rowsOf<3>(b.view(0))), operation](const HeldRows<3> &first, const auto &view)
            VONKK3_INLINED { workRows<3>(view, operation, first, second); };
    return pipelined(
        a, d, count, [](const auto &view) VONKK3_INLINED { return HeldRows<3>(rowsOf<3>(view)); }, work);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class F, class A, class B, class D, class Count, class Operation>
VONKK3_INLINE VonkStatus combineByObject(const A &a, const B &b, const D &d, Count count, Operation operation) {
    if constexpr (isPipelined<F>) return combinePipelined<F>(a, b, d, count, operation);
    else {
        if constexpr (mayWorkRuns<F, A, B>)
            if (isRun<F>(a) && isRun<F>(b) && isRun<F>(d)) [[likely]]
                return combineRuns<F>(a, b, d, count, operation);
        return combineRows<F>(a, b, d, count, operation);
    }
}

template <class F, class A, class B, class D, class Count, class Operation>
VONKK3_NOINLINE VonkStatus combineByObjectApart(A a, B b, D d, Count count, Operation operation) {
    return combineByObject<F>(a, b, d, count, operation);
}

template <class F, class A, class B, class D, class Count, class Operation>
VONKK3_INLINE VonkStatus combineInLanes(const A &a, const B &b, const D &d, Count count, Operation operation) {
    if (count == 0 && !isPipelined<F>) return vonkOk; // nothing is read, a single operand neither
    if constexpr (mayBeOneRun<F>) {
        if (combineAsOneRun<F>(a, b, d, count, operation)) [[likely]]
            return vonkOk;
        return combineByObjectApart<F>(a, b, d, count, operation);
    } else return combineByObject<F>(a, b, d, count, operation);
}

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
    if constexpr (Count::isArray)
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
