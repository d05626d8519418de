// Tests of the model of Copy, Extract and LoadIdentity: the members that look in another place than their siblings,
// worked out by hand.
#include "model/model.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::uint64_t>;
using Floats = std::vector<float>;
using Doubles = std::vector<double>;

template <class Type> std::uint64_t to(Type *pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }
template <class Container> std::uint64_t to(Container &container) { return to(container.data()); }
std::uint64_t word(std::int64_t value) { return static_cast<std::uint32_t>(value); }

std::int32_t run(const std::string &name, const Words &words) { return model::run({name, words}).status; }

TEST(MovementModel, CopiesBetweenLayoutsRowByRow) {
    Floats source{1, 2, 3, 4, 5, 6}; // 2 rows of 3
    Floats result(6);
    std::vector<float *> table; // columns first
    for (const int k : {0, 2, 4, 1, 3, 5}) table.push_back(&result[static_cast<std::size_t>(k)]);
    EXPECT_EQ(run("vonkCopy_ma_32f_SP", {to(source), 0, 12, 4, to(table), 0, 0, 3, 2, 1}), 0);
    EXPECT_EQ(result, (Floats{1, 4, 2, 5, 3, 6}));
    EXPECT_EQ(run("vonkCopy_ma_32f_SP", {to(source), 0, 12, 4, to(table), 0, 0, 3, 0, 1}), 0);
    EXPECT_EQ(run("vonkCopy_va_32f_SS", {to(source), 0, 4, to(result), 0, 4, 0, 1}), -6);
}

TEST(MovementModel, CopiesVectorsBetweenTablesThroughTheOneOfTheDestination) {
    Doubles data{1, 2, 3, 4, 5, 6, 7, 8};
    Doubles astray{-1, -2};
    std::vector<double *> unread{&astray[0], &astray[1]};
    std::vector<double *> table{&data[0], &data[1]};
    // From 4 elements on, objects 2 apart, to the entries themselves.
    EXPECT_EQ(run("vonkCopy_va_64f_PP", {to(unread), 32, 16, to(table), 0, 16, 2, 2}), 0);
    EXPECT_EQ(data, (Doubles{5, 6, 7, 8, 5, 6, 7, 8}));
}

TEST(MovementModel, QuietensDoublesAndMovesFloatsAsWords) {
    const std::uint64_t signalling64 = 0xfff0000000000001;
    const std::uint32_t signalling32 = 0x7f800001;
    std::uint64_t moved64 = 0;
    std::uint32_t moved32 = 0;
    run("vonkExtract_v_64f_S2", {to(&signalling64), 8, to(&moved64), 1});
    run("vonkExtract_v_32f_S2", {to(&signalling32), 4, to(&moved32), 1});
    EXPECT_EQ(moved64, 0xfff8000000000001);
    EXPECT_EQ(moved32, signalling32);
}

TEST(MovementModel, TransposesInTwoWaysAndInOneNotAtAll) {
    Floats source{1, 2, 3, 4, 5, 6};
    Floats result(6);
    EXPECT_EQ(run("vonkExtract_mT_32f_S2", {to(source), 8, 4, to(result), 3, 2}), 0); // of 3 rows of 2
    EXPECT_EQ(result, (Floats{1, 3, 5, 2, 4, 6}));
    std::vector<float *> table;
    for (float &element : source) table.push_back(&element);
    EXPECT_EQ(run("vonkExtract_mT_32f_P", {to(table), 4, to(result), 3, 2}), 0); // of 2 rows of 3, whatever the shift
    EXPECT_EQ(result, (Floats{1, 4, 2, 5, 3, 6}));
    EXPECT_EQ(run("vonkExtract_maT_32f_PS2", {to(table), 0, 0, to(result), 3, 2, 1}), 0);
    EXPECT_EQ(result, source);
    std::vector<float *> list{source.data()};
    EXPECT_EQ(run("vonkExtract_maT_32f_LS2", {to(list), 0, 8, 4, to(result), 3, 2, 1}), 0);
    EXPECT_EQ(result, (Floats{1, 3, 5, 2, 4, 6}));
}

TEST(MovementModel, TestsLittleInTheTrustingForms) {
    EXPECT_EQ(run("vonkExtract_m_32f_P", {0, 0, 0, 0x10000, 0x10000}), 0); // a product of 0 in 32 bits
    EXPECT_EQ(run("vonkExtract_mT_64f_P", {0, 0, 0, 7, 0}), 0);
    EXPECT_EQ(run("vonkExtract_v_64f_P", {0, 0, 0, 0}), 0);
    EXPECT_EQ(run("vonkExtract_v_32f_P", {0, 0, 0, 0}), -8);
    Floats source(4), result(4);
    EXPECT_EQ(run("vonkExtract_ma_32f_S2", {to(source), 0, 8, 4, to(result), 2, 2, 0}), -6);
}

TEST(MovementModel, RunsTheOnesOfIdentitiesOnOverAllObjects) {
    Floats result(12, 7); // two objects of 2 by 2, 24 bytes apart, in rows of 2 that are packed
    EXPECT_EQ(run("vonkLoadIdentity_ma_32f_S", {to(result), 24, 0, 0, 2, 2, 2}), 0);
    // Object 1: row 0 has its one in column 2, which row 1 clears; its own falls behind the square.
    EXPECT_EQ(result, (Floats{1, 0, 0, 1, 7, 7, 0, 0, 0, 0, 7, 1}));
}

TEST(MovementModel, ClampsTheStridesOfIdentities) {
    Doubles result(4, 7);
    std::vector<double *> list{result.data()};
    // Doubles 4 bytes apart: the zero of column 1 covers the upper half of column 0's, and the one does the same.
    EXPECT_EQ(run("vonkLoadIdentity_ma_64f_L", {to(list), 0, 0, 0, 2, 1, 1}), 0);
    double expected[2] = {0, 7};
    const double one = 1, zero = 0;
    std::memcpy(reinterpret_cast<char *>(expected) + 4, &zero, 8);
    std::memcpy(expected, &one, 8);
    EXPECT_EQ(std::memcmp(result.data(), expected, sizeof expected), 0);
    // A negative stride is a large one and stands.
    Floats line(4, 7);
    EXPECT_EQ(run("vonkLoadIdentity_ma_32f_S", {to(&line[3]), 0, word(-8), word(-4), 2, 2, 1}), 0);
    EXPECT_EQ(line, (Floats{1, 0, 0, 1}));
}

TEST(MovementModel, WritesOnesWithoutColumnsAndNothingWithoutRows) {
    Floats result(6, 7);
    EXPECT_EQ(run("vonkLoadIdentity_ma_32f_S", {to(result), 0, 8, 4, 0, 2, 1}), 0);
    EXPECT_EQ(result, (Floats{1, 7, 7, 1, 7, 7}));
    EXPECT_EQ(run("vonkLoadIdentity_ma_32f_S", {to(result), 0, 8, 4, 2, word(-1), 1}), 0);
    EXPECT_EQ(result, (Floats{1, 7, 7, 1, 7, 7}));
    EXPECT_EQ(run("vonkLoadIdentity_ma_32f_S", {to(result), 0, 8, 4, 2, 2, 0}), -6);
}

} // namespace
