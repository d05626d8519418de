// The catalogue: how many functions there are, and that their names and parameter lists are those that the contract's
// rule gives. The rule is worked out a second time by the model, which shares nothing with the catalogue, and by hand
// for some; what is said of a list here holds for both, as they agree on every one.
#include "model/model.h"
#include "support/literal.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

using catalogue::Function;
using catalogue::Kind;
using literal::allMembers;

std::set<std::string> namesOfTheModel() {
    const std::vector<std::string> list = model::names();
    EXPECT_EQ(list.size(), 5571U); // vonkGetLibVersion is beside them
    return {list.begin(), list.end()};
}

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

TEST(Catalogue, AgreesWithTheModelOnTheNames) {
    std::set<std::string> ours;
    for (const Function &function : allMembers()) EXPECT_TRUE(ours.insert(function.name).second) << function.name;
    EXPECT_EQ(ours, namesOfTheModel());
    EXPECT_EQ(ours.size(), 5571U);
}

model::Word wordOf(Kind kind) {
    switch (kind) {
    case Kind::base:
    case Kind::table:
    case Kind::list:
    case Kind::dense: return model::Word::pointer;
    case Kind::size:
    case Kind::count: return model::Word::size;
    case Kind::constant: return model::Word::real;
    default: return model::Word::bytes;
    }
}

TEST(Catalogue, AgreesWithTheModelOnEveryParameterList) {
    for (const Function &function : allMembers()) {
        const std::vector<model::Parameter> expected = model::parameters(function.name);
        ASSERT_EQ(function.parameters.size(), expected.size()) << function.name;
        for (std::size_t k = 0; k < expected.size(); ++k) {
            const catalogue::Parameter &parameter = function.parameters[k];
            ASSERT_EQ(parameter.name, expected[k].name) << function.name;
            ASSERT_EQ(wordOf(parameter.kind), expected[k].word) << function.name << " " << parameter.name;
            if (expected[k].word == model::Word::size) {
                ASSERT_EQ(parameter.type, expected[k].isSigned ? "int32_t" : "uint32_t")
                    << function.name << " " << parameter.name;
            }
        }
    }
}

TEST(Catalogue, HasAsManyFunctionsPerFamilyAsTheyAreMadeOf) {
    std::map<std::string, std::size_t> counts;
    for (const Function &function : allMembers()) ++counts[std::string(function.section->id)];
    std::map<std::size_t, std::string> families;
    for (const auto &[family, count] : counts) families[count] += " " + family;
    const std::map<std::size_t, std::string> expected{
        {6, " identity"},
        {27, " extract"},
        {36, " copy"},
        {42, " cross-product"},
        {90, " cholesky-decomposition determinant frobenius-norm gaxpy inverse lu-decomposition norm qr-decomposition "
             "trace transpose"},
        {150, " cholesky-back-substitution dot-product linear-combination lu-back-substitution qr-back-substitution"},
        {180, " matrix-constant"},
        {210, " saxpy"},
        {360, " vector-constant vector-vector"},
        {420, " matrix-vector"},
        {840, " matrix-product"},
        {600 + 840, " matrix-matrix"}};
    EXPECT_EQ(families, expected);
}

TEST(Catalogue, HasTheIrregularMembers) {
    const std::set<std::string> names = namesOfTheModel();
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

TEST(Catalogue, ListsTheParametersThatFollowFromTheName) {
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
        {"vonkLComb_vava_32f_LS2",
         "src1 src1Shift src1ElemStride val1 src2 src2Shift src2ElemStride val2 dst dstShift dstElemStride len count"},
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
        {"vonkLUBackSubst_mva_32f_3x3",
         "src1 src1ObjStride src1RowStride pivots src2 src2ObjStride dst dstObjStride count"},
        {"vonkLUBackSubst_mva_64f_LS2", "src1 src1Shift src1RowStride src1ElemStride pivots src2 src2Shift "
                                        "src2ElemStride dst dstShift dstElemStride order count"},
        {"vonkQRBackSubst_mva_32f_L", "src1 src1Shift src1RowStride work src2 src2Shift dst dstShift cols rows count"},
        {"vonkLUBackSubst_mva_32f_PS2",
         "src1 src1Shift pivots src2 src2Shift src2ObjStride dst dstShift dstObjStride order count"},
        {"vonkLUBackSubst_mava_32f_PS2",
         "src1 src1Shift src1ObjStride pivots src2 src2Shift src2ObjStride dst dstShift dstObjStride order count"},
    };
    for (const auto &[name, list] : lists) EXPECT_EQ(listOf(name), list) << name;
}

TEST(Catalogue, GivesTheSharedMatrixOfLuSolversAWordThatIsNeverRead) {
    EXPECT_EQ(literal::function("vonkLUBackSubst_mva_32f_3x3").parameters[1].kind, Kind::ignored);
    const catalogue::Parameter &matrix = literal::function("vonkLUBackSubst_mva_32f_L").parameters[0];
    EXPECT_EQ(matrix.name + ": " + matrix.type, "src1: const float *"); // a plain pointer, no list
}

TEST(Catalogue, HasFewSignedSizes) {
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

TEST(Catalogue, DescribesEveryFamily) {
    for (const catalogue::Section &section : catalogue::sections())
        for (const std::string_view text : {section.title, section.summary, section.text, section.overlap})
            EXPECT_FALSE(text.empty()) << section.id;
}

TEST(Model, KnowsItsFunctionsAndNoOthers) {
    for (const std::string &name : model::names()) EXPECT_TRUE(model::knows(name)) << name;
    for (const char *name : {"vonkGetLibVersion", "vonkMul_vv_32f", "vonkMul_vm_32f"})
        EXPECT_FALSE(model::knows(name)) << name;
}

} // namespace
