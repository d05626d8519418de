// Blocks of Real32 vectors in SIMD lanes: element j of all of them in one register, one object to a lane. What is done
// to them needs no sums across lanes, and rounds in each lane as it would for one object. Blocks are of four objects,
// or of as many as the widest register holds: quad q has the objects 4 q to 4 q + 3, and shuffles stay within quads.
#pragma once

#include "frame/gather.h"
#include "frame/walk.h"

namespace vonkk3 {

inline constexpr std::size_t four = 4;
inline constexpr std::size_t inFours(std::size_t count) { return count / four * four; }

// work(fixed<width>, n) for blocks from the first object on, as long as it returns true; the first object that they
// leave. Only where it makes no difference how many objects are read before results are stored, blocks may be wide.
template <class Work> VONKK3_INLINE std::size_t forEachBlock(std::size_t count, bool mayBeWide, const Work &work) {
    std::size_t n = 0;
    if constexpr (widestRegister > four)
        if (mayBeWide)
            while (count - n >= widestRegister && work(fixed<widestRegister>, n)) n += widestRegister;
    while (count - n >= four && work(fixed<four>, n)) n += four;
    return n;
}

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
template <class Byte, std::size_t width> struct Block {
    Byte *at[width];
    template <class Operand> VONKK3_INLINE Block(const Operand &operand, std::size_t n) {
        for (std::size_t k = 0; k < width; ++k) at[k] = operand.view(n + k).base;
    }

    // Four elements of vector k of every quad.
    VONKK3_INLINE Register<width> row(std::size_t k) const {
        return ofQuads<Register<width>>([&](std::size_t q) VONKK3_INLINED { return load4(at[4 * q + k]); });
    }
};
template <std::size_t width> using SourceBlock = Block<const std::byte, width>;
template <std::size_t width> using TargetBlock = Block<std::byte, width>;

// Vectors of three elements: x, y and z of the objects of a block.
template <std::size_t width> struct Vectors3 {
    using Lanes = Register<width>;
    Lanes x, y, z;

    // From anywhere, with their own bytes and no others. load3 leaves lane 1 empty, so y lies in lane 2 and z in 3.
    template <class Operand> VONKK3_INLINE static Vectors3 load(const Operand &operand, std::size_t n) {
        const SourceBlock<width> block(operand, n);
        if constexpr (spacingOf<Operand> == 12) return loadPacked(block.at[0]);
        else if constexpr (spacingOf<Operand> == 16) return loadPadded(block);
        else {
            const auto row = [&](std::size_t k) VONKK3_INLINED {
                return ofQuads<Lanes>([&](std::size_t q) VONKK3_INLINED { return load3(block.at[4 * q + k]); });
            };
            return fromRows(row(0), row(1), row(2), row(3));
        }
    }
    template <class Operand> VONKK3_INLINE void store(const Operand &operand, std::size_t n) const {
        const TargetBlock<width> block(operand, n);
        if constexpr (spacingOf<Operand> == 12) storePacked(block.at[0]);
        else storeRows(block);
    }

private:
    VONKK3_INLINE static Vectors3 fromRows(Lanes a, Lanes b, Lanes c, Lanes d) {
        const Lanes yzOfTwo = unpackHigh(a, b), yzOfOthers = unpackHigh(c, d);
        return {lowPairs(unpackLow(a, b), unpackLow(c, d)), lowPairs(yzOfTwo, yzOfOthers),
                highPairs(yzOfTwo, yzOfOthers)};
    }
    VONKK3_INLINE void storeRows(const TargetBlock<width> &block) const {
        const Lanes low = unpackLow(y, z), high = unpackHigh(y, z);
        forEachQuad<width>([&](auto q) VONKK3_INLINED {
            std::byte *const *at = block.at + 4 * q;
            const __m128 first = quad<q>(x), lowYz = quad<q>(low), highYz = quad<q>(high);
            store1(at[0], first), _mm_storel_pi(pair(at[0] + 4), lowYz);
            store1(at[1], shuffled<1>(first)), _mm_storeh_pi(pair(at[1] + 4), lowYz);
            store1(at[2], shuffled<2>(first)), _mm_storel_pi(pair(at[2] + 4), highYz);
            store1(at[3], shuffled<3>(first)), _mm_storeh_pi(pair(at[3] + 4), highYz);
        });
    }

    // Contiguous, those of a quad are three times four lanes: xyzx, yzxy, zxyz.
    static constexpr std::size_t quadBytes = 3 * laneBytes;
    VONKK3_INLINE static Vectors3 loadPacked(const std::byte *at) {
        const auto part = [&](std::size_t k) VONKK3_INLINED {
            return ofQuads<Lanes>([&](std::size_t q)
                                      VONKK3_INLINED { return load4(at + q * quadBytes + k * laneBytes); });
        };
        const Lanes a = part(0), b = part(1), c = part(2);
        const Lanes yz = pick<1, 2, 0, 1>(a, b), xy = pick<2, 3, 1, 2>(b, c);
        return {pick<0, 3, 0, 2>(a, xy), pick<0, 2, 1, 3>(yz, xy), pick<1, 3, 0, 3>(yz, c)};
    }
    VONKK3_INLINE void storePacked(std::byte *at) const {
        const Lanes xy = pick<0, 2, 0, 2>(x, y), yz = pick<1, 3, 1, 3>(y, z), zx = pick<0, 2, 1, 3>(z, x);
        const Lanes a = pick<0, 2, 0, 2>(xy, zx), b = pick<0, 2, 1, 3>(yz, xy), c = pick<1, 3, 1, 3>(zx, yz);
        forEachQuad<width>([&](auto q) VONKK3_INLINED {
            std::byte *const to = at + q * quadBytes;
            store4(to, quad<q>(a)), store4(to + laneBytes, quad<q>(b)), store4(to + 2 * laneBytes, quad<q>(c));
        });
    }

    // With one element of padding, each vector is four lanes. Padding is loaded and dropped, but never that after the
    // last vector of a quad, which is loaded from one element before it.
    VONKK3_INLINE static Vectors3 loadPadded(const SourceBlock<width> &block) {
        const Lanes a = block.row(0), b = block.row(1), c = block.row(2);
        const Lanes dAfterPadding =
            ofQuads<Lanes>([&](std::size_t q) VONKK3_INLINED { return load4(block.at[4 * q + 3] - sizeof(Real32)); });
        const Lanes xz = pick<0, 2, 0, 2>(a, b), xzOfOthers = pick<0, 2, 1, 3>(c, dAfterPadding);
        return {pick<0, 2, 0, 2>(xz, xzOfOthers),
                pick<0, 2, 0, 2>(pick<1, 1, 1, 1>(a, b), pick<1, 1, 2, 2>(c, dAfterPadding)),
                pick<1, 3, 1, 3>(xz, xzOfOthers)};
    }
};

// Sums of neighbouring lanes of two registers, quad by quad: (r0 + r1, r2 + r3, s0 + s1, s2 + s3).
template <class Lanes> VONKK3_INLINE Lanes addNeighbours(Lanes r, Lanes s) {
    return pick<0, 2, 0, 2>(r, s) + pick<1, 3, 1, 3>(r, s);
}

// For four rows, (r0 + r1) + (r2 + r3) of each.
template <class Lanes> VONKK3_INLINE Lanes addRows(Lanes a, Lanes b, Lanes c, Lanes d) {
    return addNeighbours(addNeighbours(a, b), addNeighbours(c, d));
}

} // namespace vonkk3
