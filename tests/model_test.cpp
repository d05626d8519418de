// Tests of the model itself: the names and parameter lists that it derives, and calls worked out by hand, so that a
// slip in the model cannot hide behind the same slip in the library.
#include "model/model.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::uint64_t>;

template <class Type> std::uint64_t to(Type *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }

template <class Container> std::uint64_t to(Container &container) { return to(container.data()); }

std::uint64_t bytes(std::int32_t value) { return static_cast<std::uint32_t>(value); }

model::Outcome run(const std::string &name, const Words &words) { return model::run({name, words}); }

std::string listOf(const std::string &name) {
    std::string text;
    for (const model::Parameter &parameter : model::parameters(name))
        text += (text.empty() ? "" : " ") + parameter.name;
    return text;
}

std::set<std::string> signedSizesOf(const std::string &name) {
    std::set<std::string> found;
    for (const model::Parameter &parameter : model::parameters(name))
        if (parameter.isSigned) found.insert(parameter.name);
    return found;
}

// Sets the precision control of the extended unit for one scope.
class PrecisionControl {
public:
    explicit PrecisionControl(unsigned bits) {
        asm volatile("fnstcw %0" : "=m"(saved_));
        const auto wanted = static_cast<std::uint16_t>((saved_ & ~0x300U) | bits);
        asm volatile("fldcw %0" : : "m"(wanted));
    }
    ~PrecisionControl() { asm volatile("fldcw %0" : : "m"(saved_)); }
    PrecisionControl(const PrecisionControl &) = delete;
    PrecisionControl &operator=(const PrecisionControl &) = delete;

    static constexpr unsigned bits53 = 0x200;
    static constexpr unsigned bits64 = 0x300;

private:
    std::uint16_t saved_ = 0;
};

TEST(ModelNames, CountsPerOperationAddUp) {
    std::map<std::string, int> counts;
    std::set<std::string> distinct;
    for (const std::string &name : model::names()) {
        ++counts[name.substr(0, name.find('_'))];
        distinct.insert(name);
    }
    const std::map<std::string, int> expected = {
        {"vonkAdd", 600 + 150 + 90},
        {"vonkSub", 840 + 210 + 180},
        {"vonkMul", 840 + 420 + 180 + 90},
        {"vonkSaxpy", 210},
        {"vonkLComb", 150},
        {"vonkDotProduct", 150},
        {"vonkL2Norm", 90},
        {"vonkCrossProduct", 42},
        {"vonkGaxpy", 90},
        {"vonkTranspose", 90},
        {"vonkTrace", 90},
        {"vonkFrobNorm", 90},
        {"vonkCopy", 36},
        {"vonkExtract", 27},
        {"vonkLoadIdentity", 6},
        {"vonkLUDecomp", 90},
        {"vonkLUBackSubst", 150},
        {"vonkDet", 90},
        {"vonkInvert", 90},
        {"vonkCholeskyDecomp", 90},
        {"vonkCholeskyBackSubst", 150},
        {"vonkQRDecomp", 90},
        {"vonkQRBackSubst", 150},
    };
    EXPECT_EQ(counts, expected);
    EXPECT_EQ(distinct.size(), 5571U);
    EXPECT_EQ(model::names().size(), 5571U);
}

TEST(ModelNames, IrregularMembersAreExact) {
    const std::vector<std::string> all = model::names();
    const std::set<std::string> names(all.begin(), all.end());
    for (const char *present : {"vonkAdd_mam_32f_3x3_LS2", "vonkCholeskyDecomp_ma_64f_P", "vonkCopy_va_32f_SL",
                                "vonkCrossProduct_vva_64f_3x1", "vonkExtract_mT_32f_S2", "vonkExtract_maT_64f_LS2",
                                "vonkGaxpy_va_32f_6x6_PS2", "vonkLoadIdentity_ma_64f_L"})
        EXPECT_EQ(names.count(present), 1U) << present;
    for (const char *absent :
         {"vonkAdd_mma_32f", "vonkAdd_vva_32f", "vonkLComb_vva_32f", "vonkMul_cv_32f", "vonkExtract_mT_64f_S2",
          "vonkExtract_maT_32f_S2", "vonkCrossProduct_vv_32f", "vonkAdd_mm_32f_PS2", "vonkAdd_vv_32f_3x3",
          "vonkDotProduct_vva_32f", "vonkGetLibVersion"})
        EXPECT_EQ(names.count(absent), 0U) << absent;
}

