// Writes the sources of the test `cpp_exports`: a library that only records which export was called with what, and for
// every export the C++ call that must lead to it, with the arguments that it must get there. Of fixed sizes other than
// 3 it is the choice of the export for the operands' types alone, made by the compiler: the arguments do not hang on
// the size, and whole calls take four times as long to compile.
//
//     emit_calls FOLDER
#include "catalogue.h"
#include "text.h"

#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

namespace {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Operand;
using catalogue::Parameter;

// Sizes are different from each other, so that none can stand for another: a product is m by k times k by n.
constexpr int m = 9, k = 8, n = 7;

struct Dimensions {
    int rows, columns;
};

// Of an operand as it enters the operation.
Dimensions entering(const Function &function, const Operand &operand) {
    const std::string_view section = function.section->id;
    const int order = function.order;
    if (order != 0) return {order, operand.matrix ? order : 1};
    if (section == "matrix-product")
        return operand.name == "src1" ? Dimensions{m, k} : operand.name == "src2" ? Dimensions{k, n} : Dimensions{m, n};
    if (section == "matrix-vector")
        return operand.name == "src1" ? Dimensions{m, k} : Dimensions{operand.written ? m : k, 1};
    if (section == "gaxpy" || section == "qr-back-substitution") {
        if (operand.matrix) return {m, n};
        return {(section == "gaxpy") == (operand.name == "src2") ? n : m, 1};
    }
    if (section == "transpose" && operand.written) return {n, m};
    if (function.family->parameters.find("order?") != std::string_view::npos) return {m, operand.matrix ? m : 1};
    return {m, operand.matrix ? n : 1};
}

// What the export must get as a size.
int sizeOf(const Function &function, const std::string &name) {
    // One product takes its second matrix as it is stored, and one gathering the shape of its table.
    const bool stored = function.name == "vonkMul_mmT_32f" || function.name == "vonkMul_mmT_64f";
    const bool table = function.family->operation == "Extract" && function.group == "mT" && function.layout == "P";
    static const std::map<std::string, int> sizes{{"src1Cols", k}, {"src1Rows", m}, {"src2Cols", n},
                                                  {"src2Rows", k}, {"src2Len", k},  {"cols", n},
                                                  {"rows", m},     {"len", m},      {"order", m}};
    if (stored && name == "src2Cols") return k;
    if (stored && name == "src2Rows") return n;
    if (table) return name == "rows" ? n : m;
    return sizes.at(name);
}

int blockAddress(const std::string &name) {
    static const std::map<std::string, int> addresses{
        {"dst", 0x7000}, {"pivots", 0x8000}, {"scratch", 0x9000}, {"work", 0xa000}};
    return addresses.at(name);
}

// The values that the operand's view has; see `view` below.
std::string expectation(const Function &function, const Parameter &parameter) {
    const int base = 1000 * (parameter.operand + 1);
    switch (parameter.kind) {
    case Kind::base:
    case Kind::table:
    case Kind::list: return std::to_string(0x10000 * (parameter.operand + 1));
    case Kind::dense: return std::to_string(blockAddress(parameter.name));
    case Kind::objectStride: return std::to_string(base + 1);
    case Kind::rowStride: return std::to_string(base + 2);
    case Kind::elementStride: return std::to_string(base + 3);
    case Kind::shift: return std::to_string(base + 4);
    case Kind::ignored: return "0";
    case Kind::size: return std::to_string(sizeOf(function, parameter.name));
    case Kind::count: return "5";
    case Kind::constant: return parameter.name == "val2" ? "18" : "10"; // four times the number
    }
    throw std::logic_error("a parameter of no kind");
}

Dimensions stored(const Function &function, const Operand &operand) {
    const Dimensions size = entering(function, operand);
    return operand.transposed ? Dimensions{size.columns, size.rows} : size;
}

// The arguments of the template vonk::View.
std::string viewType(const Function &function, const Operand &operand) {
    const std::string layout =
        operand.layout == catalogue::Layout::standard ? "standard" : std::string(suffix(operand.layout));
    const std::string singular = operand.matrix ? "matrix" : "vector", plural = operand.matrix ? "matrices" : "vectors";
    const std::string kind = (operand.transposed ? "transposed_" : "") + (operand.array ? plural : singular);
    // Of one object the list's layouts are plain ones.
    const std::string plain = operand.array || !isList(operand.layout)    ? layout
                              : operand.layout == catalogue::Layout::list ? "standard"
                                                                          : "S2";
    const Dimensions size = stored(function, operand);
    const bool fixed = function.order != 0;
    std::ostringstream text;
    text << (operand.written ? "" : "const ") << element(function.type) << ", " << (fixed ? size.rows : 0) << ", "
         << (fixed || !operand.matrix ? size.columns : 0) << ", Layout::" << plain << ", Kind::" << kind;
    return text.str();
}

std::string viewOf(const Function &function, int index) {
    const Operand &operand = function.operands[index];
    const Dimensions size = stored(function, operand);
    return "view<" + viewType(function, operand) + ">(" + std::to_string(index + 1) + ", " + std::to_string(size.rows) +
           ", " + std::to_string(size.columns) + ")";
}

// The choice of the export by the types of the operands, as the operations make it.
std::string choiceOf(const Function &function) {
    std::string group = function.group, kinds, types;
    if (function.family->operands == "m@@") group = "m" + group + group;
    for (const char letter : group) {
        if (letter != 'a' && letter != 'T') kinds += kinds.empty() ? "vonk::exports::" : ", vonk::exports::";
        kinds += letter;
    }
    for (const Operand &operand : function.operands) types += ", vonk::View<" + viewType(function, operand) + ">";
    return "vonk::detail::Choice<true, vonk::exports::" + std::string(function.family->operation) + "<" + kinds + ">" +
           types + ">::function()";
}

std::string block(const char *type, const char *name) {
    return "at<" + std::string(type) + ">(" + std::to_string(blockAddress(name)) + ")";
}

// How the call is written: `1` to `3` for sources, `d` for the destination, and the words of blocks and numbers.
std::string callOf(const Function &function) {
    const std::string operation(function.family->operation), group = function.group;
    const bool numbers = group.find('c') != std::string::npos;
    const std::string type(element(function.type));
    const std::string source = viewOf(function, 0), last = viewOf(function, int(function.operands.size()) - 1);
    const auto source2 = [&] { return viewOf(function, 1); };
    const std::string dst = block(type.c_str(), "dst"), work = block(type.c_str(), "work");
    const std::string scratch = function.order != 0 ? "" : ", " + block("void", "scratch");
    const std::string pivots = block("std::uint32_t", "pivots");
    const std::map<std::string, std::string> sums{{"Add", "add"}, {"Sub", "subtract"}};
    if (const auto sum = sums.find(operation); sum != sums.end()) {
        if (group.starts_with('c')) return sum->second + "(2.5, " + source + ", " + last + ")";
        return sum->second + "(" + source + ", " + (numbers ? "2.5" : source2()) + ", " + last + ")";
    }
    if (operation == "Mul" && numbers) return "scale(" + source + ", 2.5, " + last + ")";
    if (operation == "Mul") return "multiply(" + source + ", " + source2() + ", " + last + ")";
    if (operation == "Saxpy") return "saxpy(" + source + ", 2.5, " + source2() + ", " + last + ")";
    if (operation == "LComb") return "combine(" + source + ", 2.5, " + source2() + ", 4.5, " + last + ")";
    if (operation == "CrossProduct") return "cross(" + source + ", " + source2() + ", " + last + ")";
    if (operation == "DotProduct") return "dot(" + source + ", " + source2() + ", " + dst + ")";
    if (operation == "L2Norm") return "norm(" + source + ", " + dst + ")";
    if (operation == "Trace") return "trace(" + source + ", " + dst + ")";
    if (operation == "FrobNorm") return "frobenius(" + source + ", " + dst + ")";
    if (operation == "Extract") return "extract(" + source + ", " + dst + ")";
    if (operation == "Transpose") return "transpose(" + source + ", " + last + ")";
    if (operation == "Copy") return "copy(" + source + ", " + last + ")";
    if (operation == "LoadIdentity") return "identity(" + last + ")";
    if (operation == "Gaxpy")
        return "gaxpy(" + source + ", " + source2() + ", " + viewOf(function, 2) + ", " + last + ")";
    if (operation == "LUDecomp") return "lu(" + source + ", " + pivots + ", " + last + ")";
    if (operation == "LUBackSubst") return "lu_solve(" + source + ", " + pivots + ", " + source2() + ", " + last + ")";
    if (operation == "Det") return "determinant(" + source + ", " + dst + scratch + ")";
    if (operation == "Invert") return "inverse(" + source + ", " + last + scratch + ")";
    if (operation == "CholeskyDecomp") return "cholesky(" + source + ", " + last + ")";
    if (operation == "CholeskyBackSubst") return "cholesky_solve(" + source + ", " + source2() + ", " + last + ")";
    if (operation == "QRDecomp") return "qr(" + source + ", " + last + ", " + work + ")";
    if (operation == "QRBackSubst") return "qr_solve(" + source + ", " + source2() + ", " + last + ", " + work + ")";
    throw std::logic_error("no C++ operation for " + operation);
}

constexpr std::string_view opening = R"(// Generated: the C++ call of each export and the arguments that it must pass.
#define NDEBUG
#include "recorded.h"
#include <vonkk3.hpp>

using vonk::Kind;
using vonk::Layout;

namespace {

template <class T> T *at(std::uintptr_t address) { return reinterpret_cast<T *>(address); }

template <class T, vonk::Size R, vonk::Size C, Layout L, Kind K> auto view(int operand, vonk::Size rows, vonk::Size columns) {
    using V = vonk::View<T, R, C, L, K>;
    const int base = 1000 * operand;
    return V(reinterpret_cast<typename V::pointer>(std::uintptr_t(0x10000) * operand), V::is_array ? 5 : 1, rows, columns,
             {base + 1, base + 2, base + 3, base + 4});
}

} // namespace

)";

