// Dimensions and object counts, each as a type when the function's name fixes it and as a value when the caller does:
// one loop serves both, and the compiler unrolls the fixed one.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vonkk3 {

// A dimension in the name: `3x3` to `6x6`, `3x1` to `6x1`. It is never zero, and no test of it is compiled.
template <std::size_t extent> struct Fixed {
    static constexpr bool isFixed = true;
    static constexpr std::size_t value = extent;
    constexpr operator std::size_t() const { return extent; }
    constexpr bool isZero() const { return false; }
};

template <std::size_t extent> inline constexpr Fixed<extent> fixed{};

// A dimension among the arguments. Values with the top bit set are very large sizes.
struct RunTime {
    static constexpr bool isFixed = false;
    static constexpr std::size_t value = 0;
    std::uint32_t extent;
    constexpr operator std::size_t() const { return extent; }
    constexpr bool isZero() const { return extent == 0; }
};

// What a call shares with others does not know even a fixed one.
constexpr RunTime atRunTime(std::size_t extent) { return {std::uint32_t(extent)}; }

// How many objects a call works on: `count` of the array forms, or the one of the others.
struct Objects {
    static constexpr bool isArray = true;
    std::uint32_t count;
    constexpr operator std::size_t() const { return count; }
};

struct OneObject {
    static constexpr bool isArray = false;
    constexpr operator std::size_t() const { return 1; }
};

inline constexpr OneObject oneObject{};

} // namespace vonkk3
