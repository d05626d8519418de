// Blocks of objects to and from packs: element (i, j) of packWidth objects becomes one pack. Contiguous positions of a
// table are one load, contiguous rows a transpose in registers, anything else goes element by element. Exactly the
// bytes of the elements are moved.
#pragma once

#include "frame/lanes.h"
#include "frame/objects_view.h"
#include "frame/pack.h"

namespace vonkk3 {

// Addresses of one row, or of one element, of the objects of a pack.
using PackSources = const std::byte *[packWidth];
using PackTargets = std::byte *[packWidth];

inline std::byte *address(std::uintptr_t bytes) { return reinterpret_cast<std::byte *>(bytes); }

// ---- Rows of contiguous elements, up to 6 ---------------------------------------------------------------------------

inline Pack gatherElement(const PackSources &from, std::ptrdiff_t offset) {
    const __m128 ab = _mm_unpacklo_ps(load1(from[0] + offset), load1(from[1] + offset));
    const __m128 cd = _mm_unpacklo_ps(load1(from[2] + offset), load1(from[3] + offset));
    return _mm_movelh_ps(ab, cd);
}

inline void gatherTwo(const PackSources &from, std::size_t offset, Pack *elements) {
    const __m128 ab = _mm_loadh_pi(load2(from[0] + offset), pair(from[1] + offset));
    const __m128 cd = _mm_loadh_pi(load2(from[2] + offset), pair(from[3] + offset));
    elements[0] = _mm_shuffle_ps(ab, cd, _MM_SHUFFLE(2, 0, 2, 0));
    elements[1] = _mm_shuffle_ps(ab, cd, _MM_SHUFFLE(3, 1, 3, 1));
}

inline void gatherFour(const PackSources &from, std::size_t offset, Pack *elements) {
    __m128 a = load4(from[0] + offset), b = load4(from[1] + offset);
    __m128 c = load4(from[2] + offset), d = load4(from[3] + offset);
    _MM_TRANSPOSE4_PS(a, b, c, d);
    elements[0] = a, elements[1] = b, elements[2] = c, elements[3] = d;
}

inline void scatterElement(const PackTargets &to, std::size_t offset, Pack element) {
    const __m128 lanes = element.lanes;
    store1(to[0] + offset, lanes);
    store1(to[1] + offset, _mm_shuffle_ps(lanes, lanes, 1));
    store1(to[2] + offset, _mm_movehl_ps(lanes, lanes));
    store1(to[3] + offset, _mm_shuffle_ps(lanes, lanes, 3));
}

inline void scatterTwo(const PackTargets &to, std::size_t offset, Pack first, Pack second) {
    const __m128 ab = _mm_unpacklo_ps(first.lanes, second.lanes);
    const __m128 cd = _mm_unpackhi_ps(first.lanes, second.lanes);
    _mm_storel_pi(pair(to[0] + offset), ab);
    _mm_storeh_pi(pair(to[1] + offset), ab);
    _mm_storel_pi(pair(to[2] + offset), cd);
    _mm_storeh_pi(pair(to[3] + offset), cd);
}

inline void scatterFour(const PackTargets &to, std::size_t offset, Pack first, Pack second, Pack third, Pack fourth) {
    __m128 a = first.lanes, b = second.lanes, c = third.lanes, d = fourth.lanes;
    _MM_TRANSPOSE4_PS(a, b, c, d);
    store4(to[0] + offset, a);
    store4(to[1] + offset, b);
    store4(to[2] + offset, c);
    store4(to[3] + offset, d);
}

VONKK3_INLINE void gatherRow(const PackSources &from, std::size_t length, Pack *row) {
    const std::size_t whole = length / 4 * 4;
    if (whole != 0) gatherFour(from, 0, row);
    if (length - whole >= 2) gatherTwo(from, whole * sizeof(Real32), row + whole);
    if (length % 2 != 0) row[length - 1] = gatherElement(from, (length - 1) * sizeof(Real32));
}

VONKK3_INLINE void scatterRow(const PackTargets &to, std::size_t length, const Pack *row) {
    const std::size_t whole = length / 4 * 4;
    if (whole != 0) scatterFour(to, 0, row[0], row[1], row[2], row[3]);
    if (length - whole >= 2) scatterTwo(to, whole * sizeof(Real32), row[whole], row[whole + 1]);
    if (length % 2 != 0) scatterElement(to, (length - 1) * sizeof(Real32), row[length - 1]);
}

// ---- Blocks of objects in any layout --------------------------------------------------------------------------------

// What of a square matrix is moved.
enum class Triangle { both, lower };
constexpr std::size_t rowLength(Triangle triangle, std::size_t columns, std::size_t i) {
    return triangle == Triangle::lower ? i + 1 : columns;
}

// Elements of objects n to n + packWidth - 1 of a view, by their addresses.
template <class Byte> class ElementsOfPack {
public:
    VONKK3_INLINE ElementsOfPack(const ObjectsView &view, std::size_t n) : view(view) {
        if (view.isTable()) return;
        const std::uintptr_t first = view.isList() ? 0 : view.object(n);
        for (std::size_t k = 0; k < packWidth; ++k)
            object[k] = reinterpret_cast<Byte *>(view.isList() ? view.object(n + k)
                                                               : first + std::uintptr_t(strides(k, view.objectStride)));
    }

    // Of row i, where the elements of rows are contiguous.
    VONKK3_INLINE void findRow(std::size_t i, Byte *(&row)[packWidth]) const {
        for (std::size_t k = 0; k < packWidth; ++k) row[k] = object[k] + strides(i, view.rowStride);
    }
    // Element indexOf(k) of object k, where elements, or rows, are so many bytes apart.
    template <class IndexOf>
    VONKK3_INLINE void findOwn(const IndexOf &indexOf, std::ptrdiff_t stride, Byte *(&own)[packWidth]) const {
        for (std::size_t k = 0; k < packWidth; ++k) own[k] = object[k] + strides(indexOf(k), stride);
    }

private:
    const ObjectsView &view;
    Byte *object[packWidth] = {};
};

// How the elements of a call's arrays are reached, which is known before the first batch: a kernel is compiled for
// each.
enum class Access {
    rows,      // rows are contiguous: standard and list layouts, and strided ones without gaps
    positions, // the objects of a position are contiguous: P
    any        // element by element
};

template <class... Views> inline Access accessOf(const Views &...views) {
    const auto all = [&](const auto &test) { return ((!views.isArray || test(views)) && ...); };
    if (all([](const ObjectsView &view) { return view.hasContiguousRows(); })) return Access::rows;
    const auto isContiguous = [](const ObjectsView &view) {
        return view.isTable() && view.objectStride == std::ptrdiff_t(sizeof(Real32));
    };
    return all(isContiguous) ? Access::positions : Access::any;
}

// Element (i, j) of object n lies at offset[i][j] + origin(n). Through a table the offset is the position; by strides
// it is the distance from the object.
using Origins = std::uintptr_t[packWidth];

template <std::size_t rows, std::size_t columns> using Offsets = std::uintptr_t[rows][columns];

// body(i, j) for all elements that are moved.
template <std::size_t rows, std::size_t columns, Triangle triangle, class Body>
VONKK3_INLINE void forEachMoved(const Body &body) {
    forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
        forIndices(0, rowLength(triangle, columns, i), fixed<columns>,
                   [&](std::size_t j) VONKK3_INLINED { body(i, j); });
    });
}

