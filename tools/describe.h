// What a function computes, in a line: for completion and hover texts, man pages and search.
#pragma once

#include "catalogue.h"

#include <string>

namespace catalogue {

// "dst(n) = src1(n) + src2(n)"; src' is the transpose of src.
std::string formula(const Function &function);

// "4 float, n below count", "`rows` by `cols` double"
std::string operandsInWords(const Function &function);

// "P: one pointer per element position"
std::string layoutInWords(const Function &function);

} // namespace catalogue
