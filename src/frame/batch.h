// The fast path of families that compute: batches of objects, one to a SIMD lane. A batch gathers its objects, works
// them like one, and stores them if all went well. If not, nothing of it is stored, and its first object goes the plain
// way, alone, which finds out what is wrong and reports it.
#pragma once

#include "frame/aliasing.h"
#include "frame/gather.h"
#include "frame/walk.h"

#include <concepts>

namespace vonkk3 {

// Where batches are tried: arrays of Real32.
template <class Written>
inline constexpr bool worksInBatches = Written::isArray &&std::is_same_v<typename Written::Element, Real32>;

// Where the work of an object is a few instructions, fewer objects than this are not worth the alias test.
inline constexpr std::size_t worthBatches = 3 * packWidth;

// work(fixed<order>) for the orders that batches are made for, also where the order comes at run time.
template <class Order, class Work, class Otherwise>
VONKK3_INLINE VonkStatus withFixedOrder(Order order, const Work &work, const Otherwise &otherwise) {
    if constexpr (Order::isFixed) return work(order);
    else switch (order) {
        case 3: return work(fixed<3>);
        case 4: return work(fixed<4>);
        case 5: return work(fixed<5>);
        case 6: return work(fixed<6>);
        default: return otherwise();
        }
}

// What a family gives: `chains`, how many registers of packs its work takes together; access(), how its arrays are
// reached; and work<access, packs>(n) for so many packs of objects from n on, which returns false, with nothing stored,
// if they must take the plain path.
template <class Batch>
concept BatchKernel = requires(Batch &batch, std::size_t n) {
    { Batch::chains } -> std::convertible_to<std::size_t>;
    { batch.access() } -> std::same_as<Access>;
    batch.template hoist<Access::rows>();
    { batch.template work<Access::rows, 1>(n) } -> std::same_as<bool>;
};

// Objects of a chain: a pack of them, or one, for kernels whose lanes lie within an object.
template <class Batch> inline constexpr std::size_t objectsOfChain = packWidth;
template <class Batch>
requires(Batch::lanesWithinObject) inline constexpr std::size_t objectsOfChain<Batch> = 1;

// Kernels that are never given contiguous rows, contiguous positions, or what goes element by element, say so.
template <class Batch> inline constexpr bool takesRows = true;
template <class Batch>
requires requires { Batch::takesRows; }
inline constexpr bool takesRows<Batch> = Batch::takesRows;
template <class Batch> inline constexpr bool takesPositions = true;
template <class Batch>
requires requires { Batch::takesPositions; }
inline constexpr bool takesPositions<Batch> = Batch::takesPositions;
template <class Batch> inline constexpr bool takesAny = true;
template <class Batch>
requires requires { Batch::takesAny; }
inline constexpr bool takesAny<Batch> = Batch::takesAny;

// Kernels that gain by several registers where elements are contiguous alone say so.
template <class Batch> inline constexpr std::size_t chainsOfAny = Batch::chains;
template <class Batch>
requires requires { Batch::chainsOfAny; }
inline constexpr std::size_t chainsOfAny<Batch> = Batch::chainsOfAny;

// Batches from object n on, as long as they can be had; the first object that they leave.
template <Access access, std::size_t packs, BatchKernel Batch, std::size_t operands>
VONKK3_INLINE std::size_t workWhileAllowed(Batch &batch, const Aliasing<operands> &aliasing, std::size_t n,
                                           std::size_t count) {
    constexpr std::size_t objects = packs * objectsOfChain<Batch>;
    while (count - n >= objects) {
        if (!aliasing.allowsBatch(n, objects) || !batch.template work<access, packs>(n)) break;
        n += objects;
    }
    return n;
}

template <Access access, BatchKernel Batch, std::size_t operands>
VONKK3_NOINLINE std::size_t workBatches(Batch &batch, const Aliasing<operands> &aliasing, std::size_t n,
                                        std::size_t count) {
    batch.template hoist<access>(); // again after every plain object, which may have written there
    constexpr std::size_t toRegister = objectsOfChain<Batch> == 1 ? 1 : packsToRegister;
    constexpr std::size_t chains = access == Access::any ? chainsOfAny<Batch> : Batch::chains;
    if constexpr (chains > 1) n = workWhileAllowed<access, chains * toRegister>(batch, aliasing, n, count);
    if constexpr (toRegister > 1) n = workWhileAllowed<access, toRegister>(batch, aliasing, n, count);
    return workWhileAllowed<access, 1>(batch, aliasing, n, count);
}

template <BatchKernel Batch, std::size_t operands>
VONKK3_INLINE std::size_t workBatches(Access access, Batch &batch, const Aliasing<operands> &aliasing, std::size_t n,
                                      std::size_t count) {
    if constexpr (objectsOfChain<Batch> == 1) return workBatches<Access::any>(batch, aliasing, n, count);
    else {
        constexpr bool takesOthers = takesPositions<Batch> || takesAny<Batch>;
        if constexpr (takesRows<Batch>)
            if (!takesOthers || access == Access::rows) return workBatches<Access::rows>(batch, aliasing, n, count);
        if constexpr (takesPositions<Batch>)
            if (!takesAny<Batch> || access == Access::positions)
                return workBatches<Access::positions>(batch, aliasing, n, count);
        if constexpr (takesAny<Batch>) return workBatches<Access::any>(batch, aliasing, n, count);
    }
}

// The plain path of the objects from `from` on: compiled once, for all orders and for whatever calls it.
template <class One> VONKK3_NOINLINE VonkStatus workPlainly(const One &one, std::size_t from, std::size_t to) {
    for (std::size_t n = from; n < to; ++n)
        if (const VonkStatus status = one(n); status != vonkOk) return status;
    return vonkOk;
}

template <class Count, class One> VONKK3_INLINE VonkStatus forEachPlainly(Count count, const One &one) {
    if constexpr (std::is_same_v<Count, OneObject>) return one(0);
    else return workPlainly(one, 0, count);
}

// `one` is the plain way of one object; it returns a status, which ends the call if it is a failure.
template <BatchKernel Batch, class One, std::size_t operands>
VONKK3_INLINE VonkStatus forEachBatch(Batch &batch, const Aliasing<operands> &aliasing, std::size_t count,
                                      const One &one) {
    const bool mayWork = !aliasing.rulesOutBatches();
    const Access access = batch.access();
    for (std::size_t n = 0; n < count; ++n) {
        if (mayWork && count - n >= objectsOfChain<Batch>) n = workBatches(access, batch, aliasing, n, count);
        if (n == count) break;
        if (const VonkStatus status = workPlainly(one, n, n + 1); status != vonkOk) return status;
    }
    return vonkOk;
}

} // namespace vonkk3
