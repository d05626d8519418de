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
    const TablePositions &table;
    std::size_t n;

    VONKK3_INLINE Packs<chains> load(std::size_t i, std::size_t j) const {
        const auto address = reinterpret_cast<const std::byte *>(table.position(i, j));
        if (!table.isArray) return loadAt<Real32>(address);
        const std::byte *const first = address + n * sizeof(Real32);
        return Packs<chains>::each([&](std::size_t c) VONKK3_INLINED { return load4(first + c * laneBytes); });
    }
};

template <class Kernel, class... Tables>
VONKK3_INLINE std::size_t reduceTables(const Kernel &kernel, std::byte *results, std::size_t rows, std::size_t columns,
                                       std::size_t count, const Tables &...src) {
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

// How many objects were done. A family gives kernel<Number>(rows, columns, sources...) of sources that are asked for
// load(i, j).
template <class Kernel, class... Words>
VONKK3_SHARED std::size_t reduceArrays(const Kernel &kernel, std::byte *results, std::size_t rows, std::size_t columns,
                                       std::size_t count, const Words &...src) {
    if (count < 3 * packWidth || !(arePacked(src) && ...)) return 0; // fewer are not worth the alias test
    if (!(isPlainlyDisjoint(extentOf(results, count * sizeof(Real32)), src, rows, columns, count) && ...)) {
        const ObjectsView packed = packedBlocks(reinterpret_cast<Real32 *>(results), 1, count);
        const auto mayWork = [&](const auto &...views) VONKK3_INLINED {
            return Aliasing(count, writes(packed), reads(views)...).allowsBatch(0, count);
        };
        if (!mayWork(objectsOf<Real32, true>(src, rows, columns, count)...)) return 0;
    }
    return reduceTables(kernel, results, rows, columns, count, TablePositions(src)...);
}

} // namespace vonkk3