TEST(ModelNames, KnowsTheFamiliesInPlaceAndNoOthers) {
    std::map<std::string, int> known;
    for (const std::string &name : model::names())
        if (model::knows(name)) ++known[name.substr(0, name.find('_'))];
    EXPECT_EQ(known["vonkLUDecomp"], 90);
    EXPECT_EQ(known["vonkLUBackSubst"], 150);
    EXPECT_GE(known["vonkAdd"], 150);
    EXPECT_GE(known["vonkSub"], 210);
    EXPECT_FALSE(model::knows("vonkGetLibVersion"));
}

TEST(ModelParameters, FollowFromTheName) {
    const std::map<std::string, std::string> lists = {
        {"vonkAdd_mam_32f",
         "src1 src1ObjStride src1RowStride src2 src2RowStride dst dstObjStride dstRowStride cols rows count"},
        {"vonkAdd_mam_32f_L",
         "src1 src1Shift src1RowStride src2 src2RowStride dst dstShift dstRowStride cols rows count"},
        {"vonkSub_mTmaT_64f_4x4_L", "src1 src1RowStride src2 src2Shift src2RowStride dst dstShift dstRowStride count"},
        {"vonkSub_vva_64f_LS2",
         "src1 src1ElemStride src2 src2Shift src2ElemStride dst dstShift dstElemStride len count"},
        {"vonkSub_cva_32f_PS2", "src srcShift srcObjStride val dst dstShift dstObjStride len count"},
        {"vonkMul_mam_32f_LS2", "src1 src1Shift src1RowStride src1ElemStride src1Cols src1Rows src2 src2RowStride "
                                "src2ElemStride src2Cols src2Rows dst dstShift dstRowStride dstElemStride count"},
        {"vonkMul_mama_64f_4x4_PS2",
         "src1 src1Shift src1ObjStride src2 src2Shift src2ObjStride dst dstShift dstObjStride count"},
        {"vonkMul_mav_32f_S2", "src1 src1ObjStride src1RowStride src1ElemStride src1Cols src1Rows src2 src2ElemStride "
                               "src2Len dst dstObjStride dstElemStride count"},
        {"vonkMul_mac_64f_L", "src srcShift srcRowStride val dst dstShift dstRowStride cols rows count"},
        {"vonkGaxpy_v_32f", "src1 src1RowStride src2 src3 dst cols rows"},
        {"vonkGaxpy_va_32f",
         "src1 src1RowStride src2 src2ObjStride src3 src3ObjStride dst dstObjStride cols rows count"},
        {"vonkSaxpy_vva_32f", "src1 val src2 src2ObjStride dst dstObjStride len count"},
        {"vonkLComb_vava_32f_LS2", "src1 src1Shift src1ElemStride val1 src2 src2Shift src2ElemStride val2 dst dstShift "
                                   "dstElemStride len count"},
        {"vonkDotProduct_vav_64f_LS2", "src1 src1Shift src1ElemStride src2 src2ElemStride dst len count"},
        {"vonkL2Norm_va_32f_PS2", "src srcShift srcObjStride dst len count"},
        {"vonkCrossProduct_vva_32f_3x1_LS2",
         "src1 src1ElemStride src2 src2Shift src2ElemStride dst dstShift dstElemStride count"},
        {"vonkTranspose_ma_32f_LS2",
         "src srcShift srcRowStride srcElemStride cols rows dst dstShift dstRowStride dstElemStride count"},
        {"vonkTrace_m_32f", "src srcRowStride order dst"},
        {"vonkFrobNorm_ma_64f_PS2", "src srcShift srcObjStride cols rows dst count"},
        {"vonkDet_ma_32f_L", "src srcShift srcRowStride order scratch dst count"},
        {"vonkDet_ma_32f_3x3_L", "src srcShift srcRowStride dst count"},
        {"vonkInvert_m_64f", "src srcRowStride order scratch dst dstRowStride"},
        {"vonkCopy_ma_32f_PL", "src srcShift srcObjStride dst dstShift dstRowStride dstElemStride cols rows count"},
        {"vonkCopy_va_64f_SP", "src srcObjStride srcElemStride dst dstShift dstObjStride len count"},
        {"vonkExtract_maT_64f_LS2", "src srcShift srcRowStride srcElemStride dst cols rows count"},
        {"vonkExtract_v_32f_P", "src srcShift dst len"},
        {"vonkLoadIdentity_ma_32f_S", "dst dstObjStride dstRowStride dstElemStride cols rows count"},
        {"vonkLoadIdentity_ma_32f_P", "dst dstShift dstObjStride cols rows count"},
        {"vonkLUDecomp_ma_32f_4x4", "src srcObjStride srcRowStride pivots dst dstObjStride dstRowStride count"},
        {"vonkQRDecomp_m_32f_4x4", "src srcRowStride work dst dstRowStride"},
        {"vonkCholeskyBackSubst_mva_32f", "src1 src1RowStride src2 src2ObjStride dst dstObjStride order count"},
    };
    for (const auto &[name, list] : lists) EXPECT_EQ(listOf(name), list) << name;
}

