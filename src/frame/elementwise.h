// Element by element, d(n, i, j) = operation(sources(n, i, j)...): one object, and the arrays of all layouts that have
// no kernel of their own. One store per element; objects, rows and elements in ascending order, as far as overlap shows
// it. A vector is a matrix of one row.
#pragma once

#include "frame/shared_operand.h"
#include "frame/stream.h"
#include "frame/walk.h"

namespace vonkk3 {

// An element of the result, rounded to T. What is moved only is neither widened nor rounded.
template <class T, class Operation, class... Elements>
VONKK3_INLINE T elementOf(const Operation &operation, Elements... elements) {
    if constexpr (requires { Operation::isMove; }) return operation(elements...);
    else return round<T>(operation(Working<T>(elements)...));
}

// One object. Table entries, where they are tested here, come just before their element, and the elements before a null
// one are final.
template <bool testsEntries, class Operation, class D, class Rows, class Columns, class... Sources>
VONKK3_INLINE VonkStatus workElements(const D &d, Rows rows, Columns columns, const Operation &operation,
                                      const Sources &...sources) {
    using T = typename D::Element;
    for (std::size_t i = 0; i < rows; ++i) {
        const bool noneIsNull = everyIndex(0, columns, columns, [&](std::size_t j) VONKK3_INLINED {
            if constexpr (testsEntries)
                if ((sources.hasNullEntry(i, j) || ...) || d.hasNullEntry(i, j)) return false;
            d.store(i, j, elementOf<T>(operation, sources.load(i, j)...));
            return true;
        });
        if (!noneIsNull) return vonkErrNullPtr;
    }
    return vonkOk;
}

// A single object. In tables a fixed number of columns is looped over: unrolled, it costs more than it gains.
template <class Operand, class Rows, class Columns, class Operation, class D, class... Sources>
VONKK3_INLINE VonkStatus workSingle(const D &d, Rows rows, Columns columns, const Operation &operation,
                                    const Sources &...sources) {
    if constexpr (Columns::isFixed && Operand::isTable)
        return workElements<true>(d, rows, RunTime{Columns::value}, operation, sources...);
    else return workElements<true>(d, rows, columns, operation, sources...);
}

// ---- Arrays ---------------------------------------------------------------------------------------------------------

// A strided operand's objects.
template <class T> struct StridedObjects {
    ByteOf<T> *begin;
    std::ptrdiff_t step, rowStride, elementStride;

    VONKK3_INLINE explicit StridedObjects(const OperandWords &words)
        : begin(reinterpret_cast<ByteOf<T> *>(words.begin)), step(words.step), rowStride(words.rowStride),
          elementStride(words.elementStride) {}
    StridedView<T> view(std::size_t n, std::size_t) const {
        return {begin + strides(n, step), rowStride, elementStride};
    }
    static constexpr bool listHasNull(std::size_t) { return false; }
};

// Through a list.
template <class T> struct ListedObjects {
    std::uintptr_t entries;
    std::ptrdiff_t shift, rowStride, elementStride;

    VONKK3_INLINE explicit ListedObjects(const OperandWords &words)
        : entries(words.begin), shift(words.step), rowStride(words.rowStride), elementStride(words.elementStride) {}
    StridedView<T> view(std::size_t n, std::size_t) const {
        return {reinterpret_cast<ByteOf<T> *>(entry(n) + std::uintptr_t(shift)), rowStride, elementStride};
    }
    bool listHasNull(std::size_t n) const { return entry(n) == 0; }

private:
    std::uintptr_t entry(std::size_t n) const { return ObjectsView::pointerAt(entries + n * sizeof(void *)); }
};

template <class T, class Words> VONKK3_INLINE auto objectsByElement(const Words &words) {
    if constexpr (areOfTable<Words>) return SharedOperand<T, true, areOfTransposedTable<Words>>(words);
    else if constexpr (areOfList<Words>) return ListedObjects<T>(words);
    else return StridedObjects<T>(words);
}

// An object of fixed size, from one row to the next by a pointer for each operand. It is hidden from the compiler,
// which would compute an address for every element and run out of registers.
template <class Operation, std::size_t rows, std::size_t columns, class T, class... Sources>
VONKK3_INLINE void workRowByRow(const Operation &operation, Fixed<rows>, Fixed<columns>, StridedView<T> d,
                                StridedView<Sources>... sources) {
    const auto advance = [](auto &row) VONKK3_INLINED { row.base = opaque(row.base + row.rowStride); };
    forEachBelow<rows>([&](std::size_t i) VONKK3_INLINED {
        if (i != 0) advance(d), (advance(sources), ...);
        forEachBelow<columns>([&](std::size_t j)
                                  VONKK3_INLINED { d.store(j, elementOf<T>(operation, sources.load(j)...)); });
    });
}

// Whether the entries of tables are tested before all objects, and those of lists object by object.
enum class Entries { tested, trusted };

// The entries of tables of a fixed size, for which there is one loop: unrolled, it would be in every body.
template <Entries entries, class Rows, class Columns, class... Words>
VONKK3_INLINE bool isAnyPositionNull(Rows rows, Columns columns, const Words &...operands) {
    if constexpr (entries == Entries::trusted || !Columns::isFixed) return false;
    else return anyTableEntryNull(opaque(std::size_t(columns) * rows), operands...);
}

template <class T, Entries entries, class Rows, class Columns, class Operation, class Destination, class... Sources>
VONKK3_SHARED VonkStatus workObjects(const Operation &shared, Rows rows, Columns columns, std::size_t count,
                                     const Destination &dst, const Sources &...src) {
    const Operation operation = shared; // a local copy stays in registers
    constexpr bool isFixed = Columns::isFixed && Rows::isFixed;
    constexpr bool anyTable = (areOfTable<Destination> || ... || areOfTable<Sources>);
    if (isAnyPositionNull<entries>(rows, columns, src..., dst)) return vonkErrNullPtr;
    const auto entriesToRow = [&](const auto &words) VONKK3_INLINED {
        using Words = std::remove_cvref_t<decltype(words)>;
        if constexpr (isFixed) return areOfTransposedTable<Words> ? Rows::value : Columns::value;
        else return std::size_t(std::uint32_t(words.elementStride));
    };
    const auto work = [&](const auto &d, const auto &...sources) VONKK3_INLINED {
        if constexpr (isFixed && !anyTable) workRowByRow(operation, rows, columns, d, sources...);
        else workElements<false>(d, rows, columns, operation, sources...);
    };
    const auto walk = [&](const auto &d, const auto &...sources) VONKK3_INLINED {
        for (std::size_t n = 0; n < count; ++n) {
            if constexpr (entries == Entries::tested)
                if ((sources.listHasNull(n) || ...) || d.listHasNull(n)) [[unlikely]]
                    return vonkErrNullPtr;
            work(d.view(n, entriesToRow(dst)), sources.view(n, entriesToRow(src))...);
        }
        return vonkOk;
    };
    return walk(objectsByElement<T>(dst), objectsByElement<const T>(src)...);
}

// Real32 streams where that gains, and else knows the usual numbers of columns when compiling.
template <class T, Entries entries, class Rows, class Columns, class Operation, class Destination, class... Sources>
VONKK3_SHARED VonkStatus streamOrWorkObjects(const Operation &operation, Rows rows, Columns columns, std::size_t count,
                                             const Destination &dst, const Sources &...src) {
    constexpr bool anyTable = (areOfTable<Destination> || ... || areOfTable<Sources>);
    if constexpr (!(areOfList<Destination> || ... || areOfList<Sources>)) {
        if constexpr (areOfTable<Destination> && (areOfTable<Sources> && ...))
            if (count >= (arePacked(dst) ? worthStreamingTables : worthStreamingStrided) &&
                streamTables(operation, rows, columns, count, dst, src...))
                return vonkOk;
        const auto stream = [&](const auto &...views) VONKK3_INLINED {
            if constexpr (anyTable) return streamPositions(operation, views...);
            else return streamRanges(operation, views...);
        };
        if (isWorthStreaming<areOfTable<Destination>>(dst.step, count)) {
            if (isAnyPositionNull<entries>(rows, columns, src..., dst)) return vonkErrNullPtr;
            if (stream(objectsOf<T, areOfTable<Destination>>(dst, rows, columns, count),
                       objectsOf<T, areOfTable<Sources>>(src, rows, columns, count)...))
                return vonkOk;
        }
    }
    const auto work = [&](auto fixedColumns) VONKK3_INLINED {
        return workObjects<T, entries>(operation, rows, fixedColumns, count, dst, src...);
    };
    if constexpr (anyTable && entries == Entries::tested) return work(columns);
    else return withFixedColumns<T>(columns, work);
}

// Arrays of `rows` by `columns` elements, after the argument checks, but for what testsTablesLater. Fixed sizes of
// strided layouts are unrolled on the plain path, which is as fast as a stream; Real64 is no faster for a fixed size.
template <class T, Entries entries = Entries::tested, class Rows, class Columns, class Operation, class Destination,
          class... Sources>
VONKK3_INLINE VonkStatus workArrays(const Operation &operation, Rows rows, Columns columns, std::size_t count,
                                    const Destination &dst, const Sources &...src) {
    if constexpr (std::is_same_v<T, Real64>)
        return workObjects<T, entries>(operation, atRunTime(rows), atRunTime(columns), count, dst, src...);
    else if constexpr (Columns::isFixed && !areOfTable<Destination>)
        return workObjects<T, entries>(operation, rows, columns, count, dst, src...);
    else {
        constexpr bool areVectors = Columns::isFixed && Rows::isFixed && Rows::value == 1;
        if constexpr (areVectors && areOfTable<Destination> && (areOfTable<Sources> && ...))
            if (count >= worthStreamingTables && (src.isArray && ...) && arePacked(dst) && (arePacked(src) && ...) &&
                streamVectors(operation, columns, count, dst, src...))
                return vonkOk;
        return streamOrWorkObjects<T, entries>(operation, rows, columns, count, dst, src...);
    }
}

} // namespace vonkk3
