// Moving elements between layouts, gathering them into a dense block, and loading identities: forward walks, object by
// object and row by row, with the few forms that look in another place than their siblings.
#include "model/families.h"

#include <algorithm>

namespace model {

namespace {

// Real32 elements move as words. Real64 elements pass through the floating-point unit, where a signalling NaN turns
// quiet; nothing else changes.
void moveElement(Memory &memory, const Form &form, std::uintptr_t to, std::uintptr_t from) {
    if (form.element == Element::real32) return memory.move(to, from, 4);
    constexpr std::uint64_t infinity = 0x7ff0000000000000;
    constexpr std::uint64_t quiet = 0x0008000000000000;
    const auto bits = memory.load<std::uint64_t>(from);
    const bool isNan = (bits & ~(std::uint64_t{1} << 63)) > infinity;
    memory.store(to, isNan ? bits | quiet : bits);
}

// ---- Copy

// Vectors from table to table: the table of the source is asked for and never read.
bool readsThroughDestination(const Form &form) {
    return form.operation == "Copy" && form.isOnVectors() && isPointerLayout(form.layout) &&
           isPointerLayout(form.destinationLayout);
}

// ---- Extract

// These five trust their pointers, and a zero size is nothing to do.
bool trustsArguments(const Form &form) { return form.layout == Layout::pointer && form.name != "vonkExtract_v_32f_P"; }

// One family name, three ways: a transposed matrix in a table, which is told by the sizes of its table; other
// transposed ones, whose sizes are those of the result; and the array in tables, which is not transposed at all.
bool gathersColumns(const Form &form) { return form.group == "mT" && form.layout == Layout::pointer; }
bool gathersTransposed(const Form &form) {
    return form.sources[0].isTransposed && !gathersColumns(form) && form.layout != Layout::stridedPointer;
}

// ---- LoadIdentity

std::uint64_t largerStride(std::uint64_t stride, std::uint32_t least) {
    const std::uint32_t larger = std::max(static_cast<std::uint32_t>(stride), least);
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(static_cast<std::int32_t>(larger)));
}

// Strides that are too small are replaced, compared as unsigned numbers: a negative stride is large.
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

void storeNumber(Memory &memory, const Form &form, std::uintptr_t address, int number) {
    if (form.element == Element::real32) memory.store(address, static_cast<float>(number));
    else memory.store(address, static_cast<double>(number));
}

} // namespace

Status copy(const Execution &execution) {
    const Form &form = execution.form;
    const Arguments &arguments = execution.arguments;
    if (arguments.hasNullPointer()) return statusNullPointer;
    const std::uint32_t columns = arguments.size(form.isOnVectors() ? "len" : "cols");
    const std::uint32_t rows = form.isOnVectors() ? 1 : arguments.size("rows");
    if (form.isOnVectors() && columns == 0) return statusSize; // matrices without elements are nothing to do
    Operand src = execution.operand("src", columns);
    const Operand dst = execution.operand("dst", columns);
    if (readsThroughDestination(form)) src.base = dst.base;
    for (std::uint32_t n = 0; n < execution.count(); ++n)
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < columns; ++j)
                moveElement(execution.memory, form, dst.element(n, i, j), src.element(n, i, j));
    return statusOk;
}

Status extract(const Execution &execution) {
    const Form &form = execution.form;
    const Arguments &arguments = execution.arguments;
    if (!trustsArguments(form) && arguments.hasNullPointer()) return statusNullPointer;
    std::uint32_t columns = arguments.size(form.isOnVectors() ? "len" : "cols");
    std::uint32_t rows = form.isOnVectors() ? 1 : arguments.size("rows");
    const std::uint32_t count = execution.count();
    const bool isEmpty = form.group == "m" && trustsArguments(form) ? columns * rows == 0 : columns == 0 || rows == 0;
    if (isEmpty || count == 0) return trustsArguments(form) ? statusOk : statusSize;

    Operand src = execution.operand("src", columns);
    if (gathersColumns(form)) {
        src.shift = 0; // this one never adds it
        std::swap(columns, rows);
    }
    std::uintptr_t to = arguments.pointer("dst");
    const bool swaps = gathersTransposed(form) || gathersColumns(form);
    for (std::uint32_t n = 0; n < count; ++n)
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < columns; ++j, to += form.elementSize())
                moveElement(execution.memory, form, to, swaps ? src.stored(n, j, i) : src.stored(n, i, j));
    return statusOk;
}

// The ones run on over all objects: in each but the first they fall behind the square, onto whatever the strides or the
// table lead to.
Status loadIdentity(const Execution &execution) {
    const Form &form = execution.form;
    const Arguments &arguments = execution.arguments;
    if (arguments.hasNullPointer()) return statusNullPointer;
    if (execution.count() == 0) return statusSize;
    const std::int32_t columns = arguments.signedSize("cols");
    const std::int32_t rows = arguments.signedSize("rows");
    Operand dst = execution.operand("dst", static_cast<std::uint64_t>(std::int64_t{columns}));
    clampStrides(dst, form, columns);
    std::uint64_t diagonal = 0;
    for (std::uint32_t n = 0; n < execution.count(); ++n)
        for (std::int32_t i = 0; i < rows; ++i) {
            const auto row = static_cast<std::uint64_t>(i);
            for (std::int32_t j = 0; j < columns; ++j)
                storeNumber(execution.memory, form, dst.element(n, row, static_cast<std::uint64_t>(j)), 0);
            storeNumber(execution.memory, form, dst.element(n, row, diagonal++), 1);
        }
    return statusOk;
}

} // namespace model
