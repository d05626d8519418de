// Least squares with the factors of a QR decomposition: the reflectors are replayed on a copy of the right-hand side,
// then the triangle is solved from the bottom up. The scale of each reflector is worked out anew.
#include "model/families.h"

namespace model {

namespace {

class QrBackSubstitution {
public:
    explicit QrBackSubstitution(const Execution &execution)
        : form_(execution.form), memory_(execution.memory), arithmetic_(execution.memory),
          columns_(execution.dimension("cols")), rows_(execution.dimension("rows")), count_(execution.count()),
          reflectors_(execution.operand("src1", columns_)), triangle_(reflectors_), right_(execution.operand("src2")),
          dst_(execution.operand("dst")), work_(execution.arguments.pointer("work")) {
        displaceMatrix();
    }

    Status run();

private:
    std::uint64_t reflections() const { return rows_ == columns_ ? columns_ - 1 : columns_; }
    std::uintptr_t reflector(std::uint64_t i, std::uint64_t k) const { return reflectors_.element(object_, i, k); }
    std::uintptr_t upper(std::uint64_t i, std::uint64_t j) const {
        return triangle_.element(object_, i, j) + triangleDisplacement_;
    }
    std::uintptr_t solution(std::uint64_t j) const { return dst_.element(object_, j); }
    std::uintptr_t work(std::uint64_t i) const { return work_ + i * form_.elementSize(); }

    void displaceMatrix();
    bool anyTableEntryIsNull() const;
    bool anyListEntryIsNull(std::uint64_t n) const;
    void checkOverlaps();
    void replay32(std::uint64_t k);
    void solveTriangle32();
    void replay64(std::uint64_t k);
    void solveTriangle64();
    void solveObject();

