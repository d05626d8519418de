/* Many machines: scatter the systems, solve, gather the solutions. Run it by mpirun. */
#include "recipe.h"
#include <mpi.h>
#include <vonkk3.h>

enum { each = 1000, order = 4 }; /* systems of a process */
static double a[each][order][order], b[each][order], x[each][order];

int main(int arguments, char **values) {
    MPI_Init(&arguments, &values);
    int rank = 0, processes = 1;
    MPI_Comm_rank(MPI_COMM_WORLD, &rank);
    MPI_Comm_size(MPI_COMM_WORLD, &processes);

    double *all_a = NULL, *all_b = NULL, *all_x = NULL;
    const int total = processes * each;
    if (rank == 0) {
        all_a = calloc((size_t)total * order * order, sizeof *all_a);
        all_b = calloc((size_t)total * order, sizeof *all_b);
        all_x = calloc((size_t)total * order, sizeof *all_x);
        expect(all_a && all_b && all_x, "memory");
        for (int n = 0; n < total; ++n)
            for (int i = 0; i < order; ++i) {
                all_a[(n * order + i) * order + i] = 2 + n % 3;
                all_b[n * order + i] = (2 + n % 3) * (double)n;
            }
    }
    MPI_Scatter(all_a, each * order * order, MPI_DOUBLE, a, each * order * order, MPI_DOUBLE, 0, MPI_COMM_WORLD);
    MPI_Scatter(all_b, each * order, MPI_DOUBLE, b, each * order, MPI_DOUBLE, 0, MPI_COMM_WORLD);

    /* The factors replace the matrices. */
    VonkStatus status =
        vonkCholeskyDecomp_ma_64f_4x4(a[0][0], sizeof a[0], sizeof a[0][0], a[0][0], sizeof a[0], sizeof a[0][0], each);
    if (status == vonkOk)
        status = vonkCholeskyBackSubst_mava_64f_4x4(a[0][0], sizeof a[0], sizeof a[0][0], b[0], sizeof b[0], x[0],
                                                    sizeof x[0], each);
    expect(status == vonkOk, "solutions");

    MPI_Gather(x, each * order, MPI_DOUBLE, all_x, each * order, MPI_DOUBLE, 0, MPI_COMM_WORLD);
    if (rank == 0) {
        for (int n = 0; n < total; ++n)
            for (int i = 0; i < order; ++i) expect(close_to(all_x[n * order + i], n, 1e-12), "solution");
        printf("solved %d systems in %d processes\n", total, processes);
        free(all_a);
        free(all_b);
        free(all_x);
    }
    MPI_Finalize();
    return 0;
}