TEST(ModelParameters, OneMatrixForManySolvesKeepsAnUnreadWord) {
    EXPECT_EQ(listOf("vonkLUBackSubst_mva_32f_3x3"),
              "src1 src1ObjStride src1RowStride pivots src2 src2ObjStride dst dstObjStride count");
    EXPECT_EQ(listOf("vonkLUBackSubst_mva_64f_LS2"),
              "src1 src1Shift src1RowStride src1ElemStride pivots src2 src2Shift src2ElemStride dst dstShift "
              "dstElemStride order count");
    EXPECT_EQ(listOf("vonkQRBackSubst_mva_32f_L"),
              "src1 src1Shift src1RowStride work src2 src2Shift dst dstShift cols rows count");
    EXPECT_EQ(listOf("vonkLUBackSubst_mva_32f_PS2"),
              "src1 src1Shift pivots src2 src2Shift src2ObjStride dst dstShift dstObjStride order count");
    EXPECT_EQ(listOf("vonkLUBackSubst_mava_32f_PS2"),
              "src1 src1Shift src1ObjStride pivots src2 src2Shift src2ObjStride "
              "dst dstShift dstObjStride order count");
}

TEST(ModelParameters, FewSizesAreSigned) {
    using Names = std::set<std::string>;
    EXPECT_EQ(signedSizesOf("vonkLoadIdentity_ma_32f_P"), (Names{"cols", "rows"}));
    EXPECT_EQ(signedSizesOf("vonkCholeskyDecomp_ma_32f"), Names{"count"});
    EXPECT_EQ(signedSizesOf("vonkCholeskyDecomp_ma_64f_3x3_LS2"), Names{"count"});
    EXPECT_EQ(signedSizesOf("vonkCholeskyDecomp_ma_32f_PS2"), Names{});
    EXPECT_EQ(signedSizesOf("vonkCholeskyBackSubst_mva_32f_P"), Names{"count"});
    EXPECT_EQ(signedSizesOf("vonkCholeskyBackSubst_mava_64f_LS2"), (Names{"count", "order"}));
    EXPECT_EQ(signedSizesOf("vonkCholeskyBackSubst_mv_64f_S2"), Names{"order"});
    EXPECT_EQ(signedSizesOf("vonkCholeskyBackSubst_mv_64f"), Names{});
    EXPECT_EQ(signedSizesOf("vonkCopy_ma_32f_SS"), Names{});
}

