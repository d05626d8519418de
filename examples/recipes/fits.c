/* Least squares: a line through each of many sets of points, by QR decomposition. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 200, rows = 10, cols = 2 };
static double a[count][rows][cols], factors[count][rows][cols], y[count][rows], coefficients[count][cols];

int main(void) {
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < rows; ++i) {
            a[n][i][0] = 1;
            a[n][i][1] = i;
            y[n][i] = n + 0.5 * i + (i % 2 ? 0.25 : -0.25);
        }

    /* `work` is one workspace of `rows` elements for all objects. Columns come before rows. */
    double work[rows];
    VonkStatus status = vonkQRDecomp_ma_64f(a[0][0], sizeof a[0], sizeof a[0][0], work, factors[0][0],
                                            sizeof factors[0], sizeof factors[0][0], cols, rows, count);
    expect(status == vonkOk, "decomposition");
    status = vonkQRBackSubst_mava_64f(factors[0][0], sizeof factors[0], sizeof factors[0][0], work, y[0], sizeof y[0],
                                      coefficients[0], sizeof coefficients[0], cols, rows, count);
    expect(status == vonkOk, "solution");

    /* The residual is orthogonal to both columns. */
    for (int n = 0; n < count; ++n) {
        double sum = 0, moment = 0;
        for (int i = 0; i < rows; ++i) {
            const double residual = y[n][i] - coefficients[n][0] - coefficients[n][1] * i;
            sum += residual;
            moment += residual * i;
        }
        expect(fabs(sum) < 1e-11 && fabs(moment) < 1e-10, "residual");
    }

    /* From element `cols` on, `work` holds what is left of the last right-hand side: its length is the residual's. */
    double left = 0, direct = 0;
    for (int i = 0; i < rows; ++i) {
        const double residual = y[count - 1][i] - coefficients[count - 1][0] - coefficients[count - 1][1] * i;
        direct += residual * residual;
        if (i >= cols) left += work[i] * work[i];
    }
    expect(close_to(left, direct, 1e-9), "sum of squares");

    /* The bound on a column is absolute, on its SQUARED length: data of 1e-5 are singular until they are scaled. */
    for (int i = 0; i < rows; ++i) a[0][i][1] = 1e-5 * i;
    status = vonkQRDecomp_m_64f(a[0][0], sizeof a[0][0], work, factors[0][0], sizeof factors[0][0], cols, rows);
    expect(status == vonkErrSingular, "a column of small numbers");
    puts("fitted");
    return 0;
}
