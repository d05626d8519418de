// How the tables below vonkk3/exports/ spell the names of exports: by element type, size and layout.
#ifndef VONKK3_SELECT_HPP
#define VONKK3_SELECT_HPP

#include "views.hpp"

namespace vonk::exports {

// The operands of a group, as its name spells them.
enum Kind : unsigned char { c, v, va, m, mT, ma, maT };

template <class T> inline constexpr bool is_float = sizeof(T) == sizeof(float);

// A table has for each group of an operation
//
//     function<T, N, L>()    the export, or nothing (void) where there is none; N is 0 for run-time size
//     avoid(is_float, N, L)  where the strided sibling is taken in its place, as this one has an exception that a
//     caller
//                            would fall into; exports that nothing speaks against have no `avoid`

} // namespace vonk::exports

#define VONKK3_THREE_LAYOUTS(name)                                                                                     \
    if constexpr (L == Layout::standard) return &name;                                                                 \
    else if constexpr (L == Layout::S2) return &name##_S2;                                                             \
    else if constexpr (L == Layout::P) return &name##_P;

#define VONKK3_SIX_LAYOUTS(name)                                                                                       \
    if constexpr (L == Layout::standard) return &name;                                                                 \
    else if constexpr (L == Layout::S2) return &name##_S2;                                                             \
    else if constexpr (L == Layout::P) return &name##_P;                                                               \
    else if constexpr (L == Layout::PS2) return &name##_PS2;                                                           \
    else if constexpr (L == Layout::L) return &name##_L;                                                               \
    else if constexpr (L == Layout::LS2) return &name##_LS2;

#define VONKK3_SIZE_3(layouts, name)                                                                                   \
    if constexpr (N == 3) {                                                                                            \
        layouts(name##_3x1)                                                                                            \
    }

#define VONKK3_VECTOR_SIZES(layouts, name)                                                                             \
    if constexpr (N == 0) {                                                                                            \
        layouts(name)                                                                                                  \
    } else if constexpr (N == 3) {                                                                                     \
        layouts(name##_3x1)                                                                                            \
    } else if constexpr (N == 4) {                                                                                     \
        layouts(name##_4x1)                                                                                            \
    } else if constexpr (N == 5) {                                                                                     \
        layouts(name##_5x1)                                                                                            \
    } else if constexpr (N == 6) {                                                                                     \
        layouts(name##_6x1)                                                                                            \
    }

#define VONKK3_MATRIX_SIZES(layouts, name)                                                                             \
    if constexpr (N == 0) {                                                                                            \
        layouts(name)                                                                                                  \
    } else if constexpr (N == 3) {                                                                                     \
        layouts(name##_3x3)                                                                                            \
    } else if constexpr (N == 4) {                                                                                     \
        layouts(name##_4x4)                                                                                            \
    } else if constexpr (N == 5) {                                                                                     \
        layouts(name##_5x5)                                                                                            \
    } else if constexpr (N == 6) {                                                                                     \
        layouts(name##_6x6)                                                                                            \
    }

#define VONKK3_TYPES(sizes, layouts, name)                                                                             \
    if constexpr (is_float<T>) {                                                                                       \
        sizes(layouts, name##_32f)                                                                                     \
    } else {                                                                                                           \
        sizes(layouts, name##_64f)                                                                                     \
    }

#endif
