// Expectations that the families of vectors share: results element by element, and the
// forward walk that the long forms have to agree with at every alignment and overlap.
#pragma once

#include "control.h"
#include "literal.h"
#include "literal_checks.h"

#include "vonkk3.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace literal {

// A family that makes each element of `dst` out of the elements of the same index.
struct ElementFamily {
    std::function<void(Call &)> fill; // sources and constants
    std::function<double(const Call &, std::uint32_t n, std::uint32_t j)> expected;

    Example example() const {
        return {fill, [this](Call &call, std::uint32_t n) {
                    for (std::uint32_t j = 0; j < call.size(); ++j)
                        EXPECT_EQ(call.get("dst", n, 0, j), expected(call, n, j)) << "element " << j;
                }};
    }
};

// The object of a source that object n is made of.
inline std::uint32_t objectOf(const Call &call, std::string_view source, std::uint32_t n) {
    for (const catalogue::Operand &operand : call.function().operands)
        if (operand.name == source) return operand.array ? n : 0;
    throw std::out_of_range(std::string(source));
}

// ---- The long forms on adjacent elements

// Addresses as offsets in bytes into the memory of a bench.
struct Offsets {
    std::size_t src1;
    std::size_t src2; // not looked at by a form of one source
    std::size_t dst;
};

// Two like buffers: the export works in one, a plain forward walk in the other, and every byte is compared. `combine`
// gets the elements of the sources.
class LongBench {
public:
    static constexpr std::size_t size = 4096;
    using Combine = std::function<float(float, float)>;

    LongBench(std::string name, std::map<std::string, float> constants, Combine combine)
        : function_(literal::function(name)), constants_(std::move(constants)), combine_(std::move(combine)) {
        for (std::size_t k = 0; k < size / sizeof(float); ++k) { // numbers whose sums and products round
            const auto j = static_cast<float>(k);
            const float value = 1.1F * (j + 1) - j * j / 7;
            std::memcpy(original_.data() + k * sizeof(float), &value, sizeof value);
        }
    }

    void compare(Offsets at, std::uint32_t length) {
        SCOPED_TRACE(function_.name + ", src1 at " + std::to_string(at.src1) + ", src2 at " + std::to_string(at.src2) +
                     ", dst at " + std::to_string(at.dst) + ", length " + std::to_string(length));
        actual_ = original_;
        expected_ = original_;
        ASSERT_EQ(callWith(function_.name, words(at, length)), vonkOk);
        ++calls;
        if (!walkForward(at, length)) return;
        ++compared;
        ASSERT_EQ(std::memcmp(actual_.data(), expected_.data(), size), 0);
    }

    std::size_t calls = 0;
    std::size_t compared = 0;

private:
    std::vector<std::uint64_t> words(Offsets at, std::uint32_t length) {
        std::vector<std::uint64_t> list;
        for (const catalogue::Parameter &parameter : function_.parameters) {
            if (parameter.name == "src" || parameter.name == "src1") list.push_back(wordOf(actual_.data() + at.src1));
            else if (parameter.name == "src2") list.push_back(wordOf(actual_.data() + at.src2));
            else if (parameter.name == "dst") list.push_back(wordOf(actual_.data() + at.dst));
            else if (parameter.name == "len") list.push_back(length);
            else list.push_back(std::bit_cast<std::uint32_t>(constants_.at(parameter.name)));
        }
        return list;
    }

    // Tells whether all results were normal numbers or zeros: odd overlaps make numbers of any bytes, and the bits of a
    // NaN are nobody's promise.
    bool walkForward(Offsets at, std::uint32_t length) {
        bool ordinary = true;
        for (std::uint32_t k = 0; k < length; ++k) {
            float a = 0;
            float b = 0;
            std::memcpy(&a, expected_.data() + at.src1 + k * sizeof a, sizeof a);
            std::memcpy(&b, expected_.data() + at.src2 + k * sizeof b, sizeof b);
            const float c = combine_(a, b);
            std::memcpy(expected_.data() + at.dst + k * sizeof c, &c, sizeof c);
            ordinary = ordinary && (std::isnormal(c) || c == 0);
        }
        return ordinary;
    }

    const catalogue::Function &function_;
    std::map<std::string, float> constants_;
    Combine combine_;
    alignas(64) std::array<std::byte, size> original_{};
    alignas(64) std::array<std::byte, size> actual_{};
    alignas(64) std::array<std::byte, size> expected_{};
};

// Lengths on both sides of the 11 from which there are blocks, at all alignments on the grid and off it.
inline void expectEveryAlignment(LongBench &bench) {
    for (std::uint32_t length = 1; length <= 40; ++length)
        for (std::size_t left = 0; left < 16; left += 4)
            for (std::size_t right = 0; right < 16; right += 4)
                for (std::size_t result = 0; result < 16; result += 4)
                    bench.compare({64 + left, 1024 + right, 2048 + result}, length);
    EXPECT_EQ(bench.compared, 40U * 64U);
    for (const std::uint32_t length : {1U, 10U, 11U, 16U, 100U})
        for (std::size_t odd = 1; odd < 16; ++odd) {
            bench.compare({64, 1024, 2048 + odd}, length);
            bench.compare({64 + odd, 1024, 2048}, length);
            bench.compare({64, 1024 + odd, 2048 + 4}, length);
            bench.compare({64 + odd, 1024 + odd, 2048 + odd}, length);
        }
    EXPECT_GT(bench.compared * 10, bench.calls * 9); // odd addresses make NaNs now and then
}

// Distances from a source to the destination: in place, a few bytes apart, a block apart, just in touch at either end.
inline void expectForwardWalkOnOverlap(LongBench &bench) {
    for (const std::uint32_t length : {3U, 10U, 11U, 24U, 100U}) {
        const auto bytes = static_cast<std::ptrdiff_t>(length * sizeof(float));
        std::vector<std::ptrdiff_t> distances{64, bytes / 2, bytes - 4, bytes - 1, bytes, bytes + 4};
        for (std::size_t k = 0; k < 6; ++k) distances.push_back(-distances[k]);
        for (std::ptrdiff_t distance = -36; distance <= 36; ++distance) distances.push_back(distance);
        for (const std::ptrdiff_t distance : distances) {
            const auto result = static_cast<std::size_t>(1024 + distance);
            bench.compare({1024, 3072, result}, length);
            bench.compare({3072, 1024, result}, length);
            bench.compare({1024, 1040, result}, length);
        }
    }
    EXPECT_GT(bench.compared * 10, bench.calls * 9); // hardly any was passed over
}

} // namespace literal
