// Four objects of an array worked side by side, one to a lane, and the walk over an array that does so where it can.
#pragma once

#include "cholqr/clearance.h"
#include "cholqr/elements.h"
#include "vonkk3.h"

namespace vonkk3::cholqr {

// Where it is tried: Real32 of fixed order in rows of adjacent elements.
template <class Written, class Order>
inline constexpr bool
    worksFourAtOnce = Written::isArray &&std::is_same_v<typename Written::Element, Real32> &&Order::isFixed &&
                      (Written::layout == Layout::Standard || Written::layout == Layout::L);

// Row i of objects n to n + 3, or of the one that serves them all.
template <class Operand, class Number>
VONKK3_INLINE void gatherRows(const Operand &operand, std::size_t n, std::size_t i, std::size_t length, Number *row) {
    if constexpr (Operand::isArray)
        gatherRow({operand.view(n).at(i, 0), operand.view(n + 1).at(i, 0), operand.view(n + 2).at(i, 0),
                   operand.view(n + 3).at(i, 0)},
                  length, row);
    else
        for (std::size_t j = 0; j < length; ++j) row[j] = operand.view(0).load(i, j);
}

template <class Operand>
VONKK3_INLINE void gatherRows(const Operand &operand, std::size_t n, std::size_t i, std::size_t length,
                              EightReals *row) {
    FourReals first[6], second[6];
    gatherRows(operand, n, i, length, first);
    gatherRows(operand, n + four, i, length, second);
    for (std::size_t j = 0; j < length; ++j) row[j] = {first[j], second[j]};
}

template <class Operand, class Number>
VONKK3_INLINE void scatterRows(const Operand &operand, std::size_t n, std::size_t i, std::size_t length,
                               const Number *row) {
    scatterRow({operand.view(n).at(i, 0), operand.view(n + 1).at(i, 0), operand.view(n + 2).at(i, 0),
                operand.view(n + 3).at(i, 0)},
               length, row);
}

template <class Operand>
VONKK3_INLINE void scatterRows(const Operand &operand, std::size_t n, std::size_t i, std::size_t length,
                               const EightReals *row) {
    FourReals first[6], second[6];
    for (std::size_t j = 0; j < length; ++j) first[j] = row[j].first, second[j] = row[j].second;
    scatterRows(operand, n, i, length, first);
    scatterRows(operand, n + four, i, length, second);
}

// The matrices of four objects, the first so many elements of each row of them, gathered for each four anew; but one
// matrix that serves an array of adjacent objects is gathered once, as nothing that is written then overlaps it.
template <class Operand, class Written, std::size_t order> class FourMatrices {
public:
    static constexpr bool isGatheredOnce = !Operand::isArray && !Written::isList;

    FourMatrices(const Operand &operand, bool isTriangle) : operand(operand), isTriangle(isTriangle) {
        if (isGatheredOnce) gatherAll(0);
    }
    VONKK3_INLINE void gatherFrom(std::size_t n) {
        if (!isGatheredOnce) gatherAll(n);
    }
    Apart<FourReals, order> elements() { return {rows}; }

private:
    const Operand &operand;
    bool isTriangle;
    FourReals rows[order][order];

    VONKK3_INLINE void gatherAll(std::size_t n) {
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            gatherRows(operand, n, i, isTriangle ? i + 1 : order, rows[i]);
        });
    }
};

// Of objects n to n + 3; nothing is looked at behind the first null entry.
template <class... Operands> VONKK3_INLINE bool anyListEntryNull(std::size_t n, const Operands &...operands) {
    for (std::size_t k = n; k < n + four; ++k)
        if ((operands.listHasNull(k) || ...)) return true;
    return false;
}

// `one` for each object in turn, but for four objects at once, or eight, where `fourFrom` says that it has done them.
// Nulls and failures are left to `one`.
template <class Count, class FourFrom, class One>
VONKK3_INLINE VonkStatus forEachFourOrOne(Count count, FourFrom &&fourFrom, const One &one) {
    const std::size_t objects = count;
    for (std::size_t n = 0; n < objects;) {
        if constexpr (FourFrom::worksEight)
            if (objects - n >= 2 * four && fourFrom.eightFrom(n)) {
                n += 2 * four;
                continue;
            }
        if (objects - n >= four && fourFrom(n)) {
            n += four;
            continue;
        }
        if (const VonkStatus status = one(n); status != vonkOk) return status;
        ++n;
    }
    return vonkOk;
}

} // namespace vonkk3::cholqr
