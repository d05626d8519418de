// Elements for the operands: mixtures of numbers that bring out rounding, ties, cancellation and the special values.
#pragma once

#include "catalogue.h"
#include "random.h"

#include <cstdint>

namespace support {

enum class ValueKind {
    ordinary,      // random signs and mantissas, magnitudes from 1/4 to 4
    smallIntegers, // -4 to 4
    wideExponents, // magnitudes spread over most of the range
    ties,          // magnitudes 1/2, 1 and 2
    nearTies,      // magnitudes a few units in the last place beside 1, of either element type
};

// Shares in percent; what they leave is ordinary.
struct ValueMixture {
    unsigned smallIntegers = 20;
    unsigned wideExponents = 15;
    unsigned ties = 10;
    unsigned nearTies = 8;
    unsigned specials = 25; // of the calls: with zeros, denormals, infinities and NaNs among the elements
};

class ValueSource {
public:
    // Chooses the kind for a whole call.
    ValueSource(catalogue::Type type, const ValueMixture &mixture, Random &random);

    double next(Random &random) const; // exact in the element type

private:
    double regular(Random &random) const;
    double special(Random &random) const;

    catalogue::Type type_;
    ValueKind kind_;
    unsigned specials_ = 0;     // a set of kinds, as bits
    unsigned specialShare_ = 0; // of the elements, in percent
};

// The one NaN that is ever put into an operand, and to which NaNs are unified.
inline constexpr std::uint32_t quietNan32 = 0x7fc00000;
inline constexpr std::uint64_t quietNan64 = 0x7ff8000000000000;

std::uint64_t elementBits(catalogue::Type type, double value); // as it is stored, with zeros above a float
void storeElement(std::uintptr_t address, catalogue::Type type, double value);
double loadElement(std::uintptr_t address, catalogue::Type type);
bool isNanElement(const void *bytes, catalogue::Type type);
void unifyNan(void *bytes, catalogue::Type type); // if it is one

} // namespace support
