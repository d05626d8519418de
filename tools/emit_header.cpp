// The public headers: valid C99 and C++, each self-contained, one section a family, one line above every prototype.
#include "describe.h"
#include "emit.h"
#include "exceptions.h"
#include "text.h"

#include <algorithm>
#include <cctype>

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
 *   size      3x3 to 6x6, or 3x1 to 6x1 for vectors; without it the size is an argument, and `scratch` of vonkDet and
 *             vonkInvert
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
 * `count` in objects; they are unsigned but for a few of Cholesky's and LoadIdentity's. Elements may lie at any
 * address; no alignment is required.
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
 * Every prototype has a line above it: what is computed (src' is the transpose of src), the size and type of an object,
 * the layout, and the exceptions. The comment at the head of a family says the rest: shapes, status values, overlap.
 *
 * Exceptions: functions that deviate from the rules of their family have them named in that line. The section of the
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

)";

constexpr std::string_view closing = "\n#endif\n";

constexpr std::string_view types =
    R"(/* What all headers of vonkk3 share: status values, version. See vonkk3.h for names, layouts and units.
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
)";

constexpr std::string_view familyClosing = R"(
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

// What it computes, of what, and its exceptions.
std::string line(const catalogue::Function &function, const std::vector<const catalogue::Exception *> &rows) {
    std::string text = formula(function) + "; " + operandsInWords(function) + "; " + layoutInWords(function) + ".";
    for (const catalogue::Exception *row : rows)
        text +=
            (row == rows.front() ? (rows.size() == 1 ? " Exception: " : " Exceptions: ") : ", ") + std::string(row->id);
    return text::wrapWords(text + (rows.empty() ? " */" : ". */"), "/** ", " * ");
}

// "LU_H" of "lu"
std::string guard(std::string_view name) {
    std::string macro = "VONKK3_" + std::string(name) + "_H";
    std::ranges::transform(macro, macro.begin(), [](char c) { return char(std::toupper(c)); });
    return macro;
}

std::string familyOpening(std::string_view name) {
    std::string titles;
    for (const catalogue::Section &section : catalogue::sections())
        if (section.header == name) titles += (titles.empty() ? "" : "; ") + std::string(section.title);
    return text::wrapWords("vonkk3: " + titles + ". See vonkk3.h for names, layouts and units.", "/* ", " * ") +
           " *\n * Generated from the catalogue of functions; do not edit.\n */\n#ifndef " + guard(name) +
           "\n#define " + guard(name) + "\n\n#include \"types.h\"\n\n#ifdef __cplusplus\nextern \"C\" {\n#endif\n";
}

} // namespace

std::map<std::string, std::string> headers() {
    const std::vector<catalogue::Function> functions = catalogue::expand();
    const catalogue::ExceptionIndex index(catalogue::exceptions(), functions);
    std::map<std::string, std::string> result{{"vonkk3/types.h", std::string(types)}};
    std::string umbrella = std::string(opening) + classesComment() + std::string(openingEnd);
    umbrella += "#include \"vonkk3/types.h\"\n\n";
    const catalogue::Section *section = nullptr;
    std::string block;
    for (const catalogue::Function &function : functions) {
        std::string &header = result["vonkk3/" + std::string(function.section->header) + ".h"];
        if (function.section != section) {
            section = function.section;
            if (header.empty()) {
                header = familyOpening(section->header);
                umbrella += "#include \"vonkk3/" + std::string(section->header) + ".h\"\n";
            }
            header += "\n" + sectionComment(*section);
        }
        const std::string thisBlock =
            std::string(function.family->operation) + "_" + function.group + "_" + std::string(suffix(function.type));
        if (thisBlock != block) header += "\n";
        block = thisBlock;
        header += line(function, index.exceptionsOf(function)) + text::prototype(function, ";") + "\n";
    }
    for (auto &[name, content] : result)
        if (name != "vonkk3/types.h") content += familyClosing;
    result["vonkk3.h"] = umbrella + std::string(closing);
    return result;
}

} // namespace emit
