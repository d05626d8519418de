// Inverses. Of run-time order by minors in the caller's scratch memory; 3x3 and 4x4 by the adjugate; 5x5 and 6x6 by
// blocks. Each method has its own test for a singular matrix, so that one may find a matrix singular that another
// inverts.
#pragma once

#include "frame/shared_batch.h"
#include "lu/batch_of_six.h"
#include "lu/block_inverse.h"
#include "lu/closed_inverse.h"
#include "lu/invert_by_minors.h"
#include "lu/lane_blocks.h"
#include "lu/lane_inverse.h"

namespace vonkk3::lu {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// Real32 of fixed order in the standard and list layouts is built for speed: reciprocals are estimated; 3x3 and 4x4 are
// singular only if their determinant is exactly zero; 5x5 and 6x6 pass through the destination, so that a failure at
// the second block leaves it partly written; and 6x6 may choose any column. All other forms divide, test an interval
// around zero, choose among five columns, and leave the destination of a singular matrix as it was.
template <class Source>
inline constexpr bool isBuiltForSpeed = std::is_same_v<typename Source::Element, Real32> &&
                                        (Source::layout == Layout::Standard || Source::layout == Layout::L);

// When the entries of lists are tested in arrays of fixed order: in Real32 `L` never, in the other two all of them
// before the first object. At run-time order each object's entries are tested when its turn comes.
template <class Source> inline constexpr bool scansListsFirst = Source::isList && !isBuiltForSpeed<Source>;

// ---- One object -----------------------------------------------------------------------------------------------------

template <bool builtForSpeed, class Source, class View, std::size_t order>
VONKK3_INLINE bool invertObject(const Source &source, const View &inverse, Fixed<order>) {
    using T = typename View::Element;
    if constexpr (builtForSpeed && order == 3) return invertThreeInLanes(source, inverse);
    else if constexpr (builtForSpeed && order == 4) return invertFourInLanes(source, inverse);
    else if constexpr (builtForSpeed && order == 6) return invertSixInLanes(source, inverse);
    else if constexpr (builtForSpeed) return invertFiveThroughDestination(source, inverse);
    else {
        // One body of each method serves all layouts. It works on a copy, and stores through contiguous rows: directly
        // where the destination has them, or they would be read back before they have settled.
        const SmallMatrix<T, order> matrix(source);
        const auto invertTo = [&](const auto &rows) VONKK3_INLINED {
            if constexpr (order <= 4) return invertClosed(matrix, rows);
            else return invertByBlocks(matrix, rows);
        };
        if constexpr (std::is_same_v<View, RowsView<T>>) return invertTo(inverse);
        else {
            SmallMatrix<T, order> result;
            if (!invertTo(result.writableView())) return false;
            result.store(inverse);
            return true;
        }
    }
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// Where batches are quicker than one by one, and from how many objects on.
template <bool builtForSpeed, std::size_t order> inline bool isWorthInverting(const MatrixWords &words) {
    return !builtForSpeed || order >= 5 || packsToRegister > 1 || (order == 3 && !words.dst.isList);
}
template <bool builtForSpeed, std::size_t order>
inline constexpr std::size_t leastToInvert = (order == 3 || (order == 4 && builtForSpeed) ? 2 : 1) * packWidth;

// A matrix that is singular takes the plain path.
template <bool builtForSpeed, std::size_t order> struct InvertBatch : MatrixBatch<order> {
    using MatrixBatch<order>::MatrixBatch, MatrixBatch<order>::src, MatrixBatch<order>::dst;
    static constexpr std::size_t chains = order == 3 ? 2 : 1; // the larger ones fill the registers
    static constexpr bool takesPositions = !builtForSpeed, takesAny = !builtForSpeed;
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        constexpr bool isInlined = builtForSpeed || access == Access::positions || order == 4 || chains > 1;
        Packs<chains> matrices[order][order], inverses[order][order];
        src.template gather<access>(n, matrices);
        if (!(isInlined ? invertGathered(matrices, inverses) : invertByCall(matrices, inverses))) return false;
        dst.template scatter<access>(n, inverses);
        return true;
    }

private:
    template <class Number>
    VONKK3_INLINE static bool invertGathered(Number (&matrices)[order][order], Number (&inverses)[order][order]) {
        if constexpr (!builtForSpeed && order <= 4) return invertClosed(matrices, inverses, ByDivision());
        else if constexpr (!builtForSpeed) return invertByBlocks(matrices, inverses, ByDivision());
        else if constexpr (order <= 4) return invertClosed(matrices, inverses, ByEstimateUnlessZero<order>());
        else if constexpr (order == 5) return invertByBlocks(matrices, inverses, ByEstimate());
        else return invertSixOfBatch(matrices, inverses);
    }
    template <class Number>
    VONKK3_NOINLINE static bool invertByCall(Number (&matrices)[order][order], Number (&inverses)[order][order]) {
        return invertGathered(matrices, inverses);
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class Source, class Destination>
inline bool anyListEntryNull(std::size_t objects, const Source &src, const Destination &dst) {
    for (std::size_t n = 0; n < objects; ++n)
        if (src.listHasNull(n) || dst.listHasNull(n)) return true;
    return false;
}

// The first singular object ends the call.
template <bool builtForSpeed, class Source, class Destination, std::size_t order>
VONKK3_NOINLINE VonkStatus invertPlainly(const MatrixWords &words, std::size_t n, std::size_t to) {
    return knowingLists < builtForSpeed &&
           isLight < Fixed < order >>> (words.dst.isList, [&](auto areLists) VONKK3_INLINED -> VonkStatus {
               Source src(words.src);
               Destination dst(words.dst);
               src.isList = dst.isList = areLists;
               for (; n < to; ++n)
                   if (!invertObject<builtForSpeed>(src.view(n, order), dst.view(n, order), fixed<order>))
                       return vonkErrSingular;
               return vonkOk;
           });
}

template <class T, bool builtForSpeed, bool throughTables, std::size_t order>
VONKK3_INLINE VonkStatus invertPlainly(const MatrixWords &words, std::size_t from, std::size_t to) {
    using Source = SharedOperand<const T, throughTables>;
    using Destination = SharedOperand<T, throughTables>;
    using Rows = ContiguousOperand<const T>;
    using WrittenRows = ContiguousOperand<T>;
    if constexpr (builtForSpeed) return invertPlainly<true, Rows, WrittenRows, order>(words, from, to);
    else if constexpr (std::is_same_v<T, Real32> || throughTables)
        return invertPlainly<false, Source, Destination, order>(words, from, to);
    else
        return areRowsContiguous<T>(words.src, words.dst)
                   ? invertPlainly<false, Rows, WrittenRows, order>(words, from, to)
                   : invertPlainly<false, Source, Destination, order>(words, from, to);
}

template <bool builtForSpeed, bool throughTables, std::size_t order>
VONKK3_NOINLINE VonkStatus invertInBatches(const MatrixWords &words, std::size_t count) {
    InvertBatch<builtForSpeed, order> batch(words, count, std::bool_constant<throughTables>());
    const Aliasing aliasing(count, writes(batch.dst.view), readsInPlace(batch.src.view));
    return forEachBatch(batch, aliasing, count, [&](std::size_t n) {
        return invertPlainly<Real32, builtForSpeed, throughTables, order>(words, n, n + 1);
    });
}

template <class Source, class Destination, std::size_t order, class Count>
VONKK3_INLINE VonkStatus invert(const Source &src, Fixed<order> size, const Destination &dst, Count count) {
    using T = typename Destination::Element;
    constexpr bool builtForSpeed = isBuiltForSpeed<Source>, throughTables = Destination::isTable;
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (anyTableEntryNull(order * order, src, dst)) return vonkErrNullPtr;
    if (scansListsFirst<Source> && anyListEntryNull(count, src, dst)) return vonkErrNullPtr;
    if constexpr (!Count::isArray)
        return invertObject<builtForSpeed>(src.view(0, order), dst.view(0, order), size) ? vonkOk : vonkErrSingular;
    else {
        const MatrixWords words{src.words(order), dst.words(order)};
        if constexpr (worksInBatches<Destination>)
            if (count >= leastToInvert<builtForSpeed, order> && isWorthInverting<builtForSpeed, order>(words))
                return invertInBatches<builtForSpeed, throughTables, order>(words, count);
        return invertPlainly<T, builtForSpeed, throughTables, order>(words, 0, count);
    }
}

// Run-time order. Entries of a single matrix's tables are tested here.
template <class T, bool throughTables>
VONKK3_NOINLINE VonkStatus invertInScratch(const MatrixWords &words, std::size_t order, void *scratch,
                                           std::size_t count, bool testsEntries) {
    const SharedOperand<const T, throughTables> src(words.src);
    const SharedOperand<T, throughTables> dst(words.dst);
    const ScratchMatrix<T> matrix(scratch, order);
    for (std::size_t n = 0; n < count; ++n) {
        if (src.listHasNull(n) || dst.listHasNull(n)) return vonkErrNullPtr;
        const auto source = src.view(n, order);
        const auto inverse = dst.view(n, order);
        if (!copyToScratch(matrix, order, testsEntries, source, inverse)) return vonkErrNullPtr;
        if (const VonkStatus status = invertByMinors(matrix, order, source, inverse); status != vonkOk) return status;
    }
    return vonkOk;
}

template <class Source, class Destination, class Count>
VONKK3_INLINE VonkStatus invert(const Source &src, RunTime order, void *scratch, const Destination &dst, Count count) {
    if (anyNull(src, scratch, dst)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if (scansTablesFirst<Count> && anyTableEntryNull(std::size_t(order) * order, src, dst)) return vonkErrNullPtr;
    const MatrixWords words{src.words(order), dst.words(order)};
    return invertInScratch<typename Source::Element, Destination::isTable>(words, order, scratch, count,
                                                                           !scansTablesFirst<Count>);
}

} // namespace vonkk3::lu
