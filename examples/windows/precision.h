/* The precision of the x87 unit, in which `double` is computed: 53 bits of mantissa, as Windows starts a thread, or 64.
 *
 * It belongs to the thread: each thread sets its own. Visual C has no call for it on x64 (_controlfp takes no _MCW_PC
 * there) and no inline assembler, so there the unit's state is stored, changed and loaded as a whole. */
#ifndef PRECISION_H
#define PRECISION_H

#if defined(_MSC_VER) && !defined(__clang__)
#include <intrin.h>
#define PRECISION_NOT_INLINE __declspec(noinline)
#define PRECISION_ALIGNED __declspec(align(16))
#define PRECISION_BY_STATE
#else
#include <immintrin.h>
#define PRECISION_NOT_INLINE __attribute__((noinline, unused))
#define PRECISION_ALIGNED __attribute__((aligned(16)))
#endif

enum { precision53 = 0x200, precision64 = 0x300, precisionField = 0x300 };

/* Sets one of the two and returns that which was set before. */
static PRECISION_NOT_INLINE int setPrecision(int precision) {
#ifdef PRECISION_BY_STATE
    PRECISION_ALIGNED unsigned char state[512]; /* the control word is its first two bytes */
    int before;
    _fxsave64(state);
    before = (state[1] << 8) & precisionField;
    state[1] = (unsigned char)((state[1] & ~(precisionField >> 8)) | (precision >> 8));
    _fxrstor64(state);
    return before;
#else
    unsigned short word, changed;
    __asm__ volatile("fnstcw %0" : "=m"(word));
    changed = (unsigned short)((word & ~precisionField) | precision);
    __asm__ volatile("fldcw %0" : : "m"(changed));
    return word & precisionField;
#endif
}

#endif
