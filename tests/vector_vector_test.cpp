// Sums and differences of vectors: numbers by hand in every form, the long run-time form at every alignment and
// overlap, which forms hold the single vector and which read it anew, and what is tested in which order.
#include "support/family_test.h"

namespace {

using namespace literal::names;

std::vector<const Function *> all(bool (*wanted)(const Function &) = isAny) {
    return literal::members("vector-vector", wanted);
}

bool isDifference(const Function &function) { return function.family->operation == "Sub"; }
bool isSingle(const Function &function) { return function.group == "vv"; }
bool mixesArrayAndSingle(const Function &function) { return function.group == "vav" || function.group == "vva"; }

const std::vector<std::uint32_t> lengths{1, 2, 3, 7, 11, 12, 19, 21};

// ---- Results

double left(std::uint32_t n, std::uint32_t j) { return 64 * (n + 1) + 3 * j; }
double right(std::uint32_t n, std::uint32_t j) { return 1000 * (n + 1) - 7.0 * j; }

void fill(Call &call) {
    for (std::uint32_t j = 0; j < call.size(); ++j) {
        for (std::uint32_t n = 0; n < call.objectsOf("src1"); ++n) call.set("src1", n, 0, j, left(n, j));
        for (std::uint32_t n = 0; n < call.objectsOf("src2"); ++n) call.set("src2", n, 0, j, right(n, j));
    }
}

void expectDone(Call &call, std::uint32_t n) {
    const std::uint32_t n1 = call.objectsOf("src1") == 1 ? 0 : n;
    const std::uint32_t n2 = call.objectsOf("src2") == 1 ? 0 : n;
    for (std::uint32_t j = 0; j < call.size(); ++j) {
        const double expected = isDifference(call.function()) ? left(n1, j) - right(n2, j) : left(n1, j) + right(n2, j);
        EXPECT_EQ(call.get("dst", n, 0, j), expected) << "element " << j;
    }
}

const literal::Example example{fill, expectDone};

TEST(VectorVector, AddsAndSubtractsInEveryFormAndGeometry) {
    for (const Function *function : all()) literal::expectResults(*function, example, lengths);
}

TEST(VectorVector, AddsAndSubtractsInPlaceInEveryForm) {
    for (const Function *function : all())
        for (const char *source : {"src1", "src2"}) {
            const bool array = Call(function->name, 3, 2).objectsOf(source) == 2;
            if (array || isSingle(*function)) literal::expectInPlaceResults(*function, example, source, lengths);
        }
}

TEST(VectorVector, TakesItsWordsInTheOrderOfTheHeader) {
    const float left[2] = {1, 2};
    const float right[2] = {10, 20};
    float sum[4] = {};
    EXPECT_EQ(vonkAdd_vv_32f_S2(left, 4, right, -4, sum, 8, 1), vonkOk);
    EXPECT_EQ(vonkSub_vva_32f_S2(left, 4, right, 0, 4, sum + 1, 8, 4, 1, 2), vonkOk); // 1 - 10, twice
    EXPECT_EQ(sum[0], 11);
    EXPECT_EQ(sum[1], -9);
    EXPECT_EQ(sum[2], 0);
    EXPECT_EQ(sum[3], -9);
}

TEST(VectorVector, PutsAllObjectsOnOneAnotherAtStrideZero) {
    const double objects[6] = {1, 2, 3, 4, 5, 6};
    const double single[3] = {10, 20, 30};
    double sum[4] = {0, 0, 0, -1};
    EXPECT_EQ(vonkAdd_vav_64f_3x1(objects, 24, single, sum, 0, 2), vonkOk);
    EXPECT_EQ(sum[0], 14); // of the last object, 4 + 10
    EXPECT_EQ(sum[1], 25);
    EXPECT_EQ(sum[2], 36);
    EXPECT_EQ(sum[3], -1);
    EXPECT_EQ(vonkSub_vav_64f_3x1(objects, 0, single, sum, 24, 1), vonkOk); // 1 - 10
    EXPECT_EQ(sum[0], -9);
}

// Blocks of four objects and what is left over, beside the sum that has no blocks.
TEST(VectorVector, TakesAnyNumberOfThreeVectorsWhateverTheBlocks) {
    for (const char *name : {"vonkSub_vava_32f_3x1", "vonkAdd_vava_32f_3x1"})
        for (std::uint32_t count = 1; count <= 13; ++count)
            for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
                SCOPED_TRACE(std::string(name) + ", count " + std::to_string(count));
                Call call(name, 3, count, geometry);
                fill(call);
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectAllDone(call, example);
            }
}

