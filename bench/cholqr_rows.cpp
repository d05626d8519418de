// Rows of Cholesky and QR decomposition and of solving with their factors.
#include "contest.h"
#include "data.h"
#include "peers/eigen_cholqr.h"
#include "peers/plain_cholqr.h"
#ifdef BENCH_WITH_LAPACKE
#include "peers/lapacke_cholqr.h"
#endif

#include <vonkk3.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace bench {
namespace {

constexpr std::size_t objectCounts[] = {64, 2048};

// All these methods are backward stable: whatever the order of the operations, the results are exact for matrices that
// differ from the given ones by a few units in the last place. That is what two contestants are held to.
template <class T> constexpr double tolerance = 64 * double(std::numeric_limits<T>::epsilon());

// What a plain loop works in to get the library's bits, and takes roots in; and what its line is called then.
template <class T> struct Plain {
    using Working = T;
    static constexpr const char *sameBits = "plain, same bits";
    static constexpr const char *otherwise = "plain";
};
template <> struct Plain<double> {
    using Working = long double;
    static constexpr const char *sameBits = "plain, same bits, long double";
    static constexpr const char *otherwise = "plain, double: rounds otherwise";
};

enum class Method { cholesky, qr };

template <Method method, class W, std::size_t order>
using EigenFactors = std::conditional_t<method == Method::cholesky, eigen::Cholesky<W, order>, eigen::Qr<W, order>>;

// Matrices with their right-hand sides and solutions, and everybody's factors.
template <Method method, class T, std::size_t order> struct FactorData {
    static constexpr std::size_t elements = order * order;

    std::size_t count;
    Buffer<T> source, byColumns, b, x, work, ours, plainly, betas, lapackly, taus;
    std::vector<EigenFactors<method, T, order>> eigenly;
    std::vector<EigenFactors<method, long double, order>> widely;
    VonkStatus status = vonkOk;

    explicit FactorData(std::size_t count)
        : count(count), source(count * elements, 0), byColumns(count * elements, 1), b(count * order, 2),
          x(count * order, 3), work(order, 4), ours(count * elements, 5), plainly(count * elements, 6),
          betas(count * order, 7), lapackly(count * elements, 8), taus(count * order, 9), eigenly(count),
          widely(count) {
        source.fillRandomly(1);
        if (method == Method::cholesky)
            for (std::size_t n = 0; n < count; ++n) makePositiveDefinite(source.data() + n * elements);
        for (std::size_t n = 0; n < count; ++n)
            for (std::size_t i = 0; i < elements; ++i)
                byColumns.data()[n * elements + i % order * order + i / order] = source[n * elements + i];
        b.fillRandomly(2);
        spoil();
    }

    void spoil() {
        for (Buffer<T> *each : {&x, &ours, &plainly, &lapackly}) each->fill(T(1e30));
        clear(eigenly);
        clear(widely);
    }

private:
    // Of fixed size they hold all in themselves. To decompose something else instead would take the compiler as long as
    // what is measured.
    template <class Decomposition> static void clear(std::vector<Decomposition> &decompositions) {
        std::memset(static_cast<void *>(decompositions.data()), 0, decompositions.size() * sizeof(Decomposition));
    }

    static void makePositiveDefinite(T *matrix) {
        double product[order][order];
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) {
                product[i][j] = i == j ? 1 : 0;
                for (std::size_t k = 0; k < order; ++k)
                    product[i][j] += double(matrix[i * order + k]) * double(matrix[j * order + k]);
            }
        for (std::size_t i = 0; i < elements; ++i) matrix[i] = T(product[i / order][i % order]);
    }
};

// ---- Comparing ------------------------------------------------------------------------------------------------------

// The triangle that factors are compared by, `order` by `order` for each object with zeros elsewhere: the lower one of
// Cholesky with reciprocals on its diagonal, R of QR.
template <Method method, std::size_t order, class ElementOf> Values triangles(std::size_t count, ElementOf elementOf) {
    Values values;
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j) {
                const bool isKept = method == Method::cholesky ? j <= i : j >= i;
                values.push_back(isKept ? double(elementOf(n, i, j)) : 0);
            }
    return values;
}

