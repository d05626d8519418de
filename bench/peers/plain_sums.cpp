// The plain loops. __restrict lets the compiler put them into lanes without asking about overlap at run time.
#include "peers/plain_sums.h"

namespace bench::plain {

void add(const float *__restrict a, const float *__restrict b, float *__restrict d, std::size_t length) {
    for (std::size_t j = 0; j < length; ++j) d[j] = a[j] + b[j];
}

void add(const double *__restrict a, const double *__restrict b, double *__restrict d, std::size_t length) {
    for (std::size_t j = 0; j < length; ++j) d[j] = a[j] + b[j];
}

void addWide(const double *__restrict a, const double *__restrict b, double *__restrict d, std::size_t length) {
    for (std::size_t j = 0; j < length; ++j) {
        const long double sum = static_cast<long double>(a[j]) + static_cast<long double>(b[j]);
        d[j] = static_cast<double>(sum);
    }
}

template <std::size_t length>
void Sums<length>::addVector(const float *__restrict a, const float *__restrict v, float *__restrict d,
                             std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t j = 0; j < length; ++j) d[n * length + j] = a[n * length + j] + v[j];
}

template <std::size_t length>
void Sums<length>::subtractFromVector(const float *__restrict v, const float *__restrict a, float *__restrict d,
                                      std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t j = 0; j < length; ++j) d[n * length + j] = v[j] - a[n * length + j];
}

template <std::size_t length>
void Sums<length>::addArrays(const float *__restrict a, const float *__restrict b, float *__restrict d,
                             std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t j = 0; j < length; ++j) d[n * length + j] = a[n * length + j] + b[n * length + j];
}

template <std::size_t length>
void Sums<length>::subtractArrays(const float *__restrict a, const float *__restrict b, float *__restrict d,
                                  std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t j = 0; j < length; ++j) d[n * length + j] = a[n * length + j] - b[n * length + j];
}

template struct Sums<3>;
template struct Sums<4>;
template struct Sums<6>;

void addFourTables(const float *const *a, const float *const *b, float *const *d, std::size_t count) {
    for (std::size_t j = 0; j < 4; ++j) add(a[j], b[j], d[j], count);
}

void addArrays(const float *__restrict a, std::ptrdiff_t aStride, const float *__restrict b, std::ptrdiff_t bStride,
               float *__restrict d, std::ptrdiff_t dStride, std::size_t length, std::size_t count) {
    const auto *aBytes = reinterpret_cast<const char *>(a);
    const auto *bBytes = reinterpret_cast<const char *>(b);
    auto *dBytes = reinterpret_cast<char *>(d);
    for (std::size_t n = 0; n < count; ++n, aBytes += aStride, bBytes += bStride, dBytes += dStride) {
        const auto *aObject = reinterpret_cast<const float *>(aBytes);
        const auto *bObject = reinterpret_cast<const float *>(bBytes);
        auto *dObject = reinterpret_cast<float *>(dBytes);
        for (std::size_t j = 0; j < length; ++j) dObject[j] = aObject[j] + bObject[j];
    }
}

} // namespace bench::plain
