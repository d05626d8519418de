// Which export of vonkk3/cholesky.h a C++ call takes, by operand kinds, element type, order (0: run-time size) and layout.
//
// Generated from the catalogue of functions; do not edit.
#ifndef VONKK3_EXPORTS_CHOLESKY_HPP
#define VONKK3_EXPORTS_CHOLESKY_HPP

#include "../cholesky.h"
#include "../select.hpp"

namespace vonk::exports {

template <Kind...> struct CholeskyDecomp;
template <> struct CholeskyDecomp<m> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkCholeskyDecomp_m)
    }
};
template <> struct CholeskyDecomp<ma> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkCholeskyDecomp_ma)
    }
};

template <Kind...> struct CholeskyBackSubst;
template <> struct CholeskyBackSubst<m, v> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_THREE_LAYOUTS, vonkCholeskyBackSubst_mv)
    }
};
template <> struct CholeskyBackSubst<m, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkCholeskyBackSubst_mva)
    }
};
template <> struct CholeskyBackSubst<ma, va> {
    template <class T, Size N, Layout L> static constexpr auto function() {
        VONKK3_TYPES(VONKK3_MATRIX_SIZES, VONKK3_SIX_LAYOUTS, vonkCholeskyBackSubst_mava)
    }
};

} // namespace vonk::exports

#endif
