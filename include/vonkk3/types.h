/* What all headers of vonkk3 share: status values, version. See vonkk3.h for names, layouts and units.
 *
 * Generated from the catalogue of functions; do not edit.
 */
#ifndef VONKK3_TYPES_H
#define VONKK3_TYPES_H

#include <stdint.h>

/* The version of the headers; that of the library at run time: vonkGetLibVersion. */
#define VONKK3_VERSION_MAJOR 4
#define VONKK3_VERSION_MINOR 1
#define VONKK3_VERSION_PATCH 0
#define VONKK3_VERSION (VONKK3_VERSION_MAJOR * 10000 + VONKK3_VERSION_MINOR * 100 + VONKK3_VERSION_PATCH)

#ifdef __cplusplus
extern "C" {
#endif

typedef int32_t VonkStatus;

enum {
    vonkOk = 0,               /* done */
    vonkErrSize = -6,         /* a size is zero, or sizes do not fit each other */
    vonkErrNullPtr = -8,      /* a null pointer among the operands */
    vonkErrSingular = -10,    /* below the family's singularity tolerance */
    vonkErrNotPosDef = -179   /* the matrix is not positive definite */
};

/* A status in words. Never null; the text is constant. */
static inline const char *vonkStatusText(VonkStatus status) {
    switch (status) {
    case vonkOk: return "done";
    case vonkErrSize: return "a size is zero, or sizes do not fit each other";
    case vonkErrNullPtr: return "a null pointer among the operands";
    case vonkErrSingular: return "a matrix is singular: below the family's tolerance";
    case vonkErrNotPosDef: return "a matrix is not positive definite";
    default: return "not a status of vonkk3";
    }
}

/* Which build of the library this is. The record is constant and lives as long as the library is loaded. */
typedef struct VonkLibVersion {
    int32_t versionMajor;
    int32_t versionMinor;
    int32_t buildMajor;
    int32_t buildNumber;
    char cpuTag[4]; /* processor variant, zero-terminated */
    const char *libraryName;
    const char *versionText;
    const char *buildDateText;
} VonkLibVersion;

const VonkLibVersion *vonkGetLibVersion(void);

#ifdef __cplusplus
}
#endif

#endif
