// Operands that are spread over a 32-bit address space: distances beyond 2 GiB, and rows that wrap round at its end. A
// call on many objects gives what one call for each of them gives.
#include "vonkk3.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <sys/mman.h>

namespace {

constexpr std::uint32_t objects = 40;

// Four blocks of the address space.
class Spread {
public:
    static constexpr std::size_t blocks = 4, elements = 1024;

    Spread() {
        for (const std::uintptr_t address : addresses)
            if (mmap(reinterpret_cast<void *>(address), elements * sizeof(float), PROT_READ | PROT_WRITE,
                     MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0) != reinterpret_cast<void *>(address))
                throw std::runtime_error("an address is taken");
        fill();
    }
    ~Spread() {
        for (const std::uintptr_t address : addresses)
            munmap(reinterpret_cast<void *>(address), elements * sizeof(float));
    }
    Spread(const Spread &) = delete;
    Spread &operator=(const Spread &) = delete;

    static float *block(std::size_t k) { return reinterpret_cast<float *>(addresses.at(k)); }

    using Picture = std::array<float, blocks * elements>;
    static Picture picture() {
        Picture all;
        for (std::size_t k = 0; k < blocks; ++k)
            std::memcpy(all.data() + k * elements, block(k), elements * sizeof(float));
        return all;
    }
    static void fill() {
        for (std::size_t k = 0; k < blocks; ++k)
            for (std::size_t j = 0; j < elements; ++j)
                block(k)[j] = static_cast<float>((k * elements + j) * 37 % 101) / 8.0F - 6.0F;
    }

private:
    static constexpr std::array<std::uintptr_t, blocks> addresses{0x90000000, 0xe0000000, 0x30000000, 0x60000000};
};

// call(n, count) works on so many objects from n on.
void expectSameObjectByObject(const std::function<void(std::int32_t, std::uint32_t)> &call) {
    const Spread memory;
    const Spread::Picture before = Spread::picture();
    call(0, objects);
    const Spread::Picture together = Spread::picture();
    Spread::fill();
    for (std::uint32_t n = 0; n < objects; ++n) call(static_cast<std::int32_t>(n), 1);
    const Spread::Picture alone = Spread::picture();
    EXPECT_EQ(std::memcmp(together.data(), alone.data(), sizeof together), 0);
    EXPECT_NE(std::memcmp(together.data(), before.data(), sizeof together), 0) << "nothing was written";
}

constexpr std::int32_t bytes = sizeof(float);

// Positions of results, each less than 2 GiB past the one before it, and the last ones past the first again.
template <std::size_t positions> std::array<float *, positions> roundTheAddressSpace() {
    std::array<float *, positions> table{Spread::block(1), Spread::block(2), Spread::block(0)};
    for (std::size_t k = 3; k < positions; ++k) table[k] = Spread::block(1) + 64 * k;
    for (float *&position : table) position += 16;
    return table;
}

// Sources in one block: the first on the results of the block's position, an element before or after.
template <std::size_t positions>
std::array<const float *, positions> sourcesIn(std::size_t block, std::ptrdiff_t shifted) {
    std::array<const float *, positions> table;
    for (std::size_t k = 0; k < positions; ++k) table[k] = Spread::block(block) + 16 + shifted + 64 * k;
    return table;
}

class AddressSpace : public testing::TestWithParam<std::ptrdiff_t> {};

TEST_P(AddressSpace, IsLeftByTheTableOfAVector) {
    expectSameObjectByObject([](std::int32_t n, std::uint32_t count) {
        const auto a = sourcesIn<4>(2, GetParam()), b = sourcesIn<4>(3, 512);
        const auto d = roundTheAddressSpace<4>();
        ASSERT_EQ(vonkAdd_vava_32f_4x1_PS2(a.data(), n * bytes, bytes, b.data(), n * bytes, bytes, d.data(), n * bytes,
                                           bytes, count),
                  vonkOk);
    });
}

TEST_P(AddressSpace, IsLeftByTheTableOfAMatrix) {
    expectSameObjectByObject([](std::int32_t n, std::uint32_t count) {
        const auto a = sourcesIn<9>(2, GetParam()), b = sourcesIn<9>(3, 400);
        const auto d = roundTheAddressSpace<9>();
        ASSERT_EQ(vonkAdd_mama_32f_3x3_PS2(a.data(), n * bytes, bytes, b.data(), n * bytes, bytes, d.data(), n * bytes,
                                           bytes, count),
                  vonkOk);
    });
}

TEST_P(AddressSpace, IsLeftByTheTableOfATransposedMatrix) {
    expectSameObjectByObject([](std::int32_t n, std::uint32_t count) {
        const auto a = sourcesIn<9>(2, GetParam());
        const auto d = roundTheAddressSpace<9>();
        ASSERT_EQ(vonkTranspose_ma_32f_3x3_PS2(a.data(), n * bytes, bytes, d.data(), n * bytes, bytes, count), vonkOk);
    });
}

// Rows of factors lie at 0x90000000, 0xe0000000 and 0x30000000. Solutions overwrite those in the middle of later
// objects.
constexpr std::int32_t rowStride = 0x50000000, triple = 3 * bytes;

TEST_P(AddressSpace, IsLeftByTheRowsOfAnArray) {
    for (const std::size_t row : {1, 2}) {
        SCOPED_TRACE(row);
        expectSameObjectByObject([row](std::int32_t n, std::uint32_t count) {
            const float *const factors = Spread::block(0) + 16 + std::ptrdiff_t{3} * n;
            const float *const sides = Spread::block(3) + std::ptrdiff_t{3} * n;
            float *const solutions = Spread::block(row) + 16 + GetParam() + std::ptrdiff_t{3} * n;
            ASSERT_EQ(
                vonkCholeskyBackSubst_mava_32f_3x3(factors, triple, rowStride, sides, triple, solutions, triple, count),
                vonkOk);
        });
    }
}

template <class Number> std::array<Number *, objects> triplesFrom(Number *first) {
    std::array<Number *, objects> list;
    for (std::size_t k = 0; k < objects; ++k) list[k] = first + 3 * k;
    return list;
}

TEST_P(AddressSpace, IsLeftByTheRowsOfAList) {
    for (const std::size_t row : {1, 2}) {
        SCOPED_TRACE(row);
        expectSameObjectByObject([row](std::int32_t n, std::uint32_t count) {
            const auto factors = triplesFrom<const float>(Spread::block(0) + 16);
            const auto sides = triplesFrom<const float>(Spread::block(3));
            const auto solutions = triplesFrom(Spread::block(row) + 16 + GetParam());
            ASSERT_EQ(vonkCholeskyBackSubst_mava_32f_3x3_L(factors.data() + n, 0, rowStride, sides.data() + n, 0,
                                                           solutions.data() + n, 0, static_cast<std::int32_t>(count)),
                      vonkOk);
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Distances, AddressSpace, testing::Values(-4, -1, 1, 5));

} // namespace
