// The operations of the two element types. Real32 computes in float, each operation rounded on its own; Real64 in the
// extended type under whatever precision and rounding the calling thread has set, with every rounding to 64 bits an
// explicit round64. Each operation reports the NaNs that it meets.
#pragma once

#include "model/memory.h"

#include <cmath>

namespace model {

using Wide = long double;

inline double round64(Wide value) { return static_cast<double>(value); }

class Arithmetic {
public:
    explicit Arithmetic(Memory &memory) : memory_(memory) {}

    template <class Real> Real add(Real a, Real b) { return seen(a, b, a + b); }
    template <class Real> Real subtract(Real a, Real b) { return seen(a, b, a - b); }
    template <class Real> Real multiply(Real a, Real b) { return seen(a, b, a * b); }
    template <class Real> Real divide(Real a, Real b) { return seen(a, b, a / b); }
    template <class Real> Real squareRoot(Real a) { return seen(a, a, std::sqrt(a)); }

private:
    template <class Real> Real seen(Real a, Real b, Real result) {
        if (std::isnan(a) || std::isnan(b) || std::isnan(result)) memory_.markNan();
        return result;
    }

    Memory &memory_;
};

} // namespace model
