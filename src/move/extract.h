// Gathering of vectors and matrices into one dense block, which is written in ascending order without gaps. Entries of
// tables are never tested.
#pragma once

#include "frame/stream.h"
#include "frame/walk.h"
#include "move/moved.h"

namespace vonkk3::move {

// ---- Exceptions -----------------------------------------------------------------------------------------------------

// Two pairs of names stand for one function each, and that is settled where names are made: vonkExtract_va_*_S2 is
// vonkExtract_m_*_S2, and vonkExtract_maT_*_PS2 is vonkExtract_ma_*_PS2, so that it does not transpose.

// Lone matrices in a table, and lone vectors of Real64 in one, are not tested for null pointers, and an empty one is no
// error. vonkExtract_v_32f_P has the usual tests.
template <class Source> inline constexpr bool isUntestedMatrix = Source::isTable && !Source::isArray;
template <class Source>
inline constexpr bool isUntestedVector = isUntestedMatrix<Source> &&std::is_same_v<typename Source::Element, Real64>;

// Of those, a plain matrix is empty if its number of elements is zero in 32 bits, which 65536 by 65536 is, too.
template <bool isTransposed> inline bool isEmptyTable(RunTime cols, RunTime rows) {
    return isTransposed ? cols.isZero() || rows.isZero() : cols.extent * rows.extent == 0;
}

// vonkExtract_mT_*_P: `cols` and `rows` describe the table, in all other forms the result; and elements are taken where
// the table points, its shift is never added.
template <class Source> inline constexpr bool isTransposedTable = Source::isTransposed &&Source::isTable;

// ---- All objects ----------------------------------------------------------------------------------------------------

// `rows` by `columns` of the result. A table has rows of `tableColumns` entries.
template <class Source, class T, class Count>
VONKK3_INLINE VonkStatus extractObjects(const Source &src, T *dst, RunTime rows, RunTime columns, RunTime tableColumns,
                                        Count count) {
    if (streamPacked(Moved(), rows, columns, count, dst, src)) return vonkOk;
    withFixedColumns<T>(columns, [&](auto fixedColumns) {
        std::byte *row = reinterpret_cast<std::byte *>(dst);
        for (std::size_t n = 0; n < count; ++n) {
            auto object = src.view(n, tableColumns);
            if constexpr (isTransposedTable<Source>) object.stored.offset = 0;
            for (std::size_t i = 0; i < rows; ++i, row += columns * sizeof(T))
                forIndices(0, fixedColumns, fixedColumns, [&](std::size_t j) VONKK3_INLINED {
                    storeAt(row + j * sizeof(T), Moved()(object.load(i, j)));
                });
        }
    });
    return vonkOk;
}

template <class Source, class T, class Count>
VONKK3_INLINE VonkStatus extract(const Source &src, T *dst, RunTime len, Count count) {
    if constexpr (!isUntestedVector<Source>) {
        if (anyNull(src, dst)) return vonkErrNullPtr;
        if (len.isZero() || count == 0) return vonkErrSize;
    }
    return extractObjects(src, dst, RunTime{1}, len, len, count);
}

template <class Source, class T, class Count>
VONKK3_INLINE VonkStatus extract(const Source &src, T *dst, RunTime cols, RunTime rows, Count count) {
    if constexpr (isUntestedMatrix<Source>) {
        if (isEmptyTable<Source::isTransposed>(cols, rows)) return vonkOk;
    } else {
        if (anyNull(src, dst)) return vonkErrNullPtr;
        if (cols.isZero() || rows.isZero() || count == 0) return vonkErrSize;
    }
    if constexpr (isTransposedTable<Source>) return extractObjects(src, dst, cols, rows, cols, count);
    else return extractObjects(src, dst, rows, cols, cols, count);
}

} // namespace vonkk3::move
