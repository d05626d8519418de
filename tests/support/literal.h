// One call of one export, for the tests whose numbers are worked out by hand: gives each operand memory in the export's
// own layout, takes and hands out elements by object, row and column whatever the layout, and tells which bytes the
// call has changed.
#pragma once

#include "catalogue.h"
#include "control.h"
#include "model/model.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace literal {

const catalogue::Function &function(std::string_view name);
std::vector<const catalogue::Function *> members(std::string_view section); // of a section, by its id
std::vector<const catalogue::Function *> members(std::string_view section,
                                                 const std::function<bool(const catalogue::Function &)> &wanted);
const std::vector<catalogue::Function> &allMembers();

bool isPointer(catalogue::Kind kind);

// Calls the export with these words, as a caller of the header would, after the model has done so: see both.h.
std::int32_t callWith(std::string_view name, const std::vector<std::uint64_t> &words);

// What the model says of a call; the export makes it too unless its outcome is open.
model::Outcome runWhereFixed(std::string_view name, const std::vector<std::uint64_t> &words);

template <class Element> std::uint64_t wordOf(Element *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }

// vonkLUBackSubst_mva_64f and vonkQRBackSubst_mva_64f in `L`, of every order: take the columns of the matrix 4 bytes
// apart, whatever the doubles.
bool hasColumnsFourBytesApart(const catalogue::Function &function);

// Sizes at which a function is worth calling: its own if that is fixed.
std::vector<std::uint32_t> sizesOf(const catalogue::Function &function, std::vector<std::uint32_t> runTimeSizes);

struct Sized {
    const catalogue::Function *function;
    std::uint32_t size;
};

using Wanted = std::function<bool(const catalogue::Function &)>;

inline bool isWanted(const catalogue::Function &) { return true; }

// The members of a section at the sizes at which they are worth calling, and those that can have this size.
std::vector<Sized> sized(std::string_view section, const std::vector<std::uint32_t> &runTimeSizes,
                         const Wanted &wanted = isWanted);
std::vector<Sized> ofSize(std::string_view section, std::uint32_t size, const Wanted &wanted = isWanted);

// Square matrices, row by row.
std::vector<double> diagonal(const std::vector<double> &elements);
std::vector<double> diagonal(std::uint32_t order, double value);
std::vector<double> zeros(std::uint32_t order);

std::vector<std::uint32_t> identityPermutation(std::uint32_t order);

// The next element of the function's type in this direction.
double nextElement(const catalogue::Function &function, double element, double direction);

// Floats between -4 and 4 of which nothing is round, also not in the last place.
std::vector<double> unroundNumbers(std::uint32_t count, std::uint32_t variant);

// How elements, rows and objects follow one another.
struct Geometry {
    int direction = 1;  // of all strides that a layout leaves free
    int padding = 0;    // bytes between neighbours; an odd number makes odd addresses
    bool roomy = false; // rows have empty room behind them for as many rows as there are objects
};

inline constexpr Geometry packed{};
inline constexpr Geometry spread{1, 5, false};
inline constexpr Geometry backward{-1, 5, false};
inline constexpr Geometry roomy{1, 5, true};
inline constexpr Geometry roomyBackward{-1, 5, true};

// Where an operand lies.
struct Place {
    const catalogue::Operand *operand = nullptr;
    std::uint32_t rows = 1;
    std::uint32_t cols = 1;
    std::int32_t elementSize = 4;
    std::byte *origin = nullptr; // element (0, 0) of object 0
    std::int32_t objectStride = 0;
    std::int32_t rowStride = 0;
    std::int32_t elementStride = 0;
    std::int32_t positionStride = 0; // from one position of a table to the next
    std::int32_t shift = 0;
    std::vector<std::byte *> entries;  // of its table or list, with the shift taken off
    std::byte *before = nullptr;       // the entry in front of the first, with the shift taken off
    std::byte *const *table = nullptr; // what the call gets: the entries, unless they were put elsewhere
    std::ptrdiff_t alias = 0;          // from an address of the call to the same memory as the test reaches it

    bool tabled() const; // reached by way of a table of positions or a list of objects
    std::byte *address(std::uint32_t n, std::uint32_t i, std::uint32_t j) const;
    void moveTo(std::byte *newOrigin); // keeps the strides
};

// A dense block outside the layouts, other than pivots and work: results without a layout, and scratch memory.
struct Block {
    std::string parameter;
    std::size_t bytes = 0;
    std::byte *address = nullptr;
};

struct Stray {
    std::string what; // of the first byte that should have stayed; empty if all is well
    explicit operator bool() const { return !what.empty(); }
};

// What fails while it lives is reported with its function and sizes.
class Call {
public:
    // `size` is the length or the order; a form of fixed size has its own. Matrices for QR may have more rows than
    // that.
    Call(std::string_view name, std::uint32_t size, std::uint32_t count = 1, Geometry geometry = packed,
         std::uint32_t rows = 0);
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

    const catalogue::Function &function() const { return function_; }
    std::uint32_t size() const { return size_; }
    std::uint32_t rows() const { return rows_; }
    std::uint32_t count() const { return count_; } // 1 where there is no array
    std::uint32_t objectsOf(std::string_view operand);

