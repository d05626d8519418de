// A call on many objects gives what one call for each of them gives, whatever overlaps. Fast paths begin at 12 and more
// objects; operands lie here so that the order of objects, or of positions, would show.
#include "vonkk3.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr std::uint32_t objects = 40;
constexpr std::int32_t bytes = sizeof(float);

using Table = std::vector<float *>;

Table tableFrom(float *first, std::ptrdiff_t apart, std::size_t positions) {
    Table table;
    for (std::size_t k = 0; k < positions; ++k) table.push_back(first + static_cast<std::ptrdiff_t>(k) * apart);
    return table;
}

// Memory for operands, and for tables of pointers that results may lie on.
struct Arena {
    alignas(64) std::array<const float *, 64> table;
    std::array<float, 4096> numbers;

    Arena() : table() {
        for (std::size_t k = 0; k < numbers.size(); ++k) numbers[k] = static_cast<float>(k * 37 % 101) / 8.0F - 6.0F;
    }
    bool operator==(const Arena &other) const {
        return std::memcmp(numbers.data(), other.numbers.data(), sizeof numbers) == 0;
    }
    float *at(std::ptrdiff_t k) { return numbers.data() + k; }
    Table positions(std::size_t count, std::ptrdiff_t first, std::ptrdiff_t apart = 64) {
        return tableFrom(at(first), apart, count);
    }
};

// work(arena, n, count) makes a call for so many objects from n on.
using Work = std::function<VonkStatus(Arena &, std::int32_t, std::uint32_t)>;

// Calls may find that the memory they were given cannot be compared.
void expectSameObjectByObject(const Work &work, const bool &isComparable = true) {
    static Arena together, alone;
    together = Arena();
    alone = Arena();
    ASSERT_EQ(work(together, 0, objects), vonkOk);
    for (std::uint32_t n = 0; n < objects; ++n) ASSERT_EQ(work(alone, static_cast<std::int32_t>(n), 1), vonkOk);
    if (!isComparable) return;
    EXPECT_TRUE(together == alone);
    EXPECT_FALSE(together == Arena()) << "nothing was written";
}

// The same for each of these distances, in elements or bytes.
void expectSameObjectByObject(
    const std::vector<std::ptrdiff_t> &distances,
    const std::function<VonkStatus(Arena &, std::ptrdiff_t, std::int32_t, std::uint32_t)> &work) {
    for (const std::ptrdiff_t distance : distances) {
        SCOPED_TRACE(distance);
        expectSameObjectByObject(
            [&](Arena &arena, std::int32_t n, std::uint32_t count) { return work(arena, distance, n, count); });
    }
}

TEST(ManyObjects, AreTransposedInPlaceThroughOneTable) {
    expectSameObjectByObject([](Arena &arena, std::int32_t n, std::uint32_t count) {
        const Table table = arena.positions(16, 0);
        return vonkTranspose_ma_32f_4x4_P(table.data(), n * bytes, table.data(), n * bytes, count);
    });
}

TEST(ManyObjects, AreAddedWithResultsOnTheirSourcesNeighbours) {
    expectSameObjectByObject(
        {-5, -1, 1, 3, 39}, [](Arena &arena, std::ptrdiff_t shifted, std::int32_t n, std::uint32_t count) {
            const Table a = arena.positions(9, 64), b = arena.positions(9, 1024), d = arena.positions(9, 64 + shifted);
            return vonkAdd_mama_32f_3x3_P(a.data(), n * bytes, b.data(), n * bytes, d.data(), n * bytes, count);
        });
}

// A column of the sum is a row of the transposed table. What lies past the end of that table would tell of other
// places.
TEST(ManyObjects, AreAddedThroughATransposedTableOfOneRow) {
    expectSameObjectByObject({-1, 1}, [](Arena &arena, std::ptrdiff_t shifted, std::int32_t n, std::uint32_t count) {
        Table a = arena.positions(25, 2600);
        for (std::size_t k = 1; k < 5; ++k) a[k] = arena.at(1000 + 64 * static_cast<std::ptrdiff_t>(k));
        const Table b = arena.positions(5, 0), d = arena.positions(5, 1064 + shifted);
        return vonkAdd_maTma_32f_P(a.data(), n * bytes, b.data(), n * bytes, d.data(), n * bytes, 1, 5, count);
    });
}

