// Which export of vonkk3/product.h a C++ call takes, by operand kinds, element type, order (0: run-time size) and layout.
//
// Generated from the catalogue of functions; do not edit.
#ifndef VONKK3_EXPORTS_PRODUCT_HPP
#define VONKK3_EXPORTS_PRODUCT_HPP

#include "../product.h"
#include "../select.hpp"

namespace vonk::exports {

template <Kind...> struct Mul;
template <> struct Mul<m, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_mm)
    }
};
template <> struct Mul<m, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_mmT)
    }
};
template <> struct Mul<mT, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_mTm)
    }
};
template <> struct Mul<mT, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_mTmT)
    }
};
template <> struct Mul<m, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mma)
    }
};
template <> struct Mul<m, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mmaT)
    }
};
template <> struct Mul<mT, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mTma)
    }
};
template <> struct Mul<mT, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mTmaT)
    }
};
template <> struct Mul<ma, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mam)
    }
};
template <> struct Mul<ma, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mamT)
    }
};
template <> struct Mul<maT, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_maTm)
    }
};
template <> struct Mul<maT, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_maTmT)
    }
};
template <> struct Mul<ma, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mama)
    }
};
template <> struct Mul<ma, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mamaT)
    }
};
template <> struct Mul<maT, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_maTma)
    }
};
template <> struct Mul<maT, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_maTmaT)
    }
};
template <> struct Mul<m, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_mv)
    }
};
template <> struct Mul<mT, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_mTv)
    }
};
template <> struct Mul<m, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mva)
    }
};
template <> struct Mul<mT, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mTva)
    }
};
template <> struct Mul<ma, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mav)
    }
};
template <> struct Mul<maT, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_maTv)
    }
};
template <> struct Mul<ma, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mava)
    }
};
template <> struct Mul<maT, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_maTva)
    }
};

template <Kind...> struct Gaxpy;
template <> struct Gaxpy<m, v, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkGaxpy_v)
    }
};
template <> struct Gaxpy<m, va, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkGaxpy_va)
    }
};

} // namespace vonk::exports

#endif
