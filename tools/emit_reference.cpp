// The reference pages: one a family in Markdown, and an index of them.
#include "emit.h"
#include "text.h"

#include <algorithm>

namespace emit {
namespace {

using catalogue::Function;

std::string code(std::string_view word) { return "`" + std::string(word) + "`"; }

std::string layoutName(const Function &function) { return function.layout.empty() ? "none" : code(function.layout); }

// Parameter lists of the run-time sizes; fixed sizes drop the dimensions. Types of one list differ in the element only.
std::string parameterTable(const catalogue::Section &section, const std::vector<Function> &functions) {
    std::string table = "| function | layout | parameters |\n|---|---|---|\n";
    const bool hasRunTimeSize =
        std::ranges::any_of(functions, [&](const Function &f) { return f.section == &section && f.order == 0; });
    for (const Function &function : functions) {
        if (function.section != &section || function.type != catalogue::Type::real32) continue;
        if (hasRunTimeSize && function.order != 0) continue;
        table += "| " + code("vonk" + std::string(function.family->operation) + "_" + function.group) + " | " +
                 layoutName(function) + " | ";
        for (std::size_t k = 0; k < function.parameters.size(); ++k)
            table += (k > 0 ? ", " : "") + code(function.parameters[k].name);
        table += " |\n";
    }
    return table;
}

std::string page(const catalogue::Section &section, const std::vector<Function> &functions) {
    const auto count = std::ranges::count(functions, &section, &Function::section);
    return "# " + std::string(section.title) + "\n\nGenerated from the catalogue of functions; do not edit.\n\n" +
           std::to_string(count) + " functions: " + std::string(section.summary) + ".\n\n" + std::string(section.text) +
           "\n\n## Overlap\n\n" + std::string(section.overlap) + "\n\n## Read beyond the operands\n\n" +
           std::string(section.reads) + "\n\n## Parameters\n\n" +
           "Element type `float` in `32f`, `double` in `64f`. Forms of fixed size drop the sizes and keep the rest; "
           "strides\n"
           "and shifts are `int32_t` in bytes, sizes and `count` are `uint32_t`.\n\n" +
           parameterTable(section, functions);
}

} // namespace

std::map<std::string, std::string> reference() {
    const std::vector<Function> functions = catalogue::expand();
    std::map<std::string, std::string> pages;
    std::string index = "# Reference\n\nGenerated from the catalogue of functions; do not edit.\n\n"
                        "| family | functions | what it does |\n|---|---|---|\n";
    for (const catalogue::Section &section : catalogue::sections()) {
        const auto count = std::ranges::count(functions, &section, &Function::section);
        const std::string title = "[" + std::string(section.title) + "](" + std::string(section.id) + ".md)";
        index += "| " + title + " | " + std::to_string(count) + " | " + std::string(section.summary) + " |\n";
        pages[std::string(section.id) + ".md"] = page(section, functions);
    }
    pages["README.md"] = index;
    return pages;
}

} // namespace emit
