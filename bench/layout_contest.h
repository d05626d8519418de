// Rows of one function in any memory layout: operands in memory, the words that a call has for them, and contests of
// the library with plain loops over the same memory.
//
//     standard, L   packed
//     S2, LS2       every second element; one element more between rows, and one between objects
//     P             a run of `count` elements for each position, 48 elements between runs: without them, runs of 2,048
//                   would begin at the same place of a page, and compete for the same lines of the first-level cache
//     PS2           the same with every second element
//
// Lists are in ascending order of addresses.
#pragma once

#include "contest.h"
#include "data.h"
#include "peers/layout_views.h"

#include <vonkk3.h>

#include <algorithm>
#include <deque>
#include <tuple>
#include <type_traits>

namespace bench {

// One piece of memory for all operands of a row, so that shifts of 32 bits reach from one to another. Each begins at
// another place of a page, as separate buffers do.
class Arena {
public:
    explicit Arena(std::size_t size) : memory(size, 0) { memory.fill(1); }
    float *take(std::size_t size) {
        float *const start = memory.data() + used + taken * placeFloats % pageFloats;
        used += (size + 2 * pageFloats) / pageFloats * pageFloats;
        ++taken;
        return start;
    }
    static constexpr std::size_t pageFloats = 1024, placeFloats = 17 * 16;

private:
    Buffer<float> memory;
    std::size_t used = 0, taken = 0;
};

class Operand {
public:
    // After the objects, and in table entries after the positions, lie ones: vonkLUDecomp tests as the last pivot of
    // object n an element that is displaced by n rows.
    Operand(Arena &arena, Layout layout, Shape shape, std::size_t count)
        : count(shape.extent == Extent::single ? 1 : count), layout(layout), shape(shape),
          memory(arena.take(sizeOf(layout, shape, this->count))) {
        constexpr std::size_t size = sizeof(float);
        const bool isApart = hasElementStride(layout) && shape.extent != Extent::packed;
        const bool isRuns = isTable(layout) && shape.extent == Extent::array;
        element = std::int32_t(isApart ? 2 * size : size);
        row = std::int32_t(isApart ? (2 * shape.columns + 1) * size : shape.columns * size);
        object = std::int32_t(!isRuns ? shape.rows * std::size_t(row) + (isApart ? size : 0) : stepOf(layout) * size);
        if (isTable(layout) && shape.extent != Extent::packed) {
            const std::size_t run = isRuns ? runOf(layout, count) : 1;
            for (std::size_t k = 0; k < shape.elements(); ++k) table.push_back(memory + k * run);
            if (isRuns) table.resize(table.size() + count * shape.rows, arena.take(2 * count));
        } else
            for (std::size_t n = 0; n < this->count; ++n) table.push_back(plain::step(memory, n * std::size_t(object)));
    }

    float &at(std::size_t n, std::size_t i, std::size_t j) {
        if (isTable(layout) && shape.extent != Extent::packed)
            return *plain::step(table[i * shape.columns + j],
                                shape.extent == Extent::array ? n * std::size_t(object) : 0);
        return *plain::step(table[n], i * std::size_t(row) + j * std::size_t(element));
    }
    template <class Function> void forEach(Function function) { // of n, i, j and the element
        for (std::size_t n = 0; n < count; ++n)
            for (std::size_t i = 0; i < shape.rows; ++i)
                for (std::size_t j = 0; j < shape.columns; ++j) function(n, i, j, at(n, i, j));
    }
    void fillRandomly(std::uint32_t seed) { // with the same objects in every layout
        Buffer<float> values(count * shape.elements(), 0);
        values.fillRandomly(seed);
        std::size_t next = 0;
        forEach([&](auto, auto, auto, float &value) { value = values[next++]; });
    }
    void fill(float value) {
        forEach([=](auto, auto, auto, float &each) { each = value; });
    }
    Values values() {
        Values all;
        forEach([&](auto, auto, auto, float each) { all.push_back(double(each)); });
        return all;
    }

    float *start() { return memory; }
    Place asPlace() { return {memory, table.data(), std::size_t(object), std::size_t(row), std::size_t(element)}; }

