// Rows of determinants and inverses.
#include "contest.h"
#include "data.h"
#include "peers/inverses.h"
#include "peers/library_products.h" // which other libraries are there

#include <vonkk3.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace bench {
namespace {

constexpr std::size_t objectCounts[] = {64, 2048};

template <class T> constexpr double tolerance = 64 * double(std::numeric_limits<T>::epsilon());

// The matrices, as a packed array and as a list of pointers to the same.
template <class T, std::size_t size> struct InverseData {
    using Element = T;
    static constexpr std::size_t order = size, elements = size * size;
    static constexpr std::int32_t row = size * sizeof(T), object = size * row;

    std::size_t count;
    Buffer<T> source, inverses, determinants;
    std::vector<const T *> sources;
    std::vector<T *> destinations;
    VonkStatus status = vonkOk;

    explicit InverseData(std::size_t count)
        : count(count), source(count * elements, 0), inverses(count * elements, 1), determinants(count, 2) {
        source.fillRandomly(1);
        for (std::size_t n = 0; n < count; ++n) {
            sources.push_back(source.data() + n * elements);
            destinations.push_back(inverses.data() + n * elements);
        }
        spoil();
    }

    void spoil() {
        inverses.fill(T(1e30));
        determinants.fill(T(1e30));
    }

    Packed<const T, order> packed() const { return {source.data()}; }
    Packed<T, order> packedResults() { return {inverses.data()}; }
    Listed<const T> listed() const { return {sources.data()}; }
    Listed<T> listedResults() { return {destinations.data()}; }
};

// ---- Comparing ------------------------------------------------------------------------------------------------------

// Against the product of the rows' lengths, which bounds a determinant.
template <class Data> std::string determinantComplaint(const Data &data, const Values &expected, const Values &found) {
    for (std::size_t n = 0; n < data.count; ++n) {
        double bound = 1;
        for (std::size_t i = 0; i < Data::order; ++i) {
            double square = 0;
            for (std::size_t j = 0; j < Data::order; ++j)
                square += std::pow(double(data.sources[n][i * Data::order + j]), 2);
            bound *= std::sqrt(square);
        }
        if (!(std::fabs(expected[n] - found[n]) <= tolerance<typename Data::Element> * bound))
            return "determinant " + std::to_string(n) + " is " + std::to_string(found[n]) + ", not " +
                   std::to_string(expected[n]);
    }
    return "";
}

template <std::size_t order, class T> double norm(const T *matrix) {
    double largest = 0;
    for (std::size_t i = 0; i < order; ++i) {
        double sum = 0;
        for (std::size_t j = 0; j < order; ++j) sum += std::fabs(double(matrix[i * order + j]));
        largest = std::max(largest, sum);
    }
    return largest;
}

// |X - Y| against |X|^2 |A|, the size of the matrix times its condition, in the maximum norm.
template <class Data> std::string inverseComplaint(const Data &data, const Values &expected, const Values &found) {
    for (std::size_t n = 0; n < data.count; ++n) {
        const double *x = expected.data() + n * Data::elements, *y = found.data() + n * Data::elements;
        const double size = norm<Data::order>(x);
        const double bound = tolerance<typename Data::Element> * size * size * norm<Data::order>(data.sources[n]);
        for (std::size_t i = 0; i < Data::elements; ++i)
            if (!(std::fabs(x[i] - y[i]) <= bound))
                return "element " + std::to_string(i) + " of inverse " + std::to_string(n) + " is " +
                       std::to_string(y[i]) + ", not " + std::to_string(x[i]);
    }
    return "";
}

// ---- Rows -----------------------------------------------------------------------------------------------------------

// The library's calls of one type and size, of packed arrays and of lists.
template <class T, std::size_t size, auto call, auto listCall> struct Determinants {
    using Data = InverseData<T, size>;
    static VonkStatus ofPacked(Data &data) {
        return call(data.source.data(), Data::object, Data::row, data.determinants.data(), std::uint32_t(data.count));
    }
    static VonkStatus ofListed(Data &data) {
        return listCall(data.sources.data(), 0, Data::row, data.determinants.data(), std::uint32_t(data.count));
    }
};

template <class T, std::size_t size, auto call, auto listCall> struct Inverses {
    using Data = InverseData<T, size>;
    static VonkStatus ofPacked(Data &data) {
        return call(data.source.data(), Data::object, Data::row, data.inverses.data(), Data::object, Data::row,
                    std::uint32_t(data.count));
    }
    static VonkStatus ofListed(Data &data) {
        return listCall(data.sources.data(), 0, Data::row, data.destinations.data(), 0, Data::row,
                        std::uint32_t(data.count));
    }
};

using Determinants3 = Determinants<float, 3, vonkDet_ma_32f_3x3, vonkDet_ma_32f_3x3_L>;
using Determinants4 = Determinants<float, 4, vonkDet_ma_32f_4x4, vonkDet_ma_32f_4x4_L>;
using DoubleDeterminants4 = Determinants<double, 4, vonkDet_ma_64f_4x4, vonkDet_ma_64f_4x4_L>;
using Inverses3 = Inverses<float, 3, vonkInvert_ma_32f_3x3, vonkInvert_ma_32f_3x3_L>;
using Inverses4 = Inverses<float, 4, vonkInvert_ma_32f_4x4, vonkInvert_ma_32f_4x4_L>;
using Inverses6 = Inverses<float, 6, vonkInvert_ma_32f_6x6, vonkInvert_ma_32f_6x6_L>;
using DoubleInverses4 = Inverses<double, 4, vonkInvert_ma_64f_4x4, vonkInvert_ma_64f_4x4_L>;

template <class T, std::size_t order> inline constexpr bool isWrittenOut = order <= 4;
template <class T, std::size_t order>
inline constexpr bool isInGraphicsLibraries = std::is_same_v<T, float> &&order <= 4;

// Adds the peers' turns. `work` gets a peer's type and does its part.
template <class Data, class Work, class Results>
void addPeers(Contest &contest, Work work, Results results, const char *withSameBits) {
    using T = typename Data::Element;
    constexpr std::size_t order = Data::order;
    const auto add = [&](std::string name, Agreement agreement, auto peer) {
        contest.contestants.push_back({std::move(name), agreement, repeated([=] { work(peer); }), results});
    };
    if constexpr (isWrittenOut<T, order>) {
        add("plain", Agreement::tolerance, plain::Inverses<T, T, order>());
        if (withSameBits != nullptr)
            add("plain, long double", Agreement::tolerance, plain::Inverses<T, long double, order>());
    }
    add("Eigen", Agreement::tolerance, eigen::Inverses<T, order>());
    if constexpr (isInGraphicsLibraries<T, order>) {
#ifdef BENCH_WITH_GLM
        add("GLM", Agreement::tolerance, glm::Inverses<order>());
#endif
#ifdef BENCH_WITH_CGLM
        add("cglm", Agreement::tolerance, cglm::Inverses<order>());
#endif
    }
}

template <class C, bool isListed> Contest determinants(std::size_t count) {
    using Data = typename C::Data;
    const auto shared = std::make_shared<Data>(count);
    auto *data = shared.get();
    const auto values = [=] {
        if (data->status != vonkOk) return Values();
        return Values(data->determinants.data(), data->determinants.data() + data->count);
    };
    Contest contest{"objects",
                    count,
                    shared,
                    [=] { data->spoil(); },
                    [=](auto &expected, auto &found) { return determinantComplaint(*data, expected, found); },
                    {{"library", Agreement::bits,
                      repeated([=] { data->status = isListed ? C::ofListed(*data) : C::ofPacked(*data); }), values}}};
    addPeers<Data>(
        contest,
        [=]([[maybe_unused]] auto peer) {
            if constexpr (isListed) peer.determinants(data->listed(), data->determinants.data(), data->count);
            else peer.determinants(data->packed(), data->determinants.data(), data->count);
        },
        values, "");
    return contest;
}

template <class C, bool isListed> Contest inverses(std::size_t count) {
    using Data = typename C::Data;
    const auto shared = std::make_shared<Data>(count);
    auto *data = shared.get();
    const auto values = [=] {
        if (data->status != vonkOk) return Values();
        return Values(data->inverses.data(), data->inverses.data() + data->inverses.size());
    };
    Contest contest{"objects",
                    count,
                    shared,
                    [=] { data->spoil(); },
                    [=](auto &expected, auto &found) { return inverseComplaint(*data, expected, found); },
                    {{"library", Agreement::bits,
                      repeated([=] { data->status = isListed ? C::ofListed(*data) : C::ofPacked(*data); }), values}}};
    addPeers<Data>(
        contest,
        [=]([[maybe_unused]] auto peer) {
            if constexpr (isListed) peer.inverses(data->listed(), data->listedResults(), data->count);
            else peer.inverses(data->packed(), data->packedResults(), data->count);
        },
        values, std::is_same_v<typename Data::Element, double> ? "" : nullptr);
    return contest;
}

void add(Rows &rows, const std::string &function, Contest (*prepare)(std::size_t)) {
    for (const std::size_t count : objectCounts)
        rows.push_back({function + "/" + std::to_string(count), [=] { return prepare(count); }});
}

} // namespace

void addInverseRows(Rows &rows) {
    add(rows, "vonkDet_ma_32f_3x3", determinants<Determinants3, false>);
    add(rows, "vonkDet_ma_32f_3x3_L", determinants<Determinants3, true>);
    add(rows, "vonkDet_ma_32f_4x4", determinants<Determinants4, false>);
    add(rows, "vonkDet_ma_32f_4x4_L", determinants<Determinants4, true>);
    add(rows, "vonkDet_ma_64f_4x4", determinants<DoubleDeterminants4, false>);
    add(rows, "vonkInvert_ma_32f_3x3", inverses<Inverses3, false>);
    add(rows, "vonkInvert_ma_32f_3x3_L", inverses<Inverses3, true>);
    add(rows, "vonkInvert_ma_32f_4x4", inverses<Inverses4, false>);
    add(rows, "vonkInvert_ma_32f_4x4_L", inverses<Inverses4, true>);
    add(rows, "vonkInvert_ma_32f_6x6", inverses<Inverses6, false>);
    add(rows, "vonkInvert_ma_64f_4x4", inverses<DoubleInverses4, false>);
}

} // namespace bench
