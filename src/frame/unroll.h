// Loops over dimensions. Over a fixed one they are unrolled whole, whatever their size: then the positions of a small
// matrix are constants, and what belongs to a row stays in registers.
#pragma once

#include "frame/size.h"

// For the pieces of an algorithm, which only inlining turns into straight code for a fixed order.
#define VONKK3_INLINE [[gnu::always_inline]] inline   // before a function
#define VONKK3_INLINED __attribute__((always_inline)) // behind the parameters of a lambda

// For a loop or a rare path that must not cost its neighbours their registers.
#define VONKK3_NOINLINE [[gnu::noinline]]

// For a body that many calls share, whatever constants some of them give it.
#ifdef __clang__
#define VONKK3_SHARED [[gnu::noinline]]
#else
#define VONKK3_SHARED [[gnu::noinline, gnu::noclone]]
#endif

#ifdef __clang__
#define VONKK3_UNROLL_WHOLE _Pragma("unroll")
#define VONKK3_UNROLL_FOURFOLD _Pragma("unroll 4")
#else
#define VONKK3_UNROLL_WHOLE _Pragma("GCC unroll 8")
#define VONKK3_UNROLL_FOURFOLD _Pragma("GCC unroll 4")
#endif

namespace vonkk3 {

// A constant argument that a function is not to be compiled for in a copy of its own; or an address that compilers are
// not to compute beside others in lanes, to take it out of them again.
template <class Word> inline Word opaque(Word value) {
    __asm__("" : "+r"(value));
    return value;
}

// In the body of a loop of a few rounds: without it, a compiler adds more code for lanes than the loop takes time.
inline void keepLoopPlain() { __asm__ volatile(""); }

// Between the stores of one object, which then ascend: a compiler stores first what is ready first, and objects that
// are not in the first-level cache take up to twice as long.
inline void keepStoreOrder() { __asm__ volatile(""); }

// body(i) for i from `from` to `to` - 1, as long as it returns true; whether it always did. Order says whether the
// bounds are known when compiling.
template <class Order, class Body>
VONKK3_INLINE bool everyIndex(std::size_t from, std::size_t to, Order, const Body &body) {
    if constexpr (Order::isFixed) {
        VONKK3_UNROLL_WHOLE
        for (std::size_t i = from; i < to; ++i)
            if (!body(i)) return false;
    } else {
        for (std::size_t i = from; i < to; ++i)
            if (!body(i)) return false;
    }
    return true;
}

// body(i) for all of them.
template <class Order, class Body>
VONKK3_INLINE void forIndices(std::size_t from, std::size_t to, Order order, const Body &body) {
    everyIndex(from, to, order, [&](std::size_t i) VONKK3_INLINED { return body(i), true; });
}

} // namespace vonkk3
