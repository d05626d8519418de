// Real32 matrices whose rows follow one another without gaps: a matrix is then one contiguous range of elements. Ranges
// are worked four elements at a time in ascending order. That gives what going row by row gives, unless the destination
// begins inside a source.
#pragma once

#include "frame/stream.h"
#include "matrix/rows.h"
#include "matrix/touch.h"

namespace vonkk3::matrix {

template <std::size_t order> inline constexpr std::size_t rowBytes = order * sizeof(Real32);
template <std::size_t order> inline constexpr std::size_t objectBytes = order *rowBytes<order>;

// What a kernel is told about rows: that they lie anywhere, or that they make runs.
enum class Rows { anywhere, adjacent };

// Whether each matrix of the operands is a run, and whether matrix follows matrix as well. A single one follows itself.
template <std::size_t order, class... Operands> VONKK3_INLINE bool areRuns(const Operands &...operands) {
    return ((operands.rowSpacing() == std::ptrdiff_t(rowBytes<order>)) && ...);
}
template <std::size_t order, class... Operands> VONKK3_INLINE bool areOneRun(const Operands &...operands) {
    return areRuns<order>(operands...) &&
           ((!Operands::isArray || operands.objectSpacing() == std::ptrdiff_t(objectBytes<order>)) && ...);
}

// An operand that is known to have runs: the compiler is told the row stride.
template <std::size_t order, class Operand> VONKK3_INLINE Operand withRuns(const Operand &operand) {
    return operand.walkedBy(rowBytes<order>);
}

// ---- One matrix -----------------------------------------------------------------------------------------------------

// Its elements in fours, and the last one, which is over where the order is odd.
template <std::size_t order> inline constexpr std::size_t runFours = order *order / 4;

template <std::size_t order> struct StoredRun {
    const std::byte *base;
    VONKK3_INLINE explicit StoredRun(const std::byte *base) : base(base) {}
    VONKK3_INLINE __m128 four(std::size_t k) const { return load4(base + k * laneBytes); }
    VONKK3_INLINE __m128 last() const { return load1(base + runFours<order> * laneBytes); }
    VONKK3_INLINE Lanes<order> row(std::size_t i) const { return Lanes<order>::load(base + i * rowBytes<order>); }
};

// Taken out of memory, from wherever its elements are.
template <std::size_t order> struct HeldRun {
    __m128 fours[runFours<order>];
    __m128 over;

    template <class View> VONKK3_INLINE explicit HeldRun(const View &view) : over(_mm_setzero_ps()) {
        const auto element = [&](std::size_t k) VONKK3_INLINED { return view.load(k / order, k % order); };
        forEachBelow<runFours<order>>([&](std::size_t k) VONKK3_INLINED {
            fours[k] = _mm_setr_ps(element(4 * k), element(4 * k + 1), element(4 * k + 2), element(4 * k + 3));
        });
        if constexpr (order % 2 != 0) over = _mm_set_ss(element(order * order - 1));
    }
    VONKK3_INLINE explicit HeldRun(const StoredRun<order> &run) : over(_mm_setzero_ps()) {
        forEachBelow<runFours<order>>([&](std::size_t k) VONKK3_INLINED { fours[k] = run.four(k); });
        if constexpr (order % 2 != 0) over = run.last();
    }

    VONKK3_INLINE __m128 four(std::size_t k) const { return fours[k]; }
    VONKK3_INLINE __m128 last() const { return over; }
};

// When a run's results are stored: each as it comes, or all of them when the whole run has been worked.
enum class Storing { asTheyCome, atTheEnd };

template <std::size_t order, Storing storing, class Operation, class... Sources>
VONKK3_INLINE void workRun(std::byte *d, const Operation &operation, const Sources &...sources) {
    constexpr std::size_t fours = runFours<order>;
    if constexpr (storing == Storing::asTheyCome) {
        forEachBelow<fours>([&](std::size_t k)
                                VONKK3_INLINED { store4(d + k * laneBytes, operation(sources.four(k)...)); });
        if constexpr (order % 2 != 0) store1(d + fours * laneBytes, operation(sources.last()...));
    } else {
        __m128 results[fours + 1];
        forEachBelow<fours>([&](std::size_t k) VONKK3_INLINED { results[k] = operation(sources.four(k)...); });
        if constexpr (order % 2 != 0) results[fours] = operation(sources.last()...);
        forEachBelow<fours>([&](std::size_t k) VONKK3_INLINED { store4(d + k * laneBytes, results[k]); });
        if constexpr (order % 2 != 0) store1(d + fours * laneBytes, results[fours]);
    }
}

// The same row by row.
template <std::size_t order, class Operation>
VONKK3_NOINLINE void workRunByRows(std::byte *d, Operation operation, StoredRun<order> a, StoredRun<order> b) {
    workRows<order>(RowsView<Real32>(d, rowBytes<order>), operation, a, b);
}

// ---- One operand, object by object ----------------------------------------------------------------------------------
//
// object(n) is what a run is worked from. Where an object is not worked whole, mustGoByRows() tells whether a result at
// d has to be worked row by row from stored(n) instead; afterwards refresh() brings up to date what is held.

template <std::size_t order, class Operand> struct ArrayRuns {
    const Operand &operand;
    VONKK3_INLINE explicit ArrayRuns(const Operand &operand) : operand(operand) {}
    VONKK3_INLINE StoredRun<order> object(std::size_t n) const { return stored(n); }
    VONKK3_INLINE StoredRun<order> stored(std::size_t n) const { return StoredRun<order>(operand.view(n).base); }
    VONKK3_INLINE bool mustGoByRows(std::size_t n, const std::byte *d) const {
        return overwritesAhead(d, operand.view(n).base, objectBytes<order>);
    }
    VONKK3_INLINE void refresh() const {}
};

template <std::size_t order> struct SingleRun {
    StoredRun<order> source;
    HeldRun<order> held;
    VONKK3_INLINE explicit SingleRun(const std::byte *base) : source(base), held(source) {}
    VONKK3_INLINE const HeldRun<order> &object(std::size_t) const { return held; }
    VONKK3_INLINE StoredRun<order> stored(std::size_t) const { return source; }
    VONKK3_INLINE bool mustGoByRows(std::size_t, const std::byte *d) const {
        const Reach reach(objectBytes<order>);
        return Touching(reach, reach)(d, source.base);
    }
    VONKK3_INLINE void refresh() { held = HeldRun<order>(source); }
};

} // namespace vonkk3::matrix
