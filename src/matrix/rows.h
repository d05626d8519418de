// Real32 matrices of fixed order and contiguous rows in four-lane registers: row by row, as they are stored or
// transposed, or, where rows are adjacent, as one range. Whatever gives rows is asked for row(i).
#pragma once

#include "frame/contiguous.h"

namespace vonkk3::matrix {

// As stored.
template <std::size_t order> struct StoredRows {
    RowsView<const Real32> view;
    VONKK3_INLINE explicit StoredRows(const RowsView<const Real32> &view) : view(view) {}
    VONKK3_INLINE StoredElements<order> row(std::size_t i) const { return {view.at(i, 0)}; }
};

// Registers of a row that is made of others.
struct RowRegisters {
    __m128 head, tail;
    VONKK3_INLINE __m128 at(std::size_t k) const { return k == 0 ? head : tail; }
};

// Transposed in registers: columns 0 to 3 are read at once, columns 4 and 5 when the turn of their rows comes.
template <std::size_t order> struct TransposedRows {
    RowsView<const Real32> stored;
    __m128 heads[4];
    __m128 below[2]; // rows 4 and 5 as stored

    VONKK3_INLINE explicit TransposedRows(const RowsView<const Real32> &stored) : stored(stored) {
        forEachBelow<4>([&](std::size_t i) VONKK3_INLINED { heads[i] = load4(stored.at(i, 0)); });
        transpose(heads[0], heads[1], heads[2], heads[3]);
        if constexpr (order > 4) below[0] = load4(stored.at(4, 0));
        if constexpr (order > 5) below[1] = load4(stored.at(5, 0));
    }

    VONKK3_INLINE RowRegisters row(std::size_t i) const {
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

    VONKK3_INLINE explicit TransposedRows(const RowsView<const Real32> &stored) {
        const auto load = [&](std::size_t i)
                              VONKK3_INLINED { return _mm_movelh_ps(load2(stored.at(i, 0)), load1(stored.at(i, 2))); };
        const __m128 first = load(0), second = load(1), third = load(2);
        const __m128 low = _mm_unpacklo_ps(second, third), high = _mm_unpackhi_ps(second, third);
        rows[0] = _mm_shuffle_ps(first, low, _MM_SHUFFLE(1, 0, 0, 0));
        rows[1] = _mm_shuffle_ps(first, low, _MM_SHUFFLE(3, 2, 1, 1));
        rows[2] = _mm_shuffle_ps(first, high, _MM_SHUFFLE(1, 0, 2, 2));
    }
    VONKK3_INLINE RowRegisters row(std::size_t i) const { return {rows[i], _mm_setzero_ps()}; }
};

template <std::size_t order> VONKK3_INLINE auto rowsOf(const RowsView<const Real32> &view) {
    return StoredRows<order>(view);
}
template <std::size_t order> VONKK3_INLINE auto rowsOf(const TransposedView<RowsView<const Real32>> &view) {
    return TransposedRows<order>(view.stored);
}

// Taken out of memory.
template <std::size_t order> struct HeldRows {
    RowRegisters rows[order];
    template <class Rows> VONKK3_INLINE explicit HeldRows(const Rows &source) {
        forEachBelow<order>([&](std::size_t i) VONKK3_INLINED {
            const auto row = source.row(i);
            rows[i].head = row.at(0);
            if constexpr (order > 4) rows[i].tail = row.at(1);
        });
    }
    VONKK3_INLINE const RowRegisters &row(std::size_t i) const { return rows[i]; }
};

// d(i) = operation(sources(i)...), each row read before it is written.
template <std::size_t order, class Operation, class... Sources>
VONKK3_INLINE void workRows(const RowsView<Real32> &d, const Operation &operation, const Sources &...sources) {
    forEachBelow<order>([&](std::size_t i)
                            VONKK3_INLINED { workElementsAtOnce<order>(d.at(i, 0), operation, sources.row(i)...); });
}

// ---- All objects ----------------------------------------------------------------------------------------------------

// What gives the rows of object n. A single object that is held is read once, here.
template <bool isHeld, std::size_t order, class Operand> VONKK3_INLINE auto rowsByObject(const Operand &operand) {
    if constexpr (isHeld)
        return [held = HeldRows<order>(rowsOf<order>(operand.view(0)))](std::size_t)
                   VONKK3_INLINED -> const HeldRows<order> & { return held; };
    else return [operand](std::size_t n) VONKK3_INLINED { return rowsOf<order>(operand.view(n)); };
}

// d(n) = operation(sources(n)...), `step` elements at once where rows are adjacent, else row by row.
template <std::size_t order, std::size_t step, bool holdsSingle, class Operation, class Count, class D,
          class... Sources>
VONKK3_INLINE VonkStatus workMatrices(const Operation &operation, Count count, const D &d, const Sources &...sources) {
    const auto isReadInOrder = [](const auto &source) VONKK3_INLINED {
        using Source = std::remove_cvref_t<decltype(source)>;
        if constexpr (holdsSingle && !Source::isArray) return true;
        else return !Source::isTransposed && source.hasPackedRows(order);
    };
    if constexpr (((!Sources::isTransposed || (holdsSingle && !Sources::isArray)) && ...))
        if (d.hasPackedRows(order) && (isReadInOrder(sources) && ...)) [[likely]]
            return workContiguousObjects<order, order, step, holdsSingle>(operation, count, d, sources...);
    const auto walk = [&](const auto &...rows) VONKK3_INLINED {
        const auto one = [&](std::size_t n) VONKK3_INLINED {
            return workRows<order>(d.view(n), operation, rows(n)...), VonkStatus(vonkOk);
        };
        return forEachObject(count, one, sources..., d);
    };
    return walk(rowsByObject < holdsSingle && !Sources::isArray, order > (sources)...);
}

} // namespace vonkk3::matrix
