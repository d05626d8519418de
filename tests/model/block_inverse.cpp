// The block formulas, on estimates.
#include "model/block_inverse.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <utility>

namespace model {

namespace {

// Forms with exits of their own have to go on where all pivots are this much larger than the tolerance, and to stop
// where one is as much smaller.
constexpr double clearly = 1024;

class Blocks {
public:
    Blocks(const std::vector<std::vector<double>> &matrix, const BlockRules &rules)
        : rules_(rules), estimator_(rules.isSingle ? Estimator::Arithmetic::single : Estimator::Arithmetic::extended),
          matrix_(matrix), order_(matrix.size()), lead_(order_ - 3), columns_(order_) {
        std::iota(columns_.begin(), columns_.end(), std::size_t{0});
    }

    BlockInverse run();

private:
    double element(std::size_t i, std::size_t place) const { return matrix_[i][columns_[place]]; }
    Grid block(std::size_t firstRow, std::size_t rows, std::size_t firstPlace, std::size_t places) const;
    Estimate minor(std::size_t last, std::size_t place) const;
    void choose(std::size_t place);
    bool isSingular(const Estimate &determinant);
    Grid invert(const Grid &block, const Estimate &determinant) const;
    void assemble(const Grid &leading, const Grid &right, const Grid &below, const Grid &corner);

    BlockRules rules_;
    Estimator estimator_;
    const std::vector<std::vector<double>> &matrix_;
    std::size_t order_;
    std::size_t lead_;                 // the order of the leading block
    std::vector<std::size_t> columns_; // the column in each place
    BlockInverse outcome_{};
};

Grid settled(Grid grid) {
    for (std::vector<Estimate> &row : grid)
        for (Estimate &element : row) element = settled(element);
    return grid;
}

Grid negated(Grid grid) {
    for (std::vector<Estimate> &row : grid)
        for (Estimate &element : row) element = negated(element);
    return grid;
}

Grid sum(const Estimator &estimator, const Grid &a, const Grid &b) {
    Grid total = a;
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < a[i].size(); ++j) total[i][j] = estimator.sum({a[i][j], b[i][j]});
    return total;
}

Grid Blocks::block(std::size_t firstRow, std::size_t rows, std::size_t firstPlace, std::size_t places) const {
    Grid result(rows);
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t t = 0; t < places; ++t)
            result[i].push_back(Estimator::of(element(firstRow + i, firstPlace + t)));
    return result;
}

// Of the rows up to `last`, on the places before it and on this one.
Estimate Blocks::minor(std::size_t last, std::size_t place) const {
    if (last == 0) return Estimator::of(element(0, place));
    if (last == 1) return estimator_.difference(element(0, 0), element(1, place), element(0, place), element(1, 0));
    Grid grid = block(0, last + 1, 0, last);
    for (std::size_t i = 0; i <= last; ++i) grid[i].push_back(Estimator::of(element(i, place)));
    return estimator_.determinantInAnyNesting(grid);
}

// The column with the largest minor goes to this place, the first of equals. A sixth column is no candidate.
void Blocks::choose(std::size_t place) {
    const std::size_t candidates = rules_.choosesColumnsFreely ? order_ : 5;
    Estimate best = minor(place, place);
    std::size_t chosen = place;
    for (std::size_t t = place + 1; t < candidates; ++t) {
        const Estimate candidate = minor(place, t);
        const std::optional<bool> isLarger = isGreater(candidate, best);
        outcome_.open |= !isLarger.has_value();
        if (!isLarger.value_or(false)) continue;
        best = candidate;
        chosen = t;
    }
    std::swap(columns_[place], columns_[chosen]);
    if (rules_.choosesColumnsFreely && isWithin(best, rules_.tolerance * clearly) != std::optional(false))
        outcome_.open = true;
}

bool Blocks::isSingular(const Estimate &determinant) {
    const std::optional<bool> answer = isWithin(determinant, rules_.tolerance);
    outcome_.open |= !answer.has_value();
    if (rules_.choosesColumnsFreely) {
        const bool goesOn = isWithin(determinant, rules_.tolerance * clearly) == std::optional(false);
        const bool stops = isWithin(determinant, rules_.tolerance / clearly) == std::optional(true);
        outcome_.open |= !goesOn && !stops;
    }
    return answer.value_or(false);
}

