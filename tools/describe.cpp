// See describe.h.
#include "describe.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace catalogue {
namespace {

// {1} to {3} are the sources.
struct Rule {
    std::string_view section, operation, text;
};
constexpr std::array rules = std::to_array<Rule>({
    {"vector-constant", "Add", "{1} + val"},
    {"vector-constant", "Sub", "{1} - val"},
    {"vector-constant", "Mul", "{1} * val"},
    {"vector-vector", "Add", "{1} + {2}"},
    {"vector-vector", "Sub", "{1} - {2}"},
    {"saxpy", "Saxpy", "{1} * val + {2}"},
    {"linear-combination", "LComb", "{1} * val1 + {2} * val2"},
    {"dot-product", "DotProduct", "dot product of {1} and {2}"},
    {"norm", "L2Norm", "Euclidean norm of {1}"},
    {"cross-product", "CrossProduct", "cross product {1} x {2}"},
    {"matrix-matrix", "Add", "{1} + {2}"},
    {"matrix-matrix", "Sub", "{1} - {2}"},
    {"matrix-constant", "Mul", "{1} * val"},
    {"transpose", "Transpose", "transpose of {1}"},
    {"trace", "Trace", "trace of {1}"},
    {"frobenius-norm", "FrobNorm", "Frobenius norm of {1}"},
    {"matrix-product", "Mul", "matrix product {1} {2}"},
    {"matrix-vector", "Mul", "matrix times vector {1} {2}"},
    {"gaxpy", "Gaxpy", "{1} {2} + {3}, matrix times vector plus vector"},
    {"copy", "Copy", "{1}, copied"},
    {"extract", "Extract", "{1}, gathered into a dense block"},
    {"identity", "LoadIdentity", "identity matrix"},
    {"lu-decomposition", "LUDecomp", "LU factors of {1} with partial pivoting"},
    {"lu-back-substitution", "LUBackSubst", "solution of A x = {2} from the LU factors {1} and pivots"},
    {"determinant", "Det", "determinant of {1}"},
    {"inverse", "Invert", "inverse of {1}"},
    {"cholesky-decomposition", "CholeskyDecomp", "Cholesky factor of {1}, diagonal inverted"},
    {"cholesky-back-substitution", "CholeskyBackSubst", "solution of A x = {2} from the Cholesky factor {1}"},
    {"qr-decomposition", "QRDecomp", "QR factors of {1}"},
    {"qr-back-substitution", "QRBackSubst", "least-squares solution of A x = {2} from the QR factors {1}"},
});

std::string_view ruleOf(const Function &function) {
    if (function.group == "cv" || function.group == "cva") return "val - {1}";
    const auto found = std::ranges::find_if(rules, [&](const Rule &rule) {
        return rule.section == function.section->id && rule.operation == function.family->operation;
    });
    if (found == rules.end()) throw std::logic_error("no line says what is computed: " + function.name);
    return found->text;
}

std::string inFormula(const Operand &operand) {
    return operand.name + (operand.array ? "(n)" : "") + (operand.transposed ? "'" : "");
}

// Where the result stands: in its layout, or packed.
std::string result(const Function &function) {
    if (!function.operands.empty() && function.operands.back().written) return inFormula(function.operands.back());
    if (function.section->id == "extract") return "dst";
    return function.array() ? "dst[n]" : "*dst";
}

std::string shape(const Function &function, bool ofMatrix) {
    const std::string order = std::to_string(function.order);
    const auto has = [&](std::string_view name) {
        return std::ranges::find(function.parameters, name, &Parameter::name) != function.parameters.end();
    };
    if (function.order != 0) return ofMatrix ? order + "x" + order : order;
    if (has("order")) return "`order` by `order`";
    if (has("len")) return "`len`";
    return ofMatrix ? "`rows` by `cols`" : "run-time size";
}

} // namespace

std::string formula(const Function &function) {
    std::string text = result(function) + " = ";
    const std::string_view rule = ruleOf(function);
    for (std::size_t at = 0; at < rule.size(); ++at) {
        if (rule[at] != '{') text += rule[at];
        else {
            text += inFormula(function.operands.at(std::size_t(rule[at + 1] - '1')));
            at += 2;
        }
    }
    return text;
}

std::string operandsInWords(const Function &function) {
    const bool ofMatrices = std::ranges::any_of(function.operands, &Operand::matrix);
    return shape(function, ofMatrices) + " " + std::string(element(function.type)) +
           (function.array() ? ", n below count" : "");
}

std::string layoutInWords(const Function &function) {
    if (function.section->id == "copy")
        return "from " + std::string(suffix(function.operands.front().layout)) + " to " +
               std::string(suffix(function.operands.back().layout));
    switch (function.operands.front().layout) {
    case Layout::standard: return "standard layout";
    case Layout::strided: return "S2, strided elements";
    case Layout::pointer: return "P, one pointer per element position";
    case Layout::stridedPointer: return "PS2, one pointer per element position, strided objects";
    case Layout::list: return "L, one pointer per object";
    case Layout::stridedList: return "LS2, one pointer per object, strided elements";
    }
    throw std::logic_error("a layout without words");
}

} // namespace catalogue
