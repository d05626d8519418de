// The part of POSIX memory mapping that the tests use, over that of Windows. See posix.cpp.
#pragma once

#include <cstddef>

enum { PROT_NONE = 0, PROT_READ = 1, PROT_WRITE = 2 };
enum {
    MAP_SHARED = 1,
    MAP_PRIVATE = 2,
    MAP_ANONYMOUS = 0x20,
    MAP_32BIT = 0x40, // below 2^31
    MAP_NORESERVE = 0x4000,
    MAP_FIXED_NOREPLACE = 0x100000 // for Windows any address that is asked for is such
};
#define MAP_FAILED (reinterpret_cast<void *>(-1))

void *mmap(void *address, std::size_t bytes, int protection, int flags, int file, long long offset);
int mprotect(void *address, std::size_t bytes, int protection);
int munmap(void *address, std::size_t bytes);
int memfd_create(const char *name, unsigned flags);
