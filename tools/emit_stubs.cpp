// The export stubs: one function each, which bundles its arguments into operands and calls the family's routine.
#include "emit.h"
#include "text.h"

#include <algorithm>
#include <stdexcept>

namespace emit {
namespace {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Operand;
using catalogue::Parameter;

std::string_view layoutTag(catalogue::Layout layout) {
    return layout == catalogue::Layout::standard ? "Standard" : suffix(layout);
}

// "Matrices<const Real32, L>{src1, src1Shift, src1RowStride}"
std::string operandExpression(const Function &function, int index) {
    const Operand &operand = function.operands[index];
    std::string type =
        operand.matrix ? (operand.array ? "Matrices" : "Matrix") : (operand.array ? "Vectors" : "Vector");
    type += operand.written ? "<" : "<const ";
    type += function.type == catalogue::Type::real32 ? "Real32, " : "Real64, ";
    type += layoutTag(operand.layout);
    std::string words;
    for (const Parameter &parameter : function.parameters)
        if (parameter.operand == index && parameter.kind != Kind::ignored)
            words += (words.empty() ? "" : ", ") + parameter.name;
    const std::string expression = type + ">{" + words + "}";
    return operand.transposed ? "Transposed{" + expression + "}" : expression;
}

// One argument of the routine per word of the template: operands, blocks, sizes as types or values, the object count.
std::vector<std::string> arguments(const Function &function) {
    std::vector<std::string> list;
    const std::string extent = "fixed<" + std::to_string(function.order) + ">";
    std::string_view rest = function.family->parameters;
    while (!rest.empty()) {
        std::string word(rest.substr(0, rest.find(' ')));
        rest.remove_prefix(std::min(word.size() + 1, rest.size()));
        const bool dimension = word.ends_with('?');
        if (dimension) word.pop_back();
        const bool block = word.ends_with('*');
        if (block) word.pop_back();
        if (dimension && block && function.order != 0) continue; // scratch memory is for run-time sizes only

        const auto operand = std::ranges::find(function.operands, word, &Operand::name);
        const auto parameter = std::ranges::find(function.parameters, word, &Parameter::name);
        const bool isSigned = parameter != function.parameters.end() && parameter->type == "int32_t";
        const std::string size = isSigned ? "std::uint32_t(" + word + ")" : word; // the routine knows the sign
        if (operand != function.operands.end())
            list.push_back(operandExpression(function, int(operand - function.operands.begin())));
        else if (word == "count") list.push_back(function.array() ? "Objects{" + size + "}" : "oneObject");
        else if (dimension && !block) list.push_back(function.order != 0 ? extent : "RunTime{" + size + "}");
        else list.push_back(word); // a block or a constant goes as it is
    }
    return list;
}

// "lu::decompose" is declared in "lu/decompose.h".
std::string headerOf(std::string_view routine) {
    const std::size_t separator = routine.find("::");
    if (separator == std::string_view::npos) throw std::logic_error("a family has no routine");
    const std::string folder(routine.substr(0, separator));
    std::string file;
    for (const char letter : routine.substr(separator + 2, routine.find('<') - separator - 2)) {
        if (letter >= 'A' && letter <= 'Z') file += '_';
        file += char(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
    }
    return folder + "/" + file + ".h";
}

std::string opening(const catalogue::Family &family) {
    return "// Generated: exported functions of vonk" + std::string(family.operation) +
           ".\n"
           "#include \"frame/exports.h\"\n"
           "#include \"" +
           headerOf(family.routine) +
           "\"\n\n"
           "using namespace vonkk3;\n"
           "using enum vonkk3::Layout;\n";
}

// A function that is another one under a second name.
std::string secondName(const Function &function, const std::string &body) {
    return "\n" + text::prototype(function, "") + "\n__attribute__((alias(\"" + body + "\")));\n";
}

std::string stub(const Function &function) {
    if (const std::string body = catalogue::bodyOf(function); body != function.name) return secondName(function, body);
    const std::string call = "{ return " + std::string(function.family->routine) + "(";
    return "\n" + text::definitionHead(function) + "\n" + text::joinWrapped(call, arguments(function), "); }", "    ") +
           "\n";
}

} // namespace

std::map<std::string, std::string> stubs() {
    std::map<std::string, std::string> files;
    for (const Function &function : catalogue::expand()) {
        const std::string file = std::string(function.section->id) + "_" + std::string(function.family->operation) +
                                 "_" + std::string(suffix(function.type)) + ".cpp";
        std::string &content = files[file];
        if (content.empty()) content = opening(*function.family);
        content += stub(function);
    }
    return files;
}

std::string exports() {
    std::vector<std::string> names{"vonkGetLibVersion"};
    for (const Function &function : catalogue::expand()) names.push_back(function.name);
    std::ranges::sort(names);
    std::string result;
    for (const std::string &name : names) result += name + "\n";
    return result;
}

} // namespace emit
