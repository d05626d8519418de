/* Symmetric positive definite systems: Mahalanobis distances of many points under many covariances. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 1000, order = 4 };
static float covariance[count][order][order], factor[count][order][order];
static float deviation[count][order], solution[count][order], distance[count];

int main(void) {
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < order; ++i) {
            deviation[n][i] = (float)(i + 1);
            for (int j = 0; j <= i; ++j) covariance[n][i][j] = i == j ? 4 : 1; /* the lower triangle is enough */
        }

    /* The factor keeps the RECIPROCALS of its diagonal, which the solver wants so. */
    VonkStatus status = vonkCholeskyDecomp_ma_32f_4x4(covariance[0][0], sizeof covariance[0], sizeof covariance[0][0],
                                                      factor[0][0], sizeof factor[0], sizeof factor[0][0], count);
    expect(status == vonkOk, "decomposition");
    expect(close_to(factor[0][0][0], 0.5, 1e-6), "1 / root of 4");
    status = vonkCholeskyBackSubst_mava_32f_4x4(factor[0][0], sizeof factor[0], sizeof factor[0][0], deviation[0],
                                                sizeof deviation[0], solution[0], sizeof solution[0], count);
    expect(status == vonkOk, "solution");
    status = vonkDotProduct_vava_32f_4x1(deviation[0], sizeof deviation[0], solution[0], sizeof solution[0], distance,
                                         count);
    expect(status == vonkOk, "distance");

    /* C = 3 I + e e', so d' C^-1 d = (d'd - (e'd)^2 / (3 + 4)) / 3 = (30 - 100 / 7) / 3. */
    expect(close_to(distance[count - 1], (30 - 100 / 7.0) / 3, 1e-5), "distance by hand");

    /* One covariance for all points: mva. Unlike the other solvers it has no object stride for the factor. */
    status = vonkCholeskyBackSubst_mva_32f_4x4(factor[0][0], sizeof factor[0][0], deviation[0], sizeof deviation[0],
                                               solution[0], sizeof solution[0], count);
    expect(status == vonkOk, "one factor");

    covariance[3][2][2] = -1;
    status = vonkCholeskyDecomp_ma_32f_4x4(covariance[0][0], sizeof covariance[0], sizeof covariance[0][0],
                                           factor[0][0], sizeof factor[0], sizeof factor[0][0], count);
    expect(status == vonkErrNotPosDef, "not positive definite");
    puts("solved");
    return 0;
}
