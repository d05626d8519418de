// The operations of one element type, on numbers that stand in the extended type, which holds every element as it is.
// Real32 computes in float, each operation rounded on its own; Real64 in the extended type under whatever precision and
// rounding the calling thread has set, and only what is stored or `rounded` is a double. Each operation reports the
// NaNs that it meets.
#pragma once

#include "model/grammar.h"
#include "model/memory.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace model {

using Wide = long double;
using Numbers = std::vector<Wide>;
using Places = std::vector<std::uintptr_t>; // addresses of elements

class ElementArithmetic {
public:
    ElementArithmetic(Element element, Memory &memory) : isReal32_(element == Element::real32), memory_(memory) {}

    Wide add(Wide a, Wide b) const {
        return inElementType(a, b, [](auto x, auto y) { return x + y; });
    }
    Wide subtract(Wide a, Wide b) const {
        return inElementType(a, b, [](auto x, auto y) { return x - y; });
    }
    Wide multiply(Wide a, Wide b) const {
        return inElementType(a, b, [](auto x, auto y) { return x * y; });
    }
    Wide divide(Wide a, Wide b) const {
        return inElementType(a, b, [](auto x, auto y) { return x / y; });
    }
    Wide squareRoot(Wide a) const {
        return inElementType(a, a, [](auto x, auto) { return std::sqrt(x); });
    }
    // Real32 subtracts from 0, which makes +0 of both zeros; Real64 changes the sign.
    Wide negated(Wide a) const { return isReal32_ ? subtract(0, a) : -a; }
    Wide squared(Wide a) const { return multiply(a, a); }
    Wide multiplyAdd(Wide a, Wide b, Wide c) const { return add(multiply(a, b), c); } // never fused

    // What a register keeps of a number that was made in extended precision, and what a store leaves of it.
    Wide kept(Wide number) const { return isReal32_ ? rounded(number) : number; }
    Wide rounded(Wide number) const {
        return isReal32_ ? static_cast<Wide>(static_cast<float>(number)) : static_cast<double>(number);
    }
    Wide load(std::uintptr_t address) const {
        return isReal32_ ? static_cast<Wide>(memory_.load<float>(address)) : memory_.load<double>(address);
    }
    Numbers load(const Places &places) const {
        Numbers numbers;
        for (const std::uintptr_t place : places) numbers.push_back(load(place));
        return numbers;
    }
    void store(std::uintptr_t address, Wide number) const {
        isReal32_ ? memory_.store(address, static_cast<float>(number))
                  : memory_.store(address, static_cast<double>(number));
    }

private:
    template <class Operation> Wide inElementType(Wide a, Wide b, Operation operation) const {
        const Wide result =
            isReal32_ ? static_cast<Wide>(operation(static_cast<float>(a), static_cast<float>(b))) : operation(a, b);
        if (std::isnan(a) || std::isnan(b) || std::isnan(result)) memory_.markNan();
        return result;
    }

    bool isReal32_;
    Memory &memory_;
};

} // namespace model
