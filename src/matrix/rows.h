// Real32 matrices of fixed order in four-lane registers, row by row: as they are stored or transposed, read when a
// row's turn comes or held. Whatever gives rows is asked for row(i).
#pragma once

#include "frame/lanes.h"
#include "frame/straight.h"
#include "frame/views.h"

namespace vonkk3::matrix {

// As stored.
template <std::size_t order> struct StoredRows {
    RowsView<const Real32> view;
    VONKK3_INLINE explicit StoredRows(const RowsView<const Real32> &view) : view(view) {}
    VONKK3_INLINE Lanes<order> row(std::size_t i) const { return Lanes<order>::load(view.at(i, 0)); }
};

// Transposed in registers: columns 0 to 3 are read at once, columns 4 and 5 when the turn of their rows comes.
template <std::size_t order> struct TransposedRows {
    RowsView<const Real32> stored;
    __m128 heads[4];
    __m128 below[2]; // rows 4 and 5 as stored

    VONKK3_INLINE explicit TransposedRows(const TransposedView<RowsView<const Real32>> &view) : stored(view.stored) {
        forEachBelow<4>([&](std::size_t i) VONKK3_INLINED { heads[i] = load4(stored.at(i, 0)); });
        _MM_TRANSPOSE4_PS(heads[0], heads[1], heads[2], heads[3]);
        if constexpr (order > 4) below[0] = load4(stored.at(4, 0));
        if constexpr (order > 5) below[1] = load4(stored.at(5, 0));
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

// Of 3x3 a row lies in lanes 0, 2 and 3.
template <> struct TransposedRows<3> {
    __m128 rows[3];

    VONKK3_INLINE explicit TransposedRows(const TransposedView<RowsView<const Real32>> &view) {
        const __m128 first = load(view.stored.at(0, 0)), second = load(view.stored.at(1, 0)),
                     third = load(view.stored.at(2, 0));
        const __m128 low = _mm_unpacklo_ps(second, third), high = _mm_unpackhi_ps(second, third);
        rows[0] = _mm_shuffle_ps(first, low, _MM_SHUFFLE(1, 0, 0, 0));
        rows[1] = _mm_shuffle_ps(first, low, _MM_SHUFFLE(3, 2, 1, 1));
        rows[2] = _mm_shuffle_ps(first, high, _MM_SHUFFLE(1, 0, 2, 2));
    }

    VONKK3_INLINE Lanes<3> row(std::size_t i) const { return {rows[i], _mm_setzero_ps()}; }

private:
    VONKK3_INLINE static __m128 load(const std::byte *row) { return _mm_movelh_ps(load2(row), load1(row + 8)); }
};

template <std::size_t order> VONKK3_INLINE auto rowsOf(const RowsView<const Real32> &view) {
    return StoredRows<order>(view);
}
template <std::size_t order> VONKK3_INLINE auto rowsOf(const TransposedView<RowsView<const Real32>> &view) {
    return TransposedRows<order>(view);
}

// Taken out of memory.
template <std::size_t order> struct HeldRows {
    static_assert(order <= 4);
    __m128 heads[order];
    template <class Rows> VONKK3_INLINE explicit HeldRows(const Rows &source) {
        forEachBelow<order>([&](std::size_t i) VONKK3_INLINED { heads[i] = source.row(i).head; });
    }
    VONKK3_INLINE Lanes<order> row(std::size_t i) const { return {heads[i], _mm_setzero_ps()}; }
};

template <class View> VONKK3_INLINE const View &asStored(const View &view) { return view; }
template <class View> VONKK3_INLINE const View &asStored(const TransposedView<View> &view) { return view.stored; }

// A row of the result.
template <std::size_t order, class Operation, class... Others>
VONKK3_INLINE Lanes<order> combineRow(const Operation &operation, const Lanes<order> &first, const Others &...others) {
    if constexpr (order <= 4) return {operation(first.head, others.head...), first.tail};
    else return {operation(first.head, others.head...), operation(first.tail, others.tail...)};
}

// d(i) = operation(sources(i)...), each row read before it is written.
template <std::size_t order, class Operation, class... Sources>
VONKK3_INLINE void workRows(const RowsView<Real32> &d, const Operation &operation, const Sources &...sources) {
    forEachBelow<order>([&](std::size_t i)
                            VONKK3_INLINED { combineRow<order>(operation, sources.row(i)...).store(d.at(i, 0)); });
}

} // namespace vonkk3::matrix
