// docs/functions.md: every family with its groups, sizes and layouts, and the header that has its section.
#include "catalogue.h"
#include "emit.h"

#include <algorithm>
#include <vector>

namespace emit {
namespace {

using catalogue::Family;
using catalogue::Function;

// The words in code style. "-" stands for a size among the parameters, "" for the standard layout.
std::string listed(const std::vector<std::string> &words, std::string_view nameless) {
    std::string list;
    for (const std::string &word : words)
        list += (list.empty() ? "" : " ") + (word.empty() ? std::string(nameless) : "`" + word + "`");
    return list;
}

template <class Word> std::vector<std::string> distinct(const std::vector<const Function *> &functions, Word word) {
    std::vector<std::string> words;
    for (const Function *function : functions)
        if (const std::string found = word(*function); std::ranges::find(words, found) == words.end())
            words.push_back(found);
    return words;
}

std::string size(const Function &function) {
    if (function.order == 0) return "";
    const std::string order = std::to_string(function.order);
    return order + (function.name.find(order + "x1") == std::string::npos ? "x" + order : "x1");
}

std::string row(const Family &family, const catalogue::Section *previous,
                const std::vector<const Function *> &members) {
    const Function &first = *members.front();
    std::string title;
    if (first.section != previous)
        title = "[" + std::string(first.section->title) + "](../include/vonkk3/" + std::string(first.section->header) +
                ".h), [page](reference/" + std::string(first.section->id) + ".md)";
    return "| " + title + " | `vonk" + std::string(family.operation) + "` | " +
           listed(distinct(members, [](const Function &f) { return f.group; }), "") + " | " +
           listed(distinct(members, [](const Function &f) { return std::string(suffix(f.type)); }), "") + " | " +
           listed(distinct(members, size), "run-time") + " | " +
           listed(distinct(members, [](const Function &f) { return f.layout; }), "standard") + " | " +
           std::to_string(members.size()) + " |\n";
}

} // namespace

std::string functions() {
    const std::vector<Function> all = catalogue::expand();
    std::string page = "# All functions\n\nGenerated from the catalogue of functions; do not edit.\n\n"
                       "A name is `vonk<Op>_<group>_<type>[_<size>][_<layout>]`. A row stands for every combination of "
                       "its columns, with one\nrestriction: groups without an `a` are single objects and have only the "
                       "standard layout, `S2` and `P`. See\n[the layouts](layouts.svg) and "
                       "[the exceptions](reference/exceptions.md).\n\n"
                       "| section of the header | Op | groups | types | sizes | layouts | functions |\n"
                       "|---|---|---|---|---|---|---|\n";
    const catalogue::Section *previous = nullptr;
    for (const Family &family : catalogue::families()) {
        std::vector<const Function *> members;
        for (const Function &function : all)
            if (function.family == &family) members.push_back(&function);
        page += row(family, previous, members);
        previous = members.front()->section;
    }
    return page + "\n" + std::to_string(all.size()) +
           " functions, and `vonkGetLibVersion`, which stands outside the grammar: " + std::to_string(all.size() + 1) +
           " exports.\n";
}

} // namespace emit
