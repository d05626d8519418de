// What the Cholesky families alone have in common: their array forms are walks of calls for one object.
#pragma once

#include "frame/size.h"
#include "frame/views.h"

namespace vonkk3::cholqr {

// Sizes that are signed are negative then.
inline bool hasTopBit(std::size_t size) { return size >> 31 != 0; }

// The test for null that every single call makes: of the object itself in rows, of the table in the pointer layouts,
// where it has been made by then.
template <class View> inline bool beginsAtNull(const View &view) {
    return reinterpret_cast<std::uintptr_t>(view.base) == 0;
}
template <class T> inline constexpr bool beginsAtNull(const TableView<T> &) { return false; }

} // namespace vonkk3::cholqr
