// Generic calls. See invoke.h.
//
// In the System V convention for x86-64, integers and pointers take general registers and then the stack, 8 bytes
// each, while the first reals take xmm registers, independently of one another. So every parameter list of the
// library is a prefix of one long list of 64-bit words, with the constants apart from it: 24 words and two reals
// serve all exports. In that of Windows a parameter has one place for both kinds: of the first four an integer takes a
// general register and a real the xmm register of the same number, and the rest lies on the stack. In that of 32-bit
// x86 all lies on the stack in the order of the parameters, 4 bytes each, and 8 a Real64.
#include "invoke.h"

#include <array>
#include <bit>
#include <cstdlib>
#include <dlfcn.h>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace support {
namespace {

[[maybe_unused]] constexpr std::size_t integerWords = 24;
constexpr std::uint64_t rubbish = 0xa5c3'96e1'5ad2'4b87;

#ifdef __i386__
using Stack = std::array<std::uint32_t, 36>;

// The stack is aligned to 4 bytes and no further, which is all that some callers keep.
std::int32_t call(void *address, const Stack &stack) {
    static_assert(sizeof(Stack) % 16 == 0);
    std::int32_t status;
    const std::uint32_t *from = stack.data();
    std::size_t words = stack.size();
    __asm__ volatile("movl %%esp, %%ebx\n\t"
                     "andl $-16, %%esp\n\t"
                     "subl %[bytes], %%esp\n\t"
                     "movl %%esp, %%edi\n\t"
                     "rep movsl\n\t"
                     "call *%%edx\n\t"
                     "movl %%ebx, %%esp"
                     : "=a"(status), "+S"(from), "+c"(words), "+d"(address)
                     : [bytes] "i"(sizeof(Stack) + 4)
                     : "ebx", "edi", "cc", "memory", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7",
                       "st", "st(1)", "st(2)", "st(3)", "st(4)", "st(5)", "st(6)", "st(7)");
    return status;
}
#elif !defined _WIN32
using Integers = std::array<std::uint64_t, integerWords>;

template <std::size_t> using Word = std::uint64_t;

template <class Real, std::size_t... place>
std::int32_t call(void *address, const Integers &integers, Real first, Real second, std::index_sequence<place...>) {
    using Export = std::int32_t (*)(Word<place>..., Real, Real);
    return reinterpret_cast<Export>(address)(integers[place]..., first, second);
}
#else
using Words = std::array<std::uint64_t, integerWords + 2>;
constexpr std::size_t registers = 4;

// Bit k of the mask says that parameter k is a real, a Real32 too: it is the lower half of its register.
template <unsigned mask, std::size_t place> constexpr bool isReal = place < registers && ((mask >> place) & 1) != 0;
template <unsigned mask, std::size_t place> using Word = std::conditional_t<isReal<mask, place>, double, std::uint64_t>;

template <unsigned mask, std::size_t... place>
std::int32_t callWith(void *address, const Words &words, std::index_sequence<place...>) {
    using Export = std::int32_t (*)(Word<mask, place>...);
    return reinterpret_cast<Export>(address)(std::bit_cast<Word<mask, place>>(words[place])...);
}

template <unsigned mask> std::int32_t call(void *address, const Words &words) {
    return callWith<mask>(address, words, std::make_index_sequence<std::tuple_size_v<Words>>{});
}

using Caller = std::int32_t (*)(void *, const Words &);
template <std::size_t... mask> constexpr std::array<Caller, sizeof...(mask)> callers(std::index_sequence<mask...>) {
    return {&call<mask>...};
}
#endif

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

#ifdef __i386__
std::int32_t invoke(void *address, const catalogue::Function &function, std::span<const std::uint64_t> words) {
    Stack stack;
    stack.fill(static_cast<std::uint32_t>(rubbish));
    std::size_t at = 0;
    for (std::size_t k = 0; k < function.parameters.size(); ++k) {
        stack.at(at++) = static_cast<std::uint32_t>(words[k]);
        if (function.parameters[k].kind == catalogue::Kind::constant && function.type == catalogue::Type::real64)
            stack.at(at++) = static_cast<std::uint32_t>(words[k] >> 32);
    }
    return call(address, stack);
}
#elif !defined _WIN32
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
#else
std::int32_t invoke(void *address, const catalogue::Function &function, std::span<const std::uint64_t> words) {
    static constexpr auto byMask = callers(std::make_index_sequence<1 << registers>{});
    Words all;
    all.fill(rubbish);
    unsigned mask = 0;
    for (std::size_t k = 0; k < function.parameters.size(); ++k) {
        all.at(k) = words[k];
        if (k < registers && function.parameters[k].kind == catalogue::Kind::constant) mask |= 1U << k;
    }
    return byMask.at(mask)(address, all);
}
#endif

} // namespace support
