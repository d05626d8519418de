// Reading and setting the floating-point control state. See control.h.
#include "control.h"

#include <array>
#include <cpuid.h>
#include <cstring>
#include <sstream>

namespace support {
namespace {

constexpr std::uint32_t laneFlags = 0x3f;
constexpr std::uint16_t precisionField = 0x0300;
constexpr std::uint16_t roundingField = 0x0c00;
constexpr std::uint32_t laneRoundingField = 0x6000;

std::uint16_t readControlWord() {
    std::uint16_t word;
    __asm__ volatile("fnstcw %0" : "=m"(word));
    return word;
}

std::uint32_t readMxcsr() {
    std::uint32_t word;
    __asm__ volatile("stmxcsr %0" : "=m"(word));
    return word;
}

// State that the processor holds in other than its initial configuration; bit 2 stands for the upper halves.
std::uint32_t stateInUse() {
    std::uint32_t low, high;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
    return low;
}
constexpr std::uint32_t upperHalves = 4;
void clearUpperHalves() { __asm__ volatile("vzeroupper" : : : "memory"); }

// Empties the register stack on the way, whatever a call has left in it.
void load(std::uint16_t controlWord, std::uint32_t mxcsr) {
    __asm__ volatile("fninit\n\tfldcw %0\n\tldmxcsr %1\n\tcld" : : "m"(controlWord), "m"(mxcsr));
}

} // namespace

std::string describe(Setting setting) {
    static constexpr std::array<const char *, 4> names{"to nearest", "down", "up", "toward zero"};
    return std::string(setting.precision == Precision::bits53 ? "53" : "64") + " bits, rounding " +
           names[static_cast<std::size_t>(setting.rounding)];
}

SettingScope::SettingScope(Setting setting) : controlWord(readControlWord()), mxcsr(readMxcsr()) {
    const auto direction = static_cast<std::uint16_t>(setting.rounding);
    const std::uint16_t precision = setting.precision == Precision::bits53 ? 0x0200 : 0x0300;
    const auto word =
        static_cast<std::uint16_t>((controlWord & ~(precisionField | roundingField)) | precision | (direction << 10));
    load(word, (mxcsr & ~(laneRoundingField | laneFlags)) | (std::uint32_t{direction} << 13));
}

SettingScope::~SettingScope() { load(controlWord, mxcsr); }

bool seesUpperHalves() {
    static const bool sees = [] {
        std::uint32_t a, b, c, d;
        if (__get_cpuid(1, &a, &b, &c, &d) == 0 || (c & bit_OSXSAVE) == 0 || (c & bit_AVX) == 0) return false;
        constexpr std::uint32_t tellsStateInUse = 4; // XGETBV of register 1
        if (__get_cpuid_count(0xd, 1, &a, &b, &c, &d) == 0 || (a & tellsStateInUse) == 0) return false;
        clearUpperHalves();
        return (stateInUse() & upperHalves) == 0;
    }();
    return sees;
}

MachineState MachineState::now() {
    const bool upperHalvesInUse = seesUpperHalves() && (stateInUse() & upperHalves) != 0;
    if (seesUpperHalves()) clearUpperHalves();
    // The direction flag is looked at and cleared before any other code runs, which takes it for clear. The stack
    // pointer is stepped over the red zone around the push.
    std::uintptr_t flags;
#ifdef __i386__
    __asm__ volatile("pushfl\n\tpopl %0\n\tcld" : "=r"(flags) : : "memory");
#else
    __asm__ volatile("lea -128(%%rsp), %%rsp\n\tpushfq\n\tpopq %0\n\tlea 128(%%rsp), %%rsp\n\tcld"
                     : "=r"(flags)
                     :
                     : "memory");
#endif
    // The store masks all exceptions, so the environment is loaded again at once.
    std::array<std::uint32_t, 7> environment{};
    __asm__ volatile("fnstenv %0\n\tfldenv %0" : "+m"(environment));
    MachineState state;
    state.upperHalvesInUse = upperHalvesInUse;
    state.controlWord = static_cast<std::uint16_t>(environment[0]);
    state.top = static_cast<std::uint16_t>((environment[1] >> 11) & 7);
    state.tags = static_cast<std::uint16_t>(environment[2]);
    state.laneControl = readMxcsr() & ~laneFlags;
    state.backwards = (flags & 0x400) != 0;
    return state;
}

std::string difference(const MachineState &before, const MachineState &after) {
    std::ostringstream text;
    text << std::hex;
    if (before.controlWord != after.controlWord)
        text << "the control word of the 80-bit unit was 0x" << before.controlWord << " and is 0x" << after.controlWord
             << ". ";
    if (before.tags != after.tags || before.top != after.top)
        text << "the register stack of the 80-bit unit had tags 0x" << before.tags << ", top " << before.top
             << " and has tags 0x" << after.tags << ", top " << after.top << ". ";
    if (before.laneControl != after.laneControl)
        text << "MXCSR was 0x" << before.laneControl << " and is 0x" << after.laneControl << ". ";
    if (before.backwards != after.backwards) text << "the direction flag was changed. ";
    if (after.upperHalvesInUse) text << "the upper halves of wide registers are left in use. ";
    return text.str();
}

bool MachineState::operator==(const MachineState &other) const { return difference(*this, other).empty(); }

} // namespace support
