! Many least-squares fits: a parabola through 20 observations each.
program fits
    use vonkk3
    implicit none
    integer, parameter :: count = 100, observations = 20
    real(8) :: a(observations, 3, count), y(observations, count), x(3, count), t
    integer :: n, i
    do n = 1, count
        do i = 1, observations
            t = i / 10d0
            a(i, :, n) = [1d0, t, t**2]
            y(i, n) = n - 2 * t + 0.5d0 * t**2
        end do
    end do

    call vonk_least_squares(a, y, x)

    do n = 1, count
        if (maxval(abs(x(:, n) - [real(n, 8), -2d0, 0.5d0])) > 1d-11) error stop 'coefficients'
    end do
end program
