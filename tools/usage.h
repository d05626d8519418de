// What a caller looks for and gets: per operation a title, the field's words for it, its formula in the form of a loop,
// and what is called next; per operand its shape. functions.json carries it to the finder and to bindings.
#pragma once

#include "catalogue.h"

#include <span>
#include <string>
#include <string_view>

namespace catalogue {

// One operation of one section. The formula is C over element accesses: `operand(j)` of a vector, `operand(i, j)` of a
// matrix, as it enters the formula (a transposed operand's rows and columns are exchanged already). An index runs over
// the rows or columns at whose place it stands; those in `summed` are summed over, the others are outer loops. An empty
// formula: an algorithm, told in the section's text.
struct Usage {
    std::string_view section;
    std::string_view operation;
    std::string_view groups; // where one operation has several formulas; else empty
    std::string_view title;  // "Matrix by vector"
    std::string_view words;  // what a search may ask for
    std::string_view summed; // "k"
    std::string_view term;   // "src1(i, k) * src2(k)"; `sum` is the sum of the terms
    std::string_view assign; // "dst(i) = sum"
    std::string_view next;   // operations that take the results
};

// Words for some operand groups of an operation.
struct GroupWords {
    std::string_view section;
    std::string_view groups;
    std::string_view words;
};

std::span<const Usage> usages();
std::span<const GroupWords> groupWords();
const Usage &usageOf(const Function &function); // throws std::logic_error if the table has none

// As stored, and as far as the loops read or write it. Sizes are numbers or names of parameters.
struct Shape {
    std::string rows; // of a vector: its length
    std::string columns;
};
Shape shapeOf(const Function &function, const Operand &operand);

// How many elements a dense block holds, as an expression of numbers and parameters; `scratch` is counted in bytes.
std::string lengthOf(const Function &function, const Parameter &block);

// "in", "out" or "scratch" for pointers, else "".
std::string_view directionOf(const Parameter &parameter);

} // namespace catalogue
