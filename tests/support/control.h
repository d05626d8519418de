// The floating-point control state that a caller may hold: precision and rounding of the 80-bit unit, rounding of the
// lane unit. Sets it for a scope, and takes a picture of all that a call has to leave as it found it.
#pragma once

#include <cstdint>
#include <string>

namespace support {

enum class Precision { bits53, bits64 };
enum class Rounding { nearest, down, up, towardZero };

struct Setting {
    Precision precision = Precision::bits64;
    Rounding rounding = Rounding::nearest;
};

std::string describe(Setting setting);

// Puts the setting into both units and takes it back at the end of the scope, also out of a state that a call spoiled.
class SettingScope {
public:
    explicit SettingScope(Setting setting);
    ~SettingScope();
    SettingScope(const SettingScope &) = delete;
    SettingScope &operator=(const SettingScope &) = delete;

private:
    std::uint16_t controlWord;
    std::uint32_t mxcsr;
};

// What a call has to leave alone. The sticky exception flags are not in it: arithmetic raises them.
struct MachineState {
    std::uint16_t controlWord = 0; // of the 80-bit unit
    std::uint16_t tags = 0;        // its registers: 0xffff when all are empty
    std::uint16_t top = 0;         // its stack pointer
    std::uint32_t laneControl = 0; // MXCSR without its flags
    bool backwards = false;        // the direction flag
    bool upperHalvesInUse = false; // of the registers of 32 bytes and more: code of others then runs slower

    static MachineState now(); // and clears the upper halves
    bool operator==(const MachineState &other) const;
};

// One sentence for each thing that differs, or nothing. Upper halves are never to be in use afterwards.
std::string difference(const MachineState &before, const MachineState &after);

// Whether this processor tells if upper halves are in use.
bool seesUpperHalves();

} // namespace support
