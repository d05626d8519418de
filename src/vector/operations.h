// What is done to the elements of vectors, in scalars and in lanes. In Real32 every product and sum rounds; Real64 is
// handed over wide and rounds when it is stored. Constants are spread to lanes once, when the operation is made.
#pragma once

#include "frame/lanes.h"
#include "frame/operations.h"
#include "vector/block_walk.h"

namespace vonkk3::vector {

// A constant of a call: as it is worked with, and for Real32 in all lanes.
template <class T> struct Constant {
    T value;
    explicit Constant(T value) : value(value) {}
    operator Working<T>() const { return value; }
};
template <> struct Constant<Real32> {
    Real32 value;
    __m128 lanes;
    explicit Constant(Real32 value) : value(value), lanes(_mm_set1_ps(value)) {}
    operator Real32() const { return value; }
};

// Constant less element.
struct ReversedDifference {
    template <class Real> Real operator()(Real a, Real b) const { return b - a; }
    __m128 operator()(__m128 a, __m128 b) const { return _mm_sub_ps(b, a); }
};

struct Product {
    template <class Real> Real operator()(Real a, Real b) const { return a * b; }
    __m128 operator()(__m128 a, __m128 b) const { return _mm_mul_ps(a, b); }
};

// One of these with a constant as its second operand.
template <class T, class Operation> struct WithConstant {
    Constant<T> constant;
    Working<T> operator()(Working<T> a) const { return Operation{}(a, Working<T>(constant)); }
    __m128 operator()(__m128 a) const { return Operation{}(a, constant.lanes); }
};

// First product, then sum, never fused.
template <class T> struct ScaledSum {
    Constant<T> factor;
    Working<T> operator()(Working<T> a, Working<T> b) const { return a * factor + b; }
    __m128 operator()(__m128 a, __m128 b) const { return _mm_add_ps(_mm_mul_ps(a, factor.lanes), b); }
};

template <class T> inline constexpr Prefetch prefetchOf<ScaledSum<T>> = Prefetch::inHalves;

// Two products, then their sum. A factor of zero is no shortcut: it makes a NaN of an infinity.
template <class T> struct LinearCombination {
    Constant<T> first, second;
    Working<T> operator()(Working<T> a, Working<T> b) const { return a * first + b * second; }
    __m128 operator()(__m128 a, __m128 b) const {
        return _mm_add_ps(_mm_mul_ps(a, first.lanes), _mm_mul_ps(b, second.lanes));
    }
};

} // namespace vonkk3::vector
