// The answers, family by family. See families.h.
#include "families.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>

namespace support::families {
namespace {

using catalogue::Function;
using catalogue::Layout;
using catalogue::Operand;

constexpr std::int32_t ok = 0;
constexpr std::int32_t badSize = -6;
constexpr std::int32_t nullPointer = -8;
constexpr std::int32_t singular = -10;
constexpr std::int32_t notPositiveDefinite = -179;

bool in(const Function &function, std::initializer_list<std::string_view> sections) {
    return std::ranges::find(sections, function.section->id) != sections.end();
}

std::uint32_t elementSize(const Function &function) { return function.type == catalogue::Type::real32 ? 4 : 8; }

std::uint32_t orderOf(const Function &function, const Sizes &sizes) {
    return function.order != 0 ? static_cast<std::uint32_t>(function.order) : sizes.largest();
}

bool isFixedInverse(const Function &function) { return in(function, {"inverse"}) && function.order != 0; }

// What a pivot is compared with, or in inverses of fixed size a determinant.
double toleranceOf(const Function &function) {
    const bool narrow = function.type == catalogue::Type::real32;
    if (isFixedInverse(function)) return narrow ? static_cast<double>(1e-7F) : 1e-15;
    return narrow || in(function, {"lu-decomposition"}) ? 0x1p-23 : 0x1p-52;
}

bool refusesZeroCount(const Function &function) {
    if (!function.array()) return false;
    return in(function, {"cholesky-decomposition", "cholesky-back-substitution", "extract", "identity"});
}

bool refusesZeroDimension(const Function &function) {
    if (function.order != 0 || in(function, {"identity", "cross-product"})) return false;
    if (in(function, {"copy"})) return function.group == "va";
    return testsPointers(function);
}

// The sizes of an identity are signed: a negative one counts as none, and none has room for one.
std::uint32_t extentOf(const Sizes &sizes, std::string_view name) {
    return static_cast<std::uint32_t>(std::max(1, static_cast<std::int32_t>(sizes[name])));
}

// Mostly higher than wide: a wider matrix is always singular, and nothing solves with one. A single right-hand side may
// be long enough to be copied in blocks.
void relateHeightToWidth(const Function &function, Sizes &sizes, Random &random) {
    const auto dimension = [&](std::string_view name) -> std::uint32_t & {
        return std::ranges::find(sizes.dimensions, name, &Sizes::Named::name)->value;
    };
    std::uint32_t &cols = dimension("cols");
    std::uint32_t &rows = dimension("rows");
    if (in(function, {"qr-decomposition"}) && random.percent(10)) return;
    if (cols > rows) std::swap(cols, rows);
    if (random.percent(25)) rows = cols;
    else if (!function.array() && random.percent(40)) rows = static_cast<std::uint32_t>(random.between(9, 40));
}

// No columns still leave the ones; -1 of them keeps these within the table, whatever the rows and objects.
void makeSizesNegative(Sizes &sizes, Random &random) {
    const auto kind = random.below(100);
    const auto negative = static_cast<std::uint32_t>(random.next()) | 0x80000000;
    if (kind < 5) sizes.dimensions[0].value = static_cast<std::uint32_t>(-1);
    else if (kind < 10) sizes.dimensions[1].value = negative;
}

// The inverse of a single element may read anywhere.
void avoidOrderOne(Sizes &sizes) {
    for (Sizes::Named &dimension : sizes.dimensions) dimension.value = std::max(dimension.value, 2U);
}

// Row i of the triangle is looked for i + 1 bytes behind where a row ahead of the matrix would be.
bool displacesTriangle(const Function &function, const Operand &operand) {
    return in(function, {"qr-back-substitution"}) && function.group == "mava" && operand.name == "src1" &&
           function.type == catalogue::Type::real64 && operand.layout == Layout::list;
}

Reach withDisplacedTriangle(const Placement &placement) {
    Reach reach = placement.reach;
    reach.low += std::min<std::int64_t>(1 - placement.rowStride, 0);
    reach.high += std::max<std::int64_t>(std::int64_t{placement.shape.cols} - placement.rowStride, 0);
    return reach;
}

// The last pivot of object n is looked for n packed rows further on.
Reach withDisplacedPivots(const Placement &placement) {
    Reach reach = placement.reach;
    const std::int64_t farthest =
        (placement.objects - 1) * std::int64_t{placement.shape.cols} * placement.elementStride;
    reach.low += std::min<std::int64_t>(farthest, 0);
    reach.high += std::max<std::int64_t>(farthest, 0);
    return reach;
}

std::int64_t clamped(std::int64_t stride, std::uint32_t least) {
    return static_cast<std::int32_t>(std::max(static_cast<std::uint32_t>(stride), least));
}

// The places of zeros and ones, by strides that are made large enough and with the ones running on over all objects.
Reach ofIdentities(const Function &function, const Operand &operand, const Sizes &sizes, const Placement &placement) {
    const std::uint32_t size = placement.elementSize;
    Reach reach = placement.reach;
    const auto include = [&](std::int64_t at) { reach.include({at, at + size}); };
    if (isTable(operand.layout)) {
        for (const std::int64_t slot : placement.slots)
            include(slot + (placement.objects - 1) * clamped(placement.objectStride, size));
        return reach;
    }
    const std::int64_t rowStride = clamped(placement.rowStride, sizes["cols"] * size);
    const std::int64_t elementStride =
        clamped(placement.elementStride, function.name == "vonkLoadIdentity_ma_64f_L" ? 4 : size);
    std::int64_t one = 0;
    for (std::uint32_t n = 0; n < placement.objects; ++n)
        for (std::uint32_t i = 0; i < placement.shape.rows; ++i, ++one) {
            const std::int64_t row =
                (placement.tabled ? placement.slots[n] : n * placement.objectStride) + i * rowStride;
            include(row);
            include(row + (placement.shape.cols - 1) * elementStride);
            include(row + one * elementStride);
        }
    return reach;
}

bool hasLanes(const Function &function) {
    return function.order != 0 && function.type == catalogue::Type::real32 &&
           (function.layout.empty() || function.layout == "L");
}

// The forms of an array and a single matrix that load an object ahead of the one they store.
bool runsAhead(const Function &function) {
    return in(function, {"matrix-matrix"}) && hasLanes(function) && function.order == 3 &&
           (function.group == "mam" || function.group == "mamT");
}

// How many entries of its table a product of run-time size looks at before it begins: not always those that it uses.
std::uint32_t scannedEntries(const Function &function, const Operand &operand, const Sizes &sizes) {
    if (in(function, {"gaxpy"})) {
        if (operand.name == "src1") return sizes["cols"] * sizes["rows"];
        return operand.name == "src2" ? sizes["cols"] : sizes["rows"];
    }
    const std::uint32_t cols1 = sizes["src1Cols"];
    const std::uint32_t rows1 = sizes["src1Rows"];
    const std::uint32_t cols2 = sizes["src2Cols"];
    const std::uint32_t rows2 = sizes["src2Rows"];
    if (operand.name == "src1") return cols1 * rows1;
    if (operand.name == "src2") return in(function, {"matrix-vector"}) ? sizes["src2Len"] : cols2 * rows2;
    if (in(function, {"matrix-vector"})) return rows1;
    return (function.operands[0].transposed ? rows1 : cols1) * (function.operands[1].transposed ? cols2 : rows2);
}

// Of a table read at run-time size with the lengths of its rows exchanged: all that count as its entries are looked at
// ahead of an array, those that are used along with a single matrix.
bool testsExchangedEntry(const Operand &operand, const Sizes &sizes, std::uint32_t entry) {
    const std::uint32_t cols = sizes["cols"];
    const std::uint32_t rows = sizes["rows"];
    if (operand.array) return entry < cols * rows;
    // As many rows as a row is long, and of each so many entries, which may run into the next row.
    const std::uint32_t length = operand.written ? cols : rows;
    const std::uint32_t used = operand.written ? rows : cols;
    for (std::uint32_t row = 0; row < length; ++row)
        if (entry >= row * length && entry - row * length < used) return true;
    return false;
}

// Arrays are scanned from the start of the table and no further than the diagonal is long; a single matrix is tested
// along the diagonal. Off the diagonal nothing is ever read.
bool traceMayMeetNull(const Operand &operand, std::uint32_t order, std::uint32_t entry) {
    const bool onDiagonal = entry % (order + 1) == 0;
    return !operand.array || entry < order || !onDiagonal;
}

bool testsListEntry(const Function &function, const Operand &operand, const Sizes &sizes, std::uint32_t entry) {
    if (runsAhead(function)) return !operand.written || entry != 0 || sizes.count == 1;
    const bool takesBlocks = in(function, {"frobenius-norm"}) && hasLanes(function) && function.order <= 4;
    return !takesBlocks || entry < sizes.count - sizes.count % 4;
}

// The kernels of 3x3 in tables and strided lists trust the entries, and so do some walks in blocks.
bool trustsEntries(const Function &function) {
    static constexpr std::array<std::string_view, 13> trusting{
        "vonkMul_mam_32f_3x3_P",     "vonkMul_maTm_32f_3x3_P",       "vonkMul_mamT_32f_3x3_P",
        "vonkMul_mam_32f_3x3_PS2",   "vonkMul_maTm_32f_3x3_PS2",     "vonkMul_mamT_32f_3x3_PS2",
        "vonkMul_mam_32f_3x3_LS2",   "vonkMul_maTm_32f_3x3_LS2",     "vonkMul_mamT_32f_3x3_LS2",
        "vonkMul_maTmT_32f_3x3_LS2", "vonkDotProduct_vav_32f_3x1_L", "vonkDotProduct_vav_32f_4x1_L",
        "vonkL2Norm_va_32f_4x1_L"};
    return std::ranges::find(trusting, function.name) != trusting.end();
}

void fillPivots(std::span<std::byte> block, std::uint32_t order, Random &random) {
    std::vector<std::uint32_t> rows(order);
    for (std::size_t at = 0; at < block.size(); at += std::size_t{4} * order) {
        std::iota(rows.begin(), rows.end(), 0);
        if (random.percent(75)) random.shuffle(rows);
        std::memcpy(block.data() + at, rows.data(), rows.size() * 4);
    }
}

// One object of a matrix operand, by rows and columns.
struct MatrixObject {
    const Placement &placement;
    catalogue::Type type;
    std::uint32_t n;

