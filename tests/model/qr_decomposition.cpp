// QR decomposition by Householder reflections, column by column: the upper factor on and above the diagonal, the
// reflectors below it with a leading 1 that is not stored.
#include "model/families.h"

#include <vector>

namespace model {

namespace {

// Of the squared norm of a column; absolute, and the same for both element types.
constexpr double normTolerance = 0x1p-23;

class QrDecomposition {
public:
    explicit QrDecomposition(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          columns_(execution.dimension("cols")), rows_(execution.dimension("rows")), count_(execution.count()),
          src_(execution.operand("src", columns_)), dst_(execution.operand("dst", columns_)),
          work_(execution.arguments.pointer("work")) {}

    Status run();

private:
    // The last column of a square has nothing below its diagonal.
    std::uint64_t reflections() const { return rows_ == columns_ ? columns_ - 1 : columns_; }
    std::uintptr_t at(std::uint64_t i, std::uint64_t j) const { return dst_.element(object_, i, j); }
    std::uintptr_t work(std::uint64_t i) const { return work_ + i * form_.elementSize(); }
    static bool isBelowTolerance(double squaredNorm) { return !(squaredNorm >= normTolerance); }

    void checkOverlaps();
    void copy();
    Status reflect32(std::uint64_t k);
    void buildReflector32(std::uint64_t k, float reciprocal, float &squaredLength);
    void apply32(std::uint64_t k, std::uint64_t c, float beta);
    Status reflect64(std::uint64_t k);
    double squaredNorm64(std::uint64_t k);
    double buildReflector64(std::uint64_t k, Wide reciprocal);
    void apply64(std::uint64_t k, std::uint64_t c, double beta);
    void storeReflector(std::uint64_t k);
    Status decomposeObject();

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t columns_;
    std::uint64_t rows_;
    std::uint64_t count_;
    Operand src_;
    Operand dst_;
    std::uintptr_t work_;
    std::uint64_t object_ = 0;
};

// Only a destination that is the source, element on element, is fixed: how far the copy reads ahead of its stores is
// free. So is whether an element of the destination is kept or read back, which shows where two of them share bytes or
// one lies on the reflector.
void QrDecomposition::checkOverlaps() {
    const std::size_t size = form_.elementSize();
    std::vector<std::uintptr_t> written;
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j) {
            const std::uintptr_t to = at(i, j);
            const std::uintptr_t from = src_.element(object_, i, j);
            for (const std::uintptr_t earlier : written)
                if (overlap(earlier, size, to, size) || overlap(earlier, size, from, size)) memory_.markOpen();
            if (overlap(to, size, work_, rows_ * size)) memory_.markOpen();
            written.push_back(to);
        }
}

void QrDecomposition::copy() {
    for (std::uint64_t i = 0; i < rows_; ++i)
        for (std::uint64_t j = 0; j < columns_; ++j)
            memory_.move(at(i, j), src_.element(object_, i, j), form_.elementSize());
}

void QrDecomposition::storeReflector(std::uint64_t k) {
    for (std::uint64_t i = k + 1; i < rows_; ++i) memory_.move(at(i, k), work(i), form_.elementSize());
}

// --- Real32: every operation is rounded, but the root of the squared norm is taken in the extended type

void QrDecomposition::buildReflector32(std::uint64_t k, float reciprocal, float &squaredLength) {
    memory_.store(work(k), 1.0F);
    squaredLength = 1.0F;
    for (std::uint64_t i = k + 1; i < rows_; ++i) {
        const float element = arithmetic_.multiply(memory_.load<float>(at(i, k)), reciprocal);
        memory_.store(work(i), element);
        squaredLength = arithmetic_.add(squaredLength, arithmetic_.multiply(element, element));
    }
}

void QrDecomposition::apply32(std::uint64_t k, std::uint64_t c, float beta) {
    float projection = memory_.load<float>(at(k, c));
    for (std::uint64_t i = k + 1; i < rows_; ++i) {
        const float product = arithmetic_.multiply(memory_.load<float>(at(i, c)), memory_.load<float>(work(i)));
        projection = arithmetic_.add(projection, product);
    }
    projection = arithmetic_.multiply(projection, beta);
    for (std::uint64_t i = k; i < rows_; ++i) {
        const float product = arithmetic_.multiply(memory_.load<float>(work(i)), projection);
        memory_.store(at(i, c), arithmetic_.add(product, memory_.load<float>(at(i, c))));
    }
}

Status QrDecomposition::reflect32(std::uint64_t k) {
    float squaredNorm = 0.0F;
    for (std::uint64_t i = k; i < rows_; ++i) {
        const float element = memory_.load<float>(at(i, k));
        squaredNorm = arithmetic_.add(squaredNorm, arithmetic_.multiply(element, element));
    }
    if (isBelowTolerance(squaredNorm)) return statusSingular;
    const auto norm = static_cast<float>(arithmetic_.squareRoot<Wide>(squaredNorm));
    const float diagonal = memory_.load<float>(at(k, k));
    const float alpha = arithmetic_.add(diagonal, diagonal > 0 ? norm : -norm);
    float squaredLength = 0;
    buildReflector32(k, arithmetic_.divide(1.0F, alpha), squaredLength);
    const float beta = arithmetic_.divide(-2.0F, squaredLength);
    for (std::uint64_t c = k; c < columns_; ++c) apply32(k, c, beta);
    storeReflector(k);
    return statusOk;
}

// --- Real64: a sum along a column is rounded after its last pair and again after an odd last term

double QrDecomposition::squaredNorm64(std::uint64_t k) {
    const std::uint64_t endOfPairs = rows_ - (rows_ - k) % 2;
    Wide sum = 0;
    for (std::uint64_t i = k; i < rows_; ++i) {
        if (i == endOfPairs) sum = round64(sum);
        const Wide element = memory_.load<double>(at(i, k));
        sum = arithmetic_.add(sum, arithmetic_.multiply(element, element));
    }
    return round64(sum);
}

// What is stored of the reflector is rounded, its squared length is built from what is not.
double QrDecomposition::buildReflector64(std::uint64_t k, Wide reciprocal) {
    const std::uint64_t endOfPairs = rows_ - (rows_ - (k + 1)) % 2;
    memory_.store(work(k), 1.0);
    Wide sum = 1;
    for (std::uint64_t i = k + 1; i < rows_; ++i) {
        if (i == endOfPairs) sum = round64(sum);
        const Wide element = arithmetic_.multiply<Wide>(memory_.load<double>(at(i, k)), reciprocal);
        memory_.store(work(i), round64(element));
        sum = arithmetic_.add(sum, arithmetic_.multiply(element, element));
    }
    return round64(sum);
}

void QrDecomposition::apply64(std::uint64_t k, std::uint64_t c, double beta) {
    Wide projection = memory_.load<double>(at(k, c));
    for (std::uint64_t i = k + 1; i < rows_; ++i) {
        const Wide product = arithmetic_.multiply<Wide>(memory_.load<double>(at(i, c)), memory_.load<double>(work(i)));
        projection = arithmetic_.add(projection, product);
    }
    projection = arithmetic_.multiply<Wide>(projection, beta);
    for (std::uint64_t i = k; i < rows_; ++i) {
        const Wide product = arithmetic_.multiply<Wide>(memory_.load<double>(work(i)), projection);
        memory_.store(at(i, c), round64(arithmetic_.add<Wide>(product, memory_.load<double>(at(i, c)))));
    }
}

Status QrDecomposition::reflect64(std::uint64_t k) {
    const double squaredNorm = squaredNorm64(k);
    if (isBelowTolerance(squaredNorm)) return statusSingular;
    const Wide norm = arithmetic_.squareRoot<Wide>(squaredNorm);
    const Wide diagonal = memory_.load<double>(at(k, k));
    const Wide alpha = arithmetic_.add(diagonal, diagonal > 0 ? norm : -norm);
    const double squaredLength = buildReflector64(k, arithmetic_.divide<Wide>(1, alpha));
    const double beta = round64(arithmetic_.divide<Wide>(-2, squaredLength));
    for (std::uint64_t c = k; c < columns_; ++c) apply64(k, c, beta);
    storeReflector(k);
    return statusOk;
}

Status QrDecomposition::decomposeObject() {
    checkOverlaps();
    copy();
    // A matrix wider than high has no column left after as many reflections as rows: an empty sum fails the tolerance.
    for (std::uint64_t k = 0; k < reflections(); ++k) {
        const Status status = form_.element == Element::real32 ? reflect32(k) : reflect64(k);
        if (status != statusOk) return status;
    }
    return statusOk;
}

Status QrDecomposition::run() {
    if (rows_ == 0 || columns_ == 0) return statusSize;
    const std::uint64_t positions = rows_ * columns_;
    if (isPointerLayout(form_.layout) && (src_.anyEntryIsNull(positions) || dst_.anyEntryIsNull(positions)))
        return statusNullPointer;
    for (object_ = 0; object_ < count_; ++object_) {
        if (src_.isList() && (src_.entryIsNull(object_) || dst_.entryIsNull(object_))) return statusNullPointer;
        if (const Status status = decomposeObject(); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status decomposeQr(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return QrDecomposition(execution).run();
}

} // namespace model
