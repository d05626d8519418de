// Elements, the arithmetic they are worked in, and the one way to move them to and from memory.
//
// Real32 is worked in Real32: every operation rounds. Real64 is worked in the 80-bit type, and a rounding to 64 bits
// happens only where round() is written. Both inherit the caller's rounding mode and precision control.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace vonkk3 {

using Real32 = float;
using Real64 = double;
using Wide = long double;

static_assert(sizeof(Real32) == 4 && sizeof(Real64) == 8);
static_assert(__LDBL_MANT_DIG__ == 64, "Real64 is worked in the 80-bit extended type");

// The type in which elements of type T are worked.
template <class T> using Working = std::conditional_t<std::is_same_v<T, Real64>, Wide, Real32>;

// const std::byte for what is only read, std::byte for what is written.
template <class T> using ByteOf = std::conditional_t<std::is_const_v<T>, const std::byte, std::byte>;

// To 64 bits for Real64; Real32 is rounded already.
template <class T> inline T round(Working<T> value) { return static_cast<T>(value); }

// Elements lie at any address and overlap anything, so they are moved through types that are aligned to nothing and may
// alias everything. That is one instruction, and it keeps the bits of a signalling NaN, which a detour through the
// 80-bit stack would not. (memcpy, which serves all other types, would do the same for elements; but GCC makes integer
// moves of it, and an element that is both stored and worked on then crosses from one register file to the other.)
using Real32Anywhere [[gnu::may_alias, gnu::aligned(1)]] = Real32;
using Real64Anywhere [[gnu::may_alias, gnu::aligned(1)]] = Real64;

template <class T> inline T loadAt(const std::byte *address) {
    T value;
    __builtin_memcpy(&value, address, sizeof value);
    return value;
}
template <> inline Real32 loadAt(const std::byte *address) {
    return *reinterpret_cast<const Real32Anywhere *>(address);
}
template <> inline Real64 loadAt(const std::byte *address) {
    return *reinterpret_cast<const Real64Anywhere *>(address);
}

template <class T> inline void storeAt(std::byte *address, T value) { __builtin_memcpy(address, &value, sizeof value); }
template <> inline void storeAt(std::byte *address, Real32 value) {
    *reinterpret_cast<Real32Anywhere *>(address) = value;
}
template <> inline void storeAt(std::byte *address, Real64 value) {
    *reinterpret_cast<Real64Anywhere *>(address) = value;
}

// Behind a store of a rounded Real64 that is worked with next: it is then read back from where it was stored. Left to
// itself, a compiler takes the value it has just stored by a detour over the stack, which doubles the way.
template <class T> inline void readBackWhatIsStored() {
    if constexpr (std::is_same_v<T, Real64>) __asm__ volatile("" ::: "memory");
}

} // namespace vonkk3
