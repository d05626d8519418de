! A structure of arrays: all objects' elements at one position are adjacent, a(n, i, j). The strided layout has them, with
! the object stride as the shortest.
program structure_of_arrays
    use, intrinsic :: iso_c_binding, only: c_int32_t, c_loc
    use vonkk3
    use vonkk3_product, only: vonkMul_mava_32f_3x3_S2
    implicit none
    integer, parameter :: count = 1000, row = 4 * count, column = 3 * row
    real, target :: a(count, 3, 3), x(count, 3), y(count, 3)
    integer(c_int32_t) :: status
    call random_number(a)
    call random_number(x)

    status = vonkMul_mava_32f_3x3_S2(c_loc(a), 4, row, column, c_loc(x), 4, row, c_loc(y), 4, row, count)

    if (status /= vonkOk) error stop 'status'
    if (maxval(abs(y(42, :) - matmul(a(42, :, :), x(42, :)))) > 1e-6) error stop 'product'
end program
