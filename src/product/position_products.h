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

// Cells that are worked at once share their factors. With 32 registers they are as many as sums fit; with half of them
// as many as pointers fit, of one row.
struct CellsAtOnce {
    std::size_t rows, columns;
};
template <Shares shares, std::size_t order, bool otherIsArray> constexpr CellsAtOnce cellsAtOnce() {
    if (hasMasks) return {shares == Shares::vector || order == 5 ? 1 : order == 6 ? 2 : order, order};
    return {1, order == 3 ? 3U : order == 4 || !otherIsArray ? 2U : 1U};
}

// The positions of a, b, d and, with one, the addend. All are known before the first object: what is written overlaps
// no table.
struct NoPositions {
    template <class Words> explicit NoPositions(const Words &) {}
};
template <Shares shares, std::size_t order, bool hasAddend> struct ProductPositions {
    static constexpr bool ofVector = shares == Shares::vector; // whose elements are columns of one
    static constexpr std::size_t rows = ofVector ? 1 : order;
    using Result = HoistedPositions<order, ofVector ? 1 : order>;
    HoistedPositions<order, order> a;
    Result b, d;
    std::conditional_t<hasAddend, Result, NoPositions> addend;

    template <class Words>
    VONKK3_INLINE explicit ProductPositions(const Words &words)
        : a(words.a), b(words.b), d(words.d), addend([&]() VONKK3_INLINED -> const auto & {
              if constexpr (hasAddend) return words.addend;
              else return words.d;
          }()) {}

    std::uintptr_t shared(std::size_t i, std::size_t k) const { return ofVector ? b.position(k, 0) : a.position(i, k); }
    std::uintptr_t other(std::size_t k, std::size_t j) const { return ofVector ? a.position(j, k) : b.position(k, j); }
    static std::uintptr_t cell(const Result &of, std::size_t i, std::size_t j) {
        return ofVector ? of.position(j, 0) : of.position(i, j);
    }
};

// d(i, j) = sum of shared(i, k) other(k, j), plus the addend's element: the cells from (i, j) on, for the objects
// between two offsets. All is read before anything is stored.
template <SumBegins begins, bool sharedIsArray, bool otherIsArray, std::size_t width, Shares shares, std::size_t order,
          bool hasAddend>
VONKK3_INLINE void workCells(const ProductPositions<shares, order, hasAddend> &p, std::size_t i, std::size_t j,
                             std::size_t from, std::size_t to) {
    using Number = PackOf<width>;
    static constexpr CellsAtOnce cells = cellsAtOnce<shares, order, otherIsArray>();
    Factor<sharedIsArray, width> a[cells.rows][order]; // in registers
    Factor<otherIsArray, width> b[order][cells.columns];
    const std::byte *w[cells.rows][cells.columns];
    std::byte *d[cells.rows][cells.columns];
    const auto forEachRow = [](const auto &body) VONKK3_INLINED { forIndices(0, cells.rows, fixed<cells.rows>, body); };
    const auto forEachColumn = [](const auto &body)
                                   VONKK3_INLINED { forIndices(0, cells.columns, fixed<cells.columns>, body); };
    forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
        forEachRow([&](std::size_t r) VONKK3_INLINED { a[r][k] = Factor<sharedIsArray, width>(p.shared(i + r, k)); });
        forEachColumn([&](std::size_t c) VONKK3_INLINED { b[k][c] = Factor<otherIsArray, width>(p.other(k, j + c)); });
    });
    forEachRow([&](std::size_t r) VONKK3_INLINED {
        forEachColumn([&](std::size_t c) VONKK3_INLINED {
            if constexpr (hasAddend) w[r][c] = address(p.cell(p.addend, i + r, j + c));
            d[r][c] = address(p.cell(p.d, i + r, j + c));
        });
    });
    for (std::size_t at = from; at < to; at += width * sizeof(Real32)) {
        Number sum[cells.rows][cells.columns];
        forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            Number factor[cells.rows]; // not loaded anew for every cell
            forEachRow([&](std::size_t r) VONKK3_INLINED { factor[r] = inRegister(a[r][k].at(at)); });
            forEachColumn([&](std::size_t c) VONKK3_INLINED {
                const Number other = cells.rows > 1 ? inRegister(b[k][c].at(at)) : b[k][c].at(at);
                forEachRow([&](std::size_t r) VONKK3_INLINED {
                    const Number product = factor[r] * other;
                    if (k != 0) sum[r][c] = sum[r][c] + product;
                    else sum[r][c] = begins == SumBegins::withZero ? Number(0.0F) + product : product;
                });
            });
        });
        forEachRow([&](std::size_t r) VONKK3_INLINED {
            forEachColumn([&](std::size_t c) VONKK3_INLINED {
                if constexpr (hasAddend) sum[r][c] = sum[r][c] + Number(loadLanes<Register<width>>(w[r][c] + at));
                storeLanes(d[r][c] + at, sum[r][c].lanes);
            });
        });
    }
}

// As many objects at a time as stay in the first-level cache with all their positions.
inline constexpr std::size_t objectsInCache = 256;

// For so many objects, a multiple of packWidth: in the widest registers, and what they leave in packs.
template <Shares shares, SumBegins begins, std::size_t order, bool sharedIsArray, bool otherIsArray, bool hasAddend,
          class Words>
VONKK3_NOINLINE void multiplyPositions(const Words &words, std::size_t objects) {
    const ProductPositions<shares, order, hasAddend> p(words);
    const auto work = [&](auto width, std::size_t first, std::size_t end) VONKK3_INLINED {
        static constexpr CellsAtOnce cells = cellsAtOnce<shares, order, otherIsArray>();
        for (std::size_t from = first; from < end; from += objectsInCache) {
            const std::size_t to = end - from < objectsInCache ? end : from + objectsInCache;
            for (std::size_t i = 0; i < p.rows; i += cells.rows)
                for (std::size_t j = 0; j < order; j += cells.columns)
                    workCells<begins, sharedIsArray, otherIsArray, width>(
                        p, i, j + cells.columns <= order ? j : order - cells.columns, from * sizeof(Real32),
                        to * sizeof(Real32));
        }
    };
    const std::size_t whole = objects / widestRegister * widestRegister;
    work(fixed<widestRegister>, 0, whole);
    if constexpr (widestRegister > packWidth) work(fixed<packWidth>, whole, objects);
}

template <SumBegins begins, std::size_t order, class Words>
void multiplyMatrices(const Words &words, std::size_t objects) {
    constexpr Shares shares = Shares::rowOfFirst;
    if (!words.a.isArray) multiplyPositions<shares, begins, order, false, true, false>(words, objects);
    else if (!words.b.isArray) multiplyPositions<shares, begins, order, true, false, false>(words, objects);
    else multiplyPositions<shares, begins, order, true, true, false>(words, objects);
}

// Vectors are columns.
template <std::size_t order, bool hasAddend, class Words>
void multiplyVectors(const Words &words, std::size_t objects) {
    constexpr Shares shares = Shares::vector;
    constexpr SumBegins begins = SumBegins::withZero;
    if (!words.a.isArray) multiplyPositions<shares, begins, order, true, false, hasAddend>(words, objects);
    else if constexpr (!hasAddend)
        words.b.isArray ? multiplyPositions<shares, begins, order, true, true, false>(words, objects)
                        : multiplyPositions<shares, begins, order, false, true, false>(words, objects);
}

} // namespace vonkk3::product
