// Products by other libraries. All but Eigen store columns one behind the other. A matrix product over rows is the
// product of the exchanged operands over columns, element for element in the same memory, and so they are called; for
// vectors they get their matrices as they would have stored them themselves, `columns`, and nobody transposes.
#pragma once

#include <cstddef>

namespace bench {

namespace eigen {
template <std::size_t order> struct Products {
    static void multiplyByOne(const float *a, const float *b, float *d, std::size_t count);
    static void multiplyArrays(const float *a, const float *b, float *d, std::size_t count);
    static void multiplyVectors(const float *rows, const float *v, float *d, std::size_t count);
    static void multiplyVectorArrays(const float *rows, const float *v, float *d, std::size_t count);
    static void multiplyColumnsByVectors(const float *columns, const float *v, float *d, std::size_t count);
    static void multiplyColumnsByVectorsAtOnce(const float *columns, const float *v, float *d, std::size_t count);
    static void multiplyColumnArraysByVectors(const float *columns, const float *v, float *d, std::size_t count);
    static void multiplyColumnsByVectorsAdd(const float *columns, const float *v, const float *w, float *d,
                                            std::size_t count);
};
} // namespace eigen

// Which of them were there when this was built.
#ifdef BENCH_WITH_GLM
inline constexpr bool withGlm = true;
#else
inline constexpr bool withGlm = false;
#endif
#ifdef BENCH_WITH_CGLM
inline constexpr bool withCglm = true;
#else
inline constexpr bool withCglm = false;
#endif
#ifdef BENCH_WITH_XSMM
inline constexpr bool withXsmm = true;
#else
inline constexpr bool withXsmm = false;
#endif

// Orders 3 and 4.
namespace glm {
template <std::size_t order> struct Products {
    static void multiplyByOne(const float *a, const float *b, float *d, std::size_t count);
    static void multiplyArrays(const float *a, const float *b, float *d, std::size_t count);
    static void multiplyVectors(const float *columns, const float *v, float *d, std::size_t count);
    static void multiplyVectorArrays(const float *columns, const float *v, float *d, std::size_t count);
    static void multiplyVectorsAdd(const float *columns, const float *v, const float *w, float *d, std::size_t count);
};
} // namespace glm

// Orders 3 and 4.
namespace cglm {
template <std::size_t order> struct Products {
    static void multiplyByOne(const float *a, const float *b, float *d, std::size_t count);
    static void multiplyArrays(const float *a, const float *b, float *d, std::size_t count);
    static void multiplyVectors(const float *columns, const float *v, float *d, std::size_t count);
    static void multiplyVectorArrays(const float *columns, const float *v, float *d, std::size_t count);
    static void multiplyVectorsAdd(const float *columns, const float *v, const float *w, float *d, std::size_t count);
};
} // namespace cglm

// A kernel that libxsmm writes at run time for one shape.
namespace xsmm {
using Kernel = void (*)(const float *, const float *, float *, ...);

// The product of `rows` x `terms` by `terms` x `columns`, all stored by columns. Whoever asks ends the programme if the
// library has no such kernel: it would be compared with nothing.
Kernel kernelFor(std::size_t rows, std::size_t columns, std::size_t terms);

void multiplyByOne(Kernel kernel, std::size_t order, const float *a, const float *b, float *d, std::size_t count);
void multiplyArrays(Kernel kernel, std::size_t order, const float *a, const float *b, float *d, std::size_t count);
void multiplyVectorArrays(Kernel kernel, std::size_t order, const float *columns, const float *v, float *d,
                          std::size_t count);
} // namespace xsmm

} // namespace bench
