// Sums and differences of matrices: a forward walk over objects, rows and columns, but for the Real32 forms of fixed
// order in lanes. Some of those have ways of their own: two groups run one object ahead, one of them takes its strides
// from the wrong operand, and three differences make some elements of the wrong ones.
#include "model/families.h"
#include "model/lanes.h"
#include "model/product_operands.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace model {

namespace {

// Of the difference of two transposed arrays in lanes, order 6: the row and column, as stored, of the elements that the
// element in this place is made of.
constexpr const char *strayCells[6][6] = {
    {"00", "04", "20", "24", "40", "44"}, //
    {"01", "05", "21", "25", "41", "45"}, //
    {"02", "14", "22", "34", "42", "54"}, //
    {"02", "14", "22", "34", "42", "54"}, //
    {"10", "12", "30", "32", "50", "52"}, //
    {"11", "13", "31", "33", "51", "53"},
};

class MatrixSum {
public:
    explicit MatrixSum(const Execution &execution);

    Status run();

private:
    bool isDifference() const { return form_.operation == "Sub"; }
    // Of three rows in lanes, an array on the left and a single matrix on the right.
    bool runsAhead() const {
        return hasLanes(form_) && form_.size == 3 && (form_.group == "mam" || form_.group == "mamT");
    }
    // The single matrix beside an array is loaded once, ahead of the objects, where registers hold all of it.
    bool holdsSingle() const { return hasLanes(form_) && form_.size <= 4 && left_.isArray() != right_.isArray(); }
    bool isHeld(const FactorMatrix &source) const { return holdsSingle() && !source.isArray(); }

    FactorMatrix source(const Execution &execution, const std::string &name) const;
    bool anyTableEntryIsNull() const;
    bool anyPositionIsNull(std::uint64_t i, std::uint64_t j) const;
    void element(std::uint64_t n, std::uint64_t i, std::uint64_t j);
    Status objectByElements(std::uint64_t n);

    std::uintptr_t place(const FactorMatrix &source, std::uint64_t n, std::uint64_t i, std::uint64_t j) const;
    Places placesOf(const FactorMatrix &source, std::uint64_t n) const;
    Places destination(std::uint64_t n) const;
    std::vector<float> load(const FactorMatrix &source, std::uint64_t n) const;
    void hold();
    std::vector<float> results(std::uint64_t n);
    void store(std::uint64_t n, const std::vector<float> &results);
    void objectInLanes(std::uint64_t n);
    Status runAhead();

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t columns_;
    std::uint64_t rows_;
    std::uint64_t count_;
    FactorMatrix left_;
    FactorMatrix right_;
    Operand dst_;
    std::vector<float> held_;
};

MatrixSum::MatrixSum(const Execution &execution)
    : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
      columns_(execution.dimension("cols")), rows_(execution.dimension("rows")), count_(execution.count()),
      left_(source(execution, "src1")), right_(source(execution, "src2")), dst_(execution.operand("dst", columns_)) {
    // These forms never look at the right operand's own stride.
    if (runsAhead() && right_.isTransposed()) right_.stored.rowStride = left_.stored.rowStride;
}

FactorMatrix MatrixSum::source(const Execution &execution, const std::string &name) const {
    return {execution.operand(name, form_.slot(name).isTransposed ? rows_ : columns_)};
}

bool MatrixSum::anyTableEntryIsNull() const {
    const std::uint64_t entries = columns_ * rows_;
    return left_.stored.anyEntryIsNull(entries) || right_.stored.anyEntryIsNull(entries) ||
           dst_.anyEntryIsNull(entries);
}

// One entry of a transposed table of order 4 is passed over.
bool MatrixSum::anyPositionIsNull(std::uint64_t i, std::uint64_t j) const {
    for (const FactorMatrix *source : {&left_, &right_}) {
        const bool isPassedOver = source->isTransposed() && form_.size == 4 && source->entry(i, j) == 8;
        if (!isPassedOver && source->entryIsNull(i, j)) return true;
    }
    return dst_.entryIsNull(i * columns_ + j);
}

void MatrixSum::element(std::uint64_t n, std::uint64_t i, std::uint64_t j) {
    const std::uintptr_t left = left_.element(n, i, j);
    const std::uintptr_t right = right_.element(n, i, j);
    if (form_.element == Element::real32) {
        const auto a = memory_.load<float>(left);
        const auto b = memory_.load<float>(right);
        memory_.store(dst_.element(n, i, j), isDifference() ? arithmetic_.subtract(a, b) : arithmetic_.add(a, b));
    } else {
        const Wide a = memory_.load<double>(left);
        const Wide b = memory_.load<double>(right);
        const Wide result = isDifference() ? arithmetic_.subtract(a, b) : arithmetic_.add(a, b);
        memory_.store(dst_.element(n, i, j), round64(result));
    }
}

Status MatrixSum::objectByElements(std::uint64_t n) {
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) {
            if (testsEntriesAlongTheWay(form_) && anyPositionIsNull(i, j)) return statusNullPointer;
            element(n, i, j);
        }
    return statusOk;
}

