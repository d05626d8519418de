// Real32 matrices of fixed order in four-lane registers, row by row: as they are stored or turned round, read when a
// row's turn comes or held. Whatever gives rows is asked for row(i).
#pragma once

#include "frame/lanes.h"
#include "frame/unroll.h"
#include "frame/views.h"

namespace vonkk3::matrix {

// Whether rows begin at multiples of 16 bytes.
enum class Placement { anywhere, aligned };

template <Placement placement> VONKK3_INLINE __m128 loadFour(const std::byte *address) {
    return placement == Placement::aligned ? load4Aligned(address) : load4(address);
}

template <std::size_t order, Placement placement> VONKK3_INLINE Lanes<order> loadRow(const std::byte *address) {
    if constexpr (placement == Placement::anywhere || order == 3) return Lanes<order>::load(address);
    else if constexpr (order == 4) return {load4Aligned(address), _mm_setzero_ps()};
    else if constexpr (order == 5) return {load4Aligned(address), load1(address + 16)};
    else return {load4Aligned(address), load2(address + 16)};
}

template <Placement placement, std::size_t order>
VONKK3_INLINE void storeRow(std::byte *address, const Lanes<order> &row) {
    if constexpr (placement == Placement::anywhere || order == 3) row.store(address);
    else {
        store4Aligned(address, row.head);
        if constexpr (order == 5) store1(address + 16, row.tail);
        if constexpr (order == 6) store2(address + 16, row.tail);
    }
}

// As stored.
template <std::size_t order, Placement placement = Placement::anywhere> struct StoredRows {
    RowsView<const Real32> view;
    VONKK3_INLINE explicit StoredRows(const RowsView<const Real32> &view) : view(view) {}
    VONKK3_INLINE Lanes<order> row(std::size_t i) const { return loadRow<order, placement>(view.at(i, 0)); }
};

// Turned round in registers: columns 0 to 3 are read at once, columns 4 and 5 when the turn of their rows comes.
template <std::size_t order, Placement placement = Placement::anywhere> struct TurnedRows {
    RowsView<const Real32> stored;
    __m128 heads[4];
    __m128 below[2]; // rows 4 and 5 as stored

    VONKK3_INLINE explicit TurnedRows(const TransposedView<RowsView<const Real32>> &view) : stored(view.stored) {
        forIndices(0, 4, fixed<4>,
                   [&](std::size_t i) VONKK3_INLINED { heads[i] = loadFour<placement>(stored.at(i, 0)); });
        _MM_TRANSPOSE4_PS(heads[0], heads[1], heads[2], heads[3]);
        if constexpr (order > 4) below[0] = loadFour<placement>(stored.at(4, 0));
        if constexpr (order > 5) below[1] = loadFour<placement>(stored.at(5, 0));
    }

    VONKK3_INLINE Lanes<order> row(std::size_t i) const {
        if constexpr (order == 4) return {heads[i], _mm_setzero_ps()};
        else if (i < 4) return {heads[i], tail(i)};
        else return {gather(0, i), gatherTail(i)};
    }

private:
    VONKK3_INLINE __m128 gather(std::size_t from, std::size_t i) const {
        return _mm_setr_ps(stored.load(from, i), stored.load(from + 1, i), stored.load(from + 2, i),
                           stored.load(from + 3, i));
    }
    VONKK3_INLINE __m128 gatherTail(std::size_t i) const {
        return order == 5 ? load1(stored.at(4, i)) : _mm_unpacklo_ps(load1(stored.at(4, i)), load1(stored.at(5, i)));
    }
    VONKK3_INLINE __m128 tail(std::size_t i) const {
        const __m128 lower = order == 5 ? below[0] : below[1];
        const __m128 halves = i < 2 ? _mm_unpacklo_ps(below[0], lower) : _mm_unpackhi_ps(below[0], lower);
        return i % 2 == 0 ? halves : _mm_movehl_ps(halves, halves);
    }
};

// Of 3x3 a row lies in lanes 0, 2 and 3. Where rows are aligned, the element behind each comes with it.
template <Placement placement> struct TurnedRows<3, placement> {
    __m128 rows[3];

    VONKK3_INLINE explicit TurnedRows(const TransposedView<RowsView<const Real32>> &view) {
        const __m128 first = load(view.stored.at(0, 0)), second = load(view.stored.at(1, 0)),
                     third = load(view.stored.at(2, 0));
        const __m128 low = _mm_unpacklo_ps(second, third), high = _mm_unpackhi_ps(second, third);
        rows[0] = _mm_shuffle_ps(first, low, _MM_SHUFFLE(1, 0, 0, 0));
        rows[1] = _mm_shuffle_ps(first, low, _MM_SHUFFLE(3, 2, 1, 1));
        rows[2] = _mm_shuffle_ps(first, high, _MM_SHUFFLE(1, 0, 2, 2));
    }

    VONKK3_INLINE Lanes<3> row(std::size_t i) const { return {rows[i], _mm_setzero_ps()}; }

private:
    VONKK3_INLINE static __m128 load(const std::byte *row) {
        if constexpr (placement == Placement::aligned) return load4Aligned(row);
        else return _mm_movelh_ps(load2(row), load1(row + 8));
    }
};

template <std::size_t order, Placement placement = Placement::anywhere>
VONKK3_INLINE auto rowsOf(const RowsView<const Real32> &view) {
    return StoredRows<order, placement>(view);
}
template <std::size_t order, Placement placement = Placement::anywhere>
VONKK3_INLINE auto rowsOf(const TransposedView<RowsView<const Real32>> &view) {
    return TurnedRows<order, placement>(view);
}

// Taken out of memory.
template <std::size_t order> struct HeldRows {
    Lanes<order> rows[order];
    template <class Rows> VONKK3_INLINE explicit HeldRows(const Rows &source) {
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED { rows[i] = source.row(i); });
    }
    VONKK3_INLINE Lanes<order> row(std::size_t i) const { return rows[i]; }
};

// Whether the rows of all of them begin at multiples of 16 bytes.
template <class... Views> VONKK3_INLINE bool haveAlignedRows(const Views &...views) {
    return ((reinterpret_cast<std::uintptr_t>(views.base) | ...) | (std::uintptr_t(views.rowStride) | ...)) %
               laneBytes ==
           0;
}
template <class View> VONKK3_INLINE const View &asStored(const View &view) { return view; }
template <class View> VONKK3_INLINE const View &asStored(const TransposedView<View> &view) { return view.stored; }

// A constant in every place.
template <std::size_t order> struct ConstantRows {
    __m128 value;
    VONKK3_INLINE explicit ConstantRows(Real32 value) : value(_mm_set1_ps(value)) {}
    VONKK3_INLINE Lanes<order> row(std::size_t) const { return {value, value}; }
};

// d(i) = operation(a(i), b(i)), each row read before it is written.
template <std::size_t order, Placement placement, class Operation, class A, class B>
VONKK3_INLINE void workRows(const A &a, const B &b, const RowsView<Real32> &d, Operation operation) {
    forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
        const Lanes<order> x = a.row(i), y = b.row(i);
        Lanes<order> result{operation(x.head, y.head), x.tail};
        if constexpr (order > 4) result.tail = operation(x.tail, y.tail);
        storeRow<placement>(d.at(i, 0), result);
    });
}

} // namespace vonkk3::matrix
