// Linear combinations: numbers by hand in every form, three roundings of their own, the long form at every alignment
// and overlap, which forms hold the single vector, and what is tested in which order.
#include "support/family_test.h"
#include "support/vector_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("linear-combination", wanted);
}

const std::vector<std::uint32_t> lengths{1, 2, 3, 7, 10, 11, 12, 19, 21};

double left(std::uint32_t n, std::uint32_t j) { return 64 * (n + 1) + 3 * j; }
double right(std::uint32_t n, std::uint32_t j) { return 1000 * (n + 1) - 7.0 * j; }

const literal::ElementFamily family{[](Call &call) {
                                        call.setConstant("val1", -2);
                                        call.setConstant("val2", 5);
                                        for (std::uint32_t j = 0; j < call.size(); ++j) {
                                            for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
                                                call.set("src1", n, 0, j, left(n, j));
                                            for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n)
                                                call.set("src2", n, 0, j, right(n, j));
                                        }
                                    },
                                    [](const Call &call, std::uint32_t n, std::uint32_t j) {
                                        return -2 * left(literal::objectOf(call, "src1", n), j) +
                                               5 * right(literal::objectOf(call, "src2", n), j);
                                    }};

// ---- Results

TEST(LinearCombination, ScalesAndAddsInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, family.example(), lengths);
}

TEST(LinearCombination, WorksInPlaceInEveryForm) {
    for (const Function *function : all())
        for (const char *source : {"src1", "src2"}) {
            const bool array = Call(function->name, 3, 2).objectsOf(source) == 2;
            if (array || !function->array())
                literal::expectInPlaceResults(*function, family.example(), source, lengths);
        }
}

TEST(LinearCombination, TakesEachConstantBehindItsVector) {
    const double first[2] = {1, 2};
    const double second[2] = {10, 20};
    double result[2] = {};
    const std::vector<std::uint64_t> words{wordOf(first),  std::bit_cast<std::uint64_t>(3.0),
                                           wordOf(second), std::bit_cast<std::uint64_t>(-0.5),
                                           wordOf(result), 2};
    EXPECT_EQ(callWith("vonkLComb_vv_64f", words), vonkOk);
    EXPECT_EQ(result[0], -2);
    EXPECT_EQ(result[1], -4);
}

// ---- The long form

literal::LongBench longBench() {
    return {
        "vonkLComb_vv_32f", {{"val1", 0.3F}, {"val2", -1.7F}}, [](float a, float b) { return a * 0.3F + b * -1.7F; }};
}

TEST(LinearCombinationLong, AgreesWithTheForwardWalkAtEveryAlignmentAndLength) {
    literal::LongBench bench = longBench();
    literal::expectEveryAlignment(bench);
}

TEST(LinearCombinationLong, WalksForwardWhereItOverlaps) {
    literal::LongBench bench = longBench();
    literal::expectForwardWalkOnOverlap(bench);
}

// ---- The single vector of `vav`

// Object 0 of `dst` lies on the single vector, which is 100; the array is 1, 10, 20; the constants are 3 and 2. Floats
// of fixed size in two layouts see 100 for every object, the others what object 0 has left.
TEST(LinearCombinationSingle, IsHeldByFloatsOfFixedSizeInTwoLayoutsAndReadAnewByAllOthers) {
    std::size_t holding = 0;
    for (const Function *function : all()) {
        if (function->group != "vav") continue;
        const bool holds = function->type == Type::real32 && function->order != 0 &&
                           (function->layout.empty() || function->layout == "L");
        holding += holds;
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 4, 13}))
            for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
                Call call(function->name, size, 3, geometry);
                call.layOver("src2");
                call.setConstant("val1", 3);
                call.setConstant("val2", 2);
                call.set("src2", 0, std::vector<double>(call.size(), 100));
                for (std::uint32_t n = 0; n < 3; ++n)
                    call.set("src1", n, std::vector<double>(call.size(), n == 0 ? 1 : 10 * n));
                ASSERT_EQ(call.run(), vonkOk);
                const std::array expected = holds ? std::array{203.0, 230.0, 260.0} : std::array{203.0, 436.0, 466.0};
                for (std::uint32_t n = 0; n < 3; ++n)
                    literal::expectSame(std::vector<double>(call.size(), expected[n]), call.get("dst", n),
                                        "object " + std::to_string(n));
            }
    }
    EXPECT_EQ(holding, 4U * 2U);
}

} // namespace
