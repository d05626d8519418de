// What the dimension words of a product mean. Transposed operands are not treated evenly: the tests look at them as
// they are stored, the loops as they enter the product. For square matrices all of it is the plain product.
#pragma once

#include "frame/operands.h"
#include "frame/size.h"

namespace vonkk3::product {

// A product is told by which operands are arrays and which are transposed, and by the layout.
template <bool firstIsArray, bool firstIsTransposed, bool secondIsArray, bool secondIsTransposed, Layout memory>
struct Pattern {
    static constexpr bool firstArray = firstIsArray;
    static constexpr bool firstTransposed = firstIsTransposed;
    static constexpr bool secondArray = secondIsArray;
    static constexpr bool secondTransposed = secondIsTransposed;
    static constexpr bool isArray = firstArray || secondArray;
    static constexpr Layout layout = memory;
};
template <class A, class B>
using PatternOf = Pattern<A::isArray, A::isTransposed, B::isArray, B::isTransposed, A::layout>;

// vonkMul_mmT of run-time size in the standard layout alone loops over the shape as it is stored, and so gives the true
// product of matrices that are not square.
template <class P>
inline constexpr bool loopsOverStoredShape =
    !P::isArray && !P::firstTransposed && P::secondTransposed && P::layout == Layout::Standard;

template <class Cols1, class Rows1, class Cols2, class Rows2> struct Dimensions {
    Cols1 cols1;
    Rows1 rows1;
    Cols2 cols2;
    Rows2 rows2;

    template <class P> std::size_t rows() const { return rows1; }
    template <class P> std::size_t columns() const { return loopsOverStoredShape<P> ? rows2 : cols2; }
    template <class P> std::size_t terms() const { return loopsOverStoredShape<P> ? cols1 : rows2; }

    // Of the second operand's words one is tested for zero: in mm and in the forms whose first operand alone is
    // transposed its columns, in all others its rows. A zero in the other one mostly fails the test of equality; in mam
    // it passes, and nothing is written.
    template <class P> bool anyZero() const {
        constexpr bool looksAtColumns =
            !P::secondTransposed && (P::firstTransposed || (!P::firstArray && !P::secondArray));
        return rows1.isZero() || cols1.isZero() || (looksAtColumns ? cols2.isZero() : rows2.isZero());
    }

    // mma and mama carry the test of the doubly transposed forms, though nothing in them is transposed.
    template <class P> bool agree() const {
        if (P::firstTransposed) return rows1 == (P::secondTransposed ? cols2 : rows2);
        if (P::secondTransposed) return cols1 == cols2;
        return P::secondArray ? rows1 == cols2 : cols1 == rows2;
    }

    // How many entries of the destination's table are tested. Not always those of the cells that are written.
    template <class P> std::size_t testedCells() const {
        return (P::firstTransposed ? rows1 : cols1) * (P::secondTransposed ? cols2 : rows2);
    }
};

} // namespace vonkk3::product
