// The public header: valid C99 and C++, self-contained, one section a family.
#include "emit.h"
#include "exceptions.h"
#include "text.h"

#include <algorithm>

namespace emit {
namespace {

constexpr std::string_view opening = R"(/* vonkk3: batched linear algebra on very many small matrices and vectors.
 *
 * Generated from the catalogue of functions; do not edit.
 *
 * Names: vonk<Op>_<operands>_<type>[_<size>][_<layout>]
 *
 *   operands  one group per source: m matrix, v vector, c constant; `a` after m or v makes it an array (a batch) of
 *             `count` like objects, `T` reads it transposed. The result is an array if any source is.
 *   type      32f float, 64f double
 *   size      3x3 to 6x6, or 3x1 to 6x1 for vectors; without it the size is an argument
 *   layout    where element (i, j) of object n lies; p is the operand's pointer, e the element's size in bytes:
 *               (none)  p + n * ObjStride + i * RowStride + j * e      standard: rows of contiguous elements
 *               S2      p + n * ObjStride + i * RowStride + j * ElemStride
 *               P       p[i * cols + j] + Shift + n * e                one pointer per element position
 *               PS2     p[i * cols + j] + Shift + n * ObjStride
 *               L       p[n] + Shift + i * RowStride + j * e           one pointer per object
 *               LS2     p[n] + Shift + i * RowStride + j * ElemStride
 *             A vector has no i. A single operand has no n: no ObjStride, and in L and LS2 a plain pointer without
 *             Shift.
 *
 * All layouts are row-major. RowStride is the leading dimension, in bytes: 4 * cols for packed rows of float. In S2 and
 * LS2 RowStride and ElemStride may be exchanged: column-major. The standard layout and L are arrays of structures
 * (AoS); P is the structure of arrays (SoA): the elements of all objects at one position are contiguous.
 *
 * Units: every stride and shift is in BYTES, may be negative or zero, and is not checked. Sizes are in elements,
 * `count` in objects. Elements may lie at any address; no alignment is required.
 *
 * Thread-safe and re-entrant: a call keeps no state, takes no lock, and may run beside any other that does not write
 * the same memory. No allocation and no hidden workspace: where a family needs one, it is an argument (`scratch`,
 * `work`). No byte outside the operands is read or written, but where a family's section or an exception of the class
 * `reads` says so.
 *
 * Deterministic and reproducible: the order of operations and the place of every rounding are fixed, so results are the
 * same bits on every run, but for the few that come from a processor's estimates and those that a family does not
 * promise bit for bit. float works in single precision, double in the 80-bit type; nothing is fused. Rounding mode and
 * precision control are the caller's and are left alone.
 *
 * Argument checks, in this order: pointers (vonkErrNullPtr), sizes (vonkErrSize), entries of tables where the family
 * checks them (vonkErrNullPtr), `count` 0 (vonkOk with nothing done). A failing call undoes nothing.
 *
 * Exceptions: functions that deviate from the rules of their family are marked at their prototypes. The section of the
 * family says what each exception is, with its class and its functions as patterns: {a,b} is a or b, {,_L} is nothing
 * or _L, `?` is any letter, `*` any letters. Exceptions are intended and stay as they are. The classes:
 *
)";

constexpr std::string_view openingEnd = R"( *
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
    vonkErrSingular = -10,    /* below the family's singularity tolerance */
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

// "   overlap     what operands that overlap show"
std::string classesComment() {
    std::string lines;
    for (const catalogue::ExceptionClass exceptionClass : catalogue::exceptionClasses) {
        std::string line(name(exceptionClass));
        line.resize(12, ' ');
        lines += " *   " + line + std::string(meaning(exceptionClass)) + "\n";
    }
    return lines;
}

std::string exceptionsComment(const catalogue::Section &section) {
    std::string lines;
    for (const catalogue::Exception &row : catalogue::exceptions()) {
        if (row.section != section.id) continue;
        const std::string head = std::string(row.id) + " (" + std::string(name(row.what)) + "): ";
        lines += text::wrapWords(head + std::string(row.functions), " * - ", " *     ") +
                 text::wrapWords(row.text, " *   ", " *   ");
    }
    return " * Exceptions:\n" + (lines.empty() ? " * None.\n" : lines);
}

std::string sectionComment(const catalogue::Section &section) {
    std::string rule = "/* ---- " + std::string(section.title) + " ";
    rule.append(text::lineWidth - rule.size(), '-');
    return rule + "\n *\n" + text::prefixLines(section.text, " * ") + " *\n" +
           text::prefixLines("Overlap:\n" + std::string(section.overlap), " * ") + " *\n" + exceptionsComment(section) +
           " */\n";
}

// The ids of a function's exceptions, after its prototype if there is room, else on lines of their own.
std::string marked(const std::string &prototype, const std::vector<const catalogue::Exception *> &rows) {
    if (rows.empty()) return prototype;
    std::vector<std::string> ids(rows.size());
    std::ranges::transform(rows, ids.begin(), [](const catalogue::Exception *row) { return std::string(row->id); });
    const std::string opening = rows.size() == 1 ? "/* exception: " : "/* exceptions: ";
    const std::string inLine = text::joinWrapped(opening, ids, " */", "");
    const std::size_t lastLine = prototype.size() - (prototype.rfind('\n') + 1);
    if (inLine.find('\n') == std::string::npos && lastLine + 1 + inLine.size() <= text::lineWidth)
        return prototype + " " + inLine;
    return prototype + "\n" + text::joinWrapped("    " + opening, ids, " */", "       ");
}

} // namespace

std::string header() {
    const std::vector<catalogue::Function> functions = catalogue::expand();
    const catalogue::ExceptionIndex index(catalogue::exceptions(), functions);
    std::string result = std::string(opening) + classesComment() + std::string(openingEnd);
    const catalogue::Section *section = nullptr;
    std::string block;
    for (const catalogue::Function &function : functions) {
        if (function.section != section) {
            section = function.section;
            result += "\n" + sectionComment(*section);
        }
        const std::string thisBlock =
            std::string(function.family->operation) + "_" + function.group + "_" + std::string(suffix(function.type));
        if (thisBlock != block) result += "\n";
        block = thisBlock;
        result += marked(text::prototype(function, ";"), index.exceptionsOf(function)) + "\n";
    }
    return result + std::string(closing);
}

} // namespace emit
