// POSIX regular expressions, as far as the tests use them, by those of the standard library.
#pragma once

#include <regex>

struct regex_t {
    std::regex *compiled;
};
enum { REG_EXTENDED = 1, REG_NOSUB = 2 };

inline int regcomp(regex_t *expression, const char *text, int) {
    try {
        expression->compiled = new std::regex(text, std::regex::extended | std::regex::nosubs);
        return 0;
    } catch (const std::regex_error &) {
        return 1;
    }
}

inline int regexec(const regex_t *expression, const char *text, int, void *, int) {
    return std::regex_search(text, *expression->compiled) ? 0 : 1;
}

inline void regfree(regex_t *expression) { delete expression->compiled; }
