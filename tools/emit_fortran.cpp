// The Fortran modules: interfaces of all exports, and what of the generic names follows from the catalogue alone.
//
// vonkk3_<group>.f90        the exports of include/vonkk3/<group>.h, pointers as type(c_ptr), everything by value
// vonkk3_s2_<type>.f90      for the strided layout: one function per operation and operand group that takes views and
//                           calls the export of the order, and the generic names that need nothing else
#include "describe.h"
#include "emit.h"
#include "text.h"
#include "usage.h"

#include <algorithm>
#include <stdexcept>

namespace emit {
namespace {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Operand;
using catalogue::Parameter;
using catalogue::Type;

using Names = std::vector<std::string>;

// "a, b, c", broken with `&` where lines would get too long.
std::string list(std::string start, const Names &names, std::string_view end) {
    constexpr std::size_t room = text::lineWidth - 2; // for " &"
    const std::size_t indent = start.find_first_not_of(' ') + 4;
    std::string result, line = std::move(start);
    for (std::size_t k = 0; k < names.size(); ++k) {
        const std::string piece = names[k] + (k + 1 < names.size() ? "," : std::string(end));
        if (line.size() + piece.size() + 1 > room) {
            result += line + " &\n";
            line = std::string(indent, ' ') + piece;
        } else {
            line += (k > 0 ? " " : "") + piece;
        }
    }
    return result + line + "\n";
}

std::string typeOf(const Parameter &parameter) {
    if (parameter.type.ends_with('*')) return "type(c_ptr)";
    if (parameter.type == "float") return "real(c_float)";
    if (parameter.type == "double") return "real(c_double)";
    return "integer(c_int32_t)";
}

std::string moduleStart(std::string_view name, std::string_view about) {
    return text::wrapWords(about, "! ", "! ") +
           "!\n! Generated from the catalogue of functions; do not edit.\nmodule " + std::string(name) + "\n";
}

// ---- The interfaces

std::string interfaceOf(const Function &function) {
    Names names;
    std::vector<std::pair<std::string, Names>> declarations; // by type, in order of appearance
    for (const Parameter &parameter : function.parameters) {
        names.push_back(parameter.name);
        const std::string type = typeOf(parameter);
        auto at = std::ranges::find(declarations, type, &std::pair<std::string, Names>::first);
        if (at == declarations.end()) at = declarations.insert(at, {type, {}});
        at->second.push_back(parameter.name);
    }
    Names kinds{"c_int32_t"};
    std::string declared;
    for (const auto &[type, these] : declarations) {
        declared += list("        " + type + ", value :: ", these, "");
        const std::size_t open = type.find('(') + 1;
        const std::string kind = type.substr(open, type.size() - 1 - open);
        if (kind != "c_int32_t") kinds.push_back(kind);
    }
    std::string head = list("    function " + function.name + "(", names, ") &");
    return text::wrapWords(formula(function) + "; " + layoutInWords(function), "    ! ", "    ! ") + head +
           "            bind(C, name=\"" + function.name + "\") result(status)\n" +
           list("        import :: ", kinds, "") + declared +
           "        integer(c_int32_t) :: status\n    end function\n";
}

std::string interfaceModule(std::string_view group, const std::vector<Function> &functions) {
    const std::string name = "vonkk3_" + std::string(group);
    std::string titles;
    for (const catalogue::Section &section : catalogue::sections())
        if (section.header == group) titles += (titles.empty() ? "" : "; ") + std::string(section.title);
    std::string result =
        moduleStart(name, "vonkk3: " + titles + ". Interfaces of the exports; the comments of include/vonkk3/" +
                              std::string(group) + ".h hold. Strides and shifts are in bytes.") +
        "    use, intrinsic :: iso_c_binding, only: c_ptr, c_int32_t, c_float, c_double\n    implicit none\n"
        "    private :: c_ptr, c_int32_t, c_float, c_double\n\n    interface\n";
    for (const Function &function : functions)
        if (function.section->header == group) result += "\n" + interfaceOf(function);
    return result + "\n    end interface\nend module\n";
}

// ---- The strided layout by views

// What the generic names call, and the name of those that follow from the catalogue. An empty name: written by hand.
struct Use {
    std::string_view operation;
    std::string_view groups;
    std::string_view generic;
};

constexpr auto uses = std::to_array<Use>({
    {"Add", "vv vav vava mam mama", "add"},
    {"Sub", "vv vav vva vava mam mma mama", "subtract"},
    {"Mul", "vc vac mac", "scale"},
    {"Mul", "mv mva mav mava mam mma mama", "multiply"},
    {"Saxpy", "vv vav vva vava", "saxpy"},
    {"LComb", "vv vav vava", "combine"},
    {"DotProduct", "vv vav vava", "dot"},
    {"L2Norm", "v va", "norm"},
    {"CrossProduct", "vv vav vva vava", "cross"},
    {"Transpose", "m ma", "transpose"},
    {"Trace", "m ma", "trace"},
    {"FrobNorm", "m ma", "frobenius"},
    {"Gaxpy", "v va", "gaxpy"},
    {"LUDecomp", "m ma", ""},
    {"LUBackSubst", "mv mva mava", "lu_solve"},
    {"Det", "m ma", ""},
    {"Invert", "m ma", ""},
    {"CholeskyDecomp", "m ma", ""},
    {"CholeskyBackSubst", "mv mva mava", "cholesky_solve"},
    {"QRDecomp", "m ma", ""},
    {"QRBackSubst", "mv mva mava", ""},
});

Names words(std::string_view text) {
    Names result;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        result.emplace_back(word);
        text.remove_prefix(std::min(word.size() + 1, text.size()));
    }
    return result;
}

// The strided forms of one operation and group: run-time size, if there is one, and orders 3 to 6.
struct Forms {
    std::vector<const Function *> fixed;
    const Function *runTime = nullptr;
    const Function &any() const { return runTime != nullptr ? *runTime : *fixed.front(); }
    std::string name() const { return "s2_" + std::string(any().family->operation) + "_" + any().group; }
};

Forms formsOf(const std::vector<Function> &functions, Type type, std::string_view operation, std::string_view group) {
    Forms forms;
    for (const Function &function : functions) {
        if (function.family->operation != operation || function.group != group || function.type != type ||
            function.layout != "S2")
            continue;
        if (function.order == 0) forms.runTime = &function;
        else forms.fixed.push_back(&function);
    }
    if (forms.runTime == nullptr && forms.fixed.empty())
        throw std::logic_error("no strided form: " + std::string(operation) + "_" + std::string(group));
    return forms;
}

bool isStride(Kind kind) {
    return kind == Kind::objectStride || kind == Kind::rowStride || kind == Kind::elementStride ||
           kind == Kind::ignored;
}

std::string dimension(const Operand &operand, Kind kind) {
    if (kind == Kind::rowStride) return "1";
    if (kind == Kind::elementStride) return operand.matrix ? "2" : "1";
    return operand.matrix ? "3" : "2"; // objectStride
}

// The argument of an export that a parameter gets from views and from sizes of the same name.
std::string argument(const Function &function, const Parameter &parameter) {
    if (parameter.kind == Kind::ignored) return "0_c_int32_t";
    if (parameter.operand < 0) return parameter.name;
    const Operand &operand = function.operands[parameter.operand];
    if (parameter.kind == Kind::base) return operand.name + "%base";
    if (isStride(parameter.kind)) return operand.name + "%stride(" + dimension(operand, parameter.kind) + ")";
    return parameter.name;
}

std::string callOf(const Function &function, std::string_view indent) {
    Names arguments;
    for (const Parameter &parameter : function.parameters) arguments.push_back(argument(function, parameter));
    return list(std::string(indent) + "status = " + function.name + "(", arguments, ")");
}

// The run-time forms `mma` and `mama` of the product refuse what is not square in the result. The form that reads the
// second operand transposed does the same sums; with the strides and sizes of that operand exchanged it reads it as it
// is. It uses `src1Cols` for its check alone, which wants the columns of the second operand.
bool refusesRectangles(const Function &function) {
    return function.family->operation == "Mul" && (function.group == "mma" || function.group == "mama");
}

std::string callOfTransposed(const Function &function, const std::vector<Function> &functions) {
    const Forms forms = formsOf(functions, function.type, "Mul", function.group + "T");
    Names arguments;
    for (const Parameter &parameter : forms.runTime->parameters) {
        if (parameter.name == "src2RowStride") arguments.emplace_back("src2%stride(2)");
        else if (parameter.name == "src2ElemStride") arguments.emplace_back("src2%stride(1)");
        else if (parameter.name == "src1Cols") arguments.emplace_back("src2Cols");
        else arguments.push_back(argument(*forms.runTime, parameter));
    }
    return "            ! The form without T wants results to be square; this one reads src2 transposed, and its "
           "strides\n"
           "            ! and sizes are exchanged.\n" +
           list("            status = " + forms.runTime->name + "(", arguments, ")");
}

// The operand that a base belongs to, else the parameter itself: what a dispatcher and a wrapper take.
const Operand *operandOf(const Function &function, const Parameter &parameter) {
    return parameter.kind == Kind::base ? &function.operands[parameter.operand] : nullptr;
}

// The name, what it uses and its arguments: views in place of bases and strides, the rest as in the export.
std::string dispatcherHead(const Forms &forms, const std::vector<Function> &functions) {
    const Function &function = forms.any();
    Names names, views, pointers, constants, numbers, used;
    for (const Parameter &parameter : function.parameters) {
        if (isStride(parameter.kind)) continue;
        names.push_back(parameter.name);
        if (operandOf(function, parameter) != nullptr) views.push_back(parameter.name);
        else if (parameter.kind == Kind::dense) pointers.push_back(parameter.name);
        else if (parameter.kind == Kind::constant) constants.push_back(parameter.name);
        else numbers.push_back(parameter.name);
    }
    for (const Function *fixed : forms.fixed) used.push_back(fixed->name);
    if (refusesRectangles(function))
        used.push_back(formsOf(functions, function.type, "Mul", function.group + "T").runTime->name);
    else if (forms.runTime != nullptr) used.push_back(forms.runTime->name);
    std::string result = list("    function " + forms.name() + "(", names, ") result(status)");
    result += list("        use vonkk3_" + std::string(function.section->header) + ", only: ", used, "");
    result += list("        type(view), intent(in) :: ", views, "");
    if (!pointers.empty()) result += list("        type(c_ptr), intent(in) :: ", pointers, "");
    if (!constants.empty()) result += list("        real(wp), intent(in) :: ", constants, "");
    if (!numbers.empty()) result += list("        integer(c_int32_t), intent(in) :: ", numbers, "");
    return result + "        integer(c_int32_t) :: status\n";
}

// The order decides, if all sizes are equal.
std::string dispatcher(const Forms &forms, const std::vector<Function> &functions) {
    const Function &function = forms.any();
    std::string result = dispatcherHead(forms, functions);
    if (forms.runTime == nullptr)
        return result + "\n" + callOf(*forms.fixed.front(), "        ") + "    end function\n";
    std::string order, equal;
    for (const Parameter &parameter : function.parameters) {
        if (parameter.kind != Kind::size) continue;
        if (order.empty()) order = parameter.name;
        else equal += (equal.empty() ? "" : " .and. ") + parameter.name + " == " + order;
    }
    if (!equal.empty()) {
        result += "        integer(c_int32_t) :: order\n\n        order = merge(";
        result += order + ", 0_c_int32_t, " + equal + ")\n";
        order = "order";
    } else {
        result += "\n";
    }
    result += "        select case (" + order + ")\n";
    for (const Function *fixed : forms.fixed)
        result += "        case (" + std::to_string(fixed->order) + ")\n" + callOf(*fixed, "            ");
    result += "        case default\n";
    result +=
        refusesRectangles(function) ? callOfTransposed(function, functions) : callOf(*forms.runTime, "            ");
    return result + "        end select\n    end function\n";
}

// Where the value of a size parameter stands among the operands: `src1Cols` in src1, `order` in the first that has it.
// Fixed shapes are numbers.
std::string extent(const std::string &operand, int at) { return operand + "_%extent(" + std::to_string(at) + ")"; }

std::string valueOf(const Function &function, std::string_view size) {
    if (size.find_first_not_of("0123456789") == std::string_view::npos) return std::string(size) + "_c_int32_t";
    for (const Operand &operand : function.operands) {
        if (size == operand.name + "Rows" || size == operand.name + "Len") return extent(operand.name, 1);
        if (size == operand.name + "Cols") return extent(operand.name, 2);
    }
    for (const Operand &operand : function.operands) {
        const catalogue::Shape shape = shapeOf(function, operand);
        if (shape.rows == size) return extent(operand.name, 1);
        if (operand.matrix && shape.columns == size) return extent(operand.name, 2);
    }
    throw std::logic_error("no operand has the size " + std::string(size) + " of " + function.name);
}

int rankOf(const Operand &operand) { return 1 + int(operand.matrix) + int(operand.array); }

std::string colons(int rank) {
    std::string result;
    for (int k = 0; k < rank; ++k) result += k > 0 ? ", :" : ":";
    return rank > 0 ? "(" + result + ")" : "";
}

// A specific procedure of a generic name: views of the arrays, the sizes compared, the call.
class Wrapper {
public:
    explicit Wrapper(const Forms &forms) : forms(forms), function(forms.any()) {
        for (const Operand &operand : function.operands)
            if (operand.array && count.empty()) count = extent(operand.name, rankOf(operand));
        for (const Parameter &parameter : function.parameters) {
            if (isStride(parameter.kind)) continue;
            const Operand *operand = operandOf(function, parameter);
            if (operand != nullptr) takeOperand(*operand);
            else if (parameter.name == "pivots") takePivots(parameter);
            else if (parameter.kind == Kind::dense) takeResult(parameter);
            else if (parameter.kind == Kind::constant) take(parameter.name, "real(wp), intent(in)", 0, parameter.name);
            else if (parameter.kind == Kind::count) arguments.push_back(count);
            else takeSize(parameter);
        }
        names.emplace_back("status");
    }

