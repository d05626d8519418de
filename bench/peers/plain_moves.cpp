// Moves as one writes them by hand.
#include "peers/plain_moves.h"

namespace bench::plain {
namespace {

template <class T> const T &at(const T *base, std::ptrdiff_t bytes) {
    return *reinterpret_cast<const T *>(reinterpret_cast<const char *>(base) + bytes);
}
template <class T> T &at(T *base, std::ptrdiff_t bytes) {
    return *reinterpret_cast<T *>(reinterpret_cast<char *>(base) + bytes);
}

} // namespace

template <class T>
void moveStrided(const T *__restrict source, Strides from, T *__restrict destination, Strides to, std::size_t columns,
                 std::size_t rows, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t i = 0; i < rows; ++i) {
            const T *s = &at(source, std::ptrdiff_t(n) * from.object + std::ptrdiff_t(i) * from.row);
            T *d = &at(destination, std::ptrdiff_t(n) * to.object + std::ptrdiff_t(i) * to.row);
            for (std::size_t j = 0; j < columns; ++j, s = &at(s, from.element), d = &at(d, to.element)) *d = *s;
        }
}

template <class T>
void gatherStrided(const T *__restrict source, Strides from, T *__restrict destination, std::size_t columns,
                   std::size_t rows, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j)
                *destination++ = at(source, std::ptrdiff_t(n) * from.object + std::ptrdiff_t(i) * from.row +
                                                std::ptrdiff_t(j) * from.element);
}

template <class T>
void moveTableToList(const T *const *__restrict table, std::ptrdiff_t objectStride, T *const *__restrict list,
                     std::ptrdiff_t rowStride, std::ptrdiff_t elementStride, std::size_t columns, std::size_t rows,
                     std::size_t count) {
    for (std::size_t n = 0; n < count; ++n)
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j)
                at(list[n], std::ptrdiff_t(i) * rowStride + std::ptrdiff_t(j) * elementStride) =
                    at(table[i * columns + j], std::ptrdiff_t(n) * objectStride);
}

template void moveStrided(const float *, Strides, float *, Strides, std::size_t, std::size_t, std::size_t);
template void moveStrided(const double *, Strides, double *, Strides, std::size_t, std::size_t, std::size_t);
template void gatherStrided(const float *, Strides, float *, std::size_t, std::size_t, std::size_t);
template void moveTableToList(const float *const *, std::ptrdiff_t, float *const *, std::ptrdiff_t, std::ptrdiff_t,
                              std::size_t, std::size_t, std::size_t);

} // namespace bench::plain
