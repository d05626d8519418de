// The operands of a call: matrices and vectors, one or an array of them, in the six layouts. An operand is made from
// its words in the order of the parameter list and hands out the view of object n.
//
// Words are 32-bit, signed in meaning and never validated; they are sign-extended and enter address arithmetic only.
#pragma once

#include "frame/views.h"

#include <concepts>
#include <utility>

namespace vonkk3 {

enum class Layout { Standard, S2, P, PS2, L, LS2 };

enum class Shape { vector, matrix };

// The words of a call's operand in one form for all layouts, as small as they come, for code that is shared by several
// layouts. Transposed operands have their strides exchanged here.
struct OperandWords {
    static constexpr bool isTable = false;
    std::uintptr_t begin;       // object 0, or the list or table
    std::int32_t step;          // from object to object; of a list the shift
    std::int32_t rowStride;     // of a table the shift
    std::int32_t elementStride; // of a table the entries to a row
    bool isArray, isList, isTransposed;
};
struct ListWords : OperandWords {};
struct TableWords : OperandWords {
    static constexpr bool isTable = true;
    bool tableHasNull(std::size_t position) const {
        return loadAt<std::uintptr_t>(reinterpret_cast<const std::byte *>(begin + position * sizeof(void *))) == 0;
    }
};
struct TransposedTableWords : TableWords {};

template <class Words> inline constexpr bool areOfList = std::is_same_v<Words, ListWords>;
template <class Words> inline constexpr bool areOfTable = std::is_base_of_v<TableWords, Words>;
template <class Words> inline constexpr bool areOfTransposedTable = std::is_same_v<Words, TransposedTableWords>;

// A vector as a matrix of one column.
template <class Operand> inline auto columnWords(const Operand &vector) {
    auto words = vector.words(1);
    if constexpr (!Operand::isTable) std::swap(words.rowStride, words.elementStride);
    return words;
}

template <class T, Layout memory, Shape shape, bool isArrayOperand> class Operand {
public:
    using Element = std::remove_const_t<T>;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = isArrayOperand;
    static constexpr bool isTransposed = false;
    static constexpr bool isTable = layout == Layout::P || layout == Layout::PS2;
    static constexpr bool isList = isArray && (layout == Layout::L || layout == Layout::LS2);
    static constexpr bool isStrided = layout == Layout::S2 || layout == Layout::LS2;
    using Pointer = std::conditional_t<isTable || isList, T *const *, T *>;

    // The pointer, then those of shift, object stride, row stride and element stride that the form has.
    explicit Operand(Pointer pointer, std::same_as<std::int32_t> auto... words) : pointer(pointer) {
        static_assert(sizeof...(words) == hasShift + hasObjectStride + hasRowStride + isStrided);
        const std::int32_t list[] = {words..., 0};
        const std::int32_t *next = list;
        if constexpr (hasShift) shift = *next++;
        if constexpr (hasObjectStride) objectStride = *next++;
        if constexpr (hasRowStride) rowStride = *next++;
        if constexpr (isStrided) elementStride = *next++;
    }

    bool isNull() const { return pointer == nullptr; }

    // Entry of the table for one element position.
    bool tableHasNull(std::size_t position) const {
        if constexpr (isTable) return view(0).hasNullEntry(position);
        else return false;
    }

    // Entry of the list for object n.
    bool listHasNull(std::size_t n) const {
        if constexpr (isList) return loadAt<T *>(listSlot(n)) == nullptr;
        else return false;
    }

    // Object n. A matrix in a pointer layout needs to know how many columns make a row of its table.
    auto view(std::size_t n, [[maybe_unused]] std::size_t columns = 0) const {
        if constexpr (isTable) return TableView<T>(pointer, columns, shift + strides(n, objectStride));
        else if constexpr (isStrided) return StridedView<T>(base(n), rowStride, elementStride);
        else return RowsView<T>(base(n), rowStride);
    }

    // The operand with the object stride of another one that is known to have the same: where the compiler sees that
    // two strides are one value, it keeps one running offset instead of two.
    template <class Other> Operand spacedAs(const Other &other) const {
        Operand copy = *this;
        copy.objectStride = other.objectSpacing();
        return copy;
    }
    std::ptrdiff_t objectSpacing() const { return objectStride; }

    // Whether the rows of a matrix, of so many elements, are contiguous.
    bool hasPackedRows(std::size_t columns) const { return rowStride == std::ptrdiff_t(columns * sizeof(T)); }

    // The operand with another row stride.
    Operand walkedBy(std::ptrdiff_t otherStride) const {
        Operand copy = *this;
        copy.rowStride = otherStride;
        return copy;
    }
    std::ptrdiff_t rowSpacing() const { return rowStride; }
    std::ptrdiff_t elementSpacing() const { return elementStride; }
    std::ptrdiff_t entryShift() const { return shift; }

    // A table needs to know how many columns make a row of it.
    auto words(std::size_t columns) const {
        const OperandWords words{address(),
                                 std::int32_t(isList ? shift : objectStride),
                                 std::int32_t(isTable ? shift : rowStride),
                                 std::int32_t(isTable ? std::ptrdiff_t(columns) : elementStride),
                                 isArray,
                                 isList,
                                 false};
        if constexpr (isTable) return TableWords{words};
        else if constexpr (isList) return ListWords{words};
        else return words;
    }

    // Of object 0, or of the list or table.
    std::uintptr_t address() const { return reinterpret_cast<std::uintptr_t>(pointer); }

private:
    static constexpr bool hasShift = isTable || isList;
    static constexpr bool hasObjectStride = isArray && !isList && layout != Layout::P;
    static constexpr bool hasRowStride = shape == Shape::matrix && !isTable;

    Pointer pointer;
    std::ptrdiff_t shift = 0;
    std::ptrdiff_t objectStride = isArray && layout == Layout::P ? sizeof(T) : 0; // P packs its objects
    std::ptrdiff_t rowStride = 0;
    std::ptrdiff_t elementStride = sizeof(T);

    ByteOf<T> *base(std::size_t n) const {
        if constexpr (isList) return shifted(loadAt<T *>(listSlot(n)), shift);
        else return reinterpret_cast<ByteOf<T> *>(pointer) + strides(n, objectStride);
    }

    // A number below 0 leads before the list: see the pipelined sums of matrices.
    const std::byte *listSlot(std::size_t n) const {
        return reinterpret_cast<const std::byte *>(pointer + std::ptrdiff_t(n));
    }
};

// A matrix operand that is read with rows and columns exchanged: the views it hands out are exchanged already.
// `columns` are those of its table, so the rows of the exchanged matrix.
template <class Stored> class Transposed : public Stored {
public:
    static constexpr bool isTransposed = true;
    explicit Transposed(const Stored &stored) : Stored(stored) {}
    auto view(std::size_t n, std::size_t columns = 0) const { return TransposedView{Stored::view(n, columns)}; }
    auto words(std::size_t columns) const {
        auto words = Stored::words(columns);
        words.isTransposed = true;
        if constexpr (Stored::isTable) return TransposedTableWords{words};
        else return std::swap(words.rowStride, words.elementStride), words;
    }
};

template <class T, Layout layout> using Matrix = Operand<T, layout, Shape::matrix, false>;
template <class T, Layout layout> using Matrices = Operand<T, layout, Shape::matrix, true>;
template <class T, Layout layout> using Vector = Operand<T, layout, Shape::vector, false>;
template <class T, Layout layout> using Vectors = Operand<T, layout, Shape::vector, true>;

} // namespace vonkk3
