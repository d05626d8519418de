// The two sweeps that solve with the factors of an LU decomposition: y(i) = b(i) - sum of l(i, j) y(j) downwards, then
// x(i) = (y(i) - sum of u(i, j) x(j)) / u(i, i) upwards. Every intermediate result stands in the destination and is
// read back from there.
#include "model/families.h"
#include "model/overlaps.h"

namespace model {

namespace {

struct LuBackSubstitution : Execution {
    std::uint64_t order = dimension("order");
    Operand factors = matrix("src1", order, order);
    Operand right = vector("src2", order);
    Operand dst = vector("dst", order);
    // Of the Real64 forms: those that run over the terms of a sum in pairs and keep the sum in memory between. The
    // others have one straight line of code per sum and never leave the wide register.
    bool roundsSums = form.size == 0 || form.group == "mv" || isListLayout(form.layout);

    // The physical row of logical row i: each matrix of an array has its own permutation. It is trusted as it stands.
    // If the solution runs over it the call is abandoned, since an index may be kept or read again.
    std::uint64_t row(std::uint64_t i) const {
        const std::uint64_t block = factors.isArray() ? object * order : 0;
        return memory.loadIndex(arguments.pointer("pivots") + (block + i) * 4);
    }
    std::uintptr_t solution(std::uint64_t i) const { return dst.element(object, i); }
    Wide factor(std::uint64_t i, std::uint64_t j) const { return load(factors.element(object, row(i), j)); }

    // A sum that is rounded is rounded after its last pair, and once more after an odd last term, so it enters what
    // follows as a 64-bit number.
    Wide sum(std::uint64_t i, std::uint64_t begin, std::uint64_t end) const {
        const std::uint64_t endOfPairs = end - (end - begin) % 2;
        Wide sum = 0;
        for (std::uint64_t j = begin; j < end; ++j) {
            if (roundsSums && j == endOfPairs) sum = rounded(sum);
            sum = multiplyAdd(factor(i, j), load(solution(j)), sum);
        }
        return roundsSums ? rounded(sum) : sum;
    }

    Status solveObject() const {
        // Elements of the solution that share some of their bytes: a value just stored and the same value read back
        // later may differ, and which of them a step uses is not to be relied on. Elements that all lie on one place,
        // and a solution over the right-hand side or the matrix, are fixed: every step reads memory anew.
        markOpenIf(sharePartOfTheirBytes(placesOf(dst, object, 1, order), form.elementSize()));
        memory.move(solution(0), right.element(object, row(0)), form.elementSize());
        for (std::uint64_t i = 1; i < order; ++i)
            store(solution(i), subtract(load(right.element(object, row(i))), sum(i, 0, i)));
        for (std::uint64_t i = order; i-- > 0;) {
            Wide rest = load(solution(i));
            if (i + 1 < order) rest = subtract(rest, sum(i, i + 1, order));
            store(solution(i), divide(rest, factor(i, i)));
        }
        return statusOk;
    }

    Status run() {
        // In these five forms columns lie 4 bytes apart, although an element has 8; callers arrange their data for it.
        if (form.group == "mva" && !isReal32() && form.layout == Layout::list) factors.elementStride = 4;
        if (order == 0) return statusSize;
        const Operands operands = {&factors, &right, &dst};
        if (hasTables() && anyTableEntryIsNull(operands)) return statusNullPointer;
        return overObjects(operands, [&] { return solveObject(); });
    }
};

} // namespace

Status substituteBackLu(const Execution &execution) { return LuBackSubstitution{execution}.run(); }

} // namespace model
