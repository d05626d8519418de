// Dot product: of two vectors, of an array and one vector, or of two arrays pairwise. Results are a dense block.
#pragma once

#include "frame/extent.h"
#include "frame/walk.h"
#include "vector/block_walk.h"
#include "vector/four_objects.h"

namespace vonkk3::vector {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

template <class A, class B, class Length> struct DotForm {
    using T = typename A::Element;
    static constexpr Layout layout = A::layout;
    static constexpr bool isReal32 = std::is_same_v<T, Real32>;
    static constexpr bool isArray = A::isArray;
    static constexpr bool sharesOne = A::isArray && !B::isArray;
    static constexpr bool isFixed = Length::isFixed;
    static constexpr std::size_t length = Length::value;
};

// Real64 sums stay wide to the store. Only those of a run-time length of two single vectors, and of arrays in L, are
// rounded between the pairs of terms and the term that an odd length leaves over.
template <class F>
inline constexpr bool roundsBeforeLeftOver = !F::isReal32 && !F::isFixed && (!F::isArray || F::layout == Layout::L);

// Only two single Real32 vectors of adjacent elements are built for length, and summed in lanes.
template <class F>
inline constexpr bool sumsInBlocks = F::isReal32 && !F::isFixed && !F::isArray && F::layout == Layout::Standard;

// An array against one vector of four sums in pairs, (p0 + p1) + (p2 + p3); all others of fixed size go left to right.
template <class F>
inline constexpr bool sumsInPairs = F::isReal32 &&F::sharesOne &&F::length == 4 &&
                                    (F::layout == Layout::Standard || F::layout == Layout::L);

// These take objects four at a time, one in each lane: 3x1 and 4x1 of an array against one vector ...
template <class F>
inline constexpr bool takesFourAgainstOne = F::isReal32 &&F::sharesOne && (F::length == 3 || F::length == 4) &&
                                            (F::layout == Layout::Standard || F::layout == Layout::L);

// ... of which those in L never test an entry; and 3x1 of two arrays. Those two arrays, if aligned throughout, read the
// element behind each object as well, and sum (p0 + p2) + p1 in blocks, but left to right in the objects that follow.
template <class F> inline constexpr bool trustsEntries = takesFourAgainstOne<F> &&F::layout == Layout::L;
template <class F>
inline constexpr bool takesFourPairs =
    F::isReal32 &&F::isArray && !F::sharesOne && F::length == 3 && F::layout == Layout::Standard;

// ---- One object -----------------------------------------------------------------------------------------------------

struct ProductTerm {
    template <class Real> Real operator()(Real a, Real b) const { return a * b; }
    __m128 operator()(__m128 a, __m128 b) const { return _mm_mul_ps(a, b); }
    static void hint(const std::byte *address) { prefetchOnce(address); }
};

// Left to right; a fixed length begins with its first product, so that a sum of -0 alone is -0, others with +0.
template <class F, class A, class B, class Length>
VONKK3_INLINE Working<typename F::T> sumProducts(const A &a, const B &b, Length length) {
    using T = typename F::T;
    const auto product = [&](std::size_t j) VONKK3_INLINED { return Working<T>(a.load(j)) * Working<T>(b.load(j)); };
    if constexpr (sumsInPairs<F>) return (product(0) + product(1)) + (product(2) + product(3));
    else {
        Working<T> sum = F::isFixed ? product(0) : Working<T>(0);
        for (std::size_t j = F::isFixed; j < length; ++j) {
            if (roundsBeforeLeftOver<F> && j + 1 == length && j % 2 == 0) sum = round<T>(sum);
            sum = sum + product(j);
        }
        return sum;
    }
}

// ---- Blocks of four objects -----------------------------------------------------------------------------------------

// The products of a block are all there before its results are stored. In that the block differs from one object after
// the other only if results overlap operands, so that blocks are open to operands that lie apart whatever their
// alignment.
template <class A, class B> inline bool resultsLieApart(const Real32 *dst, const A &a, const B &b, Objects count) {
    const auto covered = [&](const auto &operand) {
        return Extent(RowsView<const Real32>(operand.view(0).base, operand.objectSpacing()), count, 3);
    };
    const Extent results(dst, count * sizeof(Real32));
    return areApart(results, covered(a)) && areApart(results, covered(b));
}

template <class... Operands> inline bool allAligned(const Real32 *dst, const Operands &...operands) {
    const std::uintptr_t words =
        (reinterpret_cast<std::uintptr_t>(dst) | ... |
         (reinterpret_cast<std::uintptr_t>(operands.view(0).base) | std::uintptr_t(operands.objectSpacing())));
    return words % laneBytes == 0;
}

VONKK3_INLINE __m128 sumLeftToRight(const FourTriples &p) { return (p.x + p.y) + p.z; }

template <bool packed, class A> VONKK3_INLINE FourTriples loadTriples(const A &a, std::size_t n) {
    if constexpr (packed) return FourTriples::loadPacked(a.view(n).base);
    else return FourTriples::load(SourceBlock(a, n));
}

// Works whole blocks; the first object that they leave.
template <class Block> VONKK3_INLINE std::size_t forEachBlock(Objects count, std::byte *results, const Block &block) {
    const std::size_t end = inBlocks(count);
    for (std::size_t n = 0; n < end; n += blockObjects) store4(results + n * sizeof(Real32), block(n));
    return end;
}

template <bool packed, class A, class B>
inline std::size_t dotTriplesAgainstOne(const A &a, const B &b, std::byte *results, Objects count) {
    return forEachBlock(count, results, [&](std::size_t n) VONKK3_INLINED {
        const FourTriples objects = loadTriples<packed>(a, n);
        const auto v = b.view(0);
        return sumLeftToRight({objects.x * _mm_set1_ps(v.load(0)), objects.y * _mm_set1_ps(v.load(1)),
                               objects.z * _mm_set1_ps(v.load(2))});
    });
}

template <class A, class B>
inline std::size_t dotFoursAgainstOne(const A &a, const B &b, std::byte *results, Objects count) {
    return forEachBlock(count, results, [&](std::size_t n) VONKK3_INLINED {
        const SourceBlock block(a, n);
        const __m128 v = load4(b.view(0).base);
        return addRows(load4(block.at[0]) * v, load4(block.at[1]) * v, load4(block.at[2]) * v, load4(block.at[3]) * v);
    });
}

template <bool packed, class A, class B>
inline std::size_t dotTriples(const A &a, const B &b, std::byte *results, Objects count) {
    return forEachBlock(count, results, [&](std::size_t n) VONKK3_INLINED {
        const FourTriples p = loadTriples<packed>(a, n), q = loadTriples<packed>(b, n);
        return sumLeftToRight({p.x * q.x, p.y * q.y, p.z * q.z});
    });
}

// Products in rows of xyz and the element behind, which is worked along and dropped.
template <class A, class B>
inline std::size_t dotAlignedTriples(const A &a, const B &b, std::byte *results, Objects count) {
    return forEachBlock(count, results, [&](std::size_t n) VONKK3_INLINED {
        const SourceBlock p(a, n), q(b, n);
        __m128 row[blockObjects];
        for (std::size_t k = 0; k < blockObjects; ++k) row[k] = load4Aligned(p.at[k]) * load4Aligned(q.at[k]);
        _MM_TRANSPOSE4_PS(row[0], row[1], row[2], row[3]);
        return (row[0] + row[2]) + row[1];
    });
}

// How many objects were done four at a time.
template <class F, class A, class B>
inline std::size_t dotInBlocks(const A &a, const B &b, Real32 *dst, Objects count) {
    std::byte *results = reinterpret_cast<std::byte *>(dst);
    constexpr bool isPacked = true;
    const auto packed = [](const auto &operand) { return operand.objectSpacing() == FourTriples::packedSpacing; };
    if constexpr (F::length == 4) return dotFoursAgainstOne(a, b, results, count);
    else if constexpr (F::layout == Layout::L) return dotTriplesAgainstOne<!isPacked>(a, b, results, count);
    else if constexpr (F::sharesOne) {
        if (!allAligned(dst, a) && !resultsLieApart(dst, a, b, count)) return 0;
        if (packed(a)) return dotTriplesAgainstOne<isPacked>(a, b, results, count);
        return dotTriplesAgainstOne<!isPacked>(a, b, results, count);
    } else {
        if (allAligned(dst, a, b)) return dotAlignedTriples(a, b, results, count);
        if (!resultsLieApart(dst, a, b, count)) return 0;
        if (packed(a) && packed(b)) return dotTriples<isPacked>(a, b, results, count);
        return dotTriples<!isPacked>(a, b, results, count);
    }
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// dst[n] = sum over j of a(n, j) * b(n, j).
template <class A, class B, class T, class Length, class Count>
VONKK3_INLINE VonkStatus dotProduct(const A &a, const B &b, T *dst, Length length, Count count) {
    using F = DotForm<A, B, Length>;
    if (anyNull(a, b, dst)) return vonkErrNullPtr;
    if (length.isZero()) return vonkErrSize;
    if (anyTableEntryNull(length, a, b)) return vonkErrNullPtr;
    if (count == 0) return vonkOk;

    std::byte *results = reinterpret_cast<std::byte *>(dst);
    std::size_t done = 0;
    if constexpr (takesFourAgainstOne<F> || takesFourPairs<F>) done = dotInBlocks<F>(a, b, dst, count);
    const auto work = [&](std::size_t n) VONKK3_INLINED {
        Working<T> sum;
        if constexpr (sumsInBlocks<F>) sum = sumInBlocks(ProductTerm{}, length, b.view(0).base, a.view(0).base);
        else sum = sumProducts<F>(a.view(n), b.view(n), length);
        storeAt<T>(results + n * sizeof(T), round<T>(sum));
        return vonkOk;
    };
    if constexpr (trustsEntries<F>) return forEachObjectFrom(done, count, work);
    else return forEachObjectFrom(done, count, work, a, b);
}

} // namespace vonkk3::vector
