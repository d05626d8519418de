// Which export of vonkk3/vector.h a C++ call takes, by operand kinds, element type, order (0: run-time size) and layout.
//
// Generated from the catalogue of functions; do not edit.
#ifndef VONKK3_EXPORTS_VECTOR_HPP
#define VONKK3_EXPORTS_VECTOR_HPP

#include "../vector.h"
#include "../select.hpp"

namespace vonk::exports {

template <Kind...> struct Add;
template <> struct Add<v, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkAdd_vc)
    }
};
template <> struct Add<va, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_vac)
    }
};

template <Kind...> struct Sub;
template <> struct Sub<v, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkSub_vc)
    }
};
template <> struct Sub<va, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_vac)
    }
};
template <> struct Sub<c, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkSub_cv)
    }
};
template <> struct Sub<c, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_cva)
    }
};

template <Kind...> struct Mul;
template <> struct Mul<v, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_vc)
    }
};
template <> struct Mul<va, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_vac)
    }
};
template <> struct Add<v, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkAdd_vv)
    }
};
template <> struct Add<va, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_vav)
    }
};
template <> struct Add<va, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_vava)
    }
};
template <> struct Sub<v, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkSub_vv)
    }
};
template <> struct Sub<va, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_vav)
    }
};
template <> struct Sub<v, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_vva)
    }
};
template <> struct Sub<va, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_vava)
    }
};

template <Kind...> struct Saxpy;
template <> struct Saxpy<v, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkSaxpy_vv)
    }
};
template <> struct Saxpy<va, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkSaxpy_vav)
    }
};
template <> struct Saxpy<v, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkSaxpy_vva)
    }
};
template <> struct Saxpy<va, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkSaxpy_vava)
    }
};

template <Kind...> struct LComb;
template <> struct LComb<v, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkLComb_vv)
    }
};
template <> struct LComb<va, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkLComb_vav)
    }
};
template <> struct LComb<va, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkLComb_vava)
    }
};

template <Kind...> struct DotProduct;
template <> struct DotProduct<v, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkDotProduct_vv)
    }
};
template <> struct DotProduct<va, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkDotProduct_vav)
    }
};
template <> struct DotProduct<va, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkDotProduct_vava)
    }
};

template <Kind...> struct L2Norm;
template <> struct L2Norm<v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_THREE_LAYOUTS, vonkL2Norm_v)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order != 0 && layout == Layout::standard;
    }
};
template <> struct L2Norm<va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_VECTOR_SIZES, VONKK3_SIX_LAYOUTS, vonkL2Norm_va)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order != 0 && (layout == Layout::standard || layout == Layout::L);
    }
};

template <Kind...> struct CrossProduct;
template <> struct CrossProduct<v, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_SIZE_3, VONKK3_THREE_LAYOUTS, vonkCrossProduct_vv)
    }
};
template <> struct CrossProduct<va, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_SIZE_3, VONKK3_SIX_LAYOUTS, vonkCrossProduct_vav)
    }
};
template <> struct CrossProduct<v, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_SIZE_3, VONKK3_SIX_LAYOUTS, vonkCrossProduct_vva)
    }
};
template <> struct CrossProduct<va, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_SIZE_3, VONKK3_SIX_LAYOUTS, vonkCrossProduct_vava)
    }
};

} // namespace vonk::exports

#endif
