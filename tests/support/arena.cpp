// Mapping, filling and copying the arena. See arena.h.
#include "arena.h"

#include "random.h"

#include <array>
#include <cstring>
#include <stdexcept>
#include <sys/mman.h>

namespace support {
namespace {

constexpr std::size_t guard = std::size_t{64} << 10;

// Bytes that make a number of middling size with any others of them behind.
constexpr std::array<std::uint8_t, 8> leadingBytes{0x3f, 0x40, 0x41, 0x42, 0xbf, 0xc0, 0xc1, 0xc2};

// Twice the arena, so that the start within it is free to vary from call to call.
std::vector<std::uint8_t> makePool() {
    Random random(0x6b6b33);
    std::vector<std::uint8_t> pool(2 * Arena::size);
    for (std::uint8_t &byte : pool) byte = random.pick(std::span<const std::uint8_t>(leadingBytes));
    return pool;
}

} // namespace

Arena::Arena() {
    void *const wanted = reinterpret_cast<void *>(address - guard);
    void *const got = mmap(wanted, size + 2 * guard, PROT_NONE,
                           MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_FIXED_NOREPLACE, -1, 0);
    if (got == MAP_FAILED) throw std::runtime_error("the fixed address of the arena is taken");
    if (got != wanted || mprotect(bytes().data(), size, PROT_READ | PROT_WRITE) != 0) {
        munmap(got, size + 2 * guard);
        throw std::runtime_error("the arena cannot be mapped at its fixed address");
    }
}

Arena::~Arena() { munmap(reinterpret_cast<void *>(address - guard), size + 2 * guard); }

void Arena::save(Image &image) const {
    image.resize(size);
    std::memcpy(image.data(), bytes().data(), size);
}

void Arena::restore(const Image &image) const { std::memcpy(bytes().data(), image.data(), size); }

void Arena::fill(std::uint64_t key) const {
    static const std::vector<std::uint8_t> pool = makePool();
    const std::size_t start = Random(key).below(size);
    std::memcpy(bytes().data(), pool.data() + start, size);
}

const Arena &sharedArena() {
    static const Arena one;
    return one;
}

} // namespace support
