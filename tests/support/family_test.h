// What the literal tests of the families are written with: one header and the names that they all use.
#pragma once

#include "control.h"
#include "exceptional.h"
#include "literal.h"
#include "literal_checks.h"
#include "product_checks.h"

#include "vonkk3.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace literal::names {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Layout;
using catalogue::Operand;
using catalogue::Type;
using literal::Call;
using literal::callWith;
using literal::Factors;
using literal::Geometry;
using literal::isException;
using literal::wordOf;
using support::Precision;
using support::Rounding;
using support::Setting;
using support::SettingScope;

inline constexpr double infinity = std::numeric_limits<double>::infinity();

// What `all` of a family's tests may be asked for.
inline bool isAny(const Function &) { return true; }
inline bool isRunTime(const Function &function) { return function.order == 0; }
inline bool isFloat(const Function &function) { return function.type == Type::real32; }
inline bool isDouble(const Function &function) { return function.type == Type::real64; }
inline bool isArray(const Function &function) { return function.array(); }
inline bool isTabled(const Function &function) { return catalogue::isTable(function.operands.front().layout); }

// Floats of fixed size and adjacent elements, which are worked in SIMD lanes.
inline bool hasLanes(const Function &function) {
    return isFloat(function) && function.order != 0 && (function.layout.empty() || function.layout == "L");
}

// All operands but `dst`, of families that have one with a layout.
inline std::span<const Operand> sourcesOf(const Function &function) {
    return std::span(function.operands).first(function.operands.size() - 1);
}

} // namespace literal::names
