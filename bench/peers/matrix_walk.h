// What the peers of matrices element by element share: where matrix n lies, and which jobs are built.
#pragma once

#include "peers/matrix_peers.h"

namespace bench {

// All objects of a job: `work(a, b, d)` with pointers to the elements of one matrix, or to the one result of a measure.
template <Job job, std::size_t order, class Work>
inline void walkPacked(const float *__restrict a, const float *__restrict b, float *__restrict d, std::size_t count,
                       Work work) {
    constexpr std::size_t size = order * order;
    for (std::size_t n = 0; n < count; ++n)
        work(a + n * size, job == Job::addArrays ? b + n * size : b, d + n * (isMeasure(job) ? 1 : size));
}

template <Job job, class Work>
inline void walkListed(const float *const *a, const float *const *b, float *const *d, std::size_t count, Work work) {
    for (std::size_t n = 0; n < count; ++n)
        work(a[n], b[job == Job::addArrays ? n : 0], isMeasure(job) ? d[0] + n : d[n]);
}

} // namespace bench
