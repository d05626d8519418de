// Error bounds, operation by operation.
#include "model/estimate.h"

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <cstddef>
#include <limits>

namespace model {

namespace {

constexpr int noGrain = -(1 << 20); // of a number that has been rounded
constexpr int zeroGrain = 1 << 20;  // 0 is a multiple of everything
constexpr int singleBits = 24;
constexpr int doubleBits = 53;
constexpr int extendedBits = 64;

Quad power(int exponent) { return std::ldexp(1.0L, std::clamp(exponent, -16445, 16383)); }

// Of the thread's 80-bit unit.
int extendedDigits() {
    const volatile long double one = 1;
    const volatile long double little = 0x1p-60L;
    const volatile long double sum = one + little;
    return sum - one == little ? extendedBits : doubleBits;
}

int grainOf(double value) {
    if (value == 0 || !std::isfinite(value)) return zeroGrain;
    int exponent = 0;
    const auto digits = static_cast<std::int64_t>(std::ldexp(std::frexp(value, &exponent), doubleBits));
    return exponent - doubleBits + __builtin_ctzll(static_cast<unsigned long long>(digits));
}

int addGrains(int a, int b) { return std::clamp(a + b, noGrain, zeroGrain); }

Certainty worse(Certainty a, Certainty b) { return std::max(a, b); }

Estimate uncertain(Certainty certainty) {
    Estimate estimate;
    estimate.certainty = certainty;
    return estimate;
}

Estimate ofComputed(long double number) {
    if (!std::isfinite(number)) return uncertain(std::isnan(number) ? Certainty::nan : Certainty::notFinite);
    Estimate estimate;
    estimate.value = number;
    estimate.size = magnitude(estimate.value);
    estimate.grain = noGrain;
    return estimate;
}

Grid without(const Grid &grid, std::size_t row, std::size_t column) {
    Grid rest;
    for (std::size_t i = 0; i < grid.size(); ++i) {
        if (i == row) continue;
        rest.push_back(grid[i]);
        rest.back().erase(rest.back().begin() + static_cast<std::ptrdiff_t>(column));
    }
    return rest;
}

Grid transposed(const Grid &grid) {
    Grid result(grid.front().size());
    for (const std::vector<Estimate> &row : grid)
        for (std::size_t j = 0; j < row.size(); ++j) result[j].push_back(row[j]);
    return result;
}

} // namespace

Estimate negated(Estimate estimate) {
    estimate.value = -estimate.value;
    return estimate;
}

Estimate settled(Estimate estimate) {
    estimate.size = estimate.most();
    return estimate;
}

std::optional<bool> isGreater(const Estimate &a, const Estimate &b) {
    const Certainty certainty = worse(a.certainty, b.certainty);
    if (certainty == Certainty::nan) return false;
    if (certainty != Certainty::number) return std::nullopt;
    if (a.least() > b.most()) return true;
    if (a.most() <= b.least()) return false;
    return std::nullopt;
}

std::optional<bool> isWithin(const Estimate &estimate, double limit) {
    if (estimate.certainty == Certainty::nan || estimate.certainty == Certainty::notFinite) return false;
    if (estimate.certainty == Certainty::unknown) return std::nullopt;
    if (limit == 0 && estimate.most() == 0) return true;
    if (limit != 0 && estimate.most() < limit) return true;
    if (estimate.least() >= limit && estimate.least() > 0) return false;
    return std::nullopt;
}

Estimator::Estimator(Arithmetic arithmetic)
    : toNearest_(std::fegetround() == FE_TONEAREST),
      format_(arithmetic == Arithmetic::single ? Format{singleBits, -149, 128}
                                               : Format{extendedDigits(), -16445, 16384}) {}

Quad Estimator::unit(const Format &format) const { return power(toNearest_ ? -format.digits : 1 - format.digits); }

// Charges so many operations on numbers of this size, unless all numbers that can occur are represented exactly.
void Estimator::charge(Estimate &estimate, const Format &format, int operations, bool isExact) const {
    if (estimate.size >= power(format.largest - 1)) estimate = uncertain(Certainty::unknown);
    if (estimate.certainty != Certainty::number || operations == 0) return;
    if (isExact && estimate.grain >= format.least && estimate.size <= power(estimate.grain + format.digits)) return;
    const Quad strays = (unit(format) * estimate.size + power(format.least)) * operations;
    estimate.error += strays;
    estimate.size += strays;
    estimate.grain = noGrain;
}

Estimate Estimator::of(double element) {
    if (std::isnan(element)) return uncertain(Certainty::nan);
    if (std::isinf(element)) return uncertain(Certainty::notFinite);
    Estimate estimate;
    estimate.value = element;
    estimate.size = magnitude(estimate.value);
    estimate.grain = grainOf(element);
    return estimate;
}

Grid Estimator::of(const std::vector<std::vector<double>> &elements) {
    Grid grid;
    for (const std::vector<double> &row : elements) {
        std::vector<Estimate> &made = grid.emplace_back();
        for (const double element : row) made.push_back(of(element));
    }
    return grid;
}

Estimate Estimator::multiply(const Estimate &a, const Estimate &b) const {
    Estimate product = uncertain(worse(a.certainty, b.certainty));
    if (product.certainty != Certainty::number) return product;
    product.value = a.value * b.value;
    product.size = a.size * b.size;
    product.error = a.size * b.error + b.size * a.error;
    product.grain = addGrains(a.grain, b.grain);
    charge(product, format_, 1, a.isExact() && b.isExact());
    return product;
}

Estimate Estimator::sum(const std::vector<Estimate> &terms) const {
    Estimate total;
    total.grain = zeroGrain;
    bool isExact = true;
    for (const Estimate &term : terms) {
        total.certainty = worse(total.certainty, term.certainty);
        total.value += term.value;
        total.size += term.size;
        total.error += term.error;
        total.grain = std::min(total.grain, term.grain);
        isExact = isExact && term.isExact();
    }
    if (total.certainty != Certainty::number) return uncertain(total.certainty);
    charge(total, format_, static_cast<int>(terms.size()) - 1, isExact);
    return total;
}

Estimate Estimator::reciprocal(const Estimate &divisor) const {
    if (divisor.certainty == Certainty::nan) return divisor;
    if (divisor.certainty != Certainty::number || divisor.least() <= divisor.error)
        return uncertain(Certainty::unknown);
    Estimate quotient;
    quotient.value = 1 / divisor.value;
    quotient.error = divisor.error / (magnitude(divisor.value) * divisor.least());
    quotient.size = quotient.most();
    const bool isPower = divisor.isExact() && magnitude(divisor.value) == power(divisor.grain);
    quotient.grain = isPower ? -divisor.grain : noGrain;
    charge(quotient, format_, 1, isPower);
    return quotient;
}

// The step squares the relative error of x, which leaves 2^-22; its own three roundings come on top. An infinite
// divisor meets an x of 0.
Estimate Estimator::newtonReciprocal(const Estimate &divisor, NewtonStep step) const {
    if (divisor.certainty == Certainty::notFinite) return uncertain(Certainty::nan);
    if (step == NewtonStep::bySquare && toNearest_ && divisor.certainty == Certainty::number &&
        divisor.most() < power(-66))
        return uncertain(Certainty::notFinite); // the square overflows
    const int range = step == NewtonStep::byTurns ? 125 : 60;
    if (divisor.certainty == Certainty::number && (divisor.least() < power(-range) || divisor.most() > power(range)))
        return uncertain(Certainty::unknown);
    Estimate quotient = reciprocal(divisor);
    if (quotient.certainty != Certainty::number) return quotient;
    quotient.error += (power(-22) + 3 * unit(format_)) * quotient.size;
    quotient.size = quotient.most();
    quotient.grain = noGrain;
    return quotient;
}

Estimate Estimator::difference(double a, double b, double c, double d) const {
    if (!toNearest_) return sum({multiply(of(a), of(b)), negated(multiply(of(c), of(d)))});
    if (format_.digits != singleBits) {
        const long double first = static_cast<long double>(a) * b;
        return ofComputed(first - static_cast<long double>(c) * d);
    }
    const float first = static_cast<float>(a) * static_cast<float>(b);
    const float second = static_cast<float>(c) * static_cast<float>(d);
    return ofComputed(first - second);
}

Grid Estimator::multiply(const Grid &a, const Grid &b) const {
    Grid product(a.size());
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b.front().size(); ++j) {
            std::vector<Estimate> terms;
            for (std::size_t k = 0; k < b.size(); ++k) terms.push_back(multiply(a[i][k], b[k][j]));
            product[i].push_back(sum(terms));
        }
    return product;
}

