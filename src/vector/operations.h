// What is done to the elements of vectors, in scalars and in lanes. In Real32 every product and sum rounds; Real64 is
// handed over wide and rounds when it is stored.
#pragma once

#include "frame/operations.h"
#include "frame/stream.h"

namespace vonkk3::vector {

// Constant less element.
struct ReversedDifference {
    template <class Real> Real operator()(Real a, Real b) const { return b - a; }
};

using vonkk3::Product; // also by its name here

// First product, then sum, never fused.
template <class T> struct ScaledSum {
    Constant<T> factor;
    Working<T> operator()(Working<T> a, Working<T> b) const { return a * factor + b; }
    template <class Lanes>
    requires isRegister<Lanes> Lanes operator()(Lanes a, Lanes b) const {
        return a * factor.template lanes<Lanes>() + b;
    }
};

// Two products, then their sum. A factor of zero is no shortcut: it makes a NaN of an infinity.
template <class T> struct LinearCombination {
    Constant<T> first, second;
    Working<T> operator()(Working<T> a, Working<T> b) const { return a * first + b * second; }
    template <class Lanes>
    requires isRegister<Lanes> Lanes operator()(Lanes a, Lanes b) const {
        return a * first.template lanes<Lanes>() + b * second.template lanes<Lanes>();
    }
};

} // namespace vonkk3::vector
