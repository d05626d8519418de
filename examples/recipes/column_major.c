/* Column-major matrices, as GLM, OpenGL, Fortran and LAPACK keep them. Layout S2 with the strides exchanged; or,
 * without another layout, what is stored by columns is read by rows as its transpose. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 100 };
static float a[count][4][4], x[count][4], y[count][4], z[count][4]; /* a[n][column][row] */

int main(void) {
    for (int n = 0; n < count; ++n)
        for (int column = 0; column < 4; ++column) {
            for (int row = 0; row < 4; ++row) a[n][column][row] = (float)(n + 10 * row + column);
            x[n][column] = (float)(column == 3); /* picks the last column */
        }

    /* From row to row it is one element, from element to element of a row it is a column. */
    const int32_t row = sizeof(float), element = sizeof a[0][0];
    VonkStatus status = vonkMul_mava_32f_4x4_S2(a[0][0], sizeof a[0], row, element, x[0], sizeof x[0], sizeof(float),
                                                y[0], sizeof y[0], sizeof(float), count);
    expect(status == vonkOk, "S2");
    expect(y[5][0] == 8 && y[5][1] == 18 && y[5][3] == 38, "the last column of matrix 5");

    /* The same in the standard layout, which is faster: the rows that it sees are the columns, and T exchanges them. */
    status = vonkMul_maTva_32f_4x4(a[0][0], sizeof a[0], sizeof a[0][0], x[0], sizeof x[0], z[0], sizeof z[0], count);
    expect(status == vonkOk, "transposed");
    for (int i = 0; i < 4; ++i) expect(z[99][i] == y[99][i], "both agree");

    /* A product A B of column-major matrices is B by A in the standard layout, since (A B)' = B' A'. */
    static const float one[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {5, 6, 7, 1}}; /* moves by (5, 6, 7) */
    static float product[count][4][4];
    status = vonkMul_mam_32f_4x4(a[0][0], sizeof a[0], sizeof a[0][0], one[0], sizeof one[0], product[0][0],
                                 sizeof product[0], sizeof product[0][0], count); /* column-major: one * a[n] */
    expect(status == vonkOk, "product");
    expect(product[2][1][0] == a[2][1][0] + 5 * a[2][1][3], "row 0 of column 1");
    puts("multiplied");
    return 0;
}
