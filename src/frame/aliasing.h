// The alias test: whether objects may be worked together, all of a batch read before any of it is written. It is asked
// of the bytes that operands cover, so it answers for any layout, and for strides of any sign and size.
//
// One object after the other, an object sees what was written for those before it. A batch gives the same results if,
// for any two of its objects, nothing that is written for one is read or written for the other, and if each object
// is written clear of its own sources or, where the family's arithmetic allows it, exactly in place.
#pragma once

#include "frame/objects_view.h"

#include <emmintrin.h>
#include <utility>

#ifdef __AVX2__
#include <immintrin.h>
#endif

namespace vonkk3 {

// Addresses and distances have 64 bits in the test, in 32-bit processes too: memory is found at both ends of a small
// address space there, operands are spread over most of it, and no difference of two addresses may overflow.
using Address = std::uint64_t;
using Distance = std::int64_t;
inline constexpr bool isAddressSpaceSmall = sizeof(void *) < sizeof(Address);

inline Distance distanceOf(std::size_t number, std::ptrdiff_t stride) {
    return Distance(Address(number) * Address(Distance(stride)));
}

// From the first byte to past the last. In a small address space the first wraps round as addresses do, and the end is
// beyond the space if any other byte does.
struct Extent {
    Address begin, end;

    Address bytes() const { return end - begin; }
    Extent movedBy(Address distance) const { return wrapped(begin + distance, end + distance); }

    // With further copies of it, the last one so many bytes away.
    Extent extendedBy(Distance distance) const {
        return distance < 0 ? wrapped(begin + Address(distance), end) : Extent{begin, end + Address(distance)};
    }
    Extent joinedWith(const Extent &other) const {
        return {begin < other.begin ? begin : other.begin, end > other.end ? end : other.end};
    }
    bool wrapsRound() const {
        if constexpr (isAddressSpaceSmall) return end > endOfSpace;
        else return end < begin; // no memory lies there
    }
    bool isEmpty() const { return begin >= end || (isAddressSpaceSmall && wrapsRound()); }

    static constexpr Address endOfSpace = Address(1) << 32; // of a small one

private:
    static Extent wrapped(Address begin, Address end) {
        if constexpr (isAddressSpaceSmall) {
            const Address first = std::uintptr_t(begin);
            return {first, first + (end - begin)};
        } else return {begin, end};
    }
};

inline Extent extentOf(const std::byte *block, Address bytes) {
    const Address begin = reinterpret_cast<std::uintptr_t>(block);
    return {begin, begin + bytes};
}
template <class T> inline Extent extentOf(const T *block, std::size_t length) {
    return extentOf(reinterpret_cast<const std::byte *>(block), Address(length) * sizeof(T));
}
template <class T> VONKK3_INLINE Extent extentOf(const RowsView<T> &view, std::size_t rows, std::size_t columns) {
    return extentOf(view.base, Address(columns) * sizeof(T)).extendedBy(distanceOf(rows - 1, view.rowStride));
}
template <class T> VONKK3_INLINE Extent extentOf(const StridedView<T> &view, std::size_t rows, std::size_t columns) {
    return extentOf(view.base, sizeof(T))
        .extendedBy(distanceOf(rows - 1, view.rowStride))
        .extendedBy(distanceOf(columns - 1, view.elementStride));
}

// Of all objects of an operand with contiguous rows.
template <class Operand>
VONKK3_INLINE Extent extentOfAll(const Operand &operand, std::size_t rows, std::size_t columns, std::size_t count) {
    const Extent first = extentOf(operand.view(0), rows, columns);
    return Operand::isArray ? first.extendedBy(distanceOf(count - 1, operand.objectSpacing())) : first;
}

// Whether the rows of a matrix are disjoint.
template <class T> inline bool areRowsDisjoint(const RowsView<T> &view, std::size_t columns) {
    const auto rowBytes = Distance(Address(columns) * sizeof(T));
    return view.rowStride >= rowBytes || view.rowStride <= -rowBytes;
}

// Those that wrap round in a small address space are never seen to be.
VONKK3_INLINE bool disjoint(const Extent &a, const Extent &b) {
    if (isAddressSpaceSmall && (a.wrapsRound() || b.wrapsRound())) return false;
    return a.end <= b.begin || b.end <= a.begin;
}

template <class... Extents> VONKK3_INLINE bool disjointFromAll(const Extent &written, const Extents &...read) {
    return (disjoint(written, read) && ...);
}

template <class T> inline StridedView<T> strided(const RowsView<T> &view) {
    return {view.base, view.rowStride, sizeof(T)};
}
template <class T> inline const StridedView<T> &strided(const StridedView<T> &view) { return view; }

// Whether all of a source may be read before any of the destination is stored.
template <class Source, class Factors>
VONKK3_INLINE bool mayReadFirst(const Source &source, const Factors &factors, std::size_t order) {
    if (source.base == factors.base && source.rowStride == factors.rowStride &&
        strided(source).elementStride == strided(factors).elementStride)
        return true;
    return disjoint(extentOf(source, order, order), extentOf(factors, order, order));
}

inline Address magnitudeOf(Distance stride) { return stride < 0 ? -Address(stride) : Address(stride); }

// An operand in the test.
struct AliasOperand {
    enum class Use : std::uint8_t {
        read,        // nothing that is written may overlap it
        readInPlace, // but results may coincide with it, object for object and element for element
        written
    };

