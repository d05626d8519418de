// Generic calls. See invoke.h.
//
// In the System V convention for x86-64, integers and pointers take general registers and then the stack, 8 bytes
// each, while the first reals take xmm registers, independently of one another. So every parameter list of the
// library is a prefix of one long list of 64-bit words, with the constants apart from it: 24 words and two reals
// serve all exports.
#include "invoke.h"

#include <array>
#include <bit>
#include <cstdlib>
#include <dlfcn.h>
#include <stdexcept>
#include <utility>

namespace support {
namespace {

constexpr std::size_t integerWords = 24;
constexpr std::uint64_t rubbish = 0xa5c3'96e1'5ad2'4b87;

using Integers = std::array<std::uint64_t, integerWords>;

template <std::size_t> using Word = std::uint64_t;

template <class Real, std::size_t... place>
std::int32_t call(void *address, const Integers &integers, Real first, Real second, std::index_sequence<place...>) {
    using Export = std::int32_t (*)(Word<place>..., Real, Real);
    return reinterpret_cast<Export>(address)(integers[place]..., first, second);
}

} // namespace

Library::Library(const std::string &path) : handle(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle == nullptr) throw std::runtime_error(dlerror());
}

Library::~Library() { dlclose(handle); }

void *Library::find(const std::string &name) const { return dlsym(handle, name.c_str()); }

std::string defaultLibrary() {
    if (const char *path = std::getenv("VONKK3_LIBRARY")) return path;
#ifdef VONKK3_LIBRARY
    return VONKK3_LIBRARY;
#else
    return "./vonkk3.so";
#endif
}

std::int32_t invoke(void *address, const catalogue::Function &function, std::span<const std::uint64_t> words) {
    Integers integers;
    integers.fill(rubbish);
    std::array<std::uint64_t, 2> reals{rubbish, rubbish};
    std::size_t integerCount = 0;
    std::size_t realCount = 0;
    for (std::size_t k = 0; k < function.parameters.size(); ++k) {
        if (function.parameters[k].kind == catalogue::Kind::constant) reals.at(realCount++) = words[k];
        else integers.at(integerCount++) = words[k];
    }
    constexpr auto places = std::make_index_sequence<integerWords>{};
    if (function.type == catalogue::Type::real64)
        return call(address, integers, std::bit_cast<double>(reals[0]), std::bit_cast<double>(reals[1]), places);
    return call(address, integers, std::bit_cast<float>(static_cast<std::uint32_t>(reals[0])),
                std::bit_cast<float>(static_cast<std::uint32_t>(reals[1])), places);
}

} // namespace support
