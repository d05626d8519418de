// Eigen's matrices element by element.
#include "peers/matrix_walk.h"

#include <Eigen/Core>

namespace bench::eigen {
namespace {

using Eigen::Map;

template <std::size_t order> using Matrix = Eigen::Matrix<float, int(order), int(order)>;
template <std::size_t order>
using Columns = Eigen::Matrix<float, int(order *order), Eigen::Dynamic>; // a matrix in each

template <Job job, std::size_t order> inline void workOne(const float *a, const float *b, float *d) {
    const Map<const Matrix<order>> first(a), second(b);
    if constexpr (job == Job::addArrays || job == Job::addOne) Map<Matrix<order>>{d} = first + second;
    else if constexpr (job == Job::scale) Map<Matrix<order>>{d} = first * b[0];
    else if constexpr (job == Job::transpose) Map<Matrix<order>>{d} = first.transpose();
    else if constexpr (job == Job::norm) *d = first.norm();
    else *d = first.trace();
}

} // namespace

template <Job job, std::size_t order>
void Matrices<job, order>::packed(const float *a, const float *b, float *d, std::size_t count) {
    if constexpr (job == Job::addOne) {
        const Matrix<order> held = Map<const Matrix<order>>(b);
        walkPacked<job, order>(a, held.data(), d, count, workOne<job, order>);
    } else walkPacked<job, order>(a, b, d, count, workOne<job, order>);
}

template <Job job, std::size_t order>
void Matrices<job, order>::listed(const float *const *a, const float *const *b, float *const *d, std::size_t count) {
    if constexpr (job == Job::addOne) {
        const Matrix<order> held = Map<const Matrix<order>>(b[0]);
        const float *const first = held.data();
        walkListed<job>(a, &first, d, count, workOne<job, order>);
    } else walkListed<job>(a, b, d, count, workOne<job, order>);
}

template <Job job, std::size_t order>
void Matrices<job, order>::atOnce(const float *a, const float *b, float *d, std::size_t count) {
    const auto objects = Eigen::Index(count);
    const auto matrices = [&](auto *p) { return Map<const Columns<order>>(p, int(order * order), objects); };
    if constexpr (job == Job::norm) Map<Eigen::RowVectorXf>(d, objects) = matrices(a).colwise().norm();
    else {
        Map<Columns<order>> results(d, int(order * order), objects);
        if constexpr (job == Job::addArrays) results = matrices(a) + matrices(b);
        else if constexpr (job == Job::addOne) {
            const Eigen::Matrix<float, int(order * order), 1> held(b);
            results = matrices(a).colwise() + held;
        } else if constexpr (job == Job::scale) results = matrices(a) * b[0];
    }
}

#define BENCH_MATRICES(ORDER)                                                                                          \
    template struct Matrices<Job::addArrays, ORDER>;                                                                   \
    template struct Matrices<Job::addOne, ORDER>;                                                                      \
    template struct Matrices<Job::scale, ORDER>;                                                                       \
    template struct Matrices<Job::transpose, ORDER>;                                                                   \
    template struct Matrices<Job::norm, ORDER>;                                                                        \
    template struct Matrices<Job::trace, ORDER>;
BENCH_MATRICES(3)
BENCH_MATRICES(4)
BENCH_MATRICES(6)

} // namespace bench::eigen
