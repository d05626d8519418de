// The frame of all operations of vectors element by element: d(n, j) = operation(source(n, j)...), with one source or
// two, each a single vector or an array. One store per element, objects and elements in ascending order.
#pragma once

#include "frame/lanes.h"
#include "frame/walk.h"
#include "vector/block_walk.h"

namespace vonkk3::vector {

// One form of an operation: the facts that a family states are told about it.
template <class Length, class D, class... Sources> struct Form {
    static constexpr bool isReal32 = std::is_same_v<typename D::Element, Real32>;
    static constexpr bool isStandard = D::layout == Layout::Standard;
    static constexpr bool isAdjacent = isStandard || D::layout == Layout::L;
    static constexpr bool isArray = D::isArray;
    static constexpr bool sharesOne = isArray && !(Sources::isArray && ...); // vav and vva: one vector for all objects
    static constexpr std::size_t length = Length::value;
    static constexpr bool isFixed = Length::isFixed;
};

// Only run-time forms of single Real32 vectors of adjacent elements are built for length.
template <class F> inline constexpr bool walksInBlocks = F::isReal32 && !F::isFixed && F::isStandard && !F::isArray;

// Real32 of fixed size works whole vectors in lanes where elements are adjacent. The exception is 3x1 with a single
// vector for all objects, which is worked element by element.
template <class F>
inline constexpr bool worksInLanes = F::isReal32 &&F::isFixed &&F::isAdjacent && !(F::sharesOne && F::length == 3);

// Real32 of fixed size with a single vector for all objects loads it ahead of them where elements are adjacent: a
// destination that overlaps it changes nothing for later objects. All other forms read it anew for each object.
template <class F> inline constexpr bool holdsSingleVector = F::isReal32 &&F::isFixed &&F::isAdjacent &&F::sharesOne;

// ---- One object -----------------------------------------------------------------------------------------------------

// Element by element. A single object in a pointer layout has its entries tested just before each element.
template <bool testsEntries, class Operation, class Length, class D, class... Sources>
inline VonkStatus combineElements(const Operation &operation, Length length, const D &d, const Sources &...sources) {
    using T = typename D::Element;
    for (std::size_t j = 0; j < length; ++j) {
        if constexpr (testsEntries)
            if ((sources.hasNullEntry(j) || ...) || d.hasNullEntry(j)) return vonkErrNullPtr;
        d.store(j, round<T>(operation(Working<T>(sources.load(j))...)));
    }
    return vonkOk;
}

// A vector of 3 to 6 elements is loaded whole before any of it is stored.
template <class Operation, std::size_t length, Alignment alignment, class... Others>
inline Lanes<length, alignment> combineLanes(const Operation &operation, const Lanes<length, alignment> &first,
                                             const Others &...others) {
    if constexpr (length <= 4) return {operation(first.head, others.head...), first.tail};
    else return {operation(first.head, others.head...), operation(first.tail, others.tail...)};
}

// ---- What hands out a source of object n ----------------------------------------------------------------------------

// As lanes, or as something with load(j): an array's from memory, a single vector's taken out of memory once, here.
template <std::size_t length, Alignment alignment, class Source> inline auto lanesOf(const Source &source) {
    const auto load = [source](std::size_t n) { return Lanes<length, alignment>::load(source.view(n).base); };
    if constexpr (Source::isArray) return load;
    else return [held = load(0)](std::size_t) { return held; };
}

template <std::size_t length> struct HeldElements {
    Real32 elements[length];
    template <class View> explicit HeldElements(const View &view) {
        for (std::size_t j = 0; j < length; ++j) elements[j] = view.load(j);
    }
    Real32 load(std::size_t j) const { return elements[j]; }
};

template <std::size_t length, class Source> inline auto elementsOf(const Source &source) {
    if constexpr (Source::isArray) return [source](std::size_t n) { return source.view(n); };
    else return [held = HeldElements<length>(source.view(0))](std::size_t) { return held; };
}

// ---- All objects ----------------------------------------------------------------------------------------------------

template <Alignment alignment, class Operation, std::size_t length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineInLanes(const Operation &operation, Fixed<length>, Count count, const D &d,
                                        const Sources &...sources) {
    const auto walk = [&](const auto &...lanes) VONKK3_INLINED {
        const auto combineObject = [&](std::size_t n) { combineLanes(operation, lanes(n)...).store(d.view(n).base); };
        return forEachLightObject(count, combineObject, sources..., d);
    };
    return walk(lanesOf<length, alignment>(sources)...);
}

// The same for arrays alone, which are equally spaced more often than not.
template <Alignment alignment, class Operation, class Size, class D, class First, class... Others>
VONKK3_INLINE VonkStatus combineArraysInLanes(const Operation &operation, Size size, Objects count, const D &d,
                                              const First &first, const Others &...others) {
    if (equallySpaced(first, others..., d))
        return combineInLanes<alignment>(operation, size, count, d.spacedAs(first), first, others.spacedAs(first)...);
    return combineInLanes<alignment>(operation, size, count, d, first, others...);
}

template <class Operation, std::size_t length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineHeld(const Operation &operation, Fixed<length> size, Count count, const D &d,
                                     const Sources &...sources) {
    const auto walk = [&](const auto &...vectors) VONKK3_INLINED {
        const auto combineObject = [&](std::size_t n) {
            return combineElements<false>(operation, size, d.view(n), vectors(n)...);
        };
        return forEachObject(count, combineObject, sources..., d);
    };
    return walk(elementsOf<length>(sources)...);
}

// Element by element, everything read anew.
template <class Operation, class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineAnew(const Operation &operation, Length length, Count count, const D &d,
                                     const Sources &...sources) {
    const auto combineObject = [&](std::size_t n) {
        return combineElements<!Count::isArray>(operation, length, d.view(n), sources.view(n)...);
    };
    return forEachObject(count, combineObject, sources..., d);
}

// What the checks say before any work: a failure, or vonkOk with `count` still to be tested.
template <class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus check(Length length, Count, const D &d, const Sources &...sources) {
    if (anyNull(sources..., d)) return vonkErrNullPtr;
    if (length.isZero()) return vonkErrSize;
    if constexpr (Count::isArray)
        if (anyTableEntryNull(length, sources..., d)) return vonkErrNullPtr;
    return vonkOk;
}

// The blocks look at the alignment of the last source, and so get it first.
template <class Operation, class D, class Source>
inline VonkStatus combineInBlocks(const Operation &operation, std::size_t length, const D &d, const Source &source) {
    return walkBlocks(operation, d.view(0).base, length, source.view(0).base), vonkOk;
}

template <class Operation, class D, class A, class B>
inline VonkStatus combineInBlocks(const Operation &operation, std::size_t length, const D &d, const A &a, const B &b) {
    return walkBlocks(operation, d.view(0).base, length, b.view(0).base, a.view(0).base), vonkOk;
}

// The work behind the checks, by the way that suits the form. Where vectors are moved four elements at once, alignment
// says by which instructions; it changes no result.
template <Alignment alignment = Alignment::any, class Operation, class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineObjects(const Operation &operation, Length length, Count count, const D &d,
                                        const Sources &...sources) {
    using F = Form<Length, D, Sources...>;
    if (count == 0) return vonkOk; // nothing is read, not even a single vector
    if constexpr (walksInBlocks<F>) return combineInBlocks(operation, length, d, sources...);
    else if constexpr (worksInLanes<F> && F::isStandard && F::isArray && !F::sharesOne)
        return combineArraysInLanes<alignment>(operation, length, count, d, sources...);
    else if constexpr (worksInLanes<F>) return combineInLanes<alignment>(operation, length, count, d, sources...);
    else if constexpr (holdsSingleVector<F>) return combineHeld(operation, length, count, d, sources...);
    else return combineAnew(operation, length, count, d, sources...);
}

} // namespace vonkk3::vector
