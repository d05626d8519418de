// Symmetric positive definite matrices: cholesky and cholesky_solve.
#ifndef VONKK3_CHOLESKY_HPP
#define VONKK3_CHOLESKY_HPP

#include "call.hpp"
#include "exports/cholesky.hpp"

namespace vonk {
namespace detail {

template <class A, class D> VONKK3_INLINE Status cholesky(const A &a, const D &d) {
    using Group = exports::CholeskyDecomp<kind_of<A>()>;
    if constexpr (makes_sense<Group, D, A>()) {
        VONKK3_SIZES_FIT(may_equal(A::fixed_rows, A::fixed_columns) && (like_shape<D, A>));
        using Call = Choice<true, Group, D, A>;
        const Size order = a.rows();
        if (order != a.columns() || !shapes_agree(d, a) || !counts_agree(d, a)) return vonkErrSize;
        check_strides(a, false), check_strides(d, true), check_overlap<Overlap::in_place>(d, a);
        if constexpr (debug) {
            constexpr int e = sizeof(typename Call::T);
            require(a.strides().element % e == 0 && d.strides().element % e == 0,
                    "Cholesky decomposition drops what an element stride exceeds a multiple of the element");
        }
        if constexpr (D::is_array)
            if (d.count() == 0) return {};
        return invoke<Call>(a, d, open_size<Call>(Number{order}), objects<Call>(d.count()));
    } else return vonkErrSize;
}

template <class F, class B, class D> VONKK3_INLINE Status cholesky_solve(const F &f, const B &b, const D &d) {
    using Group = exports::CholeskyBackSubst<kind_of<F>(), kind_of<B>()>;
    if constexpr (makes_sense<Group, D, F, B>()) {
        VONKK3_SIZES_FIT(may_equal(F::fixed_rows, F::fixed_columns) && may_equal(F::fixed_rows, B::fixed_rows) &&
                         may_equal(F::fixed_rows, D::fixed_rows));
        using Call = Choice<true, Group, D, F, B>;
        const Size order = f.rows();
        if (f.columns() != order || b.rows() != order || d.rows() != order || !counts_agree(d, f, b))
            return vonkErrSize;
        check_strides(f, false), check_strides(b, false), check_strides(d, true);
        check_overlap<Overlap::none>(d, f), check_overlap<Overlap::in_place>(d, b);
        if constexpr (D::is_array)
            if (d.count() == 0) return {};
        return invoke<Call>(f, b, d, open_size<Call>(Number{order}), objects<Call>(d.count()));
    } else return vonkErrSize;
}

} // namespace detail

/// The lower factor L of a = L L', with the RECIPROCALS of its diagonal on the diagonal, as vonk::cholesky_solve wants
/// it. Only lower triangles are read and written. Errors: vonkErrNotPosDef, with objects before the failing one
/// complete and later ones untouched; vonkErrSize, vonkErrNullPtr. No array is too short: count 0 is vonkOk. Overlap:
/// dst may be a (in place), with the same strides.
template <class A, class D> VONKK3_INLINE Status cholesky(A &&a, D &&dst) {
    return detail::cholesky(detail::operand(a), detail::operand(dst));
}
/// The same object by object, to learn which fails.
template <class A, class D> VONKK3_INLINE Status cholesky(A &&a, D &&dst, Failed &failed) {
    const auto from = detail::operand(a);
    const auto to = detail::operand(dst);
    if (!detail::counts_agree(to, from)) return vonkErrSize;
    return detail::each(to.count(), failed.object,
                        [&](Size n) { return detail::cholesky(detail::nth(from, n), detail::nth(to, n)); });
}

/// x = the solution of a x = b, by what vonk::cholesky left in `factors`: one system, one matrix with many right-hand
/// sides, or one matrix for each. Errors: vonkErrSize, vonkErrNullPtr. Overlap: x may be b (in place).
template <class F, class B, class D> VONKK3_INLINE Status cholesky_solve(F &&factors, B &&b, D &&x) {
    return detail::cholesky_solve(detail::operand(factors), detail::operand(b), detail::operand(x));
}

namespace exact {

using vonk::cholesky;
using vonk::cholesky_solve;

} // namespace exact
} // namespace vonk

#endif
