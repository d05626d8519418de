// What the tests of operations element by element share: elements as they enter the operation whatever way an operand
// is stored, shapes that are not square, and strides that open the aligned routes.
#pragma once

#include "literal_checks.h"
#include "product_checks.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace literal {

// Element (i, j) of an operand as the operation sees it.
inline void setElement(Call &call, std::string_view operand, std::uint32_t n, std::uint32_t i, std::uint32_t j,
                       double value) {
    const bool transposed = call[operand].operand->transposed;
    call.set(operand, n, transposed ? j : i, transposed ? i : j, value);
}

using Elements = std::function<double(std::uint32_t n, std::uint32_t i, std::uint32_t j)>;

inline void setElements(Call &call, std::string_view operand, std::uint32_t rows, std::uint32_t cols,
                        const Elements &elements) {
    for (std::uint32_t n = 0; n < call.objectsOf(operand); ++n)
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < cols; ++j) setElement(call, operand, n, i, j, elements(n, i, j));
}

inline void setAll(Call &call, std::string_view operand, double value) {
    setObjects(call, operand, std::vector<double>(std::size_t{call[operand].rows} * call[operand].cols, value));
}

// So many rows and columns of the result, in memory for a square of the call's size. Tables keep just the entries that
// they should have, row by row.
inline void makeRectangular(Call &call, std::uint32_t rows, std::uint32_t cols) {
    for (const catalogue::Operand &operand : call.function().operands) {
        call[operand.name].rows = operand.transposed ? cols : rows;
        call[operand.name].cols = operand.transposed ? rows : cols;
    }
    call.pass("rows", rows);
    call.pass("cols", cols);
}

// What keeps an operand off multiples of 16.
struct Offence {
    std::int32_t pointer = 0;
    std::int32_t rowStride = 0;
    std::int32_t objectStride = 0;
};

inline constexpr Offence offences[] = {{}, {4, 0, 0}, {8, 0, 0}, {2, 0, 0}, {0, 4, 0}, {0, 8, 0}, {0, 0, 4}, {0, 0, 8}};

// Lays all rows and objects of standard or list operands at multiples of 16, but for those of one operand. Without one
// all pointers and strides fit.
inline void alignAllBut(Call &call, std::string_view offender, Offence offence) {
    for (const catalogue::Operand &operand : call.function().operands) {
        const Offence own = operand.name == offender ? offence : Offence{};
        Place &place = call[operand.name];
        place.rowStride = static_cast<std::int32_t>((place.cols * 4 + 15) / 16 * 16) + own.rowStride;
        place.objectStride = static_cast<std::int32_t>(place.rows) * place.rowStride + own.objectStride;
        if (place.tabled()) place.shift = 32;
        for (std::size_t n = 0; n < place.entries.size(); ++n)
            place.entries[n] = place.origin + place.objectStride * static_cast<std::ptrdiff_t>(n) - place.shift;
        place.moveTo(place.origin + own.pointer);
    }
}

} // namespace literal