// ---- Numbers that are not numbers, and zeros with signs

// ---- The run-time forms on adjacent elements: alignments and overlaps

template <class Real> using Export = VonkStatus (*)(const Real *, const Real *, Real *, std::uint32_t);

template <class Real> struct Form {
    const char *name;
    Export<Real> call;
    int sign;
};

constexpr std::array floatForms =
    std::to_array<Form<float>>({{"sum", vonkAdd_vv_32f, 1}, {"difference", vonkSub_vv_32f, -1}});
constexpr std::array doubleForms =
    std::to_array<Form<double>>({{"sum", vonkAdd_vv_64f, 1}, {"difference", vonkSub_vv_64f, -1}});

// The walk that everything has to agree with: element by element, forward, on bytes. Tells whether all results were
// normal numbers or zeros: odd overlaps make numbers of any bytes, and the bits of a NaN are nobody's promise.
template <class Real>
bool walkForward(int sign, const std::byte *left, const std::byte *right, std::byte *result, std::uint32_t length) {
    bool ordinary = true;
    for (std::uint32_t k = 0; k < length; ++k) {
        Real a;
        Real b;
        std::memcpy(&a, left + k * sizeof(Real), sizeof(Real));
        std::memcpy(&b, right + k * sizeof(Real), sizeof(Real));
        const Real c = sign > 0 ? a + b : a - b;
        std::memcpy(result + k * sizeof(Real), &c, sizeof(Real));
        ordinary = ordinary && (std::isnormal(c) || c == 0);
    }
    return ordinary;
}

// Two like buffers: the export works in one, the walk in the other, and every byte is compared.
template <class Real> class Bench {
public:
    static constexpr std::size_t size = 4096;

    Bench() {
        for (std::size_t k = 0; k < size / sizeof(Real); ++k) { // numbers whose sums round
            const Real value = static_cast<Real>(1.1) * static_cast<Real>(k + 1) - static_cast<Real>(k * k) / 7;
            std::memcpy(original.data() + k * sizeof(Real), &value, sizeof value);
        }
    }

    // Offsets in bytes from a boundary of 64.
    void compare(const Form<Real> &form, std::size_t left, std::size_t right, std::size_t result,
                 std::uint32_t length) {
        SCOPED_TRACE(std::string(form.name) + ", src1 at " + std::to_string(left) + ", src2 at " +
                     std::to_string(right) + ", dst at " + std::to_string(result) + ", length " +
                     std::to_string(length));
        actual = original;
        expected = original;
        ASSERT_EQ(form.call(reinterpret_cast<const Real *>(actual.data() + left),
                            reinterpret_cast<const Real *>(actual.data() + right),
                            reinterpret_cast<Real *>(actual.data() + result), length),
                  vonkOk);
        ++calls;
        if (!walkForward<Real>(form.sign, expected.data() + left, expected.data() + right, expected.data() + result,
                               length))
            return;
        ++compared;
        ASSERT_EQ(std::memcmp(actual.data(), expected.data(), size), 0);
    }

    std::size_t calls = 0;
    std::size_t compared = 0;

private:
    alignas(64) std::array<std::byte, size> original{};
    alignas(64) std::array<std::byte, size> actual{};
    alignas(64) std::array<std::byte, size> expected{};
};

