// Sums, differences and multiples, of vectors and of matrices. Include vector.hpp or matrix.hpp, which say what there
// is of which.
#ifndef VONKK3_ELEMENTWISE_HPP
#define VONKK3_ELEMENTWISE_HPP

#include "call.hpp"

namespace vonk {
namespace detail {

// A transposed source is read elsewhere than it is written.
template <class V>
inline constexpr Overlap in_place_unless_transposed = V::is_transposed ? Overlap::none : Overlap::in_place;

// Two sources with a layout: dst = a op b, element by element.
template <bool Exact, template <exports::Kind...> class Table, class A, class B, class D>
VONKK3_INLINE Status combine_sources(const A &a, const B &b, const D &d) {
    using Group = Table<kind_of<A>(), kind_of<B>()>;
    if constexpr (makes_sense<Group, D, A, B>()) {
        VONKK3_SIZES_FIT((like_shape<D, A, B>)&&(like_shape<A, B>));
        if (!shapes_agree(d, a, b) || !counts_agree(d, a, b)) return vonkErrSize;
        check_strides(a, false), check_strides(b, false), check_strides(d, true);
        check_overlap<in_place_unless_transposed<A>>(d, a), check_overlap<in_place_unless_transposed<B>>(d, b);
        using Call = Choice<Exact, Group, D, A, B>;
        return invoke<Call>(a, b, d, open_size<Call>(Shaped<D::is_matrix>{d.rows(), d.columns()}),
                            objects<Call>(d.count()));
    } else return vonkErrSize;
}

// One source and a number.
template <bool Exact, class Group, class A, class X, class D>
VONKK3_INLINE Status combine_constant(const A &a, const X &x, const D &d) {
    if constexpr (makes_sense<Group, D, A>()) {
        VONKK3_SIZES_FIT((like_shape<D, A>));
        if (!shapes_agree(d, a) || !counts_agree(d, a)) return vonkErrSize;
        check_strides(a, false), check_strides(d, true);
        check_overlap<in_place_unless_transposed<A>>(d, a);
        using Call = Choice<Exact, Group, D, A>;
        return invoke<Call>(a, number<typename Call::T>(x), d,
                            open_size<Call>(Shaped<D::is_matrix>{d.rows(), d.columns()}), objects<Call>(d.count()));
    } else return vonkErrSize;
}

template <bool Exact, template <exports::Kind...> class Table, class A, class B, class D>
VONKK3_INLINE Status elementwise(const A &a, const B &b, const D &d) {
    if constexpr (is_constant<B>) return combine_constant<Exact, Table<kind_of<A>(), exports::c>>(a, b, d);
    else if constexpr (is_constant<A>) return combine_constant<Exact, Table<exports::c, kind_of<B>()>>(b, a, d);
    else return combine_sources<Exact, Table>(a, b, d);
}

} // namespace detail

namespace exports {
template <Kind...> struct Add;
template <Kind...> struct Sub;
template <Kind...> struct Mul;
} // namespace exports

/// dst = a + b, element by element: of vectors, of a vector and a number, of matrices, either of which may be
/// vonk::transposed. Of an array and one object the one serves all.
///
/// Shapes: all as dst, transposed sources as they enter. Errors: vonkErrSize, vonkErrNullPtr. Overlap: dst may be a
/// source that is not transposed (in place), with the same strides.
template <class A, class B, class D> VONKK3_INLINE Status add(A &&a, B &&b, D &&dst) {
    return detail::elementwise<false, exports::Add>(detail::operand(a), detail::operand(b), detail::operand(dst));
}

/// dst = a - b, as vonk::add; also of a number and a vector.
template <class A, class B, class D> VONKK3_INLINE Status subtract(A &&a, B &&b, D &&dst) {
    return detail::elementwise<false, exports::Sub>(detail::operand(a), detail::operand(b), detail::operand(dst));
}

/// dst = a * factor, of vectors and of matrices, which may be vonk::transposed. Shapes, errors and overlap as
/// vonk::add.
template <class A, class X, class D> VONKK3_INLINE Status scale(A &&a, X factor, D &&dst) {
    static_assert(std::is_arithmetic_v<X>, "vonkk3: the factor is a number; vonk::multiply multiplies matrices");
    return detail::elementwise<false, exports::Mul>(detail::operand(a), detail::operand(factor), detail::operand(dst));
}

/// The same operations, each by the export that its operands name, whatever exceptions that has: see
/// docs/reference/exceptions.md.
namespace exact {

template <class A, class B, class D> VONKK3_INLINE Status add(A &&a, B &&b, D &&dst) {
    return detail::elementwise<true, exports::Add>(detail::operand(a), detail::operand(b), detail::operand(dst));
}
template <class A, class B, class D> VONKK3_INLINE Status subtract(A &&a, B &&b, D &&dst) {
    return detail::elementwise<true, exports::Sub>(detail::operand(a), detail::operand(b), detail::operand(dst));
}
template <class A, class X, class D> VONKK3_INLINE Status scale(A &&a, X factor, D &&dst) {
    return detail::elementwise<true, exports::Mul>(detail::operand(a), detail::operand(factor), detail::operand(dst));
}

} // namespace exact
} // namespace vonk

#endif
