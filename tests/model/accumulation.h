// Sums of products that run through their destination cell: the cell is cleared first and receives every partial sum,
// so a source that lies under it sees them. How far a partial sum is rounded depends on element type and layout.
#pragma once

#include "model/arithmetic.h"
#include "model/grammar.h"
#include "model/memory.h"

#include <cstdint>

namespace model {

// One cell at a time. The cell's address comes with every step, since a table or list leads there anew each time.
class CellSum {
public:
    CellSum(const Form &form, Memory &memory);

    void clear(std::uintptr_t cell);
    void addProduct(std::uintptr_t cell, std::uintptr_t a, std::uintptr_t b);
    void addElement(std::uintptr_t cell, std::uintptr_t element);

private:
    void add32(std::uintptr_t cell, float term);
    void add64(std::uintptr_t cell, Wide term);

    Memory &memory_;
    Arithmetic arithmetic_;
    bool isReal32_;
    bool roundsEveryStep_; // of Real64
    float sum32_ = 0;
    Wide sum64_ = 0;
};

} // namespace model
