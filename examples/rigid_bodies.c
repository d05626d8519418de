/* The state of 1,000 spinning rigid bodies before a contact solver's step: inertia in world axes R I R', its inverse,
 * angular velocity from angular momentum, the velocity of each body's contact point, and the kinetic energy of all. The
 * data are members of an array of structs; rigid_bodies.cpp is the same with the C++ headers. */
#include <vonkk3.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { COUNT = 1000 };

typedef struct {
    double orientation[3][3], inertia[3][3]; /* in the body's axes */
    double momentum[3], velocity[3], arm[3]; /* angular momentum; velocity of the centre; from there to the contact */
    double turned[3][3], world[3][3], inverse[3][3];
    double spin[3], contact[3];
} Body;

static Body bodies[COUNT];
static double energy[COUNT];

static void require(VonkStatus status) {
    if (status == vonkOk) return;
    fprintf(stderr, "rigid_bodies: %s\n", vonkStatusText(status));
    exit(EXIT_FAILURE);
}

static void set_up(void) {
    for (int n = 0; n < COUNT; ++n) {
        Body *b = &bodies[n];
        const double angle = 0.01 * n;
        b->orientation[0][0] = b->orientation[1][1] = cos(angle);
        b->orientation[1][0] = sin(angle);
        b->orientation[0][1] = -sin(angle);
        b->orientation[2][2] = 1;
        for (int i = 0; i < 3; ++i) {
            b->inertia[i][i] = 1 + i;
            b->momentum[i] = 3 - i;
            b->velocity[i] = 0.1 * i;
            b->arm[i] = i - 1 + 0.001 * n;
        }
    }
}

int main(void) {
    Body *b = bodies;
    const int32_t object = sizeof *b, row = sizeof b->inertia[0];
    set_up();
    require(vonkMul_mama_64f_3x3(b->orientation[0], object, row, b->inertia[0], object, row, b->turned[0], object, row,
                                 COUNT));
    require(vonkMul_mamaT_64f_3x3(b->turned[0], object, row, b->orientation[0], object, row, b->world[0], object, row,
                                  COUNT));
    require(vonkInvert_ma_64f_3x3(b->world[0], object, row, b->inverse[0], object, row, COUNT));
    require(vonkMul_mava_64f_3x3(b->inverse[0], object, row, b->momentum, object, b->spin, object, COUNT));
    require(vonkCrossProduct_vava_64f_3x1(b->spin, object, b->arm, object, b->contact, object, COUNT));
    require(vonkAdd_vava_64f_3x1(b->contact, object, b->velocity, object, b->contact, object, COUNT));
    require(vonkDotProduct_vava_64f_3x1(b->spin, object, b->momentum, object, energy, COUNT));

    double sum = 0, fastest = 0;
    for (int n = 0; n < COUNT; ++n) {
        const double *c = bodies[n].contact;
        sum += 0.5 * energy[n];
        fastest = fmax(fastest, sqrt(c[0] * c[0] + c[1] * c[1] + c[2] * c[2]));
    }
    printf("kinetic energy of the spins: %.9f\nfastest contact point: %.9f\n", sum, fastest);
    return 0;
}
