// Inverses: the adjugate by an elimination for every minor at run-time size, closed forms of order 3 and 4, blocks of
// order 5 and 6. The forms differ in what they take for singular and in how they come to the reciprocal of the
// determinant. Run-time size and quotients of order 3 are fixed to the last bit, the others held to accuracy.
#include "model/block_inverse.h"
#include "model/elimination.h"
#include "model/estimate.h"
#include "model/families.h"
#include "model/overlaps.h"
#include "model/sums.h"

#include <algorithm>

namespace model {

namespace {

struct Inverse : Execution {
    std::uint64_t order = dimension("order");
    Operand src = matrix("src", order, order);
    Operand dst = matrix("dst", order, order);
    // The kernels for speed take an estimate of the reciprocal and a Newton step.
    bool isFast = hasLanes();
    // Of fixed size: below which magnitude of the determinant a matrix is singular; 0 for exactly 0.
    double tolerance = isFast && form.size <= 4 ? 0 : isReal32() ? 1e-7 : 1e-15;

    // ---- Run-time size: source elements are read anew for each minor, between the stores

    // Of the matrix without a row and a column; without any of them at (order, order).
    Numbers rowsWithout(std::uint64_t row, std::uint64_t column) const {
        Numbers rows;
        for (std::uint64_t i = 0; i < order; ++i)
            for (std::uint64_t j = 0; j < order; ++j)
                if (i != row && j != column) rows.push_back(load(src.element(object, i, j)));
        return rows;
    }
    // A pivot that fails makes the product 0, and the last step is taken all the same.
    Wide minor(std::uint64_t row, std::uint64_t column) const {
        return productOfPivots(*this, order - 1, rowsWithout(row, column),
                               {.roundsProduct = false, .goesOnAfterBadPivot = true})
            .value_or(0);
    }
    Status byMinors() const {
        const std::optional<Wide> determinant = productOfPivots(*this, order, rowsWithout(order, order),
                                                                {.roundsProduct = false, .goesOnAfterBadPivot = false});
        if (!determinant.has_value()) return statusSingular;
        if (order == 1) { // there is no minor, and what is read in its place is nobody's promise
            memory.markOpen();
            store(dst.element(object, 0, 0), 0);
            return statusOk;
        }
        const Wide reciprocal = rounded(divide(1, *determinant));
        for (std::uint64_t c = 0; c < order; ++c)
            for (std::uint64_t q = 0; q < order; ++q) {
                const Wide scaled = multiply(minor(c, q), reciprocal);
                store(dst.element(object, q, c), multiply(scaled, (c + q) % 2 == 0 ? 1 : -1));
            }
        return statusOk;
    }

    // ---- Fixed size

    // Whether an object is read as a whole before its first store is free, and so is the order of the stores.
    void checkOverlaps() const {
        const Places from = placesOf(src, object, order, order);
        const Places to = placesOf(dst, object, order, order);
        for (const std::uintptr_t place : from) markOpenIf(memory.holdsApproximation(place, form.elementSize()));
        markOpenIf(shareBytes(to, form.elementSize()) || anyOverlap(from, to, form.elementSize()));
    }
    void storeAll(const Estimator &estimator, const Grid &inverse) const {
        for (std::uint64_t i = 0; i < order; ++i)
            for (std::uint64_t j = 0; j < order; ++j)
                storeEstimate(*this, dst.element(object, i, j), estimator.rounded(inverse[i][j], isReal32()));
    }

    // Cofactors and determinant are fixed, and so is all that is made of them but for the estimate of the reciprocal. A
    // NaN is no singular determinant.
    Status ofThree() const {
        const Numbers a = load(placesOf(src, object, 3, 3));
        Numbers cofactors;
        for (const char *const minor : {"11*22-12*21", "02*21-01*22", "01*12-02*11", //
                                        "12*20-10*22", "00*22-02*20", "02*10-00*12", //
                                        "10*21-11*20", "01*20-00*21", "00*11-01*10"})
            cofactors.push_back(minorOfThree(minor, *this, a));
        const Numbers terms = {multiply(a[0], cofactors[0]), multiply(cofactors[3], a[1]),
                               multiply(cofactors[6], a[2])};
        const Wide determinant = sumAs("0+1+2", *this, terms);
        if (tolerance == 0 ? determinant == 0 : std::fabs(determinant) < tolerance) return statusSingular;
        if (isFast) {
            const Estimator estimator(Estimator::Arithmetic::single);
            const Estimate reciprocal = estimator.newtonReciprocal(Estimator::of(static_cast<double>(determinant)),
                                                                   Estimator::NewtonStep::byTurns);
            Grid grid(3);
            for (std::size_t k = 0; k < 9; ++k)
                grid[k / 3].push_back(estimator.multiply(Estimator::of(static_cast<double>(cofactors[k])), reciprocal));
            storeAll(estimator, grid);
            return statusOk;
        }
        const Wide reciprocal = divide(1, determinant);
        for (std::size_t k = 0; k < 9; ++k)
            store(dst.element(object, k / 3, k % 3), multiply(cofactors[k], reciprocal));
        return statusOk;
    }

    Status ofFour() const {
        const Estimator estimator(isReal32() ? Estimator::Arithmetic::single : Estimator::Arithmetic::extended);
        const Grid grid = Estimator::of(numbersOf(*this, src, order));
        const Estimate determinant = estimator.determinantInAnyNesting(grid);
        const std::optional<bool> singular = isWithin(determinant, tolerance);
        markOpenIf(!singular.has_value());
        if (singular.value_or(false)) return statusSingular;
        const Estimate reciprocal = isFast ? estimator.newtonReciprocal(determinant, Estimator::NewtonStep::bySquare)
                                           : estimator.reciprocal(determinant);
        storeAll(estimator, estimator.scale(estimator.adjugate(grid), reciprocal));
        return statusOk;
    }

    // The fast kernels build the result in place, so a singular complement finds the object partly written.
    Status byBlocks() const {
        const Estimator estimator(isReal32() ? Estimator::Arithmetic::single : Estimator::Arithmetic::extended);
        const BlockInverse blocks =
            invertByBlocks(numbersOf(*this, src, order), {isReal32(), isFast, isFast && order == 6, tolerance});
        markOpenIf(blocks.open);
        if (blocks.result == BlockInverse::Result::regular) {
            storeAll(estimator, blocks.inverse);
            return statusOk;
        }
        Estimate anything;
        anything.certainty = Certainty::unknown;
        if (isFast && blocks.result == BlockInverse::Result::singularComplement)
            storeAll(estimator, Grid(order, std::vector<Estimate>(order, anything)));
        return statusSingular;
    }

    // ---- All forms

    // At fixed size lists are tested ahead of all objects, but the Real32 forms in lists trust theirs.
    bool anyTestedEntryIsNull() const {
        if (hasTables()) return anyTableEntryIsNull({&src, &dst});
        if (form.size == 0 || isFast) return false;
        for (std::uint64_t n = 0; n < count(); ++n)
            if (anyListEntryIsNull({&src, &dst}, n)) return true;
        return false;
    }
    Status run() {
        if (order == 0) return statusSize;
        if (anyTestedEntryIsNull()) return statusNullPointer;
        return overObjects(form.size == 0 ? Operands{&src, &dst} : Operands{}, [&] {
            if (form.size == 0) return byMinors();
            checkOverlaps();
            return form.size == 3 ? ofThree() : form.size == 4 ? ofFour() : byBlocks();
        });
    }
};

} // namespace

Status computeInverse(const Execution &execution) { return Inverse{execution}.run(); }

} // namespace model
