// The random numbers of the tests: splitmix64, the same stream with every compiler and library. A stream is named by
// a seed, a function's name and the index of a call, so that one call can be made again without those before it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

namespace support {

class Random {
public:
    explicit Random(std::uint64_t seed) : state(seed) {}

    Random(std::uint64_t seed, std::string_view name, std::uint64_t index) : state(seed) {
        for (const char letter : name) mix(static_cast<unsigned char>(letter));
        mix(index);
    }

    // Draws from these bytes as long as there are any, one or two for most choices, and goes on by itself after them.
    // They have to outlive the draws.
    void steerBy(std::span<const std::uint8_t> bytes) { steering = bytes; }

    std::uint64_t next() {
        if (!steering.empty()) return scramble(take(2));
        state += 0x9e3779b97f4a7c15;
        return scramble(state);
    }

    // 0 to limit - 1; limit is at least 1.
    std::uint64_t below(std::uint64_t limit) {
        if (!steering.empty()) return take(limit <= 0x100 ? 1 : limit <= 0x10000 ? 2 : 8) % limit;
        return next() % limit;
    }

    // low to high, both included.
    std::int64_t between(std::int64_t low, std::int64_t high) {
        return low + static_cast<std::int64_t>(below(static_cast<std::uint64_t>(high - low) + 1));
    }

    bool percent(unsigned share) { return below(100) < share; }

    template <class T> const T &pick(std::span<const T> choices) { return choices[below(choices.size())]; }

    template <class Sequence> void shuffle(Sequence &sequence) {
        for (std::size_t left = sequence.size(); left > 1; --left) {
            using std::swap;
            swap(sequence[left - 1], sequence[below(left)]);
        }
    }

private:
    static std::uint64_t scramble(std::uint64_t z) {
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

    std::uint64_t take(std::size_t count) {
        std::uint64_t taken = 0;
        for (const std::uint8_t byte : steering.first(std::min(count, steering.size()))) taken = taken << 8 | byte;
        steering = steering.subspan(std::min(count, steering.size()));
        return taken;
    }

    void mix(std::uint64_t value) { state = scramble(state ^ (value + 0x9e3779b97f4a7c15)); }

    std::uint64_t state;
    std::span<const std::uint8_t> steering;
};

} // namespace support
