// The comparison can fail, and the random calls reach what they are meant to reach.
//
// The model itself stands in for a faultless library; each test of a fault adds that one fault to it.
#include "support/bitstream.h"
#include "support/calls.h"
#include "support/comparison.h"
#include "support/control.h"
#include "support/families.h"
#include "support/invoke.h"
#include "support/literal.h"
#include "support/report.h"
#include "support/tally.h"
#include "support/values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <map>
#include <set>
#include <string>

namespace {

using catalogue::Function;
using support::Arena;
using support::Call;
using support::Extent;
using support::Verdict;

using literal::allMembers;

const Arena &arena() { return support::sharedArena(); }

std::int32_t faultless(const Call &call) { return model::run({call.function->name, call.words}).status; }

void spoil(std::uintptr_t byte) { *reinterpret_cast<std::byte *>(byte) ^= std::byte{0x01}; }

Verdict compare(const Call &call, support::LibraryCall library, support::ModelRun model = model::run) {
    return support::Comparison(arena(), std::move(library), std::move(model)).compare(call, call.setting);
}

// With the fault happening behind the faultless work.
Verdict compareWith(const Call &call, const std::function<void()> &fault) {
    return compare(call, [&](const Call &made) {
        const std::int32_t status = faultless(made);
        fault();
        return status;
    });
}

bool hasFault(const Call &call) {
    const support::Traits &traits = call.traits;
    return traits.nullPointer || traits.nullEntry || traits.zeroDimension || traits.zeroCount;
}

// The first call of disjoint operands without a fault, with the arena made ready for it.
Call plainCall(const std::string &name) {
    for (std::uint64_t index = 0; index < 2000; ++index) {
        Call call = support::makeCall(literal::function(name), arena(), 7, index);
        if (!hasFault(call) && call.traits.overlap == support::Overlap::none) return call;
    }
    throw std::runtime_error("no call of " + name + " is plain");
}

// --- the comparison

TEST(Comparison, PassesTheFaultless) {
    for (const Function &function : allMembers())
        for (std::uint64_t index = 0; index < 4; ++index) {
            const Call call = support::makeCall(function, arena(), 3, index);
            const Verdict verdict = compareWith(call, [] {});
            EXPECT_TRUE(verdict.passed) << support::replayOptions(call) << "\n" << verdict.complaint;
        }
}

TEST(Comparison, LeavesTheArenaAsItFoundIt) {
    const Call call = plainCall("vonkAdd_vv_32f");
    support::Image before, after;
    arena().save(before);
    EXPECT_TRUE(compareWith(call, [] {}).worked);
    arena().save(after);
    EXPECT_EQ(before, after);
}

TEST(Comparison, ReportsAStrayStoreAnywhere) {
    const Call call = plainCall("vonkAdd_vv_32f");
    for (const std::size_t offset : {std::size_t{0}, Arena::size / 2, Arena::size - 1}) {
        const Verdict verdict = compareWith(call, [=] { spoil(Arena::address + offset); });
        EXPECT_FALSE(verdict.passed);
        EXPECT_NE(verdict.complaint.find("byte at arena + 0x"), std::string::npos);
    }
}

TEST(Comparison, ReportsOneWrongBitInAResult) {
    for (const char *name : {"vonkSub_vava_64f_LS2", "vonkLUDecomp_ma_32f_4x4", "vonkLUBackSubst_mva_64f_PS2"}) {
        const Call call = plainCall(name);
        EXPECT_FALSE(compareWith(call, [&] { spoil(call.operands.back().address(0, 0, 0)); }).passed) << name;
    }
}

TEST(Comparison, ReportsAChangedSourceTableOrPivot) {
    const Call call = plainCall("vonkLUBackSubst_mava_32f_P");
    for (const std::uintptr_t place :
         {call.operands[0].table, call.operands[0].address(0, 0, 0), call.blocks.front().address})
        EXPECT_FALSE(compareWith(call, [=] { spoil(place); }).passed);
}

TEST(Comparison, ReportsAWrongStatus) {
    const Call call = plainCall("vonkLUDecomp_m_64f_3x3");
    const Verdict verdict = compare(call, [](const Call &made) { return faultless(made) == 0 ? -10 : 0; });
    EXPECT_FALSE(verdict.passed);
    EXPECT_NE(verdict.complaint.find("status"), std::string::npos);
}

TEST(Comparison, ReportsASpoiledControlState) {
    const Call call = plainCall("vonkAdd_vv_64f");
    const support::MachineState before = support::MachineState::now();
    EXPECT_FALSE(compareWith(call, [] { __asm__ volatile("fld1"); }).passed) << "an entry left on the register stack";
    EXPECT_FALSE(compareWith(call, [] { __asm__ volatile("fincstp"); }).passed) << "the stack pointer moved";
    const auto narrow = [] {
        const std::uint16_t word = 0x007f; // 24 bits, to nearest
        __asm__ volatile("fldcw %0" : : "m"(word));
    };
    EXPECT_FALSE(compareWith(call, narrow).passed) << "the precision control";
    const auto flush = [] {
        const std::uint32_t word = 0xffc0; // flush to zero, rounding toward zero
        __asm__ volatile("ldmxcsr %0" : : "m"(word));
    };
    EXPECT_FALSE(compareWith(call, flush).passed) << "the lanes' control word";
    EXPECT_EQ(before, support::MachineState::now()) << "the comparison takes the damage back";
}

TEST(Comparison, ReportsASetDirectionFlag) {
    const Call call = plainCall("vonkAdd_vv_64f");
    // With the flag set hardly any code may run, so neither side does anything else.
    const auto setFlag = [](const Call &) {
        __asm__ volatile("std");
        return 0;
    };
    const Verdict verdict = compare(call, setFlag, [](const model::Call &) { return model::Outcome{}; });
    EXPECT_FALSE(verdict.passed);
    EXPECT_NE(verdict.complaint.find("direction"), std::string::npos);
}

// Library and model store these as the first element of a destination of floats; a stray byte is spoiled unless it is
// 0.
Verdict compareElements(std::uint32_t byLibrary, std::uint32_t byModel, model::Outcome outcome, std::size_t stray = 0) {
    const Call call = plainCall("vonkAdd_vv_32f_4x1");
    const std::uintptr_t place = call.operands.back().address(0, 0, 0);
    outcome.writes = {{place, 4}};
    for (model::Approximation &bound : outcome.approximations) bound.address = place;
    const auto put = [=](std::uint32_t bits) { std::memcpy(reinterpret_cast<void *>(place), &bits, sizeof bits); };
    const auto library = [&](const Call &) {
        put(byLibrary);
        if (stray != 0) spoil(Arena::address + stray);
        return 0;
    };
    return compare(call, library, [&](const model::Call &) {
        put(byModel);
        return outcome;
    });
}

constexpr std::uint32_t positiveNan = 0x7fc00000, negativeNan = 0xffc00000;
const model::Outcome settled{0, {}, false, false}, withNan{0, {}, true, false}, open{0, {}, false, true};

TEST(Comparison, ToleratesTheSignOfANanOnlyWhereTheModelMetOne) {
    const Verdict met = compareElements(negativeNan, positiveNan, withNan);
    EXPECT_TRUE(met.passed);
    EXPECT_EQ(met.extent, Extent::nanTolerated);
    EXPECT_FALSE(compareElements(negativeNan, positiveNan, settled).passed);
    EXPECT_FALSE(compareElements(negativeNan, positiveNan, withNan, 1).passed) << "beside the NaN";
    const auto one = std::bit_cast<std::uint32_t>(1.0F);
    EXPECT_FALSE(compareElements(one, positiveNan, withNan).passed) << "a number in the NaN's place";
}

TEST(Comparison, FindsStrayStoresInOpenCalls) {
    const Verdict verdict = compareElements(negativeNan, positiveNan, open);
    EXPECT_TRUE(verdict.passed);
    EXPECT_EQ(verdict.extent, Extent::statusOnly);
    EXPECT_FALSE(compareElements(negativeNan, positiveNan, open, 1).passed);
}

// The model promises `exact` within the error.
Verdict compareBounded(float result, long double exact, long double error) {
    return compareElements(std::bit_cast<std::uint32_t>(result),
                           std::bit_cast<std::uint32_t>(static_cast<float>(exact)),
                           {0, {}, false, false, {{0, 4, exact, error}}});
}

TEST(Comparison, HoldsAnElementToItsBoundAndTellsItsError) {
    const Verdict within = compareBounded(1 + 0x1p-21F, 1, 0x1p-20L);
    EXPECT_TRUE(within.passed) << within.complaint;
    EXPECT_EQ(within.extent, Extent::withinBounds);
    EXPECT_EQ(within.accuracy.elements, 1U);
    EXPECT_EQ(within.accuracy.underTightBound, 4.0); // units of 2^-23
    EXPECT_EQ(within.accuracy.shareOfBound, 0.5);
    const Verdict beyond = compareBounded(1 + 0x1.8p-20F, 1, 0x1p-20L);
    EXPECT_FALSE(beyond.passed);
    EXPECT_NE(beyond.complaint.find("with a bound of"), std::string::npos);
    EXPECT_FALSE(compareBounded(std::nanf(""), 1, 0x1p-20L).passed);
}

TEST(Comparison, TakesBoundsThatAreNoNumbersForWhatTheySay) {
    constexpr long double infinity = std::numeric_limits<long double>::infinity();
    EXPECT_TRUE(compareBounded(std::nanf(""), 0, infinity).passed) << "anything";
    EXPECT_EQ(compareBounded(5, 0, infinity).extent, Extent::statusOnly);
    EXPECT_TRUE(compareBounded(std::nanf(""), infinity, 0).passed) << "not finite";
    EXPECT_FALSE(compareBounded(3e38F, infinity, 0).passed);
    EXPECT_FALSE(compareBounded(std::numeric_limits<float>::infinity(), std::nanl(""), 0).passed) << "a NaN";
}

// --- settings

TEST(Control, SetsBothUnitsForAScope) {
    const support::MachineState before = support::MachineState::now();
    volatile float one = 1.0f, three = 3.0f;
    volatile double first = 1.0, second = 0x1p-60;
    {
        const support::SettingScope scope({support::Precision::bits53, support::Rounding::up});
        EXPECT_EQ(one / three, 0x1.555556p-2f);
        const long double sum = static_cast<long double>(first) + static_cast<long double>(second);
        EXPECT_EQ(sum, 1.0L + 0x1p-52L) << "53 bits, upward";
    }
    {
        const support::SettingScope scope({support::Precision::bits64, support::Rounding::towardZero});
        EXPECT_EQ(one / three, 0x1.555554p-2f);
        const long double sum = static_cast<long double>(first) + static_cast<long double>(second);
        EXPECT_EQ(sum, 1.0L + 0x1p-60L) << "64 bits hold it";
    }
    EXPECT_EQ(before, support::MachineState::now());
}

// --- invoking

std::vector<std::uint64_t> received;

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

extern "C" std::int32_t takeLinearCombination(const double *src1, std::int32_t src1Shift, std::int32_t src1Stride,
                                              double val1, const double *src2, std::int32_t src2Shift,
                                              std::int32_t src2Stride, double val2, double *dst, std::int32_t dstShift,
                                              std::int32_t dstStride, std::uint32_t len, std::uint32_t count) {
    const auto address = [](const double *pointer) { return reinterpret_cast<std::uint64_t>(pointer); };
    const auto word = [](auto value) { return static_cast<std::uint64_t>(static_cast<std::uint32_t>(value)); };
    received = {address(src1),   word(src1Shift),  word(src1Stride), bitsOf(val1), address(src2),
                word(src2Shift), word(src2Stride), bitsOf(val2),     address(dst), word(dstShift),
                word(dstStride), word(len),        word(count)};
    return -77;
}

TEST(Invoke, PassesEveryWordInItsPlace) {
    const Function &function = literal::function("vonkLComb_vava_64f_LS2");
    const std::vector<std::uint64_t> expected{1u << 20,      0xfffffff0, 3,  bitsOf(1.5), 5u << 20, 6, 7,
                                              bitsOf(-2.25), 9u << 20,   10, 0x80000000,  12,       13};
    std::vector<std::uint64_t> words = expected;
    for (std::size_t k = 0; k < words.size(); ++k) // with rubbish above the narrow words
        if (function.parameters[k].type.ends_with("32_t")) words[k] |= 0xdeadbeef00000000;
    EXPECT_EQ(support::invoke(reinterpret_cast<void *>(&takeLinearCombination), function, words), -77);
    EXPECT_EQ(received, expected);
}

extern "C" std::int32_t takeMultiple(const float *src, float val, float *dst, std::uint32_t len) {
    return src == dst && val == 0.75f && len == 4 ? 1 : 0;
}

TEST(Invoke, PassesSingleConstants) {
    const std::uint32_t bits = 0x3f400000;
    EXPECT_EQ(support::invoke(reinterpret_cast<void *>(&takeMultiple), literal::function("vonkMul_vc_32f"),
                              std::vector<std::uint64_t>{64, bits, 64, 0xffffffff00000004}),
              1);
}

// --- the random calls

TEST(Calls, AreAFunctionOfSeedNameAndIndex) {
    support::Image first, second;
    for (const Function &function : allMembers()) {
        const Call once = support::makeCall(function, arena(), 11, 5);
        arena().save(first);
        support::makeCall(function, arena(), 12, 6);
        const Call again = support::makeCall(function, arena(), 11, 5);
        arena().save(second);
        ASSERT_EQ(once.words, again.words) << function.name;
        ASSERT_EQ(first, second) << function.name;
    }
}

// Of every function of the catalogue: the operands fit and lie inside.
TEST(Calls, KeepEveryOperandInTheArena) {
    for (const Function &function : allMembers())
        for (std::uint64_t index = 0; index < 6; ++index) {
            const Call call = support::makeCall(function, arena(), 5, index);
            ASSERT_EQ(call.words.size(), function.parameters.size());
            for (const support::Placement &operand : call.operands) {
                for (const std::uintptr_t place : operand.elements())
                    ASSERT_TRUE(Arena::contains(place, operand.elementSize)) << support::replayOptions(call);
                if (operand.tabled) {
                    ASSERT_TRUE(Arena::contains(operand.table - 8, 8 * operand.slots.size() + 8));
                }
            }
            for (const support::Block &block : call.blocks)
                ASSERT_TRUE(Arena::contains(block.address, block.bytes)) << support::replayOptions(call);
        }
}

TEST(Calls, ReachEveryKindOfCase) {
    std::map<std::string, int> reached;
    std::uint64_t calls = 0;
    int troubles = 0;
    int couldBeTroubled = 0;
    for (const Function &function : allMembers())
        for (std::uint64_t index = 0; index < support::faultRound; ++index, ++calls) {
            const Call call = support::makeCall(function, arena(), 9, index);
            const support::Traits &traits = call.traits;
            reached["in place"] += traits.overlap == support::Overlap::inPlace;
            reached["partial overlap"] += traits.overlap == support::Overlap::partial;
            reached["elements crossed"] += traits.crossesElements;
            reached["null pointer"] += traits.nullPointer;
            reached["null entry"] += traits.nullEntry;
            reached["zero dimension"] += traits.zeroDimension;
            reached["zero count"] += traits.zeroCount;
            reached["huge size"] += traits.hugeSize;
            reached["negative stride"] += traits.negativeStride;
            reached["aligned pointers"] += traits.alignedBases;
            reached["pointers off their element"] += traits.unalignedBases;
            troubles += traits.trouble;
            couldBeTroubled += support::families::hasTrouble(function);
            reached["other rounding"] += call.setting.rounding != support::Rounding::nearest;
        }
    EXPECT_EQ(reached.size(), 12u);
    EXPECT_GT(troubles, couldBeTroubled / 100); // in the numbers, where a family can get into any
    EXPECT_GT(couldBeTroubled, 0);
    for (const auto &[what, times] : reached)
        EXPECT_GT(static_cast<std::uint64_t>(times), calls / 100) << what << " in " << times << " of " << calls;
}

TEST(Calls, ReachEveryStatusOfEveryExport) {
    for (const Function &function : allMembers()) {
        std::set<std::int32_t> statuses;
        for (std::uint64_t index = 0; index < 4 * support::faultRound; ++index)
            statuses.insert(faultless(support::makeCall(function, arena(), 13, index)));
        for (const std::int32_t status : support::families::relevantStatuses(function))
            EXPECT_TRUE(statuses.contains(status)) << function.name << " never returned " << status;
    }
}

// Around the length from which blocks are worth while, at every alignment of the destination, disjoint.
TEST(Calls, CrossTheBlockLengthAtEveryAlignment) {
    std::map<std::pair<std::uintptr_t, bool>, std::set<bool>> seen;
    for (std::uint64_t index = 0; index < 2000; ++index) {
        const Call call = support::makeCall(literal::function("vonkAdd_vv_32f"), arena(), 17, index);
        if (hasFault(call) || call.traits.overlap != support::Overlap::none) continue;
        const bool long_ = call.operands[0].shape.cols >= 11;
        seen[{call.operands[2].origin % 16, call.operands[1].origin % 16 == 0}].insert(long_);
    }
    for (const std::uintptr_t residue : {0, 1, 4, 8, 12})
        for (const bool aligned : {false, true})
            EXPECT_EQ((seen[{residue, aligned}].size()), 2u) << residue << (aligned ? " aligned" : " unaligned");
}

// --- the counts

// Whether all pointers to elements, and the strides between objects and rows, are multiples of 16.
bool isAlignedThroughout(const Call &call) {
    for (std::size_t k = 0; k < call.words.size(); ++k) {
        const catalogue::Kind kind = call.function->parameters[k].kind;
        const bool isWide = kind == catalogue::Kind::base || kind == catalogue::Kind::dense;
        const bool isStride = kind == catalogue::Kind::objectStride || kind == catalogue::Kind::rowStride;
        if ((isWide || isStride) && call.words[k] % 16 != 0) return false;
    }
    return true;
}

TEST(Calls, TakeBothWaysWhereAlignmentChooses) {
    std::size_t choosing = 0;
    for (const Function &function : allMembers()) {
        if (!support::families::looksAtAlignment(function) || !function.layout.empty()) continue;
        ++choosing;
        constexpr std::size_t made = 200;
        std::size_t aligned = 0;
        for (std::uint64_t index = 0; index < made; ++index)
            aligned += isAlignedThroughout(support::makeCall(function, arena(), 1, index));
        EXPECT_GT(aligned, made / 4) << function.name;
        EXPECT_LT(aligned, made * 3 / 4) << function.name;
    }
    EXPECT_GT(choosing, 50U);
}

TEST(Tally, MissesWhatWasNotReached) {
    support::Tally tally;
    const Call call = plainCall("vonkLUDecomp_m_32f");
    Verdict verdict;
    verdict.worked = true;
    for (int k = 0; k < 200; ++k) tally.add(call, verdict);
    EXPECT_EQ(support::shortcomings(tally, *call.function).size(), 3u) << "three statuses never came";

    verdict.extent = Extent::statusOnly;
    verdict.worked = false;
    for (int k = 0; k < 800; ++k) tally.add(call, verdict);
    EXPECT_EQ(support::shortcomings(tally, *call.function).size(), 5u) << "and hardly anything was compared or done";
}

TEST(Tally, IsContentWithTheRandomCalls) {
    for (const char *name :
         {"vonkAdd_vv_32f", "vonkSub_vava_64f_PS2", "vonkLUDecomp_ma_64f_LS2", "vonkLUBackSubst_mv_32f_P"}) {
        support::Tally tally;
        for (std::uint64_t index = 0; index < 300; ++index) {
            const Call call = support::makeCall(literal::function(name), arena(), 19, index);
            tally.add(call, compareWith(call, [] {}));
        }
        EXPECT_EQ(support::shortcomings(tally, literal::function(name)), std::vector<std::string>{}) << name;
    }
}

// --- the bits

std::uint64_t resultsOf(const std::string &name, const std::function<void(const Call &)> &fault) {
    const support::LibraryCall library = [&](const Call &call) {
        const std::int32_t status = faultless(call);
        fault(call);
        return status;
    };
    return support::hashStream(literal::function(name), arena(), {library}).results.front();
}

TEST(Bitstream, ShowsOneChangedBitAndNoSignOfANan) {
    const std::string name = "vonkAdd_vava_32f_S2";
    const std::uint64_t usual = resultsOf(name, [](const Call &) {});
    EXPECT_EQ(usual, resultsOf(name, [](const Call &) {}));
    EXPECT_NE(usual, resultsOf(name, [](const Call &call) {
                  if (call.index == 40) spoil(call.operands.back().address(0, 0, 0));
              }));
    int turned = 0;
    EXPECT_EQ(usual, resultsOf(name, [&](const Call &call) {
                  for (const std::uintptr_t place : call.operands.back().elements()) {
                      auto *const bytes = reinterpret_cast<std::byte *>(place);
                      if (!support::isNanElement(bytes, catalogue::Type::real32)) continue;
                      bytes[3] ^= std::byte{0x80};
                      ++turned;
                  }
              }));
    EXPECT_GT(turned, 0);
}

TEST(Bitstream, HoldsNoCallWhoseOutcomeIsOpen) {
    int inPlace = 0;
    for (const Function &function : allMembers())
        for (std::uint64_t index = 0; index < support::bitstreamCalls; ++index) {
            const Call call =
                support::makeCall(function, arena(), support::bitstreamSeed, index, support::bitstreamMixture());
            inPlace += call.traits.overlap == support::Overlap::inPlace;
            const bool isPartial = call.traits.overlap == support::Overlap::partial;
            const bool mayBePartial = support::families::readsThroughDestination(function); // among the cells of `dst`
            ASSERT_TRUE(mayBePartial || !isPartial) << function.name << ":" << index;
            const std::string_view section = function.section->id;
            const bool mayBeOpen = section == "determinant" || section == "inverse"; // tests that hang on roundings
            if (!mayBeOpen) {
                ASSERT_FALSE(model::run({function.name, call.words}).open) << function.name << ":" << index;
            }
        }
    EXPECT_GT(inPlace, 1000);
}

} // namespace
