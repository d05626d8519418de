// Objects in all six memory layouts as a plain loop sees them, and the loops over them: object by object, and for
// tables of positions also across objects. The order is known when compiling; strides, tables and lists are not.
#pragma once

#include "peers/unroll.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace bench {

enum class Layout { standard, S2, P, PS2, L, LS2 };

constexpr bool isTable(Layout layout) { return layout == Layout::P || layout == Layout::PS2; }
constexpr bool isList(Layout layout) { return layout == Layout::L || layout == Layout::LS2; }
constexpr bool isWorkedInPairs(Layout layout) { return layout == Layout::standard || layout == Layout::L; }
constexpr bool hasElementStride(Layout layout) { return layout == Layout::S2 || layout == Layout::LS2; }

enum class Extent {
    array,  // an object for each n, laid out as the row's layout says
    single, // one object for all n
    packed  // results without strides: adjacent objects of adjacent elements in every layout
};

// A vector is one row.
struct Shape {
    std::size_t rows, columns;
    Extent extent = Extent::array;
    bool isVector = false;
    constexpr std::size_t elements() const { return rows * columns; }
};

constexpr Shape matrix(std::size_t order, Extent extent = Extent::array) { return {order, order, extent, false}; }
constexpr Shape vector(std::size_t length, Extent extent = Extent::array) { return {1, length, extent, true}; }
constexpr Shape result() { return {1, 1, Extent::packed, false}; }

// What only running tells of an operand; strides in bytes.
struct Place {
    float *start;
    float *const *table; // an entry for each position or object
    std::size_t object, row, element;
};

// What a job has beside its operands.
struct Extra {
    float first, second; // factors
    std::uint32_t *pivots;
    std::size_t rows, columns; // of jobs whose sizes are known at run time only
};

