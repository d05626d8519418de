// Calls that bytes steer: bytes and lines come back as they were, geometries are what their names say, and a spoiled
// result is reported.
#include "steered.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <stdexcept>

namespace {

using fuzz::Steered;
using support::Geometry;
using support::Placement;

TEST(Steered, BytesComeBackAsTheyWere) {
    const std::vector<std::uint8_t> input{3, 7, 2, 9, 0x12, 0x34, 1, 2, 255};
    const Steered steered = fuzz::fromBytes(input);
    EXPECT_EQ(steered.function, 3 * 256 + 7);
    EXPECT_EQ(steered.geometry, Geometry::inPlace);
    EXPECT_EQ(steered.bytes, (std::vector<std::uint8_t>{1, 2, 255}));
    EXPECT_EQ(fuzz::toBytes(steered), input);
}

TEST(Steered, WhatAShortInputLacksIsZero) {
    EXPECT_EQ(fuzz::toBytes(fuzz::fromBytes({})), std::vector<std::uint8_t>(fuzz::headerSize));
}

TEST(Steered, LinesComeBackAsTheyWere) {
    const fuzz::Runner runner(support::defaultLibrary());
    for (const std::string line :
         {"vonkAdd_mama_32f_3x3_P touching 5 1f00 00c0ffee", "vonkTrace_m_64f same-object-twice 23 0000 -"})
        EXPECT_EQ(runner.toLine(runner.fromLine(line)), line);
    for (const std::string line : {"vonkTrace_m_64f any 0 0", "vonkTrace_m_64f any 0 0 - -", "vonkNone any 0 0 -",
                                   "vonkTrace_m_64f beside 0 0 -", "vonkTrace_m_64f any 0 0 abc"})
        EXPECT_THROW(static_cast<void>(runner.fromLine(line)), std::runtime_error) << line;
}

TEST(Steered, TheHeaderAndTheBytesAfterItMakeTheCall) {
    fuzz::Runner runner(support::defaultLibrary());
    const auto callOf = [&](const std::vector<std::uint8_t> &input) {
        const std::string described = runner.describe(fuzz::fromBytes(input));
        return described.substr(described.find('\n')); // without the line that spells the input
    };
    const std::string line = "vonkAdd_mama_32f_3x3 in-place 9 1234 3c02c84d05005a1401";
    const std::vector<std::uint8_t> input = fuzz::toBytes(runner.fromLine(line));
    EXPECT_TRUE(callOf(input) == callOf(input));
    for (std::size_t k = 0; k < fuzz::headerSize; ++k) {
        std::vector<std::uint8_t> changed = input;
        changed[k] ^= 1;
        EXPECT_FALSE(callOf(input) == callOf(changed)) << k;
    }
    int matter = 0; // the first two decide on what lies beside the operands
    for (std::size_t k = fuzz::headerSize + 2; k < input.size(); ++k) {
        std::vector<std::uint8_t> changed = input;
        changed[k] ^= 0x7f;
        matter += callOf(input) != callOf(changed);
    }
    EXPECT_GE(matter, 3);
}

TEST(Steered, SpoiledResultsAreReported) {
    const std::string line = "vonkAdd_mama_32f_3x3 any 0 0 -";
    fuzz::Runner honest(support::defaultLibrary());
    const Steered steered = honest.fromLine(line);
    EXPECT_EQ(honest.run(steered), "");
    honest.spoil([](const support::Call &call, std::int32_t status) {
        *reinterpret_cast<std::uint8_t *>(call.operands.back().origin) ^= 1;
        return status;
    });
    EXPECT_NE(honest.run(steered), "");
    honest.spoil([](const support::Call &, std::int32_t) { return -8; });
    EXPECT_NE(honest.run(steered), "");
}

// --- geometries

class Geometries : public testing::Test {
protected:
    // Reads the operands of sixty calls of a function; a null pointer or entry changes nothing about them.
    void forEachCall(const std::string &name, Geometry geometry,
                     const std::function<void(const support::Call &)> &look) {
        const auto all = catalogue::expand();
        const auto function = std::ranges::find(all, name, &catalogue::Function::name);
        ASSERT_NE(function, all.end()) << name;
        support::CallMixture mixture;
        mixture.geometry = geometry;
        for (std::uint64_t index = 0; index < 60; ++index) look(support::makeCall(*function, arena, 1, index, mixture));
    }

