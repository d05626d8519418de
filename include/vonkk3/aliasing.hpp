// VONK_CHECK_ALIASING: whether a destination overlaps a source where the operation does not allow it. Objects are
// compared by their extents, sorted, and element by element where these meet. It allocates and takes its time.
#ifndef VONKK3_ALIASING_HPP
#define VONKK3_ALIASING_HPP

#include "views.hpp"

#include <algorithm>
#include <vector>

namespace vonk::detail {

// The bytes from the first to past the last of one object's elements.
struct Extent {
    std::uintptr_t begin, end;
    Size object;
    bool destination;
};

template <class V> std::uintptr_t address(const V &v, Size n, Size i, Size j) {
    return reinterpret_cast<std::uintptr_t>(v.at(n, i, j));
}

// Of every object that has elements. Null pointers are the library's to find.
template <class V> void collect_extents(std::vector<Extent> &extents, const V &v, bool destination) {
    if (v.data() == nullptr) return;
    for (Size n = 0; n < v.count(); ++n) {
        if constexpr (V::is_list)
            if (v.data()[n] == nullptr) continue;
        Extent extent{~std::uintptr_t(0), 0, n, destination};
        for (Size i = 0; i < v.stored_rows(); ++i)
            for (Size j = 0; j < v.stored_columns(); ++j) {
                if constexpr (V::is_table)
                    if (v.data()[i * v.stored_columns() + j] == nullptr) return;
                const std::uintptr_t at = address(v, n, i, j);
                extent.begin = std::min(extent.begin, at);
                extent.end = std::max(extent.end, at + sizeof(typename V::element));
            }
        if (extent.end != 0) extents.push_back(extent);
    }
}

// In place: the object is the same, and elements that overlap are the same ones.
template <class D, class V> bool objects_clash(const D &d, Size nd, const V &v, Size nv, bool in_place) {
    constexpr std::uintptr_t e = sizeof(typename D::element);
    for (Size i = 0; i < d.stored_rows(); ++i)
        for (Size j = 0; j < d.stored_columns(); ++j)
            for (Size k = 0; k < v.stored_rows(); ++k)
                for (Size l = 0; l < v.stored_columns(); ++l) {
                    const std::uintptr_t to = address(d, nd, i, j), from = address(v, nv, k, l);
                    const bool same = in_place && to == from && i == k && j == l && (nd == nv || d.count() == 1);
                    if (to < from + e && from < to + e && !same) return true;
                }
    return false;
}

template <class D, class V> void check_aliasing(const D &d, const V &v, bool in_place) {
    std::vector<Extent> extents;
    collect_extents(extents, d, true);
    collect_extents(extents, v, false);
    std::sort(extents.begin(), extents.end(), [](const Extent &a, const Extent &b) { return a.begin < b.begin; });
    for (std::size_t a = 0; a < extents.size(); ++a)
        for (std::size_t b = a + 1; b < extents.size() && extents[b].begin < extents[a].end; ++b) {
            if (extents[a].destination == extents[b].destination) continue;
            const Extent &to = extents[a].destination ? extents[a] : extents[b];
            const Extent &from = extents[a].destination ? extents[b] : extents[a];
            if (objects_clash(d, to.object, v, from.object, in_place))
                fail("the destination overlaps a source in a way that the operation does not allow");
        }
}

// Plain memory that is written or read beside an operand.
template <class T, class V> void check_block_aliasing(const T *block, std::size_t length, const V &v) {
    if (block == nullptr || length == 0) return;
    // The bytes count, not their type.
    const auto *words = reinterpret_cast<const float *>(block);
    check_aliasing(Vector<const float>(words, length * sizeof(T) / sizeof(float)), v, false);
}

} // namespace vonk::detail

#endif
