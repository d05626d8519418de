// Copies of arrays of vectors and matrices from any layout into any other. Neither entries of tables nor overlap are
// tested: objects, rows and elements ascend, as far as overlap shows it.
#pragma once

#include "frame/stream.h"
#include "frame/walk.h"
#include "move/moved.h"

namespace vonkk3::move {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// vonkCopy_va_32f_PP and vonkCopy_va_64f_PP never read the table of `src`: the source, too, is found through the table
// of `dst`, with its own shift and object stride. Matrices are copied from their own table.
template <class Source, class Destination>
inline constexpr bool readsThroughDestination = Source::isTable &&Destination::isTable;

template <class Source, class Destination> inline Source vectorSource(const Source &src, const Destination &dst) {
    if constexpr (readsThroughDestination<Source, Destination>)
        return Source(reinterpret_cast<typename Source::Pointer>(dst.address()), std::int32_t(src.entryShift()),
                      std::int32_t(src.objectSpacing()));
    else return src;
}

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class Source, class Destination>
VONKK3_INLINE VonkStatus copyObjects(const Source &src, const Destination &dst, RunTime rows, RunTime cols,
                                     Objects count) {
    if (streamObjects(Moved(), rows, cols, count, dst, src)) return vonkOk;
    withFixedColumns<typename Source::Element>(cols, [&](auto columns) {
        for (std::size_t n = 0; n < count; ++n) {
            const auto source = src.view(n, cols);
            const auto destination = dst.view(n, cols);
            for (std::size_t i = 0; i < rows; ++i)
                forIndices(0, columns, columns,
                           [&](std::size_t j) VONKK3_INLINED { destination.store(i, j, moved(source.load(i, j))); });
        }
    });
    return vonkOk;
}

// Vectors: an empty one is an error.
template <class Source, class Destination>
VONKK3_INLINE VonkStatus copy(const Source &src, const Destination &dst, RunTime len, Objects count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (len.isZero()) return vonkErrSize;
    return copyObjects(vectorSource(src, dst), dst, RunTime{1}, len, count);
}

// Matrices: an empty one is copied like any other, and there is nothing to do.
template <class Source, class Destination>
VONKK3_INLINE VonkStatus copy(const Source &src, const Destination &dst, RunTime cols, RunTime rows, Objects count) {
    if (anyNull(src, dst)) return vonkErrNullPtr;
    if (cols.isZero() || rows.isZero()) return vonkOk; // or else the entries of a list would be read
    return copyObjects(src, dst, rows, cols, count);
}

} // namespace vonkk3::move
