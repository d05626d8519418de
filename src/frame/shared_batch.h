// What batches of linear algebra have in common: their operands, made from a call's words, whatever the layouts.
#pragma once

#include "frame/batch.h"
#include "frame/shared_operand.h"

namespace vonkk3 {

// Matrices that are made of matrices.
struct MatrixWords {
    OperandWords src, dst;
};

template <std::size_t order, Triangle triangle = Triangle::both> struct MatrixBatch {
    MatricesOfBatch<order, true, triangle> src, dst;

    template <class Tables>
    VONKK3_INLINE MatrixBatch(const MatrixWords &words, std::size_t count, Tables throughTables)
        : src(words.src, count, throughTables), dst(words.dst, count, throughTables) {}

    Access access() const { return accessOf(src.view, dst.view); }
    template <Access access> VONKK3_INLINE void hoist() {
        src.template hoist<access>();
        dst.template hoist<access>();
    }
};

// Systems of equations: one factored matrix serves all right-hand sides (mva), or each has its own (mava).
struct SystemWords {
    OperandWords src1, src2, dst;
};

template <std::size_t order, bool isArray, Triangle triangle = Triangle::both> struct SystemBatch {
    MatricesOfBatch<order, isArray, triangle> src1;
    VectorsOfBatch<order> src2, dst;

    template <class Tables>
    VONKK3_INLINE SystemBatch(const SystemWords &words, std::size_t count, Tables throughTables)
        : src1(words.src1, count, throughTables), src2(words.src2, count, throughTables),
          dst(words.dst, count, throughTables) {}

    Access access() const { return accessOf(src1.view, src2.view, dst.view); }
    template <Access access> VONKK3_INLINE void hoist() {
        src1.template hoist<access>();
        src2.template hoist<access>();
        dst.template hoist<access>();
    }
};

} // namespace vonkk3
