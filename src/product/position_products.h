// Products of Real32 in the pointer layout with packed objects: loops interchanged, objects innermost. Every cell of
// the result is a sum over contiguous ranges, one for each position, a register of objects at a time.
#pragma once

#include "frame/batch.h"
#include "product/sums.h"

namespace vonkk3::product {

// One factor of `order` products: ranges of all objects, or a single object's numbers, broadcast.
template <std::size_t order, bool isArray, std::size_t width> struct Factors {
    const std::byte *range[order];
    VONKK3_INLINE void copy(const Factors &other) {
        for (std::size_t k = 0; k < order; ++k) range[k] = other.range[k];
    }
    VONKK3_INLINE void take(std::size_t k, std::uintptr_t address) {
        range[k] = reinterpret_cast<const std::byte *>(address);
    }
    VONKK3_INLINE PackOf<width> at(std::size_t k, std::size_t offset) const {
        return loadLanes<Register<width>>(range[k] + offset);
    }
};
template <std::size_t order, std::size_t width> struct Factors<order, false, width> {
    PackOf<width> number[order];
    VONKK3_INLINE void copy(const Factors &other) {
        for (std::size_t k = 0; k < order; ++k) number[k] = other.number[k];
    }
    VONKK3_INLINE void take(std::size_t k, std::uintptr_t address) {
        number[k] = loadAt<Real32>(reinterpret_cast<const std::byte *>(address));
    }
    VONKK3_INLINE PackOf<width> at(std::size_t k, std::size_t) const { return number[k]; }
};

// Several cells that share a factor: a row of the first operand, or the vector. As many as pointers fit registers.
template <std::size_t order, bool sharedIsArray, bool otherIsArray>
inline constexpr std::size_t cellsAtOnce = order == 3                      ? 3
                                           : (order == 4 || !otherIsArray) ? 2
                                                                           : 1;

template <std::size_t order, bool sharedIsArray, bool otherIsArray, bool hasAddends, std::size_t width> struct Cells {
    static constexpr std::size_t number = cellsAtOnce<order, sharedIsArray, otherIsArray>;
    Factors<order, sharedIsArray, width> shared;
    Factors<order, otherIsArray, width> other[number];
    const std::byte *addend[number];
    std::byte *target[number];

    Cells() = default;
    VONKK3_INLINE Cells(const Cells &memory) { // as a whole, some compilers would call for memcpy
        shared.copy(memory.shared);
        for (std::size_t w = 0; w < number; ++w) {
            other[w].copy(memory.other[w]);
            if constexpr (hasAddends) addend[w] = memory.addend[w];
            target[w] = memory.target[w];
        }
    }

    // For the objects between two offsets. All is read before anything is stored.
    template <SumBegins begins>
    VONKK3_NOINLINE static void work(const Cells &memory, std::size_t from, std::size_t to) {
        const Cells cells = memory; // pointers and numbers in registers
        using Number = PackOf<width>;
        for (std::size_t at = from; at < to; at += width * sizeof(Real32)) {
            Number sum[number];
            forIndices(0, number, fixed<number>, [&](std::size_t w) VONKK3_INLINED {
                sum[w] = cells.shared.at(0, at) * cells.other[w].at(0, at);
                if constexpr (begins == SumBegins::withZero) sum[w] = Number(0.0F) + sum[w];
            });
            forIndices(1, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
                const Number factor = cells.shared.at(k, at);
                forIndices(0, number, fixed<number>,
                           [&](std::size_t w) VONKK3_INLINED { sum[w] = sum[w] + factor * cells.other[w].at(k, at); });
            });
            forIndices(0, number, fixed<number>, [&](std::size_t w) VONKK3_INLINED {
                if constexpr (hasAddends) sum[w] = sum[w] + Number(loadLanes<Register<width>>(cells.addend[w] + at));
                storeLanes(cells.target[w] + at, sum[w].lanes);
            });
        }
    }
};

// As many objects at a time as stay in the first-level cache with all their positions.
inline constexpr std::size_t objectsInCache = 256;

