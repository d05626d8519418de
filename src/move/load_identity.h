// Zeros, and ones on a diagonal that runs on from object to object: in the first object it is the identity's, in later
// ones it lies beyond the columns. Callers who want many identities make many calls.
#pragma once

#include "frame/walk.h"

namespace vonkk3::move {

// ---- Words that are read unlike elsewhere ---------------------------------------------------------------------------

// `cols` and `rows` are signed: below 1 there are none.
inline std::ptrdiff_t extentOf(RunTime word) { return std::int32_t(word.extent); }

// A stride that is too small for what lies a stride apart is replaced by the least that is not. They are compared as
// unsigned words, so a negative stride, being huge, stands; and so does a negative `cols` as the least row stride.
inline std::ptrdiff_t atLeast(std::uint32_t least, std::ptrdiff_t stride) {
    const auto word = std::uint32_t(stride);
    return std::int32_t(word < least ? least : word);
}

// vonkLoadIdentity_ma_64f_L lets elements be 4 bytes apart, so that they overlap.
template <class Destination>
inline constexpr std::uint32_t leastElementStride = Destination::isList ? sizeof(Real32)
                                                                        : sizeof(typename Destination::Element);

// ---- One object -----------------------------------------------------------------------------------------------------

// Object n with strides that are large enough.
template <class Destination> inline auto objectOf(const Destination &dst, std::size_t n, RunTime cols) {
    constexpr std::uint32_t bytes = sizeof(typename Destination::Element);
    if constexpr (Destination::isTable) {
        auto object = dst.view(0);
        object.offset += strides(n, atLeast(bytes, dst.objectSpacing()));
        return object;
    } else {
        auto object = dst.view(n);
        object.elementStride = atLeast(leastElementStride<Destination>, object.elementStride);
        object.rowStride = atLeast(cols.extent * bytes, object.rowStride);
        return object;
    }
}

// Row i. Positions in a table are signed, as `cols` is.
template <class T> inline TableView<T> rowOf(const TableView<T> &object, std::ptrdiff_t i, std::ptrdiff_t cols) {
    return {reinterpret_cast<T *const *>(shifted(object.table, i * cols * std::ptrdiff_t(sizeof(T *)))), 0,
            object.offset};
}
template <class T> inline StridedView<T> rowOf(const StridedView<T> &object, std::ptrdiff_t i, std::ptrdiff_t) {
    return {object.at(std::size_t(i), 0), 0, object.elementStride};
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Sizes are not tested. A row's zeros are written just before its one, and may take away ones of earlier rows.
template <class Destination>
VONKK3_INLINE VonkStatus loadIdentity(const Destination &dst, RunTime colsWord, RunTime rowsWord, Objects count) {
    using T = typename Destination::Element;
    if (anyNull(dst)) return vonkErrNullPtr;
    if (count == 0) return vonkErrSize;
    const std::ptrdiff_t cols = extentOf(colsWord), rows = extentOf(rowsWord);
    std::size_t diagonal = 0;
    if (rows < 1) return vonkOk;
    for (std::size_t n = 0; n < count; ++n) {
        const auto object = objectOf(dst, n, colsWord);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            const auto row = rowOf(object, i, cols);
            for (std::ptrdiff_t j = 0; j < cols; ++j) row.store(std::size_t(j), T(0));
            row.store(diagonal++, T(1));
        }
    }
    return vonkOk;
}

} // namespace vonkk3::move
