// Expectations that the products share: in which order terms are added, and which entries of a table are looked at
// rather than followed.
#pragma once

#include "literal.h"

#include <cstdint>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <vector>

namespace literal {

// ---- Orders of addition

// The sum that a tree such as "((01)2)" makes: digits are the places of the terms, brackets one addition each. The
// terms of a threesome need no rounding beyond that of doubles, whatever the type.
inline double sumByTree(std::string_view tree, const std::vector<double> &terms) {
    std::size_t at = 0;
    const std::function<double()> next = [&] {
        if (tree.at(at) != '(') return terms.at(static_cast<std::size_t>(tree[at++] - '0'));
        ++at;
        const double left = next();
        const double right = next();
        ++at;
        return left + right;
    };
    return next();
}

// "(((01)2)3)": one term after the other.
inline std::string runningTree(std::uint32_t terms) {
    std::string tree(terms - 1, '(');
    for (std::uint32_t k = 0; k < terms; ++k) {
        tree += static_cast<char>('0' + k);
        if (k > 0) tree += ')';
    }
    return tree;
}

// 2^80 and its opposite leave nothing of a 1 that joins one of them first, in floats, doubles and the 80-bit unit
// alike. All threesomes of terms, two of them large, tell one tree from every other.
inline std::vector<std::vector<double>> threesomes(std::uint32_t terms) {
    std::vector<std::vector<double>> list;
    for (std::uint32_t a = 0; a < terms; ++a)
        for (std::uint32_t b = a + 1; b < terms; ++b)
            for (std::uint32_t c = 0; c < terms; ++c) {
                if (c == a || c == b) continue;
                list.emplace_back(terms);
                list.back()[a] = 0x1p80;
                list.back()[b] = -0x1p80;
                list.back()[c] = 1;
            }
    return list;
}

// ---- Entries

// One page of the first 2 GiB, which a shift reaches from a null pointer.
inline std::byte *lowMemory() {
    static std::byte *const page = [] {
        void *const got = mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_32BIT, -1, 0);
        if (got == MAP_FAILED) throw std::runtime_error("no low memory");
        return static_cast<std::byte *>(got);
    }();
    return page;
}

// Runs the call with one entry of an operand null and a shift that makes an address of it: a form that looks at the
// entry refuses it, a form that does not look works as ever. What is read through the entry is that which stood
// behind it, and what is written goes there afterwards.
inline std::int32_t runThroughNull(Call &call, std::string_view operand, std::size_t entry) {
    constexpr std::size_t middle = 2048;
    Place &place = call[operand];
    std::byte *const low = lowMemory() + middle;
    const std::vector<std::byte *> entries = place.entries;
    const std::int32_t shift = place.shift;
    std::vector<std::pair<std::byte *, std::byte *>> cells; // usual address, low address
    const bool table = catalogue::isTable(place.operand->layout);
    const std::uint32_t rows = table ? call.objectsOf(operand) : place.rows;
    for (std::uint32_t i = 0; i < rows; ++i)
        for (std::uint32_t j = 0; j < (table ? 1 : place.cols); ++j) {
            const std::ptrdiff_t offset =
                table ? std::ptrdiff_t{place.objectStride} * i
                      : std::ptrdiff_t{place.rowStride} * i + std::ptrdiff_t{place.elementStride} * j;
            cells.emplace_back(entries.at(entry) + shift + offset, low + offset);
        }
    const auto bytes = static_cast<std::size_t>(place.elementSize);
    for (const auto &[usual, moved] : cells) std::memcpy(moved, usual, bytes);
    place.shift = static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(low));
    for (std::byte *&other : place.entries) other -= place.shift - shift;
    place.entries[entry] = nullptr;
    const std::int32_t status = call.run();
    place.entries = entries;
    place.shift = shift;
    if (place.operand->written)
        for (const auto &[usual, moved] : cells) std::memcpy(usual, moved, bytes);
    return status;
}

} // namespace literal
