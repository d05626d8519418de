// Doubles in registers, for filters, whose results do not show how they came about.
#pragma once

#include "frame/pack.h"

namespace vonkk3 {

// The numbers of a pack fill one or two registers of doubles, its parts. They are taken from memory, which needs no
// shuffle.
#ifdef __AVX2__
using DoubleLanes = __m256d;
inline DoubleLanes loadInDouble(const std::byte *numbers) { return _mm256_cvtps_pd(load4(numbers)); }
inline DoubleLanes broadcast(double value) { return _mm256_set1_pd(value); }
inline __m128 rounded(const DoubleLanes (&parts)[1]) { return _mm256_cvtpd_ps(parts[0]); }
inline __m256 rounded(const DoubleLanes (&parts)[2]) {
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(parts[0])), _mm256_cvtpd_ps(parts[1]), 1);
}
#else
using DoubleLanes = __m128d;
inline DoubleLanes loadInDouble(const std::byte *numbers) {
    DoubleLanes result;
    __asm__("cvtps2pd %1, %0" : "=x"(result) : "m"(*pair(numbers))); // of an intrinsic, compilers make two instructions
    return result;
}
inline DoubleLanes broadcast(double value) { return _mm_set1_pd(value); }
inline __m128 rounded(const DoubleLanes (&parts)[2]) {
    return _mm_movelh_ps(_mm_cvtpd_ps(parts[0]), _mm_cvtpd_ps(parts[1]));
}
#endif
#if defined(__AVX2__) && defined(__FMA__)
inline DoubleLanes plusProduct(DoubleLanes c, DoubleLanes a, DoubleLanes b) { return _mm256_fmadd_pd(a, b, c); }
inline DoubleLanes minusProduct(DoubleLanes c, DoubleLanes a, DoubleLanes b) { return _mm256_fnmadd_pd(a, b, c); }
#else
inline DoubleLanes plusProduct(DoubleLanes c, DoubleLanes a, DoubleLanes b) { return c + a * b; }
inline DoubleLanes minusProduct(DoubleLanes c, DoubleLanes a, DoubleLanes b) { return c - a * b; }
#endif
template <std::size_t width> inline constexpr std::size_t partsInDouble = width * sizeof(double) / sizeof(DoubleLanes);

struct ProductOfDoubles;

struct Doubles {
    DoubleLanes lanes;

    Doubles() = default;
    Doubles(DoubleLanes lanes) : lanes(lanes) {}
    Doubles(double value) : lanes(broadcast(value)) {}
    Doubles(const ProductOfDoubles &product);

    friend Doubles operator+(Doubles a, Doubles b) { return a.lanes + b.lanes; }
    friend Doubles operator-(Doubles a, Doubles b) { return a.lanes - b.lanes; }
};

// A product waits for what it is added to or subtracted from: where the target fuses them, they are one operation.
struct ProductOfDoubles {
    Doubles a, b;

    friend Doubles operator+(Doubles c, ProductOfDoubles ab) { return plusProduct(c.lanes, ab.a.lanes, ab.b.lanes); }
    friend Doubles operator-(Doubles c, ProductOfDoubles ab) { return minusProduct(c.lanes, ab.a.lanes, ab.b.lanes); }
    friend Doubles operator+(ProductOfDoubles ab, ProductOfDoubles cd) { return Doubles(ab) + cd; }
    friend Doubles operator-(ProductOfDoubles ab, ProductOfDoubles cd) { return Doubles(ab) - cd; }
};
inline Doubles::Doubles(const ProductOfDoubles &product) : lanes(product.a.lanes * product.b.lanes) {}
inline ProductOfDoubles operator*(Doubles a, Doubles b) { return {a, b}; }

} // namespace vonkk3
