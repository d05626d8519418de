// Four Real32 vectors in SIMD lanes: element j of all four in one register, one object to a lane. What is
// done to them needs no sums across lanes, and rounds in each lane as it would for one object.
#pragma once

#include "frame/gather.h"
#include "frame/walk.h"

namespace vonkk3 {

inline constexpr std::size_t four = 4;
inline constexpr std::size_t inFours(std::size_t count) { return count / four * four; }

// An array of adjacent elements whose spacing the compiler knows. Blocks of it are loaded with fewer instructions.
template <class T, std::ptrdiff_t bytes> struct SpacedVectors {
    static constexpr bool isArray = true;
    static constexpr std::ptrdiff_t spacing = bytes;
    ByteOf<T> *base;
    VONKK3_INLINE RowsView<T> view(std::size_t n) const { return RowsView<T>(base + strides(n, spacing), 0); }
};

// The spacing, or 0 if it is known only at run time.
template <class Operand> inline constexpr std::ptrdiff_t spacingOf = 0;
template <class T, std::ptrdiff_t bytes> inline constexpr std::ptrdiff_t spacingOf<SpacedVectors<T, bytes>> = bytes;

template <std::ptrdiff_t spacing, class T, Layout layout> VONKK3_INLINE auto spaced(const Vectors<T, layout> &vectors) {
    return SpacedVectors<T, spacing>{vectors.view(0).base};
}

// work(operands...), with operands of known spacing if all of them share one of the usual ones: packed, or vectors of
// three elements with one element between them.
template <std::size_t length, class Work, class First, class... Others>
VONKK3_INLINE auto withKnownSpacing(const Work &work, const First &first, const Others &...others) {
    constexpr std::ptrdiff_t packed = length * sizeof(Real32), padded = 4 * sizeof(Real32);
    if constexpr (First::layout == Layout::Standard) {
        const bool even = equallySpaced(first, others...);
        if (even && first.objectSpacing() == packed) return work(spaced<packed>(first), spaced<packed>(others)...);
        if (even && length == 3 && first.objectSpacing() == padded)
            return work(spaced<padded>(first), spaced<padded>(others)...);
    }
    return work(first, others...);
}

// Where the vectors of a block begin.
template <class Byte> struct Block {
    Byte *at[four];
    template <class Operand> VONKK3_INLINE Block(const Operand &operand, std::size_t n) {
        for (std::size_t k = 0; k < four; ++k) at[k] = operand.view(n + k).base;
    }
};
using SourceBlock = Block<const std::byte>;
using TargetBlock = Block<std::byte>;

// Lanes a0, a1 of one register and b0, b1 of another.
template <int a0, int a1, int b0, int b1> VONKK3_INLINE __m128 pick(__m128 a, __m128 b) {
    return _mm_shuffle_ps(a, b, _MM_SHUFFLE(b1, b0, a1, a0));
}

// Vectors of three elements: x, y and z of four objects.
struct FourTriples {
    __m128 x, y, z;