namespace plain {

// Products of an index and a stride are made without a sign, which changes no address: a signed product that might
// overflow keeps compilers from seeing that a pointer moves in equal steps.
[[gnu::always_inline]] inline float *step(float *from, std::size_t bytes) {
    return reinterpret_cast<float *>(reinterpret_cast<char *>(from) + bytes);
}

// ---- One object -----------------------------------------------------------------------------------------------------

// A local copy: a single operand, loaded ahead of the loop, or a result that is not stored yet.
template <Shape shape> struct Held {
    float elements[shape.elements()];
    [[gnu::always_inline]] float operator()(std::size_t i, std::size_t j) const {
        return elements[i * shape.columns + j];
    }
    [[gnu::always_inline]] float &operator()(std::size_t i, std::size_t j) { return elements[i * shape.columns + j]; }
};

template <Layout layout> struct StridedView {
    float *start;
    std::size_t row, element;
    [[gnu::always_inline]] float &operator()(std::size_t i, std::size_t j) const {
        float *const atRow = i == 0 ? start : step(start, i * row);
        if constexpr (hasElementStride(layout)) return *step(atRow, j * element);
        else return atRow[j];
    }
};

template <Shape shape> struct PackedView {
    float *start;
    [[gnu::always_inline]] float &operator()(std::size_t i, std::size_t j) const {
        return start[i * shape.columns + j];
    }
};

template <Shape shape> struct TableView {
    float *const *pointers;
    std::size_t offset;
    [[gnu::always_inline]] float &operator()(std::size_t i, std::size_t j) const {
        return *step(pointers[i * shape.columns + j], offset);
    }
};

// ---- An operand, opened for a loop over its objects -----------------------------------------------------------------

template <Layout layout, Shape shape> class Opened {
    static constexpr bool isArrayOfTable = isTable(layout) && shape.extent == Extent::array;

public:
    [[gnu::always_inline]] explicit Opened(const Place &at) : place(at) {
        if constexpr (isArrayOfTable)
            // One by one: of a loop the compiler makes a call of memcpy, and then reads pointers from memory for ever.
            [&]<std::size_t... k>(std::index_sequence<k...>) { ((pointers[k] = at.table[k]), ...); }
        (std::make_index_sequence<shape.elements()>());
        else if constexpr (shape.extent == Extent::single) for (std::size_t i = 0; i < shape.rows;
                                                                ++i) for (std::size_t j = 0; j < shape.columns; ++j) {
            if constexpr (isTable(layout)) held(i, j) = *at.table[i * shape.columns + j];
            else held(i, j) = StridedView<layout>{at.start, at.row, at.element}(i, j);
        }
    }

    [[gnu::always_inline]] auto object(std::size_t n) const {
        if constexpr (shape.extent == Extent::packed) return PackedView<shape>{place.start + n * shape.elements()};
        else if constexpr (shape.extent == Extent::single) return held;
        else if constexpr (layout == Layout::P) return TableView<shape>{pointers, n * sizeof(float)};
        else if constexpr (layout == Layout::PS2) return TableView<shape>{pointers, n * place.object};
        else if constexpr (isList(layout)) return StridedView<layout>{place.table[n], place.row, place.element};
        else return StridedView<layout>{step(place.start, n * place.object), place.row, place.element};
    }

private:
    struct Nothing {};
    Place place;
    std::conditional_t<isArrayOfTable, float * [shape.elements()], Nothing> pointers;
    std::conditional_t<shape.extent == Extent::single, Held<shape>, Nothing> held;
};

// ---- Loops ----------------------------------------------------------------------------------------------------------

// A kernel has `shapes`, the result's last, `order`-like sizes in its types, and `parts` steps:
//
//     work<part, isAcross>(extra, n, d, sources...)
//
// writes part of d(i, j) and returns 0, or something else if the object failed. `isAcross` says that it stands in a
// loop that compilers shall put into lanes, so that it may neither branch nor index by what it has loaded.
enum class Way {
    objectByObject,
    acrossObjects, // the loop over objects is the innermost one; all parts in it
    partByPart     // the same, one loop for each part
};

template <class Kernel> constexpr bool isStored(std::size_t i, std::size_t j) {
    if constexpr (requires { Kernel::isStored(i, j); }) return Kernel::isStored(i, j);
    else return true;
}

template <class Kernel, bool isAcross, class Destination, class... Sources, std::size_t... part>
[[gnu::always_inline]] inline std::uint32_t workOne(const Extra &extra, std::size_t n, std::index_sequence<part...>,
                                                    const Destination &destination, const Sources &...sources) {
    constexpr Shape shape = Kernel::shapes.back();
    Held<shape> d;
    const std::uint32_t failures = (Kernel::template work<part, isAcross>(extra, n, d, sources...) | ...);
    if constexpr (!isAcross)
        if (failures != 0) return failures;
    BENCH_UNROLL for (std::size_t i = 0; i < shape.rows; ++i)
        BENCH_UNROLL for (std::size_t j = 0; j < shape.columns; ++j) {
        if (isStored<Kernel>(i, j)) destination(i, j) = d(i, j);
    }
    return failures;
}

#define BENCH_INDEPENDENT _Pragma("GCC ivdep")
#ifdef __clang__
#undef BENCH_INDEPENDENT
#define BENCH_INDEPENDENT _Pragma("clang loop vectorize(assume_safety)")
#endif

template <class Kernel, Way way, std::size_t... part, class Destination, class... Sources>
[[gnu::always_inline]] inline bool loop(std::size_t count, const Extra &extra, std::index_sequence<part...> parts,
                                        const Destination &d, const Sources &...sources) {
    if constexpr (way == Way::objectByObject) {
        for (std::size_t n = 0; n < count; ++n)
            if (workOne<Kernel, false>(extra, n, parts, d.object(n), sources.object(n)...) != 0) return false;
        return true;
    } else if constexpr (way == Way::acrossObjects) {
        std::uint32_t failures = 0;
        BENCH_INDEPENDENT
        for (std::size_t n = 0; n < count; ++n)
            failures |= workOne<Kernel, true>(extra, n, parts, d.object(n), sources.object(n)...);
        return failures == 0;
    } else {
        const auto each = [&](auto index) __attribute__((always_inline)) {
            std::uint32_t failures = 0;
            BENCH_INDEPENDENT
            for (std::size_t n = 0; n < count; ++n) {
                const auto destination = d.object(n);
                failures |= Kernel::template work<index(), true>(extra, n, destination, sources.object(n)...);
            }
            return failures;
        };
        return (each(std::integral_constant<std::size_t, part>()) | ...) == 0;
    }
}

template <class Kernel, Layout layout, Way way, std::size_t... source>
[[gnu::always_inline]] inline bool walkOver(const Place *places, const Extra &extra, std::size_t count,
                                            std::index_sequence<source...>) {
    constexpr auto parts = std::make_index_sequence<Kernel::parts>();
    constexpr std::size_t last = sizeof...(source);
    return loop<Kernel, way>(count, extra, parts, Opened<layout, Kernel::shapes[last]>(places[last]),
                             Opened<layout, Kernel::shapes[source]>(places[source])...);
}

// Works `count` objects; whether all went through. Never in line: nothing of where it is called shall tell the compiler
// a stride.
template <class Kernel, Layout layout, Way way>
[[gnu::noinline]] bool walk(const Place *places, Extra extra, std::size_t count) {
    return walkOver<Kernel, layout, way>(places, extra, count, std::make_index_sequence<Kernel::shapes.size() - 1>());
}

// ---- What the loops take for granted --------------------------------------------------------------------------------

// The bytes from the first to the last of an operand that is found through a table, or is packed; and that no entry is
// null and, of a result, that positions follow one another.
struct Span {
    std::uintptr_t begin, end;
};
template <Layout layout, Shape shape, bool isResult>
[[gnu::always_inline]] inline Span spanOf(const Place &place, std::size_t count, bool &isSafe) {
    const auto at = [](const float *p) { return reinterpret_cast<std::uintptr_t>(p); };
    if constexpr (shape.extent == Extent::packed)
        return {at(place.start), at(place.start) + count * shape.elements() * sizeof(float)};
    else {
        const std::size_t step = layout == Layout::P ? sizeof(float) : place.object;
        const std::size_t bytes = (shape.extent == Extent::array ? (count - 1) * step : 0) + sizeof(float);
        Span span{at(place.table[0]), at(place.table[0])};
        std::uintptr_t before = at(place.table[0]) - bytes;
        for (std::size_t k = 0; k < shape.elements(); ++k) {
            const std::uintptr_t position = at(place.table[k]);
            isSafe &= position != 0;
            if constexpr (isResult) isSafe &= position - before >= bytes;
            span.begin = position < span.begin ? position : span.begin;
            span.end = position > span.end ? position : span.end;
            before = position;
        }
        span.end += bytes;
        return span;
    }
}

// Whether a call may work its objects as the loops above do: what it must find out first if it is told nothing of its
// operands. Through lists, object after object, that is whether an entry is null.
template <class Kernel, Layout layout> [[gnu::noinline]] bool mayWork(const Place *places, std::size_t count) {
    return [&]<std::size_t... source>(std::index_sequence<source...>) {
        constexpr std::size_t result = sizeof...(source);
        bool isSafe = true;
        if constexpr (isList(layout)) {
            const auto isNull = [&]<std::size_t k>(std::size_t n) {
                return Kernel::shapes[k].extent == Extent::array && places[k].table[n] == nullptr;
            };
            for (std::size_t n = 0; n < count; ++n)
                if ((isNull.template operator()<source>(n) || ...) || isNull.template operator()<result>(n))
                    return false;
        } else {
            const Span written = spanOf<layout, Kernel::shapes[result], true>(places[result], count, isSafe);
            const auto look = [&]<std::size_t k>() {
                const Span read = spanOf<layout, Kernel::shapes[k], false>(places[k], count, isSafe);
                isSafe &= read.end <= written.begin || written.end <= read.begin;
            };
            (look.template operator()<source>(), ...);
        }
        return isSafe;
    }
    (std::make_index_sequence<Kernel::shapes.size() - 1>());
}

} // namespace plain
} // namespace bench
