// Products of Real32 in the pointer layout with packed objects: loops interchanged, objects innermost. Every cell of
// the result is a sum over contiguous ranges, one for each position, a register of objects at a time.
#pragma once

#include "frame/batch.h"
#include "product/sums.h"

namespace vonkk3::product {

// A factor of products: the range of all objects at a position, or a single object's number, broadcast.
template <bool isArray, std::size_t width> struct Factor {
    const std::byte *range;
    Factor() = default;
    VONKK3_INLINE explicit Factor(std::uintptr_t address) : range(reinterpret_cast<const std::byte *>(address)) {}
    VONKK3_INLINE PackOf<width> at(std::size_t offset) const { return loadLanes<Register<width>>(range + offset); }
};
template <std::size_t width> struct Factor<false, width> {
    PackOf<width> number;
    Factor() = default;
    VONKK3_INLINE explicit Factor(std::uintptr_t address)
        : number(loadAt<Real32>(reinterpret_cast<const std::byte *>(address))) {}
    VONKK3_INLINE PackOf<width> at(std::size_t) const { return number; }
};

// Which operand has the factor that the cells of a row share: the first of matrices, and of matrix by vector, whose
// cells are a row of one, the vector.
enum class Shares { rowOfFirst, vector };

// Several cells of a row at once, which share a factor. As many as pointers fit registers.
template <std::size_t order, bool sharedIsArray, bool otherIsArray>
inline constexpr std::size_t cellsAtOnce = order == 3                      ? 3
                                           : (order == 4 || !otherIsArray) ? 2
                                                                           : 1;

// d(i, j) = sum of shared(i, k) other(k, j), plus the addend's element, for ranges of objects. All positions are known
// before the first range: what is written overlaps no table.
template <Shares shares, std::size_t order, bool sharedIsArray, bool otherIsArray, bool hasAddend, std::size_t width>
struct PositionProduct {
    static constexpr std::size_t rows = shares == Shares::vector ? 1 : order;
    static constexpr std::size_t cells = cellsAtOnce<order, sharedIsArray, otherIsArray>;
    Factor<sharedIsArray, width> shared[rows][order];
    Factor<otherIsArray, width> other[order][order];
    const std::byte *addend[rows][order];
    std::byte *target[rows][order];

    template <class Operands> VONKK3_INLINE explicit PositionProduct(const Operands &p) {
        const auto forEach = [](std::size_t number, const auto &body) VONKK3_INLINED {
            for (std::size_t i = 0; i < number; ++i)
                for (std::size_t j = 0; j < order; ++j) body(i, j);
        };
        constexpr bool ofVector = shares == Shares::vector; // whose elements are columns of one
        forEach(rows, [&](std::size_t i, std::size_t j) VONKK3_INLINED {
            shared[i][j] = Factor<sharedIsArray, width>(ofVector ? p.b.position(j, 0) : p.a.position(i, j));
            target[i][j] = reinterpret_cast<std::byte *>(ofVector ? p.d.position(j, 0) : p.d.position(i, j));
            if constexpr (hasAddend) addend[i][j] = reinterpret_cast<const std::byte *>(p.addend.position(j, 0));
        });
        forEach(order, [&](std::size_t k, std::size_t j) VONKK3_INLINED {
            other[k][j] = Factor<otherIsArray, width>(ofVector ? p.a.position(j, k) : p.b.position(k, j));
        });
    }

    template <SumBegins begins> VONKK3_INLINE void work(std::size_t from, std::size_t to) const {
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t next = 0; next < order; next += cells)
                workCells<begins>(*this, i, next + cells <= order ? next : order - cells, from, to);
    }

private:
    // Cells (i, j) to (i, j + cells - 1), for the objects between two offsets. All is read before anything is stored.
    template <SumBegins begins>
    VONKK3_NOINLINE static void workCells(const PositionProduct &p, std::size_t i, std::size_t j, std::size_t from,
                                          std::size_t to) {
        using Number = PackOf<width>;
        Factor<sharedIsArray, width> a[order]; // in registers
        Factor<otherIsArray, width> b[order][cells];
        const std::byte *w[cells];
        std::byte *d[cells];
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            a[k] = p.shared[i][k];
            forIndices(0, cells, fixed<cells>, [&](std::size_t c) VONKK3_INLINED { b[k][c] = p.other[k][j + c]; });
        });
        forIndices(0, cells, fixed<cells>, [&](std::size_t c) VONKK3_INLINED {
            if constexpr (hasAddend) w[c] = p.addend[i][j + c];
            d[c] = p.target[i][j + c];
        });
        for (std::size_t at = from; at < to; at += width * sizeof(Real32)) {
            Number sum[cells];
            forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
                const Number factor = inRegister(a[k].at(at)); // not loaded anew for every cell
                forIndices(0, cells, fixed<cells>, [&](std::size_t c) VONKK3_INLINED {
                    const Number product = factor * b[k][c].at(at);
                    if (k != 0) sum[c] = sum[c] + product;
                    else sum[c] = begins == SumBegins::withZero ? Number(0.0F) + product : product;
                });
            });
            forIndices(0, cells, fixed<cells>, [&](std::size_t c) VONKK3_INLINED {
                if constexpr (hasAddend) sum[c] = sum[c] + Number(loadLanes<Register<width>>(w[c] + at));
                storeLanes(d[c] + at, sum[c].lanes);
            });
        }
    }
};

// As many objects at a time as stay in the first-level cache with all their positions.
inline constexpr std::size_t objectsInCache = 256;

// For so many objects, a multiple of packWidth: in the widest registers, and what they leave in packs. `p` has the
// tables a, b, d and, with an addend, addend.
template <Shares shares, SumBegins begins, std::size_t order, bool sharedIsArray, bool otherIsArray, bool hasAddend,
          class Operands>
VONKK3_NOINLINE void multiplyPositions(const Operands &p, std::size_t objects) {
    const auto work = [&](auto width, std::size_t first, std::size_t end) VONKK3_INLINED {
        if (first == end) return;
        const PositionProduct<shares, order, sharedIsArray, otherIsArray, hasAddend, width> product(p);
        for (std::size_t from = first; from < end; from += objectsInCache) {
            const std::size_t to = end - from < objectsInCache ? end : from + objectsInCache;
            product.template work<begins>(from * sizeof(Real32), to * sizeof(Real32));
        }
    };
    const std::size_t whole = objects / widestRegister * widestRegister;
    work(fixed<widestRegister>, 0, whole);
    if constexpr (widestRegister > packWidth) work(fixed<packWidth>, whole, objects);
}

template <SumBegins begins, std::size_t order, class Operands>
void multiplyMatrices(const Operands &p, std::size_t objects) {
    constexpr Shares shares = Shares::rowOfFirst;
    if (!p.a.isArray) multiplyPositions<shares, begins, order, false, true, false>(p, objects);
    else if (!p.b.isArray) multiplyPositions<shares, begins, order, true, false, false>(p, objects);
    else multiplyPositions<shares, begins, order, true, true, false>(p, objects);
}

// Vectors are columns.
template <std::size_t order, bool hasAddend, class Operands>
void multiplyVectors(const Operands &p, std::size_t objects) {
    constexpr Shares shares = Shares::vector;
    constexpr SumBegins begins = SumBegins::withZero;
    if (!p.a.isArray) multiplyPositions<shares, begins, order, true, false, hasAddend>(p, objects);
    else if constexpr (!hasAddend)
        p.b.isArray ? multiplyPositions<shares, begins, order, true, true, false>(p, objects)
                    : multiplyPositions<shares, begins, order, false, true, false>(p, objects);
}

} // namespace vonkk3::product
