// Rows of LU decomposition and of solving with its factors.
#include "contest.h"
#include "data.h"
#include "peers/eigen_lu.h"
#include "peers/plain_lu.h"

#include <vonkk3.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace bench {
namespace {

constexpr std::size_t objectCounts[] = {64, 2048};

// Elimination with partial pivoting, and substitution, are backward stable: whatever the order of the operations, the
// results are exact for matrices that differ from the given ones by a few units in the last place. That, and not the
// condition of a random matrix, is what two contestants are held to.
template <class T> constexpr double tolerance = 64 * double(std::numeric_limits<T>::epsilon());

// What is handed from peer to peer as factors: rows in the order of elimination, and which row of the matrix each was.
template <class T> struct Factored {
    Buffer<T> factors;
    Buffer<std::uint32_t> pivots;
    Factored(std::size_t count, std::size_t order, std::size_t place)
        // The library reads up to `order` elements per object behind the last matrix.
        : factors(count * order * (order + 1), place), pivots(count * order, place + 1) {
        spoil();
    }
    void spoil() {
        factors.fill(1);
        pivots.fill(~0U);
    }
};

template <class T, std::size_t order> struct LuData {
    static constexpr std::size_t elements = order * order;

    std::size_t count;
    Buffer<T> source, b, x;
    Factored<T> ours, plainly;
    std::vector<eigen::Decomposition<T, order>> eigenly;
    VonkStatus status = vonkOk;

    explicit LuData(std::size_t count)
        : count(count), source(count * elements, 0), b(count * order, 1), x(count * order, 2), ours(count, order, 3),
          plainly(count, order, 5), eigenly(count) {
        source.fillRandomly(1);
        b.fillRandomly(2);
        spoil();
    }

    void spoil() {
        x.fill(T(1e30));
        ours.spoil();
        plainly.spoil();
        for (auto &decomposition : eigenly)
            decomposition.compute(eigen::Decomposition<T, order>::MatrixType::Identity());
    }
};

// ---- Comparing ------------------------------------------------------------------------------------------------------

// Factors of all objects, rows in the order of elimination, each object followed by its permutation. `rowsMoved` says
// whether memory holds rows in that order; the library leaves them where they were.
template <std::size_t order, class T> Values factorValues(const Factored<T> &from, std::size_t count, bool rowsMoved) {
    Values values;
    for (std::size_t n = 0; n < count; ++n) {
        const std::uint32_t *pivots = from.pivots.data() + n * order;
        const T *factors = from.factors.data() + n * order * order;
        for (std::size_t i = 0; i < order; ++i) {
            if (pivots[i] >= order) return {};
            const T *row = factors + (rowsMoved ? i : pivots[i]) * order;
            values.insert(values.end(), row, row + order);
        }
        values.insert(values.end(), pivots, pivots + order);
    }
    return values;
}

template <std::size_t order, class Decompositions> Values eigenFactorValues(const Decompositions &decompositions) {
    Values values;
    for (const auto &decomposition : decompositions) {
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t j = 0; j < order; ++j)
                values.push_back(double(decomposition.matrixLU()(Eigen::Index(i), Eigen::Index(j))));
        const auto &rowGoesTo = decomposition.permutationP().indices();
        const std::size_t start = values.size();
        values.resize(start + order);
        for (std::size_t row = 0; row < order; ++row)
            values[start + std::size_t(rowGoesTo[Eigen::Index(row)])] = double(row);
    }
    return values;
}

// The matrix that factors multiply to, rows where they were.
template <std::size_t order> std::array<double, order * order> product(const double *factorValues) {
    std::array<double, order * order> matrix{};
    for (std::size_t i = 0; i < order; ++i) {
        const auto row = std::size_t(factorValues[order * order + i]);
        for (std::size_t j = 0; j < order; ++j) {
            double sum = 0;
            for (std::size_t k = 0; k <= std::min(i, j); ++k)
                sum += (k == i ? 1.0 : factorValues[i * order + k]) * factorValues[k * order + j];
            matrix[row * order + j] = sum;
        }
    }
    return matrix;
}