std::string callsFile(const std::string &name, const std::vector<const Function *> &functions) {
    std::string file(opening);
    file += "void check_" + name + "() {\n";
    for (const Function *function : functions) {
        if (function->order > 3) {
            file += "    static_assert(" + choiceOf(*function) + " == &" + function->name + ");\n    chosen(\"" +
                    function->name + "\");\n";
            continue;
        }
        std::string values;
        for (const Parameter &parameter : function->parameters)
            values += (values.empty() ? "" : ", ") + expectation(*function, parameter);
        file += "    expect_call(\"" + function->name + "\", vonk::exact::" + callOf(*function) + ".ok(), {" + values +
                "});\n";
    }
    return file + "}\n";
}

std::string recorder(const std::vector<Function> &functions) {
    std::string file = "/* Generated: a library whose functions only record their calls. */\n#include \"recorded.h\"\n"
                       "#include <vonkk3.h>\n\n";
    for (const Function &function : functions) {
        file += text::prototype(function, "") + " {\n    record(\"" + function.name + "\", " +
                std::to_string(function.parameters.size());
        for (const Parameter &parameter : function.parameters)
            file += parameter.kind == Kind::constant ? ", (long long)(4 * " + parameter.name + ")"
                    : parameter.type.ends_with('*')  ? ", (long long)(intptr_t)" + parameter.name
                                                     : ", (long long)" + parameter.name;
        file += ");\n    return vonkOk;\n}\n";
    }
    return file + "const VonkLibVersion *vonkGetLibVersion(void) {\n    static VonkLibVersion version;\n"
                  "    record(\"vonkGetLibVersion\", 0);\n    return &version;\n}\n";
}

} // namespace

