#include "support/selection.h"

#include <regex>
#include <stdexcept>

namespace support {

std::vector<catalogue::Function> functionsNamed(const std::string &expression) try {
    const std::regex wanted(expression, std::regex::extended | std::regex::nosubs);
    std::vector<catalogue::Function> functions = catalogue::expand();
    std::erase_if(functions, [&](const auto &function) { return !std::regex_search(function.name, wanted); });
    if (functions.empty()) throw std::runtime_error("no function is named so: " + expression);
    return functions;
} catch (const std::regex_error &) {
    throw std::runtime_error("no regular expression: " + expression);
}

} // namespace support
