// One number for each object, packed, of arrays in the pointer layout with packed objects: objects lie in SIMD lanes as
// they are stored, so any size is worked along its positions. In the other layouts gathering takes longer than the
// sums.
#pragma once

#include "frame/aliasing.h"
#include "frame/gather.h"
#include "frame/walk.h"

namespace vonkk3 {

// The elements of the objects from n on, as packs; a single object is broadcast.
template <std::size_t chains> struct PackedPositions {
    const ObjectsView &view;
    std::size_t n;

    VONKK3_INLINE Packs<chains> load(std::size_t i, std::size_t j) const {
        if (!view.isArray) return view.load<Real32>(i, j);
        const auto first = reinterpret_cast<const std::byte *>(view.position(i, j) + n * sizeof(Real32));
        return Packs<chains>::each([&](std::size_t c) VONKK3_INLINED { return load4(first + c * laneBytes); });
    }
};

// What a family gives: kernel<Number>(rows, columns, sources...) of sources that are asked for load(i, j).
template <class Kernel, class... Views>
VONKK3_SHARED std::size_t reducePositions(const Kernel &kernel, std::byte *results, std::size_t rows,
                                          std::size_t columns, std::size_t count, const Views &...src) {
    const ObjectsView packed = packedBlocks(reinterpret_cast<Real32 *>(results), 1, count);
    if (!Aliasing(count, writes(packed), reads(src)...).allowsBatch(0, count)) return 0;
    std::size_t n = 0;
    const auto work = [&]<std::size_t chains>() VONKK3_INLINED {
        constexpr std::size_t objects = chains * packWidth;
        for (; count - n >= objects; n += objects) {
            const auto values =
                kernel.template operator()<Packs<chains>>(rows, columns, PackedPositions<chains>{src, n}...);
            for (std::size_t c = 0; c < chains; ++c)
                store4(results + (n + c * packWidth) * sizeof(Real32), values.chain[c].lanes);
        }
    };
    work.template operator()<4>(); // sums wait for their last term
    work.template operator()<1>();
    return n;
}

// How many objects were done from words. Few are not worth the alias test.
template <class Kernel, class... Words>
VONKK3_SHARED std::size_t reduceArrays(const Kernel &kernel, std::byte *results, std::size_t rows, std::size_t columns,
                                       std::size_t count, const Words &...src) {
    if (count < 3 * packWidth) return 0;
    return reducePositions(kernel, results, rows, columns, count,
                           objectsOf<Real32, true>(src, rows, columns, count)...);
}

} // namespace vonkk3
