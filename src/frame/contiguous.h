// Real32 objects of contiguous elements, worked element by element in registers: vectors, rows, and matrices
// whose rows are adjacent, each for itself or all as one range. Exactly the bytes of the elements are read and written.
#pragma once

#include "frame/aliasing.h"
#include "frame/registers.h"
#include "frame/shared_operand.h"
#include "frame/straight.h"
#include "frame/stream.h"
#include "frame/walk.h"

namespace vonkk3 {

// ---- One object -----------------------------------------------------------------------------------------------------

// Of `length` elements in registers, number k; the last has what is left over. Three elements lie there as load3 places
// them.
template <std::size_t length> inline constexpr std::size_t registersOf = (length + 3) / 4;

template <std::size_t length> VONKK3_INLINE __m128 loadRegister(const std::byte *base, std::size_t k) {
    const std::byte *const at = base + k * laneBytes;
    if (k < length / 4) return load4(at);
    return length % 4 == 1 ? load1(at) : length % 4 == 2 ? load2(at) : load3(at);
}
template <std::size_t length> VONKK3_INLINE void storeRegister(std::byte *base, std::size_t k, __m128 lanes) {
    std::byte *const at = base + k * laneBytes;
    if (k < length / 4) store4(at, lanes);
    else if (length % 4 == 1) store1(at, lanes);
    else if (length % 4 == 2) store2(at, lanes);
    else store3(at, lanes);
}

// In memory.
template <std::size_t length> struct StoredElements {
    const std::byte *base;
    VONKK3_INLINE __m128 at(std::size_t k) const { return loadRegister<length>(base, k); }
};

// Taken out of memory.
template <std::size_t length> struct HeldElements {
    __m128 registers[registersOf<length>];

    template <class Source> VONKK3_INLINE explicit HeldElements(const Source &source) {
        forEachBelow<registersOf<length>>([&](std::size_t k) VONKK3_INLINED { registers[k] = source.at(k); });
    }
    // From wherever element(j) is.
    template <class Element>
    requires std::is_invocable_v<Element, std::size_t> VONKK3_INLINE explicit HeldElements(const Element &element) {
        forEachBelow<length / 4>([&](std::size_t k) VONKK3_INLINED {
            registers[k] = _mm_setr_ps(element(4 * k), element(4 * k + 1), element(4 * k + 2), element(4 * k + 3));
        });
        constexpr std::size_t over = length % 4, last = length - over;
        if constexpr (over == 1) registers[last / 4] = _mm_set_ss(element(last));
        if constexpr (over == 2) registers[last / 4] = _mm_setr_ps(element(last), element(last + 1), 0, 0);
        if constexpr (over == 3)
            registers[last / 4] = _mm_setr_ps(element(last), 0, element(last + 1), element(last + 2));
    }

    VONKK3_INLINE __m128 at(std::size_t k) const { return registers[k]; }
    VONKK3_INLINE void store(std::byte *d) const {
        forEachBelow<registersOf<length>>([&](std::size_t k) VONKK3_INLINED { storeRegister<length>(d, k, at(k)); });
    }
};

// d = operation(sources...): all of them are read before any is stored, or register by register.
template <std::size_t length, class Operation, class... Sources>
VONKK3_INLINE void workElementsAtOnce(std::byte *d, const Operation &operation, const Sources &...sources) {
    __m128 results[registersOf<length>];
    forEachBelow<registersOf<length>>([&](std::size_t k) VONKK3_INLINED { results[k] = operation(sources.at(k)...); });
    forEachBelow<registersOf<length>>([&](std::size_t k) VONKK3_INLINED { storeRegister<length>(d, k, results[k]); });
}
template <std::size_t length, class Operation, class... Sources>
VONKK3_INLINE void workElementsInTurn(std::byte *d, const Operation &operation, const Sources &...sources) {
    forEachBelow<registersOf<length>>([&](std::size_t k)
                                          VONKK3_INLINED { storeRegister<length>(d, k, operation(sources.at(k)...)); });
}

// ---- Object by object -----------------------------------------------------------------------------------------------

// The plain path of an object: `step` elements at once, which shows where results overlap the sources.
template <std::size_t length, std::size_t step, class Operation, class... Bytes>
VONKK3_INLINE void workObjectInSteps(const Operation &operation, std::byte *to, Bytes *...from) {
    for (const std::byte *const end = to + length * sizeof(Real32); to != end; to += step * sizeof(Real32)) {
        keepLoopPlain();
        workElementsAtOnce<step>(to, operation, StoredElements<step>{from}...);
        (..., (from += step * sizeof(Real32)));
    }
}

// The same from object n on.
template <std::size_t length, std::size_t step, class Operation, class... Words>
VONKK3_SHARED VonkStatus workInSteps(const Operation &operation, std::size_t n, std::size_t count,
                                     const OperandWords &dst, const Words &...src) {
    const auto work = [&](const auto &d, const auto &...sources) VONKK3_INLINED {
        if ((sources.listHasNull(n) || ...) || d.listHasNull(n)) return false;
        return workObjectInSteps<length, step>(operation, d.view(n, 0).base, sources.view(n, 0).base...), true;
    };
    for (; n < count; ++n)
        if (!work(SharedOperand<Real32, false>(dst), SharedOperand<const Real32, false>(src)...)) return vonkErrNullPtr;
    return vonkOk;
}

// What gives the elements of object n. A single object is read once, here: for good where it is held, else for as long
// as no result overlaps it.
template <std::size_t length, class Operand> struct StoredObjects {
    const Operand &operand;
    VONKK3_INLINE explicit StoredObjects(const Operand &operand) : operand(operand) {}
    VONKK3_INLINE StoredElements<length> object(std::size_t n) const { return {operand.view(n).base}; }
    VONKK3_INLINE bool isAtRisk(std::size_t n, const std::byte *d) const {
        return overwritesAhead(d, operand.view(n).base, length * sizeof(Real32));
    }
    VONKK3_INLINE const std::byte *inMemory(std::size_t n, std::byte *) const { return operand.view(n).base; }
    VONKK3_INLINE OperandWords words() const { return operand.words(length); }
};
template <std::size_t length> struct HeldObject {
    HeldElements<length> held;
    template <class Element> VONKK3_INLINE explicit HeldObject(const Element &element) : held(element) {}
    VONKK3_INLINE const HeldElements<length> &object(std::size_t) const { return held; }
    static constexpr bool isAtRisk(std::size_t, const std::byte *) { return false; }
    VONKK3_INLINE const std::byte *inMemory(std::size_t, std::byte *scratch) const {
        return held.store(scratch), scratch;
    }
};
template <std::size_t length, class Operand> struct SingleObject : StoredObjects<length, Operand> {
    HeldElements<length> held;
    VONKK3_INLINE explicit SingleObject(const Operand &operand)
        : StoredObjects<length, Operand>(operand), held(StoredElements<length>{operand.view(0).base}) {}
    VONKK3_INLINE const HeldElements<length> &object(std::size_t) const { return held; }
    VONKK3_INLINE bool isAtRisk(std::size_t, const std::byte *d) const {
        const std::size_t bytes = length * sizeof(Real32);
        return !disjoint(extentOf(d, bytes), extentOf(this->operand.view(0).base, bytes));
    }
};

template <class View, std::size_t columns> VONKK3_INLINE auto elementsOf(const View &view, Fixed<columns>) {
    return [view](std::size_t j) VONKK3_INLINED { return view.load(j / columns, j % columns); };
}

template <std::size_t rows, std::size_t columns, bool isHeld, class Count, class Operand>
VONKK3_INLINE auto readingOf(const Operand &operand) {
    constexpr std::size_t length = rows * columns;
    constexpr bool isSingle = Count::isArray && !Operand::isArray;
    if constexpr (isSingle && isHeld) return HeldObject<length>(elementsOf(operand.view(0), fixed<columns>));
    else if constexpr (isSingle && length > 16) return SingleObject<length, Operand>(operand);
    else return StoredObjects<length, Operand>(operand);
}

// d(n) = operation(sources(n)...), `step` elements of an object at once. Only what is held needs no adjacent rows.
template <std::size_t rows, std::size_t columns, std::size_t step, bool holdsSingle, class Operation, class Count,
          class D, class... Sources>
VONKK3_INLINE VonkStatus workContiguousObjects(const Operation &operation, Count count, const D &d,
                                               const Sources &...sources) {
    constexpr std::size_t length = rows * columns;
    const auto walk = [&](const auto &...objects) VONKK3_INLINED {
        if constexpr (step == length && length <= 16) { // all of it in registers
            const auto one = [&](std::size_t n) VONKK3_INLINED {
                return workElementsAtOnce<length>(d.view(n).base, operation, objects.object(n)...), vonkOk;
            };
            if constexpr (D::isList && length != 9) return forEachLightObject(count, one, sources..., d);
            else return forEachObject(count, one, sources..., d);
        } else {
            for (std::size_t n = 0; n < count; ++n) {
                if ((sources.listHasNull(n) || ...) || d.listHasNull(n)) [[unlikely]]
                    return VonkStatus(vonkErrNullPtr);
                std::byte *const to = d.view(n).base;
                const bool isAtRisk = (objects.isAtRisk(n, to) || ...);
                if (!isAtRisk) [[likely]]
                    workElementsInTurn<length>(to, operation, objects.object(n)...);
                else if constexpr (length > 16)
                    return workInSteps<length, step>(operation, n, count, d.words(length), objects.words()...);
                else {
                    std::byte scratch[length * sizeof(Real32)]; // of the one that is held
                    workObjectInSteps<length, step>(operation, to, objects.inMemory(n, scratch)...);
                }
            }
            return VonkStatus(vonkOk);
        }
    };
    return walk(readingOf<rows, columns, holdsSingle, Count>(sources)...);
}

// ---- All objects as one range ---------------------------------------------------------------------------------------

template <class Operation, class... Sources>
VONKK3_SHARED void workRange(const Operation &shared, std::byte *d, std::size_t elements, Sources... sources) {
    const Operation operation = shared; // a local copy stays in registers
    const auto lanes = [&]<class Lanes>(std::size_t at) VONKK3_INLINED {
        storeLanes(d + at, operation(loadLanes<Lanes>(sources + at)...));
        keepLoopPlain(); // in bursts, stores take twice the time where the data is not in the first-level cache
    };
    const auto wide = [&](std::size_t at) VONKK3_INLINED { lanes.template operator()<WideRegister>(at); };
    constexpr std::size_t registers = 8, step = sizeof(WideRegister), block = registers * step;
    std::size_t bytes = elements * sizeof(Real32);
    for (const std::byte *const end = d + bytes / block * block; d != end; d += block, (..., (sources += block)))
        forEachBelow<registers>([&](std::size_t k) VONKK3_INLINED { wide(k * step); });
    bytes = opaque(bytes % block); // not unrolled
    std::size_t at = 0;
    for (; bytes - at >= step; at += step) wide(at);
    if constexpr (step > laneBytes)
        if (bytes - at >= laneBytes) lanes.template operator()<__m128>(at), at += laneBytes;
    for (; at < bytes; at += sizeof(Real32)) {
        keepLoopPlain();
        storeAt<Real32>(d + at, operation(loadAt<Real32>(sources + at)...));
    }
}

// An operation whose sources are given the other way round.
template <class Operation> struct Exchanged {
    Operation operation;
    VONKK3_INLINE __m128 operator()(__m128 a, __m128 b) const { return operation(b, a); }
};

// A single object beside packed ones: repeated until its elements are back at the lanes where they began, and on, while
// eight registers hold it.
template <std::size_t length, class Operation, class Element>
VONKK3_INLINE void workBesideSingle(const Operation &operation, std::byte *d, std::size_t count, const std::byte *a,
                                    const Element &element) {
    constexpr std::size_t least = length % 4 == 0 ? 1 : length % 2 == 0 ? 2 : 4, most = 32 / (least * length);
    constexpr std::size_t copies = least * (most > 1 ? most : 1), period = copies * length;
    const HeldElements<period> repeated([&](std::size_t j) VONKK3_INLINED { return element(j % length); });
    for (; count >= copies; count -= copies, a += period * sizeof(Real32), d += period * sizeof(Real32))
        workElementsInTurn<period>(d, operation, StoredElements<period>{a}, repeated);
    if constexpr (copies > 1) {
        if (count == 0) return;
        const HeldElements<length> single(element);
        for (; count > 0; --count, a += length * sizeof(Real32), d += length * sizeof(Real32))
            workElementsAtOnce<length>(d, operation, StoredElements<length>{a}, single);
    }
}

template <std::size_t rows, class... Operands>
VONKK3_INLINE bool areAdjacentRows(std::size_t columns, const Operands &...operands) {
    return rows == 1 || (operands.hasPackedRows(columns) && ...);
}
template <std::size_t rows, class... Operands>
VONKK3_INLINE bool areOneRange(std::size_t columns, const Operands &...operands) {
    const auto bytes = std::ptrdiff_t(rows * columns * sizeof(Real32));
    return areAdjacentRows<rows>(columns, operands...) &&
           ((!Operands::isArray || operands.objectSpacing() == bytes) && ...);
}

template <class View>
VONKK3_INLINE Extent extentOf(const TransposedView<View> &view, std::size_t rows, std::size_t columns) {
    return extentOf(view.stored, columns, rows);
}

// Where a single object is worked beside an array, fewer objects are done before it is repeated.
inline constexpr std::size_t worthRepeating = 8;

// d(n) = operation(sources(n)...) if all arrays are one range each, and results overlap nothing that is yet to be read;
// else nothing is done, and the answer is false.
template <std::size_t rows, class Operation, class Columns, class D, class A>
VONKK3_INLINE bool workAsOneRange(const Operation &operation, Columns columns, std::size_t count, const D &d,
                                  const A &a) {
    const std::size_t elements = count * rows * columns;
    const std::byte *const from = a.view(0).base;
    std::byte *const to = d.view(0).base;
    if (!areOneRange<rows>(columns, d, a) || overwritesAhead(to, from, elements * sizeof(Real32))) return false;
    return workRange(operation, to, elements, from), true;
}

template <std::size_t rows, class Operation, class Columns, class D, class A, class B>
VONKK3_INLINE bool workAsOneRange(const Operation &operation, Columns columns, std::size_t count, const D &d,
                                  const A &a, const B &b) {
    const std::size_t elements = count * rows * columns, bytes = elements * sizeof(Real32);
    std::byte *const to = d.view(0).base;
    if constexpr (A::isArray == B::isArray) {
        const std::byte *const first = a.view(0).base, *const second = b.view(0).base;
        if (!areOneRange<rows>(columns, d, a, b) || overwritesAhead(to, first, bytes) ||
            overwritesAhead(to, second, bytes))
            return false;
        return workRange(operation, to, elements, first, second), true;
    } else if constexpr (!A::isArray)
        return workAsOneRange<rows>(Exchanged<Operation>{operation}, columns, count, d, b, a);
    else {
        const std::byte *const from = a.view(0).base;
        const auto single = b.view(0);
        if (count < worthRepeating || !areOneRange<rows>(columns, d, a) || overwritesAhead(to, from, bytes) ||
            !disjoint(extentOf(single, rows, columns), extentOf(to, bytes)))
            return false;
        return workBesideSingle<rows * Columns::value>(operation, to, count, from, elementsOf(single, columns)), true;
    }
}

} // namespace vonkk3
