// The steps of a sum through its cell. A Real32 sum is the same number in a register and in the cell; a Real64 sum is
// not, so there the layouts that keep it in the cell round at every step and the others at the last one only.
#include "model/accumulation.h"

namespace model {

CellSum::CellSum(const Form &form, Memory &memory)
    : memory_(memory), arithmetic_(memory), isReal32_(form.element == Element::real32),
      roundsEveryStep_(form.layout != Layout::standard && form.layout != Layout::strided) {}

void CellSum::clear(std::uintptr_t cell) {
    sum32_ = 0;
    sum64_ = 0;
    isReal32_ ? memory_.store(cell, 0.0F) : memory_.store(cell, 0.0);
}

void CellSum::add32(std::uintptr_t cell, float term) {
    sum32_ = arithmetic_.add(sum32_, term);
    memory_.store(cell, sum32_);
}

void CellSum::add64(std::uintptr_t cell, Wide term) {
    const Wide sum = roundsEveryStep_ ? static_cast<Wide>(memory_.load<double>(cell)) : sum64_;
    sum64_ = arithmetic_.add(sum, term);
    memory_.store(cell, round64(sum64_));
}

void CellSum::addProduct(std::uintptr_t cell, std::uintptr_t a, std::uintptr_t b) {
    if (isReal32_) add32(cell, arithmetic_.multiply(memory_.load<float>(a), memory_.load<float>(b)));
    else add64(cell, arithmetic_.multiply<Wide>(memory_.load<double>(a), memory_.load<double>(b)));
}

void CellSum::addElement(std::uintptr_t cell, std::uintptr_t element) {
    isReal32_ ? add32(cell, memory_.load<float>(element)) : add64(cell, memory_.load<double>(element));
}

} // namespace model
