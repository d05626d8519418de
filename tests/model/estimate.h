// Numbers whose roundings are known by bounds: for formulas that tell their products and leave the order of their sums
// free. Each carries its value in a much higher precision and a bound on how far any such evaluation may stray from it.
// The bound is the textbook one: an operation is charged a unit of rounding times the sum of the magnitudes of all
// products that enter it, so that it holds in whatever order they are added up. The determinant of a matrix A of order
// n, for one, gets a bound of about (n (n + 1) / 2 - 1) u per(|A|), with the permanent of its magnitudes.
#pragma once

#include "model/execution.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace model {

using Quad = __float128;

inline Quad magnitude(Quad value) { return value < 0 ? -value : value; }

enum class Certainty {
    number,    // within the bound
    unknown,   // a step may leave the range, so it may be anything
    notFinite, // an infinity or a NaN
    nan,
};

struct Estimate {
    Certainty certainty = Certainty::number;
    Quad value = 0;
    Quad size = 0;  // the sum of the magnitudes of all products in it
    Quad error = 0; // how far a computed value may lie from it
    int grain = 0;  // the value is a multiple of 2^grain: where nothing is rounded, this tells

    Quad least() const { return magnitude(value) - error; }
    Quad most() const { return magnitude(value) + error; }
    bool isExact() const { return certainty == Certainty::number && error == 0; }
};

Estimate negated(Estimate estimate);

// Of a quantity that every evaluation has to form: from here on only its own magnitude counts.
Estimate settled(Estimate estimate);

// Whether |a| > |b|, which is false beside a NaN; nothing if that hangs on the roundings.
std::optional<bool> isGreater(const Estimate &a, const Estimate &b);

// Whether the number lies between -limit and limit, neither of them included; a limit of 0 asks for 0 itself.
std::optional<bool> isWithin(const Estimate &estimate, double limit);

using Grid = std::vector<std::vector<Estimate>>; // by rows

// The operations of one arithmetic, in the rounding mode of the thread. The extended one follows the precision control.
class Estimator {
public:
    enum class Arithmetic { single, extended };
    explicit Estimator(Arithmetic arithmetic);

    bool roundsToNearest() const { return toNearest_; }

    static Estimate of(double element); // exact
    static Grid of(const std::vector<std::vector<double>> &elements);
    Estimate multiply(const Estimate &a, const Estimate &b) const;
    Estimate sum(const std::vector<Estimate> &terms) const;
    Estimate reciprocal(const Estimate &divisor) const;

    // An estimate x of the reciprocal with 11 correct bits and one Newton step, all in Real32: (x + x) - (d * x) * x,
    // or with the square of x, which leaves the range earlier.
    enum class NewtonStep { byTurns, bySquare };
    Estimate newtonReciprocal(const Estimate &divisor, NewtonStep step) const;

    Grid multiply(const Grid &a, const Grid &b) const;
    Grid scale(const Grid &grid, const Estimate &factor) const;
    // a b - c d, which has no order of its own but the signs of the products. Those change no magnitude to nearest, and
    // then it is what every evaluation comes to, by its magnitude; otherwise an estimate.
    Estimate difference(double a, double b, double c, double d) const;

    // By minors of the last rows.
    Estimate determinant(const Grid &grid) const;
    // By cofactors of row 0, of which nothing is told but that they are made of minors in their turn: what leaves the
    // range in one nesting need not do so in another.
    Estimate determinantInAnyNesting(const Grid &grid) const;
    Grid adjugate(const Grid &grid) const;

    // What a store in the element type leaves of it.
    Estimate rounded(const Estimate &estimate, bool toSingle) const;

private:
    struct Format {
        int digits;
        int least;   // the exponent of the smallest number above 0
        int largest; // all magnitudes are below 2^largest
    };
    Quad unit(const Format &format) const;
    void charge(Estimate &estimate, const Format &format, int operations, bool isExact) const;

    bool toNearest_;
    Format format_;
};

// The elements of an object. One that is held to accuracy itself leaves all that is made of it open.
std::vector<std::vector<double>> numbersOf(const Execution &execution, const Operand &operand, std::uint64_t order);

// Stores an element that was rounded to its type, with the bound that it keeps.
void storeEstimate(const Execution &execution, std::uintptr_t address, const Estimate &estimate);

} // namespace model
