// The fast path of arrays in the pointer layouts whose work is a few operations: any size is worked along its
// positions, with objects in SIMD lanes. Packed objects lie there as they are stored, others are gathered.
#pragma once

#include "frame/aliasing.h"
#include "frame/gather.h"
#include "frame/walk.h"

namespace vonkk3 {

// Hoisted where they are few enough to stay in registers.
template <class Rows, class Columns>
using PositionsOf = std::conditional_t<Rows::isFixed && Columns::isFixed && Rows::value * Columns::value <= 6,
                                       HoistedPositions<Rows::value, Columns::value>, TablePositions>;
template <class Table> inline constexpr bool isHoisted = !std::is_same_v<Table, TablePositions>;
template <class... Tables> VONKK3_INLINE bool arePacked(const Tables &...tables) {
    return ((!tables.isArray || tables.step == std::ptrdiff_t(sizeof(Real32))) && ...);
}

// The elements of the objects from n on, as packs; a single object is broadcast.
template <std::size_t packs, bool arePacked, class Table> struct PacksOfPositions {
    using Number = Packs<packs>;
    static constexpr std::size_t width = Number::width;
    const Table &table;
    std::size_t n;

    VONKK3_INLINE Number load(std::size_t i, std::size_t j) const {
        if (!table.isArray) return loadAt<Real32>(address(table.position(i, j)));
        const std::byte *const first = at(i, j);
        return Number::each([&](std::size_t c) VONKK3_INLINED -> PackOf<width> {
            if constexpr (arePacked) return loadLanes<Register<width>>(first + c * width * sizeof(Real32));
            else {
                const std::byte *const pack = first + strides(c * width, table.step);
                const PackSources from = {pack, pack + table.step, pack + 2 * table.step, pack + 3 * table.step};
                return gatherElement(from, 0);
            }
        });
    }
    VONKK3_INLINE void store(std::size_t i, std::size_t j, const Number &value) const {
        std::byte *const first = at(i, j);
        if constexpr (arePacked) storePacks(first, value);
        else
            for (std::size_t c = 0; c < Number::registers; ++c) {
                std::byte *const pack = first + strides(c * width, table.step);
                const PackTargets to = {pack, pack + table.step, pack + 2 * table.step, pack + 3 * table.step};
                scatterElement(to, 0, value.chain[c]);
            }
    }

private:
    VONKK3_INLINE std::byte *at(std::size_t i, std::size_t j) const {
        return address(table.position(i, j)) + strides(n, arePacked ? sizeof(Real32) : table.step);
    }
};

// The elements of one object, as numbers.
template <class Table> struct NumbersOfPositions {
    using Number = Real32;
    const Table &table;
    std::ptrdiff_t offset; // from object 0

    VONKK3_INLINE NumbersOfPositions(const Table &table, std::size_t n)
        : table(table), offset(table.isArray ? strides(n, table.step) : 0) {}
    VONKK3_INLINE Number load(std::size_t i, std::size_t j) const {
        return loadAt<Real32>(address(table.position(i, j)) + offset);
    }
};

// work(n, operands...) for all whole packs of objects, several registers of them at a time while there are enough. How
// many objects were done.
template <std::size_t chains, bool arePacked, class Work, class... Tables>
VONKK3_INLINE std::size_t workPacks(std::size_t count, const Work &work, const Tables &...tables) {
    std::size_t n = 0;
    const auto inChains = [&]<std::size_t number>() VONKK3_INLINED {
        for (; count - n >= number * packWidth; n += number * packWidth)
            work(n, PacksOfPositions<number, arePacked, Tables>{tables, n}...);
    };
    if constexpr (chains > 1) inChains.template operator()<chains * packsToRegister>();
    if constexpr (arePacked && packsToRegister > 1)
        inChains.template operator()<packsToRegister>(); // gathered: no gain
    inChains.template operator()<1>();
    return n;
}

template <std::size_t chains, class Work, class... Tables>
VONKK3_INLINE std::size_t workPacks(std::size_t count, const Work &work, const Tables &...tables) {
    if (arePacked(tables...)) return workPacks<chains, true>(count, work, tables...);
    return workPacks<1, false>(count, work, tables...);
}

// Beyond the first-level cache many positions are read faster a little at a time.
inline constexpr std::size_t elementsInCache = 1 << 13;

// Fewer objects are not worth the alias test.
inline constexpr std::size_t worthPositions = 3 * packWidth;

// Whether packed results are disjoint from all sources, where it is not plain.
template <class... Words>
VONKK3_SHARED bool mayReduce(std::byte *results, std::size_t rows, std::size_t columns, std::size_t count,
                             const Words &...src) {
    const ObjectsView packed = packedBlocks(reinterpret_cast<Real32 *>(results), 1, count);
    const auto mayWork = [&](const auto &...views) VONKK3_INLINED {
        return Aliasing(count, writes(packed), reads(views)...).allowsBatch(0, count);
    };
    return mayWork(objectsOf<Real32, true>(src, rows, columns, count)...);
}

// One number for each object, packed. How many objects were done. A family gives kernel(rows, columns, sources...) of
// sources that are asked for load(i, j), and says whether it is a sum with one operation for each element: that is not
// worth gathering it.
template <class Kernel, class Rows, class Columns, class... Words>
VONKK3_SHARED std::size_t reduceArrays(const Kernel &kernel, std::byte *results, Rows rows, Columns columns,
                                       std::size_t count, const Words &...src) {
    if (count < worthPositions) return 0;
    using Table = PositionsOf<Rows, Columns>;
    const Extent written = extentOf(results, count * sizeof(Real32));
    const auto reduce = [&](const auto &...tables) VONKK3_INLINED -> std::size_t {
        const bool isPlain = (isPlainlyDisjoint(written, src, rows, columns, count) && ...);
        if (!isPlain && !mayReduce(results, rows, columns, count, src...)) return 0;
        if constexpr (isHoisted<Table> && Kernel::isSum)
            if ((tables.isArray && ...) && !arePacked(tables...)) {
                for (std::size_t n = 0; n < count; ++n)
                    storeAt(results + n * sizeof(Real32), kernel(rows, columns, NumbersOfPositions(tables, n)...));
                return count;
            }
        const auto work = [&](std::size_t n, const auto &...sources) VONKK3_INLINED {
            storePacks(results + n * sizeof(Real32), kernel(rows, columns, sources...));
        };
        if constexpr (!isHoisted<Table>)
            if (count * rows * columns > elementsInCache) return workPacks<2>(count, work, tables...);
        return workPacks<4>(count, work, tables...); // sums wait for their last term
    };
    return reduce(Table(src)...);
}

// Small objects of `rows` by `columns` elements from objects of the same size. A family gives kernel(d, sources...),
// and says whether it loads all before it stores, and so may work in place.
template <std::size_t rows, std::size_t columns, bool mayBeInPlace, class Kernel, class Destination, class... Words>
VONKK3_SHARED std::size_t workPositions(const Kernel &kernel, std::size_t count, const Destination &dst,
                                        const Words &...src) {
    if (count < worthPositions) return 0;
    if (!arePlainlyIndependent<mayBeInPlace>(fixed<rows>, fixed<columns>, count, dst, src...)) {
        const auto mayWork = [&](const ObjectsView &written, const auto &...views) VONKK3_INLINED {
            const auto use = mayBeInPlace ? readsInPlace : reads;
            return Aliasing(count, writes(written), use(views)...).allowsBatch(0, count);
        };
        if (!mayWork(objectsOf<Real32, true>(dst, rows, columns, count),
                     objectsOf<Real32, true>(src, rows, columns, count)...))
            return 0;
    }
    using Table = HoistedPositions<rows, columns>;
    return workPacks<1>(
        count, [&](std::size_t, const auto &...operands) VONKK3_INLINED { kernel(operands...); }, Table(dst),
        Table(src)...);
}

} // namespace vonkk3
