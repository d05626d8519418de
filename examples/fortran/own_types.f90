! Members of one's own types: no Fortran section describes them, so they go to the exports themselves, in the strided
! layout. The object stride is the size of the type; row and element strides are those of a column-major member.
program own_types
    use, intrinsic :: iso_c_binding, only: c_float, c_double, c_int, c_int32_t, c_loc, c_sizeof
    use vonkk3
    use vonkk3_product, only: vonkMul_mava_32f_3x3_S2
    implicit none
    type, bind(C) :: body
        integer(c_int) :: id
        real(c_double) :: mass
        real(c_float) :: inertia(3, 3), spin(3), momentum(3)
    end type
    integer, parameter :: count = 500
    type(body), target :: bodies(count)
    integer(c_int32_t) :: status, apart
    integer :: n, i
    do n = 1, count
        bodies(n)%inertia = 0
        do i = 1, 3
            bodies(n)%inertia(i, i) = real(n + i)
        end do
        bodies(n)%spin = 2
    end do

    apart = int(c_sizeof(bodies(1)), c_int32_t)
    status = vonkMul_mava_32f_3x3_S2(c_loc(bodies(1)%inertia), apart, 4, 12, c_loc(bodies(1)%spin), apart, 4, &
        c_loc(bodies(1)%momentum), apart, 4, count)

    if (status /= vonkOk) error stop 'status'
    if (bodies(7)%momentum(3) /= 20) error stop 'momentum'
end program
