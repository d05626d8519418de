// Vectors: add, subtract and scale (see elementwise.hpp), saxpy, combine, dot, norm, cross.
#ifndef VONKK3_VECTOR_HPP
#define VONKK3_VECTOR_HPP

#include "elementwise.hpp"
#include "exports/vector.hpp"

namespace vonk {
namespace detail {

// dst = x * alpha + y, or with a second number dst = x * alpha + y * beta; Words makes the call of both.
template <bool Exact, template <exports::Kind...> class Table, class A, class B, class D, class... Numbers>
VONKK3_INLINE Status combine_vectors(const A &a, const B &b, const D &d, Numbers... numbers) {
    using Group = Table<kind_of<A>(), kind_of<B>()>;
    if constexpr (makes_sense<Group, D, A, B>()) {
        VONKK3_SIZES_FIT((like_shape<D, A, B>)&&(like_shape<A, B>));
        if (!shapes_agree(d, a, b) || !counts_agree(d, a, b)) return vonkErrSize;
        check_strides(a, false), check_strides(b, false), check_strides(d, true);
        check_overlap<Overlap::in_place>(d, a), check_overlap<Overlap::in_place>(d, b);
        using Call = Choice<Exact, Group, D, A, B>;
        using T = typename Call::T;
        const T values[] = {static_cast<T>(numbers)...};
        const auto length = open_size<Call>(Number{d.rows()});
        if constexpr (sizeof...(Numbers) == 1)
            return invoke<Call>(a, values[0], b, d, length, objects<Call>(d.count()));
        else return invoke<Call>(a, values[0], b, values[1], d, length, objects<Call>(d.count()));
    } else return vonkErrSize;
}

template <bool Exact, class A, class B, class D> VONKK3_INLINE Status dot(const A &a, const B &b, D &&dst) {
    using Group = exports::DotProduct<kind_of<A>(), kind_of<B>()>;
    if constexpr (sources_make_sense<Group, A, B>()) {
        VONKK3_SIZES_FIT((like_shape<A, B>));
        using Call = Choice<Exact, Group, A, B>;
        const Size count = A::is_array ? a.count() : b.count();
        const auto result = block<typename Call::T>(std::forward<D>(dst), count);
        if (!shapes_agree(a, b) || !counts_agree(a, b) || !result.fits) return vonkErrSize;
        check_strides(a, false), check_strides(b, false);
        check_block(result, count, a), check_block(result, count, b);
        return invoke<Call>(a, b, result.data, open_size<Call>(Number{a.rows()}), objects<Call>(count));
    } else return vonkErrSize;
}

template <bool Exact, class A, class D> VONKK3_INLINE Status norm(const A &a, D &&dst) {
    using Group = exports::L2Norm<kind_of<A>()>;
    if constexpr (sources_make_sense<Group, A>()) {
        using Call = Choice<Exact, Group, A>;
        const auto result = block<typename Call::T>(std::forward<D>(dst), a.count());
        if (!result.fits) return vonkErrSize;
        check_strides(a, false), check_block(result, a.count(), a);
        return invoke<Call>(a, result.data, open_size<Call>(Number{a.rows()}), objects<Call>(a.count()));
    } else return vonkErrSize;
}

template <bool Exact, class A, class B, class D> VONKK3_INLINE Status cross(const A &a, const B &b, const D &d) {
    using Group = exports::CrossProduct<kind_of<A>(), kind_of<B>()>;
    if constexpr (makes_sense<Group, D, A, B>()) {
        static_assert(A::fixed_rows == 3 && B::fixed_rows == 3 && D::fixed_rows == 3,
                      "vonkk3: a cross product is of vectors of the fixed length 3");
        if (!counts_agree(d, a, b)) return vonkErrSize;
        check_strides(a, false), check_strides(b, false), check_strides(d, true);
        check_overlap<Overlap::in_place>(d, a), check_overlap<Overlap::in_place>(d, b);
        using Call = Choice<Exact, Group, D, A, B>;
        if constexpr (Call::order == 3) return invoke<Call>(a, b, d, objects<Call>(d.count()));
    }
    return vonkErrSize;
}

} // namespace detail

/// dst = x * alpha + y; the product is rounded before the sum. Errors: vonkErrSize, vonkErrNullPtr. Overlap: dst may be
/// x or y (in place).
template <class A, class X, class B, class D> VONKK3_INLINE Status saxpy(A &&x, X alpha, B &&y, D &&dst) {
    static_assert(std::is_arithmetic_v<X>, "vonkk3: the factor is a number");
    return detail::combine_vectors<false, exports::Saxpy>(detail::operand(x), detail::operand(y), detail::operand(dst),
                                                          alpha);
}

/// dst = x * alpha + y * beta. Errors and overlap as vonk::saxpy.
template <class A, class X, class B, class Y, class D>
VONKK3_INLINE Status combine(A &&x, X alpha, B &&y, Y beta, D &&dst) {
    static_assert(std::is_arithmetic_v<X> && std::is_arithmetic_v<Y>, "vonkk3: the factors are numbers");
    return detail::combine_vectors<false, exports::LComb>(detail::operand(x), detail::operand(y), detail::operand(dst),
                                                          alpha, beta);
}

/// dst[n] = sum of the products of corresponding elements; one number for two single vectors, else one per object,
/// packed: a number, a pointer, or a container that is long enough (else vonkErrSize). dst overlaps nothing.
template <class A, class B, class D> VONKK3_INLINE Status dot(A &&a, B &&b, D &&dst) {
    return detail::dot<false>(detail::operand(a), detail::operand(b), std::forward<D>(dst));
}

/// dst[n] = Euclidean length; dst as of vonk::dot. Correctly rounded root, 0 for a zero vector: of floats of fixed
/// length exact::norm is an estimate, faster and NaN for a zero vector.
template <class A, class D> VONKK3_INLINE Status norm(A &&a, D &&dst) {
    return detail::norm<false>(detail::operand(a), std::forward<D>(dst));
}

/// dst = a x b, of vectors of the fixed length 3. Overlap: dst may be a or b (in place).
template <class A, class B, class D> VONKK3_INLINE Status cross(A &&a, B &&b, D &&dst) {
    return detail::cross<false>(detail::operand(a), detail::operand(b), detail::operand(dst));
}

namespace exact {

using vonk::combine;
using vonk::cross;
using vonk::dot;
using vonk::saxpy;
template <class A, class D> VONKK3_INLINE Status norm(A &&a, D &&dst) {
    return detail::norm<true>(detail::operand(a), std::forward<D>(dst));
}

} // namespace exact
} // namespace vonk

#endif
