// Rows in all layouts of what is worked element by element, of measures and of moves.
#include "layout_contest.h"
#include "peers/layout_kernels.h"

#include <cmath>
#include <limits>

namespace bench {
namespace {

// ---- Vectors --------------------------------------------------------------------------------------------------------

template <Layout layout, std::size_t length>
struct AddVectors : Family<layout, plain::Elementwise<plain::Sum, vector(length), 2>> {};

// One constant stands after the first source, the other after the second.
template <Layout layout, class Kernel, bool hasSecond = false> struct WithConstants : Family<layout, Kernel> {
    using Data = LayoutData<layout, Kernel>;
    static auto afterFirst(Data &data) { return std::tuple(data.extra.first); }
    static auto afterSecond(Data &data) {
        if constexpr (hasSecond) return std::tuple(data.extra.second);
        else return std::tuple();
    }
};
template <Layout layout, std::size_t length>
struct ScaleVectors : WithConstants<layout, plain::Elementwise<plain::Multiple, vector(length), 1>> {};
template <Layout layout, std::size_t length>
struct AddScaledVectors : WithConstants<layout, plain::Elementwise<plain::ScaledSum, vector(length), 2>> {};
template <Layout layout, std::size_t length>
struct CombineVectors : WithConstants<layout, plain::Elementwise<plain::Combination, vector(length), 2>, true> {};

template <Layout layout, std::size_t length> struct DotProducts : Family<layout, plain::DotProduct<length>> {};
template <Layout layout, std::size_t> struct CrossProducts : Family<layout, plain::CrossProduct> {};

// Another order of additions, and the library's estimate of a root in the standard layout and L.
inline std::string normComplaint(std::size_t terms, const Values &expected, const Values &found) {
    const double relative = double(terms + 4) * double(std::numeric_limits<float>::epsilon());
    for (std::size_t n = 0; n < expected.size(); ++n)
        if (!(std::fabs(expected[n] - found[n]) <= relative * expected[n]))
            return "norm " + std::to_string(n) + " is " + std::to_string(found[n]) + ", not " +
                   std::to_string(expected[n]);
    return "";
}

template <Layout layout, Shape shape, plain::Squares squares>
struct NormsBy : Family<layout, plain::Norm<shape, squares>> {
    static constexpr Agreement agreement = isWorkedInPairs(layout) ? Agreement::tolerance : Agreement::bits;
    static std::string complaint(LayoutData<layout, plain::Norm<shape, squares>> &, const Values &expected,
                                 const Values &found) {
        return normComplaint(shape.elements(), expected, found);
    }
};
template <Layout layout, std::size_t length>
struct VectorNorms : NormsBy<layout, vector(length), plain::Squares::forward> {};

// ---- Matrices -------------------------------------------------------------------------------------------------------

template <Layout layout, std::size_t order>
struct AddMatrices : Family<layout, plain::Elementwise<plain::Sum, matrix(order), 2>> {};
template <Layout layout, std::size_t order>
struct ScaleMatrices : WithConstants<layout, plain::Elementwise<plain::Multiple, matrix(order), 1>> {};
template <Layout layout, std::size_t order> struct Transposes : Family<layout, plain::Transpose<order>> {};
template <Layout layout, std::size_t order> struct Traces : Family<layout, plain::Trace<order>> {};

constexpr plain::Squares squaresOf(Layout layout) {
    if (isWorkedInPairs(layout)) return plain::Squares::byColumns;
    return layout == Layout::S2 ? plain::Squares::forward : plain::Squares::backward;
}
template <Layout layout, std::size_t order> struct MatrixNorms : NormsBy<layout, matrix(order), squaresOf(layout)> {
    static auto others() {
        if constexpr (isWorkedInPairs(layout)) return std::tuple();
        else
            return std::tuple(Other<plain::Norm<matrix(order), plain::Squares::byColumns>>{"plain, by columns",
                                                                                           Agreement::tolerance});
    }
};

// ---- Moves ----------------------------------------------------------------------------------------------------------

// Sizes are words of the call, and so peers know them at run time only; the loop that has them in its code is a
// yardstick.
template <Layout layout, Shape shape, Extent to>
struct Moves : Family<layout, plain::Elementwise<plain::Move, shape, 1, to>> {
    using Kernel = plain::Elementwise<plain::Move, shape, 1, to>;
    using Data = LayoutData<layout, Kernel>;
    static auto afterResult(Data &data) {
        const auto rows = std::uint32_t(data.extra.rows), columns = std::uint32_t(data.extra.columns);
        if constexpr (shape.isVector) return std::tuple(columns);
        else return std::tuple(columns, rows);
    }
    template <class Results> static void addPeers(Contest &contest, Data *data, Results results) {
        constexpr Layout destination = to == Extent::packed ? Layout::S2 : layout;
        const auto enter = [&](const char *name, auto move) {
            contest.contestants.push_back({name, Agreement::bits,
                                           repeated([=] { move(data->places.data(), data->extra, data->count); }),
                                           results});
        };
        enter("plain, sizes at run time", plain::moveAtRunTime<layout, destination, false>);
        if constexpr (isTable(layout))
            enter("plain, sizes at run time, across objects", plain::moveAtRunTime<layout, destination, true>);
    }
    static auto others() { return std::tuple(Other<Kernel>{"plain, sizes in the code", Agreement::none}); }
};
template <Layout layout, std::size_t length> struct CopyVectors : Moves<layout, vector(length), Extent::array> {
    using Base = Moves<layout, vector(length), Extent::array>;
    // vonkCopy_va_32f_PP finds its source through the table of the destination and the distance from there.
    static auto words(typename Base::Data &data) requires(layout == Layout::PS2) {
        Operand &source = data.operands[0], &destination = data.operands[1];
        const auto distance = reinterpret_cast<char *>(source.start()) - reinterpret_cast<char *>(destination.start());
        return std::tuple_cat(std::tuple(source.table.data(), std::int32_t(distance), source.object),
                              data.template wordsOf<1>(), Base::afterResult(data),
                              std::tuple(std::uint32_t(data.count)));
    }
};
template <Layout layout, std::size_t order> struct CopyMatrices : Moves<layout, matrix(order), Extent::array> {};
template <Layout layout, std::size_t order> struct ExtractMatrices : Moves<layout, matrix(order), Extent::packed> {};

template <template <Layout, std::size_t> class F, class OfS2, class OfPs2, class OfLs2>
void addMoves(Rows &rows, const std::array<std::string, 3> &functions, OfS2 ofS2, OfPs2 ofPs2, OfLs2 ofLs2) {
    addLayoutRow<Layout::S2, F<Layout::S2, 4>>(rows, functions[0], false, ofS2);
    addLayoutRow<Layout::PS2, F<Layout::PS2, 4>>(rows, functions[1], false, ofPs2);
    addLayoutRow<Layout::LS2, F<Layout::LS2, 4>>(rows, functions[2], false, ofLs2);
}

} // namespace

void addLayoutRows(Rows &rows) {
    BENCH_VECTOR_FAMILY(rows, AddVectors, vonkAdd_vava_32f)
    BENCH_VECTOR_FAMILY(rows, ScaleVectors, vonkMul_vac_32f)
    BENCH_VECTOR_FAMILY(rows, AddScaledVectors, vonkSaxpy_vava_32f)
    BENCH_VECTOR_FAMILY(rows, CombineVectors, vonkLComb_vava_32f)
    BENCH_VECTOR_FAMILY(rows, DotProducts, vonkDotProduct_vava_32f)
    BENCH_VECTOR_FAMILY(rows, VectorNorms, vonkL2Norm_va_32f)
    BENCH_SIX_LAYOUTS(rows, CrossProducts, 3, vonkCrossProduct_vava_32f_3x1)
    BENCH_MATRIX_FAMILY(rows, AddMatrices, vonkAdd_mama_32f)
    BENCH_MATRIX_FAMILY(rows, ScaleMatrices, vonkMul_mac_32f)
    BENCH_MATRIX_FAMILY(rows, Transposes, vonkTranspose_ma_32f)
    BENCH_MATRIX_FAMILY(rows, Traces, vonkTrace_ma_32f)
    BENCH_MATRIX_FAMILY(rows, MatrixNorms, vonkFrobNorm_ma_32f)
    addMoves<CopyVectors>(
        rows, {"vonkCopy_va_32f_SS, length 4", "vonkCopy_va_32f_PP, length 4", "vonkCopy_va_32f_LL, length 4"},
        vonkCopy_va_32f_SS, vonkCopy_va_32f_PP, vonkCopy_va_32f_LL);
    addMoves<CopyMatrices>(rows,
                           {"vonkCopy_ma_32f_SS, 4 by 4", "vonkCopy_ma_32f_PP, 4 by 4", "vonkCopy_ma_32f_LL, 4 by 4"},
                           vonkCopy_ma_32f_SS, vonkCopy_ma_32f_PP, vonkCopy_ma_32f_LL);
    addMoves<ExtractMatrices>(
        rows, {"vonkExtract_ma_32f_S2, 4 by 4", "vonkExtract_ma_32f_PS2, 4 by 4", "vonkExtract_ma_32f_LS2, 4 by 4"},
        vonkExtract_ma_32f_S2, vonkExtract_ma_32f_PS2, vonkExtract_ma_32f_LS2);
}

} // namespace bench
