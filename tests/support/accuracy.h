// How far the results of a family lie from the truth on matrices of a kind: for the forms whose sums may be taken in
// any order. The truth, and a bound that every order keeps, come from the model.
#pragma once

#include "catalogue.h"
#include "comparison.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace literal {

// Row by row; variants differ.
using MatrixOf = std::function<std::vector<double>(std::uint32_t order, std::uint32_t variant)>;

// Numbers from -1 to 1, and 4 more on the diagonal.
std::vector<double> wellConditioned(std::uint32_t order, std::uint32_t variant);

// The same, but the last row is nearly the one before.
std::vector<double> badlyConditioned(std::uint32_t order, std::uint32_t variant);

struct Measured {
    support::Accuracy accuracy;
    std::vector<std::string> complaints; // one for each result that does not keep its bound
};

// Over all members of a section that have this type and this fixed order.
Measured measure(std::string_view section, catalogue::Type type, int order, const MatrixOf &matrixOf,
                 std::uint32_t variants);

// "32f 4x4: 123 results, at most 2.5 units in the last place off, ..."
std::string describe(catalogue::Type type, int order, const Measured &measured);

} // namespace literal
