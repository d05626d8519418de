! Linear algebra on very many small matrices and vectors, by generic names for real(4) and real(8) arrays:
!
!     use vonkk3
!     real :: a(3, 3, 1000), b(3, 1000), x(3, 1000)      ! 1,000 systems: rows, columns, objects
!     call vonk_solve(a, b, x)
!
! A matrix is a(:, :), an array of them a(:, :, :), a vector x(:), an array of them x(:, :); the last index counts
! objects. Sections with any strides are taken as they lie, nothing is copied. The names begin with vonk_ because
! Fortran has no namespaces and its intrinsics have the plain words: matmul, transpose, dot_product, norm2. They are
! subroutines, since the result may be a section, and a status comes with it.
!
! The raw interfaces are in modules of their own, named like the C headers: vonkk3_vector, vonkk3_matrix,
! vonkk3_product, vonkk3_copy, vonkk3_lu, vonkk3_cholesky, vonkk3_qr. This module does not pass them on, so that
! `use vonkk3` stays quick.

! What is written by hand, for each type from the same text.
module vonkk3_solvers_32f
    use, intrinsic :: iso_c_binding, only: c_float, c_ptr, c_null_ptr, c_loc, c_int32_t, c_intptr_t, &
        c_associated, wp => c_float
    use vonkk3_types, only: vonkOk, vonkErrSize, vonkErrStride, vonkErrSingular, vonkErrNotPosDef
    use vonkk3_views, only: view, view_of, objects_from, joint_status, conclude
    use vonkk3_copy, only: copy_matrices => vonkCopy_ma_32f_SS, copy_vectors => vonkCopy_va_32f_SS
    use vonkk3_s2_32f
    include 'vonkk3_solvers.inc'
end module

module vonkk3_solvers_64f
    use, intrinsic :: iso_c_binding, only: c_float, c_ptr, c_null_ptr, c_loc, c_int32_t, c_intptr_t, &
        c_associated, wp => c_double
    use vonkk3_types, only: vonkOk, vonkErrSize, vonkErrStride, vonkErrSingular, vonkErrNotPosDef
    use vonkk3_views, only: view, view_of, objects_from, joint_status, conclude
    use vonkk3_copy, only: copy_matrices => vonkCopy_ma_64f_SS, copy_vectors => vonkCopy_va_64f_SS
    use vonkk3_s2_64f
    include 'vonkk3_solvers.inc'
end module

module vonkk3
    use vonkk3_types
    use vonkk3_solvers_32f
    use vonkk3_solvers_64f
    use vonkk3_s2_32f, only: vonk_add, vonk_subtract, vonk_scale, vonk_multiply, vonk_saxpy, vonk_combine, vonk_dot, &
        vonk_norm, vonk_cross, vonk_transpose, vonk_trace, vonk_frobenius, vonk_gaxpy, vonk_lu_solve, vonk_cholesky_solve
    use vonkk3_s2_64f, only: vonk_add, vonk_subtract, vonk_scale, vonk_multiply, vonk_saxpy, vonk_combine, vonk_dot, &
        vonk_norm, vonk_cross, vonk_transpose, vonk_trace, vonk_frobenius, vonk_gaxpy, vonk_lu_solve, vonk_cholesky_solve
    implicit none
end module
