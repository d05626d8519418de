// Operands as numpy hands them to an inner loop, and how they reach the library, whose strides have 32 bits.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <span>
#include <vector>

namespace vonkk3 {

using Size = std::ptrdiff_t; // numpy's npy_intp

// Element (i, j) of object k lies `k * outer + i * row + j * elem` bytes after `data`. A vector has one row.
struct View {
    char *data = nullptr;
    Size outer = 0, row = 0, elem = 0;
    Size rows = 1, cols = 1;
    Size size = 0; // bytes of an element
    bool written = false;

    char *at(Size object) const { return data + object * outer; }
    View from(Size object) const {
        View view = *this;
        view.data = at(object);
        return view;
    }
    Size elements() const { return rows * cols; }
    bool contiguous() const { return elem == size; }                                  // its rows
    bool packed() const { return elem == size && (row == cols * size || rows == 1); } // the object
};

inline bool narrow(Size stride) {
    return stride >= std::numeric_limits<std::int32_t>::min() && stride <= std::numeric_limits<std::int32_t>::max();
}

inline bool coreNarrow(const View &view) { return narrow(view.row) && narrow(view.elem); }

// Copies one object to a packed block.
template <typename T> void pack(const View &from, T *to) {
    if (from.packed()) return void(std::copy_n(reinterpret_cast<const T *>(from.data), from.elements(), to));
    for (Size i = 0; i < from.rows; ++i)
        for (Size j = 0; j < from.cols; ++j, ++to) std::memcpy(to, from.data + i * from.row + j * from.elem, sizeof(T));
}

// Copies a packed block to one object.
template <typename T> void unpack(const T *from, const View &to) {
    if (to.packed()) return void(std::copy_n(from, to.elements(), reinterpret_cast<T *>(to.data)));
    for (Size i = 0; i < to.rows; ++i)
        for (Size j = 0; j < to.cols; ++j, ++from) std::memcpy(to.data + i * to.row + j * to.elem, from, sizeof(T));
}

template <typename T> void fill(const View &to, T value) {
    for (Size i = 0; i < to.rows; ++i)
        for (Size j = 0; j < to.cols; ++j) std::memcpy(to.data + i * to.row + j * to.elem, &value, sizeof(T));
}

// Calls work(views, first, count) for runs of objects from `first` on whose strides fit 32 bits; work returns a status,
// and one that is not 0 ends it. Objects whose own strides do not fit are worked one by one in packed copies.
template <typename T, std::size_t N, class Work>
std::int32_t inRuns(const std::array<View, N> &views, Size first, Size count, Size most, Work &&work) {
    std::array<View, N> local;
    const bool cores = std::all_of(views.begin(), views.end(), coreNarrow);
    const bool outers = std::all_of(views.begin(), views.end(), [](const View &v) { return narrow(v.outer); });
    std::array<std::vector<T>, N> copies;
    const Size step = cores && outers ? most : 1;
    for (Size k = first; k < first + count; k += step) {
        const Size run = std::min(step, first + count - k);
        for (std::size_t v = 0; v < N; ++v) {
            local[v] = views[v].from(k);
            if (run == 1) local[v].outer = 0;
            if (cores) continue;
            copies[v].resize(static_cast<std::size_t>(views[v].elements()));
            if (!views[v].written) pack(local[v], copies[v].data());
            local[v].data = reinterpret_cast<char *>(copies[v].data());
            local[v].elem = local[v].size;
            local[v].row = local[v].cols * local[v].size;
        }
        if (const std::int32_t status = work(local, k, run)) return status;
        if (cores) continue;
        for (std::size_t v = 0; v < N; ++v)
            if (views[v].written) unpack(copies[v].data(), views[v].from(k));
    }
    return 0;
}

// Calls attempt(first, count), which ends at the first object that fails and leaves those before it complete, until
// each object has succeeded or failed(object, status) has been called for it. Objects are tried again: what attempt
// reads must not be what it writes.
template <class Attempt, class Failed> void eachObject(Size first, Size count, Attempt &attempt, Failed &failed) {
    const std::int32_t status = attempt(first, count);
    if (status == 0) return;
    if (count == 1) return failed(first, status);
    const Size half = count / 2;
    eachObject(first, half, attempt, failed);
    eachObject(first + half, count - half, attempt, failed);
}

// Room for `count` elements: on the stack if it is little.
template <typename T, std::size_t Little = 2304> class Room {
public:
    explicit Room(Size count) {
        if (count > static_cast<Size>(Little)) large.resize(static_cast<std::size_t>(count));
    }
    T *data() { return large.empty() ? little : large.data(); }

private:
    alignas(64) T little[Little];
    std::vector<T> large;
};

} // namespace vonkk3
