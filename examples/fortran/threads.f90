! Objects are split over threads; nothing is shared.
program threads
    use vonkk3
    implicit none
    integer, parameter :: count = 10000, chunk = 500
    real(8) :: a(3, 3, count), b(3, count), x(3, count), y(3, count)
    integer :: first, last
    call random_number(a)
    call random_number(b)
    do first = 1, 3
        a(first, first, :) = a(first, first, :) + 3
    end do

    !$omp parallel do private(last)
    do first = 1, count, chunk
        last = min(first + chunk - 1, count)
        call vonk_solve(a(:, :, first:last), b(:, first:last), x(:, first:last))
    end do

    call vonk_solve(a, b, y)
    if (any(x /= y)) error stop 'the same bits'
end program
