// Matrix by vector and Gaxpy of disjoint Real32 operands, running sums from +0, with objects in SIMD lanes: one matrix
// for all vectors, or matrices whose rows are contiguous.
#pragma once

#include "frame/batch.h"

namespace vonkk3::product {

template <std::size_t order, bool firstIsArray, bool secondIsArray, bool hasAddend> struct VectorBatch {
    static constexpr std::size_t chains = 1;
    MatricesOfBatch<order, firstIsArray> a;
    VectorsOfBatch<order, secondIsArray> v;
    VectorsOfBatch<order> w, d;

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
};

template <std::size_t order, class A, class V, class D, class One>
VONKK3_INLINE VonkStatus multiplyInBatches(const A &src1, const V &src2, const D &dst, std::size_t count,
                                           const One &one) {
    VectorBatch<order, A::isArray, V::isArray, false> batch{{src1, count}, {src2, count}, {dst, count}, {dst, count}};
    return forEachBatch(batch, Aliasing(count, writes(batch.d.view), reads(batch.a.view), reads(batch.v.view)), count,
                        one);
}

template <std::size_t order, class A, class V, class W, class D, class One>
VONKK3_INLINE VonkStatus gaxpyInBatches(const A &src1, const V &src2, const W &src3, const D &dst, std::size_t count,
                                        const One &one) {
    VectorBatch<order, false, true, true> batch{{src1, count}, {src2, count}, {src3, count}, {dst, count}};
    const Aliasing aliasing(count, writes(batch.d.view), reads(batch.a.view), reads(batch.v.view), reads(batch.w.view));
    return forEachBatch(batch, aliasing, count, one);
}

} // namespace vonkk3::product