    const Form &form_;
    Memory &memory_;
    Arithmetic arithmetic_;
    std::uint64_t columns_;
    std::uint64_t rows_;
    std::uint64_t count_;
    Operand reflectors_; // the matrix as the replay addresses it
    Operand triangle_;   // and as the triangular solve does
    std::uint64_t triangleDisplacement_ = 0;
    Operand right_;
    Operand dst_;
    std::uintptr_t work_;
    std::uint64_t object_ = 0;
};

// Ten forms look for elements elsewhere than the others; callers arrange their data for it. With one matrix, columns
// lie 4 bytes apart. With a matrix for each vector, row i of the triangle lies i + 1 bytes behind where a row ahead of
// the matrix would be.
void QrBackSubstitution::displaceMatrix() {
    if (form_.element != Element::real64 || form_.layout != Layout::list) return;
    if (form_.group == "mva") {
        reflectors_.elementStride = triangle_.elementStride = 4;
    } else {
        triangleDisplacement_ = 1 - triangle_.rowStride;
        triangle_.rowStride = 1;
    }
}

// Of the right-hand side only as many entries are tested as the solution has.
bool QrBackSubstitution::anyTableEntryIsNull() const {
    return reflectors_.anyEntryIsNull(rows_ * columns_) || right_.anyEntryIsNull(columns_) ||
           dst_.anyEntryIsNull(columns_);
}

bool QrBackSubstitution::anyListEntryIsNull(std::uint64_t n) const {
    for (const Operand *operand : {&reflectors_, &right_, &dst_})
        if (operand->isList() && operand->entryIsNull(n)) return true;
    return false;
}

// Elements of the solution that share some of their bytes: whether a step uses a value just stored or what memory makes
// of it is not to be relied on. Everything else is fixed, since every step reads memory anew.
void QrBackSubstitution::checkOverlaps() {
    const std::size_t size = form_.elementSize();
    for (std::uint64_t i = 0; i < columns_; ++i)
        for (std::uint64_t j = 0; j < i; ++j)
            if (solution(i) != solution(j) && overlap(solution(i), size, solution(j), size)) memory_.markOpen();
}

void QrBackSubstitution::replay32(std::uint64_t k) {
    float squaredLength = 1.0F;
    float projection = memory_.load<float>(work(k));
    for (std::uint64_t i = k + 1; i < rows_; ++i) {
        const float element = memory_.load<float>(reflector(i, k));
        squaredLength = arithmetic_.add(squaredLength, arithmetic_.multiply(element, element));
        projection = arithmetic_.add(projection, arithmetic_.multiply(memory_.load<float>(work(i)), element));
    }
    const float beta = arithmetic_.divide(-2.0F, squaredLength);
    const float scaled = arithmetic_.multiply(projection, beta);
    memory_.store(work(k), arithmetic_.add(memory_.load<float>(work(k)), scaled));
    for (std::uint64_t i = k + 1; i < rows_; ++i) {
        const float product = arithmetic_.multiply(memory_.load<float>(reflector(i, k)), scaled);
        memory_.store(work(i), arithmetic_.add(product, memory_.load<float>(work(i))));
    }
}

void QrBackSubstitution::solveTriangle32() {
    const std::uint64_t last = columns_ - 1;
    memory_.store(solution(last),
                  arithmetic_.divide(memory_.load<float>(work(last)), memory_.load<float>(upper(last, last))));
    for (std::uint64_t i = last; i-- > 0;) {
        float sum = 0.0F;
        for (std::uint64_t j = i + 1; j < columns_; ++j)
            sum = arithmetic_.add(
                sum, arithmetic_.multiply(memory_.load<float>(upper(i, j)), memory_.load<float>(solution(j))));
        const float rest = arithmetic_.subtract(memory_.load<float>(work(i)), sum);
        memory_.store(solution(i), arithmetic_.divide(rest, memory_.load<float>(upper(i, i))));
    }
}

// Only what is stored is rounded.
void QrBackSubstitution::replay64(std::uint64_t k) {
    Wide squaredLength = 1;
    Wide projection = memory_.load<double>(work(k));
    for (std::uint64_t i = k + 1; i < rows_; ++i) {
        const Wide element = memory_.load<double>(reflector(i, k));
        squaredLength = arithmetic_.add(squaredLength, arithmetic_.multiply(element, element));
        projection = arithmetic_.add(projection, arithmetic_.multiply<Wide>(memory_.load<double>(work(i)), element));
    }
    const Wide beta = arithmetic_.divide<Wide>(-2, squaredLength);
    const Wide scaled = arithmetic_.multiply(projection, beta);
    memory_.store(work(k), round64(arithmetic_.add<Wide>(memory_.load<double>(work(k)), scaled)));
    for (std::uint64_t i = k + 1; i < rows_; ++i) {
        const Wide product = arithmetic_.multiply<Wide>(memory_.load<double>(reflector(i, k)), scaled);
        memory_.store(work(i), round64(arithmetic_.add<Wide>(product, memory_.load<double>(work(i)))));
    }
}

void QrBackSubstitution::solveTriangle64() {
    const std::uint64_t last = columns_ - 1;
    memory_.store(solution(last), round64(arithmetic_.divide<Wide>(memory_.load<double>(work(last)),
                                                                   memory_.load<double>(upper(last, last)))));
    for (std::uint64_t i = last; i-- > 0;) {
        Wide sum = 0;
        for (std::uint64_t j = i + 1; j < columns_; ++j)
            sum = arithmetic_.add(
                sum, arithmetic_.multiply<Wide>(memory_.load<double>(upper(i, j)), memory_.load<double>(solution(j))));
        const Wide rest = arithmetic_.subtract<Wide>(memory_.load<double>(work(i)), sum);
        memory_.store(solution(i), round64(arithmetic_.divide<Wide>(rest, memory_.load<double>(upper(i, i)))));
    }
}

void QrBackSubstitution::solveObject() {
    const bool isReal32 = form_.element == Element::real32;
    checkOverlaps();
    for (std::uint64_t i = 0; i < rows_; ++i) memory_.move(work(i), right_.element(object_, i), form_.elementSize());
    for (std::uint64_t k = 0; k < reflections(); ++k) isReal32 ? replay32(k) : replay64(k);
    isReal32 ? solveTriangle32() : solveTriangle64();
}

Status QrBackSubstitution::run() {
    if (rows_ == 0 || columns_ == 0) return statusSize;
    if (isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    for (object_ = 0; object_ < count_; ++object_) {
        if (anyListEntryIsNull(object_)) return statusNullPointer;
        solveObject();
    }
    return statusOk;
}

} // namespace

Status substituteBackQr(const Execution &execution) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return QrBackSubstitution(execution).run();
}

} // namespace model
