// Vectors whose element j is made of the elements j of the sources: a + b, a - b, a + c, a - c, c - a, a c, a c + b and
// a c + b d for constants c and d, each operation rounded by itself. A forward walk over objects and elements, but for
// the Real32 forms in lanes, which load all of an object before they store it.
#include "model/families.h"
#include "model/overlaps.h"

#include <algorithm>

namespace model {

namespace {

// From the elements of the sources in their order to the element of the destination.
using Formula = std::function<Wide(const std::vector<Wide> &)>;

struct LoadsAhead {
    bool wholeObjects = false; // all of an object is loaded before its first store
    bool single = false;       // the single vector beside an array is loaded once, ahead of the first object
};

struct VectorWalk : Execution {
    std::vector<std::string> names;
    Formula formula;
    LoadsAhead ahead;
    std::uint64_t length = dimension("len");
    std::vector<Operand> sources = {};
    Operand dst = vector("dst", length);
    std::vector<Wide> held = {};

    bool anyPositionIsNull(std::uint64_t k) const {
        const auto isNull = [k](const Operand &source) { return source.entryIsNull(k); };
        return std::ranges::any_of(sources, isNull) || isNull(dst);
    }
    bool anyTablePositionIsNull() const {
        for (std::uint64_t k = 0; k < length; ++k)
            if (anyPositionIsNull(k)) return true;
        return false;
    }

    bool isHeld(const Operand &source) const { return ahead.single && form.isArray() && !source.isArray(); }
    Wide result(std::uint64_t j) const {
        std::vector<Wide> elements;
        for (const Operand &source : sources)
            elements.push_back(isHeld(source) ? held[j] : load(source.element(object, j)));
        return formula(elements);
    }

    // The long run-time forms work in blocks only where no overlap can show it, so they too are this walk.
    Status objectByElements() {
        for (std::uint64_t j = 0; j < length; ++j) {
            if (testsEntriesAlongTheWay() && anyPositionIsNull(j)) return statusNullPointer;
            store(dst.element(object, j), result(j));
        }
        return statusOk;
    }

    // Five and six elements are one operation in four lanes and one on the rest, and whether the rest is loaded before
    // or after the store of the four is free: it shows unless a source lies exactly on the destination or off it.
    Status objectInLanes() {
        const std::uintptr_t to = dst.element(object, 0);
        for (const Operand &source : sources) {
            if (length <= 4 || isHeld(source)) continue;
            const std::uintptr_t from = source.element(object, 0);
            markOpenIf(from != to && overlap(from, 4 * length, to, 4 * length));
        }
        std::vector<Wide> results;
        for (std::uint64_t j = 0; j < length; ++j) results.push_back(result(j));
        for (std::uint64_t j = 0; j < length; ++j) store(dst.element(object, j), results[j]);
        return statusOk;
    }

    // One form takes four objects at a time, and may load the later ones of a block before it stores the earlier ones.
    // A destination on the source of an earlier object stays fixed, as does one on another destination: objects ascend.
    void checkBlock() const {
        if (object % 4 != 0 || !isInBlockOfFour(object)) return;
        for (std::uint64_t earlier = object; earlier < object + 4; ++earlier)
            for (std::uint64_t later = earlier + 1; later < object + 4; ++later)
                for (const Operand &source : sources)
                    markOpenIf(overlap(dst.element(earlier, 0), 12, source.element(later, 0), 12));
    }

    Status run() {
        if (length == 0) return statusSize;
        Operands operands;
        for (const std::string &name : names) sources.push_back(vector(name, length));
        for (const Operand &source : sources) operands.push_back(&source);
        operands.push_back(&dst);
        if (form.isArray() && hasTables() && anyTablePositionIsNull()) return statusNullPointer;
        if (count() == 0) return statusOk;
        for (const Operand &source : sources)
            for (std::uint64_t j = 0; isHeld(source) && j < length; ++j) held.push_back(load(source.element(0, j)));
        return overObjects(operands, [&] {
            if (form.name == "vonkSub_vava_32f_3x1") checkBlock();
            return ahead.wholeObjects ? objectInLanes() : objectByElements();
        });
    }
};

// Three elements beside a single vector, which is held all the same, are three scalar steps.
LoadsAhead loadsAhead(const Execution &execution) {
    const bool isBesideSingle = execution.form.group == "vav" || execution.form.group == "vva";
    const bool isScalar = isBesideSingle && execution.form.size == 3;
    return {.wholeObjects = execution.hasLanes() && !isScalar, .single = execution.hasLanes()};
}

// Nearly all forms are scalar. Four have lanes, and take them where all their words but one are aligned: the stride of
// the second source is taken on trust.
LoadsAhead loadsAheadOfSaxpy(const Execution &execution) {
    const Form &form = execution.form;
    const bool mayTakeLanes = execution.hasLanes() && form.layout == Layout::standard &&
                              (form.group == "vav" || form.group == "vava") && (form.size == 4 || form.size == 6);
    if (!mayTakeLanes) return {};
    const Arguments &words = execution.arguments;
    const std::uint64_t together = words.pointer("src1") | words.pointer("src2") | words.pointer("dst") |
                                   words.bytes("src1ObjStride") | words.bytes("dstObjStride");
    return {.wholeObjects = together % 16 == 0, .single = together % 16 == 0};
}

Status walk(const Execution &execution, const std::vector<std::string> &sources, const Formula &formula) {
    const bool isSaxpy = execution.form.operation == "Saxpy";
    return VectorWalk{execution, sources, formula, isSaxpy ? loadsAheadOfSaxpy(execution) : loadsAhead(execution)}
        .run();
}

} // namespace

Status addOrSubtractVectors(const Execution &execution) {
    const bool isDifference = execution.form.operation == "Sub";
    return walk(execution, {"src1", "src2"}, [&](const std::vector<Wide> &a) {
        return isDifference ? execution.subtract(a[0], a[1]) : execution.add(a[0], a[1]);
    });
}

// In the differences that name the constant first, it is the minuend, though it still comes behind the vector in the
// parameter list.
Status combineVectorAndConstant(const Execution &execution) {
    const Wide c = execution.constant("val");
    return walk(execution, {"src"}, [&](const std::vector<Wide> &a) {
        if (execution.form.operation == "Add") return execution.add(a[0], c);
        if (execution.form.operation == "Mul") return execution.multiply(a[0], c);
        return execution.form.group.front() == 'c' ? execution.subtract(c, a[0]) : execution.subtract(a[0], c);
    });
}

Status addScaledVector(const Execution &execution) {
    const Wide c = execution.constant("val");
    return walk(execution, {"src1", "src2"},
                [&](const std::vector<Wide> &a) { return execution.multiplyAdd(a[0], c, a[1]); });
}

Status combineLinearly(const Execution &execution) {
    const Wide c = execution.constant("val1");
    const Wide d = execution.constant("val2");
    return walk(execution, {"src1", "src2"}, [&](const std::vector<Wide> &a) {
        return execution.multiplyAdd(a[0], c, execution.multiply(a[1], d));
    });
}

} // namespace model
