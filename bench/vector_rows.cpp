// Rows of scaled sums, products and norms of vectors.
#include "peers/eigen_vectors.h"
#include "peers/plain_vectors.h"
#include "vector_contest.h"

#include <cmath>

namespace bench {
namespace {

using Single = VectorContest<float>;

constexpr float factor = 0.75F, otherFactor = -1.25F;

// Sums of products of numbers below 1 by another order, and roots by other means.
std::string otherRoundings(const Values &expected, const Values &found) {
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (!(std::fabs(expected[i] - found[i]) <= 1e-5 * std::fabs(expected[i]) + 1e-4))
            return "result " + std::to_string(i) + ": " + std::to_string(found[i]) + " instead of " +
                   std::to_string(expected[i]);
    return "";
}

// ---- Vectors of run-time length -------------------------------------------------------------------------------------

Contest longSaxpy(std::size_t length) {
    Single row("elements", length, length, otherRoundings);
    row.library([=](auto *a, auto *b, auto *d) { return vonkSaxpy_vv_32f(a, factor, b, d, std::uint32_t(length)); });
    row.peer("plain", [=](auto *a, auto *b, auto *d) { plain::addScaled(a, factor, b, d, length); });
    row.peer("Eigen", [=](auto *a, auto *b, auto *d) { eigen::addScaled(a, factor, b, d, length); });
    return row.contest;
}

Contest longDot(std::size_t length) {
    constexpr auto loosely = Agreement::tolerance;
    Single row("elements", length, length, 1, otherRoundings);
    row.library([=](auto... p) { return vonkDotProduct_vv_32f(p..., std::uint32_t(length)); });
    row.peer(
        "plain", [=](auto... p) { plain::dot(p..., length); }, loosely);
    row.peer(
        "plain, eight sums", [=](auto... p) { plain::dotInEightSums(p..., length); }, loosely);
    row.peer(
        "Eigen", [=](auto... p) { eigen::dot(p..., length); }, loosely);
    return row.contest;
}

Contest longNorm(std::size_t length) {
    constexpr auto loosely = Agreement::tolerance;
    Single row("elements", length, length, 1, otherRoundings);
    row.library([=](auto *a, auto *, auto *d) { return vonkL2Norm_v_32f(a, d, std::uint32_t(length)); });
    row.peer(
        "plain", [=](auto *a, auto *, auto *d) { plain::norm(a, d, length); }, loosely);
    row.peer(
        "plain, eight sums", [=](auto *a, auto *, auto *d) { plain::normInEightSums(a, d, length); }, loosely);
    row.peer(
        "Eigen", [=](auto *a, auto *, auto *d) { eigen::norm(a, d, length); }, loosely);
    return row.contest;
}

// ---- Arrays of vectors of fixed size --------------------------------------------------------------------------------

template <std::size_t length, std::size_t spacing> std::string sized(const std::string &function) {
    return function + "_32f_" + std::to_string(length) + "x1" + (spacing == length ? "" : " (16 bytes apart)");
}

// One result an object.
template <std::size_t length, std::size_t spacing, auto dotByOne, auto dotArrays, auto norms>
void addMeasures(Rows &rows) {
    constexpr std::int32_t stride = spacing * sizeof(float);
    constexpr auto loosely = Agreement::tolerance;
    using Plain = plain::Vectors<length, spacing>;
    using Eigen = eigen::Vectors<length, spacing>;
    for (const std::size_t count : objectCounts) {
        const auto objects = std::uint32_t(count);
        const auto row = [=] { return Single("objects", count, count * spacing, count, otherRoundings); };
        const auto enter = [&](const std::string &function, auto prepare) {
            rows.push_back({rowName(sized<length, spacing>(function), count), prepare});
        };
        enter("vonkDotProduct_vav", [=] {
            Single contest = row();
            contest.library([=](auto *a, auto *v, auto *d) { return dotByOne(a, stride, v, d, objects); });
            contest.peer(
                "plain", [=](auto... p) { Plain::dotByOne(p..., count); }, loosely);
            contest.peer(
                "Eigen", [=](auto... p) { Eigen::dotByOne(p..., count); }, loosely);
            contest.peer(
                "Eigen, one expression", [=](auto... p) { Eigen::dotByOneAtOnce(p..., count); }, loosely);
            return contest.contest;
        });
        enter("vonkDotProduct_vava", [=] {
            Single contest = row();
            contest.library([=](auto *a, auto *b, auto *d) { return dotArrays(a, stride, b, stride, d, objects); });
            contest.peer(
                "plain", [=](auto... p) { Plain::dotArrays(p..., count); }, loosely);
            contest.peer(
                "Eigen", [=](auto... p) { Eigen::dotArrays(p..., count); }, loosely);
            return contest.contest;
        });
        enter("vonkL2Norm_va", [=] {
            Single contest = row();
            contest.library([=](auto *a, auto *, auto *d) { return norms(a, stride, d, objects); });
            contest.peer(
                "plain", [=](auto *a, auto *, auto *d) { Plain::norms(a, d, count); }, loosely);
            contest.peer(
                "Eigen", [=](auto *a, auto *, auto *d) { Eigen::norms(a, d, count); }, loosely);
            contest.peer(
                "Eigen, one expression", [=](auto *a, auto *, auto *d) { Eigen::normsAtOnce(a, d, count); }, loosely);
            return contest.contest;
        });
    }
}

Contest crossProducts(std::size_t count) {
    constexpr std::int32_t stride = 3 * sizeof(float);
    Single row("objects", count, count * 3, otherRoundings);
    row.library([=](auto *a, auto *b, auto *d) {
        return vonkCrossProduct_vava_32f_3x1(a, stride, b, stride, d, stride, std::uint32_t(count));
    });
    row.peer("plain", [=](auto... p) { plain::Vectors<3>::cross(p..., count); });
    row.peer("Eigen", [=](auto... p) { eigen::Vectors<3>::cross(p..., count); });
    return row.contest;
}

Contest combinations(std::size_t count) {
    constexpr std::int32_t stride = 4 * sizeof(float);
    Single row("objects", count, count * 4, otherRoundings);
    row.library([=](auto *a, auto *b, auto *d) {
        return vonkLComb_vava_32f_4x1(a, stride, factor, b, stride, otherFactor, d, stride, std::uint32_t(count));
    });
    row.peer("plain",
             [=](auto *a, auto *b, auto *d) { plain::Vectors<4>::combine(a, factor, b, otherFactor, d, count); });
    row.peer("Eigen",
             [=](auto *a, auto *b, auto *d) { eigen::Vectors<4>::combine(a, factor, b, otherFactor, d, count); });
    return row.contest;
}

} // namespace

void addVectorRows(Rows &rows) {
    for (const std::size_t length : {64, 1000, 100000}) {
        rows.push_back({rowName("vonkSaxpy_vv_32f", length), [=] { return longSaxpy(length); }});
        rows.push_back({rowName("vonkDotProduct_vv_32f", length), [=] { return longDot(length); }});
        rows.push_back({rowName("vonkL2Norm_v_32f", length), [=] { return longNorm(length); }});
    }
    addMeasures<3, 3, vonkDotProduct_vav_32f_3x1, vonkDotProduct_vava_32f_3x1, vonkL2Norm_va_32f_3x1>(rows);
    addMeasures<3, 4, vonkDotProduct_vav_32f_3x1, vonkDotProduct_vava_32f_3x1, vonkL2Norm_va_32f_3x1>(rows);
    addMeasures<4, 4, vonkDotProduct_vav_32f_4x1, vonkDotProduct_vava_32f_4x1, vonkL2Norm_va_32f_4x1>(rows);
    for (const std::size_t count : objectCounts) {
        rows.push_back({rowName("vonkCrossProduct_vava_32f_3x1", count), [=] { return crossProducts(count); }});
        rows.push_back({rowName("vonkLComb_vava_32f_4x1", count), [=] { return combinations(count); }});
    }
}

} // namespace bench
