// The orders in which families add up.
#pragma once

#include "model/execution.h"

#include <cstdint>
#include <string_view>

namespace model {

// The sum in the order that a formula of the indices tells: "(0+1)+(2+3)+4" is ((x0 + x1) + (x2 + x3)) + x4.
Wide sumAs(std::string_view formula, const ElementArithmetic &arithmetic, const Numbers &x);

// Of a 3x3 matrix by rows: the element that its row and column name, and the minor that such a formula tells, as
// "11*22-21*12".
inline Wide elementOfThree(std::string_view name, const Numbers &a) {
    return a[static_cast<std::size_t>(3 * (name[0] - '0') + name[1] - '0')];
}
Wide minorOfThree(std::string_view formula, const ElementArithmetic &arithmetic, const Numbers &a);

// The sum of a long row as two registers of four lanes make it: the terms up to a 16-byte boundary go one by one into
// the first lane, then eight at a time lane by lane, and what is left one by one to the sum of lanes. The boundary is
// looked for from `address` on, the place of term 0. Fewer than 11 terms, and terms off any multiple of 4 bytes, are
// added from left to right.
Wide sumInLanes(const ElementArithmetic &arithmetic, std::uintptr_t address, const Numbers &terms);

// The root of a Real32 sum as s (r / 2 (3 - s r^2)), one Newton step beside the processor's estimate r of 1 / sqrt(s).
// Nothing guards a sum of 0: its estimate is infinite, and the result a NaN.
Wide rootByEstimate(const ElementArithmetic &arithmetic, Wide sum);

// A sum that runs through its destination cell: the cell is cleared first and receives every partial sum, so a source
// that lies under it sees them. The cell's address comes with every step, since a table or list leads there anew each
// time. A Real32 sum is the same number in a register and in the cell; a Real64 sum is not, so there the layouts that
// keep it in the cell round at every step and the others at the last one only.
class CellSum {
public:
    CellSum(const Execution &execution, std::uintptr_t cell)
        : execution_(execution),
          roundsEveryStep_(execution.form.layout != Layout::standard && execution.form.layout != Layout::strided) {
        execution.store(cell, 0);
    }
    void add(std::uintptr_t cell, Wide term) {
        sum_ = execution_.add(sum_, term);
        execution_.store(cell, sum_);
        if (roundsEveryStep_) sum_ = execution_.rounded(sum_);
    }

private:
    const Execution &execution_;
    bool roundsEveryStep_;
    Wide sum_ = 0;
};

} // namespace model
