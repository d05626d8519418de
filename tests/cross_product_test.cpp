// Cross products: numbers by hand in every form, the sign of a zero in the three ways of writing a component, what a
// destination over a source sees, and what is tested in which order.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("cross-product", wanted);
}

// u v + (0 - w) x in floats and u v + (-w) x in doubles; all others are u v - w x.
bool addsNegated(const Function &function) {
    return isException(function, "cross-zero-minus") || isException(function, "cross-negated");
}

using Vector = std::array<double, 3>;

Vector left(std::uint32_t n) { return {1.0 + n, 2, 3.0 - n}; }
Vector right(std::uint32_t n) { return {4, 5.0 + n, 7.0 + 2 * n}; }

// Written out: (a1 b2 - a2 b1, a2 b0 - a0 b2, a0 b1 - a1 b0).
Vector cross(const Vector &a, const Vector &b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

void set(Call &call, const char *operand, std::uint32_t n, const Vector &vector) {
    call.set(operand, n, std::vector<double>(vector.begin(), vector.end()));
}

void setAll(Call &call, const Vector &a, const Vector &b) {
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n) set(call, "src1", n, a);
    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n) set(call, "src2", n, b);
}

void expectVector(Call &call, std::uint32_t n, const Vector &expected) {
    literal::expectSame(std::vector<double>(expected.begin(), expected.end()), call.get("dst", n),
                        call.function().name + ", object " + std::to_string(n));
}

void fill(Call &call) {
    for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n) set(call, "src1", n, left(n));
    for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n) set(call, "src2", n, right(n));
}

void expectDone(Call &call, std::uint32_t n) {
    const Vector expected =
        cross(left(call.objectsOf("src1") == 1 ? 0 : n), right(call.objectsOf("src2") == 1 ? 0 : n));
    EXPECT_EQ(call.get("dst", n), std::vector<double>(expected.begin(), expected.end()));
}

const literal::Example example{fill, expectDone};

// ---- Results

TEST(CrossProduct, IsRightInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, {3});
}

TEST(CrossProduct, TakesAnyNumberOfObjects) {
    for (const Function *function : all())
        for (std::uint32_t count = 1; function->array() && count <= 9; ++count)
            for (const literal::Geometry geometry : {literal::packed, literal::Geometry{1, 4, false}}) {
                Call call(function->name, 3, count, geometry);
                fill(call);
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
            }
}

TEST(CrossProduct, OfTheFirstTwoAxesIsTheThird) {
    for (const Function *function : all()) {
        Call call(function->name, 3, 5);
        setAll(call, {1, 0, 0}, {0, 1, 0});
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n) EXPECT_EQ(call.get("dst", n), (std::vector<double>{0, 0, 1}));
    }
}

// ---- Signs of zeros

// Component 0 with a1 b2 = -0 and a2 = +0, b1 = 1. -0 - 0 is -0; -0 + (0 - 0) is +0; -0 + (-0) is -0. The other two
// components are a2 b0 - a0 b2 and a0 b1 - a1 b0, here 0 - 2 * -1 = 2 and 2 - 0 = 2.
TEST(CrossProductZeros, TellTheThreeWaysOfWritingAComponentApart) {
    std::size_t positive = 0;
    for (const Function *function : all()) {
        const bool isPlus = addsNegated(*function) && function->type == Type::real32;
        positive += isPlus;
        Call call(function->name, 3, 5);
        setAll(call, {2, 0.0, 0.0}, {3, 1, -1});
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n) expectVector(call, n, {isPlus ? 0.0 : -0.0, 2, 2});
    }
    EXPECT_EQ(positive, 2U * 4U); // of vav and vva: S2, P, PS2, LS2
}

// In every component in turn.
TEST(CrossProductZeros, TellThemApartInEveryComponent) {
    for (const Function *function : all())
        for (std::size_t i = 0; i < 3; ++i) {
            const bool isPlus = addsNegated(*function) && function->type == Type::real32;
            Vector a{};
            Vector b{};
            Vector expected{};
            const std::size_t j = (i + 1) % 3;
            const std::size_t k = (i + 2) % 3;
            a[i] = 2;
            a[j] = a[k] = 0;
            b[i] = 3;
            b[j] = 1;
            b[k] = -1;
            expected[i] = isPlus ? 0.0 : -0.0;
            expected[j] = expected[k] = 2;
            SCOPED_TRACE("component " + std::to_string(i));
            Call call(function->name, 3, 2);
            setAll(call, a, b);
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n) expectVector(call, n, expected);
        }
}