TEST(ModelVectorSum, WalksForwardThroughAnOverlap) {
    std::array<float, 5> a = {1, 10, 20, 30, 40};
    const std::array<float, 4> b = {1, 2, 3, 4};
    const model::Outcome outcome = run("vonkAdd_vv_32f", {to(a), to(b), to(&a[1]), 4});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(a, (std::array<float, 5>{1, 2, 4, 7, 11}));
    EXPECT_FALSE(outcome.open);
    ASSERT_EQ(outcome.writes.size(), 4U);
    EXPECT_EQ(outcome.writes[3].address, to(&a[4]));
    EXPECT_EQ(outcome.writes[3].size, 4U);
}

TEST(ModelVectorSum, LanesReadAnObjectBeforeTheyWriteIt) {
    std::array<float, 5> a = {1, 10, 20, 30, 40};
    const std::array<float, 4> b = {1, 2, 3, 4};
    EXPECT_FALSE(run("vonkAdd_vv_32f_4x1", {to(a), to(b), to(&a[1])}).open);
    EXPECT_EQ(a, (std::array<float, 5>{1, 2, 12, 23, 34}));
}

TEST(ModelVectorSum, TwoPartsOfAnObjectAreOpenUnderAPartialOverlapOnly) {
    std::array<float, 7> a = {1, 2, 3, 4, 5, 6, 7};
    const std::array<float, 6> b = {};
    EXPECT_TRUE(run("vonkAdd_vv_32f_6x1", {to(a), to(b), to(&a[1])}).open);
    EXPECT_FALSE(run("vonkAdd_vv_32f_6x1", {to(a), to(b), to(a)}).open);
    std::array<double, 7> wide = {};
    EXPECT_FALSE(run("vonkAdd_vv_64f_6x1", {to(wide), to(wide), to(&wide[1])}).open);
}

TEST(ModelVectorSum, FixedReal32HoldsTheSingleVector) {
    const std::array<float, 6> objects = {1, 2, 3, 10, 20, 30};
    std::array<float, 6> dst = {100, 200, 300, 0, 0, 0};
    run("vonkSub_vva_32f_3x1", {to(dst), to(objects), 12, to(dst), 12, 2});
    EXPECT_EQ(dst, (std::array<float, 6>{99, 198, 297, 90, 180, 270}));
    std::array<double, 6> wideObjects = {1, 2, 3, 10, 20, 30};
    std::array<double, 6> wide = {100, 200, 300, 0, 0, 0};
    run("vonkSub_vva_64f_3x1", {to(wide), to(wideObjects), 24, to(wide), 24, 2});
    EXPECT_EQ(wide, (std::array<double, 6>{99, 198, 297, 89, 178, 267}));
}

TEST(ModelVectorSum, BlocksOfFourAreOpenWhereAnObjectFeedsALaterOne) {
    std::array<float, 24> a = {};
    const std::array<float, 15> b = {};
    // Destination n lies on source n + 1.
    EXPECT_TRUE(run("vonkSub_vava_32f_3x1", {to(a), 12, to(b), 12, to(&a[3]), 12, 4}).open);
    EXPECT_FALSE(run("vonkSub_vava_32f_3x1", {to(a), 12, to(b), 12, to(&a[3]), 12, 3}).open);
    EXPECT_FALSE(run("vonkAdd_vava_32f_3x1", {to(a), 12, to(b), 12, to(&a[3]), 12, 4}).open);
    EXPECT_FALSE(run("vonkSub_vava_32f_3x1", {to(&a[3]), 12, to(b), 12, to(a), 12, 4}).open);
}

