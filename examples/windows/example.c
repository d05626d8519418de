/* Two systems by Cholesky decomposition in one call each, and 1/3 of a double at both precisions of the x87 unit.
 *
 *     cl /W4 /Iinclude example\example.c lib\vonkk3.lib */
#include "precision.h"

#include <stdio.h>
#include <vonkk3.h>

int main(void) {
    const float a[2][9] = {{4, 1, 0, 1, 4, 1, 0, 1, 4}, {2, 1, 0, 1, 2, 1, 0, 1, 2}}; /* two 3 by 3 matrices */
    const float b[2][3] = {{5, 6, 5}, {3, 4, 3}};                                     /* and right-hand sides */
    const double left[3] = {1, 1, 1}, right[3] = {1, 0x1p-53, 0x1p-60};
    float factors[2][9], x[2][3];
    double sum;
    VonkStatus status;
    int started;

    status = vonkCholeskyDecomp_ma_32f_3x3(a[0], 36, 12, factors[0], 36, 12, 2);
    if (status == vonkOk) status = vonkCholeskyBackSubst_mava_32f_3x3(factors[0], 36, 12, b[0], 12, x[0], 12, 2);
    if (status != vonkOk) return fprintf(stderr, "%s\n", vonkStatusText(status)), 1;
    printf("%s %s\n", vonkGetLibVersion()->libraryName, vonkGetLibVersion()->versionText);
    printf("x = %g %g %g and %g %g %g\n", x[0][0], x[0][1], x[0][2], x[1][0], x[1][1], x[1][2]);

    /* 1 + 2^-53 + 2^-60: at 53 bits each sum rounds back to 1, at 64 the last rounding takes it up. */
    started = setPrecision(precision53);
    printf("the thread started at %d bits\n", started == precision53 ? 53 : 64);
    if (vonkDotProduct_vv_64f_3x1(left, right, &sum) != vonkOk) return 1;
    printf("at 53 bits 1 + %g\n", sum - 1);
    setPrecision(precision64);
    if (vonkDotProduct_vv_64f_3x1(left, right, &sum) != vonkOk) return 1;
    printf("at 64 bits 1 + %g\n", sum - 1);
    setPrecision(started);
    return 0;
}
