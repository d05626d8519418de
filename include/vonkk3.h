/* vonkk3: batched linear algebra on very many small matrices and vectors.
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
 *   arithmetic  other order of operations or other roundings; signs of zeros and NaNs
 *   result      another result than the name says
 *   arguments   an argument is ignored, restricted, or read in another way
 *   checks      which arguments are checked, and when; what is not checked
 *   status      another status, or another state after a failing call
 *   overlap     what operands that overlap show
 *   reads       what is accessed beyond the operands
 *
 * In C, a table of pointers to elements that are not const needs a cast where a source table is expected:
 * (const float *const *)table.
 */
#ifndef VONKK3_H
#define VONKK3_H

#include "vonkk3/types.h"

#include "vonkk3/vector.h"
#include "vonkk3/matrix.h"
#include "vonkk3/product.h"
#include "vonkk3/copy.h"
#include "vonkk3/lu.h"
#include "vonkk3/cholesky.h"
#include "vonkk3/qr.h"

#endif
