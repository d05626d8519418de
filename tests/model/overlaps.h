// Questions about elements that share bytes: they tell where the order of loads and stores, which is free, would show.
#pragma once

#include "model/execution.h"

#include <cstddef>
#include <cstdint>

namespace model {

// Those of an object by the rows of the formula; of a vector, its row 0.
Places placesOf(const Operand &operand, std::uint64_t n, std::uint64_t rows, std::uint64_t columns);

// Whether an element of the one group shares bytes with one of the other.
bool anyOverlap(const Places &some, const Places &others, std::size_t size);

// Whether two elements share bytes: at all, or without lying on one place.
bool shareBytes(Places places, std::size_t size);
bool sharePartOfTheirBytes(const Places &places, std::size_t size);

// Whether an element is stored over what another one is made of, which may be loaded by then or not. What an element
// itself is made of is always loaded before it is stored. Element k is made of source k.
bool storesOverOtherSources(const Places &destination, const Places &source, std::size_t size);

// Whether an element is stored over what stands at a later place of the same destination or of the source: that may be
// kept or read back, or be loaded ahead of the store.
bool storesOverLaterElements(const Places &destination, const Places &source, std::size_t size);

} // namespace model
