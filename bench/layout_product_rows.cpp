// Rows in all layouts of products.
#include "layout_contest.h"
#include "peers/layout_kernels.h"

#include <cmath>
#include <limits>

namespace bench {
namespace {

template <Layout layout, std::size_t order>
struct MatrixArrays : Family<layout, plain::MatrixProduct<order, Extent::array>> {};
template <Layout layout, std::size_t order>
struct ByOneMatrix : Family<layout, plain::MatrixProduct<order, Extent::single>> {};

constexpr plain::Terms termsOf(Layout layout) {
    return isWorkedInPairs(layout) ? plain::Terms::inPairs : plain::Terms::inOrder;
}

// By another order of additions, the result of a sum of a few products of numbers below 1.
template <Layout layout, class Kernel, class InOrder> struct VectorProducts : Family<layout, Kernel> {
    static std::string complaint(LayoutData<layout, Kernel> &, const Values &expected, const Values &found) {
        for (std::size_t i = 0; i < expected.size(); ++i)
            if (!(std::fabs(expected[i] - found[i]) <= 64 * double(std::numeric_limits<float>::epsilon())))
                return "element " + std::to_string(i) + " is " + std::to_string(found[i]) + ", not " +
                       std::to_string(expected[i]);
        return "";
    }
    static auto others() {
        if constexpr (std::is_same_v<Kernel, InOrder>) return std::tuple();
        else return std::tuple(Other<InOrder>{"plain, term by term", Agreement::tolerance});
    }
};
template <Layout layout, std::size_t order>
struct MatricesByVectors : VectorProducts<layout, plain::VectorProduct<order, Extent::array, termsOf(layout)>,
                                          plain::VectorProduct<order, Extent::array, plain::Terms::inOrder>> {};
template <Layout layout, std::size_t order>
struct OneMatrixByVectors : VectorProducts<layout, plain::VectorProduct<order, Extent::single, termsOf(layout)>,
                                           plain::VectorProduct<order, Extent::single, plain::Terms::inOrder>> {};
template <Layout layout, std::size_t order>
struct ProductsPlusVectors : VectorProducts<layout, plain::ProductPlusVector<order, termsOf(layout)>,
                                            plain::ProductPlusVector<order, plain::Terms::inOrder>> {};

} // namespace

void addLayoutProductRows(Rows &rows) {
    BENCH_MATRIX_FAMILY(rows, MatrixArrays, vonkMul_mama_32f)
    BENCH_MATRIX_FAMILY(rows, ByOneMatrix, vonkMul_mam_32f)
    BENCH_MATRIX_FAMILY(rows, MatricesByVectors, vonkMul_mava_32f)
    BENCH_MATRIX_FAMILY(rows, OneMatrixByVectors, vonkMul_mva_32f)
    BENCH_MATRIX_FAMILY(rows, ProductsPlusVectors, vonkGaxpy_va_32f)
}

} // namespace bench
