// QR decomposition by Householder reflections a + beta v (v^T a), column by column: v is the column from the diagonal
// on, divided by alpha = a(k, k) +- its norm, with a leading 1, and beta = -2 / (v^T v). The upper factor stands on and
// above the diagonal, the reflectors below it without their leading 1.
#include "model/families.h"
#include "model/overlaps.h"

namespace model {

namespace {

struct QrDecomposition : Execution {
    std::uint64_t columns = dimension("cols");
    std::uint64_t rows = dimension("rows");
    Operand src = matrix("src", rows, columns);
    Operand dst = matrix("dst", rows, columns);
    std::uintptr_t reflector = arguments.pointer("work");

    std::uintptr_t at(std::uint64_t i, std::uint64_t j) const { return dst.element(object, i, j); }
    std::uintptr_t work(std::uint64_t i) const { return reflector + i * form.elementSize(); }

    // Only a destination that is the source, element on element, is fixed: how far the copy reads ahead of its stores
    // is free. So is whether an element of the destination is kept or read back, which shows where two of them share
    // bytes or one lies on the reflector.
    void checkOverlaps() const {
        const std::size_t size = form.elementSize();
        const Places to = placesOf(dst, object, rows, columns);
        markOpenIf(storesOverLaterElements(to, placesOf(src, object, rows, columns), size));
        for (const std::uintptr_t place : to) markOpenIf(overlap(place, size, reflector, rows * size));
    }

    // The start and the squares of the numbers of the rows from `begin` on. A sum of Real64 along a column is rounded
    // after its last pair and again after an odd last term.
    template <class Number> Wide sumOfSquares(Wide start, std::uint64_t begin, Number number) const {
        const std::uint64_t endOfPairs = rows - (rows - begin) % 2;
        Wide sum = start;
        for (std::uint64_t i = begin; i < rows; ++i) {
            if (i == endOfPairs) sum = rounded(sum);
            sum = add(sum, squared(number(i)));
        }
        return rounded(sum);
    }
    // What is stored of the reflector is rounded, its squared length is built from what is not.
    Wide buildReflector(std::uint64_t k, Wide reciprocal) const {
        store(work(k), 1);
        return sumOfSquares(1, k + 1, [&](std::uint64_t i) {
            const Wide element = multiply(load(at(i, k)), reciprocal);
            store(work(i), element);
            return element;
        });
    }
    void apply(std::uint64_t k, std::uint64_t c, Wide beta) const {
        Wide projection = load(at(k, c));
        for (std::uint64_t i = k + 1; i < rows; ++i)
            projection = multiplyAdd(load(at(i, c)), load(work(i)), projection);
        projection = multiply(projection, beta);
        for (std::uint64_t i = k; i < rows; ++i)
            store(at(i, c), multiplyAdd(load(work(i)), projection, load(at(i, c))));
    }
    // The tolerance of the squared norm is absolute, and the same for both element types. Its root is taken in the
    // extended type.
    Status reflect(std::uint64_t k) const {
        const Wide squaredNorm = sumOfSquares(0, k, [&](std::uint64_t i) { return load(at(i, k)); });
        if (!(squaredNorm >= 0x1p-23)) return statusSingular;
        const Wide norm = kept(ElementArithmetic(Element::real64, memory).squareRoot(squaredNorm));
        const Wide diagonal = load(at(k, k));
        const Wide alpha = add(diagonal, diagonal > 0 ? norm : -norm);
        const Wide squaredLength = buildReflector(k, divide(1, alpha));
        const Wide beta = rounded(divide(-2, squaredLength));
        for (std::uint64_t c = k; c < columns; ++c) apply(k, c, beta);
        for (std::uint64_t i = k + 1; i < rows; ++i) memory.move(at(i, k), work(i), form.elementSize());
        return statusOk;
    }

    Status decomposeObject() const {
        checkOverlaps();
        moveObject(dst, src, rows, columns);
        // The last column of a square has nothing below its diagonal. A matrix wider than high has no column left after
        // as many reflections as rows: an empty sum fails the tolerance.
        const std::uint64_t reflections = rows == columns ? columns - 1 : columns;
        for (std::uint64_t k = 0; k < reflections; ++k)
            if (const Status status = reflect(k); status != statusOk) return status;
        return statusOk;
    }

    Status run() {
        if (rows == 0 || columns == 0) return statusSize;
        if (hasTables() && anyTableEntryIsNull({&src, &dst})) return statusNullPointer;
        return overObjects({&src, &dst}, [&] { return decomposeObject(); });
    }
};

} // namespace

Status decomposeQr(const Execution &execution) { return QrDecomposition{execution}.run(); }

} // namespace model
