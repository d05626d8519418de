// The sum of a long row of Real32 terms. See lane_sum.h.
#include "model/lane_sum.h"

#include <array>

namespace model {

float sumInLanes(Arithmetic &arithmetic, std::uintptr_t address, std::uint32_t length,
                 const std::function<float(std::uint64_t)> &term) {
    const bool inLanes = length >= 11 && address % 4 == 0;
    float sum = 0;
    std::uint64_t j = 0;
    if (inLanes) {
        for (; (address + 4 * j) % 16 != 0; ++j) sum = arithmetic.add(sum, term(j));
        std::array<float, 4> x{sum, 0, 0, 0};
        std::array<float, 4> y{0, 0, 0, 0};
        for (; length - j >= 8; j += 8)
            for (std::uint64_t lane = 0; lane < 4; ++lane) {
                x[lane] = arithmetic.add(x[lane], term(j + lane));
                y[lane] = arithmetic.add(y[lane], term(j + 4 + lane));
            }
        std::array<float, 4> both{};
        for (std::uint64_t lane = 0; lane < 4; ++lane) both[lane] = arithmetic.add(x[lane], y[lane]);
        sum = arithmetic.add(arithmetic.add(both[0], both[2]), arithmetic.add(both[1], both[3]));
    }
    for (; j < length; ++j) sum = arithmetic.add(sum, term(j));
    return sum;
}

} // namespace model
