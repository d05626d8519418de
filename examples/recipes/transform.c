/* Transforms 10,000 points, and then 10,000 matrices, by one matrix. */
#include "recipe.h"
#include <vonkk3.h>

enum { count = 10000 };
static float points[count][3], moved[count][3];
static float poses[count][4][4], world[count][4][4];

int main(void) {
    const float rotation[3][3] = {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}; /* a quarter turn about z */
    const float camera[4][4] = {{0, -1, 0, 10}, {1, 0, 0, 20}, {0, 0, 1, 30}, {0, 0, 0, 1}};
    for (int n = 0; n < count; ++n) {
        points[n][0] = (float)n;
        points[n][1] = 1;
        points[n][2] = -2;
        for (int i = 0; i < 4; ++i) poses[n][i][i] = 1;
        poses[n][0][3] = (float)n;
    }

    /* One matrix, an array of vectors: mva. */
    VonkStatus status = vonkMul_mva_32f_3x3(rotation[0], sizeof rotation[0], points[0], sizeof points[0], moved[0],
                                            sizeof moved[0], count);
    expect(status == vonkOk, "points");
    expect(moved[7][0] == -1 && moved[7][1] == 7 && moved[7][2] == -2, "point 7 is turned");

    /* One matrix from the left, an array of matrices: mma. */
    status = vonkMul_mma_32f_4x4(camera[0], sizeof camera[0], poses[0][0], sizeof poses[0], sizeof poses[0][0],
                                 world[0][0], sizeof world[0], sizeof world[0][0], count);
    expect(status == vonkOk, "matrices");
    expect(world[9999][0][3] == 10 && world[9999][1][3] == 10019 && world[9999][2][3] == 30, "matrix 9999 is moved");
    puts("transformed");
    return 0;
}
