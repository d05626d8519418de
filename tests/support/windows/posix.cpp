// The few calls of POSIX that the tests make, over Windows.
#include "dlfcn.h"
#include "sys/mman.h"
#include "unistd.h"

#include <cstdint>
#include <fcntl.h>
#include <io.h>
#include <string>
#include <sys/stat.h>
#include <windows.h>

namespace {

DWORD pageProtection(int protection) {
    if (protection == PROT_NONE) return PAGE_NOACCESS;
    return (protection & PROT_WRITE) != 0 ? PAGE_READWRITE : PAGE_READONLY;
}

void *allocateLow(std::size_t bytes, DWORD protection) {
    constexpr std::uintptr_t step = 0x10000;
    for (std::uintptr_t wanted = 0x1000'0000; wanted < 0x7000'0000; wanted += step)
        if (void *got = VirtualAlloc(reinterpret_cast<void *>(wanted), bytes, MEM_RESERVE | MEM_COMMIT, protection))
            return got;
    return nullptr;
}

// At the address, or nothing. Windows reserves from multiples of 64 KiB only, and pages of others are not to be had.
void *allocateAt(void *wanted, std::size_t bytes, DWORD protection) {
    void *const got = VirtualAlloc(wanted, bytes, MEM_RESERVE | MEM_COMMIT, protection);
    if (got == nullptr || wanted == nullptr || got == wanted) return got;
    VirtualFree(got, 0, MEM_RELEASE);
    return nullptr;
}

void *mapFile(int file, std::size_t bytes) {
    const HANDLE handle = reinterpret_cast<HANDLE>(_get_osfhandle(file));
    const HANDLE mapping = CreateFileMappingA(handle, nullptr, PAGE_READWRITE, 0, static_cast<DWORD>(bytes), nullptr);
    if (mapping == nullptr) return nullptr;
    void *const view = MapViewOfFile(mapping, FILE_MAP_READ | FILE_MAP_WRITE, 0, 0, bytes);
    CloseHandle(mapping); // the view keeps it
    return view;
}

} // namespace

void *mmap(void *address, std::size_t bytes, int protection, int flags, int file, long long) {
    void *got;
    if ((flags & MAP_ANONYMOUS) == 0) {
        got = mapFile(file, bytes);
        if (got != nullptr && mprotect(got, bytes, protection) != 0) got = nullptr;
    } else if ((flags & MAP_32BIT) != 0) got = allocateLow(bytes, pageProtection(protection));
    else got = allocateAt(address, bytes, pageProtection(protection));
    return got != nullptr ? got : MAP_FAILED;
}

int mprotect(void *address, std::size_t bytes, int protection) {
    DWORD before;
    return VirtualProtect(address, bytes, pageProtection(protection), &before) != 0 ? 0 : -1;
}

int munmap(void *address, std::size_t) {
    MEMORY_BASIC_INFORMATION info{};
    if (VirtualQuery(address, &info, sizeof info) == 0) return -1;
    if (info.Type == MEM_MAPPED) return UnmapViewOfFile(info.AllocationBase) != 0 ? 0 : -1;
    return VirtualFree(info.AllocationBase, 0, MEM_RELEASE) != 0 ? 0 : -1;
}

// A file that goes with its last user.
int memfd_create(const char *, unsigned) {
    char folder[MAX_PATH], path[MAX_PATH];
    if (GetTempPathA(MAX_PATH, folder) == 0 || GetTempFileNameA(folder, "vk3", 0, path) == 0) return -1;
    return _open(path, _O_RDWR | _O_CREAT | _O_TEMPORARY | _O_BINARY, _S_IREAD | _S_IWRITE);
}

void *dlopen(const char *path, int) {
    std::string own = path;
    for (char &letter : own)
        if (letter == '/') letter = '\\';
    return LoadLibraryA(own.c_str());
}

void *dlsym(void *library, const char *name) {
    return reinterpret_cast<void *>(GetProcAddress(static_cast<HMODULE>(library), name));
}

int dlclose(void *library) { return FreeLibrary(static_cast<HMODULE>(library)) != 0 ? 0 : -1; }

const char *dlerror() {
    static std::string text;
    text = "the library cannot be loaded: Windows' error " + std::to_string(GetLastError());
    return text.c_str();
}

int dladdr(const void *address, Dl_info *info) {
    static char path[MAX_PATH];
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (GetModuleHandleExA(flags, static_cast<const char *>(address), &module) == 0) return 0;
    info->dli_fname = path;
    return static_cast<int>(GetModuleFileNameA(module, path, MAX_PATH));
}

// ---- Faults

namespace {

struct sigaction faultAction = {};
void *veh = nullptr;
siginfo_t fault;

// Where the thread goes on after a fault: out of the dispatcher of exceptions, as if the instruction had called it.
[[noreturn]] void landAfterFault() {
    faultAction.sa_sigaction(SIGSEGV, &fault, nullptr);
    ExitProcess(3); // a handler that returns
}

LONG CALLBACK onException(EXCEPTION_POINTERS *exception) {
    const EXCEPTION_RECORD &record = *exception->ExceptionRecord;
    if (record.ExceptionCode != EXCEPTION_ACCESS_VIOLATION || faultAction.sa_sigaction == nullptr)
        return EXCEPTION_CONTINUE_SEARCH;
    fault.si_addr = reinterpret_cast<void *>(record.ExceptionInformation[1]);
    CONTEXT &context = *exception->ContextRecord;
    context.Rsp = ((context.Rsp - 256) & ~std::uintptr_t{15}) - 8; // aligned as at the entry of a function
    context.Rip = reinterpret_cast<std::uintptr_t>(&landAfterFault);
    return EXCEPTION_CONTINUE_EXECUTION;
}

} // namespace

int sigaction(int signal, const struct sigaction *handler, struct sigaction *before) {
    if (signal != SIGSEGV) return 0;
    if (veh == nullptr) veh = AddVectoredExceptionHandler(1, onException);
    if (before != nullptr) *before = faultAction;
    faultAction = *handler;
    return veh != nullptr ? 0 : -1;
}