// Equal products leave +0, towards minus infinity -0, however they are written.
TEST(CrossProductZeros, FollowTheRoundingWhereProductsAreEqual) {
    for (const Function *function : all())
        for (const Rounding rounding : {Rounding::nearest, Rounding::up, Rounding::down}) {
            Call call(function->name, 3, 5);
            setAll(call, {1, 2, 3}, {2, 4, 6});
            ASSERT_EQ(call.run({Precision::bits64, rounding}), vonkOk);
            const double zero = rounding == Rounding::down ? -0.0 : 0.0;
            for (std::uint32_t n = 0; n < call.count(); ++n) expectVector(call, n, {zero, zero, zero});
        }
}

// ---- Rounding

// Component 0 is f^2 - (1 + ...), with f^2 a bit too long for the element type.
TEST(CrossProductRounding, OfFloatsIsThatOfEachProduct) {
    for (const Function *function : all(isFloat)) {
        Call call(function->name, 3, 5);
        setAll(call, {0, 1 + 0x1p-12, 1}, {0, 1 + 0x1p-11, 1 + 0x1p-12});
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n) EXPECT_EQ(call.get("dst", n, 0, 0), 0);
    }
}

TEST(CrossProductRounding, OfDoublesIsToTheCallersPrecision) {
    for (const Function *function : all(isDouble)) {
        for (const Precision precision : {Precision::bits53, Precision::bits64}) {
            Call call(function->name, 3, 5);
            setAll(call, {0, 1 + 0x1p-30, 1}, {0, 1 + 0x1p-29, 1 + 0x1p-30});
            ASSERT_EQ(call.run({precision, Rounding::nearest}), vonkOk);
            for (std::uint32_t n = 0; n < call.count(); ++n)
                EXPECT_EQ(call.get("dst", n, 0, 0), precision == Precision::bits53 ? 0 : 0x1p-60);
        }
    }
}

TEST(CrossProduct, LetsNansAndInfinitiesThrough) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Function *function : all()) {
        Call call(function->name, 3, 5);
        setAll(call, {infinity, 1, 1}, {1, 2, 3}); // a0 is in components 1 and 2
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n) expectVector(call, n, {1, -infinity, infinity});
        setAll(call, {1, nan, 1}, {1, 2, 3}); // a1 in 0 and 2
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t n = 0; n < call.count(); ++n) expectVector(call, n, {nan, -2, nan});
    }
}

// ---- A destination over a source

TEST(CrossProductOverlap, IsHarmlessToTwoVectorsOfAdjacentElements) {
    for (const char *name : {"vonkCrossProduct_vv_32f_3x1", "vonkCrossProduct_vv_64f_3x1"})
        for (const char *source : {"src1", "src2"})
            literal::expectInPlaceResults(literal::function(name), example, source, {3});
}

TEST(CrossProductOverlap, IsHarmlessOneElementAwayToo) {
    for (const char *name : {"vonkCrossProduct_vv_32f_3x1", "vonkCrossProduct_vv_64f_3x1"})
        for (const char *source : {"src1", "src2"})
            for (const int elements : {-2, -1, 1, 2}) {
                SCOPED_TRACE(std::string(name) + ", " + source + ", " + std::to_string(elements));
                Call call(name, 3);
                fill(call);
                literal::Place &place = call[source];
                call["dst"].moveTo(place.origin + std::ptrdiff_t{elements} * place.elementSize);
                ASSERT_EQ(call.run(), vonkOk);
                expectVector(call, 0, {-1, 5, -3});
            }
}

// (1, 2, 3) x (4, 5, 7) would be (-1, 5, -3). Over the first vector: 2 7 - 3 5 = -1, then 3 4 + 1 7 = 19, then
// -1 5 - 19 4 = -81. Over the second: -1, then 3 (-1) - 1 7 = -10, then 1 (-10) - 2 (-1) = -8.
TEST(CrossProductOverlap, ShowsEachComponentToTheNextWhereTheSubtrahendIsNegated) {
    std::size_t forms = 0;
    for (const Function *function : all()) {
        if (!addsNegated(*function)) continue;
        ++forms;
        const bool arrayFirst = function->group == "vav";
        for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
            Call call(function->name, 3, 2, geometry);
            call.layOver(arrayFirst ? "src1" : "src2");
            setAll(call, {1, 2, 3}, {4, 5, 7});
            ASSERT_EQ(call.run(), vonkOk);
            for (std::uint32_t n = 0; n < 2; ++n) {
                if (arrayFirst) expectVector(call, n, {-1, 19, -81});
                else expectVector(call, n, {-1, -10, -8});
            }
        }
    }
    EXPECT_EQ(forms, 2U * 4U + 2U * 6U);
}

} // namespace