// The library's and the plain loops' factors: for Cholesky the triangle, for QR all that is stored.
template <Method method, std::size_t order, class T> Values packed(const Buffer<T> &factors, std::size_t count) {
    if (method == Method::qr) return Values(factors.data(), factors.data() + count * order * order);
    return triangles<method, order>(
        count, [&](std::size_t n, std::size_t i, std::size_t j) { return factors[(n * order + i) * order + j]; });
}

template <Method method, std::size_t order, class Decompositions>
Values eigenTriangles(const Decompositions &decompositions) {
    return triangles<method, order>(decompositions.size(), [&](std::size_t n, std::size_t i, std::size_t j) {
        const auto row = Eigen::Index(i), column = Eigen::Index(j);
        if constexpr (method == Method::qr) return decompositions[n].matrixQR()(row, column);
        else {
            const auto element = decompositions[n].matrixLLT()(row, column);
            return i == j ? 1 / element : element;
        }
    });
}

template <Method method, std::size_t order, class T>
Values lapackTriangles(const Buffer<T> &factors, std::size_t count) {
    return triangles<method, order>(count, [&](std::size_t n, std::size_t i, std::size_t j) {
        const T element = factors[(n * order + j) * order + i];
        return method == Method::cholesky && i == j ? 1 / element : element;
    });
}

// Element (i, j) of what a triangle must multiply to: L L', or R' R, which is A' A.
template <Method method, std::size_t order> double product(const double *triangle, std::size_t i, std::size_t j) {
    double sum = 0;
    for (std::size_t k = 0; k <= std::min(i, j); ++k) {
        const auto element = [&](std::size_t of) {
            if (method == Method::qr) return triangle[k * order + of];
            return k == of ? 1 / triangle[of * order + k] : triangle[of * order + k];
        };
        sum += element(i) * element(j);
    }
    return sum;
}

template <Method method, class T, std::size_t order> double given(const T *matrix, std::size_t i, std::size_t j) {
    if (method == Method::cholesky) return double(matrix[i * order + j]);
    double sum = 0;
    for (std::size_t k = 0; k < order; ++k) sum += double(matrix[k * order + i]) * double(matrix[k * order + j]);
    return sum;
}

template <Method method, class T, std::size_t order>
std::string factorComplaint(const FactorData<method, T, order> &data, const Values &expected, const Values &found) {
    constexpr std::size_t elements = order * order;
    if (found.size() != expected.size()) return "another number of results";
    for (const Values *each : {&expected, &found})
        for (std::size_t n = 0; n < data.count; ++n)
            for (std::size_t at = 0; at < elements; ++at) {
                const std::size_t i = at / order, j = at % order;
                const double is = product<method, order>(each->data() + n * elements, i, j);
                const double shouldBe = given<method, T, order>(data.source.data() + n * elements, i, j);
                if (!(std::fabs(is - shouldBe) <= tolerance<T> * double(order)))
                    return "the factors of object " + std::to_string(n) + " do not multiply to the matrix";
            }
    return "";
}

// |A (x - y)| against |A| max(|x|, |y|), in the maximum norm.
template <Method method, class T, std::size_t order>
std::string solutionComplaint(const FactorData<method, T, order> &data, bool isOneMatrix, const Values &expected,
                              const Values &found) {
    for (std::size_t n = 0; n < data.count; ++n) {
        const T *matrix = data.source.data() + (isOneMatrix ? 0 : n * order * order);
        const double *x = expected.data() + n * order, *y = found.data() + n * order;
        double difference = 0, norm = 0, size = 0;
        for (std::size_t i = 0; i < order; ++i) {
            double rowDifference = 0, rowNorm = 0;
            for (std::size_t j = 0; j < order; ++j) {
                rowDifference += double(matrix[i * order + j]) * (x[j] - y[j]);
                rowNorm += std::fabs(double(matrix[i * order + j]));
            }
            difference = std::max(difference, std::fabs(rowDifference));
            norm = std::max(norm, rowNorm);
            size = std::max({size, std::fabs(x[i]), std::fabs(y[i])});
        }
        if (!(difference <= tolerance<T> * norm * size))
            return "solution " + std::to_string(n) + " differs by " + std::to_string(difference);
    }
    return "";
}

// ---- The library's calls of one method, type and size ---------------------------------------------------------------

