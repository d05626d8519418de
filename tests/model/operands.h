// Where an element of an operand lies: the words of one operand of a call and the address arithmetic of the six
// layouts. Addresses wrap at the width of a pointer; strides and shifts are 32-bit words that are sign-extended first.
#pragma once

#include "model/grammar.h"
#include "model/memory.h"

#include <cstdint>
#include <string>
#include <vector>

namespace model {

// The words of a call by the names of their parameters.
class Arguments {
public:
    // Both are kept elsewhere.
    Arguments(const std::vector<Parameter> &parameters, const std::vector<std::uint64_t> &words);

    std::uintptr_t pointer(const std::string &name) const { return word(name); }
    std::uint64_t bytes(const std::string &name) const; // sign-extended, to be added with wrapping
    std::uint32_t size(const std::string &name) const { return static_cast<std::uint32_t>(word(name)); }
    std::int32_t signedSize(const std::string &name) const { return static_cast<std::int32_t>(size(name)); }
    long double real(const std::string &name, Element element) const;
    // How often a loop up to this size runs: not once where the size is compared as a signed number and is negative.
    std::uint32_t times(const std::string &name) const;
    // Of any of the pointers, plain ones included.
    bool hasNullPointer() const;

private:
    std::uint64_t word(const std::string &name) const;

    const std::vector<Parameter> &parameters_;
    const std::vector<std::uint64_t> &words_;
};

struct Operand {
    Memory *memory;
    Layout layout;
    Shape shape;
    std::uint64_t base;
    std::uint64_t shift;
    std::uint64_t objectStride; // 0 of a single operand, which does not advance
    std::uint64_t rowStride;
    std::uint64_t elementStride;
    std::uint64_t columns; // entries in a row of a table of positions
    std::uint64_t entries; // of its table that are tested

    bool isArray() const { return shape.isArray; }
    bool isTransposed() const { return shape.isTransposed; }

    // The address of element (i, j) of object n, in the matrix as it enters the formula: a transposed one is walked
    // down its columns. Reads the table entry that leads there, if one does.
    std::uintptr_t element(std::uint64_t n, std::uint64_t i, std::uint64_t j) const {
        return isTransposed() ? stored(n, j, i) : stored(n, i, j);
    }
    std::uintptr_t element(std::uint64_t n, std::uint64_t j) const { return element(n, 0, j); }
    std::uintptr_t stored(std::uint64_t n, std::uint64_t row, std::uint64_t column) const;

    // In the layouts with a table of positions: the address to which one slot of the table leads for object n.
    std::uintptr_t throughSlot(std::uint64_t n, std::uint64_t slot) const;

    bool isList() const { return isListLayout(layout) && shape.isArray; }
    std::uintptr_t loadEntry(std::uint64_t entry) const { return memory->loadEntry(base + sizeof(void *) * entry); }
    bool entryIsNull(std::uint64_t entry) const { return loadEntry(entry) == 0; }
    // Of the entry that leads to element (i, j). A table of a transposed matrix is read as if a stored row had as many
    // entries as the matrix has rows in the formula.
    bool entryIsNull(std::uint64_t i, std::uint64_t j) const { return entryIsNull(entry(i, j)); }
    std::uint64_t entry(std::uint64_t i, std::uint64_t j) const {
        return isTransposed() ? j * columns + i : i * columns + j;
    }
    bool anyEntryIsNull() const; // of those that are tested
};

// The operand that a slot's words describe; columns is wanted of matrices only.
Operand makeOperand(const Form &form, const Arguments &arguments, Memory &memory, const std::string &name,
                    std::uint64_t columns);

} // namespace model
