// Runs one call through the library and through the model on the same memory and compares what they leave: the status,
// every byte of the arena, and the processor's control state.
#pragma once

#include "arena.h"
#include "calls.h"
#include "model/model.h"

#include <functional>
#include <span>
#include <string>
#include <unordered_set>
#include <vector>

namespace support {

// Both work on the arena. That they are functions lets a test put a faulty one in the library's place.
using LibraryCall = std::function<std::int32_t(const Call &)>;
using ModelRun = std::function<model::Outcome(const model::Call &)>;

enum class Extent {
    full,         // every byte agrees
    nanTolerated, // every byte but the signs and payloads of NaNs
    withinBounds, // the elements that are held to accuracy lie within their bounds, all else agrees
    statusOnly,   // the rest hangs on what is left open; nothing was touched that the call has no business with
};

// How far elements that are held to accuracy lie from what they should be.
struct Accuracy {
    static constexpr double tightBound = 64; // in units in the last place

    std::uint64_t elements = 0;
    double underTightBound = 0; // largest error in units in the last place, of elements with a bound up to this
    double elsewhere = 0;       // and of badly conditioned ones, as long as the bound leaves them a digit
    double shareOfBound = 0;    // largest error as a part of its bound

    void include(const Accuracy &other);
};

// Whether a status comes out of the numbers, not of the words of a call.
bool dependsOnNumbers(std::int32_t status);

bool isWithinBound(double result, const model::Approximation &bound);

// Of a result within its bound.
Accuracy measure(double result, const model::Approximation &bound, catalogue::Type type);

struct Verdict {
    bool passed = true;
    Extent extent = Extent::full;
    std::int32_t status = 0; // the library's
    bool worked = false;     // the model wrote something
    Accuracy accuracy;       // of the library
    std::string complaint;   // of a failed call, line by line
};

using Addresses = std::unordered_set<std::uintptr_t>;

// Real64 arithmetic follows the precision control, so its functions are called at both of its settings.
std::vector<Setting> settingsFor(const Call &call);

class Comparison {
public:
    Comparison(const Arena &arena, std::vector<LibraryCall> libraries, ModelRun run)
        : arena(arena), libraries(std::move(libraries)), runModel(std::move(run)) {}
    Comparison(const Arena &arena, LibraryCall library, ModelRun run)
        : Comparison(arena, std::vector{std::move(library)}, std::move(run)) {}

    // The arena holds the call's memory, and holds it again afterwards. The model runs once for all libraries.
    std::vector<Verdict> compareEach(const Call &call, Setting setting);
    Verdict compare(const Call &call, Setting setting) { return compareEach(call, setting).front(); }

    const Image &imageByLibrary() const { return byLibrary; } // the last one
    const Image &imageByModel() const { return byModel; }

private:
    std::int32_t callLibrary(const Call &call, Setting setting, const LibraryCall &library, Verdict &verdict);
    model::Outcome callModel(const Call &call, Setting setting);
    void compareMemory(const Call &call, const model::Outcome &outcome, Verdict &verdict);
    static void compareStatus(const Call &call, const model::Outcome &outcome, Verdict &verdict);
    Addresses accurateElements(const Call &call, const model::Outcome &outcome, Verdict &verdict) const;
    void judge(const std::vector<std::size_t> &differing, Verdict &verdict,
               const std::function<bool(std::uintptr_t)> &tolerated) const;

    const Arena &arena;
    std::vector<LibraryCall> libraries;
    ModelRun runModel;
    Image before, byLibrary, byModel;
};

} // namespace support