template <std::size_t rows, std::size_t columns>
VONKK3_SHARED void findOffsets(const ObjectsView &view, Offsets<rows, columns> &offset) {
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j)
            offset[i][j] = view.isTable() ? view.position(i, j)
                                          : std::uintptr_t(strides(i, view.rowStride) + strides(j, view.elementStride));
}

// Element by element, for `step` packs between one element of the block and the next.
template <std::size_t rows, std::size_t columns, Triangle triangle>
VONKK3_INLINE void gatherElements(const Offsets<rows, columns> &offset, const Origins &origin, Pack *block,
                                  std::size_t step) {
    const std::byte *const first[] = {address(origin[0]), address(origin[1]), address(origin[2]), address(origin[3])};
    forEachMoved<rows, columns, triangle>([&](std::size_t i, std::size_t j) VONKK3_INLINED {
        block[(i * columns + j) * step] = gatherElement(first, std::ptrdiff_t(offset[i][j]));
    });
}

template <std::size_t rows, std::size_t columns, Triangle triangle>
VONKK3_INLINE void scatterElements(const Offsets<rows, columns> &offset, const Origins &origin, const Pack *block,
                                   std::size_t step) {
    std::byte *const first[] = {address(origin[0]), address(origin[1]), address(origin[2]), address(origin[3])};
    forEachMoved<rows, columns, triangle>([&](std::size_t i, std::size_t j) VONKK3_INLINED {
        scatterElement(first, offset[i][j], block[(i * columns + j) * step]);
    });
}

