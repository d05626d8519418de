// See usage.h.
#include "usage.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace catalogue {
namespace {

// In header order.
constexpr std::array usageTable = std::to_array<Usage>({
    {"vector-constant", "Add", "", "Vector + constant",
     "add sum plus offset shift translate scalar constant number vector", "", "", "dst(j) = src(j) + val", ""},
    {"vector-constant", "Sub", "vc vac", "Vector - constant",
     "subtract sub difference minus scalar constant number vector", "", "", "dst(j) = src(j) - val", ""},
    {"vector-constant", "Sub", "cv cva", "Constant - vector",
     "subtract sub difference minus reverse negate scalar constant number vector", "", "", "dst(j) = val - src(j)", ""},
    {"vector-constant", "Mul", "", "Vector times constant",
     "multiply mul times scale scal scaling scalar constant number factor product vector", "", "",
     "dst(j) = src(j) * val", ""},
    {"vector-vector", "Add", "", "Vector + vector", "add sum plus translate offset points vectors elementwise", "", "",
     "dst(j) = src1(j) + src2(j)", ""},
    {"vector-vector", "Sub", "", "Vector - vector",
     "subtract sub difference minus distance direction vectors elementwise", "", "", "dst(j) = src1(j) - src2(j)",
     "L2Norm"},
    {"saxpy", "Saxpy", "", "Vector times constant, plus vector",
     "saxpy daxpy axpy blas1 multiply add fma scaled sum update step euler integrate", "", "",
     "dst(j) = src1(j) * val + src2(j)", ""},
    {"linear-combination", "LComb", "", "Linear combination",
     "linear combination axpby waxpby weighted sum blend mix lerp interpolate interpolation two", "", "",
     "dst(j) = src1(j) * val1 + src2(j) * val2", ""},
    {"dot-product", "DotProduct", "", "Dot product",
     "dot product inner scalar product ddot sdot projection angle cosine vdot blas1", "j", "src1(j) * src2(j)",
     "dst() = sum", ""},
    {"norm", "L2Norm", "", "Length of a vector",
     "norm nrm2 snrm2 dnrm2 length magnitude euclidean l2 distance normalize normalise normalization unit vector "
     "hypot blas1",
     "j", "src(j) * src(j)", "dst() = sqrt(sum)", "Mul"},
    {"cross-product", "CrossProduct", "", "Cross product", "cross vector product normal torque moment perpendicular 3d",
     "", "",
     "dst(0) = src1(1) * src2(2) - src1(2) * src2(1)\ndst(1) = src1(2) * src2(0) - src1(0) * src2(2)\n"
     "dst(2) = src1(0) * src2(1) - src1(1) * src2(0)",
     "L2Norm"},
    {"matrix-matrix", "Add", "", "Matrix + matrix", "add sum plus matrices matrix elementwise geadd", "", "",
     "dst(i, j) = src1(i, j) + src2(i, j)", ""},
    {"matrix-matrix", "Sub", "", "Matrix - matrix",
     "subtract sub difference minus matrices matrix elementwise residual", "", "",
     "dst(i, j) = src1(i, j) - src2(i, j)", ""},
    {"matrix-constant", "Mul", "", "Matrix times constant",
     "multiply mul times scale scaling scalar constant number factor matrix", "", "", "dst(i, j) = src(i, j) * val",
     ""},
    {"transpose", "Transpose", "", "Transpose",
     "transpose transposed transposition rows columns exchange swap flip omatcopy", "", "", "dst(j, i) = src(i, j)",
     ""},
    {"trace", "Trace", "", "Trace", "trace sum diagonal", "i", "src(i, i)", "dst() = sum", ""},
    {"frobenius-norm", "FrobNorm", "", "Frobenius norm", "frobenius norm matrix lange euclidean hilbert schmidt", "i j",
     "src(i, j) * src(i, j)", "dst() = sqrt(sum)", ""},
    {"matrix-product", "Mul", "", "Matrix by matrix",
     "multiply mul times matrix product matmul gemm sgemm dgemm batched gemm blas3 compose concatenate transforms", "k",
     "src1(i, k) * src2(k, j)", "dst(i, j) = sum", ""},
    {"matrix-vector", "Mul", "", "Matrix by vector",
     "multiply mul times matvec matrix vector product gemv sgemv dgemv transform rotate rotation apply points point "
     "vertices blas2",
     "k", "src1(i, k) * src2(k)", "dst(i) = sum", ""},
    {"gaxpy", "Gaxpy", "", "Matrix by vector, plus vector",
     "gaxpy gemv affine transform rigid rotate translate multiply add matrix vector plus", "k", "src1(i, k) * src2(k)",
     "dst(i) = sum + src3(i)", ""},
    {"copy", "Copy", "", "Copy between layouts",
     "copy move convert conversion layout aos soa pack unpack scatter gather strided pointer list", "", "",
     "dst(i, j) = src(i, j)", ""},
    {"extract", "Extract", "", "Extract to a dense block",
     "extract gather pack dense contiguous copy compact unpack flatten submatrix", "", "", "dst(i, j) = src(i, j)", ""},
    {"identity", "LoadIdentity", "", "Identity matrix", "identity unit matrix eye load set initialize laset", "", "",
     "dst(i, j) = j == n * rows + i", ""},
    {"lu-decomposition", "LUDecomp", "", "LU decomposition",
     "lu decomposition factor factorize factorization gaussian elimination pivot pivoting getrf gesv solve linear "
     "system "
     "systems equations general",
     "", "", "", "LUBackSubst"},
    {"lu-back-substitution", "LUBackSubst", "", "Solve with LU factors",
     "solve lu back substitution getrs gesv linear system systems equations right-hand side rhs general triangular", "",
     "", "", ""},
    {"determinant", "Det", "", "Determinant", "determinant det volume orientation singular", "", "", "", ""},
    {"inverse", "Invert", "", "Inverse", "inverse invert inversion inv getri adjugate cofactor reciprocal matrix", "",
     "", "", ""},
    {"cholesky-decomposition", "CholeskyDecomp", "", "Cholesky decomposition",
     "cholesky decomposition factor factorize factorization llt potrf posv symmetric positive definite spd covariance "
     "normal "
     "equations solve linear system systems",
     "", "", "", "CholeskyBackSubst"},
    {"cholesky-back-substitution", "CholeskyBackSubst", "", "Solve with a Cholesky factor",
     "solve cholesky back substitution potrs posv symmetric positive definite spd linear system systems equations "
     "right-hand side rhs covariance mahalanobis",
     "", "", "", ""},
    {"qr-decomposition", "QRDecomp", "", "QR decomposition",
     "qr decomposition factor factorize factorization householder orthogonal geqrf gels least squares lstsq fit "
     "regression overdetermined",
     "", "", "", "QRBackSubst"},
    {"qr-back-substitution", "QRBackSubst", "", "Least squares with QR factors",
     "solve qr back substitution ormqr gels least squares lstsq fit regression overdetermined right-hand side rhs "
     "system equations",
     "", "", "", ""},
});

constexpr std::array groupWordTable = std::to_array<GroupWords>({
    {"matrix-vector", "mva", "transform points vertices one matrix many vectors rotate point cloud"},
    {"matrix-product", "mma", "transform matrices one matrix many view projection left"},
    {"matrix-product", "mam", "transform matrices one matrix many right"},
    {"matrix-product", "mama", "batched batch gemm pairs"},
    {"gaxpy", "va", "transform points vertices affine rigid"},
    {"lu-back-substitution", "mva", "one matrix many right-hand sides rhs"},
    {"cholesky-back-substitution", "mva", "one matrix many right-hand sides rhs"},
    {"qr-back-substitution", "mva", "one matrix many right-hand sides rhs"},
});

// A size by its name in the parameter list, or the number in the function's name.
std::string sizeOf(const Function &function, std::string_view word) {
    return function.order != 0 ? std::to_string(function.order) : std::string(word);
}

bool has(const Function &function, std::string_view word) {
    return function.family->parameters.find(word) != std::string_view::npos;
}

// The loops of the product of two matrices run over `src1Rows`, `src2Cols` and, for the sum, `src2Rows`; but where the
// shapes are those as stored.
Shape productShape(const Function &function, const Operand &operand) {
    const auto size = [&](std::string_view word) { return sizeOf(function, word); };
    const bool asStored = function.name == "vonkMul_mmT_32f" || function.name == "vonkMul_mmT_64f";
    const std::string rows = size("src1Rows"), columns = size(asStored ? "src2Rows" : "src2Cols"),
                      terms = size(asStored ? "src1Cols" : "src2Rows");
    if (operand.written) return {rows, columns};
    if (operand.name == "src1") return operand.transposed ? Shape{terms, rows} : Shape{rows, terms};
    return operand.transposed ? Shape{columns, terms} : Shape{terms, columns};
}

} // namespace

