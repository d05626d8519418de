// The version record: constant, in read-only data, one for the life of the process.
#include "frame/exports.h"

namespace {
constexpr VonkLibVersion version = {4, 1, 11, 30, {'k', '3', '\0', '\0'}, "vonkk3.dll", "v4.1", "Jul 19 2004"};
}

const VonkLibVersion *vonkGetLibVersion(void) { return &version; }