    std::string text(std::string_view generic) const {
        std::string result = text::wrapWords(formula(function), "    ! ", "    ! ");
        result += list("    subroutine " + std::string(generic) + "_" + function.group + "(", names, ")");
        result += declarations + "        integer(c_int32_t), intent(out), optional :: status\n";
        result += list("        type(view) :: ", views, "") + "        integer(c_int32_t) :: s\n\n";
        std::string statuses;
        for (const std::string &view : views) {
            result += "        " + view + " = view_of(" + view.substr(0, view.size() - 1) + ")\n";
            statuses += (statuses.empty() ? "" : ", ") + view + "%status";
        }
        std::string conditions;
        for (const std::string &fit : fits) conditions += (conditions.empty() ? "" : " .and. &\n            ") + fit;
        result += "        s = joint_status([" + statuses + "], &\n            " + conditions + ")\n";
        result += "        if (s == vonkOk" + (function.array() ? " .and. " + count + " > 0" : "") + ") &\n";
        result += list("            s = " + forms.name() + "(", arguments, ")");
        return result + "        call conclude('vonk_" + std::string(generic) + "', s, status)\n    end subroutine\n";
    }

private:
    const Forms &forms;
    const Function &function;
    std::string count, declarations;
    Names names, arguments, views, fits;

