// The memory that all operands of a test call lie in: at one fixed address, so that a call looks the same in every
// run down to the pointers in its tables, with unreadable pages on both sides.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace support {

using Image = std::vector<std::byte>; // a copy of the arena

class Arena {
public:
    static constexpr std::size_t size = std::size_t{64} << 10;
    static constexpr std::size_t margin = 512;                     // left free of operands at both ends
    static constexpr std::uint64_t wideAddress = 0x2000'0000'0000; // where there is room for it
    static constexpr std::uintptr_t address = static_cast<std::uintptr_t>(
        sizeof(void *) == 8 ? wideAddress : 0x8000'0000 - size / 2); // astride 2 GiB, where signs of addresses change

    Arena(); // throws std::runtime_error where the address is taken
    ~Arena();
    Arena(const Arena &) = delete;
    Arena &operator=(const Arena &) = delete;

    std::span<std::byte> bytes() const { return {reinterpret_cast<std::byte *>(address), size}; }
    // An address as 64-bit processes have it, and back. What leads nowhere near the arena keeps its lower bits.
    static constexpr std::uint64_t widened(std::uintptr_t where) {
        return wideAddress + (std::uint64_t{where} - std::uint64_t{address});
    }
    static constexpr std::uintptr_t narrowed(std::uint64_t where) {
        constexpr std::uint64_t far = std::uint64_t{1} << 33; // a shift and more
        const bool isNear = where - (wideAddress - far) < 2 * far;
        return static_cast<std::uintptr_t>(isNear ? where - wideAddress + address : where);
    }
    static bool contains(std::uintptr_t where, std::size_t length = 1) {
        return where >= address && where - address <= size && length <= size - (where - address);
    }

    void save(Image &image) const;
    void restore(const Image &image) const;

    // Gives every byte a value that depends on the key alone, such that floats and doubles at any address in it are
    // ordinary numbers of middling size: a read beside an operand shows, yet fails no test of a magnitude.
    void fill(std::uint64_t key) const;
};

// For all tests of one program: there is one address.
const Arena &sharedArena();

} // namespace support
