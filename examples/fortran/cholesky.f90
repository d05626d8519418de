! Many symmetric positive definite systems. Only the lower triangles are read.
program cholesky
    use vonkk3
    implicit none
    integer, parameter :: count = 1000
    real :: a(4, 4, count), b(4, count), x(4, count), factors(4, 4, count)
    integer :: n
    call random_number(a)
    call random_number(b)
    do n = 1, count
        a(:, :, n) = matmul(a(:, :, n), transpose(a(:, :, n)))
    end do
    do n = 1, 4
        a(n, n, :) = a(n, n, :) + 1
    end do

    call vonk_cholesky(a, factors)
    call vonk_cholesky_solve(factors, b, x)

    if (maxval(abs(matmul(a(:, :, 42), x(:, 42)) - b(:, 42))) > 1e-4) error stop 'residual'
end program
