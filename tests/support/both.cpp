// Calling both. See both.h.
#include "both.h"

#include "comparison.h"
#include "invoke.h"
#include "values.h"

#include <algorithm>
#include <cstring>
#include <iomanip>
#include <map>
#include <sstream>
#include <xmmintrin.h>

namespace support {
namespace {

using model::Write;

std::uint64_t loadBytes(const Write &write) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, reinterpret_cast<const void *>(write.address), write.size);
    return bytes;
}

void storeBytes(const Write &write, std::uint64_t bytes) {
    std::memcpy(reinterpret_cast<void *>(write.address), &bytes, write.size);
}

bool countsDenormalsAsZeros() { return (_mm_getcsr() & 0x8040) != 0; }

// The places where the model wrote, each with what it left there.
using Left = std::map<std::uintptr_t, std::pair<Write, std::uint64_t>>;

// Two writes of which each has some bytes of the other alone: their bytes cannot be told apart by elements.
bool anyTangled(const Left &left) {
    std::uintptr_t end = 0;
    for (const auto &[address, place] : left) {
        if (address < end) return true;
        end = address + place.first.size;
    }
    return false;
}

bool agrees(const Write &write, std::uint64_t byModel, const model::Outcome &outcome,
            const catalogue::Function &function) {
    const std::uint64_t byLibrary = loadBytes(write);
    if (byLibrary == byModel) return true;
    if (write.size != (function.type == catalogue::Type::real32 ? 4 : 8)) return false;
    const auto &bounds = outcome.approximations; // the last one counts
    const auto bound = std::find_if(bounds.rbegin(), bounds.rend(), [&](const model::Approximation &candidate) {
        return candidate.address == write.address;
    });
    if (bound != bounds.rend()) return isWithinBound(loadElement(write.address, function.type), *bound);
    return outcome.nanSeen && isNanElement(&byLibrary, function.type) && isNanElement(&byModel, function.type);
}

[[noreturn]] void disagree(const catalogue::Function &function, const std::string &what, std::uint64_t byLibrary,
                           std::uint64_t byModel) {
    std::ostringstream text;
    text << function.name << ": " << what << std::hex << " is 0x" << byLibrary << " by the library and 0x" << byModel
         << " by the model";
    throw Disagreement(text.str());
}

} // namespace

std::int32_t invokeBoth(void *address, const catalogue::Function &function, const std::vector<std::uint64_t> &words,
                        model::Outcome &outcome, WhereOpen whereOpen) {
    outcome = {0, {}, false, true, {}};
    if (countsDenormalsAsZeros()) return invoke(address, function, words);
    outcome = model::run({function.name, words});
    Left left;
    for (const Write &write : outcome.writes) left[write.address] = {write, loadBytes(write)};
    for (auto write = outcome.writes.rbegin(); write != outcome.writes.rend(); ++write)
        storeBytes(*write, write->before);
    if (outcome.open && whereOpen == WhereOpen::leaveOut) return outcome.status;

    const std::int32_t status = invoke(address, function, words);
    const bool blurred = (outcome.nanSeen || !outcome.approximations.empty()) && anyTangled(left);
    if (outcome.open || blurred) {
        if (status != outcome.status && !(dependsOnNumbers(status) && dependsOnNumbers(outcome.status)))
            disagree(function, "the status", static_cast<std::uint32_t>(status),
                     static_cast<std::uint32_t>(outcome.status));
        outcome.open = true;
        return status;
    }
    if (status != outcome.status)
        disagree(function, "the status", static_cast<std::uint32_t>(status),
                 static_cast<std::uint32_t>(outcome.status));
    for (const auto &[where, place] : left)
        if (!agrees(place.first, place.second, outcome, function))
            disagree(function, "what stands at write " + std::to_string(std::distance(left.begin(), left.find(where))),
                     loadBytes(place.first), place.second);
    return status;
}

} // namespace support
