// Blocks of objects to and from packs: element (i, j) of packWidth objects becomes one pack, of more objects several in
// a register. Contiguous positions of a table are one load, contiguous rows a transpose in registers, anything else
// goes element by element. Exactly the bytes of the elements are moved.
#pragma once

#include "frame/lanes.h"
#include "frame/objects_view.h"
#include "frame/pack.h"
#include "frame/straight.h"

namespace vonkk3 {

// Addresses of one row, or of one element, of the objects of a register.
template <std::size_t width> using SourcesOf = const std::byte *[width];
template <std::size_t width> using TargetsOf = std::byte *[width];
using PackSources = SourcesOf<packWidth>;
using PackTargets = TargetsOf<packWidth>;

inline std::byte *address(std::uintptr_t bytes) { return reinterpret_cast<std::byte *>(bytes); }

// ---- Rows of contiguous elements, up to 6 ---------------------------------------------------------------------------

// Quad q of a register is of the objects 4 q to 4 q + 3, and a transpose stays within quads.

template <std::size_t width>
VONKK3_INLINE PackOf<width> gatherElement(const std::byte *const (&from)[width], std::ptrdiff_t offset) {
    return gatherLanes(from, offset, Register<width>());
}

template <std::size_t width>
VONKK3_INLINE void gatherTwo(const std::byte *const (&from)[width], std::size_t offset, PackOf<width> *elements) {
    const auto pairs = [&](std::size_t k) VONKK3_INLINED { // of objects k and k + 1
        return ofQuads<Register<width>>([&](std::size_t q) VONKK3_INLINED {
            return _mm_loadh_pi(load2(from[4 * q + k] + offset), pair(from[4 * q + k + 1] + offset));
        });
    };
    const auto ab = pairs(0), cd = pairs(2);
    elements[0] = evenOf(ab, cd);
    elements[1] = oddOf(ab, cd);
}

template <std::size_t width>
VONKK3_INLINE void gatherFour(const std::byte *const (&from)[width], std::size_t offset, PackOf<width> *elements) {
    const auto row = [&](std::size_t k) VONKK3_INLINED {
        return ofQuads<Register<width>>([&](std::size_t q) VONKK3_INLINED { return load4(from[4 * q + k] + offset); });
    };
    auto a = row(0), b = row(1), c = row(2), d = row(3);
    transpose(a, b, c, d);
    elements[0] = a, elements[1] = b, elements[2] = c, elements[3] = d;
}

// body(q) for the quads of a register.
template <std::size_t width, class Body> VONKK3_INLINE void forEachQuad(const Body &body) {
    forEachBelow<width / 4>(body);
}

template <std::size_t width>
VONKK3_INLINE void scatterElement(std::byte *const (&to)[width], std::ptrdiff_t offset, PackOf<width> element) {
    forEachQuad<width>([&](auto q) VONKK3_INLINED {
        const __m128 lanes = quad<q>(element.lanes);
        store1(to[4 * q] + offset, lanes);
        store1(to[4 * q + 1] + offset, shuffled<1>(lanes));
        store1(to[4 * q + 2] + offset, shuffled<2>(lanes));
        store1(to[4 * q + 3] + offset, shuffled<3>(lanes));
    });
}

template <std::size_t width>
VONKK3_INLINE void scatterTwo(std::byte *const (&to)[width], std::size_t offset, PackOf<width> first,
                              PackOf<width> second) {
    const auto low = unpackLow(first.lanes, second.lanes), high = unpackHigh(first.lanes, second.lanes);
    forEachQuad<width>([&](auto q) VONKK3_INLINED {
        const __m128 ab = quad<q>(low), cd = quad<q>(high);
        _mm_storel_pi(pair(to[4 * q] + offset), ab);
        _mm_storeh_pi(pair(to[4 * q + 1] + offset), ab);
        _mm_storel_pi(pair(to[4 * q + 2] + offset), cd);
        _mm_storeh_pi(pair(to[4 * q + 3] + offset), cd);
    });
}

template <std::size_t width>
VONKK3_INLINE void scatterFour(std::byte *const (&to)[width], std::size_t offset, const PackOf<width> *elements) {
    auto a = elements[0].lanes, b = elements[1].lanes, c = elements[2].lanes, d = elements[3].lanes;
    transpose(a, b, c, d);
    forEachQuad<width>([&](auto q) VONKK3_INLINED {
        store4(to[4 * q] + offset, quad<q>(a));
        store4(to[4 * q + 1] + offset, quad<q>(b));
        store4(to[4 * q + 2] + offset, quad<q>(c));
        store4(to[4 * q + 3] + offset, quad<q>(d));
    });
}

template <std::size_t width>
VONKK3_INLINE void gatherRow(const std::byte *const (&from)[width], std::size_t length, PackOf<width> *row) {
    const std::size_t whole = length / 4 * 4;
    if (whole != 0) gatherFour(from, 0, row);
    if (length - whole >= 2) gatherTwo(from, whole * sizeof(Real32), row + whole);
    if (length % 2 != 0) row[length - 1] = gatherElement(from, (length - 1) * sizeof(Real32));
}

template <std::size_t width>
VONKK3_INLINE void scatterRow(std::byte *const (&to)[width], std::size_t length, const PackOf<width> *row) {
    const std::size_t whole = length / 4 * 4;
    if (whole != 0) scatterFour(to, 0, row);
    if (length - whole >= 2) scatterTwo(to, whole * sizeof(Real32), row[whole], row[whole + 1]);
    if (length % 2 != 0) scatterElement(to, (length - 1) * sizeof(Real32), row[length - 1]);
}

// ---- Blocks of objects in any layout --------------------------------------------------------------------------------

// What of a square matrix is moved.
enum class Triangle { both, lower };
constexpr std::size_t rowLength(Triangle triangle, std::size_t columns, std::size_t i) {
    return triangle == Triangle::lower ? i + 1 : columns;
}

// Elements of `width` objects of a view from object n on, by their addresses. Not of a table.
template <class Byte, std::size_t width> class ElementsOf {
public:
    VONKK3_INLINE ElementsOf(const ObjectsView &view, std::size_t n) : view(view) {
        const std::uintptr_t first = view.isList() ? 0 : view.object(n);
        for (std::size_t k = 0; k < width; ++k)
            object[k] = reinterpret_cast<Byte *>(view.isList() ? view.object(n + k)
                                                               : first + std::uintptr_t(strides(k, view.objectStride)));
    }

    // Of row i, where the elements of rows are contiguous.
    VONKK3_INLINE void findRow(std::size_t i, Byte *(&row)[width]) const {
        for (std::size_t k = 0; k < width; ++k) row[k] = object[k] + strides(i, view.rowStride);
    }
    // Element indexOf(k) of object k, where elements, or rows, are so many bytes apart.
    template <class IndexOf>
    VONKK3_INLINE void findOwn(const IndexOf &indexOf, std::ptrdiff_t stride, Byte *(&own)[width]) const {
        for (std::size_t k = 0; k < width; ++k) own[k] = object[k] + strides(indexOf(k), stride);
    }

private:
    const ObjectsView &view;
    Byte *object[width] = {};
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

// Element (i, j) of object n lies at origin(n) + offset[i][j], its distance from element (0, 0).
template <std::size_t width> using Origins = std::uintptr_t[width];

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
            offset[i][j] = view.isTable() ? view.position(i, j) - view.position(0, 0)
                                          : std::uintptr_t(strides(i, view.rowStride) + strides(j, view.elementStride));
}

// Element by element, for `step` registers between one element of the block and the next.
template <Triangle triangle, std::size_t rows, std::size_t columns, std::size_t width>
VONKK3_INLINE void gatherElements(const Offsets<rows, columns> &offset, const Origins<width> &origin,
                                  PackOf<width> *block, std::size_t step) {
    SourcesOf<width> first;
    for (std::size_t k = 0; k < width; ++k) first[k] = address(origin[k]);
    forEachMoved<rows, columns, triangle>([&](std::size_t i, std::size_t j) VONKK3_INLINED {
        block[(i * columns + j) * step] = gatherElement(first, std::ptrdiff_t(offset[i][j]));
    });
}

template <Triangle triangle, std::size_t rows, std::size_t columns, std::size_t width>
VONKK3_INLINE void scatterElements(const Offsets<rows, columns> &offset, const Origins<width> &origin,
                                   const PackOf<width> *block, std::size_t step) {
    TargetsOf<width> first;
    for (std::size_t k = 0; k < width; ++k) first[k] = address(origin[k]);
    forEachMoved<rows, columns, triangle>([&](std::size_t i, std::size_t j) VONKK3_INLINED {
        scatterElement(first, std::ptrdiff_t(offset[i][j]), block[(i * columns + j) * step]);
    });
}

// Of matrices, in a function that all their batches share.
template <Triangle triangle, std::size_t rows, std::size_t columns, std::size_t width>
VONKK3_SHARED void gatherMatrices(const Offsets<rows, columns> &offset, const Origins<width> &origin,
                                  PackOf<width> *block, std::size_t step) {
    gatherElements<triangle>(offset, origin, block, step);
}

template <Triangle triangle, std::size_t rows, std::size_t columns, std::size_t width>
VONKK3_SHARED void scatterMatrices(const Offsets<rows, columns> &offset, const Origins<width> &origin,
                                   const PackOf<width> *block, std::size_t step) {
    scatterElements<triangle>(offset, origin, block, step);
}

// An operand of a batch: rows by columns Real32 elements of every object, or of the one object that serves all. Where
// elements are gathered one by one, all batches share the code of it, unless it is to be in line.
template <std::size_t rows, std::size_t columns, bool isArray, Triangle triangle = Triangle::both,
          bool isInLine = rows == 1>
struct BatchOperand {
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
        if constexpr (isArray && access == Access::any) {
            findOffsets(view, offset);
            if (!view.isList()) start = view.addressOf(0, 0);
        } else if constexpr (isArray && access == Access::positions)
            readPositions(view.begin, view.rowStride, view.elementStride, view.shift, offset);
        else if constexpr (!isArray)
            forEachElement([&](std::size_t i, std::size_t j)
                               VONKK3_INLINED { single[i][j] = view.load<Real32>(i, j); });
    }

