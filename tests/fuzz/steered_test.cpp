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

constexpr int calls = 60; // of each function

// In how many calls this holds; a null pointer or entry changes nothing about the operands.
int callsWhere(const std::string &name, Geometry geometry, const std::function<bool(const support::Call &)> &holds) {
    static const support::Arena arena;
    static const std::vector<catalogue::Function> all = catalogue::expand();
    const auto function = std::ranges::find(all, name, &catalogue::Function::name);
    if (function == all.end()) throw std::out_of_range(name);
    support::CallMixture mixture;
    mixture.geometry = geometry;
    int times = 0;
    for (std::uint64_t index = 0; index < calls; ++index)
        times += holds(support::makeCall(*function, arena, 1, index, mixture));
    return times;
}

// Of a source and the destination, for any source.
using Relation = std::function<bool(const Placement &source, const Placement &to)>;

int callsRelated(const std::string &name, Geometry geometry, const Relation &relation) {
    return callsWhere(name, geometry, [&](const support::Call &call) {
        const auto sources = std::span(call.operands).first(call.operands.size() - 1);
        return std::ranges::any_of(sources, [&](const auto &source) { return relation(source, call.operands.back()); });
    });
}

std::int64_t begin(const Placement &p) { return static_cast<std::int64_t>(p.origin) + p.reach.low; }
std::int64_t end(const Placement &p) { return static_cast<std::int64_t>(p.origin) + p.reach.high; }

TEST(Geometries, TouchingMeansThatNoByteOrOneElementLiesBetweenOrInBoth) {
    int apart = 0, shared = 0;
    for (const std::string name : {"vonkAdd_mama_32f_4x4_S2", "vonkAdd_vv_64f", "vonkTranspose_ma_32f_L"}) {
        const auto related = [&](bool byNothing, bool byAnElement) {
            return callsRelated(name, Geometry::touching, [=](const Placement &source, const Placement &to) {
                const auto between = [&](std::int64_t gap) {
                    return begin(to) - end(source) == gap || begin(source) - end(to) == gap;
                };
                return (byNothing && between(0)) || (byAnElement && between(-std::int64_t{to.elementSize}));
            });
        };
        EXPECT_EQ(related(true, true), calls) << name;
        apart += related(true, false);
        shared += related(false, true);
    }
    EXPECT_GT(apart, 60);
    EXPECT_GT(shared, 20);
}

TEST(Geometries, InPlaceMeansElementOnElement) {
    const Relation same = [](const Placement &source, const Placement &to) {
        return source.elements() == to.elements();
    };
    for (const std::string name : {"vonkAdd_mama_32f_4x4_S2", "vonkTranspose_ma_32f_L"})
        EXPECT_EQ(callsRelated(name, Geometry::inPlace, same), calls) << name;
}

TEST(Geometries, OneElementOffMeansByTheSizeOfOne) {
    for (const std::string name : {"vonkAdd_vv_32f", "vonkAdd_mama_64f_3x3_PS2"})
        EXPECT_EQ(callsRelated(name, Geometry::oneElementOff,
                               [](const Placement &source, const Placement &to) {
                                   const std::int64_t size = to.elementSize;
                                   const auto off = static_cast<std::int64_t>(source.elements()[0] - to.elements()[0]);
                                   return std::abs(off) == size && source.slots == to.slots;
                               }),
                  calls)
            << name;
}

// Bounds overlap, and no element does.
TEST(Geometries, RowsInRowsMeansInTheGaps) {
    const Relation interleaved = [](const Placement &source, const Placement &to) {
        return begin(source) < end(to) && begin(to) < end(source) &&
               std::ranges::all_of(source.elements(), [&](std::uintptr_t from) {
                   return std::ranges::all_of(to.elements(), [&](std::uintptr_t at) {
                       return from + source.elementSize <= at || at + to.elementSize <= from;
                   });
               });
    };
    for (const std::string name : {"vonkAdd_mm_32f_4x4", "vonkAdd_mama_32f_3x3_S2", "vonkAdd_mama_64f_3x3_P"})
        EXPECT_GT(callsRelated(name, Geometry::rowsInRows, interleaved), 20) << name;
}

TEST(Geometries, TablesInEachOtherAreOneTableWithShiftsThatDiffer) {
    const Relation shifted = [](const Placement &source, const Placement &to) {
        return source.table == to.table && source.shift != to.shift;
    };
    for (const std::string name : {"vonkAdd_mama_32f_4x4_P", "vonkTranspose_ma_64f_3x3_L"})
        EXPECT_GT(callsRelated(name, Geometry::tablesInEachOther, shifted), 50) << name;
}

// Of all operands.
int callsOf(const std::string &name, Geometry geometry, bool (*holds)(const Placement &)) {
    return callsWhere(name, geometry, [&](const auto &call) { return std::ranges::all_of(call.operands, holds); });
}

TEST(Geometries, NegativeStridesAreNegative) {
    EXPECT_GT(callsOf("vonkTranspose_ma_32f_S2", Geometry::negativeStrides,
                      [](const Placement &p) { return p.objectStride < 0 && p.rowStride < 0 && p.elementStride < 0; }),
              45);
}

TEST(Geometries, SameObjectTwiceMeansTwoEntriesForOnePlace) {
    const auto repeats = [](const Placement &placement) {
        std::vector<std::int64_t> slots = placement.slots;
        std::ranges::sort(slots);
        return slots.size() < 2 || std::ranges::adjacent_find(slots) != slots.end();
    };
    EXPECT_EQ(callsOf("vonkTranspose_ma_64f_3x3_L", Geometry::sameObjectTwice, repeats), calls);
    EXPECT_GT(callsOf("vonkTranspose_ma_64f_3x3", Geometry::sameObjectTwice,
                      [](const Placement &p) { return p.objectStride == 0; }),
              40);
}

} // namespace