// Up to 10 elements there are no blocks; 11 with the destination on a boundary are one block and three, 4 bytes past a
// boundary three and one block.
TEST(VectorVectorRunTime, AddsFloatsAtEveryAlignmentAndLengthAndWritesNothingBeside) {
    Bench<float> bench;
    for (const Form<float> &form : floatForms)
        for (std::uint32_t length = 1; length <= 40; ++length)
            for (std::size_t left = 0; left < 16; left += 4)
                for (std::size_t right = 0; right < 16; right += 4)
                    for (std::size_t result = 0; result < 16; result += 4)
                        bench.compare(form, 64 + left, 1024 + right, 2048 + result, length);
    EXPECT_EQ(bench.compared, 2U * 40U * 64U);
}

TEST(VectorVectorRunTime, AddsFloatsAtOddAddresses) {
    Bench<float> bench;
    for (const Form<float> &form : floatForms)
        for (const std::uint32_t length : {1U, 10U, 11U, 16U, 100U})
            for (std::size_t odd = 1; odd < 16; ++odd) {
                bench.compare(form, 64, 1024, 2048 + odd, length);
                bench.compare(form, 64 + odd, 1024, 2048, length);
                bench.compare(form, 64, 1024 + odd, 2048 + 4, length);
                bench.compare(form, 64 + odd, 1024 + odd, 2048 + odd, length);
            }
}

TEST(VectorVectorRunTime, AddsDoublesAtAnyAddress) {
    Bench<double> bench;
    const SettingScope scope({Precision::bits53, Rounding::nearest});
    for (const Form<double> &form : doubleForms)
        for (std::uint32_t length = 1; length <= 13; ++length)
            for (const std::size_t offset : {0U, 1U, 4U, 8U, 13U})
                bench.compare(form, 64 + offset, 1024 + 3 * offset, 2048 + 5 * offset, length);
}

// Distances from a source to the destination: in place, a few bytes apart, a block apart, just in touch at either end.
template <class Real> std::vector<std::ptrdiff_t> distances(std::uint32_t length) {
    const auto bytes = static_cast<std::ptrdiff_t>(length * sizeof(Real));
    std::vector<std::ptrdiff_t> list;
    for (std::ptrdiff_t distance = -36; distance <= 36; ++distance) list.push_back(distance);
    for (const std::ptrdiff_t distance : {std::ptrdiff_t{64}, bytes / 2, bytes - 4, bytes - 1, bytes, bytes + 4}) {
        list.push_back(distance);
        list.push_back(-distance);
    }
    return list;
}

template <class Real> void expectForwardWalkOnOverlap(const Form<Real> &form) {
    Bench<Real> bench;
    for (const std::uint32_t length : {3U, 11U, 24U, 100U})
        for (const std::ptrdiff_t distance : distances<Real>(length)) {
            const auto result = static_cast<std::size_t>(1024 + distance);
            bench.compare(form, 1024, 3072, result, length); // over the first source
            bench.compare(form, 3072, 1024, result, length); // over the second
            bench.compare(form, 1024, 1024, result, length); // over both
            bench.compare(form, 1024, 1040, result, length); // over both, which lie apart
        }
    EXPECT_GT(bench.compared * 10, bench.calls * 9); // hardly any was passed over
}

TEST(VectorVectorRunTime, WalksForwardWhereFloatsOverlap) {
    for (const Form<float> &form : floatForms) expectForwardWalkOnOverlap(form);
}

TEST(VectorVectorRunTime, WalksForwardWhereDoublesOverlap) {
    const SettingScope scope({Precision::bits53, Rounding::nearest});
    for (const Form<double> &form : doubleForms) expectForwardWalkOnOverlap(form);
}

// dst = src1 + one element: each element is the running total that the step before has just written.
TEST(VectorVectorRunTime, SumsUpWhereTheDestinationIsOneElementAhead) {
    std::array<float, 101> totals{};
    std::array<float, 100> ones{};
    ones.fill(1);
    totals[0] = 5;
    EXPECT_EQ(vonkAdd_vv_32f(totals.data(), ones.data(), totals.data() + 1, 100), vonkOk);
    for (std::size_t k = 0; k <= 100; ++k) EXPECT_EQ(totals[k], 5 + static_cast<float>(k));
}