TEST(ModelVectorSum, NullEntriesStopAtTheirTurnOrBeforeAnything) {
    std::array<double, 4> a = {1, 2, 3, 4};
    std::array<double, 4> dst = {};
    std::array<double *, 4> table = {&a[0], &a[1], &a[2], nullptr};
    std::array<double *, 4> dstTable = {&dst[3], &dst[2], &dst[1], &dst[0]};
    EXPECT_EQ(run("vonkAdd_vv_64f_P", {to(table), 0, to(table), 0, to(dstTable), 0, 4}).status, -8);
    EXPECT_EQ(dst, (std::array<double, 4>{0, 6, 4, 2}));
    dst = {};
    EXPECT_EQ(run("vonkAdd_vava_64f_PS2", {to(table), 0, 8, to(table), 0, 8, to(dstTable), 0, 8, 4, 0}).status, -8);
    EXPECT_EQ(run("vonkAdd_vava_64f_PS2", {to(table), 0, 8, to(table), 0, 8, to(dstTable), 0, 8, 3, 0}).status, 0);
    EXPECT_EQ(dst, (std::array<double, 4>{}));
    // A list of four objects of one element each, each 8 bytes behind its pointer; the fourth pointer is null.
    EXPECT_EQ(run("vonkSub_vav_64f_L", {to(table), bytes(8), to(a), to(dstTable), bytes(-8), 1, 4}).status, -8);
    EXPECT_EQ(dst, (std::array<double, 4>{3, 2, 1, 0}));
}

TEST(ModelVectorSum, ChecksInOrder) {
    std::array<float, 4> a = {};
    EXPECT_EQ(run("vonkAdd_vv_32f", {to(a), to(a), 0, 0}).status, -8);
    EXPECT_EQ(run("vonkAdd_vv_32f", {to(a), to(a), to(a), 0}).status, -6);
    EXPECT_EQ(run("vonkAdd_vav_32f", {to(a), 0, to(a), to(a), 0, 0, 0}).status, -6);
    EXPECT_EQ(run("vonkAdd_vav_32f", {to(a), 0, to(a), to(a), 0, 1, 0}).status, 0);
}

TEST(ModelVectorSum, ReportsNansOfTheArithmetic) {
    const float infinity = std::numeric_limits<float>::infinity();
    std::array<float, 2> a = {infinity, 1};
    std::array<float, 2> dst = {};
    EXPECT_FALSE(run("vonkAdd_vv_32f", {to(a), to(a), to(dst), 2}).nanSeen);
    EXPECT_TRUE(run("vonkSub_vv_32f", {to(a), to(a), to(dst), 2}).nanSeen);
}

TEST(ModelOperands, OnlyTheLowBitsOfNarrowWordsCountAndStridesAreSigned) {
    const std::array<double, 4> a = {1, 2, 3, 4};
    const std::array<double, 2> b = {10, 20};
    std::array<double, 4> dst = {};
    const std::uint64_t garbage = 0xdeadbeef00000000;
    // Objects of two elements that walk backwards in both directions.
    run("vonkAdd_vav_64f_S2", {to(&a[3]), garbage | bytes(-16), garbage | bytes(-8), to(b), garbage | 8, to(dst),
                               garbage | 16, garbage | 8, garbage | 2, garbage | 2});
    EXPECT_EQ(dst, (std::array<double, 4>{14, 23, 12, 21}));
}

TEST(ModelOperands, TablesServeAllObjectsAndListsOneEach) {
    std::array<float, 6> a = {1, 2, 3, 4, 5, 6};
    const std::array<float, 2> single = {10, 20};
    std::array<const float *, 2> singleTable = {&single[0], &single[1]};
    std::array<float *, 2> positions = {&a[0], &a[3]};
    std::array<float, 6> dst = {};
    std::array<float *, 2> dstPositions = {&dst[0], &dst[3]};
    run("vonkSub_vav_32f_P", {to(positions), 0, to(singleTable), 0, to(dstPositions), 0, 2, 3});
    EXPECT_EQ(dst, (std::array<float, 6>{-9, -8, -7, -16, -15, -14}));
    dst = {};
    run("vonkSub_vav_32f_PS2", {to(positions), 4, 4, to(singleTable), 0, to(dstPositions), 0, 8, 2, 2});
    EXPECT_EQ(dst, (std::array<float, 6>{-8, 0, -7, -15, 0, -14}));
    dst = {};
    run("vonkSub_vav_32f_LS2", {to(positions), 0, 8, to(single), 4, to(dstPositions), 4, bytes(-4), 2, 2});
    EXPECT_EQ(dst, (std::array<float, 6>{-17, -9, 0, -14, -6, 0}));
}

