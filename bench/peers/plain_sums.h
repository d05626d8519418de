// Sums and differences as plain loops. Arrays are packed, sizes are fixed in the code, and no operand overlaps another:
// what somebody knows who writes the loop for his own data.
#pragma once

#include <cstddef>

namespace bench::plain {

void add(const float *a, const float *b, float *d, std::size_t length);
void add(const double *a, const double *b, double *d, std::size_t length);
void addWide(const double *a, const double *b, double *d, std::size_t length); // through the 80-bit type

template <std::size_t length> struct Sums {
    static void addVector(const float *a, const float *v, float *d, std::size_t count);          // d(n) = a(n) + v
    static void subtractFromVector(const float *v, const float *a, float *d, std::size_t count); // d(n) = v - a(n)
    static void addArrays(const float *a, const float *b, float *d, std::size_t count);          // d(n) = a(n) + b(n)
    static void subtractArrays(const float *a, const float *b, float *d, std::size_t count);     // d(n) = a(n) - b(n)
};

// Structures of arrays: element j of object n is a[j][n].
void addFourTables(const float *const *a, const float *const *b, float *const *d, std::size_t count);

// Length and byte strides among the arguments, as a general routine has them.
void addArrays(const float *a, std::ptrdiff_t aStride, const float *b, std::ptrdiff_t bStride, float *d,
               std::ptrdiff_t dStride, std::size_t length, std::size_t count);

} // namespace bench::plain