template <class T, std::size_t size, auto decomposeCall, auto solveCall, auto solveForOneCall> struct CholeskyCalls {
    static constexpr Method method = Method::cholesky;
    static constexpr std::size_t order = size;
    static constexpr std::int32_t row = size * sizeof(T), object = size * row;
    using Element = T;
    using Data = FactorData<method, T, size>;
    template <class W> using Eigens = eigen::Factoring<eigen::Cholesky<W, size>>;
    static constexpr const char *eigenName = "Eigen, LLT";

    static VonkStatus decompose(Data &data) {
        return decomposeCall(data.source.data(), object, row, data.ours.data(), object, row, std::int32_t(data.count));
    }
    static VonkStatus solve(Data &data) {
        return solveCall(data.ours.data(), object, row, data.b.data(), row, data.x.data(), row,
                         std::int32_t(data.count));
    }
    static VonkStatus solveForOne(Data &data) {
        return solveForOneCall(data.ours.data(), row, data.b.data(), row, data.x.data(), row, std::int32_t(data.count));
    }
    template <class W, class Root> static void decomposePlainly(Data &data) {
        plain::factorCholesky<T, W, Root, size>(data.source.data(), data.plainly.data(), data.count);
    }
    template <class W> static void solvePlainly(Data &data) {
        plain::solveCholesky<T, W, size>(data.plainly.data(), data.b.data(), data.x.data(), data.count);
    }
    static void solvePlainlyForOne(Data &data) {
        plain::solveCholeskyForOne<T, T, size>(data.plainly.data(), data.b.data(), data.x.data(), data.count);
    }
#ifdef BENCH_WITH_LAPACKE
    static void decomposeByLapack(Data &data) {
        lapacke::factorCholesky(data.byColumns.data(), data.lapackly.data(), size, data.count);
    }
    static void solveByLapack(Data &data) {
        lapacke::solveCholesky(data.lapackly.data(), data.b.data(), data.x.data(), size, data.count);
    }
#endif
};

template <class T, std::size_t size, auto decomposeCall, auto solveCall, auto solveForOneCall> struct QrCalls {
    static constexpr Method method = Method::qr;
    static constexpr std::size_t order = size;
    static constexpr std::int32_t row = size * sizeof(T), object = size * row;
    using Element = T;
    using Data = FactorData<method, T, size>;
    template <class W> using Eigens = eigen::Factoring<eigen::Qr<W, size>>;
    static constexpr const char *eigenName = "Eigen, HouseholderQR";

    static VonkStatus decompose(Data &data) {
        return decomposeCall(data.source.data(), object, row, data.work.data(), data.ours.data(), object, row,
                             std::uint32_t(data.count));
    }
    static VonkStatus solve(Data &data) {
        return solveCall(data.ours.data(), object, row, data.work.data(), data.b.data(), row, data.x.data(), row,
                         std::uint32_t(data.count));
    }
    static VonkStatus solveForOne(Data &data) {
        return solveForOneCall(data.ours.data(), object, row, data.work.data(), data.b.data(), row, data.x.data(), row,
                               std::uint32_t(data.count));
    }
    template <class W, class Root> static void decomposePlainly(Data &data) {
        plain::factorQr<T, W, Root, size>(data.source.data(), data.plainly.data(), data.betas.data(), data.count);
    }
    template <class W, bool keptBetas = false> static void solvePlainly(Data &data) {
        plain::solveQr<keptBetas, T, W, size>(data.plainly.data(), data.betas.data(), data.b.data(), data.x.data(),
                                              data.count);
    }
    template <bool keptBetas = false> static void solvePlainlyForOne(Data &data) {
        plain::solveQrForOne<keptBetas, T, T, size>(data.plainly.data(), data.betas.data(), data.b.data(),
                                                    data.x.data(), data.count);
    }
#ifdef BENCH_WITH_LAPACKE
    static void decomposeByLapack(Data &data) {
        lapacke::factorQr(data.byColumns.data(), data.lapackly.data(), data.taus.data(), size, data.count);
    }
    static void solveByLapack(Data &data) {
        lapacke::solveQr(data.lapackly.data(), data.taus.data(), data.b.data(), data.x.data(), size, data.count);
    }
#endif
};