int main(int count, char **arguments) try {
    if (count != 2) throw std::runtime_error("usage: emit_calls FOLDER");
    const std::string folder = arguments[1];
    const auto write = [&](const std::string &name, const std::string &content) {
        std::ofstream file(folder + "/" + name, std::ios::binary);
        if (!(file << content).flush()) throw std::runtime_error("cannot write " + folder + "/" + name);
    };
    const std::vector<Function> functions = catalogue::expand();
    std::map<std::string, std::vector<const Function *>> parts;
    for (const Function &function : functions)
        parts[std::string(function.section->header) + "_" + std::string(suffix(function.type))].push_back(&function);
    std::string all = "// Generated: all parts.\n#include \"recorded.h\"\n#include <vonkk3/status.hpp>\n\n", calls;
    for (const auto &[name, members] : parts) {
        write("calls_" + name + ".cpp", callsFile(name, members));
        all += "void check_" + name + "();\n";
        calls += "    check_" + name + "();\n";
    }
    write("calls_all.cpp", all + "\nvoid check_all() {\n" + calls +
                               "    vonk::version();\n    expect_call(\"vonkGetLibVersion\", true, {});\n}\n");
    write("recorder.c", recorder(functions));
    return 0;
} catch (const std::exception &error) {
    std::cerr << "emit_calls: " << error.what() << "\n";
    return 1;
}
