// An element as an operand of the 80-bit unit, which takes one factor of a product from memory. Left to themselves,
// compilers load an element once, widened, and where it does not stay in one of the eight registers they put it away in
// ten bytes, which is several times as slow to write and to read as the element itself.
#pragma once

#include "frame/real.h"
#include "frame/unroll.h"

namespace vonkk3::lu {

// The instructions are repeated as often as they are written, in that order: hence `volatile`.
VONKK3_INLINE Wide pushed(const Real32Anywhere &element) {
    Wide value;
    __asm__ volatile("flds %1" : "=t"(value) : "m"(element));
    return value;
}
VONKK3_INLINE Wide pushed(const Real64Anywhere &element) {
    Wide value;
    __asm__ volatile("fldl %1" : "=t"(value) : "m"(element));
    return value;
}
VONKK3_INLINE Wide multiplied(Wide factor, const Real32Anywhere &element) {
    __asm__ volatile("fmuls %1" : "+t"(factor) : "m"(element));
    return factor;
}
VONKK3_INLINE Wide multiplied(Wide factor, const Real64Anywhere &element) {
    __asm__ volatile("fmull %1" : "+t"(factor) : "m"(element));
    return factor;
}

template <class T> class ElementInMemory {
public:
    VONKK3_INLINE explicit ElementInMemory(const std::byte *address) : address(address) {}

    VONKK3_INLINE friend Wide operator*(Wide factor, ElementInMemory e) {
        if constexpr (sizeof(T) == 4) return multiplied(factor, *reinterpret_cast<const Real32Anywhere *>(e.address));
        else return multiplied(factor, *reinterpret_cast<const Real64Anywhere *>(e.address));
    }
    VONKK3_INLINE friend Wide operator*(ElementInMemory e, Wide factor) { return factor * e; }
    VONKK3_INLINE friend Wide operator*(ElementInMemory a, ElementInMemory b) { return a.load() * b; }

private:
    VONKK3_INLINE Wide load() const {
        if constexpr (sizeof(T) == 4) return pushed(*reinterpret_cast<const Real32Anywhere *>(address));
        else return pushed(*reinterpret_cast<const Real64Anywhere *>(address));
    }

    const std::byte *address;
};

// The elements of a view, to be worked in W. What is worked in 80 bits has few registers: there, elements stay where
// they are until they are used, and are loaded again for each use.
template <class W, class View> class Elements {
public:
    VONKK3_INLINE explicit Elements(const View &view) : view(view) {}
    VONKK3_INLINE auto operator()(std::size_t i, std::size_t j) const {
        if constexpr (std::is_same_v<W, Wide>) return ElementInMemory<typename View::Element>(view.at(i, j));
        else return view.load(i, j);
    }

private:
    const View &view;
};

} // namespace vonkk3::lu