TEST(ManyObjects, AreScaledWithPositionsInAnotherOrder) {
    expectSameObjectByObject([](Arena &arena, std::int32_t n, std::uint32_t count) {
        const Table a = arena.positions(4, 0), d = arena.positions(4, 192, -64);
        return vonkMul_vac_32f_4x1_P(a.data(), n * bytes, 1.5F, d.data(), n * bytes, count);
    });
}

TEST(ManyObjects, AreMultipliedWithResultsOnTheirFactors) {
    expectSameObjectByObject({-3, 0, 1, 20}, [](Arena &arena, std::ptrdiff_t shifted, std::int32_t n,
                                                std::uint32_t count) {
        const Table a = arena.positions(16, 64), b = arena.positions(16, 1200), d = arena.positions(16, 64 + shifted);
        return vonkMul_mama_32f_4x4_P(a.data(), n * bytes, b.data(), n * bytes, d.data(), n * bytes, count);
    });
}

TEST(ManyObjects, AreMultipliedByOneMatrixWithResultsOnTheirRows) {
    expectSameObjectByObject({-5, 1, 5, 25, 30},
                             [](Arena &arena, std::ptrdiff_t shifted, std::int32_t n, std::uint32_t count) {
                                 float *const a = arena.at(64 + std::ptrdiff_t{25} * n);
                                 float *const b = arena.at(2000);
                                 for (int k = 0; k < 25; ++k)
                                     b[k] = static_cast<float>(k * 7 % 5 - 2) / 8; // products stay small
                                 return vonkMul_mam_32f_5x5(a, 100, 20, b, 20, a + shifted, 100, 20, count);
                             });
}

TEST(ManyObjects, AreSummedIntoTheirOwnElements) {
    expectSameObjectByObject({0, 1, 66, 200}, [](Arena &arena, std::ptrdiff_t at, std::int32_t n, std::uint32_t count) {
        const Table a = arena.positions(4, 0), b = arena.positions(4, 300);
        return vonkDotProduct_vava_32f_4x1_P(a.data(), n * bytes, b.data(), n * bytes, arena.at(at + n), count);
    });
}

// Element 1 of an object lies where element 0 of the next one does.
TEST(ManyObjects, MayBeSolvedIntoPositionsThatOverlapEachOther) {
    expectSameObjectByObject({1, -1, 3}, [](Arena &arena, std::ptrdiff_t apart, std::int32_t n, std::uint32_t count) {
        const Table factors = arena.positions(9, 0), b = arena.positions(3, 600), x = arena.positions(3, 1000, apart);
        return vonkCholeskyBackSubst_mava_32f_3x3_P(factors.data(), n * bytes, b.data(), n * bytes, x.data(), n * bytes,
                                                    static_cast<std::int32_t>(count));
    });
}

TEST(ManyObjects, AreTransformedWithResultsOnLaterVectors) {
    expectSameObjectByObject({-4, -3, 1, 4, 9},
                             [](Arena &arena, std::ptrdiff_t shifted, std::int32_t n, std::uint32_t count) {
                                 float *const vectors = arena.at(64 + std::ptrdiff_t{3} * n);
                                 return vonkMul_mva_32f_3x3(arena.at(0), 12, vectors, 12, vectors + shifted, 12, count);
                             });
}