Grid Estimator::scale(const Grid &grid, const Estimate &factor) const {
    Grid scaled = grid;
    for (std::vector<Estimate> &row : scaled)
        for (Estimate &element : row) element = multiply(element, factor);
    return scaled;
}

// Minors of the last rows, each made of those one row below, by the set of their columns.
Estimate Estimator::determinant(const Grid &grid) const {
    const std::size_t order = grid.size();
    std::vector<Estimate> minors(std::size_t{1} << order);
    for (std::size_t columns = 1; columns < minors.size(); ++columns) {
        const auto height = static_cast<std::size_t>(__builtin_popcountll(columns));
        const std::vector<Estimate> &row = grid[order - height];
        std::vector<Estimate> terms;
        bool isOdd = false;
        for (std::size_t j = 0; j < order; ++j) {
            const std::size_t column = std::size_t{1} << j;
            if ((columns & column) == 0) continue;
            const Estimate term = height == 1 ? row[j] : multiply(row[j], minors[columns & ~column]);
            terms.push_back(isOdd ? negated(term) : term);
            isOdd = !isOdd;
        }
        minors[columns] = sum(terms);
    }
    return settled(minors.back());
}

Estimate Estimator::determinantInAnyNesting(const Grid &grid) const {
    const std::size_t order = grid.size();
    if (order < 3) return determinant(grid);
    if (order > 3) {
        std::vector<Estimate> terms;
        for (std::size_t j = 0; j < order; ++j) {
            const Estimate term = multiply(grid[0][j], determinantInAnyNesting(without(grid, 0, j)));
            terms.push_back(j % 2 == 0 ? term : negated(term));
        }
        return settled(sum(terms));
    }
    Estimate worst = determinant(grid);
    for (Grid turned : {grid, transposed(grid)})
        for (int turn = 0; turn < 3; ++turn) {
            std::rotate(turned.begin(), turned.begin() + 1, turned.end()); // which is even and leaves the sign
            const Estimate other = determinant(turned);
            worst.certainty = worse(worst.certainty, other.certainty);
            worst.error = std::max(worst.error, other.error);
            worst.grain = std::min(worst.grain, other.grain);
        }
    return settled(worst);
}

