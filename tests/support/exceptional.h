// Which functions the table of exceptions is about, for tests: no test lists them again.
#pragma once

#include "catalogue.h"
#include "exceptions.h"

#include <string_view>

namespace literal {

// Of all functions.
const catalogue::ExceptionIndex &exceptionIndex();

// Throws std::out_of_range where the table has no such row.
bool isException(const catalogue::Function &function, std::string_view id);

// Whether a row of this class whose id ends so is about the function.
bool hasExceptionOf(const catalogue::Function &function, std::string_view ending, catalogue::ExceptionClass what);

} // namespace literal
