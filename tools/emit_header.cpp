// The public header: valid C99 and C++, self-contained, one section a family.
#include "emit.h"
#include "text.h"

namespace emit {
namespace {

constexpr std::string_view opening = R"(/* vonkk3: linear algebra on very many small matrices and vectors.
 *
 * Generated from the catalogue of functions; do not edit.
 *
 * Names: vonk<Op>_<operands>_<type>[_<size>][_<layout>]
 *
 *   operands  one group per source: m matrix, v vector, c constant; `a` behind m or v makes it an array of `count` like
 *             objects, `T` reads it transposed. The result is an array if any source is.
 *   type      32f float, 64f double
 *   size      3x3 to 6x6, or 3x1 to 6x1 for vectors; without it the size is a parameter
 *   layout    where element (i, j) of object n lies; p is the operand's pointer, e the element's size in bytes:
 *               (none)  p + n * ObjStride + i * RowStride + j * e
 *               S2      p + n * ObjStride + i * RowStride + j * ElemStride
 *               P       p[i * cols + j] + Shift + n * e                one pointer per element position
 *               PS2     p[i * cols + j] + Shift + n * ObjStride
 *               L       p[n] + Shift + i * RowStride + j * e           one pointer per object
 *               LS2     p[n] + Shift + i * RowStride + j * ElemStride
 *             A vector has no i. A single operand has no n: no ObjStride, and in L and LS2 a plain pointer without
 *             Shift.
 *
 * Units: every stride and shift is in BYTES, may be negative or zero, and is never tested. Sizes are in elements,
 * `count` in objects. Elements may lie at any address.
 *
 * A call allocates nothing, keeps nothing, takes no lock and may run beside any other that does not write the same
 * memory. float works in single precision, double in the 80-bit type; rounding mode and precision control are the
 * caller's and are left alone.
 *
 * Tests, in this order: pointers (vonkErrNullPtr), sizes (vonkErrSize), entries of tables where the family tests them
 * (vonkErrNullPtr), `count` 0 (vonkOk with nothing done). A failing call undoes nothing.
 *
 * In C, a table of pointers to elements that are not const needs a cast where a source table is expected:
 * (const float *const *)table.
 */
#ifndef VONKK3_H
#define VONKK3_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef int32_t VonkStatus;

enum {
    vonkOk = 0,               /* done */
    vonkErrSize = -6,         /* a size is zero, or sizes do not fit each other */
    vonkErrNullPtr = -8,      /* a null pointer among the operands */
    vonkErrSingular = -10,    /* a pivot or divisor is below the family's tolerance */
    vonkErrNotPosDef = -179   /* the matrix is not positive definite */
};

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
)";

constexpr std::string_view closing = R"(
#ifdef __cplusplus
}
#endif

#endif
)";

std::string sectionComment(const catalogue::Section &section) {
    std::string rule = "/* ---- " + std::string(section.title) + " ";
    rule.append(text::lineWidth - rule.size(), '-');
    return rule + "\n *\n" + text::prefixLines(section.text, " * ") + " *\n" +
           text::prefixLines("Overlap:\n" + std::string(section.overlap), " * ") + " *\n" +
           text::prefixLines("Read beyond the operands:\n" + std::string(section.reads), " * ") + " */\n";
}

} // namespace

std::string header() {
    std::string result(opening);
    const catalogue::Section *section = nullptr;
    std::string block;
    for (const catalogue::Function &function : catalogue::expand()) {
        if (function.section != section) {
            section = function.section;
            result += "\n" + sectionComment(*section);
        }
        const std::string thisBlock =
            std::string(function.family->operation) + "_" + function.group + "_" + std::string(suffix(function.type));
        if (thisBlock != block) result += "\n";
        block = thisBlock;
        result += text::prototype(function, ";") + "\n";
    }
    return result + std::string(closing);
}

} // namespace emit
