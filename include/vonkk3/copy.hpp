// Moving data: copy from any layout to any other, extract into one dense block, identity.
#ifndef VONKK3_COPY_HPP
#define VONKK3_COPY_HPP

#include "call.hpp"
#include "exports/copy.hpp"

namespace vonk {
namespace detail {

// One object as an array of one.
template <class T, Size R, Size C, Layout L, Kind K> constexpr auto as_array(const View<T, R, C, L, K> &v) {
    constexpr Kind kind = !is_matrix(K) ? Kind::vectors : is_transposed(K) ? Kind::transposed_matrices : Kind::matrices;
    return View<T, R, C, L, kind>(v.data(), v.count(), v.stored_rows(), v.stored_columns(), v.strides());
}
// Vectors as matrices of one row.
template <class T, Size R, Layout L> constexpr auto as_rows(const View<T, R, 1, L, Kind::vectors> &v) {
    const Strides s = v.strides();
    return View<T, dynamic, dynamic, L, Kind::matrices>(v.data(), v.count(), 1, v.rows(),
                                                        Strides{s.object, 0, s.element, s.shift});
}

template <bool Exact, class A, class D> VONKK3_INLINE Status copy_arrays(const A &a, const D &d) {
    using Group = exports::Copy<kind_of<A>()>;
    static_assert(Exists<Group>::value, "vonkk3: behind one pointer per element position nothing is transposed");
    static_assert(std::is_same_v<Plain<A>, Plain<D>>,
                  "vonkk3: the operands have different element types (float and double)");
    static_assert(!std::is_const_v<typename D::element>, "vonkk3: the destination is const");
    if constexpr (Exists<Group>::value && std::is_same_v<Plain<A>, Plain<D>> && !std::is_const_v<typename D::element>) {
        constexpr Layout from = strided(A::layout), to = strided(D::layout);
        if constexpr (!Exact && !A::is_matrix && is_table(from) &&
                      is_table(to)) // vonkCopy_va_*_PP reads no source table
            return copy_arrays<true>(as_rows(a), as_rows(d));
        else {
            constexpr auto f = Group::template function<Plain<A>, from, to>();
            return spell<4>(f, word<from>(a), word<to>(d), Shaped<A::is_matrix>{d.rows(), d.columns()},
                            Number{d.count()});
        }
    } else return vonkErrSize;
}

template <bool Exact, class A, class D> VONKK3_INLINE Status copy_views(const A &a, const D &d) {
    static_assert(A::is_array == D::is_array, "vonkk3: one object is copied to one, an array to an array");
    static_assert(!D::is_transposed, "vonkk3: the destination is transposed");
    VONKK3_SIZES_FIT((like_shape<D, A>));
    if (!shapes_agree(d, a) || !counts_agree(d, a)) return vonkErrSize;
    check_strides(a, false), check_strides(d, true);
    check_overlap<A::is_transposed ? Overlap::none : Overlap::in_place>(d, a);
    if constexpr (A::is_transposed && !A::is_table) return copy_arrays<Exact>(as_array(exchanged(a)), as_array(d));
    else return copy_arrays<Exact>(as_array(a), as_array(d));
}

template <bool Exact, class A, class D> VONKK3_INLINE Status copy(const A &a, const D &d) {
    if constexpr (are_views<A, D>()) {
        static_assert(A::is_matrix == D::is_matrix, "vonkk3: vectors are copied to vectors, matrices to matrices");
        if constexpr (A::is_matrix == D::is_matrix) return copy_views<Exact>(a, d);
    }
    return vonkErrSize;
}

template <bool Exact, class A, class D> VONKK3_INLINE Status extract(const A &a, D &&dst) {
    using T = Plain<A>;
    constexpr Layout layout = A::is_table && !A::is_array ? Layout::P : strided(A::layout);
    if constexpr (!Exact && A::is_transposed && layout == Layout::S2)
        return extract<true>(exchanged(a), std::forward<D>(dst));
    else {
        using Group = exports::Extract<kind_of<A>()>;
        static_assert(!(!Exact && A::is_transposed && layout == Layout::PS2),
                      "vonkk3: behind one pointer per element position arrays are not transposed");
        const auto result = block<T>(std::forward<D>(dst), a.count() * a.rows() * a.columns());
        if (!result.fits) return vonkErrSize;
        check_strides(a, false), check_block(result, a.count() * a.rows() * a.columns(), a);
        constexpr bool as_stored = A::is_transposed && layout == Layout::P; // its sizes are those of the table
        if constexpr (!Exact && as_stored)
            if (a.strides().shift != 0) return vonkErrSize; // the shift is ignored
        if constexpr (!Exact && A::is_array)
            if (a.count() == 0) return {};
        constexpr auto f = Group::template function<T, 0, layout>();
        static_assert(!std::is_void_v<decltype(Group::template function<T, 0, layout>())>,
                      "vonkk3: the operation has no function for this layout: see docs/functions.md");
        const Shaped<A::is_matrix> shape{as_stored ? a.stored_rows() : a.rows(),
                                         as_stored ? a.stored_columns() : a.columns()};
        if constexpr (A::is_array) return spell<4>(f, word<layout>(a), result.data, shape, Number{a.count()});
        else return spell<3>(f, word<layout>(a), result.data, shape);
    }
}

template <class D> VONKK3_INLINE Status exact_identity(const D &d) {
    using Call = Choice<true, exports::LoadIdentity<exports::ma>, D>;
    constexpr Layout layout = strided(D::layout);
    constexpr auto f = exports::LoadIdentity<exports::ma>::template function<typename Call::T, 0, layout>();
    return spell<3>(f, word<layout>(d), Shaped<true>{d.rows(), d.columns()}, Number{d.count()});
}

// One call an object, as only that makes an identity. By columns if the elements lie so; what the export has no strides
// for is written here.
template <class D> VONKK3_INLINE Status identity(const D &d) {
    for (Size n = 0; n < d.count(); ++n) {
        const auto one = as_array(d.slice(n, 1));
        bool simple = d.rows() <= d.columns();
        if constexpr (!D::is_table) {
            const Strides s = d.strides();
            const std::ptrdiff_t e = sizeof(Plain<D>);
            const bool by_columns = s.element > s.row;
            const Size length = by_columns ? d.rows() : d.columns(), lines = by_columns ? d.columns() : d.rows();
            const std::ptrdiff_t step = by_columns ? s.row : s.element, stride = by_columns ? s.element : s.row;
            simple = lines <= length && step >= e && stride >= step * std::ptrdiff_t(length);
            if constexpr (D::is_list)
                if (d.data()[n] == nullptr) return vonkErrNullPtr;
            if (simple) {
                const auto lying = View<Plain<D>, dynamic, dynamic, strided(D::layout), Kind::matrices>(
                    one.data(), 1, lines, length, Strides{s.object, std::int32_t(stride), std::int32_t(step), s.shift});
                if (const Status status = exact_identity(lying); !status.ok()) return status;
                continue;
            }
        } else if (simple) {
            if (const Status status = exact_identity(one); !status.ok()) return status;
            continue;
        }
        if (d.data() == nullptr) return vonkErrNullPtr;
        for (Size i = 0; i < d.rows(); ++i)
            for (Size j = 0; j < d.columns(); ++j) *d.at(n, i, j) = i == j ? 1 : 0;
    }
    return {};
}

template <class D> constexpr bool takes_identity() {
    static_assert(D::is_matrix && !D::is_transposed, "vonkk3: an identity is a matrix");
    static_assert(!std::is_const_v<typename D::element>, "vonkk3: the destination is const");
    return D::is_matrix && !D::is_transposed && !std::is_const_v<typename D::element>;
}

} // namespace detail

/// dst = a, from any layout to any other: arrays to arrays, one object to one. A source in plain memory or lists may be
/// vonk::transposed. Errors: vonkErrSize, vonkErrNullPtr; entries of tables and lists are not checked. Overlap: dst may
/// be a (in place), with the same strides, unless it is transposed.
template <class A, class D> VONKK3_INLINE Status copy(A &&a, D &&dst) {
    return detail::copy<false>(detail::operand(a), detail::operand(dst));
}

/// Gathers the elements into one dense block, object by object and row by row: a pointer, or a container that is long
/// enough (else vonkErrSize). A source may be vonk::transposed, but not an array behind one pointer per element
/// position, nor one matrix of that kind with a shift (vonkErrSize).
template <class A, class D> VONKK3_INLINE Status extract(A &&a, D &&dst) {
    return detail::extract<false>(detail::operand(a), std::forward<D>(dst));
}

/// Makes every matrix of dst an identity: 1 where row and column are equal, else 0.
template <class D> VONKK3_INLINE Status identity(D &&dst) {
    const auto d = detail::operand(dst);
    if constexpr (detail::takes_identity<std::remove_const_t<decltype(d)>>()) {
        detail::check_strides(d, true);
        return detail::identity(detail::as_array(d));
    } else return vonkErrSize;
}

namespace exact {

template <class A, class D> VONKK3_INLINE Status copy(A &&a, D &&dst) {
    return detail::copy<true>(detail::operand(a), detail::operand(dst));
}
template <class A, class D> VONKK3_INLINE Status extract(A &&a, D &&dst) {
    return detail::extract<true>(detail::operand(a), std::forward<D>(dst));
}
template <class D> VONKK3_INLINE Status identity(D &&dst) {
    const auto d = detail::operand(dst);
    if constexpr (detail::takes_identity<std::remove_const_t<decltype(d)>>())
        return detail::exact_identity(detail::as_array(d));
    else return vonkErrSize;
}

} // namespace exact
} // namespace vonk

#endif