// Where an operand's share in element (i, j) comes from, in lanes.
std::uintptr_t MatrixSum::place(const FactorMatrix &source, std::uint64_t n, std::uint64_t i, std::uint64_t j) const {
    if (isDifference() && form_.size == 6 && form_.group == "mTmT" && i == 3) return source.element(n, 2, j);
    if (isDifference() && form_.size == 6 && form_.group == "maTmaT") {
        const char *const cell = strayCells[i][j];
        return source.stored.stored(n, static_cast<std::uint64_t>(cell[0] - '0'),
                                    static_cast<std::uint64_t>(cell[1] - '0'));
    }
    return source.element(n, i, j);
}

Places MatrixSum::placesOf(const FactorMatrix &source, std::uint64_t n) const {
    Places places;
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) places.push_back(place(source, n, i, j));
    return places;
}

Places MatrixSum::destination(std::uint64_t n) const {
    Places places;
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) places.push_back(dst_.element(n, i, j));
    return places;
}

std::vector<float> MatrixSum::load(const FactorMatrix &source, std::uint64_t n) const {
    std::vector<float> elements;
    for (const std::uintptr_t address : placesOf(source, n)) elements.push_back(memory_.load<float>(address));
    return elements;
}

void MatrixSum::hold() {
    if (holdsSingle()) held_ = load(left_.isArray() ? right_ : left_, 0);
}

std::vector<float> MatrixSum::results(std::uint64_t n) {
    const std::vector<float> left = isHeld(left_) ? held_ : load(left_, n);
    const std::vector<float> right = isHeld(right_) ? held_ : load(right_, n);
    std::vector<float> made;
    for (std::size_t k = 0; k < left.size(); ++k)
        made.push_back(isDifference() ? arithmetic_.subtract(left[k], right[k]) : arithmetic_.add(left[k], right[k]));
    return made;
}

void MatrixSum::store(std::uint64_t n, const std::vector<float> &results) {
    const Places places = destination(n);
    if (left_.isTransposed() || right_.isTransposed()) checkStores(memory_, places);
    for (std::size_t k = 0; k < places.size(); ++k) memory_.store(places[k], results[k]);
}

void MatrixSum::objectInLanes(std::uint64_t n) {
    std::vector<Places> sources;
    for (const FactorMatrix *source : {&left_, &right_})
        if (!isHeld(*source)) sources.push_back(placesOf(*source, n));
    checkLoads(memory_, destination(n), sources);
    store(n, results(n));
}

// The next object is loaded whole before this one is stored. The loop has an object in hand when it begins, so it does
// its work even where there are none; in lists that one goes through the entry that stands before the destination's
// first, since the last entry is looked up ahead of all.
Status MatrixSum::runAhead() {
    const bool isListed = left_.stored.isList();
    const std::uint64_t last = isListed || count_ != 0 ? count_ - 1 : 0;
    const std::uint64_t objects = std::max<std::uint64_t>(count_, 1);
    if (isListed && (left_.stored.entryIsNull(0) || dst_.entryIsNull(last))) return statusNullPointer;
    hold();
    std::vector<float> current = results(0);
    for (std::uint64_t n = 0; n + 1 < objects; ++n) {
        if (isListed && (left_.stored.entryIsNull(n + 1) || dst_.entryIsNull(n + 1))) return statusNullPointer;
        std::vector<float> next = results(n + 1);
        store(n, current);
        current = std::move(next);
    }
    store(last, current);
    return statusOk;
}

Status MatrixSum::run() {
    if (columns_ == 0 || rows_ == 0) return statusSize;
    if (runsAhead()) return runAhead();
    if (form_.isArray() && isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    if (count_ == 0) return statusOk;
    hold();
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull({&left_.stored, &right_.stored, &dst_}, n)) return statusNullPointer;
        if (hasLanes(form_)) objectInLanes(n);
        else if (const Status status = objectByElements(n); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status addOrSubtractMatrices(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return MatrixSum(execution).run();
}

} // namespace model
