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
};

// A table of positions, so many elements apart.
template <std::size_t positions, class Number>
std::array<Number *, positions> tableFrom(Number *first, std::ptrdiff_t apart) {
    std::array<Number *, positions> table;
    for (std::size_t k = 0; k < positions; ++k) table[k] = first + static_cast<std::ptrdiff_t>(k) * apart;
    return table;
}

// call(arena, n, count) works on so many objects from n on.
using Work = std::function<void(Arena &, std::int32_t, std::uint32_t)>;

// Calls may find that the memory they were given cannot be compared.
void expectSameObjectByObject(const Work &call, const bool &isComparable = true) {
    static Arena together, alone;
    together = Arena();
    alone = Arena();
    call(together, 0, objects);
    for (std::uint32_t n = 0; n < objects; ++n) call(alone, static_cast<std::int32_t>(n), 1);
    if (!isComparable) return;
    EXPECT_TRUE(together == alone);
    EXPECT_FALSE(together == Arena()) << "nothing was written";
}

constexpr std::int32_t bytes = sizeof(float);

TEST(ManyObjects, AreTransposedInPlaceThroughOneTable) {
    expectSameObjectByObject([](Arena &arena, std::int32_t n, std::uint32_t count) {
        const auto table = tableFrom<16>(arena.numbers.data(), 64);
        ASSERT_EQ(vonkTranspose_ma_32f_4x4_P(reinterpret_cast<const float *const *>(table.data()), n * bytes,
                                             table.data(), n * bytes, count),
                  vonkOk);
    });
}

TEST(ManyObjects, AreAddedWithResultsOnTheirSourcesNeighbours) {
    for (const std::ptrdiff_t shifted : {-5, -1, 1, 3, 39}) {
        SCOPED_TRACE(shifted);
        expectSameObjectByObject([shifted](Arena &arena, std::int32_t n, std::uint32_t count) {
            const auto a = tableFrom<9>(static_cast<const float *>(arena.numbers.data() + 64), 64);
            const auto b = tableFrom<9>(static_cast<const float *>(arena.numbers.data() + 1024), 64);
            const auto d = tableFrom<9>(arena.numbers.data() + 64 + shifted, 64);
            ASSERT_EQ(vonkAdd_mama_32f_3x3_P(a.data(), n * bytes, b.data(), n * bytes, d.data(), n * bytes, count),
                      vonkOk);
        });
    }
}

// A column of the sum is a row of the transposed table. What lies past the end of that table would tell of other
// places.
TEST(ManyObjects, AreAddedThroughATransposedTableOfOneRow) {
    for (const std::ptrdiff_t shifted : {-1, 1}) {
        SCOPED_TRACE(shifted);
        expectSameObjectByObject([shifted](Arena &arena, std::int32_t n, std::uint32_t count) {
            std::array<const float *, 25> a{};
            for (std::size_t k = 0; k < a.size(); ++k) a[k] = arena.numbers.data() + 2600 + 64 * k;
            for (std::size_t k = 1; k < 5; ++k) a[k] = arena.numbers.data() + 1000 + 64 * k;
            const auto b = tableFrom<5>(static_cast<const float *>(arena.numbers.data()), 64);
            const auto d = tableFrom<5>(arena.numbers.data() + 1064 + shifted, 64);
            ASSERT_EQ(vonkAdd_maTma_32f_P(a.data(), n * bytes, b.data(), n * bytes, d.data(), n * bytes, 1, 5, count),
                      vonkOk);
        });
    }
}

TEST(ManyObjects, AreScaledWithPositionsInAnotherOrder) {
    expectSameObjectByObject([](Arena &arena, std::int32_t n, std::uint32_t count) {
        const auto a = tableFrom<4>(static_cast<const float *>(arena.numbers.data()), 64);
        const auto d = tableFrom<4>(arena.numbers.data() + 192, -64);
        ASSERT_EQ(vonkMul_vac_32f_4x1_P(a.data(), n * bytes, 1.5F, d.data(), n * bytes, count), vonkOk);
    });
}

