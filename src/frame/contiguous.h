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

// `length` elements lie in the widest registers of the target as far as they fill them, and the rest in quads, the last
// of which has what is left over. Three elements lie there as load3 places them.
template <std::size_t length>
inline constexpr std::size_t wideRegistersOf = widestRegister > 4 ? length / widestRegister : 0;
template <std::size_t length>
inline constexpr std::size_t elementsInQuads = length - wideRegistersOf<length> *widestRegister;
template <std::size_t length> inline constexpr std::size_t quadsOf = (elementsInQuads<length> + 3) / 4;

// Where wide register k, or quad k, of an object begins.
template <std::size_t length> VONKK3_INLINE constexpr std::size_t wideOffset(std::size_t k) {
    return k * sizeof(WideRegister);
}
template <std::size_t length> VONKK3_INLINE constexpr std::size_t quadOffset(std::size_t k) {
    return wideOffset<length>(wideRegistersOf<length>) + k * laneBytes;
}
template <std::size_t length> inline constexpr bool fillsQuad(std::size_t k) { return k < elementsInQuads<length> / 4; }

template <std::size_t length> VONKK3_INLINE __m128 loadQuad(const std::byte *base, std::size_t k) {
    const std::byte *const at = base + quadOffset<length>(k);
    if (fillsQuad<length>(k)) return load4(at);
    return length % 4 == 1 ? load1(at) : length % 4 == 2 ? load2(at) : load3(at);
}
template <std::size_t length> VONKK3_INLINE void storeQuad(std::byte *base, std::size_t k, __m128 lanes) {
    std::byte *const at = base + quadOffset<length>(k);
    if (fillsQuad<length>(k)) store4(at, lanes);
    else if (length % 4 == 1) store1(at, lanes);
    else if (length % 4 == 2) store2(at, lanes);
    else store3(at, lanes);
}

// In memory.
template <std::size_t length> struct StoredElements {
    const std::byte *base;
    VONKK3_INLINE WideRegister wide(std::size_t k) const {
        return loadLanes<WideRegister>(base + wideOffset<length>(k));
    }
    VONKK3_INLINE __m128 at(std::size_t k) const { return loadQuad<length>(base, k); }
};

// Of a source that has them; rows of up to six elements have none.
template <class Source, class Index> VONKK3_INLINE WideRegister wideOf(const Source &source, Index k) {
    return source.wide(k);
}

// Taken out of memory.
template <std::size_t length> struct HeldElements {
    WideRegister wides[wideRegistersOf<length> + 1];
    __m128 quads[quadsOf<length> + 1];

    // From registers.
    template <class Wide, class Quad> VONKK3_INLINE HeldElements(const Wide &wide, const Quad &quad) {
        forEachBelow<wideRegistersOf<length>>([&](auto k) VONKK3_INLINED { wides[k] = wide(k); });
        forEachBelow<quadsOf<length>>([&](auto k) VONKK3_INLINED { quads[k] = quad(k); });
    }
    template <class Source>
    VONKK3_INLINE explicit HeldElements(const Source &source)
        : HeldElements([&](auto k) VONKK3_INLINED { return wideOf(source, k); },
                       [&](auto k) VONKK3_INLINED { return source.at(k); }) {}
    // From wherever element(j) is.
    template <class Element>
    requires std::is_invocable_v<Element, std::size_t> VONKK3_INLINE explicit HeldElements(const Element &element)
        : HeldElements(
              [&](std::size_t k) VONKK3_INLINED {
                  return ofQuads<WideRegister>(
                      [&](std::size_t q) VONKK3_INLINED { return fourFrom(element, k * widestRegister + 4 * q); });
              },
              [&](std::size_t k) VONKK3_INLINED {
                  const std::size_t first = quadOffset<length>(k) / sizeof(Real32);
                  if (fillsQuad<length>(k)) return fourFrom(element, first);
                  if (length % 4 == 1) return _mm_set_ss(element(first));
                  if (length % 4 == 2) return _mm_setr_ps(element(first), element(first + 1), 0, 0);
                  return _mm_setr_ps(element(first), 0, element(first + 1), element(first + 2));
              }) {}

    VONKK3_INLINE WideRegister wide(std::size_t k) const { return wides[k]; }
    VONKK3_INLINE __m128 at(std::size_t k) const { return quads[k]; }
    VONKK3_INLINE void store(std::byte *d) const {
        forEachBelow<wideRegistersOf<length>>([&](auto k) VONKK3_INLINED {
            storeLanes(d + wideOffset<length>(k), wides[k]);
            keepStoreOrder();
        });
        forEachBelow<quadsOf<length>>([&](auto k) VONKK3_INLINED {
            storeQuad<length>(d, k, quads[k]);
            keepStoreOrder();
        });
    }

private:
    template <class Element> VONKK3_INLINE static __m128 fourFrom(const Element &element, std::size_t first) {
        return _mm_setr_ps(element(first), element(first + 1), element(first + 2), element(first + 3));
    }
};

// d = operation(sources...): all of them are read before any is stored, or register by register.
template <std::size_t length, class Operation, class... Sources>
VONKK3_INLINE void workElementsAtOnce(std::byte *d, const Operation &operation, const Sources &...sources) {
    const HeldElements<length> results([&](auto k) VONKK3_INLINED { return operation(wideOf(sources, k)...); },
                                       [&](auto k) VONKK3_INLINED { return operation(sources.at(k)...); });
    results.store(d);
}
template <std::size_t length, class Operation, class... Sources>
VONKK3_INLINE void workElementsInTurn(std::byte *d, const Operation &operation, const Sources &...sources) {
    forEachBelow<wideRegistersOf<length>>(
        [&](auto k) VONKK3_INLINED { storeLanes(d + wideOffset<length>(k), operation(wideOf(sources, k)...)); });
    forEachBelow<quadsOf<length>>([&](std::size_t k)
                                      VONKK3_INLINED { storeQuad<length>(d, k, operation(sources.at(k)...)); });
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
    template <class Lanes> VONKK3_INLINE Lanes operator()(Lanes a, Lanes b) const { return operation(b, a); }
};

// A single object beside packed ones: repeated until its elements are back at the lanes where they began, and on, while
// registers hold it.
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
