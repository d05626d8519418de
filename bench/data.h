// The data of a row: buffers that all its contestants share, at fixed places, filled from a fixed seed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace bench {

// Elements at the start of a page, or a number of cache lines behind it that depends on `place` alone. Buffers of one
// row take different places: at the same one, loads would be held up by stores whose addresses only look alike.
template <class T> class Buffer {
public:
    Buffer(std::size_t size, std::size_t place) : storage(size * sizeof(T) + 2 * page), elements(size) {
        const auto start = reinterpret_cast<std::uintptr_t>(storage.data());
        const std::size_t toPage = (page - start % page) % page;
        first = reinterpret_cast<T *>(storage.data() + toPage + place * placeBytes % page);
    }
    Buffer(const Buffer &) = delete;
    Buffer &operator=(const Buffer &) = delete;

    T *data() { return first; }
    const T *data() const { return first; }
    std::size_t size() const { return elements; }
    const T &operator[](std::size_t index) const { return first[index]; }

    void fill(T value) {
        for (std::size_t i = 0; i < elements; ++i) first[i] = value;
    }

    void fillRandomly(std::uint32_t seed) {
        std::mt19937 generator(seed);
        std::uniform_real_distribution<T> distribution(T(-1), T(1));
        for (std::size_t i = 0; i < elements; ++i) first[i] = distribution(generator);
    }

private:
    static constexpr std::size_t page = 4096;
    static constexpr std::size_t placeBytes = 17 * 64;

    std::vector<std::byte> storage;
    std::size_t elements;
    T *first;
};

} // namespace bench