TEST(ModelOperands, ACallThatWritesItsOwnTableIsOpen) {
    std::array<double, 3> a = {1, 2, 3};
    std::array<std::uint64_t, 3> table = {to(&a[0]), to(&a[1]), to(&a[2])};
    std::array<std::uint64_t, 3> dstTable = {to(&table[1]), to(&a[1]), to(&a[2])};
    EXPECT_TRUE(run("vonkAdd_vv_64f_P", {to(table), 0, to(table), 0, to(dstTable), 0, 3}).open);
}

TEST(ModelLuDecomposition, FactorsThroughThePermutation) {
    const std::array<float, 4> src = {1, 2, 4, 6};
    std::array<float, 4> dst = {};
    std::array<std::uint32_t, 2> pivots = {7, 7};
    const model::Outcome outcome = run("vonkLUDecomp_m_32f", {to(src), 8, to(pivots), to(dst), 8, 2});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_FALSE(outcome.open);
    EXPECT_EQ(pivots, (std::array<std::uint32_t, 2>{1, 0}));
    EXPECT_EQ(dst, (std::array<float, 4>{0.25, 0.5, 4, 6}));
}

TEST(ModelLuDecomposition, ATinyPivotFailsAfterItsExchange) {
    const double below = std::nextafter(0x1p-23, 0);
    const std::array<double, 9> src = {0, 1, 2, 0x1p-24, 3, 4, below, 5, 6};
    std::array<double, 9> dst = {};
    std::array<std::uint32_t, 3> pivots = {};
    const Words words = {to(src), 24, to(pivots), to(dst), 24};
    EXPECT_EQ(run("vonkLUDecomp_m_64f_3x3", words).status, -10);
    EXPECT_EQ(pivots, (std::array<std::uint32_t, 3>{2, 1, 0}));
    EXPECT_EQ(dst, src);
}

TEST(ModelLuDecomposition, TheLastPivotOfALaterObjectIsLookedForFurtherOn) {
    const std::array<float, 8> src = {1, 0, 0, 1, 1, 1, 1, 1};
    std::array<float, 10> dst = {};
    std::array<std::uint32_t, 4> pivots = {};
    const Words words = {to(src), 16, 8, to(pivots), to(dst), 16, 8, 2, 2};
    dst[9] = 5; // a row behind the last element of object 1, which itself becomes 0
    EXPECT_EQ(run("vonkLUDecomp_ma_32f", words).status, 0);
    EXPECT_EQ(dst[7], 0);
    dst[9] = 0;
    EXPECT_EQ(run("vonkLUDecomp_ma_32f", words).status, -10);
}

TEST(ModelLuDecomposition, TheDisplacedPivotOfATableIsASlotFurtherOn) {
    std::array<double, 3> src = {1, 0, 3};
    std::array<double, 3> dst = {0, 0, 0};
    std::array<double *, 1> table = {&src[0]};
    std::array<double *, 2> dstTable = {&dst[0], &dst[1]};
    std::array<std::uint32_t, 2> pivots = {};
    // Order 1: object 1 is tested through slot 1, one element on, which holds 0.
    const Words words = {to(table), 0, to(pivots), to(dstTable), 0, 1, 2};
    EXPECT_EQ(run("vonkLUDecomp_ma_64f_P", words).status, -10);
    dst[2] = 1;
    EXPECT_EQ(run("vonkLUDecomp_ma_64f_P", words).status, 0);
}

