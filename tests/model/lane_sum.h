// The sum of a long row of Real32 terms as two registers of four lanes make it: the terms up to a 16-byte boundary go
// one by one into the first lane, then eight at a time lane by lane, and what is left one by one to the sum of lanes.
#pragma once

#include "model/arithmetic.h"

#include <cstdint>
#include <functional>

namespace model {

// The boundary is looked for from `address` on, the place of term 0. Fewer than 11 terms, and terms off any multiple of
// 4 bytes, are added from left to right.
float sumInLanes(Arithmetic &arithmetic, std::uintptr_t address, std::uint32_t length,
                 const std::function<float(std::uint64_t)> &term);

} // namespace model
