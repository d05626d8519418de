// The caller's memory as a call sees it: every access is a copy of bytes at a plain address, at any alignment and with
// any overlap, and every store is noted in the outcome.
#pragma once

#include "model/model.h"

#include <cstdint>
#include <cstring>
#include <unordered_set>

namespace model {

// Thrown when a call's own stores have changed a table or a row index that it goes on to use. Both are promised not to
// change during a call, so nothing fixes whether the old or the new value counts, and following either may lead
// anywhere.
struct Abandoned {};

class Memory {
public:
    explicit Memory(Outcome &outcome) : outcome_(outcome) {}

    template <class Value> Value load(std::uintptr_t address) const {
        Value value;
        std::memcpy(&value, reinterpret_cast<const void *>(address), sizeof value);
        return value;
    }

    template <class Value> void store(std::uintptr_t address, Value value) {
        note(address, sizeof value);
        std::memcpy(reinterpret_cast<void *>(address), &value, sizeof value);
    }

    // Of an element that was just stored.
    void approximate(const Approximation &approximation) { outcome_.approximations.push_back(approximation); }

    // Whether such an element is found in these bytes: then what is read there is known roughly at best.
    bool holdsApproximation(std::uintptr_t address, std::size_t size) const;

    // Moves an element as it stands, bit by bit: a signalling NaN stays one.
    void move(std::uintptr_t to, std::uintptr_t from, std::size_t size);

    // A pointer out of a table or list, and a row index out of a permutation that the call only reads. Abandons the
    // call if it has itself written there.
    std::uintptr_t loadEntry(std::uintptr_t address);
    std::uint32_t loadIndex(std::uintptr_t address);

    void markOpen() { outcome_.open = true; }
    void markNan() { outcome_.nanSeen = true; }

private:
    void note(std::uintptr_t address, std::size_t size); // a store that is about to happen
    void abandonIfWritten(std::uintptr_t address, std::size_t size);

    Outcome &outcome_;
    std::unordered_set<std::uintptr_t> writtenWords_; // the aligned 8-byte words that any store has touched
};

// Whether two blocks of bytes have one in common.
bool overlap(std::uintptr_t first, std::size_t firstSize, std::uintptr_t second, std::size_t secondSize);

} // namespace model
