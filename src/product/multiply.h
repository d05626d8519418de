// Matrix by matrix: a single matrix or an array on either side, either side read transposed.
#pragma once

#include "product/four_rows.h"
#include "product/kernels.h"
#include "product/packed_vectors3.h"
#include "product/row_pairs.h"
#include "product/running_sums.h"
#include "product/shape.h"

namespace vonkk3::product {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

enum class Scheme { runningSum, rowBroadcast, pairSum };

// Which members have a kernel: all Real32 of fixed order where elements are adjacent, and a ragged list beside.
template <class T, class P, std::size_t order> constexpr Scheme schemeOf() {
    constexpr bool bothSingle = !P::isArray;
    constexpr bool onlyFirstArray = P::firstArray && !P::secondArray;
    constexpr bool plain = !P::firstTransposed && !P::secondTransposed;
    constexpr bool both = P::firstTransposed && P::secondTransposed;
    if (!std::is_same_v<T, Real32> || order == 0) return Scheme::runningSum;
    switch (P::layout) {
    case Layout::Standard:
    case Layout::L: return Scheme::rowBroadcast;
    case Layout::S2:
        if (bothSingle && order == 6 && (!P::firstTransposed || both)) return Scheme::pairSum;
        if (P::firstArray && plain && order <= 5) return Scheme::rowBroadcast;
        return onlyFirstArray && order == 3 ? Scheme::rowBroadcast : Scheme::runningSum;
    case Layout::P:
    case Layout::PS2: return onlyFirstArray && !both && order == 3 ? Scheme::rowBroadcast : Scheme::runningSum;
    case Layout::LS2: return onlyFirstArray && order == 3 ? Scheme::rowBroadcast : Scheme::runningSum;
    }
}

// The kernels in table and strided list layouts never test an entry.
template <class T, class P, std::size_t order>
inline constexpr bool testsEntries = schemeOf<T, P, order>() == Scheme::runningSum || P::layout == Layout::L;

// 5x5 reads column 4 of B again for every row where B is a plain single matrix.
template <class P> inline constexpr bool rereadsColumn4 = !P::secondArray && !P::secondTransposed;

// 6x6 of two single matrices, the second transposed, fetches what the second pass needs when it comes to it, after the
// first has stored: in place over the second operand that is wrong. All others hold it from the start.
template <class P> inline constexpr bool fetchesPairsLate = !P::isArray && P::secondTransposed;

// ---- One object -----------------------------------------------------------------------------------------------------

// What of B is held in registers: before all objects if B is single, else object by object.
template <class P, std::size_t order, class B> VONKK3_INLINE HeldRows<order> hold(const B &b) {
    HeldRows<order> held;
    held.loadHead(b);
    if constexpr (order == 5 && !rereadsColumn4<P>) held.loadLast(b);
    if constexpr (order == 6 && !fetchesPairsLate<P>) held.loadPairs(b);
    return held;
}

template <class P, SumBegins begins = SumBegins::withFirstProduct, std::size_t order, class A, class B, class D>
VONKK3_INLINE void multiplyHeld(const A &a, const B &b, HeldRows<order> &held, const D &d) {
    if constexpr (order <= 4) multiplyRows<begins>(a, held, d);
    else if constexpr (order == 5)
        multiplyRowsOfFive<begins>(a, held, d, [&](std::size_t k) VONKK3_INLINED {
            if constexpr (rereadsColumn4<P>) return b.load(k, 4);
            else return held.last[k];
        });
    else {
        multiplyRowsOfSix<begins>(a, held, d);
        if constexpr (fetchesPairsLate<P>) held.loadPairs(b);
        multiplyPairsOfSix<begins>(a, held, d);
    }
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Fast paths that take another order of reads and stores, or several objects at a time, where operands are disjoint.
// How many objects were done, from the first on.
template <class P, std::size_t order, class A, class B, class D>
VONKK3_INLINE std::size_t multiplyBatches(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    constexpr bool isOfRows = P::layout == Layout::Standard && P::firstArray && !P::firstTransposed;
    if constexpr (D::isTable) {
        if (objects < worthBatches) return 0;
        const ProductWords words{src1.words(), src2.words(), dst.words()};
        if (!arePositionsContiguous(words)) return 0;
        const std::size_t done = inWholePacks(objects);
        if (!arePlainlyIndependent(words, SumShape<order, false>{}, objects)) {
            using Shape = SumShape<order, false>;
            const ProductOperands<Real32, true, ProductWords, Shape> p(words, Shape{}, objects);
            // The kernel of order 3 has a row of the first operand in registers before it stores there.
            if (!Aliasing(objects, writes(p.d), readsInPlace(p.a), reads(p.b)).allowsBatch(0, done)) return 0;
        }
        return multiplyMatrices<SumBegins::withFirstProduct, order>(words, done), done;
    } else if constexpr (isOfRows && order == 3 && !P::secondArray)
        return multiplyVectors3ByOne(src1, src2, dst, objects);
    else if constexpr (isOfRows && order == 5 && !P::secondArray && !P::secondTransposed)
        return multiplyFourRows(src1, src2, dst, objects);
    else if constexpr (isOfRows && order == 6 && !P::secondTransposed)
        return multiplyByRowPairs(src1, src2, dst, objects);
    else return 0;
}

template <class P, class A, class B, class D, std::size_t order, class Count>
VONKK3_INLINE VonkStatus multiplyInLanes(const A &src1, const B &src2, const D &dst, Fixed<order>, Count count) {
    if (count == 0) return vonkOk; // nothing is read, not even a single operand
    const auto multiplyFrom = [&](std::size_t first, auto work) VONKK3_INLINED {
        const auto multiplyObject = [&](std::size_t n) VONKK3_INLINED {
            work(src1.view(n, order), src2.view(n, order), dst.view(n, order));
            return VonkStatus(vonkOk);
        };
        if constexpr (testsEntries<Real32, P, order>)
            return forEachObjectFrom(first, count, multiplyObject, src1, src2, dst);
        else return forEachObjectFrom(first, count, multiplyObject);
    };
    if constexpr (P::secondArray) {
        const std::size_t done = multiplyBatches<P, order>(src1, src2, dst, count);
        return multiplyFrom(done, [](const auto &a, const auto &b, const auto &d) VONKK3_INLINED {
            HeldRows<order> held = hold<P, order>(b);
            multiplyHeld<P>(a, b, held, d);
        });
    } else {
        HeldRows<order> held = hold<P, order>(src2.view(0, order)); // before any result may be stored on it
        const std::size_t done = multiplyBatches<P, order>(src1, src2, dst, count);
        return multiplyFrom(done, [&](const auto &a, const auto &b, const auto &d)
                                      VONKK3_INLINED { multiplyHeld<P>(a, b, held, d); });
    }
}

// The strided and pointer layouts of arrays.
template <class P, std::size_t order, bool throughTables>
VONKK3_SHARED VonkStatus multiplyInLanes(const ProductWords &words, Objects count) {
    const SharedOperand<const Real32, throughTables, P::firstTransposed> a(words.a);
    const SharedOperand<const Real32, throughTables, P::secondTransposed> b(words.b);
    return multiplyInLanes<P>(a, b, SharedOperand<Real32, throughTables>(words.d), fixed<order>, count);
}

// One object, element by element.
template <class P, class A, class B, class D, class T = typename D::Element>
VONKK3_INLINE VonkStatus sumSingle(const A &src1, std::size_t cols1, std::size_t rows1, const B &src2,
                                   std::size_t cols2, std::size_t rows2, const D &dst, std::size_t rows,
                                   std::size_t columns, std::size_t terms) {
    const auto a = src1.view(0, P::firstTransposed ? rows1 : cols1);
    const auto b = src2.view(0, P::secondTransposed ? rows2 : cols2);
    const auto d = dst.view(0, columns);
    if constexpr (P::layout == Layout::Standard) {
        const ObjectsView first = objectsOf(src1, rows, terms, 1), second = objectsOf(src2, terms, columns, 1);
        const ObjectsView result = objectsOf(dst, rows, columns, 1);
        if (!Aliasing(1, writes(result), reads(first), reads(second)).rulesOutBatches())
            return sumOnce<T>(a, b, d, rows, columns, terms), vonkOk;
    }
    return sumIntoCells<T, accumulatesInCell<T, P::layout>, true>(a, b, d, rows, columns, terms);
}

template <class A, class Cols1, class Rows1, class B, class Cols2, class Rows2, class D, class Count>
inline VonkStatus multiply(const A &src1, Cols1 cols1, Rows1 rows1, const B &src2, Cols2 cols2, Rows2 rows2,
                           const D &dst, Count count) {
    using P = PatternOf<A, B>;
    using T = typename D::Element;
    constexpr std::size_t order = Cols1::value;
    constexpr Scheme scheme = schemeOf<T, P, order>();
    if (anyNull(src1, src2, dst)) return vonkErrNullPtr;
    const Dimensions<Cols1, Rows1, Cols2, Rows2> size{cols1, rows1, cols2, rows2};
    if constexpr (!Cols1::isFixed)
        if (size.template anyZero<P>() || !size.template agree<P>()) return vonkErrSize;
    if constexpr (P::isArray && testsEntries<T, P, order> && !testsTablesLater<T, Cols1>)
        if (anyTableEntryNull(cols1 * rows1, src1) || anyTableEntryNull(cols2 * rows2, src2) ||
            anyTableEntryNull(size.template testedCells<P>(), dst))
            return vonkErrNullPtr;

    constexpr bool isAdjacent = P::layout == Layout::Standard || P::layout == Layout::L;
    if constexpr (scheme == Scheme::rowBroadcast && (isAdjacent || !P::isArray))
        return multiplyInLanes<P>(src1, src2, dst, cols1, count);
    else if constexpr (scheme == Scheme::pairSum)
        return multiplyByPairSums(src1.view(0), src2.view(0), dst.view(0)), vonkOk;
    else {
        const std::size_t rows = size.template rows<P>(), columns = size.template columns<P>();
        const std::size_t terms = size.template terms<P>();
        if constexpr (!P::isArray)
            return sumSingle<P>(src1, cols1, rows1, src2, cols2, rows2, dst, rows, columns, terms);
        else {
            const ProductWords words{src1.words(P::firstTransposed ? rows1 : cols1),
                                     src2.words(P::secondTransposed ? rows2 : cols2), dst.words(columns)};
            if constexpr (std::is_same_v<T, Real64> && P::layout == Layout::Standard) {
                // Addresses within rows are constants here, which keeps the 80-bit unit busy.
                const ObjectsView a = objectsOf(src1, rows, terms, count), b = objectsOf(src2, terms, columns, count);
                const ObjectsView d = objectsOf(dst, rows, columns, count);
                if (count != 0 && Aliasing(count, writes(d), reads(a), reads(b)).allowsBatch(0, count)) {
                    for (std::size_t n = 0; n < count; ++n)
                        sumOnce<T>(src1.view(n), src2.view(n), dst.view(n), rows, columns, terms);
                    return vonkOk;
                }
            }
            if constexpr (scheme == Scheme::rowBroadcast) {
                using Shared =
                    Pattern<P::firstArray, P::firstTransposed, P::secondArray, P::secondTransposed,
                            D::isTable ? Layout::P : Layout::S2>; // the other layouts of their views are alike
                return multiplyInLanes<Shared, order, D::isTable>(words, count);
            } else
                return sumProducts<T, accumulatesInCell<T, P::layout>, D::isTable>(
                    words, SumShape<order, false>{rows, columns, terms}, count);
        }
    }
}

} // namespace vonkk3::product
