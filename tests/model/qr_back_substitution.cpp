// Least squares with the factors of a QR decomposition: the reflections b + beta v (v^T b) are replayed on a copy of
// the right-hand side, with beta = -2 / (v^T v) worked out anew, then x(i) = (b(i) - sum of r(i, j) x(j)) / r(i, i)
// from the bottom up. Of Real64 numbers only what is stored is rounded.
#include "model/families.h"
#include "model/overlaps.h"

namespace model {

namespace {

struct QrBackSubstitution : Execution {
    std::uint64_t columns = dimension("cols");
    std::uint64_t rows = dimension("rows");
    Operand reflectors = matrix("src1", rows, columns); // the matrix as the replay addresses it
    Operand triangle = reflectors;                      // and as the triangular solve does
    std::uint64_t triangleDisplacement = 0;
    Operand right = vector("src2", rows);
    Operand dst = vector("dst", columns);

    Wide reflector(std::uint64_t i, std::uint64_t k) const { return load(reflectors.element(object, i, k)); }
    Wide upper(std::uint64_t i, std::uint64_t j) const {
        return load(triangle.element(object, i, j) + triangleDisplacement);
    }
    std::uintptr_t solution(std::uint64_t j) const { return dst.element(object, j); }
    std::uintptr_t work(std::uint64_t i) const { return arguments.pointer("work") + i * form.elementSize(); }

    // Ten forms look for elements elsewhere than the others; callers arrange their data for it. With one matrix,
    // columns lie 4 bytes apart. With a matrix for each vector, row i of the triangle lies i + 1 bytes behind where a
    // row ahead of the matrix would be.
    void displaceMatrix() {
        if (isReal32() || form.layout != Layout::list) return;
        if (form.group == "mva") {
            reflectors.elementStride = triangle.elementStride = 4;
        } else {
            triangleDisplacement = 1 - triangle.rowStride;
            triangle.rowStride = 1;
        }
    }

    void replay(std::uint64_t k) const {
        Wide squaredLength = 1;
        Wide projection = load(work(k));
        for (std::uint64_t i = k + 1; i < rows; ++i) {
            const Wide element = reflector(i, k);
            squaredLength = add(squaredLength, squared(element));
            projection = multiplyAdd(load(work(i)), element, projection);
        }
        const Wide scaled = multiply(projection, divide(-2, squaredLength));
        store(work(k), add(load(work(k)), scaled));
        for (std::uint64_t i = k + 1; i < rows; ++i)
            store(work(i), multiplyAdd(reflector(i, k), scaled, load(work(i))));
    }
    void solveTriangle() const {
        for (std::uint64_t i = columns; i-- > 0;) {
            Wide sum = 0;
            for (std::uint64_t j = i + 1; j < columns; ++j) sum = multiplyAdd(upper(i, j), load(solution(j)), sum);
            const Wide rest = i + 1 == columns ? load(work(i)) : subtract(load(work(i)), sum);
            store(solution(i), divide(rest, upper(i, i)));
        }
    }
    Status solveObject() const {
        // Elements of the solution that share some of their bytes: whether a step uses a value just stored or what
        // memory makes of it is not to be relied on. Everything else is fixed, since every step reads memory anew.
        markOpenIf(sharePartOfTheirBytes(placesOf(dst, object, 1, columns), form.elementSize()));
        for (std::uint64_t i = 0; i < rows; ++i) memory.move(work(i), right.element(object, i), form.elementSize());
        const std::uint64_t reflections = rows == columns ? columns - 1 : columns;
        for (std::uint64_t k = 0; k < reflections; ++k) replay(k);
        solveTriangle();
        return statusOk;
    }

    Status run() {
        displaceMatrix();
        if (rows == 0 || columns == 0) return statusSize;
        right.entries = columns; // only as many are tested as the solution has
        const Operands operands = {&reflectors, &right, &dst};
        if (hasTables() && anyTableEntryIsNull(operands)) return statusNullPointer;
        return overObjects(operands, [&] { return solveObject(); });
    }
};

} // namespace

Status substituteBackQr(const Execution &execution) { return QrBackSubstitution{execution}.run(); }

} // namespace model
