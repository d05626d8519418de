/* A call that fails does not say at which object. Mark `dst` beforehand and look afterwards: objects before the failing
 * one are complete, those after it untouched. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 100 };
static const uint32_t mark = 0xffffffff; /* no row index */
static float a[count][3][3], factors[count][3][3];
static uint32_t pivots[count][3];

/* The first object that is not decomposed; `count` if all are. */
static int first_failure(void) {
    for (int n = 0; n < count; ++n) {
        pivots[n][0] = mark;
        /* Single calls, since the array's check of the last pivot looks beyond the object. */
        if (vonkLUDecomp_m_32f_3x3(a[n][0], sizeof a[n][0], pivots[n], factors[n][0], sizeof factors[n][0]) != vonkOk)
            return n;
    }
    return count;
}

int main(void) {
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < 3; ++i) a[n][i][i] = 2;
    expect(first_failure() == count, "all are regular");
    a[42][1][1] = 0;
    expect(first_failure() == 42, "object 42 is singular");

    /* Cholesky decomposition of the array: the last element of its diagonal is the last that an object gets. It is
     * never negative, so -1 is a mark. */
    for (int n = 0; n < count; ++n) factors[n][2][2] = -1;
    VonkStatus status = vonkCholeskyDecomp_ma_32f_3x3(a[0][0], sizeof a[0], sizeof a[0][0], factors[0][0],
                                                      sizeof factors[0], sizeof factors[0][0], count);
    expect(status == vonkErrNotPosDef, "status");
    int failed = 0;
    while (failed < count && factors[failed][2][2] != -1) ++failed;
    expect(failed == 42, "the first mark that is left");

    /* Go on behind it. */
    const int rest = failed + 1;
    status = vonkCholeskyDecomp_ma_32f_3x3(a[rest][0], sizeof a[0], sizeof a[0][0], factors[rest][0], sizeof factors[0],
                                           sizeof factors[0][0], count - rest);
    expect(status == vonkOk && factors[count - 1][2][2] != -1, "the rest");
    puts("found");
    return 0;
}
