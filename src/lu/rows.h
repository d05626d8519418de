// The rows of a matrix while it is factored, by position: position k is logical row k, wherever it lies. They begin as
// a copy of the source in the order of the source.
#pragma once

#include "frame/aliasing.h"
#include "frame/gather.h"
#include "lu/permutation.h"

namespace vonkk3::lu {

// Every step goes to the caller's memory at once, and rows stay where they are. Right for all operands, whatever they
// overlap.
template <class T, class Factors, class Order> class RowsInMemory {
public:
    template <class Source>
    VONKK3_INLINE RowsInMemory(const Source &source, const Factors &factors, std::byte *pivots, Order order)
        : factors(copied(source, factors, order)), rows(pivots, order) {}

    T load(std::size_t position, std::size_t column) const { return factors.load(rows[position], column); }
    void store(std::size_t position, std::size_t column, T value) { factors.store(rows[position], column, value); }
    VONKK3_INLINE void exchange(std::size_t a, std::size_t b) { rows.exchange(a, b); }
    std::size_t physical(std::size_t position) const { return rows[position]; }
    void finish() const {}

private:
    template <class Source>
    VONKK3_INLINE static const Factors &copied(const Source &source, const Factors &factors, Order order) {
        forIndices(0, order, order, [&](std::size_t i) VONKK3_INLINED {
            forIndices(0, order, order, [&](std::size_t j) VONKK3_INLINED { factors.store(i, j, source.load(i, j)); });
        });
        return factors;
    }

    const Factors &factors;
    GrowingPermutation<Order> rows;
};

// The matrix is worked on in a local copy, where rows can be exchanged in fact, and stored when all is done. For
// destinations whose rows are disjoint from each other and from the source, or in place.
template <class T, class Factors, std::size_t order> class RowsInRegisters {
public:
    template <class Source>
    VONKK3_INLINE RowsInRegisters(const Source &source, const Factors &factors, std::byte *pivots)
        : factors(factors), pivots(pivots) {
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            rows[i] = i;
            forIndices(0, order, fixed<order>,
                       [&](std::size_t j) VONKK3_INLINED { elements[i][j] = source.load(i, j); });
        });
    }

    T load(std::size_t position, std::size_t column) const { return elements[position][column]; }
    void store(std::size_t position, std::size_t column, T value) { elements[position][column] = value; }
    std::size_t physical(std::size_t position) const { return rows[position]; }

    // Position a is known when compiling, b is not: asking for every b leaves all elements in registers.
    VONKK3_INLINE void exchange(std::size_t a, std::size_t b) {
        forIndices(a + 1, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            if (k != b) return;
            std::swap(rows[a], rows[k]);
            forIndices(0, order, fixed<order>,
                       [&](std::size_t j) VONKK3_INLINED { std::swap(elements[a][j], elements[k][j]); });
        });
    }

    VONKK3_INLINE void finish() const {
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            storePivot(pivots, i, rows[i]);
            forIndices(0, order, fixed<order>,
                       [&](std::size_t j) VONKK3_INLINED { factors.store(rows[i], j, elements[i][j]); });
        });
    }

private:
    const Factors &factors;
    std::byte *pivots;
    T elements[order][order];
    std::size_t rows[order];
};

// Those of the objects of a batch, and where they lie. Rows are exchanged in the lanes of a mask.
template <std::size_t chains, std::size_t order> class RowsOfBatch {
public:
    using Mask = PackMasks<chains>;
    static constexpr std::size_t objects = chains * packWidth;

    VONKK3_INLINE RowsOfBatch() {
        forIndices(0, order, fixed<order>,
                   [&](std::size_t i) VONKK3_INLINED { rows[0][i] = packOfIndex(std::uint32_t(i)); });
    }
    const Packs<chains> &load(std::size_t position, std::size_t column) const { return elements[position][column]; }
    void store(std::size_t position, std::size_t column, const Packs<chains> &value) {
        elements[position][column] = value;
    }

    // Where mask[i] is set, position a and the later position i.
    VONKK3_INLINE void exchange(std::size_t a, const Mask (&mask)[order]) {
        forIndices(a + 1, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            exchanged[a][i] = mask[i];
            exchangeWhere(mask[i], rows[0][a], rows[0][i]);
            exchangeElements(a, i);
        });
    }

    // Back to where they lie.
    VONKK3_INLINE void takeBackExchanges() {
        forIndices(1, order, fixed<order>, [&](std::size_t later) VONKK3_INLINED {
            const std::size_t a = order - 1 - later;
            forIndices(a + 1, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED { exchangeElements(a, i); });
        });
    }

    // Of one object. Rarely asked for, from a copy: an index that is not known when compiling would keep the elements
    // out of registers.
    VONKK3_INLINE Real32 element(std::size_t object, std::size_t i, std::size_t j) const {
        Packs<chains> copy[order][order];
        forIndices(0, order, fixed<order>, [&](std::size_t row) VONKK3_INLINED {
            forIndices(0, order, fixed<order>,
                       [&](std::size_t column) VONKK3_INLINED { copy[row][column] = elements[row][column]; });
        });
        return loadAt<Real32>(reinterpret_cast<const std::byte *>(&copy[i][j]) + object * sizeof(Real32));
    }

    Packs<chains> elements[order][order];
    Packs<chains> rows[1][order]; // as indices

private:
    Mask exchanged[order][order];

    VONKK3_INLINE void exchangeElements(std::size_t a, std::size_t i) {
        forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
            exchangeWhere(exchanged[a][i], elements[a][j], elements[i][j]);
        });
    }
};

// Worth it for Real32 of fixed order with adjacent elements; Real64 goes through memory anyway, as its roundings do.
template <class Factors, class Order> inline constexpr bool fitsRegisters = false;
template <std::size_t order> inline constexpr bool fitsRegisters<RowsView<Real32>, Fixed<order>> = true;

VONKK3_INLINE bool mayWorkInRegisters(const RowsView<const Real32> &source, const RowsView<Real32> &factors,
                                      std::size_t order) {
    const auto rowBytes = std::ptrdiff_t(order * sizeof(Real32));
    if (factors.rowStride < rowBytes && factors.rowStride > -rowBytes) return false;
    if (source.base == factors.base && source.rowStride == factors.rowStride) return true;
    return disjoint(extentOf(source, order, order), extentOf(factors, order, order));
}

} // namespace vonkk3::lu