Grid Estimator::adjugate(const Grid &grid) const {
    const std::size_t order = grid.size();
    Grid result(order, std::vector<Estimate>(order));
    for (std::size_t i = 0; i < order; ++i)
        for (std::size_t j = 0; j < order; ++j) {
            const Estimate minor = determinantInAnyNesting(without(grid, i, j));
            result[j][i] = (i + j) % 2 == 0 ? minor : negated(minor);
        }
    return result;
}

Estimate Estimator::rounded(const Estimate &estimate, bool toSingle) const {
    const Format element = toSingle ? Format{singleBits, -149, 128} : Format{doubleBits, -1074, 1024};
    Estimate stored = settled(estimate);
    if (format_.largest > element.largest) charge(stored, element, 1, estimate.isExact());
    return stored;
}

std::vector<std::vector<double>> numbersOf(const Execution &execution, const Operand &operand, std::uint64_t order) {
    std::vector<std::vector<double>> rows(order);
    for (std::uint64_t i = 0; i < order; ++i)
        for (std::uint64_t j = 0; j < order; ++j) {
            const std::uintptr_t place = operand.element(execution.object, i, j);
            execution.markOpenIf(execution.memory.holdsApproximation(place, execution.form.elementSize()));
            rows[i].push_back(static_cast<double>(execution.load(place)));
        }
    return rows;
}

void storeEstimate(const Execution &execution, std::uintptr_t address, const Estimate &estimate) {
    constexpr long double infinity = std::numeric_limits<long double>::infinity();
    const auto approximate = [&](long double exact, long double error) {
        execution.store(address, exact);
        execution.memory.approximate({address, execution.form.elementSize(), exact, error});
    };
    if (estimate.certainty != Certainty::number) execution.memory.markNan();
    const auto value = static_cast<long double>(estimate.value);
    switch (estimate.certainty) {
    case Certainty::number: // with room for what the bound and its own roundings add to each other
        return approximate(value, static_cast<long double>(estimate.error * 1.001L) + std::fabs(value) * 0x1p-62L);
    case Certainty::unknown: return approximate(0, infinity);
    case Certainty::notFinite: return approximate(infinity, 0);
    case Certainty::nan: return approximate(std::numeric_limits<long double>::quiet_NaN(), 0);
    }
}

} // namespace model
