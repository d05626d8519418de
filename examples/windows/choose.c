/* Loads the DLL that is built for the best instruction set that this processor and Windows run, from a folder that has
 * them as the package does, and calls a function of it.
 *
 *     cl /W4 /Iinclude example\choose.c
 *     choose bin
 *
 * A program that is linked with /DELAYLOAD:vonkk3.dll (and delayimp.lib) only needs loadBest before its first call:
 * what is loaded under a name serves all who ask for the name. */
#include <stdio.h>
#include <string.h>
#include <vonkk3.h>
#include <windows.h>
#ifdef _MSC_VER
#include <intrin.h>
#else
#include <cpuid.h>
#endif

static void askProcessor(unsigned leaf, unsigned registers[4]) { /* eax, ebx, ecx, edx */
#ifdef _MSC_VER
    __cpuidex((int *)registers, (int)leaf, 0);
#else
    __cpuid_count(leaf, 0, registers[0], registers[1], registers[2], registers[3]);
#endif
}

static unsigned statesInUse(void) { /* registers that the system saves */
#ifdef _MSC_VER
    return (unsigned)_xgetbv(0);
#else
    unsigned low, high;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return low;
#endif
}

/* "" for the baseline, "x86-64-v3" with AVX2 and what goes with it, "x86-64-v4" with AVX-512. */
static const char *bestLevel(void) {
    /* FMA, SSE3 to SSE4.2, CMPXCHG16B, MOVBE, POPCNT, XSAVE by the system, AVX, F16C */
    const unsigned v3InLeaf1 = 1u << 0 | 1u << 9 | 1u << 12 | 1u << 13 | 1u << 19 | 1u << 20 | 1u << 22 | 1u << 23 |
                               1u << 27 | 1u << 28 | 1u << 29;
    const unsigned v3InLeaf7 = 1u << 3 | 1u << 5 | 1u << 8;                          /* BMI1, AVX2, BMI2 */
    const unsigned v4InLeaf7 = 1u << 16 | 1u << 17 | 1u << 28 | 1u << 30 | 1u << 31; /* AVX512 F, DQ, CD, BW, VL */
    const unsigned v3InExtended = 1u << 0 | 1u << 5;                                 /* LAHF, LZCNT */
    unsigned leaf0[4], leaf1[4], leaf7[4], extended[4];
    askProcessor(0, leaf0);
    askProcessor(1, leaf1);
    if (leaf0[0] < 7 || (leaf1[2] & v3InLeaf1) != v3InLeaf1) return "";
    askProcessor(7, leaf7);
    askProcessor(0x80000001u, extended);
    if ((leaf7[1] & v3InLeaf7) != v3InLeaf7 || (extended[2] & v3InExtended) != v3InExtended) return "";
    if ((statesInUse() & 0x06) != 0x06) return "";
    if ((leaf7[1] & v4InLeaf7) != v4InLeaf7 || (statesInUse() & 0xe6) != 0xe6) return "x86-64-v3";
    return "x86-64-v4";
}

/* Null if there is none. */
static HMODULE loadBest(const char *folder) {
    const char *level = bestLevel();
    char path[MAX_PATH], full[MAX_PATH];
    HMODULE library;
    if (strlen(folder) > MAX_PATH - 40) return NULL;
    sprintf(path, "%s\\%s%svonkk3.dll", folder, level, *level ? "\\" : "");
    if (GetFullPathNameA(path, MAX_PATH, full, NULL) == 0) return NULL;
    library = LoadLibraryA(full);
    printf("%s: %s\n", library != NULL ? "loaded" : "not loaded", full);
    return library;
}

typedef VonkStatus (*Decompose)(const float *, int32_t, int32_t, float *, int32_t, int32_t, int32_t);

int main(int count, char **arguments) {
    const float a[2][9] = {{4, 1, 0, 1, 4, 1, 0, 1, 4}, {16, 0, 0, 0, 16, 0, 0, 0, 16}};
    float factors[2][9];
    Decompose decompose;
    HMODULE library = loadBest(count > 1 ? arguments[1] : "bin");
    if (library == NULL) return 1;
    decompose = (Decompose)(void (*)(void))GetProcAddress(library, "vonkCholeskyDecomp_ma_32f_3x3");
    if (decompose == NULL || decompose(a[0], 36, 12, factors[0], 36, 12, 2) != vonkOk) return 1;
    printf("1 / sqrt(16) = %g\n", factors[1][0]);
    return 0;
}
