/* Solves many systems by LU decomposition: by single calls, which check every matrix by itself; by the array call, with
 * what its check of the last pivot needs; and what it takes for singular. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 1000, order = 3, extra = (count + order - 2) / order }; /* (count - 1) / order, rounded up */
static double a[count][order][order], b[count][order], x[count][order];
static double factors[count + extra][order][order];
static uint32_t pivots[count][order];

static void check_solutions(void) {
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < order; ++i) {
            double sum = 0;
            for (int k = 0; k < order; ++k) sum += a[n][i][k] * x[n][k];
            expect(close_to(sum, b[n][i], 1e-12), "A x is b");
        }
}

static VonkStatus decompose_array(void) {
    /* Before the call every element of `dst` is 1, to the end that the check of the last pivots reaches. */
    for (int n = 0; n < count + extra; ++n)
        for (int i = 0; i < order; ++i)
            for (int k = 0; k < order; ++k) factors[n][i][k] = 1;
    return vonkLUDecomp_ma_64f_3x3(a[0][0], sizeof a[0], sizeof a[0][0], pivots[0], factors[0][0], sizeof factors[0],
                                   sizeof factors[0][0], count);
}

int main(void) {
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < order; ++i) {
            for (int k = 0; k < order; ++k) a[n][i][k] = 1.0 / (1 + i + k) + (i == k ? 1 + n % 5 : 0);
            b[n][i] = n + i;
        }

    /* Single calls: no extra memory, and nothing but the matrix decides. */
    for (int n = 0; n < count; ++n)
        expect(vonkLUDecomp_m_64f_3x3(a[n][0], sizeof a[n][0], pivots[n], factors[n][0], sizeof factors[n][0]) ==
                   vonkOk,
               "single decomposition");
    expect(vonkLUBackSubst_mava_64f_3x3(factors[0][0], sizeof factors[0], sizeof factors[0][0], pivots[0], b[0],
                                        sizeof b[0], x[0], sizeof x[0], count) == vonkOk,
           "solutions");
    check_solutions();

    /* The array call: the same factors. */
    expect(decompose_array() == vonkOk, "array decomposition");
    expect(vonkLUBackSubst_mava_64f_3x3(factors[0][0], sizeof factors[0], sizeof factors[0][0], pivots[0], b[0],
                                        sizeof b[0], x[0], sizeof x[0], count) == vonkOk,
           "solutions");
    check_solutions();

    /* Ones past the object do not help where the last pivot stands in another row than the last: the element one row
     * below it, in the same object, is looked at, and here it is 0. The matrix is regular all the same. */
    for (int i = 0; i < 3; ++i)
        for (int k = 0; k < 3; ++k) a[1][i][k] = k == (i + 2) % 3;
    expect(vonkLUDecomp_m_64f_3x3(a[1][0], sizeof a[1][0], pivots[1], factors[1][0], sizeof factors[1][0]) == vonkOk,
           "a permutation is regular for a single call");
    expect(decompose_array() == vonkErrSingular, "and singular as object 1 of an array");
    puts("solved");
    return 0;
}