// Results of objects overlap each other and nothing else: a later object has the last word.
TEST(ManyObjects, AreMultipliedIntoObjectsThatOverlapEachOther) {
    using Product = VonkStatus (*)(const float *a, const float *b, float *d, std::int32_t apart, std::int32_t n,
                                   std::uint32_t count);
    const std::array<Product, 10> products{
        [](auto *a, auto *b, auto *d, auto apart, auto n, auto count) {
            return vonkMul_mam_32f_4x4(a + 16 * n, 64, 16, b, 16, d, apart, 16, count);
        },
        [](auto *a, auto *b, auto *d, auto apart, auto n, auto count) {
            return vonkMul_mama_32f_4x4(a + 16 * n, 64, 16, b + 16 * n, 64, 16, d, apart, 16, count);
        },
        [](auto *a, auto *b, auto *d, auto apart, auto n, auto count) {
            return vonkMul_mam_32f_5x5(a + n, 4, 20, b, 20, d, apart, 20, count);
        },
        [](auto *a, auto *b, auto *d, auto apart, auto n, auto count) {
            return vonkMul_mam_32f_6x6(a + n, 4, 24, b, 24, d, apart, 24, count);
        },
        [](auto *a, auto *b, auto *d, auto apart, auto n, auto count) {
            return vonkMul_mama_32f_6x6(a + n, 4, 24, b + n, 4, 24, d, apart, 24, count);
        },
        [](auto *a, auto *b, auto *d, auto apart, auto n, auto count) {
            return vonkMul_mva_32f_3x3(a, 12, b + n, 4, d, apart, count);
        },
        [](auto *a, auto *, auto *d, auto apart, auto n, auto count) {
            return vonkMul_mva_32f_4x4(a, 16, a + 1000 + n * (apart / bytes), apart, d, apart, count);
        },
        [](auto *a, auto *, auto *d, auto apart, auto n, auto count) {
            return vonkMul_mva_32f_6x6(a, 24, a + 1000 + n * (apart / bytes), apart, d, apart, count);
        },
        [](auto *a, auto *, auto *d, auto apart, auto n, auto count) {
            const float *const vectors = a + 1000 + n * (apart / bytes);
            return vonkGaxpy_va_32f_6x6(a, 24, vectors, apart, vectors + 1, apart, d, apart, count);
        },
        [](auto *a, auto *b, auto *d, auto apart, auto n, auto count) {
            return vonkCrossProduct_vava_32f_3x1(a + 3 * n, 12, b + 4 * n, 16, d, apart, count);
        },
    };
    for (const Product &product : products)
        expectSameObjectByObject({-44, -24, -16, -4, 0, 4, 8, 12, 16, 20, 24, 40, 48, 72, 100, 140},
                                 [product](Arena &arena, std::ptrdiff_t distance, std::int32_t n, std::uint32_t count) {
                                     const auto apart = static_cast<std::int32_t>(distance);
                                     return product(arena.at(0), arena.at(640), arena.at(2450 + n * (apart / bytes)),
                                                    apart, n, count);
                                 });
}

// Results begin where a source does, but their objects are closer: object by object, they overwrite what is yet to be
// read.
TEST(ManyObjects, AreMultipliedIntoCloserObjectsOfTheSamePositions) {
    expectSameObjectByObject({4, 8, 12},
                             [](Arena &arena, std::ptrdiff_t distance, std::int32_t n, std::uint32_t count) {
                                 const auto apart = static_cast<std::int32_t>(distance);
                                 const Table a = arena.positions(3, 0, 512), b = arena.positions(3, 2048, 512);
                                 return vonkCrossProduct_vava_32f_3x1_PS2(a.data(), n * 8, 8, b.data(), n * 8, 8,
                                                                          a.data(), n * apart, apart, count);
                             });
}

