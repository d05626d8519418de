! What all Fortran modules of vonkk3 share: status values, their text, and the version record. The twin of
! include/vonkk3/types.h.
module vonkk3_types
    use, intrinsic :: iso_c_binding, only: c_ptr, c_int32_t, c_char, c_null_char, c_f_pointer, c_associated
    implicit none
    private

    integer(c_int32_t), parameter, public :: vonkOk = 0             ! done
    integer(c_int32_t), parameter, public :: vonkErrSize = -6       ! a size is zero, or sizes do not fit each other
    integer(c_int32_t), parameter, public :: vonkErrNullPtr = -8    ! a null pointer among the operands
    integer(c_int32_t), parameter, public :: vonkErrSingular = -10  ! below the family's singularity tolerance
    integer(c_int32_t), parameter, public :: vonkErrNotPosDef = -179 ! the matrix is not positive definite
    ! Of the generic names alone; no export returns it.
    integer(c_int32_t), parameter, public :: vonkErrStride = 1      ! an array's stride does not fit in 32 bits of bytes

    ! Which build of the library this is. The record is constant and lives as long as the library is loaded.
    type, bind(C), public :: VonkLibVersion
        integer(c_int32_t) :: versionMajor
        integer(c_int32_t) :: versionMinor
        integer(c_int32_t) :: buildMajor
        integer(c_int32_t) :: buildNumber
        character(kind=c_char) :: cpuTag(4) ! processor variant, zero-terminated
        type(c_ptr) :: libraryName          ! zero-terminated texts
        type(c_ptr) :: versionText
        type(c_ptr) :: buildDateText
    end type

    interface
        ! A pointer to the record: give it to c_f_pointer.
        function vonkGetLibVersion() bind(C, name="vonkGetLibVersion") result(record)
            import :: c_ptr
            type(c_ptr) :: record
        end function
    end interface

    public :: vonkGetLibVersion, vonkStatusText, vonkText

contains

    ! A status in words.
    pure function vonkStatusText(status) result(text)
        integer(c_int32_t), intent(in) :: status
        character(:), allocatable :: text
        select case (status)
        case (vonkOk); text = 'done'
        case (vonkErrSize); text = 'a size is zero, or sizes do not fit each other'
        case (vonkErrNullPtr); text = 'a null pointer among the operands'
        case (vonkErrSingular); text = "a matrix is singular: below the family's tolerance"
        case (vonkErrNotPosDef); text = 'a matrix is not positive definite'
        case (vonkErrStride); text = 'a stride of an array, in bytes, does not fit in 32 bits, or is no multiple of its element'
        case default; text = 'not a status of vonkk3'
        end select
    end function

    ! A zero-terminated text of the version record as a Fortran string; empty if the pointer is null.
    function vonkText(text) result(copy)
        type(c_ptr), intent(in) :: text
        character(:), allocatable :: copy
        character(kind=c_char), pointer :: letters(:)
        integer :: length
        copy = ''
        if (.not. c_associated(text)) return
        call c_f_pointer(text, letters, [huge(0)])
        length = 0
        do while (letters(length + 1) /= c_null_char)
            length = length + 1
            copy = copy // letters(length)
        end do
    end function
end module
