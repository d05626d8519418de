// LU decomposition and what comes with it: lu, lu_solve, solve, determinant, inverse.
#ifndef VONKK3_LU_HPP
#define VONKK3_LU_HPP

#include "call.hpp"
#include "exports/lu.hpp"

#include <cstring>

namespace vonk {

/// Bytes of the workspace that vonk::determinant and vonk::inverse want for a size that is known at run time.
template <class T> constexpr std::size_t scratch_size(std::size_t order) {
    return order * order * sizeof(T) + 4 * order;
}

namespace detail {

// Orders up to this have their workspace on the stack.
inline constexpr Size largest_local_order = 32;

struct NoScratch {};

// The call with a scratch of the caller's, of the right size on the stack, or none.
template <class Call, Size Order, class X, class F> VONKK3_INLINE Status with_scratch(X &&scratch, Size order, F call) {
    using T = typename Call::T;
    using U = std::remove_reference_t<X>;
    if constexpr (Call::order != 0) return call(Nothing{});
    else if constexpr (std::is_same_v<std::remove_const_t<U>, NoScratch>) {
        static_assert(Order != dynamic && Order <= largest_local_order,
                      "vonkk3: this size wants scratch as a last argument: vonk::scratch_size<T>(order) bytes");
        if constexpr (Order != dynamic && Order <= largest_local_order) {
            alignas(T) unsigned char local[scratch_size<T>(Order)];
            return call(static_cast<void *>(local));
        } else return vonkErrSize;
    } else if constexpr (std::is_pointer_v<std::remove_const_t<U>>) return call(static_cast<void *>(scratch));
    else {
        static_assert(is_container<U>, "vonkk3: scratch is a pointer or a container");
        if (items_count(scratch) * sizeof(ItemOf<U>) < scratch_size<T>(order)) return vonkErrSize;
        return call(static_cast<void *>(items(scratch)));
    }
}

template <class V> constexpr bool is_square() {
    VONKK3_SIZES_FIT(may_equal(V::fixed_rows, V::fixed_columns));
    return may_equal(V::fixed_rows, V::fixed_columns);
}

template <bool Exact, class A, class P, class D>
VONKK3_INLINE Status lu(const A &a, P &&pivots, const D &d, Size &failed) {
    using Group = exports::LUDecomp<kind_of<A>()>;
    failed = 0;
    if constexpr (makes_sense<Group, D, A>() && is_square<A>()) {
        VONKK3_SIZES_FIT((like_shape<D, A>));
        const Size order = a.rows();
        const auto rows = block<std::uint32_t>(std::forward<P>(pivots), std::size_t(order) * d.count());
        if (order != a.columns() || !shapes_agree(d, a) || !counts_agree(d, a) || !rows.fits) return vonkErrSize;
        check_strides(a, false), check_strides(d, true), check_overlap<Overlap::in_place>(d, a);
        check_block(rows, order * d.count(), d);
        if constexpr (Exact || !D::is_array) {
            using Call = Choice<Exact, Group, D, A>;
            return invoke<Call>(a, rows.data, d, open_size<Call>(Number{order}), objects<Call>(d.count()));
        } else {
            if (a.data() == nullptr || d.data() == nullptr || rows.data == nullptr) return vonkErrNullPtr;
            // The call for an array checks the last pivots at other places, so every object has its own.
            return each(d.count(), failed, [&](Size n) {
                Size ignored = 0;
                return lu<false>(a[n], rows.data + std::size_t(n) * order, d[n], ignored);
            });
        }
    } else return vonkErrSize;
}

template <bool Exact, class F, class P, class B, class D>
VONKK3_INLINE Status lu_solve(const F &f, P &&pivots, const B &b, const D &d) {
    using Group = exports::LUBackSubst<kind_of<F>(), kind_of<B>()>;
    if constexpr (makes_sense<Group, D, F, B>() && is_square<F>()) {
        VONKK3_SIZES_FIT(may_equal(F::fixed_rows, B::fixed_rows) && may_equal(F::fixed_rows, D::fixed_rows));
        const Size order = f.rows();
        const auto rows = block<const std::uint32_t>(std::forward<P>(pivots), std::size_t(order) * f.count());
        if (f.columns() != order || b.rows() != order || d.rows() != order || !counts_agree(d, f, b) || !rows.fits)
            return vonkErrSize;
        check_strides(f, false), check_strides(b, false), check_strides(d, true);
        check_overlap<Overlap::none>(d, f), check_overlap<Overlap::none>(d, b), check_block(rows, order * f.count(), d);
        using Call = Choice<Exact, Group, D, F, B>;
        const auto length = open_size<Call>(Number{order});
        if constexpr (D::is_array && !F::is_array)
            return invoke<Call>(Shared<F>{f}, rows.data, b, d, length, objects<Call>(d.count()));
        else return invoke<Call>(f, rows.data, b, d, length, objects<Call>(d.count()));
    } else return vonkErrSize;
}

// Decomposes float matrices of one order many at a time. The call for an array checks for object n not the last pivot,
// which lies in a row r, but the element n Order columns further on, of packed objects at
//
//     n Order^2 + r Order + (Order - 1) + n Order.
//
// From object Order on that is past the object, whatever r: in one that is not written yet, or past them all, where all
// elements are 1 here. Before come as many identities: of the first it is the last pivot, 1, and of the others, where r
// is Order - 1, it lies past the object, too. The last pivots themselves are checked here.
template <Size Order> class LuBlock {
public:
    static constexpr Size most = 32, worthwhile = 32; // objects

    LuBlock() {
        for (Size n = 0; n < ahead; ++n)
            for (Size i = 0; i < Order; ++i)
                for (Size j = 0; j < Order; ++j) source_[(n * Order + i) * Order + j] = i == j ? 1.0F : 0.0F;
    }

    // False if one of them cannot be decomposed.
    template <class A> bool decompose(const A &a) {
        const Size count = ahead + a.count();
        for (Size n = 0; n < a.count(); ++n) {
            if (a[n].data() == nullptr) return false;
            float *const to = source_ + (ahead + n) * area;
            for (Size i = 0; i < Order; ++i) // elements lie at any address
                if constexpr (strided(A::layout) != A::layout)
                    std::memcpy(to + i * Order, a.at(n, i, 0), Order * sizeof(float));
                else
                    for (Size j = 0; j < Order; ++j) std::memcpy(to + i * Order + j, a.at(n, i, j), sizeof(float));
        }
        for (Size k = 0; k < (count - 1) * (area + Order) + area; ++k) factors_[k] = 1;
        Size ignored = 0;
        if (!lu<true>(Matrices<const float, Order, Order>(source_, count), pivots_,
                      Matrices<float, Order, Order>(factors_, count), ignored)
                 .ok())
            return false;
        bool all_pass = true;
        for (Size n = 0; n < a.count(); ++n) { // by bits: 2^-23 to infinity, whatever the compiler thinks of NaNs
            std::uint32_t bits;
            std::memcpy(&bits, factors(n) + pivots(n)[Order - 1] * Order + Order - 1, sizeof bits);
            bits &= 0x7fffffff;
            all_pass = all_pass && bits >= 0x34000000 && bits <= 0x7f800000;
        }
        return all_pass;
    }

    const float *factors(Size n) const { return factors_ + (ahead + n) * area; }
    const std::uint32_t *pivots(Size n) const { return pivots_ + (ahead + n) * Order; }

private:
    static constexpr Size area = Order * Order, ahead = Order, objects = ahead + most;
    float source_[objects * area], factors_[(objects - 1) * (area + Order) + area];
    std::uint32_t pivots_[objects * Order];
};

// Smaller matrices gain nothing.
template <class A> constexpr bool in_blocks() {
    return std::is_same_v<Plain<A>, float> && A::is_fixed && A::fixed_rows >= 4 && A::fixed_rows <= 6 && !A::is_table;
}

// take(block, first, count) for what has been decomposed together, which is false if it cannot be used; else single(n),
// up to the first that fails.
template <Size Order, class A, class Take, class Single>
Status each_in_blocks(const A &a, Size &failed, const Take &take, const Single &single) {
    using Block = LuBlock<Order>;
    if (a.count() < Block::worthwhile) return each(a.count(), failed, single);
    Block block;
    for (failed = 0; failed < a.count();) {
        const Size first = failed, count = a.count() - first < Block::most ? a.count() - first : Block::most;
        if (block.decompose(a.slice(first, count)) && take(block, first, count)) failed += count;
        else
            for (; failed < first + count; ++failed)
                if (const Status status = single(failed); !status.ok()) return status;
    }
    return {};
}

template <class A, class B, class D> VONKK3_INLINE Status solve(const A &a, const B &b, const D &d, Size &failed) {
    static_assert(A::is_matrix && !B::is_matrix && !D::is_matrix, "vonkk3: a matrix, a right-hand side and a solution");
    static_assert(D::is_array == (A::is_array || B::is_array),
                  "vonkk3: the destination is an array if, and only if, a source is one");
    static_assert(A::is_fixed && A::fixed_rows <= largest_local_order,
                  "vonkk3: this size wants memory for the factors: call vonk::lu and vonk::lu_solve");
    failed = 0;
    if constexpr (A::is_fixed && A::fixed_rows <= largest_local_order && is_square<A>() && !A::is_transposed) {
        constexpr Size order = A::fixed_rows;
        VONKK3_SIZES_FIT(may_equal(order, B::fixed_rows) && may_equal(order, D::fixed_rows));
        if (!counts_agree(d, a, b)) return vonkErrSize;
        check_overlap<Overlap::none>(d, a), check_overlap<Overlap::none>(d, b);
        Plain<A> factors[order * order];
        std::uint32_t pivots[order];
        const Matrix<Plain<A>, order, order> f(factors);
        Size none = 0;
        if constexpr (!A::is_array) {
            if (const Status status = lu<false>(a, pivots, f, none); !status.ok()) return status;
            failed = D::is_array ? d.count() : 1;
            return lu_solve<false>(f, pivots, b, d);
        } else {
            if (a.data() == nullptr || b.data() == nullptr || d.data() == nullptr) return vonkErrNullPtr;
            const auto single = [&](Size n) {
                if (const Status status = lu<false>(a[n], pivots, f, none); !status.ok()) return status;
                return lu_solve<false>(f, pivots, nth(b, n), d[n]);
            };
            if constexpr (in_blocks<A>() && B::is_array && !B::is_table && !B::is_list && !D::is_list) {
                const auto take = [&](const auto &block, Size first, Size count) {
                    return lu_solve<false>(Matrices<const float, order, order>(block.factors(0), count),
                                           block.pivots(0), b.slice(first, count), d.slice(first, count))
                        .ok();
                };
                return each_in_blocks<order>(a, failed, take, single);
            } else return each(d.count(), failed, single);
        }
    } else {
        static_assert(!A::is_transposed, "vonkk3: vonk::solve takes no transposed matrix");
        return vonkErrSize;
    }
}

template <class A, class D, class X> VONKK3_INLINE Status determinant(const A &a, D &&dst, X &&scratch) {
    using Group = exports::Det<kind_of<A>()>;
    if constexpr (sources_make_sense<Group, A>() && is_square<A>()) {
        using Call = Choice<true, Group, A>;
        const Size order = a.rows();
        const auto result = block<typename Call::T>(std::forward<D>(dst), a.count());
        if (order != a.columns() || !result.fits) return vonkErrSize;
        check_strides(a, false), check_block(result, a.count(), a);
        return with_scratch<Call, A::fixed_rows>(scratch, order, [&](auto memory) {
            return invoke<Call>(a, open_size<Call>(Number{order}), memory, result.data, objects<Call>(a.count()));
        });
    } else return vonkErrSize;
}

template <class A, class D, class X> VONKK3_INLINE Status inverse(const A &a, const D &d, X &&scratch) {
    using Group = exports::Invert<kind_of<A>()>;
    if constexpr (makes_sense<Group, D, A>() && is_square<A>()) {
        VONKK3_SIZES_FIT((like_shape<D, A>));
        using Call = Choice<true, Group, D, A>;
        const Size order = a.rows();
        if (order != a.columns() || !shapes_agree(d, a) || !counts_agree(d, a)) return vonkErrSize;
        check_strides(a, false), check_strides(d, true);
        check_overlap<Call::order != 0 ? Overlap::in_place : Overlap::none>(d, a);
        return with_scratch<Call, A::fixed_rows>(scratch, order, [&](auto memory) {
            return invoke<Call>(a, open_size<Call>(Number{order}), memory, d, objects<Call>(d.count()));
        });
    } else return vonkErrSize;
}

} // namespace detail

/// LU factors with partial pivoting: rows are not moved, pivots[k] says in which row of dst logical row k lies, and
/// vonk::lu_solve wants both as they are. `pivots`: order uint32_t per object, packed, as a pointer or a container.
///
/// Arrays are decomposed object by object, so that every last pivot is checked where it lies, and nothing is asked of
/// what dst holds before; exact::lu is the one call for the array, whose check looks elsewhere.
///
/// Errors: vonkErrSingular if a pivot is below 2^-23 = 1.19e-7, an absolute bound (objects before it are complete,
/// later ones untouched); vonkErrSize, vonkErrNullPtr. Overlap: dst may be a (in place), with the same strides; pivots
/// overlap nothing.
template <class A, class P, class D> VONKK3_INLINE Status lu(A &&a, P &&pivots, D &&dst) {
    Size failed = 0;
    return detail::lu<false>(detail::operand(a), std::forward<P>(pivots), detail::operand(dst), failed);
}
template <class A, class P, class D> VONKK3_INLINE Status lu(A &&a, P &&pivots, D &&dst, Failed &failed) {
    return detail::lu<false>(detail::operand(a), std::forward<P>(pivots), detail::operand(dst), failed.object);
}

/// x = the solution of a x = b, by what vonk::lu left in `factors` and `pivots`: one system, one matrix with many
/// right-hand sides, or one matrix for each. Errors: vonkErrSize, vonkErrNullPtr. x must not overlap a source, b
/// neither.
template <class F, class P, class B, class D> VONKK3_INLINE Status lu_solve(F &&factors, P &&pivots, B &&b, D &&x) {
    return detail::lu_solve<false>(detail::operand(factors), std::forward<P>(pivots), detail::operand(b),
                                   detail::operand(x));
}

/// x = the solution of a x = b, by LU decomposition, with the factors on the stack: of fixed sizes up to 32. One
/// system, one matrix with many right-hand sides, or one matrix for each object; object by object, but 32 and more
/// float systems of order 4 to 6, in the standard and strided layouts, 32 at a time with the same results, in up to 13
/// KiB of stack. Errors as of vonk::lu. x must not overlap a source.
template <class A, class B, class D> VONKK3_INLINE Status solve(A &&a, B &&b, D &&x) {
    Size failed = 0;
    return detail::solve(detail::operand(a), detail::operand(b), detail::operand(x), failed);
}
template <class A, class B, class D> VONKK3_INLINE Status solve(A &&a, B &&b, D &&x, Failed &failed) {
    return detail::solve(detail::operand(a), detail::operand(b), detail::operand(x), failed.object);
}

/// dst[n] = the determinant; dst is a number, or a pointer to or container of one per object. A size known at run time
/// wants `scratch`: scratch_size<T>(order) bytes, as a pointer or a container. A singular matrix is no error. dst and
/// scratch overlap nothing.
template <class A, class D> VONKK3_INLINE Status determinant(A &&a, D &&dst) {
    return detail::determinant(detail::operand(a), std::forward<D>(dst), detail::NoScratch{});
}
template <class A, class D, class X> VONKK3_INLINE Status determinant(A &&a, D &&dst, X &&scratch) {
    return detail::determinant(detail::operand(a), std::forward<D>(dst), scratch);
}

/// dst = the inverse. A size known at run time wants `scratch`, as of vonk::determinant. Errors: vonkErrSingular, with
/// objects before the failing one complete; bounds are absolute and differ between sizes, types and layouts, see
/// docs/reference/inverse.md. Overlap: of sizes 3x3 to 6x6 dst may be a (in place), else none.
template <class A, class D> VONKK3_INLINE Status inverse(A &&a, D &&dst) {
    return detail::inverse(detail::operand(a), detail::operand(dst), detail::NoScratch{});
}
template <class A, class D, class X> VONKK3_INLINE Status inverse(A &&a, D &&dst, X &&scratch) {
    if constexpr (std::is_same_v<X, Failed &>) {
        const auto from = detail::operand(a);
        const auto to = detail::operand(dst);
        if (!detail::counts_agree(to, from)) return vonkErrSize;
        return detail::each(to.count(), scratch.object, [&](Size n) {
            return detail::inverse(detail::nth(from, n), detail::nth(to, n), detail::NoScratch{});
        });
    } else return detail::inverse(detail::operand(a), detail::operand(dst), scratch);
}

namespace exact {

using vonk::determinant;
using vonk::inverse;
template <class A, class P, class D> VONKK3_INLINE Status lu(A &&a, P &&pivots, D &&dst) {
    Size failed = 0;
    return detail::lu<true>(detail::operand(a), std::forward<P>(pivots), detail::operand(dst), failed);
}
template <class F, class P, class B, class D> VONKK3_INLINE Status lu_solve(F &&factors, P &&pivots, B &&b, D &&x) {
    return detail::lu_solve<true>(detail::operand(factors), std::forward<P>(pivots), detail::operand(b),
                                  detail::operand(x));
}

} // namespace exact
} // namespace vonk

#endif