    // From anywhere, with their own bytes and no others. load3 leaves lane 1 empty, so y lies in lane 2 and z in 3.
    template <class Operand> VONKK3_INLINE static FourTriples load(const Operand &operand, std::size_t n) {
        const SourceBlock block(operand, n);
        if constexpr (spacingOf<Operand> == 12) return loadPacked(block.at[0]);
        else if constexpr (spacingOf<Operand> == 16) return loadPadded(block.at[0]);
        else return fromRows(load3(block.at[0]), load3(block.at[1]), load3(block.at[2]), load3(block.at[3]));
    }
    template <class Operand> VONKK3_INLINE void store(const Operand &operand, std::size_t n) const {
        const TargetBlock block(operand, n);
        if constexpr (spacingOf<Operand> == 12) storePacked(block.at[0]);
        else storeRows(block);
    }

private:
    VONKK3_INLINE static FourTriples fromRows(__m128 a, __m128 b, __m128 c, __m128 d) {
        const __m128 yzOfTwo = _mm_unpackhi_ps(a, b), yzOfOthers = _mm_unpackhi_ps(c, d);
        return {_mm_movelh_ps(_mm_unpacklo_ps(a, b), _mm_unpacklo_ps(c, d)), _mm_movelh_ps(yzOfTwo, yzOfOthers),
                _mm_movehl_ps(yzOfOthers, yzOfTwo)};
    }
    VONKK3_INLINE void storeRows(const TargetBlock &block) const {
        const __m128 low = _mm_unpacklo_ps(y, z), high = _mm_unpackhi_ps(y, z);
        store1(block.at[0], x), _mm_storel_pi(pair(block.at[0] + 4), low);
        store1(block.at[1], pick<1, 1, 1, 1>(x, x)), _mm_storeh_pi(pair(block.at[1] + 4), low);
        store1(block.at[2], pick<2, 2, 2, 2>(x, x)), _mm_storel_pi(pair(block.at[2] + 4), high);
        store1(block.at[3], pick<3, 3, 3, 3>(x, x)), _mm_storeh_pi(pair(block.at[3] + 4), high);
    }

    // Contiguous, they are three registers: xyzx, yzxy, zxyz.
    VONKK3_INLINE static FourTriples loadPacked(const std::byte *at) {
        const __m128 a = load4(at), b = load4(at + laneBytes), c = load4(at + 2 * laneBytes);
        const __m128 yz = pick<1, 2, 0, 1>(a, b), xy = pick<2, 3, 1, 2>(b, c);
        return {pick<0, 3, 0, 2>(a, xy), pick<0, 2, 1, 3>(yz, xy), pick<1, 3, 0, 3>(yz, c)};
    }
    VONKK3_INLINE void storePacked(std::byte *at) const {
        const __m128 xy = pick<0, 2, 0, 2>(x, y), yz = pick<1, 3, 1, 3>(y, z), zx = pick<0, 2, 1, 3>(z, x);
        store4(at, pick<0, 2, 0, 2>(xy, zx));
        store4(at + laneBytes, pick<0, 2, 1, 3>(yz, xy));
        store4(at + 2 * laneBytes, pick<1, 3, 1, 3>(zx, yz));
    }

    // With one element between them a register each. The gaps are loaded along, but not the one behind the last.
    VONKK3_INLINE static FourTriples loadPadded(const std::byte *at) {
        const __m128 a = load4(at), b = load4(at + laneBytes), c = load4(at + 2 * laneBytes);
        const __m128 dBehindGap = load4(at + 3 * laneBytes - sizeof(Real32));
        const __m128 xz = pick<0, 2, 0, 2>(a, b), xzOfOthers = pick<0, 2, 1, 3>(c, dBehindGap);
        return {pick<0, 2, 0, 2>(xz, xzOfOthers),
                pick<0, 2, 0, 2>(pick<1, 1, 1, 1>(a, b), pick<1, 1, 2, 2>(c, dBehindGap)),
                pick<1, 3, 1, 3>(xz, xzOfOthers)};
    }
};

// The columns of four rows: what was element j of row n is lane n of column j.
struct Columns {
    __m128 column[4];
    VONKK3_INLINE Columns(__m128 a, __m128 b, __m128 c, __m128 d) : column{a, b, c, d} {
        transpose(column[0], column[1], column[2], column[3]);
    }
    VONKK3_INLINE __m128 operator[](std::size_t j) const { return column[j]; }
};

// Sums of neighbouring lanes of two registers: (r0 + r1, r2 + r3, s0 + s1, s2 + s3).
VONKK3_INLINE __m128 addNeighbours(__m128 r, __m128 s) {
    return _mm_add_ps(pick<0, 2, 0, 2>(r, s), pick<1, 3, 1, 3>(r, s));
}

// For four rows, (r0 + r1) + (r2 + r3) of each.
VONKK3_INLINE __m128 addRows(__m128 a, __m128 b, __m128 c, __m128 d) {
    return addNeighbours(addNeighbours(a, b), addNeighbours(c, d));
}

} // namespace vonkk3
