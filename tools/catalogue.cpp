// The table of families and its expansion into functions. See catalogue.h.
#include "catalogue.h"

#include <algorithm>
#include <stdexcept>

namespace catalogue {
namespace {

constexpr std::string_view bothTypes = "32f 64f";
constexpr std::string_view matrixSizes = "- 3x3 4x4 5x5 6x6";
constexpr std::string_view vectorSizes = "- 3x1 4x1 5x1 6x1";
constexpr std::string_view runTimeSize = "-";
constexpr std::string_view sixLayouts; // empty: what the group's product gives

constexpr std::string_view sumGroups = "mm mmT mTm mTmT mam mamT maTm maTmT mama mamaT maTma maTmaT";
constexpr std::string_view differenceGroups = "mm mmT mTm mTmT mma mmaT mTma mTmaT "
                                              "mam mamT maTm maTmT mama mamaT maTma maTmaT";

// One row a family, in header order.
constexpr std::array familyTable = std::to_array<Family>({
    // Vectors and constants
    {"vector-constant", "Add", "vc vac", bothTypes, vectorSizes, sixLayouts, "@", 'v', "src val dst len? count",
     "vector::combineConstant<Sum>"},
    {"vector-constant", "Sub", "vc vac", bothTypes, vectorSizes, sixLayouts, "@", 'v', "src val dst len? count",
     "vector::combineConstant<Difference>"},
    {"vector-constant", "Sub", "cv cva", bothTypes, vectorSizes, sixLayouts, "@", 'v', "src val dst len? count",
     "vector::combineConstant<vector::ReversedDifference>"},
    {"vector-constant", "Mul", "vc vac", bothTypes, vectorSizes, sixLayouts, "@", 'v', "src val dst len? count",
     "vector::combineConstant<vector::Product>"},
    // Vectors and vectors
    {"vector-vector", "Add", "vv vav vava", bothTypes, vectorSizes, sixLayouts, "@", 'v', "src1 src2 dst len? count",
     "vector::combine<Sum>"},
    {"vector-vector", "Sub", "vv vav vva vava", bothTypes, vectorSizes, sixLayouts, "@", 'v',
     "src1 src2 dst len? count", "vector::combine<Difference>"},
    {"saxpy", "Saxpy", "vv vav vva vava", bothTypes, vectorSizes, sixLayouts, "@", 'v', "src1 val src2 dst len? count",
     "vector::saxpy"},
    {"linear-combination", "LComb", "vv vav vava", bothTypes, vectorSizes, sixLayouts, "@", 'v',
     "src1 val1 src2 val2 dst len? count", "vector::combineLinearly"},
    // Products and norm of vectors
    {"dot-product", "DotProduct", "vv vav vava", bothTypes, vectorSizes, sixLayouts, "@", '-',
     "src1 src2 dst* len? count", "vector::dotProduct"},
    {"norm", "L2Norm", "v va", bothTypes, vectorSizes, sixLayouts, "@", '-', "src dst* len? count", "vector::norm"},
    {"cross-product", "CrossProduct", "vv vav vva vava", bothTypes, "3x1", sixLayouts, "@", 'v', "src1 src2 dst count",
     "vector::crossProduct"},
    // Matrices element by element
    {"matrix-matrix", "Add", sumGroups, bothTypes, matrixSizes, sixLayouts, "@", 'm', "src1 src2 dst cols? rows? count",
     "matrix::combine<Sum>"},
    {"matrix-matrix", "Sub", differenceGroups, bothTypes, matrixSizes, sixLayouts, "@", 'm',
     "src1 src2 dst cols? rows? count", "matrix::combine<Difference>"},
    {"matrix-constant", "Mul", "mc mTc mac maTc", bothTypes, matrixSizes, sixLayouts, "@", 'm',
     "src val dst cols? rows? count", "matrix::scale"},
    {"transpose", "Transpose", "m ma", bothTypes, matrixSizes, sixLayouts, "@", 'm', "src cols? rows? dst count",
     "matrix::transpose"},
    {"trace", "Trace", "m ma", bothTypes, matrixSizes, sixLayouts, "@", '-', "src order? dst* count", "matrix::trace"},
    {"frobenius-norm", "FrobNorm", "m ma", bothTypes, matrixSizes, sixLayouts, "@", '-', "src cols? rows? dst* count",
     "matrix::frobeniusNorm"},
    // Products of matrices
    {"matrix-product", "Mul", differenceGroups, bothTypes, matrixSizes, sixLayouts, "@", 'm',
     "src1 src1Cols? src1Rows? src2 src2Cols? src2Rows? dst count", "product::multiply"},
    {"matrix-vector", "Mul", "mv mTv mva mTva mav maTv mava maTva", bothTypes, matrixSizes, sixLayouts, "@", 'v',
     "src1 src1Cols? src1Rows? src2 src2Len? dst count", "product::multiplyVector"},
    {"gaxpy", "Gaxpy", "v va", bothTypes, matrixSizes, sixLayouts, "m@@", 'v', "src1 src2 src3 dst cols? rows? count",
     "product::gaxpy"},
    // Data movement
    {"copy", "Copy", "va", bothTypes, runTimeSize, "SS SP SL PS PP PL LS LP LL", "@", 'v', "src dst len? count",
     "move::copy"},
    {"copy", "Copy", "ma", bothTypes, runTimeSize, "SS SP SL PS PP PL LS LP LL", "@", 'm', "src dst cols? rows? count",
     "move::copy"},
    {"extract", "Extract", "v", bothTypes, runTimeSize, "S2 P", "@", '-', "src dst* len? count", "move::extract"},
    {"extract", "Extract", "va", bothTypes, runTimeSize, "S2 PS2 LS2", "@", '-', "src dst* len? count",
     "move::extract"},
    {"extract", "Extract", "m", bothTypes, runTimeSize, "S2 P", "@", '-', "src dst* cols? rows? count",
     "move::extract"},
    {"extract", "Extract", "mT", "32f", runTimeSize, "S2 P", "@", '-', "src dst* cols? rows? count", "move::extract"},
    {"extract", "Extract", "mT", "64f", runTimeSize, "P", "@", '-', "src dst* cols? rows? count", "move::extract"},
    {"extract", "Extract", "ma", bothTypes, runTimeSize, "S2 PS2 LS2", "@", '-', "src dst* cols? rows? count",
     "move::extract"},
    {"extract", "Extract", "maT", bothTypes, runTimeSize, "PS2 LS2", "@", '-', "src dst* cols? rows? count",
     "move::extract"},
    {"identity", "LoadIdentity", "ma", bothTypes, runTimeSize, "S P L", "", 'm', "dst cols? rows? count",
     "move::loadIdentity"},
    // LU
    {"lu-decomposition", "LUDecomp", "m ma", bothTypes, matrixSizes, sixLayouts, "@", 'm',
     "src pivots* dst order? count", "lu::decompose"},
    {"lu-back-substitution", "LUBackSubst", "mv mva mava", bothTypes, matrixSizes, sixLayouts, "@", 'v',
     "src1 pivots* src2 dst order? count", "lu::backSubstitute"},
    {"determinant", "Det", "m ma", bothTypes, matrixSizes, sixLayouts, "@", '-', "src order? scratch*? dst* count",
     "lu::determinant"},
    {"inverse", "Invert", "m ma", bothTypes, matrixSizes, sixLayouts, "@", 'm', "src order? scratch*? dst count",
     "lu::invert"},
    // Cholesky and QR
    {"cholesky-decomposition", "CholeskyDecomp", "m ma", bothTypes, matrixSizes, sixLayouts, "@", 'm',
     "src dst order? count", "cholqr::choleskyDecompose"},
    {"cholesky-back-substitution", "CholeskyBackSubst", "mv mva mava", bothTypes, matrixSizes, sixLayouts, "@", 'v',
     "src1 src2 dst order? count", "cholqr::choleskyBackSubstitute"},
    {"qr-decomposition", "QRDecomp", "m ma", bothTypes, matrixSizes, sixLayouts, "@", 'm',
     "src work* dst cols? rows? count", "cholqr::qrDecompose"},
    {"qr-back-substitution", "QRBackSubst", "mv mva mava", bothTypes, matrixSizes, sixLayouts, "@", 'v',
     "src1 work* src2 dst cols? rows? count", "cholqr::qrBackSubstitute"},
});

std::vector<std::string_view> words(std::string_view text) {
    std::vector<std::string_view> found;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        if (end > at) found.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return found;
}

const Section &sectionOf(const Family &family) {
    const auto all = sections();
    const auto found = std::ranges::find(all, family.section, &Section::id);
    if (found == all.end()) throw std::logic_error("a family names no section: " + std::string(family.section));
    return *found;
}

struct SourceLetters {
    bool matrix, array, transposed;
};

// The operands that a group spells: "maTv" is an array of matrices read transposed, then a vector. Constants are none.
std::vector<SourceLetters> readGroup(std::string_view group) {
    std::vector<SourceLetters> operands;
    for (const char letter : group) {
        switch (letter) {
        case 'm': operands.push_back({true, false, false}); break;
        case 'v': operands.push_back({false, false, false}); break;
        case 'a': operands.back().array = true; break;
        case 'T': operands.back().transposed = true; break;
        case 'c': break;
        default: throw std::logic_error("a group has a letter without meaning: " + std::string(group));
        }
    }
    return operands;
}

// The source operands of a family in one group: its pattern with the group put in.
std::vector<SourceLetters> sourcesOf(const Family &family, std::string_view group) {
    std::string pattern;
    for (const char letter : family.operands) {
        if (letter == '@') pattern += group;
        else pattern += letter;
    }
    return readGroup(pattern);
}

Layout layoutFromSuffix(std::string_view text) {
    for (const Layout layout : {Layout::standard, Layout::strided, Layout::pointer, Layout::stridedPointer,
                                Layout::list, Layout::stridedList})
        if (suffix(layout) == text) return layout;
    throw std::logic_error("no layout has the suffix " + std::string(text));
}

// vonkCopy and vonkLoadIdentity write a layout as one letter.
Layout layoutFromLetter(char letter) {
    switch (letter) {
    case 'S': return Layout::strided;
    case 'P': return Layout::stridedPointer;
    case 'L': return Layout::stridedList;
    default: throw std::logic_error("no layout has this letter");
    }
}

std::pair<Layout, Layout> sourceAndDestinationLayout(const Family &family, std::string_view layout) {
    if (family.operation == "Copy") return {layoutFromLetter(layout[0]), layoutFromLetter(layout[1])};
    if (family.operation == "LoadIdentity") return {layoutFromLetter(layout[0]), layoutFromLetter(layout[0])};
    return {layoutFromSuffix(layout), layoutFromSuffix(layout)};
}

// The two solvers that share one matrix among all right-hand sides keep the parameter list of their `mava` siblings,
// so that a caller can switch between them: their matrix has one more argument, which is ignored.
bool hasIgnoredArgument(const Function &function, const Operand &operand) {
    return (function.family->operation == "LUBackSubst" || function.family->operation == "QRBackSubst") &&
           function.group == "mva" && operand.name == "src1" && !isTable(operand.layout);
}

// Sizes are unsigned but for these.
bool isSigned(const Function &function, std::string_view word) {
    const std::string_view operation = function.family->operation;
    if (operation == "LoadIdentity") return word == "cols" || word == "rows";
    if (operation == "CholeskyDecomp") return word == "count" && !isTable(function.operands[0].layout);
    if (operation == "CholeskyBackSubst") {
        const Layout layout = function.operands[0].layout;
        return word == "count" || (word == "order" && (layout == Layout::strided || layout == Layout::stridedList));
    }
    return false;
}

// Appends the parameters of one operand: its pointer and the strides and shifts that its layout has.
void appendOperand(Function &function, int index) {
    const Operand &operand = function.operands[index];
    const std::string type = std::string(operand.written ? "" : "const ") + std::string(element(function.type)) + " *";
    const auto word = [&](const char *what, Kind kind) {
        function.parameters.push_back({operand.name + what, "int32_t", kind, index});
    };
    const bool ignored = hasIgnoredArgument(function, operand);
    if (isTable(operand.layout)) {
        function.parameters.push_back({operand.name, type + "const *", Kind::table, index});
        word("Shift", Kind::shift);
        if (operand.layout == Layout::stridedPointer && operand.array) word("ObjStride", Kind::objectStride);
        return;
    }
    if (isList(operand.layout) && operand.array) {
        function.parameters.push_back({operand.name, type + "const *", Kind::list, index});
        word("Shift", Kind::shift);
    } else {
        function.parameters.push_back({operand.name, type, Kind::base, index});
        if (ignored) word(isList(operand.layout) ? "Shift" : "ObjStride", Kind::ignored);
        else if (operand.array) word("ObjStride", Kind::objectStride);
    }
    if (operand.matrix) word("RowStride", Kind::rowStride);
    if (operand.layout == Layout::strided || operand.layout == Layout::stridedList)
        word("ElemStride", Kind::elementStride);
}

// Appends a pointer to a dense block: results and work space of the element type, or the row indices of `pivots`.
void appendBlock(Function &function, std::string_view word) {
    std::string type = std::string(element(function.type)) + " *";
    if (word == "scratch") type = "void *";
    if (word == "pivots") type = function.family->operation == "LUDecomp" ? "uint32_t *" : "const uint32_t *";
    function.parameters.push_back({std::string(word), type, Kind::dense, -1});
}

void appendParameters(Function &function) {
    for (std::string_view word : words(function.family->parameters)) {
        const bool dimension = word.ends_with('?');
        if (dimension) word.remove_suffix(1);
        if (dimension && function.order != 0) continue;
        const bool block = word.ends_with('*');
        if (block) word.remove_suffix(1);

        const auto operand = std::ranges::find(function.operands, word, &Operand::name);
        if (block) appendBlock(function, word);
        else if (operand != function.operands.end()) appendOperand(function, int(operand - function.operands.begin()));
        else if (word.starts_with("val"))
            function.parameters.push_back({std::string(word), std::string(element(function.type)), Kind::constant, -1});
        else if (word != "count" || function.array())
            function.parameters.push_back({std::string(word), isSigned(function, word) ? "int32_t" : "uint32_t",
                                           word == "count" ? Kind::count : Kind::size, -1});
    }
}

Function makeFunction(const Family &family, std::string_view group, Type type, std::string_view size,
                      std::string_view layout) {
    Function function{"", &family, &sectionOf(family), std::string(group), type, 0, std::string(layout), {}, {}};
    function.name = "vonk" + std::string(family.operation) + "_" + std::string(group) + "_" + std::string(suffix(type));
    if (size != "-") {
        function.order = size.front() - '0';
        function.name += "_" + std::string(size);
    }
    if (!layout.empty()) function.name += "_" + std::string(layout);

    const auto [sourceLayout, destinationLayout] = sourceAndDestinationLayout(family, layout);
    const std::vector<SourceLetters> sources = sourcesOf(family, group);
    for (std::size_t k = 0; k < sources.size(); ++k)
        function.operands.push_back({sources.size() == 1 ? "src" : "src" + std::to_string(k + 1), sources[k].matrix,
                                     sources[k].array, sources[k].transposed, false, sourceLayout});
    const bool array = sources.empty() || std::ranges::any_of(sources, &SourceLetters::array);
    if (family.result != '-')
        function.operands.push_back({"dst", family.result == 'm', array, false, true, destinationLayout});
    appendParameters(function);
    return function;
}

std::vector<std::string_view> layoutsOf(const Family &family, std::string_view group) {
    if (!family.layouts.empty()) return words(family.layouts);
    if (group.find('a') == std::string_view::npos) return {"", "S2", "P"};
    return {"", "S2", "P", "PS2", "L", "LS2"};
}

} // namespace

std::string_view suffix(Layout layout) {
    constexpr std::array<std::string_view, 6> all{"", "S2", "P", "PS2", "L", "LS2"};
    return all[std::size_t(layout)];
}

std::string_view suffix(Type type) { return type == Type::real32 ? "32f" : "64f"; }
std::string_view element(Type type) { return type == Type::real32 ? "float" : "double"; }

std::string_view name(Kind kind) {
    constexpr std::array<std::string_view, 12> all{"base",    "table",        "list",      "dense",
                                                   "shift",   "objectStride", "rowStride", "elementStride",
                                                   "ignored", "size",         "count",     "constant"};
    return all[std::size_t(kind)];
}

std::string_view unit(Kind kind) {
    switch (kind) {
    case Kind::shift:
    case Kind::objectStride:
    case Kind::rowStride:
    case Kind::elementStride: return "bytes";
    case Kind::size: return "elements";
    case Kind::count: return "objects";
    default: return "";
    }
}

// An array of strided vectors lies like the rows of one strided matrix. The second pair leaves its `T` undone.
std::string bodyOf(const Function &function) {
    if (function.family->operation != "Extract") return function.name;
    const std::string type(suffix(function.type));
    if (function.group == "va" && function.layout == "S2") return "vonkExtract_m_" + type + "_S2";
    if (function.group == "maT" && function.layout == "PS2") return "vonkExtract_ma_" + type + "_PS2";
    return function.name;
}

bool Function::array() const { return std::ranges::any_of(operands, &Operand::array); }

std::span<const Family> families() { return familyTable; }

std::vector<Function> expand() {
    std::vector<Function> functions;
    functions.reserve(exportCount);
    for (const Family &family : familyTable)
        for (const std::string_view group : words(family.groups))
            for (const std::string_view type : words(family.types))
                for (const std::string_view size : words(family.sizes))
                    for (const std::string_view layout : layoutsOf(family, group))
                        functions.push_back(
                            makeFunction(family, group, type == "32f" ? Type::real32 : Type::real64, size, layout));
    return functions;
}

} // namespace catalogue
