/* Normalises many vectors: lengths, reciprocals, and each vector times its own number. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 1000 };
static float v[count][3], unit[count][3], length[count], factor[count];

int main(void) {
    for (int n = 0; n < count; ++n) {
        v[n][0] = (float)(3 * n);
        v[n][2] = (float)(4 * n);
    }

    /* In 32f of fixed size the length comes from the processor's estimate, and is NaN for a zero vector. Run-time
     * length takes the root: 0 for a zero vector. */
    VonkStatus status = vonkL2Norm_va_32f(v[0], sizeof v[0], length, 3, count);
    expect(status == vonkOk, "lengths");
    expect(length[10] == 50 && length[0] == 0, "lengths by hand");
    for (int n = 0; n < count; ++n) factor[n] = length[n] > 0 ? 1 / length[n] : 0;

    /* A number for each vector: a matrix of 3 rows and 1 column by a vector of 1 element. */
    status = vonkMul_mava_32f(v[0], sizeof v[0], sizeof v[0][0], 1, 3, factor, sizeof factor[0], 1, unit[0],
                              sizeof unit[0], count);
    expect(status == vonkOk, "multiples");
    expect(close_to(unit[10][0], 0.6, 1e-6) && close_to(unit[10][2], 0.8, 1e-6), "vector 10");
    expect(unit[0][0] == 0 && unit[0][2] == 0, "a zero vector stays");

    status = vonkL2Norm_va_32f_3x1(v[0], sizeof v[0], length, count);
    expect(status == vonkOk && close_to(length[10], 50, 1e-5) && isnan(length[0]), "the estimate");
    puts("normalised");
    return 0;
}
