// Plain loops that move matrices between layouts. Sizes and strides are known at run time, as they are to the library.
// Nothing overlaps, which the compiler is told.
#pragma once

#include <cstddef>

namespace bench::plain {

struct Strides { // in bytes
    std::ptrdiff_t object, row, element;
};

template <class T>
void moveStrided(const T *source, Strides from, T *destination, Strides to, std::size_t columns, std::size_t rows,
                 std::size_t count);

template <class T>
void gatherStrided(const T *source, Strides from, T *destination, std::size_t columns, std::size_t rows,
                   std::size_t count);

// From behind a table of one pointer per position, objects a stride apart, to a list of one pointer per object.
template <class T>
void moveTableToList(const T *const *table, std::ptrdiff_t objectStride, T *const *list, std::ptrdiff_t rowStride,
                     std::ptrdiff_t elementStride, std::size_t columns, std::size_t rows, std::size_t count);

} // namespace bench::plain
