// Cross products: numbers by hand in every form, the sign of a zero in the three ways of writing a component, and what
// a destination over a source sees.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("cross-product", wanted);
}

// u v + (0 - w) x in floats and u v + (-w) x in doubles; all others are u v - w x.
bool addsZeroLess(const Function &function) { return isException(function, "cross-zero-minus"); }
bool addsNegated(const Function &function) { return addsZeroLess(function) || isException(function, "cross-negated"); }

using Vector = std::vector<double>;

Vector left(std::uint32_t n) { return {1.0 + n, 2, 3.0 - n}; }
Vector right(std::uint32_t n) { return {4, 5.0 + n, 7.0 + 2 * n}; }

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n) call.set("src1", n, left(n));
    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n) call.set("src2", n, right(n));
}

void expectDone(Call &call, std::uint32_t n) {
    const Vector a = left(call.objectsOf("src1") == 1 ? 0 : n);
    const Vector b = right(call.objectsOf("src2") == 1 ? 0 : n);
    EXPECT_EQ(call.get("dst", n),
              (Vector{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]}));
}

const literal::Example example{fill, expectDone};

// The same of every object.
void expectProduct(const Function &function, const Vector &a, const Vector &b, const Vector &expected) {
    Call call(function.name, 3, 5);
    literal::setObjects(call, "src1", a);
    literal::setObjects(call, "src2", b);
    ASSERT_EQ(call.run(), vonkOk);
    for (std::uint32_t n = 0; n < call.count(); ++n)
        literal::expectSame(expected, call.get("dst", n), "object " + std::to_string(n));
}

TEST(CrossProduct, IsRightOfAnyNumberOfObjectsInEveryFormAndGeometry) {
    for (const Function *function : all())
        if (function->array()) literal::expectResultsOfAnyCount(*function, example, 3);
        else literal::expectResults(*function, example, {3});
}

TEST(CrossProduct, OfTheFirstTwoAxesIsTheThird) {
    for (const Function *function : all()) expectProduct(*function, {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
}

TEST(CrossProduct, LetsNansAndInfinitiesThrough) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Function *function : all()) {
        expectProduct(*function, {infinity, 1, 1}, {1, 2, 3}, {1, -infinity, infinity}); // a0 is in components 1 and 2
        expectProduct(*function, {1, nan, 1}, {1, 2, 3}, {nan, -2, nan});                // a1 in 0 and 2
    }
}

// ---- Signs of zeros

// Component 0 with a1 b2 = -0 and a2 = +0, b1 = 1. -0 - 0 is -0; -0 + (0 - 0) is +0; -0 + (-0) is -0. The other two
// components are a2 b0 - a0 b2 and a0 b1 - a1 b0, here 0 - 2 * -1 = 2 and 2 - 0 = 2. And so in every component in turn.
TEST(CrossProductZeros, TellTheThreeWaysOfWritingAComponentApart) {
    std::size_t positive = 0;
    for (const Function *function : all()) {
        const double zero = addsZeroLess(*function) ? 0.0 : -0.0;
        positive += addsZeroLess(*function) ? 1 : 0;
        expectProduct(*function, {2, 0, 0}, {3, 1, -1}, {zero, 2, 2});
        expectProduct(*function, {0, 2, 0}, {-1, 3, 1}, {2, zero, 2});
        expectProduct(*function, {0, 0, 2}, {1, -1, 3}, {2, 2, zero});
    }
    EXPECT_EQ(positive, 2U * 4U); // of vav and vva: S2, P, PS2, LS2
}

// Equal products leave +0, towards minus infinity -0, however they are written.
TEST(CrossProductZeros, FollowTheRoundingWhereProductsAreEqual) {
    for (const Function *function : all())
        for (const Rounding rounding : {Rounding::nearest, Rounding::up, Rounding::down}) {
            const SettingScope scope({Precision::bits64, rounding});
            const double zero = rounding == Rounding::down ? -0.0 : 0.0;
            expectProduct(*function, {1, 2, 3}, {2, 4, 6}, {zero, zero, zero});
        }
}

// ---- Rounding

// Component 0 is f^2 - (1 + ...), with f^2 a bit too long for the element type.
TEST(CrossProductRounding, OfFloatsIsThatOfEachProduct) {
    for (const Function *function : all(isFloat))
        expectProduct(*function, {0, 1 + 0x1p-12, 1}, {0, 1 + 0x1p-11, 1 + 0x1p-12}, {0, 0, 0});
}

TEST(CrossProductRounding, OfDoublesIsToTheCallersPrecision) {
    for (const Function *function : all(isDouble))
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            const SettingScope scope({precision, Rounding::nearest});
            expectProduct(*function, {0, 1 + 0x1p-30, 1}, {0, 1 + 0x1p-29, 1 + 0x1p-30},
                          {precision == Precision::bits53 ? 0 : 0x1p-60, 0, 0});
        }
}

// ---- A destination over a source

// In place, and one or two elements away.
TEST(CrossProductOverlap, IsHarmlessToTwoVectorsOfAdjacentElements) {
    for (const char *name : {"vonkCrossProduct_vv_32f_3x1", "vonkCrossProduct_vv_64f_3x1"})
        for (const char *source : {"src1", "src2"})
            for (const int elements : {-2, -1, 0, 1, 2}) {
                SCOPED_TRACE(std::string(source) + ", " + std::to_string(elements));
                Call call(name, 3);
                fill(call);
                const literal::Place &place = call[source];
                call["dst"].moveTo(place.origin + std::ptrdiff_t{elements} * place.elementSize);
                ASSERT_EQ(call.run(), vonkOk);
                EXPECT_EQ(call.get("dst", 0), (Vector{-1, 5, -3}));
            }
}

// (1, 2, 3) x (4, 5, 7) would be (-1, 5, -3). Over the first vector: 2 7 - 3 5 = -1, then 3 4 + 1 7 = 19, then
// -1 5 - 19 4 = -81. Over the second: -1, then 3 (-1) - 1 7 = -10, then 1 (-10) - 2 (-1) = -8.
TEST(CrossProductOverlap, ShowsEachComponentToTheNextWhereTheSubtrahendIsNegated) {
    const std::vector<const Function *> functions = all(addsNegated);
    EXPECT_EQ(functions.size(), 2U * 4U + 2U * 6U);
    for (const Function *function : functions)
        for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
            const bool arrayFirst = function->group == "vav";
            Call call(function->name, 3, 2, geometry);
            call.layOver(arrayFirst ? "src1" : "src2");
            literal::setObjects(call, "src1", {1, 2, 3});
            literal::setObjects(call, "src2", {4, 5, 7});
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < 2; ++n)
                EXPECT_EQ(call.get("dst", n), arrayFirst ? (Vector{-1, 19, -81}) : (Vector{-1, -10, -8}));
        }
}

} // namespace