std::span<const Usage> usages() { return usageTable; }
std::span<const GroupWords> groupWords() { return groupWordTable; }

const Usage &usageOf(const Function &function) {
    const auto all = usages();
    const auto found = std::ranges::find_if(all, [&](const Usage &row) {
        return row.section == function.section->id && row.operation == function.family->operation &&
               (row.groups.empty() || row.groups.starts_with(function.group + " ") ||
                row.groups.ends_with(" " + function.group));
    });
    if (found == all.end()) throw std::logic_error("no usage of " + function.name);
    return *found;
}

Shape shapeOf(const Function &function, const Operand &operand) {
    const auto size = [&](std::string_view word) { return sizeOf(function, word); };
    const std::string_view section = function.section->id;
    if (section == "cross-product") return {"3", "1"};
    if (section == "matrix-product") return productShape(function, operand);
    if (section == "matrix-vector") {
        const std::string rows = size("src1Rows"), terms = size("src1Cols");
        if (operand.written) return {rows, "1"};
        if (!operand.matrix) return {size("src2Len"), "1"};
        return operand.transposed ? Shape{terms, rows} : Shape{rows, terms};
    }
    if (has(function, "order?")) return {size("order"), operand.matrix ? size("order") : "1"};
    if (has(function, "len?")) return {size("len"), "1"};
    if (section == "gaxpy" || section == "qr-back-substitution") {
        if (operand.matrix) return {size("rows"), size("cols")};
        // A product takes `cols` elements and gives `rows`; a solver the other way round.
        const bool ofColumns = (section == "gaxpy") == (operand.name == "src2");
        return {size(ofColumns ? "cols" : "rows"), "1"};
    }
    if (section == "transpose" && operand.written) return {size("cols"), size("rows")};
    // Two forms of vonkExtract leave the table's shape as it is.
    const bool exchanged = operand.transposed && !(section == "extract" && isTable(operand.layout));
    return exchanged ? Shape{size("cols"), size("rows")} : Shape{size("rows"), size("cols")};
}

std::string lengthOf(const Function &function, const Parameter &block) {
    const std::string order = sizeOf(function, "order");
    const bool array = function.array();
    if (block.name == "scratch")
        return order + " * " + order + " * sizeof(" + std::string(element(function.type)) + ") + 4 * " + order;
    if (block.name == "work") return sizeOf(function, "rows");
    if (block.name == "pivots") return (function.operands.front().array ? "count * " : "") + order;
    if (function.section->id != "extract") return array ? "count" : "1";
    return (array ? "count * " : "") + std::string(has(function, "len?") ? "len" : "rows * cols");
}

std::string_view directionOf(const Parameter &parameter) {
    if (parameter.type.find('*') == std::string::npos) return "";
    if (parameter.name == "scratch" || parameter.name == "work") return "scratch";
    return parameter.type.starts_with("const ") ? "in" : "out";
}

} // namespace catalogue
