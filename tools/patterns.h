// Patterns of names, written as in a shell: "vonkAdd_{mam,mamT}_32f_3x3{,_L}". Braces hold alternatives and may nest,
// `?` stands for one letter, `*` for any number of them, and a space separates patterns of one list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace patterns {

// All that the braces spell, in order; `?` and `*` stay. Throws std::invalid_argument where braces do not pair.
std::vector<std::string> alternatives(std::string_view list);

// Whether the whole name is what one alternative, free of braces, describes.
bool matches(std::string_view alternative, std::string_view name);

} // namespace patterns
