// What a function's name says: the operation, its operand groups, the element type, the size and the layouts. All of it
// is worked out here from the grammar of the names, so that the model depends on no list of the library's.
#pragma once

#include "model/model.h"

#include <cstdint>
#include <string>
#include <vector>

namespace model {

enum class Element { real32, real64 };

enum class Layout { standard, strided, pointer, stridedPointer, list, stridedList };

// One group of letters in a name, or one operand slot of a parameter list.
struct Shape {
    bool isMatrix;
    bool isArray;
    bool isTransposed;
};

struct Form {
    std::string name;
    std::string operation;      // as in the name, without the prefix
    std::string group;          // the operand letters, such as "mamT"
    std::vector<Shape> sources; // the matrices and vectors among the operands in parameter order, constants left out
    Element element;
    std::uint32_t size; // the fixed order or length, 0 at run-time size
    Layout layout;
    Layout destinationLayout; // the same, but for Copy

    bool isArray() const;
    bool isOnVectors() const; // no operand is a matrix
    std::size_t elementSize() const { return element == Element::real32 ? 4 : 8; }
    Shape destination() const;
    // The shape behind "src", "src1", "src2", "src3" or "dst".
    Shape slot(const std::string &operand) const;
};

// Whether each entry of a table stands for one element position (true) or the operands have no such tables (false).
bool isPointerLayout(Layout layout);
// Whether the array operands are lists of one pointer per object.
bool isListLayout(Layout layout);

// Null for a name outside the grammar.
const Form *findForm(const std::string &name);

} // namespace model
