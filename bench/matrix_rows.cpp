// Rows of matrices element by element: sums, multiples, transposes, norms and traces.
#include "contest.h"
#include "data.h"
#include "peers/library_products.h"
#include "peers/matrix_peers.h"

#include <vonkk3.h>

#include <cmath>
#include <limits>
#include <utility>

namespace bench {
namespace {

constexpr std::size_t objectCounts[] = {64, 2048};

struct MatrixData {
    Buffer<float> a, b, d;
    std::vector<const float *> aList, bList;
    std::vector<float *> dList;
    VonkStatus status = vonkOk;

    MatrixData(Job job, std::size_t order, std::size_t count)
        : a(count * order * order, 0), b(count * order * order, 1),
          d(isMeasure(job) ? count : count * order * order, 2) {
        a.fillRandomly(1);
        b.fillRandomly(2);
        for (std::size_t n = 0; n < count; ++n) {
            const std::size_t at = n * order * order;
            aList.push_back(a.data() + at);
            bList.push_back(b.data() + at);
            dList.push_back(isMeasure(job) ? d.data() : d.data() + at);
        }
    }
};

// Measures alone are rounded in other orders: a trace of so many elements below 1, a norm by so many products and by
// an estimated root.
std::string measureComplaint(Job job, std::size_t order, const Values &expected, const Values &found) {
    const double epsilon = std::numeric_limits<float>::epsilon();
    for (std::size_t n = 0; n < expected.size(); ++n) {
        const double scale = job == Job::norm ? double(order * order + 4) * expected[n] : double(order * order);
        if (!(std::fabs(expected[n] - found[n]) <= epsilon * scale))
            return "result " + std::to_string(n) + " is " + std::to_string(found[n]) + ", not " +
                   std::to_string(expected[n]);
    }
    return "";
}

// A row: the library, and peers by name. Those who know nothing of lists are not entered where matrices are listed.
template <Job job, std::size_t order, bool isListed> class MatrixContest {
public:
    explicit MatrixContest(std::size_t count) : count(count), shared(std::make_shared<MatrixData>(job, order, count)) {
        MatrixData *data = shared.get();
        contest = {"objects",
                   count,
                   shared,
                   [data] { data->d.fill(1e30F); },
                   [](auto &expected, auto &found) { return measureComplaint(job, order, expected, found); },
                   {}};
    }

    template <class Work> void library(Work work) {
        MatrixData *data = shared.get();
        const auto objects = std::uint32_t(count);
        enter("library", Agreement::bits, [=] { data->status = work(*data, objects); });
    }
    template <class Peer> void peer(std::string name, Agreement agreement) {
        if constexpr (isListed) listed(std::move(name), agreement, Peer::listed);
        else packed(std::move(name), agreement, Peer::packed);
    }
    void packed(std::string name, Agreement agreement, PackedWork work) {
        MatrixData *data = shared.get();
        enter(std::move(name), agreement,
              [=, objects = count] { work(data->a.data(), data->b.data(), data->d.data(), objects); });
    }

    Contest contest;

private:
    std::size_t count;
    std::shared_ptr<MatrixData> shared;

    void listed(std::string name, Agreement agreement, ListedWork work) {
        MatrixData *data = shared.get();
        enter(std::move(name), agreement,
              [=, objects = count] { work(data->aList.data(), data->bList.data(), data->dList.data(), objects); });
    }
    template <class Work> void enter(std::string name, Agreement agreement, Work work) {
        const MatrixData *data = shared.get();
        const auto results = [data] {
            if (data->status != vonkOk) return Values();
            return Values(data->d.data(), data->d.data() + data->d.size());
        };
        contest.contestants.push_back({std::move(name), agreement, repeated(work), results});
    }
};

// The library's calls: a function of the standard layout and one of lists with their words in order.
template <Job job, std::size_t order, auto call> VonkStatus callPacked(MatrixData &data, std::uint32_t count) {
    constexpr std::int32_t row = order * sizeof(float), object = order * row;
    const float *const a = data.a.data(), *const b = data.b.data();
    float *const d = data.d.data();
    if constexpr (job == Job::addArrays) return call(a, object, row, b, object, row, d, object, row, count);
    else if constexpr (job == Job::addOne) return call(a, object, row, b, row, d, object, row, count);
    else if constexpr (job == Job::scale) return call(a, object, row, b[0], d, object, row, count);
    else if constexpr (job == Job::transpose) return call(a, object, row, d, object, row, count);
    else return call(a, object, row, d, count);
}

template <Job job, std::size_t order, auto call> VonkStatus callListed(MatrixData &data, std::uint32_t count) {
    constexpr std::int32_t row = order * sizeof(float);
    const float *const *const a = data.aList.data(), *const *const b = data.bList.data();
    float *const *const d = data.dList.data();
    if constexpr (job == Job::addArrays) return call(a, 0, row, b, 0, row, d, 0, row, count);
    else if constexpr (job == Job::addOne) return call(a, 0, row, b[0], row, d, 0, row, count);
    else if constexpr (job == Job::scale) return call(a, 0, row, b[0][0], d, 0, row, count);
    else if constexpr (job == Job::transpose) return call(a, 0, row, d, 0, row, count);
    else return call(a, 0, row, d[0], count);
}

constexpr Agreement agreementOn(Job job) { return isMeasure(job) ? Agreement::tolerance : Agreement::bits; }

template <Job job, std::size_t order, bool isListed, auto call> Contest prepareRow(std::size_t count) {
    MatrixContest<job, order, isListed> row(count);
    constexpr bool isGraphicsOrder = order == 3 || order == 4;
    constexpr Agreement agreement = agreementOn(job);
    if constexpr (isListed) row.library(callListed<job, order, call>);
    else row.library(callPacked<job, order, call>);

    row.template peer<plain::Matrices<job, order>>("plain", agreement);
    if constexpr (!isListed && (job == Job::addArrays || job == Job::scale))
        row.packed("plain, one loop", agreement, plain::Matrices<job, order>::atOnce);
    row.template peer<eigen::Matrices<job, order>>("Eigen", agreement);
    if constexpr (!isListed && job != Job::transpose && job != Job::trace)
        row.packed("Eigen, one expression", agreement, eigen::Matrices<job, order>::atOnce);
    if constexpr (withGlm && isGraphicsOrder && !isMeasure(job))
        row.template peer<glm::Matrices<job, order>>("GLM", agreement);
    if constexpr (withCglm && isGraphicsOrder && (job == Job::scale || job == Job::transpose || job == Job::trace))
        row.template peer<cglm::Matrices<job, order>>("cglm", agreement);
    return row.contest;
}

template <Job job, std::size_t order, auto standard, auto listed> void add(Rows &rows, const std::string &name) {
    const std::string size = std::to_string(order) + "x" + std::to_string(order);
    const std::string function = name + "_32f_" + size;
    for (const std::size_t count : objectCounts) {
        const std::string suffix = "/" + std::to_string(count);
        rows.push_back({function + suffix, [=] { return prepareRow<job, order, false, standard>(count); }});
        rows.push_back({function + "_L" + suffix, [=] { return prepareRow<job, order, true, listed>(count); }});
    }
}

} // namespace

void addMatrixRows(Rows &rows) {
#define BENCH_THREE_ORDERS(JOB, NAME)                                                                                  \
    add<JOB, 3, NAME##_32f_3x3, NAME##_32f_3x3_L>(rows, #NAME);                                                        \
    add<JOB, 4, NAME##_32f_4x4, NAME##_32f_4x4_L>(rows, #NAME);                                                        \
    add<JOB, 6, NAME##_32f_6x6, NAME##_32f_6x6_L>(rows, #NAME);
    BENCH_THREE_ORDERS(Job::addArrays, vonkAdd_mama)
    BENCH_THREE_ORDERS(Job::addOne, vonkAdd_mam)
    BENCH_THREE_ORDERS(Job::scale, vonkMul_mac)
    BENCH_THREE_ORDERS(Job::transpose, vonkTranspose_ma)
    BENCH_THREE_ORDERS(Job::norm, vonkFrobNorm_ma)
    BENCH_THREE_ORDERS(Job::trace, vonkTrace_ma)
#undef BENCH_THREE_ORDERS
}

} // namespace bench