// Long arrays are worked in blocks, position by position: far and near objects, and counts at the ends of blocks.
TEST(ManyObjects, AreAddedInBlocksThatLeaveNoneOut) {
    for (const std::int32_t step : {4, 12, 600})
        for (const std::uint32_t count : {2047U, 2048U, 2049U, 5003U}) {
            SCOPED_TRACE(std::to_string(step) + " bytes apart, " + std::to_string(count) + " objects");
            const std::size_t apart = static_cast<std::size_t>(step) / sizeof(float), position = apart * count;
            std::vector<float> a(9 * position), b(9 * position), d(9 * position, 99.0F), expected(d);
            for (std::size_t k = 0; k < a.size(); ++k)
                a[k] = static_cast<float>(k % 1021), b[k] = static_cast<float>(k % 61);
            for (std::size_t k = 0; k < a.size(); k += apart) expected[k] = a[k] + b[k];
            const auto tableOf = [position](std::vector<float> &operand) {
                return tableFrom(operand.data(), static_cast<std::ptrdiff_t>(position), 9);
            };
            const Table src1 = tableOf(a), src2 = tableOf(b), dst = tableOf(d);
            ASSERT_EQ(vonkAdd_mama_32f_3x3_PS2(src1.data(), 0, step, src2.data(), 0, step, dst.data(), 0, step, count),
                      vonkOk);
            EXPECT_TRUE(d == expected);
        }
}

// The first position of the objects lies on the table: what is copied there is what stands there, but for the last
// object, which gets another address, or its lower half, for the table's last entry: its last element comes from there.
TEST(ManyObjects, MayBeCopiedOntoTheTableTheyAreReadThrough) {
    expectSameObjectByObject([](Arena &arena, std::int32_t n, std::uint32_t count) {
        static_assert(sizeof(void *) >= sizeof(float), "an entry is as long as two elements, or one");
        float *const source = arena.at(2000);
        float *const onEntry = reinterpret_cast<float *>(&arena.table[43]) - (objects - 1);
        if (n == 0) {
            for (std::size_t k = 0; k < 4; ++k) arena.table[40 + k] = source + 64 * k;
            const float *const other = arena.at(3050);
            const auto upperHalf = [](const float *of) {
                return std::uint64_t{reinterpret_cast<std::uintptr_t>(of)} >> 32;
            };
            EXPECT_EQ(upperHalf(other), upperHalf(arena.at(0)));
            std::memcpy(source, onEntry, (objects - 1) * sizeof(float));
            std::memcpy(source + objects - 1, &other, sizeof(float));
        }
        const std::array<float *, 4> d{onEntry, arena.at(1000), arena.at(1100), arena.at(1200)};
        const VonkStatus status =
            vonkCopy_ma_32f_PP(&arena.table[40], n * bytes, bytes, d.data(), n * bytes, bytes, 2, 2, count);
        if (static_cast<std::uint32_t>(n) + count == objects) { // addresses differ from arena to arena
            EXPECT_EQ(d[3][objects - 1], *arena.at(3050 + objects - 1));
            std::memset(source, 0, objects * sizeof(float));
        }
        return status;
    });
}

// The same of small objects, whose positions are read once: of the source's table, and of the destination's own. What
// is stored there goes through a multiplication by 1.
TEST(ManyObjects, MayBeScaledOntoATableTheyAreFoundThrough) {
    for (const bool ownTable : {false, true}) {
        SCOPED_TRACE(ownTable);
        bool isNumber = true;
        expectSameObjectByObject(
            [&](Arena &arena, std::int32_t n, std::uint32_t count) {
                float *const source = arena.at(2000);
                float *const onEntry = reinterpret_cast<float *>(&arena.table[43]) - (objects - 1);
                const float *const other = arena.at(3050);
                if (n == 0) {
                    for (std::size_t k = 0; k < 4; ++k)
                        arena.table[40 + k] = (ownTable ? arena.at(1000) : source) + 64 * k;
                    if (ownTable) arena.table[40] = onEntry;
                    std::memcpy(source, onEntry, (objects - 1) * sizeof(float));
                    std::memcpy(source + objects - 1, &other, sizeof(float));
                    for (std::uint32_t k = 0; k < objects; ++k) isNumber = isNumber && !std::isnan(source[k]);
                }
                if (!isNumber) return VonkStatus{vonkOk};
                const Table a = tableFrom(source, 64, 4);
                const std::array<float *, 4> d{onEntry, arena.at(1064), arena.at(1128), arena.at(1192)};
                const VonkStatus status = vonkMul_vac_32f_4x1_P(
                    ownTable ? a.data() : &arena.table[40], n * bytes, 1.0F,
                    ownTable ? const_cast<float *const *>(&arena.table[40]) : d.data(), n * bytes, count);
                if (static_cast<std::uint32_t>(n) + count == objects) { // addresses differ from arena to arena
                    if (ownTable) EXPECT_EQ(other[objects - 1], a[3][objects - 1]);
                    else EXPECT_EQ(d[3][objects - 1], other[objects - 1]);
                    std::memset(source, 0, objects * sizeof(float));
                }
                return status;
            },
            isNumber);
        if (!isNumber) GTEST_SKIP() << "the bits of these addresses are no numbers";
    }
}

