! Which object failed, and how to go on behind it.
program which_failed
    use vonkk3
    implicit none
    integer, parameter :: objects = 100
    real :: a(3, 3, objects), b(3, objects), x(3, objects)
    integer :: status, failed, first, n
    a = 0
    do n = 1, 3
        a(n, n, :) = 2
    end do
    a(2, 2, 42) = 0
    b = 1
    x = 0

    first = 1
    do
        call vonk_solve(a(:, :, first:), b(:, first:), x(:, first:), status, failed)
        if (status == vonkOk) exit
        failed = first + failed - 1
        print '(a, i0, 2a)', 'object ', failed, ': ', vonkStatusText(status)
        first = failed + 1
    end do

    if (failed /= 0 .or. first /= 43) error stop 'object 42'
    if (any(x(:, 42) /= 0) .or. count(x == 0.5) /= 3 * (size(x, 2) - 1)) error stop 'the others'
end program
