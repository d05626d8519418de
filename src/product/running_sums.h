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

// The positions of a table, read once for all objects of a batch: what is written overlaps no table.
template <class T, std::size_t rows, std::size_t columns> struct HoistedTable {
    ByteOf<T> *position[rows][columns];

    struct Object : ElementAccess<Object, T> {
        ByteOf<T> *const (&position)[rows][columns];
        std::ptrdiff_t offset;
        Object(ByteOf<T> *const (&position)[rows][columns], std::ptrdiff_t offset)
            : position(position), offset(offset) {}
        ByteOf<T> *at(std::size_t i, std::size_t j) const { return position[i][j] + offset; }
    };
    VONKK3_INLINE void hoist(const ObjectsView &objects) {
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j)
                position[i][j] = reinterpret_cast<ByteOf<T> *>(objects.position(i, j));
    }
    Object object(const ObjectsView &objects, std::size_t n) const {
        return {position, strides(n, objects.objectStride)};
    }
};
struct NotHoisted {};

// The operands as views.
template <class T, bool throughTables, class Words, class Shape> struct ProductOperands {
    static constexpr bool hasAddend = std::is_same_v<Words, GaxpyWords>;
    static constexpr std::size_t order = Shape::fixedOrder;
    static constexpr bool isHoisted = throughTables && order != 0;
    template <class E, std::size_t columns>
    using Table =
        std::conditional_t<isHoisted, HoistedTable<E, isHoisted ? order : 1, isHoisted ? columns : 1>, NotHoisted>;

    ObjectsView a, b, d, addend;
    Table<const T, order> aTable;
    Table<const T, Shape::ofVector ? 1 : order> bTable;
    Table<T, Shape::ofVector ? 1 : order> dTable;

    VONKK3_INLINE ProductOperands(const Words &words, const Shape &shape, std::size_t count)
        : a(objectsOf<T, throughTables>(words.a, shape.rows(), shape.terms(), count)),
          b(objectsOf<T, throughTables>(words.b, shape.terms(), shape.columns(), count)),
          d(objectsOf<T, throughTables>(words.d, shape.rows(), shape.columns(), count)) {
        if constexpr (hasAddend)
            addend = objectsOf<T, throughTables>(words.addend, shape.rows(), shape.columns(), count);
    }

    VONKK3_INLINE void hoist() {
        if constexpr (isHoisted) aTable.hoist(a), bTable.hoist(b), dTable.hoist(d);
    }
    template <class E, class Held>
    VONKK3_INLINE auto object(const ObjectsView &view, const Held &table, std::size_t n) const {
        if constexpr (isHoisted) return table.object(view, n);
        else return objectAt<throughTables, E>(view, n);
    }
    auto first(std::size_t n) const { return object<const T>(a, aTable, n); }
    auto second(std::size_t n) const { return object<const T>(b, bTable, n); }
    auto result(std::size_t n) const { return object<T>(d, dTable, n); }
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
    return arePacked(words.a) && arePacked(words.b) && arePacked(words.d);
}
inline bool arePositionsContiguous(const GaxpyWords &words) {
    return arePositionsContiguous(static_cast<const ProductWords &>(words)) && arePacked(words.addend);
}

// Whether an entry of their tables is null.
template <class Words, class Shape> inline bool isAnyPositionNull(const Words &words, const Shape &shape) {
    const std::size_t rows = opaque(shape.rows()), columns = opaque(shape.columns()), terms = opaque(shape.terms());
    const auto isAnyNull = [](std::size_t positions, const OperandWords &operand)
                               VONKK3_INLINED { return anyTableEntryNull(positions, TableWords{operand}); };
    if constexpr (std::is_same_v<Words, GaxpyWords>)
        if (isAnyNull(rows, words.addend)) return true;
    return isAnyNull(rows * terms, words.a) || isAnyNull(terms * columns, words.b) ||
           isAnyNull(rows * columns, words.d);
}

// The usual alias test of those, which no null entry passes.
template <class Words, class Shape>
VONKK3_INLINE bool arePlainlyIndependent(const Words &words, const Shape &shape, std::size_t count) {
    const std::size_t rows = shape.rows(), columns = shape.columns(), terms = shape.terms();
    const Extent written = plainlyWritten(words.d, rows, columns, count);
    if constexpr (std::is_same_v<Words, GaxpyWords>)
        if (!isPlainlyDisjoint(written, words.addend, rows, columns, count)) return false;
    return isPlainlyDisjoint(written, words.a, rows, terms, count) &&
           isPlainlyDisjoint(written, words.b, terms, columns, count);
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
        operands.hoist();
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
    template <Access> VONKK3_INLINE void hoist() { operands.hoist(); }
    template <Access, std::size_t> VONKK3_INLINE bool work(std::size_t n) const {
        if constexpr (std::is_same_v<T, Real32> && Shape::ofVector) {
            constexpr std::size_t order = Shape::fixedOrder;
            const auto a = operands.first(n);
            const auto v = operands.second(n);
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
        const auto aliasing = batch.aliasing(count);
        if constexpr (throughTables)
            if (!aliasing.isUsualCase() && isAnyPositionNull(words, shape)) return VonkStatus(vonkErrNullPtr);
        return forEachBatch(batch, aliasing, count, [&](std::size_t n) { return plainly(n, n + 1); });
    };
    using Operands = ProductOperands<T, throughTables, Words, Shape>;
    constexpr bool hasAddend = Operands::hasAddend;
    if constexpr (std::is_same_v<T, Real32> && throughTables)
        if (count >= worthBatches && arePositionsContiguous(words)) {
            bool mayWork = arePlainlyIndependent(words, shape, count);
            if (!mayWork) {
                if (isAnyPositionNull(words, shape)) return vonkErrNullPtr;
                mayWork = Operands(words, shape, count).aliasing(count).allowsBatch(0, count);
            }
            const std::size_t done = mayWork ? inWholePacks(count) : 0;
            if constexpr (Shape::ofVector) multiplyVectors<order, hasAddend>(words, done);
            else multiplyMatrices<SumBegins::withZero, order>(words, done);
            return done == count ? vonkOk : plainly(done, count);
        }
    if constexpr (throughTables)
        if (count < packWidth) return isAnyPositionNull(words, shape) ? VonkStatus(vonkErrNullPtr) : plainly(0, count);
    if constexpr (std::is_same_v<T, Real32> && Shape::ofVector) {
        const auto inVectorBatches = [&]<bool firstIsArray, bool secondIsArray>() VONKK3_INLINED {
            VectorBatch<order, throughTables, firstIsArray, secondIsArray, hasAddend> batch(words, count);
            return inBatches(batch);
        };
        if (hasAddend || !words.a.isArray) return inVectorBatches.template operator()<false, true>();
        if constexpr (!hasAddend && (!throughTables || order <= 4)) {
            const bool areContiguous = hasContiguousRows(words.a) && isContiguousColumn(words.d) &&
                                       (!words.b.isArray || isContiguousColumn(words.b));
            if (order <= 4 || areContiguous)
                return words.b.isArray ? inVectorBatches.template operator()<true, true>()
                                       : inVectorBatches.template operator()<true, false>();
        }
        SumsByElement<T, Shape, Operands> sums{{words, shape, count}, shape};
        return inBatches(sums);
    } else if constexpr (std::is_same_v<T, Real32>) {
        MatrixSums<order, Operands> sums(words, shape, count);
        return inBatches(sums);
    } else {
        SumsByElement<T, Shape, Operands> sums{{words, shape, count}, shape};
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
        if constexpr (order == 0 || !throughTables)
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
