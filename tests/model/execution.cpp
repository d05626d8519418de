// What all families share. See execution.h.
#include "model/execution.h"

#include <algorithm>

namespace model {

Operand Execution::matrix(const std::string &name, std::uint64_t rows, std::uint64_t columns) const {
    Operand made = operand(name, form.slot(name).isTransposed ? rows : columns);
    made.entries = rows * columns;
    return made;
}

Operand Execution::vector(const std::string &name, std::uint64_t length) const {
    Operand made = operand(name);
    made.entries = length;
    return made;
}

bool Execution::anyTableEntryIsNull(const Operands &operands) {
    return std::ranges::any_of(operands, [](const Operand *one) { return one->anyEntryIsNull(); });
}

bool Execution::anyListEntryIsNull(const Operands &operands, std::uint64_t n) {
    return std::ranges::any_of(operands, [n](const Operand *one) { return one->isList() && one->entryIsNull(n); });
}

Status Execution::overObjects(const Operands &operands, const std::function<Status()> &work) {
    const std::uint64_t objects = count();
    for (object = 0; object < objects; ++object) {
        if (anyListEntryIsNull(operands, object)) return statusNullPointer;
        if (const Status status = work(); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace model
