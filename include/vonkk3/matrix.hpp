// Matrices element by element: add, subtract and scale (see elementwise.hpp), transpose, trace, frobenius.
#ifndef VONKK3_MATRIX_HPP
#define VONKK3_MATRIX_HPP

#include "elementwise.hpp"
#include "exports/matrix.hpp"

namespace vonk {
namespace detail {

template <bool Exact, class A, class D> VONKK3_INLINE Status transpose(const A &a, const D &d) {
    using Group = exports::Transpose<kind_of<A>()>;
    if constexpr (makes_sense<Group, D, A>()) {
        VONKK3_SIZES_FIT(may_equal(A::fixed_rows, D::fixed_columns) && may_equal(A::fixed_columns, D::fixed_rows));
        if (a.rows() != d.columns() || a.columns() != d.rows() || !counts_agree(d, a)) return vonkErrSize;
        using Call = Choice<Exact, Group, D, A>;
        if constexpr (!Exact && is_table(Call::layout)) {
            static_assert(may_equal(A::fixed_rows, A::fixed_columns),
                          "vonkk3: behind one pointer per element position only square matrices are transposed");
            if (a.rows() != a.columns()) return vonkErrSize;
        }
        check_strides(a, false), check_strides(d, true);
        check_overlap<Overlap::none>(d, a);
        return invoke<Call>(a, open_size<Call>(Shaped<true>{a.rows(), a.columns()}), d, objects<Call>(d.count()));
    } else return vonkErrSize;
}

template <bool Exact, class A, class D> VONKK3_INLINE Status trace(const A &a, D &&dst) {
    using Group = exports::Trace<kind_of<A>()>;
    if constexpr (sources_make_sense<Group, A>()) {
        VONKK3_SIZES_FIT(may_equal(A::fixed_rows, A::fixed_columns));
        using Call = Choice<Exact, Group, A>;
        const auto result = block<typename Call::T>(std::forward<D>(dst), a.count());
        if (a.rows() != a.columns() || !result.fits) return vonkErrSize;
        check_strides(a, false), check_block(result, a.count(), a);
        return invoke<Call>(a, open_size<Call>(Number{a.rows()}), result.data, objects<Call>(a.count()));
    } else return vonkErrSize;
}

template <bool Exact, class A, class D> VONKK3_INLINE Status frobenius(const A &a, D &&dst) {
    using Group = exports::FrobNorm<kind_of<A>()>;
    if constexpr (sources_make_sense<Group, A>()) {
        using Call = Choice<Exact, Group, A>;
        const auto result = block<typename Call::T>(std::forward<D>(dst), a.count());
        if (!result.fits) return vonkErrSize;
        check_strides(a, false), check_block(result, a.count(), a);
        return invoke<Call>(a, open_size<Call>(Shaped<true>{a.rows(), a.columns()}), result.data,
                            objects<Call>(a.count()));
    } else return vonkErrSize;
}

} // namespace detail

/// dst = the transpose of a, moved in memory; vonk::transposed(a) as an operand moves nothing. Errors: vonkErrSize,
/// vonkErrNullPtr. Behind one pointer per element position a must be square. dst must not overlap a.
template <class A, class D> VONKK3_INLINE Status transpose(A &&a, D &&dst) {
    return detail::transpose<false>(detail::operand(a), detail::operand(dst));
}

/// dst[n] = sum of the diagonal of square matrices; dst is a number, or a pointer to or container of one per object.
template <class A, class D> VONKK3_INLINE Status trace(A &&a, D &&dst) {
    return detail::trace<false>(detail::operand(a), std::forward<D>(dst));
}

/// dst[n] = root of the sum of the squares of all elements; dst as of vonk::trace. Correctly rounded root, 0 for a
/// matrix of zeros: of floats of fixed size exact::frobenius is an estimate, faster and NaN for zeros.
template <class A, class D> VONKK3_INLINE Status frobenius(A &&a, D &&dst) {
    return detail::frobenius<false>(detail::operand(a), std::forward<D>(dst));
}

namespace exact {

using vonk::trace;
template <class A, class D> VONKK3_INLINE Status transpose(A &&a, D &&dst) {
    return detail::transpose<true>(detail::operand(a), detail::operand(dst));
}
template <class A, class D> VONKK3_INLINE Status frobenius(A &&a, D &&dst) {
    return detail::frobenius<true>(detail::operand(a), std::forward<D>(dst));
}

} // namespace exact
} // namespace vonk

#endif
