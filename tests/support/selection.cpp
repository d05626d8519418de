#include "support/selection.h"

#include <regex.h>
#include <stdexcept>

namespace support {

std::vector<catalogue::Function> functionsNamed(const std::string &expression) {
    regex_t compiled{};
    if (regcomp(&compiled, expression.c_str(), REG_EXTENDED | REG_NOSUB) != 0)
        throw std::runtime_error("no regular expression: " + expression);
    std::vector<catalogue::Function> functions = catalogue::expand();
    std::erase_if(functions, [&](const catalogue::Function &function) {
        return regexec(&compiled, function.name.c_str(), 0, nullptr, 0) != 0;
    });
    regfree(&compiled);
    if (functions.empty()) throw std::runtime_error("no function is named so: " + expression);
    return functions;
}

} // namespace support
