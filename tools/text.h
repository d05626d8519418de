// Text helpers of the generator.
#pragma once

#include "catalogue.h"

#include <string>
#include <string_view>
#include <vector>

namespace text {

inline constexpr std::size_t lineWidth = 120;

// Joins pieces with ", ", breaking lines before a piece that would pass the line width.
std::string joinWrapped(std::string start, const std::vector<std::string> &pieces, std::string_view end,
                        std::string_view indent);

// Lines of words, as wide as they may be; the first line begins with one prefix, the others with another.
std::string wrapWords(std::string_view text, std::string_view first, std::string_view others);

// Every line with a prefix; no trailing blanks.
std::string prefixLines(std::string_view text, std::string_view prefix);

// "const float *src", "uint32_t count"
std::string declaration(const catalogue::Parameter &parameter);

// "VonkStatus vonkAdd_vv_32f(const float *src1, ...)" and what is to follow the list. In a definition ignored
// arguments have no name.
std::string prototype(const catalogue::Function &function, std::string_view end);
std::string definitionHead(const catalogue::Function &function);

} // namespace text
