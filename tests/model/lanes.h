// The Real32 forms of fixed order whose rows lie in lanes: which they are, and what overlap leaves open in them. An
// object is taken by itself, but in what order its elements are loaded and stored is free within wide limits.
#pragma once

#include "model/product_operands.h"

#include <cstdint>
#include <vector>

namespace model {

inline bool hasLanes(const Form &form) {
    return form.element == Element::real32 && form.size != 0 &&
           (form.layout == Layout::standard || form.layout == Layout::list);
}

// Marks an object as open if one of its elements is stored over what another one is made of: that may be loaded by then
// or not. What an element itself is made of is always loaded before it is stored. Sources come in the order of the
// elements that are made of them.
inline void checkLoads(Memory &memory, const Places &destination, const std::vector<Places> &sources) {
    for (const Places &source : sources)
        for (std::size_t stored = 0; stored < destination.size(); ++stored)
            for (std::size_t loaded = 0; loaded < source.size(); ++loaded)
                if (stored != loaded && overlap(destination[stored], sizeof(float), source[loaded], sizeof(float)))
                    memory.markOpen();
}

// Where rows and columns change places in registers, the order of the stores follows the shuffles; else rows ascend.
inline void checkStores(Memory &memory, const Places &destination) {
    for (std::size_t first = 0; first < destination.size(); ++first)
        for (std::size_t second = first + 1; second < destination.size(); ++second)
            if (overlap(destination[first], sizeof(float), destination[second], sizeof(float))) memory.markOpen();
}

} // namespace model
