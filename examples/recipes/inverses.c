/* Inverses of many matrices, and when a matrix counts as singular. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 300, order = 7 };
static double a[count][4][4], inverse[count][4][4], product[count][4][4];

int main(void) {
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 4; ++j) a[n][i][j] = (i == j ? 3 + n % 4 : 0) + 1.0 / (1 + i + j);
    VonkStatus status = vonkInvert_ma_64f_4x4(a[0][0], sizeof a[0], sizeof a[0][0], inverse[0][0], sizeof inverse[0],
                                              sizeof inverse[0][0], count);
    expect(status == vonkOk, "inverses");
    status = vonkMul_mama_64f_4x4(a[0][0], sizeof a[0], sizeof a[0][0], inverse[0][0], sizeof inverse[0],
                                  sizeof inverse[0][0], product[0][0], sizeof product[0], sizeof product[0][0], count);
    expect(status == vonkOk, "products");
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) expect(fabs(product[count - 1][i][j] - (i == j)) < 1e-14, "A by its inverse");

    /* The bound on the determinant is absolute: 1e-15 in double. Of small matrices scale first, s^-1 (A / s)^-1. */
    static double small[4][4];
    for (int i = 0; i < 4; ++i) small[i][i] = 1e-4;
    expect(vonkInvert_m_64f_4x4(small[0], sizeof small[0], inverse[0][0], sizeof inverse[0][0]) == vonkErrSingular,
           "determinant 1e-16");

    /* Run-time size needs `scratch`, and `dst` must not be `src`; its work grows with the fifth power of the order. */
    static double seven[order][order], result[order][order];
    static double scratch[order * order + (order + 1) / 2]; /* elements, then `order` 32-bit integers */
    for (int i = 0; i < order; ++i) seven[i][i] = 2;
    status = vonkInvert_m_64f(seven[0], sizeof seven[0], order, scratch, result[0], sizeof result[0]);
    expect(status == vonkOk && result[6][6] == 0.5, "order 7");
    puts("inverted");
    return 0;
}
