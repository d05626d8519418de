// The walk over vectors. See vector_walk.h.
#include "model/vector_walk.h"

#include <algorithm>

namespace model {

namespace {

class VectorWalk {
public:
    VectorWalk(const Execution &execution, const std::vector<std::string> &sources, const ElementFormula &formula,
               LoadsAhead ahead)
        : form_(execution.form), memory_(execution.memory), length_(execution.dimension("len")),
          count_(execution.count()), dst_(execution.operand("dst")), formula_(formula), ahead_(ahead) {
        for (const std::string &name : sources) sources_.push_back(execution.operand(name));
    }

    Status run();

private:
    bool anyPositionIsNull(std::uint64_t k) const;
    bool anyTableEntryIsNull() const;
    bool anyListEntryIsNull(std::uint64_t n) const;
    bool isHeld(const Operand &source) const { return ahead_.single && form_.isArray() && !source.shape.isArray; }
    void hold();
    float load32(const Operand &source, std::uint64_t n, std::uint64_t j) const;
    float result32(std::uint64_t n, std::uint64_t j) const;
    double result64(std::uint64_t n, std::uint64_t j) const;
    Status objectByElements(std::uint64_t n);
    bool runsIntoOwnSource(const Operand &source, std::uint64_t n) const;
    void objectInLanes(std::uint64_t n);

    const Form &form_;
    Memory &memory_;
    std::uint32_t length_;
    std::uint32_t count_;
    std::vector<Operand> sources_;
    Operand dst_;
    const ElementFormula &formula_;
    LoadsAhead ahead_;
    std::vector<float> held_;
};

bool VectorWalk::anyPositionIsNull(std::uint64_t k) const {
    const auto isNull = [k](const Operand &source) { return source.entryIsNull(k); };
    return std::any_of(sources_.begin(), sources_.end(), isNull) || dst_.entryIsNull(k);
}

bool VectorWalk::anyTableEntryIsNull() const {
    for (std::uint64_t k = 0; k < length_; ++k)
        if (anyPositionIsNull(k)) return true;
    return false;
}

bool VectorWalk::anyListEntryIsNull(std::uint64_t n) const {
    const auto isNull = [n](const Operand &operand) { return operand.isList() && operand.entryIsNull(n); };
    return std::any_of(sources_.begin(), sources_.end(), isNull) || isNull(dst_);
}

void VectorWalk::hold() {
    for (const Operand &source : sources_)
        for (std::uint64_t j = 0; isHeld(source) && j < length_; ++j)
            held_.push_back(memory_.load<float>(source.element(0, j)));
}

float VectorWalk::load32(const Operand &source, std::uint64_t n, std::uint64_t j) const {
    return isHeld(source) ? held_[j] : memory_.load<float>(source.element(n, j));
}

float VectorWalk::result32(std::uint64_t n, std::uint64_t j) const {
    std::vector<float> elements;
    for (const Operand &source : sources_) elements.push_back(load32(source, n, j));
    return formula_.real32(elements);
}

double VectorWalk::result64(std::uint64_t n, std::uint64_t j) const {
    std::vector<Wide> elements;
    for (const Operand &source : sources_) elements.push_back(memory_.load<double>(source.element(n, j)));
    return round64(formula_.real64(elements));
}

// The long run-time forms work in blocks only where no overlap can show it, so they too are this walk.
Status VectorWalk::objectByElements(std::uint64_t n) {
    const bool testsAlongTheWay = isPointerLayout(form_.layout) && !form_.isArray();
    for (std::uint64_t j = 0; j < length_; ++j) {
        if (testsAlongTheWay && anyPositionIsNull(j)) return statusNullPointer;
        if (form_.element == Element::real32) memory_.store(dst_.element(n, j), result32(n, j));
        else memory_.store(dst_.element(n, j), result64(n, j));
    }
    return statusOk;
}

// Of a source that is not held: overlaps the destination of its own object, but does not lie exactly on it.
bool VectorWalk::runsIntoOwnSource(const Operand &source, std::uint64_t n) const {
    if (isHeld(source)) return false;
    const std::uintptr_t from = source.element(n, 0);
    const std::uintptr_t to = dst_.element(n, 0);
    return from != to && overlap(from, 4 * length_, to, 4 * length_);
}

void VectorWalk::objectInLanes(std::uint64_t n) {
    // Five and six elements are one operation in four lanes and one on the rest, and whether the rest is loaded before
    // or after the store of the four is free.
    for (const Operand &source : sources_)
        if (length_ > 4 && runsIntoOwnSource(source, n)) memory_.markOpen();
    std::vector<float> results;
    for (std::uint64_t j = 0; j < length_; ++j) results.push_back(result32(n, j));
    for (std::uint64_t j = 0; j < length_; ++j) memory_.store(dst_.element(n, j), results[j]);
}

Status VectorWalk::run() {
    if (length_ == 0) return statusSize;
    if (form_.isArray() && isPointerLayout(form_.layout) && anyTableEntryIsNull()) return statusNullPointer;
    if (count_ == 0) return statusOk;
    hold();
    for (std::uint64_t n = 0; n < count_; ++n) {
        if (anyListEntryIsNull(n)) return statusNullPointer;
        if (ahead_.wholeObjects) objectInLanes(n);
        else if (const Status status = objectByElements(n); status != statusOk) return status;
    }
    return statusOk;
}

} // namespace

Status walkVectors(const Execution &execution, const std::vector<std::string> &sources, const ElementFormula &formula,
                   LoadsAhead ahead) {
    if (execution.arguments.hasNullPointer()) return statusNullPointer;
    return VectorWalk(execution, sources, formula, ahead).run();
}

} // namespace model
