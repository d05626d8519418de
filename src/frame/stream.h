// The fast path of all that goes element by element, d(n, i, j) = operation(sources(n, i, j)...), for arrays of Real32.
// Where no overlap shows the order of objects and elements, dimensions that are contiguous in all operands collapse
// into long ranges, worked a register at a time, and other loops are interchanged, so that the innermost is the long
// one, over objects. Exactly the bytes of the elements are read and written.
#pragma once

#include "frame/aliasing.h"
#include "frame/registers.h"
#include "frame/straight.h"

#include <concepts>

namespace vonkk3 {

// What is done with the elements of the sources, as numbers and in lanes.
template <class Operation, class... Sources>
concept ElementOperation = requires(const Operation &operation, const Sources &...sources) {
    { operation(sources.one(0)...) } -> std::convertible_to<Real32>;
    requires isRegister<decltype(operation(sources.template lanes<WideRegister>(0)...))>;
};

// A constant of a call.
template <class T> struct Constant {
    T value;
    explicit Constant(T value) : value(value) {}
    operator Working<T>() const { return value; }
    template <class Lanes> Lanes lanes() const { return broadcast<Lanes>(value); }
};

// An operation with a constant as its second operand.
template <class T, class Operation> struct WithConstant {
    Constant<T> constant;
    Working<T> operator()(Working<T> a) const { return Operation()(a, Working<T>(constant)); }
    template <class Lanes>
    requires isRegister<Lanes> Lanes operator()(Lanes a) const {
        return Operation()(a, constant.template lanes<Lanes>());
    }
};

struct Product {
    template <class Real> Real operator()(Real a, Real b) const { return a * b; }
};

// Every bit stays.
struct Moved {
    static constexpr bool isMove = true;
    template <class Value> Value operator()(Value a) const { return a; }
};

// ---- One contiguous range -------------------------------------------------------------------------------------------

// A source of a contiguous range of results: as long as they are, or one element beside all of them. `at` is in bytes.
struct ContiguousSource {
    const std::byte *base;
    VONKK3_INLINE Real32 one(std::size_t at) const { return loadAt<Real32>(base + at); }
    template <class Lanes> VONKK3_INLINE Lanes lanes(std::size_t at) const { return loadLanes<Lanes>(base + at); }
};

struct BroadcastSource {
    Constant<Real32> value;
    VONKK3_INLINE explicit BroadcastSource(const std::byte *address) : value(loadAt<Real32>(address)) {}
    VONKK3_INLINE Real32 one(std::size_t) const { return value; }
    template <class Lanes> VONKK3_INLINE Lanes lanes(std::size_t) const { return value.template lanes<Lanes>(); }
};

// Whether results that are written in ascending order overwrite what is yet to be read: they begin after the source's
// first byte and before its last.
VONKK3_INLINE bool overwritesAhead(const std::byte *d, const std::byte *source, std::size_t bytes) {
    return reinterpret_cast<std::uintptr_t>(d) - reinterpret_cast<std::uintptr_t>(source) - 1 < bytes - 1;
}

// In ascending order, nothing is read later than element by element: a destination may begin before a source.
// Stores are kept between the loads: in bursts they take twice the time where the data is not in the first-level cache.
template <class Operation, class... Sources>
requires ElementOperation<Operation, Sources...> VONKK3_INLINE void
streamInLanes(const Operation &operation, std::byte *d, std::size_t elements, const Sources &...sources) {
    const auto lanes = [&]<class Lanes>(std::size_t at) VONKK3_INLINED {
        storeLanes(d + at, operation(sources.template lanes<Lanes>(at)...));
        keepLoopPlain();
    };
    const auto wide = [&](std::size_t at) VONKK3_INLINED { lanes.template operator()<WideRegister>(at); };
    constexpr std::size_t step = sizeof(WideRegister), block = 4 * step;
    const std::size_t bytes = elements * sizeof(Real32), inBlocks = bytes / block * block;
    const std::size_t inRegisters = bytes / step * step;
    std::size_t at = 0;
    for (; at != inBlocks; at += block) wide(at), wide(at + step), wide(at + 2 * step), wide(at + 3 * step);
    for (; at != inRegisters; at += step) wide(at);
    if (at == bytes) return;
    if constexpr (step > laneBytes)
        if (bytes - at >= laneBytes) lanes.template operator()<__m128>(at), at += laneBytes;
    for (; at != bytes; at += sizeof(Real32)) {
        keepLoopPlain();
        storeAt<Real32>(d + at, operation(sources.one(at)...));
    }
}

// ---- One position of many objects -----------------------------------------------------------------------------------

// An element of object after object, a stride apart, four at a time. The other strides are hidden from the compiler,
// which would take care of a stride of one byte, and else step from element to element, one waiting for the other.
template <class Byte> struct StridedElements {
    Byte *first;
    std::ptrdiff_t stride, thrice, fourfold;

    VONKK3_INLINE StridedElements(Byte *first, std::ptrdiff_t stride)
        : first(first), stride(stride), thrice(opaque(3 * stride)), fourfold(opaque(4 * stride)) {}
    template <std::size_t k> VONKK3_INLINE Byte *at() const {
        return first + (k == 3 ? thrice : std::ptrdiff_t(k) * stride);
    }
    VONKK3_INLINE void advance() { first += stride; }
    VONKK3_INLINE void advanceByFour() { first += fourfold; }
};

template <class Operation, class... Sources>
VONKK3_INLINE void streamStrided(const Operation &operation, std::size_t objects, StridedElements<std::byte> d,
                                 Sources... sources) {
    for (; objects >= 4; objects -= 4) {
        forEachBelow<4>([&](auto k) VONKK3_INLINED {
            storeAt<Real32>(d.template at<k>(), operation(loadAt<Real32>(sources.template at<k>())...));
            keepLoopPlain();
        });
        d.advanceByFour(), (sources.advanceByFour(), ...);
    }
    for (; objects != 0; --objects) {
        storeAt<Real32>(d.first, operation(loadAt<Real32>(sources.first)...));
        keepLoopPlain();
        d.advance(), (sources.advance(), ...);
    }
}

// A source at the position; contiguous over the objects, or single.
struct PositionSource {
    const std::byte *address;
    bool isArray;
};

template <class Operation>
VONKK3_INLINE void streamPosition(const Operation &operation, std::byte *d, std::size_t objects,
                                  const PositionSource &a) {
    streamInLanes(operation, d, objects, ContiguousSource{a.address});
}

template <class Operation>
VONKK3_INLINE void streamPosition(const Operation &operation, std::byte *d, std::size_t objects,
                                  const PositionSource &a, const PositionSource &b) {
    const ContiguousSource first{a.address}, second{b.address};
    if (!a.isArray) streamInLanes(operation, d, objects, BroadcastSource(a.address), second);
    else if (!b.isArray) streamInLanes(operation, d, objects, first, BroadcastSource(b.address));
    else streamInLanes(operation, d, objects, first, second);
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// Where positions share cache lines, so many objects are worked at one of them before the next one's turn as stay in
// the first-level cache.
inline constexpr std::size_t bytesPerBlock = 1 << 13;
inline std::size_t objectsPerBlock(std::ptrdiff_t objectStride, std::size_t count) {
    const Address stride = magnitudeOf(objectStride) | 1;
    if (stride * count <= bytesPerBlock) return count; // a division takes as long as dozens of elements
    const std::size_t objects = bytesPerBlock / std::size_t(stride);
    return objects < 16 ? 16 : objects;
}

// Ranges that are too short for a loop of their own.
inline constexpr std::size_t leastRange = 12;

inline const std::byte *sourceAt(const ObjectsView &view, std::size_t i, std::size_t j, std::size_t n) {
    return reinterpret_cast<const std::byte *>(view.addressOf(i, j) + std::uintptr_t(strides(n, view.objectStride)));
}
inline std::byte *targetAt(const ObjectsView &view, std::size_t i, std::size_t j, std::size_t n) {
    return const_cast<std::byte *>(sourceAt(view, i, j, n));
}

// The range that is contiguous in all operands: elements of a row, or of so many rows, or of all objects.
struct CommonRange {
    std::size_t elements, rows, objects;

    template <class... Views> VONKK3_INLINE explicit CommonRange(const ObjectsView &d, const Views &...sources) {
        const auto all = [&](const auto &test) VONKK3_INLINED { return test(d) && (test(sources) && ...); };
        elements = rows = objects = 1;
        if (!all([](const ObjectsView &view) { return view.hasContiguousRows(); })) return;
        elements = d.columns;
        const auto step = [&] { return std::ptrdiff_t(elements * sizeof(Real32)); };
        if (d.rows > 1 && !all([&](const ObjectsView &view) { return view.rowStride == step(); })) return;
        elements *= rows = d.rows;
        if (!all([&](const ObjectsView &view) { return view.objectStride == step(); })) return;
        elements *= objects = d.count;
    }
};

template <class... Views> VONKK3_INLINE bool mayStream(const ObjectsView &d, const Views &...sources) {
    return Aliasing(d.count, writes(d), readsInPlace(sources)...).allowsBatch(0, d.count);
}

// All objects of arrays that are neither lists nor tables; false, with nothing done, where overlap might show the
// order, or where ranges are not long enough to make it worth it.
template <class Operation, class... Views>
VONKK3_SHARED bool streamRanges(const Operation &shared, const ObjectsView &d, const Views &...sources) {
    const Operation operation = shared; // a local copy stays in registers
    const CommonRange range(d, sources...);
    if (range.elements < leastRange || !mayStream(d, sources...)) return false;
    for (std::size_t n = 0; n < d.count; n += range.objects)
        for (std::size_t i = 0; i < d.rows; i += range.rows)
            streamPosition(operation, targetAt(d, i, 0, n), range.elements,
                           PositionSource{sourceAt(sources, i, 0, n), true}...);
    return true;
}

// The same where one of them is a table: position by position.
template <class Operation, class... Views>
VONKK3_SHARED bool streamPositions(const Operation &shared, const ObjectsView &d, const Views &...sources) {
    if (!mayStream(d, sources...)) return false;
    const Operation operation = shared;
    const auto isContiguous = [](const ObjectsView &view) {
        return !view.isArray || view.objectStride == std::ptrdiff_t(sizeof(Real32));
    };
    const bool areContiguous = isContiguous(d) && (isContiguous(sources) && ...);
    const std::size_t count = d.count, block = areContiguous ? count : objectsPerBlock(d.objectStride, count);
    for (std::size_t n = 0; n < count; n += block) {
        const std::size_t objects = count - n < block ? count - n : block;
        for (std::size_t i = 0; i < d.rows; ++i)
            for (std::size_t j = 0; j < d.columns; ++j) {
                std::byte *const target = targetAt(d, i, j, n);
                if (areContiguous)
                    streamPosition(operation, target, objects,
                                   PositionSource{sourceAt(sources, i, j, n), sources.isArray}...);
                else
                    streamStrided(
                        operation, objects, StridedElements<std::byte>{target, d.objectStride},
                        StridedElements<const std::byte>{sourceAt(sources, i, j, n), sources.objectStride}...);
            }
    }
    return true;
}

// The positions of a table, one after the other, in the shape of the result.
struct PositionsInOrder {
    std::uintptr_t row, entry, shift;
    std::size_t rowStep, elementStep;

    template <class Table> VONKK3_INLINE explicit PositionsInOrder(const Table &table) {
        constexpr bool isTransposed = areOfTransposedTable<Table>;
        const std::size_t ofRow = std::uint32_t(table.elementStride) * sizeof(void *);
        row = entry = table.begin;
        shift = std::uintptr_t(std::ptrdiff_t(table.rowStride));
        rowStep = isTransposed ? sizeof(void *) : ofRow;
        elementStep = isTransposed ? ofRow : sizeof(void *);
    }
    VONKK3_INLINE std::byte *next() {
        const std::uintptr_t position = ObjectsView::pointerAt(entry) + shift;
        entry += elementStep;
        return reinterpret_cast<std::byte *>(position);
    }
    VONKK3_INLINE void nextRow() { entry = row += rowStep; }
};

// Those of a table without gaps that is not transposed.
struct AdjacentPositions {
    std::uintptr_t begin, shift;

    VONKK3_INLINE explicit AdjacentPositions(const OperandWords &table)
        : begin(table.begin), shift(std::uintptr_t(std::ptrdiff_t(table.rowStride))) {}
    VONKK3_INLINE std::byte *at(std::size_t k) const {
        return reinterpret_cast<std::byte *>(ObjectsView::pointerAt(begin + k * sizeof(void *)) + shift);
    }
    // Whether so many positions, each so many bytes or more beyond the one before it, are exactly that.
    VONKK3_INLINE bool areContiguous(std::size_t positions, std::size_t bytes) const {
        return std::size_t(at(positions - 1) - at(0)) == (positions - 1) * bytes;
    }
};

// The usual case of it, tables alone. False, with nothing done, where a look at the words does not show that they are
// independent and that no entry is null.
template <class Operation, class Rows, class Columns, class Destination, class... Sources>
VONKK3_INLINE bool streamPlainTables(const Operation &shared, Rows rows, Columns columns, std::size_t count,
                                     const Destination &dst, const Sources &...src) {
    if (!arePlainlyIndependent<true>(rows, columns, count, dst, src...)) return false;
    const Operation operation = shared;
    constexpr bool isAnyTransposed = areOfTransposedTable<Destination> || (areOfTransposedTable<Sources> || ...);
    std::size_t positions = std::size_t(rows) * columns;
    const auto forEachPosition = [&](const auto &work) VONKK3_INLINED {
        if constexpr (isAnyTransposed) {
            const auto walk = [&](auto d, auto... sources) VONKK3_INLINED {
                for (std::size_t i = 0; i < rows; ++i) {
                    for (std::size_t j = 0; j < columns; ++j) work(d.next(), sources.next()...);
                    d.nextRow(), (sources.nextRow(), ...);
                }
            };
            walk(PositionsInOrder(dst), PositionsInOrder(src)...);
        } else {
            const auto walk = [&](auto d, auto... sources) VONKK3_INLINED {
                for (std::size_t k = 0; k < positions; ++k) work(d.at(k), sources.at(k)...);
            };
            walk(AdjacentPositions(dst), AdjacentPositions(src)...);
        }
    };
    if (arePacked(dst) && (arePacked(src) && ...)) {
        if (sizeof...(src) == 1 || (src.isArray && ...)) {
            std::size_t elements = count;
            const auto areContiguous = [&](const auto &table) VONKK3_INLINED {
                return AdjacentPositions(table).areContiguous(positions, count * sizeof(Real32));
            };
            if (!isAnyTransposed && areContiguous(dst) && (areContiguous(src) && ...))
                elements *= positions, positions = 1; // all of it is one range
            forEachPosition([&](std::byte *target, const auto *...first) VONKK3_INLINED {
                streamInLanes(operation, target, elements, ContiguousSource{first}...);
            });
        } else
            forEachPosition([&](std::byte *target, const auto *...first) VONKK3_INLINED {
                streamPosition(operation, target, count, PositionSource{first, src.isArray}...);
            });
        return true;
    }
    const auto stride = [](const OperandWords &table) { return table.isArray ? std::ptrdiff_t(table.step) : 0; };
    const std::size_t block = objectsPerBlock(dst.step, count);
    for (std::size_t n = 0; n < count; n += block)
        forEachPosition([&](std::byte *target, const auto *...first) VONKK3_INLINED {
            streamStrided(operation, count - n < block ? count - n : block,
                          StridedElements<std::byte>{target + strides(n, dst.step), dst.step},
                          StridedElements<const std::byte>{first + strides(n, stride(src)), stride(src)}...);
        });
    return true;
}

// Of run-time size, in one body for all.
template <class Operation, class Destination, class... Sources>
VONKK3_SHARED bool streamTables(const Operation &operation, std::size_t rows, std::size_t columns, std::size_t count,
                                const Destination &dst, const Sources &...src) {
    return streamPlainTables(operation, rows, columns, count, dst, src...);
}

// Of vectors of a fixed length, packed behind every position, which the caller knows, and so the alias test does.
template <class Operation, class Length, class Destination, class... Sources>
VONKK3_SHARED bool streamVectors(const Operation &operation, Length length, std::size_t count, const Destination &dst,
                                 const Sources &...src) {
    const auto packed = [](auto words) VONKK3_INLINED {
        words.step = sizeof(Real32), words.isArray = true;
        return words;
    };
    return streamPlainTables(operation, fixed<1>, length, count, packed(dst), packed(src)...);
}
inline constexpr std::size_t worthStreamingTables = 12, worthStreamingStrided = 48; // objects

// Fewer objects are done before the alias test is answered and the first position is set up. Positions gain more where
// they are contiguous.
template <bool throughTable> VONKK3_INLINE bool isWorthStreaming(std::ptrdiff_t objectStride, std::size_t count) {
    if constexpr (!throughTable) return count >= 16;
    else return count >= (objectStride == std::ptrdiff_t(sizeof(Real32)) ? 24 : 128);
}

// Into packed objects, where it is worth it.
template <class Operation, class T, class Source>
VONKK3_INLINE bool streamPacked(const Operation &operation, std::size_t rows, std::size_t columns, std::size_t count,
                                T *dst, const Source &source) {
    if constexpr (Source::isArray && !Source::isList && std::is_same_v<T, Real32>) {
        if (!isWorthStreaming<Source::isTable>(source.objectSpacing(), count)) return false;
        ObjectsView packed = packedBlocks(dst, rows * columns, count);
        packed.rowStride = std::ptrdiff_t(columns * sizeof(T));
        packed.rows = std::uint32_t(rows);
        packed.columns = std::uint32_t(columns);
        const ObjectsView objects = objectsOf(source, rows, columns, count);
        if constexpr (Source::isTable) return streamPositions(operation, packed, objects);
        else return streamRanges(operation, packed, objects);
    } else return false;
}

// ---- The plain path of run-time sizes -------------------------------------------------------------------------------

// work(columns), with the usual numbers of columns known to the compiler. Real64 is no faster for it.
template <class T, class Columns, class Work> VONKK3_INLINE auto withFixedColumns(Columns columns, const Work &work) {
    if constexpr (std::is_same_v<T, Real32> && !Columns::isFixed) switch (columns.extent) {
        case 3: return work(fixed<3>);
        case 4: return work(fixed<4>);
        case 5: return work(fixed<5>);
        case 6: return work(fixed<6>);
        default: break;
        }
    return work(columns);
}

} // namespace vonkk3
