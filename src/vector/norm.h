// Euclidean norm of a vector or of each vector of an array: the root of the sum of squares. Results are a dense block.
#pragma once

#include "frame/estimate.h"
#include "frame/operations.h"
#include "frame/positions.h"
#include "frame/vector_blocks.h"
#include "vector/block_walk.h"

namespace vonkk3::vector {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// Real32 of fixed size, where elements are adjacent, trades exactness for speed: squares are added as a tree, and the
// root comes from the estimate of a reciprocal root. The norm of a zero vector is NaN there, and 0 in all other forms.
template <class Source, class Length>
inline constexpr bool rootsByEstimate = std::is_same_v<typename Source::Element, Real32> &&Length::isFixed &&
                                        (Source::layout == Layout::Standard || Source::layout == Layout::L);

// vonkL2Norm_va_32f_4x1_L never tests an entry.
template <class Source, class Length>
inline constexpr bool normTrustsEntries = rootsByEstimate<Source, Length> &&Source::isList &&Length::value == 4;

// Only the run-time norm of one Real32 vector of adjacent elements is built for length.
template <class Source, class Length>
inline constexpr bool squaresInBlocks = std::is_same_v<typename Source::Element, Real32> && !Length::isFixed &&
                                        !Source::isArray && Source::layout == Layout::Standard;

// ---- One object, or several in lanes --------------------------------------------------------------------------------

struct SquareTerm {
    Real32 operator()(Real32 a) const { return a * a; }
    __m128 operator()(__m128 a) const { return _mm_mul_ps(a, a); }
};

// Left to right. As from +0, since a square is never -0; Number is a number or a pack.
template <class Number, class Element> VONKK3_INLINE Number sumSquares(const Element &element, std::size_t length) {
    const auto square = [&](std::size_t j) VONKK3_INLINED {
        const Number a = element(j);
        return a * a;
    };
    Number sum = square(0);
    for (std::size_t j = 1; j < length; ++j) sum = sum + square(j);
    return sum;
}
template <class T, class View> VONKK3_INLINE Working<T> sumSquaresOf(const View &view, std::size_t length) {
    return sumSquares<Working<T>>([&](std::size_t j) VONKK3_INLINED { return view.load(j); }, length);
}

// The sum of squares q(j) as the forms with an estimated root group it; Reals are one object's or a block's.
template <std::size_t length, class Square> VONKK3_INLINE auto addAsTree(const Square &q) {
    if constexpr (length == 3) return (q(0) + q(1)) + q(2);
    else {
        const auto ofFour = (q(0) + q(1)) + (q(2) + q(3));
        if constexpr (length == 4) return ofFour;
        else if constexpr (length == 5) return ofFour + q(4);
        else return ofFour + (q(4) + q(5));
    }
}

template <std::size_t length, class View> VONKK3_INLINE Real32 normByEstimate(const View &view) {
    return rootByEstimate(addAsTree<length>([&](std::size_t j) VONKK3_INLINED {
        const Real32 element = view.load(j);
        return element * element;
    }));
}

// ---- Blocks of objects ----------------------------------------------------------------------------------------------

// The sums of squares of the objects from n on.
template <std::size_t length, std::size_t width, class Source>
VONKK3_INLINE Register<width> sumSquaresOfBlock(const Source &source, std::size_t n) {
    if constexpr (length == 3) {
        const auto v = Vectors3<width>::load(source, n);
        return (v.x * v.x + v.y * v.y) + v.z * v.z;
    } else {
        const SourceBlock<width> block(source, n);
        const auto square = [](auto a) VONKK3_INLINED { return a * a; };
        const auto elements = [&](std::size_t j)
                                  VONKK3_INLINED { return square(gatherElement(block.at, j * sizeof(Real32)).lanes); };
        const auto ofFour =
            addRows(square(block.row(0)), square(block.row(1)), square(block.row(2)), square(block.row(3)));
        if constexpr (length == 4) return ofFour;
        else if constexpr (length == 5) return ofFour + elements(4);
        else return ofFour + (elements(4) + elements(5));
    }
}

// Blocks from the first object on, as long as no entry of theirs is null; the first object that they leave.
template <std::size_t length, bool testsEntries, class Source>
inline std::size_t normInBlocks(const Source &source, std::byte *results, Objects count) {
    const bool mayBeWide = !Source::isList && count != 0 &&
                           disjoint(extentOf(results, count * sizeof(Real32)), extentOfAll(source, 1, length, count));
    const auto work = [&](const auto &vectors) VONKK3_INLINED {
        return forEachBlock(count, mayBeWide, [&](auto width, std::size_t n) VONKK3_INLINED {
            for (std::size_t k = 0; testsEntries && k < width; ++k)
                if (source.listHasNull(n + k)) return false;
            storeLanes(results + n * sizeof(Real32), rootByEstimate(sumSquaresOfBlock<length, width>(vectors, n)));
            return true;
        });
    };
    return withKnownSpacing<length>(work, source);
}

// Sums one by one, but roots four at a time; how many objects were done.
template <class Source, class Length>
VONKK3_INLINE std::size_t takeFourRoots(const Source &source, std::byte *results, Length length, Objects count) {
    if (count < four || !disjoint(extentOf(results, count * sizeof(Real32)), extentOfAll(source, 1, length, count)))
        return 0;
    const std::size_t end = inFours(count);
    for (std::size_t n = 0; n < end; n += four) {
        const auto sum = [&](std::size_t k) VONKK3_INLINED { return sumSquaresOf<Real32>(source.view(n + k), length); };
        store4(results + n * sizeof(Real32), _mm_sqrt_ps(_mm_setr_ps(sum(0), sum(1), sum(2), sum(3))));
    }
    return end;
}

// ---- Arrays in the pointer layout -----------------------------------------------------------------------------------

struct NormOfPacks {
    static constexpr bool isSum = false;
    template <class A> VONKK3_INLINE auto operator()(std::size_t, std::size_t length, const A &a) const {
        return squareRoot(
            sumSquares<typename A::Number>([&](std::size_t j) VONKK3_INLINED { return a.load(0, j); }, length));
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

// dst[n] = root of the sum over j of the square of source(n, j).
template <class Source, class T, class Length, class Count>
VONKK3_INLINE VonkStatus norm(const Source &source, T *dst, Length length, Count count) {
    if (anyNull(source, dst)) return vonkErrNullPtr;
    if (length.isZero()) return vonkErrSize;
    if (anyTableEntryNull(length, source)) return vonkErrNullPtr;

    constexpr bool testsEntries = !normTrustsEntries<Source, Length>;
    std::byte *results = reinterpret_cast<std::byte *>(dst);
    std::size_t done = 0;
    if constexpr (rootsByEstimate<Source, Length> && Count::isArray)
        done = normInBlocks<Length::value, testsEntries>(source, results, count);
    else if constexpr (std::is_same_v<T, Real32> && Length::isFixed && Source::isArray && Source::layout == Layout::S2)
        done = takeFourRoots(source, results, length, count);
    else if constexpr (std::is_same_v<T, Real32> && Source::isArray && Source::isTable)
        done = reduceArrays(NormOfPacks(), results, fixed<1>, length, count, source.words(length));
    const auto work = [&](std::size_t n) VONKK3_INLINED {
        T result;
        if constexpr (rootsByEstimate<Source, Length>) result = normByEstimate<Length::value>(source.view(n));
        else if constexpr (squaresInBlocks<Source, Length>)
            result = squareRoot(sumInBlocks(SquareTerm{}, length, source.view(0).base));
        else result = round<T>(squareRoot(sumSquaresOf<T>(source.view(n), length)));
        storeAt<T>(results + n * sizeof(T), result);
        return VonkStatus(vonkOk);
    };
    if constexpr (testsEntries) return forEachObjectFrom(done, count, work, source);
    else return forEachObjectFrom(done, count, work);
}

} // namespace vonkk3::vector
