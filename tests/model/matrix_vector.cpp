// Matrix by vector, and matrix by vector plus vector: sum over k of m(i, k) v(k), and the addend's element i last of
// all. A transposed matrix is compared with the vector by its rows and walked by its columns, which only callers with
// square matrices can take for a plain product.
#include "model/families.h"
#include "model/overlaps.h"
#include "model/sums.h"

#include <algorithm>

namespace model {

namespace {

struct MatrixByVector : Execution {
    bool adds = form.operation == "Gaxpy";
    std::uint64_t columns = dimension(adds ? "cols" : "src1Cols");
    std::uint64_t rows = dimension(adds ? "rows" : "src1Rows");
    std::uint64_t length = adds ? columns : dimension("src2Len");
    Operand factor = matrix("src1", rows, columns);
    Operand right = vector("src2", length);
    Operand dst = vector("dst", rows);
    Operand addend = vector(adds ? "src3" : "dst", rows); // where nothing is added, its tests are the destination's
    Operands operands = {&factor, &right, &addend, &dst};
    Numbers matrixInLanes = {}; // by rows
    Numbers vectorInLanes = {};

    // ---- Through the destination's cells

    Status element(std::uint64_t i) {
        if (testsEntriesAlongTheWay() && (addend.entryIsNull(i) || dst.entryIsNull(i))) return statusNullPointer;
        CellSum sum(*this, dst.element(object, i));
        for (std::uint64_t k = 0; k < columns; ++k) {
            if (testsEntriesAlongTheWay() && (testedEntryIsNull(factor, i, k) || right.entryIsNull(k)))
                return statusNullPointer;
            const Wide product = multiply(load(factor.element(object, i, k)), load(right.element(object, k)));
            sum.add(dst.element(object, i), product);
        }
        if (adds) sum.add(dst.element(object, i), load(addend.element(object, i)));
        return statusOk;
    }
    Status objectByElements() {
        for (std::uint64_t i = 0; i < rows; ++i)
            if (const Status status = element(i); status != statusOk) return status;
        return statusOk;
    }

    // ---- In lanes: all elements are computed from what was fetched before the first of them is stored

    // The products of a plain matrix are added across lanes and those of a transposed one down them, and the last
    // element of order 5 with a plain matrix has a tree of its own.
    const char *tree(std::uint64_t i) const {
        const bool isTransposed = factor.isTransposed();
        switch (form.size) {
        case 3: return "0+1+2";
        case 4: return isTransposed ? "(0+1)+(2+3)" : "(0+2)+(1+3)";
        case 5: return isTransposed || i != 4 ? "(0+1+4)+(2+3)" : "(0+2+4)+(1+3)";
        default: return isTransposed ? "(0+1)+(2+3)+(4+5)" : "(0+2+4)+(1+3+5)";
        }
    }
    Wide elementInLanes(std::uint64_t i) const {
        Numbers products;
        for (std::uint64_t k = 0; k < columns; ++k)
            products.push_back(multiply(matrixInLanes[i * columns + k], vectorInLanes[k]));
        const Wide product = sumAs(tree(i), *this, products);
        return adds ? add(product, load(addend.element(object, i))) : product;
    }
    // Orders 5 and 6 store four elements at once and the rest apart, and whether what serves the rest alone is fetched
    // before or after the four are stored is free. So is whether the single matrix beside vectors to add is fetched
    // once for all objects or for each of them anew, so none may be stored over what a later one would read.
    void checkOverlaps() {
        const auto behind = [](const Places &places, std::uint64_t first) {
            return Places(places.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(first, places.size())),
                          places.end());
        };
        const auto overlaps = [&](const Places &a, const Places &b) { return anyOverlap(a, b, form.elementSize()); };
        const Places all = placesOf(dst, object, 1, rows);
        const Places four(all.begin(), all.begin() + std::min<std::ptrdiff_t>(4, static_cast<std::ptrdiff_t>(rows)));
        const Places matrixPlaces = placesOf(factor, object, rows, columns);
        const bool isHeldThroughout = !adds && form.isArray() && !factor.isArray();
        markOpenIf(!isHeldThroughout && overlaps(four, behind(matrixPlaces, 4 * columns)));
        if (!adds) return;
        markOpenIf(overlaps(four, behind(placesOf(addend, object, 1, rows), 4)));
        markOpenIf(object + 1 < count() && overlaps(all, matrixPlaces));
    }
    // A single operand of an array form is fetched for the first object and then held.
    Status objectInLanes() {
        checkOverlaps();
        if (object == 0 || factor.isArray()) matrixInLanes = load(placesOf(factor, object, rows, columns));
        if (object == 0 || right.isArray()) vectorInLanes = load(placesOf(right, object, 1, columns));
        Numbers results;
        for (std::uint64_t i = 0; i < rows; ++i) results.push_back(elementInLanes(i));
        for (std::uint64_t i = 0; i < rows; ++i) store(dst.element(object, i), results[i]);
        return statusOk;
    }

    Status run() {
        if (columns == 0 || rows == 0 || length != (factor.isTransposed() ? rows : columns)) return statusSize;
        if (form.isArray() && hasTables() && anyTableEntryIsNull(operands)) return statusNullPointer;
        return overObjects(operands, [&] { return hasLanes() ? objectInLanes() : objectByElements(); });
    }
};

} // namespace

Status multiplyMatrixByVector(const Execution &execution) { return MatrixByVector{execution}.run(); }

} // namespace model