// ---- Rows -----------------------------------------------------------------------------------------------------------

// A contestant that does `work` on the data of its row.
template <class Data, class Results>
Contestant contestant(std::string name, Agreement agreement, Data *data, void (*work)(Data &), Results results) {
    return {std::move(name), agreement, repeated([=] { work(*data); }), results};
}

template <class C> Contest decomposition(std::size_t count) {
    using T = typename C::Element;
    using Data = typename C::Data;
    constexpr Method method = C::method;
    constexpr std::size_t order = C::order;
    const auto shared = std::make_shared<Data>(count);
    Data *const data = shared.get();
    Contest contest{"objects",
                    count,
                    shared,
                    [=] { data->spoil(); },
                    [=](auto &expected, auto &found) { return factorComplaint(*data, expected, found); },
                    {}};

    const auto ourValues = [=] {
        return data->status == vonkOk ? packed<method, order>(data->ours, data->count) : Values();
    };
    const auto plainValues = [=] { return packed<method, order>(data->plainly, data->count); };
    using Working = typename Plain<T>::Working;
    contest.contestants = {
        {"library", Agreement::bits, repeated([=] { data->status = C::decompose(*data); }), ourValues},
        contestant(Plain<T>::sameBits, Agreement::bits, data, C::template decomposePlainly<Working, long double>,
                   plainValues),
        contestant(Plain<T>::otherwise, Agreement::tolerance, data, C::template decomposePlainly<T, T>, plainValues),
        {C::eigenName, Agreement::tolerance,
         repeated([=] { C::template Eigens<T>::decompose(data->source.data(), data->eigenly.data(), data->count); }),
         [=] { return eigenTriangles<method, order>(data->eigenly); }}};
    if constexpr (std::is_same_v<T, double>)
        contest.contestants.push_back({std::string(C::eigenName) + ", long double", Agreement::tolerance, repeated([=] {
                                           C::template Eigens<long double>::decompose(data->source.data(),
                                                                                      data->widely.data(), data->count);
                                       }),
                                       [=] { return eigenTriangles<method, order>(data->widely); }});
#ifdef BENCH_WITH_LAPACKE
    contest.contestants.push_back(contestant("LAPACKE", Agreement::tolerance, data, C::decomposeByLapack, [=] {
        return lapackTriangles<method, order>(data->lapackly, data->count);
    }));
#endif
    return contest;
}

// What all rows of solving share: everybody's factors, made by himself, ahead of the measurement.
template <class C> Contest solving(std::shared_ptr<typename C::Data> shared, bool isOneMatrix) {
    using T = typename C::Element;
    auto *data = shared.get();
    C::decompose(*data);
    C::template decomposePlainly<typename Plain<T>::Working, long double>(*data);
    C::template Eigens<T>::decompose(data->source.data(), data->eigenly.data(), data->count);
    if constexpr (std::is_same_v<T, double>)
        C::template Eigens<long double>::decompose(data->source.data(), data->widely.data(), data->count);
#ifdef BENCH_WITH_LAPACKE
    C::decomposeByLapack(*data);
#endif
    return {"objects",
            data->count,
            shared,
            [=] { data->x.fill(1e30F); },
            [=](auto &expected, auto &found) { return solutionComplaint(*data, isOneMatrix, expected, found); },
            {}};
}

template <class C> auto solutions(typename C::Data *data) {
    return [=] {
        if (data->status != vonkOk) return Values();
        return Values(data->x.data(), data->x.data() + data->x.size());
    };
}

