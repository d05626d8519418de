// The catalogue: how many functions there are, and that their names and parameter lists are those that the contract's
// rule gives. The rule is worked out a second time by the model, which shares nothing with the catalogue.
#include "catalogue.h"
#include "model/model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

using catalogue::Function;
using catalogue::Kind;

const std::vector<Function> &all() {
    static const std::vector<Function> functions = catalogue::expand();
    return functions;
}

const Function &find(const std::string &name) {
    const auto found = std::ranges::find(all(), name, &Function::name);
    if (found == all().end()) throw std::out_of_range(name);
    return *found;
}

std::string words(const std::string &name) {
    std::string list;
    for (const auto &parameter : find(name).parameters) list += (list.empty() ? "" : " ") + parameter.name;
    return list;
}

std::string typeOf(const std::string &function, const std::string &parameter) {
    const auto &list = find(function).parameters;
    return std::ranges::find(list, parameter, &catalogue::Parameter::name)->type;
}

TEST(Catalogue, HasAllFunctionsWithTheVersionFunctionBesideThem) { EXPECT_EQ(all().size() + 1, 5572U); }

TEST(Catalogue, HasAsManyFunctionsPerFamilyAsTheyAreMadeOf) {
    const std::map<std::string_view, std::size_t> expected{{"vector-constant", 360},
                                                           {"vector-vector", 360},
                                                           {"saxpy", 210},
                                                           {"linear-combination", 150},
                                                           {"dot-product", 150},
                                                           {"norm", 90},
                                                           {"cross-product", 42},
                                                           {"matrix-matrix", 600 + 840},
                                                           {"matrix-constant", 180},
                                                           {"transpose", 90},
                                                           {"trace", 90},
                                                           {"frobenius-norm", 90},
                                                           {"matrix-product", 840},
                                                           {"matrix-vector", 420},
                                                           {"gaxpy", 90},
                                                           {"copy", 36},
                                                           {"extract", 27},
                                                           {"identity", 6},
                                                           {"lu-decomposition", 90},
                                                           {"lu-back-substitution", 150},
                                                           {"determinant", 90},
                                                           {"inverse", 90},
                                                           {"cholesky-decomposition", 90},
                                                           {"cholesky-back-substitution", 150},
                                                           {"qr-decomposition", 90},
                                                           {"qr-back-substitution", 150}};
    std::map<std::string_view, std::size_t> counted;
    for (const Function &function : all()) ++counted[function.section->id];
    EXPECT_EQ(counted, expected);
}

TEST(Catalogue, SpellsEveryNameOnce) {
    std::set<std::string> names;
    for (const Function &function : all()) EXPECT_TRUE(names.insert(function.name).second) << function.name;
}

TEST(Catalogue, AgreesWithTheModelOnTheNames) {
    std::set<std::string> ours;
    for (const Function &function : all()) ours.insert(function.name);
    const std::vector<std::string> list = model::names();
    EXPECT_EQ(ours, std::set<std::string>(list.begin(), list.end()));
    EXPECT_EQ(list.size(), all().size());
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
    for (const Function &function : all()) {
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

TEST(Catalogue, ListsTheParametersOfWellKnownFunctions) {
    EXPECT_EQ(words("vonkAdd_mam_32f"),
              "src1 src1ObjStride src1RowStride src2 src2RowStride dst dstObjStride dstRowStride "
              "cols rows count");
    EXPECT_EQ(words("vonkAdd_mam_32f_L"),
              "src1 src1Shift src1RowStride src2 src2RowStride dst dstShift dstRowStride cols rows count");
    EXPECT_EQ(words("vonkMul_mama_64f_4x4_PS2"),
              "src1 src1Shift src1ObjStride src2 src2Shift src2ObjStride dst dstShift dstObjStride count");
    EXPECT_EQ(words("vonkCopy_ma_32f_PL"),
              "src srcShift srcObjStride dst dstShift dstRowStride dstElemStride cols rows count");
    EXPECT_EQ(words("vonkDet_m_32f"), "src srcRowStride order scratch dst");
    EXPECT_EQ(words("vonkDet_m_32f_3x3"), "src srcRowStride dst");
    EXPECT_EQ(words("vonkQRDecomp_m_32f_3x3"), "src srcRowStride work dst dstRowStride");
}

TEST(Catalogue, GivesTheSharedMatrixOfLuAndQrSolversAWordThatIsNeverRead) {
    EXPECT_EQ(words("vonkLUBackSubst_mva_32f_3x3"),
              "src1 src1ObjStride src1RowStride pivots src2 src2ObjStride dst dstObjStride count");
    EXPECT_EQ(
        words("vonkQRBackSubst_mva_64f_LS2"),
        "src1 src1Shift src1RowStride src1ElemStride work src2 src2Shift src2ElemStride dst dstShift dstElemStride "
        "cols rows count");
    EXPECT_EQ(words("vonkCholeskyBackSubst_mva_32f"),
              "src1 src1RowStride src2 src2ObjStride dst dstObjStride order count");
    EXPECT_EQ(words("vonkLUBackSubst_mva_32f_PS2"),
              "src1 src1Shift pivots src2 src2Shift src2ObjStride dst dstShift dstObjStride order count");
    EXPECT_EQ(find("vonkLUBackSubst_mva_32f_3x3").parameters[1].kind, Kind::ignored);
    EXPECT_EQ(typeOf("vonkLUBackSubst_mva_32f_L", "src1"), "const float *"); // a plain pointer, no list
}

TEST(Catalogue, DeclaresSizesUnsignedButForTheDeliberateExceptions) {
    EXPECT_EQ(typeOf("vonkLUDecomp_ma_32f", "count"), "uint32_t");
    EXPECT_EQ(typeOf("vonkLoadIdentity_ma_32f_S", "cols"), "int32_t");
    EXPECT_EQ(typeOf("vonkLoadIdentity_ma_32f_S", "count"), "uint32_t");
    EXPECT_EQ(typeOf("vonkCholeskyDecomp_ma_32f_L", "count"), "int32_t");
    EXPECT_EQ(typeOf("vonkCholeskyDecomp_ma_32f_PS2", "count"), "uint32_t");
    EXPECT_EQ(typeOf("vonkCholeskyBackSubst_mva_64f_S2", "order"), "int32_t");
    EXPECT_EQ(typeOf("vonkCholeskyBackSubst_mva_64f_L", "order"), "uint32_t");
}

TEST(Catalogue, DescribesEveryFamily) {
    for (const catalogue::Section &section : catalogue::sections())
        for (const std::string_view text : {section.title, section.summary, section.text, section.overlap})
            EXPECT_FALSE(text.empty()) << section.id;
}

} // namespace
