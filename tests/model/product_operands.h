// What the operands of the products have in common: a matrix that enters a product as it is stored or transposed, the
// test of list entries at an object's turn, and the question whether elements share bytes.
#pragma once

#include "model/families.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace model {

// Rows and columns here are those of the factor in the product. A transposed operand is walked down its columns, and a
// table of its positions is read as if a stored row had as many entries as the operand's word for its rows says.
struct FactorMatrix {
    Operand stored;

    bool isArray() const { return stored.shape.isArray; }
    bool isTransposed() const { return stored.shape.isTransposed; }
    std::uintptr_t element(std::uint64_t n, std::uint64_t i, std::uint64_t j) const { return stored.element(n, i, j); }
    // In the layouts with a table of positions: which entry leads to element (i, j).
    std::uint64_t entry(std::uint64_t i, std::uint64_t j) const {
        return isTransposed() ? j * stored.columns + i : i * stored.columns + j;
    }
    bool entryIsNull(std::uint64_t i, std::uint64_t j) const { return stored.entryIsNull(entry(i, j)); }
};

// The words for the dimensions are named after the operand, such as src1Cols and src1Rows.
inline FactorMatrix makeFactor(const Execution &execution, const std::string &name) {
    const bool isTransposed = execution.form.slot(name).isTransposed;
    return {execution.operand(name, execution.dimension(name + (isTransposed ? "Rows" : "Cols")))};
}

inline bool anyListEntryIsNull(std::initializer_list<const Operand *> operands, std::uint64_t n) {
    return std::any_of(operands.begin(), operands.end(),
                       [n](const Operand *operand) { return operand->isList() && operand->entryIsNull(n); });
}

// Null tests that accompany the work, entry by entry, instead of standing ahead of it.
inline bool testsEntriesAlongTheWay(const Form &form) { return isPointerLayout(form.layout) && !form.isArray(); }

inline bool anyOverlap(const Places &some, const Places &others) {
    for (const std::uintptr_t one : some)
        for (const std::uintptr_t other : others)
            if (overlap(one, sizeof(float), other, sizeof(float))) return true;
    return false;
}

} // namespace model
