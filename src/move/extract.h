// Gathering of vectors and matrices into one dense block, which is written in ascending order without gaps. Entries of
// tables are never tested.
#pragma once

#include "frame/walk.h"
#include "move/moved.h"

namespace vonkk3::move {

// ---- Members that behave unlike their siblings ----------------------------------------------------------------------

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

template <class Source> inline auto matrixOf(const Source &src, std::size_t n, std::size_t cols) {
    auto view = src.view(n, cols);
    if constexpr (isTransposedTable<Source>) view.stored.offset = 0;
    return view;
}

// The dense block while it is filled.
template <class T> class Block {
public:
    explicit Block(T *first) : first(first) {}
    void append(T element) { storeAt(shifted(first, sizeof(T) * filled++), moved(element)); }

private:
    T *first;
    std::size_t filled = 0;
};
template <class T> Block(T *) -> Block<T>;

// ---- All objects ----------------------------------------------------------------------------------------------------

template <class Source, class T, class Count>
VONKK3_INLINE VonkStatus extract(const Source &src, T *dst, RunTime len, Count count) {
    if constexpr (!isUntestedVector<Source>) {
        if (anyNull(src, dst)) return vonkErrNullPtr;
        if (len.isZero() || count == 0) return vonkErrSize;
    }
    Block block(dst);
    for (std::size_t n = 0; n < count; ++n) {
        const auto vector = src.view(n);
        for (std::size_t j = 0; j < len; ++j) block.append(vector.load(j));
    }
    return vonkOk;
}

template <class Source, class T, class Count>
VONKK3_INLINE VonkStatus extract(const Source &src, T *dst, RunTime cols, RunTime rows, Count count) {
    if constexpr (isUntestedMatrix<Source>) {
        if (isEmptyTable<Source::isTransposed>(cols, rows)) return vonkOk;
    } else {
        if (anyNull(src, dst)) return vonkErrNullPtr;
        if (cols.isZero() || rows.isZero() || count == 0) return vonkErrSize;
    }
    const std::size_t rowsOfResult = isTransposedTable<Source> ? cols : rows;
    const std::size_t columnsOfResult = isTransposedTable<Source> ? rows : cols;
    Block block(dst);
    for (std::size_t n = 0; n < count; ++n) {
        const auto matrix = matrixOf(src, n, cols);
        for (std::size_t i = 0; i < rowsOfResult; ++i)
            for (std::size_t j = 0; j < columnsOfResult; ++j) block.append(matrix.load(i, j));
    }
    return vonkOk;
}

} // namespace vonkk3::move
