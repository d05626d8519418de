// One call through the model and then through the library, on the same memory wherever that is: so each case that is
// worked out by hand tests both.
#pragma once

#include "catalogue.h"
#include "model/model.h"

#include <cstdint>
#include <stdexcept>
#include <vector>

namespace support {

// Library and model do not leave the same.
struct Disagreement : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class WhereOpen { callLibrary, leaveOut };

// Runs the model, takes back what it wrote, then calls the export and returns its status. What the library leaves where
// the model wrote has to agree as far as the contract fixes it; `outcome` gets what the model says. A call with an open
// outcome may be left out. Where denormals count as zeros the library is called alone, and only `outcome.open` is set.
std::int32_t invokeBoth(void *address, const catalogue::Function &function, const std::vector<std::uint64_t> &words,
                        model::Outcome &outcome, WhereOpen whereOpen = WhereOpen::callLibrary);

} // namespace support
