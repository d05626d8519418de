// A filter for determinants of Real32 that are promised in the 80-bit type and rounded once: the same polynomial in
// double, with a bound of the error beside it.
//
// Products of two elements are exact in double, and nothing leaves its range: of six elements none is above 2^768 or
// below 2^-894. On the way of a term to a determinant of order 6 lie 15 roundings (of a sum, or of a product with a
// minor; fewer of lower order), each to 53 bits here and to 53 or 64 bits in the 80-bit type. With M the sum of the
// magnitudes of all terms, both results are thus within 15.1 * 2^-53 M of the exact one, and within 2^-48 M of each
// other. `error`, 2^-47 M, leaves as much again for the roundings of M itself, where all is positive, and of the
// interval's ends. Rounding is monotone: if both ends round to one Real32, the promised result rounds to it. Doubtful
// are the other lanes, results of 0, whose sign the interval does not tell, and what is infinite or NaN.
#pragma once

#include "frame/doubles.h"

namespace vonkk3::lu {

// A product of elements; its magnitude is its own.
template <std::size_t width> struct BoundedTerm { Doubles<width> value; };

template <std::size_t width> struct BoundedSum {
    Doubles<width> value, magnitude;

    BoundedSum() = default;
    VONKK3_INLINE BoundedSum(const Doubles<width> &value, const Doubles<width> &magnitude)
        : value(value), magnitude(magnitude) {}
    VONKK3_INLINE BoundedSum(const BoundedTerm<width> &term) : value(term.value), magnitude(term.value.magnitude()) {}
};

template <std::size_t width>
VONKK3_INLINE BoundedTerm<width> operator*(const BoundedTerm<width> &a, const BoundedTerm<width> &b) {
    return {a.value * b.value};
}
template <std::size_t width>
VONKK3_INLINE BoundedSum<width> operator*(const BoundedTerm<width> &a, const BoundedSum<width> &b) {
    return {a.value * b.value, a.value.magnitude() * b.magnitude};
}
template <std::size_t width>
VONKK3_INLINE BoundedSum<width> operator*(const BoundedSum<width> &a, const BoundedTerm<width> &b) {
    return b * a;
}
template <std::size_t width>
VONKK3_INLINE BoundedSum<width> operator+(const BoundedSum<width> &a, const BoundedSum<width> &b) {
    return {a.value + b.value, a.magnitude + b.magnitude};
}
template <std::size_t width>
VONKK3_INLINE BoundedSum<width> operator-(const BoundedSum<width> &a, const BoundedSum<width> &b) {
    return {a.value - b.value, a.magnitude + b.magnitude};
}
template <std::size_t width>
VONKK3_INLINE BoundedSum<width> operator-(const BoundedTerm<width> &a, const BoundedTerm<width> &b) {
    return BoundedSum<width>(a) - BoundedSum<width>(b);
}

// The results of a pack of objects, and the lanes where they are no more than likely.
template <std::size_t width> struct Filtered {
    PackOf<width> results;
    unsigned doubts; // a bit for each lane

    VONKK3_INLINE explicit Filtered(const BoundedSum<width> &sum) {
        const Doubles<width> error = sum.magnitude * 0x1p-47;
        const PackOf<width> high = (sum.value + error).rounded();
        results = (sum.value - error).rounded();
        doubts = bitsOf(((results == high) & (magnitude(results) > PackOf<width>(0))).lanes) ^ ((1U << width) - 1);
    }
};

} // namespace vonkk3::lu
