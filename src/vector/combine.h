// Sum and difference of vectors, element by element: two vectors, a vector and an array, or two arrays. One rounded
// operation per element, objects and elements in ascending order.
#pragma once

#include "frame/lanes.h"
#include "frame/walk.h"
#include "vector/block_walk.h"

namespace vonkk3::vector {

struct Sum {
    static constexpr bool isSum = true;
    template <class Real> Real operator()(Real a, Real b) const { return a + b; }
    __m128 operator()(__m128 a, __m128 b) const { return _mm_add_ps(a, b); }
};

struct Difference {
    static constexpr bool isSum = false;
    template <class Real> Real operator()(Real a, Real b) const { return a - b; }
    __m128 operator()(__m128 a, __m128 b) const { return _mm_sub_ps(a, b); }
};

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// One form of what `combine` is called with: the facts below are told about it.
template <class Operation, class A, class B, class D, class Length> struct Form {
    static constexpr bool isSum = Operation::isSum;
    static constexpr bool isReal32 = std::is_same_v<typename D::Element, Real32>;
    static constexpr bool isStandard = D::layout == Layout::Standard;
    static constexpr bool isAdjacent = isStandard || D::layout == Layout::L;
    static constexpr bool isArray = D::isArray;
    static constexpr bool sharesOne = A::isArray != B::isArray; // vav and vva: a single vector for all objects
    static constexpr std::size_t length = Length::value;
    static constexpr bool isFixed = Length::isFixed;
};

// Real32 of fixed size works whole vectors in lanes where elements are adjacent. The exception is 3x1 with a single
// operand, which is worked element by element.
template <class F>
inline constexpr bool worksInLanes = F::isReal32 &&F::isFixed &&F::isAdjacent && !(F::sharesOne && F::length == 3);

// Real32 of fixed size with a single operand loads it ahead of all objects where elements are adjacent: a destination
// that overlaps it changes nothing for later objects. All other forms read it anew for each object.
template <class F> inline constexpr bool holdsSingleOperand = F::isReal32 &&F::isFixed &&F::isAdjacent &&F::sharesOne;

// Only the run-time sum and difference of two Real32 vectors of adjacent elements are built for length.
template <class F> inline constexpr bool walksInBlocks = F::isReal32 && !F::isFixed && F::isStandard && !F::isArray;

// vonkAdd_vv_32f_4x1 looks whether all three vectors are aligned and then moves them so; vonkSub_vv_32f_4x1 does not.
template <class F>
inline constexpr bool looksAtAlignment = F::isReal32 &&F::isStandard && !F::isArray && F::length == 4 && F::isSum;

// vonkSub_vava_32f_3x1 takes objects in blocks of four, with a prefetch at the head of each; vonkAdd_vava_32f_3x1 does
// not.
template <class F>
inline constexpr bool takesBlocksOfFour =
    F::isReal32 &&F::isStandard &&F::isArray && !F::sharesOne && F::length == 3 && !F::isSum;

// ---- One object -----------------------------------------------------------------------------------------------------

template <class T, class Operation> inline T combineElement(T a, T b, Operation operation) {
    return round<T>(operation(Working<T>(a), Working<T>(b)));
}

// A vector of 3 to 6 elements is loaded whole before any of it is stored.
template <std::size_t length, class Operation>
inline Lanes<length> combineLanes(Lanes<length> a, Lanes<length> b, Operation operation) {
    if constexpr (length <= 4) return {operation(a.head, b.head), a.tail};
    else return {operation(a.head, b.head), operation(a.tail, b.tail)};
}

// Element by element. A single vector in a pointer layout has its entries tested just before each element.
template <bool testsEntries, class Operation, class A, class B, class D, class Length>
inline VonkStatus combineElements(const A &a, const B &b, const D &d, Length length, Operation operation) {
    for (std::size_t j = 0; j < length; ++j) {
        if constexpr (testsEntries)
            if (a.hasNullEntry(j) || b.hasNullEntry(j) || d.hasNullEntry(j)) return vonkErrNullPtr;
        d.store(j, combineElement(a.load(j), b.load(j), operation));
    }
    return vonkOk;
}

template <class Operation>
inline void combineFourAligned(const std::byte *a, const std::byte *b, std::byte *d, Operation operation) {
    store4Aligned(d, operation(load4Aligned(a), load4Aligned(b)));
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// A single Real32 vector of fixed size, copied out of memory.
template <std::size_t length> struct Held {
    Real32 elements[length];
    template <class View> explicit Held(const View &view) {
        for (std::size_t j = 0; j < length; ++j) elements[j] = view.load(j);
    }
    Real32 load(std::size_t j) const { return elements[j]; }
};

template <class Operation, class A, class B, class D, class Count>
inline VonkStatus combineInBlocksOfFour(const A &a, const B &b, const D &d, Count count, Operation operation) {
    constexpr std::size_t block = 4;
    const auto combineObject = [&](std::size_t n) {
        combineLanes(Lanes<3>::load(a.view(n).base), Lanes<3>::load(b.view(n).base), operation).store(d.view(n).base);
    };
    const std::size_t inBlocks = count / block * block;
    for (std::size_t n = 0; n < inBlocks; n += block) {
        prefetch(a.view(n).base + prefetchDistance);
        prefetch(b.view(n).base + prefetchDistance);
        for (std::size_t k = 0; k < block; ++k) combineObject(n + k);
    }
    for (std::size_t n = inBlocks; n < count; ++n) combineObject(n);
    return vonkOk;
}

// What hands out an operand of object n: as lanes, or as something with load(j). A single operand is taken out of
// memory once, here, and held.
template <std::size_t length, class Operand> inline auto lanesOf(const Operand &operand) {
    if constexpr (Operand::isArray) return [&](std::size_t n) { return Lanes<length>::load(operand.view(n).base); };
    else return [held = Lanes<length>::load(operand.view(0).base)](std::size_t) { return held; };
}

template <std::size_t length, class Operand> inline auto elementsOf(const Operand &operand) {
    if constexpr (Operand::isArray) return [&](std::size_t n) { return operand.view(n); };
    else return [held = Held<length>(operand.view(0))](std::size_t) { return held; };
}

template <class Operation, class A, class B, class D, std::size_t length, class Count>
inline VonkStatus combineInLanes(const A &a, const B &b, const D &d, Fixed<length>, Count count, Operation operation) {
    const auto first = lanesOf<length>(a);
    const auto second = lanesOf<length>(b);
    const auto combineObject = [&](std::size_t n) {
        combineLanes(first(n), second(n), operation).store(d.view(n).base);
    };
    return forEachLightObject(count, combineObject, a, b, d);
}

// The same for two arrays, which are equally spaced more often than not.
template <class Operation, class A, class B, class D, std::size_t length, class Count>
inline VonkStatus combineArraysInLanes(const A &a, const B &b, const D &d, Fixed<length> size, Count count,
                                       Operation operation) {
    if (equallySpaced(a, b, d)) return combineInLanes(a, b.spacedAs(a), d.spacedAs(a), size, count, operation);
    return combineInLanes(a, b, d, size, count, operation);
}

template <class Operation, class A, class B, class D, std::size_t length, class Count>
inline VonkStatus combineHeld(const A &a, const B &b, const D &d, Fixed<length> size, Count count,
                              Operation operation) {
    const auto first = elementsOf<length>(a);
    const auto second = elementsOf<length>(b);
    const auto combineObject = [&](std::size_t n) {
        return combineElements<false>(first(n), second(n), d.view(n), size, operation);
    };
    return forEachObject(count, combineObject, a, b, d);
}

// d(n, j) = operation(a(n, j), b(n, j)); a single operand serves all objects.
template <class Operation, class A, class B, class D, class Length, class Count>
VONKK3_INLINE VonkStatus combine(const A &a, const B &b, const D &d, Length length, Count count) {
    using F = Form<Operation, A, B, D, Length>;
    constexpr Operation operation;
    if (anyNull(a, b, d)) return vonkErrNullPtr;
    if (length.isZero()) return vonkErrSize;
    if constexpr (Count::isArray)
        if (anyTableEntryNull(length, a, b, d)) return vonkErrNullPtr;
    if (count == 0) return vonkOk; // nothing is read, a single operand neither

    if constexpr (looksAtAlignment<F>)
        if (isAligned(a.view(0).base) && isAligned(b.view(0).base) && isAligned(d.view(0).base))
            return combineFourAligned(a.view(0).base, b.view(0).base, d.view(0).base, operation), vonkOk;

    const auto combineObject = [&](std::size_t n) {
        return combineElements<!Count::isArray>(a.view(n), b.view(n), d.view(n), length, operation);
    };
    if constexpr (walksInBlocks<F>)
        return walkBlocks(a.view(0).base, b.view(0).base, d.view(0).base, length, operation), vonkOk;
    else if constexpr (takesBlocksOfFour<F>) return combineInBlocksOfFour(a, b, d, count, operation);
    else if constexpr (worksInLanes<F> && F::isStandard && F::isArray && !F::sharesOne)
        return combineArraysInLanes(a, b, d, length, count, operation);
    else if constexpr (worksInLanes<F>) return combineInLanes(a, b, d, length, count, operation);
    else if constexpr (holdsSingleOperand<F>) return combineHeld(a, b, d, length, count, operation);
    else return forEachObject(count, combineObject, a, b, d);
}

} // namespace vonkk3::vector
