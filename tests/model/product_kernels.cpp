// Which products work on whole rows, what each of them holds, and the order in which they read and store.
#include "model/product_kernels.h"

#include <vector>

namespace model {

namespace {

bool isOneOf(const std::string &group, std::initializer_list<const char *> groups) {
    return std::any_of(groups.begin(), groups.end(), [&](const char *one) { return group == one; });
}

// Three forms gather the second factor and take dst rows in pairs; their sums are trees.
bool sumsInPairs(const Form &form) {
    return form.layout == Layout::strided && form.size == 6 && isOneOf(form.group, {"mm", "mmT", "mTmT"});
}

} // namespace

ProductKernel::ProductKernel(const Form &form, Memory &memory, const FactorMatrix &left, const FactorMatrix &right,
                             const Operand &dst)
    : form_(form), memory_(memory), arithmetic_(memory), order_(form_.size), left_(left), right_(right), dst_(dst) {}

bool ProductKernel::serves(const Form &form) {
    if (form.element != Element::real32 || form.size == 0) return false;
    switch (form.layout) {
    case Layout::standard:
    case Layout::list: return true;
    case Layout::strided:
        if (form.size == 3) return isOneOf(form.group, {"mam", "mama", "maTm", "mamT", "maTmT"});
        return form.size == 6 ? sumsInPairs(form) : isOneOf(form.group, {"mam", "mama"});
    case Layout::pointer:
    case Layout::stridedPointer: return form.size == 3 && isOneOf(form.group, {"mam", "maTm", "mamT"});
    case Layout::stridedList: return form.size == 3 && isOneOf(form.group, {"mam", "maTm", "mamT", "maTmT"});
    }
    return false;
}

// The fifth column of order 5 runs beside the four lanes. A single second factor that needs no turning round leaves it
// in memory and fetches it for every row.
bool ProductKernel::rereadsColumn(std::uint64_t j) const {
    return order_ == 5 && j == 4 && !right_.isTransposed() && !right_.isArray();
}

// At order 6 the array forms hold all of the second factor from the start; a single product fetches what its second
// pass needs when the first has stored.
bool ProductKernel::fetchesLastColumnsLate() const { return order_ == 6 && !form_.isArray() && !sumsInPairs(form_); }

void ProductKernel::hold(std::uint64_t firstColumn, std::uint64_t endOfColumns) {
    for (std::uint64_t k = 0; k < order_; ++k)
        for (std::uint64_t j = firstColumn; j < endOfColumns; ++j)
            if (!rereadsColumn(j)) held_[k][j] = memory_.load<float>(right_.element(object_, k, j));
}

// A second factor that is not turned round can have its last columns fetched early as well as late, which shows where
// the first pass has stored over them. A transposed one has them in two rows of their own, which no early load touches.
void ProductKernel::checkLateFetch() {
    if (right_.isTransposed()) return;
    Places stored;
    Places fetched;
    for (std::uint64_t i = 0; i < 6; ++i) {
        for (std::uint64_t j = 0; j < 4; ++j) stored.push_back(dst_.element(object_, i, j));
        for (std::uint64_t j = 4; j < 6; ++j) fetched.push_back(right_.element(object_, i, j));
    }
    if (anyOverlap(stored, fetched)) memory_.markOpen();
}

float ProductKernel::rightElement(std::uint64_t k, std::uint64_t j) const {
    return rereadsColumn(j) ? memory_.load<float>(right_.element(object_, k, j)) : held_[k][j];
}

float ProductKernel::leftElement(std::uint64_t i, std::uint64_t k) const {
    return memory_.load<float>(left_.element(object_, i, k));
}

// Begins with the first product, so that a sum of nothing but -0 stays -0.
float ProductKernel::ascendingSum(std::uint64_t i, std::uint64_t j) {
    float sum = arithmetic_.multiply(leftElement(i, 0), rightElement(0, j));
    for (std::uint64_t k = 1; k < order_; ++k)
        sum = arithmetic_.add(sum, arithmetic_.multiply(leftElement(i, k), rightElement(k, j)));
    return sum;
}

// One step of a kernel: nothing is stored before all of it is computed.
void ProductKernel::rows(std::uint64_t firstRow, std::uint64_t endOfRows, std::uint64_t firstColumn,
                         std::uint64_t endOfColumns) {
    std::vector<float> results;
    for (std::uint64_t i = firstRow; i < endOfRows; ++i)
        for (std::uint64_t j = firstColumn; j < endOfColumns; ++j) results.push_back(ascendingSum(i, j));
    auto result = results.begin();
    for (std::uint64_t i = firstRow; i < endOfRows; ++i)
        for (std::uint64_t j = firstColumn; j < endOfColumns; ++j)
            memory_.store(dst_.element(object_, i, j), *result++);
}

// The first factor is read anew in the second pass: in place it has lost four columns by then.
void ProductKernel::sixBySixInTwoPasses() {
    for (std::uint64_t i = 0; i < 6; ++i) rows(i, i + 1, 0, 4);
    if (fetchesLastColumnsLate()) {
        checkLateFetch();
        hold(4, 6);
    }
    for (std::uint64_t i = 0; i < 6; i += 2) rows(i, i + 2, 4, 6);
}

float ProductKernel::pairedSum(const Row &left, std::uint64_t j) {
    Row products;
    for (std::uint64_t k = 0; k < 6; ++k) products[k] = arithmetic_.multiply(left[k], held_[k][j]);
    const float first = arithmetic_.add(products[0], products[1]);
    const float second = arithmetic_.add(products[2], products[3]);
    const float third = arithmetic_.add(products[4], products[5]);
    return arithmetic_.add(arithmetic_.add(first, second), third);
}

// Whether the second row of a pair is read before or after the stores of the first is free.
void ProductKernel::checkRowPair(std::uint64_t i) {
    Places stored;
    Places read;
    for (std::uint64_t k = 0; k < 6; ++k) {
        stored.push_back(dst_.element(object_, i, k));
        read.push_back(left_.element(object_, i + 1, k));
    }
    if (anyOverlap(stored, read)) memory_.markOpen();
}

void ProductKernel::rowPair(std::uint64_t i) {
    checkRowPair(i);
    Row upper;
    Row lower;
    for (std::uint64_t k = 0; k < 6; ++k) upper[k] = leftElement(i, k);
    for (std::uint64_t k = 0; k < 6; ++k) lower[k] = leftElement(i + 1, k);
    for (std::uint64_t j = 0; j < 6; ++j) memory_.store(dst_.element(object_, i, j), pairedSum(upper, j));
    for (const std::uint64_t j : {4, 5, 0, 1, 2, 3})
        memory_.store(dst_.element(object_, i + 1, j), pairedSum(lower, j));
}

void ProductKernel::object(std::uint64_t n) {
    object_ = n;
    if (n == 0 || right_.isArray()) hold(0, fetchesLastColumnsLate() ? 4 : order_);
    if (sumsInPairs(form_)) {
        for (std::uint64_t i = 0; i < 6; i += 2) rowPair(i);
    } else if (order_ == 6) {
        sixBySixInTwoPasses();
    } else {
        for (std::uint64_t i = 0; i < order_; ++i) rows(i, i + 1, 0, order_);
    }
}

} // namespace model
