// The reference pages: one a family in Markdown, one of all exceptions, and an index of them.
#include "emit.h"
#include "exceptions.h"
#include "text.h"

#include <algorithm>

namespace emit {
namespace {

using catalogue::Exception;
using catalogue::ExceptionIndex;
using catalogue::Function;
using catalogue::Section;

constexpr std::string_view doNotEdit = "Generated from the catalogue of functions; do not edit.\n\n";

std::string code(std::string_view word) { return "`" + std::string(word) + "`"; }

std::string layoutName(const Function &function) { return function.layout.empty() ? "none" : code(function.layout); }

// Parameter lists of the run-time sizes; fixed sizes drop the dimensions. Types of one list differ in the element only.
std::string parameterTable(const Section &section, const std::vector<Function> &functions) {
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

// Each pattern of a list in code style.
std::string codeWords(std::string_view words) {
    std::string result;
    while (!words.empty()) {
        const std::string_view word = words.substr(0, words.find(' '));
        words.remove_prefix(std::min(word.size() + 1, words.size()));
        result += (result.empty() ? "" : " ") + code(word);
    }
    return result;
}

std::string exceptionTable(const Section &section, const ExceptionIndex &index) {
    std::string table = "| exception | class | functions | what differs |\n|---|---|---|---|\n";
    bool isEmpty = true;
    for (const Exception &row : catalogue::exceptions()) {
        if (row.section != section.id) continue;
        isEmpty = false;
        table += "| " + std::string(row.id) + " | " + std::string(name(row.what)) + " | " +
                 std::to_string(index.functionsOf(row).size()) + ": " + codeWords(row.functions) + " | " +
                 std::string(row.text) + " |\n";
    }
    return isEmpty ? "" : table;
}

std::string page(const Section &section, const std::vector<Function> &functions, const ExceptionIndex &index) {
    const auto count = std::ranges::count(functions, &section, &Function::section);
    const std::string exceptions = exceptionTable(section, index);
    return "# " + std::string(section.title) + "\n\n" + std::string(doNotEdit) + std::to_string(count) +
           " functions: " + std::string(section.summary) + ".\n\n" + std::string(section.text) + "\n\n## Overlap\n\n" +
           std::string(section.overlap) + "\n\n## Exceptions\n\n" +
           (exceptions.empty()
                ? "None.\n"
                : "Functions that deviate from the rules above. [All exceptions](exceptions.md) says how to "
                  "read the table.\n\n" +
                      exceptions) +
           "\n## Parameters\n\n"
           "Element type `float` in `32f`, `double` in `64f`. Forms of fixed size drop the sizes (and `scratch`) and "
           "keep the\n"
           "rest. Strides and shifts are `int32_t` in bytes, sizes and `count` are `uint32_t` unless said "
           "otherwise.\n\n" +
           parameterTable(section, functions);
}

constexpr std::string_view aboutExceptions =
    "Functions that deviate from the rules of their family. Exceptions are intended and stay as they are. The headers\n"
    "mark each function with its exceptions, and `functions.json` lists them, too.\n\n"
    "Functions are given as patterns of names, as in a shell: `{a,b}` is a or b, `{,_L}` is nothing or `_L`, `?` is "
    "any\n"
    "letter, `*` any letters. The number before the patterns says how many functions they match.\n\n"
    "No byte outside the operands is read or written, but where a family's page or an exception of the class `reads` "
    "says\n"
    "so.\n\n";

std::string classTable() {
    std::string table = "| class | what differs | exceptions |\n|---|---|---|\n";
    for (const catalogue::ExceptionClass exceptionClass : catalogue::exceptionClasses) {
        std::string ids;
        for (const Exception &row : catalogue::exceptions())
            if (row.what == exceptionClass)
                ids += (ids.empty() ? "[" : ", [") + std::string(row.id) + "](" + std::string(row.section) +
                       ".md#exceptions)";
        table += "| " + std::string(name(exceptionClass)) + " | " + std::string(meaning(exceptionClass)) + " | " + ids +
                 " |\n";
    }
    return table;
}

std::string exceptionsPage(const std::vector<Function> &functions, const ExceptionIndex &index) {
    const auto count =
        std::ranges::count_if(functions, [&](const Function &f) { return !index.exceptionsOf(f).empty(); });
    std::string page = "# Exceptions\n\n" + std::string(doNotEdit) + std::string(aboutExceptions) +
                       std::to_string(catalogue::exceptions().size()) + " exceptions concern " + std::to_string(count) +
                       " of " + std::to_string(functions.size()) + " functions.\n\n## By class\n\n" + classTable() +
                       "\n## By family\n";
    for (const Section &section : catalogue::sections())
        if (const std::string table = exceptionTable(section, index); !table.empty())
            page += "\n### " + std::string(section.title) + "\n\n" + table;
    return page;
}

} // namespace

std::map<std::string, std::string> reference() {
    const std::vector<Function> functions = catalogue::expand();
    const ExceptionIndex index(catalogue::exceptions(), functions);
    std::map<std::string, std::string> pages;
    std::string contents = "# Reference\n\n" + std::string(doNotEdit) +
                           "| family | functions | exceptions | what it does |\n|---|---|---|---|\n";
    for (const Section &section : catalogue::sections()) {
        const auto count = std::ranges::count(functions, &section, &Function::section);
        const auto exceptions = std::ranges::count(catalogue::exceptions(), section.id, &Exception::section);
        const std::string title = "[" + std::string(section.title) + "](" + std::string(section.id) + ".md)";
        contents += "| " + title + " | " + std::to_string(count) + " | " + std::to_string(exceptions) + " | " +
                    std::string(section.summary) + " |\n";
        pages[std::string(section.id) + ".md"] = page(section, functions, index);
    }
    pages["exceptions.md"] = exceptionsPage(functions, index);
    pages["README.md"] = contents + "\n[All exceptions](exceptions.md) by class and by family.\n";
    return pages;
}

} // namespace emit
