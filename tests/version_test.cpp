// The version record: its fields, its place in memory, and that everybody gets the same one.
#include "support/invoke.h"

#include "vonkk3.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#ifdef _WIN32
#include <windows.h>
#endif

namespace {

TEST(Version, IsThatOfTheHeaders) {
    const VonkLibVersion *version = vonkGetLibVersion();
    EXPECT_EQ(version->versionMajor, VONKK3_VERSION_MAJOR);
    EXPECT_EQ(version->versionMinor, VONKK3_VERSION_MINOR);
    EXPECT_EQ(VONKK3_VERSION, 40100 + VONKK3_VERSION_PATCH);
}

TEST(Status, HasATextOfItsOwn) {
    std::set<std::string> texts;
    for (const VonkStatus status :
         std::initializer_list<VonkStatus>{vonkOk, vonkErrSize, vonkErrNullPtr, vonkErrSingular, vonkErrNotPosDef, 1})
        texts.insert(vonkStatusText(status));
    EXPECT_EQ(texts.size(), 6U);
    EXPECT_STREQ(vonkStatusText(vonkOk), "done");
    EXPECT_STREQ(vonkStatusText(-7), vonkStatusText(1));
}

TEST(Version, HasTextsForPeople) {
    const VonkLibVersion *version = vonkGetLibVersion();
    EXPECT_STREQ(version->libraryName, "vonkk3.dll");
    EXPECT_STREQ(version->versionText, "v4.1");
    EXPECT_STREQ(version->buildDateText, "Jul 19 2004");
}

// Programs are linked to the baseline; tests of a wider build put that in its place.
TEST(Version, ComesFromTheLibraryUnderTest) {
    Dl_info info{};
    ASSERT_NE(dladdr(reinterpret_cast<const void *>(vonkGetLibVersion()), &info), 0);
    EXPECT_TRUE(std::filesystem::equivalent(info.dli_fname, support::defaultLibrary())) << info.dli_fname;
}

TEST(Version, IsTheSameRecordInEveryCall) { EXPECT_EQ(vonkGetLibVersion(), vonkGetLibVersion()); }

// Version 4.1, build 11.30, the processor's tag, then the texts: callers in other languages read the record by its
// offsets.
TEST(Version, HasItsFieldsInTheirOrder) {
    static_assert(offsetof(VonkLibVersion, versionMajor) == 0);
    static_assert(offsetof(VonkLibVersion, versionMinor) == 4);
    static_assert(offsetof(VonkLibVersion, buildMajor) == 8);
    static_assert(offsetof(VonkLibVersion, buildNumber) == 12);
    static_assert(offsetof(VonkLibVersion, cpuTag) == 16);
    const auto *bytes = reinterpret_cast<const unsigned char *>(vonkGetLibVersion());
    const unsigned char expected[20] = {4, 0, 0, 0, 1, 0, 0, 0, 11, 0, 0, 0, 30, 0, 0, 0, 'k', '3', 0, 0};
    for (std::size_t k = 0; k < sizeof expected; ++k) EXPECT_EQ(bytes[k], expected[k]) << "byte " << k;
}

#ifdef _WIN32
std::string protectionAt(const void *address) {
    MEMORY_BASIC_INFORMATION info{};
    if (VirtualQuery(address, &info, sizeof info) == 0) return "not mapped";
    if ((info.Protect & (PAGE_READONLY | PAGE_EXECUTE_READ)) != 0) return "r-";
    return (info.Protect & (PAGE_READWRITE | PAGE_WRITECOPY)) != 0 ? "rw" : "neither";
}
#else
// "r--p" of the memory map's line that holds the address.
std::string protectionAt(const void *address) {
    const auto wanted = reinterpret_cast<std::uintptr_t>(address);
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::istringstream fields(line);
        std::uintptr_t from = 0;
        std::uintptr_t to = 0;
        char dash = 0;
        std::string protection;
        fields >> std::hex >> from >> dash >> to >> protection;
        if (from <= wanted && wanted < to) return protection;
    }
    return "not mapped";
}
#endif

TEST(Version, LiesInMemoryThatNobodyCanWrite) {
    const VonkLibVersion *version = vonkGetLibVersion();
    for (const void *part :
         {static_cast<const void *>(version), static_cast<const void *>(version->libraryName),
          static_cast<const void *>(version->versionText), static_cast<const void *>(version->buildDateText)}) {
        const std::string protection = protectionAt(part);
        EXPECT_EQ(protection.substr(0, 2), "r-") << protection;
    }
    int writable = 0;
    EXPECT_EQ(protectionAt(&writable).substr(0, 2), "rw"); // what a failure would look like
}

} // namespace
