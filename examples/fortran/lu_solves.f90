! Many systems of equations: in one call, or the factors first.
program lu_solves
    use vonkk3
    implicit none
    integer, parameter :: count = 1000
    real(8) :: a(3, 3, count), b(3, count), x(3, count), factors(3, 3, count), y(3, count)
    integer :: pivots(3, count), n
    call random_number(a)
    call random_number(b)
    do n = 1, 3
        a(n, n, :) = a(n, n, :) + 3
    end do

    call vonk_solve(a, b, x) ! a is left alone; x may be b

    call vonk_lu(a, pivots, factors) ! factors may be a
    call vonk_lu_solve(factors, pivots, b, y)
    if (any(x /= y)) error stop 'the same bits'

    ! One matrix, many right-hand sides.
    call vonk_solve(a(:, :, 1), b, x)
    if (maxval(abs(matmul(a(:, :, 1), x) - b)) > 1d-14) error stop 'residual'
end program