// The scalar forms of every layout walk likewise: dst one element ahead of src1, all of src2 being 1.
TEST(VectorVectorRunTime, SumsUpInEveryLayout) {
    for (const Function *function : all()) {
        if (function->order != 0 || isDifference(*function)) continue;
        constexpr std::uint32_t length = 9;
        Call call(function->name, length);
        fill(call);
        call.set("src2", 0, std::vector<double>(length, 1));
        const literal::Place &source = call["src1"];
        const std::int32_t step =
            catalogue::isTable(source.operand->layout) ? source.positionStride : source.elementStride;
        call["dst"].moveTo(source.origin + step);
        ASSERT_EQ(call.run(), vonkOk);
        for (std::uint32_t j = 0; j < length; ++j) EXPECT_EQ(call.get("dst", 0, 0, j), left(0, 0) + j + 1);
    }
}

// ---- The single vector of `vav` and `vva`

bool holdsSingle(const Function &function) { return isException(function, "vv-single-loaded-once"); }

// Object 0 of `dst` lies on the single vector, which is 100; the array holds 1 and then 10. Those that have loaded the
// single vector once see 100 for object 1 too; the others see the result for object 0.
TEST(VectorVectorSingle, IsHeldByFloatsOfFixedSizeInTwoLayoutsAndReadAnewByAllOthers) {
    std::size_t holding = 0;
    for (const Function *function : all()) {
        if (!mixesArrayAndSingle(*function)) continue;
        for (const std::uint32_t size : literal::sizesOf(*function, {1, 4, 13}))
            for (const literal::Geometry geometry : {literal::packed, literal::spread, literal::backward}) {
                const bool arrayFirst = function->group == "vav";
                const char *array = arrayFirst ? "src1" : "src2";
                const char *single = arrayFirst ? "src2" : "src1";
                Call call(function->name, size, 3, geometry);
                call.layOver(single);
                call.set(single, 0, std::vector<double>(size, 100));
                call.set(array, 0, std::vector<double>(size, 1));
                call.set(array, 1, std::vector<double>(size, 10));
                call.set(array, 2, std::vector<double>(size, 20));
                const auto combine = [&](double fromArray, double fromSingle) {
                    if (!isDifference(*function)) return fromArray + fromSingle;
                    return arrayFirst ? fromArray - fromSingle : fromSingle - fromArray;
                };
                const double first = combine(1, 100); // 101, -99, 99
                const double seen = holdsSingle(*function) ? 100 : first;
                ASSERT_EQ(call.run(), vonkOk);
                literal::expectSame(std::vector<double>(size, first), call.get("dst", 0), "object 0");
                literal::expectSame(std::vector<double>(size, combine(10, seen)), call.get("dst", 1), "object 1");
                literal::expectSame(std::vector<double>(size, combine(20, seen)), call.get("dst", 2), "object 2");
            }
        if (holdsSingle(*function)) ++holding;
    }
    EXPECT_EQ(holding, 3U * 4U * 2U); // three groups, four sizes, two layouts
}

// ---- What is tested, and when

TEST(VectorVectorChecks, LeaveThreeElementsWrittenWhereTheFourthHasNoPlace) {
    float numbers[5] = {1, 2, 3, 4, 5};
    float sums[5] = {};
    const float *source[5] = {numbers, numbers + 1, numbers + 2, nullptr, numbers + 4};
    const float *other[5] = {numbers, numbers + 1, numbers + 2, numbers + 3, numbers + 4};
    float *result[5] = {sums, sums + 1, sums + 2, sums + 3, sums + 4};
    EXPECT_EQ(vonkAdd_vv_32f_P(source, 0, other, 0, result, 0, 5), vonkErrNullPtr);
    const std::vector<float> expected{2, 4, 6, 0, 0};
    EXPECT_EQ(std::vector<float>(sums, sums + 5), expected);
}

} // namespace
