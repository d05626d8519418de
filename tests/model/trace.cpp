// Traces: the sum of the diagonal, which runs through the result's cell except in lanes.
#include "model/families.h"

namespace model {

namespace {

struct Trace : Execution {
    std::uint64_t order = dimension("order");
    // So many entries of a table are tested as there are elements on the diagonal, but those at its start.
    Operand src = matrix("src", 1, order);
    bool takesPairs = !isReal32() && form.size == 0 && form.group == "m" && !hasTables();

    // Begins with the first element, so that a sum of nothing but -0 stays -0.
    void inLanes() const {
        Wide sum = load(src.element(object, 0, 0));
        for (std::uint64_t i = 1; i < order; ++i) sum = add(sum, load(src.element(object, i, i)));
        store(result(), sum);
    }

    // Where the diagonal is taken in pairs, an element that is left over is added to the sum as it stands in the cell,
    // and whether the second of a pair is loaded before or after the step of the first is free.
    Status running() const {
        Wide sum = 0;
        store(result(), sum);
        for (std::uint64_t i = 0; i < order; ++i) {
            if (testsEntriesAlongTheWay() && src.entryIsNull(i, i)) return statusNullPointer;
            const std::uintptr_t place = src.element(object, i, i);
            const bool isSecondOfPair = i % 2 == 1;
            markOpenIf(takesPairs && isSecondOfPair && overlap(result(), 8, place, 8));
            if (takesPairs && !isSecondOfPair && i + 1 == order) sum = rounded(sum);
            sum = add(sum, load(place));
            store(result(), sum);
        }
        return statusOk;
    }

    Status run() {
        if (order == 0) return statusSize;
        if (form.isArray() && hasTables() && anyTableEntryIsNull({&src})) return statusNullPointer;
        return overObjects({&src}, [&] {
            if (!hasLanes()) return running();
            inLanes();
            return statusOk;
        });
    }
};

} // namespace

Status sumDiagonal(const Execution &execution) { return Trace{execution}.run(); }

} // namespace model
