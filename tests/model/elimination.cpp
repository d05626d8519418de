// Gaussian elimination. See elimination.h.
#include "model/elimination.h"

#include <cmath>
#include <numeric>
#include <utility>

namespace model {

namespace {

struct Elimination {
    const Execution &execution;
    std::uint64_t order;
    Numbers elements; // by rows
    std::vector<std::uint64_t> index = std::vector<std::uint64_t>(order);

    Wide &at(std::uint64_t i, std::uint64_t j) { return elements[index[i] * order + j]; }

    // The first of the largest magnitudes, against a best that has only the digits of a Real32. What a NaN among Real64
    // candidates does is open.
    std::uint64_t search(std::uint64_t k) {
        Wide best = static_cast<float>(std::fabs(at(k, k)));
        std::uint64_t position = k;
        for (std::uint64_t i = k + 1; i < order; ++i) {
            const Wide candidate = std::fabs(at(i, k));
            execution.markOpenIf(!execution.isReal32() && std::isunordered(candidate, best));
            if (!std::isgreater(candidate, best)) continue;
            best = static_cast<float>(candidate);
            position = i;
        }
        return position;
    }

    void subtractRow(std::uint64_t k, std::uint64_t i) {
        const Wide negated = execution.negated(execution.divide(at(i, k), at(k, k)));
        for (std::uint64_t j = k + 1; j < order; ++j)
            at(i, j) = execution.rounded(execution.multiplyAdd(at(k, j), negated, at(i, j)));
    }

    // A pivot is good from the tolerance on, the last one above it.
    std::optional<Wide> run(EliminationRules rules) {
        const Wide tolerance = execution.isReal32() ? 0x1p-23 : 0x1p-52;
        Wide product = 1;
        Wide sign = 1;
        std::iota(index.begin(), index.end(), std::uint64_t{0});
        for (std::uint64_t k = 0; k + 1 < order; ++k) {
            const std::uint64_t position = search(k);
            if (position != k) {
                std::swap(index[k], index[position]);
                sign = -sign;
            }
            if (!(std::fabs(at(k, k)) >= tolerance)) {
                if (!rules.goesOnAfterBadPivot) return std::nullopt;
                product = 0;
                break;
            }
            for (std::uint64_t i = k + 1; i < order; ++i) subtractRow(k, i);
            product = execution.multiply(at(k, k), product);
            if (rules.roundsProduct) product = execution.rounded(product);
        }
        const Wide last = at(order - 1, order - 1);
        if (!(std::fabs(last) > tolerance)) return std::nullopt;
        return execution.multiply(product, execution.multiply(last, sign));
    }
};

} // namespace

std::optional<Wide> productOfPivots(const Execution &execution, std::uint64_t order, Numbers rows,
                                    EliminationRules rules) {
    return Elimination{execution, order, std::move(rows)}.run(rules);
}

} // namespace model
