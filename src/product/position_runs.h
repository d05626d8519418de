// Real32 products of fixed order in the pointer layout with packed objects, where every position is a run of elements,
// one for each object: four objects at a time, an element of each in a lane. Every lane is rounded as one object is,
// and this way stands open only where results lie apart from all else, or exactly on the first operand of a product
// that goes row by row, so nobody can tell.
#pragma once

#include "frame/aliasing.h"
#include "frame/lanes.h"
#include "frame/operands.h"
#include "frame/unroll.h"

#include <utility>

namespace vonkk3::product {

// Fewer objects than this are not worth the looking.
inline constexpr std::size_t worthRuns = 8;

template <class Operand, class Order, class Count>
inline constexpr bool sumsInRuns =
    Count::isArray &&Operand::layout == Layout::P &&Order::isFixed &&std::is_same_v<typename Operand::Element, Real32>;

// ---- Where the runs lie ---------------------------------------------------------------------------------------------

// What the positions of an operand lead to, in the order in which they enter the product: runs of so many bytes, of all
// objects or of the one element of a single operand; the table that says so; and a block that holds all the runs.
// Mostly the runs follow one another in the order of the table, in a block that is the operand's own, and a look at the
// blocks will do.
template <class Operand, std::size_t rows, std::size_t columns> struct PositionRuns {
    static constexpr std::size_t positions = rows * columns;
    using Byte = std::remove_pointer_t<decltype(std::declval<Operand>().tableView(columns).at(0))>;
    Byte *run[positions];
    std::size_t bytes;
    Extent table, block;
    bool follow = true;

    VONKK3_INLINE PositionRuns(const Operand &operand, std::size_t objects)
        : PositionRuns(operand.tableView(columns), (Operand::isArray ? objects : 1) * sizeof(Real32)) {}
    PositionRuns(const PositionRuns &) = delete; // some compilers would call for memcpy

    VONKK3_INLINE Byte *operator[](std::size_t position) const { return run[position]; }
    VONKK3_INLINE Extent extent(std::size_t position) const { return extentOf(run[position], bytes); }

private:
    template <class View>
    VONKK3_INLINE PositionRuns(const View &view, std::size_t bytes)
        : bytes(bytes), table(extentOf(view.table, positions)), block(extentOf(view.at(0), bytes)) {
        for (std::size_t k = 1; k < positions; ++k) {
            const Extent next = extentOf(view.at(k), bytes);
            follow &= next.begin >= block.end;
            block.end = next.end;
        }
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j)
                run[i * columns + j] = Operand::isTransposed ? view.at(j, i) : view.at(i, j);
        if (!follow) findBlock();
    }

    VONKK3_APART void findBlock() {
        block = extent(0);
        for (std::size_t k = 1; k < positions; ++k) {
            const Extent next = extent(k);
            if (next.begin < block.begin) block.begin = next.begin;
            if (next.end > block.end) block.end = next.end;
        }
    }
};

template <class Runs> VONKK3_INLINE bool disjoint(const Runs &runs, const Extent &block) {
    if (disjoint(runs.block, block)) return true;
    for (std::size_t k = 0; k < Runs::positions; ++k)
        if (!disjoint(runs.extent(k), block)) return false;
    return true;
}

// Whether the written runs are apart from the read ones and from the table of these.
template <class Written, class Read> inline bool disjoint(const Written &written, const Read &read) {
    if (!disjoint(written, read.table)) return false;
    if (disjoint(written.block, read.block)) return true;
    for (std::size_t k = 0; k < Read::positions; ++k)
        if (!disjoint(written, read.extent(k))) return false;
    return true;
}

// Whether runs are apart from each other and from their table.
template <class Runs> inline bool disjoint(const Runs &runs) {
    if (!disjoint(runs, runs.table)) return false;
    if (runs.follow) return true;
    for (std::size_t k = 1; k < Runs::positions; ++k)
        for (std::size_t before = 0; before < k; ++before)
            if (!disjoint(runs.extent(k), runs.extent(before))) return false;
    return true;
}

template <class Written, class Read> inline bool areTheSame(const Written &written, const Read &read) {
    bool same = true;
    for (std::size_t k = 0; k < Read::positions; ++k) same &= written[k] == read[k];
    return same;
}

