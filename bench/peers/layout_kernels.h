// The work on one object, written once for all layouts; see layout_views.h. Orders are known when compiling, and so all
// loops unroll. Results are the same bits as the library's unless a row says otherwise.
#pragma once

#include "peers/inverse_formulas.h"
#include "peers/layout_views.h"
#include "peers/plain_cholqr_loops.h"
#include "peers/plain_lu.h"
#include "peers/plain_substitution.h"

#include <cmath>

namespace bench::plain {

// ---- Element by element ---------------------------------------------------------------------------------------------

struct Sum {
    static float of(const Extra &, float a, float b) { return a + b; }
};
struct Multiple {
    static float of(const Extra &extra, float a) { return a * extra.first; }
};
struct ScaledSum {
    static float of(const Extra &extra, float a, float b) { return a * extra.first + b; }
};
struct Combination {
    static float of(const Extra &extra, float a, float b) { return a * extra.first + b * extra.second; }
};
struct Move {
    static float of(const Extra &, float a) { return a; }
};

// d(i, j) = Operation(a(i, j)...), of operands of one shape; where packed, results go without strides.
template <class Operation, Shape shape, std::size_t sources, Extent extent = Extent::array> struct Elementwise {
    static constexpr Shape destination{shape.rows, shape.columns, extent, shape.isVector};
    static constexpr auto shapes = [] {
        std::array<Shape, sources + 1> all;
        all.fill(shape);
        all.back() = destination;
        return all;
    }();
    static constexpr std::size_t parts = shape.elements();
    template <std::size_t part, bool, class D, class... Sources>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &extra, std::size_t, D &d, const Sources &...from) {
        constexpr std::size_t i = part / shape.columns, j = part % shape.columns;
        d(i, j) = Operation::of(extra, from(i, j)...);
        return 0;
    }
};

template <std::size_t order> struct Transpose {
    static constexpr std::array shapes{matrix(order), matrix(order)};
    static constexpr std::size_t parts = order * order;
    template <std::size_t part, bool, class D, class A>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a) {
        d(part % order, part / order) = a(part / order, part % order);
        return 0;
    }
};

struct CrossProduct {
    static constexpr std::array shapes{vector(3), vector(3), vector(3)};
    static constexpr std::size_t parts = 3;
    template <std::size_t part, bool, class D, class A, class B>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a, const B &b) {
        constexpr std::size_t next = (part + 1) % 3, last = (part + 2) % 3;
        d(0, part) = a(0, next) * b(0, last) - a(0, last) * b(0, next);
        return 0;
    }
};

// ---- One number from an object --------------------------------------------------------------------------------------

template <std::size_t length> struct DotProduct {
    static constexpr std::array shapes{vector(length), vector(length), result()};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool, class D, class A, class B>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a, const B &b) {
        float sum = a(0, 0) * b(0, 0);
        BENCH_UNROLL for (std::size_t j = 1; j < length; ++j) sum += a(0, j) * b(0, j);
        d(0, 0) = sum;
        return 0;
    }
};

// The root of the sum of squares: column by column, from the top or, columns too, from the end; or as a sum of the
// columns' sums, which are formed in the same registers.
enum class Squares { forward, backward, byColumns };

template <Shape shape, Squares squares> struct Norm {
    static constexpr std::array shapes{shape, result()};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool, class D, class A>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a) {
        constexpr std::size_t rows = shape.rows, columns = shape.columns;
        float sum = 0;
        if constexpr (squares == Squares::byColumns) {
            float sums[columns] = {};
            BENCH_UNROLL for (std::size_t i = 0; i < rows; ++i) BENCH_UNROLL for (std::size_t j = 0; j < columns; ++j)
                sums[j] += a(i, j) * a(i, j);
            BENCH_UNROLL for (std::size_t j = 0; j < columns; ++j) sum += sums[j];
        } else {
            constexpr bool isForward = squares == Squares::forward;
            BENCH_UNROLL for (std::size_t j = 0; j < columns; ++j) BENCH_UNROLL for (std::size_t i = 0; i < rows; ++i) {
                const float element = isForward ? a(i, j) : a(rows - 1 - i, columns - 1 - j);
                sum += element * element;
            }
        }
        d(0, 0) = std::sqrt(sum);
        return 0;
    }
};

template <std::size_t order> struct Trace {
    static constexpr std::array shapes{matrix(order), result()};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool, class D, class A>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a) {
        float sum = a(0, 0);
        BENCH_UNROLL for (std::size_t i = 1; i < order; ++i) sum += a(i, i);
        d(0, 0) = sum;
        return 0;
    }
};