    // For so many packs of objects from n on.
    template <Access access, std::size_t packs>
    VONKK3_INLINE void gather(std::size_t n, Packs<packs> (&block)[rows][columns]) const {
        constexpr std::size_t width = Packs<packs>::width, registers = Packs<packs>::registers;
        forIndices(0, registers, fixed<registers>, [&](std::size_t c) VONKK3_INLINED {
            const std::size_t first = n + c * width;
            if constexpr (access == Access::any) {
                Origins<width> origin;
                findOrigins(first, origin);
                PackOf<width> *const elements = &block[0][0].chain[c];
                if constexpr (isInLine) gatherElements<triangle>(offset, origin, elements, registers);
                else gatherMatrices<triangle>(offset, origin, elements, registers);
            } else if constexpr (access == Access::positions)
                forEachElement([&](std::size_t i, std::size_t j) VONKK3_INLINED {
                    block[i][j].chain[c] = loadLanes<Register<width>>(addressOf<const std::byte>(i, j, first));
                });
            else {
                const ElementsOf<const std::byte, width> elements(view, first);
                forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
                    const std::size_t length = rowLength(triangle, columns, i);
                    PackOf<width> row[columns];
                    SourcesOf<width> from;
                    elements.findRow(i, from);
                    gatherRow(from, length, row);
                    forIndices(0, length, fixed<columns>,
                               [&](std::size_t j) VONKK3_INLINED { block[i][j].chain[c] = row[j]; });
                });
            }
        });
    }

    // The same for any access, and whatever was hoisted.
    template <std::size_t packs>
    VONKK3_INLINE void gatherAnew(std::size_t n, Packs<packs> (&block)[rows][columns]) const {
        BatchOperand anew(view);
        anew.template hoist<Access::any>();
        anew.template gather<Access::any>(n, block);
    }

    template <Access access, std::size_t packs>
    VONKK3_INLINE void scatter(std::size_t n, const Packs<packs> (&block)[rows][columns]) const {
        constexpr std::size_t width = Packs<packs>::width, registers = Packs<packs>::registers;
        forIndices(0, registers, fixed<registers>, [&](std::size_t c) VONKK3_INLINED {
            const std::size_t first = n + c * width;
            if constexpr (access == Access::any) {
                Origins<width> origin;
                findOrigins(first, origin);
                const PackOf<width> *const elements = &block[0][0].chain[c];
                if constexpr (isInLine) scatterElements<triangle>(offset, origin, elements, registers);
                else scatterMatrices<triangle>(offset, origin, elements, registers);
            } else if constexpr (access == Access::positions)
                forEachElement([&](std::size_t i, std::size_t j) VONKK3_INLINED {
                    storeLanes(addressOf<std::byte>(i, j, first), block[i][j].chain[c].lanes);
                });
            else {
                const ElementsOf<std::byte, width> elements(view, first);
                forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
                    const std::size_t length = rowLength(triangle, columns, i);
                    PackOf<width> row[columns];
                    TargetsOf<width> to;
                    forIndices(0, length, fixed<columns>,
                               [&](std::size_t j) VONKK3_INLINED { row[j] = block[i][j].chain[c]; });
                    elements.findRow(i, to);
                    scatterRow(to, length, row);
                });
            }
        });
    }

    // work(block) with the elements of the objects from n on, or of the one object.
    template <Access access, std::size_t packs, class Work>
    VONKK3_INLINE void with(std::size_t n, const Work &work) const {
        if constexpr (isArray) {
            Packs<packs> block[rows][columns];
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
    std::uintptr_t start; // of element (0, 0) of object 0, if not through a list

    template <std::size_t width> VONKK3_INLINE void findOrigins(std::size_t n, Origins<width> &origin) const {
        if (view.isList()) {
            for (std::size_t k = 0; k < width; ++k) origin[k] = view.object(n + k);
            return;
        }
        origin[0] = start + std::uintptr_t(strides(n, view.objectStride));
        for (std::size_t k = 1; k < width; ++k) origin[k] = origin[k - 1] + std::uintptr_t(view.objectStride);
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

// Row i of the block is row rowOf(k, i) of object n + k, which must be one of its `rows`. There are `step` registers
// between one element of the block and the next. Not for tables.
template <Access access, std::size_t rows, std::size_t columns, std::size_t width, class RowOf>
VONKK3_INLINE void gatherRowsInOrder(const BatchOperand<rows, columns, true> &operand, std::size_t n,
                                     const RowOf &rowOf, PackOf<width> *block, std::size_t step) {
    const ObjectsView &view = operand.view;
    const ElementsOf<const std::byte, width> elements(view, n);
    forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
        PackOf<width> row[columns];
        SourcesOf<width> from;
        elements.findOwn([&](std::size_t k) VONKK3_INLINED { return rowOf(k, i); }, view.rowStride, from);
        if constexpr (access == Access::rows) gatherRow(from, columns, row);
        else {
            for (std::size_t k = 0; k < width; ++k) from[k] = opaque(from[k]);
            for (std::size_t j = 0; j < columns; ++j) row[j] = gatherElement(from, strides(j, view.elementStride));
        }
        for (std::size_t j = 0; j < columns; ++j) block[(i * columns + j) * step] = row[j];
    });
}

// Element i of the block is element indexOf(k, i) of the vector of object n + k, which must be one of its `length`. Not
// for tables.
template <Access access, std::size_t length, std::size_t width, class IndexOf>
VONKK3_INLINE void gatherElementsInOrder(const VectorsOfBatch<length> &operand, std::size_t n, const IndexOf &indexOf,
                                         PackOf<width> *block, std::size_t step) {
    const ObjectsView &view = operand.view;
    const std::ptrdiff_t stride = access == Access::rows ? sizeof(Real32) : view.elementStride;
    const ElementsOf<const std::byte, width> elements(view, n);
    forIndices(0, length, fixed<length>, [&](std::size_t i) VONKK3_INLINED {
        SourcesOf<width> from;
        elements.findOwn([&](std::size_t k) VONKK3_INLINED { return indexOf(k, i); }, stride, from);
        block[i * step] = gatherElement(from, 0);
    });
}

// The element whose mask is set, lane by lane; of each lane one is.
template <std::size_t width, std::size_t length>
VONKK3_INLINE PackOf<width> selectElement(const MaskOf<width> (&isIndex)[length],
                                          const PackOf<width> (&elements)[length]) {
    PackOf<width> selected = elements[0];
    if constexpr (hasMasks)
        forIndices(1, length, fixed<length>,
                   [&](std::size_t r) VONKK3_INLINED { selected = select(isIndex[r], elements[r], selected); });
    else {
        const auto masked = [&](std::size_t r) VONKK3_INLINED { return bitAnd(isIndex[r].lanes, elements[r].lanes); };
        selected = masked(0);
        forIndices(1, length, fixed<length>,
                   [&](std::size_t r) VONKK3_INLINED { selected = bitOr(selected.lanes, masked(r)); });
    }
    return selected;
}

// Matrices and vectors of a table: all of them are gathered, and row index[i] of the matrices and element index[i] of
// the vectors become row and element i, lane by lane.
template <Access access, std::size_t order, std::size_t width>
VONKK3_INLINE void gatherInOrder(const MatricesOfBatch<order> &matrices, const VectorsOfBatch<order> &vectors,
                                 std::size_t n, const PackOf<width> (&index)[order], PackOf<width> *rows,
                                 PackOf<width> *elements, std::size_t step) {
    Packs<width / packWidth> matrix[order][order], vector[1][order];
    matrices.template gather<access>(n, matrix);
    vectors.template gather<access>(n, vector);
    const auto selectFor = [&](std::size_t i, PackOf<width> *to, const auto &element) VONKK3_INLINED {
        MaskOf<width> isRow[order];
        PackOf<width> each[order];
        forIndices(0, order, fixed<order>, [&](std::size_t r) VONKK3_INLINED {
            isRow[r] = haveSameBits(index[i], packOfIndex<PackOf<width>>(std::uint32_t(r)));
            each[r] = element(r);
        });
        *to = selectElement(isRow, each);
    };
    forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
        selectFor(i, elements + i * step, [&](std::size_t r) VONKK3_INLINED { return vector[0][r].chain[0]; });
        forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
            selectFor(i, rows + (i * order + j) * step,
                      [&](std::size_t r) VONKK3_INLINED { return matrix[r][j].chain[0]; });
        });
    });
}