    // What an operand takes from its arena, at most.
    static std::size_t claim(Layout layout, Shape shape, std::size_t count) {
        return sizeOf(layout, shape, count) + 2 * count + 4 * Arena::pageFloats;
    }

    std::size_t count;
    std::vector<float *> table; // of positions or objects
    std::int32_t shift = 0, object, row, element;

private:
    static constexpr std::size_t gap = 48;
    static std::size_t stepOf(Layout layout) { return layout == Layout::PS2 ? 2 : 1; }
    static std::size_t runOf(Layout layout, std::size_t count) { return stepOf(layout) * count + gap; }
    static std::size_t sizeOf(Layout layout, Shape shape, std::size_t count) {
        if (shape.extent == Extent::packed) return count * shape.elements();
        if (isTable(layout) && shape.extent == Extent::array) return shape.elements() * runOf(layout, count);
        const std::size_t element = hasElementStride(layout) ? 2 : 1;
        // and as many rows as there are objects, see above
        return count * (shape.rows * (element * shape.columns + 1) + 1) + 2 * (count + 1) * shape.columns;
    }

    Layout layout;
    Shape shape;
    float *memory;
};

// ---- The words of a call --------------------------------------------------------------------------------------------

template <Layout layout, Shape shape> auto words(Operand &o) {
    constexpr bool isArray = shape.extent == Extent::array;
    if constexpr (shape.extent == Extent::packed) return std::tuple(o.start());
    else if constexpr (isTable(layout)) {
        const auto common = std::tuple(o.table.data(), o.shift);
        if constexpr (layout == Layout::PS2 && isArray) return std::tuple_cat(common, std::tuple(o.object));
        else return common;
    } else {
        const auto first = [&] {
            if constexpr (!isArray) return std::tuple(o.start());
            else if constexpr (isList(layout)) return std::tuple(o.table.data(), o.shift);
            else return std::tuple(o.start(), o.object);
        }();
        const auto rows = [&] {
            if constexpr (shape.isVector) return std::tuple();
            else return std::tuple(o.row);
        }();
        const auto elements = [&] {
            if constexpr (hasElementStride(layout)) return std::tuple(o.element);
            else return std::tuple();
        }();
        return std::tuple_cat(first, rows, elements);
    }
}

// ---- A row's data ---------------------------------------------------------------------------------------------------

// Sources and result of a kernel. Where peers leave factors of their own, these are `own`, and so are their pivots.
template <Layout layout, class Kernel> struct LayoutData {
    static constexpr auto &shapes = Kernel::shapes;
    static constexpr std::size_t sources = shapes.size() - 1;
    static constexpr std::size_t objectSize = 8; // of a decomposition's permutation and work space, at most

    std::size_t count;
    Arena arena;
    std::deque<Operand> operands;
    Operand own;
    Buffer<std::uint32_t> pivots, ownPivots;
    Buffer<float> work;
    Extra extra{0.75F, -1.25F, nullptr, shapes.back().rows, shapes.back().columns};
    VonkStatus status = vonkOk;
    bool isSafe = false;
    std::array<Place, sources + 1> places; // as peers have them

    explicit LayoutData(std::size_t count)
        : count(count), arena((sources + 2) * Operand::claim(layout, matrix(widest()), count)),
          own(arena, layout, matrix(shapes[0].columns), count), pivots(count * objectSize, 6),
          ownPivots(count * objectSize, 7), work(objectSize, 8) {
        for (std::size_t k = 0; k <= sources; ++k) {
            operands.emplace_back(arena, layout, shapes[k], count);
            if (k < sources) operands[k].fillRandomly(std::uint32_t(k + 1));
        }
        for (std::size_t k = 0; k <= sources; ++k) places[k] = operands[k].asPlace();
        extra.pivots = ownPivots.data();
        spoil();
    }
    void spoil() { operands.back().fill(1e30F); }
    Operand &destination() { return operands.back(); }

    static constexpr std::size_t widest() {
        std::size_t columns = 0;
        for (const Shape &shape : shapes) columns = std::max(columns, shape.columns);
        return columns;
    }
    template <std::size_t k> auto wordsOf() { return words<layout, shapes[k]>(operands[k]); }
};

// ---- Rows -----------------------------------------------------------------------------------------------------------

// What a family of functions does: its kernel, the words of its call, what data it wants, how results are compared.
// This is the common case.
template <Layout layout, class KernelOfFamily> struct Family {
    using Kernel = KernelOfFamily;
    using Data = LayoutData<layout, Kernel>;
    using Count = std::uint32_t;
    static constexpr Agreement agreement = Agreement::bits;

    static constexpr bool branchesOnData = false;

    static void prepare(Data &) {}
    static void spoil(Data &data) { data.spoil(); }

    // The words of a call that stand after those of an operand.
    static auto afterFirst(Data &) { return std::tuple(); }
    static auto afterSecond(Data &) { return std::tuple(); }
    static auto afterResult(Data &) { return std::tuple(); }

    static Values results(Data &data) { return data.destination().values(); }
    static Values peerResults(Data &data) { return data.destination().values(); }
    static std::string complaint(Data &, const Values &, const Values &) {
        return "contestants of one rounding need no other comparison";
    }
    static auto others() { return std::tuple(); } // further peers
};

template <class KernelOfPeer> struct Other {
    using Kernel = KernelOfPeer;
    const char *name;
    Agreement agreement;
};

// All words of a call.
template <class F> auto callWords(typename F::Data &data) {
    if constexpr (requires { F::words(data); }) return F::words(data);
    else return [&]<std::size_t... k>(std::index_sequence<k...>) {
            const auto after = [&](auto index) {
                if constexpr (index() == 0) return F::afterFirst(data);
                else if constexpr (index() == 1 && index() < F::Data::sources) return F::afterSecond(data);
                else return std::tuple();
            };
            return std::tuple_cat(
                std::tuple_cat(data.template wordsOf<k>(), after(std::integral_constant<std::size_t, k>()))...,
                F::afterResult(data), std::tuple(typename F::Count(data.count)));
        }
    (std::make_index_sequence<F::Data::sources + 1>());
}

template <Layout layout, class Kernel, class Data, class Results>
void addPlain(Contest &contest, const std::string &name, Agreement agreement, Data *data, Results results) {
    const auto enter = [&](const std::string &suffix, auto walk) {
        contest.contestants.push_back({name + suffix, agreement,
                                       repeated([=] { walk(data->places.data(), data->extra, data->count); }),
                                       results});
    };
    enter("", plain::walk<Kernel, layout, plain::Way::objectByObject>);
    if constexpr (isTable(layout)) {
        enter(", across objects", plain::walk<Kernel, layout, plain::Way::acrossObjects>);
        if constexpr (Kernel::parts > 1) enter(", part by part", plain::walk<Kernel, layout, plain::Way::partByPart>);
    }
}

template <Layout layout, class F, class Call> Contest layoutContest(std::size_t count, Call call) {
    const auto shared = std::make_shared<typename F::Data>(count);
    auto *const data = shared.get();
    F::prepare(*data);
    Contest contest{
        "objects",
        count,
        shared,
        [=] { F::spoil(*data); },
        [=](auto &expected, auto &found) { return F::complaint(*data, expected, found); },
        {{"library", Agreement::bits, repeated([=] { data->status = std::apply(call, callWords<F>(*data)); }),
          [=] { return data->status == vonkOk ? F::results(*data) : Values(); }}}};
    const auto peerResults = [=] { return F::peerResults(*data); };
    if constexpr (requires { F::addPeers(contest, data, peerResults); }) F::addPeers(contest, data, peerResults);
    else
        addPlain<layout, typename F::Kernel>(contest,
                                             F::agreement == Agreement::bits ? "plain" : "plain, rounds otherwise",
                                             F::agreement, data, peerResults);
    std::apply(
        [&](auto... other) {
            (addPlain<layout, typename decltype(other)::Kernel>(contest, other.name, other.agreement, data,
                                                                peerResults),
             ...);
        },
        F::others());
    if constexpr (isTable(layout) || isList(layout))
        contest.contestants.push_back({testsOfOperands, Agreement::none, repeated([=] {
                                           data->isSafe = plain::mayWork<typename F::Kernel, layout>(
                                               data->places.data(), data->count);
                                       }),
                                       nullptr});
    if constexpr (F::branchesOnData) contest.renew = [=](std::uint32_t seed) { data->operands[0].fillRandomly(seed); };
    return contest;
}

inline constexpr std::size_t layoutCounts[] = {64, 2048};

// Where there is a row of that name already, of peers who know all strides when compiling, this one says what is new.
inline void addRows(Rows &rows, const std::string &function, const char *remark, bool isOptional,
                    const std::function<Contest(std::size_t)> &prepare) {
    for (const std::size_t count : layoutCounts) {
        const auto isTaken = [&](const std::string &name) {
            return std::any_of(rows.begin(), rows.end(), [&](const Row &row) { return row.name == name; });
        };
        std::string name = function + "/" + std::to_string(count);
        if (isTaken(name)) {
            if (isOptional) continue;
            name = function + remark + "/" + std::to_string(count);
        }
        rows.push_back({name, [=] { return prepare(count); }});
    }
}

// A function of a family.
template <Layout layout, class F, class Call>
void addLayoutRow(Rows &rows, const std::string &function, bool isOptional, Call call) {
    constexpr const char *remark = isTable(layout) ? " (gaps)" : " (strides at run time)";
    addRows(rows, function, remark, isOptional,
            [=](std::size_t count) { return layoutContest<layout, F>(count, call); });
}

// The six functions of a family, and those of other orders in the standard layout unless they have rows already.
// FAMILY<layout, order> is what it does.
#define BENCH_SIX_LAYOUTS(ROWS, FAMILY, ORDER, FUNCTION)                                                               \
    addLayoutRow<Layout::standard, FAMILY<Layout::standard, ORDER>>(ROWS, #FUNCTION, false, FUNCTION);                 \
    addLayoutRow<Layout::S2, FAMILY<Layout::S2, ORDER>>(ROWS, #FUNCTION "_S2", false, FUNCTION##_S2);                  \
    addLayoutRow<Layout::P, FAMILY<Layout::P, ORDER>>(ROWS, #FUNCTION "_P", false, FUNCTION##_P);                      \
    addLayoutRow<Layout::PS2, FAMILY<Layout::PS2, ORDER>>(ROWS, #FUNCTION "_PS2", false, FUNCTION##_PS2);              \
    addLayoutRow<Layout::L, FAMILY<Layout::L, ORDER>>(ROWS, #FUNCTION "_L", false, FUNCTION##_L);                      \
    addLayoutRow<Layout::LS2, FAMILY<Layout::LS2, ORDER>>(ROWS, #FUNCTION "_LS2", false, FUNCTION##_LS2);
#define BENCH_OTHER_ORDER(ROWS, FAMILY, ORDER, FUNCTION)                                                               \
    addLayoutRow<Layout::standard, FAMILY<Layout::standard, ORDER>>(ROWS, #FUNCTION, true, FUNCTION);
#define BENCH_VECTOR_FAMILY(ROWS, FAMILY, NAME)                                                                        \
    BENCH_SIX_LAYOUTS(ROWS, FAMILY, 4, NAME##_4x1)                                                                     \
    BENCH_OTHER_ORDER(ROWS, FAMILY, 3, NAME##_3x1)                                                                     \
    BENCH_OTHER_ORDER(ROWS, FAMILY, 5, NAME##_5x1)                                                                     \
    BENCH_OTHER_ORDER(ROWS, FAMILY, 6, NAME##_6x1)
#define BENCH_MATRIX_FAMILY(ROWS, FAMILY, NAME)                                                                        \
    BENCH_SIX_LAYOUTS(ROWS, FAMILY, 4, NAME##_4x4)                                                                     \
    BENCH_OTHER_ORDER(ROWS, FAMILY, 3, NAME##_3x3)                                                                     \
    BENCH_OTHER_ORDER(ROWS, FAMILY, 5, NAME##_5x5)                                                                     \
    BENCH_OTHER_ORDER(ROWS, FAMILY, 6, NAME##_6x6)

} // namespace bench
