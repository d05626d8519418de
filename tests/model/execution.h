// What every family starts from: one call on its way, with what its name says, its words, the memory on which it works,
// the arithmetic of its elements, and the tests and loops that all families share.
#pragma once

#include "model/arithmetic.h"
#include "model/grammar.h"
#include "model/memory.h"
#include "model/operands.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace model {

using Status = std::int32_t;

constexpr Status statusOk = 0;
constexpr Status statusSize = -6;
constexpr Status statusNullPointer = -8;
constexpr Status statusSingular = -10;
constexpr Status statusNotPositiveDefinite = -179;

using Operands = std::vector<const Operand *>;

struct Execution : ElementArithmetic {
    const Form &form;
    const Arguments &arguments;
    Memory &memory;
    std::uint64_t object = 0; // the one at work

    Execution(const Form &form, const Arguments &arguments, Memory &memory)
        : ElementArithmetic(form.element, memory), form(form), arguments(arguments), memory(memory) {}

    bool isReal32() const { return form.element == Element::real32; }
    bool hasTables() const { return isPointerLayout(form.layout); } // of positions
    // Null tests of single forms accompany the work, entry by entry, instead of standing ahead of it.
    bool testsEntriesAlongTheWay() const { return hasTables() && !form.isArray(); }
    bool isAdjacent() const { return form.layout == Layout::standard || form.layout == Layout::list; }
    // The Real32 forms of fixed size whose elements are adjacent.
    bool hasLanes() const { return isReal32() && form.size != 0 && isAdjacent(); }
    void markOpenIf(bool condition) const {
        if (condition) memory.markOpen();
    }

    // The fixed size if the form has one, else the word of that name.
    std::uint32_t dimension(const std::string &name) const { return form.size != 0 ? form.size : arguments.size(name); }
    // A form without arrays works on one object.
    std::uint32_t count() const { return form.isArray() ? arguments.size("count") : 1; }
    bool isInBlockOfFour(std::uint64_t n) const { return n < count() - count() % 4; } // the rest are left over
    // Of the element type.
    Wide constant(const std::string &name) const { return arguments.real(name, form.element); }
    // The place of the object's number in a dense destination.
    std::uintptr_t result() const { return arguments.pointer("dst") + object * form.elementSize(); }
    Operand operand(const std::string &name, std::uint64_t columns = 0) const {
        return makeOperand(form, arguments, memory, name, columns);
    }
    // Of so many rows and columns as stored, or as they enter the formula: a transposed matrix takes the one for the
    // other. All entries of a table are tested.
    Operand matrix(const std::string &name, std::uint64_t rows, std::uint64_t columns) const;
    Operand vector(const std::string &name, std::uint64_t length) const;

    // Copies the object element by element, bit by bit.
    void moveObject(const Operand &to, const Operand &from, std::uint64_t rows, std::uint64_t columns) const {
        for (std::uint64_t i = 0; i < rows; ++i)
            for (std::uint64_t j = 0; j < columns; ++j)
                memory.move(to.element(object, i, j), from.element(object, i, j), form.elementSize());
    }

    // One table after the other.
    static bool anyTableEntryIsNull(const Operands &operands);
    // Along the way. At order 4 the tests of a transposed matrix miss one entry of its table.
    bool testedEntryIsNull(const Operand &operand, std::uint64_t i, std::uint64_t j) const {
        const bool isMissed = operand.isTransposed() && form.size == 4 && operand.entry(i, j) == 8;
        return !isMissed && operand.entryIsNull(i, j);
    }
    // Of lists, at an object's turn.
    static bool anyListEntryIsNull(const Operands &operands, std::uint64_t n);
    // The objects in their order: the entries of lists are tested at each object's turn, and the first status that is
    // not ok ends the call.
    Status overObjects(const Operands &operands, const std::function<Status()> &work);
};

} // namespace model
