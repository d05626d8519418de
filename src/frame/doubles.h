// The numbers of a pack in double, for filters.
#pragma once

#include "frame/pack.h"

#include <cstdint>

namespace vonkk3 {

template <std::size_t width> struct DoublesOf;
template <> struct DoublesOf<4> {
    typedef double Lanes __attribute__((vector_size(32)));
    typedef std::int64_t Bits __attribute__((vector_size(32)));
    typedef float Rounded __attribute__((vector_size(16)));
};
template <> struct DoublesOf<8> {
    typedef double Lanes __attribute__((vector_size(64)));
    typedef std::int64_t Bits __attribute__((vector_size(64)));
    typedef float Rounded __attribute__((vector_size(32)));
};

template <std::size_t width> struct Doubles {
    using Lanes = typename DoublesOf<width>::Lanes;
    using Bits = typename DoublesOf<width>::Bits;
    using Rounded = typename DoublesOf<width>::Rounded;
    Lanes lanes;

    Doubles() = default;
    VONKK3_INLINE explicit Doubles(const Lanes &lanes) : lanes(lanes) {}
    VONKK3_INLINE explicit Doubles(const PackOf<width> &pack) : lanes(__builtin_convertvector(pack.lanes, Lanes)) {}

    // Rounded to Real32, lane by lane.
    VONKK3_INLINE PackOf<width> rounded() const { return __builtin_convertvector(lanes, Rounded); }

    VONKK3_INLINE friend Doubles operator+(const Doubles &a, const Doubles &b) { return Doubles(a.lanes + b.lanes); }
    VONKK3_INLINE friend Doubles operator-(const Doubles &a, const Doubles &b) { return Doubles(a.lanes - b.lanes); }
    VONKK3_INLINE friend Doubles operator*(const Doubles &a, const Doubles &b) { return Doubles(a.lanes * b.lanes); }
    VONKK3_INLINE friend Doubles operator*(const Doubles &a, double b) { return Doubles(a.lanes * b); }
    VONKK3_INLINE Doubles magnitude() const {
        return Doubles(reinterpret_cast<Lanes>(reinterpret_cast<Bits>(lanes) & INT64_MAX));
    }
};

} // namespace vonkk3