// Of matrices, in a function that all their batches share.
template <std::size_t rows, std::size_t columns, Triangle triangle>
VONKK3_SHARED void gatherMatrices(const Offsets<rows, columns> &offset, const Origins &origin, Pack *block,
                                  std::size_t step) {
    gatherElements<rows, columns, triangle>(offset, origin, block, step);
}

template <std::size_t rows, std::size_t columns, Triangle triangle>
VONKK3_SHARED void scatterMatrices(const Offsets<rows, columns> &offset, const Origins &origin, const Pack *block,
                                   std::size_t step) {
    scatterElements<rows, columns, triangle>(offset, origin, block, step);
}

// An operand of a batch: rows by columns Real32 elements of every object, or of the one object that serves all.
template <std::size_t rows, std::size_t columns, bool isArray, Triangle triangle = Triangle::both> struct BatchOperand {
    ObjectsView view;

    template <class Operand>
    VONKK3_INLINE BatchOperand(const Operand &operand, std::size_t count)
        : BatchOperand(objectsOf(operand, rows, columns, count)) {}
    VONKK3_INLINE explicit BatchOperand(const ObjectsView &view) : view(view) {}
    template <bool throughTables>
    VONKK3_INLINE BatchOperand(const OperandWords &words, std::size_t count, std::bool_constant<throughTables>)
        : view(objectsOf<Real32, throughTables>(words, rows, columns, count)) {}

    // What is the same for all batches: a single object is broadcast, the pointers of a table are read. Nothing that is
    // written overlaps either.
    template <Access access> VONKK3_INLINE void hoist() {
        if constexpr (isArray && access == Access::any) findOffsets(view, offset);
        else if constexpr (!isArray || access == Access::positions)
            forEachElement([&](std::size_t i, std::size_t j) VONKK3_INLINED {
                if constexpr (isArray) offset[i][j] = view.position(i, j);
                else single[i][j] = view.load<Real32>(i, j);
            });
    }

    // Each chain stands for packWidth objects, from the objects n on.
    template <Access access, std::size_t chains>
    VONKK3_INLINE void gather(std::size_t n, Packs<chains> (&block)[rows][columns]) const {
        forIndices(0, chains, fixed<chains>, [&](std::size_t c) VONKK3_INLINED {
            const std::size_t first = n + c * packWidth;
            if constexpr (access == Access::any) {
                Origins origin;
                findOrigins(first, origin);
                Pack *const elements = &block[0][0].chain[c];
                if constexpr (rows == 1) gatherElements<rows, columns, triangle>(offset, origin, elements, chains);
                else gatherMatrices<rows, columns, triangle>(offset, origin, elements, chains);
            } else if constexpr (access == Access::positions)
                forEachElement([&](std::size_t i, std::size_t j) VONKK3_INLINED {
                    block[i][j].chain[c] = load4(addressOf<const std::byte>(i, j, first));
                });
            else {
                const ElementsOfPack<const std::byte> elements(view, first);
                forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
                    const std::size_t length = rowLength(triangle, columns, i);
                    Pack row[columns];
                    PackSources from;
                    elements.findRow(i, from);
                    gatherRow(from, length, row);
                    forIndices(0, length, fixed<columns>,
                               [&](std::size_t j) VONKK3_INLINED { block[i][j].chain[c] = row[j]; });
                });
            }
        });
    }

    // The same for any access, and whatever was hoisted.
    template <std::size_t chains>
    VONKK3_INLINE void gatherAnew(std::size_t n, Packs<chains> (&block)[rows][columns]) const {
        BatchOperand anew(view);
        anew.template hoist<Access::any>();
        anew.template gather<Access::any>(n, block);
    }

    template <Access access, std::size_t chains>
    VONKK3_INLINE void scatter(std::size_t n, const Packs<chains> (&block)[rows][columns]) const {
        forIndices(0, chains, fixed<chains>, [&](std::size_t c) VONKK3_INLINED {
            const std::size_t first = n + c * packWidth;
            if constexpr (access == Access::any) {
                Origins origin;
                findOrigins(first, origin);
                const Pack *const elements = &block[0][0].chain[c];
                if constexpr (rows == 1) scatterElements<rows, columns, triangle>(offset, origin, elements, chains);
                else scatterMatrices<rows, columns, triangle>(offset, origin, elements, chains);
            } else if constexpr (access == Access::positions)
                forEachElement([&](std::size_t i, std::size_t j) VONKK3_INLINED {
                    store4(addressOf<std::byte>(i, j, first), block[i][j].chain[c].lanes);
                });
            else {
                const ElementsOfPack<std::byte> elements(view, first);
                forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
                    const std::size_t length = rowLength(triangle, columns, i);
                    Pack row[columns];
                    PackTargets to;
                    forIndices(0, length, fixed<columns>,
                               [&](std::size_t j) VONKK3_INLINED { row[j] = block[i][j].chain[c]; });
                    elements.findRow(i, to);
                    scatterRow(to, length, row);
                });
            }
        });
    }

    // work(block) with the elements of the objects from n on, or of the one object.
    template <Access access, std::size_t chains, class Work>
    VONKK3_INLINE void with(std::size_t n, const Work &work) const {
        if constexpr (isArray) {
            Packs<chains> block[rows][columns];
            gather<access>(n, block);
            work(block);
        } else work(single);
    }

    // Of a single object.
    const auto &broadcast() const requires(!isArray) { return single; }