template <std::size_t order> struct Determinant {
    static constexpr std::array shapes{matrix(order), result()};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool, class D, class A>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a) {
        if constexpr (order == 3) d(0, 0) = determinant3<float>(a);
        else d(0, 0) = determinant4<float>(a);
        return 0;
    }
};

// ---- Products -------------------------------------------------------------------------------------------------------

template <std::size_t order, Extent extentOfSecond> struct MatrixProduct {
    static constexpr std::array shapes{matrix(order), matrix(order, extentOfSecond), matrix(order)};
    static constexpr std::size_t parts = order; // rows
    template <std::size_t i, bool, class D, class A, class B>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a, const B &b) {
        BENCH_UNROLL for (std::size_t j = 0; j < order; ++j) {
            float sum = a(i, 0) * b(0, j);
            BENCH_UNROLL for (std::size_t k = 1; k < order; ++k) sum += a(i, k) * b(k, j);
            d(i, j) = sum;
        }
        return 0;
    }
};

// How a row's products are added: one by one, or in pairs as the library does in the standard layout and L.
enum class Terms { inOrder, inPairs };

template <Terms terms, std::size_t order, class A, class V>
[[gnu::always_inline]] inline float rowByVector(const A &a, const V &v, std::size_t i) {
    float p[order];
    BENCH_UNROLL for (std::size_t k = 0; k < order; ++k) p[k] = a(i, k) * v(0, k);
    if constexpr (terms == Terms::inPairs && order == 4) return (p[0] + p[2]) + (p[1] + p[3]);
    else if constexpr (terms == Terms::inPairs && order == 5)
        return i == 4 ? ((p[0] + p[2]) + p[4]) + (p[1] + p[3]) : ((p[0] + p[1]) + p[4]) + (p[2] + p[3]);
    else if constexpr (terms == Terms::inPairs && order == 6) return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
    else {
        float sum = p[0];
        BENCH_UNROLL for (std::size_t k = 1; k < order; ++k) sum += p[k];
        return sum;
    }
}

template <std::size_t order, Extent extentOfMatrix, Terms terms> struct VectorProduct {
    static constexpr std::array shapes{matrix(order, extentOfMatrix), vector(order), vector(order)};
    static constexpr std::size_t parts = order;
    template <std::size_t i, bool, class D, class A, class V>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a, const V &v) {
        d(0, i) = rowByVector<terms, order>(a, v, i);
        return 0;
    }
};

template <std::size_t order, Terms terms> struct ProductPlusVector {
    static constexpr std::array shapes{matrix(order, Extent::single), vector(order), vector(order), vector(order)};
    static constexpr std::size_t parts = order;
    template <std::size_t i, bool, class D, class A, class V, class W>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a, const V &v,
                                                     const W &w) {
        d(0, i) = rowByVector<terms, order>(a, v, i) + w(0, i);
        return 0;
    }
};

// ---- Inverses, decompositions, solvers ------------------------------------------------------------------------------

template <std::size_t order> struct Inverse {
    static constexpr std::array shapes{matrix(order), matrix(order)};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool, class D, class A>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a) {
        if constexpr (order == 3) invert3<float>(a, d);
        else invert4<float>(a, d);
        return 0;
    }
};

// A packed local copy of an object; its result goes to another one.
template <Shape shape, class A> [[gnu::always_inline]] inline Held<shape> localCopy(const A &a) {
    Held<shape> copy;
    BENCH_UNROLL for (std::size_t i = 0; i < shape.rows; ++i)
        BENCH_UNROLL for (std::size_t j = 0; j < shape.columns; ++j) copy(i, j) = a(i, j);
    return copy;
}

// Rows of the factors lie in the order of elimination.
template <std::size_t order> struct LuDecomposition {
    static constexpr std::array shapes{matrix(order), matrix(order)};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool isAcross, class D, class A>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &extra, std::size_t n, D &d, const A &a) {
        const auto source = localCopy<matrix(order)>(a);
        return decomposeOne<float, float, order, !isAcross>(source.elements, extra.pivots + n * order, d.elements) ? 0
                                                                                                                   : 1;
    }
};

inline constexpr std::uint32_t inOrder[] = {0, 1, 2, 3, 4, 5};

