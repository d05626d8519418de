/* Threads: functions keep no state, so an array is split by objects. The results are the same bits. */
#include "recipe.h"
#include <omp.h>
#include <string.h>
#include <vonkk3.h>

enum { count = 100000 };
static float a[count][3][3], x[count][3], one[count][3], many[count][3];

int main(void) {
    for (int n = 0; n < count; ++n)
        for (int i = 0; i < 3; ++i) {
            x[n][i] = 1.0f / (float)(1 + n % 7 + i);
            for (int j = 0; j < 3; ++j) a[n][i][j] = (float)(n % 11) / (float)(1 + i + j);
        }
    expect(vonkMul_mava_32f_3x3(a[0][0], sizeof a[0], sizeof a[0][0], x[0], sizeof x[0], one[0], sizeof one[0],
                                count) == vonkOk,
           "one thread");

    int failures = 0, threads = 1;
#pragma omp parallel num_threads(4) reduction(+ : failures)
    {
#pragma omp single
        threads = omp_get_num_threads();
        const int parts = omp_get_num_threads(), part = omp_get_thread_num();
        const int begin = (int)((long)count * part / parts), end = (int)((long)count * (part + 1) / parts);
        failures += vonkMul_mava_32f_3x3(a[begin][0], sizeof a[0], sizeof a[0][0], x[begin], sizeof x[0], many[begin],
                                         sizeof many[0], (uint32_t)(end - begin)) != vonkOk;
    }
    expect(failures == 0, "all threads");
    expect(memcmp(one, many, sizeof one) == 0, "the same bits");
    printf("the same bits on %d threads\n", threads);
    return 0;
}
