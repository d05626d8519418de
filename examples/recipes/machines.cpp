// Many machines: scatter the systems, solve, gather the solutions. Run it by mpirun.
#include "recipe.h"
#define OMPI_SKIP_MPICXX // the C interface alone
#include <mpi.h>
#include <vonkk3.hpp>

#include <array>
#include <vector>

int main(int arguments, char **values) {
    constexpr int each = 1000, order = 4; // systems of a process
    using Vector = std::array<double, order>;
    using Matrix = std::array<Vector, order>;
    MPI_Init(&arguments, &values);
    int rank = 0, processes = 1;
    MPI_Comm_rank(MPI_COMM_WORLD, &rank);
    MPI_Comm_size(MPI_COMM_WORLD, &processes);

    const int total = rank == 0 ? processes * each : 0;
    std::vector<Matrix> all_a(total);
    std::vector<Vector> all_b(total), all_x(total);
    for (int n = 0; n < total; ++n)
        for (int i = 0; i < order; ++i) {
            all_a[n][i][i] = 2 + n % 3;
            all_b[n][i] = (2 + n % 3) * double(n);
        }
    std::vector<Matrix> a(each);
    std::vector<Vector> b(each), x(each);
    MPI_Scatter(all_a.data(), each * order * order, MPI_DOUBLE, a.data(), each * order * order, MPI_DOUBLE, 0,
                MPI_COMM_WORLD);
    MPI_Scatter(all_b.data(), each * order, MPI_DOUBLE, b.data(), each * order, MPI_DOUBLE, 0, MPI_COMM_WORLD);

    vonk::check(vonk::cholesky(a, a)); // the factors replace the matrices
    vonk::check(vonk::cholesky_solve(a, b, x));

    MPI_Gather(x.data(), each * order, MPI_DOUBLE, all_x.data(), each * order, MPI_DOUBLE, 0, MPI_COMM_WORLD);
    for (int n = 0; n < total; ++n)
        for (int i = 0; i < order; ++i) expect(close_to(all_x[n][i], n, 1e-12), "solution");
    if (rank == 0) std::printf("solved %d systems in %d processes\n", total, processes);
    MPI_Finalize();
}
