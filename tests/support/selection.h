// The functions that an option --only asks for.
#pragma once

#include "catalogue.h"

#include <string>
#include <vector>

namespace support {

// Those in whose names an extended regular expression occurs; throws std::runtime_error where it is none, or where none
// is named so.
std::vector<catalogue::Function> functionsNamed(const std::string &expression);

} // namespace support
