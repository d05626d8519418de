// What the random calls have to know of single families: everything that the catalogue does not say. One function a
// question; a family without a case of its own gets the usual answer.
#pragma once

#include "catalogue.h"
#include "geometry.h"
#include "random.h"
#include "values.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace support::families {

// Statuses that a large number of calls has to bring about.
std::vector<std::int32_t> relevantStatuses(const catalogue::Function &function);

// Rows and columns of an operand as far as a call may touch it.
Shape shapeOf(const catalogue::Function &function, const catalogue::Operand &operand, const Sizes &sizes);

// Whether vectors of 11 elements and more take another road than shorter ones, so that calls are to crowd about there.
bool turnsAtEleven(const catalogue::Function &function);

// Whether calls for 8 objects and more take another road than those for fewer.
bool turnsAtEightObjects(const catalogue::Function &function);

// Makes the dimensions fit one another, where a function compares them.
void relateDimensions(const catalogue::Function &function, Sizes &sizes, Random &random);

// Bytes of a dense block.
std::uint32_t blockBytes(const catalogue::Function &function, std::string_view parameter, const Sizes &sizes);

// Whether a dense block holds elements: then NaNs in it are as good as one another.
bool holdsElements(std::string_view parameter);

// Whether nothing is promised of the block's contents after a call.
bool isUnspecifiedAfterCall(const catalogue::Function &function, std::string_view parameter);

// Entries that a table of positions needs behind its last position.
std::uint32_t extraEntries(const catalogue::Function &function, const catalogue::Operand &operand, const Sizes &sizes);

// Bytes that a call may touch beyond the elements of an operand, given its strides.
Reach extraReach(const catalogue::Function &function, const catalogue::Operand &operand, const Sizes &sizes,
                 const Placement &placement);

// Whether the source is reached by way of the destination's table, with the shift and the stride of its own.
bool readsThroughDestination(const catalogue::Function &function);

// Whether the shift of a table is added to its entries.
bool addsShift(const catalogue::Function &function);

// Bytes that a call may touch beyond the elements of an operand, since it walks that with the strides of another.
Reach borrowedReach(const catalogue::Function &function, const catalogue::Operand &operand,
                    std::span<const Placement> operands);

// Whether calls take another road where all pointers and strides are multiples of 16.
bool looksAtAlignment(const catalogue::Function &function);

// Whether calls are to lay the block `dst` over their source.
bool mayLieInSource(const catalogue::Function &function);

// Whether the destination must not lie at a multiple of 16, since a call would then take more for aligned than it is.
bool mustKeepOffBoundary(const catalogue::Function &function, std::span<const Placement> operands);

// Whether a null pointer parameter is answered by a status.
bool testsPointers(const catalogue::Function &function);

// Whether a null at this entry of the operand's table is answered by a status, or in a trace never met.
bool testsEntry(const catalogue::Function &function, const catalogue::Operand &operand, const Sizes &sizes,
                std::uint32_t entry);

// What stands in the table in place of a null entry: what the function tests against null.
std::uint64_t nullEntry(const catalogue::Function &function, std::int32_t shift);

// Whether an entry of a table of positions is ever followed.
bool followsEntry(const catalogue::Function &function, const Placement &placement, std::uint32_t entry);

// Whether element strides are cut to whole elements.
bool dropsPartOfElementStride(const catalogue::Function &function, const Sizes &sizes);

// Whether a size with its top bit set counts as none.
bool isSignedSize(const catalogue::Function &function, std::string_view parameter);

// Whether a call that finds a null entry is sure to stop there however large `count` is.
bool stopsAtNullEntry(const catalogue::Function &function, const catalogue::Operand &operand);

// Whether the result is fixed when the destination is this source, element on element.
bool isFixedInPlace(const catalogue::Function &function, const catalogue::Operand &source);

// Of the overlaps of destination and source that would be drawn, how many percent are: few where nearly all outcomes
// are open, so that such calls tell little.
unsigned overlapShare(const catalogue::Function &function);

// How elements are chosen.
ValueMixture usualValues(const catalogue::Function &function);

// Changes the elements to numbers that let most calls succeed, where random ones seldom would.
void shapeValues(const catalogue::Function &function, std::span<const Placement> operands, Random &random);

// Fills a block that is read.
void fillBlock(const catalogue::Function &function, std::string_view parameter, std::span<std::byte> block,
               const Sizes &sizes, Random &random);

// Whether some calls are to meet trouble in the numbers, and what makes it: matrices that are singular or nearly so.
bool hasTrouble(const catalogue::Function &function);
void makeTrouble(const catalogue::Function &function, std::span<const Placement> operands, Random &random);

} // namespace support::families
