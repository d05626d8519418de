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

} // namespace literal::names
