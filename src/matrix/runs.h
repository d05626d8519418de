// Real32 matrices whose rows follow one another without gaps: a matrix is then one run of adjacent elements, and so are
// matrices that follow one another. Runs are worked four elements at a time from front to back. That gives what going
// row by row gives, unless the destination begins inside a source.
#pragma once

#include "frame/lanes.h"
#include "frame/unroll.h"
#include "frame/views.h"

namespace vonkk3::matrix {

template <std::size_t order> inline constexpr std::size_t rowBytes = order * sizeof(Real32);
template <std::size_t order> inline constexpr std::size_t objectBytes = order *rowBytes<order>;

// Whether each matrix of the operands is a run, and whether matrix follows matrix as well. A single one follows itself.
template <std::size_t order, class... Operands> VONKK3_INLINE bool areRuns(const Operands &...operands) {
    return ((operands.rowSpacing() == std::ptrdiff_t(rowBytes<order>)) && ...);
}
template <std::size_t order, class... Operands> VONKK3_INLINE bool areOneRun(const Operands &...operands) {
    return areRuns<order>(operands...) &&
           ((!Operands::isArray || operands.objectSpacing() == std::ptrdiff_t(objectBytes<order>)) && ...);
}

// Whether what is written going forward is yet to be read: the destination begins behind the source's first byte and
// not behind its last.
VONKK3_INLINE bool runsAhead(const std::byte *destination, const std::byte *source, std::size_t bytes) {
    return reinterpret_cast<std::uintptr_t>(destination) - reinterpret_cast<std::uintptr_t>(source) - 1 < bytes - 1;
}

// ---- One matrix -----------------------------------------------------------------------------------------------------

// Its elements in fours, and the last one, which is over where the order is odd.
template <std::size_t order> inline constexpr std::size_t runFours = order *order / 4;

template <std::size_t order> struct StoredRun {
    const std::byte *base;
    VONKK3_INLINE explicit StoredRun(const std::byte *base) : base(base) {}
    VONKK3_INLINE __m128 four(std::size_t k) const { return load4(base + k * laneBytes); }
    VONKK3_INLINE __m128 last() const { return load1(base + runFours<order> * laneBytes); }
    VONKK3_INLINE Lanes<order> row(std::size_t i) const { return Lanes<order>::load(base + i * rowBytes<order>); }
    VONKK3_INLINE bool isOvertakenBy(const std::byte *d) const { return runsAhead(d, base, objectBytes<order>); }
};

// Taken out of memory, from wherever its elements are.
template <std::size_t order> struct HeldRun {
    __m128 fours[runFours<order>];
    __m128 over;

    template <class View> VONKK3_INLINE explicit HeldRun(const View &view) {
        const auto element = [&](std::size_t k) VONKK3_INLINED { return view.load(k / order, k % order); };
        forIndices(0, runFours<order>, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            fours[k] = _mm_setr_ps(element(4 * k), element(4 * k + 1), element(4 * k + 2), element(4 * k + 3));
        });
        if constexpr (order % 2 != 0) over = _mm_set_ss(element(order * order - 1));
    }
    VONKK3_INLINE explicit HeldRun(const StoredRun<order> &run) {
        forIndices(0, runFours<order>, fixed<order>, [&](std::size_t k) VONKK3_INLINED { fours[k] = run.four(k); });
        if constexpr (order % 2 != 0) over = run.last();
    }

    VONKK3_INLINE __m128 four(std::size_t k) const { return fours[k]; }
    VONKK3_INLINE __m128 last() const { return over; }
    VONKK3_INLINE Lanes<order> row(std::size_t i) const {
        static_assert(order <= 4);
        if constexpr (order == 4) return {fours[i], _mm_setzero_ps()};
        else return {_mm_setr_ps(element(3 * i), 0, element(3 * i + 1), element(3 * i + 2)), _mm_setzero_ps()};
    }
    static constexpr bool isOvertakenBy(const std::byte *) { return false; }

private:
    VONKK3_INLINE Real32 element(std::size_t k) const { return k == 8 ? over[0] : fours[k / 4][k % 4]; }
};

