// Scaled sums, products and norms of vectors as plain loops. Arrays are evenly spaced, sizes are fixed in the code, and
// no operand overlaps another: what somebody knows who writes the loop for his own data.
#pragma once

#include <cstddef>

namespace bench::plain {

void addScaled(const float *a, float factor, const float *b, float *d, std::size_t length); // d = a * factor + b

// The sum of products and the root of the sum of squares: term by term, and in eight sums side by side, which is what
// somebody writes who knows that a compiler may not.
void dot(const float *a, const float *b, float *d, std::size_t length);
void dotInEightSums(const float *a, const float *b, float *d, std::size_t length);
void norm(const float *a, float *d, std::size_t length);
void normInEightSums(const float *a, float *d, std::size_t length);

// Element 0 of object n lies at n * spacing.
template <std::size_t length, std::size_t spacing = length> struct Vectors {
    static void combine(const float *a, float first, const float *b, float second, float *d, std::size_t count);
    static void dotByOne(const float *a, const float *v, float *d, std::size_t count); // d[n] = a(n) v
    static void dotArrays(const float *a, const float *b, float *d, std::size_t count);
    static void norms(const float *a, float *d, std::size_t count);
    static void cross(const float *a, const float *b, float *d, std::size_t count); // of length 3
};

} // namespace bench::plain