private:
    union {
        Offsets<rows, columns> offset;
        Pack single[rows][columns];
    };

    VONKK3_INLINE void findOrigins(std::size_t n, Origins &origin) const {
        const std::uintptr_t first = (view.isTable() ? 0 : view.begin) + std::uintptr_t(strides(n, view.objectStride));
        for (std::size_t k = 0; k < packWidth; ++k)
            origin[k] = view.isList() ? view.object(n + k) : first + std::uintptr_t(strides(k, view.objectStride));
    }

    template <class Byte> Byte *addressOf(std::size_t i, std::size_t j, std::size_t n) const {
        return reinterpret_cast<Byte *>(offset[i][j] + n * sizeof(Real32));
    }
    template <class Body> VONKK3_INLINE static void forEachElement(const Body &body) {
        forEachMoved<rows, columns, triangle>(body);
    }
};
template <std::size_t order, bool isArray = true, Triangle triangle = Triangle::both>
using MatricesOfBatch = BatchOperand<order, order, isArray, triangle>;
template <std::size_t length, bool isArray = true> using VectorsOfBatch = BatchOperand<1, length, isArray>;

// ---- Rows and elements in an order of each object's own -------------------------------------------------------------

// Element (i, j) of lane k in a block of one chain.
template <std::size_t rows, std::size_t columns>
VONKK3_INLINE const std::byte *laneOf(const Packs<1> (&block)[rows][columns], std::size_t i, std::size_t j,
                                      std::size_t k) {
    return reinterpret_cast<const std::byte *>(block) + (i * columns + j) * sizeof(Pack) + k * sizeof(Real32);
}

