// What the tests use of POSIX beside mappings and libraries: the handling of memory faults. See posix.cpp.
#pragma once

#include_next <unistd.h>

#include <csignal>
#include <cstdint>

constexpr int SIGBUS = 7, SIGALRM = 14;       // never raised
inline unsigned alarm(unsigned) { return 0; } // nobody watches for calls that do not come back

struct siginfo_t {
    void *si_addr;
};
enum { SA_SIGINFO = 4 };

struct sigaction {
    void (*sa_sigaction)(int, siginfo_t *, void *);
    int sa_flags;
};

// For SIGSEGV: the handler runs on the faulting thread after the fault has been dismissed, and has to jump.
int sigaction(int signal, const struct sigaction *handler, struct sigaction *before);

// Jumps that unwind nothing, as of signals. The builtins keep no registers: the compiler saves those in use.
using sigjmp_buf = std::intptr_t[5];
#define sigsetjmp(buffer, mask) __builtin_setjmp(buffer)
#define siglongjmp(buffer, value) __builtin_longjmp(buffer, 1)
