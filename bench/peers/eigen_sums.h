// Sums and differences with Eigen: object by object with its fixed-size vectors, and as one expression over the packed
// array.
#pragma once

#include <cstddef>

namespace bench::eigen {

void add(const float *a, const float *b, float *d, std::size_t length);
void add(const double *a, const double *b, double *d, std::size_t length);

template <std::size_t length> struct Sums {
    static void addVector(const float *a, const float *v, float *d, std::size_t count);
    static void subtractFromVector(const float *v, const float *a, float *d, std::size_t count);
    static void addArrays(const float *a, const float *b, float *d, std::size_t count);
    static void subtractArrays(const float *a, const float *b, float *d, std::size_t count);

    static void addVectorAtOnce(const float *a, const float *v, float *d, std::size_t count);
    static void subtractFromVectorAtOnce(const float *v, const float *a, float *d, std::size_t count);
    static void addArraysAtOnce(const float *a, const float *b, float *d, std::size_t count);
    static void subtractArraysAtOnce(const float *a, const float *b, float *d, std::size_t count);
};

} // namespace bench::eigen
