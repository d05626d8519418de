// Products of arrays as running sums, d(i, j) = ((0 + a(i, 0) b(0, j)) + a(i, 1) b(1, j)) + ..., wherever no row kernel
// serves: all run-time sizes, all Real64, most strided and pointer layouts; with Gaxpy's addend, which comes last. A
// vector is a matrix of one column. Operands come as views without their layout; a transposed one has its strides
// exchanged.
#pragma once

#include "frame/batch.h"
#include "frame/shared_operand.h"
#include "product/kernels.h"
#include "product/position_products.h"
#include "product/schemes.h"
#include "product/vector_batches.h"

namespace vonkk3::product {

// Of a call; the addend is Gaxpy's.
struct ProductWords {
    OperandWords a, b, d;
};
struct GaxpyWords : ProductWords {
    OperandWords addend;
};

// d is rows by columns, and every element a sum of so many terms. What the order fixes is constant.
template <std::size_t order, bool isVector> struct SumShape {
    static constexpr bool ofVector = isVector;
    static constexpr std::size_t fixedOrder = order;
    std::size_t runTimeRows, runTimeColumns, runTimeTerms;
    constexpr std::size_t rows() const { return order == 0 ? runTimeRows : order; }
    constexpr std::size_t columns() const { return isVector ? 1 : order == 0 ? runTimeColumns : order; }
    constexpr std::size_t terms() const { return order == 0 ? runTimeTerms : order; }
    bool isSquare() const { return rows() == terms() && (isVector || rows() == columns()); }
};

// The operands as views.
template <class T, bool throughTables, class Words> struct ProductOperands {
    static constexpr bool hasAddend = std::is_same_v<Words, GaxpyWords>;
    ObjectsView a, b, d, addend;

    template <class Shape>
    VONKK3_INLINE ProductOperands(const Words &words, const Shape &shape, std::size_t count)
        : a(objectsOf<T, throughTables>(words.a, shape.rows(), shape.terms(), count)),
          b(objectsOf<T, throughTables>(words.b, shape.terms(), shape.columns(), count)),
          d(objectsOf<T, throughTables>(words.d, shape.rows(), shape.columns(), count)) {
        if constexpr (hasAddend)
            addend = objectsOf<T, throughTables>(words.addend, shape.rows(), shape.columns(), count);
    }

    auto first(std::size_t n) const { return objectAt<throughTables, const T>(a, n); }
    auto second(std::size_t n) const { return objectAt<throughTables, const T>(b, n); }
    auto result(std::size_t n) const { return objectAt<throughTables, T>(d, n); }
    auto added(std::size_t n) const {
        if constexpr (hasAddend) return Addend{objectAt<throughTables, const T>(addend, n)};
        else return NoAddend{};
    }

    // The addend is read after the element it is added to has been set to zero, so in place is none of the fast path's.
    auto aliasing(std::size_t count) const {
        if constexpr (hasAddend) return Aliasing(count, writes(d), reads(a), reads(b), reads(addend));
        else return Aliasing(count, writes(d), reads(a), reads(b));
    }
};

// Of arrays through tables.
inline bool arePositionsContiguous(const ProductWords &words) {
    const auto isContiguous = [](const OperandWords &operand) {
        return !operand.isArray || operand.step == std::int32_t(sizeof(Real32));
    };
    return isContiguous(words.a) && isContiguous(words.b) && isContiguous(words.d);
}
inline bool arePositionsContiguous(const GaxpyWords &words) {
    return arePositionsContiguous(static_cast<const ProductWords &>(words)) &&
           words.addend.step == std::int32_t(sizeof(Real32));
}

// Of arrays that are not.
inline bool hasContiguousRows(const OperandWords &matrix) {
    return matrix.elementStride == std::int32_t(sizeof(Real32));
}
inline bool isContiguousColumn(const OperandWords &column) { return column.rowStride == std::int32_t(sizeof(Real32)); }

// ---- Disjoint operands: sums stay in registers, every element is stored once ----------------------------------------

template <std::size_t order, class B> VONKK3_INLINE void holdRows(HeldRows<order> &held, const B &b) {
    held.loadHead(b);
    if constexpr (order == 5) held.loadLast(b);
    if constexpr (order == 6) held.loadPairs(b);
}

template <std::size_t order, class A, class D>
VONKK3_INLINE void sumByRows(const A &a, const HeldRows<order> &held, const D &d) {
    constexpr SumBegins begins = SumBegins::withZero;
    if constexpr (order <= 4) multiplyRows<begins>(a, held, d);
    else if constexpr (order == 5)
        multiplyRowsOfFive<begins>(a, held, d, [&](std::size_t k) VONKK3_INLINED { return held.last[k]; });
    else multiplyRowsOfSix<begins>(a, held, d), multiplyPairsOfSix<begins>(a, held, d);
}

// Real32 matrices: rows of the result in SIMD lanes.
template <std::size_t order, class Operands> struct MatrixSums {
    static constexpr bool lanesWithinObject = true;
    static constexpr std::size_t chains = 1;
    Operands operands;
    HeldRows<order> held;

    template <class Words, class Shape>
    VONKK3_INLINE MatrixSums(const Words &words, const Shape &shape, std::size_t count)
        : operands(words, shape, count) {}
    auto aliasing(std::size_t count) const { return operands.aliasing(count); }
    Access access() const { return Access::any; }
    template <Access> VONKK3_INLINE void hoist() {
        if (!operands.b.isArray) holdRows(held, operands.second(0));
    }
    template <Access, std::size_t> VONKK3_INLINE bool work(std::size_t n) {
        if (operands.b.isArray) holdRows(held, operands.second(n));
        sumByRows(operands.first(n), held, operands.result(n));
        return true;
    }
};

// Anything else, element by element.
template <class T, class Shape, class Operands> struct SumsByElement {
    static constexpr bool lanesWithinObject = true;
    static constexpr std::size_t chains = 1;
    Operands operands;
    Shape shape;

    auto aliasing(std::size_t count) const { return operands.aliasing(count); }
    Access access() const { return Access::any; }
    template <Access> void hoist() {}
    template <Access, std::size_t> VONKK3_INLINE bool work(std::size_t n) const {
        if constexpr (std::is_same_v<T, Real32> && Shape::ofVector) {
            constexpr std::size_t order = Shape::fixedOrder;
            const auto a = operands.first(n), v = operands.second(n);
            const auto d = operands.result(n);
            Real32 element[order]; // read once for all rows
            forIndices(0, order, fixed<order>, [&](std::size_t k) VONKK3_INLINED { element[k] = v.load(k, 0); });
            forIndices(0, order, fixed<order>, [&](std::size_t i) VONKK3_INLINED {
                Real32 sum = 0;
                forIndices(0, order, fixed<order>,
                           [&](std::size_t k) VONKK3_INLINED { sum = sum + a.load(i, k) * element[k]; });
                d.store(i, 0, sum);
            });
        } else
            sumOnce<T>(operands.first(n), operands.second(n), operands.result(n), shape.rows(), shape.columns(),
                       shape.terms(), operands.added(n));
        return true;
    }
};

// ---- All objects ----------------------------------------------------------------------------------------------------

// One object after the other, from words in registers.
template <class T, bool inCell, class A, class B, class D, class Words, class Shape>
VONKK3_SHARED VonkStatus sumPlainly(const Words &words, const Shape &sizes, std::size_t n, std::size_t to) {
    const Shape shape = sizes;
    const A a(words.a);
    const B b(words.b);
    const D d(words.d);
    const auto walk = [&](const auto &anyListHasNull, const auto &added) VONKK3_INLINED {
        for (; n < to; ++n) {
            if (a.listHasNull(n) || b.listHasNull(n) || d.listHasNull(n) || anyListHasNull(n)) return vonkErrNullPtr;
            const auto columns = [&](const auto &operand, std::size_t fixedColumns) VONKK3_INLINED {
                return Shape::fixedOrder != 0 ? fixedColumns : std::uint32_t(operand.elementStride);
            };
            sumIntoCells<T, inCell, false>(a.view(n, columns(a, shape.terms())), b.view(n, columns(b, shape.columns())),
                                           d.view(n, columns(d, shape.columns())), shape.rows(), shape.columns(),
                                           shape.terms(), added(n));
        }
        return vonkOk;
    };
    if constexpr (std::is_same_v<Words, GaxpyWords>) {
        const B w(words.addend);
        return walk([&](std::size_t k) VONKK3_INLINED { return w.listHasNull(k); },
                    [&](std::size_t k) VONKK3_INLINED { return Addend{w.view(k, 1)}; });
    } else return walk([](std::size_t) { return false; }, [](std::size_t) { return NoAddend{}; });
}

template <class T, bool inCell, bool throughTables, class Words, class Shape>
VONKK3_INLINE VonkStatus sumPlainly(const Words &words, const Shape &shape, std::size_t from, std::size_t to) {
    using A = SharedOperand<const T, throughTables>;
    using D = SharedOperand<T, throughTables>;
    if constexpr (throughTables) {
        using Transposed = SharedOperand<const T, true, true>;
        if constexpr (!Shape::ofVector) {
            if (words.a.isTransposed && words.b.isTransposed)
                return sumPlainly<T, inCell, Transposed, Transposed, D>(words, shape, from, to);
            if (words.b.isTransposed) return sumPlainly<T, inCell, A, Transposed, D>(words, shape, from, to);
        }
        if (words.a.isTransposed) return sumPlainly<T, inCell, Transposed, A, D>(words, shape, from, to);
    }
    return sumPlainly<T, inCell, A, A, D>(words, shape, from, to);
}

template <class T, bool inCell, bool throughTables, class Words, class Shape>
VONKK3_SHARED VonkStatus sumArrays(const Words &words, const Shape &sizes, std::size_t count) {
    constexpr std::size_t order = Shape::fixedOrder;
    const Shape shape = sizes;
    const auto plainly = [&](std::size_t from, std::size_t to)
                             VONKK3_INLINED { return sumPlainly<T, inCell, throughTables>(words, shape, from, to); };
    const auto inBatches = [&](auto &batch) VONKK3_INLINED {
        return forEachBatch(batch, batch.aliasing(count), count, [&](std::size_t n) { return plainly(n, n + 1); });
    };
    using Operands = ProductOperands<T, throughTables, Words>;
    constexpr bool hasAddend = Operands::hasAddend;
    if constexpr (std::is_same_v<T, Real32> && throughTables)
        if (count >= worthBatches && arePositionsContiguous(words)) {
            const Operands p(words, shape, count);
            std::size_t done = inWholePacks(count);
            if (!p.aliasing(count).allowsBatch(0, done)) done = 0;
            else if constexpr (Shape::ofVector) multiplyVectors<order, hasAddend>(p, done);
            else multiplyMatrices<SumBegins::withZero, order>(p, done);
            return plainly(done, count);
        }
    if constexpr (std::is_same_v<T, Real32> && Shape::ofVector) {
        const auto inVectorBatches = [&]<bool firstIsArray, bool secondIsArray>() VONKK3_INLINED {
            VectorBatch<order, throughTables, firstIsArray, secondIsArray, hasAddend> batch(words, count);
            return inBatches(batch);
        };
        if (!words.a.isArray) return inVectorBatches.template operator()<false, true>();
        if constexpr (!throughTables && !hasAddend)
            if (hasContiguousRows(words.a) && isContiguousColumn(words.d) &&
                (!words.b.isArray || isContiguousColumn(words.b)))
                return words.b.isArray ? inVectorBatches.template operator()<true, true>()
                                       : inVectorBatches.template operator()<true, false>();
        SumsByElement<T, Shape, Operands> sums{Operands(words, shape, count), shape};
        return inBatches(sums);
    } else if constexpr (std::is_same_v<T, Real32>) {
        MatrixSums<order, Operands> sums(words, shape, count);
        return inBatches(sums);
    } else {
        SumsByElement<T, Shape, Operands> sums{Operands(words, shape, count), shape};
        return inBatches(sums);
    }
}

// Where disjoint operands gain: arrays of packs, and Real64 whose sums stay wide. Square Real32 matrices of order 3 to
// 6 whose sizes come at run time are worked as those of fixed order.
template <class T, bool inCell, bool throughTables, class Words, std::size_t order, bool isVector>
VONKK3_INLINE VonkStatus sumProducts(const Words &words, const SumShape<order, isVector> &shape, std::size_t count) {
    if constexpr (std::is_same_v<T, Real64>) {
        if constexpr (!inCell && !throughTables) return sumArrays<T, inCell, throughTables>(words, shape, count);
        else return sumPlainly<T, inCell, throughTables>(words, shape, 0, count);
    } else {
        if (count < packWidth) return sumPlainly<T, inCell, throughTables>(words, shape, 0, count);
        if constexpr (order != 0) return sumArrays<T, inCell, throughTables>(words, shape, count);
        else {
            const auto otherwise = [&]() VONKK3_INLINED {
                return sumPlainly<T, inCell, throughTables>(words, shape, 0, count);
            };
            const auto hasRowsOf = [&](const OperandWords &table, std::size_t columns) VONKK3_INLINED {
                return !throughTables || std::uint32_t(table.elementStride) == columns;
            };
            if (!shape.isSquare() || !hasRowsOf(words.a, shape.terms()) || !hasRowsOf(words.b, shape.columns()))
                return otherwise();
            return withFixedOrder(
                RunTime{std::uint32_t(shape.rows())},
                [&](auto fixedOrder) VONKK3_INLINED {
                    const SumShape<decltype(fixedOrder)::value, isVector> fixedShape{};
                    return sumArrays<T, inCell, throughTables>(words, fixedShape, count);
                },
                otherwise);
        }
    }
}

} // namespace vonkk3::product
