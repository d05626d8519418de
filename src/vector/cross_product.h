// Cross product of vectors of three elements, single ones or arrays.
#pragma once

#include "frame/positions.h"
#include "frame/vector_blocks.h"

namespace vonkk3::vector {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// How a component u v - w x is written, which shows in the sign of a zero, and in rounding modes other than to nearest.
// The plain form loads both vectors before it stores; the others store each component before they load for the next.
enum class CrossForm {
    difference,    // u v - w x
    zeroLessFirst, // u v + (0 - w) x
    negatedFirst,  // u v + (-w) x
};

// A single vector against an array takes the longer forms, but for Real32 where elements are adjacent.
template <class A, class B> constexpr CrossForm crossForm() {
    constexpr bool sharesOne = A::isArray != B::isArray;
    if (!sharesOne) return CrossForm::difference;
    if (std::is_same_v<typename A::Element, Real64>) return CrossForm::negatedFirst;
    const bool isAdjacent = A::layout == Layout::Standard || A::layout == Layout::L;
    return isAdjacent ? CrossForm::difference : CrossForm::zeroLessFirst;
}

// vonkCrossProduct_vava_32f_3x1 alone takes objects four at a time, one in each lane.
template <class A, class B>
inline constexpr bool crossesFourAtATime =
    std::is_same_v<typename A::Element, Real32> &&A::isArray &&B::isArray &&A::layout == Layout::Standard;

// ---- One object -----------------------------------------------------------------------------------------------------

template <class T, class A, class B, class D> VONKK3_INLINE void crossAfterLoading(const A &a, const B &b, const D &d) {
    using W = Working<T>;
    const W a0 = a.load(0), a1 = a.load(1), a2 = a.load(2);
    const W b0 = b.load(0), b1 = b.load(1), b2 = b.load(2);
    d.store(0, round<T>(a1 * b2 - a2 * b1));
    d.store(1, round<T>(a2 * b0 - a0 * b2));
    d.store(2, round<T>(a0 * b1 - a1 * b0));
}

template <class T, CrossForm form, class A, class B, class D>
VONKK3_INLINE void crossByComponent(const A &a, const B &b, const D &d) {
    using W = Working<T>;
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t j = (i + 1) % 3, k = (i + 2) % 3;
        const W u = a.load(j), v = b.load(k), w = a.load(k), x = b.load(j);
        const W negated = form == CrossForm::zeroLessFirst ? W(0) - w : -w;
        d.store(i, round<T>(u * v + negated * x));
    }
}

// ---- Blocks of objects ----------------------------------------------------------------------------------------------

template <std::size_t width> VONKK3_INLINE Vectors3<width> cross(const Vectors3<width> &a, const Vectors3<width> &b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// How many objects were done.
template <class A, class B, class D>
inline std::size_t crossInBlocks(const A &a, const B &b, const D &d, std::size_t count) {
    if (count < four) return 0;
    const bool areDisjoint =
        disjointFromAll(extentOfAll(d, 1, 3, count), extentOfAll(a, 1, 3, count), extentOfAll(b, 1, 3, count));
    const auto work = [&](const auto &p, const auto &q, const auto &r) VONKK3_INLINED {
        return forEachBlock(count, areDisjoint, [&](auto width, std::size_t n) VONKK3_INLINED {
            cross(Vectors3<width>::load(p, n), Vectors3<width>::load(q, n)).store(r, n);
            return true;
        });
    };
    return withKnownSpacing<3>(work, a, b, d);
}

// ---- Arrays in the pointer layouts ----------------------------------------------------------------------------------

// In place is for the plain form alone: the others store a component before they load for the next.
template <CrossForm form> struct CrossOfPacks {
    static constexpr bool mayBeInPlace = form == CrossForm::difference;

    template <class A, class B, class D> VONKK3_INLINE void operator()(const D &d, const A &a, const B &b) const {
        using Number = typename D::Number;
        const Number u[] = {a.load(0, 0), a.load(0, 1), a.load(0, 2)};
        const Number v[] = {b.load(0, 0), b.load(0, 1), b.load(0, 2)};
        forIndices(0, 3, fixed<3>, [&](std::size_t i) VONKK3_INLINED {
            const std::size_t j = (i + 1) % 3, k = (i + 2) % 3;
            if constexpr (form == CrossForm::difference) d.store(0, i, u[j] * v[k] - u[k] * v[j]);
            else d.store(0, i, u[j] * v[k] + (Number(0.0F) - u[k]) * v[j]);
        });
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

// d(n) = a(n) x b(n); a single operand serves all objects.
template <class A, class B, class D, class Count>
VONKK3_INLINE VonkStatus crossProduct(const A &a, const B &b, const D &d, Count count) {
    using T = typename D::Element;
    constexpr CrossForm form = crossForm<A, B>();
    if (anyNull(a, b, d)) return vonkErrNullPtr;
    if (anyTableEntryNull(3, a, b, d)) return vonkErrNullPtr;

    std::size_t done = 0;
    if constexpr (crossesFourAtATime<A, B>) done = crossInBlocks(a, b, d, count);
    const auto work = [&](std::size_t n) VONKK3_INLINED {
        if constexpr (form == CrossForm::difference) crossAfterLoading<T>(a.view(n), b.view(n), d.view(n));
        else crossByComponent<T, form>(a.view(n), b.view(n), d.view(n));
        return VonkStatus(vonkOk);
    };
    if constexpr (std::is_same_v<T, Real32> && D::isArray && D::isTable)
        done = workPositions<1, 3, CrossOfPacks<form>::mayBeInPlace>(CrossOfPacks<form>(), count, d.words(3),
                                                                     a.words(3), b.words(3));
    return forEachObjectFrom(done, count, work, a, b, d);
}

} // namespace vonkk3::vector
