// Rows of single objects: one call each. Beside them stands a call that only returns, followed by the same work in
// line; what the library needs above that is its tests. Loops over many objects, for one alone would be guessed right
// by every branch.
#include "bare_calls.h"
#include "contest.h"
#include "data.h"
#include "peers/plain_lu.h"
#include "peers/plain_products.h"

#include <vonkk3.h>

#include <functional>

namespace bench {
namespace {

constexpr std::size_t objectCounts[] = {64, 2048};
constexpr std::int32_t rowBytes = 4 * sizeof(float);

struct CallData {
    std::size_t count, elements; // so many objects, of so many elements
    Buffer<float> a, b, d;
    Buffer<std::uint32_t> pivots;
    std::int32_t status = vonkOk;

    CallData(std::size_t count, std::size_t elements)
        : count(count), elements(elements), a(count * elements, 0), b(count * elements, 1), d(count * elements, 2),
          pivots(count * 4, 3) {
        a.fillRandomly(1);
        b.fillRandomly(2);
    }
    void spoil() {
        d.fill(1e30F);
        pivots.fill(~0U);
    }
};

// Does the work of `work(n)` for every object; the status values come together in the data.
template <class Work> auto forAll(CallData *data, Work work) {
    return repeated([=] {
        std::int32_t status = vonkOk;
        const std::size_t count = data->count;
        for (std::size_t n = 0; n < count; ++n) status |= work(n);
        data->status = status;
    });
}

// Library, bare call and in-line work from three functions of an object's number.
template <class Library, class Bare, class InLine>
std::vector<Contestant> callContestants(CallData *data, const std::function<Values()> &results, Library library,
                                        Bare bare, InLine inLine) {
    const auto both = [=](std::size_t n) {
        const std::int32_t status = bare(n);
        return status | inLine(n);
    };
    const auto unlessFailed = [=] { return data->status == vonkOk ? results() : Values(); };
    return {{"library", Agreement::bits, forAll(data, library), unlessFailed},
            {"bare call, then plain loop in line", Agreement::bits, forAll(data, both), unlessFailed},
            {"bare call alone", Agreement::none, forAll(data, bare), {}}};
}

Contest contestOf(const std::shared_ptr<CallData> &shared) {
    CallData *data = shared.get();
    return {"calls", data->count, shared, [=] { data->spoil(); }, {}, {}};
}

// One call for each pair of vectors.
template <std::size_t length, auto call, auto bareCall, class Operation> Contest vectorCalls(std::size_t count) {
    const auto shared = std::make_shared<CallData>(count, length);
    const float *a = shared->a.data(), *b = shared->b.data();
    float *d = shared->d.data();
    const auto inLine = [=](std::size_t n) {
        float result[length];
        for (std::size_t j = 0; j < length; ++j) result[j] = Operation()(a[n * length + j], b[n * length + j]);
        for (std::size_t j = 0; j < length; ++j) d[n * length + j] = result[j];
        return vonkOk;
    };
    const auto over = [=](auto function) {
        return [=](std::size_t n) { return function(a + n * length, b + n * length, d + n * length); };
    };
    CallData *data = shared.get();
    Contest contest = contestOf(shared);
    contest.contestants = callContestants(
        data, [=] { return Values(data->d.data(), data->d.data() + data->d.size()); },
        over([](auto... p) { return call(p...); }), over([](auto... p) { return bareCall(p...); }), inLine);
    return contest;
}

// Factors with rows in the order of elimination. The library leaves rows where they were, the plain loop moves them.
Values orderedFactors(const CallData &data, bool rowsMoved) {
    Values values;
    for (std::size_t n = 0; n < data.count; ++n)
        for (std::size_t i = 0; i < 4; ++i) {
            const std::uint32_t pivot = data.pivots[n * 4 + i];
            if (pivot >= 4) return {};
            const float *row = data.d.data() + n * 16 + (rowsMoved ? i : pivot) * 4;
            values.insert(values.end(), row, row + 4);
            values.push_back(pivot);
        }
    return values;
}

Contest decomposeCalls(std::size_t count) {
    const auto shared = std::make_shared<CallData>(count, 16);
    const float *a = shared->a.data();
    std::uint32_t *pivots = shared->pivots.data();
    float *d = shared->d.data();
    CallData *data = shared.get();
    const auto over = [=](auto function) {
        return [=](std::size_t n) { return function(a + n * 16, rowBytes, pivots + n * 4, d + n * 16, rowBytes); };
    };
    const auto inLine = [=](std::size_t n) {
        return plain::decomposeOne<float, float, 4>(a + n * 16, pivots + n * 4, d + n * 16) ? vonkOk : vonkErrSingular;
    };
    Contest contest = contestOf(shared);
    contest.contestants = callContestants(
        data, [=] { return orderedFactors(*data, false); },
        over([](auto... p) { return vonkLUDecomp_m_32f_4x4(p...); }),
        over([](auto... p) { return bareDecomposeCall(p...); }), inLine);
    contest.contestants[1].results = [=] { return data->status == vonkOk ? orderedFactors(*data, true) : Values(); };
    return contest;
}

Contest multiplyCalls(std::size_t count) {
    const auto shared = std::make_shared<CallData>(count, 16);
    const float *a = shared->a.data(), *b = shared->b.data();
    float *d = shared->d.data();
    const auto inLine = [=](std::size_t n) {
        plain::multiplyOne<plain::Loops::rowByRow, float, float, 4>(a + n * 16, b + n * 16, d + n * 16);
        return vonkOk;
    };
    const auto over = [=](auto function) {
        return
            [=](std::size_t n) { return function(a + n * 16, rowBytes, b + n * 16, rowBytes, d + n * 16, rowBytes); };
    };
    CallData *data = shared.get();
    Contest contest = contestOf(shared);
    contest.contestants = callContestants(
        data, [=] { return Values(data->d.data(), data->d.data() + data->d.size()); },
        over([](auto... p) { return vonkMul_mm_32f_4x4(p...); }),
        over([](auto... p) { return bareMultiplyCall(p...); }), inLine);
    return contest;
}

void add(Rows &rows, const std::string &function, Contest (*prepare)(std::size_t)) {
    for (const std::size_t count : objectCounts)
        rows.push_back({function + "/" + std::to_string(count), [=] { return prepare(count); }});
}

} // namespace

void addCallRows(Rows &rows) {
    add(rows, "vonkAdd_vv_32f_4x1", vectorCalls<4, vonkAdd_vv_32f_4x1, bareAddCall, std::plus<float>>);
    add(rows, "vonkSub_vv_32f_3x1", vectorCalls<3, vonkSub_vv_32f_3x1, bareSubCall, std::minus<float>>);
    add(rows, "vonkLUDecomp_m_32f_4x4", decomposeCalls);
    add(rows, "vonkMul_mm_32f_4x4", multiplyCalls);
}

} // namespace bench
