// The plain path of every call: argument checks (pointers, sizes, entries of tables, `count`), then object by object. A
// family states its checks in a line each, and stops at the first that fails:
//
//     if (anyNull(src, pivots, dst)) return vonkErrNullPtr;
//     if (order.isZero()) return vonkErrSize;
//     if (anyTableEntryNull(order * order, src, dst)) return vonkErrNullPtr;
//     return forEachObject(count, work, src, dst);
#pragma once

#include "frame/exports.h"
#include "frame/operands.h"
#include "frame/unroll.h"

#include <utility>

namespace vonkk3 {

template <class T> inline bool isNull(T *pointer) { return pointer == nullptr; }
template <class T> inline bool isNull(const T &operand) { return operand.isNull(); }

template <class... Pointers> inline bool anyNull(const Pointers &...pointers) { return (isNull(pointers) || ...); }

// Scans the tables of the operands together; operands without a table pass.
template <class... Operands> inline bool anyTableEntryNull(std::size_t positions, const Operands &...operands) {
    if constexpr ((Operands::isTable || ...)) {
        for (std::size_t position = 0; position < positions; ++position)
            if ((operands.tableHasNull(position) || ...)) return true;
    }
    return false;
}

// Whether null entries of an array's tables are found later: in the few of a fixed size, when they are looked at for
// overlap. All others are tested before anything else and in order, as a table that is shorter than its size says may
// end at a null entry.
template <class T, class Order>
inline constexpr bool testsTablesLater = std::is_same_v<std::remove_const_t<T>, Real32> &&Order::isFixed;

// Does the work for the objects in ascending order. The list entries of an object are tested when its turn comes, so
// the objects before it are complete; `work` gets the object's number and returns a status, which ends the walk if it
// is a failure. At `count` 0 nothing happens.
template <class Count, class Work, class... Operands>
VONKK3_INLINE VonkStatus forEachObjectFrom(std::size_t first, Count count, Work work, const Operands &...operands) {
    for (std::size_t n = first; n < count; ++n) {
        if ((operands.listHasNull(n) || ...)) [[unlikely]]
            return vonkErrNullPtr;
        if (const VonkStatus status = work(n); status != vonkOk) return status;
    }
    return vonkOk;
}

template <class Count, class Work, class... Operands>
VONKK3_INLINE VonkStatus forEachObject(Count count, Work work, const Operands &...operands) {
    return forEachObjectFrom(0, count, work, operands...);
}

// The work of one object behind the tests of its list entries.
template <class Work, class... Operands>
VONKK3_INLINE auto testingLists(const Work &work, const Operands &...operands) {
    return [&](std::size_t n) VONKK3_INLINED {
        if ((operands.listHasNull(n) || ...)) [[unlikely]]
            return VonkStatus(vonkErrNullPtr);
        return VonkStatus(work(n));
    };
}

// The same for objects that take only a few instructions and cannot fail: the loop is unrolled, or its own counting
// would cost as much as the work.
template <class Work, class... Operands>
VONKK3_INLINE VonkStatus forEachLightObjectFrom(std::size_t first, Objects count, Work work,
                                                const Operands &...operands) {
    const std::size_t objects = count;
    VONKK3_UNROLL_FOURFOLD
    for (std::size_t n = first; n < objects; ++n) {
        if ((operands.listHasNull(n) || ...)) [[unlikely]]
            return vonkErrNullPtr;
        work(n);
    }
    return vonkOk;
}

template <class Work, class... Operands>
VONKK3_INLINE VonkStatus forEachLightObject(OneObject, Work work, const Operands &...) {
    return work(0), vonkOk;
}

template <class Work, class... Operands>
VONKK3_INLINE VonkStatus forEachLightObject(Objects count, Work work, const Operands &...operands) {
    return forEachLightObjectFrom(0, count, work, operands...);
}

// Whether arrays lie equally spaced. One running offset then serves all of them, which leaves a light object's loop
// bound by its loads and stores alone; see Operand::spacedAs.
template <class First, class... Others> inline bool equallySpaced(const First &first, const Others &...others) {
    return ((others.objectSpacing() == first.objectSpacing()) && ...);
}

} // namespace vonkk3
