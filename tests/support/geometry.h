// Where the elements of one operand lie: strides and table entries chosen at random, so that all bytes a call may
// touch are known before the operand gets its place in the arena.
#pragma once

#include "catalogue.h"
#include "random.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace support {

struct Shape {
    std::uint32_t rows = 1; // of a vector 1
    std::uint32_t cols = 1;
};

// The sizes of a call as its memory is laid out: 0 counts as 1, so that a call which does not refuse 0 finds memory.
struct Sizes {
    struct Named {
        std::string name; // of the parameter
        std::uint32_t value;
    };
    std::vector<Named> dimensions; // empty at fixed size
    std::uint32_t count = 1;

    std::uint32_t operator[](std::string_view name) const; // 0 where there is none
    std::uint32_t largest() const;                         // of the dimensions, at least 1
};

// Bytes from low to high (not included), relative to the operand's origin.
struct Reach {
    std::int64_t low = 0;
    std::int64_t high = 0;
    std::int64_t length() const { return high - low; }
    void include(Reach other);
};

struct Placement {
    catalogue::Layout layout = catalogue::Layout::standard;
    bool tabled = false; // reached by way of a table of positions or a list of objects
    std::uint32_t objects = 1;
    Shape shape;
    std::uint32_t elementSize = 4;
    std::int64_t objectStride = 0;
    std::int64_t rowStride = 0;
    std::int64_t elementStride = 4;
    std::vector<std::int64_t> slots; // what each entry leads to, relative to the origin
    Reach reach;
    std::int64_t gap = 0; // moved by as much, an operand like this one lies in its gaps, if it has any

    std::uintptr_t origin = 0; // of an operand without a table, its pointer
    std::uintptr_t table = 0;
    std::int32_t shift = 0;

    std::uintptr_t address(std::uint32_t n, std::uint32_t i, std::uint32_t j) const;
    std::vector<std::uintptr_t> elements() const;      // all of them, objects outermost
    std::int64_t bytesFor(catalogue::Kind kind) const; // the shift or stride that a parameter of this kind passes
};

// Places of operands that an alias test has to tell from others; `any` leaves everything to chance. What a function has
// no operands for comes near it or stays as it is.
enum class Geometry : std::uint8_t {
    any,
    touching,          // the destination begins where a source ends, or the other way round, or an element before that
    inPlace,           // the destination is a source
    oneElementOff,     // the destination is a source moved by one element
    negativeStrides,   // every stride that is free is negative
    rowsInRows,        // the destination lies in the gaps of a source: between its rows, objects or elements
    tablesInEachOther, // destination and source go through one table with shifts that differ
    sameObjectTwice,   // two entries of each table lead to one place, and arrays without one stand still
};
inline constexpr std::size_t geometries = 8;

std::string_view name(Geometry geometry);

// How free the strides of an operand are.
struct Style {
    bool aligned = false;    // strides are multiples of 16 where they are free
    bool onGrid = false;     // strides are multiples of the element's size
    bool mayOverlap = false; // elements may share bytes
    bool packed = false;     // strides are as small as they can be
    bool inElements = false; // element strides are multiples of the element's size
    Geometry geometry = Geometry::any;
};

// Largest operand, in bytes.
inline constexpr std::int64_t operandLimit = 9000;

// Chooses strides and entries within operandLimit. The origin, the table and the shift come later.
Placement layOut(const catalogue::Function &function, int operand, const Sizes &sizes, Style style, Random &random);

} // namespace support