template <class C> Contest solution(std::size_t count) {
    using T = typename C::Element;
    using Working = typename Plain<T>::Working;
    const auto shared = std::make_shared<typename C::Data>(count);
    auto *const data = shared.get();
    Contest contest = solving<C>(shared, false);
    const auto values = solutions<C>(data);
    contest.contestants = {
        {"library", Agreement::bits, repeated([=] { data->status = C::solve(*data); }), values},
        contestant(Plain<T>::sameBits, Agreement::bits, data, C::template solvePlainly<Working>, values)};
    if constexpr (std::is_same_v<T, double>)
        contest.contestants.push_back(
            contestant(Plain<T>::otherwise, Agreement::tolerance, data, C::template solvePlainly<T>, values));
    if constexpr (C::method == Method::qr)
        contest.contestants.push_back(
            contestant("plain, keeps beta", Agreement::tolerance, data, C::template solvePlainly<T, true>, values));
    contest.contestants.push_back({std::string(C::eigenName) + ".solve", Agreement::tolerance, repeated([=] {
                                       C::template Eigens<T>::solve(data->eigenly.data(), data->b.data(),
                                                                    data->x.data(), data->count);
                                   }),
                                   values});
    if constexpr (std::is_same_v<T, double>)
        contest.contestants.push_back({std::string(C::eigenName) + ".solve, long double", Agreement::tolerance,
                                       repeated([=] {
                                           C::template Eigens<long double>::solve(data->widely.data(), data->b.data(),
                                                                                  data->x.data(), data->count);
                                       }),
                                       values});
#ifdef BENCH_WITH_LAPACKE
    contest.contestants.push_back(contestant("LAPACKE", Agreement::tolerance, data, C::solveByLapack, values));
#endif
    return contest;
}

template <class C> Contest solutionForOne(std::size_t count) {
    using T = typename C::Element;
    const auto shared = std::make_shared<typename C::Data>(count);
    auto *const data = shared.get();
    Contest contest = solving<C>(shared, true);
    const auto values = solutions<C>(data);
    contest.contestants = {
        {"library", Agreement::bits, repeated([=] { data->status = C::solveForOne(*data); }), values},
        {std::string(C::eigenName) + ".solve", Agreement::tolerance, repeated([=] {
             C::template Eigens<T>::solveForOne(data->eigenly[0], data->b.data(), data->x.data(), data->count);
         }),
         values},
        {std::string(C::eigenName) + ".solve of all at once", Agreement::tolerance,
         repeated([=] { eigen::solveForOneAtOnce(data->eigenly[0], data->b.data(), data->x.data(), data->count); }),
         values}};
    if constexpr (C::method == Method::qr) {
        contest.contestants.push_back(
            contestant(Plain<T>::sameBits, Agreement::bits, data, C::template solvePlainlyForOne<false>, values));
        contest.contestants.push_back(
            contestant("plain, keeps beta", Agreement::tolerance, data, C::template solvePlainlyForOne<true>, values));
    } else
        contest.contestants.push_back(
            contestant(Plain<T>::sameBits, Agreement::bits, data, C::solvePlainlyForOne, values));
    return contest;
}

void add(Rows &rows, const std::string &function, Contest (*prepare)(std::size_t)) {
    for (const std::size_t count : objectCounts)
        rows.push_back({function + "/" + std::to_string(count), [=] { return prepare(count); }});
}

using CholeskySingle3 = CholeskyCalls<float, 3, vonkCholeskyDecomp_ma_32f_3x3, vonkCholeskyBackSubst_mava_32f_3x3,
                                      vonkCholeskyBackSubst_mva_32f_3x3>;
using CholeskySingle4 = CholeskyCalls<float, 4, vonkCholeskyDecomp_ma_32f_4x4, vonkCholeskyBackSubst_mava_32f_4x4,
                                      vonkCholeskyBackSubst_mva_32f_4x4>;
using CholeskySingle6 = CholeskyCalls<float, 6, vonkCholeskyDecomp_ma_32f_6x6, vonkCholeskyBackSubst_mava_32f_6x6,
                                      vonkCholeskyBackSubst_mva_32f_6x6>;
using CholeskyDouble3 = CholeskyCalls<double, 3, vonkCholeskyDecomp_ma_64f_3x3, vonkCholeskyBackSubst_mava_64f_3x3,
                                      vonkCholeskyBackSubst_mva_64f_3x3>;
using CholeskyDouble4 = CholeskyCalls<double, 4, vonkCholeskyDecomp_ma_64f_4x4, vonkCholeskyBackSubst_mava_64f_4x4,
                                      vonkCholeskyBackSubst_mva_64f_4x4>;
using CholeskyDouble6 = CholeskyCalls<double, 6, vonkCholeskyDecomp_ma_64f_6x6, vonkCholeskyBackSubst_mava_64f_6x6,
                                      vonkCholeskyBackSubst_mva_64f_6x6>;
