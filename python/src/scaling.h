// Scaling by powers of two, which rounds nothing: for matrices that the library's absolute tolerances refuse, and for
// determinants of elements far from 1.
#pragma once

#include "views.h"

#include <bit>
#include <cmath>
#include <type_traits>

namespace vonkk3 {

// a(i, j) = scaled(i, j) * 2^(row[i] + col[j]). The largest magnitude of each row, and then of each column, is scaled
// to [2^target, 2^(target + 1)).
struct Scaling {
    std::vector<int> row, col;
};

// Scales the packed matrix. False if it has a row or column of zeros, or an element that is not finite.
template <typename T> bool equilibrate(T *a, Size rows, Size cols, Scaling &scaling, int target, bool withRows) {
    scaling.row.assign(static_cast<std::size_t>(rows), 0);
    scaling.col.assign(static_cast<std::size_t>(cols), 0);
    for (Size i = 0; i < rows * cols; ++i)
        if (!std::isfinite(a[i])) return false;
    for (Size i = 0; withRows && i < rows; ++i) {
        T most = 0;
        for (Size j = 0; j < cols; ++j) most = std::max(most, std::abs(a[i * cols + j]));
        if (most == 0) return false;
        const int e = scaling.row[static_cast<std::size_t>(i)] = std::ilogb(most) - target;
        for (Size j = 0; j < cols; ++j) a[i * cols + j] = std::ldexp(a[i * cols + j], -e);
    }
    for (Size j = 0; j < cols; ++j) {
        T most = 0;
        for (Size i = 0; i < rows; ++i) most = std::max(most, std::abs(a[i * cols + j]));
        if (most == 0) return false;
        const int e = scaling.col[static_cast<std::size_t>(j)] = std::ilogb(most) - target;
        for (Size i = 0; i < rows; ++i) a[i * cols + j] = std::ldexp(a[i * cols + j], -e);
    }
    return true;
}

// x * 2^e; false if that is not exact.
template <typename T> bool scaleExactly(T &x, int e) {
    const T scaled = std::ldexp(x, e);
    const bool exact = std::isfinite(scaled) && std::ldexp(scaled, -e) == x;
    x = scaled;
    return exact;
}

// Are all elements of the object at most 2^most in magnitude, and zero or at least 2^least?
inline bool inRange(const View &view, int least, int most) {
    const std::uint32_t low = static_cast<std::uint32_t>(127 + least) << 23,
                        high = static_cast<std::uint32_t>(127 + most) << 23;
    std::uint32_t largest = 0, smallest = 0xffffffff; // of magnitudes less 1, so that 0 is the largest of all
    for (Size i = 0; i < view.rows; ++i)
        for (Size j = 0; j < view.cols; ++j) {
            std::uint32_t bits;
            std::memcpy(&bits, view.data + i * view.row + j * view.elem, sizeof bits);
            bits &= 0x7fffffff;
            largest = std::max(largest, bits);
            smallest = std::min(smallest, bits - 1);
        }
    return largest <= high && smallest >= low - 1;
}

// The same of `count` packed elements.
[[gnu::target_clones("avx512f", "avx2", "default")]] inline bool inRange(const float *values, Size count, int least,
                                                                         int most) {
    const std::uint32_t low = static_cast<std::uint32_t>(127 + least) << 23,
                        high = static_cast<std::uint32_t>(127 + most) << 23;
    std::uint32_t outside = 0;
    for (Size i = 0; i < count; ++i) {
        std::uint32_t bits;
        std::memcpy(&bits, values + i, sizeof bits);
        bits &= 0x7fffffff;
        outside |= static_cast<std::uint32_t>(bits > high) | static_cast<std::uint32_t>(bits - 1 < low - 1);
    }
    return outside == 0;
}

// The largest magnitude of packed elements, a NaN before all numbers. Magnitudes have the order of their bits.
[[gnu::target_clones("avx512f", "avx2", "default")]] inline float largest(const float *values, Size count) {
    std::int32_t most = 0;
    for (Size i = 0; i < count; ++i) most = std::max(most, std::bit_cast<std::int32_t>(values[i]) & 0x7fffffff);
    return std::bit_cast<float>(most);
}
[[gnu::target_clones("avx512f", "avx2", "default")]] inline double largest(const double *values, Size count) {
    std::int64_t most = 0;
    for (Size i = 0; i < count; ++i) most = std::max(most, std::bit_cast<std::int64_t>(values[i]) & 0x7fffffffffffffff);
    return std::bit_cast<double>(most);
}

// The same of an object.
template <typename T> T largest(const View &view) {
    T most = 0;
    for (Size i = 0; i < view.rows; ++i)
        for (Size j = 0; j < view.cols; ++j)
            most = std::max(most, std::abs(*reinterpret_cast<const T *>(view.data + i * view.row + j * view.elem)));
    return most;
}

} // namespace vonkk3
