// The inner loops of the package's gufuncs and ufuncs, and what they leave for the thread that called.
#pragma once

#include "views.h"

namespace vonkk3 {

using Loop = void (*)(char **arguments, const Size *dimensions, const Size *steps, void *data);

// One gufunc, or ufunc where there is no signature.
struct Operation {
    const char *name;
    const char *signature; // or null
    int inputs, outputs;
    const char *types; // of inputs and outputs: T the element type, u pivots, s status
    Loop float32, float64;
};

std::span<const Operation> operations();

// Raise exceptions in Python; called without its lock. Defined by the module.
void reportNoMemory();
void reportInPlace();

// Objects that failed in this thread since it was asked last.
Size takeFailures();

} // namespace vonkk3
