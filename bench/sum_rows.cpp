// Rows of sums and differences of vectors.
#include "peers/eigen_sums.h"
#include "peers/plain_sums.h"
#include "vector_contest.h"

#include <array>
#include <cmath>
#include <limits>

namespace bench {
namespace {

// Sums rounded once and twice differ by one unit in the last place at most.
std::string doubleRounding(const Values &expected, const Values &found) {
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (!(std::fabs(expected[i] - found[i]) <= std::numeric_limits<double>::epsilon() * std::fabs(expected[i])))
            return "sum " + std::to_string(i) + " is more than a unit in the last place away";
    return "";
}

using Single = VectorContest<float>;
using Double = VectorContest<double>;

// ---- Two vectors of run-time length ---------------------------------------------------------------------------------

Contest longVectors32(std::size_t length) {
    Single row("elements", length, length, doubleRounding);
    row.library([=](auto... p) { return vonkAdd_vv_32f(p..., std::uint32_t(length)); });
    row.peer("plain", [=](auto... p) { plain::add(p..., length); });
    row.peer("Eigen, Map of ArrayXf", [=](auto... p) { eigen::add(p..., length); });
    return row.contest;
}

Contest longVectors64(std::size_t length) {
    Double row("elements", length, length, doubleRounding);
    row.library([=](auto... p) { return vonkAdd_vv_64f(p..., std::uint32_t(length)); });
    row.peer("plain, long double", [=](auto... p) { plain::addWide(p..., length); });
    row.peer(
        "plain, double: rounds otherwise", [=](auto... p) { plain::add(p..., length); }, Agreement::tolerance);
    return row.contest;
}

// ---- Arrays of vectors of fixed size --------------------------------------------------------------------------------

// The calls of one size, in the order of `Forms`.
template <std::size_t length, auto addVector, auto subtractFromVector, auto addArrays, auto subtractArrays>
void addFixedSize(Rows &rows) {
    constexpr std::int32_t stride = length * sizeof(float);
    using Plain = plain::Sums<length>;
    using Eigen = eigen::Sums<length>;
    const std::string size = std::to_string(length) + "x1";
    const auto add = [&](const std::string &function, auto library, auto plainLoop, auto eigenLoop, auto eigenAtOnce) {
        for (const std::size_t count : objectCounts) {
            const auto prepare = [=] {
                Single row("objects", count, count * length, doubleRounding);
                row.library([=](auto... p) { return library(p..., std::uint32_t(count)); });
                row.peer("plain", [=](auto... p) { plainLoop(p..., count); });
                row.peer("Eigen", [=](auto... p) { eigenLoop(p..., count); });
                row.peer("Eigen, one expression", [=](auto... p) { eigenAtOnce(p..., count); });
                return row.contest;
            };
            rows.push_back({rowName(function + "_32f_" + size, count), prepare});
        }
    };
    add(
        "vonkAdd_vav",
        [](const float *a, const float *b, float *d, std::uint32_t count) {
            return addVector(a, stride, b, d, stride, count);
        },
        Plain::addVector, Eigen::addVector, Eigen::addVectorAtOnce);
    add(
        "vonkSub_vva",
        [](const float *a, const float *b, float *d, std::uint32_t count) {
            return subtractFromVector(a, b, stride, d, stride, count);
        },
        Plain::subtractFromVector, Eigen::subtractFromVector, Eigen::subtractFromVectorAtOnce);
    add(
        "vonkAdd_vava",
        [](const float *a, const float *b, float *d, std::uint32_t count) {
            return addArrays(a, stride, b, stride, d, stride, count);
        },
        Plain::addArrays, Eigen::addArrays, Eigen::addArraysAtOnce);
    add(
        "vonkSub_vava",
        [](const float *a, const float *b, float *d, std::uint32_t count) {
            return subtractArrays(a, stride, b, stride, d, stride, count);
        },
        Plain::subtractArrays, Eigen::subtractArrays, Eigen::subtractArraysAtOnce);
}

// ---- Other layouts and lengths --------------------------------------------------------------------------------------

// Element j of all objects is a run of its own.
template <class Pointer> std::array<Pointer, 4> tableOf(Pointer p, std::size_t count) {
    return {p, p + count, p + 2 * count, p + 3 * count};
}

Contest tables(std::size_t count) {
    Single row("objects", count, count * 4, doubleRounding);
    const auto overTables = [=](auto work) {
        return [=](const float *a, const float *b, float *d) {
            const auto aTable = tableOf(a, count), bTable = tableOf(b, count);
            const auto dTable = tableOf(d, count);
            return work(aTable.data(), bTable.data(), dTable.data());
        };
    };
    row.library(overTables(
        [=](auto *a, auto *b, auto *d) { return vonkAdd_vava_32f_4x1_P(a, 0, b, 0, d, 0, std::uint32_t(count)); }));
    row.peer("plain, structure of arrays", overTables([=](auto... p) { plain::addFourTables(p..., count); }));
    return row.contest;
}

Contest runTimeLength(std::size_t count) {
    constexpr std::size_t length = 4;
    constexpr std::int32_t stride = length * sizeof(float);
    Single row("objects", count, count * length, doubleRounding);
    row.library([=](auto *a, auto *b, auto *d) {
        return vonkAdd_vava_32f(a, stride, b, stride, d, stride, length, std::uint32_t(count));
    });
    row.peer("plain, run-time length and strides",
             [=](auto *a, auto *b, auto *d) { plain::addArrays(a, stride, b, stride, d, stride, length, count); });
    return row.contest;
}

} // namespace

void addSumRows(Rows &rows) {
    for (const std::size_t length : {8, 64, 1000, 100000})
        rows.push_back({rowName("vonkAdd_vv_32f", length), [=] { return longVectors32(length); }});
    rows.push_back({rowName("vonkAdd_vv_64f", 1000), [] { return longVectors64(1000); }});
    addFixedSize<3, vonkAdd_vav_32f_3x1, vonkSub_vva_32f_3x1, vonkAdd_vava_32f_3x1, vonkSub_vava_32f_3x1>(rows);
    addFixedSize<4, vonkAdd_vav_32f_4x1, vonkSub_vva_32f_4x1, vonkAdd_vava_32f_4x1, vonkSub_vava_32f_4x1>(rows);
    addFixedSize<6, vonkAdd_vav_32f_6x1, vonkSub_vva_32f_6x1, vonkAdd_vava_32f_6x1, vonkSub_vava_32f_6x1>(rows);
    for (const std::size_t count : objectCounts) {
        rows.push_back({rowName("vonkAdd_vava_32f_4x1_P", count), [=] { return tables(count); }});
        rows.push_back({rowName("vonkAdd_vava_32f (length 4)", count), [=] { return runTimeLength(count); }});
    }
}

} // namespace bench
