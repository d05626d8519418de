// Matrices whose element (i, j) is made of the elements (i, j) of the sources: a + b, a - b and a c for a constant c. A
// forward walk over objects, rows and columns, but for the Real32 forms of fixed order in lanes. Some of those have
// ways of their own: two groups run one object ahead, one of them takes its strides from the wrong operand, and three
// differences make some elements of the wrong ones.
#include "model/families.h"
#include "model/overlaps.h"
#include "model/sums.h"

#include <algorithm>
#include <utility>

namespace model {

namespace {

// Of the difference of two transposed arrays in lanes, order 6: the row and column, as stored, of the elements that the
// element in this place is made of.
constexpr const char *strayCells[6][6] = {
    {"00", "04", "20", "24", "40", "44"}, //
    {"01", "05", "21", "25", "41", "45"}, //
    {"02", "14", "22", "34", "42", "54"}, //
    {"02", "14", "22", "34", "42", "54"}, //
    {"10", "12", "30", "32", "50", "52"}, //
    {"11", "13", "31", "33", "51", "53"},
};

using Formula = std::function<Wide(const Numbers &)>;

struct MatrixWalk : Execution {
    Formula formula;
    std::vector<Operand> sources;
    std::uint64_t columns = dimension("cols");
    std::uint64_t rows = dimension("rows");
    Operand dst = matrix("dst", rows, columns);
    Operands operands = {};
    Numbers held = {}; // by rows

    // Of three rows in lanes, an array on the left and a single matrix on the right.
    bool runsAhead() const {
        return hasLanes() && form.size == 3 && sources.size() == 2 && (form.group == "mam" || form.group == "mamT");
    }
    // The single matrix beside an array is loaded once, ahead of the objects, where registers hold all of it.
    bool isHeld(const Operand &source) const {
        return hasLanes() && form.size <= 4 && form.isArray() && !source.isArray();
    }

    Status objectByElements() {
        for (std::uint64_t i = 0; i < rows; ++i)
            for (std::uint64_t j = 0; j < columns; ++j) {
                const auto isNull = [&](const Operand *operand) { return testedEntryIsNull(*operand, i, j); };
                if (testsEntriesAlongTheWay() && std::ranges::any_of(operands, isNull)) return statusNullPointer;
                Numbers elements;
                for (const Operand &source : sources) elements.push_back(load(source.element(object, i, j)));
                store(dst.element(object, i, j), formula(elements));
            }
        return statusOk;
    }

    // Where an operand's share in the elements comes from, in lanes.
    Places sourcePlaces(const Operand &source, std::uint64_t n) const {
        Places places = placesOf(source, n, rows, columns);
        if (form.operation != "Sub" || form.size != 6) return places;
        if (form.group == "mTmT") std::copy_n(places.begin() + 12, 6, places.begin() + 18); // row 3 is made as row 2
        if (form.group == "maTmaT")
            for (std::uint64_t k = 0; k < 36; ++k) {
                const char *const cell = strayCells[k / 6][k % 6];
                places[k] = source.stored(n, static_cast<std::uint64_t>(cell[0] - '0'),
                                          static_cast<std::uint64_t>(cell[1] - '0'));
            }
        return places;
    }
    void holdSingle() {
        for (const Operand &source : sources)
            if (isHeld(source)) held = load(sourcePlaces(source, 0));
    }
    Numbers resultsInLanes(std::uint64_t n) const {
        std::vector<Numbers> loaded;
        for (const Operand &source : sources) loaded.push_back(isHeld(source) ? held : load(sourcePlaces(source, n)));
        Numbers results;
        for (std::size_t k = 0; k < rows * columns; ++k) {
            Numbers elements;
            for (const Numbers &one : loaded) elements.push_back(one[k]);
            results.push_back(formula(elements));
        }
        return results;
    }
    // Where rows and columns change places in registers, the order of the stores follows the shuffles; else rows
    // ascend.
    void storeInLanes(std::uint64_t n, const Numbers &results) const {
        const Places places = placesOf(dst, n, rows, columns);
        const bool isShuffled = std::ranges::any_of(sources, &Operand::isTransposed);
        markOpenIf(isShuffled && shareBytes(places, form.elementSize()));
        for (std::size_t k = 0; k < places.size(); ++k) store(places[k], results[k]);
    }
    Status objectInLanes() {
        const Places to = placesOf(dst, object, rows, columns);
        for (const Operand &source : sources)
            if (!isHeld(source))
                markOpenIf(storesOverOtherSources(to, sourcePlaces(source, object), form.elementSize()));
        storeInLanes(object, resultsInLanes(object));
        return statusOk;
    }

    // Software-pipelined: the next object is loaded whole before this one is stored, and the first before the loop. So
    // at `count` 0 one object is worked; in lists it is stored through the entry before the destination's first, since
    // the last entry, `count` - 1, is read before all others.
    Status runAhead() {
        const Operand &left = sources[0];
        const std::uint64_t last = left.isList() || count() != 0 ? std::uint64_t{count()} - 1 : 0;
        const std::uint64_t objects = std::max<std::uint64_t>(count(), 1);
        if (left.isList() && (left.entryIsNull(0) || dst.entryIsNull(last))) return statusNullPointer;
        holdSingle();
        Numbers current = resultsInLanes(0);
        for (std::uint64_t n = 0; n + 1 < objects; ++n) {
            if (anyListEntryIsNull(operands, n + 1)) return statusNullPointer;
            Numbers next = resultsInLanes(n + 1);
            storeInLanes(n, current);
            current = std::move(next);
        }
        storeInLanes(last, current);
        return statusOk;
    }

    Status run() {
        if (columns == 0 || rows == 0) return statusSize;
        for (const Operand &source : sources) operands.push_back(&source);
        operands.push_back(&dst);
        if (runsAhead()) {
            if (sources[1].isTransposed()) sources[1].rowStride = sources[0].rowStride; // its own is never looked at
            return runAhead();
        }
        if (form.isArray() && hasTables() && anyTableEntryIsNull(operands)) return statusNullPointer;
        if (count() == 0) return statusOk;
        holdSingle();
        return overObjects(operands, [&] { return hasLanes() ? objectInLanes() : objectByElements(); });
    }
};

Status walk(const Execution &execution, const std::vector<std::string> &names, const Formula &formula) {
    std::vector<Operand> sources;
    for (const std::string &name : names)
        sources.push_back(execution.matrix(name, execution.dimension("rows"), execution.dimension("cols")));
    return MatrixWalk{execution, formula, sources}.run();
}

} // namespace

Status addOrSubtractMatrices(const Execution &execution) {
    const bool isDifference = execution.form.operation == "Sub";
    return walk(execution, {"src1", "src2"}, [&](const Numbers &a) {
        return isDifference ? execution.subtract(a[0], a[1]) : execution.add(a[0], a[1]);
    });
}

Status multiplyMatrixByConstant(const Execution &execution) {
    const Wide c = execution.constant("val");
    return walk(execution, {"src"}, [&](const Numbers &a) { return execution.multiply(a[0], c); });
}

} // namespace model