// Far more objects than a cache holds are worked in smaller steps.
TEST(ManyObjects, HaveTheirNormsTakenBeyondTheCache) {
    constexpr std::uint32_t many = 1003;
    std::vector<float> numbers(9 * many), together(many), alone(many);
    for (std::size_t k = 0; k < numbers.size(); ++k) numbers[k] = static_cast<float>(k * 37 % 101) / 8.0F - 6.0F;
    const Table table = tableFrom(numbers.data(), many, 9);
    ASSERT_EQ(vonkFrobNorm_ma_32f_3x3_P(table.data(), 0, together.data(), many), vonkOk);
    for (std::uint32_t n = 0; n < many; ++n)
        ASSERT_EQ(vonkFrobNorm_ma_32f_3x3_P(table.data(), static_cast<std::int32_t>(n) * bytes, &alone[n], 1), vonkOk);
    EXPECT_EQ(together, alone);
    EXPECT_GT(together[many - 1], 0.0F);
}

// The lists of a call are looked at together, some objects at a time.
TEST(ManyObjects, OfListsEndAtTheFirstNullEntry) {
    const std::array<float, 16> matrix{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    std::vector<float> vectors(static_cast<std::size_t>(8 * objects), 1.0F);
    for (const bool ofResults : {false, true})
        for (std::uint32_t ending = 0; ending < objects; ++ending) {
            SCOPED_TRACE(std::to_string(ending) + (ofResults ? " in the results" : " in the sources"));
            std::vector<float> results(vectors.size(), -1.0F);
            Table sources = tableFrom(vectors.data(), 8, objects), into = tableFrom(results.data(), 8, objects);
            (ofResults ? into : sources)[ending] = nullptr;
            ASSERT_EQ(vonkMul_mva_32f_4x4_LS2(matrix.data(), 16, 4, sources.data(), 0, 8, into.data(), 0, 8, objects),
                      vonkErrNullPtr);
            for (std::uint32_t n = 0; n < objects; ++n)
                EXPECT_EQ(results[8 * n], n < ending ? 10.0F : -1.0F) << "object " << n;
        }
}

// An object that is no farther than the one before it, anywhere in a list: results see what was written before.
TEST(ManyObjects, OfListsMayStepBack) {
    const std::array<float, 16> matrix{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    for (std::uint32_t again = 1; again < objects; ++again) {
        SCOPED_TRACE(again);
        const auto work = [&](bool together) {
            std::vector<float> numbers(static_cast<std::size_t>(16 * objects));
            for (std::size_t k = 0; k < numbers.size(); ++k) numbers[k] = static_cast<float>(k % 7);
            Table sources = tableFrom(numbers.data(), 8, objects);
            const Table into = tableFrom(numbers.data() + 8 * objects, 8, objects);
            sources[again] = into[again - 1];
            const std::uint32_t count = together ? objects : 1;
            for (std::uint32_t n = 0; n < objects; n += count)
                EXPECT_EQ(vonkMul_mva_32f_4x4_LS2(matrix.data(), 16, 4, &sources[n], 0, 8, &into[n], 0, 8, count),
                          vonkOk);
            return numbers;
        };
        EXPECT_EQ(work(true), work(false));
    }
}

} // namespace
