! The generic names on arrays that lie in all kinds of ways, beside plain loops in quadruple precision, and bit for bit
! beside direct calls of the exports on packed copies. The same text for both types: generics_cases.inc.
module checks
    implicit none
    integer :: failures = 0, checks_made = 0
contains
    subroutine expect(condition, what, at)
        logical, intent(in) :: condition
        character(*), intent(in) :: what
        integer, intent(in), optional :: at(:)
        checks_made = checks_made + 1
        if (condition) return
        failures = failures + 1
        if (failures > 20) return
        if (present(at)) then
            print '(3a, *(i0, 1x))', 'FAILED: ', what, ' at ', at
        else
            print '(2a)', 'FAILED: ', what
        end if
    end subroutine
end module

module cases_32f
    use, intrinsic :: iso_c_binding, only: wp => c_float, c_ptr, c_loc, c_int32_t, c_int64_t
    use, intrinsic :: ieee_arithmetic, only: ieee_value, ieee_quiet_nan
    use vonkk3
    use vonkk3_vector, only: raw_saxpy => vonkSaxpy_vava_32f_S2
    use vonkk3_product, only: raw_multiply_3x3 => vonkMul_mama_32f_3x3_S2, raw_multiply => vonkMul_mama_32f_S2
    use vonkk3_lu, only: raw_lu_4x4 => vonkLUDecomp_m_32f_4x4_S2, raw_lu => vonkLUDecomp_m_32f_S2, &
        raw_lu_solve_4x4 => vonkLUBackSubst_mava_32f_4x4_S2, raw_lu_solve => vonkLUBackSubst_mava_32f_S2, &
        raw_inverse_5x5 => vonkInvert_ma_32f_5x5_S2, raw_determinant => vonkDet_ma_32f_S2
    use vonkk3_cholesky, only: raw_cholesky_6x6 => vonkCholeskyDecomp_ma_32f_6x6_S2
    use vonkk3_qr, only: raw_qr => vonkQRDecomp_ma_32f_S2
    use checks, only: expect
    include 'generics_cases.inc'
end module

module cases_64f
    use, intrinsic :: iso_c_binding, only: wp => c_double, c_ptr, c_loc, c_int32_t, c_int64_t
    use, intrinsic :: ieee_arithmetic, only: ieee_value, ieee_quiet_nan
    use vonkk3
    use vonkk3_vector, only: raw_saxpy => vonkSaxpy_vava_64f_S2
    use vonkk3_product, only: raw_multiply_3x3 => vonkMul_mama_64f_3x3_S2, raw_multiply => vonkMul_mama_64f_S2
    use vonkk3_lu, only: raw_lu_4x4 => vonkLUDecomp_m_64f_4x4_S2, raw_lu => vonkLUDecomp_m_64f_S2, &
        raw_lu_solve_4x4 => vonkLUBackSubst_mava_64f_4x4_S2, raw_lu_solve => vonkLUBackSubst_mava_64f_S2, &
        raw_inverse_5x5 => vonkInvert_ma_64f_5x5_S2, raw_determinant => vonkDet_ma_64f_S2
    use vonkk3_cholesky, only: raw_cholesky_6x6 => vonkCholeskyDecomp_ma_64f_6x6_S2
    use vonkk3_qr, only: raw_qr => vonkQRDecomp_ma_64f_S2
    use checks, only: expect
    include 'generics_cases.inc'
end module

program generics_test
    use checks, only: failures, checks_made
    use cases_32f, only: test_32f => test_all
    use cases_64f, only: test_64f => test_all
    implicit none
    call test_32f
    call test_64f
    print '(i0, a, i0, a)', checks_made, ' checks, ', failures, ' failures'
    if (failures > 0 .or. checks_made < 10000) error stop 'the generic names do not do what they should'
end program