    const ObjectsView &view;
    Use use;
    Extent object; // of object 0; in a list, of an object at address 0
    Extent whole;  // of all objects; in a list, where it ascends

    VONKK3_INLINE AliasOperand(const ObjectsView &view, Use use) : view(view), use(use) {}
    VONKK3_INLINE AliasOperand(const AliasOperand &other)
        : view(other.view), use(other.use) {} // before extents are found

    void findExtents() {
        object = view.isTable() ? extentOfPositions() : extentOfStrides();
        whole = ofAllObjects(object);
    }
    bool isWritten() const { return use == Use::written; }

    // Some families test every object for address 0, where no memory lies.
    bool mayBeginAtNull() const { return whole.begin == 0 || whole.wrapsRound(); }
    Extent ofAllObjects(const Extent &part) const {
        return part.extendedBy(distanceOf(view.count - 1, view.objectStride));
    }
    Extent ofObject(std::size_t n) const {
        return object.movedBy(view.isList() ? view.object(n) : std::uintptr_t(strides(n, view.objectStride)));
    }

    // An object is made of parts that may interleave with those of other operands: the positions of a table, else its
    // rows, or its columns if these lie farther apart.
    std::size_t parts() const {
        if (view.isTable()) return std::size_t(view.rows) * view.columns;
        return isRowMajor() ? view.rows : view.columns;
    }
    Extent part(std::size_t k) const {
        if (view.isTable()) {
            const Address address = view.position(k / view.columns, k % view.columns);
            return {address, address + view.elementBytes};
        }
        const Extent element{view.begin, Address(view.begin) + view.elementBytes};
        return isRowMajor() ? element.extendedBy(distanceOf(view.columns - 1, view.elementStride))
                                  .movedBy(offset(k, view.rowStride))
                            : element.extendedBy(distanceOf(view.rows - 1, view.rowStride))
                                  .movedBy(offset(k, view.elementStride));
    }

    // The list or table itself.
    bool hasEntries() const { return view.indirection != ObjectsView::Indirection::none; }
    Extent entries() const {
        const Extent first{view.begin, Address(view.begin) + sizeof(void *)};
        if (view.isList()) return first.extendedBy(distanceOf(view.count - 1, sizeof(void *)));
        return first.extendedBy(distanceOf(view.rows - 1, view.rowStride))
            .extendedBy(distanceOf(view.columns - 1, view.elementStride));
    }

private:
    bool isRowMajor() const { return magnitudeOf(view.rowStride) >= magnitudeOf(view.elementStride); }
    static Address offset(std::size_t k, std::ptrdiff_t stride) { return Address(distanceOf(k, stride)); }

