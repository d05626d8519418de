// A single 4x4 matrix that is read transposed in the pointer layout: in some members the walk over its table leaves the
// entry at position 8 untested, and a null one there is followed. Callers rely on these members as they are.
#pragma once

#include <cstddef>

namespace vonkk3 {

template <class View> struct Position8Untested : View {
    bool hasNullEntry(std::size_t row, std::size_t column) const {
        return column * 4 + row != 8 && View::hasNullEntry(row, column);
    }
};
template <class View> Position8Untested(View) -> Position8Untested<View>;

} // namespace vonkk3
