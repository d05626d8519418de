// An interpreter of the library's contract, for comparison with the library: it takes a function's name and the words
// of a call and carries out the contract's rules step by step on the caller's memory, element by element, in the
// plainest way. It shares no code with the library and none with its catalogue.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace model {

enum class Word {
    pointer, // an address
    bytes,   // a stride or shift: signed 32-bit
    size,    // a size or count: 32-bit, unsigned unless Parameter::isSigned
    real,    // a constant in the element type, as its bits
};

struct Parameter {
    std::string name;
    Word word;
    bool isSigned; // of a size: compared as a signed number
};

// Every exported name of the grammar (all but vonkGetLibVersion), derived from the rule by the model itself.
std::vector<std::string> names();

// The parameter list of any of these names.
const std::vector<Parameter> &parameters(const std::string &name);

// Whether run() can carry out this function.
bool knows(const std::string &name);

struct Call {
    std::string name;
    std::vector<std::uint64_t> words; // one per parameter; of words narrower than 64 bits the low bits count
};

// One write of an element or a row index to memory.
struct Write {
    std::uintptr_t address;
    std::size_t size;
    std::uint64_t before = 0; // what stood there, so that it can be taken back
};

// An element that is held to accuracy instead of bit for bit, as the order of the sums behind it is free: it has to lie
// within `error` of `exact`, which comes from an arithmetic of higher precision. An infinite error fixes nothing, an
// infinity in place of a number allows any infinity or NaN, and a NaN allows NaNs. Of several for one element the last
// one counts.
struct Approximation {
    std::uintptr_t address;
    std::size_t size;
    long double exact;
    long double error;
};

struct Outcome {
    std::int32_t status;
    std::vector<Write> writes; // in the order in which they were made
    // An arithmetic operation met a NaN among its operands or made one, so the sign and payload of NaNs among the
    // results are not fixed.
    bool nanSeen;
    // The result hangs on something that the contract leaves open, such as the order of loads and stores inside a lane
    // operation that overlaps its own destination.
    bool open;
    std::vector<Approximation> approximations = {};
};

// Carries out the call on the memory that its words point to.
Outcome run(const Call &call);

} // namespace model
