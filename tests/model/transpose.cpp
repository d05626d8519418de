// Transposes: elements are moved bit by bit, row by row of the source. A table of run-time size is read with the
// lengths of its rows exchanged, which shows wherever a matrix is not square.
#include "model/families.h"
#include "model/overlaps.h"

namespace model {

namespace {

struct Transposition : Execution {
    std::uint64_t columns = dimension("cols");
    std::uint64_t rows = dimension("rows");
    Operand src = matrix("src", columns, rows);
    Operand dst = matrix("dst", rows, columns);

    // In lanes loads and stores of an object mingle in an order that is free.
    void checkOverlaps() const {
        Places from, to;
        for (std::uint64_t i = 0; i < rows; ++i)
            for (std::uint64_t j = 0; j < columns; ++j) {
                from.push_back(src.element(object, i, j));
                to.push_back(dst.element(object, j, i));
            }
        markOpenIf(storesOverOtherSources(to, from, form.elementSize()) || shareBytes(to, form.elementSize()));
    }
    Status moveObject() const {
        for (std::uint64_t i = 0; i < rows; ++i)
            for (std::uint64_t j = 0; j < columns; ++j) {
                if (testsEntriesAlongTheWay() && (src.entryIsNull(i, j) || dst.entryIsNull(j, i)))
                    return statusNullPointer;
                memory.move(dst.element(object, j, i), src.element(object, i, j), form.elementSize());
            }
        return statusOk;
    }

    Status run() {
        if (columns == 0 || rows == 0) return statusSize;
        if (form.isArray() && hasTables() && anyTableEntryIsNull({&src, &dst})) return statusNullPointer;
        return overObjects({&src, &dst}, [&] {
            if (hasLanes()) checkOverlaps();
            return moveObject();
        });
    }
};

} // namespace

Status transposeMatrices(const Execution &execution) { return Transposition{execution}.run(); }

} // namespace model
