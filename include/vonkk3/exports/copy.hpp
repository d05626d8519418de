// Which export of vonkk3/copy.h a C++ call takes, by operand kinds, element type, order (0: run-time size) and layout.
//
// Generated from the catalogue of functions; do not edit.
#ifndef VONKK3_EXPORTS_COPY_HPP
#define VONKK3_EXPORTS_COPY_HPP

#include "../copy.h"
#include "../select.hpp"

namespace vonk::exports {

template <Kind...> struct Copy;
template <> struct Copy<va> {
    template <class T, Layout From, Layout To> static constexpr auto function() {
        if constexpr (is_float<T> && From == Layout::S2 && To == Layout::S2) return &vonkCopy_va_32f_SS;
        if constexpr (is_float<T> && From == Layout::S2 && To == Layout::PS2) return &vonkCopy_va_32f_SP;
        if constexpr (is_float<T> && From == Layout::S2 && To == Layout::LS2) return &vonkCopy_va_32f_SL;
        if constexpr (is_float<T> && From == Layout::PS2 && To == Layout::S2) return &vonkCopy_va_32f_PS;
        if constexpr (is_float<T> && From == Layout::PS2 && To == Layout::PS2) return &vonkCopy_va_32f_PP;
        if constexpr (is_float<T> && From == Layout::PS2 && To == Layout::LS2) return &vonkCopy_va_32f_PL;
        if constexpr (is_float<T> && From == Layout::LS2 && To == Layout::S2) return &vonkCopy_va_32f_LS;
        if constexpr (is_float<T> && From == Layout::LS2 && To == Layout::PS2) return &vonkCopy_va_32f_LP;
        if constexpr (is_float<T> && From == Layout::LS2 && To == Layout::LS2) return &vonkCopy_va_32f_LL;
        if constexpr (!is_float<T> && From == Layout::S2 && To == Layout::S2) return &vonkCopy_va_64f_SS;
        if constexpr (!is_float<T> && From == Layout::S2 && To == Layout::PS2) return &vonkCopy_va_64f_SP;
        if constexpr (!is_float<T> && From == Layout::S2 && To == Layout::LS2) return &vonkCopy_va_64f_SL;
        if constexpr (!is_float<T> && From == Layout::PS2 && To == Layout::S2) return &vonkCopy_va_64f_PS;
        if constexpr (!is_float<T> && From == Layout::PS2 && To == Layout::PS2) return &vonkCopy_va_64f_PP;
        if constexpr (!is_float<T> && From == Layout::PS2 && To == Layout::LS2) return &vonkCopy_va_64f_PL;
        if constexpr (!is_float<T> && From == Layout::LS2 && To == Layout::S2) return &vonkCopy_va_64f_LS;
        if constexpr (!is_float<T> && From == Layout::LS2 && To == Layout::PS2) return &vonkCopy_va_64f_LP;
        if constexpr (!is_float<T> && From == Layout::LS2 && To == Layout::LS2) return &vonkCopy_va_64f_LL;
    }
};
template <> struct Copy<ma> {
    template <class T, Layout From, Layout To> static constexpr auto function() {
        if constexpr (is_float<T> && From == Layout::S2 && To == Layout::S2) return &vonkCopy_ma_32f_SS;
        if constexpr (is_float<T> && From == Layout::S2 && To == Layout::PS2) return &vonkCopy_ma_32f_SP;
        if constexpr (is_float<T> && From == Layout::S2 && To == Layout::LS2) return &vonkCopy_ma_32f_SL;
        if constexpr (is_float<T> && From == Layout::PS2 && To == Layout::S2) return &vonkCopy_ma_32f_PS;
        if constexpr (is_float<T> && From == Layout::PS2 && To == Layout::PS2) return &vonkCopy_ma_32f_PP;
        if constexpr (is_float<T> && From == Layout::PS2 && To == Layout::LS2) return &vonkCopy_ma_32f_PL;
        if constexpr (is_float<T> && From == Layout::LS2 && To == Layout::S2) return &vonkCopy_ma_32f_LS;
        if constexpr (is_float<T> && From == Layout::LS2 && To == Layout::PS2) return &vonkCopy_ma_32f_LP;
        if constexpr (is_float<T> && From == Layout::LS2 && To == Layout::LS2) return &vonkCopy_ma_32f_LL;
        if constexpr (!is_float<T> && From == Layout::S2 && To == Layout::S2) return &vonkCopy_ma_64f_SS;
        if constexpr (!is_float<T> && From == Layout::S2 && To == Layout::PS2) return &vonkCopy_ma_64f_SP;
        if constexpr (!is_float<T> && From == Layout::S2 && To == Layout::LS2) return &vonkCopy_ma_64f_SL;
        if constexpr (!is_float<T> && From == Layout::PS2 && To == Layout::S2) return &vonkCopy_ma_64f_PS;
        if constexpr (!is_float<T> && From == Layout::PS2 && To == Layout::PS2) return &vonkCopy_ma_64f_PP;
        if constexpr (!is_float<T> && From == Layout::PS2 && To == Layout::LS2) return &vonkCopy_ma_64f_PL;
        if constexpr (!is_float<T> && From == Layout::LS2 && To == Layout::S2) return &vonkCopy_ma_64f_LS;
        if constexpr (!is_float<T> && From == Layout::LS2 && To == Layout::PS2) return &vonkCopy_ma_64f_LP;
        if constexpr (!is_float<T> && From == Layout::LS2 && To == Layout::LS2) return &vonkCopy_ma_64f_LL;
    }
};

template <Kind...> struct Extract;
template <> struct Extract<v> {
    template <class T, Size, Layout L> static constexpr auto function() {
        if constexpr (is_float<T> && L == Layout::S2) return &vonkExtract_v_32f_S2;
        if constexpr (is_float<T> && L == Layout::P) return &vonkExtract_v_32f_P;
        if constexpr (!is_float<T> && L == Layout::S2) return &vonkExtract_v_64f_S2;
        if constexpr (!is_float<T> && L == Layout::P) return &vonkExtract_v_64f_P;
    }
};
template <> struct Extract<va> {
    template <class T, Size, Layout L> static constexpr auto function() {
        if constexpr (is_float<T> && L == Layout::S2) return &vonkExtract_va_32f_S2;
        if constexpr (is_float<T> && L == Layout::PS2) return &vonkExtract_va_32f_PS2;
        if constexpr (is_float<T> && L == Layout::LS2) return &vonkExtract_va_32f_LS2;
        if constexpr (!is_float<T> && L == Layout::S2) return &vonkExtract_va_64f_S2;
        if constexpr (!is_float<T> && L == Layout::PS2) return &vonkExtract_va_64f_PS2;
        if constexpr (!is_float<T> && L == Layout::LS2) return &vonkExtract_va_64f_LS2;
    }
};
template <> struct Extract<m> {
    template <class T, Size, Layout L> static constexpr auto function() {
        if constexpr (is_float<T> && L == Layout::S2) return &vonkExtract_m_32f_S2;
        if constexpr (is_float<T> && L == Layout::P) return &vonkExtract_m_32f_P;
        if constexpr (!is_float<T> && L == Layout::S2) return &vonkExtract_m_64f_S2;
        if constexpr (!is_float<T> && L == Layout::P) return &vonkExtract_m_64f_P;
    }
};
template <> struct Extract<mT> {
    template <class T, Size, Layout L> static constexpr auto function() {
        if constexpr (is_float<T> && L == Layout::S2) return &vonkExtract_mT_32f_S2;
        if constexpr (is_float<T> && L == Layout::P) return &vonkExtract_mT_32f_P;
        if constexpr (!is_float<T> && L == Layout::P) return &vonkExtract_mT_64f_P;
    }
};
template <> struct Extract<ma> {
    template <class T, Size, Layout L> static constexpr auto function() {
        if constexpr (is_float<T> && L == Layout::S2) return &vonkExtract_ma_32f_S2;
        if constexpr (is_float<T> && L == Layout::PS2) return &vonkExtract_ma_32f_PS2;
        if constexpr (is_float<T> && L == Layout::LS2) return &vonkExtract_ma_32f_LS2;
        if constexpr (!is_float<T> && L == Layout::S2) return &vonkExtract_ma_64f_S2;
        if constexpr (!is_float<T> && L == Layout::PS2) return &vonkExtract_ma_64f_PS2;
        if constexpr (!is_float<T> && L == Layout::LS2) return &vonkExtract_ma_64f_LS2;
    }
};
template <> struct Extract<maT> {
    template <class T, Size, Layout L> static constexpr auto function() {
        if constexpr (is_float<T> && L == Layout::PS2) return &vonkExtract_maT_32f_PS2;
        if constexpr (is_float<T> && L == Layout::LS2) return &vonkExtract_maT_32f_LS2;
        if constexpr (!is_float<T> && L == Layout::PS2) return &vonkExtract_maT_64f_PS2;
        if constexpr (!is_float<T> && L == Layout::LS2) return &vonkExtract_maT_64f_LS2;
    }
};

template <Kind...> struct LoadIdentity;
template <> struct LoadIdentity<ma> {
    template <class T, Size, Layout L> static constexpr auto function() {
        if constexpr (is_float<T> && L == Layout::S2) return &vonkLoadIdentity_ma_32f_S;
        if constexpr (is_float<T> && L == Layout::PS2) return &vonkLoadIdentity_ma_32f_P;
        if constexpr (is_float<T> && L == Layout::LS2) return &vonkLoadIdentity_ma_32f_L;
        if constexpr (!is_float<T> && L == Layout::S2) return &vonkLoadIdentity_ma_64f_S;
        if constexpr (!is_float<T> && L == Layout::PS2) return &vonkLoadIdentity_ma_64f_P;
        if constexpr (!is_float<T> && L == Layout::LS2) return &vonkLoadIdentity_ma_64f_L;
    }
};

} // namespace vonk::exports

#endif
