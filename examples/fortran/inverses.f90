! Inverses and determinants of many matrices. To solve a system, vonk_solve is quicker and more accurate.
program inverses
    use vonkk3
    implicit none
    integer, parameter :: count = 1000
    real(8) :: a(4, 4, count), b(4, 4, count), c(4, 4, count), d(count), e(count)
    integer :: n
    call random_number(a)
    do n = 1, 4
        a(n, n, :) = a(n, n, :) + 4
    end do

    call vonk_inverse(a, b)
    call vonk_determinant(a, d)

    call vonk_determinant(b, e)
    if (maxval(abs(d * e - 1)) > 1d-13) error stop 'determinants'
    call vonk_multiply(a, b, c)
    do n = 1, 4
        c(n, n, :) = c(n, n, :) - 1
    end do
    if (maxval(abs(c)) > 1d-13) error stop 'inverses'
end program