TEST(ManyObjects, AreMultipliedWithResultsOnTheirFactors) {
    for (const std::ptrdiff_t shifted : {-3, 0, 1, 20}) {
        SCOPED_TRACE(shifted);
        expectSameObjectByObject([shifted](Arena &arena, std::int32_t n, std::uint32_t count) {
            const auto a = tableFrom<16>(static_cast<const float *>(arena.numbers.data() + 64), 64);
            const auto b = tableFrom<16>(static_cast<const float *>(arena.numbers.data() + 1200), 64);
            const auto d = tableFrom<16>(arena.numbers.data() + 64 + shifted, 64);
            ASSERT_EQ(vonkMul_mama_32f_4x4_P(a.data(), n * bytes, b.data(), n * bytes, d.data(), n * bytes, count),
                      vonkOk);
        });
    }
}

TEST(ManyObjects, AreMultipliedByOneMatrixWithResultsOnTheirRows) {
    for (const std::ptrdiff_t shifted : {-5, 1, 5, 25, 30}) {
        SCOPED_TRACE(shifted);
        expectSameObjectByObject([shifted](Arena &arena, std::int32_t n, std::uint32_t count) {
            float *const a = arena.numbers.data() + 64 + std::ptrdiff_t(25) * n;
            float *const b = arena.numbers.data() + 2000;
            for (int k = 0; k < 25; ++k) b[k] = static_cast<float>(k * 7 % 5 - 2) / 8; // products stay small
            ASSERT_EQ(vonkMul_mam_32f_5x5(a, 100, 20, b, 20, a + shifted, 100, 20, count), vonkOk);
        });
    }
}

TEST(ManyObjects, AreSummedIntoTheirOwnElements) {
    for (const std::ptrdiff_t at : {0, 1, 66, 200}) {
        SCOPED_TRACE(at);
        expectSameObjectByObject([at](Arena &arena, std::int32_t n, std::uint32_t count) {
            const auto a = tableFrom<4>(static_cast<const float *>(arena.numbers.data()), 64);
            const auto b = tableFrom<4>(static_cast<const float *>(arena.numbers.data() + 300), 64);
            float *const dst = arena.numbers.data() + at + n;
            ASSERT_EQ(vonkDotProduct_vava_32f_4x1_P(a.data(), n * bytes, b.data(), n * bytes, dst, count), vonkOk);
        });
    }
}

// Element 1 of an object lies where element 0 of the next one does.
TEST(ManyObjects, MayBeSolvedIntoPositionsThatOverlapEachOther) {
    for (const std::ptrdiff_t apart : {1, -1, 3}) {
        SCOPED_TRACE(apart);
        expectSameObjectByObject([apart](Arena &arena, std::int32_t n, std::uint32_t count) {
            const auto factors = tableFrom<9>(static_cast<const float *>(arena.numbers.data()), 64);
            const auto b = tableFrom<3>(static_cast<const float *>(arena.numbers.data() + 600), 64);
            const auto x = tableFrom<3>(arena.numbers.data() + 1000, apart);
            ASSERT_EQ(vonkCholeskyBackSubst_mava_32f_3x3_P(factors.data(), n * bytes, b.data(), n * bytes, x.data(),
                                                           n * bytes, count),
                      vonkOk);
        });
    }
}

TEST(ManyObjects, AreTransformedWithResultsOnLaterVectors) {
    for (const std::ptrdiff_t shifted : {-4, -3, 1, 4, 9}) {
        SCOPED_TRACE(shifted);
        expectSameObjectByObject([shifted](Arena &arena, std::int32_t n, std::uint32_t count) {
            const float *const matrix = arena.numbers.data();
            float *const vectors = arena.numbers.data() + 64 + std::ptrdiff_t(3) * n;
            ASSERT_EQ(vonkMul_mva_32f_3x3(matrix, 12, vectors, 12, vectors + shifted, 12, count), vonkOk);
        });
    }
}