// Row i of the block becomes row rowOf(k, i) of object n + k. Its elements must be contiguous.
template <std::size_t packs, std::size_t rows, std::size_t columns, class RowOf>
VONKK3_INLINE void scatterRowsInOrder(const ObjectsView &view, std::size_t n, const RowOf &rowOf,
                                      const Packs<packs> (&block)[rows][columns]) {
    constexpr std::size_t width = Packs<packs>::width, registers = Packs<packs>::registers;
    forIndices(0, registers, fixed<registers>, [&](std::size_t c) VONKK3_INLINED {
        const std::size_t first = c * width;
        const ElementsOf<std::byte, width> elements(view, n + first);
        forIndices(0, rows, fixed<rows>, [&](std::size_t i) VONKK3_INLINED {
            PackOf<width> row[columns];
            TargetsOf<width> to;
            for (std::size_t j = 0; j < columns; ++j) row[j] = block[i][j].chain[c];
            elements.findOwn([&](std::size_t k) VONKK3_INLINED { return rowOf(first + k, i); }, view.rowStride, to);
            scatterRow(to, columns, row);
        });
    });
}

// One packed row for each object.
template <std::size_t width, std::size_t columns>
VONKK3_INLINE void gatherPacked(const std::byte *from, PackOf<width> (&row)[columns]) {
    SourcesOf<width> sources;
    for (std::size_t k = 0; k < width; ++k) sources[k] = opaque(from + k * columns * sizeof(Real32));
    gatherRow(sources, columns, row);
}
template <std::size_t packs, std::size_t columns>
VONKK3_INLINE void scatterPacked(std::byte *to, const Packs<packs> (&block)[1][columns]) {
    constexpr std::size_t width = Packs<packs>::width, registers = Packs<packs>::registers;
    forIndices(0, registers, fixed<registers>, [&](std::size_t c) VONKK3_INLINED {
        PackOf<width> row[columns];
        TargetsOf<width> targets;
        for (std::size_t j = 0; j < columns; ++j) row[j] = block[0][j].chain[c];
        for (std::size_t k = 0; k < width; ++k) targets[k] = opaque(to + (c * width + k) * columns * sizeof(Real32));
        scatterRow(targets, columns, row);
    });
}

// Packed numbers of objects.
template <std::size_t packs> VONKK3_INLINE void storePacks(std::byte *to, const Packs<packs> &values) {
    for (std::size_t c = 0; c < Packs<packs>::registers; ++c)
        storeLanes(to + c * sizeof(values.chain[c]), values.chain[c].lanes);
}

// One packed result per object.
template <std::size_t packs>
VONKK3_INLINE void storeResults(const ObjectsView &results, std::size_t n, const Packs<packs> &values) {
    storePacks(reinterpret_cast<std::byte *>(results.object(n)), values);
}

} // namespace vonkk3
