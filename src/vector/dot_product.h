// Dot product: of two vectors, of an array and one vector, or of two arrays pairwise. Results are a dense block.
#pragma once

#include "frame/positions.h"
#include "frame/stream.h"
#include "frame/vector_blocks.h"
#include "vector/block_walk.h"

namespace vonkk3::vector {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

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

// These take objects four at a time, one in each lane, whatever their operands overlap: 3x1 and 4x1 of an array against
// one vector, the standard layout's 3x1 only if `src1`, its object stride and `dst` are multiples of 16. The two in L
// never test an entry.
template <class F>
inline constexpr bool takesFourAgainstOne = F::isReal32 &&F::sharesOne && (F::length == 3 || F::length == 4) &&
                                            (F::layout == Layout::Standard || F::layout == Layout::L);
template <class F> inline constexpr bool trustsEntries = takesFourAgainstOne<F> &&F::layout == Layout::L;

// And 3x1 of two arrays, if both, their object strides and `dst` are multiples of 16. It reads the element behind each
// object along, and sums (p0 + p2) + p1 in blocks, but left to right in the objects that follow.
template <class F>
inline constexpr bool takesAlignedVectors3 =
    F::isReal32 &&F::isArray && !F::sharesOne && F::length == 3 && F::layout == Layout::Standard;

// All arrays of fixed size and adjacent elements in the standard layout go in blocks where results are disjoint from
// operands.
template <class F>
inline constexpr bool mayTakeBlocks = F::isReal32 &&F::isArray &&F::isFixed &&F::layout == Layout::Standard;

// ---- One object -----------------------------------------------------------------------------------------------------

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

// ---- Blocks of objects ----------------------------------------------------------------------------------------------

template <class... Operands> inline bool allAligned(const Real32 *dst, const Operands &...operands) {
    const std::uintptr_t words =
        (reinterpret_cast<std::uintptr_t>(dst) | ... |
         (reinterpret_cast<std::uintptr_t>(operands.view(0).base) | std::uintptr_t(operands.objectSpacing())));
    return words % laneBytes == 0;
}

// What is multiplied: the objects of a block, or the one vector in all lanes.
template <class B, std::size_t width> struct BlockOrOne {
    const B &b;
    std::size_t n;
    VONKK3_INLINE Register<width> element(std::size_t j) const {
        if constexpr (B::isArray) return gatherElement(SourceBlock<width>(b, n).at, j * sizeof(Real32)).lanes;
        else return broadcast<Register<width>>(b.view(0).load(j));
    }
    VONKK3_INLINE Register<width> row(std::size_t k) const {
        if constexpr (B::isArray) return SourceBlock<width>(b, n).row(k);
        else return loadInEveryQuad<Register<width>>(b.view(0).base);
    }
    VONKK3_INLINE Vectors3<width> vectors3() const {
        if constexpr (B::isArray) return Vectors3<width>::load(b, n);
        else return {element(0), element(1), element(2)};
    }
};

// The sums of the objects from n on.
template <class F, std::size_t width, class A, class B>
VONKK3_INLINE Register<width> dotBlock(const A &a, const B &b, std::size_t n) {
    const BlockOrOne<A, width> p{a, n};
    const BlockOrOne<B, width> q{b, n};
    if constexpr (F::length == 3) {
        const auto u = p.vectors3(), v = q.vectors3();
        return (u.x * v.x + u.y * v.y) + u.z * v.z;
    } else {
        auto p0 = p.row(0) * q.row(0), p1 = p.row(1) * q.row(1), p2 = p.row(2) * q.row(2), p3 = p.row(3) * q.row(3);
        if constexpr (sumsInPairs<F>) return addRows(p0, p1, p2, p3);
        transpose(p0, p1, p2, p3);
        auto sum = ((p0 + p1) + p2) + p3;
        for (std::size_t j = 4; j < F::length; ++j) sum = sum + p.element(j) * q.element(j);
        return sum;
    }
}

// Products in rows of x, y, z and the element after them, which is multiplied, too, and dropped.
template <std::size_t width, class A, class B>
VONKK3_INLINE Register<width> dotAlignedVectors3(const A &a, const B &b, std::size_t n) {
    const SourceBlock<width> p(a, n), q(b, n);
    auto x = p.row(0) * q.row(0), y = p.row(1) * q.row(1), z = p.row(2) * q.row(2), padding = p.row(3) * q.row(3);
    transpose(x, y, z, padding);
    return (x + z) + y;
}

// How many objects were done in blocks.
template <class F, class A, class B>
inline std::size_t dotInBlocks(const A &a, const B &b, Real32 *dst, Objects count) {
    std::byte *results = reinterpret_cast<std::byte *>(dst);
    const bool areDisjoint =
        mayTakeBlocks<F> &&
        disjointFromAll(extentOf(dst, count), extentOfAll(a, 1, F::length, count), extentOfAll(b, 1, F::length, count));
    const auto forEach = [&](const auto &sums) VONKK3_INLINED {
        return forEachBlock(count, areDisjoint, [&](auto width, std::size_t n) VONKK3_INLINED {
            storeLanes(results + n * sizeof(Real32), sums(width, n));
            return true;
        });
    };
    if constexpr (takesAlignedVectors3<F>)
        if (allAligned(dst, a, b))
            return forEach([&](auto width, std::size_t n)
                               VONKK3_INLINED { return dotAlignedVectors3<width>(a, b, n); });
    if constexpr (mayTakeBlocks<F>) {
        const bool must = takesFourAgainstOne<F> && (F::length == 4 || allAligned(dst, a));
        if (!must && !areDisjoint) return 0;
    }
    const auto work = [&](const auto &p, const auto &q) VONKK3_INLINED {
        return forEach([&](auto width, std::size_t n) VONKK3_INLINED { return dotBlock<F, width>(p, q, n); });
    };
    if constexpr (B::isArray) return withKnownSpacing<F::length>(work, a, b);
    else return withKnownSpacing<F::length>([&](const auto &p) VONKK3_INLINED { return work(p, b); }, a);
}

// ---- Arrays in the pointer layout: left to right; run-time lengths begin with +0 ------------------------------------

template <bool beginsWithZero> struct DotOfPacks {
    static constexpr bool isSum = true;
    template <class A, class B>
    VONKK3_INLINE auto operator()(std::size_t, std::size_t length, const A &a, const B &b) const {
        using Number = typename A::Number;
        Number sum = a.load(0, 0) * b.load(0, 0);
        if constexpr (beginsWithZero) sum = Number(0.0F) + sum;
        for (std::size_t j = 1; j < length; ++j) sum = sum + a.load(0, j) * b.load(0, j);
        return sum;
    }
};

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
    if constexpr (takesFourAgainstOne<F> || mayTakeBlocks<F>) done = dotInBlocks<F>(a, b, dst, count);
    if constexpr (F::isReal32 && F::isArray && A::isTable)
        done =
            reduceArrays(DotOfPacks<!F::isFixed>(), results, fixed<1>, length, count, a.words(length), b.words(length));
    const auto work = [&](std::size_t n) VONKK3_INLINED {
        Working<T> sum;
        if constexpr (sumsInBlocks<F>) sum = sumInBlocks(Product(), length, b.view(0).base, a.view(0).base);
        else sum = sumProducts<F>(a.view(n), b.view(n), length);
        storeAt<T>(results + n * sizeof(T), round<T>(sum));
        return vonkOk;
    };
    if constexpr (trustsEntries<F>) return forEachObjectFrom(done, count, work);
    else return forEachObjectFrom(done, count, work, a, b);
}

} // namespace vonkk3::vector
