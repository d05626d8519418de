// What the Cholesky families alone have in common: their array forms are walks of calls for one object.
#pragma once

#include "frame/size.h"
#include "frame/unroll.h"
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

// Of so many objects from n on; nothing is looked at behind the first.
template <class... Operands>
VONKK3_INLINE bool anyBeginsAtNull(std::size_t n, std::size_t objects, const Operands &...operands) {
    for (std::size_t k = n; k < n + objects; ++k)
        if ((beginsAtNull(operands.view(k)) || ...)) return true;
    return false;
}

} // namespace vonkk3::cholqr
