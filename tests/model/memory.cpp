// Noting of stores, and the watch over tables and permutations that must not change while a call reads them.
#include "model/memory.h"

#include <algorithm>

namespace model {

bool overlap(std::uintptr_t first, std::size_t firstSize, std::uintptr_t second, std::size_t secondSize) {
    return second - first < firstSize || first - second < secondSize;
}

void Memory::move(std::uintptr_t to, std::uintptr_t from, std::size_t size) {
    note(to, size);
    std::memmove(reinterpret_cast<void *>(to), reinterpret_cast<const void *>(from), size);
}

std::uintptr_t Memory::loadEntry(std::uintptr_t address) {
    abandonIfWritten(address, sizeof(std::uintptr_t));
    return load<std::uintptr_t>(address);
}

std::uint32_t Memory::loadIndex(std::uintptr_t address) {
    abandonIfWritten(address, sizeof(std::uint32_t));
    return load<std::uint32_t>(address);
}

bool Memory::holdsApproximation(std::uintptr_t address, std::size_t size) const {
    const auto &all = outcome_.approximations;
    return std::any_of(all.begin(), all.end(), [&](const Approximation &approximation) {
        return overlap(approximation.address, approximation.size, address, size);
    });
}

void Memory::note(std::uintptr_t address, std::size_t size) {
    Write &write = outcome_.writes.emplace_back(Write{address, size});
    std::memcpy(&write.before, reinterpret_cast<const void *>(address), size);
    writtenWords_.insert(address / 8);
    writtenWords_.insert((address + size - 1) / 8);
}

void Memory::abandonIfWritten(std::uintptr_t address, std::size_t size) {
    if (!writtenWords_.contains(address / 8) && !writtenWords_.contains((address + size - 1) / 8))
        return; // the usual case, without a walk over all the stores
    const auto touches = [&](const Write &write) { return overlap(write.address, write.size, address, size); };
    if (std::any_of(outcome_.writes.begin(), outcome_.writes.end(), touches)) {
        outcome_.open = true;
        throw Abandoned{};
    }
}

} // namespace model
