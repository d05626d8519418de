// QR decomposition and least squares: qr, qr_solve, least_squares.
#ifndef VONKK3_QR_HPP
#define VONKK3_QR_HPP

#include "call.hpp"
#include "exports/qr.hpp"

namespace vonk {
namespace detail {

inline constexpr Size largest_local_work = 1024; // elements on the stack

struct NoWork {};

// The call with a workspace of `rows` elements: the caller's, or of the right size on the stack.
template <class T, Size Rows, class W, class F> VONKK3_INLINE Status with_work(W &&work, Size rows, F call) {
    if constexpr (std::is_same_v<std::remove_const_t<std::remove_reference_t<W>>, NoWork>) {
        static_assert(Rows != dynamic && Rows <= largest_local_work,
                      "vonkk3: this size wants a workspace as a last argument: as many elements as rows");
        if constexpr (Rows != dynamic && Rows <= largest_local_work) {
            T local[Rows];
            return call(static_cast<T *>(local));
        } else return vonkErrSize;
    } else {
        const auto memory = block<T>(std::forward<W>(work), rows);
        return memory.fits ? call(memory.data) : Status(vonkErrSize);
    }
}

template <class A, class D, class W> VONKK3_INLINE Status qr(const A &a, const D &d, W &&work) {
    using Group = exports::QRDecomp<kind_of<A>()>;
    if constexpr (makes_sense<Group, D, A>()) {
        VONKK3_SIZES_FIT((like_shape<D, A>)&&(!A::is_fixed || A::fixed_rows >= A::fixed_columns));
        using Call = Choice<true, Group, D, A>;
        if (!shapes_agree(d, a) || !counts_agree(d, a)) return vonkErrSize;
        check_strides(a, false), check_strides(d, true), check_overlap<Overlap::in_place>(d, a);
        return with_work<typename Call::T, A::fixed_rows>(std::forward<W>(work), a.rows(), [&](auto *memory) {
            return invoke<Call>(a, memory, d, open_size<Call>(Shaped<true>{a.rows(), a.columns()}),
                                objects<Call>(d.count()));
        });
    } else return vonkErrSize;
}

template <bool Exact, class F, class B, class D, class W>
VONKK3_INLINE Status qr_solve(const F &f, const B &b, const D &d, W &&work) {
    using Group = exports::QRBackSubst<kind_of<F>(), kind_of<B>()>;
    if constexpr (makes_sense<Group, D, F, B>()) {
        VONKK3_SIZES_FIT(may_equal(F::fixed_rows, B::fixed_rows) && may_equal(F::fixed_columns, D::fixed_rows));
        using Call = Choice<Exact, Group, D, F, B>;
        if (b.rows() != f.rows() || d.rows() != f.columns() || !counts_agree(d, f, b)) return vonkErrSize;
        check_strides(f, false), check_strides(b, false), check_strides(d, true);
        check_overlap<Overlap::none>(d, f), check_overlap<Overlap::in_place>(d, b);
        return with_work<typename Call::T, F::fixed_rows>(std::forward<W>(work), f.rows(), [&](auto *memory) {
            const auto sizes = open_size<Call>(Shaped<true>{f.rows(), f.columns()});
            if constexpr (D::is_array && !F::is_array)
                return invoke<Call>(Shared<F>{f}, memory, b, d, sizes, objects<Call>(d.count()));
            else return invoke<Call>(f, memory, b, d, sizes, objects<Call>(d.count()));
        });
    } else return vonkErrSize;
}

template <class A, class B, class D>
VONKK3_INLINE Status least_squares(const A &a, const B &b, const D &d, Size &failed) {
    static_assert(A::is_matrix && !B::is_matrix && !D::is_matrix, "vonkk3: a matrix, a right-hand side and a solution");
    static_assert(D::is_array == (A::is_array || B::is_array),
                  "vonkk3: the destination is an array if, and only if, a source is one");
    static_assert(A::is_fixed && A::fixed_rows * A::fixed_columns <= largest_local_work,
                  "vonkk3: this size wants memory for the factors: call vonk::qr and vonk::qr_solve");
    static_assert(!A::is_transposed, "vonkk3: vonk::least_squares takes no transposed matrix");
    failed = 0;
    if constexpr (A::is_fixed && A::fixed_rows * A::fixed_columns <= largest_local_work && !A::is_transposed) {
        VONKK3_SIZES_FIT(may_equal(A::fixed_rows, B::fixed_rows) && may_equal(A::fixed_columns, D::fixed_rows));
        if (!counts_agree(d, a, b)) return vonkErrSize;
        check_overlap<Overlap::none>(d, a), check_overlap<Overlap::none>(d, b);
        Plain<A> factors[A::fixed_rows * A::fixed_columns];
        const Matrix<Plain<A>, A::fixed_rows, A::fixed_columns> f(factors);
        if constexpr (!A::is_array) {
            if (const Status status = qr(a, f, NoWork{}); !status.ok()) return status;
            failed = D::is_array ? d.count() : 1;
            return qr_solve<false>(f, b, d, NoWork{});
        } else {
            if (a.data() == nullptr || b.data() == nullptr || d.data() == nullptr) return vonkErrNullPtr;
            return each(d.count(), failed, [&](Size n) {
                if (const Status status = qr(a[n], f, NoWork{}); !status.ok()) return status;
                return qr_solve<false>(f, nth(b, n), d[n], NoWork{});
            });
        }
    } else return vonkErrSize;
}

} // namespace detail

/// Householder factors of a, which has at least as many rows as columns: R on and above the diagonal, reflectors below
/// it, as vonk::qr_solve wants them. A number of rows known at run time wants `work`: as many elements, overlapping
/// nothing. Errors: vonkErrSingular if the SQUARED norm of what a column adds is below 2^-23 = 1.19e-7, an absolute
/// bound, so scale small data; objects before the failing one are complete, later ones untouched. Overlap: dst may be a
/// (in place), with the same strides.
template <class A, class D> VONKK3_INLINE Status qr(A &&a, D &&dst) {
    return detail::qr(detail::operand(a), detail::operand(dst), detail::NoWork{});
}
template <class A, class D, class W> VONKK3_INLINE Status qr(A &&a, D &&dst, W &&work) {
    if constexpr (std::is_same_v<W, Failed &>) { // object by object
        const auto from = detail::operand(a);
        const auto to = detail::operand(dst);
        if (!detail::counts_agree(to, from)) return vonkErrSize;
        return detail::each(to.count(), work.object, [&](Size n) {
            return detail::qr(detail::nth(from, n), detail::nth(to, n), detail::NoWork{});
        });
    } else return detail::qr(detail::operand(a), detail::operand(dst), std::forward<W>(work));
}

/// x = what minimises |a x - b|, by what vonk::qr left in `factors`: one system, one matrix with many right-hand sides,
/// or one matrix for each. b has as many elements as a has rows, x as many as columns. `work` as of vonk::qr; its
/// elements past those of x hold the residual of the last object in another basis. Errors: vonkErrSize, vonkErrNullPtr.
/// Overlap: x may begin where b does (in place).
template <class F, class B, class D> VONKK3_INLINE Status qr_solve(F &&factors, B &&b, D &&x) {
    return detail::qr_solve<false>(detail::operand(factors), detail::operand(b), detail::operand(x), detail::NoWork{});
}
template <class F, class B, class D, class W> VONKK3_INLINE Status qr_solve(F &&factors, B &&b, D &&x, W &&work) {
    return detail::qr_solve<false>(detail::operand(factors), detail::operand(b), detail::operand(x),
                                   std::forward<W>(work));
}

/// x = what minimises |a x - b|, by QR decomposition with the factors on the stack: of fixed sizes up to 1024 elements.
/// One system, one matrix with many right-hand sides, or one matrix for each; object by object. Errors as of vonk::qr.
/// x must not overlap a source.
template <class A, class B, class D> VONKK3_INLINE Status least_squares(A &&a, B &&b, D &&x) {
    Size failed = 0;
    return detail::least_squares(detail::operand(a), detail::operand(b), detail::operand(x), failed);
}
template <class A, class B, class D> VONKK3_INLINE Status least_squares(A &&a, B &&b, D &&x, Failed &failed) {
    return detail::least_squares(detail::operand(a), detail::operand(b), detail::operand(x), failed.object);
}

namespace exact {

using vonk::qr;
template <class F, class B, class D> VONKK3_INLINE Status qr_solve(F &&factors, B &&b, D &&x) {
    return detail::qr_solve<true>(detail::operand(factors), detail::operand(b), detail::operand(x), detail::NoWork{});
}
template <class F, class B, class D, class W> VONKK3_INLINE Status qr_solve(F &&factors, B &&b, D &&x, W &&work) {
    return detail::qr_solve<true>(detail::operand(factors), detail::operand(b), detail::operand(x),
                                  std::forward<W>(work));
}

} // namespace exact
} // namespace vonk

#endif
