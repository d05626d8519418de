// Whether what is written for an object touches what is read for it: where it does not, an object may be worked in
// registers as a whole, in whatever order.
#pragma once

#include "frame/unroll.h"
#include "frame/views.h"

namespace vonkk3::matrix {

// How far an object reaches from its base, backwards and forwards.
struct Reach {
    std::ptrdiff_t low, high;

    VONKK3_INLINE explicit Reach(std::size_t bytes) : low(0), high(std::ptrdiff_t(bytes)) {}

    // Further objects, so many strides away from the first.
    VONKK3_INLINE Reach repeated(std::size_t count, std::ptrdiff_t stride) const {
        Reach reach = *this;
        const std::ptrdiff_t last = strides(count - 1, stride);
        reach.low += last < 0 ? last : 0;
        reach.high += last > 0 ? last : 0;
        return reach;
    }
};

// The rows of a square matrix.
template <std::size_t order, class Operand> VONKK3_INLINE Reach reachOf(const Operand &operand) {
    return Reach(order * sizeof(typename Operand::Element)).repeated(order, operand.rowSpacing());
}

// The question for two objects of given reach, in one comparison.
class Touching {
public:
    VONKK3_INLINE Touching(Reach a, Reach b)
        : offset(std::uintptr_t(a.high - b.low) - 1), span(std::uintptr_t(a.high - a.low + b.high - b.low) - 1) {}
    VONKK3_INLINE bool operator()(const std::byte *a, const std::byte *b) const {
        return reinterpret_cast<std::uintptr_t>(a) - reinterpret_cast<std::uintptr_t>(b) + offset < span;
    }

private:
    std::uintptr_t offset, span;
};

} // namespace vonkk3::matrix
