// Elements that share bytes. See overlaps.h.
#include "model/overlaps.h"

#include <algorithm>

namespace model {

Places placesOf(const Operand &operand, std::uint64_t n, std::uint64_t rows, std::uint64_t columns) {
    Places places;
    for (std::uint64_t i = 0; i < rows; ++i)
        for (std::uint64_t j = 0; j < columns; ++j) places.push_back(operand.element(n, i, j));
    return places;
}

bool anyOverlap(const Places &some, const Places &others, std::size_t size) {
    for (const std::uintptr_t one : some)
        for (const std::uintptr_t other : others)
            if (overlap(one, size, other, size)) return true;
    return false;
}

bool shareBytes(Places places, std::size_t size) {
    std::ranges::sort(places);
    const auto reaches = [size](std::uintptr_t low, std::uintptr_t high) { return high - low < size; };
    return std::ranges::adjacent_find(places, reaches) != places.end();
}

bool sharePartOfTheirBytes(const Places &places, std::size_t size) {
    Places different = places;
    std::ranges::sort(different);
    different.erase(std::unique(different.begin(), different.end()), different.end());
    return shareBytes(different, size);
}

bool storesOverOtherSources(const Places &destination, const Places &source, std::size_t size) {
    for (std::size_t stored = 0; stored < destination.size(); ++stored)
        for (std::size_t loaded = 0; loaded < source.size(); ++loaded)
            if (stored != loaded && overlap(destination[stored], size, source[loaded], size)) return true;
    return false;
}

bool storesOverLaterElements(const Places &destination, const Places &source, std::size_t size) {
    for (std::size_t later = 0; later < destination.size(); ++later)
        for (std::size_t stored = 0; stored < later; ++stored)
            if (overlap(destination[stored], size, destination[later], size) ||
                overlap(destination[stored], size, source[later], size))
                return true;
    return false;
}

} // namespace model