TEST(ModelLuDecomposition, AnUnorderedCandidateIsTakenDifferentlyByEachKindOfForm) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::array<double, 9> src = {1, 1, 2, nan, 3, 4, 2, 5, 7};
    std::array<double, 9> dst = {};
    std::array<std::uint32_t, 3> pivots = {};
    run("vonkLUDecomp_m_64f", {to(src), 24, to(pivots), to(dst), 24, 3});
    EXPECT_EQ(pivots[0], 0U);
    run("vonkLUDecomp_m_64f_3x3", {to(src), 24, to(pivots), to(dst), 24});
    EXPECT_EQ(pivots[0], 2U);
    EXPECT_EQ(run("vonkLUDecomp_ma_64f", {to(src), 0, 24, to(pivots), to(dst), 0, 24, 3, 1}).status, -10);
    EXPECT_EQ(pivots[0], 1U);
    const std::array<double, 9> smallLast = {1, 1, 2, nan, 3, 4, 0.5, 5, 7};
    run("vonkLUDecomp_m_64f", {to(smallLast), 24, to(pivots), to(dst), 24, 3});
    EXPECT_EQ(pivots[0], 0U);
    EXPECT_EQ(run("vonkLUDecomp_m_64f_3x3", {to(smallLast), 24, to(pivots), to(dst), 24}).status, -10);
    EXPECT_EQ(pivots[0], 1U);
    const float nan32 = std::numeric_limits<float>::quiet_NaN();
    const std::array<float, 9> src32 = {1, 1, 2, nan32, 3, 4, 2, 5, 7};
    std::array<float, 9> dst32 = {};
    run("vonkLUDecomp_ma_32f", {to(src32), 0, 12, to(pivots), to(dst32), 0, 12, 3, 1});
    EXPECT_EQ(pivots[0], 2U);
}

TEST(ModelLuDecomposition, SmallKernelsKeepTheUnroundedQuotient) {
    const PrecisionControl wide(PrecisionControl::bits64);
    const std::array<double, 9> src = {3, 3, 0, 1, 1, 5, 0, 1, 0};
    std::array<double, 9> dst = {};
    std::array<std::uint32_t, 3> pivots = {};
    run("vonkLUDecomp_m_64f", {to(src), 24, to(pivots), to(dst), 24, 3});
    EXPECT_EQ(dst, (std::array<double, 9>{3, 3, 0, 1.0 / 3, 0x1p-54, 5, 0, 1, 0}));
    run("vonkLUDecomp_m_64f_3x3", {to(src), 24, to(pivots), to(dst), 24});
    EXPECT_EQ(dst, (std::array<double, 9>{3, 3, 0, 1.0 / 3, 0, 5, 0, 1, 0}));
    EXPECT_EQ(pivots, (std::array<std::uint32_t, 3>{0, 2, 1}));
}

TEST(ModelLuDecomposition, AQuotientBelowTheRangeShowsAtEveryPrecision) {
    const std::array<double, 9> src = {0x1p10, 0x1p30, 0, 0x1p-1074, 0, 1, 0, 1, 0};
    std::array<double, 9> dst = {};
    std::array<std::uint32_t, 3> pivots = {};
    for (const unsigned bits : {PrecisionControl::bits53, PrecisionControl::bits64}) {
        const PrecisionControl precision(bits);
        run("vonkLUDecomp_m_64f", {to(src), 24, to(pivots), to(dst), 24, 3});
        EXPECT_EQ(dst, (std::array<double, 9>{0x1p10, 0x1p30, 0, 0, 0, 1, 0, 1, 0}));
        run("vonkLUDecomp_m_64f_3x3", {to(src), 24, to(pivots), to(dst), 24});
        EXPECT_EQ(dst, (std::array<double, 9>{0x1p10, 0x1p30, 0, 0, -0x1p-1054, 1, 0, 1, 0}));
    }
}

TEST(ModelLuDecomposition, TheCopyKeepsASignallingNan) {
    const std::array<std::uint64_t, 1> src = {0x7ff0000000000001};
    std::array<std::uint64_t, 1> dst = {};
    std::array<std::uint32_t, 1> pivots = {};
    const model::Outcome outcome = run("vonkLUDecomp_m_64f", {to(src), 0, to(pivots), to(dst), 0, 1});
    EXPECT_EQ(outcome.status, -10);
    EXPECT_FALSE(outcome.nanSeen);
    EXPECT_EQ(dst, src);
}

