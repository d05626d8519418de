// Copies of arrays of vectors and matrices from any layout into any other: a plain forward walk over objects, rows and
// elements. Neither entries of tables nor overlap are tested.
#pragma once

#include "frame/walk.h"
#include "move/moved.h"

namespace vonkk3::move {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

// vonkCopy_va_32f_PP and vonkCopy_va_64f_PP never read the table of `src`: the source, too, is found through the table
// of `dst`, with its own shift and object stride. Matrices are copied from their own table.
template <class Source, class Destination>
inline constexpr bool readsThroughDestination = Source::isTable &&Destination::isTable;

template <class Source, class Destination>
inline auto sourceVector(const Source &src, const Destination &dst, std::size_t n) {
    auto source = src.view(n);
    if constexpr (readsThroughDestination<Source, Destination>) source.table = dst.view(n).table;
    return source;
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Vectors: an empty one is an error.
template <class Source, class Destination>
VONKK3_INLINE VonkStatus copy(const Source &src, const Destination &dst, RunTime len, Objects count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (len.isZero()) return vonkErrSize;
    for (std::size_t n = 0; n < count; ++n) {
        const auto source = sourceVector(src, dst, n);
        const auto destination = dst.view(n);
        for (std::size_t j = 0; j < len; ++j) destination.store(j, moved(source.load(j)));
    }
    return vonkOk;
}

// Matrices: an empty one is copied like any other, and there is nothing to do.
template <class Source, class Destination>
VONKK3_INLINE VonkStatus copy(const Source &src, const Destination &dst, RunTime cols, RunTime rows, Objects count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (cols.isZero() || rows.isZero()) return vonkOk; // or else the entries of a list would be read
    for (std::size_t n = 0; n < count; ++n) {
        const auto source = src.view(n, cols);
        const auto destination = dst.view(n, cols);
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < cols; ++j) destination.store(i, j, moved(source.load(i, j)));
    }
    return vonkOk;
}

} // namespace vonkk3::move
