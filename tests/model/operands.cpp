// Address arithmetic of the six layouts, written out once per kind of layout.
#include "model/operands.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace model {

Arguments::Arguments(const std::vector<Parameter> &parameters, const std::vector<std::uint64_t> &words)
    : parameters_(parameters), words_(words) {
    if (parameters_.size() != words_.size()) throw std::invalid_argument("a call needs one word per parameter");
}

std::uint64_t Arguments::word(const std::string &name) const {
    for (std::size_t i = 0; i < parameters_.size(); ++i)
        if (parameters_[i].name == name) return words_[i];
    throw std::invalid_argument("no such parameter: " + name);
}

std::uint64_t Arguments::bytes(const std::string &name) const {
    const auto narrow = static_cast<std::int32_t>(static_cast<std::uint32_t>(word(name)));
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(narrow));
}

long double Arguments::real(const std::string &name, Element element) const {
    const std::uint64_t bits = word(name);
    return element == Element::real32 ? static_cast<long double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)))
                                      : std::bit_cast<double>(bits);
}

std::uint32_t Arguments::times(const std::string &name) const {
    const std::uint32_t value = size(name);
    const bool isSigned = std::any_of(parameters_.begin(), parameters_.end(), [&](const Parameter &parameter) {
        return parameter.name == name && parameter.isSigned;
    });
    return isSigned && (value & 0x80000000) != 0 ? 0 : value;
}

bool Arguments::hasNullPointer() const {
    for (std::size_t i = 0; i < parameters_.size(); ++i)
        if (parameters_[i].word == Word::pointer && words_[i] == 0) return true;
    return false;
}

std::uintptr_t Operand::throughSlot(std::uint64_t n, std::uint64_t slot) const {
    return loadEntry(slot) + shift + n * objectStride;
}

std::uintptr_t Operand::stored(std::uint64_t n, std::uint64_t row, std::uint64_t column) const {
    if (isPointerLayout(layout)) return throughSlot(n, row * columns + column);
    const std::uint64_t inObject = row * rowStride + column * elementStride;
    if (isList()) return loadEntry(n) + shift + inObject;
    return base + n * objectStride + inObject;
}

bool Operand::anyEntryIsNull() const {
    for (std::uint64_t entry = 0; entry < entries; ++entry)
        if (entryIsNull(entry)) return true;
    return false;
}

Operand makeOperand(const Form &form, const Arguments &arguments, Memory &memory, const std::string &name,
                    std::uint64_t columns) {
    Operand operand{};
    operand.memory = &memory;
    operand.layout = name == "dst" ? form.destinationLayout : form.layout;
    operand.shape = form.slot(name);
    operand.base = arguments.pointer(name);
    operand.columns = columns;
    const Layout layout = operand.layout;
    if (isPointerLayout(layout) || operand.isList()) operand.shift = arguments.bytes(name + "Shift");
    if (operand.shape.isArray && layout == Layout::pointer) operand.objectStride = form.elementSize();
    else if (operand.shape.isArray && !isListLayout(layout)) operand.objectStride = arguments.bytes(name + "ObjStride");
    if (operand.shape.isMatrix && !isPointerLayout(layout)) operand.rowStride = arguments.bytes(name + "RowStride");
    if (layout == Layout::strided || layout == Layout::stridedList)
        operand.elementStride = arguments.bytes(name + "ElemStride");
    else operand.elementStride = form.elementSize();
    return operand;
}

} // namespace model