    Place &operator[](std::string_view operand);
    void layOver(std::string_view source); // `dst` becomes this source, element on element

    void set(std::string_view operand, std::uint32_t n, std::uint32_t i, std::uint32_t j, double value);
    void set(std::string_view operand, std::uint32_t n, const std::vector<double> &values); // row by row
    void set(std::string_view operand, const std::vector<double> &values);                  // of all objects
    double get(std::string_view operand, std::uint32_t n, std::uint32_t i, std::uint32_t j);
    std::vector<double> get(std::string_view operand, std::uint32_t n);
    void setAt(std::byte *address, double value) const; // an element of the call's type anywhere
    double getAt(const std::byte *address) const;

    void setConstant(std::string_view parameter, double value); // 3 unless it is set
    // Whether `dst` has no layout and one element an object, and is an operand here like others.
    bool hasPlainResult() const;
    Block &block(std::string_view parameter); // of the other blocks
    std::vector<double> results();            // of a `dst` without a layout, all of them

    std::vector<std::uint32_t> pivots(std::uint32_t n) const;
    void setPivots(std::uint32_t n, const std::vector<std::uint32_t> &rows);
    void putPivotsAt(std::uint32_t *address) { pivotsWord_ = address; }

    std::vector<double> work() const; // one element a row
    void putWorkAt(std::byte *address) { workWord_ = address; }
    bool changedWork() const;

    // Passes this instead of what the parameter would get; 32-bit parameters take the low half.
    void pass(std::string_view parameter, std::uint64_t word) { passed_[std::string(parameter)] = word; }
    void passAsUsual() { passed_.clear(); }
    std::vector<std::uint64_t> words();

    std::int32_t run(); // the model, then the export; may be left by a jump out of that
    std::int32_t run(support::Setting setting);

    bool changedNothing() const;         // in the last run, in any memory of the call
    bool changedObject(std::uint32_t n); // a byte of object n of `dst`, or of its pivots where these are written
    Stray strayWrites(); // bytes changed outside the elements of `dst`, such pivots, the work block and other blocks
    std::byte *spareCell(std::uint32_t n) { return spare_ + std::size_t{64} * n; } // away from the operands

private:
    struct Picture {
        std::vector<std::byte> memory;
        std::vector<std::uint32_t> pivots;
        std::vector<std::byte> work;
        std::vector<std::vector<std::byte *>> tables;
        bool operator==(const Picture &) const = default;
    };

    void addPlainResult();
    void shape(Place &place) const;
    void layOut(Geometry geometry);
    std::uint64_t wordOf(const catalogue::Parameter &parameter);
    Picture picture() const;
    bool wroteElsewhere(const model::Outcome &outcome) const;
    std::size_t bytesOf(const std::string &block) const;
    bool changed(const std::byte *address, std::size_t bytes) const;
    bool writesPivots() const { return function_.family->operation == "LUDecomp"; }

    const catalogue::Function &function_;
    std::uint32_t size_;
    std::uint32_t rows_;
    std::uint32_t count_;
    catalogue::Operand result_{}; // what a plain `dst` is taken for: an array of vectors of one element, packed
    std::vector<Place> places_;
    std::vector<Block> blocks_;
    std::vector<std::byte> memory_;
    std::byte *spare_ = nullptr;
    std::vector<std::uint32_t> pivots_;
    std::uint32_t *pivotsWord_;
    std::map<std::string, std::uint64_t> constants_;          // by their bits
    std::map<std::string, std::vector<std::byte *>> fronted_; // tables with the entry in front
    std::vector<std::byte> work_;                             // with margins
    std::byte *workWord_;
    std::map<std::string, std::uint64_t> passed_;
    std::vector<std::uint64_t> words_; // of the run
    Picture before_;
    Picture after_;
    testing::ScopedTrace trace_;
};

// Fills the rows of an operand with bytes of which any that follow one another are an ordinary float or double.
void fillWithOrdinaryBytes(Call &call, std::string_view operand);

// Equal, and of one sign if zero; one NaN is as good as another.
bool same(double left, double right);

// A matrix made of factors so that no step of its decomposition or of a solution rounds: all elements are multiples of
// 1/4. L has magnitudes 1/2 and 1/4 below its diagonal, U has 8 on it and whole numbers from -2 to 3 right of it, so
// that each pivot is the only largest candidate and the permutation comes out as chosen.
struct Factors {
    std::uint32_t order;
    std::uint32_t variant;                  // other numbers for other objects
    std::vector<std::uint32_t> permutation; // row permutation[i] of the matrix is logical row i
    double lastPivot = 8;

    Factors(std::uint32_t order, std::uint32_t variant); // all rows in other places than their own, mostly
    void leaveLastRow(std::uint32_t row);                // chooses the row that holds the last pivot

    double lower(std::uint32_t i, std::uint32_t j) const;
    double upper(std::uint32_t i, std::uint32_t j) const;
    std::vector<double> matrix() const;   // L U with its rows permuted, row by row
    std::vector<double> factored() const; // what the decomposition leaves
    std::vector<double> solution() const; // whole numbers, none of them 0
};

} // namespace literal
