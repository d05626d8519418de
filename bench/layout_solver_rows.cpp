// Rows in all layouts of determinants, inverses, decompositions and solving.
#include "layout_contest.h"
#include "peers/layout_kernels.h"

#include <cmath>
#include <limits>

namespace bench {
namespace {

constexpr double tolerance = 64 * double(std::numeric_limits<float>::epsilon());

template <std::size_t order> double norm(const double *matrix) {
    double largest = 0;
    for (std::size_t i = 0; i < order; ++i) {
        double sum = 0;
        for (std::size_t j = 0; j < order; ++j) sum += std::fabs(matrix[i * order + j]);
        largest = std::max(largest, sum);
    }
    return largest;
}

// ---- Determinants and inverses --------------------------------------------------------------------------------------

// Against the product of the rows' lengths, which bounds a determinant.
template <Layout layout, std::size_t order> struct Determinants : Family<layout, plain::Determinant<order>> {
    static constexpr Agreement agreement = Agreement::tolerance;
    static std::string complaint(LayoutData<layout, plain::Determinant<order>> &data, const Values &expected,
                                 const Values &found) {
        for (std::size_t n = 0; n < data.count; ++n) {
            double bound = 1;
            for (std::size_t i = 0; i < order; ++i) {
                double squares = 0;
                for (std::size_t j = 0; j < order; ++j) squares += std::pow(double(data.operands[0].at(n, i, j)), 2);
                bound *= std::sqrt(squares);
            }
            if (!(std::fabs(expected[n] - found[n]) <= tolerance * bound))
                return "determinant " + std::to_string(n) + " is " + std::to_string(found[n]) + ", not " +
                       std::to_string(expected[n]);
        }
        return "";
    }
};

// |X - Y| against |X|^2 |A|, the size of the matrix times its condition, in the maximum norm.
template <Layout layout, std::size_t order> struct Inverses : Family<layout, plain::Inverse<order>> {
    static constexpr Agreement agreement = Agreement::tolerance;
    static std::string complaint(LayoutData<layout, plain::Inverse<order>> &data, const Values &expected,
                                 const Values &found) {
        constexpr std::size_t elements = order * order;
        const Values given = data.operands[0].values();
        for (std::size_t n = 0; n < data.count; ++n) {
            const double size = norm<order>(expected.data() + n * elements);
            const double bound = tolerance * size * size * norm<order>(given.data() + n * elements);
            for (std::size_t k = n * elements; k < (n + 1) * elements; ++k)
                if (!(std::fabs(expected[k] - found[k]) <= bound))
                    return "element " + std::to_string(k % elements) + " of inverse " + std::to_string(n) + " is " +
                           std::to_string(found[k]) + ", not " + std::to_string(expected[k]);
        }
        return "";
    }
};

// ---- Decompositions -------------------------------------------------------------------------------------------------

// Peers leave rows in the order of elimination, in memory of their own; the library leaves them where they were.
template <Layout layout, std::size_t order> struct LuDecompositions : Family<layout, plain::LuDecomposition<order>> {
    using Data = LayoutData<layout, plain::LuDecomposition<order>>;
    static constexpr std::size_t factors = 1; // the operand that is a decomposition's result
    static constexpr bool branchesOnData = true;
    static void prepare(Data &data) { data.places[1] = data.own.asPlace(); }
    static void spoil(Data &data) {
        data.destination().fill(1); // see Operand
        data.own.fill(1);
        data.pivots.fill(~0U);
        data.ownPivots.fill(~0U);
    }
    static auto afterFirst(Data &data) { return std::tuple(data.pivots.data()); }
    static Values results(Data &data) { return ordered(data, data.destination(), data.pivots, false); }
    static Values peerResults(Data &data) { return ordered(data, data.own, data.ownPivots, true); }

private:
    static Values ordered(Data &data, Operand &from, const Buffer<std::uint32_t> &pivots, bool rowsMoved) {
        Values values;
        for (std::size_t n = 0; n < data.count; ++n)
            for (std::size_t i = 0; i < order; ++i) {
                const std::uint32_t pivot = pivots[n * order + i];
                if (pivot >= order) return {};
                for (std::size_t j = 0; j < order; ++j) values.push_back(double(from.at(n, rowsMoved ? i : pivot, j)));
                values.push_back(pivot);
            }
        return values;
    }
};

// Symmetric, positive definite and well conditioned.
inline void makePositiveDefinite(Operand &matrices, std::size_t order) {
    Values given = matrices.values();
    matrices.forEach([&](std::size_t n, std::size_t i, std::size_t j, float &element) {
        const double *matrix = given.data() + n * order * order;
        double sum = i == j ? 1 : 0;
        for (std::size_t k = 0; k < order; ++k) sum += matrix[i * order + k] * matrix[j * order + k];
        element = float(sum);
    });
}

// Roots are taken in the 80-bit type but in P and PS2. Peers that take them in float keep their distance: factors of
// well conditioned matrices.
template <Layout layout, std::size_t order>
using CholeskyKernel = plain::CholeskyDecomposition<order, std::conditional_t<isTable(layout), float, long double>>;

template <Layout layout, std::size_t order>
struct CholeskyDecompositions : Family<layout, CholeskyKernel<layout, order>> {
    using Data = LayoutData<layout, CholeskyKernel<layout, order>>;
    using Count = std::conditional_t<isTable(layout), std::uint32_t, std::int32_t>;
    static void prepare(Data &data) { makePositiveDefinite(data.operands[0], order); }
    static std::string complaint(Data &, const Values &expected, const Values &found) {
        for (std::size_t k = 0; k < expected.size(); ++k)
            if (!(std::fabs(expected[k] - found[k]) <= 16 * tolerance * std::fabs(expected[k]) + tolerance))
                return "element " + std::to_string(k) + " of the factors is " + std::to_string(found[k]) + ", not " +
                       std::to_string(expected[k]);
        return "";
    }
    static auto others() {
        if constexpr (isTable(layout)) return std::tuple();
        else
            return std::tuple(
                Other<plain::CholeskyDecomposition<order, float>>{"plain, roots in float", Agreement::tolerance});
    }
};

template <Layout layout, std::size_t order> struct QrDecompositions : Family<layout, plain::QrDecomposition<order>> {
    using Data = LayoutData<layout, plain::QrDecomposition<order>>;
    static auto afterFirst(Data &data) { return std::tuple(data.work.data()); }
};

// ---- Solving --------------------------------------------------------------------------------------------------------

enum class Method { lu, cholesky, qr };

// The library's decompositions, for those who solve with their results.
template <Method method, Layout layout, std::size_t order> inline constexpr auto decomposition = nullptr;
#define BENCH_DECOMPOSITIONS(LAYOUT, ORDER, SUFFIX)                                                                    \
    template <> inline constexpr auto decomposition<Method::lu, LAYOUT, ORDER> = vonkLUDecomp_ma_32f##SUFFIX;          \
    template <>                                                                                                        \
    inline constexpr auto decomposition<Method::cholesky, LAYOUT, ORDER> = vonkCholeskyDecomp_ma_32f##SUFFIX;          \
    template <> inline constexpr auto decomposition<Method::qr, LAYOUT, ORDER> = vonkQRDecomp_ma_32f##SUFFIX;
BENCH_DECOMPOSITIONS(Layout::standard, 4, _4x4)
BENCH_DECOMPOSITIONS(Layout::S2, 4, _4x4_S2)
BENCH_DECOMPOSITIONS(Layout::P, 4, _4x4_P)
BENCH_DECOMPOSITIONS(Layout::PS2, 4, _4x4_PS2)
BENCH_DECOMPOSITIONS(Layout::L, 4, _4x4_L)
BENCH_DECOMPOSITIONS(Layout::LS2, 4, _4x4_LS2)
BENCH_DECOMPOSITIONS(Layout::standard, 3, _3x3)
BENCH_DECOMPOSITIONS(Layout::standard, 5, _5x5)
BENCH_DECOMPOSITIONS(Layout::standard, 6, _6x6)

inline void copyElements(Operand &from, Operand &to) {
    to.forEach([&](std::size_t n, std::size_t i, std::size_t j, float &element) { element = from.at(n, i, j); });
}

// Decomposes matrices ahead of the measurement; everybody solves with the library's factors, but for LU, where peers
// have their own.
template <Method method, Layout layout, std::size_t order, class Decompositions, class Data>
void prepareFactors(Data &data) {
    const auto source = std::make_unique<typename Decompositions::Data>(data.count);
    Decompositions::prepare(*source);
    Decompositions::spoil(*source);
    data.status = std::apply(decomposition<method, layout, order>, callWords<Decompositions>(*source));
    copyElements(source->destination(), data.operands[0]);
    if constexpr (method == Method::lu) {
        using Kernel = typename Decompositions::Kernel;
        plain::walk<Kernel, layout, plain::Way::objectByObject>(source->places.data(), source->extra, data.count);
        copyElements(source->own, data.own);
        data.places[0] = data.own.asPlace();
        std::copy_n(source->pivots.data(), data.count * order, data.pivots.data());
        std::copy_n(source->ownPivots.data(), data.count * order, data.ownPivots.data());
    }
}

// Solutions by sums that start from the right-hand side: |A (x - y)| against |A| max(|x|, |y|), in the maximum norm,
// for the matrix that the factors multiply to. The order of its rows does not matter.
template <Layout layout, std::size_t order> struct LuSolutions : Family<layout, plain::LuSolution<order, true>> {
    using Data = LayoutData<layout, plain::LuSolution<order, true>>;
    static void prepare(Data &data) {
        prepareFactors<Method::lu, layout, order, LuDecompositions<layout, order>>(data);
    }
    static auto afterFirst(Data &data) { return std::tuple(data.pivots.data()); }
    static auto others() {
        return std::tuple(Other<plain::LuSolution<order, false>>{"plain, sums from b", Agreement::tolerance});
    }
    static std::string complaint(Data &data, const Values &expected, const Values &found) {
        for (std::size_t n = 0; n < data.count; ++n) {
            const double *x = expected.data() + n * order, *y = found.data() + n * order;
            double matrix[order * order], difference = 0, size = 0;
            for (std::size_t i = 0; i < order; ++i) {
                double rowDifference = 0;
                for (std::size_t j = 0; j < order; ++j) {
                    double sum = 0;
                    for (std::size_t k = 0; k <= std::min(i, j); ++k)
                        sum += (k == i ? 1.0 : double(data.own.at(n, i, k))) * double(data.own.at(n, k, j));
                    matrix[i * order + j] = sum;
                    rowDifference += sum * (x[j] - y[j]);
                }
                difference = std::max(difference, std::fabs(rowDifference));
                size = std::max({size, std::fabs(x[i]), std::fabs(y[i])});
            }
            if (!(difference <= tolerance * norm<order>(matrix) * size))
                return "solution " + std::to_string(n) + " differs by " + std::to_string(difference);
        }
        return "";
    }
};

template <Layout layout, std::size_t order> struct CholeskySolutions : Family<layout, plain::CholeskySolution<order>> {
    using Count = std::int32_t;
    static void prepare(LayoutData<layout, plain::CholeskySolution<order>> &data) {
        prepareFactors<Method::cholesky, layout, order, CholeskyDecompositions<layout, order>>(data);
    }
};

template <Layout layout, std::size_t order> struct QrSolutions : Family<layout, plain::QrSolution<order>> {
    using Data = LayoutData<layout, plain::QrSolution<order>>;
    static void prepare(Data &data) {
        prepareFactors<Method::qr, layout, order, QrDecompositions<layout, order>>(data);
    }
    static auto afterFirst(Data &data) { return std::tuple(data.work.data()); }
};

} // namespace

void addLayoutSolverRows(Rows &rows) {
    BENCH_SIX_LAYOUTS(rows, Determinants, 4, vonkDet_ma_32f_4x4)
    BENCH_SIX_LAYOUTS(rows, Inverses, 4, vonkInvert_ma_32f_4x4)
    BENCH_MATRIX_FAMILY(rows, LuDecompositions, vonkLUDecomp_ma_32f)
    BENCH_MATRIX_FAMILY(rows, LuSolutions, vonkLUBackSubst_mava_32f)
    BENCH_MATRIX_FAMILY(rows, CholeskyDecompositions, vonkCholeskyDecomp_ma_32f)
    BENCH_MATRIX_FAMILY(rows, CholeskySolutions, vonkCholeskyBackSubst_mava_32f)
    BENCH_MATRIX_FAMILY(rows, QrDecompositions, vonkQRDecomp_ma_32f)
    BENCH_MATRIX_FAMILY(rows, QrSolutions, vonkQRBackSubst_mava_32f)
}

} // namespace bench
