// Which export of vonkk3/lu.h a C++ call takes, by operand kinds, element type, order (0: run-time size) and layout.
//
// Generated from the catalogue of functions; do not edit.
#ifndef VONKK3_EXPORTS_LU_HPP
#define VONKK3_EXPORTS_LU_HPP

#include "../lu.h"
#include "../select.hpp"

namespace vonk::exports {

template <Kind...> struct LUDecomp;
template <> struct LUDecomp<m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkLUDecomp_m)
    }
};
template <> struct LUDecomp<ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkLUDecomp_ma)
    }
};

template <Kind...> struct LUBackSubst;
template <> struct LUBackSubst<m, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkLUBackSubst_mv)
    }
};
template <> struct LUBackSubst<m, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkLUBackSubst_mva)
    }
    static constexpr bool avoid(bool is_float, Size, Layout layout) {
        return !is_float && layout == Layout::L;
    }
};
template <> struct LUBackSubst<ma, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkLUBackSubst_mava)
    }
};

template <Kind...> struct Det;
template <> struct Det<m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkDet_m)
    }
};
template <> struct Det<ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkDet_ma)
    }
};

template <Kind...> struct Invert;
template <> struct Invert<m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkInvert_m)
    }
};
template <> struct Invert<ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkInvert_ma)
    }
};

} // namespace vonk::exports

#endif
