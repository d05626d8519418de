// Four Real32 vectors side by side: element j of all four in one register, each object in a lane of its own. What is
// done to them needs no sums across lanes, and rounds in each lane as it would for one object.
#pragma once

#include "frame/lanes.h"
#include "frame/unroll.h"

namespace vonkk3::vector {

inline constexpr std::size_t blockObjects = 4;
inline constexpr std::size_t inBlocks(std::size_t count) { return count / blockObjects * blockObjects; }

// Where the vectors of a block begin.
template <class Byte> struct Block {
    Byte *at[blockObjects];
    template <class Operand> VONKK3_INLINE Block(const Operand &operand, std::size_t n) {
        for (std::size_t k = 0; k < blockObjects; ++k) at[k] = operand.view(n + k).base;
    }
};
using SourceBlock = Block<const std::byte>;
using TargetBlock = Block<std::byte>;

// One element of each, `offset` bytes into its vector.
VONKK3_INLINE __m128 gather(const SourceBlock &block, std::size_t offset) {
    return _mm_movelh_ps(_mm_unpacklo_ps(load1(block.at[0] + offset), load1(block.at[1] + offset)),
                         _mm_unpacklo_ps(load1(block.at[2] + offset), load1(block.at[3] + offset)));
}

// Lanes a0, a1 of one register and b0, b1 of another.
template <int a0, int a1, int b0, int b1> VONKK3_INLINE __m128 pick(__m128 a, __m128 b) {
    return _mm_shuffle_ps(a, b, _MM_SHUFFLE(b1, b0, a1, a0));
}

// Vectors of three elements: x, y and z of four objects.
struct FourTriples {
    __m128 x, y, z;

    // From anywhere, with their own bytes and no others. load3 leaves lane 1 empty, so y lies in lane 2 and z in 3.
    VONKK3_INLINE static FourTriples load(const SourceBlock &block) {
        const __m128 a = load3(block.at[0]), b = load3(block.at[1]), c = load3(block.at[2]), d = load3(block.at[3]);
        return fromRows(a, b, c, d);
    }
    // From rows in the order of load3.
    VONKK3_INLINE static FourTriples fromRows(__m128 a, __m128 b, __m128 c, __m128 d) {
        const __m128 yzOfTwo = _mm_unpackhi_ps(a, b), yzOfOthers = _mm_unpackhi_ps(c, d);
        return {_mm_movelh_ps(_mm_unpacklo_ps(a, b), _mm_unpacklo_ps(c, d)), _mm_movelh_ps(yzOfTwo, yzOfOthers),
                _mm_movehl_ps(yzOfOthers, yzOfTwo)};
    }
    VONKK3_INLINE void store(const TargetBlock &block) const {
        const __m128 low = _mm_unpacklo_ps(y, z), high = _mm_unpackhi_ps(y, z);
        store1(block.at[0], x), _mm_storel_pi(pair(block.at[0] + 4), low);
        store1(block.at[1], pick<1, 1, 1, 1>(x, x)), _mm_storeh_pi(pair(block.at[1] + 4), low);
        store1(block.at[2], pick<2, 2, 2, 2>(x, x)), _mm_storel_pi(pair(block.at[2] + 4), high);
        store1(block.at[3], pick<3, 3, 3, 3>(x, x)), _mm_storeh_pi(pair(block.at[3] + 4), high);
    }

    // Packed one behind the other they are three registers: xyzx, yzxy, zxyz.
    static constexpr std::ptrdiff_t packedSpacing = 3 * sizeof(Real32);
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
};

// Of four registers, sums of neighbouring lanes: for rows r and s, (r0 + r1, r2 + r3, s0 + s1, s2 + s3).
VONKK3_INLINE __m128 addNeighbours(__m128 r, __m128 s) {
    return _mm_add_ps(pick<0, 2, 0, 2>(r, s), pick<1, 3, 1, 3>(r, s));
}

// For four rows, (r0 + r1) + (r2 + r3) of each.
VONKK3_INLINE __m128 addRows(__m128 a, __m128 b, __m128 c, __m128 d) {
    return addNeighbours(addNeighbours(a, b), addNeighbours(c, d));
}

} // namespace vonkk3::vector