// Results of objects overlap each other and nothing else: a later object has the last word.
TEST(ManyObjects, AreMultipliedIntoObjectsThatOverlapEachOther) {
    for (const std::int32_t apart : {-44, -24, -16, -4, 0, 4, 8, 12, 16, 20, 24, 40, 48, 72, 100, 140}) {
        SCOPED_TRACE(apart);
        const auto expectSame = [apart](const auto &call) {
            expectSameObjectByObject([&](Arena &arena, std::int32_t n, std::uint32_t count) {
                const float *const a = arena.numbers.data(), *const b = a + 640;
                float *const d = arena.numbers.data() + 2450 + n * (apart / bytes);
                ASSERT_EQ(call(a, b, d, n, count), vonkOk);
            });
        };
        expectSame([=](const float *a, const float *b, float *d, std::int32_t n, std::uint32_t count) {
            return vonkMul_mam_32f_4x4(a + 16 * n, 64, 16, b, 16, d, apart, 16, count);
        });
        expectSame([=](const float *a, const float *b, float *d, std::int32_t n, std::uint32_t count) {
            return vonkMul_mama_32f_4x4(a + 16 * n, 64, 16, b + 16 * n, 64, 16, d, apart, 16, count);
        });
        expectSame([=](const float *a, const float *b, float *d, std::int32_t n, std::uint32_t count) {
            return vonkMul_mam_32f_5x5(a + n, 4, 20, b, 20, d, apart, 20, count);
        });
        expectSame([=](const float *a, const float *b, float *d, std::int32_t n, std::uint32_t count) {
            return vonkMul_mam_32f_6x6(a + n, 4, 24, b, 24, d, apart, 24, count);
        });
        expectSame([=](const float *a, const float *b, float *d, std::int32_t n, std::uint32_t count) {
            return vonkMul_mama_32f_6x6(a + n, 4, 24, b + n, 4, 24, d, apart, 24, count);
        });
        expectSame([=](const float *a, const float *b, float *d, std::int32_t n, std::uint32_t count) {
            return vonkMul_mva_32f_3x3(a, 12, b + n, 4, d, apart, count);
        });
        expectSame([=](const float *a, const float *, float *d, std::int32_t n, std::uint32_t count) {
            return vonkMul_mva_32f_4x4(a, 16, a + 1000 + n * (apart / bytes), apart, d, apart, count);
        });
        expectSame([=](const float *a, const float *, float *d, std::int32_t n, std::uint32_t count) {
            return vonkMul_mva_32f_6x6(a, 24, a + 1000 + n * (apart / bytes), apart, d, apart, count);
        });
        expectSame([=](const float *a, const float *, float *d, std::int32_t n, std::uint32_t count) {
            return vonkGaxpy_va_32f_6x6(a, 24, a + 1000 + n * (apart / bytes), apart, a + 1001 + n * (apart / bytes),
                                        apart, d, apart, count);
        });
        expectSame([=](const float *a, const float *b, float *d, std::int32_t n, std::uint32_t count) {
            return vonkCrossProduct_vava_32f_3x1(a + 3 * n, 12, b + 4 * n, 16, d, apart, count);
        });
    }
}

