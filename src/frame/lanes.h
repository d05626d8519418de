// Small Real32 vectors in four-lane registers. A helper moves exactly the bytes of its elements, never more, and takes
// any address unless it says aligned. The order of the lanes is the helper's own: it suits operations lane by lane.
#pragma once

#include "frame/real.h"
#include "frame/unroll.h"

#include <emmintrin.h>

namespace vonkk3 {

inline constexpr std::size_t laneBytes = 16;

inline const float *floats(const std::byte *address) { return reinterpret_cast<const float *>(address); }
inline float *floats(std::byte *address) { return reinterpret_cast<float *>(address); }
inline const __m64 *pair(const std::byte *address) { return reinterpret_cast<const __m64 *>(address); }
inline __m64 *pair(std::byte *address) { return reinterpret_cast<__m64 *>(address); }

inline __m128 load1(const std::byte *address) { return _mm_set_ss(loadAt<Real32>(address)); }
inline __m128 load2(const std::byte *address) { return _mm_loadl_pi(_mm_setzero_ps(), pair(address)); }
inline __m128 load3(const std::byte *address) { return _mm_loadh_pi(load1(address), pair(address + 4)); }
inline __m128 load4(const std::byte *address) { return _mm_loadu_ps(floats(address)); }
inline __m128 load4Aligned(const std::byte *address) { return _mm_load_ps(floats(address)); }

inline void store1(std::byte *address, __m128 lanes) { storeAt<Real32>(address, _mm_cvtss_f32(lanes)); }
inline void store2(std::byte *address, __m128 lanes) { _mm_storel_pi(pair(address), lanes); }
inline void store3(std::byte *address, __m128 lanes) {
    store1(address, lanes);
    keepStoreOrder();
    _mm_storeh_pi(pair(address + 4), lanes);
}
inline void store4(std::byte *address, __m128 lanes) { _mm_storeu_ps(floats(address), lanes); }

// A vector of 3 to 6 elements in registers: four lanes, and for 5 and 6 elements a second register.
template <std::size_t length> struct Lanes {
    static_assert(length >= 3 && length <= 6);
    __m128 head;
    __m128 tail; // elements 4 and 5; unused below 5

    static Lanes load(const std::byte *address) {
        if constexpr (length == 3) return {load3(address), _mm_setzero_ps()};
        else if constexpr (length == 4) return {load4(address), _mm_setzero_ps()};
        else if constexpr (length == 5) return {load4(address), load1(address + 16)};
        else return {load4(address), load2(address + 16)};
    }

    void store(std::byte *address) const {
        if constexpr (length == 3) store3(address, head);
        else store4(address, head);
        keepStoreOrder();
        if constexpr (length == 5) store1(address + 16, tail);
        if constexpr (length == 6) store2(address + 16, tail);
    }
};

} // namespace vonkk3
