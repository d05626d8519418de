/* What the recording library of the test `cpp_exports` keeps of a call, and how a call is compared with it. */
#ifndef RECORDED_H
#define RECORDED_H

#ifdef __cplusplus
#include <initializer_list>

/* The last call must have been of this export, with these arguments, and nothing else called since the last look. */
void expect_call(const char *name, bool ok, std::initializer_list<long long> arguments);
/* The compiler has found that the operands choose this export. */
void chosen(const char *name);
extern "C" {
#endif

void record(const char *name, int count, ...);

#ifdef __cplusplus
}
#endif

#endif