Grid Blocks::invert(const Grid &block, const Estimate &determinant) const {
    const Estimate reciprocal = rules_.takesNewtonStep
                                    ? estimator_.newtonReciprocal(determinant, Estimator::NewtonStep::bySquare)
                                    : estimator_.reciprocal(determinant);
    return settled(estimator_.scale(estimator_.adjugate(block), reciprocal));
}

// The product of three blocks, which may be taken in one order or the other: where one of them leaves the range, the
// outcome may be anything.
Grid multiplyInAnyOrder(const Estimator &estimator, const Grid &a, const Grid &b, const Grid &c) {
    Grid product = estimator.multiply(a, estimator.multiply(b, c));
    const Grid other = estimator.multiply(estimator.multiply(a, b), c);
    for (std::size_t i = 0; i < product.size(); ++i)
        for (std::size_t j = 0; j < product[i].size(); ++j) {
            if (product[i][j].certainty != other[i][j].certainty) product[i][j].certainty = Certainty::unknown;
            product[i][j].error = std::max(product[i][j].error, other[i][j].error);
        }
    return product;
}

// Rows lie where their columns came from. The products of three blocks may be taken in one order or the other, which
// doubles the bound; another choice of columns may do more.
void Blocks::assemble(const Grid &leading, const Grid &right, const Grid &below, const Grid &corner) {
    outcome_.inverse.resize(order_);
    for (std::size_t t = 0; t < order_; ++t) {
        std::vector<Estimate> &row = outcome_.inverse[columns_[t]];
        row = t < lead_ ? leading[t] : below[t - lead_];
        const std::vector<Estimate> &rest = t < lead_ ? right[t] : corner[t - lead_];
        row.insert(row.end(), rest.begin(), rest.end());
        for (Estimate &element : row) element.error *= rules_.choosesColumnsFreely ? 16 : 2;
    }
}

BlockInverse Blocks::run() {
    const auto hasOddNumber = [](const std::vector<double> &row) {
        return std::any_of(row.begin(), row.end(), [](double number) { return !std::isfinite(number); });
    };
    outcome_.open = rules_.choosesColumnsFreely && std::any_of(matrix_.begin(), matrix_.end(), hasOddNumber);
    for (std::size_t place = 0; place < lead_; ++place) choose(place);
    const Estimate determinant = minor(lead_ - 1, lead_ - 1);
    if (isSingular(determinant)) {
        outcome_.result = BlockInverse::Result::singularLeadingBlock;
        return outcome_;
    }
    const Grid leading = block(0, lead_, 0, lead_); // P
    const Grid right = block(0, lead_, lead_, 3);   // A
    const Grid below = block(lead_, 3, 0, lead_);   // B
    const Grid corner = block(lead_, 3, lead_, 3);  // C
    const Grid inverse = invert(leading, estimator_.determinantInAnyNesting(leading));
    const Grid throughRight = estimator_.multiply(inverse, right); // P^-1 A
    const Grid belowThrough = estimator_.multiply(below, inverse); // B P^-1
    const Grid complement =
        settled(sum(estimator_, corner, negated(multiplyInAnyOrder(estimator_, below, inverse, right))));
    const Estimate determinantOfComplement = estimator_.determinantInAnyNesting(complement);
    if (isSingular(determinantOfComplement)) {
        outcome_.result = BlockInverse::Result::singularComplement;
        return outcome_;
    }
    const Grid last = invert(complement, determinantOfComplement);
    const Grid lastBelow = estimator_.multiply(last, belowThrough); // S^-1 B P^-1
    assemble(sum(estimator_, inverse, multiplyInAnyOrder(estimator_, throughRight, last, belowThrough)),
             negated(estimator_.multiply(throughRight, last)), negated(lastBelow), last);
    return outcome_;
}

} // namespace

BlockInverse invertByBlocks(const std::vector<std::vector<double>> &matrix, const BlockRules &rules) {
    return Blocks(matrix, rules).run();
}

} // namespace model
