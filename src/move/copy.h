// Copies of arrays of vectors and matrices from any layout into any other. Neither entries of tables nor overlap are
// tested: objects, rows and elements ascend, as far as overlap shows it.
#pragma once

#include "frame/elementwise.h"
#include "frame/walk.h"
#include "move/moved.h"

namespace vonkk3::move {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// vonkCopy_va_32f_PP and vonkCopy_va_64f_PP never read the table of `src`: the source, too, is found through the table
// of `dst`, with its own shift and object stride. Matrices are copied from their own table.
template <class Source, class Destination>
inline constexpr bool readsThroughDestination = Source::isTable &&Destination::isTable;

template <class Source, class Destination>
inline auto vectorSource(const Source &src, const Destination &dst, std::size_t length) {
    auto words = src.words(length);
    if constexpr (readsThroughDestination<Source, Destination>) words.begin = dst.address();
    return words;
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Vectors: an empty one is an error.
template <class Source, class Destination>
VONKK3_INLINE VonkStatus copy(const Source &src, const Destination &dst, RunTime len, Objects count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (len.isZero()) return vonkErrSize;
    return workArrays<typename Destination::Element, Entries::trusted>(Moved(), fixed<1>, len, count, dst.words(len),
                                                                       vectorSource(src, dst, len));
}

// Matrices: an empty one is copied like any other, and there is nothing to do.
template <class Source, class Destination>
VONKK3_INLINE VonkStatus copy(const Source &src, const Destination &dst, RunTime cols, RunTime rows, Objects count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (cols.isZero() || rows.isZero()) return vonkOk; // or else the entries of a list would be read
    return workArrays<typename Destination::Element, Entries::trusted>(Moved(), rows, cols, count, dst.words(cols),
                                                                       src.words(cols));
}

} // namespace vonkk3::move
