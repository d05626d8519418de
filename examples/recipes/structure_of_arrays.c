/* A structure of arrays: for each component the values of all objects are contiguous. Layout P. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 4096 };
static struct { float x[count], y[count], z[count]; } velocity, field, force;

int main(void) {
    for (int n = 0; n < count; ++n) {
        velocity.x[n] = (float)n;
        field.z[n] = 2;
    }

    /* One pointer per component; the shift is 0. */
    const float *const v[3] = {velocity.x, velocity.y, velocity.z}, *const b[3] = {field.x, field.y, field.z};
    float *const f[3] = {force.x, force.y, force.z};
    VonkStatus status = vonkCrossProduct_vava_32f_3x1_P(v, 0, b, 0, f, 0, count);
    expect(status == vonkOk, "cross products");
    expect(force.y[1000] == -2000 && force.x[1000] == 0, "force on particle 1000");

    /* A part of the objects: the shift, in bytes, leads to the first of them. */
    status = vonkMul_vac_32f_3x1_P((const float *const *)f, 4 * 1000, 0.5f, f, 4 * 1000, 10);
    expect(status == vonkOk, "multiples");
    expect(force.y[999] == -1998 && force.y[1000] == -1000 && force.y[1009] == -1009 && force.y[1010] == -2020,
           "ten forces are halved");
    puts("computed");
    return 0;
}
