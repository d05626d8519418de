// Three 6x6 differences that do not subtract what their names say. Callers rely on what they do instead.
#pragma once

#include "frame/views.h"

namespace vonkk3::matrix {

// Where the elements come from that make element (i, j), as the operands are stored.
struct Position {
    std::uint8_t row, column;
};

// vonkSub_mTmT_32f_6x6: row 3 repeats row 2, and column 3 of the operands is never used.
inline constexpr Position repeatedRow[6][6] = {
    {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}}, {{0, 1}, {1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}},
    {{0, 2}, {1, 2}, {2, 2}, {3, 2}, {4, 2}, {5, 2}}, {{0, 2}, {1, 2}, {2, 2}, {3, 2}, {4, 2}, {5, 2}},
    {{0, 4}, {1, 4}, {2, 4}, {3, 4}, {4, 4}, {5, 4}}, {{0, 5}, {1, 5}, {2, 5}, {3, 5}, {4, 5}, {5, 5}},
};

// vonkSub_maTmaT_32f_6x6 and its L form.
inline constexpr Position scattered[6][6] = {
    {{0, 0}, {0, 4}, {2, 0}, {2, 4}, {4, 0}, {4, 4}}, {{0, 1}, {0, 5}, {2, 1}, {2, 5}, {4, 1}, {4, 5}},
    {{0, 2}, {1, 4}, {2, 2}, {3, 4}, {4, 2}, {5, 4}}, {{0, 2}, {1, 4}, {2, 2}, {3, 4}, {4, 2}, {5, 4}},
    {{1, 0}, {1, 2}, {3, 0}, {3, 2}, {5, 0}, {5, 2}}, {{1, 1}, {1, 3}, {3, 1}, {3, 3}, {5, 1}, {5, 3}},
};

// A 6x6 matrix that gives the element at another position.
struct CrossedView {
    RowsView<const Real32> stored;
    const Position (&from)[6][6];
    Real32 load(std::size_t row, std::size_t column) const {
        const Position at = from[row][column];
        return stored.load(at.row, at.column);
    }
};

} // namespace vonkk3::matrix