// Results begin where a source does, but their objects are closer: object by object, they overwrite what is yet to be
// read.
TEST(ManyObjects, AreMultipliedIntoCloserObjectsOfTheSamePositions) {
    for (const std::int32_t apart : {4, 8, 12}) {
        SCOPED_TRACE(apart);
        expectSameObjectByObject([apart](Arena &arena, std::int32_t n, std::uint32_t count) {
            const auto d = tableFrom<3>(arena.numbers.data(), 512);
            const auto a = tableFrom<3>(static_cast<const float *>(arena.numbers.data()), 512);
            const auto b = tableFrom<3>(static_cast<const float *>(arena.numbers.data() + 2048), 512);
            ASSERT_EQ(vonkCrossProduct_vava_32f_3x1_PS2(a.data(), n * 8, 8, b.data(), n * 8, 8, d.data(), n * apart,
                                                        apart, count),
                      vonkOk);
        });
    }
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
            const auto src1 = tableFrom<9>(static_cast<const float *>(a.data()), static_cast<std::ptrdiff_t>(position));
            const auto src2 = tableFrom<9>(static_cast<const float *>(b.data()), static_cast<std::ptrdiff_t>(position));
            const auto dst = tableFrom<9>(d.data(), static_cast<std::ptrdiff_t>(position));
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
        float *const numbers = arena.numbers.data();
        float *const source = numbers + 2000;
        float *const onEntry = reinterpret_cast<float *>(&arena.table[43]) - (objects - 1);
        if (n == 0) {
            for (std::size_t k = 0; k < 4; ++k) arena.table[40 + k] = source + 64 * k;
            const float *const other = numbers + 3050;
            const auto upperHalf = [](const float *of) {
                return std::uint64_t{reinterpret_cast<std::uintptr_t>(of)} >> 32;
            };
            ASSERT_EQ(upperHalf(other), upperHalf(numbers));
            std::memcpy(source, onEntry, (objects - 1) * sizeof(float));
            std::memcpy(source + objects - 1, &other, sizeof(float));
        }
        const std::array<float *, 4> d{onEntry, numbers + 1000, numbers + 1100, numbers + 1200};
        ASSERT_EQ(vonkCopy_ma_32f_PP(&arena.table[40], n * bytes, bytes, d.data(), n * bytes, bytes, 2, 2, count),
                  vonkOk);
        if (static_cast<std::uint32_t>(n) + count == objects) { // addresses differ from arena to arena
            EXPECT_EQ(numbers[1200 + objects - 1], numbers[3050 + objects - 1]);
            std::memset(source, 0, objects * sizeof(float));
        }
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
                float *const numbers = arena.numbers.data();
                float *const source = numbers + 2000;
                float *const onEntry = reinterpret_cast<float *>(&arena.table[43]) - (objects - 1);
                const float *const other = numbers + 3050;
                if (n == 0) {
                    for (std::size_t k = 0; k < 4; ++k)
                        arena.table[40 + k] = (ownTable ? numbers + 1000 : source) + 64 * k;
                    if (ownTable) arena.table[40] = onEntry;
                    std::memcpy(source, onEntry, (objects - 1) * sizeof(float));
                    std::memcpy(source + objects - 1, &other, sizeof(float));
                    isNumber = isNumber && !std::isnan(source[objects - 1]);
                    for (std::uint32_t k = 0; k + 1 < objects; ++k) isNumber = isNumber && !std::isnan(source[k]);
                }
                if (!isNumber) return;
                const auto a = tableFrom<4>(static_cast<const float *>(source), 64);
                const std::array<float *, 4> d{onEntry, numbers + 1064, numbers + 1128, numbers + 1192};
                ASSERT_EQ(vonkMul_vac_32f_4x1_P(ownTable ? a.data() : &arena.table[40], n * bytes, 1.0F,
                                                ownTable ? const_cast<float *const *>(&arena.table[40]) : d.data(),
                                                n * bytes, count),
                          vonkOk);
                if (static_cast<std::uint32_t>(n) + count == objects) { // addresses differ from arena to arena
                    if (ownTable) EXPECT_EQ(numbers[3050 + objects - 1], source[3 * 64 + objects - 1]);
                    else EXPECT_EQ(numbers[1192 + objects - 1], numbers[3050 + objects - 1]);
                    std::memset(source, 0, objects * sizeof(float));
                }
            },
            isNumber);
        if (!isNumber) GTEST_SKIP() << "the bits of these addresses are no numbers";
    }
}

} // namespace
