// The plain loops. __restrict lets the compiler put them into lanes without asking about overlap at run time.
#include "peers/plain_vectors.h"

#include <cmath>

namespace bench::plain {

void addScaled(const float *__restrict a, float factor, const float *__restrict b, float *__restrict d,
               std::size_t length) {
    for (std::size_t j = 0; j < length; ++j) d[j] = a[j] * factor + b[j];
}

namespace {

float sumOfProducts(const float *__restrict a, const float *__restrict b, std::size_t length) {
    float sum = 0;
    for (std::size_t j = 0; j < length; ++j) sum += a[j] * b[j];
    return sum;
}

float sumOfProductsInEight(const float *__restrict a, const float *__restrict b, std::size_t length) {
    constexpr std::size_t lanes = 8;
    float sums[lanes] = {};
    std::size_t j = 0;
    for (; j + lanes <= length; j += lanes)
        for (std::size_t k = 0; k < lanes; ++k) sums[k] += a[j + k] * b[j + k];
    float sum = 0;
    for (const float lane : sums) sum += lane;
    return sum + sumOfProducts(a + j, b + j, length - j);
}

} // namespace

void dot(const float *a, const float *b, float *d, std::size_t length) { *d = sumOfProducts(a, b, length); }
void dotInEightSums(const float *a, const float *b, float *d, std::size_t length) {
    *d = sumOfProductsInEight(a, b, length);
}
void norm(const float *a, float *d, std::size_t length) { *d = std::sqrt(sumOfProducts(a, a, length)); }
void normInEightSums(const float *a, float *d, std::size_t length) {
    *d = std::sqrt(sumOfProductsInEight(a, a, length));
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::combine(const float *__restrict a, float first, const float *__restrict b, float second,
                                       float *__restrict d, std::size_t count) {
    for (std::size_t j = 0; j < count * spacing; ++j) d[j] = a[j] * first + b[j] * second;
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::dotByOne(const float *__restrict a, const float *__restrict v, float *__restrict d,
                                        std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        float sum = a[n * spacing] * v[0];
        for (std::size_t j = 1; j < length; ++j) sum += a[n * spacing + j] * v[j];
        d[n] = sum;
    }
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::dotArrays(const float *__restrict a, const float *__restrict b, float *__restrict d,
                                         std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        float sum = a[n * spacing] * b[n * spacing];
        for (std::size_t j = 1; j < length; ++j) sum += a[n * spacing + j] * b[n * spacing + j];
        d[n] = sum;
    }
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::norms(const float *__restrict a, float *__restrict d, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        float sum = a[n * spacing] * a[n * spacing];
        for (std::size_t j = 1; j < length; ++j) sum += a[n * spacing + j] * a[n * spacing + j];
        d[n] = std::sqrt(sum);
    }
}

template <std::size_t length, std::size_t spacing>
void Vectors<length, spacing>::cross(const float *__restrict a, const float *__restrict b, float *__restrict d,
                                     std::size_t count) {
    if constexpr (length == 3)
        for (std::size_t n = 0; n < count; ++n, a += spacing, b += spacing, d += spacing) {
            d[0] = a[1] * b[2] - a[2] * b[1];
            d[1] = a[2] * b[0] - a[0] * b[2];
            d[2] = a[0] * b[1] - a[1] * b[0];
        }
}

template struct Vectors<3>;
template struct Vectors<3, 4>;
template struct Vectors<4>;

} // namespace bench::plain
