// Moving elements between layouts, gathering them into a dense block, and loading identities: forward walks, object by
// object and row by row, with the few forms that look in another place than their siblings.
#include "model/families.h"

#include <algorithm>
#include <utility>

namespace model {

namespace {

// Real32 elements move as words. Real64 elements pass through the floating-point unit, where a signalling NaN turns
// quiet; nothing else changes.
void moveElement(const Execution &execution, std::uintptr_t to, std::uintptr_t from) {
    if (execution.isReal32()) return execution.memory.move(to, from, 4);
    constexpr std::uint64_t infinity = 0x7ff0000000000000;
    constexpr std::uint64_t quiet = 0x0008000000000000;
    const auto bits = execution.memory.load<std::uint64_t>(from);
    const bool isNan = (bits & ~(std::uint64_t{1} << 63)) > infinity;
    execution.memory.store(to, isNan ? bits | quiet : bits);
}

std::uint32_t columnsOf(const Execution &execution) {
    return execution.arguments.size(execution.form.isOnVectors() ? "len" : "cols");
}

std::uint32_t rowsOf(const Execution &execution) {
    return execution.form.isOnVectors() ? 1 : execution.arguments.size("rows");
}

std::uint64_t largerStride(std::uint64_t stride, std::uint32_t least) {
    const std::uint32_t larger = std::max(static_cast<std::uint32_t>(stride), least);
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(static_cast<std::int32_t>(larger)));
}

// Strides of an identity that are too small are replaced, compared as unsigned numbers: a negative stride is large.
void clampStrides(Operand &dst, const Form &form, std::int32_t columns) {
    const auto size = static_cast<std::uint32_t>(form.elementSize());
    if (isPointerLayout(form.layout)) {
        dst.objectStride = largerStride(dst.objectStride, size);
        return;
    }
    const bool allowsHalfElements = form.name == "vonkLoadIdentity_ma_64f_L";
    dst.elementStride = largerStride(dst.elementStride, allowsHalfElements ? 4 : size);
    dst.rowStride = largerStride(dst.rowStride, static_cast<std::uint32_t>(columns) * size);
}

} // namespace

bool trustsPointers(const Form &form) {
    return form.operation == "Extract" && form.layout == Layout::pointer && form.name != "vonkExtract_v_32f_P";
}

Status copy(const Execution &execution) {
    const Form &form = execution.form;
    const std::uint32_t columns = columnsOf(execution);
    if (form.isOnVectors() && columns == 0) return statusSize; // matrices without elements are nothing to do
    Operand src = execution.operand("src", columns);
    const Operand dst = execution.operand("dst", columns);
    // Vectors from table to table: the table of the source is asked for and never read.
    if (form.isOnVectors() && execution.hasTables() && isPointerLayout(form.destinationLayout)) src.base = dst.base;
    for (std::uint32_t n = 0; n < execution.count(); ++n)
        for (std::uint32_t i = 0; i < rowsOf(execution); ++i)
            for (std::uint32_t j = 0; j < columns; ++j)
                moveElement(execution, dst.element(n, i, j), src.element(n, i, j));
    return statusOk;
}

// Where pointers are trusted, a zero size is nothing to do. One family name goes three ways: a transposed matrix in a
// table, which is told by the sizes of its table; other transposed ones, whose sizes are those of the result; and the
// array in tables, which is not transposed at all.
Status extract(const Execution &execution) {
    const Form &form = execution.form;
    std::uint32_t columns = columnsOf(execution);
    std::uint32_t rows = rowsOf(execution);
    const std::uint32_t count = execution.count();
    const bool multipliesSizes = form.group == "m" && trustsPointers(form);
    const bool isEmpty = multipliesSizes ? columns * rows == 0 : columns == 0 || rows == 0;
    if (isEmpty || count == 0) return trustsPointers(form) ? statusOk : statusSize;

    Operand src = execution.operand("src", columns);
    if (form.group == "mT" && form.layout == Layout::pointer) {
        src.shift = 0; // this one never adds it
        std::swap(columns, rows);
    }
    const bool isTurned = src.isTransposed() && form.layout != Layout::stridedPointer;
    std::uintptr_t to = execution.arguments.pointer("dst");
    for (std::uint32_t n = 0; n < count; ++n)
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < columns; ++j, to += form.elementSize())
                moveElement(execution, to, isTurned ? src.stored(n, j, i) : src.stored(n, i, j));
    return statusOk;
}

// The ones run on over all objects: in each but the first they fall behind the square, onto whatever the strides or the
// table lead to.
Status loadIdentity(const Execution &execution) {
    if (execution.count() == 0) return statusSize;
    const std::int32_t columns = execution.arguments.signedSize("cols");
    const std::int32_t rows = execution.arguments.signedSize("rows");
    Operand dst = execution.operand("dst", static_cast<std::uint64_t>(std::int64_t{columns}));
    clampStrides(dst, execution.form, columns);
    std::uint64_t diagonal = 0;
    for (std::uint32_t n = 0; n < execution.count(); ++n)
        for (std::int32_t i = 0; i < rows; ++i) {
            const auto row = static_cast<std::uint64_t>(i);
            for (std::int32_t j = 0; j < columns; ++j)
                execution.store(dst.element(n, row, static_cast<std::uint64_t>(j)), 0);
            execution.store(dst.element(n, row, diagonal++), 1);
        }
    return statusOk;
}

} // namespace model