// ---- Products -------------------------------------------------------------------------------------------------------
// Each returns how many objects were done: all that make fours, or none.

// 3x3 by a single matrix, which is held in all lanes; sums begin at the first product. It goes row by row, so the
// results may lie exactly on the first operand.
template <class A, class B, class D>
inline std::size_t multiplyRunsOfThree(const A &src1, const B &src2, const D &dst, std::size_t objects) {
    if (objects < worthRuns) return 0;
    const std::size_t done = inFours(objects);
    const PositionRuns<A, 3, 3> a(src1, done);
    const PositionRuns<B, 3, 3> b(src2, done);
    const PositionRuns<D, 3, 3> d(dst, done);
    const bool liesOnFirst = areTheSame(d, a) && disjoint(d, a.table);
    if (!disjoint(d) || !disjoint(d, b) || !(liesOnFirst || disjoint(d, a))) return 0;

    __m128 factor[9];
    for (std::size_t k = 0; k < 9; ++k) factor[k] = _mm_set1_ps(loadAt<Real32>(b[k]));
    for (std::size_t i = 0; i < 9; i += 3) {
        const std::byte *const a0 = a[i], *const a1 = a[i + 1], *const a2 = a[i + 2];
        std::byte *const d0 = d[i], *const d1 = d[i + 1], *const d2 = d[i + 2];
        for (std::size_t at = 0; at < done * sizeof(Real32); at += laneBytes) {
            const __m128 x = load4(a0 + at), y = load4(a1 + at), z = load4(a2 + at);
            store4(d0 + at, (x * factor[0] + y * factor[3]) + z * factor[6]);
            store4(d1 + at, (x * factor[1] + y * factor[4]) + z * factor[7]);
            store4(d2 + at, (x * factor[2] + y * factor[5]) + z * factor[8]);
        }
    }
    return done;
}

// The factors of a cell's terms; those of a single operand are in all lanes.
template <std::size_t terms, bool isArray> struct RunFactors {
    const std::byte *run[terms];
    __m128 lanes[terms];
    VONKK3_INLINE void take(std::size_t k, const std::byte *begin) {
        if constexpr (isArray) run[k] = begin;
        else lanes[k] = _mm_set1_ps(loadAt<Real32>(begin));
    }
    VONKK3_INLINE __m128 of(std::size_t k, std::size_t at) const {
        if constexpr (isArray) return load4(run[k] + at);
        else return lanes[k];
    }
};

// Running sums from +0, to which elements of the addends are added last, cell by cell: over as many objects at a time
// as stay close to the processor with all their runs.
template <std::size_t order, std::size_t columns, class A, class B, class D, class... Addends>
inline std::size_t sumInRuns(const A &src1, const B &src2, const D &dst, std::size_t objects,
                             const Addends &...addends) {
    if (objects < worthRuns) return 0;
    const std::size_t done = inFours(objects);
    const PositionRuns<A, order, order> a(src1, done);
    const PositionRuns<B, order, columns> b(src2, done);
    const PositionRuns<D, order, columns> d(dst, done);
    if (!disjoint(d) || !disjoint(d, a) || !disjoint(d, b)) return 0;
    if ((!disjoint(d, PositionRuns<Addends, order, columns>(addends, done)) || ...)) return 0;

    constexpr std::size_t close = 64 * laneBytes;
    const std::size_t end = done * sizeof(Real32);
    for (std::size_t from = 0; from < end; from += close) {
        const std::size_t to = end - from < close ? end : from + close;
        for (std::size_t cell = 0; cell < order * columns; ++cell) {
            RunFactors<order, A::isArray> left;
            RunFactors<order, B::isArray> right;
            for (std::size_t k = 0; k < order; ++k) {
                left.take(k, a[cell / columns * order + k]);
                right.take(k, b[k * columns + cell % columns]);
            }
            std::byte *const target = d[cell];
            for (std::size_t at = from; at < to; at += laneBytes) {
                __m128 sum = _mm_setzero_ps();
                forIndices(0, order, fixed<order>,
                           [&](std::size_t k) VONKK3_INLINED { sum = sum + left.of(k, at) * right.of(k, at); });
                ((sum = sum + load4(addends.tableView(columns).at(cell) + at)), ...);
                store4(target + at, sum);
            }
        }
    }
    return done;
}

} // namespace vonkk3::product
