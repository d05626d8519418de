// libxsmm's kernels, written for the least processor it writes for: SSE3, one step above what everybody else here is
// compiled for.
#include "peers/library_products.h"

#include <cstdio>
#include <cstdlib>
#include <libxsmm.h>

namespace bench::xsmm {

Kernel kernelFor(std::size_t rows, std::size_t columns, std::size_t terms) {
    libxsmm_init();
    libxsmm_set_target_archid(LIBXSMM_X86_SSE3);
    const float alpha = 1, beta = 0;
    const int flags = LIBXSMM_GEMM_FLAG_NONE;
    const libxsmm_smmfunction kernel =
        libxsmm_smmdispatch(libxsmm_blasint(rows), libxsmm_blasint(columns), libxsmm_blasint(terms), nullptr, nullptr,
                            nullptr, &alpha, &beta, &flags, nullptr);
    if (!kernel) {
        std::fprintf(stderr, "libxsmm has no kernel of %zu x %zu x %zu\n", rows, columns, terms);
        std::exit(EXIT_FAILURE);
    }
    return kernel;
}

void multiplyByOne(Kernel kernel, std::size_t order, const float *a, const float *b, float *d, std::size_t count) {
    const std::size_t elements = order * order;
    for (std::size_t n = 0; n < count; ++n) kernel(b, a + n * elements, d + n * elements);
}

void multiplyArrays(Kernel kernel, std::size_t order, const float *a, const float *b, float *d, std::size_t count) {
    const std::size_t elements = order * order;
    for (std::size_t n = 0; n < count; ++n) kernel(b + n * elements, a + n * elements, d + n * elements);
}

void multiplyVectorArrays(Kernel kernel, std::size_t order, const float *columns, const float *v, float *d,
                          std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) kernel(columns + n * order * order, v + n * order, d + n * order);
}

} // namespace bench::xsmm
