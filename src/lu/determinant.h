// Determinants. Of run-time order by elimination in the caller's scratch memory, where a pivot that is too small makes
// 0; of fixed order as polynomials in the elements, without a test. A singular matrix is no failure.
#pragma once

#include "frame/batch.h"
#include "lu/local_block.h"
#include "lu/minors.h"
#include "lu/scratch_elimination.h"
#include "lu/small.h"

namespace vonkk3::lu {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// Fixed order: the standard and list layouts work both types in 80 bits and round once, at the result. The others work
// Real32 in Real32. So the two may differ in the last place.
template <class Source>
inline constexpr bool isWorkedWide = Source::layout == Layout::Standard || Source::layout == Layout::L;

template <class Source>
using WorkedIn = std::conditional_t<isWorkedWide<Source>, Wide, Working<typename Source::Element>>;

// 3x3: those of them that are worked in 80 bits have an expansion of their own for each type.
template <class Source, class A> VONKK3_INLINE auto determinantOfThree(const A &a) {
    if constexpr (!isWorkedWide<Source>) return determinantInOrder(a);
    else if constexpr (std::is_same_v<typename Source::Element, Real32>) return determinantAlongRow(a);
    else return determinantAlongColumn(a);
}

// Run-time order, one matrix: a pivot that is too small ends the work with 0. In arrays the last pivot is still looked
// at, whatever it is by then, and the 0 is multiplied by it: it may become -0, or NaN if that pivot is infinite.
template <class Count> inline constexpr bool multipliesZeroByLastPivot = Count::isArray;

// ---- One object -----------------------------------------------------------------------------------------------------

// One body serves all layouts: it works on rows of adjacent elements.
template <class W, class T, std::size_t order> [[gnu::noinline]] W determinantByLevels(RowsView<const T> view) {
    return determinantByLevels<W, order>(Elements<W, RowsView<const T>>(view));
}

template <class Source, class View, std::size_t order>
VONKK3_INLINE WorkedIn<Source> closedForm(const View &view, Fixed<order>) {
    using W = WorkedIn<Source>;
    using T = typename Source::Element;
    const Elements<W, View> a(view);
    if constexpr (order == 3) return determinantOfThree<Source>(a);
    else if constexpr (order == 4) return determinantOfFour(a);
    else if constexpr (isWorkedWide<Source>) return determinantByLevels<W, T, order>(view);
    else return determinantByLevels<W, T, order>(SmallMatrix<T, order>(view).view());
}

template <class T, class Count>
inline void determinantInScratch(const ScratchMatrix<T> &matrix, std::size_t order, std::byte *cell, Count) {
    ProductInCell<T> product(cell);
    const Elimination done = eliminate(matrix, order, product);
    if (!done.isRegular) product.set(0);
    if (done.isRegular || multipliesZeroByLastPivot<Count>) multiplyLastPivot(matrix, order, done.sign, product);
}

// The results are packed, whatever the layout.
template <class T> inline std::byte *resultCell(T *dst, std::size_t n) { return shifted(dst, n * sizeof(T)); }

// ---- Batches --------------------------------------------------------------------------------------------------------

// Of fixed order, where Real32 is worked in Real32.
template <std::size_t order> struct DeterminantBatch {
    static constexpr std::size_t chains = 1;
    MatricesOfBatch<order> src;
    ObjectsView results;

    Access access() const { return accessOf(src.view); }
    template <Access access> VONKK3_INLINE void hoist() { src.template hoist<access>(); }

    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> matrices[order][order];
        src.template gather<access>(n, matrices);
        storeResults(results, n, determinantOf(LocalBlock{matrices}));
        return true;
    }

private:
    template <class Number> VONKK3_INLINE static Number determinantOf(const LocalBlock<Number, order> &a) {
        if constexpr (order == 3) return determinantInOrder(a);
        else if constexpr (order == 4) return determinantOfFour(a);
        else return determinantByLevels<Number, order>(a);
    }
};

// From how many objects on batches are quicker than one by one: of small matrices, not where each element or list entry
// is a load of its own.
template <std::size_t order> std::size_t leastForDeterminants(const ObjectsView &matrices, Access access) {
    if (order >= 5) return (order == 5 ? 2 : 1) * packWidth;
    if (access == Access::any || matrices.isList()) return std::size_t(-1);
    return 4 * packWidth;
}

template <class Source, std::size_t order, class One>
VONKK3_INLINE VonkStatus determinantsInBatches(const Source &src, Fixed<order>, Real32 *dst, std::size_t count,
                                               const One &one) {
    DeterminantBatch<order> batch{{src, count}, packedBlocks(dst, 1, count)};
    if (count < leastForDeterminants<order>(batch.src.view, batch.access())) return forEachPlainly(count, one);
    const Aliasing aliasing(count, writes(batch.results), reads(batch.src.view));
    return forEachBatch(batch, aliasing, count, one);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class Source, std::size_t order, class T, class Count>
VONKK3_INLINE VonkStatus determinant(const Source &src, Fixed<order> size, T *dst, Count count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (anyTableEntryNull(order * order, src)) return vonkErrNullPtr;
    const auto one = [&](std::size_t n) VONKK3_INLINED {
        if (src.listHasNull(n)) [[unlikely]]
            return VonkStatus(vonkErrNullPtr);
        storeAt(resultCell(dst, n), static_cast<T>(closedForm<Source>(src.view(n, order), size)));
        return VonkStatus(vonkOk);
    };
    if constexpr (worksInBatches<Source> && !isWorkedWide<Source>)
        if (count >= packWidth) return determinantsInBatches(src, size, dst, count, one);
    return forEachObject(count, one);
}

template <class Source, class T, class Count>
VONKK3_INLINE VonkStatus determinant(const Source &src, RunTime order, void *scratch, T *dst, Count count) {
    if (anyNull(src, scratch, dst)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if (scansTablesFirst<Count> && anyTableEntryNull(std::size_t(order) * order, src)) return vonkErrNullPtr;
    const ScratchMatrix<T> matrix(scratch, order);
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED {
            if (!copyToScratch<!scansTablesFirst<Count>>(matrix, order, src.view(n, order))) return vonkErrNullPtr;
            determinantInScratch(matrix, order, resultCell(dst, n), count);
            return vonkOk;
        },
        src);
}

} // namespace vonkk3::lu
