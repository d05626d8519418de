// Matrices element by element, by plain loops and by other libraries. Matrices are packed, or each lies behind an entry
// of a list; row by row or column by column makes no difference to these jobs.
#pragma once

#include <cstddef>

namespace bench {

enum class Job { addArrays, addOne, scale, transpose, norm, trace };

constexpr bool isMeasure(Job job) { return job == Job::norm || job == Job::trace; }

// A job on `count` matrices: sources a and b (the first of b is the single operand, and its first element the
// constant), results d, of which measures have one element per matrix. Of a list of results measures take the first
// entry, which is where all of them lie.
using PackedWork = void (*)(const float *a, const float *b, float *d, std::size_t count);
using ListedWork = void (*)(const float *const *a, const float *const *b, float *const *d, std::size_t count);

namespace plain {
template <Job job, std::size_t order> struct Matrices {
    static void packed(const float *a, const float *b, float *d, std::size_t count);
    static void listed(const float *const *a, const float *const *b, float *const *d, std::size_t count);
    static void atOnce(const float *a, const float *b, float *d, std::size_t count); // addArrays and scale: one loop
};
} // namespace plain

namespace eigen {
template <Job job, std::size_t order> struct Matrices {
    static void packed(const float *a, const float *b, float *d, std::size_t count);
    static void listed(const float *const *a, const float *const *b, float *const *d, std::size_t count);
    static void atOnce(const float *a, const float *b, float *d, std::size_t count); // not transpose, not trace
};
} // namespace eigen

// Orders 3 and 4; neither a norm nor a trace.
namespace glm {
template <Job job, std::size_t order> struct Matrices {
    static void packed(const float *a, const float *b, float *d, std::size_t count);
    static void listed(const float *const *a, const float *const *b, float *const *d, std::size_t count);
};
} // namespace glm

// Orders 3 and 4; neither sums nor a norm.
namespace cglm {
template <Job job, std::size_t order> struct Matrices {
    static void packed(const float *a, const float *b, float *d, std::size_t count);
    static void listed(const float *const *a, const float *const *b, float *const *d, std::size_t count);
};
} // namespace cglm

} // namespace bench
