/* Matrices and vectors that are members of one's own structs, in an array and behind pointers. */
#include "recipe.h"
#include <stddef.h>
#include <vonkk3.h>

struct Body {
    int id;
    double mass;
    float inertia[3][3];
    float spin[3];
    float momentum[3];
};

enum { count = 500 };
static struct Body bodies[count];
static struct Body *selected[count / 2]; /* every second one, last first */

int main(void) {
    for (int n = 0; n < count; ++n) {
        for (int i = 0; i < 3; ++i) bodies[n].inertia[i][i] = (float)(n + i);
        bodies[n].spin[0] = bodies[n].spin[1] = bodies[n].spin[2] = 2;
    }

    /* An array of structs: the object stride is the struct's size, the pointers are those of the first struct. */
    struct Body *b = bodies;
    VonkStatus status = vonkMul_mava_32f_3x3(b->inertia[0], sizeof *b, sizeof b->inertia[0], b->spin, sizeof *b,
                                             b->momentum, sizeof *b, count);
    expect(status == vonkOk, "array of structs");
    expect(bodies[100].momentum[2] == 204, "momentum of body 100");

    /* Pointers to structs: one list serves all members, the shift says which one. */
    for (int n = 0; n < count / 2; ++n) selected[n] = &bodies[count - 1 - 2 * n];
    status =
        vonkMul_mava_32f_3x3_L((const float *const *)selected, offsetof(struct Body, inertia), sizeof b->inertia[0],
                               (const float *const *)selected, offsetof(struct Body, momentum),
                               (float *const *)selected, offsetof(struct Body, spin), count / 2);
    expect(status == vonkOk, "pointers to structs");
    expect(bodies[101].spin[2] == 206.0f * 103, "spin of body 101");
    expect(bodies[100].spin[2] == 2, "body 100 is not selected");
    puts("multiplied");
    return 0;
}