template <std::size_t order, bool sumsFirst> struct LuSolution {
    static constexpr std::array shapes{matrix(order), vector(order), vector(order)};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool isAcross, class D, class F, class B>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &extra, std::size_t n, D &d, const F &f, const B &b) {
        const auto factors = localCopy<matrix(order)>(f);
        const std::uint32_t *pivots = extra.pivots + n * order;
        float permuted[order];
        BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) {
            if constexpr (isAcross) { // nothing to index by
                permuted[i] = b(0, 0);
                BENCH_UNROLL for (std::size_t k = 1; k < order; ++k) {
                    const float candidate = b(0, k);
                    permuted[i] = pivots[i] == k ? candidate : permuted[i];
                }
            } else permuted[i] = b(0, pivots[i]);
        }
        solveOne<sumsFirst, float, float, order>(factors.elements, inOrder, permuted, d.elements);
        return 0;
    }
};

// Roots are taken in Root; the lower triangle is stored.
template <std::size_t order, class Root> struct CholeskyDecomposition {
    static constexpr std::array shapes{matrix(order), matrix(order)};
    static constexpr std::size_t parts = 1;
    static constexpr bool isStored(std::size_t i, std::size_t j) { return j <= i; }
    template <std::size_t, bool isAcross, class D, class A>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a) {
        float source[order * order];
        BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) BENCH_UNROLL for (std::size_t j = 0; j <= i; ++j)
            source[i * order + j] = a(i, j);
        return factorOneCholesky<float, float, Root, order, !isAcross>(source, d.elements) ? 0 : 1;
    }
};

template <std::size_t order> struct CholeskySolution {
    static constexpr std::array shapes{matrix(order), vector(order), vector(order)};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool, class D, class F, class B>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const F &f, const B &b) {
        float factors[order * order];
        BENCH_UNROLL for (std::size_t i = 0; i < order; ++i) BENCH_UNROLL for (std::size_t j = 0; j <= i; ++j)
            factors[i * order + j] = f(i, j);
        solveOneCholesky<float, float, order>(factors, localCopy<vector(order)>(b).elements, d.elements);
        return 0;
    }
};

template <std::size_t order> struct QrDecomposition {
    static constexpr std::array shapes{matrix(order), matrix(order)};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool isAcross, class D, class A>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const A &a) {
        float betas[order];
        const auto source = localCopy<matrix(order)>(a);
        return factorOneQr<float, float, float, order, !isAcross>(source.elements, d.elements, betas) ? 0 : 1;
    }
};

template <std::size_t order> struct QrSolution {
    static constexpr std::array shapes{matrix(order), vector(order), vector(order)};
    static constexpr std::size_t parts = 1;
    template <std::size_t, bool, class D, class F, class B>
    [[gnu::always_inline]] static std::uint32_t work(const Extra &, std::size_t, D &d, const F &f, const B &b) {
        const auto factors = localCopy<matrix(order)>(f);
        solveOneQr<false, float, float, order>(factors.elements, nullptr, localCopy<vector(order)>(b).elements,
                                               d.elements);
        return 0;
    }
};

// ---- Sizes at run time ----------------------------------------------------------------------------------------------

// Moves object by object, or element by element of tables with the loop over objects innermost. A destination that is
// packed has its object stride.
template <Layout layout> struct StridedElement {
    const Place &place;
    std::size_t columns;
    [[gnu::always_inline]] float *operator()(std::size_t n, std::size_t i, std::size_t j) const {
        if constexpr (isTable(layout)) return step(place.table[i * columns + j], n * place.object);
        else {
            const std::size_t offset = i * place.row + j * place.element;
            if constexpr (isList(layout)) return step(place.table[n], offset);
            else return step(place.start, n * place.object + offset);
        }
    }
};

template <Layout from, Layout to, bool isAcross>
[[gnu::noinline]] bool moveAtRunTime(const Place *places, Extra extra, std::size_t count) {
    const StridedElement<from> source{places[0], extra.columns};
    const StridedElement<to> destination{places[1], extra.columns};
    if constexpr (isAcross) {
        for (std::size_t i = 0; i < extra.rows; ++i)
            for (std::size_t j = 0; j < extra.columns; ++j) {
                float *s = source(0, i, j);
                float *d = destination(0, i, j);
                BENCH_INDEPENDENT
                for (std::size_t n = 0; n < count; ++n) *step(d, n * places[1].object) = *step(s, n * places[0].object);
            }
    } else
        for (std::size_t n = 0; n < count; ++n)
            for (std::size_t i = 0; i < extra.rows; ++i)
                for (std::size_t j = 0; j < extra.columns; ++j) *destination(n, i, j) = *source(n, i, j);
    return true;
}

} // namespace bench::plain
