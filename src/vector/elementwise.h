// The frame of all operations of vectors element by element: d(n, j) = operation(source(n, j)...), with one source or
// two, each a single vector or an array. One store per element, objects and elements in ascending order.
#pragma once

#include "frame/elementwise.h"
#include "frame/walk.h"

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

// Real32 of fixed size works whole vectors in lanes where elements are adjacent. The exception is 3x1 with a single
// vector for all objects, which is worked element by element.
template <class F>
inline constexpr bool worksInLanes = F::isReal32 &&F::isFixed &&F::isAdjacent && !(F::sharesOne && F::length == 3);

// Real32 of fixed size with a single vector for all objects loads it before all of them where elements are contiguous:
// a destination that overlaps it changes nothing for later objects. All other forms read it again for each object.
template <class F> inline constexpr bool holdsSingleVector = F::isReal32 &&F::isFixed &&F::isAdjacent &&F::sharesOne;

// ---- One object -----------------------------------------------------------------------------------------------------

// A vector of 3 to 6 elements is loaded whole before any of it is stored.
template <class Operation, std::size_t length, class... Others>
inline Lanes<length> combineLanes(const Operation &operation, const Lanes<length> &first, const Others &...others) {
    if constexpr (length <= 4) return {operation(first.head, others.head...), first.tail};
    else return {operation(first.head, others.head...), operation(first.tail, others.tail...)};
}

// ---- What hands out a source of object n ----------------------------------------------------------------------------

// As lanes, or as something with load(j): an array's from memory, a single vector's taken out of memory once, here.
template <std::size_t length, class Source> inline auto lanesOf(const Source &source) {
    const auto load = [source](std::size_t n) { return Lanes<length>::load(source.view(n).base); };
    if constexpr (Source::isArray) return load;
    else return [held = load(0)](std::size_t) { return held; };
}

template <std::size_t length> struct HeldElements {
    Real32 elements[length];
    template <class View> explicit HeldElements(const View &view) {
        for (std::size_t j = 0; j < length; ++j) elements[j] = view.load(j);
    }
    Real32 load(std::size_t, std::size_t j) const { return elements[j]; }
};

template <std::size_t length, class Source> inline auto elementsOf(const Source &source) {
    if constexpr (Source::isArray) return [source](std::size_t n) { return source.view(n); };
    else return [held = HeldElements<length>(source.view(0))](std::size_t) { return held; };
}

// ---- The plain path ----------------------------------------------------------------------------------------------

template <class Operation, std::size_t length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineInLanes(const Operation &operation, Fixed<length>, Count count, const D &d,
                                        const Sources &...sources) {
    const auto walk = [&](const auto &...lanes) VONKK3_INLINED {
        const auto combineObject = [&](std::size_t n) { combineLanes(operation, lanes(n)...).store(d.view(n).base); };
        return forEachLightObject(count, combineObject, sources..., d);
    };
    return walk(lanesOf<length>(sources)...);
}

template <class Operation, std::size_t length, class D, class... Sources>
VONKK3_INLINE VonkStatus combineHeld(const Operation &operation, Fixed<length> size, Objects count, const D &d,
                                     const Sources &...sources) {
    const auto walk = [&](const auto &...vectors) VONKK3_INLINED {
        const auto combineObject = [&](std::size_t n) {
            return workElements<false>(d.view(n), fixed<1>, size, operation, vectors(n)...);
        };
        return forEachObject(count, combineObject, sources..., d);
    };
    return walk(elementsOf<length>(sources)...);
}

// Element by element; a single vector is read again for each object.
template <class Operation, class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineByElement(const Operation &operation, Length length, Count count, const D &d,
                                          const Sources &...sources) {
    if constexpr (Count::isArray)
        return workArrays<typename D::Element>(operation, fixed<1>, length, count, d.words(length),
                                               sources.words(length)...);
    else return workElements<true>(d.view(0), fixed<1>, length, operation, sources.view(0)...);
}

// ---- The fast paths -------------------------------------------------------------------------------------------------

// Whether vector follows vector without a gap. A single one does.
template <class... Operands> VONKK3_INLINE bool arePacked(std::size_t length, const Operands &...operands) {
    const auto bytes = std::ptrdiff_t(length * sizeof(Real32));
    return ((!Operands::isArray || operands.objectSpacing() == bytes) && ...);
}

// All vectors as one contiguous range, if they are one and nothing is written that is yet to be read; else false.
template <class Operation, class D, class... Sources>
VONKK3_INLINE bool combineAsOneRange(const Operation &operation, std::size_t length, std::size_t count, const D &d,
                                     const Sources &...sources) {
    const std::size_t elements = length * count;
    std::byte *const to = d.view(0).base;
    if (!arePacked(length, sources..., d) ||
        (overwritesAhead(to, sources.view(0).base, elements * sizeof(Real32)) || ...))
        return false;
    return streamContiguous(operation, to, elements, ContiguousSource{sources.view(0).base}...), true;
}

// A single vector beside packed ones, if nothing overlaps it.
template <std::size_t length, class Operation, class D, class A, class B>
VONKK3_INLINE bool combineRepeated(const Operation &operation, std::size_t count, const D &d, const A &a, const B &b) {
    if constexpr (!A::isArray) return combineRepeated<length>(Reversed<Operation>{operation}, count, d, b, a);
    else {
        const std::size_t bytes = count * length * sizeof(Real32);
        const auto single = b.view(0);
        const auto array = a.view(0);
        const auto result = d.view(0);
        if (!arePacked(length, a, d) || overwritesAhead(result.base, array.base, bytes) ||
            !disjoint(extentOf(single, 1, length), extentOf(result.base, bytes)))
            return false;
        const RepeatedObject<length> repeated([&](std::size_t j) VONKK3_INLINED { return single.load(j); });
        return repeated.stream(operation, result.base, array.base, count), true;
    }
}

// Whether all objects are done.
template <class Operation, class Length, class Count, class D, class... Sources>
VONKK3_INLINE bool combineFast(const Operation &operation, Length length, Count count, const D &d,
                               const Sources &...sources) {
    using F = Form<Length, D, Sources...>;
    if (F::isFixed && count < worthCollapsing) return false;
    if constexpr (F::isReal32 && F::isStandard && !F::sharesOne && (F::isArray || !F::isFixed))
        if (combineAsOneRange(operation, length, count, d, sources...)) return true;
    if constexpr (F::isReal32 && F::isStandard && F::sharesOne && F::isFixed)
        return combineRepeated<F::length>(operation, count, d, sources...);
    return false;
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// What the checks say before any work: a failure, or vonkOk with `count` still to be tested.
template <class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus check(Length length, Count, const D &d, const Sources &...sources) {
    if (anyNull(sources..., d)) return vonkErrNullPtr;
    if (length.isZero()) return vonkErrSize;
    if constexpr (Count::isArray)
        if (anyTableEntryNull(length, sources..., d)) return vonkErrNullPtr;
    return vonkOk;
}

// The work after the checks, by the path that suits the form.
template <class Operation, class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineObjects(const Operation &operation, Length length, Count count, const D &d,
                                        const Sources &...sources) {
    using F = Form<Length, D, Sources...>;
    if (count == 0) return vonkOk; // nothing is read, not even a single vector
    if (combineFast(operation, length, count, d, sources...)) return vonkOk;
    if constexpr (worksInLanes<F>) return combineInLanes(operation, length, count, d, sources...);
    else if constexpr (holdsSingleVector<F>) return combineHeld(operation, length, count, d, sources...);
    else return combineByElement(operation, length, count, d, sources...);
}

} // namespace vonkk3::vector
