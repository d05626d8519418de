// Runs one call through the library and through the model on the same memory and compares what they leave: the status,
// every byte of the arena, and the processor's control state.
#pragma once

#include "arena.h"
#include "calls.h"
#include "model/model.h"

#include <functional>
#include <span>
#include <string>

namespace support {

// Both work on the arena. That they are functions lets a test put a faulty one in the library's place.
using LibraryCall = std::function<std::int32_t(const Call &)>;
using ModelRun = std::function<model::Outcome(const model::Call &)>;

enum class Extent {
    full,         // every byte agrees
    nanTolerated, // every byte but the signs and payloads of NaNs
    statusOnly,   // the rest hangs on what is left open; nothing was touched that the call has no business with
};

struct Verdict {
    bool passed = true;
    Extent extent = Extent::full;
    std::int32_t status = 0; // the library's
    bool worked = false;     // the model wrote something
    std::string complaint;   // of a failed call, line by line
};

class Comparison {
public:
    Comparison(const Arena &arena, LibraryCall library, ModelRun run)
        : arena(arena), library(std::move(library)), runModel(std::move(run)) {}

    // The arena holds the call's memory, and holds it again afterwards.
    Verdict compare(const Call &call, Setting setting);

    const Image &imageBefore() const { return before; }
    const Image &imageByLibrary() const { return byLibrary; }
    const Image &imageByModel() const { return byModel; }

private:
    std::int32_t callLibrary(const Call &call, Setting setting, Verdict &verdict);
    model::Outcome callModel(const Call &call, Setting setting);
    void compareMemory(const Call &call, const model::Outcome &outcome, Verdict &verdict);
    void compareStatus(const model::Outcome &outcome, Verdict &verdict) const;
    void judge(const std::vector<std::size_t> &differing, Verdict &verdict,
               const std::function<bool(std::uintptr_t)> &tolerated) const;

    const Arena &arena;
    LibraryCall library;
    ModelRun runModel;
    Image before, byLibrary, byModel;
};

} // namespace support
