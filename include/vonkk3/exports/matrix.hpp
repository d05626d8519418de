// Which export of vonkk3/matrix.h a C++ call takes, by operand kinds, element type, order (0: run-time size) and layout.
//
// Generated from the catalogue of functions; do not edit.
#ifndef VONKK3_EXPORTS_MATRIX_HPP
#define VONKK3_EXPORTS_MATRIX_HPP

#include "../matrix.h"
#include "../select.hpp"

namespace vonk::exports {

template <Kind...> struct Add;
template <> struct Add<m, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkAdd_mm)
    }
};
template <> struct Add<m, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkAdd_mmT)
    }
};
template <> struct Add<mT, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkAdd_mTm)
    }
};
template <> struct Add<mT, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkAdd_mTmT)
    }
};
template <> struct Add<ma, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_mam)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order == 3 && (layout == Layout::standard || layout == Layout::L);
    }
};
template <> struct Add<ma, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_mamT)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order == 3 && (layout == Layout::standard || layout == Layout::L);
    }
};
template <> struct Add<maT, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_maTm)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order == 3 && (layout == Layout::standard || layout == Layout::L);
    }
};
template <> struct Add<maT, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_maTmT)
    }
};
template <> struct Add<ma, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_mama)
    }
};
template <> struct Add<ma, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_mamaT)
    }
};
template <> struct Add<maT, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_maTma)
    }
};
template <> struct Add<maT, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkAdd_maTmaT)
    }
};

template <Kind...> struct Sub;
template <> struct Sub<m, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkSub_mm)
    }
};
template <> struct Sub<m, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkSub_mmT)
    }
};
template <> struct Sub<mT, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkSub_mTm)
    }
};
template <> struct Sub<mT, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkSub_mTmT)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order == 6 && layout == Layout::standard;
    }
};
template <> struct Sub<m, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_mma)
    }
};
template <> struct Sub<m, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_mmaT)
    }
};
template <> struct Sub<mT, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_mTma)
    }
};
template <> struct Sub<mT, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_mTmaT)
    }
};
template <> struct Sub<ma, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_mam)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order == 3 && (layout == Layout::standard || layout == Layout::L);
    }
};
template <> struct Sub<ma, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_mamT)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order == 3 && (layout == Layout::standard || layout == Layout::L);
    }
};
template <> struct Sub<maT, m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_maTm)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order == 3 && (layout == Layout::standard || layout == Layout::L);
    }
};
template <> struct Sub<maT, mT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_maTmT)
    }
};
template <> struct Sub<ma, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_mama)
    }
};
template <> struct Sub<ma, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_mamaT)
    }
};
template <> struct Sub<maT, ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_maTma)
    }
};
template <> struct Sub<maT, maT> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkSub_maTmaT)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order == 6 && (layout == Layout::standard || layout == Layout::L);
    }
};

template <Kind...> struct Mul;
template <> struct Mul<m, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_mc)
    }
};
template <> struct Mul<mT, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkMul_mTc)
    }
};
template <> struct Mul<ma, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_mac)
    }
};
template <> struct Mul<maT, c> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkMul_maTc)
    }
};

template <Kind...> struct Transpose;
template <> struct Transpose<m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkTranspose_m)
    }
};
template <> struct Transpose<ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkTranspose_ma)
    }
};

template <Kind...> struct Trace;
template <> struct Trace<m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkTrace_m)
    }
};
template <> struct Trace<ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkTrace_ma)
    }
};

template <Kind...> struct FrobNorm;
template <> struct FrobNorm<m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkFrobNorm_m)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order != 0 && layout == Layout::standard;
    }
};
template <> struct FrobNorm<ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkFrobNorm_ma)
    }
    static constexpr bool avoid(bool is_float, Size order, Layout layout) {
        return is_float && order != 0 && (layout == Layout::standard || layout == Layout::L);
    }
};

} // namespace vonk::exports

#endif
