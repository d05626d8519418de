// What exists: every exported function, from one table of families.
//
// The table says for each family its operand groups, element types, sizes, layouts and the template of its parameters;
// expand() turns it into the 5,572 functions with their parameter lists. The public header, the export stubs, the
// reference pages, functions.json and the tests all come from here, so that no name is spelled twice.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace catalogue {

inline constexpr std::size_t exportCount = 5572;

enum class Type { real32, real64 };

// How an operand's elements lie in memory; the suffix of the name in brackets.
enum class Layout {
    standard,       // [none] rows of adjacent elements
    strided,        // [S2]   rows of elements a stride apart
    pointer,        // [P]    a table of one pointer per element position, objects contiguous from each on
    stridedPointer, // [PS2]  the same, objects a stride apart
    list,           // [L]    a list of one pointer per object, rows of adjacent elements
    stridedList,    // [LS2]  the same, elements a stride apart
};

std::string_view suffix(Layout layout); // "", "S2", "P", "PS2", "L", "LS2"
std::string_view suffix(Type type);     // "32f", "64f"
std::string_view element(Type type);    // "float", "double"

constexpr bool isTable(Layout layout) { return layout == Layout::pointer || layout == Layout::stridedPointer; }
constexpr bool isList(Layout layout) { return layout == Layout::list || layout == Layout::stridedList; }

// One matrix or vector that a function reads or writes through its layout.
struct Operand {
    std::string name; // "src1"
    bool matrix;      // else a vector
    bool array;       // `count` like objects, else one
    bool transposed;  // read with rows and columns exchanged
    bool written;     // the destination
    Layout layout;
};

enum class Kind {
    base,          // pointer to the first element of a standard or strided operand
    table,         // pointer to one pointer per element position
    list,          // pointer to one pointer per object
    dense,         // pointer to a dense block outside the layouts: plain results, pivots, scratch, work
    shift,         // bytes added to each pointer of a table or list
    objectStride,  // bytes from object to object
    rowStride,     // bytes from row to row
    elementStride, // bytes from element to element
    ignored,       // an ignored argument
    size,          // elements: cols, rows, len, order
    count,         // objects
    constant,      // a number by value
};

std::string_view name(Kind kind);
std::string_view unit(Kind kind); // "bytes", "elements", "objects" or ""

struct Parameter {
    std::string name;
    std::string type; // as the header declares it
    Kind kind;
    int operand; // index into Function::operands, or -1
};

// The rule of a family: one section of the header and one page of the reference. Exceptions to it: see exceptions.h.
struct Section {
    std::string_view id;      // file name of its reference page
    std::string_view header;  // "lu": its section stands in vonkk3/lu.h
    std::string_view title;   // "LU decomposition"
    std::string_view summary; // one line, for tables of contents
    std::string_view text;    // what is computed, shapes, units, status values
    std::string_view overlap; // what may overlap
};

// A product of operand groups, types, sizes and layouts that share a parameter template.
struct Family {
    std::string_view section;
    std::string_view operation;  // "Add"
    std::string_view groups;     // "vv vav vava"
    std::string_view types;      // "32f 64f"
    std::string_view sizes;      // "- 3x1 4x1": "-" is run-time size
    std::string_view layouts;    // "" for the product's own: three for one object, six for arrays
    std::string_view operands;   // source operands, "@" standing for the group: "@", or "m@@" where it is not spelled
    char result;                 // 'm' or 'v': kind of the `dst` operand; '-': `dst` is a dense block
    std::string_view parameters; // template: operand slots and words; "*" dense block, "?" dropped at fixed size
    std::string_view routine;    // the C++ template that does the work
};

struct Function {
    std::string name;
    const Family *family;
    const Section *section;
    std::string group;
    Type type;
    int order;                     // 3 to 6, or 0 for run-time size
    std::string layout;            // as in the name: "", "S2", ... or "SP"
    std::vector<Operand> operands; // sources, then `dst`, as far as they have a layout
    std::vector<Parameter> parameters;
    bool array() const;
};

// The function whose code this one is: its own name but for four members of vonkExtract, which lead to the address of
// another one.
std::string bodyOf(const Function &function);

std::span<const Section> sections();
std::span<const Family> families();

// All functions of the name grammar in header order; vonkGetLibVersion, which stands outside it, is not among them.
std::vector<Function> expand();

} // namespace catalogue
