// What the QR families have in common.
#pragma once

#include "frame/size.h"

namespace vonkk3::cholqr {

// How many reflections there are: one for each column, but for the last column of a square matrix, which has nothing
// below its diagonal.
template <class Columns, class Rows> inline std::size_t reflections(Columns columns, Rows rows) {
    return columns == rows ? columns - 1 : std::size_t(columns);
}

} // namespace vonkk3::cholqr
