// A call in words, for people: what was passed, and what stood in memory before and after.
#pragma once

#include "calls.h"

#include <string>

namespace support {

// The command line that makes the call again, without the program's name: "--seed 1 --replay NAME:INDEX".
std::string replayOptions(const Call &call);

// Every word of the call with its parameter's name.
std::string describeWords(const Call &call);

// Layout and elements of each operand, and the blocks, as they stand in the image of the arena.
std::string describeOperands(const Call &call, const Image &image);

} // namespace support
