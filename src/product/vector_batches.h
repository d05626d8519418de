// Matrix by vector and Gaxpy of disjoint Real32 operands, running sums from +0, with objects in SIMD lanes: one matrix
// for all vectors, matrices whose rows are contiguous, or small ones found through a table.
#pragma once

#include "frame/batch.h"

namespace vonkk3::product {

template <std::size_t order, bool throughTables, bool firstIsArray, bool secondIsArray, bool hasAddend>
struct VectorBatch {
    static constexpr std::size_t chains = hasAddend ? 2 : 1; // an addend comes late
    static constexpr bool takesPositions = false;            // products through tables have a faster path
    static constexpr bool takesAny = !firstIsArray || order <= 4;
    static constexpr bool takesRows = !throughTables;
    BatchOperand<order, order, firstIsArray, Triangle::both, order <= 4> a;
    VectorsOfBatch<order, secondIsArray> v;
    VectorsOfBatch<order> w, d;

    template <class Words>
    VONKK3_INLINE VectorBatch(const Words &words, std::size_t count)
        : a(objectsOf<Real32, throughTables>(words.a, order, order, count)), v(vectorOf(words.b, count)),
          w(vectorOf(addendOf(words), count)), d(vectorOf(words.d, count)) {}

    auto aliasing(std::size_t count) const {
        if constexpr (hasAddend) return Aliasing(count, writes(d.view), reads(a.view), reads(v.view), reads(w.view));
        else return Aliasing(count, writes(d.view), reads(a.view), reads(v.view));
    }

    Access access() const { return accessOf(a.view, v.view, w.view, d.view); }
    template <Access access> VONKK3_INLINE void hoist() {
        a.template hoist<access>();
        v.template hoist<access>();
        if constexpr (hasAddend) w.template hoist<access>();
        d.template hoist<access>();
    }
    template <Access access, std::size_t chains> VONKK3_INLINE bool work(std::size_t n) const {
        Packs<chains> result[1][order];
        a.template with<access, chains>(n, [&](const auto &matrix) VONKK3_INLINED {
            v.template with<access, chains>(n, [&](const auto &vector) VONKK3_INLINED {
                forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
                    Packs<chains> sum = 0.0F;
                    forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED {
                        sum = sum + Packs<chains>(matrix[i][k]) * Packs<chains>(vector[0][k]);
                    });
                    result[0][i] = sum;
                });
            });
        });
        if constexpr (hasAddend) {
            Packs<chains> addend[1][order];
            w.template gather<access>(n, addend);
            for (std::size_t i = 0; i < order; ++i) result[0][i] = result[0][i] + addend[0][i];
        }
        d.template scatter<access>(n, result);
        return true;
    }

private:
    // A column.
    VONKK3_INLINE static ObjectsView vectorOf(const OperandWords &words, std::size_t count) {
        return transposedView(objectsOf<Real32, throughTables>(words, order, 1, count));
    }
    template <class Words> VONKK3_INLINE static const OperandWords &addendOf(const Words &words) {
        if constexpr (hasAddend) return words.addend;
        else return words.d;
    }
};

} // namespace vonkk3::product
