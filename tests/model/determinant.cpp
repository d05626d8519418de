// Determinants: elimination at run-time size, closed forms without a division at fixed size. Those of 3x3 are fixed to
// the last bit; those above tell their minors but not the order of their sums, and are held to accuracy.
#include "model/elimination.h"
#include "model/estimate.h"
#include "model/families.h"
#include "model/overlaps.h"
#include "model/sums.h"

namespace model {

namespace {

struct Determinant : Execution {
    std::uint64_t order = dimension("order");
    Operand src = matrix("src", order, order);

    // The result cell holds the product while it grows. A pivot that fails ends a single form; array forms go on and
    // may come to -0 or NaN.
    Wide byElimination() const {
        return productOfPivots(*this, order, load(placesOf(src, object, order, order)),
                               {.roundsProduct = true, .goesOnAfterBadPivot = form.isArray()})
            .value_or(0);
    }

    // Fixed sizes whose elements are adjacent have kernels that compute in extended precision, for Real32 as well.
    // Three associations: the kernels of the two types expand along another row or column, with other signs inside.
    Wide ofThree() const {
        constexpr const char *const general[] = {"(11*22-21*12)*00", "(12*20-22*10)*01", "(10*21-20*11)*02"};
        constexpr const char *const kernel32[] = {"(20*12-10*22)*01", "(21*10-20*11)*02", "(11*22-12*21)*00"};
        constexpr const char *const kernel64[] = {"(12*01-11*02)*20", "(11*22-12*21)*00", "(21*02-01*22)*10"};
        const ElementArithmetic extended(Element::real64, memory);
        const ElementArithmetic &arithmetic = isAdjacent() ? extended : *this;
        Numbers terms;
        for (const std::string_view term : !isAdjacent() ? general : isReal32() ? kernel32 : kernel64) {
            const Numbers a = load(placesOf(src, object, 3, 3));
            const Wide minor = minorOfThree(term.substr(1, 11), arithmetic, a);
            terms.push_back(arithmetic.multiply(minor, elementOfThree(term.substr(14), a)));
        }
        return sumAs("0+1+2", arithmetic, terms);
    }

    void byMinors() const {
        const bool isNarrow = isReal32() && !isAdjacent();
        const Estimator estimator(isNarrow ? Estimator::Arithmetic::single : Estimator::Arithmetic::extended);
        const Grid grid = Estimator::of(numbersOf(*this, src, order));
        storeEstimate(*this, result(), estimator.rounded(estimator.determinant(grid), isReal32()));
    }

    Status run() {
        if (order == 0) return statusSize;
        if (hasTables() && anyTableEntryIsNull({&src})) return statusNullPointer;
        return overObjects({&src}, [&] {
            if (form.size > 3) byMinors();
            else store(result(), form.size == 0 ? byElimination() : ofThree());
            return statusOk;
        });
    }
};

} // namespace

Status computeDeterminant(const Execution &execution) { return Determinant{execution}.run(); }

} // namespace model
