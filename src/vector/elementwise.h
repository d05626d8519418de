// The frame of all operations of vectors element by element: d(n, j) = operation(source(n, j)...), with one source or
// two, each a single vector or an array. One store per element, objects and elements in ascending order.
#pragma once

#include "frame/contiguous.h"
#include "frame/elementwise.h"

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

// Real32 of fixed size loads a vector whole before any of it is stored, where elements are contiguous; and a single
// vector for all objects before all of them: a destination that overlaps it changes nothing for later objects. All
// other forms go element by element, and read a single vector again for each object. So does 3x1 with a single vector,
// which is held, but loads and stores the others element by element.
template <class F> inline constexpr std::size_t loadedAtOnce = F::sharesOne &&F::length == 3 ? 1 : F::length;

// ---- All objects ----------------------------------------------------------------------------------------------------

// What the checks say before any work: a failure, or vonkOk with `count` still to be tested, and what testsTablesLater.
template <class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus check(Length length, Count, const D &d, const Sources &...sources) {
    if (anyNull(sources..., d)) return vonkErrNullPtr;
    if (length.isZero()) return vonkErrSize;
    if constexpr (Count::isArray && !testsTablesLater<typename D::Element, Length>)
        if (anyTableEntryNull(length, sources..., d)) return vonkErrNullPtr;
    return vonkOk;
}

// The work after the checks. Of fixed sizes of contiguous elements, so many of a vector are loaded before they are
// stored, and a single vector is held or not.
template <std::size_t step, bool holdsSingle, class Operation, class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineObjects(const Operation &operation, Length length, Count count, const D &d,
                                        const Sources &...sources) {
    using F = Form<Length, D, Sources...>;
    if (!D::isTable && count == 0) return vonkOk; // nothing is read, not even a single vector
    if constexpr (F::isReal32 && F::isStandard && (F::sharesOne ? F::isFixed : F::isArray || !F::isFixed))
        if ((!F::isFixed || count >= worthRepeating) && workAsOneRange<1>(operation, length, count, d, sources...))
            return vonkOk;
    if constexpr (F::isReal32 && F::isFixed && F::isAdjacent)
        return workContiguousObjects<1, F::length, step, holdsSingle>(operation, count, d, sources...);
    else if constexpr (F::isArray)
        return workArrays<typename D::Element>(operation, fixed<1>, length, count, d.words(length),
                                               sources.words(length)...);
    else return workElements<true>(d.view(0), fixed<1>, length, operation, sources.view(0)...);
}

template <class Operation, class Length, class Count, class D, class... Sources>
VONKK3_INLINE VonkStatus combineObjects(const Operation &operation, Length length, Count count, const D &d,
                                        const Sources &...sources) {
    using F = Form<Length, D, Sources...>;
    return combineObjects<loadedAtOnce<F>, F::sharesOne>(operation, length, count, d, sources...);
}

} // namespace vonkk3::vector