    std::uint32_t order() const { return placement.shape.rows; }
    std::uint32_t rows() const { return placement.shape.rows; }
    std::uint32_t cols() const { return placement.shape.cols; }
    double get(std::uint32_t i, std::uint32_t j) const { return loadElement(placement.address(n, i, j), type); }
    void set(std::uint32_t i, std::uint32_t j, double value) const {
        storeElement(placement.address(n, i, j), type, value);
    }
};

void repeatRow(const MatrixObject &matrix, Random &random) {
    const auto from = static_cast<std::uint32_t>(random.below(matrix.order()));
    const auto to = static_cast<std::uint32_t>(random.below(matrix.order()));
    for (std::uint32_t j = 0; j < matrix.order(); ++j) matrix.set(to, j, from == to ? 0.0 : matrix.get(from, j));
}

void clearColumn(const MatrixObject &matrix, Random &random) {
    const auto column = static_cast<std::uint32_t>(random.below(matrix.cols()));
    for (std::uint32_t i = 0; i < matrix.rows(); ++i) matrix.set(i, column, 0.0);
}

double nextTo(double value, double side, catalogue::Type type) {
    return type == catalogue::Type::real32
               ? static_cast<double>(std::nextafterf(static_cast<float>(value), static_cast<float>(side)))
               : std::nextafter(value, side);
}

double besideTolerance(const Function &function, Random &random) {
    const double side = random.percent(50) ? 0.0 : 1.0;
    double value = toleranceOf(function);
    if (random.percent(67)) value = nextTo(value, side, function.type);
    return random.percent(50) ? -value : value;
}

// Rows of an upper triangle in any order: no step changes a pivot, and one of them lies at the tolerance. So does the
// determinant if the others are 1.
void placePivotAtTolerance(const MatrixObject &matrix, const Function &function, Random &random) {
    const std::int64_t largest = isFixedInverse(function) ? 1 : 3;
    std::vector<std::uint32_t> rows(matrix.order());
    std::iota(rows.begin(), rows.end(), 0);
    random.shuffle(rows);
    const auto critical = static_cast<std::uint32_t>(random.below(matrix.order()));
    for (std::uint32_t i = 0; i < matrix.order(); ++i)
        for (std::uint32_t j = 0; j < matrix.order(); ++j)
            matrix.set(rows[i], j, j < i ? 0.0 : static_cast<double>(random.between(1, largest)));
    matrix.set(rows[critical], critical, besideTolerance(function, random));
}

// A determinant far below any tolerance that is no zero.
void shrinkRow(const MatrixObject &matrix, Random &random) {
    const auto row = static_cast<std::uint32_t>(random.below(matrix.order()));
    const auto exponent = static_cast<int>(random.between(-90, -20));
    for (std::uint32_t j = 0; j < matrix.order(); ++j) matrix.set(row, j, std::ldexp(matrix.get(row, j), exponent));
}

// All zeros, or numbers whose squares lie about the ends of the element's range.
void moveSquaresToTheEdge(const MatrixObject &matrix, Random &random) {
    const bool narrow = matrix.type == catalogue::Type::real32;
    const auto kind = random.below(3);
    const int exponent = kind == 0 ? (narrow ? 63 : 511) : narrow ? -70 : -530;
    for (std::uint32_t i = 0; i < matrix.placement.shape.rows; ++i)
        for (std::uint32_t j = 0; j < matrix.placement.shape.cols; ++j) {
            const auto step = static_cast<int>(random.between(-6, 1));
            const auto size = static_cast<double>(random.between(4, 8)) / 8;
            matrix.set(i, j, kind == 1 ? 0.0 : std::ldexp(size, exponent + step));
        }
}

// --- positive definite matrices and others

// As large as the rest of its row together and more. Where the row is no number the diagonal stays.
void makeDominant(const MatrixObject &matrix) {
    for (std::uint32_t i = 0; i < matrix.order(); ++i) {
        double sum = std::fabs(matrix.get(i, i));
        for (std::uint32_t j = 0; j < matrix.order(); ++j)
            if (j != i) sum += std::fabs(j < i ? matrix.get(i, j) : matrix.get(j, i));
        if (std::isfinite(sum)) matrix.set(i, i, sum);
    }
}

// Whether the lower triangle can be multiplied by its transpose without much loss.
bool isTame(const MatrixObject &matrix) {
    for (std::uint32_t i = 0; i < matrix.order(); ++i)
        for (std::uint32_t j = 0; j <= i; ++j)
            if (!(std::fabs(matrix.get(i, j)) <= 4.0)) return false;
    return true;
}

// The lower triangle times its transpose, row by row from below, so that what is still needed stands.
void squareTriangle(const MatrixObject &matrix) {
    for (std::uint32_t i = 0; i < matrix.order(); ++i) matrix.set(i, i, std::max(std::fabs(matrix.get(i, i)), 0.25));
    for (std::uint32_t i = matrix.order(); i-- > 0;)
        for (std::uint32_t j = i + 1; j-- > 0;) {
            double sum = 0;
            for (std::uint32_t k = 0; k <= j; ++k) sum += matrix.get(i, k) * matrix.get(j, k);
            matrix.set(i, j, sum);
        }
}

double smallest(catalogue::Type type) { return type == catalogue::Type::real32 ? 0x1p-149 : 0x1p-1074; }

// Built from a factor of small integers with powers of two on its diagonal, in which nothing is rounded, so that one
// pivot comes out just as chosen.
void placePivotBesideZero(const MatrixObject &matrix, Random &random) {
    const auto critical = static_cast<std::uint32_t>(random.below(matrix.order()));
    const bool alone = random.percent(50); // nothing is subtracted from the pivot
    for (std::uint32_t i = 0; i < matrix.order(); ++i) {
        for (std::uint32_t j = 0; j < i; ++j)
            matrix.set(i, j, alone && i == critical ? 0.0 : static_cast<double>(random.between(-2, 2)));
        matrix.set(i, i, random.percent(50) ? 1.0 : 2.0);
    }
    const double own = matrix.get(critical, critical);
    squareTriangle(matrix);
    const double subtracted = matrix.get(critical, critical) - own * own;
    const double least =
        subtracted == 0 ? smallest(matrix.type) : nextTo(subtracted, HUGE_VAL, matrix.type) - subtracted;
    const std::array<double, 8> pivots{
        0.0, -0.0, least, -least, -1.0, std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL};
    const double pivot = random.pick(std::span<const double>(pivots));
    matrix.set(critical, critical, subtracted == 0 ? pivot : subtracted + pivot);
}

void makeCholeskyTrouble(const MatrixObject &matrix, Random &random) {
    if (random.percent(70)) return placePivotBesideZero(matrix, random);
    const auto i = static_cast<std::uint32_t>(random.below(matrix.order()));
    matrix.set(i, i, random.percent(50) ? -matrix.get(i, i) : std::numeric_limits<double>::quiet_NaN());
}

// --- columns that depend on one another, or whose norm is at the tolerance

void repeatColumn(const MatrixObject &matrix, Random &random) {
    const auto from = static_cast<std::uint32_t>(random.below(matrix.cols()));
    const auto to = static_cast<std::uint32_t>(random.below(matrix.cols()));
    for (std::uint32_t i = 0; i < matrix.rows(); ++i) matrix.set(i, to, from == to ? 0.0 : matrix.get(i, from));
}

// Ahead of the critical column the matrix is an upper triangle, which reflections leave as it is but for signs. The
// squares of the column's elements add up to the tolerance, or to a little more or less.
void placeNormAtTolerance(const MatrixObject &matrix, Random &random) {
    const auto critical = static_cast<std::uint32_t>(random.below(std::min(matrix.rows(), matrix.cols())));
    for (std::uint32_t i = 0; i < matrix.rows(); ++i)
        for (std::uint32_t j = 0; j < matrix.cols(); ++j)
            matrix.set(i, j, j < critical && i > j ? 0.0 : static_cast<double>(random.between(1, 3)));
    for (std::uint32_t i = critical; i < matrix.rows(); ++i) matrix.set(i, critical, 0.0);
    const bool twoElements = critical + 1 < matrix.rows() && random.percent(70);
    double value = twoElements ? 0x1p-12 : std::sqrt(0x1p-23);
    for (std::int64_t steps = random.between(0, 3); steps > 0; --steps)
        value = nextTo(value, random.percent(50) ? 0.0 : 1.0, matrix.type);
    const auto sign = [&] { return random.percent(50) ? -1.0 : 1.0; };
    matrix.set(critical, critical, sign() * value);
    if (twoElements) matrix.set(matrix.rows() - 1, critical, sign() * 0x1p-12);
}

void makeQrTrouble(const MatrixObject &matrix, Random &random) {
    switch (random.below(4)) {
    case 0: return repeatColumn(matrix, random);
    case 1: return clearColumn(matrix, random);
    default: return placeNormAtTolerance(matrix, random);
    }
}

} // namespace

std::vector<std::int32_t> relevantStatuses(const Function &function) {
    std::vector<std::int32_t> statuses{ok};
    if (testsPointers(function)) statuses.push_back(nullPointer);
    if (refusesZeroDimension(function) || refusesZeroCount(function)) statuses.push_back(badSize);
    if (in(function, {"lu-decomposition", "inverse", "qr-decomposition"})) statuses.push_back(singular);
    if (in(function, {"cholesky-decomposition"})) statuses.push_back(notPositiveDefinite);
    return statuses;
}

// Where rows and columns trade places the operand gets a square that holds either.
Shape shapeOf(const Function &function, const Operand &operand, const Sizes &sizes) {
    if (in(function, {"identity"})) return {extentOf(sizes, "rows"), extentOf(sizes, "cols")};
    const std::uint32_t side = orderOf(function, sizes);
    const bool square = function.order != 0 || sizes["order"] != 0 ||
                        in(function, {"matrix-product", "matrix-vector", "transpose", "extract"});
    if (!operand.matrix && in(function, {"qr-back-substitution"}) && function.order == 0)
        return {1, sizes[operand.written ? "cols" : "rows"]};
    if (!operand.matrix) {
        const std::uint32_t length = std::max(sizes["len"], square ? side : std::max(sizes["rows"], sizes["cols"]));
        return {1, length};
    }
    if (square) return {side, side};
    if (operand.transposed) return {sizes["cols"], sizes["rows"]};
    return {sizes["rows"], sizes["cols"]};
}

// One vector or two on adjacent elements; vonkAdd_vv_32f and its like get there without.
bool turnsAtEleven(const Function &function) {
    return in(function, {"vector-constant", "saxpy", "linear-combination", "dot-product", "norm"}) &&
           function.order == 0 && function.type == catalogue::Type::real32 && function.layout.empty() &&
           !function.array();
}

bool turnsAtEightObjects(const Function &function) {
    return in(function, {"matrix-product", "matrix-vector", "gaxpy"}) && function.array() && function.layout == "P" &&
           function.type == catalogue::Type::real32 && function.order != 0;
}

// The two words of a product that are compared; the others are free.
std::pair<std::string_view, std::string_view> comparedWords(const Function &function) {
    const bool first = function.operands[0].transposed;
    if (in(function, {"matrix-vector"})) return {first ? "src1Rows" : "src1Cols", "src2Len"};
    const bool second = function.operands[1].transposed;
    if (first) return {"src1Rows", second ? "src2Cols" : "src2Rows"};
    if (second) return {"src1Cols", "src2Cols"};
    if (function.operands[1].array) return {"src1Rows", "src2Cols"};
    return {"src1Cols", "src2Rows"};
}

void relateDimensions(const Function &function, Sizes &sizes, Random &random) {
    if (in(function, {"qr-decomposition", "qr-back-substitution"}) && !sizes.dimensions.empty())
        return relateHeightToWidth(function, sizes, random);
    if (in(function, {"identity"})) return makeSizesNegative(sizes, random);
    if (in(function, {"inverse"})) return avoidOrderOne(sizes);
    if (!in(function, {"matrix-product", "matrix-vector"}) || sizes.dimensions.empty() || random.percent(10)) return;
    const auto [model, follower] = comparedWords(function);
    const bool square = random.percent(40);
    for (Sizes::Named &dimension : sizes.dimensions)
        if (square || dimension.name == follower) dimension.value = sizes[model];
}

std::uint32_t blockBytes(const Function &function, std::string_view parameter, const Sizes &sizes) {
    const std::uint32_t order = orderOf(function, sizes);
    if (parameter == "pivots") return sizes.count * order * 4;
    if (parameter == "scratch") return order * order * elementSize(function) + order * 4;
    if (parameter == "work") return order * elementSize(function);
    if (!in(function, {"extract"})) return sizes.count * elementSize(function);
    std::uint32_t elements = sizes.count;
    for (const Sizes::Named &dimension : sizes.dimensions) elements *= dimension.value;
    return elements * elementSize(function);
}

bool holdsElements(std::string_view parameter) { return parameter == "dst" || parameter == "work"; }

bool isUnspecifiedAfterCall(const Function &, std::string_view parameter) { return parameter == "scratch"; }

// The last pivot of object n is looked for in the table n rows further on; the ones of an identity run on along the
// table over all objects.
std::uint32_t extraEntries(const Function &function, const Operand &operand, const Sizes &sizes) {
    if (in(function, {"identity"}) && isTable(operand.layout)) {
        const std::uint32_t ones = sizes.count * extentOf(sizes, "rows");
        return ones - std::min(ones, extentOf(sizes, "cols"));
    }
    const bool displaced =
        in(function, {"lu-decomposition"}) && operand.written && operand.array && isTable(operand.layout);
    return displaced ? sizes.count * orderOf(function, sizes) : 0;
}

Reach extraReach(const Function &function, const Operand &operand, const Sizes &sizes, const Placement &placement) {
    if (in(function, {"identity"})) return ofIdentities(function, operand, sizes, placement);
    if (in(function, {"lu-decomposition"}) && operand.written && operand.array && !isTable(operand.layout))
        return withDisplacedPivots(placement);
    if (displacesTriangle(function, operand)) return withDisplacedTriangle(placement);
    return placement.reach;
}

bool readsThroughDestination(const Function &function) {
    return function.name == "vonkCopy_va_32f_PP" || function.name == "vonkCopy_va_64f_PP";
}

bool addsShift(const Function &function) {
    return function.name != "vonkExtract_mT_32f_P" && function.name != "vonkExtract_mT_64f_P";
}

// With the single matrix transposed those walk its rows with the stride of the array's.
Reach borrowedReach(const Function &function, const Operand &operand, std::span<const Placement> operands) {
    if (!runsAhead(function) || !operand.transposed) return {};
    const std::int64_t last = 2 * operands.front().rowStride;
    return {std::min<std::int64_t>(last, 0), std::max<std::int64_t>(last, 0) + 12};
}

bool looksAtAlignment(const Function &function) {
    return in(function, {"vector-constant", "saxpy", "linear-combination", "dot-product", "norm", "matrix-matrix",
                         "matrix-constant", "frobenius-norm"}) &&
           hasLanes(function);
}

bool mayLieInSource(const Function &function) {
    return in(function, {"dot-product", "norm", "trace", "frobenius-norm", "determinant"});
}

// Where all other words are multiples of 16, the stride of the second source is taken for one without a test.
bool mustKeepOffBoundary(const Function &function, std::span<const Placement> operands) {
    const bool trusts = in(function, {"saxpy"}) && function.type == catalogue::Type::real32 &&
                        function.group == "vava" && function.layout.empty() &&
                        (function.order == 4 || function.order == 6);
    return trusts && operands[1].objects > 1 && operands[1].objectStride % 16 != 0;
}

bool testsPointers(const Function &function) {
    static constexpr std::array<std::string_view, 5> untested{"vonkExtract_m_32f_P", "vonkExtract_m_64f_P",
                                                              "vonkExtract_mT_32f_P", "vonkExtract_mT_64f_P",
                                                              "vonkExtract_v_64f_P"};
    return std::ranges::find(untested, function.name) == untested.end();
}

// Single forms that leave out tests are added here, by name.
bool testsEntry(const Function &function, const Operand &operand, const Sizes &sizes, std::uint32_t entry) {
    if (in(function, {"copy", "extract", "identity"})) return false;
    if (in(function, {"cholesky-decomposition", "cholesky-back-substitution"})) return isList(operand.layout);
    if (in(function, {"qr-back-substitution"}) && operand.name == "src2" && isTable(operand.layout))
        return entry < (function.order != 0 ? orderOf(function, sizes) : sizes["cols"]);
    if (trustsEntries(function)) return false;
    if (isFixedInverse(function) && function.type == catalogue::Type::real32 && function.layout == "L") return false;
    if (isList(operand.layout)) return testsListEntry(function, operand, sizes, entry);
    if (in(function, {"trace"})) return traceMayMeetNull(operand, orderOf(function, sizes), entry);
    if (in(function, {"transpose"}) && function.order == 0) return testsExchangedEntry(operand, sizes, entry);
    if (in(function, {"matrix-matrix", "matrix-constant"}) && !function.array() && operand.transposed &&
        function.order == 4 && entry == 8)
        return false;
    if (function.group == "mTv" && function.order == 4 && operand.name == "src1" && entry == 8) return false;
    const bool scansShape = in(function, {"matrix-product", "matrix-vector", "gaxpy"}) && function.order == 0;
    if (scansShape && isTable(operand.layout)) return entry < scannedEntries(function, operand, sizes);
    return true;
}

// What these test is the sum of entry and shift.
std::uint64_t nullEntry(const Function &function, std::int32_t shift) {
    if (!in(function, {"cholesky-decomposition", "cholesky-back-substitution"})) return 0;
    return static_cast<std::uint64_t>(-std::int64_t{shift});
}

// The factor is a lower triangle.
bool followsEntry(const Function &function, const Placement &placement, std::uint32_t entry) {
    if (!in(function, {"cholesky-decomposition", "cholesky-back-substitution"}) || !isTable(placement.layout))
        return true;
    const Shape shape = placement.shape;
    return shape.rows != shape.cols || entry % shape.cols <= entry / shape.cols;
}

// Decompositions of these orders are straight lines of code that count strides in elements.
bool dropsPartOfElementStride(const Function &function, const Sizes &sizes) {
    const std::uint32_t order = orderOf(function, sizes);
    return in(function, {"cholesky-decomposition"}) && order >= 3 && order <= 6 &&
           (function.layout == "S2" || function.layout == "LS2");
}

bool isSignedSize(const Function &function, std::string_view parameter) {
    const bool inTable = function.layout == "P" || function.layout == "PS2";
    if (in(function, {"cholesky-decomposition"})) return parameter == "count" && !inTable;
    if (!in(function, {"cholesky-back-substitution"})) return false;
    return parameter == "count" || (parameter == "order" && (function.layout == "S2" || function.layout == "LS2"));
}

// Some forms of these run ahead of the object whose entries they test, or pass over it.
bool stopsAtNullEntry(const Function &function, const Operand &operand) {
    if (in(function, {"cholesky-decomposition", "cholesky-back-substitution"})) return false;
    if (isFixedInverse(function) && isList(operand.layout)) return false;
    return isTable(operand.layout) ? !in(function, {"trace"}) : !in(function, {"matrix-matrix", "matrix-product"});
}

bool isFixedInPlace(const Function &function, const Operand &source) {
    if (source.transposed) return false;
    if (in(function, {"cross-product"})) return function.group == "vv" && function.layout.empty();
    if (in(function, {"cholesky-back-substitution", "qr-back-substitution"})) return source.name == "src2";
    return in(function, {"vector-constant", "vector-vector", "saxpy", "linear-combination", "matrix-matrix",
                         "matrix-constant", "lu-decomposition", "cholesky-decomposition", "qr-decomposition", "copy"});
}

// Rows and columns change places in registers, in an order that is free; an inverse promises next to nothing.
unsigned overlapShare(const Function &function) {
    if (isFixedInverse(function)) return 12;
    const bool turnsInRegisters =
        in(function, {"transpose"}) || (in(function, {"matrix-matrix", "matrix-constant"}) &&
                                        std::ranges::any_of(function.operands, &Operand::transposed));
    return hasLanes(function) && turnsInRegisters ? 50 : 100;
}

// Decomposing has a tolerance: numbers spread widely would make nearly all matrices singular.
ValueMixture usualValues(const Function &function) {
    if (isFixedInverse(function))
        return {.smallIntegers = 20, .wideExponents = 3, .ties = 5, .nearTies = 8, .specials = 10};
    if (in(function, {"lu-decomposition", "determinant", "inverse", "qr-decomposition"}))
        return {.smallIntegers = 15, .wideExponents = 4, .ties = 5, .nearTies = 8, .specials = 15};
    if (in(function, {"cholesky-decomposition"}))
        return {.smallIntegers = 15, .wideExponents = 8, .ties = 8, .nearTies = 8, .specials = 12};
    return {};
}

void fillBlock(const Function &function, std::string_view parameter, std::span<std::byte> block, const Sizes &sizes,
               Random &random) {
    if (parameter == "pivots" && in(function, {"lu-back-substitution"}))
        fillPivots(block, orderOf(function, sizes), random);
}

bool hasTrouble(const Function &function) {
    return in(function, {"norm", "frobenius-norm", "lu-decomposition", "determinant", "inverse",
                         "cholesky-decomposition", "qr-decomposition"});
}

void shapeValues(const Function &function, std::span<const Placement> operands, Random &random) {
    if (!in(function, {"cholesky-decomposition"}) || random.percent(10)) return;
    const bool bySquares = random.percent(60);
    for (std::uint32_t n = 0; n < operands.front().objects; ++n) {
        const MatrixObject matrix{operands.front(), function.type, n};
        bySquares &&isTame(matrix) ? squareTriangle(matrix) : makeDominant(matrix);
    }
}

void makeTrouble(const Function &function, std::span<const Placement> operands, Random &random) {
    const Placement &source = operands.front();
    const auto n = static_cast<std::uint32_t>(random.percent(50) ? 0 : random.below(source.objects));
    const MatrixObject matrix{source, function.type, n};
    if (in(function, {"norm", "frobenius-norm"})) return moveSquaresToTheEdge(matrix, random);
    if (in(function, {"cholesky-decomposition"})) return makeCholeskyTrouble(matrix, random);
    if (in(function, {"qr-decomposition"})) return makeQrTrouble(matrix, random);
    switch (random.below(in(function, {"inverse"}) ? 5 : 4)) {
    case 0: return repeatRow(matrix, random);
    case 1: return clearColumn(matrix, random);
    case 4: return shrinkRow(matrix, random);
    default: return placePivotAtTolerance(matrix, function, random);
    }
}

} // namespace support::families
