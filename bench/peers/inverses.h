// Determinants and inverses by others, of packed matrices or of a list of them, which `At` tells apart: it gives the
// address of object n.
#pragma once

#include <cstddef>

namespace bench {

// Packed objects.
template <class T, std::size_t order> struct Packed {
    T *first;
    T *operator[](std::size_t n) const { return first + n * order * order; }
};

// One pointer per object.
template <class T> struct Listed {
    T *const *pointers;
    T *operator[](std::size_t n) const { return pointers[n]; }
};

namespace eigen {
template <class T, std::size_t order> struct Inverses {
    static void determinants(Packed<const T, order> a, T *d, std::size_t count);
    static void determinants(Listed<const T> a, T *d, std::size_t count);
    static void inverses(Packed<const T, order> a, Packed<T, order> x, std::size_t count);
    static void inverses(Listed<const T> a, Listed<T> x, std::size_t count);
};
} // namespace eigen

// Orders 3 and 4: minors and their cofactors, written out. W is what they are worked in.
namespace plain {
template <class T, class W, std::size_t order> struct Inverses {
    static void determinants(Packed<const T, order> a, T *d, std::size_t count);
    static void determinants(Listed<const T> a, T *d, std::size_t count);
    static void inverses(Packed<const T, order> a, Packed<T, order> x, std::size_t count);
    static void inverses(Listed<const T> a, Listed<T> x, std::size_t count);
};
} // namespace plain

// Orders 3 and 4. Both store columns one behind the other: determinants are the same, and the inverse of the exchanged
// matrix is the exchanged inverse, in the same memory.
namespace glm {
template <std::size_t order> struct Inverses {
    static void determinants(Packed<const float, order> a, float *d, std::size_t count);
    static void determinants(Listed<const float> a, float *d, std::size_t count);
    static void inverses(Packed<const float, order> a, Packed<float, order> x, std::size_t count);
    static void inverses(Listed<const float> a, Listed<float> x, std::size_t count);
};
} // namespace glm
namespace cglm {
template <std::size_t order> struct Inverses {
    static void determinants(Packed<const float, order> a, float *d, std::size_t count);
    static void determinants(Listed<const float> a, float *d, std::size_t count);
    static void inverses(Packed<const float, order> a, Packed<float, order> x, std::size_t count);
    static void inverses(Listed<const float> a, Listed<float> x, std::size_t count);
};
} // namespace cglm

} // namespace bench
