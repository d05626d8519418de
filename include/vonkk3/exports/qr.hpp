// Which export of vonkk3/qr.h a C++ call takes, by operand kinds, element type, order (0: run-time size) and layout.
//
// Generated from the catalogue of functions; do not edit.
#ifndef VONKK3_EXPORTS_QR_HPP
#define VONKK3_EXPORTS_QR_HPP

#include "../qr.h"
#include "../select.hpp"

namespace vonk::exports {

template <Kind...> struct QRDecomp;
template <> struct QRDecomp<m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkQRDecomp_m)
    }
};
template <> struct QRDecomp<ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkQRDecomp_ma)
    }
};

template <Kind...> struct QRBackSubst;
template <> struct QRBackSubst<m, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkQRBackSubst_mv)
    }
};
template <> struct QRBackSubst<m, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkQRBackSubst_mva)
    }
    static constexpr bool avoid(bool is_float, Size, Layout layout) {
        return !is_float && layout == Layout::L;
    }
};
template <> struct QRBackSubst<ma, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkQRBackSubst_mava)
    }
    static constexpr bool avoid(bool is_float, Size, Layout layout) {
        return !is_float && layout == Layout::L;
    }
};

} // namespace vonk::exports

#endif