// Both factorisations must multiply to the source.
template <class T, std::size_t order>
std::string factorComplaint(const LuData<T, order> &data, const Values &expected, const Values &found) {
    constexpr std::size_t values = order * order + order;
    if (found.size() != expected.size()) return "another number of results";
    for (const Values *each : {&expected, &found})
        for (std::size_t n = 0; n < data.count; ++n) {
            const auto matrix = product<order>(each->data() + n * values);
            for (std::size_t i = 0; i < order * order; ++i)
                if (!(std::fabs(matrix[i] - double(data.source[n * order * order + i])) <= tolerance<T>))
                    return "the factors of object " + std::to_string(n) + " do not multiply to the matrix";
        }
    return "";
}

// |A (x - y)| against |A| max(|x|, |y|), in the maximum norm.
template <class T, std::size_t order>
std::string solutionComplaint(const LuData<T, order> &data, bool isOneMatrix, const Values &expected,
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

// ---- Rows -----------------------------------------------------------------------------------------------------------

// The library's calls of one type and size.
template <class T, std::size_t size, auto decomposeCall, auto solveCall, auto solveForOneCall> struct Calls {
    static constexpr std::size_t order = size;
    static constexpr std::int32_t row = size * sizeof(T), object = size * row;
    using Element = T;
    using Data = LuData<T, size>;
    using EigenLu = eigen::Lu<T, size>;

    static VonkStatus decompose(Data &data) {
        return decomposeCall(data.source.data(), object, row, data.ours.pivots.data(), data.ours.factors.data(), object,
                             row, std::uint32_t(data.count));
    }
    static VonkStatus solve(Data &data) {
        return solveCall(data.ours.factors.data(), object, row, data.ours.pivots.data(), data.b.data(), row,
                         data.x.data(), row, std::uint32_t(data.count));
    }
    static VonkStatus solveForOne(Data &data) {
        return solveForOneCall(data.ours.factors.data(), object, row, data.ours.pivots.data(), data.b.data(), row,
                               data.x.data(), row, std::uint32_t(data.count));
    }
};

using Single3 = Calls<float, 3, vonkLUDecomp_ma_32f_3x3, vonkLUBackSubst_mava_32f_3x3, vonkLUBackSubst_mva_32f_3x3>;
using Single4 = Calls<float, 4, vonkLUDecomp_ma_32f_4x4, vonkLUBackSubst_mava_32f_4x4, vonkLUBackSubst_mva_32f_4x4>;
using Single6 = Calls<float, 6, vonkLUDecomp_ma_32f_6x6, vonkLUBackSubst_mava_32f_6x6, vonkLUBackSubst_mva_32f_6x6>;
using Double4 = Calls<double, 4, vonkLUDecomp_ma_64f_4x4, vonkLUBackSubst_mava_64f_4x4, vonkLUBackSubst_mva_64f_4x4>;

// What a plain loop works in to get the library's bits, and what its line is called then.
template <class T> struct Plain {
    using Working = T;
    static constexpr const char *suffix = "";
};
template <> struct Plain<double> {
    using Working = long double;
    static constexpr const char *suffix = ", long double";
};

template <class C> Contest decomposition(std::size_t count) {
    using T = typename C::Element;
    constexpr std::size_t order = C::order;
    const auto shared = std::make_shared<typename C::Data>(count);
    auto *data = shared.get();
    Contest contest{"objects",
                    count,
                    shared,
                    [=] { data->spoil(); },
                    [=](auto &expected, auto &found) { return factorComplaint(*data, expected, found); },
                    {}};

    const auto ourValues = [=] {
        return data->status == vonkOk ? factorValues<order>(data->ours, data->count, false) : Values();
    };
    const auto plainValues = [=] { return factorValues<order>(data->plainly, data->count, true); };
    const auto eigenValues = [=] { return eigenFactorValues<order>(data->eigenly); };
    const auto decomposePlainly = [=](auto decompose) {
        return repeated([=] {
            decompose(data->source.data(), data->plainly.pivots.data(), data->plainly.factors.data(), data->count);
        });
    };
    contest.contestants = {
        {"library", Agreement::bits, repeated([=] { data->status = C::decompose(*data); }), ourValues},
        {std::string("plain") + Plain<T>::suffix, Agreement::bits,
         decomposePlainly(plain::decompose<T, typename Plain<T>::Working, order>), plainValues}};
    if constexpr (std::is_same_v<T, double>)
        contest.contestants.push_back({"plain, double: rounds otherwise", Agreement::tolerance,
                                       decomposePlainly(plain::decompose<T, T, order>), plainValues});
    contest.contestants.push_back({"Eigen, PartialPivLU", Agreement::tolerance, repeated([=] {
                                       C::EigenLu::decompose(data->source.data(), data->eigenly.data(), data->count);
                                   }),
                                   eigenValues});
    contest.renew = [=](std::uint32_t seed) { data->source.fillRandomly(seed); };
    return contest;
}

// What all rows of solving share: everybody's factors, made by himself, ahead of the measurement.
template <class C> Contest solving(std::shared_ptr<typename C::Data> shared, bool isOneMatrix) {
    auto *data = shared.get();
    C::decompose(*data);
    plain::decompose<typename C::Element, typename Plain<typename C::Element>::Working, C::order>(
        data->source.data(), data->plainly.pivots.data(), data->plainly.factors.data(), data->count);
    C::EigenLu::decompose(data->source.data(), data->eigenly.data(), data->count);
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

// A plain loop's turn at solving.
template <class C, class Solve> auto solvedPlainly(typename C::Data *data, Solve solve) {
    return repeated([=] {
        solve(data->plainly.factors.data(), data->plainly.pivots.data(), data->b.data(), data->x.data(), data->count);
    });
}

template <class C> Contest solution(std::size_t count) {
    using T = typename C::Element;
    const auto shared = std::make_shared<typename C::Data>(count);
    auto *data = shared.get();
    Contest contest = solving<C>(shared, false);
    const auto values = solutions<C>(data);
    contest.contestants = {
        {"library", Agreement::bits, repeated([=] { data->status = C::solve(*data); }), values},
        {std::string("plain, same bits") + Plain<T>::suffix, Agreement::bits,
         solvedPlainly<C>(data, plain::solve<true, T, typename Plain<T>::Working, C::order>), values},
        {std::is_same_v<T, double> ? "plain, double: rounds otherwise" : "plain", Agreement::tolerance,
         solvedPlainly<C>(data, plain::solve<false, T, T, C::order>), values},
        {"Eigen, lu.solve", Agreement::tolerance,
         repeated([=] { C::EigenLu::solve(data->eigenly.data(), data->b.data(), data->x.data(), data->count); }),
         values}};
    return contest;
}

template <class C> Contest solutionForOne(std::size_t count) {
    using T = typename C::Element;
    const auto shared = std::make_shared<typename C::Data>(count);
    auto *data = shared.get();
    Contest contest = solving<C>(shared, true);
    const auto values = solutions<C>(data);
    contest.contestants = {
        {"library", Agreement::bits, repeated([=] { data->status = C::solveForOne(*data); }), values},
        {"plain, same bits", Agreement::bits, solvedPlainly<C>(data, plain::solveForOne<true, T, T, C::order>), values},
        {"plain", Agreement::tolerance, solvedPlainly<C>(data, plain::solveForOne<false, T, T, C::order>), values},
        {"Eigen, lu.solve", Agreement::tolerance,
         repeated([=] { C::EigenLu::solveForOne(data->eigenly[0], data->b.data(), data->x.data(), data->count); }),
         values},
        {"Eigen, lu.solve of all at once", Agreement::tolerance, repeated([=] {
             C::EigenLu::solveForOneAtOnce(data->eigenly[0], data->b.data(), data->x.data(), data->count);
         }),
         values}};
    return contest;
}

void add(Rows &rows, const std::string &function, Contest (*prepare)(std::size_t)) {
    for (const std::size_t count : objectCounts)
        rows.push_back({function + "/" + std::to_string(count), [=] { return prepare(count); }});
}

} // namespace

void addLuRows(Rows &rows) {
    add(rows, "vonkLUDecomp_ma_32f_3x3", decomposition<Single3>);
    add(rows, "vonkLUDecomp_ma_32f_4x4", decomposition<Single4>);
    add(rows, "vonkLUDecomp_ma_32f_6x6", decomposition<Single6>);
    add(rows, "vonkLUDecomp_ma_64f_4x4", decomposition<Double4>);
    add(rows, "vonkLUBackSubst_mva_32f_4x4", solutionForOne<Single4>);
    add(rows, "vonkLUBackSubst_mava_32f_3x3", solution<Single3>);
    add(rows, "vonkLUBackSubst_mava_32f_4x4", solution<Single4>);
    add(rows, "vonkLUBackSubst_mava_32f_6x6", solution<Single6>);
    add(rows, "vonkLUBackSubst_mava_64f_4x4", solution<Double4>);
}

} // namespace bench
