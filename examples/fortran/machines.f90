! Many machines: scatter the systems, solve, gather the solutions. Run it by mpirun.
program machines
    use mpi_f08
    use vonkk3
    implicit none
    integer, parameter :: each = 1000, order = 4 ! systems of a process
    real(8) :: a(order, order, each), b(order, each), x(order, each)
    real(8), allocatable :: all_a(:, :, :), all_b(:, :), all_x(:, :)
    integer :: rank, processes, total, n, i
    call MPI_Init()
    call MPI_Comm_rank(MPI_COMM_WORLD, rank)
    call MPI_Comm_size(MPI_COMM_WORLD, processes)

    total = merge(processes * each, 0, rank == 0)
    allocate (all_a(order, order, total), all_b(order, total), all_x(order, total))
    all_a = 0
    do n = 1, total
        do i = 1, order
            all_a(i, i, n) = 2 + mod(n, 3)
            all_b(i, n) = (2 + mod(n, 3)) * real(n, 8)
        end do
    end do
    call MPI_Scatter(all_a, size(a), MPI_REAL8, a, size(a), MPI_REAL8, 0, MPI_COMM_WORLD)
    call MPI_Scatter(all_b, size(b), MPI_REAL8, b, size(b), MPI_REAL8, 0, MPI_COMM_WORLD)

    call vonk_cholesky(a, a) ! the factors replace the matrices
    call vonk_cholesky_solve(a, b, x)

    call MPI_Gather(x, size(x), MPI_REAL8, all_x, size(x), MPI_REAL8, 0, MPI_COMM_WORLD)
    do n = 1, total
        if (any(abs(all_x(:, n) - n) > 1d-12 * n)) error stop 'solution'
    end do
    if (rank == 0) print '(a, i0, a, i0, a)', 'solved ', total, ' systems in ', processes, ' processes'
    call MPI_Finalize()
end program