    Extent extentOfStrides() const {
        const Address first = view.isList() ? 0 : view.begin;
        return Extent{first, first + view.elementBytes}
            .extendedBy(distanceOf(view.rows - 1, view.rowStride))
            .extendedBy(distanceOf(view.columns - 1, view.elementStride));
    }
    VONKK3_NOINLINE Extent extentOfPositions() const {
        Extent all = part(0);
        for (std::size_t i = 0; i < view.rows; ++i)
            for (std::size_t j = 0; j < view.columns; ++j) {
                const Address address = view.position(i, j);
                all.begin = address < all.begin ? address : all.begin;
                all.end = address + view.elementBytes > all.end ? address + view.elementBytes : all.end;
            }
        return all;
    }
};

// The views must live as long as the test.
VONKK3_INLINE AliasOperand reads(const ObjectsView &view) { return {view, AliasOperand::Use::read}; }
VONKK3_INLINE AliasOperand readsInPlace(const ObjectsView &view) { return {view, AliasOperand::Use::readInPlace}; }
VONKK3_INLINE AliasOperand writes(const ObjectsView &view) { return {view, AliasOperand::Use::written}; }

// ---- Operands whose extents are known for the whole call ------------------------------------------------------------

namespace aliasing {

inline bool haveSameStrides(const ObjectsView &a, const ObjectsView &b) {
    return a.rowStride == b.rowStride && a.elementStride == b.elementStride && a.rows == b.rows &&
           a.columns == b.columns;
}

// Every element of a where that of b is. Transposed operands do not coincide, whatever their order.
inline bool coincide(const ObjectsView &a, const ObjectsView &b) {
    if (!haveSameStrides(a, b) || a.objectStride != b.objectStride) return false;
    if (!a.isTable()) return a.begin == b.begin && a.shift == b.shift && a.isList() == b.isList();
    for (std::size_t i = 0; i < a.rows; ++i)
        for (std::size_t j = 0; j < a.columns; ++j)
            if (a.position(i, j) != b.position(i, j)) return false;
    return true;
}

// Equally spaced objects that fit, both together, between two places of the spacing: those of different number are
// disjoint then.
inline bool interleave(const AliasOperand &a, const AliasOperand &b) {
    return a.view.objectStride == b.view.objectStride && a.view.isArray && b.view.isArray &&
           a.object.joinedWith(b.object).bytes() <= magnitudeOf(a.view.objectStride);
}

// Comparing parts with parts pays for itself only over so many objects.
inline bool isWorthComparing(std::size_t pairs, std::size_t objects) { return pairs <= 16 * objects; }

inline bool arePartsDisjoint(const AliasOperand &a, const AliasOperand &b, const Extent &p, const Extent &q,
                             bool interleaved) {
    return disjoint(a.ofAllObjects(p), b.ofAllObjects(q)) || (interleaved && disjoint(p, q));
}

inline bool areDisjointByParts(const AliasOperand &a, const AliasOperand &b) {
    const bool interleaved = interleave(a, b);
    if (interleaved && disjoint(a.object, b.object)) return true;
    const std::size_t parts = a.parts(), others = b.parts();
    if (!isWorthComparing(parts * others, a.view.count)) return false;
    for (std::size_t k = 0; k < parts; ++k)
        for (std::size_t l = 0; l < others; ++l)
            if (!arePartsDisjoint(a, b, a.part(k), b.part(l), interleaved)) return false;
    return true;
}

inline bool areIndependent(const AliasOperand &written, const AliasOperand &other) {
    if (disjoint(written.whole, other.whole)) return true;
    if (other.use == AliasOperand::Use::readInPlace && coincide(written.view, other.view)) return true;
    if (written.view.isList() || other.view.isList()) return false; // left to a look at each batch
    return areDisjointByParts(written, other);
}

// Whether elements ascend within rows, rows within objects, and objects; of a list, within objects. And the bytes of an
// object.
VONKK3_INLINE bool areStridesAscending(const ObjectsView &view, Distance &ofObject) {
    const Distance ofRow = distanceOf(view.columns - 1, view.elementStride) + Distance(view.elementBytes);
    ofObject = distanceOf(view.rows - 1, view.rowStride) + ofRow;
    return (view.columns <= 1 || view.elementStride >= std::ptrdiff_t(view.elementBytes)) &&
           (view.rows <= 1 || view.rowStride >= ofRow) &&
           (!view.isArray || view.isList() || view.objectStride >= ofObject);
}

// Whether no two elements overlap, of one object or of two: strides, from the smallest, each step over all before it.
inline bool areStridesDisjoint(const ObjectsView &view) {
    if (Distance ofObject; areStridesAscending(view, ofObject)) return true;
    Address stride[] = {magnitudeOf(view.elementStride), magnitudeOf(view.rowStride), magnitudeOf(view.objectStride)};
    std::size_t number[] = {view.columns, view.rows, view.isList() ? 1 : view.count};
    Address covered = view.elementBytes;
    for (std::size_t first = 0; first < 3; ++first) {
        for (std::size_t k = 2; k > first; --k)
            if (stride[k] < stride[k - 1]) std::swap(stride[k], stride[k - 1]), std::swap(number[k], number[k - 1]);
        if (number[first] <= 1) continue;
        if (stride[first] < covered) return false;
        covered += stride[first] * (number[first] - 1);
    }
    return true;
}

inline bool arePositionsDisjoint(const AliasOperand &a) {
    if (a.view.count > 1 && magnitudeOf(a.view.objectStride) < a.view.elementBytes) return false;
    const std::size_t parts = a.parts();
    bool ascend = true;
    Extent before = a.ofAllObjects(a.part(0));
    for (std::size_t k = 1; k < parts; ++k) {
        const Extent next = a.ofAllObjects(a.part(k));
        ascend &= before.end <= next.begin;
        before = next;
    }
    if (ascend) return true;
    const bool interleaved = a.object.bytes() <= magnitudeOf(a.view.objectStride);
    for (std::size_t k = 1; k < parts; ++k)
        for (std::size_t l = 0; l < k; ++l)
            if (!arePartsDisjoint(a, a, a.part(k), a.part(l), interleaved)) return false;
    return true;
}

inline bool isWrittenOnce(const AliasOperand &written) {
    return written.view.isTable() ? arePositionsDisjoint(written) : areStridesDisjoint(written.view);
}

// ---- Lists: by batches ----------------------------------------------------------------------------------------------

inline Extent ofObjects(const AliasOperand &operand, std::size_t n, std::size_t objects) {
    Extent all = operand.ofObject(n);
    for (std::size_t k = 1; k < objects; ++k) all = all.joinedWith(operand.ofObject(n + k));
    return all;
}

inline bool areIndependentOneByOne(const AliasOperand &written, const AliasOperand &other, std::size_t n,
                                   std::size_t objects) {
    const bool mayCoincide = other.use == AliasOperand::Use::readInPlace && haveSameStrides(written.view, other.view);
    for (std::size_t a = 0; a < objects; ++a)
        for (std::size_t b = 0; b < objects; ++b) {
            const bool isSame = mayCoincide && a == b && written.view.object(n + a) == other.view.object(n + b);
            if (!isSame && !disjoint(written.ofObject(n + a), other.ofObject(n + b))) return false;
        }
    return true;
}

inline bool areObjectsDisjoint(const AliasOperand &written, std::size_t n, std::size_t objects) {
    bool ascend = true;
    for (std::size_t k = 1; k < objects; ++k)
        ascend &= written.ofObject(n + k - 1).end <= written.ofObject(n + k).begin;
    if (ascend) return true;
    for (std::size_t a = 1; a < objects; ++a)
        for (std::size_t b = 0; b < a; ++b)
            if (!disjoint(written.ofObject(n + a), written.ofObject(n + b))) return false;
    return true;
}

// Addresses, as many as a register takes.
template <std::size_t lanes> using Addresses [[gnu::vector_size(lanes * sizeof(std::uint64_t))]] = std::uint64_t;
inline bool isAnyNegative(Addresses<2> lanes) { return _mm_movemask_pd(__m128d(lanes)) != 0; }
#ifdef __AVX2__
inline bool isAnyNegative(Addresses<4> lanes) { return _mm256_movemask_pd(__m256d(lanes)) != 0; }
inline constexpr std::size_t widestAddresses = 4;
#else
inline constexpr std::size_t widestAddresses = 2;
#endif

// ---- Lists that ascend are as good as arrays ------------------------------------------------------------------------

struct AscendingLists {
    std::size_t length; // objects until one of the lists has a null entry
    bool ascend;        // and the objects of written lists are disjoint
};

// Blocks of objects from the second one on: none of their entries is null or leads less than the least step beyond the
// one before it. The first object behind them. All lists are scanned in one loop, as the end of each is mispredicted.
template <std::size_t lists>
VONKK3_INLINE std::size_t scanBlocks(const std::uintptr_t (&entries)[lists], const Address (&leastStep)[lists],
                                     std::size_t count) {
    using Lanes = Addresses<widestAddresses>;
    constexpr std::size_t block = 4;
    std::size_t n = 1;
    for (; n + block <= count; n += block) {
        const auto load = [&]<class Entries>(std::size_t l, std::size_t k) VONKK3_INLINED {
            return loadAt<Entries>(reinterpret_cast<const std::byte *>(entries[l]) + k * sizeof(Address));
        };
        for (std::size_t k = n; k < n + block; ++k)
            for (std::size_t l = 0; l < lists; ++l)
                if (load.template operator()<Address>(l, k) == 0) return n;
        Lanes negative = {};
        for (std::size_t l = 0; l < lists; ++l)
            for (std::size_t k = n; k < n + block; k += widestAddresses)
                negative |=
                    load.template operator()<Lanes>(l, k) - load.template operator()<Lanes>(l, k - 1) - leastStep[l];
        if (isAnyNegative(negative)) break;
    }
    return n;
}

// Entries are looked at object by object, none after the first that is null. A shift moves all objects of a list alike,
// so entries are compared in place of objects; the objects ascend with them unless they wrap round at address 0. An
// object at address 0 is as good as a null entry to some families; in a large address space its entry is a step too
// far.
template <std::size_t lists> VONKK3_NOINLINE AscendingLists scanLists(AliasOperand *const *operands) {
    constexpr Address farthest = Address(1) << 62; // a step down is farther
    std::uintptr_t entries[lists];
    Address before[lists], leastStep[lists];
    bool mayScanBlocks = !isAddressSpaceSmall;
    for (std::size_t l = 0; l < lists; ++l) {
        const AliasOperand &operand = *operands[l];
        mayScanBlocks = mayScanBlocks && operand.view.shift == 0; // the entry of an object at address 0 is null then
        entries[l] = operand.view.begin;
        leastStep[l] = operand.isWritten() ? operand.object.bytes() : 0;
        before[l] = operand.view.listEntry(0);
        if (before[l] == 0 || operand.view.object(0) == 0) return {0, true};
    }
    const std::size_t count = operands[0]->view.count;
    std::size_t n = 1;
    if (mayScanBlocks) n = scanBlocks(entries, leastStep, count);
    for (std::size_t l = 0; l < lists; ++l) before[l] = ObjectsView::pointerAt(entries[l] + (n - 1) * sizeof(void *));
    for (; n < count; ++n) {
        VONKK3_UNROLL_WHOLE
        for (std::size_t l = 0; l < lists; ++l) {
            const Address entry = ObjectsView::pointerAt(entries[l] + n * sizeof(void *));
            if (entry == 0) return {n, true};
            if (isAddressSpaceSmall && operands[l]->view.object(n) == 0) return {n, false};
            if (entry - before[l] - leastStep[l] > farthest) return {n, false};
            before[l] = entry;
        }
    }
    for (std::size_t l = 0; l < lists; ++l)
        if (operands[l]->view.object(count - 1) < operands[l]->view.object(0)) return {0, false};
    return {count, true};
}

inline AscendingLists scanLists(AliasOperand *operands, std::size_t number) {
    AliasOperand *lists[4] = {};
    std::size_t found = 0;
    for (std::size_t k = 0; k < number; ++k)
        if (operands[k].view.isList()) lists[found++] = &operands[k];
    AscendingLists scanned = found == 1   ? scanLists<1>(lists)
                             : found == 2 ? scanLists<2>(lists)
                             : found == 3 ? scanLists<3>(lists)
                                          : scanLists<4>(lists);
    for (std::size_t l = 0; l < found && scanned.length != 0; ++l) {
        AliasOperand &operand = *lists[l];
        operand.whole = operand.ofObject(0).joinedWith(operand.ofObject(scanned.length - 1));
        if (isAddressSpaceSmall && operand.whole.wrapsRound()) scanned.ascend = false;
    }
    return scanned;
}

// ---- All operands ---------------------------------------------------------------------------------------------------

// For how many objects batches are allowed without another look, and whether others may ask batch by batch.
struct Answer {
    std::size_t allowed;
    bool asksByBatch;
};

inline bool areAllIndependent(const AliasOperand *operands, std::size_t number) {
    for (std::size_t w = 0; w < number; ++w) {
        const AliasOperand &written = operands[w];
        if (!written.isWritten()) continue;
        for (std::size_t k = 0; k < number; ++k) {
            const AliasOperand &other = operands[k];
            if (other.hasEntries() && !disjoint(written.whole, other.entries())) return false;
            if (k != w && !areIndependent(written, other)) return false;
        }
    }
    return true;
}

// The entries that are read for an object: `positions` of them, so many bytes apart.
template <class Positions> struct EntriesRead {
    std::uintptr_t begin;
    Positions positions;
    std::size_t step;
    bool areEquallySpaced = true; // without it, nothing of the rest counts
};

// Of few positions the compiler knows the number, and the test has a body of its own for it.
template <class Rows, class Columns> constexpr auto positionsOf(Rows rows, Columns columns) {
    if constexpr (requires { fixed<Rows::value * Columns::value>; })
        if constexpr (Rows::isFixed && Columns::isFixed && Rows::value * Columns::value <= 6)
            return fixed<Rows::value * Columns::value>;
        else return std::size_t(rows) * columns;
    else return std::size_t(rows) * columns;
}

// Whether each of more entries than there are lanes leads so many bytes, or more, beyond the one before it: neither the
// distance is negative then, nor distance - least, nor the entry, so that sums of distances do not wrap round.
template <std::size_t lanes>
VONKK3_INLINE bool doStepsReach(const std::byte *entries, std::size_t positions, std::uint64_t least) {
    const auto load = [&](std::size_t k) VONKK3_INLINED { // entries k to k + lanes - 1
        return loadAt<Addresses<lanes>>(entries + k * sizeof(std::uint64_t));
    };
    Addresses<lanes> negative = {};
    const auto compare = [&](std::size_t k) VONKK3_INLINED {
        const Addresses<lanes> distances = load(k) - load(k - 1);
        negative |= load(k) | distances | (distances - least);
    };
    for (std::size_t k = 1; k + lanes < positions; k += lanes) compare(k);
    compare(positions - lanes);
    return !isAnyNegative(negative);
}

// The same of entries that are few or have others between them.
template <class Positions> VONKK3_INLINE bool doStepsReachOneByOne(const EntriesRead<Positions> &read, Distance least) {
    Address before = ObjectsView::pointerAt(read.begin), negative = 0;
    for (std::size_t k = 1; k < read.positions; ++k) {
        const Address next = ObjectsView::pointerAt(read.begin + k * read.step);
        const Address distance = next - before;
        negative |= next | distance | (distance - Address(least));
        before = next;
    }
    return Distance(negative) >= 0;
}
VONKK3_NOINLINE inline bool doManyStepsReach(EntriesRead<std::size_t> read, Distance least) {
    return doStepsReachOneByOne(read, least);
}

template <class Positions> VONKK3_INLINE bool doStepsReach(const EntriesRead<Positions> &read, Distance least) {
    const std::size_t positions = read.positions;
    if (sizeof(void *) == sizeof(std::uint64_t) && read.step == sizeof(void *)) {
        const auto *const entries = reinterpret_cast<const std::byte *>(read.begin);
#ifdef __AVX2__
        if (positions > 4) return doStepsReach<4>(entries, positions, std::uint64_t(least));
#endif
        if (positions > 2) return doStepsReach<2>(entries, positions, std::uint64_t(least));
    }
    if constexpr (requires { Positions::isFixed; }) return doStepsReachOneByOne(read, least);
    else return doManyStepsReach(read, least);
}

// Where `count` objects lie, `objectStride` bytes apart at each position, if positions ascend, and each position's
// objects lie before the next one's, or each object before the next one; else nothing. No entry is null then.
template <class Positions>
VONKK3_INLINE Extent extentOfAscending(const EntriesRead<Positions> &read, std::ptrdiff_t shift,
                                       std::ptrdiff_t objectStride, std::size_t count, std::uint32_t elementBytes) {
    const auto ofElement = Distance(elementBytes), ofPosition = distanceOf(count - 1, objectStride) + ofElement;
    const Address first = ObjectsView::pointerAt(read.begin);
    const Address last = ObjectsView::pointerAt(read.begin + (read.positions - 1) * read.step);
    const bool isObjectBeforeNext = Distance(last - first) + ofElement <= objectStride;
    if ((count > 1 && objectStride < ofElement) || Distance(first) <= 0 ||
        !doStepsReach(read, isObjectBeforeNext ? ofElement : ofPosition))
        return {1, 0};
    return Extent{first, last + Address(ofPosition)}.movedBy(std::uintptr_t(shift));
}

// The same of a view; nothing also where its entries are not equally spaced.
VONKK3_NOINLINE inline Extent extentOfAscending(const ObjectsView &table) {
    const bool isTransposed = table.rowStride < table.elementStride && table.rows > 1;
    const std::ptrdiff_t inner = isTransposed || table.columns == 1 ? table.rowStride : table.elementStride;
    const std::ptrdiff_t outer = isTransposed ? table.elementStride : table.rowStride;
    const std::size_t length = isTransposed ? table.rows : table.columns;
    if (length != 1 && table.rows != 1 && table.columns != 1 && outer != strides(length, inner)) return {1, 0};
    const EntriesRead<std::size_t> read{table.begin, std::size_t(table.rows) * table.columns, std::size_t(inner)};
    return extentOfAscending(read, table.shift, table.objectStride, table.count, table.elementBytes);
}

// The usual case at a glance: arrays in ascending order, rows within objects and elements within rows; and tables, see
// above. Whether it is one, and where it lies.
VONKK3_INLINE bool isAscending(const ObjectsView &view, Extent &whole) {
    if (view.isTable()) return whole = extentOfAscending(view), !whole.isEmpty();
    Distance ofObject;
    if (view.isList() || !areStridesAscending(view, ofObject)) return false;
    whole = {view.begin, view.begin + Address(distanceOf(view.count - 1, view.objectStride) + ofObject)};
    return !whole.isEmpty();
}

// The same words, and so the same elements.
VONKK3_INLINE bool areSame(const ObjectsView &a, const ObjectsView &b) {
    return a.begin == b.begin && a.shift == b.shift && a.objectStride == b.objectStride && haveSameStrides(a, b) &&
           a.indirection == b.indirection;
}

VONKK3_INLINE bool isClearOf(const AliasOperand &written, const Extent &whole, const AliasOperand &other,
                             const Extent &ofOther) {
    if (other.hasEntries() && !disjoint(whole, other.entries())) return false;
    return disjoint(whole, ofOther) ||
           (other.use == AliasOperand::Use::readInPlace && areSame(written.view, other.view));
}

// Whether each written operand is, given where all of them lie.
template <class Number, class WholeOf>
VONKK3_INLINE bool areClear(const AliasOperand *operands, Number number, const WholeOf &wholeOf) {
    bool clear = true;
    forIndices(0, number, number, [&](std::size_t w) VONKK3_INLINED {
        if (!operands[w].isWritten()) return;
        forIndices(0, number, number, [&](std::size_t k) VONKK3_INLINED {
            const bool isClear = k == w ? !operands[w].hasEntries() || disjoint(wholeOf(w), operands[w].entries())
                                        : isClearOf(operands[w], wholeOf(w), operands[k], wholeOf(k));
            clear = clear && isClear;
        });
    });
    return clear;
}

template <std::size_t number> VONKK3_INLINE bool isPlainlyIndependent(const AliasOperand (&operands)[number]) {
    Extent whole[number];
    VONKK3_UNROLL_WHOLE
    for (std::size_t k = 0; k < number; ++k)
        if (!isAscending(operands[k].view, whole[k])) return false;
    return areClear(operands, fixed<number>, [&](std::size_t k) VONKK3_INLINED -> const Extent & { return whole[k]; });
}

// The same where there are lists, if they ascend: of so many objects, or none.
inline std::size_t plainlyIndependentThroughLists(AliasOperand *operands, std::size_t number) {
    for (std::size_t k = 0; k < number; ++k) {
        AliasOperand &operand = operands[k];
        Distance ofObject;
        if (!operand.view.isList()) {
            if (!isAscending(operand.view, operand.whole)) return 0;
        } else if (areStridesAscending(operand.view, ofObject)) operand.object = {0, Address(ofObject)};
        else return 0;
    }
    const AscendingLists lists = scanLists(operands, number);
    const auto wholeOf = [&](std::size_t k) VONKK3_INLINED -> const Extent & { return operands[k].whole; };
    return lists.ascend && lists.length != 0 && areClear(operands, atRunTime(number), wholeOf) ? lists.length : 0;
}

VONKK3_NOINLINE inline Answer askOnce(AliasOperand *operands, std::size_t number, std::size_t count) {
    constexpr Answer no = {0, false};
    bool anyList = false;
    for (std::size_t k = 0; k < number; ++k) anyList |= operands[k].view.isList();
    if (anyList)
        if (const std::size_t plain = plainlyIndependentThroughLists(operands, number); plain != 0)
            return {plain, false};
    for (std::size_t k = 0; k < number; ++k) {
        operands[k].findExtents();
        if (!operands[k].view.isList() && operands[k].mayBeginAtNull()) return no;
    }
    for (std::size_t w = 0; w < number; ++w)
        if (operands[w].isWritten() && !isWrittenOnce(operands[w])) return no;
    const AscendingLists lists = anyList ? scanLists(operands, number) : AscendingLists{count, true};
    if (lists.ascend && lists.length != 0 && areAllIndependent(operands, number)) return {lists.length, false};
    return {0, anyList};
}

// Of the objects from n on.
VONKK3_NOINLINE inline bool askForBatch(const AliasOperand *operands, std::size_t number, std::size_t n,
                                        std::size_t objects) {
    for (std::size_t k = n; k < n + objects; ++k)
        for (std::size_t l = 0; l < number; ++l) {
            const ObjectsView &view = operands[l].view;
            if (view.isList() && (view.listEntry(k) == 0 || view.object(k) == 0)) return false;
        }
    for (std::size_t w = 0; w < number; ++w) {
        const AliasOperand &written = operands[w];
        if (!written.isWritten()) continue;
        if (written.view.isList() && !areObjectsDisjoint(written, n, objects)) return false;
        const Extent ofWritten = ofObjects(written, n, objects);
        for (std::size_t k = 0; k < number; ++k) {
            const AliasOperand &other = operands[k];
            if (other.hasEntries() && !disjoint(ofWritten, other.entries())) return false;
            if (k != w && !disjoint(ofWritten, ofObjects(other, n, objects)) &&
                !areIndependentOneByOne(written, other, n, objects))
                return false;
        }
    }
    return true;
}

// ---- Tables, from the words of a call -------------------------------------------------------------------------------

// Of `rows` by `columns`, transposed or not.
template <class Words, class Rows, class Columns>
VONKK3_INLINE auto entriesRead(const Words &table, Rows rows, Columns columns) {
    const std::size_t entriesToRow = std::uint32_t(table.elementStride);
    const bool isTransposed = areOfTable<Words> ? areOfTransposedTable<Words> : table.isTransposed;
    const std::size_t length = isTransposed ? rows : columns, number = isTransposed ? columns : rows;
    const auto positions = positionsOf(rows, columns);
    return EntriesRead<std::remove_const_t<decltype(positions)>>{
        table.begin, positions, (length == 1 ? entriesToRow : 1) * sizeof(void *),
        length == 1 || number == 1 || entriesToRow == length}; // rows of the table as it lies
}

template <class Positions> VONKK3_INLINE Extent extentOfEntries(const EntriesRead<Positions> &read) {
    return {read.begin, read.begin + Address(read.positions) * read.step};
}

// Few positions are looked at in line.
VONKK3_NOINLINE inline Extent extentOfMany(const EntriesRead<std::size_t> &read, std::ptrdiff_t shift,
                                           std::ptrdiff_t objectStride, std::size_t count) {
    return extentOfAscending(read, shift, objectStride, count, sizeof(Real32));
}
template <class Positions>
VONKK3_INLINE Extent extentOfAscending(const OperandWords &table, const EntriesRead<Positions> &read,
                                       std::size_t count) {
    const std::size_t objects = table.isArray ? count : 1;
    if constexpr (requires { Positions::isFixed; })
        return extentOfAscending(read, table.rowStride, table.step, objects, sizeof(Real32));
    else return extentOfMany(read, table.rowStride, table.step, objects);
}

} // namespace aliasing

// Whether the objects of an array lie packed behind each position.
inline bool arePacked(const OperandWords &table) {
    return !table.isArray || table.step == std::int32_t(sizeof(Real32));
}

// The usual case: positions ascend, and what is written is disjoint from all else. Where it is not told by these two,
// Aliasing tells. First where the positions of the result lie; nothing, if it is not that.
template <class Words, class Rows, class Columns>
VONKK3_INLINE Extent plainlyWritten(const Words &d, Rows rows, Columns columns, std::size_t count) {
    const auto read = aliasing::entriesRead(d, rows, columns);
    if (!read.areEquallySpaced) return {1, 0};
    const Extent written = aliasing::extentOfAscending(d, read, count);
    return disjoint(written, aliasing::extentOfEntries(read)) ? written : Extent{1, 0};
}

// Then whether a source is disjoint from that.
template <class Words, class Rows, class Columns>
VONKK3_INLINE bool isPlainlyDisjoint(const Extent &written, const Words &source, Rows rows, Columns columns,
                                     std::size_t count) {
    const auto read = aliasing::entriesRead(source, rows, columns);
    if (written.isEmpty() || !read.areEquallySpaced || !disjoint(written, aliasing::extentOfEntries(read)))
        return false;
    const Extent ofSource = aliasing::extentOfAscending(source, read, count);
    return !ofSource.isEmpty() && disjoint(written, ofSource);
}

// Or the same entries. Elements of an object keep their order, so it does not matter which are transposed.
template <class Written, class Source, class Rows, class Columns>
VONKK3_INLINE bool isInPlace(const Written &d, const Source &source, Rows rows, Columns columns) {
    const auto written = aliasing::entriesRead(d, rows, columns), read = aliasing::entriesRead(source, rows, columns);
    return source.begin == d.begin && source.rowStride == d.rowStride && source.step == d.step && source.isArray &&
           written.areEquallySpaced && read.areEquallySpaced && written.step == read.step;
}

// All of it, for sources of the size of what is written.
template <bool mayBeInPlace, class Rows, class Columns, class Written, class... Sources>
VONKK3_INLINE bool arePlainlyIndependent(Rows rows, Columns columns, std::size_t count, const Written &d,
                                         const Sources &...sources) {
    const Extent written = plainlyWritten(d, rows, columns, count);
    const auto isIndependent = [&](const auto &source) VONKK3_INLINED {
        return isPlainlyDisjoint(written, source, rows, columns, count) ||
               (mayBeInPlace && !written.isEmpty() && isInPlace(d, source, rows, columns));
    };
    return (isIndependent(sources) && ...);
}

// The operands of a call, and whether its objects may be worked in batches. Entries of lists are looked at object by
// object, and none after the first that is null.
template <std::size_t number> class Aliasing {
public:
    template <class... Operands>
    VONKK3_INLINE explicit Aliasing(std::size_t count, const Operands &...each) : operands{each...} {
        isPlain = aliasing::isPlainlyIndependent(operands);
        answer = isPlain ? aliasing::Answer{count, false} : aliasing::askOnce(operands, opaque(number), count);
    }

    // Then no entry of a table is null.
    bool isUsualCase() const { return isPlain; }

    bool rulesOutBatches() const { return answer.allowed == 0 && !answer.asksByBatch; }

    // For so many objects from n on.
    VONKK3_INLINE bool allowsBatch(std::size_t n, std::size_t objects) const {
        if (n + objects <= answer.allowed) return true;
        return answer.asksByBatch && aliasing::askForBatch(operands, opaque(number), n, opaque(objects));
    }

private:
    bool isPlain;
    AliasOperand operands[number];
    aliasing::Answer answer;
};
template <class... Operands> Aliasing(std::size_t, const Operands &...) -> Aliasing<sizeof...(Operands)>;

} // namespace vonkk3
