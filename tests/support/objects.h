// Objects that are drawn once and laid out in any layout and memory, disjoint: for calls whose results are compared
// with one another and not with the model.
#pragma once

#include "calls.h"
#include "catalogue.h"
#include "geometry.h"
#include "random.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace support {

struct Objects {
    Sizes sizes;
    std::vector<std::vector<double>> elements; // of each operand, objects outermost
    std::map<std::string, std::vector<std::byte>> blocks;
    std::map<std::string, std::uint64_t> constants;
};

// A function's operands and blocks in a piece of memory, with strides and tables of their own.
class Laid {
public:
    // Throws std::runtime_error where the memory does not suffice; 64 KiB do.
    Laid(const catalogue::Function &function, const Sizes &sizes, std::span<std::byte> memory, Random &random);

    void put(const Objects &objects) const;
    void get(Objects &objects) const; // elements and blocks as they stand
    std::vector<std::uint64_t> words(const Objects &objects) const;

private:
    friend Objects drawObjects(const catalogue::Function &function, std::uint32_t mostObjects,
                               std::span<std::byte> memory, Random &random);
    void writeTable(const Placement &placement) const;
    std::uint64_t word(const catalogue::Parameter &parameter, const Objects &objects) const;

    const catalogue::Function &function;
    std::vector<Placement> operands;
    std::vector<Block> blocks;
};

// Sizes and numbers that let most calls succeed. The memory is for the work alone.
Objects drawObjects(const catalogue::Function &function, std::uint32_t mostObjects, std::span<std::byte> memory,
                    Random &random);

// Lays the objects out, calls the export and gives status, then destinations and blocks, bit by bit but for the
// payloads of NaNs.
std::vector<std::uint64_t> resultsOf(const catalogue::Function &function, void *address, const Objects &objects,
                                     std::span<std::byte> memory, Random &random);

} // namespace support