    support::Arena arena;
};

std::vector<const Placement *> sourcesOf(const support::Call &call) {
    std::vector<const Placement *> sources;
    for (const Placement &placement : call.operands)
        if (&placement != &call.operands.back()) sources.push_back(&placement);
    return sources;
}

bool anySource(const support::Call &call, const std::function<bool(const Placement &source, const Placement &to)> &is) {
    return std::ranges::any_of(sourcesOf(call),
                               [&](const Placement *source) { return is(*source, call.operands.back()); });
}

std::int64_t begin(const Placement &placement) {
    return static_cast<std::int64_t>(placement.origin) + placement.reach.low;
}
std::int64_t end(const Placement &placement) {
    return static_cast<std::int64_t>(placement.origin) + placement.reach.high;
}

TEST_F(Geometries, TouchingMeansThatNoByteOrOneElementLiesBetweenOrInBoth) {
    int apart = 0;
    int shared = 0;
    for (const std::string name : {"vonkAdd_mama_32f_4x4_S2", "vonkAdd_vv_64f", "vonkTranspose_ma_32f_L"})
        forEachCall(name, Geometry::touching, [&](const support::Call &call) {
            const std::int64_t size = call.operands.back().elementSize;
            const auto between = [&](std::int64_t gap) {
                return anySource(call, [gap](const Placement &source, const Placement &to) {
                    return begin(to) - end(source) == gap || begin(source) - end(to) == gap;
                });
            };
            EXPECT_TRUE(between(0) || between(-size));
            apart += between(0);
            shared += between(-size);
        });
    EXPECT_GT(apart, 60);
    EXPECT_GT(shared, 20);
}

TEST_F(Geometries, InPlaceMeansElementOnElement) {
    for (const std::string name : {"vonkAdd_mama_32f_4x4_S2", "vonkTranspose_ma_32f_L", "vonkMul_mam_64f_3x3_P"})
        forEachCall(name, Geometry::inPlace, [](const support::Call &call) {
            EXPECT_TRUE(anySource(call, [&](const Placement &source, const Placement &to) {
                return source.elements() == to.elements() || !call.function->operands[1].array;
            }));
        });
}

TEST_F(Geometries, OneElementOffMeansByTheSizeOfOne) {
    for (const std::string name : {"vonkAdd_vv_32f", "vonkAdd_mama_64f_3x3_PS2"})
        forEachCall(name, Geometry::oneElementOff, [](const support::Call &call) {
            EXPECT_TRUE(anySource(call, [](const Placement &source, const Placement &to) {
                const std::int64_t size = to.elementSize;
                const auto off = static_cast<std::int64_t>(source.elements()[0] - to.elements()[0]);
                return std::abs(off) == size && source.slots == to.slots;
            }));
        });
}

TEST_F(Geometries, NegativeStridesAreNegative) {
    int negative = 0;
    forEachCall("vonkTranspose_ma_32f_S2", Geometry::negativeStrides, [&](const support::Call &call) {
        for (const Placement &placement : call.operands)
            negative += placement.objectStride < 0 && placement.rowStride < 0 && placement.elementStride < 0;
    });
    EXPECT_GT(negative, 90);
}

// Bounds overlap, and no element does.
TEST_F(Geometries, RowsInRowsMeansInTheGaps) {
    for (const std::string name : {"vonkAdd_mm_32f_4x4", "vonkAdd_mama_32f_3x3_S2", "vonkAdd_mama_64f_3x3_P"}) {
        int interleaved = 0;
        forEachCall(name, Geometry::rowsInRows, [&](const support::Call &call) {
            interleaved += anySource(call, [](const Placement &source, const Placement &to) {
                return begin(source) < end(to) && begin(to) < end(source) &&
                       std::ranges::all_of(source.elements(), [&](std::uintptr_t from) {
                           return std::ranges::all_of(to.elements(), [&](std::uintptr_t at) {
                               return from + source.elementSize <= at || at + to.elementSize <= from;
                           });
                       });
            });
        });
        EXPECT_GT(interleaved, 20) << name;
    }
}

TEST_F(Geometries, TablesInEachOtherAreOneTableWithShiftsThatDiffer) {
    for (const std::string name : {"vonkAdd_mama_32f_4x4_P", "vonkTranspose_ma_64f_3x3_L"}) {
        int shared = 0;
        forEachCall(name, Geometry::tablesInEachOther, [&](const support::Call &call) {
            shared += anySource(call, [](const Placement &source, const Placement &to) {
                return source.table == to.table && source.shift != to.shift;
            });
        });
        EXPECT_GT(shared, 50) << name;
    }
}

TEST_F(Geometries, SameObjectTwiceMeansTwoEntriesForOnePlace) {
    forEachCall("vonkTranspose_ma_64f_3x3_L", Geometry::sameObjectTwice, [](const support::Call &call) {
        for (const Placement &placement : call.operands) {
            std::vector<std::int64_t> slots = placement.slots;
            std::ranges::sort(slots);
            EXPECT_TRUE(slots.size() < 2 || std::ranges::adjacent_find(slots) != slots.end());
        }
    });
    int still = 0;
    forEachCall("vonkTranspose_ma_64f_3x3", Geometry::sameObjectTwice, [&](const support::Call &call) {
        for (const Placement &placement : call.operands) still += placement.objectStride == 0;
    });
    EXPECT_GT(still, 80);
}

} // namespace