using QrSingle3 = QrCalls<float, 3, vonkQRDecomp_ma_32f_3x3, vonkQRBackSubst_mava_32f_3x3, vonkQRBackSubst_mva_32f_3x3>;
using QrSingle4 = QrCalls<float, 4, vonkQRDecomp_ma_32f_4x4, vonkQRBackSubst_mava_32f_4x4, vonkQRBackSubst_mva_32f_4x4>;
using QrSingle6 = QrCalls<float, 6, vonkQRDecomp_ma_32f_6x6, vonkQRBackSubst_mava_32f_6x6, vonkQRBackSubst_mva_32f_6x6>;
using QrDouble3 =
    QrCalls<double, 3, vonkQRDecomp_ma_64f_3x3, vonkQRBackSubst_mava_64f_3x3, vonkQRBackSubst_mva_64f_3x3>;
using QrDouble4 =
    QrCalls<double, 4, vonkQRDecomp_ma_64f_4x4, vonkQRBackSubst_mava_64f_4x4, vonkQRBackSubst_mva_64f_4x4>;
using QrDouble6 =
    QrCalls<double, 6, vonkQRDecomp_ma_64f_6x6, vonkQRBackSubst_mava_64f_6x6, vonkQRBackSubst_mva_64f_6x6>;

} // namespace

void addCholeskyAndQrRows(Rows &rows) {
    add(rows, "vonkCholeskyDecomp_ma_32f_3x3", decomposition<CholeskySingle3>);
    add(rows, "vonkCholeskyDecomp_ma_32f_4x4", decomposition<CholeskySingle4>);
    add(rows, "vonkCholeskyDecomp_ma_32f_6x6", decomposition<CholeskySingle6>);
    add(rows, "vonkCholeskyDecomp_ma_64f_3x3", decomposition<CholeskyDouble3>);
    add(rows, "vonkCholeskyDecomp_ma_64f_4x4", decomposition<CholeskyDouble4>);
    add(rows, "vonkCholeskyDecomp_ma_64f_6x6", decomposition<CholeskyDouble6>);
    add(rows, "vonkCholeskyBackSubst_mava_32f_3x3", solution<CholeskySingle3>);
    add(rows, "vonkCholeskyBackSubst_mava_32f_4x4", solution<CholeskySingle4>);
    add(rows, "vonkCholeskyBackSubst_mava_32f_6x6", solution<CholeskySingle6>);
    add(rows, "vonkCholeskyBackSubst_mava_64f_3x3", solution<CholeskyDouble3>);
    add(rows, "vonkCholeskyBackSubst_mava_64f_4x4", solution<CholeskyDouble4>);
    add(rows, "vonkCholeskyBackSubst_mava_64f_6x6", solution<CholeskyDouble6>);
    add(rows, "vonkCholeskyBackSubst_mva_32f_4x4", solutionForOne<CholeskySingle4>);
    add(rows, "vonkQRDecomp_ma_32f_3x3", decomposition<QrSingle3>);
    add(rows, "vonkQRDecomp_ma_32f_4x4", decomposition<QrSingle4>);
    add(rows, "vonkQRDecomp_ma_32f_6x6", decomposition<QrSingle6>);
    add(rows, "vonkQRDecomp_ma_64f_3x3", decomposition<QrDouble3>);
    add(rows, "vonkQRDecomp_ma_64f_4x4", decomposition<QrDouble4>);
    add(rows, "vonkQRDecomp_ma_64f_6x6", decomposition<QrDouble6>);
    add(rows, "vonkQRBackSubst_mava_32f_3x3", solution<QrSingle3>);
    add(rows, "vonkQRBackSubst_mava_32f_4x4", solution<QrSingle4>);
    add(rows, "vonkQRBackSubst_mava_32f_6x6", solution<QrSingle6>);
    add(rows, "vonkQRBackSubst_mava_64f_3x3", solution<QrDouble3>);
    add(rows, "vonkQRBackSubst_mava_64f_4x4", solution<QrDouble4>);
    add(rows, "vonkQRBackSubst_mava_64f_6x6", solution<QrDouble6>);
    add(rows, "vonkQRBackSubst_mva_32f_4x4", solutionForOne<QrSingle4>);
}

} // namespace bench