    void take(const std::string &name, const std::string &type, int rank, const std::string &argument) {
        names.push_back(name);
        declarations += "        " + type + " :: " + name + colons(rank) + "\n";
        arguments.push_back(argument);
    }
    void fit(const std::string &left, const std::string &right) {
        if (left != right) fits.push_back(left + " == " + right);
    }

    void takeOperand(const Operand &operand) {
        const std::string intent = operand.written ? "inout" : "in";
        take(operand.name, "real(wp), intent(" + intent + "), target", rankOf(operand), operand.name + "_");
        views.push_back(operand.name + "_");
        const catalogue::Shape shape = shapeOf(function, operand);
        fit(extent(operand.name, 1), valueOf(function, shape.rows));
        if (operand.matrix) fit(extent(operand.name, 2), valueOf(function, shape.columns));
        if (operand.array) fit(extent(operand.name, rankOf(operand)), count);
    }
    void takePivots(const Parameter &pivots) {
        const bool several = lengthOf(function, pivots).find("count") != std::string::npos;
        take(pivots.name, "integer(c_int32_t), intent(in), target, contiguous", several ? 2 : 1, "c_loc(pivots)");
        fit("size(pivots, 1)", valueOf(function, "order"));
        if (several) fit("size(pivots, 2)", count);
    }
    // One number per object, packed.
    void takeResult(const Parameter &result) {
        const bool array = function.array();
        take(result.name, std::string("real(wp), intent(inout), target") + (array ? ", contiguous" : ""), int(array),
             "c_loc(" + result.name + ")");
        if (array) fit("size(" + result.name + ")", count);
    }
    void takeSize(const Parameter &size) {
        arguments.push_back(valueOf(function, size.name));
        const std::string isThere = arguments.back() + " > 0";
        if (std::ranges::find(fits, isThere) == fits.end()) fits.push_back(isThere);
    }
};

std::string stridedModule(const std::vector<Function> &functions, Type type) {
    const std::string name = "vonkk3_s2_" + std::string(suffix(type));
    std::string interfaces, bodies;
    for (const Use &use : uses) {
        Names specific;
        for (const std::string &group : words(use.groups)) {
            const Forms forms = formsOf(functions, type, use.operation, group);
            bodies += "\n" + dispatcher(forms, functions);
            interfaces += "    public :: " + forms.name() + "\n";
            if (use.generic.empty()) continue;
            bodies += "\n" + Wrapper(forms).text(use.generic);
            specific.push_back(std::string(use.generic) + "_" + group);
        }
        if (specific.empty()) continue;
        const std::string generic = "vonk_" + std::string(use.generic);
        interfaces += "    public :: " + generic + "\n";
        interfaces += "    interface " + generic + "\n";
        interfaces += list("        module procedure ", specific, "") + "    end interface\n";
    }
    return moduleStart(name, "The strided layout by views: a function per operation and operand group calls the export "
                             "of the order, or else that of run-time size; and the generic names that need no more. "
                             "Users take them from module vonkk3.") +
           "    use, intrinsic :: iso_c_binding, only: c_ptr, c_loc, c_int32_t, wp => " +
           (type == Type::real32 ? "c_float" : "c_double") +
           "\n    use vonkk3_views, only: view, view_of, joint_status, conclude\n    use vonkk3_types, only: vonkOk\n"
           "    implicit none\n    private\n" +
           interfaces + "contains\n" + bodies + "end module\n";
}

} // namespace

std::map<std::string, std::string> fortran() {
    const std::vector<Function> functions = catalogue::expand();
    std::map<std::string, std::string> result;
    for (const catalogue::Section &section : catalogue::sections()) {
        std::string &file = result["vonkk3_" + std::string(section.header) + ".f90"];
        if (file.empty()) file = interfaceModule(section.header, functions);
    }
    for (const Type type : {Type::real32, Type::real64})
        result["vonkk3_s2_" + std::string(suffix(type)) + ".f90"] = stridedModule(functions, type);
    return result;
}

} // namespace emit
