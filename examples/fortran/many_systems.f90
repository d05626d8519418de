! Many small systems of equations, solved in one call, beside a loop over LAPACK's dgesv or sgesv.
!
!     many_systems [SYSTEMS [REPETITIONS]]
!
! Both get the same matrices and right-hand sides and leave them alone (LAPACK works on a copy of each). The least time of
! all repetitions counts. It ends with an error if the solutions differ by more than rounding.
program many_systems
    use, intrinsic :: iso_fortran_env, only: int64
    use vonkk3
    implicit none
    integer, parameter :: single = kind(1.0), double = kind(1d0)
    interface
        subroutine sgesv(n, nrhs, a, lda, ipiv, b, ldb, info)
            import :: single
            integer, intent(in) :: n, nrhs, lda, ldb
            real(single), intent(inout) :: a(lda, *), b(ldb, *)
            integer, intent(out) :: ipiv(*), info
        end subroutine
        subroutine dgesv(n, nrhs, a, lda, ipiv, b, ldb, info)
            import :: double
            integer, intent(in) :: n, nrhs, lda, ldb
            real(double), intent(inout) :: a(lda, *), b(ldb, *)
            integer, intent(out) :: ipiv(*), info
        end subroutine
    end interface
    integer :: systems = 1000, repetitions = 20, order

    call read_argument(1, systems)
    call read_argument(2, repetitions)
    print '(i0, a)', systems, ' systems; nanoseconds per system'
    print '(a)', 'type     order   vonk_solve   LAPACK   LAPACK / vonk_solve'
    do order = 3, 6
        call compare_single(order)
        call compare_double(order)
    end do

contains

    subroutine compare_double(order)
        integer, intent(in) :: order
        real(double), allocatable :: a(:, :, :), b(:, :), x(:, :), y(:, :)
        real(double) :: lu(order, order), least(2)
        integer :: pivots(order), info, n, repetition
        integer(int64) :: start
        allocate (a(order, order, systems), b(order, systems), x(order, systems), y(order, systems))
        call random_number(a)
        call random_number(b)
        do n = 1, order ! well-conditioned
            a(n, n, :) = a(n, n, :) + order
        end do
        least = huge(least)
        do repetition = 1, repetitions
            start = now()
            call vonk_solve(a, b, x)
            least(1) = min(least(1), since(start))
            start = now()
            do n = 1, systems
                lu = a(:, :, n)
                y(:, n) = b(:, n)
                call dgesv(order, 1, lu, order, pivots, y(:, n), order, info)
                if (info /= 0) error stop 'dgesv failed'
            end do
            least(2) = min(least(2), since(start))
        end do
        call report('real(8)', order, least, maxval(abs(x - y)), 100 * epsilon(x))
    end subroutine

    subroutine compare_single(order)
        integer, intent(in) :: order
        real(single), allocatable :: a(:, :, :), b(:, :), x(:, :), y(:, :)
        real(single) :: lu(order, order)
        real(double) :: least(2)
        integer :: pivots(order), info, n, repetition
        integer(int64) :: start
        allocate (a(order, order, systems), b(order, systems), x(order, systems), y(order, systems))
        call random_number(a)
        call random_number(b)
        do n = 1, order
            a(n, n, :) = a(n, n, :) + order
        end do
        least = huge(least)
        do repetition = 1, repetitions
            start = now()
            call vonk_solve(a, b, x)
            least(1) = min(least(1), since(start))
            start = now()
            do n = 1, systems
                lu = a(:, :, n)
                y(:, n) = b(:, n)
                call sgesv(order, 1, lu, order, pivots, y(:, n), order, info)
                if (info /= 0) error stop 'sgesv failed'
            end do
            least(2) = min(least(2), since(start))
        end do
        call report('real(4)', order, least, real(maxval(abs(x - y)), double), real(100 * epsilon(x), double))
    end subroutine

    subroutine report(type, order, least, difference, bound)
        character(*), intent(in) :: type
        integer, intent(in) :: order
        real(double), intent(in) :: least(2), difference, bound
        print '(a, i8, f13.1, f9.1, f22.1)', type, order, least / systems, least(2) / least(1)
        if (.not. difference <= bound) error stop 'the solutions differ'
    end subroutine

    integer(int64) function now()
        call system_clock(now)
    end function

    real(double) function since(start)
        integer(int64), intent(in) :: start
        integer(int64) :: rate
        call system_clock(count_rate=rate)
        since = real(now() - start, double) / real(rate, double) * 1d9
    end function

    subroutine read_argument(at, value)
        integer, intent(in) :: at
        integer, intent(inout) :: value
        character(20) :: text
        integer :: status
        if (command_argument_count() < at) return
        call get_command_argument(at, text)
        read (text, *, iostat=status) value
        if (status /= 0 .or. value < 1) error stop 'usage: many_systems [SYSTEMS [REPETITIONS]]'
    end subroutine
end program
