// The two sweeps that solve with a Cholesky factor: y(i) = (b(i) - sum of l(i, k) y(k)) l(i, i) downwards, then
// x(i) = (y(i) - sum of l(k, i) x(k)) l(i, i) upwards. The diagonal holds reciprocals, so nothing is divided; every
// intermediate result stands in the destination and is read back from there, rounded by its store and nowhere else.
#include "model/families.h"
#include "model/overlaps.h"

namespace model {

namespace {

struct CholeskyBackSubstitution : Execution {
    std::uint64_t order = form.size != 0 ? form.size : arguments.times("order");
    Operand factors = matrix("src1", order, order);
    Operand right = vector("src2", order);
    Operand dst = vector("dst", order);

    std::uintptr_t factor(std::uint64_t i, std::uint64_t j) const { return factors.element(object, i, j); }
    std::uintptr_t solution(std::uint64_t i) const { return dst.element(object, i); }
    Wide subtractProduct(Wide rest, std::uintptr_t factor, std::uint64_t k) const {
        return subtract(rest, multiply(load(factor), load(solution(k))));
    }

    // Of what the kernel is handed: entry and shift added up.
    bool anyObjectIsNull() const {
        return !hasTables() && (factor(0, 0) == 0 || right.element(object, 0) == 0 || solution(0) == 0);
    }

    void solveObject() const {
        // Elements of the solution that share some of their bytes: whether a step uses a value just stored or what
        // memory makes of it is not to be relied on. Everything else is fixed, since every step reads memory anew.
        markOpenIf(sharePartOfTheirBytes(placesOf(dst, object, 1, order), form.elementSize()));
        for (std::uint64_t i = 0; i < order; ++i) {
            Wide rest = load(right.element(object, i));
            for (std::uint64_t k = 0; k < i; ++k) rest = subtractProduct(rest, factor(i, k), k);
            store(solution(i), multiply(rest, load(factor(i, i))));
        }
        for (std::uint64_t i = order; i-- > 0;) {
            Wide rest = load(solution(i));
            for (std::uint64_t k = order - 1; k > i; --k) rest = subtractProduct(rest, factor(k, i), k);
            store(solution(i), multiply(rest, load(factor(i, i))));
        }
    }

    // An object that leads nowhere is passed over, and nobody is told.
    Status run() {
        if (dimension("order") == 0 || count() == 0) return statusSize;
        const std::uint64_t objects = form.isArray() ? arguments.times("count") : 1;
        for (object = 0; object < objects; ++object)
            if (order != 0 && !anyObjectIsNull()) solveObject();
        return statusOk;
    }
};

} // namespace

Status substituteBackCholesky(const Execution &execution) { return CholeskyBackSubstitution{execution}.run(); }

} // namespace model