// work.operator()<width>(from, to) with offsets, in the widest registers and what they leave in packs.
template <class Work> VONKK3_INLINE void forEachRange(std::size_t objects, const Work &work) {
    const std::size_t whole = objects / widestRegister * widestRegister;
    for (std::size_t from = 0; from < whole; from += objectsInCache) {
        const std::size_t to = whole - from < objectsInCache ? whole : from + objectsInCache;
        work.template operator()<widestRegister>(from * sizeof(Real32), to * sizeof(Real32));
    }
    if constexpr (widestRegister > packWidth)
        if (whole < objects) work.template operator()<packWidth>(whole * sizeof(Real32), objects * sizeof(Real32));
}

// d(i, j) = sum of a(i, k) b(k, j), for so many objects, a multiple of packWidth.
// `p` has the views a, b and d.
template <SumBegins begins, std::size_t order, bool firstIsArray, bool secondIsArray, class Operands>
VONKK3_NOINLINE void multiplyMatrices(const Operands &p, std::size_t objects) {
    forEachRange(objects, [&]<std::size_t width>(std::size_t from, std::size_t to) VONKK3_INLINED {
        using Strip = Cells<order, firstIsArray, secondIsArray, false, width>;
        for (std::size_t i = 0; i < order; ++i)
            for (std::size_t next = 0; next < order; next += Strip::number) {
                const std::size_t j = next + Strip::number <= order ? next : order - Strip::number;
                Strip cells;
                for (std::size_t k = 0; k < order; ++k) {
                    cells.shared.take(k, p.a.position(i, k));
                    for (std::size_t w = 0; w < Strip::number; ++w) cells.other[w].take(k, p.b.position(k, j + w));
                }
                for (std::size_t w = 0; w < Strip::number; ++w)
                    cells.target[w] = reinterpret_cast<std::byte *>(p.d.position(i, j + w));
                Strip::template work<begins>(cells, from, to);
            }
    });
}

template <SumBegins begins, std::size_t order, class Operands>
void multiplyMatrices(const Operands &p, std::size_t objects) {
    if (!p.a.isArray) multiplyMatrices<begins, order, false, true>(p, objects);
    else if (!p.b.isArray) multiplyMatrices<begins, order, true, false>(p, objects);
    else multiplyMatrices<begins, order, true, true>(p, objects);
}

// d(i) = sum of a(i, k) b(k), plus the addend's element; vectors are columns.
template <std::size_t order, bool firstIsArray, bool secondIsArray, bool hasAddends, class Operands>
VONKK3_NOINLINE void multiplyVectors(const Operands &p, std::size_t objects) {
    forEachRange(objects, [&]<std::size_t width>(std::size_t from, std::size_t to) VONKK3_INLINED {
        using Strip = Cells<order, secondIsArray, firstIsArray, hasAddends, width>;
        for (std::size_t next = 0; next < order; next += Strip::number) {
            const std::size_t i = next + Strip::number <= order ? next : order - Strip::number;
            Strip cells;
            for (std::size_t k = 0; k < order; ++k) {
                cells.shared.take(k, p.b.position(k, 0));
                for (std::size_t w = 0; w < Strip::number; ++w) cells.other[w].take(k, p.a.position(i + w, k));
            }
            for (std::size_t w = 0; w < Strip::number; ++w) {
                if constexpr (hasAddends)
                    cells.addend[w] = reinterpret_cast<const std::byte *>(p.addend.position(i + w, 0));
                cells.target[w] = reinterpret_cast<std::byte *>(p.d.position(i + w, 0));
            }
            Strip::template work<SumBegins::withZero>(cells, from, to);
        }
    });
}

template <std::size_t order, bool hasAddends, class Operands>
void multiplyVectors(const Operands &p, std::size_t objects) {
    if (!p.a.isArray) multiplyVectors<order, false, true, hasAddends>(p, objects);
    else if constexpr (!hasAddends)
        p.b.isArray ? multiplyVectors<order, true, true, false>(p, objects)
                    : multiplyVectors<order, true, false, false>(p, objects);
}

} // namespace vonkk3::product
