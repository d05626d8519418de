program user
    use, intrinsic :: iso_c_binding, only: c_loc
    use vonkk3
    use vonkk3_vector, only: vonkAdd_vv_64f_3x1
    implicit none
    real(8), target :: a(3, 3, 2), b(3, 2), x(3, 2)
    integer :: n
    a = 1
    do n = 1, 3
        a(n, n, :) = 4
    end do
    b = 6
    call vonk_solve(a, b, x)
    if (maxval(abs(x - 1)) > 1d-15) error stop 'solve'
    if (vonkAdd_vv_64f_3x1(c_loc(x), c_loc(x), c_loc(b)) /= vonkOk) error stop 'status'
    if (any(abs(b(:, 1) - 2) > 1d-14)) error stop 'add'
end program
