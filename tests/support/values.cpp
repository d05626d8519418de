// Choosing, storing and loading elements. See values.h.
#include "values.h"

#include <array>
#include <cmath>
#include <cstring>
#include <limits>

namespace support {
namespace {

using catalogue::Type;

enum Special : unsigned { zeros = 1, denormals = 2, infinities = 4, nans = 8, extremes = 16 };

double signedBy(Random &random, double magnitude) { return random.percent(50) ? -magnitude : magnitude; }

double roundTo(Type type, double value) {
    return type == Type::real32 ? static_cast<double>(static_cast<float>(value)) : value;
}

double denormal(Type type, Random &random) {
    const double last = type == Type::real32 ? 0x1p-149 : 0x1p-1074;
    return last * static_cast<double>(1 + random.below(random.percent(50) ? 4 : 0x7fffff));
}

double extreme(Type type, Random &random) {
    if (random.percent(50))
        return type == Type::real32 ? static_cast<double>(std::numeric_limits<float>::max())
                                    : std::numeric_limits<double>::max();
    return type == Type::real32 ? 0x1p-126 : 0x1p-1022;
}

unsigned chooseSpecials(Random &random) {
    constexpr std::array<unsigned, 8> sets{zeros,
                                           zeros,
                                           denormals,
                                           infinities,
                                           nans,
                                           zeros | denormals,
                                           nans | infinities,
                                           zeros | denormals | infinities | nans | extremes};
    return random.pick(std::span<const unsigned>(sets));
}

ValueKind chooseKind(const ValueMixture &mixture, Random &random) {
    auto share = static_cast<unsigned>(random.below(100));
    const auto takes = [&share](unsigned part) {
        if (share < part) return true;
        share -= part;
        return false;
    };
    if (takes(mixture.smallIntegers)) return ValueKind::smallIntegers;
    if (takes(mixture.wideExponents)) return ValueKind::wideExponents;
    if (takes(mixture.ties)) return ValueKind::ties;
    if (takes(mixture.nearTies)) return ValueKind::nearTies;
    return ValueKind::ordinary;
}

// Drawn in separate statements: the order in which a call's arguments are worked out is the compiler's.
double scaled(Random &random, std::int64_t lowestExponent, std::int64_t highestExponent) {
    const auto exponent = static_cast<int>(random.between(lowestExponent, highestExponent));
    const double mantissa = 1 + static_cast<double>(random.next() >> 12) * 0x1p-52;
    return std::ldexp(mantissa, exponent);
}

} // namespace

ValueSource::ValueSource(Type type, const ValueMixture &mixture, Random &random)
    : type_(type), kind_(chooseKind(mixture, random)) {
    if (!random.percent(mixture.specials)) return;
    constexpr std::array<unsigned, 3> shares{2, 6, 15};
    specials_ = chooseSpecials(random);
    specialShare_ = random.pick(std::span<const unsigned>(shares));
}

double ValueSource::next(Random &random) const {
    return random.percent(specialShare_) ? special(random) : roundTo(type_, regular(random));
}

double ValueSource::regular(Random &random) const {
    switch (kind_) {
    case ValueKind::smallIntegers: return static_cast<double>(random.between(-4, 4));
    case ValueKind::wideExponents: {
        const int limit = random.percent(70) ? 30 : type_ == Type::real32 ? 120 : 1000;
        return signedBy(random, scaled(random, -limit, limit));
    }
    case ValueKind::ties: return signedBy(random, std::ldexp(1.0, static_cast<int>(random.between(-1, 1))));
    case ValueKind::nearTies: {
        const double unit = type_ == Type::real32 || random.percent(40) ? 0x1p-23
                            : random.percent(50)                        ? 0x1p-28
                                                                        : 0x1p-52;
        return signedBy(random, 1 + static_cast<double>(random.between(-3, 3)) * unit);
    }
    case ValueKind::ordinary: break;
    }
    return signedBy(random, scaled(random, -2, 1));
}

double ValueSource::special(Random &random) const {
    for (;;) {
        const auto kind = 1u << random.below(5);
        if ((specials_ & kind) == 0) continue;
        switch (kind) {
        case zeros: return signedBy(random, 0.0);
        case denormals: return signedBy(random, denormal(type_, random));
        case infinities: return signedBy(random, std::numeric_limits<double>::infinity());
        case extremes: return signedBy(random, extreme(type_, random));
        default: return std::numeric_limits<double>::quiet_NaN();
        }
    }
}

void storeElement(std::uintptr_t address, Type type, double value) {
    void *const place = reinterpret_cast<void *>(address);
    if (std::isnan(value)) {
        if (type == Type::real32) std::memcpy(place, &quietNan32, sizeof quietNan32);
        else std::memcpy(place, &quietNan64, sizeof quietNan64);
    } else if (type == Type::real32) {
        const auto narrow = static_cast<float>(value);
        std::memcpy(place, &narrow, sizeof narrow);
    } else {
        std::memcpy(place, &value, sizeof value);
    }
}

std::uint64_t elementBits(Type type, double value) {
    std::uint64_t bits = 0;
    storeElement(reinterpret_cast<std::uintptr_t>(&bits), type, value);
    return bits;
}

double loadElement(std::uintptr_t address, Type type) {
    const void *const place = reinterpret_cast<const void *>(address);
    if (type == Type::real32) {
        float value;
        std::memcpy(&value, place, sizeof value);
        return static_cast<double>(value);
    }
    double value;
    std::memcpy(&value, place, sizeof value);
    return value;
}

bool isNanElement(const void *bytes, Type type) {
    return std::isnan(loadElement(reinterpret_cast<std::uintptr_t>(bytes), type));
}

void unifyNan(void *bytes, Type type) {
    if (isNanElement(bytes, type))
        storeElement(reinterpret_cast<std::uintptr_t>(bytes), type, std::numeric_limits<double>::quiet_NaN());
}

} // namespace support
