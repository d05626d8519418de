// Every export is reached by its C++ call, with the arguments in their places: see emit_calls.cpp.
//
//     cpp_exports EXPORTS_FILE
#include "recorded.h"

#include <cstdarg>
#include <cstdio>
#include <fstream>
#include <set>
#include <string>
#include <vector>

void check_all();

namespace {

struct Call {
    std::string name;
    std::vector<long long> arguments;
};
std::vector<Call> calls;
std::set<std::string> reached;
int failures = 0;

std::string spelled(const std::vector<long long> &numbers) {
    std::string text;
    for (const long long number : numbers) text += " " + std::to_string(number);
    return text;
}

} // namespace

extern "C" void record(const char *name, int count, ...) {
    Call call{name, {}};
    va_list list;
    va_start(list, count);
    for (int at = 0; at < count; ++at) call.arguments.push_back(va_arg(list, long long));
    va_end(list);
    calls.push_back(call);
}

void expect_call(const char *name, bool ok, std::initializer_list<long long> arguments) {
    const std::vector<long long> wanted(arguments);
    if (ok && calls.size() == 1 && calls[0].name == name && calls[0].arguments == wanted) reached.insert(name);
    else {
        ++failures;
        std::printf("FAILED: %s(%s) is to be called, and %s\n", name, spelled(wanted).c_str(),
                    calls.empty() ? "nothing is"
                                  : (calls[0].name + "(" + spelled(calls[0].arguments) + ") is").c_str());
    }
    calls.clear();
}

void chosen(const char *name) { reached.insert(name); }

int main(int count, char **arguments) {
    if (count != 2) return std::puts("usage: cpp_exports EXPORTS_FILE"), 2;
    check_all();
    std::ifstream file(arguments[1]);
    std::size_t exports = 0;
    for (std::string name; std::getline(file, name); ++exports)
        if (reached.count(name) == 0) ++failures, std::printf("FAILED: no call reaches %s\n", name.c_str());
    std::printf("%zu of %zu exports are reached by a C++ call\n", reached.size(), exports);
    return failures == 0 && exports == reached.size() && exports > 5000 ? 0 : 1;
}
