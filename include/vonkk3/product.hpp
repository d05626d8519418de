// Products: multiply (matrix by matrix, matrix by vector) and gaxpy.
#ifndef VONKK3_PRODUCT_HPP
#define VONKK3_PRODUCT_HPP

#include "call.hpp"
#include "exports/product.hpp"

namespace vonk {
namespace detail {

template <bool Exact, class Group, class A, class B, class D>
VONKK3_INLINE Status invoke_product(const A &a, const B &b, const D &d, Size a_columns, Size a_rows, Size b_columns,
                                    Size b_rows) {
    using Call = Choice<Exact, Group, D, A, B>;
    return invoke<Call>(a, open_size<Call>(Number{a_columns}), open_size<Call>(Number{a_rows}), b,
                        open_size<Call>(Number{b_columns}), open_size<Call>(Number{b_rows}), d,
                        objects<Call>(d.count()));
}

// Behind tables the exports of run-time size check entries by sizes of their own: which products stay within the tables
// and pass the checks. The product is m by k times k by n.
constexpr bool is_table_product(bool any_transposed, bool any_array, bool second_array, Size m, Size k, Size n) {
    if (any_transposed) return m == k && k == n;
    if (second_array) return m == n && k <= m;
    return !any_array || std::uint64_t(k) * k <= std::uint64_t(m) * n;
}

template <bool Exact, class A, class B, class D>
VONKK3_INLINE Status multiply_matrices(const A &a, const B &b, const D &d) {
    using Group = exports::Mul<kind_of<A>(), kind_of<B>()>;
    if constexpr (makes_sense<Group, D, A, B>()) {
        static_assert(D::is_matrix, "vonkk3: the product of two matrices is a matrix");
        VONKK3_SIZES_FIT(may_equal(fixed_columns<A>, fixed_rows<B>) && may_equal(fixed_rows<A>, fixed_rows<D>) &&
                         may_equal(fixed_columns<B>, fixed_columns<D>));
        const Size m = d.rows(), k = a.columns(), n = d.columns();
        if (a.rows() != m || b.rows() != k || b.columns() != n || !counts_agree(d, a, b)) return vonkErrSize;
        check_strides(a, false), check_strides(b, false), check_strides(d, true);
        check_overlap<Overlap::none>(d, a), check_overlap<Overlap::none>(d, b);
        using C = Common<D, A, B>;
        constexpr bool fixed = A::is_fixed && B::is_fixed && D::is_fixed;
        constexpr bool square = fixed && A::fixed_rows == A::fixed_columns && B::fixed_rows == B::fixed_columns;
        constexpr bool any_transposed = A::is_transposed || B::is_transposed;
        if constexpr (Exact) {
            // One export takes the second matrix as it is stored.
            constexpr bool as_stored =
                C::layout == Layout::standard && !C::arrays && !A::is_transposed && B::is_transposed;
            return invoke_product<true, Group>(a, b, d, k, m, as_stored ? k : n, as_stored ? n : k);
        } else if constexpr (C::order != 0 || square) return invoke_product<false, Group>(a, b, d, k, m, n, k);
        else if constexpr (C::tables) {
            static_assert(!fixed || is_table_product(any_transposed, C::arrays, B::is_array, fixed_rows<D>,
                                                     fixed_columns<A>, fixed_columns<D>),
                          "vonkk3: behind one pointer per element position there is no product of such sizes, "
                          "but of square matrices");
            if (!is_table_product(any_transposed, C::arrays, B::is_array, m, k, n)) return vonkErrSize;
            return invoke_product<false, Group>(a, b, d, k, m, n, k);
        } else if constexpr (A::is_transposed) return multiply_matrices<false>(exchanged(a), b, d);
        else if constexpr (B::is_transposed) return multiply_matrices<false>(a, exchanged(b), d);
        else if constexpr (B::is_array && !(fixed && fixed_rows<D> == fixed_columns<D>)) {
            // The size check of these groups is that of other ones. With the second matrix as a transposed one of
            // exchanged strides it compares the first matrix's columns, which nothing else uses then, with n.
            auto other = exchanged(b);
            using Other = exports::Mul<kind_of<A>(), kind_of<decltype(other)>()>;
            return invoke_product<false, Other>(a, other, d, n, m, n, k);
        } else return invoke_product<false, Group>(a, b, d, k, m, n, k);
    } else return vonkErrSize;
}

template <bool Exact, class A, class B, class D>
VONKK3_INLINE Status multiply_vector(const A &a, const B &b, const D &d) {
    using Group = exports::Mul<kind_of<A>(), kind_of<B>()>;
    if constexpr (makes_sense<Group, D, A, B>()) {
        static_assert(!D::is_matrix, "vonkk3: the product of a matrix and a vector is a vector");
        VONKK3_SIZES_FIT(may_equal(fixed_columns<A>, B::fixed_rows) && may_equal(fixed_rows<A>, D::fixed_rows));
        const Size m = a.rows(), k = a.columns();
        if (d.rows() != m || b.rows() != k || !counts_agree(d, a, b)) return vonkErrSize;
        using Call = Choice<Exact, Group, D, A, B>;
        constexpr bool square = A::is_fixed && A::fixed_rows == A::fixed_columns;
        if constexpr (!Exact && Call::order == 0 && A::is_transposed && !square) {
            // The size check of a transposed matrix is right for square ones.
            if constexpr (Call::C::tables) {
                static_assert(!A::is_fixed, "vonkk3: behind one pointer per element position a transposed matrix is "
                                            "multiplied only if it is square");
                if (m != k) return vonkErrSize;
            } else return multiply_vector<false>(exchanged(a), b, d);
        }
        check_strides(a, false), check_strides(b, false), check_strides(d, true);
        check_overlap<Overlap::none>(d, a), check_overlap<Overlap::none>(d, b);
        return invoke<Call>(a, open_size<Call>(Number{k}), open_size<Call>(Number{m}), b, open_size<Call>(Number{k}), d,
                            objects<Call>(d.count()));
    } else return vonkErrSize;
}

template <bool Exact, class A, class B, class D> VONKK3_INLINE Status multiply(const A &a, const B &b, const D &d) {
    constexpr bool numbers = is_constant<A> || is_constant<B> || is_constant<D>;
    static_assert(!numbers, "vonkk3: numbers are multiplied by vonk::scale");
    if constexpr (is_view<A> && is_view<B> && is_view<D>) {
        static_assert(A::is_matrix, "vonkk3: the first factor is a matrix");
        if constexpr (!A::is_matrix) return vonkErrSize;
        else if constexpr (B::is_matrix) return multiply_matrices<Exact>(a, b, d);
        else return multiply_vector<Exact>(a, b, d);
    } else return vonkErrSize;
}

template <class A, class X, class Y, class D>
VONKK3_INLINE Status gaxpy(const A &a, const X &x, const Y &y, const D &d) {
    using Group = exports::Gaxpy<kind_of<A>(), kind_of<X>(), kind_of<Y>()>;
    if constexpr (makes_sense<Group, D, A, X, Y>()) {
        VONKK3_SIZES_FIT(may_equal(A::fixed_columns, X::fixed_rows) && may_equal(A::fixed_rows, Y::fixed_rows) &&
                         may_equal(A::fixed_rows, D::fixed_rows));
        if (x.rows() != a.columns() || y.rows() != a.rows() || d.rows() != a.rows() || !counts_agree(d, a, x, y))
            return vonkErrSize;
        check_strides(a, false), check_strides(x, false), check_strides(y, false), check_strides(d, true);
        check_overlap<Overlap::none>(d, a), check_overlap<Overlap::none>(d, x), check_overlap<Overlap::none>(d, y);
        using Call = Choice<true, Group, D, A, X, Y>;
        return invoke<Call>(a, x, y, d, open_size<Call>(Shaped<true>{a.rows(), a.columns()}), objects<Call>(d.count()));
    } else return vonkErrSize;
}

} // namespace detail

/// dst = a b: matrix by matrix, or matrix by vector. Of an array and one object the one serves all. Matrices may be
/// vonk::transposed, but not the second of an array of matrices' product with a vector.
///
/// Shapes: a is m by k, b k by n (a vector: k), dst m by n, transposed ones as they enter; not square ones, too, but
/// not behind one pointer per element position. Errors: vonkErrSize, vonkErrNullPtr. dst must not overlap a source.
template <class A, class B, class D> VONKK3_INLINE Status multiply(A &&a, B &&b, D &&dst) {
    return detail::multiply<false>(detail::operand(a), detail::operand(b), detail::operand(dst));
}

/// dst = a x + y, with one matrix, and one vector or an array of vectors. dst must not overlap a source.
template <class A, class X, class Y, class D> VONKK3_INLINE Status gaxpy(A &&a, X &&x, Y &&y, D &&dst) {
    return detail::gaxpy(detail::operand(a), detail::operand(x), detail::operand(y), detail::operand(dst));
}

namespace exact {

using vonk::gaxpy;
template <class A, class B, class D> VONKK3_INLINE Status multiply(A &&a, B &&b, D &&dst) {
    return detail::multiply<true>(detail::operand(a), detail::operand(b), detail::operand(dst));
}

} // namespace exact
} // namespace vonk

#endif
