// Determinants. Of run-time order by elimination in the caller's scratch memory, where a pivot that is too small makes
// 0; of fixed order as polynomials in the elements, without a test. A singular matrix is no failure.
#pragma once

#include "frame/batch.h"
#include "frame/rounding_control.h"
#include "frame/shared_operand.h"
#include "lu/determinant_filter.h"
#include "lu/local_block.h"
#include "lu/minors.h"
#include "lu/scratch_elimination.h"

namespace vonkk3::lu {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// Fixed order: the standard and list layouts work both types in 80 bits and round once, at the result. The others work
// Real32 in Real32. So the two may differ in the last place.
template <class Source>
inline constexpr bool isWorkedWide = Source::layout == Layout::Standard || Source::layout == Layout::L;

// 3x3: those of them that are worked in 80 bits have an expansion of their own for each type.
template <class T, bool workedWide, class A> VONKK3_INLINE auto determinantOfThree(const A &a) {
    if constexpr (!workedWide) return determinantInOrder(a);
    else if constexpr (std::is_same_v<T, Real32>) return determinantAlongRow(a);
    else return determinantAlongColumn(a);
}

// Run-time order, one matrix: a pivot that is too small ends the work with 0. In arrays the last pivot is still looked
// at, whatever it is by then, and the 0 is multiplied by it: it may become -0, or NaN if that pivot is infinite.

// ---- One object -----------------------------------------------------------------------------------------------------

// One body serves all layouts: it works on rows of adjacent elements.
template <class W, class T, std::size_t order> [[gnu::noinline]] W determinantByLevels(RowsView<const T> view) {
    return determinantByLevels<W, order>(Elements<W, RowsView<const T>>(view));
}

template <bool workedWide, class View, std::size_t order>
VONKK3_INLINE auto closedForm(const View &view, Fixed<order>) {
    using T = typename View::Element;
    using W = std::conditional_t<workedWide, Wide, Working<T>>;
    const Elements<W, View> a(view);
    if constexpr (order == 3) return determinantOfThree<T, workedWide>(a);
    else if constexpr (order == 4) return determinantOfFour(a);
    else if constexpr (workedWide) return determinantByLevels<W, T, order>(view);
    else return determinantByLevels<W, T, order>(SmallMatrix<T, order>(view).view());
}

template <class T>
inline void determinantInScratch(const ScratchMatrix<T> &matrix, std::size_t order, std::byte *cell, bool isArray) {
    ProductInCell<T> product(cell);
    const Elimination done = eliminate(matrix, order, product);
    if (!done.isRegular) product.set(0);
    if (done.isRegular || isArray) multiplyLastPivot(matrix, order, done.sign, product);
}

// The results are packed, whatever the layout.
template <class T> inline std::byte *resultCell(T *dst, std::size_t n) { return shifted(dst, n * sizeof(T)); }

// Objects n to `to`.
template <bool workedWide, class Source, std::size_t order>
VONKK3_NOINLINE VonkStatus determinantsPlainly(const OperandWords &words, typename Source::Element *dst, std::size_t n,
                                               std::size_t to) {
    using T = typename Source::Element;
    return knowingLists < isLight<Fixed<order>> &&
           !Source::isTable > (words.isList, [&](auto areLists) VONKK3_INLINED -> VonkStatus {
               Source src(words);
               src.isList = areLists;
               for (; n < to; ++n) {
                   if (src.listHasNull(n)) [[unlikely]]
                       return vonkErrNullPtr;
                   storeAt(resultCell(dst, n),
                           static_cast<T>(closedForm<workedWide>(src.view(n, order), fixed<order>)));
               }
               return vonkOk;
           });
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Where each element is a load of its own, small matrices gain by wide registers alone.
template <std::size_t order> inline constexpr bool isWorthGathering = order >= 5 || (order == 4 && packsToRegister > 1);

// Of fixed order, where Real32 is worked in Real32.
template <std::size_t order> struct DeterminantBatch {
    static constexpr std::size_t chains = 1;
    static constexpr bool takesAny = isWorthGathering<order>;
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

// Of fixed order, where Real32 is worked in 80 bits: in double, and where the filter doubts, in 80 bits after all.
template <class Source, std::size_t order> struct FilteredDeterminants {
    static constexpr std::size_t chains = 1;
    static constexpr bool takesPositions = false, takesAny = false;
    const OperandWords &words;
    Real32 *dst;
    MatricesOfBatch<order> src;
    ObjectsView results;

    FilteredDeterminants(const OperandWords &words, Real32 *dst, std::size_t count)
        : words(words), dst(dst), src(words, count, std::false_type()), results(packedBlocks(dst, 1, count)) {}

    Access access() const { return accessOf(src.view); }
    template <Access access> VONKK3_INLINE void hoist() { src.template hoist<access>(); }

    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> matrices[order][order];
        src.template gather<access>(n, matrices);
        const DeterminantFilter<Packs<chains>::width> filter(matrices);
        storeResults(results, n, Packs<chains>(filter.results));
        for (unsigned doubts = filter.doubts; doubts != 0; doubts &= doubts - 1) {
            const std::size_t doubtful = n + std::size_t(std::countr_zero(doubts));
            determinantsPlainly<true, Source, order>(words, dst, doubtful, doubtful + 1);
        }
        return true;
    }
};

// From how many objects on batches are quicker than one by one: of small matrices, not through lists.
template <std::size_t order> std::size_t leastForDeterminants(const ObjectsView &matrices, Access access) {
    if (order >= 5) return (order == 5 ? 2 : 1) * packWidth;
    if (matrices.isList() || (access == Access::any && !isWorthGathering<order>)) return std::size_t(-1);
    return 4 * packWidth;
}

// The same of the filter. Of order 3 it takes as long as the work in 80 bits, but with the registers of AVX-512.
inline constexpr std::size_t leastForFilter = 2 * packWidth;
template <std::size_t order> inline constexpr bool isWorthFilter = order >= 4 || hasMasks;

// ---- All objects ----------------------------------------------------------------------------------------------------

template <std::size_t order, bool throughTables>
VONKK3_NOINLINE VonkStatus determinantsInBatches(const OperandWords &src, Real32 *dst, std::size_t count) {
    const auto plainly = [&](std::size_t from, std::size_t to) VONKK3_INLINED {
        return determinantsPlainly<false, SharedOperand<const Real32, throughTables>, order>(src, dst, from, to);
    };
    DeterminantBatch<order> batch{{src, count, std::bool_constant<throughTables>()}, packedBlocks(dst, 1, count)};
    if (count < leastForDeterminants<order>(batch.src.view, batch.access())) return plainly(0, count);
    const Aliasing aliasing(count, writes(batch.results), reads(batch.src.view));
    return forEachBatch(batch, aliasing, count, [&](std::size_t n) { return plainly(n, n + 1); });
}

template <std::size_t order>
VONKK3_NOINLINE VonkStatus determinantsFiltered(const OperandWords &src, Real32 *dst, std::size_t count) {
    using Shared = ContiguousOperand<const Real32>;
    const auto plainly = [&](std::size_t from, std::size_t to)
                             VONKK3_INLINED { return determinantsPlainly<true, Shared, order>(src, dst, from, to); };
    const RoundingControl control;
    if (!control.bothRoundToNearest() || !control.wideHas53Bits() || !control.lanesKeepSubnormals())
        return plainly(0, count);
    FilteredDeterminants<Shared, order> batch(src, dst, count);
    const Aliasing aliasing(count, writes(batch.results), reads(batch.src.view));
    return forEachBatch(batch, aliasing, count, [&](std::size_t n) { return plainly(n, n + 1); });
}

template <class Source, std::size_t order, class T, class Count>
VONKK3_INLINE VonkStatus determinant(const Source &src, Fixed<order> size, T *dst, Count count) {
    constexpr bool workedWide = isWorkedWide<Source>;
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (anyTableEntryNull(order * order, src)) return vonkErrNullPtr;
    if constexpr (!Count::isArray) {
        storeAt(resultCell(dst, 0), static_cast<T>(closedForm<workedWide>(src.view(0, order), size)));
        return vonkOk;
    } else {
        const OperandWords words = src.words(order);
        if constexpr (worksInBatches<Source> && !workedWide)
            if (count >= packWidth) return determinantsInBatches<order, Source::isTable>(words, dst, count);
        if constexpr (worksInBatches<Source> && workedWide && isWorthFilter<order>)
            if (count >= leastForFilter) return determinantsFiltered<order>(words, dst, count);
        using Shared =
            std::conditional_t<workedWide, ContiguousOperand<const T>, SharedOperand<const T, Source::isTable>>;
        return determinantsPlainly<workedWide, Shared, order>(words, dst, 0, count);
    }
}

// Run-time order. Entries of a single matrix's table are tested here.
template <class T, bool throughTables>
VONKK3_NOINLINE VonkStatus determinantsInScratch(const OperandWords &words, std::size_t order, void *scratch, T *dst,
                                                 std::size_t count, bool isArray) {
    const SharedOperand<const T, throughTables> src(words);
    const ScratchMatrix<T> matrix(scratch, order);
    for (std::size_t n = 0; n < count; ++n) {
        if (src.listHasNull(n)) return vonkErrNullPtr;
        if (!copyToScratch(matrix, order, !isArray, src.view(n, order))) return vonkErrNullPtr;
        determinantInScratch(matrix, order, resultCell(dst, n), isArray);
    }
    return vonkOk;
}

template <class Source, class T, class Count>
VONKK3_INLINE VonkStatus determinant(const Source &src, RunTime order, void *scratch, T *dst, Count count) {
    if (anyNull(src, scratch, dst)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if (scansTablesFirst<Count> && anyTableEntryNull(std::size_t(order) * order, src)) return vonkErrNullPtr;
    return determinantsInScratch<T, Source::isTable>(src.words(order), order, scratch, dst, count, Count::isArray);
}

} // namespace vonkk3::lu
