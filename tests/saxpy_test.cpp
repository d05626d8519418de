// Saxpy: numbers by hand in every form, a product that is rounded before the sum, the long form at every alignment and
// overlap, the few forms that hold the single vector where all is aligned, and what is tested in which order.
#include "support/family_test.h"
#include "support/vector_checks.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("saxpy", wanted);
}

const std::vector<std::uint32_t> lengths{1, 2, 3, 7, 10, 11, 12, 19, 21};

double left(std::uint32_t n, std::uint32_t j) { return 64 * (n + 1) + 3 * j; }
double right(std::uint32_t n, std::uint32_t j) { return 1000 * (n + 1) - 7.0 * j; }

const literal::ElementFamily family{[](Call &call) {
                                        call.setConstant("val", -2);
                                        for (std::uint32_t j = 0; j < call.size(); ++j) {
                                            for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n)
                                                call.set("src1", n, 0, j, left(n, j));
                                            for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n)
                                                call.set("src2", n, 0, j, right(n, j));
                                        }
                                    },
                                    [](const Call &call, std::uint32_t n, std::uint32_t j) {
                                        return -2 * left(literal::objectOf(call, "src1", n), j) +
                                               right(literal::objectOf(call, "src2", n), j);
                                    }};

// ---- Results

TEST(Saxpy, ScalesTheFirstVectorAndAddsTheSecondInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, family.example(), lengths);
}

TEST(Saxpy, WorksInPlaceInEveryForm) {
    for (const Function *function : all())
        for (const char *source : {"src1", "src2"}) {
            const bool array = Call(function->name, 3, 2).objectsOf(source) == 2;
            if (array || !function->array())
                literal::expectInPlaceResults(*function, family.example(), source, lengths);
        }
}

TEST(Saxpy, TakesItsConstantBehindTheFirstVector) {
    const double first[2] = {1, 2};
    const double second[2] = {10, 20};
    double result[2] = {};
    const std::vector<std::uint64_t> words{wordOf(first), std::bit_cast<std::uint64_t>(3.0), wordOf(second),
                                           wordOf(result), 2};
    EXPECT_EQ(callWith("vonkSaxpy_vv_64f", words), vonkOk);
    EXPECT_EQ(result[0], 13);
    EXPECT_EQ(result[1], 26);
}

// ---- The long form

literal::LongBench longBench() {
    return {"vonkSaxpy_vv_32f", {{"val", 0.3F}}, [](float a, float b) { return a * 0.3F + b; }};
}

TEST(SaxpyLong, AgreesWithTheForwardWalkAtEveryAlignmentAndLength) {
    literal::LongBench bench = longBench();
    literal::expectEveryAlignment(bench);
}

TEST(SaxpyLong, WalksForwardWhereItOverlaps) {
    literal::LongBench bench = longBench();
    literal::expectForwardWalkOnOverlap(bench);
}

// ---- The single vector beside an array

// Object 0 of `dst` lies on the single vector, which is 100; the array is 1, 10, 20; the constant is 3. Whoever has
// loaded the single vector ahead of all objects sees 100 again, the others what object 0 has left.
class SingleVector {
public:
    SingleVector(const std::string &name, std::uint32_t size, literal::Geometry geometry = literal::packed)
        : call(name, size, 3, geometry), arrayFirst_(call.function().group == "vav") {
        const char *array = arrayFirst_ ? "src1" : "src2";
        const char *single = arrayFirst_ ? "src2" : "src1";
        call.layOver(single);
        call.setConstant("val", 3);
        call.set(single, 0, std::vector<double>(call.size(), 100));
        for (std::uint32_t n = 0; n < 3; ++n) call.set(array, n, std::vector<double>(call.size(), n == 0 ? 1 : 10 * n));
    }

    void expect(bool held) {
        const auto combine = [&](double fromArray, double fromSingle) {
            return arrayFirst_ ? 3 * fromArray + fromSingle : 3 * fromSingle + fromArray;
        };
        const double first = combine(1, 100); // 103 or 301
        ASSERT_EQ(call.run(), vonkOk);
        const double seen = held ? 100 : first;
        literal::expectSame(std::vector<double>(call.size(), first), call.get("dst", 0), "object 0");
        literal::expectSame(std::vector<double>(call.size(), combine(10, seen)), call.get("dst", 1), "object 1");
        literal::expectSame(std::vector<double>(call.size(), combine(20, seen)), call.get("dst", 2), "object 2");
    }

    Call call;

private:
    bool arrayFirst_;
};

bool mayHold(const Function &function) { return isException(function, "saxpy-single-loaded-once"); }

TEST(SaxpySingle, IsReadAnewForEachObjectByNearlyAllForms) {
    for (const Function *function : all()) {
        if (function->group != "vav" && function->group != "vva") continue;
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 4, 13}))
            for (const literal::Geometry geometry : {literal::spread, literal::backward}) {
                SCOPED_TRACE(function->name + ", size " + std::to_string(size));
                SingleVector(function->name, size, geometry).expect(false);
            }
    }
}

// Both pointers and both strides that are looked at lie on 16, or one of them does not.
TEST(SaxpySingle, IsHeldByFoursAndSixesOfFloatsIfAllOfThemAreAligned) {
    std::size_t forms = 0;
    for (const Function *function : all()) {
        if (!mayHold(*function)) continue;
        ++forms;
        const std::int32_t stride = function->order == 4 ? 16 : 32;
        struct Case {
            std::int32_t src1, src2AndDst, src1Stride, dstStride;
        };
        for (const Case &off :
             {Case{0, 0, 0, 0}, Case{4, 0, 0, 0}, Case{0, 4, 0, 0}, Case{0, 0, 4, 0}, Case{0, 0, 0, 4},
              Case{8, 0, 0, 0}, Case{0, 8, 0, 0}, Case{0, 0, 8, 0}, Case{0, 0, 0, 8}}) {
            SCOPED_TRACE(function->name + ", off by " + std::to_string(off.src1) + " " +
                         std::to_string(off.src2AndDst) + " " + std::to_string(off.src1Stride) + " " +
                         std::to_string(off.dstStride));
            SingleVector single(function->name, 0, {1, 5, true}); // with room for wider strides
            for (const char *operand : {"src1", "src2", "dst"}) {
                literal::Place &place = single.call[operand];
                const auto bytes = reinterpret_cast<std::uintptr_t>(place.origin) % 16;
                const std::int32_t shift = operand == std::string_view("src1") ? off.src1 : off.src2AndDst;
                place.moveTo(place.origin - bytes + shift);
            }
            single.call["src1"].objectStride = stride + off.src1Stride;
            single.call["dst"].objectStride = stride + off.dstStride;
            single.call.set("src2", 0, std::vector<double>(single.call.size(), 100));
            for (std::uint32_t n = 0; n < 3; ++n)
                single.call.set("src1", n, std::vector<double>(single.call.size(), n == 0 ? 1 : 10 * n));
            single.expect(off.src1 + off.src2AndDst + off.src1Stride + off.dstStride == 0);
        }
    }
    EXPECT_EQ(forms, 2U);
}

} // namespace
