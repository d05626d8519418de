// The rows of a matrix while it is factored, by position: position k is logical row k, wherever it lies. They begin as
// a copy of the source in the order of the source. Row indices overlap neither matrix.
#pragma once

#include "frame/aliasing.h"
#include "frame/gather.h"
#include "lu/permutation.h"

namespace vonkk3::lu {

// Whether elements of the destination do not overlap each other. Then nothing tells what is kept in registers from what
// is in memory.
template <class T> VONKK3_INLINE bool areElementsDisjoint(const RowsView<T> &factors, std::size_t order) {
    return areRowsDisjoint(factors, order);
}
template <class T> VONKK3_INLINE bool areElementsDisjoint(const StridedView<T> &factors, std::size_t order) {
    const Address row = magnitudeOf(factors.rowStride), element = magnitudeOf(factors.elementStride);
    return row < element ? row >= sizeof(T) && element >= row * (order - 1) + sizeof(T)
                         : element >= sizeof(T) && row >= element * (order - 1) + sizeof(T);
}
template <class T> VONKK3_INLINE bool areElementsDisjoint(const TableView<T> &factors, std::size_t order) {
    const auto address = [&](std::size_t k) { return Address(reinterpret_cast<std::uintptr_t>(factors.at(k))); };
    const auto distance = [&](std::size_t from, std::size_t to) { return Distance(address(to) - address(from)); };
    Distance least = sizeof(T);
    for (std::size_t k = 1; k < order * order; ++k) {
        const Distance step = distance(k - 1, k);
        least = step < least ? step : least;
    }
    if (least >= Distance(sizeof(T))) [[likely]]
        return true; // they ascend
    for (std::size_t k = 1; k < order * order; ++k)
        for (std::size_t l = 0; l < k; ++l)
            if (magnitudeOf(distance(k, l)) < sizeof(T)) return false;
    return true;
}

// Every step is stored at once, and rows stay where they are.
template <class T, class Factors, class Order> class RowsInMemory {
public:
    template <class Source>
    VONKK3_INLINE RowsInMemory(const Source &source, const Factors &factors, std::byte *pivots, Order order)
        : factors(copied(source, factors, order)), rows(pivots, order) {}

    T load(std::size_t position, std::size_t column) const { return factors.load(rows[position], column); }
    void store(std::size_t position, std::size_t column, T value) { factors.store(rows[position], column, value); }
    VONKK3_INLINE void exchange(std::size_t a, std::size_t b) { rows.exchange(a, b); }
    std::size_t operator[](std::size_t position) const { return rows[position]; }

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

// A Real32 matrix of fixed order is worked in a local copy, where rows are exchanged in fact, and stored when all is
// done.
template <std::size_t order> class LocalRows {
public:
    // Where the source may overlap the destination it is copied there, element by element, as it is read.
    template <bool copiesAsItReads, class Source, class Factors>
    VONKK3_INLINE void load(const Source &source, const Factors &factors) {
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            rows[i] = i;
            forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED {
                elements[i][j] = source.load(i, j);
                if (copiesAsItReads) factors.store(i, j, elements[i][j]);
            });
        });
    }
    template <class Factors> VONKK3_INLINE void store(const Factors &factors, std::byte *pivots) const {
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            storePivot(pivots, i, rows[i]);
            forIndices(0, order, fixed<order>,
                       [&](std::size_t j) VONKK3_INLINED { factors.store(rows[i], j, elements[i][j]); });
        });
    }

    Real32 load(std::size_t position, std::size_t column) const { return elements[position][column]; }
    void store(std::size_t position, std::size_t column, Real32 value) { elements[position][column] = value; }
    std::size_t operator[](std::size_t position) const { return rows[position]; }

    // Position a is known when compiling, b is not: comparing b with every index leaves all elements in registers.
    VONKK3_INLINE void exchange(std::size_t a, std::size_t b) {
        forIndices(a + 1, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
            if (k != b) return;
            std::swap(rows[a], rows[k]);
            forIndices(0, order, fixed<order>,
                       [&](std::size_t j) VONKK3_INLINED { std::swap(elements[a][j], elements[k][j]); });
        });
    }

private:
    Real32 elements[order][order];
    std::size_t rows[order];
};

template <std::size_t chains, std::size_t order>
VONKK3_INLINE void copyElements(const Packs<chains> (&from)[order][order], Packs<chains> (&to)[order][order]) {
    forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
        forIndices(0, order, fixed<order>, [&](std::size_t j) VONKK3_INLINED { to[i][j] = from[i][j]; });
    });
}

// Those of the objects of a batch, and where they lie. Rows are exchanged in the lanes of a mask. Where they are going
// to return, an exchange leaves the columns alone that are finished.
template <std::size_t chains, std::size_t order, bool rowsReturn> class RowsOfBatch {
public:
    using Mask = PackMasks<chains>;

    RowsOfBatch() = default;
    VONKK3_INLINE RowsOfBatch(const RowsOfBatch &other) {
        copyElements(other.elements, elements);
        forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
            rows[0][i] = other.rows[0][i];
            forIndices(i + 1, order, fixed<order>,
                       [&](std::size_t k) VONKK3_INLINED { exchanged[i][k] = other.exchanged[i][k]; });
        });
    }
    RowsOfBatch &operator=(const RowsOfBatch &) = delete;

    VONKK3_INLINE void begin() {
        forIndices(0, order, fixed<order>,
                   [&](std::size_t i) VONKK3_INLINED { rows[0][i] = packOfIndex<Packs<chains>>(std::uint32_t(i)); });
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
            exchangeElements(elements, a, i, rowsReturn ? a : 0, order);
        });
    }

    // Back to where they lie.
    VONKK3_INLINE void takeBackExchanges() requires(rowsReturn) {
        forIndices(1, order, fixed<order>, [&](std::size_t later) VONKK3_INLINED {
            const std::size_t a = order - 1 - later;
            forIndices(a + 1, order, fixed<order>,
                       [&](std::size_t i) VONKK3_INLINED { exchangeElements(elements, a, i, a, order); });
        });
    }

    // Of one object, an element of a physical row: of rows that return, once they have. Rarely asked for, in memory.
    VONKK3_INLINE std::uint32_t bits(std::size_t object, std::size_t row, std::size_t column) const {
        std::size_t i = row;
        if constexpr (!rowsReturn)
            for (i = 0; i + 1 < order && ofObject(rows[0][i], object) != row;) ++i;
        return ofObject(elements[i][column], object);
    }

    Packs<chains> elements[order][order];
    Packs<chains> rows[1][order]; // as indices

private:
    Mask exchanged[order][order];

    static std::uint32_t ofObject(const Packs<chains> &pack, std::size_t object) {
        return loadAt<std::uint32_t>(reinterpret_cast<const std::byte *>(&pack) + object * sizeof(Real32));
    }

    VONKK3_INLINE void exchangeElements(Packs<chains> (&block)[order][order], std::size_t a, std::size_t i,
                                        std::size_t from, std::size_t to) const {
        forIndices(from, to, fixed<order>,
                   [&](std::size_t j) VONKK3_INLINED { exchangeWhere(exchanged[a][i], block[a][j], block[i][j]); });
    }
};

} // namespace vonkk3::lu
