// The walk of the families that make each element of a vector out of the elements of the same index: forward over
// objects and elements, with the tests of sizes, entries and count in their order. A family says what it makes of the
// elements and how much of its operands it loads ahead of the stores.
#pragma once

#include "model/families.h"

#include <functional>
#include <string>
#include <vector>

namespace model {

// From the elements of the sources in their order to the element of the destination, before it is rounded to be stored.
struct ElementFormula {
    std::function<float(const std::vector<float> &)> real32;
    std::function<Wide(const std::vector<Wide> &)> real64;
};

// Of Real32 forms only.
struct LoadsAhead {
    bool wholeObjects = false; // an object is loaded in lanes, all of it before its first store
    bool single = false;       // the single vector beside an array is loaded once, ahead of the first object
};

Status walkVectors(const Execution &execution, const std::vector<std::string> &sources, const ElementFormula &formula,
                   LoadsAhead ahead);

} // namespace model