// Row i of the block is row rowOf(k, i) of object n + k, which must be one of its `rows`. There are `step` packs
// between one element of the block and the next.
template <Access access, std::size_t rows, std::size_t columns, class RowOf>
VONKK3_INLINE void gatherRowsInOrder(const BatchOperand<rows, columns, true> &operand, std::size_t n,
                                     const RowOf &rowOf, Pack *block, std::size_t step) {
    const ObjectsView &view = operand.view;
    const bool isPermutedLocally = access == Access::positions || (access == Access::any && view.isTable());
    const ElementsOfPack<const std::byte> elements(view, n);
    Packs<1> unordered[rows][columns];
    if (isPermutedLocally) operand.template gather<access>(n, unordered);
    forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
        const auto rowOfLane = [&](std::size_t k) VONKK3_INLINED { return rowOf(k, i); };
        Pack row[columns];
        PackSources from;
        if (isPermutedLocally)
            for (std::size_t k = 0; k < packWidth; ++k) from[k] = laneOf(unordered, rowOfLane(k), 0, k);
        else elements.findOwn(rowOfLane, view.rowStride, from);
        if constexpr (access == Access::rows) gatherRow(from, columns, row);
        else {
            const std::ptrdiff_t stride = isPermutedLocally ? std::ptrdiff_t(sizeof(Pack)) : view.elementStride;
            for (std::size_t j = 0; j < columns; ++j) row[j] = gatherElement(from, strides(j, stride));
        }
        for (std::size_t j = 0; j < columns; ++j) block[(i * columns + j) * step] = row[j];
    });
}

// Element i of the block is element indexOf(k, i) of the vector of object n + k, which must be one of its `length`.
template <Access access, std::size_t length, class IndexOf>
VONKK3_INLINE void gatherElementsInOrder(const VectorsOfBatch<length> &operand, std::size_t n, const IndexOf &indexOf,
                                         Pack *block, std::size_t step) {
    const ObjectsView &view = operand.view;
    const bool isPermutedLocally = access == Access::positions || (access == Access::any && view.isTable());
    const std::ptrdiff_t stride = access == Access::rows ? sizeof(Real32) : view.elementStride;
    const ElementsOfPack<const std::byte> elements(view, n);
    Packs<1> unordered[1][length];
    if (isPermutedLocally) operand.template gather<access>(n, unordered);
    forIndices(0, length, fixed<length>, [&](std::size_t i) VONKK3_INLINED {
        const auto indexOfLane = [&](std::size_t k) VONKK3_INLINED { return indexOf(k, i); };
        PackSources from;
        if (isPermutedLocally)
            for (std::size_t k = 0; k < packWidth; ++k) from[k] = laneOf(unordered, 0, indexOfLane(k), k);
        else elements.findOwn(indexOfLane, stride, from);
        block[i * step] = gatherElement(from, 0);
    });
}

// Row i of the block becomes row rowOf(k, i) of object n + k. Its elements must be contiguous.
template <std::size_t chains, std::size_t rows, std::size_t columns, class RowOf>
VONKK3_INLINE void scatterRowsInOrder(const ObjectsView &view, std::size_t n, const RowOf &rowOf,
                                      const Packs<chains> (&block)[rows][columns]) {
    forIndices(0, chains, fixed<chains>, [&](std::size_t c) VONKK3_INLINED {
        const std::size_t first = c * packWidth;
        const ElementsOfPack<std::byte> elements(view, n + first);
        forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
            Pack row[columns];
            PackTargets to;
            for (std::size_t j = 0; j < columns; ++j) row[j] = block[i][j].chain[c];
            elements.findOwn([&](std::size_t k) VONKK3_INLINED { return rowOf(first + k, i); }, view.rowStride, to);
            scatterRow(to, columns, row);
        });
    });
}

// One packed result per object.
template <std::size_t chains>
VONKK3_INLINE void storeResults(const ObjectsView &results, std::size_t n, const Packs<chains> &values) {
    const auto to = reinterpret_cast<std::byte *>(results.object(n));
    for (std::size_t c = 0; c < chains; ++c) store4(to + c * packWidth * sizeof(Real32), values.chain[c].lanes);
}

} // namespace vonkk3
