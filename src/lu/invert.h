// Inverses. Of run-time order by minors in the caller's scratch memory; 3x3 and 4x4 by the adjugate; 5x5 and 6x6 by
// blocks. Each method has its own test for a singular matrix, so that one may find a matrix singular that another
// inverts.
#pragma once

#include "frame/batch.h"
#include "lu/batch_of_six.h"
#include "lu/block_inverse.h"
#include "lu/closed_inverse.h"
#include "lu/invert_by_minors.h"
#include "lu/lane_blocks.h"
#include "lu/lane_inverse.h"

namespace vonkk3::lu {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// Real32 of fixed order in the standard and list layouts is built for speed: reciprocals are estimated; 3x3 and 4x4 are
// singular only if their determinant is exactly zero; 5x5 and 6x6 pass through the destination, so that a failure at
// the second block leaves it partly written; and 6x6 may choose any column. All other forms divide, test an interval
// around zero, choose among five columns, and leave the destination of a singular matrix as it was.
template <class Source>
inline constexpr bool isBuiltForSpeed = std::is_same_v<typename Source::Element, Real32> &&
                                        (Source::layout == Layout::Standard || Source::layout == Layout::L);

// When the entries of lists are tested in arrays of fixed order: in Real32 `L` never, in the other two all of them
// ahead of the first object. At run-time order it is each object's when its turn comes.
template <class Source> inline constexpr bool scansListsFirst = Source::isList && !isBuiltForSpeed<Source>;

// ---- One object -----------------------------------------------------------------------------------------------------

template <class Source, class SourceView, class View, std::size_t order>
VONKK3_INLINE bool invertObject(const SourceView &source, const View &inverse, Fixed<order>) {
    if constexpr (isBuiltForSpeed<Source> && order == 3) return invertThreeInLanes(source, inverse);
    else if constexpr (isBuiltForSpeed<Source> && order == 4) return invertFourInLanes(source, inverse);
    else if constexpr (isBuiltForSpeed<Source> && order == 6) return invertSixInLanes(source, inverse);
    else if constexpr (isBuiltForSpeed<Source>) return invertFiveThroughDestination(source, inverse);
    else {
        // One body of each method serves all layouts. It works on a copy, and stores through rows of adjacent elements:
        // straight to where they are such, or they would be read back before they have settled.
        const SmallMatrix<typename Source::Element, order> matrix(source);
        const auto invertTo = [&](const auto &rows) VONKK3_INLINED {
            if constexpr (order <= 4) return invertClosed(matrix, rows);
            else return invertByBlocks(matrix, rows);
        };
        if constexpr (std::is_same_v<View, RowsView<typename Source::Element>>) return invertTo(inverse);
        else {
            SmallMatrix<typename Source::Element, order> result;
            if (!invertTo(result.writableView())) return false;
            result.store(inverse);
            return true;
        }
    }
}

// ---- Batches --------------------------------------------------------------------------------------------------------

// A matrix that is singular goes the plain way. Of the forms that are built for speed, 3x3 and 4x4 are as quick there.
template <class Source, std::size_t order>
inline constexpr bool isWorthInverting = !isBuiltForSpeed<Source> || order >= 5;

template <bool builtForSpeed, std::size_t order> struct InvertBatch {
    static constexpr std::size_t chains = order == 3 ? 2 : 1; // the larger ones fill the registers
    MatricesOfBatch<order> src, dst;

    Access access() const { return accessOf(src.view, dst.view); }
    template <Access access> VONKK3_INLINE void hoist() {
        src.template hoist<access>();
        dst.template hoist<access>();
    }

    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> matrices[order][order], inverses[order][order];
        src.template gather<access>(n, matrices);
        if (!invertGathered(matrices, inverses)) return false;
        dst.template scatter<access>(n, inverses);
        return true;
    }

private:
    template <class Number>
    VONKK3_INLINE static bool invertGathered(Number (&matrices)[order][order], Number (&inverses)[order][order]) {
        const auto reciprocal = [](const Number &divisor) VONKK3_INLINED {
            if constexpr (builtForSpeed) return reciprocalByEstimate(divisor);
            else return Number(1.0F) / divisor;
        };
        if constexpr (order <= 4) return invertClosed(matrices, inverses, reciprocal);
        else if constexpr (order == 6 && builtForSpeed) return invertSixOfBatch(matrices, inverses);
        else return invertByBlocks(matrices, inverses, reciprocal);
    }
};

template <class Source, class Destination, std::size_t order, class One>
VONKK3_INLINE VonkStatus invertInBatches(const Source &src, const Destination &dst, Fixed<order>, std::size_t count,
                                         const One &one) {
    InvertBatch<isBuiltForSpeed<Source>, order> batch{{src, count}, {dst, count}};
    const Aliasing aliasing(count, writes(batch.dst.view), readsInPlace(batch.src.view));
    return forEachBatch(batch, aliasing, count, one);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class Source, class Destination>
inline bool anyListEntryNull(std::size_t objects, const Source &src, const Destination &dst) {
    for (std::size_t n = 0; n < objects; ++n)
        if (src.listHasNull(n) || dst.listHasNull(n)) return true;
    return false;
}

// The first singular object ends the call.
template <class Source, class Destination, std::size_t order, class Count>
VONKK3_INLINE VonkStatus invert(const Source &src, Fixed<order> size, const Destination &dst, Count count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (anyTableEntryNull(order * order, src, dst)) return vonkErrNullPtr;
    if (scansListsFirst<Source> && anyListEntryNull(count, src, dst)) return vonkErrNullPtr;
    const auto one = [&](std::size_t n) VONKK3_INLINED {
        return invertObject<Source>(src.view(n, order), dst.view(n, order), size) ? vonkOk : vonkErrSingular;
    };
    if constexpr (worksInBatches<Destination> && isWorthInverting<Source, order>)
        if (count >= (order == 3 ? 2 : 1) * packWidth) return invertInBatches(src, dst, size, count, one);
    return forEachObject(count, one);
}

template <class Source, class Destination, class Count>
VONKK3_INLINE VonkStatus invert(const Source &src, RunTime order, void *scratch, const Destination &dst, Count count) {
    if (anyNull(src, scratch, dst)) return vonkErrNullPtr;
    if (order.isZero()) return vonkErrSize;
    if (scansTablesFirst<Count> && anyTableEntryNull(std::size_t(order) * order, src, dst)) return vonkErrNullPtr;
    const ScratchMatrix<typename Source::Element> matrix(scratch, order);
    return forEachObject(
        count,
        [&](std::size_t n) VONKK3_INLINED -> VonkStatus {
            const auto source = src.view(n, order);
            const auto inverse = dst.view(n, order);
            if (!copyToScratch<!scansTablesFirst<Count>>(matrix, order, source, inverse)) return vonkErrNullPtr;
            return invertByMinors(matrix, order, source, inverse);
        },
        src, dst);
}

} // namespace vonkk3::lu
