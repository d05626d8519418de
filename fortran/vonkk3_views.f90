! Where the elements of an array lie, for the strided layout S2: a view is taken from the array as it stands, a section
! with any strides included, and nothing is copied.
!
! Fortran's a(i, j, n) is element (i, j) of object n. The byte stride of the first index is therefore S2's row stride,
! that of the second its element stride, and that of the last its object stride; that the array is column-major shows
! nowhere else.
module vonkk3_views
    use, intrinsic :: iso_c_binding, only: c_ptr, c_null_ptr, c_loc, c_int32_t, c_int64_t, c_intptr_t, c_float, c_double
    use vonkk3_types, only: vonkOk, vonkErrSize, vonkErrStride, vonkStatusText
    implicit none
    private
    public :: view, view_of, objects_from, joint_status, conclude

    type :: view
        type(c_ptr) :: base = c_null_ptr       ! first element; null if there is none
        integer(c_int32_t) :: stride(3) = 0    ! bytes from index to index of each dimension; 0 where there is but one
        integer(c_int32_t) :: extent(3) = 1    ! elements of each dimension
        integer(c_int32_t) :: status = vonkOk  ! or vonkErrStride, or vonkErrSize
    end type

    interface view_of
        module procedure view_1_32f, view_2_32f, view_3_32f, view_1_64f, view_2_64f, view_3_64f
    end interface

contains

    ! The strides come from the addresses of neighbours, which every compiler knows how to give.
    pure function view_1_32f(x) result(v)
        real(c_float), intent(in), target :: x(:)
        type(view) :: v
        call take_extent(v, 1, size(x, 1, c_int64_t))
        if (minval(v%extent) == 0) return
        v%base = c_loc(x(1))
        if (size(x, 1) > 1) call take_stride(v, 1, c_loc(x(2)))
    end function

    pure function view_2_32f(x) result(v)
        real(c_float), intent(in), target :: x(:, :)
        type(view) :: v
        call take_extent(v, 1, size(x, 1, c_int64_t))
        call take_extent(v, 2, size(x, 2, c_int64_t))
        if (minval(v%extent) == 0) return
        v%base = c_loc(x(1, 1))
        if (size(x, 1) > 1) call take_stride(v, 1, c_loc(x(2, 1)))
        if (size(x, 2) > 1) call take_stride(v, 2, c_loc(x(1, 2)))
    end function

    pure function view_3_32f(x) result(v)
        real(c_float), intent(in), target :: x(:, :, :)
        type(view) :: v
        call take_extent(v, 1, size(x, 1, c_int64_t))
        call take_extent(v, 2, size(x, 2, c_int64_t))
        call take_extent(v, 3, size(x, 3, c_int64_t))
        if (minval(v%extent) == 0) return
        v%base = c_loc(x(1, 1, 1))
        if (size(x, 1) > 1) call take_stride(v, 1, c_loc(x(2, 1, 1)))
        if (size(x, 2) > 1) call take_stride(v, 2, c_loc(x(1, 2, 1)))
        if (size(x, 3) > 1) call take_stride(v, 3, c_loc(x(1, 1, 2)))
    end function

    pure function view_1_64f(x) result(v)
        real(c_double), intent(in), target :: x(:)
        type(view) :: v
        call take_extent(v, 1, size(x, 1, c_int64_t))
        if (minval(v%extent) == 0) return
        v%base = c_loc(x(1))
        if (size(x, 1) > 1) call take_stride(v, 1, c_loc(x(2)))
    end function

    pure function view_2_64f(x) result(v)
        real(c_double), intent(in), target :: x(:, :)
        type(view) :: v
        call take_extent(v, 1, size(x, 1, c_int64_t))
        call take_extent(v, 2, size(x, 2, c_int64_t))
        if (minval(v%extent) == 0) return
        v%base = c_loc(x(1, 1))
        if (size(x, 1) > 1) call take_stride(v, 1, c_loc(x(2, 1)))
        if (size(x, 2) > 1) call take_stride(v, 2, c_loc(x(1, 2)))
    end function

    pure function view_3_64f(x) result(v)
        real(c_double), intent(in), target :: x(:, :, :)
        type(view) :: v
        call take_extent(v, 1, size(x, 1, c_int64_t))
        call take_extent(v, 2, size(x, 2, c_int64_t))
        call take_extent(v, 3, size(x, 3, c_int64_t))
        if (minval(v%extent) == 0) return
        v%base = c_loc(x(1, 1, 1))
        if (size(x, 1) > 1) call take_stride(v, 1, c_loc(x(2, 1, 1)))
        if (size(x, 2) > 1) call take_stride(v, 2, c_loc(x(1, 2, 1)))
        if (size(x, 3) > 1) call take_stride(v, 3, c_loc(x(1, 1, 2)))
    end function

    pure subroutine take_extent(v, dimension, elements)
        type(view), intent(inout) :: v
        integer, intent(in) :: dimension
        integer(c_int64_t), intent(in) :: elements
        if (elements > huge(v%extent)) v%status = vonkErrSize
        v%extent(dimension) = int(min(elements, int(huge(v%extent), c_int64_t)), c_int32_t)
    end subroutine

    pure subroutine take_stride(v, dimension, next)
        type(view), intent(inout) :: v
        integer, intent(in) :: dimension
        type(c_ptr), intent(in) :: next
        integer(c_intptr_t) :: bytes
        bytes = transfer(next, bytes) - transfer(v%base, bytes)
        if (abs(bytes) > huge(v%stride)) then
            v%status = vonkErrStride
        else
            v%stride(dimension) = int(bytes, c_int32_t)
        end if
    end subroutine

    ! Objects n, from 1, and on of an array of objects whose last dimension is the given one.
    pure function objects_from(objects, dimension, n) result(v)
        type(view), intent(in) :: objects
        integer, intent(in) :: dimension
        integer(c_int32_t), intent(in) :: n
        type(view) :: v
        integer(c_intptr_t) :: address
        v = objects
        address = transfer(objects%base, address) + (n - 1) * int(objects%stride(dimension), c_intptr_t)
        v%base = transfer(address, c_null_ptr)
    end function

    ! The first thing that speaks against a call: the views' own status, or sizes that do not fit.
    pure function joint_status(views, sizes_fit) result(status)
        integer(c_int32_t), intent(in) :: views(:)
        logical, intent(in) :: sizes_fit
        integer(c_int32_t) :: status
        integer :: k
        status = vonkOk
        if (.not. sizes_fit) status = vonkErrSize
        do k = 1, size(views)
            if (status == vonkOk) status = views(k)
        end do
    end function

    ! Hands the status to the caller; a failure that nobody asks for ends the program.
    subroutine conclude(name, status, wanted)
        character(*), intent(in) :: name
        integer(c_int32_t), intent(in) :: status
        integer(c_int32_t), intent(out), optional :: wanted
        if (present(wanted)) then
            wanted = status
        else if (status /= vonkOk) then
            error stop name // ': ' // vonkStatusText(status)
        end if
    end subroutine
end module