TEST(ModelLuDecomposition, IsOpenWhereRowsOrIndicesCollide) {
    std::array<float, 4> src = {1, 2, 4, 6};
    std::array<float, 6> dst = {};
    std::array<std::uint32_t, 2> pivots = {};
    EXPECT_TRUE(run("vonkLUDecomp_m_32f", {to(src), 8, to(pivots), to(dst), 0, 2}).open);
    EXPECT_TRUE(run("vonkLUDecomp_m_32f", {to(src), 8, to(dst), to(&dst[1]), 8, 2}).open);
    EXPECT_FALSE(run("vonkLUDecomp_m_32f", {to(src), 8, to(pivots), to(src), 8, 2}).open);
}

TEST(ModelLuBackSubstitution, SolvesThroughThePermutation) {
    const std::array<float, 4> factors = {0.25, 0.5, 4, 6};
    const std::array<std::uint32_t, 2> pivots = {1, 0};
    const std::array<float, 2> b = {5, 16};
    std::array<float, 2> x = {};
    EXPECT_EQ(run("vonkLUBackSubst_mv_32f", {to(factors), 8, to(pivots), to(b), to(x), 2}).status, 0);
    EXPECT_EQ(x, (std::array<float, 2>{1, 2}));
}

TEST(ModelLuBackSubstitution, LoopedSumsAreRoundedAndUnrolledOnesAreNot) {
    const std::array<double, 9> factors = {1, 0, 0, 0, 1, 0, 1, 0x1p-60, 1};
    const std::array<std::uint32_t, 3> pivots = {0, 1, 2};
    const std::array<double, 3> b = {1, 1, 1};
    std::array<double, 3> x = {};
    const Words one = {to(factors), 24, to(pivots), to(b), to(x)};
    const Words many = {to(factors), 99, 24, to(pivots), to(b), 24, to(x), 24, 1};
    {
        const PrecisionControl wide(PrecisionControl::bits64);
        run("vonkLUBackSubst_mv_64f_3x3", one);
        EXPECT_EQ(x, (std::array<double, 3>{1, 1, 0}));
        run("vonkLUBackSubst_mva_64f_3x3", many);
        EXPECT_EQ(x, (std::array<double, 3>{1, 1, -0x1p-60}));
    }
    const PrecisionControl narrow(PrecisionControl::bits53);
    run("vonkLUBackSubst_mva_64f_3x3", many);
    EXPECT_EQ(x, (std::array<double, 3>{1, 1, 0}));
}

TEST(ModelLuBackSubstitution, OneMatrixInAListFormHasColumnsFourBytesApart) {
    // Row 0 reads 1 and, four bytes on, a number just above 2; row 1 reads 0 and 4.
    const std::array<std::uint32_t, 8> factors = {0, 0x3ff00000, 0x40000000, 0, 0, 0, 0x40100000, 0};
    const std::array<std::uint32_t, 2> pivots = {0, 1};
    std::array<double, 2> b = {0, 4};
    std::array<double, 2> x = {};
    std::array<double *, 1> rights = {b.data()};
    std::array<double *, 1> solutions = {x.data()};
    run("vonkLUBackSubst_mva_64f_L", {to(factors), 99, 16, to(pivots), to(rights), 0, to(solutions), 0, 2, 1});
    EXPECT_EQ(x[0], -std::bit_cast<double>(std::uint64_t{0x400000003ff00000}));
    EXPECT_EQ(x[1], 1);
}

TEST(ModelLuBackSubstitution, ASolutionOverThePermutationIsOpen) {
    const std::array<float, 4> factors = {1, 0, 0, 1};
    std::array<std::uint32_t, 3> pivots = {0, 1, 0};
    const std::array<float, 2> b = {5, 16};
    EXPECT_TRUE(run("vonkLUBackSubst_mv_32f", {to(factors), 8, to(pivots), to(b), to(&pivots[1]), 2}).open);
}

} // namespace
