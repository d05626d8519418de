// Printing a call. See report.h.
#include "report.h"

#include "values.h"

#include <cstring>
#include <iomanip>
#include <sstream>

namespace support {
namespace {

using catalogue::Kind;

std::string where(std::uint64_t word) {
    std::ostringstream text;
    if (Arena::contains(static_cast<std::uintptr_t>(word)))
        text << "arena + 0x" << std::hex << word - Arena::address << " (mod 16: " << std::dec << word % 16 << ")";
    else text << "0x" << std::hex << word;
    return text.str();
}

std::string valueOf(const catalogue::Parameter &parameter, catalogue::Type type, std::uint64_t word) {
    std::ostringstream text;
    switch (parameter.kind) {
    case Kind::base:
    case Kind::table:
    case Kind::list:
    case Kind::dense: return where(word);
    case Kind::size:
    case Kind::count: text << static_cast<std::uint32_t>(word); break;
    case Kind::constant: text << std::hexfloat << loadElement(reinterpret_cast<std::uintptr_t>(&word), type); break;
    default: text << static_cast<std::int32_t>(static_cast<std::uint32_t>(word)); break;
    }
    return text.str();
}

// Of an element anywhere in the image; tables may lead out of it after a fault.
std::string elementAt(const Image &image, std::uintptr_t address, catalogue::Type type) {
    const std::size_t size = type == catalogue::Type::real32 ? 4 : 8;
    if (!Arena::contains(address, size)) return "outside";
    const std::byte *const place = image.data() + (address - Arena::address);
    std::ostringstream text;
    text << std::hexfloat << loadElement(reinterpret_cast<std::uintptr_t>(place), type);
    return text.str();
}

void describeElements(std::ostream &text, const Call &call, const Placement &placement, const Image &image) {
    for (std::uint32_t n = 0; n < placement.objects; ++n) {
        text << "    object " << n << " at " << where(placement.address(n, 0, 0)) << "\n";
        for (std::uint32_t i = 0; i < placement.shape.rows; ++i) {
            text << "     ";
            for (std::uint32_t j = 0; j < placement.shape.cols; ++j)
                text << " " << elementAt(image, placement.address(n, i, j), call.function->type);
            text << "\n";
        }
    }
}

template <class Word>
void describeAll(std::ostream &text, const Image &image, std::uintptr_t address, std::size_t words) {
    text << std::hex;
    for (std::size_t k = 0; k < words; ++k) {
        Word word;
        std::memcpy(&word, image.data() + (address + sizeof word * k - Arena::address), sizeof word);
        text << " " << word;
    }
    text << std::dec << "\n";
}

void describeTable(std::ostream &text, const Placement &placement, const Image &image) {
    text << "    entries:";
    describeAll<std::uintptr_t>(text, image, placement.table, placement.slots.size());
}

void describeBlock(std::ostream &text, const Block &block, const Image &image) {
    text << "  " << block.parameter << ", " << block.bytes << " bytes at " << where(block.address) << ":";
    describeAll<std::uint32_t>(text, image, block.address, block.bytes / 4);
}

} // namespace

std::string replayOptions(const Call &call) {
    return "--seed " + std::to_string(call.seed) + " --replay " + call.function->name + ":" +
           std::to_string(call.index);
}

std::string describeWords(const Call &call) {
    std::ostringstream text;
    for (std::size_t k = 0; k < call.words.size(); ++k) {
        const catalogue::Parameter &parameter = call.function->parameters[k];
        text << "  " << std::left << std::setw(16) << parameter.name << std::right << " 0x" << std::hex
             << std::setfill('0') << std::setw(16) << call.words[k] << std::setfill(' ') << std::dec << "  "
             << valueOf(parameter, call.function->type, call.words[k]) << "\n";
    }
    return text.str();
}

std::string describeOperands(const Call &call, const Image &image) {
    std::ostringstream text;
    for (std::size_t k = 0; k < call.operands.size(); ++k) {
        const Placement &placement = call.operands[k];
        text << "  " << call.function->operands[k].name << ", " << placement.objects << " objects, "
             << placement.shape.rows << " by " << placement.shape.cols << "\n";
        if (placement.tabled) describeTable(text, placement, image);
        describeElements(text, call, placement, image);
    }
    for (const Block &block : call.blocks) describeBlock(text, block, image);
    return text.str();
}

} // namespace support
