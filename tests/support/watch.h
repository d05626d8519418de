// Naming the call that crashes or does not come back.
#pragma once

#include <string>

namespace support {

// From here on such a call ends the program with exit code 1 and what `announce` got last.
void watchCalls();
void announce(const std::string &call);

} // namespace support