struct ConstantRun {
    __m128 value;
    VONKK3_INLINE explicit ConstantRun(Real32 value) : value(_mm_set1_ps(value)) {}
    VONKK3_INLINE __m128 four(std::size_t) const { return value; }
    VONKK3_INLINE __m128 last() const { return value; }
};

template <std::size_t order, class Operation, class A, class B>
VONKK3_INLINE void workRun(const A &a, const B &b, std::byte *d, Operation operation) {
    forIndices(0, runFours<order>, fixed<order>,
               [&](std::size_t k) VONKK3_INLINED { store4(d + k * laneBytes, operation(a.four(k), b.four(k))); });
    if constexpr (order % 2 != 0) store1(d + runFours<order> * laneBytes, operation(a.last(), b.last()));
}

// ---- Many matrices --------------------------------------------------------------------------------------------------

struct StoredStream {
    const std::byte *base;
    VONKK3_INLINE __m128 four(std::size_t at) const { return load4(base + at); }
    VONKK3_INLINE __m128 one(std::size_t at) const { return load1(base + at); }
};

struct ConstantStream {
    __m128 value;
    VONKK3_INLINE __m128 four(std::size_t) const { return value; }
    VONKK3_INLINE __m128 one(std::size_t) const { return value; }
};

// So many bytes of whole elements, front to back.
template <class Operation, class A, class B>
VONKK3_INLINE void workStream(const A &a, const B &b, std::byte *d, std::size_t bytes, Operation operation) {
    const std::size_t bytesInFours = bytes / laneBytes * laneBytes;
    const auto workFour = [&](std::size_t at) VONKK3_INLINED { store4(d + at, operation(a.four(at), b.four(at))); };
    std::size_t at = 0;
    for (; at + 4 * laneBytes <= bytes; at += 4 * laneBytes) {
        workFour(at), workFour(at + laneBytes);
        workFour(at + 2 * laneBytes), workFour(at + 3 * laneBytes);
    }
    for (; at < bytesInFours; at += laneBytes) workFour(at);
    for (; at < bytes; at += sizeof(Real32)) store1(d + at, operation(a.one(at), b.one(at)));
}

// A matrix that is held beside run upon run, in as many registers as bring it back to its first element: four matrices
// of 3x3 make nine, and so does one of 6x6.
template <std::size_t order> struct RepeatedRun {
    static constexpr std::size_t matrices = order % 2 == 0 ? 1 : 4;
    static constexpr std::size_t fours = matrices * order * order / 4;
    static_assert(fours <= 9);
    __m128 held[fours];

    template <class View> VONKK3_INLINE explicit RepeatedRun(const View &view) {
        const auto element = [&](std::size_t k) VONKK3_INLINED {
            const std::size_t position = k % (order * order);
            return view.load(position / order, position % order);
        };
        forIndices(0, fours, fixed<fours>, [&](std::size_t k) VONKK3_INLINED {
            held[k] = _mm_setr_ps(element(4 * k), element(4 * k + 1), element(4 * k + 2), element(4 * k + 3));
        });
    }

    template <class Operation>
    VONKK3_INLINE void work(const std::byte *a, std::byte *d, std::size_t count, Operation operation) const {
        for (; count >= matrices; count -= matrices) {
            forIndices(0, fours, fixed<fours>, [&](std::size_t k) VONKK3_INLINED {
                store4(d + k * laneBytes, operation(load4(a + k * laneBytes), held[k]));
            });
            a += fours * laneBytes;
            d += fours * laneBytes;
        }
        if constexpr (matrices > 1)
            for (; count > 0; --count) {
                forIndices(0, runFours<order>, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
                    store4(d + k * laneBytes, operation(load4(a + k * laneBytes), held[k]));
                });
                constexpr std::size_t at = runFours<order> * laneBytes;
                store1(d + at, operation(load1(a + at), held[runFours<order>]));
                a += objectBytes<order>;
                d += objectBytes<order>;
            }
    }
};

} // namespace vonkk3::matrix
