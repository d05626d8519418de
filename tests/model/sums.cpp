// The orders in which families add up. See sums.h.
#include "model/sums.h"

#include <array>
#include <xmmintrin.h>

namespace model {

namespace {

struct FormulaReader {
    std::string_view rest;
    const ElementArithmetic &arithmetic;
    const Numbers &x;

    char next() {
        const char letter = rest.front();
        rest.remove_prefix(1);
        return letter;
    }
    Wide term() {
        const char letter = next();
        if (letter != '(') return x[static_cast<std::size_t>(letter - '0')];
        const Wide inner = sum();
        next(); // the closing bracket
        return inner;
    }
    Wide sum() {
        Wide total = term();
        while (rest.starts_with('+')) {
            next();
            total = arithmetic.add(total, term());
        }
        return total;
    }
};

} // namespace

Wide sumAs(std::string_view formula, const ElementArithmetic &arithmetic, const Numbers &x) {
    return FormulaReader{formula, arithmetic, x}.sum();
}

Wide minorOfThree(std::string_view formula, const ElementArithmetic &arithmetic, const Numbers &a) {
    const auto factor = [&](std::size_t k) { return elementOfThree(formula.substr(3 * k), a); };
    return arithmetic.subtract(arithmetic.multiply(factor(0), factor(1)), arithmetic.multiply(factor(2), factor(3)));
}

Wide sumInLanes(const ElementArithmetic &arithmetic, std::uintptr_t address, const Numbers &terms) {
    Numbers lanes(8); // two registers
    std::size_t j = 0;
    Wide sum = 0;
    if (terms.size() >= 11 && address % 4 == 0) {
        for (; (address + 4 * j) % 16 != 0; ++j) lanes[0] = arithmetic.add(lanes[0], terms[j]);
        for (; terms.size() - j >= 8; j += 8)
            for (std::size_t lane = 0; lane < 8; ++lane) lanes[lane] = arithmetic.add(lanes[lane], terms[j + lane]);
        sum = sumAs("((0+4)+(2+6))+((1+5)+(3+7))", arithmetic, lanes);
    }
    for (; j < terms.size(); ++j) sum = arithmetic.add(sum, terms[j]);
    return sum;
}

Wide rootByEstimate(const ElementArithmetic &arithmetic, Wide sum) {
    const Wide r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(static_cast<float>(sum))));
    const Wide rest = arithmetic.subtract(3, arithmetic.multiply(sum, arithmetic.multiply(r, r)));
    return arithmetic.multiply(sum, arithmetic.multiply(r, arithmetic.multiply(0.5, rest)));
}

} // namespace model
